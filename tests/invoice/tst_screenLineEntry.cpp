// Posting lines through the entry frames of the invoice screen.

#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

/// So many hammers, the price picked from the list.
void EnterHammersAtThePriceOfPaint(const InvoiceBench& bench, const QString& units) {
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().PickEntry(u"cboPrice_1"_s, u"$33.34"_s);
  bench.On().Fill(u"txtUnits"_s, units);
}

}  // namespace

class ScreenLineEntry : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aServiceIsPostedWithItsPriceAndDate();
  void aServicePriceMayBeTyped();
  void aPricePickedFromItsListIsTheOnePosted();
  void theBreakFollowsThePickedPrice();
  void anItemIsPostedWithUnitsAndTheNextStartsFromTheHead();
  void aCustomItemTakesItsOwnPriceThoughItsListIsSorted();
  void aManualLineIsPostedAndItsBoxesAreCleared();
  void aManualLineWithoutAQuantityPostsAsOne();
  void aManualLineFollowsItsOwnTaxTick();
  void taxSwitchesOfSetupDecideTheOtherKinds();
  void whatIsMissingBeepsAndGetsTheFocus_data();
  void whatIsMissingBeepsAndGetsTheFocus();
  void aManualLineChecksItsBoxesInOrder();
  void aFailedPostStillEnablesReadyToPrint();
  void exactlyTheBreakQuantityTakesTheDiscountPriceAndOneFewerDoesNot();
  void aBreakOfZeroUnitsNeverApplies();
  void withoutTheTickNoBreakApplies();
  void afterAHandTypedPriceNoBreakApplies();
  void aCustomBreakHasNoMark();
  void theHundredthLineStandsWhenTheInvoiceIsFull();
  void aPostOntoAFullGridIsTheGridsErrorAndPostsNothing();
  void postingAgainIsPossibleAfterADeletedLine();
  void unitsThatDoNotConvertFailAtPosting();
  void countBoxesBlankAZeroAndFilterTheirKeys();
  void unitsThatAreNoNumberComeBackAsZero();
  void manualBoxesFilterTheirKeys();
  void enterInTheLastBoxPosts();
  void aTypedPriceStaysAsTypedWhenItsBoxIsLeft();
  void emptyUnitsHideTheMarkOfABreakAndAnEmptyPriceLeavesIt();
};

void ScreenLineEntry::aServiceIsPostedWithItsPriceAndDate() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  QCOMPARE(bench.Text(u"cboPrice_0"_s), u"$80.00"_s);
  bench.On().Click(u"cmdPost_0"_s);
  QCOMPARE(bench.Row(1), (QStringList{QString(), u"Repair"_s, u"3/7/2026"_s, u"$80.00"_s, u"$80.00"_s, u"False"_s}));
  QCOMPARE(bench.Invoice.LineCount, 1);
  // The next line starts from the head of the list.
  QCOMPARE(bench.Text(u"cboDescription_0"_s), u"Cleaning"_s);
  QCOMPARE(bench.Text(u"cboPrice_0"_s), u"$40.00"_s);
  QCOMPARE(bench.On().FocusName(), u"cboDescription_0"_s);
}

void ScreenLineEntry::aServicePriceMayBeTyped() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Fill(u"cboPrice_0"_s, u"75.5"_s);
  bench.On().Click(u"cmdPost_0"_s);
  QCOMPARE(bench.Row(1), (QStringList{QString(), u"Repair"_s, u"3/7/2026"_s, u"$75.50"_s, u"$75.50"_s, u"False"_s}));
}

void ScreenLineEntry::aPricePickedFromItsListIsTheOnePosted() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  EnterHammersAtThePriceOfPaint(bench, u"2"_s);
  QCOMPARE(bench.Text(u"cboPrice_1"_s), u"$33.34"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"2"_s, u"Hammer"_s, QString(), u"$33.34"_s, u"$66.68"_s, u"True"_s}));
}

void ScreenLineEntry::theBreakFollowsThePickedPrice() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Click(u"ckApplyVolumeDiscount"_s);
  // Enough for the hammers' break of 5, not for the paint's of 10, whose price this is.
  EnterHammersAtThePriceOfPaint(bench, u"9"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"9"_s, u"Hammer"_s, QString(), u"$33.34"_s, u"$300.06"_s, u"True"_s}));
  EnterHammersAtThePriceOfPaint(bench, u"10"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(2), (QStringList{u"10"_s, u"Hammer"_s, QString(), u"$30.00"_s, u"$300.00"_s, u"True"_s}));
}

