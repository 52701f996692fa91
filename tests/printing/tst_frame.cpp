// The page frame on the recording surface: rules, title, logo, business block. Lines are 223.453125 twips high at 10
// points and 268.125 at 12.
#include "runtime/RuntimeError.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

class TestFrame : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void thePlainFrameStandsAtItsPlaces();
  void aNarrativeLowersTheBodyByAnInchAndLeavesTheBottom();
  void eachFrameLooksForItsOwnNarrative();
  void aNarrativeComesBackFromTheBackup();
  void aNumberThatLeavesTheFolderHasNoNarrative();
  void anEmptyNumberLooksForAFileWithoutAName();
  void theNumberFalseFindsFalseTxt();
  void boxAndRulesAreBlackWithColorOnOrOff();
  void theSurfaceIsMadeLetterWide();
  void titleAndBlockHaveTheirFontsPlacesAndColor();
  void onlyTheExactShortTitlesMoveRight_data();
  void onlyTheExactShortTitlesMoveRight();
  void aNameOf25CharactersIsLargeAndOneOf26Small();
  void theFrameOfASlipStandsLower();
  void emptyLinesAreLeftOutOfTheBlock();
  void anEmptyFirstAddressLineStillTakesALine();
  void theUsaLineTakesWhatThereIs_data();
  void theUsaLineTakesWhatThereIs();
  void internationalStyleHasTwoLinesAndNoPostalCode();
  void theWebSiteIsTheLastLine();
  void onlyTheFirstFieldOfTheWebSiteIsPrinted();
  void anEmptyWebSiteFileIsAnError();
  void theLogoHasItsOwnSizeAndIsCentredByItsFrame();
  void theLogosSizeIsRoundedToWholeTwipsOnThePaper();
  void withoutALogoNoPictureIsDrawn();
};

namespace {
QStringList FrameRules(PageFixture& f, const QString& invoiceNo) {
  f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, invoiceNo);
  f.Paper.EndDoc();
  return Described(f.Paper.Rules(1));
}

QStringList BlockOf(PageFixture& f) {
  f.Pages.PrintBusinessBlock(0.75F, 0.4F, 12);
  f.Paper.EndDoc();
  return Described(f.Paper.Texts(1));
}

const QString PlainFirstBand = u"360,5760 11880,5760"_s;
const QString LoweredFirstBand = u"360,7200 11880,7200"_s;
}  // namespace

void TestFrame::thePlainFrameStandsAtItsPlaces() {
  PageFixture f;
  QCOMPARE(FrameRules(f, u"2500"_s),
           QStringList({u"360,504 11880,5040 box"_s, u"360,5760 11880,5760"_s, u"360,6120 11880,6120"_s,
                        u"360,6480 11880,6480"_s, u"360,6840 11880,6840"_s, u"360,12240 11880,12240"_s,
                        u"360,13680 11880,13680"_s, u"360,14400 11880,14400"_s, u"7920,12600 11880,12600"_s,
                        u"7920,12960 11880,12960"_s, u"7920,13320 11880,13320"_s, u"7920,13680 11880,13680"_s,
                        u"7920,14040 11880,14040"_s, u"360,5760 360,14400"_s, u"1800,6480 1800,14400"_s,
                        u"7920,5760 7920,14400"_s, u"10080,6480 10080,14400"_s, u"11880,5760 11880,14400"_s,
                        u"3240,5760 3240,12240"_s}));
}

void TestFrame::aNarrativeLowersTheBodyByAnInchAndLeavesTheBottom() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "Work done\r\n");
  QCOMPARE(FrameRules(f, u"2500"_s),
           QStringList({u"360,504 11880,5040 box"_s, u"360,7200 11880,7200"_s, u"360,7560 11880,7560"_s,
                        u"360,7920 11880,7920"_s, u"360,8280 11880,8280"_s, u"360,12240 11880,12240"_s,
                        u"360,13680 11880,13680"_s, u"360,14400 11880,14400"_s, u"7920,12600 11880,12600"_s,
                        u"7920,12960 11880,12960"_s, u"7920,13320 11880,13320"_s, u"7920,13680 11880,13680"_s,
                        u"7920,14040 11880,14040"_s, u"360,7200 360,14400"_s, u"1800,7920 1800,14400"_s,
                        u"7920,7200 7920,14400"_s, u"10080,7920 10080,14400"_s, u"11880,7200 11880,14400"_s,
                        u"3240,7200 3240,12240"_s}));
}

