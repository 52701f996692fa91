// The read that heals itself, record counts, saves, and the exit backup.
#include <QtTest>

#include "shell/CommonDiskRoutines.h"
#include "support/ErrorOf.h"
#include "support/FailingDevice.h"

using namespace Qt::StringLiterals;

class DiskRoutinesTest : public QObject {
  Q_OBJECT

  FailingDevice m_device;
  FileStore m_store{m_device};
  std::unique_ptr<QTemporaryDir> m_root;
  std::unique_ptr<CommonDiskRoutines> m_disk;

  void Put(const QString& name, const QByteArray& content) {
    QFile file(m_root->path() + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
  }
  QByteArray Bytes(const QString& name) {
    QFile file(m_root->path() + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(absent)");
  }
  bool Absent(const QString& name) { return !QFileInfo::exists(m_root->path() + name); }

 private Q_SLOTS:
  void init() {
    m_device.Reset();
    m_root = std::make_unique<QTemporaryDir>();
    m_disk = std::make_unique<CommonDiskRoutines>(m_store, m_root->path(), u"KarvexInvoicer"_s);
    QVERIFY(QDir(m_root->path()).mkdir(u"Backup"_s));
  }

  void aFileThatOnlyTheBackupHasComesBack() {
    Put(u"/Backup/Phone.txt"_s, "\"\",\"\"\r\n");
    QVERIFY(m_disk->FileExists(u"/Phone.txt"_s));
    QCOMPARE(Bytes(u"/Phone.txt"_s), "\"\",\"\"\r\n");
    QCOMPARE(Bytes(u"/Backup/Phone.txt"_s), "\"\",\"\"\r\n");
  }

  void anEmptyFileCountsAndIsNotRestored() {
    Put(u"/Labor.txt"_s, "");
    Put(u"/Backup/Labor.txt"_s, "full");
    QVERIFY(m_disk->FileExists(u"\\Labor.txt"_s));
    QCOMPARE(Bytes(u"/Labor.txt"_s), "");
  }

  void aFolderDoesNotCountAsAFile() {
    QVERIFY(QDir(m_root->path()).mkdir(u"Templates"_s));
    QVERIFY(!m_disk->FileExists(u"/Templates"_s));
  }

  void aMissingFileWithoutBackupIsAbsent() { QVERIFY(!m_disk->FileExists(u"/Phone.txt"_s)); }

  void aRecordIsAppendedBehindTheLastOne() {
    m_disk->AppendRecord(u"/TaxRecords.txt"_s, "one");
    m_disk->AppendRecord(u"/TaxRecords.txt"_s, "two");
    QCOMPARE(Bytes(u"/TaxRecords.txt"_s), "onetwo");
  }

  void anAppendFetchesTheFileFromTheBackupFirst() {
    Put(u"/Backup/TaxRecords.txt"_s, "one");
    m_disk->AppendRecord(u"/TaxRecords.txt"_s, "two");
    QCOMPARE(Bytes(u"/TaxRecords.txt"_s), "onetwo");
  }

  void aFullFileTakesNoMoreRecords() {
    Put(u"/TaxRecords.txt"_s, QByteArray(32766, 'x'));
    m_disk->AppendRecord(u"/TaxRecords.txt"_s, "y");
    const RuntimeError full = CaughtFrom([&] { m_disk->AppendRecord(u"/TaxRecords.txt"_s, "z"); });
    QCOMPARE(full.Number(), 6);
    QCOMPARE(full.Subject(), u"/TaxRecords.txt"_s);
    QCOMPARE(Bytes(u"/TaxRecords.txt"_s), QByteArray(32766, 'x') + 'y');
  }

  void anErrorOfAFileNamesItFromTheRootHoweverTheCallerDid() {
    Put(u"/Short.txt"_s, "1\r\n");
    Put(u"/Full.txt"_s, QByteArray(32767, 'x'));
    for (const QString& separator : {u"/"_s, u"\\"_s, QString()}) {
      const RuntimeError read = CaughtFrom([&] {
        ListReader file = m_disk->OpenInputStart(separator + u"Short.txt"_s, 2);
        file.ReadLine();
        file.ReadLine();
      });
      QCOMPARE(read.Subject(), u"/Short.txt"_s);
      QCOMPARE(CaughtFrom([&] { m_disk->AppendRecord(separator + u"Full.txt"_s, "y"); }).Subject(), u"/Full.txt"_s);
    }
  }

  void aRecordCountRoundsTiesToEven_data() {
    QTest::addColumn<int>("bytes");
    QTest::addColumn<int>("count");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("two") << 656 << 2;
    QTest::newRow("one and a half") << 492 << 2;
    QTest::newRow("two and a half") << 820 << 2;
    QTest::newRow("just over two and a half") << 821 << 3;
    QTest::newRow("half") << 164 << 0;
  }
  void aRecordCountRoundsTiesToEven() {
    QFETCH(int, bytes);
    QFETCH(int, count);
    Put(u"/CustomerData.txt"_s, QByteArray(bytes, ' '));
    QCOMPARE(m_disk->RecordCount(u"/CustomerData.txt"_s, 328), count);
  }

  void anAbsentFileHasNoRecords() { QCOMPARE(m_disk->RecordCount(u"/SoldItems.txt"_s, 90), 0); }

  void aRecordOfAnotherLengthIsRefusedAndWritesNothing() {
    Put(u"/TaxRecords.txt"_s, QByteArray(150, 'x'));
    RandomFile records = m_disk->OpenRandomFile(u"/TaxRecords.txt"_s, 75);
    QVERIFY_THROWS_EXCEPTION(std::logic_error, records.Put(1, QByteArray(76, ' ')));
    QVERIFY_THROWS_EXCEPTION(std::logic_error, records.Put(1, QByteArray(74, ' ')));
    QCOMPARE(Bytes(u"/TaxRecords.txt"_s), QByteArray(150, 'x'));
  }

  void moreThan32767RecordsIsDamageOfTheFile() {
    Put(u"/TaxRecords.txt"_s, QByteArray(32767 * 75, ' '));
    QCOMPARE(m_disk->RecordCount(u"/TaxRecords.txt"_s, 75), 32767);
    Put(u"/TaxRecords.txt"_s, QByteArray(32768 * 75, ' '));
    try {
      m_disk->RecordCount(u"/TaxRecords.txt"_s, 75);
      QFAIL("no error");
    } catch (const RuntimeError& error) {
      QCOMPARE(error.Number(), 6);
      QCOMPARE(error.Subject(), u"/TaxRecords.txt"_s);
      QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    }
  }

  void killingAFileClosesWhatIsOpen() {
    Put(u"/ShipVia.txt"_s, "\"Truck\"\r\n\"Rail\"\r\n");
    ListReader reader = m_disk->OpenInputFile(u"/ShipVia.txt"_s);
    RandomFile records = m_disk->OpenRandomFile(u"/SoldItems.txt"_s, 90);
    QCOMPARE(reader.ReadString(), u"Truck"_s);
    m_disk->KillDataFile(u"/AuxHeadings.txt"_s);
    QCOMPARE(ErrorOf([&] { reader.ReadString(); }), 52);
    QCOMPARE(ErrorOf([&] { records.Get(1); }), 52);
    QCOMPARE(ErrorOf([&] { records.Put(1, QByteArray(90, ' ')); }), 52);
  }

  void killingWithTheBackupClosesWhatIsOpen() {
    Put(u"/ShipVia.txt"_s, "\"Truck\"\r\n");
    ListReader reader = m_disk->OpenInputFile(u"/ShipVia.txt"_s);
    RandomFile records = m_disk->OpenRandomFile(u"/SoldItems.txt"_s, 90);
    m_disk->KillWithBackup(u"/AuxHeadings.txt"_s);
    QCOMPARE(ErrorOf([&] { reader.ReadString(); }), 52);
    QCOMPARE(ErrorOf([&] { records.Get(1); }), 52);
  }

  void replacingATextClosesWhatIsOpen() {
    Put(u"/ShipVia.txt"_s, "\"Truck\"\r\n");
    ListReader reader = m_disk->OpenInputFile(u"/ShipVia.txt"_s);
    RandomFile records = m_disk->OpenRandomFile(u"/SoldItems.txt"_s, 90);
    m_disk->ReplaceTextFile(u"/InvoiceMemo.txt"_s, u"Thanks"_s);
    QCOMPARE(ErrorOf([&] { reader.ReadString(); }), 52);
    QCOMPARE(ErrorOf([&] { records.Get(1); }), 52);
  }

  void aMissingFileCannotBeOpenedToRead() {
    const RuntimeError error = CaughtFrom([&] { m_disk->OpenInputFile(u"/ShipVia.txt"_s); });
    QCOMPARE(error.Number(), 53);
    QCOMPARE(error.Subject(), m_root->path() + u"/ShipVia.txt"_s);
    // Opening alone fetches nothing: that is FileExists's part.
    Put(u"/Backup/ShipVia.txt"_s, "\"Truck\"\r\n");
    QCOMPARE(ErrorOf([&] { m_disk->OpenInputFile(u"/ShipVia.txt"_s); }), 53);
  }

  void aSaveDropsTheBackupCopyOnceTheNewFileStands() {
    Put(u"/PrintColors.txt"_s, "old");
    Put(u"/Backup/PrintColors.txt"_s, "older");
    m_disk->SaveFile(u"/PrintColors.txt"_s, "new", BackupCopy::Dropped);
    QCOMPARE(Bytes(u"/PrintColors.txt"_s), "new");
    QVERIFY(Absent(u"/Backup/PrintColors.txt"_s));
  }

  void aSaveThatKeepsTheBackupCopyLeavesIt() {
    Put(u"/Backup/Phone.txt"_s, "older");
    m_disk->SaveFile(u"/Phone.txt"_s, "new", BackupCopy::Kept);
    QCOMPARE(Bytes(u"/Backup/Phone.txt"_s), "older");
  }

  void aKillAtAnyStepOfASaveLeavesTheFileOldOrNewAndTheCopyWithTheOldOne() {
    bool finished = false;
    for (int step = 1; !finished; ++step) {
      Put(u"/PrintColors.txt"_s, "old");
      Put(u"/Backup/PrintColors.txt"_s, "older");
      m_device.KillAt(step);
      try {
        m_disk->SaveFile(u"/PrintColors.txt"_s, "new", BackupCopy::Dropped);
        finished = true;
      } catch (const FailingDevice::Killed&) {
      }
      const QByteArray content = Bytes(u"/PrintColors.txt"_s);
      QVERIFY2(content == "old" || content == "new", content.constData());
      // The copy goes only once the new file stands.
      if (content == "old") QCOMPARE(Bytes(u"/Backup/PrintColors.txt"_s), "older");
      if (finished) QVERIFY(Absent(u"/Backup/PrintColors.txt"_s));
    }
  }

  void aSaveThatFailsKeepsTheFileAndItsCopy() {
    Put(u"/PrintColors.txt"_s, "old");
    Put(u"/Backup/PrintColors.txt"_s, "older");
    m_device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { m_disk->SaveFile(u"/PrintColors.txt"_s, "new", BackupCopy::Dropped); }), 61);
    QCOMPARE(Bytes(u"/PrintColors.txt"_s), "old");
    QCOMPARE(Bytes(u"/Backup/PrintColors.txt"_s), "older");
  }

