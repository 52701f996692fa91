#include "customers/CommonAccountRoutines.h"

#include "runtime/Clock.h"
#include "runtime/CodePage.h"
#include "runtime/Currency.h"
#include "runtime/Dates.h"
#include "runtime/Numbers.h"
#include "runtime/RecordFile.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

QByteArray LedgerRecord::Bytes() const {
  return RecordBuilder(Length)
      .Text(0, 45, LedgerName)
      .Text(45, 25, LedgerAcct)
      .Text(70, 15, LedgerDate)
      .Text(85, 60, LedgerText)
      .Text(145, 10, LedgerAmount)
      .Record();
}

bool IsSafeAccount(const QString& account) {
  const QString trimmed = TrimBlanks(account);
  // Two numbers with characters that a record can't hold would be one number there, and share a ledger.
  return trimmed.isEmpty() || (CanNameAFile(trimmed) && FromCodePage(ToCodePage(trimmed)) == trimmed);
}

QString LedgerName(const QString& account) {
  if (!IsSafeAccount(account)) {
    throw RuntimeError(
        ErrorNumber::BadFileName, {},
        u"The account number \"%1\" names the account's files, so it cannot be . or .. and cannot hold / or "
        u"\\ or characters outside the Western alphabets."_s.arg(account));
  }
  return u"/KVActiveAccounts/"_s + TrimBlanks(account) + u".txt"_s;
}

QString PaymentRecordsName() {
  return u"/KAPaymentRecords.txt"_s;
}

void CommonAccountRoutines::CreateLedger(const QString& account, const QString& name) {
  m_record = {.LedgerName = name,
              .LedgerAcct = account,
              .LedgerDate = ShortDateText(m_clock.Today()),
              .LedgerText = u"Previous Balance"_s,
              .LedgerAmount = ZeroCurrencyText()};
  m_disk.OpenRandomFile(LedgerName(account), LedgerRecord::Length).Put(1, m_record.Bytes());
}

void CommonAccountRoutines::PostLedgerEntry(const QString& account, const QString& name, const QString& amount,
                                            const QString& description, QDate date) {
  const QString file = LedgerName(account);
  if (!m_disk.FileExists(file) || m_disk.RecordCount(file, LedgerRecord::Length) == 0) {
    CreateLedger(account, name);
  }
  m_record = {.LedgerName = name,
              .LedgerAcct = account,
              .LedgerDate = ShortDateText(date),
              .LedgerText = description,
              .LedgerAmount = amount};
  Append(file);
}

void CommonAccountRoutines::BackupLedger(const QString& account) {
  const QString file = LedgerName(account);
  m_disk.CopyDataFile(file, u"/Backup"_s + file);
}

void CommonAccountRoutines::WritePaymentRecord(const QString& account, const QString& name, const QString& amount,
                                               const QString& description, QDate date) {
  m_record = {.LedgerName = name,
              .LedgerAcct = account,
              .LedgerDate = ShortDateText(date),
              .LedgerText = description,
              .LedgerAmount = amount};
  Append(PaymentRecordsName());
}

void CommonAccountRoutines::Append(const QString& file) {
  m_disk.AppendRecord(file, m_record.Bytes());
}
