// The packing slip on the recording surface. A line of 10 points is 223.453125 twips high, one of 12 points 268.140625.
#include "printing/PackingSlip.h"
#include "runtime/RuntimeError.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

class TestPackingSlip : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theWholeSlipInItsOrder();
  void theRulesAreThoseOfTheInvoice();
  void theSlipBearsNoPriceNoCustomerNoNumberAndNoMemo();
  void thePageNumberIsNotPrinted();
  void packedByStaysEmptyBetweenItsRules();
  void linesWithoutAQuantityAreSkipped();
  void theLastRowOfTheGridIsPrinted();
  void aSlipOfNoLinesIsTheFrameAndTheHeadings();
  void aWideDescriptionIsOneRunBeyondTheSheet();
  void theLastLineThatFitsIsThe23rd();
  void threePagesAreThreeWholeFrames();
  void skippedLinesTakeNoRoom();
  void aNarrativeNamedFalseLowersTheRulesOnly();
  void withoutColorEverythingIsBlack();
  void yesEndsIt();
  void noAndNoEndsItWithOneSlip();
  void aReprintComesWithoutADialog();
  void aCancelledDialogEndsItSilently();
  void anErrorIsThePrintErrorAndAsksNothing();
  void aFileThatCannotBeReadIsThePrintErrorToo();
};

namespace {
const QString Printed = u"Print Confirmation? Was the Packing Slip printed Correctly?"_s;
const QString Again = u"Reprint Confirmation? Would you like to reprint it?"_s;
const QString PrintError = u"Print Error: A Print Error has occurred"_s;

void PrintSlip(PageFixture& f, const QList<bool>& answers = {true}) {
  f.Messages.Answers = answers;
  PrintPackingSlip({f.Routines, f.Pages, f.Messages}, f.Lines);
}

std::size_t PageCount(const PageFixture& f) {
  return f.Paper.Jobs.back().Pages.size();
}

QStringList RowsOn(const PageFixture& f, std::size_t page) {
  return f.Paper.Words(page).filter(QRegularExpression(u"^Line "_s));
}

QStringList Rows(int from, int to) {
  QStringList rows;
  for (int row = from; row <= to; ++row) rows.append(u"Line "_s + QString::number(row));
  return rows;
}

const QStringList FrameAndHeadings{u"7920 720.0 26b 204080 Packing Slip"_s,
                                   u"1080 864.0 12b 204080 Orchard Supply"_s,
                                   u"1080 1132.1 10 204080 1 Grove Road"_s,
                                   u"1080 1355.6 10 204080 Tampa, FL. 33602"_s,
                                   u"1080 1579.0 10 204080 Telephone: 813-555-0100"_s,
                                   u"864 5832.0 10 204080 Qty"_s,
                                   u"2016 5832.0 10 204080 Packed By"_s,
                                   u"3600 5832.0 10 204080 Description"_s};
}  // namespace

void TestPackingSlip::theWholeSlipInItsOrder() {
  PageFixture f;
  f.SetLine(1, {u"2"_s, u"Oranges"_s, u"3/7/2026"_s, u"$33.33"_s, u"$66.66"_s});
  f.SetLine(2, {u"10"_s, u"Lemons"_s, u"3/7/2026"_s, u"$1.00"_s, u"$10.00"_s});
  PrintSlip(f);
  // A digit is 111.21875 wide; quantities are right-aligned to 1296.
  QCOMPARE(Described(f.Paper.Texts(1)),
           FrameAndHeadings + QStringList({u"1185 6912.0 10 000000 2"_s, u"3456 6912.0 10 000000 Oranges"_s,
                                           u"1074 7135.5 10 000000 10"_s, u"3456 7135.5 10 000000 Lemons"_s}));
  QCOMPARE(f.Paper.DialogsShown, 1);
  QCOMPARE(f.Paper.Jobs.size(), 1U);
}

void TestPackingSlip::theRulesAreThoseOfTheInvoice() {
  PageFixture f;
  f.Pages.PrintInvoice(f.Page, f.Draft);
  const QStringList invoice = Described(f.Paper.Rules(1));
  QCOMPARE(invoice.size(), 19);
  PrintSlip(f);
  QCOMPARE(Described(f.Paper.Rules(1)), invoice);
}

