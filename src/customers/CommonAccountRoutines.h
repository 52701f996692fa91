/// The running ledgers of the accounts, one file of records each, and the file of all payments taken. Nothing reads a
/// balance back: the records are for other programs on the same data tree.
#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

class Clock;
class CommonDiskRoutines;

/// One charge or payment: 155 bytes, texts in fixed fields, padded with blanks and cut at the width.
struct LedgerRecord {
  static constexpr int Length = 155;

  QString LedgerName;    ///< The customer's name; 45 characters.
  QString LedgerAcct;    ///< 25.
  QString LedgerDate;    ///< Short date text; 15.
  QString LedgerText;    ///< What the entry is; 60.
  QString LedgerAmount;  ///< 10.

  QByteArray Bytes() const;
};

/// Whether the account's number can name its files without leaving their folder, and reads back from a record as what
/// it is. The empty account has a ledger too, named ".txt".
bool IsSafeAccount(const QString& account);
/// The root-relative name of the account's ledger. Throws RuntimeError 64 for an account that isn't safe.
QString LedgerName(const QString& account);
/// Root-relative: all payments taken.
QString PaymentRecordsName();

class CommonAccountRoutines {
 public:
  CommonAccountRoutines(CommonDiskRoutines& disk, const Clock& clock) : m_disk(disk), m_clock(clock) {}

  /// Writes the opening record, over any record 1 that is there.
  void CreateLedger(const QString& account, const QString& name);
  /// Appends one entry to the account's ledger; the first one starts it, also where a kill left an empty file.
  void PostLedgerEntry(const QString& account, const QString& name, const QString& amount, const QString& description,
                       QDate date);
  /// Refreshes the ledger's copy in /Backup.
  void BackupLedger(const QString& account);
  /// Appends one entry to the file of payments.
  void WritePaymentRecord(const QString& account, const QString& name, const QString& amount,
                          const QString& description, QDate date);

 private:
  void Append(const QString& file);

  CommonDiskRoutines& m_disk;
  const Clock& m_clock;
  LedgerRecord m_record;  ///< The one buffer.
};
