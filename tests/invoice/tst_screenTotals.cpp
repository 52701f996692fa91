// The print-ready view: totals, taxes, charges, the discount dialogue, Finalize.

#include <QtWidgets>

#include "desktop/Style.h"
#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString NoDiscountText =
    u"You have Selected No Discount but your\nInvoice Terms were set to offer a Discount\n"
    "Your Invoice Terms have been reset to\nIn full upon Receipt"_s;
const QString FlatText =
    u"You have Selected to Enter a Discount\nYour Invoice Terms have been reset to\n"
    "A Discount has been Applied\nYou may wish to replace this setting"_s;
const QString CalculateText =
    u"You have Selected to Calculate a Discount but your\nInvoice Terms were set to no Discount\n"
    "Your Invoice Terms have been reset to\nDiscount 1% in 10 days, Net 15 days"_s;
const QString Standard = u"Karvex Invoicer"_s;

/// Two taxed lines of $1,000.00 in all, at the print-ready view; taxes of 6 and 1 per cent.
void OpenReady(InvoiceBench& bench) {
  bench.Tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"County Tax\",\"6.0\",\"1.0\",1,1\r\n");
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuManual"_s);
  bench.On().Click(u"ckManualTax"_s);
  bench.PostManual(u"Crate"_s, u"2"_s, u"300"_s);
  bench.PostManual(u"Box"_s, u"4"_s, u"100"_s);
  bench.On().Click(u"cmdPrint"_s);
}

/// Types a flat discount; the box that tells of the new terms is answered.
void BeginFlatDiscount(InvoiceBench& bench, const QString& discount) {
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_1"_s);
  bench.On().Type(discount);
}

void DeductDiscount(InvoiceBench& bench, const QString& discount) {
  BeginFlatDiscount(bench, discount);
  bench.On().Click(u"cmdAddDiscount"_s);
}

/// Types a charge and leaves its box.
void EnterCharge(InvoiceBench& bench, const QString& box, const QString& charge) {
  bench.On().Fill(box, charge);
  bench.On().Click(u"txtInvoiceNo"_s);
}

int Terms(const InvoiceBench& bench) {
  return bench.On().Control<QComboBox>(u"cboTerms"_s)->currentIndex();
}

}  // namespace

class ScreenTotals : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void finalizeShowsEverythingAndEnablesPrint();
  void theButtonThatStandsOutIsFinalizeUntilItHasRunThenPrint();
  void enterInTheSummaryFinalizesAndNeverPrints();
  void enterInAChargeBoxRunsFinalizeOnce();
  void enterDoesNothingWhileThePaymentIsAskedFor();
  void theTabKeyGoesFromShippingToTheAdditionalCharge();
  void anExemptCustomerPaysNoTax();
  void theSecondTaxIsTheInvoicesOwnTick();
  void atTheThresholdTheFirstRateStands();
  void aboveTheThresholdTheSecondRateAndTheSurchargeStand();
  void aRateWithACommaCountsUpToIt();
  void aSubTotalOfZeroIsNotShownUntilFinalizeAndChargesStand();
  void chargesBlankAZeroAndComeBackAsCurrency();
  void aChargeThatIsNoNumberIsEmptiedAndKeepsTheFocus();
  void anEmptiedChargeBoxKeepsItsHeldCharge();
  void shippingAfterFinalizeDisablesPrint();
  void anAdditionalChargeSendsTheFocusToFinalize();
  void anAdditionalChargeOfZeroChangesNothing();
  void aDoubleClickClearsACharge();
  void theResetButtonsClearOneChargeAndAskForFinalize();
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
  void clearTotalsSetsEverythingBackAndGoesToTheLines();
  void finalizeIsDroppedWhenTheChargeIsRefused();
  void theDiscountFramesKeepTheirLabelsThoughTheSumsDiffer();
  void arrowKeysChooseAnOptionToo();
  void enterInTheDiscountDeductsItAndInAChargeFinalizes();
  void aBlankedChargePrintsNothing();
  void aDoubleClickOfAnotherButtonKeepsTheCharge();
  void aDeductedDiscountOutlastsTheLinesAndTheMenuEntry();
  void thePrintEntryOfTheMenuTotalsTheLines();
};

