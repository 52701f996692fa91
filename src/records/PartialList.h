/// The saved partial invoices, as the partial invoices screen lists them and the main menu counts them.
#pragma once

#include <QStringList>

#include "runtime/TextMatrix.h"

class CommonDiskRoutines;

struct PartialList {
  PartialList();

  /// Invoice number, account number, account name and last modified date: the first four lines of each file. The
  /// current row is the selected invoice.
  TextMatrix fgIncomplete;
  QStringList FileNames;

  int Count() const { return static_cast<int>(FileNames.size()); }
  /// The number of the selected invoice, trimmed; empty where no row is selected.
  QString SelectedInvoiceNo() const;
};

/// Reads the folder anew and selects row 1. Without a file the grid is one blank row, none selected, and the answer is
/// false: the screen then hides. A file with fewer than four lines throws RuntimeError 62 that names it.
bool LoadPartialList(PartialList& list, CommonDiskRoutines& disk);
