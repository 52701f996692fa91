// The buttons of the catalogue screen: what they are called, when they are live, and what each does.

#include "support/CatalogueScreen.h"

using namespace Qt::StringLiterals;

class ScreenCommands : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theScreenTabsGridsAndButtonsBearTheirNames();
  void atFirstWithoutFilesNothingCanBeModifiedDeletedOrSaved();
  void whatWasLoadedAtStartCanBeModified();
  void theArrowStepsThroughTheTabsAndTheFocusFollows();
  void clickingATabMovesTheFocusToo();
  void addNewOpensAndEmptiesTheServiceBoxes();
  void addNewOpensTheItemBoxesAndKeepsThePrices();
  void addNewOpensTheCustomBoxes();
  void aRowClickMakesDeleteLive();
  void aRowIsClickedByEnterToo();
  void modifyServiceLoadsTheRowAndShutsTheGrid();
  void aModifyThatWasLeftByMenuLeavesTheGridOpenForAnother();
  void modifyItemLoadsTheRowAndTheCategoryByItsRule();
  void modifyCustomItemLoadsTheRow();
  void modifyWithoutACurrentRowDoesNothing();
  void cancelOnTheServiceTabLeavesTheServiceBoxesOpen();
  void cancelOnTheItemTabShutsTheItemBoxes();
  void cancelOnTheCustomTabShutsTheServiceBoxesAndLeavesTheCustomOnesOpen();
  void clearEmptiesWhatItsTabHolds();
  void clearPricesAndNoDiscountSetZero();
  void escapeGoesBackUnlessARecordIsBeingEntered();
  void escapeSettlesTheBoxThatIsLeft();
  void everyControlHasANameForThoseWhoHearTheScreen();
};

void ScreenCommands::theScreenTabsGridsAndButtonsBearTheirNames() {
  CatalogueScreen screen;
  screen.Open();
  const ScreenDriver driver = screen.Driver();
  QCOMPARE(driver.Window()->windowTitle(), u"Services & Products Creation Screen"_s);
  const auto* tabs = driver.Control<QTabWidget>(u"tabServices"_s);
  const QStringList names{u"Services"_s, u"Inventoried Items"_s, u"Labor Rates"_s, u"Custom Items"_s,
                          u"Instructions"_s};
  QCOMPARE(tabs->count(), 5);
  for (int tab = 0; tab < 5; ++tab) QCOMPARE(tabs->tabText(tab), names.at(tab));
  QCOMPARE(tabs->currentIndex(), 0);
  QCOMPARE(driver.Text(u"Label7"_s), u"Toggles Tab  >"_s);
  QCOMPARE(driver.Text(u"ckClearItem"_s), u"Do not clear Category when Saving"_s);
  const QHash<int, QString> captions{{0, u"Menu"_s},
                                     {1, u"Add New"_s},
                                     {2, u"Delete Item"_s},
                                     {3, u"Modify Item"_s},
                                     {4, u"Save"_s},
                                     {5, u"Clear"_s},
                                     {8, u"Add New"_s},
                                     {9, u"Modify Item"_s},
                                     {7, u"Cancel Add New or Modify"_s},
                                     {10, u"Delete Item"_s},
                                     {11, u"Clear Item"_s},
                                     {12, u"Create General Labor"_s},
                                     {15, u"&Clear All"_s},
                                     {18, u"Add New"_s},
                                     {13, u"Save Sales Item"_s},
                                     {19, u"Modify Item"_s},
                                     {20, u"Delete Item"_s},
                                     {14, u"Cancel Add New or Modify"_s},
                                     {21, u" Clear Item"_s},
                                     {24, u"Clear Prices"_s},
                                     {16, u"Reload from File"_s},
                                     {25, u"No Discount"_s},
                                     {22, u"Save Custom Item"_s},
                                     {17, u"Save &Labor Rates"_s},
                                     {23, u"Cancel Add New or Modify "_s}};
  QCOMPARE(captions.size(), 25);
  for (auto it = captions.begin(); it != captions.end(); ++it) {
    QCOMPARE(driver.Text(u"cmdServices_"_s + QString::number(it.key())), it.value());
  }
  QVERIFY(driver.Window()->findChild<QWidget*>(u"cmdServices_6"_s) == nullptr);
  const QHash<QString, QString> headings{
      {u"fgServices"_s, u"Service Description|Charge|Allotted Time"_s},
      {u"fgItems"_s, u"Description|Category|Cost (Unit)|Price|On-Hand|Disc Price|Disc Qty|Reorder|When At"_s},
      {u"fgCustom"_s, u"Description|Price|Discount Price|Discount Qty"_s}};
  for (auto it = headings.begin(); it != headings.end(); ++it) {
    const auto* model = driver.Control<QTableView>(it.key())->model();
    QStringList texts;
    for (int col = 0; col < model->columnCount(); ++col) texts << model->headerData(col, Qt::Horizontal).toString();
    QCOMPARE(texts.join(u'|'), it.value());
  }
  const auto* times = driver.Control<QListWidget>(u"lstTime"_s);
  QCOMPARE(times->count(), 33);
  QCOMPARE(times->item(0)->text(), u"0:00"_s);
  QCOMPARE(times->item(32)->text(), u"8:00"_s);
}

