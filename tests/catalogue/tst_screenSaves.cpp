// The Save buttons of the catalogue screen: what holds for all three lists.

#include "catalogue/NewEntries.h"

using namespace Qt::StringLiterals;

namespace {

/// The only service is being modified while the custom items are on screen.
void ModifyTheServiceBeside(const CatalogueScreen& screen) {
  screen.ShowTab(0);
  screen.SelectRow("fgServices", 1);
  screen.Click(3);
  screen.ShowTab(3);
}

}  // namespace

class ScreenSaves : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void modifyModeFollowsToAnotherTab();
  void modifyModeWithoutALineThereAsksForOne();
  void aSaveThatStopsLeavesBoxesAndMode();
  void enterInABoxSaves();
  void enterInEachBoxSavesItsOwnList_data();
  void enterInEachBoxSavesItsOwnList();
  void enterInABoxThatHoldsNoAmountSavesNothing();
  void aDescriptionOfBlanksIsRefusedInEveryList();
  void addNewAfterAModifyAddsARowAndLeavesTheOther();
  void aDeleteDuringAModifyAsksForTheLineAgain();
  void aDeleteThatFailedHitsNoOtherLineWhenItIsPressedAgain();
  void theTwoHundredFiftySixthRecordIsToldAndTheScreenStays();
};

void ScreenSaves::modifyModeFollowsToAnotherTab() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a"));
  screen.Program.Tree.Write(u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving"));
  screen.Open(3);
  screen.SelectRow("fgCustom", 1);
  screen.Click(18);
  FillCustomItem(screen, "Welding", "5", "4");
  ModifyTheServiceBeside(screen);
  screen.Click(22);
  QCOMPARE(screen.Rows("fgCustom"), 1);
  QCOMPARE(screen.Row("fgCustom", 1), u"Welding|$5.00|$4.00|0"_s);
}

void ScreenSaves::modifyModeWithoutALineThereAsksForOne() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a"));
  OpenAtNewCustomItem(screen, "Welding");
  ModifyTheServiceBeside(screen);
  screen.Program.Answers.Ok(u"Select the line to modify, or click Add New"_s, u"Karvex Invoicer"_s);
  screen.Click(22);
  QCOMPARE(screen.Rows("fgCustom"), 0);
  QCOMPARE(screen.Text("txtDescription_2"), u"Welding"_s);
  QVERIFY(screen.Live(22));
}

void ScreenSaves::aSaveThatStopsLeavesBoxesAndMode() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a"));
  screen.Open();
  screen.SelectRow("fgServices", 1);
  screen.Click(3);
  screen.Fill("txtDescription_0", "");
  screen.Click(4);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Text("txtCharge_0"), u"$1.00"_s);
  QVERIFY(!screen.Open("fgServices"));
  screen.Fill("txtDescription_0", "b");
  screen.Click(4);
  QCOMPARE(screen.Rows("fgServices"), 1);
  QCOMPARE(screen.Row("fgServices", 1), u"b|$1.00|0:15"_s);
}

void ScreenSaves::enterInABoxSaves() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "Advice");
  screen.Fill("txtCharge_0", "5");
  screen.Driver().PressKey(Qt::Key_Return);
  QCOMPARE(screen.Row("fgServices", 1), u"Advice|$5.00|0:00"_s);
  QCOMPARE(screen.Focus(), u"cmdServices_1"_s);
  // Where the box's own check keeps the focus, Enter saves nothing.
  screen.Driver().PressKey(Qt::Key_Return);
  screen.Fill("txtDescription_0", "More");
  screen.Fill("txtCharge_0", ".");
  screen.Driver().PressKey(Qt::Key_Return);
  QCOMPARE(screen.Rows("fgServices"), 1);
  QCOMPARE(screen.Focus(), u"txtCharge_0"_s);
}

void ScreenSaves::enterInEachBoxSavesItsOwnList_data() {
  QTest::addColumn<int>("tab");
  QTest::addColumn<int>("addNew");
  QTest::addColumn<QByteArray>("grid");
  const auto rows = [](int tab, int addNew, const char* grid, std::initializer_list<const char*> boxes) {
    for (const char* box : boxes) QTest::newRow(box) << tab << addNew << QByteArray(grid);
  };
  rows(0, 1, "fgServices", {"txtDescription_0", "txtCharge_0"});
  rows(1, 8, "fgItems",
       {"txtDescription_1", "txtCharge_1", "txtCharge_2", "txtCost", "txtOnHand", "txtDiscountQty", "txtReorderAmount",
        "txtReorderAt"});
  rows(3, 18, "fgCustom", {"txtDescription_2", "txtCharge_3", "txtCharge_4", "txtCustomDiscItems"});
}

