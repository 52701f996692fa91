#include "customers/CustomerFile.h"

#include <algorithm>
#include <array>
#include <QSet>
#include <string_view>
#include <vector>

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

/// The name list while it is being sorted: all texts in one buffer, in the files' code page, and beside it the same
/// bytes with their case folded, so that comparing them is comparing bytes.
class NameSorter {
 public:
  explicit NameSorter(int count) {
    m_entries.reserve(static_cast<std::size_t>(count));
    m_texts.reserve(qsizetype{count} * CustomerField::AcctName.Width);
  }
  void Add(QByteArrayView record, int number) {
    const qsizetype start = m_texts.size();
    if (TextBytes(record, CustomerField::AcctType) == "Business") {
      m_texts.append(TextBytes(record, CustomerField::AcctName));
    } else {
      AppendPerson(record);
    }
    m_entries.push_back({start, m_texts.size() - start, number});
  }
  /// Alphabetical, ignoring case; equal names in file order.
  void SortInto(CustomerLists& lists) {
    const QByteArray folded = Folded();
    const auto key = [&](const Entry& entry) {
      return std::string_view(folded.constData() + entry.Start, static_cast<std::size_t>(entry.Size));
    };
    std::sort(m_entries.begin(), m_entries.end(), [&](const Entry& a, const Entry& b) {
      const int order = key(a).compare(key(b));
      return order != 0 ? order < 0 : a.Record < b.Record;
    });
    lists.Accounts.reserve(static_cast<qsizetype>(m_entries.size()));
    lists.Records.reserve(static_cast<qsizetype>(m_entries.size()));
    for (const Entry& entry : m_entries) {
      lists.Accounts.append(FromCodePage(QByteArrayView(m_texts).sliced(entry.Start, entry.Size)));
      lists.Records.append(entry.Record);
    }
  }

 private:
  struct Entry {
    qsizetype Start;
    qsizetype Size;
    int Record;
  };

  /// The initial is its one character even where it is a blank, so that a name without one ends in two blanks; this is
  /// meant.
  void AppendPerson(QByteArrayView record) {
    const qsizetype at = CustomerField::MiddleInitial.Offset;
    const char initial = record.size() > at && record[at] != '\0' ? record[at] : ' ';
    m_texts.append(TextBytes(record, CustomerField::LastName)).append(", ");
    m_texts.append(TextBytes(record, CustomerField::FirstName)).append(' ').append(initial);
  }
  QByteArray Folded() const {
    const std::array<char, 256> fold = SmallLettersOfCodePage();
    QByteArray folded = m_texts;
    for (char& byte : folded) {
      byte = fold[static_cast<unsigned char>(byte)];
    }
    return folded;
  }

  std::vector<Entry> m_entries;
  QByteArray m_texts;
};

}  // namespace

bool CustomerFile::Exists() {
  return m_disk.FileExists(FileName());
}

int CustomerFile::Count() {
  return m_disk.RecordCount(FileName(), CustomerRecord::Length);
}

RandomFile CustomerFile::Open() {
  // One that went missing comes back from its copy first: made anew it would replace the copy at the program's end.
  Exists();
  return m_disk.OpenRandomFile(FileName(), CustomerRecord::Length);
}

RecordBuffer CustomerFile::ReadAll() {
  return Open().ReadAll();
}

void CustomerFile::Read(int number) {
  Buffer.Assign(Open().Get(number));
}

void CustomerFile::Write(int number) {
  Open().Put(number, Buffer.Bytes());
}

bool CustomerFile::HasAccount(const QString& number, int count, int skip) {
  if (!Exists()) {
    return false;
  }
  const RecordBuffer records = ReadAll();
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
  const RecordBuffer records = ReadAll();
  CustomerLists lists;
  QSet<QByteArrayView> cities;
  NameSorter names(count);
  for (int i = 1; i <= count; ++i) {
    const QByteArrayView record = records.Bytes(i);
    const QByteArrayView city = TextBytes(record, CustomerField::CityLine);
    if (!cities.contains(city)) {
      cities.insert(city);
      lists.Cities.append(FromCodePage(city));
    }
    names.Add(record, i);
  }
  if (count > 0) {
    Buffer.Assign(records.Bytes(count));
  }
  names.SortInto(lists);
  return lists;
}

std::vector<FoundCustomer> CustomerFile::Find(const CustomerQuery& query, int count) {
  const RecordBuffer records = ReadAll();
  if (count > 0) {
    Buffer.Assign(records.Bytes(count));
  }
  return FindInRecords(records, count, query);
}

std::optional<RuntimeError> CustomerFile::Remove(int number, int count, const QString& account) {
  const QString temporary = u"/CUSTOMER.TMP"_s;
  m_disk.KillDataFile(temporary);
  QByteArray kept;
  {
    const RecordBuffer records = ReadAll();
    kept.reserve(records.Content().size());
    for (int i = 1; i <= count; ++i) {
      if (i != number) {
        Buffer.Assign(records.Bytes(i));
        kept.append(Buffer.Bytes());
      }
    }
  }
  // What fails leaves no second customer file behind.
  const auto drop = [&] { m_disk.Store().Discard(m_disk.PathOf(temporary)); };
  try {
    m_disk.SaveFile(temporary, kept, BackupCopy::Kept);
  } catch (const RuntimeError&) {
    drop();
    throw;
  }
  try {
    m_disk.RenameDataFile(temporary, FileName());
  } catch (const RuntimeError& error) {
    if (m_disk.Store().IsFile(m_disk.PathOf(temporary))) {
      drop();
      throw;
    }
    // The shorter file is in place, but it isn't sure to outlast a power failure: ledger and copy stay.
    return error;
  }
  // The ledger goes last: until the shorter file stands, its customer may come back and needs it.
  std::optional<RuntimeError> failed;
  const auto kill = [&](const QString& name) {
    try {
      m_disk.KillDataFile(name);
    } catch (const RuntimeError& error) {
      failed = failed ? failed : error;
    }
  };
  if (IsSafeAccount(account)) {
    kill(u"/Backup"_s + LedgerName(account));
    kill(LedgerName(account));
  }
  kill(u"/Backup"_s + FileName());
  return failed;
}