void ScreenTotals::finalizeShowsEverythingAndEnablesPrint() {
  InvoiceBench bench;
  OpenReady(bench);
  QCOMPARE(bench.Text(u"cmdInvoice_9"_s), u"&Finalize Invoice"_s);
  QCOMPARE(bench.Text(u"cmdInvoiceContinue"_s), u"&Print Invoice"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  bench.On().Fill(u"txtShip"_s, u"12.5"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$1,000.00"_s);
  QCOMPARE(bench.Text(u"txtTax"_s), u"$60.00"_s);
  QCOMPARE(bench.Text(u"txtTax2"_s), u"$10.00"_s);
  QCOMPARE(bench.Text(u"txtShip"_s), u"$12.50"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,082.50"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenTotals::anExemptCustomerPaysNoTax() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"ckExempt"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Invoice.TaxableAmount, Currency());
  QCOMPARE(bench.Text(u"txtTax"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"txtTax2"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,000.00"_s);
}

void ScreenTotals::theSecondTaxIsTheInvoicesOwnTick() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"ck2ndTax"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtTax2"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,060.00"_s);
}

void ScreenTotals::atTheThresholdTheFirstRateStands() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.Live.Tax.ckApplyGraduated = true;
  bench.Live.Tax.txtGradulated = {u"$1,000.00"_s, u"$5.00"_s};
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtTax"_s), u"$60.00"_s);
  QCOMPARE(bench.Text(u"txtTax2"_s), u"$0.00"_s);
}

void ScreenTotals::aboveTheThresholdTheSecondRateAndTheSurchargeStand() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.Live.Tax.ckApplyGraduated = true;
  bench.Live.Tax.txtGradulated = {u"$999.99"_s, u"$5.00"_s};
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtTax"_s), u"$10.00"_s);
  QCOMPARE(bench.Text(u"txtTax2"_s), u"$5.00"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,015.00"_s);
}

void ScreenTotals::aRateWithACommaCountsUpToIt() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.Live.Tax.cboRate1 = u"6,5"_s;
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtTax"_s), u"$60.00"_s);
}

void ScreenTotals::aSubTotalOfZeroIsNotShownUntilFinalizeAndChargesStand() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$20.00"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 1, 3);
  bench.On().PressKey(Qt::Key_Backspace);
  bench.On().Click(u"cmdPrint"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$20.00"_s);
  bench.On().Fill(u"txtShip"_s, u"7"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"txtTax"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$7.00"_s);
}

void ScreenTotals::chargesBlankAZeroAndComeBackAsCurrency() {
  InvoiceBench bench;
  OpenReady(bench);
  for (const auto& box : {u"txtShip"_s, u"txtMisc"_s}) {
    QCOMPARE(bench.Text(box), u"$0.00"_s);
    bench.On().Click(box);
    QCOMPARE(bench.Text(box), QString());
    bench.On().Type(u"1234.567"_s);
    bench.On().Click(u"ckPackingList"_s);
    bench.On().Click(u"txtInvoiceNo"_s);
    QCOMPARE(bench.Text(box), u"$1,234.57"_s);
  }
}

void ScreenTotals::aChargeThatIsNoNumberIsEmptiedAndKeepsTheFocus() {
  InvoiceBench bench;
  OpenReady(bench);
  for (const auto& box : {u"txtShip"_s, u"txtMisc"_s}) {
    const int before = bench.Dialogs.Beeps;
    bench.On().Fill(box, u"abc"_s);
    bench.On().Click(u"txtInvoiceNo"_s);
    QCOMPARE(bench.Dialogs.Beeps, before + 1);
    QCOMPARE(bench.Text(box), QString());
    QCOMPARE(bench.On().FocusName(), box);
    bench.On().Fill(box, u"0"_s);
  }
}

void ScreenTotals::anEmptiedChargeBoxKeepsItsHeldCharge() {
  InvoiceBench bench;
  OpenReady(bench);
  EnterCharge(bench, u"txtShip"_s, u"5"_s);
  bench.On().Fill(u"txtShip"_s, QString());
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtShip"_s), QString());
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,075.00"_s);
}

void ScreenTotals::shippingAfterFinalizeDisablesPrint() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"cmdInvoice_9"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  EnterCharge(bench, u"txtShip"_s, u"5"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  QCOMPARE(bench.On().FocusName(), u"txtInvoiceNo"_s);
}

void ScreenTotals::anAdditionalChargeSendsTheFocusToFinalize() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"cmdInvoice_9"_s);
  EnterCharge(bench, u"txtMisc"_s, u"5"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  QCOMPARE(bench.On().FocusName(), u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtMisc"_s), u"$5.00"_s);
}

void ScreenTotals::anAdditionalChargeOfZeroChangesNothing() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"cmdInvoice_9"_s);
  EnterCharge(bench, u"txtMisc"_s, u"$0.00"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  QCOMPARE(bench.On().FocusName(), u"txtInvoiceNo"_s);
}

void ScreenTotals::aDoubleClickClearsACharge() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  EnterCharge(bench, u"txtMisc"_s, u"3"_s);
  for (const auto& box : {u"txtShip"_s, u"txtMisc"_s}) {
    auto* control = bench.On().Control(box);
    QTest::mouseDClick(control, Qt::LeftButton);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.Text(box), u"$0.00"_s);
  }
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,070.00"_s);
}

