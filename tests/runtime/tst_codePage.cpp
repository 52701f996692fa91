// The files' characters: one byte each.
#include <QtTest>

#include "runtime/CodePage.h"

using namespace Qt::StringLiterals;

class CodePageTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyByteSurvivesALoadAndASave() {
    QByteArray bytes;
    for (int i = 0; i < 256; ++i) bytes.append(static_cast<char>(i));
    const QString text = FromCodePage(bytes);
    QCOMPARE(text.size(), 256);
    QCOMPARE(ToCodePage(text), bytes);
    for (const char byte : bytes) {
      const QByteArray one(1, byte);
      QCOMPARE(ToCodePage(FromCodePage(one)), one);
    }
  }

  void theCharactersOfThePage_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("ascii") << QByteArray("Karvex 1-9") << u"Karvex 1-9"_s;
    QTest::newRow("euro") << QByteArray("\x80") << u"\u20ac"_s;
    QTest::newRow("quotes") << QByteArray("\x91\x92\x93\x94") << u"\u2018\u2019\u201c\u201d"_s;
    QTest::newRow("dashes") << QByteArray("\x96\x97") << u"\u2013\u2014"_s;
    QTest::newRow("trade mark") << QByteArray("\x99") << u"\u2122"_s;
    QTest::newRow("upper half") << QByteArray("\xa3\xb0\xe9\xff") << u"\u00a3\u00b0\u00e9\u00ff"_s;
    QTest::newRow("undefined bytes") << QByteArray("\x81\x8d\x8f\x90\x9d") << u"\u0081\u008d\u008f\u0090\u009d"_s;
    QTest::newRow("zero bytes") << QByteArray("\0\x80\0", 3) << QString(u"\0\u20ac\0"_s);
    QTest::newRow("nothing") << QByteArray("") << QString();
  }
  void theCharactersOfThePage() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(FromCodePage(bytes), text);
    QCOMPARE(ToCodePage(text), bytes);
  }

  void aCharacterOutsideThePageBecomesAQuestionMark_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("another alphabet") << u"a\u0105b"_s << QByteArray("a?b");
    QTest::newRow("only such") << u"\u65e5\u672c"_s << QByteArray("??");
    QTest::newRow("beside one of the page") << u"\u20ac\u0105\u00e9"_s << QByteArray("\x80?\xe9");
    QTest::newRow("a pair of units is one character") << u"x\U0001F34Ay"_s << QByteArray("x?y");
    QTest::newRow("half a pair") << u"x"_s + QChar(0xd83c) + u"y"_s << QByteArray("x?y");
    QTest::newRow("half a pair at the end") << u"x"_s + QChar(0xd83c) << QByteArray("x?");
    QTest::newRow("the second half alone") << u"x"_s + QChar(0xdf4a) << QByteArray("x?");
    QTest::newRow("beside a substitute character") << u"\u001a\u0105"_s << QByteArray("\x1a?");
    QTest::newRow("beside a zero character") << QString(QChar::Null) + u"\u0105"_s << QByteArray("\0?", 2);
  }
  void aCharacterOutsideThePageBecomesAQuestionMark() {
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QCOMPARE(ToCodePage(text), bytes);
  }

  void everyByteHasItsCapital() {
    const std::array<char, 256> capitals = CapitalsOfCodePage();
    const auto capitalOf = [&](char byte) { return capitals[static_cast<unsigned char>(byte)]; };
    const QByteArray small("az09 ?\xe0\xe9\xfe\x9a\x9c\x9e\xff");
    const QByteArray capital("AZ09 ?\xc0\xc9\xde\x8a\x8c\x8e\x9f");
    for (qsizetype i = 0; i < small.size(); ++i) {
      QCOMPARE(capitalOf(small[i]), capital[i]);
      QCOMPARE(capitalOf(capital[i]), capital[i]);
    }
    // A sharp s has two capitals; those of the micro sign and the florin aren't in the code page.
    for (const char own : {'\xdf', '\xb5', '\x83', '\xd7', '\xf7', '\x81', '\0'}) QCOMPARE(capitalOf(own), own);
  }

  void everyByteHasItsSmallLetter() {
    const std::array<char, 256> letters = SmallLettersOfCodePage();
    const auto smallOf = [&](char byte) { return letters[static_cast<unsigned char>(byte)]; };
    const QByteArray capital("AZ09 ?\xc0\xc9\xde\x8a\x8c\x8e\x9f");
    const QByteArray small("az09 ?\xe0\xe9\xfe\x9a\x9c\x9e\xff");
    for (qsizetype i = 0; i < capital.size(); ++i) {
      QCOMPARE(smallOf(capital[i]), small[i]);
      QCOMPARE(smallOf(small[i]), small[i]);
    }
    for (const char own : {'\xdf', '\xb5', '\x83', '\xd7', '\xf7', '\x81', '\0'}) QCOMPARE(smallOf(own), own);
  }
};

QTEST_GUILESS_MAIN(CodePageTest)
#include "tst_codePage.moc"
