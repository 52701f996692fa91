// "Print a Packing List" on the invoice screen: what the slip holds after each end of the print run, and its questions.
#include "runtime/RuntimeError.h"
#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Confirm = u"Was the Invoice Printed Correctly"_s;
const QString Retry = u"Would you like to Retry Printing this Invoice"_s;
const QString Printed = u"Was the Packing Slip printed Correctly?"_s;
const QString PrintedTitle = u"Print Confirmation"_s;
const QString Again = u"Would you like to reprint it?"_s;
const QString AgainTitle = u"Reprint Confirmation"_s;

/// Three hammers, a service without a quantity and two planks, finalized; the packing list is ticked.
void OpenTicked(InvoiceBench& bench) {
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"3"_s);
  bench.On().Click(u"cmdPost_1"_s);
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  bench.PostManual(u"Planks"_s, u"2"_s, u"5"_s);
  bench.Finalize();
  bench.On().Click(u"ckPackingList"_s);
}

void GiveUp(InvoiceBench& bench) {
  bench.Answers.No(Confirm);
  bench.Answers.No(Retry);
}

void Print(InvoiceBench& bench) {
  bench.On().Click(u"cmdInvoiceContinue"_s);
}

/// What the slip's page bears below its headings.
QStringList SlipLines(const InvoiceBench& bench) {
  const QStringList words = bench.Paper.Words(1);
  return words.mid(words.indexOf(u"Description"_s) + 1);
}

bool LastJobIsASlip(const InvoiceBench& bench) {
  return bench.Paper.Words(1).contains(u"Packing Slip"_s);
}

const QStringList AllLines{u"3"_s, u"Hammer"_s, u"2"_s, u"Planks"_s};
const QStringList Left{u"hide frmInvoice"_s, u"show frmStartup"_s};

}  // namespace

class ScreenPackingSlip : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void afterAFullCommitTheSlipHasNoLines();
  void afterGivingUpTheSlipIsFull();
  void withoutTheTickThereIsNone();
  void theSlipComesAfterTheInvoiceIsCommitted();
  void afterACancelledInvoiceDialogTheSlipIsFull();
  void aReprintComesWithoutADialog();
  void noAndNoLeavesTheScreen();
  void aCancelledSlipDialogIsSilentAndLeavesTheScreen();
  void anErrorOfTheSlipIsThePrintErrorAndLeavesTheScreen();
  void anErrorOfAReprintIsThePrintErrorToo();
  void anInvoiceWithoutLinesPrintsNoSlip();
  void theQuestionsHaveTheirTitlesAndButtons();
};

void ScreenPackingSlip::afterAFullCommitTheSlipHasNoLines() {
  InvoiceBench bench;
  OpenTicked(bench);
  bench.Answers.Yes(Confirm);
  bench.Answers.Yes(Printed, PrintedTitle);
  Print(bench);
  QCOMPARE(bench.Paper.Jobs.size(), 2U);
  QCOMPARE(bench.Paper.Jobs[0].Title, u"Invoice 20260001"_s);
  QCOMPARE(bench.Paper.Jobs[1].Title, u"Packing Slip"_s);
  QCOMPARE(bench.Paper.DialogsShown, 2);
  QVERIFY(LastJobIsASlip(bench));
  QCOMPARE(SlipLines(bench), QStringList());
  QCOMPARE(bench.Around.Asked, Left);
}

void ScreenPackingSlip::afterGivingUpTheSlipIsFull() {
  InvoiceBench bench;
  OpenTicked(bench);
  GiveUp(bench);
  bench.Answers.Yes(Printed, PrintedTitle);
  Print(bench);
  QVERIFY(LastJobIsASlip(bench));
  QCOMPARE(SlipLines(bench), AllLines);
  QVERIFY(!bench.Tree.Exists(u"/CompletedInvoices/20260001.txt"_s));
  QCOMPARE(bench.Around.Asked, Left);
  QVERIFY(!bench.Invoice.ckPackingList);
}

void ScreenPackingSlip::withoutTheTickThereIsNone() {
  InvoiceBench bench;
  OpenTicked(bench);
  bench.On().Click(u"ckPackingList"_s);
  GiveUp(bench);
  Print(bench);
  QCOMPARE(bench.Paper.Jobs.size(), 1U);
  QVERIFY(!LastJobIsASlip(bench));
}

void ScreenPackingSlip::theSlipComesAfterTheInvoiceIsCommitted() {
  InvoiceBench bench;
  OpenTicked(bench);
  bool committed = false;
  bench.Answers.Yes(Confirm);
  bench.Answers.With(QMessageBox::Yes, [&] {
    committed = bench.Tree.Exists(u"/CompletedInvoices/20260001.txt"_s) &&
                bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s) == "20260002\r\n";
  });
  Print(bench);
  QVERIFY(committed);
}

