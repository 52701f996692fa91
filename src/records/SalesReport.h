/// The item sales report on paper: the sales by invoice, then the totals.
#pragma once

#include "runtime/Progress.h"

class Clock;
class KVPrint;
class PrinterRoutines;
class QString;
class TextMatrix;
struct ItemSales;
struct SalesRange;

class SalesReport {
 public:
  SalesReport(PrinterRoutines& routines, KVPrint& pages, const Clock& clock);

  /// The whole job, from the printer dialog on; what goes wrong is thrown, 32755 for a cancelled dialog and for a job
  /// that was stopped.
  void PrintItemSales(const ItemSales& sales, const SalesRange& range, const Progress& progress = {});

 private:
  void PrintSalesHeading(const SalesRange& range);
  void PrintSalesColumns();
  void PrintSalesBody(const ItemSales& sales, const Progress& progress);
  void PrintSalesRow(const TextMatrix& grid, int row);
  void PrintTotals(const TextMatrix& grid);
  void PrintSalesNewPage();
  void TurnPageBefore(const QString& text);

  PrinterRoutines& m_routines;
  KVPrint& m_pages;
  const Clock& m_clock;
};