void ScreenCommands::atFirstWithoutFilesNothingCanBeModifiedDeletedOrSaved() {
  CatalogueScreen screen;
  screen.Open();
  for (const int command : {2, 3, 9, 10, 11, 16, 19, 20, 4, 13, 22})
    QVERIFY2(!screen.Live(command), qPrintable(QString::number(command)));
  for (const int command : {0, 1, 5, 7, 8, 12, 14, 15, 17, 18, 21, 23, 24, 25})
    QVERIFY2(screen.Live(command), qPrintable(QString::number(command)));
  for (const char* box : {"txtDescription_0", "txtDescription_1", "txtDescription_2", "txtCharge_0", "txtCharge_1",
                          "txtCharge_2", "txtCharge_3", "txtCharge_4"}) {
    QVERIFY2(!screen.Open(box), box);
  }
  for (const char* box : {"cboCategory", "txtCost", "txtOnHand", "txtDiscountQty", "txtReorderAmount", "txtReorderAt",
                          "txtCustomDiscItems", "lstTime", "txtLabor_0", "txtLaborRate_2"}) {
    QVERIFY2(screen.Open(box), box);
  }
  QCOMPARE(screen.Text("txtLabor_0"), u"General Labor"_s);
  QCOMPARE(screen.Text("txtLaborRate_1"), u"$0.00"_s);
}

void ScreenCommands::whatWasLoadedAtStartCanBeModified() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("Advice"));
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Parts"));
  screen.Program.Tree.Write(u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving"));
  screen.Program.Tree.Write(u"/Labor.txt"_s, "\"A\",\"$1.00\"\r\n\"B\",\"$2.00\"\r\n\"C\",\"$3.00\"\r\n");
  screen.Open();
  for (const int command : {3, 9, 19, 16}) QVERIFY(screen.Live(command));
  for (const int command : {2, 10, 20, 11}) QVERIFY(!screen.Live(command));
  QCOMPARE(screen.Row("fgServices", 1), u"Advice|$1.00|0:15"_s);
  QCOMPARE(screen.Row("fgItems", 1), u"Hose|Parts|$1.25|$12.50|10|$11.00|6|24|4"_s);
  QCOMPARE(screen.Row("fgCustom", 1), u"Engraving|$100.00|$90.50|3"_s);
  QCOMPARE(screen.Text("txtLabor_2"), u"C"_s);
  QCOMPARE(screen.Text("txtLaborRate_2"), u"$3.00"_s);
  const auto* category = screen.Driver().Control<QComboBox>(u"cboCategory"_s);
  QCOMPARE(category->count(), 1);
  QCOMPARE(category->itemText(0), u"Parts"_s);
  QCOMPARE(category->currentText(), QString());
}

