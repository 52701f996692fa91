// Delete on the catalogue screen: its question, what it takes out of list and file, and which button it shuts.

#include "support/CatalogueScreen.h"

using namespace Qt::StringLiterals;

class ScreenDeletes : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void deletingAsksAndANoChangesNothing();
  void deletingAServiceSavesAndShutsTheButton();
  void deletingAnItemShutsItsButton();
  void deletingACustomItemShutsTheItemsButtonInstead();
  void deletingTheLastRowLeavesNoFile();
  void deleteWithoutACurrentRowDoesNothing();
};

void ScreenDeletes::deletingAsksAndANoChangesNothing() {
  CatalogueScreen screen;
  const QByteArray file = CatalogueScreen::Service("a") + CatalogueScreen::Service("b");
  screen.Program.Tree.Write(u"/Services.txt"_s, file);
  screen.Open();
  screen.SelectRow("fgServices", 1);
  screen.Program.Answers.No(u"This will DELETE the Selected Service"_s, u"Delete Service Item"_s);
  screen.Click(2);
  QCOMPARE(screen.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  QVERIFY(screen.Live(2));
  QCOMPARE(screen.Rows("fgServices"), 2);
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), file);
}

void ScreenDeletes::deletingAServiceSavesAndShutsTheButton() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a") + CatalogueScreen::Service("b"));
  screen.Open();
  screen.SelectRow("fgServices", 1);
  screen.Program.Answers.Yes();
  screen.Click(2);
  QVERIFY(!screen.Live(2));
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), CatalogueScreen::Service("b"));
  QCOMPARE(screen.Row("fgServices", 1), u"b|$1.00|0:15"_s);
}

void ScreenDeletes::deletingAnItemShutsItsButton() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s,
                            CatalogueScreen::Item("Hose", "Air") + CatalogueScreen::Item("Filter", "Oil"));
  screen.Open(1);
  screen.SelectRow("fgItems", 2);
  screen.Program.Answers.Yes(u"This will DELETE the Selected Sales Item"_s, u"Delete Sales Item"_s);
  screen.Click(10);
  QVERIFY(!screen.Live(10));
  QCOMPARE(screen.Program.Tree.Bytes(u"/KVInventoriedItems.txt"_s), CatalogueScreen::Item("Hose", "Air"));
}

void ScreenDeletes::deletingACustomItemShutsTheItemsButtonInstead() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Air"));
  screen.Program.Tree.Write(u"/CustomItems.txt"_s,
                            CatalogueScreen::CustomItem("Engraving") + CatalogueScreen::CustomItem("Welding"));
  screen.Open(1);
  screen.SelectRow("fgItems", 1);
  QVERIFY(screen.Live(10));
  screen.ShowTab(3);
  screen.SelectRow("fgCustom", 1);
  screen.Program.Answers.Yes(u"This will DELETE the Selected Custom Item"_s, u"Delete Sales Item"_s);
  screen.Click(20);
  QVERIFY(!screen.Live(10));
  QVERIFY(screen.Live(20));
  QCOMPARE(screen.Program.Tree.Bytes(u"/CustomItems.txt"_s), CatalogueScreen::CustomItem("Welding"));
}

void ScreenDeletes::deletingTheLastRowLeavesNoFile() {
  CatalogueScreen screen;
  const QList<std::tuple<int, const char*, int, QString, QByteArray>> lists{
      {0, "fgServices", 2, u"/Services.txt"_s, CatalogueScreen::Service("a")},
      {1, "fgItems", 10, u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Air")},
      {3, "fgCustom", 20, u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving")}};
  for (const auto& [tab, grid, command, name, file] : lists) {
    screen.Program.Tree.Write(name, file);
    screen.Program.Tree.Write(u"/Backup"_s + name, file);
  }
  screen.Open();
  for (const auto& [tab, grid, command, name, file] : lists) {
    screen.ShowTab(tab);
    screen.SelectRow(grid, 1);
    screen.Program.Answers.Yes();
    screen.Click(command);
    QCOMPARE(screen.Rows(grid), 0);
    QVERIFY(!screen.Program.Tree.Exists(name));
    QVERIFY(!screen.Program.Tree.Exists(u"/Backup"_s + name));
  }
}

void ScreenDeletes::deleteWithoutACurrentRowDoesNothing() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/CustomItems.txt"_s, CatalogueScreen::CustomItem("Engraving"));
  screen.Open(3);
  screen.SelectRow("fgCustom", 1);
  screen.Program.Answers.Yes();
  screen.Click(20);
  // The button is still live and there is nothing left to ask about.
  screen.Click(20);
  QCOMPARE(screen.Program.Answers.Boxes().size(), 1);
}

QTEST_MAIN(ScreenDeletes)
#include "tst_screenDeletes.moc"
