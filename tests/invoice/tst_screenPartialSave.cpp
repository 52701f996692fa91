// Save Partial Invoice on the screen: the questions, the draft, and every byte of the image.
#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Image = u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s;
const QString Counter = u"/KVInvoiceNo.txt"_s;
const QString SaveText =
    u"The account data, invoice items, quantites,\nprices, and extensions will be saved\n"
    "Recall the invoice from the Main Menu,\nPartial Invoices and add to the invoice"_s;
const QString SaveTitle = u"Save Partial Invoice"_s;
const QString DraftText = u"Would you like to Print a Draft Copy?"_s;
const QString DraftTitle = u"Print Draft Copy"_s;
const QStringList Left{u"hide frmInvoice"_s, u"show frmStartup"_s};
const QByteArray Blocks =
    "\"Acme Tools\"\r\n\"1 Main Street\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
    "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";

/// A service of 7 March, an item and hours of labor.
void OpenWithLines(InvoiceBench& bench) {
  bench.Open();
  bench.On().Fill(u"txtReference"_s, u"PO 5"_s);
  bench.On().Fill(u"txtShipto_6"_s, u"Ms Jones"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"3"_s);
  bench.On().Click(u"cmdPost_1"_s);
}

void Save(InvoiceBench& bench) {
  bench.Answers.Yes(SaveText, SaveTitle);
  bench.Answers.No(DraftText, DraftTitle);
  bench.On().Click(u"cmdSave"_s);
}

}  // namespace

class ScreenPartialSave : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aServicesDateSurvivesAndAnItemsBlankDateBecomesTheSaveDate();
  void theScreenIsLeftTheNumberUsedUpAndTheListReadAgain();
  void noLinesWriteAValidImageWithTheCountZero();
  void chargesDiscountCarrierTermsAndMemoAreNotSaved();
  void theShipToBlockIsSavedWhetherTickedOrNot();
  void commasAndQuotesStandAsTyped();
  void blanksAroundADescriptionStandAndThoseAroundTheHeadDoNot();
  void noSavesNothingAndStays();
  void theBoxesAreYesAndNo();
  void aDraftIsPrintedWithoutADialogAndWithoutTotals();
  void withoutADraftNothingIsPrinted();
  void aPrintErrorEndsTheSaveAndTheNextPrintIsAnInvoice();
  void aRecalledInvoiceReplacesItsFileAndCountsNoNumber();
  void anEmptyNumberIsRefused();
  void aNumberThatWouldLeaveTheFolderIsRefused();
  void aNumberThatIsNoNumberIsSavedAndCannotBeCounted();
  void aFailingDiskKeepsTheInvoiceAndTheOldImage();
};

void ScreenPartialSave::aServicesDateSurvivesAndAnItemsBlankDateBecomesTheSaveDate() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.Calendar.Set(QDate(2026, 3, 9));
  Save(bench);
  QCOMPARE(bench.Tree.Bytes(Image), "20260001\r\n1001\r\nAcme Tools\r\n3/9/2026\r\n" + Blocks +
                                        "20260001\r\n1001\r\nPO 5\r\nMs Jones\r\n2\r\n"
                                        "\r\nRepair\r\n3/7/2026\r\n$80.00\r\n$80.00\r\nFalse\r\n"
                                        "3\r\nHammer\r\n3/9/2026\r\n$12.00\r\n$36.00\r\nTrue\r\n");
  QCOMPARE(bench.Around.Errors, QList<int>{});
}

void ScreenPartialSave::theScreenIsLeftTheNumberUsedUpAndTheListReadAgain() {
  InvoiceBench bench;
  OpenWithLines(bench);
  Save(bench);
  QCOMPARE(bench.Tree.Bytes(Counter), "20260002\r\n");
  QCOMPARE(bench.PartialReloads, 1);
  QCOMPARE(bench.Around.Asked, Left);
  QCOMPARE(bench.Invoice.LineCount, 0);
  QCOMPARE(bench.Invoice.txtInvoiceNo, QString());
  bench.Reopen();
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"20260002"_s);
  QCOMPARE(bench.Row(1), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
}

void ScreenPartialSave::noLinesWriteAValidImageWithTheCountZero() {
  InvoiceBench bench;
  bench.OpenAtLines();
  Save(bench);
  QCOMPARE(bench.Tree.Bytes(Image), "20260001\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n" + Blocks +
                                        "20260001\r\n1001\r\nPrepared 3/7/2026\r\n\r\n0\r\n");
}

