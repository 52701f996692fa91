// The entry lists of the invoice screen: completion, categories, and how they follow the catalogue.

#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

/// A manual line, which is current, and a service, whose row shuts the arrows; then an entry of the menu.
void OpenBesideTwoLines(InvoiceBench& bench, const QString& entry) {
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Cleaning"_s);
  bench.On().Click(u"cmdPost_0"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 1, 1);
  bench.On().Trigger(entry);
}

void ChooseSecondLine(const InvoiceBench& bench, bool byKey) {
  if (byKey) {
    bench.On().Control(u"fgInvoice"_s)->setFocus();
    bench.On().PressKey(Qt::Key_Down);
  } else {
    bench.On().SelectRow(u"fgInvoice"_s, 2, 1);
  }
}

void ByMouseAndByKey() {
  QTest::addColumn<bool>("byKey");
  QTest::newRow("click") << false;
  QTest::newRow("arrow key") << true;
}

}  // namespace

class ScreenLists : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void typingCompletesTheDescription();
  void typingAWholeNameSelectsIt();
  void backspaceDoesNotComplete();
  void changingTheDescriptionBlanksPriceAndUnits();
  void aCompletedDescriptionCountsThoughItWasNotPicked();
  void aCompletedDescriptionOutlivesTheChoiceOfALine_data() { ByMouseAndByKey(); }
  void aCompletedDescriptionOutlivesTheChoiceOfALine();
  void whatADeletionLeavesOutlivesTheChoiceOfALine_data();
  void whatADeletionLeavesOutlivesTheChoiceOfALine();
  void aCompletedDescriptionOutlivesTheReloadOfAnotherList();
  void theArrowKeyTakesTheCompletedEntryWithItsPrice_data();
  void theArrowKeyTakesTheCompletedEntryWithItsPrice();
  void aCategoryNarrowsTheItemsUntilAll();
  void aNarrowedListStaysNarrowedWhenTheFrameIsOpenedAgain();
  void theBreakOfANarrowedListGoesWithIt();
  void theListsFollowTheCatalogue();
  void allKeepsTheUnitsAndTheFocus();
};

void ScreenLists::typingCompletesTheDescription() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Type(u"ha"_s);
  auto* line = bench.On().Control<QComboBox>(u"cboDescription_1"_s)->lineEdit();
  QCOMPARE(line->text(), u"hammer"_s);
  QCOMPARE(line->selectionStart(), 2);
  QCOMPARE(line->selectedText(), u"mmer"_s);
  bench.On().Type(u"x"_s);
  QCOMPARE(line->text(), u"hax"_s);
  QVERIFY(!line->hasSelectedText());
}

void ScreenLists::typingAWholeNameSelectsIt() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Type(u"paint"_s);
  QCOMPARE(bench.Text(u"cboDescription_1"_s), u"Paint"_s);
  QCOMPARE(bench.Text(u"cboPrice_1"_s), u"$33.34"_s);
  QCOMPARE(bench.On().FocusName(), u"txtUnits"_s);
}

void ScreenLists::backspaceDoesNotComplete() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.On().Type(u"re"_s);
  QCOMPARE(bench.Text(u"cboDescription_0"_s), u"repair"_s);
  bench.On().PressKey(Qt::Key_Backspace);
  QCOMPARE(bench.Text(u"cboDescription_0"_s), u"re"_s);
  bench.On().Click(u"cboPrice_0"_s);
  QCOMPARE(bench.Text(u"cboDescription_0"_s), u"re"_s);
}

void ScreenLists::changingTheDescriptionBlanksPriceAndUnits() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"4"_s);
  bench.On().Fill(u"cboDescription_1"_s, u"z"_s);
  QCOMPARE(bench.Text(u"cboPrice_1"_s), QString());
  QCOMPARE(bench.Text(u"txtUnits"_s), QString());
}

void ScreenLists::aCompletedDescriptionCountsThoughItWasNotPicked() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.On().Type(u"Rep"_s);
  bench.On().Fill(u"cboPrice_0"_s, u"70"_s);
  QCOMPARE(bench.Text(u"cboDescription_0"_s), u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  QCOMPARE(bench.Row(1)[1], u"Repair"_s);
  QCOMPARE(bench.Row(1)[3], u"$70.00"_s);
}

