// The ledgers of the accounts and the file of payments, byte by byte.
#include <QtTest>

#include "customers/CommonAccountRoutines.h"
#include "customers/CustomerFixture.h"
#include "support/ErrorOf.h"
#include "support/FixedClock.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Entry(const QByteArray& name, const QByteArray& account, const QByteArray& date, const QByteArray& text,
                 const QByteArray& amount) {
  return name.leftJustified(45) + account.leftJustified(25) + date.leftJustified(15) + text.leftJustified(60) +
         amount.leftJustified(10);
}

}  // namespace

class AccountRoutinesTest : public QObject {
  Q_OBJECT

  FixedClock m_clock;
  std::unique_ptr<CustomerTree> m_tree;
  std::unique_ptr<CommonAccountRoutines> m_accounts;

 private Q_SLOTS:
  void init() {
    m_tree = std::make_unique<CustomerTree>();
    m_accounts = std::make_unique<CommonAccountRoutines>(m_tree->Disk, m_clock);
  }

  void theFirstPostingMakesAFileOfTwoRecords() {
    m_accounts->PostLedgerEntry(u"1001"_s, u"Acme Tools"_s, u"125.5"_s, u"5001"_s, QDate(2026, 12, 31));
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/1001.txt"_s),
             Entry("Acme Tools", "1001", "3/7/2026", "Previous Balance", "$0.00") +
                 Entry("Acme Tools", "1001", "12/31/2026", "5001", "125.5"));
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/1001.txt"_s).size(), 310);
  }

  void theFieldsStandAtTheirOffsets() {
    m_accounts->CreateLedger(u"1001"_s, u"Acme Tools"_s);
    const QByteArray bytes = m_tree->Bytes(u"/KVActiveAccounts/1001.txt"_s);
    QCOMPARE(bytes.size(), 155);
    QCOMPARE(bytes.mid(0, 11), "Acme Tools ");
    QCOMPARE(bytes.mid(45, 5), "1001 ");
    QCOMPARE(bytes.mid(70, 9), "3/7/2026 ");
    QCOMPARE(bytes.mid(85, 17), "Previous Balance ");
    QCOMPARE(bytes.mid(145, 10), "$0.00     ");
  }

  void laterPostingsAreAppended() {
    const QByteArray before = Entry("A", "7", "1/1/2025", "Previous Balance", "$0.00");
    m_tree->Put(u"/KVActiveAccounts/7.txt"_s, before);
    m_accounts->PostLedgerEntry(u"7"_s, u"A"_s, u"5"_s, u"Payment Received"_s, QDate(2026, 3, 7));
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s),
             before + Entry("A", "7", "3/7/2026", "Payment Received", "5"));
  }

  void aNewOpeningRecordReplacesRecordOneOnly() {
    const QByteArray old = Entry("Old", "7", "1/1/2025", "Previous Balance", "$0.00");
    const QByteArray second = Entry("Old", "7", "1/2/2025", "5001", "80");
    m_tree->Put(u"/KVActiveAccounts/7.txt"_s, old + second);
    m_accounts->CreateLedger(u"7"_s, u"New"_s);
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s),
             Entry("New", "7", "3/7/2026", "Previous Balance", "$0.00") + second);
  }

  void aLedgerThatOnlyTheBackupHasIsRestoredAndTheEntryFollowsItsRecords() {
    const QByteArray before = Entry("A", "7", "1/1/2025", "Previous Balance", "$0.00");
    m_tree->Put(u"/Backup/KVActiveAccounts/7.txt"_s, before);
    m_accounts->PostLedgerEntry(u"7"_s, u"A"_s, u"5"_s, u"5002"_s, QDate(2026, 3, 7));
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s), before + Entry("A", "7", "3/7/2026", "5002", "5"));
    QCOMPARE(m_tree->Bytes(u"/Backup/KVActiveAccounts/7.txt"_s), before);
  }

  void whatIsTooLongIsCutAtTheFieldWidth() {
    m_accounts->PostLedgerEntry(u"7"_s, QString(50, u'n'), u"123456789012"_s, QString(70, u't'), QDate(2026, 3, 7));
    const QByteArray second = m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s).mid(155);
    QCOMPARE(second, Entry(QByteArray(45, 'n'), "7", "3/7/2026", QByteArray(60, 't'), "1234567890"));
  }

  void numbersThatDifferByTrailingBlanksShareALedger() {
    m_accounts->PostLedgerEntry(u"7"_s, u"A"_s, u"1"_s, u"x"_s, QDate(2026, 3, 7));
    m_accounts->PostLedgerEntry(u"7  "_s, u"A"_s, u"2"_s, u"y"_s, QDate(2026, 3, 7));
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s).size(), 3 * 155);
  }

  void theBackupIsAFreshCopy() {
    m_tree->Put(u"/KVActiveAccounts/7.txt"_s, "live");
    m_tree->Put(u"/Backup/KVActiveAccounts/7.txt"_s, "an older and longer copy");
    m_accounts->BackupLedger(u" 7 "_s);
    QCOMPARE(m_tree->Bytes(u"/Backup/KVActiveAccounts/7.txt"_s), "live");
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s), "live");
  }

  void paymentsOfAllAccountsStandInTheOrderTaken() {
    m_accounts->WritePaymentRecord(u"7"_s, u"Acme"_s, u"10"_s, u"Cash"_s, QDate(2026, 3, 7));
    m_accounts->WritePaymentRecord(u"8"_s, u"Bolt"_s, u"20.25"_s, u"Check"_s, QDate(2026, 10, 11));
    QCOMPARE(m_tree->Bytes(u"/KAPaymentRecords.txt"_s),
             Entry("Acme", "7", "3/7/2026", "Cash", "10") + Entry("Bolt", "8", "10/11/2026", "Check", "20.25"));
  }

  void paymentsThatOnlyTheBackupHasAreRestoredFirst() {
    const QByteArray before = Entry("Acme", "7", "1/1/2025", "Cash", "10");
    m_tree->Put(u"/Backup/KAPaymentRecords.txt"_s, before);
    m_accounts->WritePaymentRecord(u"8"_s, u"Bolt"_s, u"20"_s, u"Check"_s, QDate(2026, 3, 7));
    QCOMPARE(m_tree->Bytes(u"/KAPaymentRecords.txt"_s), before + Entry("Bolt", "8", "3/7/2026", "Check", "20"));
  }

  void theEmptyAccountHasALedgerOfItsOwn() {
    m_accounts->PostLedgerEntry({}, u"Recalled"_s, u"10"_s, u"5001"_s, QDate(2026, 3, 7));
    m_accounts->BackupLedger({});
    const QByteArray expected = Entry("Recalled", "", "3/7/2026", "Previous Balance", "$0.00") +
                                Entry("Recalled", "", "3/7/2026", "5001", "10");
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/.txt"_s), expected);
    QCOMPARE(m_tree->Bytes(u"/Backup/KVActiveAccounts/.txt"_s), expected);
  }

  void anAccountThatWouldLeaveTheFolderIsRefusedAndNothingIsWritten_data() {
    QTest::addColumn<QString>("account");
    QTest::newRow("up") << u"../Services"_s;
    QTest::newRow("below") << u"1001/2"_s;
    QTest::newRow("backslash") << u"..\\Services"_s;
    QTest::newRow("dots") << u".."_s;
    QTest::newRow("beyond the code page") << u"\u04161"_s;
  }
  void anAccountThatWouldLeaveTheFolderIsRefusedAndNothingIsWritten() {
    QFETCH(QString, account);
    QCOMPARE(ErrorOf([&] { m_accounts->PostLedgerEntry(account, u"A"_s, u"1"_s, u"x"_s, QDate(2026, 3, 7)); }), 64);
    QCOMPARE(ErrorOf([&] { m_accounts->CreateLedger(account, u"A"_s); }), 64);
    QCOMPARE(ErrorOf([&] { m_accounts->BackupLedger(account); }), 64);
    QVERIFY(m_tree->Files().isEmpty());
    QVERIFY(m_tree->Files(u"/KVActiveAccounts"_s).isEmpty());
  }

  void aFullDiskLeavesTheLedgerAsItWas() {
    const QByteArray before = Entry("A", "7", "1/1/2025", "Previous Balance", "$0.00");
    m_tree->Put(u"/KVActiveAccounts/7.txt"_s, before);
    m_tree->Device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { m_accounts->PostLedgerEntry(u"7"_s, u"A"_s, u"1"_s, u"x"_s, QDate(2026, 3, 7)); }), 61);
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s), before);
  }

  void aFirstPostingThatFailsLeavesNoLedgerAndTheNextOneOpensIt() {
    const QByteArray opening = Entry("A", "7", "3/7/2026", "Previous Balance", "$0.00");
    for (const int failing : {1, 2}) {
      init();
      m_tree->Device.FailAt(FailingDevice::Call::Write, failing, ENOSPC);
      const auto post = [&] { m_accounts->PostLedgerEntry(u"7"_s, u"A"_s, u"5"_s, u"x"_s, QDate(2026, 3, 7)); };
      QCOMPARE(ErrorOf(post), 61);
      QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s), failing == 1 ? QByteArray("(absent)") : opening);
      post();
      QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s), opening + Entry("A", "7", "3/7/2026", "x", "5"));
    }
  }

  void aLedgerThatAKillLeftWithoutARecordIsOpenedByTheNextPosting() {
    for (const QByteArray& left : {QByteArray(""), QByteArray(77, 'A')}) {
      m_tree->Put(u"/KVActiveAccounts/7.txt"_s, left);
      m_accounts->PostLedgerEntry(u"7"_s, u"A"_s, u"5"_s, u"x"_s, QDate(2026, 3, 7));
      QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s),
               Entry("A", "7", "3/7/2026", "Previous Balance", "$0.00") + Entry("A", "7", "3/7/2026", "x", "5"));
    }
  }

  void aFullLedgerTakesNoMoreRecords() {
    m_tree->Put(u"/KVActiveAccounts/7.txt"_s, QByteArray(155 * 32767, ' '));
    QCOMPARE(ErrorOf([&] { m_accounts->PostLedgerEntry(u"7"_s, u"A"_s, u"1"_s, u"x"_s, QDate(2026, 3, 7)); }), 6);
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/7.txt"_s).size(), 155 * 32767);
  }
};

QTEST_GUILESS_MAIN(AccountRoutinesTest)
#include "tst_accountRoutines.moc"