void ScreenPartialSave::chargesDiscountCarrierTermsAndMemoAreNotSaved() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().Trigger(u"mnuMemo"_s);
  bench.On().Fill(u"txtMemo"_s, u"Thank you"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.On().PickEntry(u"cboTerms"_s, 6);
  bench.On().Fill(u"txtShip"_s, u"12.5"_s);
  bench.On().Fill(u"txtMisc"_s, u"3"_s);
  bench.On().Click(u"cmdInvoice_6"_s);
  bench.On().PickEntry(u"cboShipping"_s, u"UPS - Ground"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$25.50"_s);
  Save(bench);
  QCOMPARE(bench.Tree.Bytes(Image), "20260001\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n" + Blocks +
                                        "20260001\r\n1001\r\nPrepared 3/7/2026\r\n\r\n1\r\n"
                                        "1\r\nCrate\r\n3/7/2026\r\n$10.00\r\n$10.00\r\nFalse\r\n");
}

void ScreenPartialSave::theShipToBlockIsSavedWhetherTickedOrNot() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtShipto_0"_s, u"  Dock 4 "_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  Save(bench);
  QVERIFY(bench.Tree.Bytes(Image).contains("\"62701\"\r\n\"Dock 4\"\r\n\"\"\r\n"));
}

void ScreenPartialSave::blanksAroundADescriptionStandAndThoseAroundTheHeadDoNot() {
  InvoiceBench bench;
  bench.Customer[0] = u"1001 "_s;
  bench.Customer[1] = u" Acme Tools "_s;
  bench.Open();
  bench.On().Fill(u"txtReference"_s, u"  PO 5 "_s);
  bench.On().Fill(u"txtShipto_6"_s, u" Ms Jones  "_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.PostManual(u"  Crate "_s, u"2"_s, u"10"_s);
  Save(bench);
  QCOMPARE(bench.Tree.Bytes(Image), "20260001\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n" + Blocks +
                                        "20260001\r\n1001\r\nPO 5\r\nMs Jones\r\n1\r\n"
                                        "2\r\n  Crate \r\n3/7/2026\r\n$10.00\r\n$20.00\r\nFalse\r\n");
}

void ScreenPartialSave::commasAndQuotesStandAsTyped() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtReference"_s, u"PO 5, \"rush\""_s);
  bench.On().Fill(u"txtShipto_6"_s, u"Jones, Ann"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  Save(bench);
  QVERIFY(bench.Tree.Bytes(Image).endsWith("20260001\r\n1001\r\nPO 5, \"rush\"\r\nJones, Ann\r\n0\r\n"));
}

void ScreenPartialSave::noSavesNothingAndStays() {
  InvoiceBench bench;
  OpenWithLines(bench);
  const auto before = bench.Tree.Everything();
  bench.Answers.No(SaveText, SaveTitle);
  bench.On().Click(u"cmdSave"_s);
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Around.Asked, QStringList{});
  // The item's date is still blank.
  QCOMPARE(bench.Row(2), QStringList({u"3"_s, u"Hammer"_s, u""_s, u"$12.00"_s, u"$36.00"_s, u"True"_s}));
}

void ScreenPartialSave::theBoxesAreYesAndNo() {
  InvoiceBench bench;
  OpenWithLines(bench);
  Save(bench);
  QCOMPARE(bench.Answers.Boxes().size(), 2);
  for (const auto& box : bench.Answers.Boxes()) {
    QCOMPARE(box.Buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
  }
}

void ScreenPartialSave::aDraftIsPrintedWithoutADialogAndWithoutTotals() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().Click(u"cmdPrint"_s);
  bench.Answers.Yes(SaveText, SaveTitle);
  bench.Answers.Yes(DraftText, DraftTitle);
  bench.On().Click(u"cmdSave"_s);
  QCOMPARE(bench.Paper.DialogsShown, 0);
  QCOMPARE(bench.Paper.Jobs.size(), 1U);
  QVERIFY(bench.Paper.Jobs[0].Title.startsWith(u"Draft Invoice 2026"_s));
  const QStringList words = bench.Paper.Words(1);
  QVERIFY(words.contains(u"DRAFT INVOICE"_s));
  QVERIFY(words.contains(u"Hammer"_s));
  QVERIFY(!words.contains(u"$116.00"_s));
  QVERIFY(bench.Tree.Exists(Image));
  QCOMPARE(bench.Around.Asked, Left);
}

void ScreenPartialSave::withoutADraftNothingIsPrinted() {
  InvoiceBench bench;
  OpenWithLines(bench);
  Save(bench);
  QVERIFY(bench.Paper.Jobs.empty());
}

