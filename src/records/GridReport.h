/// The one report: what a list screen holds in its grid, in the grid's present order. Nothing is computed, no total is
/// printed.
#pragma once

#include <QString>

#include "runtime/Progress.h"

class Clock;
class KVPrint;
class PrinterRoutines;
class TextMatrix;

enum class ReportAmounts { None, Printed };

struct ReportKind {
  QString Title;
  ReportAmounts Amounts = ReportAmounts::None;  ///< Of column 4.
};

class GridReport {
 public:
  GridReport(PrinterRoutines& routines, KVPrint& pages, const Clock& clock);

  /// The whole job, from the printer dialog on; what goes wrong is thrown, 32755 for a cancelled dialog and for a job
  /// that was stopped.
  void PrintGridReport(const ReportKind& kind, const TextMatrix& grid, const Progress& progress = {});

 private:
  void PrintReportHeading(const ReportKind& kind);
  void PrintReportColumns(const ReportKind& kind);
  void PrintReportRows(const ReportKind& kind, const TextMatrix& grid, const Progress& progress);
  void PrintReportNewPage(const ReportKind& kind);
  void EndReportLine(const ReportKind& kind, const QString& amount);

  PrinterRoutines& m_routines;
  KVPrint& m_pages;
  const Clock& m_clock;
};
