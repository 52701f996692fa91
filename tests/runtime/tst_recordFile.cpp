// Fixed-length records: the bytes of their fields, and what a short or absent record reads as.
#include <limits>
#include <QtTest>
#include <stdexcept>

#include "runtime/RecordFile.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class RecordFileTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void fieldsStandAtTheirOffsets() {
    RecordBuilder builder(40);
    builder.Text(0, 6, u"\u20acab"_s)
        .Int16(6, -2)
        .Int32(8, 0x01020304)
        .Amount(12, Currency::FromUnits(12345000))
        .Double(20, 36526.0)
        .Text(28, 4, u"too long"_s)
        .Bytes(32, "xyz");
    QCOMPARE(builder.Record(), QByteArray("\x80"
                                          "ab   "
                                          "\xfe\xff"
                                          "\x04\x03\x02\x01"
                                          "\xa8\x5e\xbc\x00\x00\x00\x00\x00"
                                          "\x00\x00\x00\x00\xc0\xd5\xe1\x40"
                                          "too "
                                          "xyz     ",
                                          40));
  }

  void aFieldBeyondTheRecordIsRefusedAndWritesNothing() {
    RecordBuilder builder(8);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, builder.Text(4, 5, u"x"_s));
    QVERIFY_THROWS_EXCEPTION(std::logic_error, builder.Double(1, 1.0));
    QVERIFY_THROWS_EXCEPTION(std::logic_error, builder.Int16(-1, 1));
    QVERIFY_THROWS_EXCEPTION(std::logic_error, builder.Bytes(std::numeric_limits<qsizetype>::max(), "x"));
    QCOMPARE(builder.Record(), QByteArray(8, ' '));
    QCOMPARE(builder.Int32(4, 0x01020304).Record(), "    \x04\x03\x02\x01");
  }

  void fieldsAreReadFromTheirOffsets() {
    const QByteArray bytes(
        "\x80"
        "ab   "
        "\xfe\xff"
        "\x04\x03\x02\x01"
        "\xa8\x5e\xbc\x00\x00\x00\x00\x00"
        "\x00\x00\x00\x00\xc0\xd5\xe1\x40",
        28);
    const RecordView record(bytes);
    QCOMPARE(record.Text(0, 6), u"\u20acab"_s);
    QCOMPARE(record.RawText(0, 6), u"\u20acab   "_s);
    QCOMPARE(int{record.Int16(6)}, -2);
    QCOMPARE(record.Int32(8), 0x01020304);
    QCOMPARE(record.Amount(12).Units(), qint64{12345000});
    QCOMPARE(record.Double(20), 36526.0);
  }

  void textsLoseBlanksAndZeroBytesAtBothEnds() {
    const QByteArray bytes("\0 a b\0 \0  ", 10);
    QCOMPARE(RecordView(bytes).Text(0, 10), u"a b"_s);
    QCOMPARE(RecordView(QByteArray(10, '\0')).Text(0, 10), QString());
  }

  void aShortRecordReadsBlanksForTextsAndZeroForNumbers() {
    const QByteArray bytes("ABC\x07", 4);
    const RecordView record(bytes);
    QCOMPARE(record.Text(0, 20), u"ABC\a"_s);
    QCOMPARE(record.RawText(0, 6), u"ABC\a  "_s);
    QCOMPARE(record.Text(10, 5), QString());
    QCOMPARE(record.RawText(10, 5), u"     "_s);
    QCOMPARE(int{record.Int16(3)}, 0);  // half of it is there
    QCOMPARE(int{record.Int16(2)}, 0x0743);
    QCOMPARE(record.Int32(2), 0);
    QCOMPARE(record.Amount(0).Units(), qint64{0});
    QCOMPARE(record.Double(100), 0.0);
  }

  void textsCompareWithoutDecoding() {
    const QByteArray bytes("1001      \x80\0   ", 15);
    const RecordView record(bytes);
    QVERIFY(record.TextEquals(0, 10, "1001"));
    QVERIFY(!record.TextEquals(0, 10, "100"));
    QVERIFY(!record.TextEquals(0, 10, "10011"));
    QVERIFY(record.TextEquals(10, 5, "\x80"));
    QVERIFY(record.TextEquals(20, 5, ""));
  }

  void recordsOfABufferAreNumberedFromOne() {
    const RecordBuffer buffer("AAAABBBBCC", 4);
    QCOMPARE(buffer.Record(1).Text(0, 4), u"AAAA"_s);
    QCOMPARE(buffer.Record(2).Text(0, 4), u"BBBB"_s);
    QCOMPARE(buffer.Record(3).Text(0, 4), u"CC"_s);
    QCOMPARE(buffer.Bytes(3).size(), 2);
    QCOMPARE(buffer.Bytes(4).size(), 0);
    QCOMPARE(buffer.Bytes(0).size(), 0);
    QCOMPARE(buffer.Bytes(-1).size(), 0);
    QVERIFY(buffer.Bytes(2).data() == buffer.Content().constData() + 4);  // no copy
  }

  void aRecordCountRoundsToTheNearestTiesToEven_data() {
    QTest::addColumn<qint64>("length");
    QTest::addColumn<int>("count");
    QTest::newRow("none") << qint64{0} << 0;
    QTest::newRow("whole") << qint64{656} << 2;
    QTest::newRow("tie up to even") << qint64{492} << 2;
    QTest::newRow("tie down to even") << qint64{820} << 2;
    QTest::newRow("below the half") << qint64{491} << 1;
    QTest::newRow("above the half") << qint64{821} << 3;
    QTest::newRow("the limit") << qint64{32767} * 328 << 32767;
    QTest::newRow("less than half a record above the limit") << qint64{32767} * 328 + 163 << 32767;
  }
  void aRecordCountRoundsToTheNearestTiesToEven() {
    QFETCH(qint64, length);
    QFETCH(int, count);
    QCOMPARE(RecordCountOf(length, 328, u"/CustomerData.txt"_s), count);
  }

  void aCountAboveTheLimitIsDamageOfTheFile() {
    for (const qint64 length : {qint64{32768} * 328, qint64{32767} * 328 + 164, qint64{1} << 40}) {
      const RuntimeError error = CaughtFrom([&] { RecordCountOf(length, 328, u"/CustomerData.txt"_s); });
      QCOMPARE(error.Number(), 6);
      QCOMPARE(error.Subject(), u"/CustomerData.txt"_s);
      QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    }
  }

  void recordsAreCountedBeyondTheLimitWhereThereIsNone() {
    QCOMPARE(RecordsIn(0, 90), qint64{0});
    QCOMPARE(RecordsIn(135, 90), qint64{2});  // a tie, to even
    QCOMPARE(RecordsIn(225, 90), qint64{2});
    QCOMPARE(RecordsIn(qint64{32768} * 90, 90), qint64{32768});
    QCOMPARE(RecordsIn(qint64{100000000} * 90, 90), qint64{100000000});
  }

  void aFileLengthBeyondThirtyTwoBitsIsAnOverflow() {
    // Few records of an enormous length: the length itself no longer fits.
    QCOMPARE(ErrorOf([] { RecordCountOf(qint64{1} << 31, 1 << 30, u"/Big.txt"_s); }), 6);
  }
};

QTEST_GUILESS_MAIN(RecordFileTest)
#include "tst_recordFile.moc"
