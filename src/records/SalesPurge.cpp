#include "records/SalesPurge.h"

#include "invoice/SoldItemRecord.h"
#include "records/SalesRange.h"
#include "runtime/Dates.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

/// The record's bytes as they stand; one that the file's end cuts short is filled up as it reads.
QByteArray WholeRecord(QByteArrayView held) {
  using namespace SoldItemRecord;
  if (held.size() == Length) return held.toByteArray();
  const RecordView record(held);
  RecordBuilder whole(Length);
  whole.Text(Description, DescriptionWidth, record.RawText(Description, DescriptionWidth));
  whole.Double(SaleDate, record.Double(SaleDate));
  whole.Text(InvoiceNo, InvoiceNoWidth, record.RawText(InvoiceNo, InvoiceNoWidth));
  return whole.Int16(Quantity, record.Int16(Quantity)).Record();
}

QByteArray KeptRecords(const RecordBuffer& records, int count, double start, double end) {
  QByteArray kept;
  kept.reserve(records.Content().size());
  for (int number = 1; number <= count; ++number) {
    const double date = records.Record(number).Double(SoldItemRecord::SaleDate);
    if (!(date >= start && date <= end)) kept += WholeRecord(records.Bytes(number));
  }
  return kept;
}

/// A file beyond the limit isn't damaged: its records can be reported, only not purged.
int CountForPurge(const QString& name, CommonDiskRoutines& disk) {
  try {
    return disk.RecordCount(name, SoldItemRecord::Length);
  } catch (const RuntimeError& error) {
    if (error.From() != RuntimeError::Origin::FileContent) throw;
    throw error.AsEvent(error.Subject())
        .WithAdvice(u"It holds more than 32,767 records, and from so many none can be deleted. Nothing was lost."_s);
  }
}

}  // namespace

bool PurgeSoldItems(const SalesRange& range, CommonDiskRoutines& disk) {
  const QString name = u"\\SoldItems.txt"_s;
  const QString temporary = u"/TemporaryFile.txt"_s;
  // What an interrupted purge left behind isn't ours.
  disk.KillDataFile(temporary);
  QByteArray kept;
  if (const int count = CountForPurge(name, disk); count > 0) {
    kept = KeptRecords(disk.OpenRandomFile(name, SoldItemRecord::Length).ReadAll(), count,
                       ToDayCount(range.DTPicker1[0]), ToDayCount(range.DTPicker1[1]));
  }
  if (kept.isEmpty()) {
    // With its copy, or the next look for the file would bring all of it back.
    disk.KillWithBackup(name);
    return false;
  }
  try {
    disk.SaveFile(temporary, kept, BackupCopy::Kept);
    disk.RenameDataFile(temporary, name);
  } catch (const RuntimeError&) {
    // What fails leaves no second file behind.
    disk.Store().Discard(disk.PathOf(temporary));
    throw;
  }
  disk.CopyDataFile(name, u"/Backup/SoldItems.txt"_s);
  return true;
}
