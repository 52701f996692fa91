// Amounts typed on the catalogue screen: rounded to cents once, when a box is left and in the files.

#include "catalogue/NewEntries.h"

using namespace Qt::StringLiterals;

namespace {

// By way of four decimals the first of these would be a cent more.
const char* const JustBelowHalf = "12.34499";
const char* const Half = "12.345";
const QByteArray Amount = Bytes64(123400);  // $12.34

}  // namespace

class ScreenAmounts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aBoxThatIsLeftIsRoundedToCentsOnce_data();
  void aBoxThatIsLeftIsRoundedToCentsOnce();
  void aServicesChargeIsSavedRoundedOnce();
  void aServicesChargeThatItsFileWouldCutIsRefused();
  void theAmountsOfAnItemAreSavedRoundedOnce();
  void theCustomPricesAreSavedRoundedOnce();
  void laborRatesAreSavedRoundedOnce();
};

void ScreenAmounts::aBoxThatIsLeftIsRoundedToCentsOnce_data() {
  QTest::addColumn<int>("tab");
  QTest::addColumn<int>("addNew");
  QTest::addColumn<QByteArray>("box");
  QTest::addColumn<QByteArray>("next");
  QTest::newRow("a service's charge") << 0 << 1 << QByteArray("txtCharge_0") << QByteArray("txtDescription_0");
  QTest::newRow("an item's cost") << 1 << 8 << QByteArray("txtCost") << QByteArray("txtDescription_1");
  QTest::newRow("its price") << 1 << 8 << QByteArray("txtCharge_1") << QByteArray("txtDescription_1");
  QTest::newRow("its discount price") << 1 << 8 << QByteArray("txtCharge_2") << QByteArray("txtDescription_1");
  for (const char* rate : {"txtLaborRate_0", "txtLaborRate_1", "txtLaborRate_2"}) {
    QTest::newRow(rate) << 2 << 0 << QByteArray(rate) << QByteArray("txtLabor_0");
  }
}

void ScreenAmounts::aBoxThatIsLeftIsRoundedToCentsOnce() {
  QFETCH(const int, tab);
  QFETCH(const int, addNew);
  QFETCH(const QByteArray, box);
  QFETCH(const QByteArray, next);
  CatalogueScreen screen;
  screen.Open(tab);
  if (addNew != 0) screen.Click(addNew);
  for (const auto& [typed, shown] : {std::pair{JustBelowHalf, u"$12.34"_s}, std::pair{Half, u"$12.35"_s}}) {
    screen.Fill(box.constData(), typed);
    screen.SetFocus(next.constData());
    QCOMPARE(screen.Text(box.constData()), shown);
  }
}

void ScreenAmounts::aServicesChargeIsSavedRoundedOnce() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "Advice");
  screen.PickTime("0:15");
  screen.Fill("txtCharge_0", JustBelowHalf);
  screen.Click(4);
  screen.Click(0);
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), Field("Advice", 60) + Field("$12.34", 10) + Hex("01 00"));
}

void ScreenAmounts::aServicesChargeThatItsFileWouldCutIsRefused() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "Survey");
  screen.PickTime("0:15");
  screen.Fill("txtCharge_0", "100000");
  screen.Program.Answers.Ok();
  screen.Click(4);
  QCOMPARE(screen.Program.Answers.Last().Text,
           u"Service charge: $100,000.00 doesn't fit into the file, which keeps ten characters, as in $99,999.99. "
           u"(error 6)\n\nCorrect what was typed and try again. Nothing was lost."_s);
  QCOMPARE(screen.Text("txtDescription_0"), u"Survey"_s);
  screen.Fill("txtCharge_0", "99999.99");
  screen.Click(4);
  screen.Click(0);
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), Field("Survey", 60) + Field("$99,999.99", 10) + Hex("01 00"));
}

void ScreenAmounts::theAmountsOfAnItemAreSavedRoundedOnce() {
  CatalogueScreen screen;
  OpenAtNewItem(screen);
  for (const char* box : {"txtCost", "txtCharge_1", "txtCharge_2"}) screen.Fill(box, JustBelowHalf);
  screen.Click(13);
  screen.Click(0);
  QCOMPARE(
      screen.Program.Tree.Bytes(u"/KVInventoriedItems.txt"_s),
      Field("Hose", 50) + Field("", 20) + Amount + Amount + Bytes16(7) + Amount + Bytes32(0) + Bytes16(0) + Bytes16(0));
}

/// These boxes aren't reformatted when they are left: the Save rounds.
void ScreenAmounts::theCustomPricesAreSavedRoundedOnce() {
  CatalogueScreen screen;
  OpenAtNewCustomItem(screen, "Engraving", JustBelowHalf, JustBelowHalf);
  QCOMPARE(screen.Text("txtCharge_3"), QString::fromLatin1(JustBelowHalf));
  screen.Click(22);
  QCOMPARE(screen.Row("fgCustom", 1), u"Engraving|$12.34|$12.34|0"_s);
  screen.Click(0);
  QCOMPARE(screen.Program.Tree.Bytes(u"/CustomItems.txt"_s), Field("Engraving", 50) + Amount + Amount + Bytes32(0));
}

void ScreenAmounts::laborRatesAreSavedRoundedOnce() {
  CatalogueScreen screen;
  screen.Open(2);
  screen.Fill("txtLaborRate_0", JustBelowHalf);
  screen.Click(17);
  QCOMPARE(screen.Program.Tree.Bytes(u"/Labor.txt"_s),
           "\"General Labor\",\"$12.34\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n");
}

QTEST_MAIN(ScreenAmounts)
#include "tst_screenAmounts.moc"