void ScreenLineEntry::anItemIsPostedWithUnitsAndTheNextStartsFromTheHead() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Paint"_s);
  QCOMPARE(bench.On().FocusName(), u"txtUnits"_s);
  QCOMPARE(bench.Text(u"cboPrice_1"_s), u"$33.34"_s);
  bench.On().Type(u"3"_s);
  bench.On().Click(u"cmdPost_1"_s);
  // The price is the text's, so that the extension is of $33.34.
  QCOMPARE(bench.Row(1), (QStringList{u"3"_s, u"Paint"_s, QString(), u"$33.34"_s, u"$100.02"_s, u"True"_s}));
  QCOMPARE(bench.Text(u"cboDescription_1"_s), u"Hammer"_s);
  QCOMPARE(bench.Text(u"cboPrice_1"_s), u"$12.00"_s);
  QCOMPARE(bench.Text(u"txtUnits"_s), QString());
  QCOMPARE(bench.On().FocusName(), u"txtUnits"_s);
}

void ScreenLineEntry::aCustomItemTakesItsOwnPriceThoughItsListIsSorted() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuCItems"_s);
  const auto* list = bench.On().Control<QComboBox>(u"cboDescription_2"_s);
  QCOMPARE(list->itemText(0), u"Banner"_s);
  QCOMPARE(list->itemText(1), u"Sign"_s);
  bench.On().PickEntry(u"cboDescription_2"_s, u"Sign"_s);
  QCOMPARE(bench.Text(u"cboPrice_2"_s), u"$25.00"_s);
  QCOMPARE(bench.On().FocusName(), u"txtCUnits"_s);
  bench.On().Type(u"2"_s);
  bench.On().Click(u"cmdPost_3"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"2"_s, u"Sign"_s, QString(), u"$25.00"_s, u"$50.00"_s, u"False"_s}));
  QCOMPARE(bench.Text(u"cboDescription_2"_s), u"Banner"_s);
  QCOMPARE(bench.Text(u"cboPrice_2"_s), u"$60.00"_s);
  QCOMPARE(bench.Text(u"txtCUnits"_s), QString());
}

void ScreenLineEntry::aManualLineIsPostedAndItsBoxesAreCleared() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Screws"_s, u"3"_s, u"33.335"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"3"_s, u"Screws"_s, QString(), u"$33.34"_s, u"$100.01"_s, u"False"_s}));
  QCOMPARE(bench.Text(u"txtManual_0"_s), QString());
  QCOMPARE(bench.Text(u"txtManual_2"_s), QString());
  QCOMPARE(bench.Text(u"txtManual_1"_s), u"$0.00"_s);
}

void ScreenLineEntry::aManualLineWithoutAQuantityPostsAsOne() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuManual"_s);
  bench.On().Fill(u"txtManual_0"_s, u"Crate"_s);
  bench.On().Fill(u"txtManual_1"_s, u"12"_s);
  bench.On().Click(u"cmdPost_2"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"1"_s, u"Crate"_s, QString(), u"$12.00"_s, u"$12.00"_s, u"False"_s}));
}

void ScreenLineEntry::aManualLineFollowsItsOwnTaxTick() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuManual"_s);
  bench.On().Click(u"ckManualTax"_s);
  bench.PostManual(u"Crate"_s, u"1"_s, u"12"_s);
  QCOMPARE(bench.Row(1)[5], u"True"_s);
  bench.On().Click(u"ckManualTax"_s);
  bench.PostManual(u"Crate"_s, u"1"_s, u"12"_s);
  QCOMPARE(bench.Row(2)[5], u"False"_s);
}

