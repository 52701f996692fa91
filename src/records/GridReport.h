/// The one report: what a list screen holds in its grid, in the grid's present order. Nothing is computed, no total is
/// printed.
#pragma once

#include <QString>

#include "runtime/Progress.h"

class Clock;
class KVPrint;
class PrinterRoutines;
class TextMatrix;

class GridReport {
 public:
  GridReport(PrinterRoutines& routines, KVPrint& pages, const Clock& clock);

  /// The whole job, from the printer dialog on; what goes wrong is thrown, 32755 for a cancelled dialog and for a job
  /// that was stopped. The title "Invoices Report", and no other, has the amounts of column 4 printed. `tag` changes
  /// nothing.
  void PrintGridReport(const QString& title, const TextMatrix& grid, const QString& tag, const Progress& progress = {});

 private:
  void PrintReportHeading(const QString& title);
  void PrintReportColumns(const QString& title);
  void PrintReportRows(const QString& title, const TextMatrix& grid, const Progress& progress);
  void PrintReportNewPage(const QString& title);
  void EndReportLine(const QString& title, const QString& amount);

  PrinterRoutines& m_routines;
  KVPrint& m_pages;
  const Clock& m_clock;
};