void ScreenTotals::theResetButtonsClearOneChargeAndAskForFinalize() {
  InvoiceBench bench;
  OpenReady(bench);
  QCOMPARE(bench.Text(u"cmdInvoice_5"_s), u"Reset Shipping Charge"_s);
  QCOMPARE(bench.Text(u"cmdInvoice_4"_s), u"Reset Additional Charge"_s);
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().Fill(u"txtMisc"_s, u"3"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,078.00"_s);
  bench.On().Click(u"cmdInvoice_5"_s);
  QCOMPARE(bench.Text(u"txtShip"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"txtMisc"_s), u"$3.00"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  QCOMPARE(bench.On().FocusName(), u"cmdInvoice_9"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,073.00"_s);
  bench.On().Click(u"cmdInvoice_4"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,070.00"_s);
}

void ScreenTotals::calculatedDiscountSetsTheTermsAndNeverChangesTheTotal() {
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

void ScreenTotals::calculatedDiscountWithDiscountTermsAsksNothing() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().PickEntry(u"cboTerms"_s, 9);
  QVERIFY(bench.Ticked(u"optDiscount_2"_s));
  QCOMPARE(Terms(bench), 9);
  QVERIFY(bench.On().IsVisible(u"fraDiscount"_s));
}

void ScreenTotals::untickingTheOfferSetsRateAndDaysToTheirFirst() {
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

void ScreenTotals::flatDiscountIsDeductedAtFinalize() {
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

void ScreenTotals::aFlatDiscountOfTheWholeAmountIsRefused() {
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

void ScreenTotals::aFlatDiscountThatIsNoNumberIsAnErrorAndTheProgramGoesOn() {
  InvoiceBench bench;
  OpenReady(bench);
  BeginFlatDiscount(bench, u"."_s);
  bench.On().Click(u"cmdAddDiscount"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{13});
  QVERIFY(bench.Around.Subjects.first().contains(u"txtFlatDiscount"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdAddDiscount"_s));
}

void ScreenTotals::leavingTheFlatDiscountReformatsItAndMovesOn() {
  InvoiceBench bench;
  OpenReady(bench);
  BeginFlatDiscount(bench, u"12.5"_s);
  bench.On().Click(u"txtInvoiceNo"_s);
  QCOMPARE(bench.Text(u"txtFlatDiscount"_s), u"$12.50"_s);
  QCOMPARE(bench.On().FocusName(), u"cmdAddDiscount"_s);
}

void ScreenTotals::choosingFlatAgainClearsTheHeldDiscount() {
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

void ScreenTotals::noDiscountSetsTheTermsBack() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().PickEntry(u"cboTerms"_s, 7);
  bench.Answers.Ok(NoDiscountText, Standard);
  bench.On().Click(u"optDiscount_0"_s);
  QCOMPARE(Terms(bench), 0);
  QVERIFY(!bench.On().IsVisible(u"fraDiscount"_s));
  QVERIFY(!bench.Ticked(u"ckDiscount"_s));
}

void ScreenTotals::anOptionThatIsSelectedAlreadyOpensNoDialogue() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.On().Click(u"optDiscount_0"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenTotals::theOptionDialogueDisablesPrint() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_2"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenTotals::readyToPrintClearsAHeldFlatDiscount() {
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

void ScreenTotals::clearTotalsSetsEverythingBackAndGoesToTheLines() {
  InvoiceBench bench;
  OpenReady(bench);
  QCOMPARE(bench.Text(u"cmdCancelPrint"_s), u"Clear Totals/Addons - Redo"_s);
  DeductDiscount(bench, u"70"_s);
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.On().Click(u"cmdCancelPrint"_s);
  QVERIFY(!bench.On().IsVisible(u"fraPrintReady"_s));
  QVERIFY(bench.On().IsVisible(u"fraInstructions_1"_s));
  for (const auto& box : {u"txtTotal"_s, u"txtTax"_s, u"txtTax2"_s, u"txtGrandTotal"_s, u"txtShip"_s, u"txtMisc"_s,
                          u"txtDiscount"_s, u"txtFlatDiscount"_s}) {
    QCOMPARE(bench.Text(box), u"$0.00"_s);
  }
  QCOMPARE(bench.Invoice.FlatDiscount, Currency());
  QCOMPARE(bench.Invoice.ShipCharge, Currency());
  QCOMPARE(bench.Invoice.LineCount, 2);
}

void ScreenTotals::finalizeIsDroppedWhenTheChargeIsRefused() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Fill(u"txtShip"_s, u"abc"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.On().FocusName(), u"txtShip"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$0.00"_s);
}

void ScreenTotals::theDiscountFramesKeepTheirLabelsThoughTheSumsDiffer() {
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

void ScreenTotals::arrowKeysChooseAnOptionToo() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Control(u"optDiscount_0"_s)->setFocus();
  bench.Answers.Ok(FlatText, Standard);
  bench.On().PressKey(Qt::Key_Right);
  QVERIFY(bench.Ticked(u"optDiscount_1"_s));
  QVERIFY(bench.On().IsVisible(u"fraFlat"_s));
}

void ScreenTotals::enterInTheDiscountDeductsItAndInAChargeFinalizes() {
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

void ScreenTotals::aBlankedChargePrintsNothing() {
  InvoiceBench bench;
  OpenReady(bench);
  EnterCharge(bench, u"txtShip"_s, u"5"_s);
  bench.On().Fill(u"txtShip"_s, QString());
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Yes();
  bench.On().Click(u"cmdInvoiceContinue"_s);
  const QStringList words = bench.Paper.Words(1);
  QVERIFY(words.contains(u"$1,075.00"_s));
  QVERIFY(!words.contains(u"$5.00"_s));
  // The image has the zero that an empty box becomes.
  QVERIFY(bench.Tree.Bytes(u"/CompletedInvoices/20260001.txt"_s)
              .endsWith("\"$1,000.00\",\"$60.00\",\"$10.00\",\"$1,075.00\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n"));
}

void ScreenTotals::aDoubleClickOfAnotherButtonKeepsTheCharge() {
  InvoiceBench bench;
  OpenReady(bench);
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  EnterCharge(bench, u"txtMisc"_s, u"3"_s);
  for (const auto& [box, charge] : {std::pair(u"txtShip"_s, u"$5.00"_s), {u"txtMisc"_s, u"$3.00"_s}}) {
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
      QTest::mouseDClick(bench.On().Control(box), button);
      ScreenDriver::ProcessEvents();
      QCOMPARE(bench.Text(box), charge);
    }
  }
}

void ScreenTotals::aDeductedDiscountOutlastsTheLinesAndTheMenuEntry() {
  InvoiceBench bench;
  OpenReady(bench);
  DeductDiscount(bench, u"70"_s);
  bench.On().Trigger(u"mnuCreate"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdAddDiscount"_s));
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$1,000.00"_s);
}

void ScreenTotals::thePrintEntryOfTheMenuTotalsTheLines() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"300"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$0.00"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$600.00"_s);
}

void ScreenTotals::theButtonThatStandsOutIsFinalizeUntilItHasRunThenPrint() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  const auto standsOut = [&bench](const QString& name) {
    const QWidget* button = bench.On().Control(name);
    const QColor ground = button->palette().color(QPalette::Active, QPalette::Button);
    return button->isEnabled() && ground == PrimaryGround();
  };
  QVERIFY(standsOut(u"cmdInvoice_9"_s));
  QVERIFY(!standsOut(u"cmdInvoiceContinue"_s));
  QVERIFY(!standsOut(u"cmdPrint"_s));
  bench.On().Click(u"cmdInvoice_9"_s);
  QVERIFY(!standsOut(u"cmdInvoice_9"_s));
  QVERIFY(standsOut(u"cmdInvoiceContinue"_s));
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().PressKey(Qt::Key_Tab);
  QVERIFY(standsOut(u"cmdInvoice_9"_s));
}

void ScreenTotals::enterInTheSummaryFinalizesAndNeverPrints() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  for (const auto& box : {u"cboTerms"_s, u"ckExempt"_s}) {
    bench.Invoice.Controls.Enabled.cmdInvoiceContinue = false;
    bench.Invoice.txtGrandTotal.clear();
    bench.Invoice.Show();
    bench.On().Control(box)->setFocus();
    bench.On().PressKey(Qt::Key_Return);
    QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$20.00"_s);
    QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
    // Again, now that it could be printed: no printer dialog, no question.
    bench.On().Control(box)->setFocus();
    bench.On().PressKey(Qt::Key_Return);
    QVERIFY(bench.On().IsVisible(u"fraPrintReady"_s));
    QVERIFY(!bench.Tree.Exists(u"/InvoiceSalesJournal.txt"_s));
    QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  }
}

void ScreenTotals::enterInAChargeBoxRunsFinalizeOnce() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$25.00"_s);
  // In the box of the flat discount it deducts, and doesn't finalize as well.
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_1"_s);
  bench.On().Type(u"4"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Text(u"txtDiscount"_s), u"$4.00"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$25.00"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenTotals::enterDoesNothingWhileThePaymentIsAskedFor() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.On().Click(u"ckPrepaid"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.On().FocusName(), u"cboPrepaid"_s);
  bench.On().Type(u"Check 17"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Text(u"cboPrepaid"_s), u"Check 17"_s);
  QVERIFY(bench.On().IsVisible(u"fraPrePaid"_s));
}

void ScreenTotals::theTabKeyGoesFromShippingToTheAdditionalCharge() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().PressKey(Qt::Key_Tab);
  QCOMPARE(bench.On().FocusName(), u"txtMisc"_s);
  QCOMPARE(bench.Text(u"txtShip"_s), u"$5.00"_s);
}

QTEST_MAIN(ScreenTotals)
#include "tst_screenTotals.moc"