void ScreenLineEntry::taxSwitchesOfSetupDecideTheOtherKinds() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.Live.Tax.ckServices = true;
  bench.Live.Tax.ckCustom = true;
  bench.Live.Tax.ckSalesItems = false;
  bench.On().PickEntry(u"cboDescription_0"_s, 0);
  bench.On().Click(u"cmdPost_0"_s);
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, 0);
  bench.On().Type(u"1"_s);
  bench.On().Click(u"cmdPost_1"_s);
  bench.On().Trigger(u"mnuCItems"_s);
  bench.On().PickEntry(u"cboDescription_2"_s, 0);
  bench.On().Type(u"1"_s);
  bench.On().Click(u"cmdPost_3"_s);
  QCOMPARE(bench.Row(1)[5], u"True"_s);
  QCOMPARE(bench.Row(2)[5], u"False"_s);
  QCOMPARE(bench.Row(3)[5], u"True"_s);
}

void ScreenLineEntry::whatIsMissingBeepsAndGetsTheFocus_data() {
  QTest::addColumn<QString>("entry");
  QTest::addColumn<QString>("description");
  QTest::addColumn<QString>("price");
  QTest::addColumn<QString>("button");
  QTest::addColumn<QString>("focus");
  QTest::newRow("no price") << u"mnuServices"_s << u"Odd job"_s << QString() << u"cmdPost_0"_s << u"cboPrice_0"_s;
  QTest::newRow("price no number") << u"mnuServices"_s << u"Odd job"_s << u"abc"_s << u"cmdPost_0"_s << u"cboPrice_0"_s;
  QTest::newRow("no description") << u"mnuServices"_s << QString() << u"5"_s << u"cmdPost_0"_s << u"cboDescription_0"_s;
  QTest::newRow("no units") << u"mnuItems"_s << u"Odd item"_s << u"5"_s << u"cmdPost_1"_s << u"txtUnits"_s;
  QTest::newRow("no custom units") << u"mnuCItems"_s << u"Odd sign"_s << u"5"_s << u"cmdPost_3"_s << u"txtCUnits"_s;
}

void ScreenLineEntry::whatIsMissingBeepsAndGetsTheFocus() {
  QFETCH(QString, entry);
  QFETCH(QString, description);
  QFETCH(QString, price);
  QFETCH(QString, button);
  QFETCH(QString, focus);
  InvoiceBench bench;
  bench.OpenAt(entry);
  const QChar element = focus.startsWith(u"txtC") ? u'2' : focus.startsWith(u"txtU") ? u'1' : u'0';
  bench.On().Fill(u"cboDescription_"_s + element, description);
  bench.On().Fill(u"cboPrice_"_s + element, price);
  bench.On().Click(button);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.On().FocusName(), focus);
  QCOMPARE(bench.Invoice.LineCount, 0);
  QCOMPARE(bench.Row(1), QStringList(6, QString()));
}

void ScreenLineEntry::aManualLineChecksItsBoxesInOrder() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuManual"_s);
  bench.On().Click(u"cmdPost_2"_s);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.On().FocusName(), u"txtManual_1"_s);
  bench.On().Type(u"5"_s);
  bench.On().Click(u"cmdPost_2"_s);
  // The empty quantity has become 1 by then; the missing description only gets the focus.
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.On().FocusName(), u"txtManual_0"_s);
  QCOMPARE(bench.Text(u"txtManual_2"_s), u"1"_s);
  bench.On().Type(u"Crate"_s);
  bench.Invoice.Entry.txtManual[1] = u"12abc"_s;
  bench.Invoice.Show();
  bench.On().Click(u"cmdPost_2"_s);
  QCOMPARE(bench.Text(u"txtManual_1"_s), u"0"_s);
  QCOMPARE(bench.On().FocusName(), u"txtManual_1"_s);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.Invoice.LineCount, 0);
}

void ScreenLineEntry::aFailedPostStillEnablesReadyToPrint() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.On().Click(u"cmdPost_0"_s);
  QCOMPARE(bench.Invoice.LineCount, 0);
  QVERIFY(bench.On().IsEnabled(u"cmdPrint"_s));
}

void ScreenLineEntry::exactlyTheBreakQuantityTakesTheDiscountPriceAndOneFewerDoesNot() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Click(u"ckApplyVolumeDiscount"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"5"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"5"_s, u"Hammer"_s, QString(), u"$10.00"_s, u"$50.00"_s, u"True"_s}));
  QVERIFY(bench.On().IsVisible(u"Label4_42"_s));
  bench.On().Type(u"4"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(2), (QStringList{u"4"_s, u"Hammer"_s, QString(), u"$12.00"_s, u"$48.00"_s, u"True"_s}));
  QVERIFY(!bench.On().IsVisible(u"Label4_42"_s));
}