void ScreenLists::aCompletedDescriptionOutlivesTheChoiceOfALine() {
  QFETCH(const bool, byKey);
  InvoiceBench bench;
  OpenBesideTwoLines(bench, u"mnuItems"_s);
  QVERIFY(bench.On().IsEnabled(u"UpDown1_up"_s));
  bench.On().Click(u"cboDescription_1"_s);
  bench.On().Type(u"Ham"_s);
  QCOMPARE(bench.Text(u"cboDescription_1"_s), u"Hammer"_s);
  ChooseSecondLine(bench, byKey);
  QCOMPARE(bench.Invoice.fgInvoice.Row(), 2);
  QVERIFY(!bench.On().IsEnabled(u"UpDown1_up"_s));
  QCOMPARE(bench.Text(u"cboDescription_1"_s), u"Hammer"_s);
  bench.On().Fill(u"cboPrice_1"_s, u"11"_s);
  bench.On().Fill(u"txtUnits"_s, u"2"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(3), (QStringList{u"2"_s, u"Hammer"_s, QString(), u"$11.00"_s, u"$22.00"_s, u"True"_s}));
}

void ScreenLists::whatADeletionLeavesOutlivesTheChoiceOfALine_data() {
  QTest::addColumn<bool>("byKey");
  QTest::addColumn<int>("key");
  QTest::addColumn<QString>("left");
  QTest::newRow("Backspace, click") << false << int{Qt::Key_Backspace} << u"Repai"_s;
  QTest::newRow("Backspace, arrow key") << true << int{Qt::Key_Backspace} << u"Repai"_s;
  QTest::newRow("Delete, click") << false << int{Qt::Key_Delete} << u"epair"_s;
  QTest::newRow("Delete, arrow key") << true << int{Qt::Key_Delete} << u"epair"_s;
}

void ScreenLists::whatADeletionLeavesOutlivesTheChoiceOfALine() {
  QFETCH(const bool, byKey);
  QFETCH(const int, key);
  QFETCH(const QString, left);
  InvoiceBench bench;
  OpenBesideTwoLines(bench, u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().PressKey(key == Qt::Key_Delete ? Qt::Key_Home : Qt::Key_End);
  bench.On().PressKey(static_cast<Qt::Key>(key));
  QCOMPARE(bench.Text(u"cboDescription_0"_s), left);
  ChooseSecondLine(bench, byKey);
  QCOMPARE(bench.Invoice.fgInvoice.Row(), 2);
  QVERIFY(!bench.On().IsEnabled(u"UpDown1_up"_s));
  QCOMPARE(bench.Text(u"cboDescription_0"_s), left);
  // A deletion leaves the price.
  QCOMPARE(bench.Text(u"cboPrice_0"_s), u"$80.00"_s);
  bench.On().Click(u"cmdPost_0"_s);
  QCOMPARE(bench.Row(3), (QStringList{QString(), left, u"3/7/2026"_s, u"$80.00"_s, u"$80.00"_s, u"False"_s}));
}

void ScreenLists::aCompletedDescriptionOutlivesTheReloadOfAnotherList() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.On().Type(u"Rep"_s);
  bench.Prices.LoadAdditionalItems();
  QCOMPARE(bench.Text(u"cboDescription_0"_s), u"Repair"_s);
}

void ScreenLists::theArrowKeyTakesTheCompletedEntryWithItsPrice_data() {
  QTest::addColumn<QString>("entry");
  QTest::addColumn<QString>("typed");
  QTest::addColumn<int>("element");
  QTest::addColumn<QStringList>("picked");
  QTest::addColumn<QString>("focus");
  QTest::newRow("service") << u"mnuServices"_s << u"re"_s << 0 << QStringList{u"Repair"_s, u"$80.00"_s}
                           << u"cboDescription_0"_s;
  QTest::newRow("item") << u"mnuItems"_s << u"pa"_s << 1 << QStringList{u"Paint"_s, u"$33.34"_s} << u"txtUnits"_s;
  QTest::newRow("custom item") << u"mnuCItems"_s << u"si"_s << 2 << QStringList{u"Sign"_s, u"$25.00"_s}
                               << u"txtCUnits"_s;
}

