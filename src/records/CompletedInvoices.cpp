#include "records/CompletedInvoices.h"

#include "invoice/InvoiceImage.h"
#include "printing/KVPrint.h"
#include "runtime/Dates.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ListedLines = 5;

/// The five lines of an image and the key of its date.
QStringList RowOf(CommonDiskRoutines& disk, const QString& name) {
  try {
    ListReader file = disk.OpenInputStart(name, ListedLines);
    QStringList row;
    row.reserve(CompletedColumn::Count);
    for (int line = 0; line < ListedLines; ++line) row.append(file.ReadLine());
    row.append(SortKeyOf(ParseShortDate(row[CompletedColumn::Date], name)));
    return row;
  } catch (const RuntimeError& error) {
    throw error.AsEvent(name);
  }
}

}  // namespace

CompletedInvoices::CompletedInvoices()
    : fgReceivables(
          u"^Invoice Number           |^Account Number     |Account Name                             |^ Invoice "
          u"Date|^Amount|^Sort       "_s) {}

QString CompletedInvoices::InvoiceNoOf(int row) const {
  return TrimBlanks(fgReceivables.Text(row, CompletedColumn::InvoiceNo));
}

QString SortKeyOf(QDate date) {
  return u"%1%2"_s.arg(date.year(), 4, 10, QChar(u'0')).arg(date.dayOfYear() + 100);
}

CompletedLoad LoadCompletedInvoices(CompletedInvoices& list, CommonDiskRoutines& disk, const Progress& progress) {
  const QString folder = CompletedInvoicesFolder();
  const QStringList files = disk.ListFiles(folder, u"*.txt"_s);
  if (files.isEmpty()) return CompletedLoad::NoInvoices;
  std::vector<QStringList> rows;
  rows.reserve(static_cast<size_t>(files.size()));
  for (const QString& file : files) {
    rows.push_back(RowOf(disk, folder + u'/' + file));
    if (progress && !progress(static_cast<qint64>(rows.size()), files.size())) return CompletedLoad::Stopped;
  }
  disk.CloseAllFiles();
  list.fgReceivables.AssignRows(std::move(rows));
  SortCompletedInvoices(list, 0, 0);
  return CompletedLoad::Loaded;
}

void SortCompletedInvoices(CompletedInvoices& list, int optCol, int optSort) {
  constexpr std::array<int, 3> columns{CompletedColumn::InvoiceNo, CompletedColumn::Sort, CompletedColumn::AccountName};
  TextMatrix& grid = list.fgReceivables;
  grid.SetCol(columns.at(static_cast<size_t>(optCol)));
  if (optSort == 0) {
    grid.SortGenericAscending(grid.Col());
  } else {
    grid.SortGenericDescending(grid.Col());
  }
}

void PurgeCompletedInvoices(const CompletedInvoices& list, CommonDiskRoutines& disk, QDate date,
                            const Progress& progress) {
  const TextMatrix& grid = list.fgReceivables;
  for (int row = 1; row < grid.Rows(); ++row) {
    const QString number = list.InvoiceNoOf(row);
    const bool isBefore = ParseShortDate(grid.Text(row, CompletedColumn::Date), u"fgReceivables"_s) < date;
    // A number that can't name a file has none to delete.
    if (isBefore && CanNameAFile(number)) {
      disk.KillWithBackup(InvoiceImageName(number, true));
      disk.KillWithBackup(KVPrint::NarrativeName(number));
    }
    if (progress && !progress(row, grid.Rows() - 1)) return;
  }
}