void ScreenLineEntry::aBreakOfZeroUnitsNeverApplies() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Click(u"ckApplyVolumeDiscount"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Nails"_s);
  bench.On().Type(u"9000"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(1)[3], u"$5.00"_s);
  QVERIFY(!bench.On().IsVisible(u"Label4_42"_s));
}

void ScreenLineEntry::withoutTheTickNoBreakApplies() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"50"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(1)[3], u"$12.00"_s);
}

void ScreenLineEntry::afterAHandTypedPriceNoBreakApplies() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Click(u"ckApplyVolumeDiscount"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Fill(u"cboPrice_1"_s, u"11"_s);
  bench.On().Fill(u"txtUnits"_s, u"50"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"50"_s, u"Hammer"_s, QString(), u"$11.00"_s, u"$550.00"_s, u"True"_s}));
}

void ScreenLineEntry::aCustomBreakHasNoMark() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuCItems"_s);
  bench.On().Click(u"ckApplyVolumeDiscount"_s);
  bench.On().PickEntry(u"cboDescription_2"_s, u"Banner"_s);
  bench.On().Type(u"2"_s);
  bench.On().Click(u"cmdPost_3"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"2"_s, u"Banner"_s, QString(), u"$50.00"_s, u"$100.00"_s, u"False"_s}));
  bench.On().Trigger(u"mnuItems"_s);
  QVERIFY(!bench.On().IsVisible(u"Label4_42"_s));
}

void ScreenLineEntry::theHundredthLineStandsWhenTheInvoiceIsFull() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.FillGrid(99);
  QStringList behind;
  bench.Answers.With(QMessageBox::Ok, [&] { behind = bench.Row(100); });
  bench.PostManual(u"Last"_s, u"1"_s, u"7"_s);
  QCOMPARE(bench.Answers.Last().Text, u"The Invoice is full"_s);
  QCOMPARE(bench.Answers.Last().Title, u"Karvex Invoicer"_s);
  QCOMPARE(bench.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(behind, (QStringList{u"1"_s, u"Last"_s, QString(), u"$7.00"_s, u"$7.00"_s, u"False"_s}));
  QCOMPARE(bench.Invoice.LineCount, 100);
  QVERIFY(!bench.On().IsEnabled(u"cmdPost_2"_s));
  for (const int other : {0, 1, 3}) QVERIFY(bench.Invoice.Controls.Enabled.cmdPost[static_cast<size_t>(other)]);
}

void ScreenLineEntry::aPostOntoAFullGridIsTheGridsErrorAndPostsNothing() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.FillGrid(100);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{9});
  QCOMPARE(bench.Invoice.LineCount, 100);
  QCOMPARE(bench.Row(100)[1], u"Crate"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdPost_0"_s));
}

void ScreenLineEntry::postingAgainIsPossibleAfterADeletedLine() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.FillGrid(99);
  bench.Answers.Ok();
  bench.PostManual(u"Last"_s, u"1"_s, u"7"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdPost_2"_s));
  bench.On().SelectRow(u"fgInvoice"_s, 3);
  bench.Answers.Yes();
  bench.On().PressKey(Qt::Key_Delete);
  QVERIFY(bench.On().IsEnabled(u"cmdPost_2"_s));
  QCOMPARE(bench.Invoice.LineCount, 99);
}

void ScreenLineEntry::unitsThatDoNotConvertFailAtPosting() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuCItems"_s);
  bench.On().PickEntry(u"cboDescription_2"_s, u"Sign"_s);
  bench.Invoice.Entry.txtCUnits = u"12abc"_s;
  bench.Invoice.Show();
  bench.On().Click(u"cmdPost_3"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{13});
  QCOMPARE(bench.Invoice.LineCount, 0);
  QCOMPARE(bench.Row(1), QStringList(6, QString()));
}

