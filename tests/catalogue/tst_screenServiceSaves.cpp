// The Save button of the services: what it refuses, and what it puts into the grid.

#include "catalogue/NewEntries.h"

using namespace Qt::StringLiterals;

class ScreenServiceSaves : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aServiceWithoutDescriptionIsRefused();
  void aServiceWithoutChargeGoesBackToTheCharge();
  void aNewServiceStandsLastAndTheBoxesShut();
  void aModifiedServiceReplacesItsRow();
  void savingAServiceShutsModifyUntilTheNextLoad();
};

void ScreenServiceSaves::aServiceWithoutDescriptionIsRefused() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtCharge_0", "5");
  screen.Click(4);
  QCOMPARE(screen.Focus(), u"txtDescription_0"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Rows("fgServices"), 0);
}

void ScreenServiceSaves::aServiceWithoutChargeGoesBackToTheCharge() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "Advice");
  screen.Click(4);
  QCOMPARE(screen.Focus(), u"txtCharge_0"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Rows("fgServices"), 0);
}

void ScreenServiceSaves::aNewServiceStandsLastAndTheBoxesShut() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("b"));
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "Advice");
  screen.Fill("txtCharge_0", "1234.5");
  screen.PickTime("1:30");
  screen.Click(4);
  QCOMPARE(screen.Row("fgServices", 2), u"Advice|$1,234.50|1:30"_s);
  QCOMPARE(screen.Text("txtDescription_0"), QString());
  QCOMPARE(screen.Text("txtCharge_0"), QString());
  QCOMPARE(screen.Time(), u"0:00"_s);
  for (const char* box : {"txtDescription_0", "txtCharge_0", "cmdServices_4"}) QVERIFY2(!screen.Open(box), box);
  // Nothing is on the disk before the screen is left.
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), CatalogueScreen::Service("b"));
  screen.Click(0);
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s),
           CatalogueScreen::Service("b") + Field("Advice", 60) + Field("$1,234.50", 10) + Hex("06 00"));
}

void ScreenServiceSaves::aModifiedServiceReplacesItsRow() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a") + CatalogueScreen::Service("b"));
  screen.Open();
  screen.SelectRow("fgServices", 2);
  screen.Click(3);
  screen.Fill("txtDescription_0", "c");
  screen.Click(4);
  QCOMPARE(screen.Rows("fgServices"), 2);
  QCOMPARE(screen.Row("fgServices", 2), u"c|$1.00|0:15"_s);
  QVERIFY(screen.Open("fgServices"));
}

void ScreenServiceSaves::savingAServiceShutsModifyUntilTheNextLoad() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("a"));
  screen.Open();
  AddService(screen, "b");
  QVERIFY(!screen.Live(3));
  screen.SelectRow("fgServices", 1);
  QVERIFY(!screen.Live(3));
  screen.Click(0);
  screen.GoFromMenu();
  QVERIFY(screen.Live(3));
}

QTEST_MAIN(ScreenServiceSaves)
#include "tst_screenServiceSaves.moc"
