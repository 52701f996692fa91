// The payment of a prepaid invoice on the screen: the frame, the payment form, and what it posts.
#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Confirm = u"Was the Invoice Printed Correctly"_s;
const QString ConfirmTitle = u"Printing Confirmation"_s;
const QString Ledger = u"/KVActiveAccounts/1001.txt"_s;
const QString Payments = u"/KAPaymentRecords.txt"_s;
const QString Frame = u"fraPrePaid"_s;
const QString Prompt = u"Label2_88"_s;

QByteArray Posting(const QByteArray& text, const QByteArray& amount) {
  return Field("Acme Tools", 45) + Field("1001", 25) + Field("3/7/2026", 15) + Field(text, 60) + Field(amount, 10);
}

/// A line of $20.00, and the payment asked for.
void OpenPrepaid(InvoiceBench& bench) {
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.On().Click(u"ckPrepaid"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
}

void Accept(InvoiceBench& bench) {
  bench.Answers.Yes(Confirm, ConfirmTitle);
  bench.On().Click(u"cmdPrepaid_0"_s);
}

}  // namespace

class ScreenPrepaid : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void finalizeAsksForThePaymentOfTheGrandTotal();
  void withoutTheOptionFinalizeAsksForNoPayment();
  void finalizingAgainEmptiesThePaymentForm();
  void aCheckNumberIsTypedBehindTheWord();
  void aCreditCardNumberIsTypedBehindTheWord();
  void cashDoesNotShowThePrompt();
  void cashAfterACheckHidesThePrompt();
  void acceptPrintsAndPostsThePayment();
  void aPaymentFormLeftEmptyPostsAnEmptyMethod();
  void theAmountIsPostedAsTyped();
  void acceptHidesTheFrameAndTheNextInvoiceDoesNotShowIt();
  void printingWithoutAcceptDoesNotShowTheFrameOnTheNextInvoice();
  void cancelHidesTheFrameAndKeepsThePaymentWhicheverAnswerComes_data();
  void cancelHidesTheFrameAndKeepsThePaymentWhicheverAnswerComes();
  void acceptPrintsWhatWasFinalizedAlsoWhereAChargeOrADiscountAsksForIt_data();
  void acceptPrintsWhatWasFinalizedAlsoWhereAChargeOrADiscountAsksForIt();
  void acceptWithoutLinesGoesBackToTheLines();
  void aPaymentThatCannotBeWrittenEndsTheRunWithoutAMessage();
};

void ScreenPrepaid::finalizeAsksForThePaymentOfTheGrandTotal() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  QVERIFY(!bench.On().IsVisible(Frame));
  bench.On().Click(u"ckPrepaid"_s);
  QVERIFY(!bench.On().IsVisible(Frame));
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QVERIFY(bench.On().IsVisible(Frame));
  QCOMPARE(bench.Text(u"txtPrepaid"_s), u"$25.00"_s);
  QCOMPARE(bench.Text(u"cboPrepaid"_s), QString());
  QCOMPARE(bench.On().FocusName(), u"cboPrepaid"_s);
  const auto* forms = bench.On().Control<QComboBox>(u"cboPrepaid"_s);
  QCOMPARE(forms->count(), 3);
  QCOMPARE(forms->itemText(0), u"Check # "_s);
  QCOMPARE(forms->itemText(1), u"Credit Card # "_s);
  QCOMPARE(forms->itemText(2), u"Cash"_s);
  QCOMPARE(bench.Text(Prompt), u"Enter the Check # or Credit Card #"_s);
  QCOMPARE(bench.Text(u"cmdPrepaid_0"_s), u"Accept/Continue"_s);
  QCOMPARE(bench.Text(u"cmdPrepaid_1"_s), u"Cancel"_s);
}

void ScreenPrepaid::withoutTheOptionFinalizeAsksForNoPayment() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.Finalize();
  QVERIFY(!bench.On().IsVisible(Frame));
  QCOMPARE(bench.Text(u"txtPrepaid"_s), QString());
}