  void aRestoreThatFailsLeavesNoHalfFile() {
    Put(u"/Backup/Phone.txt"_s, "copy");
    m_device.WriteShortAt(1, 2, ENOSPC);
    QCOMPARE(ErrorOf([&] { m_disk->FileExists(u"/Phone.txt"_s); }), 61);
    QVERIFY(Absent(u"/Phone.txt"_s));
    QVERIFY(m_disk->FileExists(u"/Phone.txt"_s));
    QCOMPARE(Bytes(u"/Phone.txt"_s), "copy");
  }

  void aFileInASubfolderComesBackFromTheSameSubfolderOfTheBackup() {
    QVERIFY(QDir(m_root->path()).mkpath(u"Backup/CompletedInvoices"_s));
    QVERIFY(QDir(m_root->path()).mkpath(u"CompletedInvoices"_s));
    Put(u"/Backup/CompletedInvoices/1001.txt"_s, "image");
    QVERIFY(m_disk->FileExists(u"\\CompletedInvoices\\1001.txt"_s));
    QCOMPARE(Bytes(u"/CompletedInvoices/1001.txt"_s), "image");
  }

  void filesAreKilledAloneOrWithTheirCopy() {
    Put(u"/Phone.txt"_s, "p");
    Put(u"/Backup/Phone.txt"_s, "c");
    m_disk->KillDataFile(u"\\Phone.txt"_s);
    QVERIFY(Absent(u"/Phone.txt"_s));
    QCOMPARE(Bytes(u"/Backup/Phone.txt"_s), "c");
    Put(u"/Phone.txt"_s, "p");
    m_disk->KillWithBackup(u"\\Phone.txt"_s);
    QVERIFY(Absent(u"/Phone.txt"_s));
    QVERIFY(Absent(u"/Backup/Phone.txt"_s));
    m_disk->KillWithBackup(u"/Phone.txt"_s);
  }

