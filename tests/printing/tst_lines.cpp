// The line items, their overflow, and the narrative above them, on the recording surface. A line of 10 points is
// 223.453125 twips high; since each description starts at a whole twip, rows follow each other by 223.
#include "runtime/RuntimeError.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

class TestLines : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aRowStandsInItsColumns();
  void cellsArePrintedAsTheyStand();
  void anEmptyRowStillTakesALine();
  void aLongDescriptionIsWrappedAndMovesTheNextRow();
  void theLastRowThatFitsIsThe20th();
  void aFullPageSendsTheTotalsToTheNext();
  void manyLines_data();
  void manyLines();
  void aContinuationPageIsAWholePage();
  void columnHeadingsStandTwiceOnAContinuationPage();
  void aLongWrapPassesTheLimitBeforeTheTestSeesIt();
  void itemsAreBoldOnPlainPaper();
  void itemsArePlainOnPerforatedPaperAndBoldOnContinuationPages();
  void aLineThatTheGridDoesNotHaveIsAnError();
  void itemsTakeTheDataColorAndLeaveBlack();
  void theNarrativeStandsAboveTheItems();
  void anEmptyNarrativeStillPrintsDetails();
  void aNarrativeLineWithoutABlankOverrunsTheRule();
  void aLongNarrativeLineIsWrapped();
  void sevenNarrativeLinesFit();
  void anEighthNarrativeLineIsToldAndDropped();
  void oneLongNarrativeLineRunsOverTheRuleUnseen();
  void narrativeCommasAndQuotesArePrinted();
  void aNarrativesFirstWordThatIsTooWideStandsAlone();
  void itemsStartBelowANarrativeWhateverItsLength_data();
  void itemsStartBelowANarrativeWhateverItsLength();
  void theTooBigMessageComesBeforeThePageIsFinished();
  void aDraftPrintsTheNarrativeAndTellsOfItsLengthToo();
  void aReprintPrintsTheNarrativeAsItStandsThen();
  void fewerRowsFitBelowANarrative();
  void continuationPagesStayLoweredAndHaveNoNarrative();
};

namespace {
/// The descriptions "Line n" on a page of the last job.
QStringList RowsOn(PageFixture& f, std::size_t page) {
  return f.Paper.Words(page).filter(QRegularExpression(u"^Line "_s));
}

QStringList ItemTexts(PageFixture& f) {
  f.Pages.PrintLineItems(f.Page);
  f.Paper.EndDoc();
  return Described(f.Paper.Texts(1));
}

/// Frame and items of invoice 2500 with this narrative.
QStringList WithNarrative(PageFixture& f, const QByteArray& narrative) {
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, narrative);
  f.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, u"2500"_s);
  f.Pages.PrintLineItems(f.Page);
  f.Paper.EndDoc();
  return Described(f.Paper.Texts(1)).mid(5);
}

void PrintInvoice(PageFixture& f) {
  f.Pages.PrintInvoice(f.Page, f.Draft);
}
}  // namespace

void TestLines::aRowStandsInItsColumns() {
  PageFixture f;
  f.SetLine(1, {u"2"_s, u"Oranges"_s, u"3/7/2026"_s, u"$33.33"_s, u"$66.66"_s});
  f.SetLine(2, {u"10"_s, u"Lemons"_s, u"3/7/2026"_s, u"$1.00"_s, u"$10.00"_s});
  f.Page.LineCount = 2;
  // A digit is 111.21875 wide, a point or slash 55.5625: "2" is right-aligned to 1224, the date (778.4375) centred on
  // 2520, "$33.33" (611.65625) right-aligned to 9360, "$66.66" to 11520.
  QCOMPARE(ItemTexts(f), QStringList({u"1113 7056.0 10 204080 2"_s, u"2131 7056.0 10 204080 3/7/2026"_s,
                                      u"8748 7056.0 10 204080 $33.33"_s, u"10908 7056.0 10 204080 $66.66"_s,
                                      u"3312 7056.0 10 204080 Oranges"_s, u"1002 7279.5 10 204080 10"_s,
                                      u"2131 7279.5 10 204080 3/7/2026"_s, u"8860 7279.5 10 204080 $1.00"_s,
                                      u"10908 7279.5 10 204080 $10.00"_s, u"3312 7279.0 10 204080 Lemons"_s}));
}