void ScreenLineEntry::countBoxesBlankAZeroAndFilterTheirKeys() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.Invoice.Entry.txtUnits = u"0"_s;
  bench.Invoice.Show();
  bench.On().Click(u"txtUnits"_s);
  QCOMPARE(bench.Text(u"txtUnits"_s), QString());
  bench.On().Type(u"0a.5.-1"_s);
  QCOMPARE(bench.Text(u"txtUnits"_s), u".51"_s);
  bench.On().PressKey(Qt::Key_Backspace);
  QCOMPARE(bench.Text(u"txtUnits"_s), u".51"_s);
  bench.On().PressKey(Qt::Key_Home);
  bench.On().PressKey(Qt::Key_Delete);
  QCOMPARE(bench.Text(u"txtUnits"_s), u"51"_s);
  bench.On().Trigger(u"mnuCItems"_s);
  bench.Invoice.Entry.txtCUnits = u"0"_s;
  bench.Invoice.Show();
  bench.On().Click(u"txtCUnits"_s);
  bench.On().Type(u"x2"_s);
  QCOMPARE(bench.Text(u"txtCUnits"_s), u"2"_s);
}

void ScreenLineEntry::unitsThatAreNoNumberComeBackAsZero() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Click(u"txtUnits"_s);
  bench.On().Type(u"."_s);
  bench.On().Click(u"cmdPost_1"_s);
  // The box comes back as zero, which getting the focus blanks, and the post is dropped.
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.On().FocusName(), u"txtUnits"_s);
  QCOMPARE(bench.Invoice.LineCount, 0);
  QVERIFY(!bench.On().IsEnabled(u"cmdPrint"_s));
}

void ScreenLineEntry::manualBoxesFilterTheirKeys() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuManual"_s);
  bench.On().Fill(u"txtManual_0"_s, u"A-1 \"x\""_s);
  QCOMPARE(bench.Text(u"txtManual_0"_s), u"A-1 \"x\""_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.On().FocusName(), u"txtManual_0"_s);
  bench.On().Click(u"txtManual_1"_s);
  QCOMPARE(bench.Text(u"txtManual_1"_s), QString());
  bench.On().Type(u"1x2.5.0"_s);
  QCOMPARE(bench.Text(u"txtManual_1"_s), u"12.50"_s);
  bench.On().Click(u"txtManual_2"_s);
  bench.On().Type(u"0-3"_s);
  QCOMPARE(bench.Text(u"txtManual_2"_s), u"3"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Invoice.LineCount, 0);
}

void ScreenLineEntry::enterInTheLastBoxPosts() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"2"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Row(1)[4], u"$24.00"_s);
  bench.On().Trigger(u"mnuCItems"_s);
  bench.On().PickEntry(u"cboDescription_2"_s, u"Sign"_s);
  bench.On().Type(u"1"_s);
  bench.On().PressKey(Qt::Key_Enter);
  QCOMPARE(bench.Row(2)[4], u"$25.00"_s);
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().Type(u"Repair"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Row(3)[4], u"$80.00"_s);
  QCOMPARE(bench.Invoice.LineCount, 3);
  // A box whose check takes the focus back posts nothing.
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"."_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.Invoice.LineCount, 3);
}

void ScreenLineEntry::aTypedPriceStaysAsTypedWhenItsBoxIsLeft() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Fill(u"cboPrice_0"_s, u"75.5"_s);
  bench.On().Click(u"txtInvoiceNo"_s);
  QCOMPARE(bench.Text(u"cboPrice_0"_s), u"75.5"_s);
  QCOMPARE(bench.On().FocusName(), u"txtInvoiceNo"_s);
}

void ScreenLineEntry::emptyUnitsHideTheMarkOfABreakAndAnEmptyPriceLeavesIt() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Click(u"ckApplyVolumeDiscount"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"5"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QVERIFY(bench.On().IsVisible(u"Label4_42"_s));
  bench.On().Fill(u"cboPrice_1"_s, QString());
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.On().FocusName(), u"cboPrice_1"_s);
  QVERIFY(bench.On().IsVisible(u"Label4_42"_s));
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  QCOMPARE(bench.Text(u"txtUnits"_s), QString());
  bench.On().Click(u"cmdPost_1"_s);
  QVERIFY(!bench.On().IsVisible(u"Label4_42"_s));
  QCOMPARE(bench.Dialogs.Beeps, 2);
  QCOMPARE(bench.Invoice.LineCount, 1);
}

QTEST_MAIN(ScreenLineEntry)
#include "tst_screenLineEntry.moc"
