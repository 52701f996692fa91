// The Save button of the stocked items: what it refuses, and what it puts into the grid.

#include "catalogue/NewEntries.h"

using namespace Qt::StringLiterals;

class ScreenItemSaves : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anItemWithoutDescriptionIsRefused();
  void anItemWithoutADiscountPriceIsRefused();
  void anOnHandThatIsNoNumberBecomesZeroAndStops();
  void anOnHandWithDecimalsEntersTheGridRounded();
  void anOnHandBeyondSixteenBitsIsToldAndNothingIsAdded();
  void lettersInTheQuantityBoxesAreRefusedWithTheFocus();
  void whatTheFileCouldNotTakeIsToldAndNothingIsAdded();
  void emptyBoxesOfAnItemEnterTheGridAsZeros();
  void aNewItemIsAddedAndItsCategoryOffered();
  void aModifiedItemReplacesItsRow();
  void savingAnItemShutsClear();
};

void ScreenItemSaves::anItemWithoutDescriptionIsRefused() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Click(8);
  screen.Click(13);
  QCOMPARE(screen.Focus(), u"txtDescription_1"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Rows("fgItems"), 0);
}

void ScreenItemSaves::anItemWithoutADiscountPriceIsRefused() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Click(8);
  screen.Fill("txtDescription_1", "Hose");
  screen.Click(13);
  QCOMPARE(screen.Focus(), u"txtCharge_1"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  screen.Fill("txtCharge_1", "5");
  screen.Click(13);
  QCOMPARE(screen.Focus(), u"txtCharge_2"_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Rows("fgItems"), 0);
}

void ScreenItemSaves::anOnHandThatIsNoNumberBecomesZeroAndStops() {
  CatalogueScreen screen;
  OpenAtNewItem(screen);
  for (const char* text : {"", "a few"}) {
    screen.Fill("txtOnHand", text);
    screen.Click(13);
    QCOMPARE(screen.TakeBeeps(), 1);
    QCOMPARE(screen.Text("txtOnHand"), u"0"_s);
    QCOMPARE(screen.Rows("fgItems"), 0);
  }
  screen.Click(13);
  QCOMPARE(screen.Row("fgItems", 1), u"Hose||$0.00|$5.00|0|$4.50|0|0|0"_s);
}

void ScreenItemSaves::anOnHandWithDecimalsEntersTheGridRounded() {
  CatalogueScreen screen;
  screen.Open(1);
  const QList<std::pair<const char*, QString>> cases{
      {"12.4", u"12"_s}, {"12.5", u"12"_s}, {"13.5", u"14"_s}, {"-3", u"-3"_s}, {"1,200", u"1200"_s}};
  for (int i = 0; i < cases.size(); ++i) {
    BeginItem(screen);
    screen.Fill("txtOnHand", cases.at(i).first);
    screen.Click(13);
    QCOMPARE(screen.Row("fgItems", i + 1), u"Hose||$0.00|$5.00|"_s + cases.at(i).second + u"|$4.50|0|0|0"_s);
  }
}

void ScreenItemSaves::anOnHandBeyondSixteenBitsIsToldAndNothingIsAdded() {
  CatalogueScreen screen;
  OpenAtNewItem(screen);
  screen.Fill("txtOnHand", "32768");
  screen.Program.Answers.Ok();
  screen.Click(13);
  QVERIFY(screen.Program.Answers.Last().Text.startsWith(u"On hand: "_s));
  QCOMPARE(screen.Rows("fgItems"), 0);
  QCOMPARE(screen.Text("txtDescription_1"), u"Hose"_s);
  screen.Fill("txtOnHand", "32767");
  screen.Click(13);
  QCOMPARE(screen.Rows("fgItems"), 1);
}

void ScreenItemSaves::lettersInTheQuantityBoxesAreRefusedWithTheFocus() {
  CatalogueScreen screen;
  OpenAtNewItem(screen);
  for (const char* box : {"txtDiscountQty", "txtReorderAmount", "txtReorderAt"}) {
    screen.Fill(box, "six");
    screen.Click(13);
    QCOMPARE(screen.Focus(), QString::fromLatin1(box));
    QCOMPARE(screen.TakeBeeps(), 1);
    QCOMPARE(screen.Text(box), u"six"_s);
    QCOMPARE(screen.Rows("fgItems"), 0);
    screen.Fill(box, "6");
  }
  screen.Click(13);
  QCOMPARE(screen.Row("fgItems", 1), u"Hose||$0.00|$5.00|7|$4.50|6|6|6"_s);
}

