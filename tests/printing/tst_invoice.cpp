// Whole jobs on the recording surface: the live invoice, its draft, a reprint, the sample; and the totals.
#include "runtime/RuntimeError.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

class TestInvoice : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theWholePageInItsOrder();
  void theNarrativeIsBlackSinceSoldToLeavesBlack();
  void shipToNeedsItsTick();
  void theDetachLineNeedsPerforatedPaper();
  void aDraftHasItsTitleAndNoTotals();
  void aDraftsContinuationPageIsAnInvoice();
  void theDraftFlagIsClearedBeforeThePageIsSent();
  void anEarlierErrorKeepsTheDraftFlagAndDropsThePage();
  void aJobNeverShowsTheDialogItself();
  void totalsStandAtTheirPlaces();
  void withoutColorTheTotalsAreBlack();
  void amountsPrintAsCurrencyAndOtherTextAsItStands_data();
  void amountsPrintAsCurrencyAndOtherTextAsItStands();
  void termsAreTheFirstLineWhole();
  void withoutTermsAnEmptyLineIsPrinted();
  void anEmptyTermsFileIsAnError();
  void aReprintHasNoDetachLineAndAlwaysItsShipTo();
  void aReprintWithoutShipToPrintsNone();
  void aReprintFollowsTodaysPaper();
  void theSampleIsTheFrameAlone();
  void theSampleShowsTheNarrativeFrameOf12345();
  void twoJobsPrintTheSame();
};

namespace {
PageTotals Totals() {
  return {u"$66.66"_s, u"$4.67"_s, u"$0.00"_s, u"$5.00"_s, u"$1.00"_s, u"$77.33"_s};
}

QStringList TotalsOf(PageFixture& f, const PageTotals& totals) {
  f.Pages.PrintTotals(totals);
  f.Paper.EndDoc();
  return Described(f.Paper.Texts(1));
}

void PrintInvoice(PageFixture& f) {
  f.Pages.PrintInvoice(f.Page, f.Draft);
}
}  // namespace

void TestInvoice::theWholePageInItsOrder() {
  PageFixture f;
  f.Look.optReturn = true;
  f.FillLines(1);
  f.Page.Totals = Totals();
  f.Page.HasShipTo = true;
  f.Page.ShipTo = {u"Mary"_s, u"5 Fig Road"_s, {}, u"Ocala"_s, u"FL"_s, u"34470"_s};
  f.Page.Shipping = {u"UPS"_s, u"3/7/2026"_s, u"4711"_s};
  f.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  f.Write(u"/StatementTerms.txt"_s, "Net 30\r\n");
  PrintInvoice(f);
  QCOMPARE(f.Paper.Jobs.size(), 1U);
  QCOMPARE(Described(f.Paper.Texts(1)),
           QStringList({u"7200 720.0 26b 204080 INVOICE"_s,
                        u"1080 576.0 12b 204080 Orchard Supply"_s,
                        u"1080 844.1 10 204080 1 Grove Road"_s,
                        u"1080 1067.6 10 204080 Tampa, FL. 33602"_s,
                        u"1080 1291.0 10 204080 Telephone: 813-555-0100"_s,
                        u"7200 1296.0 10b 204080 Date 3/7/2026"_s,
                        u"7200 1519.5 10b 204080 INVOICE NO: 2500"_s,
                        u"7200 1742.9 10b 204080 Amount Enclosed              _______________"_s,
                        u"7200 1966.4 10b 204080 Acct: 1001"_s,
                        u"7200 2189.8 10b 204080 Page 1"_s,
                        u"1296 5832.0 10b 204080 Reference"_s,
                        u"1650 6264.0 10b 204080 4711"_s,
                        u"1872 12384.0 10b 0000ff Thank you"_s,
                        u"864 6552.0 10b 204080 QTY"_s,
                        u"2160 6552.0 10b 204080 DATE"_s,
                        u"4464 6552.0 10b 204080 DESCRIPTION"_s,
                        u"8784 6552.0 10b 204080 PRICE"_s,
                        u"10800 6552.0 10b 204080 TOTAL"_s,
                        u"4320 5184.0 6b 204080 Detach Here and Return Top Section"_s,
                        u"1080 2808.0 10 204080 SOLD TO:"_s,
                        u"1080 3031.0 10 204080 John Public"_s,
                        u"1080 3254.5 10 204080 2 Lime Street"_s,
                        u"1080 3477.9 10 204080 Orlando, FL 32801"_s,
                        u"7200 2808.0 10 204080 SHIPPED TO:"_s,
                        u"7200 3031.0 10 204080 Mary"_s,
                        u"7200 3254.5 10 204080 5 Fig Road"_s,
                        u"7200 3477.9 10 204080 Ocala,FL 34470"_s,
                        u"720 6192.0 10 204080 4711"_s,
                        u"4032 6192.0 10 204080 UPS"_s,
                        u"9216 6192.0 10 204080 Shipped On - 3/7/2026"_s,
                        u"1113 7056.0 10 204080 1"_s,
                        u"2131 7056.0 10 204080 3/7/2026"_s,
                        u"8860 7056.0 10 204080 $1.00"_s,
                        u"11020 7056.0 10 204080 $1.00"_s,
                        u"3312 7056.0 10 204080 Line 1"_s,
                        u"8064 12312.0 10b 000000 Sub-Total"_s,
                        u"8064 12672.0 10b 000000 Sales Tax"_s,
                        u"8064 13032.0 10b 000000 County Tax"_s,
                        u"8064 13392.0 10b 000000 Shipping"_s,
                        u"8064 13752.0 10b 000000 Handling"_s,
                        u"8064 14112.0 10b 000000 Total"_s,
                        u"10908 12312.0 10b 204080 $66.66"_s,
                        u"11020 12672.0 10b 204080 $4.67"_s,
                        u"11020 13032.0 10b 204080 $0.00"_s,
                        u"11020 13392.0 10b 204080 $5.00"_s,
                        u"11020 13752.0 10b 204080 $1.00"_s,
                        u"10786 14112.0 12b ff0000 $77.33"_s,
                        u"1872 13824.0 12b 00ff00 Net 30"_s}));
}