void ScreenLists::theArrowKeyTakesTheCompletedEntryWithItsPrice() {
  QFETCH(const QString, entry);
  QFETCH(const QString, typed);
  QFETCH(const int, element);
  QFETCH(const QStringList, picked);
  QFETCH(const QString, focus);
  InvoiceBench bench;
  bench.OpenAt(entry);
  bench.On().Type(typed);
  QCOMPARE(bench.Text(u"cboPrice_%1"_s.arg(element)), QString());
  bench.On().PressKey(Qt::Key_Down);
  QCOMPARE(bench.Text(u"cboDescription_%1"_s.arg(element)), picked[0]);
  QCOMPARE(bench.Text(u"cboPrice_%1"_s.arg(element)), picked[1]);
  QCOMPARE(bench.On().FocusName(), focus);
}

void ScreenLists::aCategoryNarrowsTheItemsUntilAll() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  auto* categories = bench.On().Control<QListWidget>(u"lstCategories"_s);
  QCOMPARE(categories->count(), 3);
  QCOMPARE(categories->item(0)->text(), u"All"_s);
  const auto pick = [&](int row) {
    categories->setFocus();
    categories->setCurrentRow(row);
    bench.On().PressKey(Qt::Key_Return);
  };
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"4"_s);
  pick(2);
  const auto* items = bench.On().Control<QComboBox>(u"cboDescription_1"_s);
  QCOMPARE(items->count(), 1);
  QCOMPARE(items->itemText(0), u"Paint"_s);
  QCOMPARE(bench.Text(u"cboDescription_1"_s), QString());
  QCOMPARE(bench.Text(u"cboPrice_1"_s), QString());
  QCOMPARE(bench.Text(u"txtUnits"_s), QString());
  QCOMPARE(bench.On().FocusName(), u"cboDescription_1"_s);
  QCOMPARE(categories->currentRow(), 2);
  pick(0);
  QCOMPARE(items->count(), 3);
  // By the mouse as well.
  const QPoint colour = categories->visualItemRect(categories->item(2)).center();
  QTest::mouseClick(categories->viewport(), Qt::LeftButton, Qt::NoModifier, colour);
  QCOMPARE(items->count(), 1);
}

void ScreenLists::aNarrowedListStaysNarrowedWhenTheFrameIsOpenedAgain() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  auto* categories = bench.On().Control<QListWidget>(u"lstCategories"_s);
  categories->setFocus();
  categories->setCurrentRow(2);
  bench.On().PressKey(Qt::Key_Space);
  bench.On().Trigger(u"mnuItems"_s);
  QCOMPARE(bench.On().Control<QComboBox>(u"cboDescription_1"_s)->count(), 1);
}

void ScreenLists::theBreakOfANarrowedListGoesWithIt() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().Click(u"ckApplyVolumeDiscount"_s);
  auto* categories = bench.On().Control<QListWidget>(u"lstCategories"_s);
  categories->setFocus();
  categories->setCurrentRow(2);
  bench.On().PressKey(Qt::Key_Return);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Paint"_s);
  bench.On().Type(u"10"_s);
  bench.On().Click(u"cmdPost_1"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"10"_s, u"Paint"_s, QString(), u"$30.00"_s, u"$300.00"_s, u"True"_s}));
}

void ScreenLists::theListsFollowTheCatalogue() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.Tree.Write(u"/Services.txt"_s, Field("Polishing", 60) + Field("$15.00", 10) + Bytes16(1) +
                                           Field("Sanding", 60) + Field("$16.00", 10) + Bytes16(1));
  bench.Prices.LoadServices();
  ScreenDriver::ProcessEvents();
  const auto* list = bench.On().Control<QComboBox>(u"cboDescription_0"_s);
  QCOMPARE(list->count(), 2);
  QCOMPARE(list->currentText(), QString());
  QCOMPARE(bench.Text(u"cboPrice_0"_s), QString());
  bench.On().PickEntry(u"cboDescription_0"_s, 0);
  QCOMPARE(bench.Text(u"cboPrice_0"_s), u"$15.00"_s);
}

void ScreenLists::allKeepsTheUnitsAndTheFocus() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"4"_s);
  auto* categories = bench.On().Control<QListWidget>(u"lstCategories"_s);
  categories->setFocus();
  categories->setCurrentRow(0);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Text(u"cboDescription_1"_s), QString());
  QCOMPARE(bench.Text(u"txtUnits"_s), u"4"_s);
  QCOMPARE(bench.On().FocusName(), u"lstCategories"_s);
}

QTEST_MAIN(ScreenLists)
#include "tst_screenLists.moc"
