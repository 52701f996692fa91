// The discounts in the print-ready view: the options, their messages and the terms that they set.

#include <QtWidgets>

#include "invoice/Summary.h"

using namespace Qt::StringLiterals;

class ScreenDiscounts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void calculatedDiscountSetsTheTermsAndNeverChangesTheTotal();
  void calculatedDiscountWithDiscountTermsAsksNothing();
  void untickingTheOfferSetsRateAndDaysToTheirFirst();
  void flatDiscountIsDeductedAtFinalize();
  void aFlatDiscountOfTheWholeAmountIsRefused();
  void aFlatDiscountThatIsNoNumberIsAnErrorAndTheProgramGoesOn();
  void leavingTheFlatDiscountReformatsItAndMovesOn();
  void choosingFlatAgainClearsTheHeldDiscount();
  void noDiscountSetsTheTermsBack();
  void anOptionThatIsSelectedAlreadyOpensNoDialogue();
  void theOptionDialogueDisablesPrint();
  void readyToPrintClearsAHeldFlatDiscount();
  void theDiscountFramesKeepTheirLabelsThoughTheSumsDiffer();
  void arrowKeysChooseAnOptionToo();
  void enterInTheDiscountDeductsItAndInAChargeFinalizes();
  void aDeductedDiscountOutlastsTheLinesAndTheMenuEntry();
};

void ScreenDiscounts::calculatedDiscountSetsTheTermsAndNeverChangesTheTotal() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.Answers.Ok(CalculateText, Standard);
  bench.On().Click(u"optDiscount_2"_s);
  QCOMPARE(bench.Answers.Last().Text.count(u"\r\n"_s), 3);
  QCOMPARE(Terms(bench), 4);
  QVERIFY(bench.On().IsVisible(u"fraDiscount"_s));
  QVERIFY(!bench.On().IsVisible(u"fraFlat"_s));
  QVERIFY(bench.Ticked(u"ckDiscount"_s));
  QCOMPARE(bench.Text(u"cboDiscount"_s), u"1.0"_s);
  bench.On().PickEntry(u"cboDiscount"_s, u"2,0"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtDiscount"_s), u"$20.00"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,070.00"_s);
}

void ScreenDiscounts::calculatedDiscountWithDiscountTermsAsksNothing() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().PickEntry(u"cboTerms"_s, 9);
  QVERIFY(bench.Ticked(u"optDiscount_2"_s));
  QCOMPARE(Terms(bench), 9);
  QVERIFY(bench.On().IsVisible(u"fraDiscount"_s));
}

void ScreenDiscounts::untickingTheOfferSetsRateAndDaysToTheirFirst() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().PickEntry(u"cboTerms"_s, 9);
  bench.On().Click(u"ckDiscount"_s);
  QCOMPARE(bench.Text(u"cboDiscount"_s), u"0.0"_s);
  QCOMPARE(bench.Text(u"cboDays"_s), u"0"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtDiscount"_s), u"$0.00"_s);
  // Ticking it again sets nothing.
  bench.On().Click(u"ckDiscount"_s);
  QCOMPARE(bench.Text(u"cboDiscount"_s), u"0.0"_s);
}

void ScreenDiscounts::flatDiscountIsDeductedAtFinalize() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.Answers.Ok(FlatText, Standard);
  bench.On().Click(u"optDiscount_1"_s);
  QCOMPARE(bench.Answers.Last().Text.count(u"\r\n"_s), 3);
  QVERIFY(bench.On().IsVisible(u"fraFlat"_s));
  QCOMPARE(Terms(bench), 10);
  QCOMPARE(bench.Text(u"txtFlatDiscount"_s), QString());
  QCOMPARE(bench.On().FocusName(), u"txtFlatDiscount"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdAddDiscount"_s));
  bench.On().Type(u"70x"_s);
  bench.On().Click(u"cmdAddDiscount"_s);
  QCOMPARE(bench.Text(u"txtDiscount"_s), u"$70.00"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdAddDiscount"_s));
  QVERIFY(!bench.Ticked(u"ckDiscount"_s));
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$0.00"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,000.00"_s);
}

void ScreenDiscounts::aFlatDiscountOfTheWholeAmountIsRefused() {
  InvoiceBench bench;
  OpenReady(bench);
  BeginFlatDiscount(bench, u"1070"_s);
  bench.Answers.Ok(u"Your discount exceeds the Invoice Amount"_s, Standard);
  bench.On().Click(u"cmdAddDiscount"_s);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.Invoice.FlatDiscount, Currency());
  QCOMPARE(bench.On().FocusName(), u"txtFlatDiscount"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdAddDiscount"_s));
  bench.On().Fill(u"txtFlatDiscount"_s, u"1069.99"_s);
  bench.On().Click(u"cmdAddDiscount"_s);
  QCOMPARE(bench.Text(u"txtDiscount"_s), u"$1,069.99"_s);
}

