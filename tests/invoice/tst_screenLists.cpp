// The entry lists of the invoice screen: completion, categories, and how they follow the catalogue.

#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

class ScreenLists : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void typingCompletesTheDescription();
  void typingAWholeNameSelectsIt();
  void backspaceDoesNotComplete();
  void changingTheDescriptionBlanksPriceAndUnits();
  void aCompletedDescriptionCountsThoughItWasNotPicked();
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
