// The telephone's two files: what a load makes of them, and the bytes that a save writes.
#include <QtTest>

#include "desktop/SerialLine.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "telephony/PhoneSettings.h"

using namespace Qt::StringLiterals;

class PhoneSettingsTest : public QObject {
  Q_OBJECT

 private:
  SerialLine m_noPorts{PortTable{}};

 private Q_SLOTS:
  void withoutFilesNoPhoneIsChainedAndThePortIsOne() {
    DataFolder folder;
    PhoneSettings phone;
    phone.ckPhone = true;
    phone.PhoneDaisyChained = true;
    StartModem(m_noPorts, folder.Disk, phone);
    QCOMPARE(phone.ckPhone, false);
    QCOMPARE(phone.PhoneDaisyChained, false);
    QCOMPARE(phone.ModemPort, 1);
    QCOMPARE(phone.txtModemPort, u"1"_s);
    QVERIFY(folder.Files().isEmpty());
  }

  void theStoredPortReplacesTheFoundOneInTheVariableOnly() {
    DataFolder folder;
    folder.Put(u"/Phone.txt"_s, "#TRUE#\r\n5\r\n");
    PhoneSettings phone;
    StartModem(m_noPorts, folder.Disk, phone);
    QCOMPARE(phone.ModemPort, 5);
    QCOMPARE(phone.txtModemPort, u"1"_s);
    QCOMPARE(phone.PhoneDaisyChained, true);
    QCOMPARE(phone.ckPhone, true);
  }

  void aPhoneFileThatSaysFalseLeavesTheTickOff() {
    DataFolder folder;
    folder.Put(u"/Phone.txt"_s, "#FALSE#\n3\n");
    PhoneSettings phone;
    StartModem(m_noPorts, folder.Disk, phone);
    QCOMPARE(phone.ckPhone, false);
    QCOMPARE(phone.PhoneDaisyChained, false);
    QCOMPARE(phone.ModemPort, 3);
  }

  void theCallerTickIsOnWhateverTheFileSays_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("stored");
    QTest::newRow("no file") << QByteArray() << false;
    QTest::newRow("true") << QByteArray("#TRUE#\r\n") << true;
    QTest::newRow("false") << QByteArray("#FALSE#\r\n") << false;
  }
  void theCallerTickIsOnWhateverTheFileSays() {
    QFETCH(QByteArray, content);
    QFETCH(bool, stored);
    DataFolder folder;
    if (!content.isEmpty()) folder.Put(u"/CallID.txt"_s, content);
    PhoneSettings phone;
    StartModem(m_noPorts, folder.Disk, phone);
    QCOMPARE(phone.ckCallerID, true);
    QCOMPARE(phone.UsingCallerId, stored);
  }

  void bothFilesComeBackFromTheBackup() {
    DataFolder folder;
    folder.Put(u"/Backup/Phone.txt"_s, "#TRUE#\r\n2\r\n");
    folder.Put(u"/Backup/CallID.txt"_s, "#TRUE#\r\n");
    PhoneSettings phone;
    StartModem(m_noPorts, folder.Disk, phone);
    QCOMPARE(phone.ModemPort, 2);
    QCOMPARE(phone.UsingCallerId, true);
    QCOMPARE(folder.Bytes(u"/Phone.txt"_s), "#TRUE#\r\n2\r\n");
    QCOMPARE(folder.Bytes(u"/CallID.txt"_s), "#TRUE#\r\n");
  }

  void aSaveTakesThePhoneTickAndLeavesTheCallerSettingAsLoaded() {
    DataFolder folder;
    folder.Put(u"/Backup/Phone.txt"_s, "old");
    folder.Put(u"/Backup/CallID.txt"_s, "old");
    PhoneSettings phone;
    phone.ckPhone = true;
    phone.ckCallerID = true;
    phone.ModemPort = 4;
    phone.txtModemPort = u"9"_s;
    SavePhoneSettings(folder.Disk, phone);
    QCOMPARE(folder.Bytes(u"/Phone.txt"_s), "#TRUE#\r\n4\r\n");
    QCOMPARE(folder.Bytes(u"/CallID.txt"_s), "#FALSE#\r\n");
    QCOMPARE(phone.PhoneDaisyChained, true);
    QVERIFY(folder.Files(u"/Backup"_s).isEmpty());
  }

  void aDamagedFileIsDamageThatNamesIt_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("number");
    QTest::newRow("empty phone") << u"/Phone.txt"_s << QByteArray() << 62;
    QTest::newRow("phone cut short") << u"/Phone.txt"_s << QByteArray("#TRUE#\r\n") << 62;
    QTest::newRow("port of letters") << u"/Phone.txt"_s << QByteArray("#TRUE#\r\nCOM\r\n") << 13;
    QTest::newRow("port too large") << u"/Phone.txt"_s << QByteArray("#TRUE#\r\n40000\r\n") << 6;
    QTest::newRow("empty caller") << u"/CallID.txt"_s << QByteArray() << 62;
    QTest::newRow("garbled caller") << u"/CallID.txt"_s << QByteArray("maybe\r\n") << 13;
  }
  void aDamagedFileIsDamageThatNamesIt() {
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(int, number);
    DataFolder folder;
    folder.Put(name, content);
    PhoneSettings phone;
    const RuntimeError error = CaughtFrom([&] { StartModem(m_noPorts, folder.Disk, phone); });
    QCOMPARE(error.Number(), number);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(error.Subject(), name);
    QCOMPARE(folder.Bytes(name), content);
  }
};

QTEST_GUILESS_MAIN(PhoneSettingsTest)
#include "tst_phoneSettings.moc"
