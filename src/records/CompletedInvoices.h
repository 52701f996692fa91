/// The list of the completed invoices, built from the image files themselves.
#pragma once

#include <QDate>

#include "runtime/Progress.h"
#include "runtime/TextMatrix.h"

class CommonDiskRoutines;

namespace CompletedColumn {
inline constexpr int InvoiceNo = 0;
inline constexpr int AccountName = 2;
inline constexpr int Date = 3;
inline constexpr int Sort = 5;
inline constexpr int Count = 6;
}  // namespace CompletedColumn

struct CompletedInvoices {
  CompletedInvoices();

  /// Invoice number, account number, account name, date and amount: the first five lines of each image; and the sort
  /// key of the date, which no view shows.
  TextMatrix fgReceivables;

  /// The number of a row, trimmed.
  QString InvoiceNoOf(int row) const;
};

/// The year and the day of the year plus 100, so that all keys have seven digits: 5 January 2001 is 2001105.
QString SortKeyOf(QDate date);

enum class CompletedLoad { Loaded, NoInvoices, Stopped };

/// Reads the folder anew, in the order of the file names, and sorts it by invoice number; row 1 is current then. Of
/// each image only the first five lines are looked at. An image with fewer throws RuntimeError 62, one without a date
/// in its fourth 13, naming it. Stopped by the user, or thrown out of, the list is as before.
CompletedLoad LoadCompletedInvoices(CompletedInvoices& list, CommonDiskRoutines& disk, const Progress& progress = {});

/// `optCol` 0 is the invoice number, 1 the invoice date (by its key), 2 the account name; `optSort` 1 is descending.
void SortCompletedInvoices(CompletedInvoices& list, int optCol, int optSort);

/// Deletes image and narrative, with their copies in /Backup, of each row whose date is before `date`; nothing else.
/// Stopped by the user, the rest stays.
void PurgeCompletedInvoices(const CompletedInvoices& list, CommonDiskRoutines& disk, QDate date,
                            const Progress& progress = {});