void ScreenCommands::theArrowStepsThroughTheTabsAndTheFocusFollows() {
  CatalogueScreen screen;
  screen.Open();
  const ScreenDriver driver = screen.Driver();
  for (const auto& focus : {u"cmdServices_8"_s, u"txtLabor_0"_s, u"cmdServices_18"_s}) {
    driver.Click(u"Image1"_s);
    QCOMPARE(screen.Focus(), focus);
  }
  driver.Click(u"Image1"_s);
  QCOMPARE(screen.ShownTab(), 4);
  driver.Click(u"Image1"_s);
  QCOMPARE(screen.ShownTab(), 0);
  QCOMPARE(screen.Focus(), u"cmdServices_1"_s);
}

void ScreenCommands::clickingATabMovesTheFocusToo() {
  CatalogueScreen screen;
  screen.Open();
  const ScreenDriver driver = screen.Driver();
  auto* bar = driver.Control<QTabWidget>(u"tabServices"_s)->tabBar();
  QTest::mouseClick(driver.Window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                    bar->mapTo(driver.Window(), bar->tabRect(3).center()));
  ScreenDriver::ProcessEvents();
  QCOMPARE(screen.ShownTab(), 3);
  QCOMPARE(screen.Focus(), u"cmdServices_18"_s);
}

void ScreenCommands::addNewOpensAndEmptiesTheServiceBoxes() {
  CatalogueScreen screen;
  screen.Open();
  screen.PickTime("2:00");
  screen.Click(1);
  QVERIFY(screen.Live(4));
  QVERIFY(screen.Open("txtDescription_0"));
  QVERIFY(screen.Open("txtCharge_0"));
  QVERIFY(!screen.Open("txtDescription_1"));
  QCOMPARE(screen.Time(), u"0:00"_s);
  QCOMPARE(screen.Focus(), u"txtDescription_0"_s);
  screen.Fill("txtDescription_0", "Advice");
  screen.Click(1);
  QCOMPARE(screen.Text("txtDescription_0"), QString());
}

void ScreenCommands::addNewOpensTheItemBoxesAndKeepsThePrices() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Click(8);
  QCOMPARE(screen.Focus(), u"txtDescription_1"_s);
  QVERIFY(screen.Live(13));
  QVERIFY(!screen.Live(11));
  for (const char* box : {"txtDescription_1", "txtCharge_1", "txtCharge_2"}) QVERIFY2(screen.Open(box), box);
  screen.Fill("txtCharge_1", "5");
  screen.Fill("txtCharge_2", "4");
  screen.Fill("txtCost", "3");
  screen.Fill("txtOnHand", "2");
  screen.Click(8);
  QCOMPARE(screen.Text("txtCharge_1"), QString());
  QCOMPARE(screen.Text("txtCharge_2"), u"$4.00"_s);
  QCOMPARE(screen.Text("txtCost"), u"$3.00"_s);
  QCOMPARE(screen.Text("txtOnHand"), QString());
}

void ScreenCommands::addNewOpensTheCustomBoxes() {
  CatalogueScreen screen;
  screen.Open(3);
  screen.Click(18);
  QCOMPARE(screen.Focus(), u"txtDescription_2"_s);
  QVERIFY(screen.Live(22));
  for (const char* box : {"txtDescription_2", "txtCharge_3", "txtCharge_4"}) QVERIFY2(screen.Open(box), box);
  screen.Fill("txtCharge_3", "5");
  screen.Fill("txtCustomDiscItems", "7");
  screen.Click(18);
  for (const char* box : {"txtDescription_2", "txtCharge_3", "txtCharge_4", "txtCustomDiscItems"}) {
    QCOMPARE(screen.Text(box), QString());
  }
}