void TestInvoice::theNarrativeIsBlackSinceSoldToLeavesBlack() {
  PageFixture f;
  f.FillLines(1);
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "Work done\r\n");
  PrintInvoice(f);
  const QStringList texts = Described(f.Paper.Texts(1));
  const qsizetype details = texts.indexOf(u"360 5328.0 10bu 000000 Details"_s);
  QCOMPARE(texts.mid(details + 1, 2), QStringList({u"360 5551.0 10 000000 Work done"_s, u"1113 8496.0 10 204080 1"_s}));
}

void TestInvoice::shipToNeedsItsTick() {
  PageFixture f;
  f.Page.ShipTo = f.Page.SoldTo;
  PrintInvoice(f);
  QCOMPARE(f.Paper.Find(u"SHIPPED TO:"_s).size(), 0U);
}

void TestInvoice::theDetachLineNeedsPerforatedPaper() {
  PageFixture f;
  PrintInvoice(f);
  QCOMPARE(f.Paper.Find(u"Detach Here and Return Top Section"_s).size(), 0U);
  f.Look.optReturn = true;
  PrintInvoice(f);
  QCOMPARE(f.Paper.Find(u"Detach Here and Return Top Section"_s).size(), 1U);
}

void TestInvoice::aDraftHasItsTitleAndNoTotals() {
  PageFixture f;
  f.FillLines(1);
  f.Write(u"/StatementTerms.txt"_s, "Net 30\r\n");
  f.Draft = true;
  PrintInvoice(f);
  QCOMPARE(Described(f.Paper.Texts(1)).first(), u"7200 720.0 26b 204080 DRAFT INVOICE"_s);
  QCOMPARE(f.Paper.Words(1).last(), u"Line 1"_s);
  QVERIFY(!f.Draft);
}

void TestInvoice::aDraftsContinuationPageIsAnInvoice() {
  PageFixture f;
  f.FillLines(22);
  f.Draft = true;
  PrintInvoice(f);
  QCOMPARE(f.Paper.Words(1).first(), u"DRAFT INVOICE"_s);
  QCOMPARE(f.Paper.Words(2).first(), u"INVOICE"_s);
  QCOMPARE(f.Paper.Find(u"Sub-Total"_s).size(), 0U);
}