void TestLines::cellsArePrintedAsTheyStand() {
  PageFixture f;
  f.SetLine(1, {u"2.50 Hrs"_s, u"Labor"_s, {}, u"45"_s, u"112.5"_s});
  f.Page.LineCount = 1;
  f.Pages.PrintLineItems(f.Page);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Words(1), QStringList({u"2.50 Hrs"_s, u"45"_s, u"112.5"_s, u"Labor"_s}));
}

void TestLines::anEmptyRowStillTakesALine() {
  PageFixture f;
  f.SetLine(3, {{}, u"Third"_s});
  f.Page.LineCount = 3;
  QCOMPARE(ItemTexts(f), QStringList(u"3312 7502.0 10 204080 Third"_s));
}

void TestLines::aLongDescriptionIsWrappedAndMovesTheNextRow() {
  PageFixture f;
  // Three words of ten digits with their blanks are 3503.25 twips of 4228, four would be 4671.
  f.SetLine(1, {{}, u"1234567890 1234567890 1234567890 1234567890 1"_s});
  f.SetLine(2, {u"2"_s, u"Next"_s});
  f.Page.LineCount = 2;
  QCOMPARE(ItemTexts(f), QStringList({u"3312 7056.0 10 204080 1234567890 1234567890 1234567890 "_s,
                                      u"3312 7279.5 10 204080 1234567890 1"_s, u"1113 7502.9 10 204080 2"_s,
                                      u"3312 7503.0 10 204080 Next"_s}));
}

void TestLines::theLastRowThatFitsIsThe20th() {
  PageFixture f;
  f.FillLines(20);
  PrintInvoice(f);
  QCOMPARE(f.Paper.Jobs.at(0).Pages.size(), 1U);
  QCOMPARE(RowsOn(f, 1).size(), 20);
}

void TestLines::aFullPageSendsTheTotalsToTheNext() {
  PageFixture f;
  f.FillLines(21);
  PrintInvoice(f);
  // The 21st row begins at 7056 + 20 * 223 = 11516 and still fits; behind it there is no room for one more.
  QCOMPARE(f.Paper.Jobs.at(0).Pages.size(), 2U);
  QCOMPARE(f.Paper.Find(u"Line 21"_s).at(0).Y, 11516.0F);
  QCOMPARE(RowsOn(f, 1).size(), 21);
  QCOMPARE(RowsOn(f, 2).size(), 0);
  QVERIFY(!f.Paper.Words(1).contains(u"Sub-Total"_s));
  QVERIFY(f.Paper.Words(2).contains(u"Sub-Total"_s));
}

void TestLines::manyLines_data() {
  QTest::addColumn<int>("count");
  QTest::addColumn<QList<int>>("rows");
  QTest::newRow("none") << 0 << QList<int>{0};
  QTest::newRow("40") << 40 << QList<int>{21, 19};
  QTest::newRow("42") << 42 << QList<int>{21, 21, 0};
  QTest::newRow("100") << 100 << QList<int>{21, 21, 21, 21, 16};
}

void TestLines::manyLines() {
  QFETCH(int, count);
  QFETCH(QList<int>, rows);
  PageFixture f;
  f.FillLines(count);
  PrintInvoice(f);
  QCOMPARE(f.Paper.Jobs.at(0).Pages.size(), static_cast<std::size_t>(rows.size()));
  int next = 1;
  for (int page = 1; page <= rows.size(); ++page) {
    QStringList expected;
    for (int row = 0; row < rows.at(page - 1); ++row) expected.append(u"Line "_s + QString::number(next++));
    const auto index = static_cast<std::size_t>(page);
    QCOMPARE(RowsOn(f, index), expected);
    QVERIFY(f.Paper.Words(index).contains(u"Page "_s + QString::number(page)));
    QCOMPARE(f.Paper.Rules(index).size(), 19U);
    QCOMPARE(f.Paper.Words(index).contains(u"Sub-Total"_s), page == rows.size());
  }
}