  void aRenamedFileTakesThePlaceOfTheOther() {
    Put(u"/TemporaryFile.txt"_s, "new");
    Put(u"/SoldItems.txt"_s, "old");
    const RandomFile open = m_disk->OpenRandomFile(u"/SoldItems.txt"_s, 3);
    m_disk->RenameDataFile(u"/TemporaryFile.txt"_s, u"\\SoldItems.txt"_s);
    QCOMPARE(Bytes(u"/SoldItems.txt"_s), "new");
    QVERIFY(Absent(u"/TemporaryFile.txt"_s));
    QCOMPARE(ErrorOf([&] { open.Get(1); }), 52);
    m_disk->CopyDataFile(u"\\SoldItems.txt"_s, u"/Backup/SoldItems.txt"_s);
    QCOMPARE(Bytes(u"/Backup/SoldItems.txt"_s), "new");
  }

  void filesOfAFolderAreFoundByWildcard() {
    QVERIFY(QDir(m_root->path()).mkpath(u"KarvexProposals/ProposalBody"_s));
    QVERIFY(!m_disk->AnyFileMatches(u"\\KarvexProposals"_s, u"*.txt"_s));
    Put(u"/KarvexProposals/A.TXT"_s, "");
    QVERIFY(m_disk->AnyFileMatches(u"\\KarvexProposals"_s, u"*.txt"_s));
    QCOMPARE(m_disk->ListFiles(u"/KarvexProposals"_s, u"*.txt"_s), QStringList{u"A.TXT"_s});
    QVERIFY(QFile::remove(m_root->path() + u"/KarvexProposals/A.TXT"_s));
    Put(u"/KarvexProposals/B.txt"_s, "");
    Put(u"/KarvexProposals/a.txt"_s, "");
    QVERIFY(m_disk->AnyFileMatches(u"\\KarvexProposals"_s, u"*.txt"_s));
    QCOMPARE(m_disk->ListFiles(u"/KarvexProposals"_s, u"*.txt"_s), (QStringList{u"a.txt"_s, u"B.txt"_s}));
  }

