// The file of the speed-dial numbers: its bytes, and what a load makes of them.
#include <QtTest>

#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "telephony/SpeedNumbers.h"

using namespace Qt::StringLiterals;

namespace {

const QString File = u"/SpeedNumbers.txt"_s;

QByteArray Pairs(int count) {
  QByteArray all;
  for (int i = 0; i < count; ++i) all += "\"N" + QByteArray::number(i) + "\"\r\n\"" + QByteArray::number(i) + "\"\r\n";
  return all;
}

}  // namespace

class SpeedNumbersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void withoutAFileAllSlotsAreEmptyAndNoneIsMade() {
    DataFolder folder;
    QCOMPARE(LoadSpeedNumbers(folder.Disk).Names, SpeedNumbers().Names);
    QVERIFY(folder.Files().isEmpty());
  }

  void pairsFillTheSlotsFromTheFirst() {
    DataFolder folder;
    folder.Put(File, "\"Ann, at work\"\r\n\"321-555\"\r\nBob\n777\n\"\"\r\n\"9\"\r\n");
    const SpeedNumbers speed = LoadSpeedNumbers(folder.Disk);
    QCOMPARE(speed.Names[0], u"Ann, at work"_s);
    QCOMPARE(speed.Numbers[0], u"321-555"_s);
    QCOMPARE(speed.Names[1], u"Bob"_s);
    QCOMPARE(speed.Numbers[1], u"777"_s);
    QCOMPARE(speed.Names[2], QString());
    QCOMPARE(speed.Numbers[2], u"9"_s);
    QCOMPARE(speed.Names[3], QString());
  }

  void aSaveWritesTheNamedSlotsInQuotesAndTheyCloseUp() {
    DataFolder folder;
    folder.Put(u"/Backup/SpeedNumbers.txt"_s, "old");
    SpeedNumbers speed;
    speed.Names[1] = u"Ann"_s;
    speed.Numbers[1] = u"321-555"_s;
    speed.Numbers[4] = u"without a name"_s;
    speed.Names[9] = u"B\u00fchl & Co, Ltd"_s;
    SaveSpeedNumbers(folder.Disk, speed);
    QCOMPARE(folder.Bytes(File), "\"Ann\"\r\n\"321-555\"\r\n\"B\xfchl & Co, Ltd\"\r\n\"\"\r\n");
    QVERIFY(!folder.Has(u"/Backup/SpeedNumbers.txt"_s));
    const SpeedNumbers again = LoadSpeedNumbers(folder.Disk);
    QCOMPARE(again.Names[0], u"Ann"_s);
    QCOMPARE(again.Names[1], u"B\u00fchl & Co, Ltd"_s);
    QCOMPARE(again.Numbers[1], QString());
    QCOMPARE(again.Names[2], QString());
  }

  void withoutANamedSlotAnEmptyFileStands() {
    DataFolder folder;
    folder.Put(File, "\"Ann\"\r\n\"1\"\r\n");
    SaveSpeedNumbers(folder.Disk, {});
    QCOMPARE(folder.Bytes(File), "");
    QCOMPARE(LoadSpeedNumbers(folder.Disk).Names, SpeedNumbers().Names);
  }

  void tenPairsAreTheLimit() {
    DataFolder folder;
    folder.Put(File, Pairs(10));
    QCOMPARE(LoadSpeedNumbers(folder.Disk).Names[9], u"N9"_s);
    folder.Put(File, Pairs(11));
    const RuntimeError error = CaughtFrom([&] { LoadSpeedNumbers(folder.Disk); });
    QCOMPARE(error.Number(), 9);
    QCOMPARE(error.Subject(), File);
    QCOMPARE(folder.Bytes(File), Pairs(11));
  }

  void aNameWithoutItsNumberIsDamage() {
    DataFolder folder;
    folder.Put(File, "\"Ann\"\r\n\"1\"\r\n\"Bob\"\r\n");
    const RuntimeError error = CaughtFrom([&] { LoadSpeedNumbers(folder.Disk); });
    QCOMPARE(error.Number(), 62);
    QCOMPARE(error.Subject(), File);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
  }

  void itComesBackFromTheBackup() {
    DataFolder folder;
    folder.Put(u"/Backup/SpeedNumbers.txt"_s, "\"Ann\"\r\n\"1\"\r\n");
    QCOMPARE(LoadSpeedNumbers(folder.Disk).Names[0], u"Ann"_s);
    QCOMPARE(folder.Bytes(File), "\"Ann\"\r\n\"1\"\r\n");
  }
};

QTEST_GUILESS_MAIN(SpeedNumbersTest)
#include "tst_speedNumbers.moc"
