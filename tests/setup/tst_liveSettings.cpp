// The settings file, and the one load of everything at start in its order.
#include <QtTest>

#include "desktop/SerialLine.h"
#include "setup/LiveSettings.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class LiveSettingsTest : public QObject {
  Q_OBJECT

  static bool AnyPicture(const QByteArray&) { return true; }

 private:
  SerialLine m_noPorts{PortTable{}};

 private Q_SLOTS:
  void aFirstSaveWithTheDefaultsWritesThisLine() {
    DataFolder folder;
    LiveSettings live;
    LoadSettings(folder.Disk, live);
    QVERIFY(folder.Files().isEmpty());
    SaveSettings(folder.Disk, live);
    QCOMPARE(folder.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
  }

  void withoutTheFileTheDefaultsOverwriteTheLiveValues() {
    DataFolder folder;
    LiveSettings live;
    live.Tax.ckSalesItems = false;
    live.Tax.ckServices = live.Tax.ckLabor = live.Tax.ckCustom = live.Tax.ckApplyGraduated = true;
    live.Tax.txtGradulated = {u"$5.00"_s, u"$6.00"_s};
    live.Invoicer = {u"2.0"_s, u"10"_s};
    live.Print.optPlain = false;
    live.Print.optReturn = true;
    LoadSettings(folder.Disk, live);
    QCOMPARE(live.Tax.ckSalesItems, true);
    QVERIFY(!live.Tax.ckServices && !live.Tax.ckLabor && !live.Tax.ckCustom && !live.Tax.ckApplyGraduated);
    QCOMPARE(live.Tax.txtGradulated[0], u"$0.00"_s);
    QCOMPARE(live.Tax.txtGradulated[1], u"$0.00"_s);
    QCOMPARE(live.Invoicer.cboDiscount, u"0.0"_s);
    QCOMPARE(live.Invoicer.cboDays, u"0"_s);
    QCOMPARE(live.Print.optPlain, true);
    QCOMPARE(live.Print.optReturn, false);
  }

  void theElevenFieldsAreReadOverTheLiveValues() {
    DataFolder folder;
    folder.Put(u"/KarvexInvoicerSettings.txt"_s, "0,1,1,1,1,\"2.5\",\"30\",#FALSE#,#TRUE#,\"$1,000.00\",\"$5.00\"\r\n");
    LiveSettings live;
    LoadSettings(folder.Disk, live);
    QCOMPARE(live.Tax.ckSalesItems, false);
    QVERIFY(live.Tax.ckServices && live.Tax.ckLabor && live.Tax.ckCustom && live.Tax.ckApplyGraduated);
    QCOMPARE(live.Invoicer.cboDiscount, u"2.5"_s);
    QCOMPARE(live.Invoicer.cboDays, u"30"_s);
    QCOMPARE(live.Print.optPlain, false);
    QCOMPARE(live.Print.optReturn, true);
    QCOMPARE(live.Tax.txtGradulated[0], u"$1,000.00"_s);
    QCOMPARE(live.Tax.txtGradulated[1], u"$5.00"_s);
  }

  void eachTickHasItsOwnPlaceInTheLine_data() {
    QTest::addColumn<int>("place");
    for (int i = 0; i < 5; ++i) QTest::addRow("field %d", i + 1) << i;
  }
  void eachTickHasItsOwnPlaceInTheLine() {
    QFETCH(int, place);
    DataFolder folder;
    LiveSettings live;
    LoadSettings(folder.Disk, live);
    live.Tax.ckSalesItems = false;
    bool* const ticks[] = {&live.Tax.ckSalesItems, &live.Tax.ckServices, &live.Tax.ckLabor, &live.Tax.ckCustom,
                           &live.Tax.ckApplyGraduated};
    *ticks[place] = true;
    SaveSettings(folder.Disk, live);
    QByteArray ticked = "0,0,0,0,0";
    ticked[2 * place] = '1';
    QCOMPARE(folder.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             ticked + ",\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
    for (int i = 0; i < 5; ++i) QCOMPARE(*ticks[i], i == place);
  }

  void aSaveRemembersTheInvoicesDiscountAndThePaperAndDropsTheBackup() {
    DataFolder folder;
    folder.Put(u"/Backup/KarvexInvoicerSettings.txt"_s, "old");
    LiveSettings live;
    live.Invoicer = {u"1.5"_s, u"15"_s};
    live.Print.optPlain = false;
    live.Print.optReturn = true;
    live.Tax.txtGradulated = {u"$1,000.00"_s, u"$5.00"_s};
    SaveSettings(folder.Disk, live);
    QCOMPARE(folder.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             "1,0,0,0,0,\"1.5\",\"15\",#FALSE#,#TRUE#,\"$1,000.00\",\"$5.00\"\r\n");
    QVERIFY(!folder.Has(u"/Backup/KarvexInvoicerSettings.txt"_s));
  }

  void aSaveEndsWithALoadOfWhatWasWritten() {
    DataFolder folder;
    LiveSettings live;
    live.Tax.txtGradulated = {u"\u65E5"_s, u"$0.00"_s};
    SaveSettings(folder.Disk, live);
    QCOMPARE(live.Tax.txtGradulated[0], u"?"_s);
  }

  void theFileBearsTheProgramFilesName() {
    DataFolder folder(u"Shop"_s);
    LiveSettings live;
    LoadSettings(folder.Disk, live);
    SaveSettings(folder.Disk, live);
    QCOMPARE(folder.Files(), QStringList{u"ShopSettings.txt"_s});
  }

  void ofTwoPapersBothOnTheSecondWinsAndBothOffStayOff() {
    DataFolder folder;
    LiveSettings live;
    folder.Put(u"/KarvexInvoicerSettings.txt"_s, "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#TRUE#,\"\",\"\"\r\n");
    LoadSettings(folder.Disk, live);
    QCOMPARE(live.Print.optPlain, false);
    QCOMPARE(live.Print.optReturn, true);
    folder.Put(u"/KarvexInvoicerSettings.txt"_s, "1,0,0,0,0,\"0.0\",\"0\",#FALSE#,#FALSE#,\"\",\"\"\r\n");
    LoadSettings(folder.Disk, live);
    QCOMPARE(live.Print.optPlain, false);
    QCOMPARE(live.Print.optReturn, false);
  }

  void aFileThatIsNotWhatItMustBeIsDamageAndStaysAsItIs_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("number");
    QTest::newRow("empty") << QByteArray() << 62;
    QTest::newRow("ten fields") << QByteArray("1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\"\r\n") << 62;
    QTest::newRow("a tick of letters") << QByteArray("on,0,0,0,0,\"\",\"\",#TRUE#,#FALSE#,\"\",\"\"\r\n") << 13;
    QTest::newRow("a tick of seven") << QByteArray("1,7,0,0,0,\"\",\"\",#TRUE#,#FALSE#,\"\",\"\"\r\n") << 13;
    QTest::newRow("a tick left out") << QByteArray("1,,0,0,0,\"\",\"\",#TRUE#,#FALSE#,\"\",\"\"\r\n") << 13;
    QTest::newRow("a paper of letters") << QByteArray("1,0,0,0,0,\"\",\"\",plain,#FALSE#,\"\",\"\"\r\n") << 13;
  }
  void aFileThatIsNotWhatItMustBeIsDamageAndStaysAsItIs() {
    QFETCH(QByteArray, content);
    QFETCH(int, number);
    DataFolder folder;
    folder.Put(u"/KarvexInvoicerSettings.txt"_s, content);
    LiveSettings live;
    const RuntimeError error = CaughtFrom([&] { LoadSettings(folder.Disk, live); });
    QCOMPARE(error.Number(), number);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(error.Subject(), u"/KarvexInvoicerSettings.txt"_s);
    QCOMPARE(folder.Bytes(u"/KarvexInvoicerSettings.txt"_s), content);
  }

  void aFullDiskLeavesTheOldSettingsAndTheirBackupWhole() {
    DataFolder folder;
    folder.Put(u"/KarvexInvoicerSettings.txt"_s, "old");
    folder.Put(u"/Backup/KarvexInvoicerSettings.txt"_s, "copy");
    LiveSettings live;
    folder.Device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { SaveSettings(folder.Disk, live); }), ErrorNumber::DiskFull);
    QCOMPARE(folder.Bytes(u"/KarvexInvoicerSettings.txt"_s), "old");
    QCOMPARE(folder.Bytes(u"/Backup/KarvexInvoicerSettings.txt"_s), "copy");
  }

  void theInvoicesOwnDefaultsComeFirstAndTheSettingsAfter() {
    DataFolder folder;
    LiveSettings live;
    int loads = 0;
    LoadSetup(m_noPorts, folder.Disk, live, AnyPicture, [&] {
      ++loads;
      live.Invoicer = {u"2.0"_s, u"10"_s};
    });
    QCOMPARE(loads, 1);
    QCOMPARE(live.Invoicer.cboDiscount, u"0.0"_s);
    QCOMPARE(live.Invoicer.cboDays, u"0"_s);
  }

  void aFirstStartIsInUsaStyleWithTheDefaultsAndTouchesNoFile() {
    DataFolder folder;
    LiveSettings live;
    LoadSetup(m_noPorts, folder.Disk, live, AnyPicture, {});
    QVERIFY(live.Business.IsUsaStyle());
    QCOMPARE(live.Tax.cboTaxHeading1, u"Sales Tax"_s);
    QCOMPARE(live.Tax.ckSalesItems, true);
    QCOMPARE(live.Print.lblFont, u"Arial"_s);
    QCOMPARE(live.Print.optPlain, true);
    QCOMPARE(live.Phone.ModemPort, 1);
    QCOMPARE(live.Phone.ckCallerID, true);
    QVERIFY(folder.Files().isEmpty());
  }

  void everyFileIsAskedForInTheOrderOfTheLoad() {
    // The nth file alone is damaged; what was read before it has taken effect, what comes after hasn't.
    const QStringList order = {
        u"/MyBusinessData.txt"_s, u"/Phone.txt"_s,       u"/CallID.txt"_s,       u"/PrintColors.txt"_s,
        u"/TaxSettings.txt"_s,    u"/CompanyLogo.txt"_s, u"/LogoSettings.txt"_s, u"/KarvexInvoicerSettings.txt"_s};
    for (qsizetype damaged = 0; damaged < order.size(); ++damaged) {
      DataFolder folder;
      for (qsizetype i = damaged; i < order.size(); ++i) folder.Put(order[i], "");
      LiveSettings live;
      bool invoiceLoaded = false;
      const RuntimeError error =
          CaughtFrom([&] { LoadSetup(m_noPorts, folder.Disk, live, AnyPicture, [&] { invoiceLoaded = true; }); });
      QCOMPARE(error.Subject(), order[damaged]);
      QVERIFY(!invoiceLoaded);
      QCOMPARE(live.Business.IsUsaStyle(), damaged >= 3);
    }
  }

  void aSavedProfileWithNameAndNoPostalCodeStartsInInternationalStyle() {
    DataFolder folder;
    folder.Put(u"/MyBusinessData.txt"_s, "\"Acme\",\"\",\"\",\"\",\"\",\"\",\"555\",\"\",\"\"\r\n");
    LiveSettings live;
    QList<bool> told;
    live.Business.UseAddressStyle = [&](bool usaStyle) { told << usaStyle; };
    LoadSetup(m_noPorts, folder.Disk, live, AnyPicture, {});
    QVERIFY(!live.Business.IsUsaStyle());
    QCOMPARE(told, QList<bool>{false});
  }

  void theLogosSizeIsNotMadeUpAtStart() {
    DataFolder folder;
    folder.Put(u"/logo.png"_s, "picture");
    folder.Put(u"/CompanyLogo.txt"_s, '"' + folder.Path(u"/logo.png"_s).toLatin1() + "\"\r\n");
    LiveSettings live;
    LoadSetup(m_noPorts, folder.Disk, live, AnyPicture, {});
    QCOMPARE(live.Print.Logo, "picture");
    QVERIFY(!folder.Has(u"/LogoSettings.txt"_s));
  }
};

QTEST_GUILESS_MAIN(LiveSettingsTest)
#include "tst_liveSettings.moc"
