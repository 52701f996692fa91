// The folders that a start makes, and the test of a first run.
#include <QtTest>

#include "shell/CommonDiskRoutines.h"
#include "shell/DataTree.h"
#include "support/ErrorOf.h"
#include "support/FailingDevice.h"
#include "support/FixedClock.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

namespace {

/// Writes down the folders in the order in which they are made.
class NotingDevice final : public FailingDevice {
 public:
  QStringList made;
  int MakeFolder(const QString& path) override {
    made << path;
    return FailingDevice::MakeFolder(path);
  }
};

const QStringList folderTable{u"/2026"_s,
                              u"/CompletedInvoices"_s,
                              u"/KarvexInvoicer"_s,
                              u"/KarvexInvoicer/IncompleteInvoices"_s,
                              u"/KVActiveAccounts"_s,
                              u"/KarvexCycleInvoicer"_s,
                              u"/KarvexProposals"_s,
                              u"/KarvexInvoicer/Narratives"_s,
                              u"/KarvexInvoicer/Templates"_s,
                              u"/KarvexInvoicer/Templates/Invoices"_s,
                              u"/Backup"_s,
                              u"/Backup/KarvexInvoicer"_s,
                              u"/Backup/KVActiveAccounts"_s,
                              u"/Backup/KVActiveAccountsBACK"_s,
                              u"/Backup/CompletedInvoices"_s,
                              u"/Backup/KarvexInvoicer/IncompleteInvoices"_s,
                              u"/Templates"_s,
                              u"/Templates/Contracts"_s,
                              u"/Templates/ContractInvoices"_s,
                              u"/Templates/Proposals"_s,
                              u"/KarvexProposals/ProposalBody"_s,
                              u"/ConstructionProjects"_s,
                              u"/AuxFiles"_s};

}  // namespace

class DataTreeTest : public QObject {
  Q_OBJECT

  std::unique_ptr<TemporaryTree> m_tree;
  std::unique_ptr<NotingDevice> m_device;
  std::unique_ptr<FileStore> m_store;
  std::unique_ptr<CommonDiskRoutines> m_disk;
  FixedClock m_clock{QDate(2026, 3, 7)};

  void Open(const QString& exeName = u"KarvexInvoicer"_s) {
    m_disk = std::make_unique<CommonDiskRoutines>(*m_store, m_tree->Root(), exeName);
  }
  QStringList Made() const {
    QStringList names;
    for (const QString& path : m_device->made) names << path.mid(m_tree->Root().size());
    return names;
  }

 private Q_SLOTS:
  void init() {
    m_tree = std::make_unique<TemporaryTree>();
    m_device = std::make_unique<NotingDevice>();
    m_store = std::make_unique<FileStore>(*m_device);
    Open();
  }

  void aFirstStartMakesTheFoldersInTheirOrderWithTheYearFirst() {
    MakeDataTree(*m_disk, m_clock);
    // Under the default name two of the 25 are there already when their turn comes.
    QCOMPARE(Made(), folderTable);
    QCOMPARE(m_tree->List(u"/AuxFiles"_s), QStringList{});
    QVERIFY(m_tree->Everything().isEmpty());
  }

  void aRenamedProgramHasAPairOfFoldersOfItsOwn() {
    Open(u"Other"_s);
    MakeDataTree(*m_disk, m_clock);
    QCOMPARE(Made().size(), 25);
    QCOMPARE(Made().mid(0, 6),
             (QStringList{u"/2026"_s, u"/CompletedInvoices"_s, u"/Other"_s, u"/Other/IncompleteInvoices"_s,
                          u"/KVActiveAccounts"_s, u"/KarvexInvoicer"_s}));
    QCOMPARE(Made()[8], u"/KarvexInvoicer/IncompleteInvoices"_s);
    QCOMPARE(Made()[13], u"/Backup/Other"_s);
    QCOMPARE(Made()[17], u"/Backup/Other/IncompleteInvoices"_s);
  }

  void aStartInANewYearAddsThatYearsFolderAndNothingElse() {
    MakeDataTree(*m_disk, m_clock);
    m_device->made.clear();
    MakeDataTree(*m_disk, FixedClock(QDate(2027, 1, 1)));
    QCOMPARE(Made(), QStringList{u"/2027"_s});
  }

  void aFolderThatCannotBeMadeIsAnErrorThatNamesIt() {
    m_device->FailAt(FailingDevice::Call::MakeFolder, 11, EACCES);
    const RuntimeError denied = CaughtFrom([&] { MakeDataTree(*m_disk, m_clock); });
    QCOMPARE(denied.Number(), 70);
    QCOMPARE(denied.Subject(), m_tree->Path(u"/Backup"_s));
    m_device->FailAt(FailingDevice::Call::MakeFolder, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { MakeDataTree(*m_disk, m_clock); }), 61);
  }

  void aFileInAFoldersPlaceIsAnError() {
    m_tree->Write(u"/Templates"_s, "a file");
    QCOMPARE(ErrorOf([&] { MakeDataTree(*m_disk, m_clock); }), 75);
    QCOMPARE(m_tree->Bytes(u"/Templates"_s), "a file");
  }

  void theFirstRunTestAsksForThreeFiles_data() {
    QTest::addColumn<QString>("missing");
    QTest::newRow("settings") << u"/KarvexInvoicerSettings.txt"_s;
    QTest::newRow("business") << u"/MyBusinessData.txt"_s;
    QTest::newRow("phone") << u"/Phone.txt"_s;
  }
  void theFirstRunTestAsksForThreeFiles() {
    QFETCH(QString, missing);
    for (const QString& name : {u"/KarvexInvoicerSettings.txt"_s, u"/MyBusinessData.txt"_s, u"/Phone.txt"_s}) {
      m_tree->Write(name, "");
    }
    QVERIFY(RequiredFilesPresent(*m_disk));
    m_tree->Remove(missing);
    QVERIFY(!RequiredFilesPresent(*m_disk));
    m_tree->Write(u"/Backup"_s + missing, "copy");
    QVERIFY(RequiredFilesPresent(*m_disk));
    QCOMPARE(m_tree->Bytes(missing), "copy");
  }

  void allThreeGetTheirRestoreThoughOneIsLost() {
    m_tree->Write(u"/Backup/Phone.txt"_s, "p");
    m_tree->Write(u"/Backup/MyBusinessData.txt"_s, "b");
    QVERIFY(!RequiredFilesPresent(*m_disk));
    QCOMPARE(m_tree->Bytes(u"/Phone.txt"_s), "p");
    QCOMPARE(m_tree->Bytes(u"/MyBusinessData.txt"_s), "b");
  }

  void theSettingsFileBearsTheProgramsName() {
    Open(u"Other"_s);
    for (const QString& name : {u"/KarvexInvoicerSettings.txt"_s, u"/MyBusinessData.txt"_s, u"/Phone.txt"_s}) {
      m_tree->Write(name, "");
    }
    QVERIFY(!RequiredFilesPresent(*m_disk));
    m_tree->Write(u"/OtherSettings.txt"_s, "");
    QVERIFY(RequiredFilesPresent(*m_disk));
  }
};

QTEST_GUILESS_MAIN(DataTreeTest)
#include "tst_dataTree.moc"