  void aTextIsReplacedByOnePlainLine() {
    Put(u"/Backup/InvoiceMemo.txt"_s, "older");
    m_disk->ReplaceTextFile(u"/InvoiceMemo.txt"_s, u"Thanks, \u20ac 5"_s);
    QCOMPARE(Bytes(u"/InvoiceMemo.txt"_s), "Thanks, \x80 5\r\n");
    QVERIFY(Absent(u"/Backup/InvoiceMemo.txt"_s));
  }

  void aRandomFileIsCreatedWhenOpened() {
    m_disk->OpenRandomFile(u"/TaxRecords.txt"_s, 75);
    QCOMPARE(Bytes(u"/TaxRecords.txt"_s), "");
  }

  void aFileMadeForARecordThatFailsGoesAgain() {
    m_device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    RandomFile file = m_disk->OpenRandomFile(u"/TaxRecords.txt"_s, 4);
    QCOMPARE(ErrorOf([&] { file.Put(1, "AAAA"); }), 61);
    QVERIFY(Absent(u"/TaxRecords.txt"_s));
    file.Put(1, "AAAA");
    QCOMPARE(Bytes(u"/TaxRecords.txt"_s), "AAAA");
  }

  void aFileThatHoldsARecordStaysWhereTheNextOneFails() {
    RandomFile file = m_disk->OpenRandomFile(u"/TaxRecords.txt"_s, 4);
    file.Put(1, "AAAA");
    m_device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { file.Put(2, "BBBB"); }), 61);
    QCOMPARE(Bytes(u"/TaxRecords.txt"_s), "AAAA");
  }

  void anEmptyFileThatWasThereBeforeStaysWhereItsFirstRecordFails() {
    Put(u"/TaxRecords.txt"_s, "");
    m_device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { m_disk->OpenRandomFile(u"/TaxRecords.txt"_s, 4).Put(1, "AAAA"); }), 61);
    QCOMPARE(Bytes(u"/TaxRecords.txt"_s), "");
  }

  void recordsAreReadAndWrittenByNumber() {
    RandomFile file = m_disk->OpenRandomFile(u"/Records.txt"_s, 4);
    file.Put(2, "BBBB");
    QCOMPARE(Bytes(u"/Records.txt"_s), QByteArray("\0\0\0\0BBBB", 8));
    file.Put(1, "AAAA");
    QCOMPARE(Bytes(u"/Records.txt"_s), "AAAABBBB");
    QCOMPARE(file.Get(2), "BBBB");
    QCOMPARE(file.Get(3), "");
    QCOMPARE(file.ReadAll().Content(), "AAAABBBB");
    QCOMPARE(file.ReadAll().Record(2).Text(0, 4), u"BBBB"_s);
  }

  void theTwoSpellingsOfTheAuxiliaryFolderAreOne() {
    QCOMPARE(m_disk->PathOf(u"/Auxfiles/1001"_s), m_root->path() + u"/AuxFiles/1001"_s);
    QCOMPARE(m_disk->PathOf(u"\\AUXFILES"_s), m_root->path() + u"/AuxFiles"_s);
    QCOMPARE(m_disk->PathOf(u"/AuxfilesX"_s), m_root->path() + u"/AuxfilesX"_s);
    QCOMPARE(m_disk->PathOf(u"/Backup/Auxfiles/1001"_s), m_root->path() + u"/Backup/AuxFiles/1001"_s);
    QCOMPARE(m_disk->PathOf(u"\\Backup\\AUXFILES"_s), m_root->path() + u"/Backup/AuxFiles"_s);
    QCOMPARE(m_disk->PathOf(u"/Backup/AuxfilesX"_s), m_root->path() + u"/Backup/AuxfilesX"_s);
    QCOMPARE(m_disk->PathOf(u"/Backups/Auxfiles"_s), m_root->path() + u"/Backups/Auxfiles"_s);
  }

  void anAuxiliaryFileComesBackByEitherSpelling() {
    QVERIFY(QDir(m_root->path()).mkpath(u"Backup/AuxFiles/1001/AuxFile0"_s));
    QVERIFY(QDir(m_root->path()).mkpath(u"AuxFiles/1001/AuxFile0"_s));
    Put(u"/Backup/AuxFiles/1001/AuxFile0/Data.txt"_s, "kept");
    QVERIFY(m_disk->FileExists(u"/Auxfiles/1001/AuxFile0/Data.txt"_s));
    QCOMPARE(Bytes(u"/AuxFiles/1001/AuxFile0/Data.txt"_s), "kept");
  }

  void noNameLeadsOutOfTheTree() {
    QCOMPARE(ErrorOf([&] { m_disk->PathOf(u"/AuxFiles/../../x"_s); }), 64);
    QCOMPARE(ErrorOf([&] { m_disk->PathOf(u"\\..\\x"_s); }), 64);
    QCOMPARE(ErrorOf([&] { m_disk->PathOf(u"/CompletedInvoices/.."_s); }), 64);
    QCOMPARE(m_disk->PathOf(u"/CompletedInvoices/a..b.txt"_s), m_root->path() + u"/CompletedInvoices/a..b.txt"_s);
  }

  void theExitBackupCopiesEighteenFilesInOrder() {
    const QStringList copied{u"KarvexInvoicerSettings"_s,
                             u"KVInvoiceNo"_s,
                             u"KVInventoriedItems"_s,
                             u"CompanyLogo"_s,
                             u"CustomerData"_s,
                             u"CustomItems"_s,
                             u"InvoiceMemo"_s,
                             u"InvoiceSalesJournal"_s,
                             u"Labor"_s,
                             u"LogoSettings"_s,
                             u"MyBusinessData"_s,
                             u"MyWebSite"_s,
                             u"Narrative"_s,
                             u"PrintColors"_s,
                             u"Services"_s,
                             u"SoldItems"_s,
                             u"StatementTerms"_s,
                             u"TaxRecords"_s};
    QCOMPARE(copied.size(), 18);
    const QStringList passedOver{u"Phone"_s,        u"CallID"_s,      u"TaxSettings"_s,     u"ShipVia"_s,
                                 u"SpeedNumbers"_s, u"AuxHeadings"_s, u"KAPaymentRecords"_s};
    for (const QString& name : copied + passedOver) Put(u'/' + name + u".txt"_s, "new " + name.toLatin1());
    Put(u"/Backup/Labor.txt"_s, "an older and longer copy");
    m_device.Reset();
    m_disk->BackupDataFiles();
    QStringList inOrder;
    for (const QString& name : copied) inOrder.append(m_root->path() + u"/Backup/"_s + name + u".txt"_s);
    QCOMPARE(m_device.PathsOf(FailingDevice::Call::Rename), inOrder);
    for (const QString& name : copied) QCOMPARE(Bytes(u"/Backup/"_s + name + u".txt"_s), "new " + name.toLatin1());
    QCOMPARE(QDir(m_root->path() + u"/Backup"_s).entryList(QDir::Files).size(), 18);
  }

  void theExitBackupPassesOverWhatIsMissing() {
    Put(u"/Backup/MyWebSite.txt"_s, "old");
    Put(u"/TaxRecords.txt"_s, "t");
    m_disk->BackupDataFiles();
    QCOMPARE(Bytes(u"/Backup/MyWebSite.txt"_s), "old");
    QCOMPARE(Bytes(u"/Backup/TaxRecords.txt"_s), "t");
    QVERIFY(Absent(u"/MyWebSite.txt"_s));
  }

  void theExitBackupPassesOverADamagedFileUntilItIsSaved() {
    Put(u"/Labor.txt"_s, "damaged");
    Put(u"/Backup/Labor.txt"_s, "good");
    Put(u"/TaxRecords.txt"_s, "t");
    m_disk->KeepBackupOf(u"\\Labor.txt"_s);
    m_disk->BackupDataFiles();
    QCOMPARE(Bytes(u"/Backup/Labor.txt"_s), "good");
    QCOMPARE(Bytes(u"/Backup/TaxRecords.txt"_s), "t");
    m_disk->SaveFile(u"/Labor.txt"_s, "mended", BackupCopy::Kept);
    m_disk->BackupDataFiles();
    QCOMPARE(Bytes(u"/Backup/Labor.txt"_s), "mended");
  }

  void theExitBackupGoesOnAfterAFileThatCannotBeCopied() {
    Put(u"/CompanyLogo.txt"_s, "logo");
    Put(u"/TaxRecords.txt"_s, "t");
    QVERIFY(QDir(m_root->path()).mkpath(u"Backup/CompanyLogo.txt"_s));  // a folder in the copy's place
    m_disk->BackupDataFiles();
    QCOMPARE(Bytes(u"/Backup/TaxRecords.txt"_s), "t");
    QCOMPARE(QDir(m_root->path() + u"/Backup"_s).entryList(QDir::Files), QStringList{u"TaxRecords.txt"_s});
  }

  void aKillAtAnyStepOfTheExitBackupLeavesEachCopyOldOrNew() {
    bool finished = false;
    for (int step = 1; !finished; ++step) {
      for (const QString& name : {u"Labor"_s, u"TaxRecords"_s}) {
        Put(u'/' + name + u".txt"_s, "new");
        Put(u"/Backup/"_s + name + u".txt"_s, "old");
      }
      m_device.KillAt(step);
      try {
        m_disk->BackupDataFiles();
        finished = true;
      } catch (const FailingDevice::Killed&) {
      }
      for (const QString& name : {u"Labor"_s, u"TaxRecords"_s}) {
        const QByteArray copy = Bytes(u"/Backup/"_s + name + u".txt"_s);
        QVERIFY2(copy == "new" || (copy == "old" && !finished), copy.constData());
        QCOMPARE(Bytes(u'/' + name + u".txt"_s), "new");
      }
    }
  }

  void aFullDiskAtExitKeepsTheOlderCopies() {
    Put(u"/Labor.txt"_s, "new");
    Put(u"/Backup/Labor.txt"_s, "old");
    Put(u"/TaxRecords.txt"_s, "new");
    m_device.WriteShortAt(1, 1, ENOSPC);
    m_disk->BackupDataFiles();
    QCOMPARE(Bytes(u"/Backup/Labor.txt"_s), "old");
    QCOMPARE(Bytes(u"/Backup/TaxRecords.txt"_s), "new");
  }

  void whatCanNameAFile() {
    QVERIFY(CanNameAFile(u"1001"_s));
    QVERIFY(CanNameAFile(u"a..b"_s));
    for (const QString& name : {u""_s, u"  "_s, u"."_s, u".."_s, u"1001/2"_s, u"a\\b"_s, u"../x"_s})
      QVERIFY2(!CanNameAFile(name), qPrintable(name));
    QVERIFY(!CanNameAFile(QString(3, QChar::Null)));
    QVERIFY(!CanNameAFile(u"a"_s + QChar::Null + u"b"_s));
    QVERIFY(CanNameAFile(QString(240, u'x')));
    QVERIFY(!CanNameAFile(QString(241, u'x')));
  }
};

QTEST_GUILESS_MAIN(DiskRoutinesTest)
#include "tst_diskRoutines.moc"