void ScreenSaves::enterInEachBoxSavesItsOwnList() {
  QFETCH(int, tab);
  QFETCH(int, addNew);
  QFETCH(QByteArray, grid);
  const QString last = QString::fromLatin1(QTest::currentDataTag());
  CatalogueScreen screen;
  screen.Open(tab);
  screen.Click(addNew);
  for (const char* box : {"txtDescription_0", "txtCharge_0", "txtDescription_1", "txtCharge_1", "txtCharge_2",
                          "txtOnHand", "txtDescription_2", "txtCharge_3", "txtCharge_4"}) {
    if (screen.Driver().IsVisible(QString::fromLatin1(box))) screen.Fill(box, "5");
  }
  screen.Driver().Fill(last, u"5"_s);
  QCOMPARE(screen.Rows(grid.constData()), 0);
  screen.Driver().PressKey(Qt::Key_Return);
  QCOMPARE(screen.Rows(grid.constData()), 1);
}

void ScreenSaves::enterInABoxThatHoldsNoAmountSavesNothing() {
  CatalogueScreen screen;
  OpenAtNewItem(screen);
  screen.Fill("txtCost", ".");
  // One box tells of it: that of the leaving, none of a save.
  screen.Program.Answers.Ok();
  screen.Driver().PressKey(Qt::Key_Return);
  QVERIFY(screen.Program.Answers.Last().Text.startsWith(u"Cost per unit: "_s));
  QCOMPARE(screen.Program.Answers.Boxes().size(), 1);
  QCOMPARE(screen.Rows("fgItems"), 0);
  QCOMPARE(screen.Text("txtDescription_1"), u"Hose"_s);
}

void ScreenSaves::aDescriptionOfBlanksIsRefusedInEveryList() {
  CatalogueScreen screen;
  screen.Open(0);
  screen.Click(1);
  screen.Fill("txtCharge_0", "1");
  screen.Fill("txtDescription_0", "  ");
  screen.Click(4);
  QCOMPARE(screen.Focus(), u"txtDescription_0"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Rows("fgServices"), 0);
  screen.ShowTab(1);
  BeginItem(screen);
  screen.Fill("txtDescription_1", "  ");
  screen.TakeBeeps();
  screen.Click(13);
  QCOMPARE(screen.Focus(), u"txtDescription_1"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Rows("fgItems"), 0);
  screen.ShowTab(3);
  screen.Click(18);
  screen.Fill("txtCharge_3", "5");
  screen.Fill("txtCharge_4", "4");
  screen.Fill("txtDescription_2", "  ");
  screen.Click(22);
  QCOMPARE(screen.Focus(), u"txtDescription_2"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Rows("fgCustom"), 0);
}

void ScreenSaves::addNewAfterAModifyAddsARowAndLeavesTheOther() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("Advice"));
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Air"));
  screen.Program.Tree.Write(u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving"));
  screen.Open();
  screen.SelectRow("fgServices", 1);
  for (const int command : {3, 7, 1}) screen.Click(command);
  screen.Fill("txtDescription_0", "More");
  screen.Fill("txtCharge_0", "2");
  screen.PickTime("0:30");
  screen.Click(4);
  QCOMPARE(screen.Rows("fgServices"), 2);
  QCOMPARE(screen.Row("fgServices", 1), u"Advice|$1.00|0:15"_s);
  QCOMPARE(screen.Row("fgServices", 2), u"More|$2.00|0:30"_s);

  screen.ShowTab(1);
  screen.SelectRow("fgItems", 1);
  for (const int command : {9, 14, 8}) screen.Click(command);
  FillItem(screen, "Filter");
  screen.Click(13);
  QCOMPARE(screen.Rows("fgItems"), 2);
  QCOMPARE(screen.Row("fgItems", 1), u"Hose|Air|$1.25|$12.50|10|$11.00|6|24|4"_s);
  QCOMPARE(screen.Row("fgItems", 2), u"Filter|Air|$1.25|$5.00|7|$4.50|0|0|0"_s);

  screen.ShowTab(3);
  screen.SelectRow("fgCustom", 1);
  for (const int command : {19, 23, 18}) screen.Click(command);
  FillCustomItem(screen, "Welding", "5", "4");
  screen.Click(22);
  QCOMPARE(screen.Rows("fgCustom"), 2);
  QCOMPARE(screen.Row("fgCustom", 1), u"Engraving|$100.00|$90.50|3"_s);
  QCOMPARE(screen.Row("fgCustom", 2), u"Welding|$5.00|$4.00|0"_s);
}