void TestInvoice::theDraftFlagIsClearedBeforeThePageIsSent() {
  PageFixture f;
  f.Draft = true;
  f.Paper.SendError = 482;
  QVERIFY_THROWS_EXCEPTION(RuntimeError, PrintInvoice(f));
  QVERIFY(!f.Draft);
}

void TestInvoice::anEarlierErrorKeepsTheDraftFlagAndDropsThePage() {
  PageFixture f;
  f.Draft = true;
  f.Write(u"/MyWebSite.txt"_s, {});
  QVERIFY_THROWS_EXCEPTION(RuntimeError, PrintInvoice(f));
  QVERIFY(f.Draft);
  f.Paper.EndDoc();
  QVERIFY(f.Paper.Jobs.empty());
}

void TestInvoice::aJobNeverShowsTheDialogItself() {
  PageFixture f;
  PrintInvoice(f);
  f.Pages.PrintReprint(f.Page);
  f.Pages.PrintSample();
  QCOMPARE(f.Paper.DialogsShown, 0);
  QCOMPARE(f.Paper.Jobs.size(), 3U);
}

void TestInvoice::totalsStandAtTheirPlaces() {
  PageFixture f;
  f.Write(u"/StatementTerms.txt"_s, "Net 30\r\n");
  QCOMPARE(TotalsOf(f, Totals()),
           QStringList({u"8064 12312.0 10b 000000 Sub-Total"_s, u"8064 12672.0 10b 000000 Sales Tax"_s,
                        u"8064 13032.0 10b 000000 County Tax"_s, u"8064 13392.0 10b 000000 Shipping"_s,
                        u"8064 13752.0 10b 000000 Handling"_s, u"8064 14112.0 10b 000000 Total"_s,
                        u"10908 12312.0 10b 204080 $66.66"_s, u"11020 12672.0 10b 204080 $4.67"_s,
                        u"11020 13032.0 10b 204080 $0.00"_s, u"11020 13392.0 10b 204080 $5.00"_s,
                        u"11020 13752.0 10b 204080 $1.00"_s, u"10786 14112.0 12b ff0000 $77.33"_s,
                        u"1872 13824.0 12b 00ff00 Net 30"_s}));
}

void TestInvoice::withoutColorTheTotalsAreBlack() {
  PageFixture f;
  f.Look.ckColor = false;
  f.Write(u"/StatementTerms.txt"_s, "Net 30\r\n");
  const QStringList texts = TotalsOf(f, Totals());
  QCOMPARE(texts.mid(11), QStringList({u"10786 14112.0 12b 000000 $77.33"_s, u"1872 13824.0 12b 000000 Net 30"_s}));
  for (const PaperText& run : f.Paper.Texts(1)) QCOMPARE(run.Color, 0U);
}

void TestInvoice::amountsPrintAsCurrencyAndOtherTextAsItStands_data() {
  QTest::addColumn<QString>("amount");
  QTest::addColumn<QString>("printed");
  QTest::newRow("plain") << u"1234.5"_s << u"$1,234.50"_s;
  QTest::newRow("currency text") << u"$1,234.50"_s << u"$1,234.50"_s;
  QTest::newRow("negative") << u"-2.5"_s << u"($2.50)"_s;
  QTest::newRow("rounded away from zero") << u"0.125"_s << u"$0.13"_s;
  QTest::newRow("letters") << u"free"_s << u"free"_s;
}

void TestInvoice::amountsPrintAsCurrencyAndOtherTextAsItStands() {
  QFETCH(QString, amount);
  QFETCH(QString, printed);
  PageFixture f;
  PageTotals totals;
  totals.Shipping = amount;
  f.Pages.PrintTotals(totals);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Words(1).mid(6), QStringList(printed));
}

void TestInvoice::termsAreTheFirstLineWhole() {
  PageFixture f;
  f.Write(u"/StatementTerms.txt"_s, "Net 30, \"no\" discount\r\nsecond\r\n");
  QCOMPARE(TotalsOf(f, {}).last(), u"1872 13824.0 12b 00ff00 Net 30, \"no\" discount"_s);
}

