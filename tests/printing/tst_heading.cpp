// The upper half of the page on the recording surface: heading, memo, column headings, detach line, addresses. A line
// of 10 points is 223.453125 twips high, a digit 111.21875 wide.
#include "support/ErrorOf.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

class TestHeading : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theHeadingStandsAtItsPlaces();
  void perforatedPaperHasTheAmountEnclosed();
  void aNarrativeLowersTheBandByAnInch();
  void thePageNumberIsTheSurfaces();
  void theMemoIsBlueWithColorOnOrOff();
  void aCommaEndsAPieceOfTheMemoAndQuotesAreConsumed();
  void aLongPieceOfTheMemoIsWrapped();
  void theMemoStaysWhereItIsBelowANarrative();
  void memoPiecesBelowTheLimitAreDropped();
  void aPieceAtTheLimitStillPrintsWhole();
  void theEndOfTheMemoClosesAllFilesAndItsLimitDoesNot();
  void theMemoComesBackFromTheBackup();
  void anEmptyMemoFilePrintsNothing();
  void theDetachLineLeavesPlainTenPoints();
  void soldToInUsaStyle();
  void soldToInInternationalStyleLeavesTheStateOut();
  void soldToKeepsItsLinesWhereTheyAreEmpty();
  void aLongNameIsWrapped();
  void shipToHasNoBlankBehindItsComma();
  void shipToInInternationalStyle();
  void anEmptyShipToPrintsNothingItsRowIncluded();
  void oneFilledFieldMakesAShipTo_data();
  void oneFilledFieldMakesAShipTo();
  void shipViaNonePrintsTheAddressAndNoRow();
  void anyOtherNoneIsACarrier();
  void aShipDateOfTodayIsShipped();
  void aLaterShipDateIsScheduled();
  void anEarlierShipDateIsShipped();
  void aShipDateThatIsNoDateCountsAsPast();
  void theShipRowIsLoweredByANarrative();
  void addressesTakeTheDataColorAndLeaveBlack();
};

namespace {
const PageShipping Shipping = {u"UPS Ground"_s, u"3/1/2026"_s, u"4711"_s};

QStringList TextsOf(PageFixture& f, std::size_t page = 1) {
  f.Paper.EndDoc();
  return Described(f.Paper.Texts(page));
}

void LowerTheBody(PageFixture& f) {
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "x");
  f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, u"2500"_s);
  f.Paper.EndDoc();
}

PageAddress FullAddress() {
  return {u"Mary"_s, u"5 Fig Road"_s, u"Floor 2"_s, u"Orlando"_s, u"FL"_s, u"32801"_s};
}

/// A memo of `count` pieces "1", "2"...
QByteArray MemoOf(int count) {
  QByteArray memo;
  for (int piece = 1; piece <= count; ++piece) memo += QByteArray::number(piece) + "\r\n";
  return memo;
}
}  // namespace

void TestHeading::theHeadingStandsAtItsPlaces() {
  PageFixture f;
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f),
           QStringList({u"7200 1296.0 10b 204080 Date 3/7/2026"_s, u"7200 1519.5 10b 204080 INVOICE NO: 2500"_s,
                        u"7200 1742.9 10b 204080 Acct: 1001"_s, u"7200 1966.4 10b 204080 Page 1"_s,
                        u"1296 5832.0 10b 204080 Reference"_s, u"1650 6264.0 10b 204080 4711"_s,
                        u"864 6552.0 10b 204080 QTY"_s, u"2160 6552.0 10b 204080 DATE"_s,
                        u"4464 6552.0 10b 204080 DESCRIPTION"_s, u"8784 6552.0 10b 204080 PRICE"_s,
                        u"10800 6552.0 10b 204080 TOTAL"_s}));
}

void TestHeading::perforatedPaperHasTheAmountEnclosed() {
  PageFixture f;
  f.Look.optReturn = true;
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f).mid(0, 6),
           QStringList({u"7200 1296.0 10b 204080 Date 3/7/2026"_s, u"7200 1519.5 10b 204080 INVOICE NO: 2500"_s,
                        u"7200 1742.9 10b 204080 Amount Enclosed              _______________"_s,
                        u"7200 1966.4 10b 204080 Acct: 1001"_s, u"7200 2189.8 10b 204080 Page 1"_s,
                        u"1296 5832.0 10b 204080 Reference"_s}));
}