void ScreenSaves::aDeleteDuringAModifyAsksForTheLineAgain() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a") + CatalogueScreen::Service("b") +
                                                    CatalogueScreen::Service("c"));
  screen.Open();
  screen.SelectRow("fgServices", 2);
  screen.Click(3);
  screen.Fill("txtDescription_0", "changed");
  screen.Program.Answers.Yes();
  screen.Click(2);
  QCOMPARE(screen.Rows("fgServices"), 2);
  screen.Program.Answers.Ok(u"Select the line to modify, or click Add New"_s);
  screen.Click(4);
  QCOMPARE(screen.Row("fgServices", 1), u"a|$1.00|0:15"_s);
  QCOMPARE(screen.Row("fgServices", 2), u"c|$1.00|0:15"_s);
  QCOMPARE(screen.Text("txtDescription_0"), u"changed"_s);
  QVERIFY(screen.Open("fgServices"));
  screen.SelectRow("fgServices", 2);
  screen.Click(4);
  QCOMPARE(screen.Row("fgServices", 1), u"a|$1.00|0:15"_s);
  QCOMPARE(screen.Row("fgServices", 2), u"changed|$1.00|0:15"_s);
}

void ScreenSaves::aDeleteThatFailedHitsNoOtherLineWhenItIsPressedAgain() {
  CatalogueScreen screen;
  const QByteArray both = CatalogueScreen::Service("a") + CatalogueScreen::Service("b");
  screen.Program.Tree.Write(u"/Services.txt"_s, both);
  screen.Open();
  screen.SelectRow("fgServices", 1);
  screen.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  screen.Program.Answers.Yes(u"This will DELETE the Selected Service"_s, u"Delete Service Item"_s);
  screen.Program.Answers.Ok();
  screen.Click(2);
  QVERIFY(screen.Program.Answers.Last().Text.contains(u"Services.txt"_s));
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), both);
  QCOMPARE(screen.Row("fgServices", 1), u"a|$1.00|0:15"_s);
  QCOMPARE(screen.Row("fgServices", 2), u"b|$1.00|0:15"_s);
  const QModelIndexList shown = screen.Driver().Control<QTableView>(u"fgServices"_s)->selectionModel()->selectedRows();
  QCOMPARE(shown.size(), 1);
  QCOMPARE(shown.first().row(), 0);
  screen.Program.Files.Reset();
  screen.Program.Answers.Yes(u"This will DELETE the Selected Service"_s, u"Delete Service Item"_s);
  screen.Click(2);
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), CatalogueScreen::Service("b"));
  QCOMPARE(screen.Rows("fgServices"), 1);
}

void ScreenSaves::theTwoHundredFiftySixthRecordIsToldAndTheScreenStays() {
  CatalogueScreen screen;
  const QByteArray full = CatalogueScreen::Service("a").repeated(255);
  screen.Program.Tree.Write(u"/Services.txt"_s, full);
  screen.Open();
  QCOMPARE(screen.Rows("fgServices"), 255);
  AddService(screen, "b");
  screen.Program.Answers.Ok();
  screen.Click(0);
  QVERIFY(screen.Program.Answers.Last().Text.startsWith(screen.Program.Tree.Path(u"/Services.txt"_s) +
                                                        u": The list holds 256 entries"_s));
  QVERIFY(screen.Program.Answers.Last().Text.endsWith(u"Delete some first. Nothing was lost."_s));
  QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), full);
  // The window's close box doesn't lose it either.
  screen.Program.Answers.Ok();
  screen.Driver().CloseByUser();
  QVERIFY(!screen.Program.Running().HasEnded());
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), full);
  screen.SelectRow("fgServices", 1);
  screen.Program.Answers.Yes();
  screen.Click(2);
  screen.Click(0);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s),
           CatalogueScreen::Service("a").repeated(254) + CatalogueScreen::Service("b"));
}

QTEST_MAIN(ScreenSaves)
#include "tst_screenSaves.moc"