void ScreenCommands::aRowClickMakesDeleteLive() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("Advice"));
  screen.Open();
  screen.SelectRow("fgServices", 1);
  QVERIFY(screen.Live(2));
  QVERIFY(!screen.Live(10));

  // Lines that no file holds yet: nothing but the click makes Modify live.
  screen.ShowTab(1);
  screen.Click(8);
  screen.Fill("txtDescription_1", "Hose");
  screen.Fill("txtCharge_1", "5");
  screen.Fill("txtCharge_2", "4");
  screen.Fill("txtOnHand", "1");
  screen.Click(13);
  QVERIFY(!screen.Live(9));
  screen.SelectRow("fgItems", 1);
  QVERIFY(screen.Live(9));
  QVERIFY(screen.Live(10));

  screen.ShowTab(3);
  screen.Click(18);
  screen.Fill("txtDescription_2", "Engraving");
  screen.Fill("txtCharge_3", "5");
  screen.Fill("txtCharge_4", "4");
  screen.Click(22);
  QVERIFY(!screen.Live(19));
  screen.SelectRow("fgCustom", 1);
  QVERIFY(screen.Live(19));
  QVERIFY(screen.Live(20));
}

void ScreenCommands::aRowIsClickedByEnterToo() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a") + CatalogueScreen::Service("b"));
  screen.Open();
  screen.SetFocus("fgServices");
  screen.Driver().PressKey(Qt::Key_Down);
  QVERIFY(!screen.Live(2));
  screen.Driver().PressKey(Qt::Key_Return);
  QVERIFY(screen.Live(2));
}

void ScreenCommands::modifyServiceLoadsTheRowAndShutsTheGrid() {
  CatalogueScreen screen;
  QByteArray second = CatalogueScreen::Service("b");
  second.replace(70, 2, Hex("06 00"));
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a") + second);
  screen.Open();
  screen.SelectRow("fgServices", 2);
  screen.Click(3);
  QCOMPARE(screen.Text("txtDescription_0"), u"b"_s);
  QCOMPARE(screen.Text("txtCharge_0"), u"$1.00"_s);
  QCOMPARE(screen.Time(), u"1:30"_s);
  QVERIFY(screen.Live(4));
  QVERIFY(screen.Open("txtDescription_0"));
  QVERIFY(!screen.Open("fgServices"));
}

void ScreenCommands::aModifyThatWasLeftByMenuLeavesTheGridOpenForAnother() {
  CatalogueScreen screen;
  const QByteArray services = CatalogueScreen::Service("a") + CatalogueScreen::Service("b");
  screen.Program.Tree.Write(u"/Services.txt"_s, services);
  screen.Open();
  screen.SelectRow("fgServices", 2);
  screen.Click(3);
  screen.Fill("txtDescription_0", "never saved");
  screen.Click(0);
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), services);
  screen.GoFromMenu();
  QVERIFY(screen.Open("fgServices"));
  // What was typed stands there still, shut, until the next row or entry takes its place.
  QCOMPARE(screen.Text("txtDescription_0"), u"never saved"_s);
  QVERIFY(!screen.Open("txtDescription_0"));
  QVERIFY(!screen.Live(4));
  screen.SelectRow("fgServices", 1);
  screen.Click(3);
  QCOMPARE(screen.Text("txtDescription_0"), u"a"_s);
  screen.Fill("txtDescription_0", "c");
  screen.Click(4);
  QCOMPARE(screen.Row("fgServices", 1), u"c|$1.00|0:15"_s);
  QCOMPARE(screen.Rows("fgServices"), 2);
}

void ScreenCommands::modifyItemLoadsTheRowAndTheCategoryByItsRule() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s,
                            CatalogueScreen::Item("Hose", "Air") + CatalogueScreen::Item("Filter", "Oil"));
  screen.Open(1);
  screen.SelectRow("fgItems", 1);
  screen.Click(9);
  const QHash<const char*, QString> boxes{
      {"txtDescription_1", u"Hose"_s}, {"cboCategory", u"Air"_s},     {"txtCost", u"$1.25"_s},
      {"txtCharge_1", u"$12.50"_s},    {"txtOnHand", u"10"_s},        {"txtCharge_2", u"$11.00"_s},
      {"txtDiscountQty", u"6"_s},      {"txtReorderAmount", u"24"_s}, {"txtReorderAt", u"4"_s}};
  for (auto it = boxes.begin(); it != boxes.end(); ++it) QCOMPARE(screen.Text(it.key()), it.value());
  QVERIFY(screen.Live(11));
  QVERIFY(screen.Live(13));
  QVERIFY(!screen.Open("fgItems"));
  screen.Click(14);
  screen.SelectRow("fgItems", 2);
  screen.Driver().Click(u"ckClearItem"_s);
  screen.Click(9);
  QCOMPARE(screen.Text("cboCategory"), u"Air"_s);
  screen.Click(14);
  screen.Driver().Click(u"ckClearItem"_s);
  screen.Click(9);
  QCOMPARE(screen.Text("cboCategory"), u"Oil"_s);
  screen.Click(14);
  screen.Driver().Click(u"ckClearItem"_s);
  screen.Fill("cboCategory", "");
  screen.SelectRow("fgItems", 1);
  screen.Click(9);
  QCOMPARE(screen.Text("cboCategory"), u"Air"_s);
}

