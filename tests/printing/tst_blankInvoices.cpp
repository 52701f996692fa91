// Blank invoices on the recording surface: the sheet on both papers, the count, and what ends a run.
#include "printing/BlankInvoices.h"
#include "runtime/RuntimeError.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

class TestBlankInvoices : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theSheetOnPlainPaper();
  void theSheetOnPerforatedPaper();
  void theMemoIsOnTheSheet();
  void noSoldToAndNoTotals();
  void eachSheetIsAJobWithItsOwnDialogAndPage1();
  void eachSheetTakesTheColorOfItsMoment();
  void aNarrativeWithoutANameLowersTheBody();
  void whatCounts_data();
  void whatCounts();
  void whatIsNoCountIsThePrintError_data();
  void whatIsNoCountIsThePrintError();
  void aCancelEndsTheRunAtThatSheetSilently();
  void anErrorEndsTheRunAtThatSheetWithItsBox();
};

namespace {
const QStringList PrintError{u"Print Error: A Print Error has occurred"_s};

void Print(PageFixture& f, const QString& count) {
  PrintBlanks({f.Routines, f.Pages, f.Look, f.Messages, f.Now}, count);
}

const QStringList Frame{u"7200 720.0 26b 204080 INVOICE"_s, u"1080 576.0 12b 204080 Orchard Supply"_s,
                        u"1080 844.1 10 204080 1 Grove Road"_s, u"1080 1067.6 10 204080 Tampa, FL. 33602"_s,
                        u"1080 1291.0 10 204080 Telephone: 813-555-0100"_s};
const QStringList Columns{u"864 6552.0 10b 204080 QTY"_s, u"2160 6552.0 10b 204080 DATE"_s,
                          u"4464 6552.0 10b 204080 DESCRIPTION"_s, u"8784 6552.0 10b 204080 PRICE"_s,
                          u"10800 6552.0 10b 204080 TOTAL"_s};
}  // namespace

void TestBlankInvoices::theSheetOnPlainPaper() {
  PageFixture f;
  Print(f, u"1"_s);
  QCOMPARE(Described(f.Paper.Texts(1)),
           Frame +
               QStringList({u"7200 1296.0 10b 204080 Date 3/7/2026"_s, u"7200 1519.5 10b 204080 INVOICE NO: "_s,
                            u"7200 1742.9 10b 204080 Acct: "_s, u"7200 1966.4 10b 204080 Page 1"_s,
                            u"1296 5832.0 10b 204080 Reference"_s}) +
               Columns);
  QCOMPARE(f.Paper.Rules(1).size(), 19U);
  QCOMPARE(f.Paper.Jobs.back().Pages.size(), 1U);
  QCOMPARE(f.Messages.Messages, QStringList());
}

void TestBlankInvoices::theSheetOnPerforatedPaper() {
  PageFixture f;
  f.Look.optReturn = true;
  Print(f, u"1"_s);
  QCOMPARE(Described(f.Paper.Texts(1)),
           Frame +
               QStringList({u"7200 1296.0 10b 204080 Date 3/7/2026"_s, u"7200 1519.5 10b 204080 INVOICE NO: "_s,
                            u"7200 1742.9 10b 204080 Amount Enclosed              _______________"_s,
                            u"7200 1966.4 10b 204080 Acct: "_s, u"7200 2189.8 10b 204080 Page 1"_s,
                            u"1296 5832.0 10b 204080 Reference"_s}) +
               Columns + QStringList(u"4320 5184.0 6b 204080 Detach Here and Return Top Section"_s));
}

void TestBlankInvoices::theMemoIsOnTheSheet() {
  PageFixture f;
  f.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  Print(f, u"1"_s);
  QCOMPARE(Described(f.Paper.Find(u"Thank you"_s).at(0)), u"1872 12384.0 10b 0000ff Thank you"_s);
}

void TestBlankInvoices::noSoldToAndNoTotals() {
  PageFixture f;
  f.Write(u"/StatementTerms.txt"_s, "Net 30\r\n");
  Print(f, u"1"_s);
  const QStringList words = f.Paper.Words(1);
  for (const auto& word : {u"SOLD TO:"_s, u"SHIPPED TO:"_s, u"Sub-Total"_s, u"Total"_s, u"Net 30"_s})
    QVERIFY2(!words.contains(word), qPrintable(word));
}