void TestLines::aContinuationPageIsAWholePage() {
  PageFixture f;
  f.FillLines(22);
  f.Look.optReturn = true;
  f.Page.HasShipTo = true;
  f.Page.ShipTo = f.Page.SoldTo;
  f.Page.Shipping = {u"UPS"_s, u"3/7/2026"_s, u"4711"_s};
  f.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  PrintInvoice(f);
  QCOMPARE(Described(f.Paper.Texts(2)).mid(0, 29),
           QStringList({u"7200 720.0 26b 204080 INVOICE"_s,
                        u"1080 576.0 12b 204080 Orchard Supply"_s,
                        u"1080 844.1 10 204080 1 Grove Road"_s,
                        u"1080 1067.6 10 204080 Tampa, FL. 33602"_s,
                        u"1080 1291.0 10 204080 Telephone: 813-555-0100"_s,
                        u"864 6552.0 10 204080 QTY"_s,
                        u"2160 6552.0 10 204080 DATE"_s,
                        u"4464 6552.0 10 204080 DESCRIPTION"_s,
                        u"8784 6552.0 10 204080 PRICE"_s,
                        u"10800 6552.0 10 204080 TOTAL"_s,
                        u"7200 1296.0 10b 204080 Date 3/7/2026"_s,
                        u"7200 1519.5 10b 204080 INVOICE NO: 2500"_s,
                        u"7200 1742.9 10b 204080 Amount Enclosed              _______________"_s,
                        u"7200 1966.4 10b 204080 Acct: 1001"_s,
                        u"7200 2189.8 10b 204080 Page 2"_s,
                        u"1296 5832.0 10b 204080 Reference"_s,
                        u"1650 6264.0 10b 204080 4711"_s,
                        u"1872 12384.0 10b 0000ff Thank you"_s,
                        u"864 6552.0 10b 204080 QTY"_s,
                        u"2160 6552.0 10b 204080 DATE"_s,
                        u"4464 6552.0 10b 204080 DESCRIPTION"_s,
                        u"8784 6552.0 10b 204080 PRICE"_s,
                        u"10800 6552.0 10b 204080 TOTAL"_s,
                        u"1080 2808.0 10b 204080 SOLD TO:"_s,
                        u"1080 3031.0 10b 204080 John Public"_s,
                        u"1080 3254.5 10b 204080 2 Lime Street"_s,
                        u"1080 3477.9 10b 204080 Orlando, FL 32801"_s,
                        u"1113 7056.0 10b 204080 1"_s,
                        u"2131 7056.0 10b 204080 3/7/2026"_s}));
  // Ship-to and detach line are on the first page only.
  QCOMPARE(f.Paper.Find(u"SHIPPED TO:"_s).size(), 1U);
  QCOMPARE(f.Paper.Find(u"Detach Here and Return Top Section"_s).size(), 1U);
}

void TestLines::columnHeadingsStandTwiceOnAContinuationPage() {
  PageFixture f;
  f.FillLines(22);
  PrintInvoice(f);
  QCOMPARE(f.Paper.Words(1).filter(u"DESCRIPTION"_s).size(), 1);
  QCOMPARE(f.Paper.Words(2).filter(u"DESCRIPTION"_s).size(), 2);
}

void TestLines::aLongWrapPassesTheLimitBeforeTheTestSeesIt() {
  PageFixture f;
  f.FillLines(22);
  f.SetLine(21, {u"1"_s, u"1234567890 1234567890 1234567890 1234567890 1234567890 1234567890 1234567890 end"_s});
  PrintInvoice(f);
  QCOMPARE(f.Paper.Find(u"1234567890 end"_s).at(0).Y, 11962.90625F);  // Past the limit of 11880.
  QCOMPARE(f.Paper.Words(1).last(), u"1234567890 end"_s);
  QCOMPARE(RowsOn(f, 2), QStringList(u"Line 22"_s));
}

void TestLines::itemsAreBoldOnPlainPaper() {
  PageFixture f;
  f.FillLines(22);
  PrintInvoice(f);
  QVERIFY(f.Paper.Find(u"SOLD TO:"_s).at(0).Font.Bold);
  QVERIFY(f.Paper.Find(u"Line 1"_s).at(0).Font.Bold);
  QVERIFY(f.Paper.Find(u"Line 22"_s).at(0).Font.Bold);
}

void TestLines::itemsArePlainOnPerforatedPaperAndBoldOnContinuationPages() {
  PageFixture f;
  f.Look.optReturn = true;
  f.FillLines(22);
  PrintInvoice(f);
  QVERIFY(!f.Paper.Find(u"SOLD TO:"_s).at(0).Font.Bold);
  QVERIFY(!f.Paper.Find(u"Line 1"_s).at(0).Font.Bold);
  QVERIFY(!f.Paper.Find(u"Line 21"_s).at(0).Font.Bold);
  QVERIFY(f.Paper.Find(u"SOLD TO:"_s).at(1).Font.Bold);
  QVERIFY(f.Paper.Find(u"Line 22"_s).at(0).Font.Bold);
}

void TestLines::aLineThatTheGridDoesNotHaveIsAnError() {
  PageFixture f;
  f.Page.LineCount = 101;
  try {
    f.Pages.PrintLineItems(f.Page);
    QFAIL("no error");
  } catch (const RuntimeError& error) {
    QCOMPARE(error.Number(), 9);
  }
}