void TestFrame::eachFrameLooksForItsOwnNarrative() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, {});
  QCOMPARE(FrameRules(f, u"2500"_s).at(1), LoweredFirstBand);
  QVERIFY(f.Pages.HasNarrative());
  QCOMPARE(FrameRules(f, u"2501"_s).at(1), PlainFirstBand);
  QVERIFY(!f.Pages.HasNarrative());
}

void TestFrame::aNarrativeComesBackFromTheBackup() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/keep.txt"_s, "x");
  f.Write(u"/Backup/KarvexInvoicer/Narratives/2500.txt"_s, "x");
  QCOMPARE(FrameRules(f, u"2500"_s).at(1), LoweredFirstBand);
}

void TestFrame::aNumberThatLeavesTheFolderHasNoNarrative() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "x");
  f.Write(u"/KarvexInvoicer/2500.txt"_s, "x");
  QCOMPARE(FrameRules(f, u"../2500"_s).at(1), PlainFirstBand);
  QCOMPARE(FrameRules(f, u"..\\2500"_s).at(1), PlainFirstBand);
}

void TestFrame::anEmptyNumberLooksForAFileWithoutAName() {
  PageFixture f;
  QCOMPARE(FrameRules(f, {}).at(1), PlainFirstBand);
  f.Write(u"/KarvexInvoicer/Narratives/.txt"_s, "x");
  QCOMPARE(FrameRules(f, {}).at(1), LoweredFirstBand);
}

void TestFrame::theNumberFalseFindsFalseTxt() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/False.txt"_s, "x");
  QCOMPARE(FrameRules(f, u"False"_s).at(1), LoweredFirstBand);
}

void TestFrame::boxAndRulesAreBlackWithColorOnOrOff() {
  for (const bool inColor : {true, false}) {
    PageFixture f;
    f.Look.ckColor = inColor;
    f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, u"2500"_s);
    f.Paper.EndDoc();
    QCOMPARE(f.Paper.Rules(1).size(), 19U);
    for (const PaperRule& rule : f.Paper.Rules(1)) {
      QCOMPARE(rule.Color, 0U);
      QCOMPARE(rule.DrawWidth, 6);
    }
    QCOMPARE(f.Paper.DrawWidth, 6);
  }
}

void TestFrame::theSurfaceIsMadeLetterWide() {
  PageFixture f;
  f.Paper.Width = 11000;
  FrameRules(f, u"2500"_s);
  QCOMPARE(f.Paper.Width, 12240);
}

void TestFrame::titleAndBlockHaveTheirFontsPlacesAndColor() {
  PageFixture f;
  f.Business.BusinessAddress2 = u"Unit 4"_s;
  f.Business.BusinessContact = u"office@orchard.example"_s;
  f.Business.BusinessTaxID = u"FEIN 12-3456789"_s;
  f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, u"2500"_s);
  f.Paper.EndDoc();
  QCOMPARE(
      Described(f.Paper.Texts(1)),
      QStringList({u"7200 720.0 26b 204080 INVOICE"_s, u"1080 576.0 12b 204080 Orchard Supply"_s,
                   u"1080 844.1 10 204080 1 Grove Road"_s, u"1080 1067.6 10 204080 Unit 4"_s,
                   u"1080 1291.0 10 204080 Tampa, FL. 33602"_s, u"1080 1514.5 10 204080 Telephone: 813-555-0100"_s,
                   u"1080 1737.9 10 204080 office@orchard.example"_s, u"1080 1961.4 10 204080 FEIN 12-3456789"_s}));
  f.Look.ckColor = false;
  f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, u"2500"_s);
  f.Paper.EndDoc();
  for (const PaperText& run : f.Paper.Texts(1)) QCOMPARE(run.Color, 0U);
}

