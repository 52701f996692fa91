// Wrapped text on the recording surface. At 10 points a digit is 111.21875 twips wide and a blank 55.5625, so that
// "00 " is 278 twips exactly; a line is 223.453125 high.
#include <ctime>

#include "runtime/RuntimeError.h"
#include "support/PageFixture.h"
#include "support/PlainPrinter.h"

using namespace Qt::StringLiterals;

class TestWrapping : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aTextBreaksWhereTheNextWordIsTooWide();
  void theWidthLessTwentyStillFits();
  void theBlankBehindAWordCountsForItsWidth();
  void blanksAtABreakAreDropped();
  void aTextWithoutABlankStaysOnOneLine();
  void theLastWordNeverStandsAlone();
  void aFirstWordThatIsTooWideIsPrintedAlone();
  void aWideWordInTheMiddleIsPrintedAlone();
  void emptyTextPrintsOneBlankLine();
  void aMillionLinesOfOneTextWrapAtOnce();
  void linesAddUpUnrounded();
  void theCursorIsRoundedToWholeTwips();
  void aCursorBeyond16BitsIsAnOverflow();
};

namespace {
QStringList Wrapped(PageFixture& f, qint16 width, const QString& text) {
  f.Routines.PrintWrapped(500, 1000, width, text);
  f.Paper.EndDoc();
  return f.Paper.Words(1);
}
}  // namespace

void TestWrapping::aTextBreaksWhereTheNextWordIsTooWide() {
  PageFixture f;
  f.Routines.PrintWrapped(500, 1000, 700, u"00 11 22 33 44 55"_s);
  f.Paper.EndDoc();
  // Two words with their blanks are 556 wide, three are 834, of 680. The rest of the third line has one blank only.
  QCOMPARE(Described(f.Paper.Texts(1)), QStringList({u"500 1000.0 10 000000 00 11 "_s, u"500 1223.5 10 000000 22 33 "_s,
                                                     u"500 1446.9 10 000000 44 55"_s}));
}

void TestWrapping::theWidthLessTwentyStillFits() {
  PageFixture f;
  QCOMPARE(Wrapped(f, 576, u"00 11 22 33 44"_s), QStringList({u"00 11 "_s, u"22 33 44"_s}));
}

void TestWrapping::theBlankBehindAWordCountsForItsWidth() {
  PageFixture f;
  QCOMPARE(Wrapped(f, 575, u"00 11 22 33"_s), QStringList({u"00 "_s, u"11 "_s, u"22 33"_s}));
}

void TestWrapping::blanksAtABreakAreDropped() {
  PageFixture f;
  // 278, 333.6, 389.1, 444.7 with each blank; the next word would make 722.7.
  QCOMPARE(Wrapped(f, 420, u"00    11 22"_s), QStringList({u"00   "_s, u"11 22"_s}));
  // A text of blanks that are all dropped at the break ends there.
  QCOMPARE(Wrapped(f, 320, u"00     "_s), QStringList({u"00 "_s}));
}

void TestWrapping::aTextWithoutABlankStaysOnOneLine() {
  PageFixture f;
  const QString word(100, u'0');
  QCOMPARE(Wrapped(f, 576, word), QStringList(word));
}

void TestWrapping::theLastWordNeverStandsAlone() {
  PageFixture f;
  QCOMPARE(Wrapped(f, 576, u"00 11 2222222222"_s), QStringList({u"00 11 2222222222"_s}));
}

void TestWrapping::aFirstWordThatIsTooWideIsPrintedAlone() {
  PageFixture f;
  QCOMPARE(Wrapped(f, 576, u"0000000000 11 22"_s), QStringList({u"0000000000 "_s, u"11 22"_s}));
}

void TestWrapping::aWideWordInTheMiddleIsPrintedAlone() {
  PageFixture f;
  QCOMPARE(Wrapped(f, 576, u"00 1111111111  22 33"_s), QStringList({u"00 "_s, u"1111111111 "_s, u"22 33"_s}));
}

void TestWrapping::emptyTextPrintsOneBlankLine() {
  PageFixture f;
  f.Routines.PrintWrapped(500, 1000, 576, {});
  QCOMPARE(static_cast<double>(f.Paper.CurrentY), 1223.453125);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Words(1), QStringList());
}

void TestWrapping::aMillionLinesOfOneTextWrapAtOnce() {
  // Two words of 240 twips with their blanks to a line of 490. What is left of the text is never copied line by line.
  PlainPrinter paper;
  PrintAppearance look;
  CommonDialog dialog;
  PrinterRoutines routines(paper, look, dialog);
  constexpr qsizetype lines = 1'000'000;
  const std::clock_t before = std::clock();
  routines.PrintWrapped(500, 1000, 510, u"0 1 "_s.repeated(lines));
  const std::clock_t used = std::clock() - before;
  QVERIFY2(used < 10 * CLOCKS_PER_SEC, qPrintable(QString::number(used)));
  QCOMPARE(paper.Lines(), lines);
}

void TestWrapping::linesAddUpUnrounded() {
  PageFixture f;
  f.Routines.PrintWrapped(500, 1000, 300, u"00 11 22 33 44"_s);
  QCOMPARE(static_cast<double>(f.Paper.CurrentY), 1893.8125);  // Four lines of 223.453125.
}

void TestWrapping::theCursorIsRoundedToWholeTwips() {
  PageFixture f;
  f.Paper.CurrentX = 100.5F;  // Ties go to the even side.
  f.Paper.CurrentY = 301.5F;
  f.Routines.PrintWrappedHere(576, u"00"_s);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Texts(1).at(0).X, 100.0F);
  QCOMPARE(f.Paper.Texts(1).at(0).Y, 302.0F);
}

void TestWrapping::aCursorBeyond16BitsIsAnOverflow() {
  PageFixture f;
  f.Paper.CurrentY = 32768.0F;
  try {
    f.Routines.PrintWrappedHere(576, u"00"_s);
    QFAIL("no error");
  } catch (const RuntimeError& error) {
    QCOMPARE(error.Number(), 6);
  }
}

QTEST_MAIN(TestWrapping)
#include "tst_wrapping.moc"