void ScreenPackingSlip::afterACancelledInvoiceDialogTheSlipIsFull() {
  InvoiceBench bench;
  OpenTicked(bench);
  bench.Paper.DialogError = ErrorNumber::DialogCancelled;
  bench.Answers.Yes(Printed);
  Print(bench);
  QCOMPARE(bench.Paper.DialogsShown, 2);
  QCOMPARE(bench.Paper.Jobs.size(), 1U);
  QCOMPARE(SlipLines(bench), AllLines);
}

void ScreenPackingSlip::aReprintComesWithoutADialog() {
  InvoiceBench bench;
  OpenTicked(bench);
  GiveUp(bench);
  bench.Answers.No(Printed);
  bench.Answers.Yes(Again);
  bench.Answers.Yes(Printed);
  Print(bench);
  QCOMPARE(bench.Paper.DialogsShown, 2);
  QCOMPARE(bench.Paper.Jobs.size(), 3U);
  QCOMPARE(SlipLines(bench), AllLines);
}

void ScreenPackingSlip::noAndNoLeavesTheScreen() {
  InvoiceBench bench;
  OpenTicked(bench);
  GiveUp(bench);
  bench.Answers.No(Printed);
  bench.Answers.No(Again);
  Print(bench);
  QCOMPARE(bench.Paper.Jobs.size(), 2U);
  QCOMPARE(bench.Around.Asked, Left);
}

void ScreenPackingSlip::aCancelledSlipDialogIsSilentAndLeavesTheScreen() {
  InvoiceBench bench;
  OpenTicked(bench);
  bench.Answers.With(QMessageBox::Yes, [&] { bench.Paper.DialogError = ErrorNumber::DialogCancelled; });
  Print(bench);
  QCOMPARE(bench.Paper.DialogsShown, 2);
  QCOMPARE(bench.Paper.Jobs.size(), 1U);
  QCOMPARE(bench.Answers.Boxes().size(), 1);
  QCOMPARE(bench.Around.Asked, Left);
  QVERIFY(bench.Tree.Exists(u"/CompletedInvoices/20260001.txt"_s));
}

void ScreenPackingSlip::anErrorOfTheSlipIsThePrintErrorAndLeavesTheScreen() {
  InvoiceBench bench;
  OpenTicked(bench);
  bench.Answers.With(QMessageBox::Yes, [&] { bench.Paper.SendError = ErrorNumber::PrinterError; });
  bench.Answers.Ok(u"A Print Error has occurred"_s, u"Print Error"_s);
  Print(bench);
  QCOMPARE(bench.Paper.Jobs.size(), 1U);
  QCOMPARE(bench.Around.Asked, Left);
}

void ScreenPackingSlip::anErrorOfAReprintIsThePrintErrorToo() {
  InvoiceBench bench;
  OpenTicked(bench);
  GiveUp(bench);
  bench.Answers.No(Printed);
  bench.Answers.With(QMessageBox::Yes, [&] { bench.Paper.SendError = ErrorNumber::PrinterError; });
  bench.Answers.Ok(u"A Print Error has occurred"_s, u"Print Error"_s);
  Print(bench);
  QCOMPARE(bench.Paper.Jobs.size(), 2U);
  QCOMPARE(bench.Around.Asked, Left);
  QCOMPARE(bench.Around.Errors, QList<int>{});
}

void ScreenPackingSlip::anInvoiceWithoutLinesPrintsNoSlip() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.Invoice.ckPackingList = true;
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Ok(u"The Invoice contains no Items"_s);
  Print(bench);
  QCOMPARE(bench.Paper.Jobs.size(), 0U);
}

void ScreenPackingSlip::theQuestionsHaveTheirTitlesAndButtons() {
  InvoiceBench bench;
  OpenTicked(bench);
  GiveUp(bench);
  bench.Answers.Escape(Printed, PrintedTitle);
  bench.Answers.Escape(Again, AgainTitle);
  Print(bench);
  const QMessageBox::StandardButtons yesNo = QMessageBox::Yes | QMessageBox::No;
  QCOMPARE(bench.Answers.Boxes().at(2).Buttons, yesNo);
  QCOMPARE(bench.Answers.Boxes().at(3).Buttons, yesNo);
  QCOMPARE(bench.Paper.Jobs.size(), 2U);
}

QTEST_MAIN(ScreenPackingSlip)
#include "tst_screenPackingSlip.moc"
