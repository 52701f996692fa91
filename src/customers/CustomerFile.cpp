#include "customers/CustomerFile.h"

#include <algorithm>
#include <QSet>

#include "customers/CommonAccountRoutines.h"
#include "runtime/CodePage.h"
#include "runtime/Numbers.h"
#include "runtime/RecordFile.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

QString FileName() {
  return u"/CustomerData.txt"_s;
}

QByteArrayView TextBytes(QByteArrayView record, TextField field) {
  return RecordView(record).TextBytes(field.Offset, field.Width);
}

/// A person's entry of the name list. The initial is its one character even where it is a blank, so that a name
/// without one ends in two blanks; this is meant.
QByteArray PersonEntry(QByteArrayView record) {
  const qsizetype at = CustomerField::MiddleInitial.Offset;
  const char initial = record.size() > at && record[at] != '\0' ? record[at] : ' ';
  QByteArray entry = TextBytes(record, CustomerField::LastName).toByteArray();
  entry.append(", ").append(TextBytes(record, CustomerField::FirstName)).append(' ').append(initial);
  return entry;
}

struct AccountEntry {
  QString Text;
  QString Key;
  int Record;
};

}  // namespace

bool CustomerFile::Exists() {
  return m_disk.FileExists(FileName());
}

int CustomerFile::Count() {
  return m_disk.RecordCount(FileName(), CustomerRecord::Length);
}

void CustomerFile::Read(int number) {
  Buffer.Assign(m_disk.OpenCustomerFile().Get(number));
}

void CustomerFile::Write(int number) {
  m_disk.OpenCustomerFile().Put(number, Buffer.Bytes());
}

bool CustomerFile::HasAccount(const QString& number, int count, int skip) {
  const RecordBuffer records = m_disk.OpenCustomerFile().ReadAll();
  const QByteArray wanted = ToCodePage(number);
  // A text that no record can hold as it stands equals none: one with blanks around, or with a foreign character.
  const bool storable = FromCodePage(wanted) == number && TrimBlanks(number) == number;
  int last = 0;
  bool found = false;
  for (int i = 1; i <= count && !found; ++i) {
    if (i == skip) {
      continue;
    }
    last = i;
    found = storable && TextBytes(records.Bytes(i), CustomerField::AcctNo) == wanted;
  }
  if (last > 0) {
    Buffer.Assign(records.Bytes(last));
  }
  return found;
}

CustomerLists CustomerFile::ReadLists(int count) {
  const RecordBuffer records = m_disk.OpenCustomerFile().ReadAll();
  CustomerLists lists;
  QSet<QByteArrayView> cities;
  std::vector<AccountEntry> accounts;
  accounts.reserve(static_cast<std::size_t>(count));
  for (int i = 1; i <= count; ++i) {
    const QByteArrayView record = records.Bytes(i);
    const QByteArrayView city = TextBytes(record, CustomerField::CityLine);
    if (!cities.contains(city)) {
      cities.insert(city);
      lists.Cities.append(FromCodePage(city));
    }
    const bool business = TextBytes(record, CustomerField::AcctType) == "Business";
    const QString text =
        business ? FromCodePage(TextBytes(record, CustomerField::AcctName)) : FromCodePage(PersonEntry(record));
    accounts.push_back({text, text.toCaseFolded(), i});
  }
  if (count > 0) {
    Buffer.Assign(records.Bytes(count));
  }
  std::stable_sort(accounts.begin(), accounts.end(),
                   [](const AccountEntry& a, const AccountEntry& b) { return a.Key < b.Key; });
  lists.Accounts.reserve(count);
  lists.Records.reserve(count);
  for (const AccountEntry& account : accounts) {
    lists.Accounts.append(account.Text);
    lists.Records.append(account.Record);
  }
  return lists;
}

void CustomerFile::Remove(int number, int count, const QString& account) {
  const QString temporary = u"/CUSTOMER.TMP"_s;
  m_disk.KillDataFile(temporary);
  QByteArray kept;
  {
    const RecordBuffer records = m_disk.OpenCustomerFile().ReadAll();
    kept.reserve(records.Content().size());
    for (int i = 1; i <= count; ++i) {
      if (i != number) {
        Buffer.Assign(records.Bytes(i));
        kept.append(Buffer.Bytes());
      }
    }
  }
  // The new file stands whole on the disk before anything that can't be had back goes.
  m_disk.SaveFile(temporary, kept, BackupCopy::Kept);
  if (IsSafeAccount(account)) {
    m_disk.KillWithBackup(LedgerName(account));
  }
  m_disk.RenameDataFile(temporary, FileName());
  m_disk.KillDataFile(u"/Backup"_s + FileName());
}
