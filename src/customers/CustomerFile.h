/// The customer file, /CustomerData.txt: records numbered from 1 in file order, no index, no sort on the disk. Single
/// records are read and written in place; a scan is one pass over the file, and a delete rewrites it.
#pragma once

#include <optional>
#include <QList>
#include <QStringList>

#include "customers/CustomerRecord.h"
#include "customers/FindInRecords.h"
#include "runtime/RecordFile.h"
#include "runtime/RuntimeError.h"

class CommonDiskRoutines;
class RandomFile;

/// What the pull-down lists of the customer screen hold.
struct CustomerLists {
  QStringList Accounts;  ///< Alphabetical, ignoring case; equal names in file order.
  QList<int> Records;    ///< The data words: the record that each account stands at.
  QStringList Cities;    ///< Each city once, in the order it first occurs; the empty text included.
};

class CustomerFile {
 public:
  explicit CustomerFile(CommonDiskRoutines& disk) : m_disk(disk) {}

  /// The one buffer of the program: every read and write goes through it, and a scan leaves its last record in it.
  CustomerRecord Buffer;

  bool Exists();  ///< After the restore from /Backup.
  /// Throws RuntimeError 6 above 32,767 records.
  int Count();
  /// The whole file for a scan. It is made where there is none.
  RecordBuffer ReadAll();
  /// Blank past the end of the file.
  void Read(int number);
  /// Extends the file where needed. Throws RuntimeError 61, 70 or 75.
  void Write(int number);

  /// Whether one of the first `count` records but `skip` has the account number, exactly; the scan stops there.
  /// A file that isn't there isn't made for it.
  bool HasAccount(const QString& number, int count, int skip);
  CustomerLists ReadLists(int count);
  /// The hits among the first `count` records, in file order. The file is made where there is none.
  std::vector<FoundCustomer> Find(const CustomerQuery& query, int count);
  /// Takes one of `count` records out, and the ledger of `account` with it, live and copied. What it throws leaves the
  /// file and the ledger as they were; what fails once the shorter file stands is answered instead.
  std::optional<RuntimeError> Remove(int number, int count, const QString& account);

 private:
  RandomFile Open();

  CommonDiskRoutines& m_disk;
};