void TestPackingSlip::theSlipBearsNoPriceNoCustomerNoNumberAndNoMemo() {
  PageFixture f;
  f.Look.optReturn = true;
  f.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  f.Write(u"/StatementTerms.txt"_s, "Net 30\r\n");
  f.Write(u"/KarvexInvoicer/Narratives/2500.txt"_s, "Work\r\n");
  f.FillLines(1);
  PrintSlip(f);
  QCOMPARE(Described(f.Paper.Texts(1)),
           FrameAndHeadings + QStringList({u"1185 6912.0 10 000000 1"_s, u"3456 6912.0 10 000000 Line 1"_s}));
}

void TestPackingSlip::thePageNumberIsNotPrinted() {
  PageFixture f;
  f.FillLines(30);
  PrintSlip(f);
  QCOMPARE(PageCount(f), 2U);
  QVERIFY(f.Paper.Words(1).filter(u"Page"_s).isEmpty());
  QVERIFY(f.Paper.Words(2).filter(u"Page"_s).isEmpty());
}

void TestPackingSlip::packedByStaysEmptyBetweenItsRules() {
  PageFixture f;
  f.FillLines(23);
  PrintSlip(f);
  const QStringList rules = Described(f.Paper.Rules(1));
  QVERIFY(rules.contains(u"1800,6480 1800,14400"_s));
  QVERIFY(rules.contains(u"3240,5760 3240,12240"_s));
  for (const PaperText& run : f.Paper.Texts(1)) {
    if (run.Y > 6480) QVERIFY2(run.X < 1296 || run.X > 3240, qPrintable(Described(run)));
  }
}

void TestPackingSlip::linesWithoutAQuantityAreSkipped() {
  PageFixture f;
  f.SetLine(1, {u"1"_s, u"Oranges"_s});
  f.SetLine(2, {{}, u"A service"_s});
  f.SetLine(3, {{}, u"A memo line"_s});
  f.SetLine(5, {u"2.50 Hrs"_s, u"Labor"_s});
  PrintSlip(f);
  QCOMPARE(f.Paper.Words(1).mid(8), QStringList({u"1"_s, u"Oranges"_s, u"2.50 Hrs"_s, u"Labor"_s}));
  QCOMPARE(Described(f.Paper.Find(u"Labor"_s).at(0)), u"3456 7135.5 10 000000 Labor"_s);
}

void TestPackingSlip::theLastRowOfTheGridIsPrinted() {
  PageFixture f;
  f.SetLine(100, {u"7"_s, u"The last"_s});
  PrintSlip(f);
  QCOMPARE(f.Paper.Words(1).mid(8), QStringList({u"7"_s, u"The last"_s}));
}

void TestPackingSlip::aSlipOfNoLinesIsTheFrameAndTheHeadings() {
  PageFixture f;
  PrintSlip(f);
  QCOMPARE(Described(f.Paper.Texts(1)), FrameAndHeadings);
  QCOMPARE(f.Messages.Messages, QStringList(Printed));
}

void TestPackingSlip::aWideDescriptionIsOneRunBeyondTheSheet() {
  PageFixture f;
  // Ten words of ten digits with their blanks are 11677.5 twips: from 3456 they end beyond 12240.
  const QString wide = u"1234567890 "_s.repeated(10) + u"end"_s;
  f.SetLine(1, {u"1"_s, wide});
  f.SetLine(2, {u"1"_s, u"Next"_s});
  PrintSlip(f);
  QCOMPARE(Described(f.Paper.Find(wide).at(0)), u"3456 6912.0 10 000000 "_s + wide);
  QCOMPARE(Described(f.Paper.Find(u"Next"_s).at(0)), u"3456 7135.5 10 000000 Next"_s);
}

void TestPackingSlip::theLastLineThatFitsIsThe23rd() {
  PageFixture f;
  f.FillLines(23);
  PrintSlip(f);
  QCOMPARE(PageCount(f), 1U);
  // 6912 + 22 * 223.453125: one more would begin at 12051.4 and end at 12274.9, past 12240.
  QCOMPARE(f.Paper.Find(u"Line 23"_s).at(0).Y, 11827.96875F);
  f.FillLines(24);
  PrintSlip(f);
  QCOMPARE(PageCount(f), 2U);
  QCOMPARE(RowsOn(f, 2), Rows(24, 24));
}