void TestLines::itemsTakeTheDataColorAndLeaveBlack() {
  PageFixture f;
  f.FillLines(1);
  f.Pages.PrintLineItems(f.Page);
  QCOMPARE(f.Paper.ForeColor(), 0U);
  f.Paper.EndDoc();
  f.Look.ckColor = false;
  QCOMPARE(ItemTexts(f).last(), u"3312 7056.0 10 000000 Line 1"_s);
}

void TestLines::theNarrativeStandsAboveTheItems() {
  PageFixture f;
  f.FillLines(1);
  QCOMPARE(WithNarrative(f, "We pruned\r\n\r\nall the trees.\r\n"),
           QStringList({u"360 5328.0 10bu 204080 Details"_s, u"360 5551.0 10 204080 We pruned"_s,
                        u"360 5997.0 10 204080 all the trees."_s, u"1113 8496.0 10 204080 1"_s,
                        u"2131 8496.0 10 204080 3/7/2026"_s, u"8860 8496.0 10 204080 $1.00"_s,
                        u"11020 8496.0 10 204080 $1.00"_s, u"3312 8496.0 10 204080 Line 1"_s}));
  QCOMPARE(f.Messages.Messages, QStringList());
}

void TestLines::anEmptyNarrativeStillPrintsDetails() {
  PageFixture f;
  f.FillLines(1);
  const QStringList texts = WithNarrative(f, {});
  QCOMPARE(texts.at(0), u"360 5328.0 10bu 204080 Details"_s);
  QCOMPARE(texts.at(1), u"1113 8496.0 10 204080 1"_s);
}

void TestLines::aNarrativeLineWithoutABlankOverrunsTheRule() {
  PageFixture f;
  const QString word(150, u'0');
  QCOMPARE(WithNarrative(f, word.toLatin1() + "\r\n").at(1), u"360 5551.0 10 204080 "_s + word);
}

void TestLines::aLongNarrativeLineIsWrapped() {
  PageFixture f;
  // Nine words of ten digits with their blanks are 10509.75 twips of 10780.
  const QByteArray word = "1234567890 ";
  QCOMPARE(WithNarrative(f, word.repeated(10) + "end\r\n").mid(1, 2),
           QStringList({u"360 5551.0 10 204080 "_s + QString::fromLatin1(word.repeated(9)),
                        u"360 5774.5 10 204080 1234567890 end"_s}));
}