void TestFrame::onlyTheExactShortTitlesMoveRight_data() {
  QTest::addColumn<QString>("title");
  QTest::addColumn<float>("x");
  QTest::newRow("Invoice") << u"Invoice"_s << 7920.0F;
  QTest::newRow("Packing Slip") << u"Packing Slip"_s << 7920.0F;
  QTest::newRow("INVOICE") << u"INVOICE"_s << 7200.0F;
  QTest::newRow("DRAFT INVOICE") << u"DRAFT INVOICE"_s << 7200.0F;
  QTest::newRow("invoice") << u"invoice"_s << 7200.0F;
}

void TestFrame::onlyTheExactShortTitlesMoveRight() {
  QFETCH(QString, title);
  QFETCH(float, x);
  PageFixture f;
  f.Pages.PrintPageFrame(title, 0.4F, u"2500"_s);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Texts(1).at(0).Text, title);
  QCOMPARE(f.Paper.Texts(1).at(0).X, x);
  QCOMPARE(f.Paper.Texts(1).at(0).Y, 720.0F);
}

void TestFrame::aNameOf25CharactersIsLargeAndOneOf26Small() {
  PageFixture f;
  f.Business.BusinessName = u"1234567890123456789012345"_s;
  QCOMPARE(BlockOf(f).mid(0, 2),
           QStringList({u"1080 576.0 12b 000000 1234567890123456789012345"_s, u"1080 844.1 10 000000 1 Grove Road"_s}));
  f.Business.BusinessName = u"12345678901234567890123456"_s;
  QCOMPARE(BlockOf(f).mid(0, 2), QStringList({u"1080 576.0 10b 000000 12345678901234567890123456"_s,
                                              u"1080 799.5 10 000000 1 Grove Road"_s}));
}

void TestFrame::theFrameOfASlipStandsLower() {
  PageFixture f;
  f.Pages.PrintPageFrame(u"Packing Slip"_s, 0.6F, u"False"_s);
  f.Paper.EndDoc();
  QCOMPARE(Described(f.Paper.Texts(1)).at(1), u"1080 864.0 12b 204080 Orchard Supply"_s);
}

void TestFrame::emptyLinesAreLeftOutOfTheBlock() {
  PageFixture f;
  f.Business.BusinessTelephone.clear();
  QCOMPARE(BlockOf(f), QStringList({u"1080 576.0 12b 000000 Orchard Supply"_s, u"1080 844.1 10 000000 1 Grove Road"_s,
                                    u"1080 1067.6 10 000000 Tampa, FL. 33602"_s}));
}

void TestFrame::anEmptyFirstAddressLineStillTakesALine() {
  PageFixture f;
  f.Business.BusinessAddress1.clear();
  QCOMPARE(BlockOf(f).at(1), u"1080 1067.6 10 000000 Tampa, FL. 33602"_s);
}

void TestFrame::theUsaLineTakesWhatThereIs_data() {
  QTest::addColumn<QString>("city");
  QTest::addColumn<QString>("state");
  QTest::addColumn<QString>("postal");
  QTest::addColumn<QString>("line");
  QTest::newRow("all") << u"Tampa"_s << u"FL"_s << u"33602"_s << u"Tampa, FL. 33602"_s;
  QTest::newRow("no city") << u""_s << u"FL"_s << u"33602"_s << u"FL. 33602"_s;
  QTest::newRow("no state drops the postal code") << u"Tampa"_s << u""_s << u"33602"_s << u"Tampa, "_s;
  QTest::newRow("no postal code") << u"Tampa"_s << u"FL"_s << u""_s << u"Tampa, FL. "_s;
  QTest::newRow("postal code alone is nothing") << u""_s << u""_s << u"33602"_s << u"Telephone: 813-555-0100"_s;
}