void ScreenPrepaid::finalizingAgainEmptiesThePaymentForm() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  bench.On().PickEntry(u"cboPrepaid"_s, 0);
  bench.On().Type(u"77"_s);
  bench.On().Fill(u"txtPrepaid"_s, u"5"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"cboPrepaid"_s), QString());
  QCOMPARE(bench.Text(u"txtPrepaid"_s), u"$20.00"_s);
}

void ScreenPrepaid::aCheckNumberIsTypedBehindTheWord() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  QVERIFY(!bench.On().IsVisible(Prompt));
  bench.On().PickEntry(u"cboPrepaid"_s, 0);
  QVERIFY(bench.On().IsVisible(Prompt));
  QCOMPARE(bench.On().FocusName(), u"cboPrepaid"_s);
  bench.On().Type(u"77"_s);
  QCOMPARE(bench.Text(u"cboPrepaid"_s), u"Check # 77"_s);
  Accept(bench);
  QCOMPARE(bench.Tree.Bytes(Payments), Posting("Check # 77", "$20.00"));
}

void ScreenPrepaid::aCreditCardNumberIsTypedBehindTheWord() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  bench.On().PickEntry(u"cboPrepaid"_s, 1);
  QVERIFY(bench.On().IsVisible(Prompt));
  bench.On().Type(u"4444"_s);
  Accept(bench);
  QCOMPARE(bench.Tree.Bytes(Payments), Posting("Credit Card # 4444", "$20.00"));
}

void ScreenPrepaid::cashDoesNotShowThePrompt() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  bench.On().PickEntry(u"cboPrepaid"_s, 2);
  QVERIFY(!bench.On().IsVisible(Prompt));
  Accept(bench);
  QCOMPARE(bench.Tree.Bytes(Payments), Posting("Cash", "$20.00"));
}

void ScreenPrepaid::cashAfterACheckHidesThePrompt() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  bench.On().PickEntry(u"cboPrepaid"_s, 0);
  bench.On().PickEntry(u"cboPrepaid"_s, 2);
  QVERIFY(!bench.On().IsVisible(Prompt));
  QCOMPARE(bench.Text(u"cboPrepaid"_s), u"Cash"_s);
}

void ScreenPrepaid::acceptPrintsAndPostsThePayment() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  Accept(bench);
  QCOMPARE(bench.Paper.DialogsShown, 1);
  QCOMPARE(bench.Tree.Bytes(Ledger),
           Posting("Previous Balance", "$0.00") + Posting("20260001", "20") + Posting("Payment Received", "$20.00"));
  QCOMPARE(bench.Tree.Bytes(u"/Backup"_s + Ledger), bench.Tree.Bytes(Ledger));
  QVERIFY(bench.Tree.Exists(u"/CompletedInvoices/20260001.txt"_s));
  QCOMPARE(bench.Around.Asked, QStringList({u"hide frmInvoice"_s, u"show frmStartup"_s}));
}

void ScreenPrepaid::aPaymentFormLeftEmptyPostsAnEmptyMethod() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  Accept(bench);
  QCOMPARE(bench.Tree.Bytes(Payments), Posting("", "$20.00"));
}

void ScreenPrepaid::theAmountIsPostedAsTyped() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  bench.On().Fill(u"txtPrepaid"_s, u"ten dollars"_s);
  Accept(bench);
  QCOMPARE(bench.Tree.Bytes(Ledger).last(155), Posting("Payment Received", "ten dollar"));
  QCOMPARE(bench.Tree.Bytes(Payments), Posting("", "ten dollar"));
}

void ScreenPrepaid::acceptHidesTheFrameAndTheNextInvoiceDoesNotShowIt() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  bool shown = true;
  bench.Answers.With(QMessageBox::Yes, [&] { shown = bench.On().Control(Frame)->isVisible(); });
  bench.On().Click(u"cmdPrepaid_0"_s);
  QVERIFY(!shown);
  bench.Reopen();
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(!bench.On().IsVisible(Frame));
  QVERIFY(!bench.Ticked(u"ckPrepaid"_s));
}