void TestLines::sevenNarrativeLinesFit() {
  PageFixture f;
  const QStringList texts = WithNarrative(f, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n");
  QCOMPARE(texts.last(), u"360 6889.0 10 204080 7"_s);
  QCOMPARE(f.Messages.Messages, QStringList());
}

void TestLines::anEighthNarrativeLineIsToldAndDropped() {
  PageFixture f;
  f.FillLines(1);
  const QStringList texts = WithNarrative(f, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n");
  QCOMPARE(f.Messages.Messages,
           QStringList(u"Narrative is to Big: Your Narrative will not fit completely in the allotted area\r\n"
                       u"Review the Invoice after Printing\r\nAnswer NO if the invoice is unacceptable\r\n"
                       u"Re-enter your Narrative"_s));
  QCOMPARE(texts.at(7), u"360 6889.0 10 204080 7"_s);
  QCOMPARE(texts.at(8), u"1113 8496.0 10 204080 1"_s);
}

void TestLines::oneLongNarrativeLineRunsOverTheRuleUnseen() {
  PageFixture f;
  const QByteArray word = "1234567890 ";
  // Ten lines of nine words: from 5551 the last begins at 7562, below the rule at 7200.
  const QStringList texts = WithNarrative(f, word.repeated(89) + "last\r\n");
  QVERIFY(texts.last().startsWith(u"360 7562.1 10 204080 1234567890"_s));
  QVERIFY(texts.last().endsWith(u" last"_s));
  QCOMPARE(f.Messages.Messages, QStringList());
}

void TestLines::narrativeCommasAndQuotesArePrinted() {
  PageFixture f;
  QCOMPARE(WithNarrative(f, "Say \"hello\", twice\r\n").at(1), u"360 5551.0 10 204080 Say \"hello\", twice"_s);
}

void TestLines::aNarrativesFirstWordThatIsTooWideStandsAlone() {
  PageFixture f;
  const QString word(150, u'0');
  QCOMPARE(WithNarrative(f, word.toLatin1() + " end\r\nnext\r\n").mid(1),
           QStringList({u"360 5551.0 10 204080 "_s + word + u' ', u"360 5774.5 10 204080 end"_s,
                        u"360 5998.0 10 204080 next"_s}));
}

void TestLines::itemsStartBelowANarrativeWhateverItsLength_data() {
  QTest::addColumn<QByteArray>("narrative");
  QTest::newRow("empty") << QByteArray();
  QTest::newRow("one line") << QByteArray("1\r\n");
  QTest::newRow("too big") << QByteArray("1\r\n").repeated(12);
  QTest::newRow("one line over the rule") << QByteArray("1234567890 ").repeated(120);
}

void TestLines::itemsStartBelowANarrativeWhateverItsLength() {
  QFETCH(QByteArray, narrative);
  PageFixture f;
  f.FillLines(1);
  // Plain weight, one inch lower than without a narrative.
  QCOMPARE(WithNarrative(f, narrative).last(), u"3312 8496.0 10 204080 Line 1"_s);
}

void TestLines::theTooBigMessageComesBeforeThePageIsFinished() {
  PageFixture f;
  f.FillLines(1);
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, QByteArray("1\r\n").repeated(12));
  f.Paper.SendError = 482;
  // A page that can't be sent has told of the narrative already.
  QVERIFY_THROWS_EXCEPTION(RuntimeError, PrintInvoice(f));
  QCOMPARE(f.Messages.Messages.size(), 1);
  PrintInvoice(f);
  QCOMPARE(f.Messages.Messages.size(), 2);
  QCOMPARE(f.Paper.Find(u"1"_s).size(), 8U);  // Seven of the narrative, and the quantity.
  QVERIFY(f.Paper.Words(1).contains(u"Line 1"_s));
  QVERIFY(f.Paper.Words(1).contains(u"Sub-Total"_s));
}

void TestLines::aDraftPrintsTheNarrativeAndTellsOfItsLengthToo() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, QByteArray("1\r\n").repeated(12));
  f.Draft = true;
  PrintInvoice(f);
  QCOMPARE(f.Paper.Words(1).filter(u"Details"_s).size(), 1);
  QCOMPARE(f.Messages.Messages.size(), 1);
}

void TestLines::aReprintPrintsTheNarrativeAsItStandsThen() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "Before\r\n");
  PrintInvoice(f);
  QCOMPARE(Described(f.Paper.Find(u"Before"_s).at(0)), u"360 5551.0 10 000000 Before"_s);
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "Since then\r\n");
  f.Pages.PrintReprint(f.Page);
  QCOMPARE(f.Paper.Find(u"Before"_s).size(), 0U);
  QCOMPARE(Described(f.Paper.Find(u"Since then"_s).at(0)), u"360 5551.0 10 000000 Since then"_s);
  QVERIFY(QFile::remove(f.Root.path() + u"/KarvexInvoicer/Narratives/2500.txt"_s));
  f.Pages.PrintReprint(f.Page);
  QCOMPARE(f.Paper.Find(u"Details"_s).size(), 0U);
  QCOMPARE(f.Paper.Rules(1).at(1).Y1, 5760);
}

void TestLines::fewerRowsFitBelowANarrative() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "Work\r\n");
  f.FillLines(14);
  PrintInvoice(f);
  QCOMPARE(f.Paper.Jobs.at(0).Pages.size(), 1U);
  f.FillLines(15);
  PrintInvoice(f);
  QCOMPARE(f.Paper.Jobs.at(1).Pages.size(), 2U);
  QCOMPARE(RowsOn(f, 1).size(), 15);
}

void TestLines::continuationPagesStayLoweredAndHaveNoNarrative() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "Work\r\n");
  f.FillLines(16);
  PrintInvoice(f);
  QCOMPARE(f.Paper.Find(u"Details"_s).size(), 1U);
  QCOMPARE(f.Paper.Find(u"Work"_s).size(), 1U);
  QCOMPARE(Described(f.Paper.Rules(2)).at(1), u"360,7200 11880,7200"_s);
  // Plain below the narrative, bold behind the break.
  QCOMPARE(Described(f.Paper.Find(u"Line 15"_s).at(0)), u"3312 11618.0 10 204080 Line 15"_s);
  QCOMPARE(Described(f.Paper.Find(u"Line 16"_s).at(0)), u"3312 8496.0 10b 204080 Line 16"_s);
}

QTEST_MAIN(TestLines)
#include "tst_lines.moc"
