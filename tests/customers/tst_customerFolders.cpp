// The folders that a start makes for each customer.
#include <QtTest>

#include "customers/CustomerFolders.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/DataTree.h"
#include "support/ErrorOf.h"
#include "support/FailingDevice.h"
#include "support/FixedClock.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Customer(const QByteArray& account) {
  return account.leftJustified(328, ' ', true);
}

}  // namespace

class CustomerFoldersTest : public QObject {
  Q_OBJECT

  std::unique_ptr<TemporaryTree> m_tree;
  std::unique_ptr<FailingDevice> m_device;
  std::unique_ptr<FileStore> m_store;
  std::unique_ptr<CommonDiskRoutines> m_disk;

  /// As a start does.
  void Make() {
    MakeDataTree(*m_disk, FixedClock(QDate(2026, 3, 7)));
    MakeCustomerFolders(*m_disk);
  }

 private Q_SLOTS:
  void init() {
    m_tree = std::make_unique<TemporaryTree>();
    m_device = std::make_unique<FailingDevice>();
    m_store = std::make_unique<FileStore>(*m_device);
    m_disk = std::make_unique<CommonDiskRoutines>(*m_store, m_tree->Root(), u"KarvexInvoicer"_s);
  }

  void withoutCustomersNothingIsMade() {
    Make();
    QCOMPARE(m_tree->List(u"/AuxFiles"_s), QStringList{});
    QVERIFY(m_tree->Everything().isEmpty());
  }

  void eachCustomerHasAFolderWithSixInIt() {
    m_tree->Write(u"/CustomerData.txt"_s, Customer("1001") + Customer("M\xfcller & Co"));
    Make();
    QCOMPARE(m_tree->List(u"/AuxFiles"_s), (QStringList{u"1001/"_s, u"M\u00fcller & Co/"_s}));
    for (const QString& account : {u"1001"_s, u"M\u00fcller & Co"_s}) {
      QCOMPARE(m_tree->List(u"/AuxFiles/"_s + account), (QStringList{u"AuxFile0/"_s, u"AuxFile1/"_s, u"AuxFile2/"_s,
                                                                     u"AuxFile3/"_s, u"AuxFile4/"_s, u"AuxFile5/"_s}));
    }
  }

  void foldersThatAreThereStayAsTheyAre() {
    m_tree->Write(u"/CustomerData.txt"_s, Customer("1001"));
    m_tree->Write(u"/AuxFiles/1001/AuxFile2/Data.txt"_s, "kept");
    Make();
    QCOMPARE(m_tree->Bytes(u"/AuxFiles/1001/AuxFile2/Data.txt"_s), "kept");
    QCOMPARE(m_tree->List(u"/AuxFiles/1001"_s).size(), 6);
    m_device->Reset();
    Make();
    QCOMPARE(m_device->Count(FailingDevice::Call::MakeFolder), 0);
  }

  void blankAndStrayingAccountNumbersArePassedOver() {
    m_tree->Write(u"/CustomerData.txt"_s, Customer("") + Customer("../1002") + Customer("..") + Customer("10/03") +
                                              Customer("10\\04") + Customer(".") + Customer(QByteArray(20, '\0')) +
                                              Customer("1005"));
    Make();
    QCOMPARE(m_tree->List(u"/AuxFiles"_s), QStringList{u"1005/"_s});
    QVERIFY(!m_tree->Exists(u"/1002"_s));
    QVERIFY(!m_tree->Exists(u"/AuxFile0"_s));
  }

  void theAccountIsTheFirstTwentyBytes() {
    m_tree->Write(u"/CustomerData.txt"_s, Customer("ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
    Make();
    QCOMPARE(m_tree->List(u"/AuxFiles"_s), QStringList{u"ABCDEFGHIJKLMNOPQRST/"_s});
  }

  void aLastRecordCutShortIsReadAsFarAsItGoes() {
    m_tree->Write(u"/CustomerData.txt"_s, Customer("1001") + Customer("1002").first(200));
    Make();
    QCOMPARE(m_tree->List(u"/AuxFiles"_s), (QStringList{u"1001/"_s, u"1002/"_s}));
  }

  void lessThanHalfARecordIsNone() {
    m_tree->Write(u"/CustomerData.txt"_s, Customer("1001").first(100));
    Make();
    QCOMPARE(m_tree->List(u"/AuxFiles"_s), QStringList{});
  }

  void aCustomerFileThatOnlyTheBackupHasComesBackFirst() {
    m_tree->Write(u"/Backup/CustomerData.txt"_s, Customer("1001"));
    Make();
    QVERIFY(m_tree->Exists(u"/CustomerData.txt"_s));
    QVERIFY(m_tree->Exists(u"/AuxFiles/1001/AuxFile5"_s));
  }

  void aFileInACustomerFoldersPlaceIsAnErrorThatNamesIt() {
    m_tree->Write(u"/CustomerData.txt"_s, Customer("1001"));
    m_tree->Write(u"/AuxFiles/1001/AuxFile3"_s, "a file");
    const RuntimeError error = CaughtFrom([&] { Make(); });
    QCOMPARE(error.Number(), 75);
    QVERIFY2(error.Subject().startsWith(m_tree->Path(u"/AuxFiles/1001/AuxFile3"_s)), qPrintable(error.Subject()));
  }
};

QTEST_GUILESS_MAIN(CustomerFoldersTest)
#include "tst_customerFolders.moc"
