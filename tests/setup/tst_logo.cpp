// The logo: the path of the user's picture, its size in print, and what each button's rule does to the files.
#include <cerrno>
#include <QScopeGuard>
#include <QtTest>

#include "setup/Logo.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "torture/FileCalls.h"

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

  void aFileThatIsNoPictureIsDamageOfTheFileThatNamesIt() {
    DataFolder folder;
    folder.Put(u"/logo.png"_s, "letters");
    folder.Put(u"/CompanyLogo.txt"_s, Quoted(folder.Path(u"/logo.png"_s)));
    PrintAppearance print;
    const RuntimeError error = CaughtFrom([&] { LoadLogo(folder.Disk, print, SaysPicture); });
    QCOMPARE(error.Number(), 481);
    QCOMPARE(error.Subject(), u"/CompanyLogo.txt"_s);
    QVERIFY2(error.Text().contains(folder.Path(u"/logo.png"_s)), qPrintable(error.Text()));
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    QVERIFY(print.Logo.isEmpty());
  }

  void atTheStartAPictureThatCannotBeReadIsDamageOfTheFileThatNamesIt_data() {
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("why");
    const QString unusable = u"The file or folder can't be used."_s;
    QTest::newRow("the look, a dead network drive") << 1 << ENOTCONN << unusable;
    QTest::newRow("the look, a broken disk") << 1 << EIO << unusable;
    QTest::newRow("its length, a broken disk") << 2 << EIO << unusable;
    QTest::newRow("the opening, not for this user")
        << 3 << EACCES << u"The file or its folder is write-protected or may not be used."_s;
    QTest::newRow("the reading, a broken disk") << 4 << EIO << unusable;
  }
  void atTheStartAPictureThatCannotBeReadIsDamageOfTheFileThatNamesIt() {
    QFETCH(int, call);
    QFETCH(int, error);
    QFETCH(QString, why);
    DataFolder folder;
    const DataFolder drive;
    const QString path = drive.Path(u"/logo.png"_s);
    drive.Put(u"/logo.png"_s, "picture one");
    folder.Put(u"/CompanyLogo.txt"_s, Quoted(path));
    PrintAppearance print;
    FileCalls::Arm(drive.Path({}).toLocal8Bit().constData(), {FileCalls::Harm::FailOnce, call, error, 0});
    const auto whole = qScopeGuard([] { FileCalls::Disarm(); });
    const RuntimeError told = CaughtFrom([&] { LoadLogoAtStart(folder.Disk, print, SaysPicture); });
    QCOMPARE(told.Number(), 481);
    QCOMPARE(told.Subject(), u"/CompanyLogo.txt"_s);
    QCOMPARE(told.Text(), u"It names "_s + path + u" as the logo, and that file can't be read. "_s + why);
    QCOMPARE(told.From(), RuntimeError::Origin::FileContent);
    QVERIFY(print.Logo.isEmpty());
  }

  void atTheStartAFileOfThePathThatCannotBeReadIsTheErrorItIs() {
    DataFolder folder;
    folder.Put(u"/CompanyLogo.txt"_s, Quoted(folder.Path(u"/logo.png"_s)));
    PrintAppearance print;
    folder.Device.FailAt(FailingDevice::Call::Open, 1, EIO);
    const RuntimeError told = CaughtFrom([&] { LoadLogoAtStart(folder.Disk, print, SaysPicture); });
    QCOMPARE(told.Number(), 75);
    QCOMPARE(told.Subject(), folder.Path(u"/CompanyLogo.txt"_s));
  }

  void laterAPictureThatCannotBeReadIsRefusedByItsOwnName() {
    DataFolder folder;
    folder.Put(u"/logo.png"_s, "picture one");
    folder.Put(u"/CompanyLogo.txt"_s, Quoted(folder.Path(u"/logo.png"_s)));
    PrintAppearance print;
    folder.Device.FailAt(FailingDevice::Call::Open, 2, EIO);
    const RuntimeError told = CaughtFrom([&] { LoadLogo(folder.Disk, print, SaysPicture); });
    QCOMPARE(told.Number(), 75);
    QCOMPARE(told.Subject(), folder.Path(u"/logo.png"_s));
    // The program goes on.
    QCOMPARE(told.From(), RuntimeError::Origin::Event);
  }

  void aPictureFileThatIsNoneIsRefusedByItsOwnName() {
    DataFolder folder;
    folder.Put(u"/logo.png"_s, "letters");
    PrintAppearance print;
    print.Logo = "picture kept";
    const RuntimeError error =
        CaughtFrom([&] { LoadPicture(folder.Disk, print, folder.Path(u"/logo.png"_s), SaysPicture); });
    QCOMPARE(error.Number(), 481);
    QCOMPARE(error.Subject(), folder.Path(u"/logo.png"_s));
    QCOMPARE(error.From(), RuntimeError::Origin::Event);
    QCOMPARE(print.Logo, "picture kept");
  }

  void anEmptyPathFileIsDamage() {
    DataFolder folder;
    folder.Put(u"/CompanyLogo.txt"_s, "");
    PrintAppearance print;
    const RuntimeError error = CaughtFrom([&] { LoadLogo(folder.Disk, print, SaysPicture); });
    QCOMPARE(error.Number(), ErrorNumber::InputPastEnd);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
  }

  void theSizeIsReadWidthFirstAndWrittenBackAsItWasRead_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<float>("width");
    QTest::addColumn<float>("height");
    QTest::newRow("whole") << QByteArray("1710,180\r\n") << 1710.0F << 180.0F;
    QTest::newRow("fractions") << QByteArray("1710.25,899.6\r\n") << 1710.25F << 899.6F;
    QTest::newRow("seven digits") << QByteArray("1439.999,0.1\r\n") << 1439.999F << 0.1F;
    QTest::newRow("least and most") << QByteArray("0,15840\r\n") << 0.0F << 15840.0F;
  }
  void theSizeIsReadWidthFirstAndWrittenBackAsItWasRead() {
    QFETCH(QByteArray, line);
    QFETCH(float, width);
    QFETCH(float, height);
    DataFolder folder;
    folder.Put(u"/LogoSettings.txt"_s, line);
    PrintAppearance print;
    LoadLogoSettings(folder.Disk, print);
    // To the last bit: the comparison of the test library would let nearly equal ones pass.
    QVERIFY2(print.LogoWidth == width && print.LogoHeight == height, line.constData());
    print.Logo = "picture";
    folder.Put(u"/LogoSettings.txt"_s, "");
    SaveLogoSettings(folder.Disk, print);
    QCOMPARE(folder.Bytes(u"/LogoSettings.txt"_s), line);
  }

  void aSizeThatIsNoneIsDamage_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("number");
    QTest::newRow("empty") << QByteArray() << 62;
    QTest::newRow("width alone") << QByteArray("1440\r\n") << 62;
    QTest::newRow("letters") << QByteArray("wide,high\r\n") << 13;
    QTest::newRow("below zero") << QByteArray("1440,-90\r\n") << 6;
    QTest::newRow("height below zero by a fraction") << QByteArray("1440,-0.25\r\n") << 6;
    QTest::newRow("wider than a sheet") << QByteArray("15840.5,1440\r\n") << 6;
    QTest::newRow("higher than a sheet") << QByteArray("1440,15841\r\n") << 6;
    QTest::newRow("the largest whole number") << QByteArray("2147483647,2147483647\r\n") << 6;
    QTest::newRow("beyond whole numbers") << QByteArray("1E+30,1440\r\n") << 6;
    QTest::newRow("beyond single precision") << QByteArray("1440,1E+300\r\n") << 6;
    QTest::newRow("beyond any number") << QByteArray("1E400,1440\r\n") << 6;
  }
  void aSizeThatIsNoneIsDamage() {
    QFETCH(QByteArray, content);
    QFETCH(int, number);
    DataFolder folder;
    folder.Put(u"/LogoSettings.txt"_s, content);
    PrintAppearance print;
    print.LogoWidth = print.LogoHeight = 270;
    const RuntimeError error = CaughtFrom([&] { LoadLogoSettings(folder.Disk, print); });
    QCOMPARE(error.Number(), number);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(error.Subject(), u"/LogoSettings.txt"_s);
    QCOMPARE(print.LogoWidth, 270.0F);
    QCOMPARE(print.LogoHeight, 270.0F);
  }

  void withoutTheSizeFileItIs1440By1440AndIsSavedWhereThereIsALogo() {
    DataFolder folder;
    PrintAppearance print;
    print.LogoWidth = print.LogoHeight = 180;
    LoadLogoSettings(folder.Disk, print);
    QCOMPARE(print.LogoWidth, 1440.0F);
    QCOMPARE(print.LogoHeight, 1440.0F);
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
    QCOMPARE(print.LogoWidth, 1710.0F);
    QCOMPARE(folder.Files(), QStringList{u"LogoSettings.txt"_s});
    QVERIFY(folder.Files(u"/Backup"_s).isEmpty());
  }

  void aPathThatCannotBeRemovedLeavesTheLogo() {
    DataFolder folder;
    folder.Put(u"/CompanyLogo.txt"_s, "p");
    PrintAppearance print;
    print.Logo = "picture";
    print.LogoFrameWidth = 900;
    folder.Device.FailAlways(FailingDevice::Call::Remove, EACCES);
    const RuntimeError error = CaughtFrom([&] { ClearLogo(folder.Disk, print); });
    QCOMPARE(error.Number(), ErrorNumber::PermissionDenied);
    QCOMPARE(print.Logo, "picture");
    QCOMPARE(print.LogoFrameWidth, 900);
    QCOMPARE(folder.Bytes(u"/CompanyLogo.txt"_s), "p");
  }

  void theSizingButtonsGoRoundFrom180To1800() {
    QCOMPARE(NextLogoSize(1440), 1530.0F);
    QCOMPARE(NextLogoSize(1710), 1800.0F);
    QCOMPARE(NextLogoSize(1800), 180.0F);
    QCOMPARE(NextLogoSize(180), 270.0F);
    QCOMPARE(NextLogoSize(1799.5F), 1889.5F);
    QCOMPARE(NextLogoSize(2500), 180.0F);
  }
};

QTEST_GUILESS_MAIN(LogoTest)
#include "tst_logo.moc"
