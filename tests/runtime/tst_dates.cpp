// Dates as text and as the day count of the records.
#include <limits>
#include <QtTest>

#include "runtime/Dates.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class DatesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aShortDateHasNoLeadingZeros() {
    QCOMPARE(ShortDateText(QDate(2026, 3, 7)), u"3/7/2026"_s);
    QCOMPARE(ShortDateText(QDate(2026, 12, 31)), u"12/31/2026"_s);
    QCOMPARE(ShortDateText(QDate(812, 1, 2)), u"1/2/0812"_s);
    QCOMPARE(ShortDateText(QDate()), QString());
  }

  void aShortDateReadsBack_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    QTest::newRow("short") << u"3/7/2026"_s << QDate(2026, 3, 7);
    QTest::newRow("leading zeros") << u"03/07/2026"_s << QDate(2026, 3, 7);
    QTest::newRow("end of year") << u"12/31/1999"_s << QDate(1999, 12, 31);
    QTest::newRow("leap day") << u"2/29/2024"_s << QDate(2024, 2, 29);
  }
  void aShortDateReadsBack() {
    QFETCH(QString, text);
    QFETCH(QDate, date);
    QCOMPARE(ParseShortDate(text), date);
  }

  void anythingElseIsErrorThirteen_data() {
    QTest::addColumn<QString>("text");
    const QStringList texts{u""_s,          u"3/7"_s,       u"3/7/26"_s,    u"7.3.2026"_s,     u"2026-03-07"_s,
                            u"2/29/2026"_s, u"13/1/2026"_s, u"0/1/2026"_s,  u"3/32/2026"_s,    u"003/7/2026"_s,
                            u"3/7/02026"_s, u"3/7/2026/"_s, u"3/7/2026 "_s, u" 3/7/2026"_s,    u"+3/7/2026"_s,
                            u"a/b/c"_s,     u"3//2026"_s,   u"3/7/0000"_s,  u"3/7/2026 1:00"_s};
    for (const QString& text : texts) QTest::addRow("<%s>", qPrintable(text)) << text;
  }
  void anythingElseIsErrorThirteen() {
    QFETCH(QString, text);
    const RuntimeError error = CaughtFrom([&] { ParseShortDate(text, u"the date"_s); });
    QCOMPARE(error.Number(), 13);
    QCOMPARE(error.Subject(), u"the date"_s);
  }

  void recordsCountDaysSinceTheEndOf1899() {
    QCOMPARE(ToDayCount(QDate(1899, 12, 30)), 0.0);
    QCOMPARE(ToDayCount(QDate(1900, 1, 1)), 2.0);
    QCOMPARE(ToDayCount(QDate(2000, 1, 1)), 36526.0);
    QCOMPARE(ToDayCount(QDate(1899, 12, 29)), -1.0);
    QCOMPARE(FromDayCount(36526), QDate(2000, 1, 1));
  }

  void theTimeOfAStoredDateIsDropped() {
    QCOMPARE(FromDayCount(36526.75), QDate(2000, 1, 1));
    QCOMPARE(FromDayCount(0.5), QDate(1899, 12, 30));
    QCOMPARE(FromDayCount(-1.25), QDate(1899, 12, 29));  // the time of an early day counts away from zero
  }

  void anImpossibleCountIsNoDate() {
    QVERIFY(!FromDayCount(std::numeric_limits<double>::quiet_NaN()).isValid());
    QVERIFY(!FromDayCount(std::numeric_limits<double>::infinity()).isValid());
    QVERIFY(!FromDayCount(-1e300).isValid());
    QVERIFY(!FromDayCount(2958466).isValid());
    QVERIFY(!FromDayCount(-657435).isValid());
    QCOMPARE(FromDayCount(2958465), QDate(9999, 12, 31));
    QCOMPARE(FromDayCount(-657434), QDate(100, 1, 1));
  }
};

QTEST_GUILESS_MAIN(DatesTest)
#include "tst_dates.moc"