void ScreenPartialSave::aPrintErrorEndsTheSaveAndTheNextPrintIsAnInvoice() {
  InvoiceBench bench;
  OpenWithLines(bench);
  const auto before = bench.Tree.Everything();
  bench.Paper.SendError = 482;
  bench.Answers.Yes(SaveText, SaveTitle);
  bench.Answers.Yes(DraftText, DraftTitle);
  bench.Answers.Ok(u"A Print Error has occurred"_s, u"Print Error"_s);
  bench.On().Click(u"cmdSave"_s);
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Row(2).at(1), u"Hammer"_s);
  QCOMPARE(bench.Around.Asked, QStringList{});
  bench.Finalize();
  bench.Answers.Yes();
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QVERIFY(bench.Paper.Words(1).contains(u"INVOICE"_s));
  QVERIFY(bench.Paper.Words(1).contains(u"$116.00"_s));
}

void ScreenPartialSave::aRecalledInvoiceReplacesItsFileAndCountsNoNumber() {
  InvoiceBench bench;
  bench.Tree.Write(Counter, "20260017\r\n");
  bench.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260017.txt"_s, "old\r\n");
  bench.OpenAtLines();
  bench.Invoice.RecalledInvoice = true;
  Save(bench);
  QCOMPARE(
      bench.Tree.Bytes(u"/KarvexInvoicer/IncompleteInvoices/20260017.txt"_s),
      "20260017\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n" + Blocks + "20260017\r\n1001\r\nPrepared 3/7/2026\r\n\r\n0\r\n");
  QCOMPARE(bench.Tree.List(u"/KarvexInvoicer/IncompleteInvoices"_s), QStringList{u"20260017.txt"_s});
  QCOMPARE(bench.Tree.Bytes(Counter), "20260017\r\n");
  QVERIFY(!bench.Invoice.RecalledInvoice);
}

void ScreenPartialSave::anEmptyNumberIsRefused() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.Invoice.txtInvoiceNo.clear();
  const auto before = bench.Tree.Everything();
  bench.Answers.Ok(u"You have not entered an Invoice Number"_s);
  bench.On().Click(u"cmdSave"_s);
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Around.Asked, QStringList{});
  QCOMPARE(bench.Row(2).at(1), u"Hammer"_s);
}

void ScreenPartialSave::aNumberThatWouldLeaveTheFolderIsRefused() {
  InvoiceBench bench;
  OpenWithLines(bench);
  // The box takes no such key; the number stands as a recalled image could bring it.
  bench.Invoice.txtInvoiceNo = u"../5"_s;
  const auto before = bench.Tree.Everything();
  bench.Answers.Ok(u"The Invoice Number names the file of the Invoice, and \"../5\" can't name a file."_s);
  bench.On().Click(u"cmdSave"_s);
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Around.Asked, QStringList{});
}

void ScreenPartialSave::aNumberThatIsNoNumberIsSavedAndCannotBeCounted() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.Invoice.txtInvoiceNo = u"12-3"_s;
  Save(bench);
  QVERIFY(bench.Tree.Exists(u"/KarvexInvoicer/IncompleteInvoices/12-3.txt"_s));
  QCOMPARE(bench.Around.Errors, QList<int>{13});
  QCOMPARE(bench.Tree.Bytes(Counter), "20260001\r\n");
  QCOMPARE(bench.Around.Asked, QStringList{});
  QCOMPARE(bench.Row(2).at(1), u"Hammer"_s);
}

void ScreenPartialSave::aFailingDiskKeepsTheInvoiceAndTheOldImage() {
  for (const auto call : {FailingDevice::Call::Write, FailingDevice::Call::Flush, FailingDevice::Call::Rename}) {
    InvoiceBench bench;
    bench.Tree.Write(Image, "old\r\n");
    OpenWithLines(bench);
    const auto before = bench.Tree.Everything();
    bench.Device.FailAlways(call, ENOSPC);
    Save(bench);
    bench.Device.Reset();
    QCOMPARE(bench.Around.Errors, QList<int>{61});
    QCOMPARE(bench.Tree.Everything(), before);
    QCOMPARE(bench.Around.Asked, QStringList{});
    QCOMPARE(bench.Row(1).at(1), u"Repair"_s);
    // The next try goes through.
    Save(bench);
    QVERIFY(bench.Tree.Bytes(Image).contains("Hammer"));
    QCOMPARE(bench.Tree.Bytes(Counter), "20260002\r\n");
  }
}

QTEST_MAIN(ScreenPartialSave)
#include "tst_screenPartialSave.moc"
