// Numbers read from text and narrowed, by the one fixed regional setting.
#include <limits>
#include <QtTest>

#include "runtime/Numbers.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class NumbersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatIsNumeric_data() {
    QTest::addColumn<double>("value");
    const auto numeric = [](const char* text, double value) { QTest::newRow(text) << value; };
    numeric("0", 0);
    numeric("12", 12);
    numeric("  12.5 ", 12.5);
    numeric("-12", -12);
    numeric("+12", 12);
    numeric("12-", -12);
    numeric("12+", 12);
    numeric("(12)", -12);
    numeric("$12", 12);
    numeric("-$12.50", -12.5);
    numeric("$-12.50", -12.5);
    numeric("($12.50)", -12.5);
    numeric("$(12.50)", -12.5);
    numeric("$12-", -12);
    numeric("1,234", 1234);
    numeric("1,2,3", 123);
    numeric("$1,234,567.89", 1234567.89);
    numeric("12.", 12);
    numeric(".5", 0.5);
    numeric("-.5", -0.5);
    numeric("1E3", 1000);
    numeric("1e3", 1000);
    numeric("1E+3", 1000);
    numeric("25E-1", 2.5);
    numeric(".5E1", 5);
    numeric("5.E1", 50);
    numeric("-1E3", -1000);
    numeric("$1E3", 1000);
    numeric("1E3-", -1000);
    numeric("007", 7);
    numeric("0.000", 0);
    numeric("-0", 0);
    numeric("1E-400", 0);
  }
  void whatIsNumeric() {
    QFETCH(double, value);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(IsNumeric(text));
    QCOMPARE(ToNumber(text), value);
  }

  void whatIsNotNumeric_data() {
    QTest::addColumn<QString>("text");
    const char* const texts[] = {"",
                                 " ",
                                 "-",
                                 "$",
                                 ".",
                                 "()",
                                 "-.",
                                 "E3",
                                 "1E",
                                 "1E+",
                                 "abc",
                                 "12abc",
                                 "1 2",
                                 "- 5",
                                 "$ 5",
                                 "--5",
                                 "-5-",
                                 "+-5",
                                 "$$5",
                                 "$5$",
                                 "(5",
                                 "5)",
                                 "((5))",
                                 "-(5)",
                                 "(-5)",
                                 "(5)-",
                                 ")5(",
                                 "1..2",
                                 "1.2.3",
                                 ",5",
                                 "5,",
                                 "1,,2",
                                 "1.2,3",
                                 "1,.5",
                                 "1E2E3",
                                 "1E2.5",
                                 "1E1,0",
                                 "#5",
                                 "5%",
                                 "&H1F",
                                 "1D3",
                                 "0x10",
                                 "nan",
                                 "inf",
                                 "3/7/2026",
                                 "\t5",
                                 "5\n",
                                 "\xa3"
                                 "5",
                                 "True"};
    for (const char* text : texts) QTest::addRow("<%s>", text) << QString::fromLatin1(text);
    QTest::newRow("digits of another script") << u"\u0661\u0662"_s;
    QTest::newRow("a zero character") << QString(1, QChar::Null);
  }
  void whatIsNotNumeric() {
    QFETCH(QString, text);
    QVERIFY(!IsNumeric(text));
    const RuntimeError error = CaughtFrom([&] { ToNumber(text, u"txtHours"_s); });
    QCOMPARE(error.Number(), 13);
    QCOMPARE(error.Subject(), u"txtHours"_s);
  }

  void aNumberTooLargeForADoubleIsErrorSix() {
    QVERIFY(IsNumeric(u"1E400"));
    QCOMPARE(ErrorOf([] { ToNumber(u"1E400"); }), 6);
    QCOMPARE(ErrorOf([] { ToNumber(QString(400, u'9')); }), 6);
    QCOMPARE(ToNumber(u"0."_s + QString(400, u'0') + u"1"_s), 0.0);
    QCOMPARE(ErrorOf([] { ToNumber(u"-1E99999999999999999999"); }), 6);
  }

  void theLeadingNumberIsReadAndTheRestLeft_data() {
    QTest::addColumn<double>("value");
    const auto leads = [](const char* text, double value) { QTest::addRow("<%s>", text) << value; };
    leads("", 0);
    leads("   ", 0);
    leads("abc", 0);
    leads("-", 0);
    leads(".", 0);
    leads("-.", 0);
    leads("E3", 0);
    leads("$5", 0);
    leads("(5)", 0);
    leads("12", 12);
    leads("  12.5x", 12.5);
    leads("12abc", 12);
    leads("-12.5-", -12.5);
    leads("+7", 7);
    leads("1,234", 1);
    leads("1.2.3", 1.2);
    leads(".5", 0.5);
    leads("-.5", -0.5);
    leads("5.", 5);
    leads("5.x", 5);
    leads("1 2", 1);
    leads("- 5", 0);
    leads("--5", 0);
    leads("1E3", 1000);
    leads("1e3x", 1000);
    leads("1E+2", 100);
    leads("1E-2", 0.01);
    leads("1E", 1);
    leads("1Ex", 1);
    leads("1E+", 1);
    leads("1E-x", 1);
    leads("8 Hrs", 8);
    leads("1E400", std::numeric_limits<double>::max());
    leads("-1E400", -std::numeric_limits<double>::max());
  }
  void theLeadingNumberIsReadAndTheRestLeft() {
    QFETCH(double, value);
    const QString tag = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(ParseLeadingNumber(tag.sliced(1).chopped(1)), value);
  }

  void wholeNumbersRoundTiesToEven_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("whole");
    QTest::newRow("1.5") << 1.5 << 2;
    QTest::newRow("2.5") << 2.5 << 2;
    QTest::newRow("2.51") << 2.51 << 3;
    QTest::newRow("2.49") << 2.49 << 2;
    QTest::newRow("-0.5") << -0.5 << 0;
    QTest::newRow("-1.5") << -1.5 << -2;
    QTest::newRow("-2.5") << -2.5 << -2;
    QTest::newRow("greatest") << 32767.5 - 0.01 << 32767;
    QTest::newRow("least") << -32768.5 << -32768;
  }
  void wholeNumbersRoundTiesToEven() {
    QFETCH(double, value);
    QFETCH(int, whole);
    QCOMPARE(int{ToInt16(value)}, whole);
    QCOMPARE(ToInt32(value), whole);
  }

  void outsideTheWidthIsErrorSix() {
    QCOMPARE(ErrorOf([] { ToInt16(32767.5); }), 6);
    QCOMPARE(ErrorOf([] { ToInt16(-32768.6); }), 6);
    QCOMPARE(ToInt32(2147483647.4), 2147483647);
    QCOMPARE(ToInt32(-2147483648.5), std::numeric_limits<qint32>::min());
    QCOMPARE(ErrorOf([] { ToInt32(2147483647.5); }), 6);
    QCOMPARE(ErrorOf([] { ToInt32(-2147483649.0); }), 6);
    QCOMPARE(ErrorOf([] { ToInt16(std::numeric_limits<double>::quiet_NaN()); }), 6);
    QCOMPARE(ErrorOf([] { ToInt32(std::numeric_limits<double>::infinity()); }), 6);
    QCOMPARE(CaughtFrom([] { ToInt16(40000.0, u"txtUnits"_s); }).Subject(), u"txtUnits"_s);
  }

  void textIsConvertedStrictlyThenNarrowed() {
    QCOMPARE(int{ToInt16(u"$1,234.50")}, 1234);
    QCOMPARE(ToInt32(u"(70000)"), -70000);
    QCOMPARE(ErrorOf([] { ToInt16(u"12abc"); }), 13);
    QCOMPARE(ErrorOf([] { ToInt16(u""); }), 13);
    QCOMPARE(ErrorOf([] { ToInt16(u"70000"); }), 6);
    QCOMPARE(ErrorOf([] { ToInt32(u"9999999999"); }), 6);
  }

  void trimmingTakesBlanksAndZeroCharactersOnly() {
    QCOMPARE(TrimBlanks(u"  a b  "), u"a b"_s);
    QCOMPARE(TrimBlanks(u"\ta\n"), u"\ta\n"_s);
    QCOMPARE(TrimBlanks(u"\u00a0a"), u"\u00a0a"_s);
    QCOMPARE(TrimBlanks(u"ab"_s + QString(3, QChar::Null)), u"ab"_s);
    QCOMPARE(TrimBlanks(QString(20, QChar::Null)), QString());
    QCOMPARE(TrimBlanks(u"    "), QString());
    QCOMPARE(TrimBlanks(u""), QString());
  }
};

QTEST_GUILESS_MAIN(NumbersTest)
#include "tst_numbers.moc"