void ScreenDiscounts::aFlatDiscountThatIsNoNumberIsAnErrorAndTheProgramGoesOn() {
  InvoiceBench bench;
  OpenReady(bench);
  BeginFlatDiscount(bench, u"."_s);
  bench.On().Click(u"cmdAddDiscount"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{13});
  QVERIFY(bench.Around.Subjects.first().contains(u"txtFlatDiscount"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdAddDiscount"_s));
}

void ScreenDiscounts::leavingTheFlatDiscountReformatsItAndMovesOn() {
  InvoiceBench bench;
  OpenReady(bench);
  BeginFlatDiscount(bench, u"12.5"_s);
  bench.On().Click(u"txtInvoiceNo"_s);
  QCOMPARE(bench.Text(u"txtFlatDiscount"_s), u"$12.50"_s);
  QCOMPARE(bench.On().FocusName(), u"cmdAddDiscount"_s);
}

void ScreenDiscounts::choosingFlatAgainClearsTheHeldDiscount() {
  InvoiceBench bench;
  OpenReady(bench);
  DeductDiscount(bench, u"70"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_0"_s);
  QCOMPARE(bench.Invoice.FlatDiscount, Currency::FromUnits(700000));
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_1"_s);
  QCOMPARE(bench.Invoice.FlatDiscount, Currency());
  // A grand total that stood is computed anew without it.
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,070.00"_s);
}

void ScreenDiscounts::noDiscountSetsTheTermsBack() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().PickEntry(u"cboTerms"_s, 7);
  bench.Answers.Ok(NoDiscountText, Standard);
  bench.On().Click(u"optDiscount_0"_s);
  QCOMPARE(Terms(bench), 0);
  QVERIFY(!bench.On().IsVisible(u"fraDiscount"_s));
  QVERIFY(!bench.Ticked(u"ckDiscount"_s));
}

void ScreenDiscounts::anOptionThatIsSelectedAlreadyOpensNoDialogue() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.On().Click(u"optDiscount_0"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenDiscounts::theOptionDialogueDisablesPrint() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_2"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenDiscounts::readyToPrintClearsAHeldFlatDiscount() {
  InvoiceBench bench;
  OpenReady(bench);
  DeductDiscount(bench, u"70"_s);
  bench.On().Click(u"cmdPrint"_s);
  QCOMPARE(bench.Invoice.FlatDiscount, Currency());
  QCOMPARE(bench.Text(u"txtFlatDiscount"_s), u"$0.00"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdAddDiscount"_s));
  // The box blanks its zero when it gets the focus.
  bench.On().Click(u"txtFlatDiscount"_s);
  QCOMPARE(bench.Text(u"txtFlatDiscount"_s), QString());
}

void ScreenDiscounts::theDiscountFramesKeepTheirLabelsThoughTheSumsDiffer() {
  InvoiceBench bench;
  OpenReady(bench);
  QCOMPARE(bench.Text(u"optDiscount_0"_s), u"No Discount"_s);
  QCOMPARE(bench.Text(u"optDiscount_1"_s), u"Flat Rate Discount"_s);
  QCOMPARE(bench.Text(u"optDiscount_2"_s), u"Calculate Discount"_s);
  QCOMPARE(bench.Text(u"cmdAddDiscount"_s), u"Deduct Discount"_s);
  QStringList texts;
  for (const auto& frame : {u"fraFlat"_s, u"fraDiscount"_s}) {
    for (const auto* label : bench.On().Control(frame)->findChildren<QLabel*>()) texts << label->text();
  }
  QVERIFY(texts.contains(u"Discount is deducted from the Invoice BEFORE Calculating Tax(es)"_s));
  QVERIFY(texts.contains(u"Discount is calculated on all Invoice entries except Tax(es)"_s));
}

void ScreenDiscounts::arrowKeysChooseAnOptionToo() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Control(u"optDiscount_0"_s)->setFocus();
  bench.Answers.Ok(FlatText, Standard);
  bench.On().PressKey(Qt::Key_Right);
  QVERIFY(bench.Ticked(u"optDiscount_1"_s));
  QVERIFY(bench.On().IsVisible(u"fraFlat"_s));
}

void ScreenDiscounts::enterInTheDiscountDeductsItAndInAChargeFinalizes() {
  InvoiceBench bench;
  OpenReady(bench);
  BeginFlatDiscount(bench, u"70"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Text(u"txtDiscount"_s), u"$70.00"_s);
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,005.00"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenDiscounts::aDeductedDiscountOutlastsTheLinesAndTheMenuEntry() {
  InvoiceBench bench;
  OpenReady(bench);
  DeductDiscount(bench, u"70"_s);
  bench.On().Trigger(u"mnuCreate"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdAddDiscount"_s));
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,000.00"_s);
}

QTEST_MAIN(ScreenDiscounts)
#include "tst_screenDiscounts.moc"
