// The Save button of the custom items: what it refuses, and what it puts into the grid.

#include "catalogue/NewEntries.h"

using namespace Qt::StringLiterals;

class ScreenCustomSaves : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCustomQuantityBeyondThirtyTwoBitsIsTold();
  void aCustomItemIsAddedAndItsClearShut();
  void aCustomItemWithoutPricesIsRefused();
  void aCustomPriceOfAPointAloneIsToldAndNothingIsAdded();
  void lettersInTheCustomQuantityAreRefused();
};

void ScreenCustomSaves::aCustomQuantityBeyondThirtyTwoBitsIsTold() {
  CatalogueScreen screen;
  OpenAtNewCustomItem(screen, "Engraving");
  screen.Fill("txtCustomDiscItems", "2147483648");
  screen.Program.Answers.Ok();
  screen.Click(22);
  QVERIFY(screen.Program.Answers.Last().Text.startsWith(u"Custom item discount quantity: "_s));
  QCOMPARE(screen.Rows("fgCustom"), 0);
}

void ScreenCustomSaves::aCustomItemIsAddedAndItsClearShut() {
  CatalogueScreen screen;
  screen.Open(3);
  QVERIFY(screen.Live(21));
  screen.Click(18);
  FillCustomItem(screen, "Engraving", "100", "90.5");
  screen.Click(22);
  QCOMPARE(screen.Row("fgCustom", 1), u"Engraving|$100.00|$90.50|0"_s);
  QVERIFY(!screen.Live(21));
  for (const char* box : {"txtDescription_2", "txtCharge_3", "txtCharge_4", "cmdServices_22"}) {
    QVERIFY2(!screen.Open(box), box);
    if (QByteArray(box).startsWith("txt")) QCOMPARE(screen.Text(box), QString());
  }
  QCOMPARE(screen.Text("txtCustomDiscItems"), QString());
}

void ScreenCustomSaves::aCustomItemWithoutPricesIsRefused() {
  CatalogueScreen screen;
  screen.Open(3);
  screen.Click(18);
  const QList<std::pair<const char*, const char*>> steps{
      {"txtDescription_2", "Engraving"}, {"txtCharge_3", "100"}, {"txtCharge_4", "90"}};
  for (const auto& [box, text] : steps) {
    screen.Click(22);
    QCOMPARE(screen.Focus(), QString::fromLatin1(box));
    QCOMPARE(screen.TakeBeeps(), 1);
    QCOMPARE(screen.Rows("fgCustom"), 0);
    screen.Fill(box, text);
  }
  screen.Click(22);
  QCOMPARE(screen.Rows("fgCustom"), 1);
}

void ScreenCustomSaves::aCustomPriceOfAPointAloneIsToldAndNothingIsAdded() {
  CatalogueScreen screen;
  OpenAtNewCustomItem(screen, "Engraving", ".", "90");
  screen.Program.Answers.Ok();
  screen.Click(22);
  QVERIFY(screen.Program.Answers.Last().Text.startsWith(u"Custom item price: "_s));
  QCOMPARE(screen.Rows("fgCustom"), 0);
}

void ScreenCustomSaves::lettersInTheCustomQuantityAreRefused() {
  CatalogueScreen screen;
  OpenAtNewCustomItem(screen, "Engraving");
  screen.Fill("txtCustomDiscItems", "six");
  screen.Click(22);
  QCOMPARE(screen.Focus(), u"txtCustomDiscItems"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Rows("fgCustom"), 0);
}

QTEST_MAIN(ScreenCustomSaves)
#include "tst_screenCustomSaves.moc"