void ScreenItemSaves::whatTheFileCouldNotTakeIsToldAndNothingIsAdded() {
  CatalogueScreen screen;
  OpenAtNewItem(screen);
  const QList<std::tuple<const char*, const char*, const char*>> boxes{
      {"txtDiscountQty", "2147483648", "Discount quantity: "},
      {"txtReorderAmount", "32768", "Reorder amount: "},
      {"txtReorderAt", "32768", "Reorder when at: "},
      {"txtCost", ".", "Cost per unit: "}};
  for (const auto& [box, text, told] : boxes) {
    screen.Fill(box, text);
    // A cost that is no number is told of when it is left as well, and that click is dropped.
    if (qstrcmp(box, "txtCost") == 0) {
      screen.Program.Answers.Ok();
      screen.Click(13);
      screen.SetFocus("txtOnHand");
    }
    screen.Program.Answers.Ok();
    screen.Click(13);
    QVERIFY2(screen.Program.Answers.Last().Text.startsWith(QLatin1String(told)), box);
    QVERIFY(screen.Program.Answers.AllUsed());
    QCOMPARE(screen.Rows("fgItems"), 0);
    screen.Fill(box, "1");
  }
  screen.Click(13);
  QCOMPARE(screen.Row("fgItems", 1), u"Hose||$1.00|$5.00|7|$4.50|1|1|1"_s);
}

void ScreenItemSaves::emptyBoxesOfAnItemEnterTheGridAsZeros() {
  CatalogueScreen screen;
  OpenAtNewItem(screen);
  screen.Click(13);
  QCOMPARE(screen.Row("fgItems", 1), u"Hose||$0.00|$5.00|7|$4.50|0|0|0"_s);
  QCOMPARE(screen.Text("txtCost"), u"$0.00"_s);
}

void ScreenItemSaves::aNewItemIsAddedAndItsCategoryOffered() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Filter", "Oil"));
  screen.Open(1);
  for (const char* category : {"oil", "oil", "Oil"}) {
    BeginItem(screen);
    screen.Fill("cboCategory", category);
    screen.Fill("txtCost", "2");
    screen.Fill("txtDiscountQty", "6");
    screen.Fill("txtReorderAmount", "24");
    screen.Fill("txtReorderAt", "4");
    screen.Click(13);
  }
  QCOMPARE(screen.Row("fgItems", 2), u"Hose|oil|$2.00|$5.00|7|$4.50|6|24|4"_s);
  const auto* category = screen.Driver().Control<QComboBox>(u"cboCategory"_s);
  QCOMPARE(category->count(), 2);
  QCOMPARE(category->itemText(1), u"oil"_s);
  // The category stays for the next item, a reload empties the box.
  QCOMPARE(category->currentText(), u"Oil"_s);
  screen.Click(0);
  QCOMPARE(screen.Program.Tree.Size(u"/KVInventoriedItems.txt"_s), 4 * 104);
  screen.GoFromMenu();
  QCOMPARE(screen.Text("cboCategory"), QString());
}

void ScreenItemSaves::aModifiedItemReplacesItsRow() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s,
                            CatalogueScreen::Item("Hose", "Air") + CatalogueScreen::Item("Filter", "Oil"));
  screen.Open(1);
  screen.SelectRow("fgItems", 2);
  screen.Click(9);
  screen.Fill("txtOnHand", "99");
  screen.Click(13);
  QCOMPARE(screen.Rows("fgItems"), 2);
  QCOMPARE(screen.Row("fgItems", 2), u"Filter|Oil|$1.25|$12.50|99|$11.00|6|24|4"_s);
  QVERIFY(screen.Open("fgItems"));
  for (const char* box : {"txtDescription_1", "txtCharge_1", "txtCharge_2", "cmdServices_13"}) {
    QVERIFY2(!screen.Open(box), box);
  }
}

void ScreenItemSaves::savingAnItemShutsClear() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, CatalogueScreen::Item("Hose", "Air"));
  screen.Open(1);
  screen.SelectRow("fgItems", 1);
  screen.Click(9);
  QVERIFY(screen.Live(11));
  screen.Click(13);
  QVERIFY(!screen.Live(11));
}

QTEST_MAIN(ScreenItemSaves)
#include "tst_screenItemSaves.moc"