void TestPackingSlip::threePagesAreThreeWholeFrames() {
  PageFixture f;
  f.FillLines(60);
  PrintSlip(f);
  QCOMPARE(f.Paper.Jobs.size(), 1U);
  QCOMPARE(PageCount(f), 3U);
  QCOMPARE(RowsOn(f, 1), Rows(1, 23));
  QCOMPARE(RowsOn(f, 2), Rows(24, 46));
  QCOMPARE(RowsOn(f, 3), Rows(47, 60));
  for (std::size_t page = 1; page <= 3; ++page) {
    QCOMPARE(f.Paper.Rules(page).size(), 19U);
    const QStringList texts = Described(f.Paper.Texts(page));
    QCOMPARE(texts.mid(0, 8), FrameAndHeadings);
    QCOMPARE(texts.at(8), u"1185 6912.0 10 000000 1"_s);
  }
}

void TestPackingSlip::skippedLinesTakeNoRoom() {
  PageFixture f;
  f.FillLines(46);
  for (int row = 2; row <= 46; row += 2) f.SetLine(row, {QString()});
  PrintSlip(f);
  QCOMPARE(PageCount(f), 1U);
  QCOMPARE(RowsOn(f, 1).size(), 23);
}

void TestPackingSlip::aNarrativeNamedFalseLowersTheRulesOnly() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/False.txt"_s, "Work\r\n");
  f.FillLines(1);
  PrintSlip(f);
  QCOMPARE(Described(f.Paper.Rules(1)).at(1), u"360,7200 11880,7200"_s);
  QCOMPARE(Described(f.Paper.Texts(1)),
           FrameAndHeadings + QStringList({u"1185 6912.0 10 000000 1"_s, u"3456 6912.0 10 000000 Line 1"_s}));
}

void TestPackingSlip::withoutColorEverythingIsBlack() {
  PageFixture f;
  f.Look.ckColor = false;
  f.FillLines(24);
  PrintSlip(f);
  QCOMPARE(f.Paper.ColorMode, 1);
  for (const PaperText& run : f.Paper.Texts(2)) QCOMPARE(run.Color, 0U);
}

void TestPackingSlip::yesEndsIt() {
  PageFixture f;
  PrintSlip(f, {true});
  QCOMPARE(f.Messages.Messages, QStringList(Printed));
  QCOMPARE(f.Paper.Jobs.size(), 1U);
}

void TestPackingSlip::noAndNoEndsItWithOneSlip() {
  PageFixture f;
  PrintSlip(f, {false, false});
  QCOMPARE(f.Messages.Messages, QStringList({Printed, Again}));
  QCOMPARE(f.Paper.Jobs.size(), 1U);
}

void TestPackingSlip::aReprintComesWithoutADialog() {
  PageFixture f;
  f.FillLines(30);
  PrintSlip(f, {false, true, false, true, true});
  QCOMPARE(f.Messages.Messages, QStringList({Printed, Again, Printed, Again, Printed}));
  QCOMPARE(f.Paper.DialogsShown, 1);
  QCOMPARE(f.Paper.Jobs.size(), 3U);
  // The last of them is whole, from its first page on.
  QCOMPARE(RowsOn(f, 1), Rows(1, 23));
  QCOMPARE(RowsOn(f, 2), Rows(24, 30));
  QCOMPARE(Described(f.Paper.Texts(1)).mid(0, 8), FrameAndHeadings);
}

void TestPackingSlip::aCancelledDialogEndsItSilently() {
  PageFixture f;
  f.Paper.DialogError = ErrorNumber::DialogCancelled;
  PrintSlip(f, {});
  QCOMPARE(f.Messages.Messages, QStringList());
  QCOMPARE(f.Paper.Jobs.size(), 0U);
}

void TestPackingSlip::anErrorIsThePrintErrorAndAsksNothing() {
  PageFixture f;
  f.Paper.SendError = ErrorNumber::PrinterError;
  PrintSlip(f, {});
  QCOMPARE(f.Messages.Messages, QStringList(PrintError));
  QCOMPARE(f.Paper.Jobs.size(), 0U);
  // Nothing of it stays on the surface.
  PrintSlip(f);
  QCOMPARE(Described(f.Paper.Texts(1)), FrameAndHeadings);
}

void TestPackingSlip::aFileThatCannotBeReadIsThePrintErrorToo() {
  PageFixture f;
  f.Write(u"/MyWebSite.txt"_s, {});
  PrintSlip(f, {});
  QCOMPARE(f.Messages.Messages, QStringList(PrintError));
  QCOMPARE(f.Paper.Jobs.size(), 0U);
}

QTEST_MAIN(TestPackingSlip)
#include "tst_packingSlip.moc"