void ScreenPrepaid::printingWithoutAcceptDoesNotShowTheFrameOnTheNextInvoice() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  bench.Answers.Yes(Confirm, ConfirmTitle);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QVERIFY(bench.Tree.Exists(Payments));
  bench.Reopen();
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(!bench.On().IsVisible(Frame));
}

void ScreenPrepaid::cancelHidesTheFrameAndKeepsThePaymentWhicheverAnswerComes_data() {
  QTest::addColumn<bool>("yes");
  QTest::newRow("yes") << true;
  QTest::newRow("no") << false;
}

void ScreenPrepaid::cancelHidesTheFrameAndKeepsThePaymentWhicheverAnswerComes() {
  QFETCH(bool, yes);
  InvoiceBench bench;
  OpenPrepaid(bench);
  bool shown = true;
  bench.Answers.With(yes ? QMessageBox::Yes : QMessageBox::No, [&] { shown = bench.On().Control(Frame)->isVisible(); });
  bench.On().Click(u"cmdPrepaid_1"_s);
  QVERIFY(!shown);
  QCOMPARE(bench.Answers.Last().Text, u"Click YES to Cancel Prepaid Posting"_s);
  QCOMPARE(bench.Answers.Last().Title, u"Cancel PrePaid"_s);
  QCOMPARE(bench.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
  QVERIFY(!bench.On().IsVisible(Frame));
  QVERIFY(bench.Ticked(u"ckPrepaid"_s));
  bench.Answers.Yes(Confirm, ConfirmTitle);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Tree.Bytes(Payments), Posting("", "$20.00"));
  QCOMPARE(bench.Tree.Size(Ledger), 3 * 155);
}

void ScreenPrepaid::acceptPrintsWhatWasFinalizedAlsoWhereAChargeOrADiscountAsksForIt_data() {
  QTest::addColumn<bool>("charge");
  QTest::newRow("a charge") << true;
  QTest::newRow("another kind of discount") << false;
}

void ScreenPrepaid::acceptPrintsWhatWasFinalizedAlsoWhereAChargeOrADiscountAsksForIt() {
  QFETCH(bool, charge);
  InvoiceBench bench;
  OpenPrepaid(bench);
  if (charge) {
    bench.On().Fill(u"txtShip"_s, u"25"_s);
    bench.On().PressKey(Qt::Key_Tab);
  } else {
    bench.Answers.Ok();
    bench.On().Click(u"optDiscount_1"_s);
  }
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  QVERIFY(bench.On().IsVisible(Frame));
  Accept(bench);
  // The total is that of the last Finalize.
  const QByteArray image = bench.Tree.Bytes(u"/CompletedInvoices/20260001.txt"_s);
  const QByteArray ship = charge ? "$25.00" : "$0.00";
  QVERIFY2(image.endsWith(R"("$20.00","$0.00","$0.00","$20.00",")" + ship + "\",\"$0.00\",\"$0.00\"\r\n"),
           image.constData());
  QCOMPARE(bench.Tree.Bytes(Ledger).mid(155, 155), Posting("20260001", "20"));
}

void ScreenPrepaid::acceptWithoutLinesGoesBackToTheLines() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"ckPrepaid"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Ok(u"The Invoice contains no Items"_s, u"No Items Entered"_s);
  bench.On().Click(u"cmdPrepaid_0"_s);
  QVERIFY(bench.On().IsVisible(u"fraInstructions_1"_s));
  QVERIFY(!bench.Tree.Exists(Payments));
}

void ScreenPrepaid::aPaymentThatCannotBeWrittenEndsTheRunWithoutAMessage() {
  InvoiceBench bench;
  OpenPrepaid(bench);
  bench.Tree.MakeFolder(Payments);
  Accept(bench);
  // The ledger has both entries; what comes behind the payment record was skipped.
  QCOMPARE(bench.Tree.Size(Ledger), 3 * 155);
  QVERIFY(!bench.Tree.Exists(u"/CompletedInvoices/20260001.txt"_s));
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260001\r\n");
  QCOMPARE(bench.Around.Errors, QList<int>{});
}

QTEST_MAIN(ScreenPrepaid)
#include "tst_screenPrepaid.moc"