void TestHeading::aNarrativeLowersTheBandByAnInch() {
  PageFixture f;
  LowerTheBody(f);
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f).mid(3), QStringList({u"7200 1966.4 10b 204080 Page 1"_s, u"1296 7272.0 10b 204080 Reference"_s,
                                           u"1650 7704.0 10b 204080 4711"_s, u"864 7992.0 10b 204080 QTY"_s,
                                           u"2160 7992.0 10b 204080 DATE"_s, u"4464 7992.0 10b 204080 DESCRIPTION"_s,
                                           u"8784 7992.0 10b 204080 PRICE"_s, u"10800 7992.0 10b 204080 TOTAL"_s}));
}

void TestHeading::thePageNumberIsTheSurfaces() {
  PageFixture f;
  f.Paper.NewPage();
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f, 2).at(3), u"7200 1966.4 10b 204080 Page 2"_s);
}

void TestHeading::theMemoIsBlueWithColorOnOrOff() {
  for (const bool inColor : {true, false}) {
    PageFixture f;
    f.Look.ckColor = inColor;
    f.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
    f.Pages.PrintInvoiceHeading(f.Page.Heading);
    const QString ink = inColor ? u"204080"_s : u"000000"_s;
    QCOMPARE(TextsOf(f).mid(5, 3),
             QStringList({u"1650 6264.0 10b "_s + ink + u" 4711"_s, u"1872 12384.0 10b 0000ff Thank you"_s,
                          u"864 6552.0 10b "_s + ink + u" QTY"_s}));
  }
}

void TestHeading::aCommaEndsAPieceOfTheMemoAndQuotesAreConsumed() {
  PageFixture f;
  f.Write(u"/InvoiceMemo.txt"_s, "Thank you, come again\r\n\"Open, always\"\r\n");
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f).mid(6, 3),
           QStringList({u"1872 12384.0 10b 0000ff Thank you"_s, u"1872 12607.0 10b 0000ff come again"_s,
                        u"1872 12830.0 10b 0000ff Open, always"_s}));
}

void TestHeading::aLongPieceOfTheMemoIsWrapped() {
  PageFixture f;
  // Ten digits and a blank are 1167.75 twips: five make 5838.75 of 5884, six would make 7006.5.
  f.Write(u"/InvoiceMemo.txt"_s,
          "1234567890 1234567890 1234567890 1234567890 1234567890 1234567890 1234567890\r\nEnd\r\n");
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f).mid(6, 3),
           QStringList({u"1872 12384.0 10b 0000ff 1234567890 1234567890 1234567890 1234567890 1234567890 "_s,
                        u"1872 12607.5 10b 0000ff 1234567890 1234567890"_s, u"1872 12831.0 10b 0000ff End"_s}));
}

void TestHeading::theMemoStaysWhereItIsBelowANarrative() {
  PageFixture f;
  LowerTheBody(f);
  f.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f).at(6), u"1872 12384.0 10b 0000ff Thank you"_s);
}

void TestHeading::memoPiecesBelowTheLimitAreDropped() {
  PageFixture f;
  f.Write(u"/InvoiceMemo.txt"_s, MemoOf(9));
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  // The seventh piece begins at 12384 + 6 * 223 = 13722; behind it the cursor is past 13824.
  QCOMPARE(TextsOf(f).mid(11, 3), QStringList({u"1872 13499.0 10b 0000ff 6"_s, u"1872 13722.0 10b 0000ff 7"_s,
                                               u"864 6552.0 10b 204080 QTY"_s}));
  QCOMPARE(f.Paper.Find(u"8"_s).size(), 0U);
}

void TestHeading::aPieceAtTheLimitStillPrintsWhole() {
  PageFixture f;
  const QByteArray word = "1234567890 ";
  f.Write(u"/InvoiceMemo.txt"_s, MemoOf(6) + word.repeated(12) + "\r\nlast\r\n");
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  // Five words a line from 13722: the wrapping itself knows no limit, only the next piece does.
  const QStringList texts = TextsOf(f);
  QVERIFY(texts.contains(u"1872 13722.0 10b 0000ff 1234567890 1234567890 1234567890 1234567890 1234567890 "_s));
  QVERIFY(texts.contains(u"1872 14168.9 10b 0000ff 1234567890 1234567890 "_s));
  QCOMPARE(f.Paper.Find(u"last"_s).size(), 0U);
}

void TestHeading::theEndOfTheMemoClosesAllFilesAndItsLimitDoesNot() {
  PageFixture f;
  f.Write(u"/ShipVia.txt"_s, "UPS\r\nRail\r\n");
  ListReader reader = f.Disk.OpenInputFile(u"/ShipVia.txt"_s);
  f.Write(u"/InvoiceMemo.txt"_s, MemoOf(9));
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(reader.ReadLine(), u"UPS"_s);
  f.Write(u"/InvoiceMemo.txt"_s, MemoOf(7));
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(ErrorOf([&] { reader.ReadLine(); }), 52);
}