void ScreenCommands::modifyCustomItemLoadsTheRow() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving"));
  screen.Open(3);
  screen.SelectRow("fgCustom", 1);
  screen.Click(19);
  QCOMPARE(screen.Text("txtDescription_2"), u"Engraving"_s);
  QCOMPARE(screen.Text("txtCharge_3"), u"$100.00"_s);
  QCOMPARE(screen.Text("txtCharge_4"), u"$90.50"_s);
  QCOMPARE(screen.Text("txtCustomDiscItems"), u"3"_s);
  QVERIFY(screen.Live(22));
  QVERIFY(!screen.Open("fgCustom"));
}

void ScreenCommands::modifyWithoutACurrentRowDoesNothing() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a"));
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Air"));
  screen.Program.Tree.Write(u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving"));
  screen.Open();
  const QList<std::tuple<int, int, int, const char*>> lists{
      {0, 3, 4, "fgServices"}, {1, 9, 13, "fgItems"}, {3, 19, 22, "fgCustom"}};
  for (const auto& [tab, modify, save, grid] : lists) {
    screen.ShowTab(tab);
    screen.Click(modify);
    QVERIFY(!screen.Live(save));
    QVERIFY(screen.Open(grid));
  }
  QVERIFY(!screen.Live(11));
}

void ScreenCommands::cancelOnTheServiceTabLeavesTheServiceBoxesOpen() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a"));
  screen.Open(1);
  screen.Click(8);
  screen.ShowTab(0);
  screen.SelectRow("fgServices", 1);
  screen.Click(3);
  screen.Click(7);
  QVERIFY(screen.Open("fgServices"));
  QVERIFY(screen.Open("txtDescription_0"));
  QVERIFY(screen.Open("txtCharge_0"));
  QVERIFY(screen.Live(4));
  QCOMPARE(screen.Text("txtDescription_0"), QString());
  QCOMPARE(screen.Text("txtCharge_0"), QString());
  QCOMPARE(screen.Time(), u"0:00"_s);
  // The items' boxes are the ones that it shuts.
  QVERIFY(!screen.Live(13));
  QVERIFY(!screen.Open("txtDescription_1"));
}

void ScreenCommands::cancelOnTheItemTabShutsTheItemBoxes() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Air"));
  screen.Open(1);
  screen.SelectRow("fgItems", 1);
  screen.Click(9);
  screen.Click(14);
  QVERIFY(screen.Open("fgItems"));
  QVERIFY(!screen.Live(13));
  for (const char* box : {"txtDescription_1", "txtCharge_1", "txtCharge_2"}) QVERIFY2(!screen.Open(box), box);
  QCOMPARE(screen.Text("txtDescription_1"), QString());
  QCOMPARE(screen.Text("txtCharge_2"), u"$11.00"_s);
}

void ScreenCommands::cancelOnTheCustomTabShutsTheServiceBoxesAndLeavesTheCustomOnesOpen() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving"));
  screen.Open();
  screen.Click(1);
  screen.ShowTab(3);
  screen.SelectRow("fgCustom", 1);
  screen.Click(19);
  screen.Click(23);
  QVERIFY(screen.Open("fgCustom"));
  QVERIFY(!screen.Open("txtDescription_0"));
  QVERIFY(!screen.Open("txtCharge_0"));
  QVERIFY(!screen.Live(4));
  QVERIFY(screen.Live(22));
  for (const char* box : {"txtDescription_2", "txtCharge_3", "txtCharge_4"}) {
    QVERIFY2(screen.Open(box), box);
    QCOMPARE(screen.Text(box), QString());
  }
  QCOMPARE(screen.Text("txtCustomDiscItems"), QString());
}