void TestFrame::theUsaLineTakesWhatThereIs() {
  QFETCH(QString, city);
  QFETCH(QString, state);
  QFETCH(QString, postal);
  QFETCH(QString, line);
  PageFixture f;
  f.Business.BusinessCity = city;
  f.Business.BusinessState = state;
  f.Business.BusinessPostal = postal;
  QCOMPARE(BlockOf(f).at(2), u"1080 1067.6 10 000000 "_s + line);
}

void TestFrame::internationalStyleHasTwoLinesAndNoPostalCode() {
  PageFixture f;
  f.Business.AddressStyleCaption = u"International Style Address"_s;
  f.Business.BusinessCity = u"London"_s;
  f.Business.BusinessState = u"SW1A 1AA"_s;
  QCOMPARE(BlockOf(f), QStringList({u"1080 576.0 12b 000000 Orchard Supply"_s, u"1080 844.1 10 000000 1 Grove Road"_s,
                                    u"1080 1067.6 10 000000 London"_s, u"1080 1291.0 10 000000 SW1A 1AA"_s,
                                    u"1080 1514.5 10 000000 Telephone: 813-555-0100"_s}));
  f.Business.BusinessCity.clear();
  QCOMPARE(BlockOf(f).at(2), u"1080 1067.6 10 000000 SW1A 1AA"_s);
}

void TestFrame::theWebSiteIsTheLastLine() {
  PageFixture f;
  f.Business.BusinessTaxID = u"FEIN 12-3456789"_s;
  f.Write(u"/MyWebSite.txt"_s, "\"www.orchard.example\"\r\n");
  QCOMPARE(BlockOf(f).mid(4),
           QStringList({u"1080 1514.5 10 000000 FEIN 12-3456789"_s, u"1080 1737.9 10 000000 www.orchard.example"_s}));
}

void TestFrame::onlyTheFirstFieldOfTheWebSiteIsPrinted() {
  PageFixture f;
  f.Write(u"/MyWebSite.txt"_s, "one.example,two.example\r\nthree.example\r\n");
  QCOMPARE(BlockOf(f).mid(4), QStringList(u"1080 1514.5 10 000000 one.example"_s));
}

void TestFrame::anEmptyWebSiteFileIsAnError() {
  PageFixture f;
  f.Write(u"/MyWebSite.txt"_s, {});
  try {
    f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, u"2500"_s);
    QFAIL("no error");
  } catch (const RuntimeError& error) {
    QCOMPARE(error.Number(), 62);
  }
}

void TestFrame::theLogoHasItsOwnSizeAndIsCentredByItsFrame() {
  PageFixture f;
  f.Look.Logo = "picture";
  f.Look.LogoFrameWidth = 2040;
  f.Look.LogoWidth = 900;
  f.Look.LogoHeight = 1260;
  f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, u"2500"_s);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Pictures(1).size(), 1U);
  QCOMPARE(f.Paper.Pictures(1).at(0).Place, QRect(5100, 720, 900, 1260));
  QCOMPARE(f.Paper.Pictures(1).at(0).Picture, QByteArray("picture"));
  // The cursor stays: the block below the logo is where it is without one.
  QCOMPARE(Described(f.Paper.Texts(1)).at(1), u"1080 576.0 12b 204080 Orchard Supply"_s);
}

void TestFrame::theLogosSizeIsRoundedToWholeTwipsOnThePaper() {
  PageFixture f;
  f.Look.Logo = "picture";
  f.Look.LogoWidth = 899.6F;
  f.Look.LogoHeight = 1260.4F;
  f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, u"2500"_s);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Pictures(1).at(0).Place, QRect(5400, 720, 900, 1260));
}

void TestFrame::withoutALogoNoPictureIsDrawn() {
  PageFixture f;
  FrameRules(f, u"2500"_s);
  QVERIFY(f.Paper.Pictures(1).empty());
}

QTEST_MAIN(TestFrame)
#include "tst_frame.moc"