void TestHeading::theMemoComesBackFromTheBackup() {
  PageFixture f;
  f.Write(u"/Backup/InvoiceMemo.txt"_s, "Thank you\r\n");
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f).at(6), u"1872 12384.0 10b 0000ff Thank you"_s);
}

void TestHeading::anEmptyMemoFilePrintsNothing() {
  PageFixture f;
  f.Write(u"/InvoiceMemo.txt"_s, {});
  f.Pages.PrintInvoiceHeading(f.Page.Heading);
  QCOMPARE(TextsOf(f).size(), 11);
}

void TestHeading::theDetachLineLeavesPlainTenPoints() {
  PageFixture f;
  f.Pages.PrintDetachLine();
  f.Paper.CurrentY = 0;
  f.Paper.PrintLine(u"next"_s);
  QCOMPARE(TextsOf(f),
           QStringList({u"4320 5184.0 6b 000000 Detach Here and Return Top Section"_s, u"0 0.0 10 000000 next"_s}));
}

void TestHeading::soldToInUsaStyle() {
  PageFixture f;
  f.Pages.PrintSoldTo(FullAddress(), true);
  QCOMPARE(TextsOf(f), QStringList({u"1080 2808.0 10 204080 SOLD TO:"_s, u"1080 3031.0 10 204080 Mary"_s,
                                    u"1080 3254.5 10 204080 5 Fig Road"_s, u"1080 3477.9 10 204080 Floor 2"_s,
                                    u"1080 3701.4 10 204080 Orlando, FL 32801"_s}));
}

void TestHeading::soldToInInternationalStyleLeavesTheStateOut() {
  PageFixture f;
  f.Pages.PrintSoldTo(FullAddress(), false);
  QCOMPARE(TextsOf(f).mid(3), QStringList({u"1080 3477.9 10 204080 Floor 2"_s, u"1080 3701.4 10 204080 Orlando"_s,
                                           u"1080 3924.8 10 204080 32801"_s}));
}

void TestHeading::soldToKeepsItsLinesWhereTheyAreEmpty() {
  PageFixture f;
  f.Pages.PrintSoldTo({}, true);
  // Name and address 1 are blank lines, address 2 isn't one.
  QCOMPARE(TextsOf(f), QStringList({u"1080 2808.0 10 204080 SOLD TO:"_s, u"1080 3477.9 10 204080 ,  "_s}));
}

void TestHeading::aLongNameIsWrapped() {
  PageFixture f;
  PageAddress address = FullAddress();
  // Two words of ten digits with their blanks are 2335.5 twips of 2500.
  address.Name = u"1234567890 1234567890 1234567890 1"_s;
  f.Pages.PrintSoldTo(address, true);
  QCOMPARE(TextsOf(f).mid(1, 3),
           QStringList({u"1080 3031.0 10 204080 1234567890 1234567890 "_s, u"1080 3254.5 10 204080 1234567890 1"_s,
                        u"1080 3477.9 10 204080 5 Fig Road"_s}));
}

void TestHeading::shipToHasNoBlankBehindItsComma() {
  PageFixture f;
  f.Pages.PrintShipTo(FullAddress(), true, Shipping);
  QCOMPARE(TextsOf(f),
           QStringList({u"7200 2808.0 10 204080 SHIPPED TO:"_s, u"7200 3031.0 10 204080 Mary"_s,
                        u"7200 3254.5 10 204080 5 Fig Road"_s, u"7200 3477.9 10 204080 Floor 2"_s,
                        u"7200 3701.4 10 204080 Orlando,FL 32801"_s, u"720 6192.0 10 204080 4711"_s,
                        u"4032 6192.0 10 204080 UPS Ground"_s, u"9216 6192.0 10 204080 Shipped On - 3/1/2026"_s}));
}

void TestHeading::shipToInInternationalStyle() {
  PageFixture f;
  f.Pages.PrintShipTo(FullAddress(), false, Shipping);
  QCOMPARE(TextsOf(f).mid(4, 3), QStringList({u"7200 3701.4 10 204080 Orlando"_s, u"7200 3924.8 10 204080 32801"_s,
                                              u"720 6192.0 10 204080 4711"_s}));
}

void TestHeading::anEmptyShipToPrintsNothingItsRowIncluded() {
  PageFixture f;
  f.Paper.SetForeColor(0x123456);
  f.Pages.PrintShipTo({}, true, Shipping);
  QCOMPARE(f.Paper.ForeColor(), 0x123456U);
  f.Paper.EndDoc();
  QVERIFY(f.Paper.Jobs.empty());
}