void ScreenCommands::clearEmptiesWhatItsTabHolds() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a"));
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Air"));
  screen.Program.Tree.Write(u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving"));
  screen.Open();
  screen.SelectRow("fgServices", 1);
  screen.Click(3);
  screen.PickTime("2:00");
  screen.Click(5);
  QCOMPARE(screen.Text("txtDescription_0"), QString());
  QCOMPARE(screen.Text("txtCharge_0"), QString());
  QCOMPARE(screen.Time(), u"2:00"_s);
  QCOMPARE(screen.Focus(), u"txtDescription_0"_s);

  screen.ShowTab(1);
  screen.SelectRow("fgItems", 1);
  screen.Click(9);
  screen.Click(11);
  for (const char* box :
       {"txtDescription_1", "txtCharge_1", "txtOnHand", "txtDiscountQty", "txtReorderAmount", "txtReorderAt"}) {
    QCOMPARE(screen.Text(box), QString());
  }
  QCOMPARE(screen.Text("txtCost"), u"$1.25"_s);
  QCOMPARE(screen.Text("txtCharge_2"), u"$11.00"_s);
  QCOMPARE(screen.Text("cboCategory"), u"Air"_s);

  screen.ShowTab(3);
  screen.SelectRow("fgCustom", 1);
  screen.Click(19);
  screen.Click(21);
  for (const char* box : {"txtDescription_2", "txtCharge_3", "txtCharge_4", "txtCustomDiscItems"}) {
    QCOMPARE(screen.Text(box), QString());
  }
}

void ScreenCommands::clearPricesAndNoDiscountSetZero() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Air"));
  screen.Open(1);
  screen.SelectRow("fgItems", 1);
  screen.Click(9);
  screen.Click(25);
  QCOMPARE(screen.Text("txtDiscountQty"), u"0"_s);
  QCOMPARE(screen.Text("txtCharge_2"), u"$0.00"_s);
  QCOMPARE(screen.Text("txtCharge_1"), u"$12.50"_s);
  screen.Click(24);
  QCOMPARE(screen.Text("txtCharge_1"), u"$0.00"_s);
  QCOMPARE(screen.Text("txtCharge_2"), u"$0.00"_s);
  QCOMPARE(screen.Focus(), u"txtCost"_s);
  // The focus coming to a zero empties the box.
  QCOMPARE(screen.Text("txtCost"), QString());
}

void ScreenCommands::escapeGoesBackUnlessARecordIsBeingEntered() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Driver().PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));
  screen.Click(0);
  screen.GoFromMenu();
  screen.Driver().PressKey(Qt::Key_Escape);
  QVERIFY(!ScreenDriver::IsShown(u"frmServices"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenCommands::escapeSettlesTheBoxThatIsLeft() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Fill("txtCost", "3.5");
  screen.Driver().PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  screen.GoFromMenu();
  QCOMPARE(screen.Text("txtCost"), u"$3.50"_s);
}

void ScreenCommands::everyControlHasANameForThoseWhoHearTheScreen() {
  CatalogueScreen screen;
  screen.Open();
  for (const QWidget* control : screen.Driver().Window()->findChildren<QWidget*>()) {
    const bool boxed = qobject_cast<const QLineEdit*>(control) != nullptr ||
                       qobject_cast<const QAbstractItemView*>(control) != nullptr ||
                       qobject_cast<const QComboBox*>(control) != nullptr;
    if (!boxed || control->objectName().isEmpty() || control->objectName().startsWith(u"qt_"_s)) continue;
    QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
  }
  QVERIFY(!screen.Driver().Control(u"Image1"_s)->accessibleName().isEmpty());
}

QTEST_MAIN(ScreenCommands)
#include "tst_screenCommands.moc"
