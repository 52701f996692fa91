// The print-ready view: totals, taxes, charges, Finalize and what Enter does.

#include <QtWidgets>

#include "desktop/Style.h"
#include "invoice/Summary.h"

using namespace Qt::StringLiterals;

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
  void clearTotalsSetsEverythingBackAndGoesToTheLines();
  void finalizeIsDroppedWhenTheChargeIsRefused();
  void aBlankedChargePrintsNothing();
  void aDoubleClickOfAnotherButtonKeepsTheCharge();
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

void ScreenTotals::thePrintEntryOfTheMenuTotalsTheLines() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"300"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$0.00"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$600.00"_s);
}

QTEST_MAIN(ScreenTotals)
#include "tst_screenTotals.moc"