void TestHeading::oneFilledFieldMakesAShipTo_data() {
  QTest::addColumn<PageAddress>("address");
  QTest::newRow("name") << PageAddress{u"x"_s, {}, {}, {}, {}, {}};
  QTest::newRow("address 1") << PageAddress{{}, u"x"_s, {}, {}, {}, {}};
  QTest::newRow("address 2") << PageAddress{{}, {}, u"x"_s, {}, {}, {}};
  QTest::newRow("city") << PageAddress{{}, {}, {}, u"x"_s, {}, {}};
  QTest::newRow("state") << PageAddress{{}, {}, {}, {}, u"x"_s, {}};
  QTest::newRow("postal code") << PageAddress{{}, {}, {}, {}, {}, u"x"_s};
}

void TestHeading::oneFilledFieldMakesAShipTo() {
  QFETCH(PageAddress, address);
  PageFixture f;
  f.Pages.PrintShipTo(address, true, Shipping);
  QCOMPARE(TextsOf(f).at(0), u"7200 2808.0 10 204080 SHIPPED TO:"_s);
  QCOMPARE(f.Paper.Find(u"UPS Ground"_s).size(), 1U);
}

void TestHeading::shipViaNonePrintsTheAddressAndNoRow() {
  PageFixture f;
  f.Pages.PrintShipTo(FullAddress(), true, {u"None"_s, u"3/1/2026"_s, u"4711"_s});
  QCOMPARE(TextsOf(f).size(), 5);
  QCOMPARE(TextsOf(f).last(), u"7200 3701.4 10 204080 Orlando,FL 32801"_s);
}

void TestHeading::anyOtherNoneIsACarrier() {
  for (const QString& carrier : {u"none"_s, u"NONE"_s, QString()}) {
    PageFixture f;
    f.Pages.PrintShipTo(FullAddress(), true, {carrier, u"3/1/2026"_s, u"4711"_s});
    QCOMPARE(TextsOf(f).last(), u"9216 6192.0 10 204080 Shipped On - 3/1/2026"_s);
  }
}

void TestHeading::aShipDateOfTodayIsShipped() {
  PageFixture f;
  f.Pages.PrintShipTo(FullAddress(), true, {u"UPS"_s, u"3/7/2026"_s, {}});
  QCOMPARE(TextsOf(f).last(), u"9216 6192.0 10 204080 Shipped On - 3/7/2026"_s);
}

void TestHeading::aLaterShipDateIsScheduled() {
  PageFixture f;
  f.Pages.PrintShipTo(FullAddress(), true, {u"UPS"_s, u"3/8/2026"_s, {}});
  QCOMPARE(TextsOf(f).last(), u"9360 6192.0 10 204080 Sheduled - 3/8/2026"_s);
}

void TestHeading::anEarlierShipDateIsShipped() {
  PageFixture f;
  // Later as a text, earlier as a date.
  f.Pages.PrintShipTo(FullAddress(), true, {u"UPS"_s, u"9/30/2025"_s, {}});
  QCOMPARE(TextsOf(f).last(), u"9216 6192.0 10 204080 Shipped On - 9/30/2025"_s);
}

void TestHeading::aShipDateThatIsNoDateCountsAsPast() {
  PageFixture f;
  f.Pages.PrintShipTo(FullAddress(), true, {u"UPS"_s, {}, {}});
  QCOMPARE(TextsOf(f).last(), u"9216 6192.0 10 204080 Shipped On - "_s);
}

void TestHeading::theShipRowIsLoweredByANarrative() {
  PageFixture f;
  LowerTheBody(f);
  f.Pages.PrintShipTo(FullAddress(), true, Shipping);
  QCOMPARE(TextsOf(f).mid(4),
           QStringList({u"7200 3701.4 10 204080 Orlando,FL 32801"_s, u"720 7632.0 10 204080 4711"_s,
                        u"4032 7632.0 10 204080 UPS Ground"_s, u"9216 7632.0 10 204080 Shipped On - 3/1/2026"_s}));
}

void TestHeading::addressesTakeTheDataColorAndLeaveBlack() {
  PageFixture f;
  f.Pages.PrintSoldTo(FullAddress(), true);
  QCOMPARE(f.Paper.ForeColor(), 0U);
  f.Pages.PrintShipTo(FullAddress(), true, Shipping);
  QCOMPARE(f.Paper.ForeColor(), 0U);
  f.Look.ckColor = false;
  f.Paper.EndDoc();
  f.Pages.PrintSoldTo(FullAddress(), true);
  QCOMPARE(TextsOf(f).at(0), u"1080 2808.0 10 000000 SOLD TO:"_s);
}

Q_DECLARE_METATYPE(PageAddress)
QTEST_MAIN(TestHeading)
#include "tst_heading.moc"