void TestInvoice::withoutTermsAnEmptyLineIsPrinted() {
  PageFixture f;
  f.Pages.PrintTotals({});
  QCOMPARE(static_cast<double>(f.Paper.CurrentY), 14092.125);  // One line of 12 points below 13824.
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Words(1).last(), u"Total"_s);
}

void TestInvoice::anEmptyTermsFileIsAnError() {
  PageFixture f;
  f.Write(u"/StatementTerms.txt"_s, {});
  try {
    f.Pages.PrintTotals({});
    QFAIL("no error");
  } catch (const RuntimeError& error) {
    QCOMPARE(error.Number(), 62);
  }
}

void TestInvoice::aReprintHasNoDetachLineAndAlwaysItsShipTo() {
  PageFixture f;
  f.Look.optReturn = true;
  f.FillLines(1);
  f.Page.ShipTo = {u"Mary"_s, u"5 Fig Road"_s, {}, u"Ocala"_s, u"FL"_s, u"34470"_s};
  f.Page.Shipping = {u"UPS"_s, u"3/7/2026"_s, u"4711"_s};
  f.Pages.PrintReprint(f.Page);
  QCOMPARE(f.Paper.Find(u"Detach Here and Return Top Section"_s).size(), 0U);
  QCOMPARE(f.Paper.Find(u"SHIPPED TO:"_s).size(), 1U);
  QCOMPARE(f.Paper.Words(1).first(), u"INVOICE"_s);
  QCOMPARE(Described(f.Paper.Find(u"Line 1"_s).at(0)), u"3312 7056.0 10b 204080 Line 1"_s);
  QCOMPARE(Described(f.Paper.Find(u"$76.33"_s).at(0)), u"10786 14112.0 12b ff0000 $76.33"_s);
}

void TestInvoice::aReprintWithoutShipToPrintsNone() {
  PageFixture f;
  f.Page.Shipping = {u"UPS"_s, u"3/7/2026"_s, u"4711"_s};
  f.Pages.PrintReprint(f.Page);
  QCOMPARE(f.Paper.Find(u"SHIPPED TO:"_s).size(), 0U);
  QCOMPARE(f.Paper.Find(u"UPS"_s).size(), 0U);
}

void TestInvoice::aReprintFollowsTodaysPaper() {
  PageFixture f;
  f.Pages.PrintReprint(f.Page);
  QCOMPARE(f.Paper.Words(1).filter(u"Amount Enclosed"_s).size(), 0);
  f.Look.optReturn = true;
  f.Pages.PrintReprint(f.Page);
  QCOMPARE(f.Paper.Words(1).filter(u"Amount Enclosed"_s).size(), 1);
}

void TestInvoice::theSampleIsTheFrameAlone() {
  PageFixture f;
  f.Pages.PrintSample();
  QCOMPARE(Described(f.Paper.Texts(1)),
           QStringList({u"7200 720.0 26b 204080 INVOICE"_s, u"1080 576.0 12b 204080 Orchard Supply"_s,
                        u"1080 844.1 10 204080 1 Grove Road"_s, u"1080 1067.6 10 204080 Tampa, FL. 33602"_s,
                        u"1080 1291.0 10 204080 Telephone: 813-555-0100"_s}));
  QCOMPARE(f.Paper.Rules(1).size(), 19U);
  QCOMPARE(f.Paper.Rules(1).at(1).Y1, 5760);
}

void TestInvoice::theSampleShowsTheNarrativeFrameOf12345() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/12345.txt"_s, "x");
  f.Pages.PrintSample();
  QCOMPARE(f.Paper.Rules(1).at(1).Y1, 7200);
}

void TestInvoice::twoJobsPrintTheSame() {
  PageFixture f;
  f.FillLines(30);
  f.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  PrintInvoice(f);
  PrintInvoice(f);
  for (std::size_t page = 0; page < 2; ++page) {
    const auto textsOf = [&](std::size_t job) {
      QStringList texts;
      for (const PaperMark& mark : f.Paper.Jobs.at(job).Pages.at(page)) {
        if (const auto* run = std::get_if<PaperText>(&mark)) texts.append(Described(*run));
      }
      return texts;
    };
    QCOMPARE(textsOf(1), textsOf(0));
  }
}

QTEST_MAIN(TestInvoice)
#include "tst_invoice.moc"
