// Money: how it is read, rounded, computed and shown.
#include <limits>
#include <QtTest>

#include "runtime/Currency.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostUnits = std::numeric_limits<qint64>::max();
constexpr qint64 leastUnits = std::numeric_limits<qint64>::min();

}  // namespace

class CurrencyTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aTextIsReadAsTenThousandths_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("units");
    QTest::newRow("whole") << u"5"_s << qint64{50000};
    QTest::newRow("decimals") << u"12.5"_s << qint64{125000};
    QTest::newRow("currency text") << u"$1,234.50"_s << qint64{12345000};
    QTest::newRow("brackets") << u"($1,234.50)"_s << qint64{-12345000};
    QTest::newRow("sign behind") << u"2.5-"_s << qint64{-25000};
    QTest::newRow("point first") << u".5"_s << qint64{5000};
    QTest::newRow("point last") << u"5."_s << qint64{50000};
    QTest::newRow("exponent") << u"1E3"_s << qint64{10000000};
    QTest::newRow("negative exponent") << u"15E-1"_s << qint64{15000};
    QTest::newRow("zero") << u"0.00"_s << qint64{0};
    QTest::newRow("zero with a huge exponent") << u"0E99999999999"_s << qint64{0};
    QTest::newRow("tie down to even") << u"0.00005"_s << qint64{0};
    QTest::newRow("tie up to even") << u"0.00015"_s << qint64{2};
    QTest::newRow("tie to even, again") << u"0.00025"_s << qint64{2};
    QTest::newRow("above a tie") << u"0.000050000001"_s << qint64{1};
    QTest::newRow("below a tie") << u"0.00004999999"_s << qint64{0};
    QTest::newRow("negative tie") << u"-0.00015"_s << qint64{-2};
    QTest::newRow("carries through nines") << u"9.99995"_s << qint64{100000};
    QTest::newRow("far below") << u"1E-300"_s << qint64{0};
    QTest::newRow("greatest") << u"922337203685477.5807"_s << mostUnits;
    QTest::newRow("least") << u"-922337203685477.5808"_s << leastUnits;
    QTest::newRow("more digits than a double holds") << u"900719925474099.3001"_s << qint64{9007199254740993001};
  }
  void aTextIsReadAsTenThousandths() {
    QFETCH(QString, text);
    QFETCH(qint64, units);
    QCOMPARE(Currency::FromText(text).Units(), units);
  }

  void aTextThatIsNoAmountIsErrorThirteenOnItsBox() {
    try {
      Currency::FromText(u"12abc"_s, u"txtUnits"_s);
      QFAIL("no error");
    } catch (const RuntimeError& error) {
      QCOMPARE(error.Number(), 13);
      QCOMPARE(error.Subject(), u"txtUnits"_s);
    }
    QCOMPARE(ErrorOf([] { Currency::FromText(QString()); }), 13);
  }

  void anAmountBeyondSixtyFourBitsIsErrorSix() {
    QCOMPARE(ErrorOf([] { Currency::FromText(u"922337203685477.5808"_s); }), 6);
    QCOMPARE(ErrorOf([] { Currency::FromText(u"-922337203685477.5809"_s); }), 6);
    QCOMPARE(ErrorOf([] { Currency::FromText(u"1E400"_s); }), 6);
    QCOMPARE(ErrorOf([] { Currency::FromText(u"1E15"_s); }), 6);
    QCOMPARE(ErrorOf([] { Currency::FromDouble(922337203685477.6); }), 6);
    QCOMPARE(ErrorOf([] { Currency::FromDouble(std::numeric_limits<double>::infinity()); }), 6);
    QCOMPARE(ErrorOf([] { Currency::FromDouble(std::numeric_limits<double>::quiet_NaN()); }), 6);
    QCOMPARE(Currency::FromDouble(-922337203685477.5808).Units(), leastUnits);
  }

  void anAmountTooLargeIsCalledSoWhereNoBoxIsNamed() {
    const Currency most = Currency::FromUnits(mostUnits), one = Currency::FromUnits(1);
    QCOMPARE(CaughtFrom([&] { most + one; }).Subject(), u"an amount"_s);
    QCOMPARE(CaughtFrom([&] { Currency::FromUnits(leastUnits) - one; }).Subject(), u"an amount"_s);
    QCOMPARE(CaughtFrom([&] { Times(most, 2); }).Subject(), u"an amount"_s);
    QCOMPARE(CaughtFrom([] { CurrencyText(std::numeric_limits<double>::infinity()); }).Subject(), u"an amount"_s);
    QCOMPARE(CaughtFrom([] { Currency::FromText(u"1E400"_s); }).Subject(), u"an amount"_s);
    QCOMPARE(CaughtFrom([] { Currency::FromText(u"1E400"_s, u"txtMisc"_s); }).Subject(), u"txtMisc"_s);
  }

  void sumsAndDifferencesAreExactAndChecked() {
    const Currency most = Currency::FromUnits(mostUnits), one = Currency::FromUnits(1);
    QCOMPARE((most - one).Units(), mostUnits - 1);
    QCOMPARE(ErrorOf([&] { most + one; }), 6);
    QCOMPARE(ErrorOf([&] { Currency::FromUnits(leastUnits) - one; }), 6);
    Currency sum;
    for (int i = 0; i < 10; ++i) sum += Currency::FromText(u"0.1"_s);
    QVERIFY(sum == Currency::FromText(u"1"_s));
    sum -= Currency::FromText(u"0.3"_s);
    QVERIFY(sum == Currency::FromText(u"0.7"_s));
  }

  void aDoubleIsRoundedToFourDecimalsTiesToEven_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("units");
    QTest::newRow("exact") << 12.5 << qint64{125000};
    QTest::newRow("down") << 1.00004 << qint64{10000};
    QTest::newRow("up") << 1.00006 << qint64{10001};
    // Ties that a double holds exactly.
    QTest::newRow("tie to the even below") << 0.03125 << qint64{312};
    QTest::newRow("tie to the even above") << 0.09375 << qint64{938};
    QTest::newRow("negative tie") << -0.09375 << qint64{-938};
    QTest::newRow("the double below 0.00015 is no tie") << 0.00015 << qint64{1};
  }
  void aDoubleIsRoundedToFourDecimalsTiesToEven() {
    QFETCH(double, value);
    QFETCH(qint64, units);
    QCOMPARE(Currency::FromDouble(value).Units(), units);
  }

  void aProductGoesThroughADoubleAndBack() {
    QCOMPARE(Times(Currency::FromText(u"33.335"_s), 3).Units(), qint64{1000050});
    QCOMPARE(Times(Currency::FromText(u"0.0625"_s), 0.5).Units(), qint64{312});
    QCOMPARE(Times(Currency::FromText(u"0.1875"_s), 0.5).Units(), qint64{938});
    QCOMPARE(Times(Currency::FromText(u"-19.99"_s), 2.5).Units(), qint64{-499750});
    QCOMPARE(ErrorOf([] { Times(Currency::FromUnits(mostUnits), 2); }), 6);
  }

  void aPercentageIsTheAmountTimesTheRateOverAHundred() {
    QCOMPARE(PercentOf(Currency::FromText(u"100"_s), 8.25).Units(), qint64{82500});
    QCOMPARE(PercentOf(Currency::FromText(u"0.25"_s), 12.5).Units(), qint64{312});
    QCOMPARE(PercentOf(Currency::FromText(u"-50"_s), 10).Units(), qint64{-50000});
    QCOMPARE(PercentOf(Currency(), 8).Units(), qint64{0});
  }

  void plainTextHasNoTrailingZeros_data() {
    QTest::addColumn<qint64>("units");
    QTest::addColumn<QString>("text");
    QTest::newRow("four decimals") << qint64{800008} << u"80.0008"_s;
    QTest::newRow("whole") << qint64{50000} << u"5"_s;
    QTest::newRow("negative") << qint64{-25000} << u"-2.5"_s;
    QTest::newRow("zero") << qint64{0} << u"0"_s;
    QTest::newRow("below one") << qint64{500} << u"0.05"_s;
    QTest::newRow("negative below one") << qint64{-1} << u"-0.0001"_s;
    QTest::newRow("no grouping") << qint64{12345678900} << u"1234567.89"_s;
    QTest::newRow("greatest") << mostUnits << u"922337203685477.5807"_s;
    QTest::newRow("least") << leastUnits << u"-922337203685477.5808"_s;
  }
  void plainTextHasNoTrailingZeros() {
    QFETCH(qint64, units);
    QFETCH(QString, text);
    QCOMPARE(Currency::FromUnits(units).PlainText(), text);
    QCOMPARE(Currency::FromText(text).Units(), units);
  }

  void currencyTextRoundsHalfAwayFromZero_data() {
    QTest::addColumn<qint64>("units");
    QTest::addColumn<QString>("text");
    QTest::newRow("grouped") << qint64{12345000} << u"$1,234.50"_s;
    QTest::newRow("negative") << qint64{-12345000} << u"($1,234.50)"_s;
    QTest::newRow("zero") << qint64{0} << u"$0.00"_s;
    QTest::newRow("half a cent up") << qint64{1000050} << u"$100.01"_s;
    QTest::newRow("half a cent up from an even cent") << qint64{1000250} << u"$100.03"_s;
    QTest::newRow("just below half a cent") << qint64{1000049} << u"$100.00"_s;
    QTest::newRow("negative half a cent") << qint64{-1000050} << u"($100.01)"_s;
    QTest::newRow("carries") << qint64{9999950} << u"$1,000.00"_s;
    QTest::newRow("hundreds have no comma") << qint64{9990000} << u"$999.00"_s;
    QTest::newRow("millions") << qint64{12345678900} << u"$1,234,567.89"_s;
    QTest::newRow("a negative that rounds away is zero") << qint64{-49} << u"$0.00"_s;
    QTest::newRow("greatest") << mostUnits << u"$922,337,203,685,477.58"_s;
    QTest::newRow("least") << leastUnits << u"($922,337,203,685,477.58)"_s;
  }
  void currencyTextRoundsHalfAwayFromZero() {
    QFETCH(qint64, units);
    QFETCH(QString, text);
    QCOMPARE(CurrencyText(Currency::FromUnits(units)), text);
  }

  void currencyTextOfADoubleRoundsItsFifteenDigits_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("three times 33.335") << 3 * 33.335 << u"$100.01"_s;
    QTest::newRow("a half that binary holds as less") << 1.005 << u"$1.01"_s;
    QTest::newRow("negative half") << -1.005 << u"($1.01)"_s;
    QTest::newRow("below half") << 1.00499 << u"$1.00"_s;
    QTest::newRow("zero") << 0.0 << u"$0.00"_s;
    QTest::newRow("half a cent") << 0.005 << u"$0.01"_s;
    QTest::newRow("less than half a cent") << 0.0049 << u"$0.00"_s;
    QTest::newRow("far less") << 1e-20 << u"$0.00"_s;
    QTest::newRow("negative that rounds away") << -0.001 << u"$0.00"_s;
    QTest::newRow("carries") << 9.995 << u"$10.00"_s;
    QTest::newRow("whole") << 1234.0 << u"$1,234.00"_s;
    QTest::newRow("tenth") << 0.1 << u"$0.10"_s;
    QTest::newRow("fifteen digits") << 1234567890123.45 << u"$1,234,567,890,123.45"_s;
    QTest::newRow("beyond the digits") << 1e20 << u"$100,000,000,000,000,000,000.00"_s;
  }
  void currencyTextOfADoubleRoundsItsFifteenDigits() {
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(CurrencyText(value), text);
  }

  void whatIsNoNumberHasNoCurrencyText() {
    QCOMPARE(ErrorOf([] { CurrencyText(std::numeric_limits<double>::infinity()); }), 6);
    QCOMPARE(ErrorOf([] { CurrencyText(std::numeric_limits<double>::quiet_NaN()); }), 6);
  }

  void anExtensionIsRoundedToCentsInOneStep() {
    QCOMPARE(ExtensionText(Currency::FromUnits(333350), 3), u"$100.01"_s);
    // 0.004995: at four decimals it would be half a cent.
    QCOMPARE(ExtensionText(Currency::FromUnits(333), 0.15), u"$0.00"_s);
    QCOMPARE(ExtensionText(Currency::FromUnits(25000), -2), u"($5.00)"_s);
    QCOMPARE(ErrorOf([] { ExtensionText(Currency::FromUnits(10000), std::numeric_limits<double>::infinity()); }), 6);
  }

  void onlyWhatIsNumericHasACurrencyText() {
    QCOMPARE(CurrencyTextOf(u" 1234.5 "), u"$1,234.50"_s);
    QCOMPARE(CurrencyTextOf(u"($2)"), u"($2.00)"_s);
    QCOMPARE(CurrencyTextOf(u"0.005"), u"$0.01"_s);
    QCOMPARE(CurrencyTextOf(u""), std::nullopt);
    QCOMPARE(CurrencyTextOf(u"2 Hrs"), std::nullopt);
    QCOMPARE(ErrorOf([] { CurrencyTextOf(u"1E400"); }), 6);
  }

  void theTextOfZeroIsWhatBoxesCompareWith() {
    QCOMPARE(ZeroCurrencyText(), u"$0.00"_s);
    QCOMPARE(CurrencyText(Currency()), ZeroCurrencyText());
    QCOMPARE(CurrencyText(0.0), ZeroCurrencyText());
  }
};

QTEST_GUILESS_MAIN(CurrencyTest)
#include "tst_currency.moc"
