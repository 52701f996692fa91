// The logo: the path of the user's picture, its size in print, and what each button's rule does to the files.
#include <QtTest>

#include "setup/Logo.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class LogoTest : public QObject {
  Q_OBJECT

  /// To these tests a picture is a file that says so.
  static bool SaysPicture(const QByteArray& content) { return content.startsWith("picture"); }
  static QByteArray Quoted(const QString& path) { return '"' + path.toLatin1() + "\"\r\n"; }

 private Q_SLOTS:
  void aLogoIsLoadedFromThePathInTheFile() {
    DataFolder folder;
    folder.Put(u"/logo.png"_s, "picture one");
    folder.Put(u"/CompanyLogo.txt"_s, Quoted(folder.Path(u"/logo.png"_s)));
    PrintAppearance print;
    LoadLogo(folder.Disk, print, SaysPicture);
    QCOMPARE(print.Logo, "picture one");
  }

  void thePathComesBackFromTheBackup() {
    DataFolder folder;
    folder.Put(u"/logo.png"_s, "picture one");
    folder.Put(u"/Backup/CompanyLogo.txt"_s, Quoted(folder.Path(u"/logo.png"_s)));
    PrintAppearance print;
    LoadLogo(folder.Disk, print, SaysPicture);
    QCOMPARE(print.Logo, "picture one");
    QVERIFY(folder.Has(u"/CompanyLogo.txt"_s));
  }

  void aPictureThatIsGoneLeavesTheLogoAsItIs_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("gone") << QByteArray("\"/no/such/logo.png\"\r\n");
    QTest::newRow("another system's path") << QByteArray("\"C:\\logo.bmp\"\r\n");
    QTest::newRow("no path") << QByteArray("\"\"\r\n");
    QTest::newRow("no file") << QByteArray();
  }
  void aPictureThatIsGoneLeavesTheLogoAsItIs() {
    QFETCH(QByteArray, content);
    DataFolder folder;
    if (!content.isEmpty()) folder.Put(u"/CompanyLogo.txt"_s, content);
    PrintAppearance print;
    print.Logo = "picture kept";
    LoadLogo(folder.Disk, print, SaysPicture);
    QCOMPARE(print.Logo, "picture kept");
  }

  void aFileThatIsNoPictureIsRefusedByItsName() {
    DataFolder folder;
    folder.Put(u"/logo.png"_s, "letters");
    folder.Put(u"/CompanyLogo.txt"_s, Quoted(folder.Path(u"/logo.png"_s)));
    PrintAppearance print;
    const RuntimeError error = CaughtFrom([&] { LoadLogo(folder.Disk, print, SaysPicture); });
    QCOMPARE(error.Number(), 481);
    QCOMPARE(error.Subject(), folder.Path(u"/logo.png"_s));
    QVERIFY(print.Logo.isEmpty());
  }

  void anEmptyPathFileIsDamage() {
    DataFolder folder;
    folder.Put(u"/CompanyLogo.txt"_s, "");
    PrintAppearance print;
    const RuntimeError error = CaughtFrom([&] { LoadLogo(folder.Disk, print, SaysPicture); });
    QCOMPARE(error.Number(), ErrorNumber::InputPastEnd);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
  }

  void theSizeIsReadWidthFirstInWholeTwips() {
    DataFolder folder;
    folder.Put(u"/LogoSettings.txt"_s, "1710,899.6\r\n");
    PrintAppearance print;
    LoadLogoSettings(folder.Disk, print);
    QCOMPARE(print.LogoWidth, 1710);
    QCOMPARE(print.LogoHeight, 900);
  }

  void aSizeThatIsNoneIsDamage_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("number");
    QTest::newRow("empty") << QByteArray() << 62;
    QTest::newRow("width alone") << QByteArray("1440\r\n") << 62;
    QTest::newRow("letters") << QByteArray("wide,high\r\n") << 13;
    QTest::newRow("below zero") << QByteArray("1440,-90\r\n") << 6;
    QTest::newRow("too large") << QByteArray("1E+30,1440\r\n") << 6;
  }
  void aSizeThatIsNoneIsDamage() {
    QFETCH(QByteArray, content);
    QFETCH(int, number);
    DataFolder folder;
    folder.Put(u"/LogoSettings.txt"_s, content);
    PrintAppearance print;
    const RuntimeError error = CaughtFrom([&] { LoadLogoSettings(folder.Disk, print); });
    QCOMPARE(error.Number(), number);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(error.Subject(), u"/LogoSettings.txt"_s);
  }

  void withoutTheSizeFileItIs1440By1440AndIsSavedWhereThereIsALogo() {
    DataFolder folder;
    PrintAppearance print;
    print.LogoWidth = print.LogoHeight = 180;
    LoadLogoSettings(folder.Disk, print);
    QCOMPARE(print.LogoWidth, 1440);
    QCOMPARE(print.LogoHeight, 1440);
    QVERIFY(!folder.Has(u"/LogoSettings.txt"_s));
    print.Logo = "picture";
    LoadLogoSettings(folder.Disk, print);
    QCOMPARE(folder.Bytes(u"/LogoSettings.txt"_s), "1440,1440\r\n");
  }

  void theSizeIsSavedWithoutTouchingTheBackup() {
    DataFolder folder;
    folder.Put(u"/Backup/LogoSettings.txt"_s, "old");
    PrintAppearance print;
    print.Logo = "picture";
    print.LogoWidth = 1710;
    print.LogoHeight = 180;
    SaveLogoSettings(folder.Disk, print);
    QCOMPARE(folder.Bytes(u"/LogoSettings.txt"_s), "1710,180\r\n");
    QCOMPARE(folder.Bytes(u"/Backup/LogoSettings.txt"_s), "old");
  }

  void aStoredPathReplacesTheOldOneAndItsBackup() {
    DataFolder folder;
    folder.Put(u"/CompanyLogo.txt"_s, "old");
    folder.Put(u"/Backup/CompanyLogo.txt"_s, "old");
    PrintAppearance print;
    print.Logo = "picture";
    SaveLogoPath(folder.Disk, print, u"/pictures/my logo.png"_s);
    QCOMPARE(folder.Bytes(u"/CompanyLogo.txt"_s), "\"/pictures/my logo.png\"\r\n");
    QCOMPARE(folder.Bytes(u"/LogoSettings.txt"_s), "1440,1440\r\n");
    QVERIFY(!folder.Has(u"/Backup/CompanyLogo.txt"_s));
  }

  void anEmptyPathStoresNothing() {
    DataFolder folder;
    PrintAppearance print;
    print.Logo = "picture";
    SaveLogoPath(folder.Disk, print, {});
    QVERIFY(folder.Files().isEmpty());
  }

  void onlyAPathThatReadsBackCanBeStored() {
    QVERIFY(CanStoreLogoPath(u"/home/me/Bj\u00F6rn, Inc.png"_s));
    QVERIFY(!CanStoreLogoPath(u"/home/me/\"logo\".png"_s));
    QVERIFY(!CanStoreLogoPath(u"/home/me/\u65E5.png"_s));
  }

  void clearingTakesThePathWithItsBackupAndLeavesTheSize() {
    DataFolder folder;
    folder.Put(u"/CompanyLogo.txt"_s, "p");
    folder.Put(u"/Backup/CompanyLogo.txt"_s, "p");
    folder.Put(u"/LogoSettings.txt"_s, "1710,180\r\n");
    PrintAppearance print;
    print.Logo = "picture";
    print.LogoWidth = 1710;
    print.LogoFrameWidth = 900;
    ClearLogo(folder.Disk, print);
    QVERIFY(print.Logo.isEmpty());
    QCOMPARE(print.LogoFrameWidth, 1440);
    QCOMPARE(print.LogoWidth, 1710);
    QCOMPARE(folder.Files(), QStringList{u"LogoSettings.txt"_s});
    QVERIFY(folder.Files(u"/Backup"_s).isEmpty());
  }

  void theSizingButtonsGoRoundFrom180To1800() {
    QCOMPARE(NextLogoSize(1440), 1530);
    QCOMPARE(NextLogoSize(1710), 1800);
    QCOMPARE(NextLogoSize(1800), 180);
    QCOMPARE(NextLogoSize(180), 270);
    QCOMPARE(NextLogoSize(1799), 1889);
    QCOMPARE(NextLogoSize(2500), 180);
  }
};

QTEST_GUILESS_MAIN(LogoTest)
#include "tst_logo.moc"