void TestBlankInvoices::eachSheetIsAJobWithItsOwnDialogAndPage1() {
  PageFixture f;
  Print(f, u"3"_s);
  QCOMPARE(f.Paper.DialogsShown, 3);
  QCOMPARE(f.Paper.Jobs.size(), 3U);
  for (const PaperJob& job : f.Paper.Jobs) QCOMPARE(job.Pages.size(), 1U);
  QCOMPARE(f.Paper.Jobs[1].Title, u"Blank Invoice 2 of 3"_s);
  QCOMPARE(f.Paper.Find(u"Page 1"_s).size(), 1U);
  Print(f, u"1"_s);
  QCOMPARE(f.Paper.Jobs.back().Title, u"Blank Invoice"_s);
}

void TestBlankInvoices::eachSheetTakesTheColorOfItsMoment() {
  PageFixture f;
  f.Paper.OnDialog = [&] { f.Look.ckColor = f.Paper.DialogsShown == 1; };
  Print(f, u"2"_s);
  QCOMPARE(f.Paper.ColorMode, 1);
  QCOMPARE(f.Paper.Find(u"INVOICE"_s).at(0).Color, 0U);
}

void TestBlankInvoices::aNarrativeWithoutANameLowersTheBody() {
  PageFixture f;
  f.Write(u"/KarvexInvoicer/Narratives/.txt"_s, "Work\r\n");
  Print(f, u"1"_s);
  QCOMPARE(Described(f.Paper.Rules(1)).at(1), u"360,7200 11880,7200"_s);
  QCOMPARE(Described(f.Paper.Find(u"Reference"_s).at(0)), u"1296 7272.0 10b 204080 Reference"_s);
  QVERIFY(!f.Paper.Words(1).contains(u"Work"_s));
}

void TestBlankInvoices::whatCounts_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("sheets");
  QTest::newRow("none") << u"0"_s << 0;
  QTest::newRow("below none") << u"-2"_s << 0;
  QTest::newRow("blanks around") << u" 2 "_s << 2;
  QTest::newRow("half rounds to even") << u"2.5"_s << 2;
  QTest::newRow("exponent") << u"1E0"_s << 1;
}

void TestBlankInvoices::whatCounts() {
  QFETCH(QString, text);
  QFETCH(int, sheets);
  PageFixture f;
  Print(f, text);
  QCOMPARE(f.Paper.DialogsShown, sheets);
  QCOMPARE(f.Paper.Jobs.size(), static_cast<std::size_t>(sheets));
  QCOMPARE(f.Messages.Messages, QStringList());
}

void TestBlankInvoices::whatIsNoCountIsThePrintError_data() {
  QTest::addColumn<QString>("text");
  QTest::newRow("nothing") << QString();
  QTest::newRow("letters") << u"two"_s;
  QTest::newRow("a number and letters") << u"2 sheets"_s;
  QTest::newRow("beyond 16 bits") << u"32768"_s;
}

void TestBlankInvoices::whatIsNoCountIsThePrintError() {
  QFETCH(QString, text);
  PageFixture f;
  Print(f, text);
  QCOMPARE(f.Messages.Messages, PrintError);
  QCOMPARE(f.Paper.DialogsShown, 0);
}

void TestBlankInvoices::aCancelEndsTheRunAtThatSheetSilently() {
  PageFixture f;
  f.Paper.OnDialog = [&] {
    if (f.Paper.DialogsShown == 3) f.Paper.DialogError = ErrorNumber::DialogCancelled;
  };
  Print(f, u"5"_s);
  QCOMPARE(f.Paper.DialogsShown, 3);
  QCOMPARE(f.Paper.Jobs.size(), 2U);
  QCOMPARE(f.Messages.Messages, QStringList());
}

void TestBlankInvoices::anErrorEndsTheRunAtThatSheetWithItsBox() {
  PageFixture f;
  f.Paper.OnDialog = [&] {
    if (f.Paper.DialogsShown == 2) f.Paper.SendError = ErrorNumber::PrinterError;
  };
  Print(f, u"5"_s);
  QCOMPARE(f.Paper.DialogsShown, 2);
  QCOMPARE(f.Paper.Jobs.size(), 1U);
  QCOMPARE(f.Messages.Messages, PrintError);
}

QTEST_MAIN(TestBlankInvoices)
#include "tst_blankInvoices.moc"
