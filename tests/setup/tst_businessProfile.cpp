// The profile's file and the address style that is worked out from it.
#include <QtTest>

#include "setup/BusinessProfile.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class BusinessProfileTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFileIsOneLineOfNineQuotedTexts() {
    DataFolder folder;
    BusinessProfile business;
    SaveBusinessData(folder.Disk, business,
                     {u"Acme, Inc."_s, u"1 Main St"_s, u""_s, u"Tampa"_s, u"FL"_s, u"33601"_s, u"555-1234"_s,
                      u"a@b.example"_s, u"12-3"_s});
    QCOMPARE(folder.Bytes(u"/MyBusinessData.txt"_s),
             "\"Acme, Inc.\",\"1 Main St\",\"\",\"Tampa\",\"FL\",\"33601\",\"555-1234\",\"a@b.example\",\"12-3\"\r\n");
    QCOMPARE(business.BusinessName, u"Acme, Inc."_s);
    QCOMPARE(business.BusinessTaxID, u"12-3"_s);
  }

  void theNineTextsAreReadInTheOrderOfTheFile() {
    DataFolder folder;
    folder.Put(u"/MyBusinessData.txt"_s, "\"n\",\"a1\",\"a2\",\"c\",\"s\",\"p\",\"t\",\"k\",\"x\"\r\n");
    BusinessProfile business;
    QVERIFY(LoadBusinessData(folder.Disk, business));
    QCOMPARE(business.BusinessName, u"n"_s);
    QCOMPARE(business.BusinessAddress1, u"a1"_s);
    QCOMPARE(business.BusinessAddress2, u"a2"_s);
    QCOMPARE(business.BusinessCity, u"c"_s);
    QCOMPARE(business.BusinessState, u"s"_s);
    QCOMPARE(business.BusinessPostal, u"p"_s);
    QCOMPARE(business.BusinessTelephone, u"t"_s);
    QCOMPARE(business.BusinessContact, u"k"_s);
    QCOMPARE(business.BusinessTaxID, u"x"_s);
  }

  void withoutTheFileNothingChanges() {
    DataFolder folder;
    BusinessProfile business;
    business.BusinessName = u"kept"_s;
    QVERIFY(!LoadBusinessData(folder.Disk, business));
    QCOMPARE(business.BusinessName, u"kept"_s);
  }

  void aMissingFileComesBackFromTheBackup() {
    DataFolder folder;
    folder.Put(u"/Backup/MyBusinessData.txt"_s, "\"n\",\"\",\"\",\"\",\"\",\"\",\"t\",\"\",\"\"\r\n");
    BusinessProfile business;
    QVERIFY(LoadBusinessData(folder.Disk, business));
    QCOMPARE(business.BusinessTelephone, u"t"_s);
    QVERIFY(folder.Has(u"/MyBusinessData.txt"_s));
  }

  void aSaveLeavesTheBackupCopy() {
    DataFolder folder;
    folder.Put(u"/Backup/MyBusinessData.txt"_s, "old");
    BusinessProfile business;
    SaveBusinessData(folder.Disk, business, {});
    QCOMPARE(folder.Bytes(u"/Backup/MyBusinessData.txt"_s), "old");
  }

  void aFullDiskLeavesTheOldProfileWhole() {
    DataFolder folder;
    folder.Put(u"/MyBusinessData.txt"_s, "\"n\",\"\",\"\",\"\",\"\",\"\",\"t\",\"\",\"\"\r\n");
    folder.Device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    BusinessProfile business;
    QCOMPARE(ErrorOf([&] { SaveBusinessData(folder.Disk, business, {u"new"_s}); }), ErrorNumber::DiskFull);
    QCOMPARE(folder.Bytes(u"/MyBusinessData.txt"_s), "\"n\",\"\",\"\",\"\",\"\",\"\",\"t\",\"\",\"\"\r\n");
    QCOMPARE(folder.Files(), QStringList{u"MyBusinessData.txt"_s});
  }

  void aFileThatEndsTooEarlyIsDamage_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("eight texts") << QByteArray("\"n\",\"\",\"\",\"\",\"\",\"\",\"t\",\"\"\r\n");
  }
  void aFileThatEndsTooEarlyIsDamage() {
    QFETCH(QByteArray, content);
    DataFolder folder;
    folder.Put(u"/MyBusinessData.txt"_s, content);
    BusinessProfile business;
    const RuntimeError error = CaughtFrom([&] { LoadBusinessData(folder.Disk, business); });
    QCOMPARE(error.Number(), ErrorNumber::InputPastEnd);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(error.Subject(), u"/MyBusinessData.txt"_s);
  }

  void theStyleFollowsNameAndPostalCode_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("postal");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const QString usa = u"USA Style Address"_s;
    const QString international = u"International Style Address"_s;
    for (const QString& before : {usa, international}) {
      const QByteArray tag = before.left(3).toLatin1();
      QTest::addRow("nothing, %s", tag.constData()) << QString() << QString() << before << usa;
      QTest::addRow("numeric code, %s", tag.constData()) << QString() << u"33601"_s << before << usa;
      QTest::addRow("name and code, %s", tag.constData()) << u"Acme"_s << u"33601"_s << before << usa;
      QTest::addRow("name and letters, %s", tag.constData()) << u"Acme"_s << u"SW1A"_s << before << usa;
      QTest::addRow("name alone, %s", tag.constData()) << u"Acme"_s << QString() << before << international;
    }
    QTest::newRow("letters alone turn USA over") << QString() << u"SW1A"_s << usa << international;
    QTest::newRow("letters alone turn International over") << QString() << u"SW1A"_s << international << usa;
  }
  void theStyleFollowsNameAndPostalCode() {
    QFETCH(QString, name);
    QFETCH(QString, postal);
    QFETCH(QString, before);
    QFETCH(QString, after);
    BusinessProfile business;
    business.BusinessName = name;
    business.BusinessPostal = postal;
    business.AddressStyleCaption = before;
    QList<bool> told;
    business.UseAddressStyle = [&](bool usaStyle) { told << usaStyle; };
    SetAddressStyle(business);
    QCOMPARE(business.AddressStyleCaption, after);
    QCOMPARE(told, QList<bool>{business.IsUsaStyle()});
  }

  void aFreshProfileStandsAsTheInternationalStyle() {
    QCOMPARE(BusinessProfile().AddressStyleCaption, u"International Style Address"_s);
    QVERIFY(!BusinessProfile().IsUsaStyle());
  }

  void aToggleTurnsTheStyleOverAndTellsIt() {
    BusinessProfile business;
    QList<bool> told;
    business.UseAddressStyle = [&](bool usaStyle) { told << usaStyle; };
    ToggleAddressStyle(business);
    QCOMPARE(business.AddressStyleCaption, u"USA Style Address"_s);
    ToggleAddressStyle(business);
    QCOMPARE(business.AddressStyleCaption, u"International Style Address"_s);
    QCOMPARE(told, (QList<bool>{true, false}));
  }
};

QTEST_GUILESS_MAIN(BusinessProfileTest)
#include "tst_businessProfile.moc"
