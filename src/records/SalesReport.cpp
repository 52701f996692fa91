#include "records/SalesReport.h"

#include <array>

#include "printing/KVPrint.h"
#include "printing/PrinterRoutines.h"
#include "records/ItemSales.h"
#include "records/SalesRange.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"

using namespace Qt::StringLiterals;

namespace {

/// In inches: name, date, invoice number.
constexpr std::array<float, 3> ColumnX{1.0F, 3.0F, 4.5F};
constexpr float UnitsEdge = 9360;  ///< In twips.
constexpr int UnitsColumn = 3;

}  // namespace

SalesReport::SalesReport(PrinterRoutines& routines, KVPrint& pages, const Clock& clock)
    : m_routines(routines), m_pages(pages), m_clock(clock) {}

void SalesReport::PrintItemSales(const ItemSales& sales, const SalesRange& range, const Progress& progress) {
  m_routines.PrintRows(u"Item Sales Report"_s, sales.fgSalesItems.Rows(), progress, [&](const Progress& rows) {
    PrintSalesHeading(range);
    PrintSalesBody(sales, rows);
  });
}

void SalesReport::PrintSalesHeading(const SalesRange& range) {
  Printer& printer = m_routines.Surface();
  const float centre = static_cast<float>(printer.Width) / 2;
  printer.PrintLine({});
  m_routines.SetPrintFont(14, true, false);
  m_routines.PrintLineCentred(centre, u"Item Sales Report"_s);
  m_routines.PrintAt(7.0F, 0.75F);
  printer.PrintLine(ShortDateText(m_clock.Today()));
  m_pages.PrintBusinessBlock(1.0F, 0.5F, 12);
  printer.PrintLine({});
  m_routines.SetPrintFont(12, true, false);
  const QString start = ShortDateText(FromDayCount(range.StartDate));
  const QString end = ShortDateText(FromDayCount(range.EndDate));
  // Centred by a text with one blank more, so it stands a little left of the middle. That is meant.
  printer.CurrentX = centre - printer.TextWidth(u"Report Date Range:  to "_s + start + end) / 2;
  printer.PrintLine(u"Report Date Range: "_s + start + u" to "_s + end);
  PrintSalesColumns();
}

void SalesReport::PrintSalesColumns() {
  Printer& printer = m_routines.Surface();
  m_routines.SetPrintFont(12, true, false);
  m_routines.PrintAt(1.0F, 2.0F);
  printer.PrintLine(u"Item Sales by Invoice"_s);
  m_routines.SetPrintFont(12, true, false);
  printer.PrintLine({});
  const std::array<QString, ColumnX.size()> headings{u"Inventoried Item Name"_s, u"Invoice Date"_s, u"Invoice No."_s};
  for (std::size_t i = 0; i < ColumnX.size(); ++i) {
    m_routines.PrintAt(ColumnX[i], 0);
    printer.PrintJoined(headings[i]);
  }
  m_routines.PrintLineRight(UnitsEdge, u"Units Sold"_s);
  m_routines.SetPrintFont(10, false, false);
}

void SalesReport::PrintSalesBody(const ItemSales& sales, const Progress& progress) {
  Printer& printer = m_routines.Surface();
  m_routines.PrintAt(1.0F, 2.5F);
  const TextMatrix& grid = sales.fgSalesItems;
  // The empty last row takes a line as well.
  for (int row = 1; row < grid.Rows(); ++row) {
    PrinterRoutines::TellStep(progress, row, grid.Rows());
    PrintSalesRow(grid, row);
  }
  printer.PrintLine({});
  m_routines.SetPrintFont(12, true, false);
  m_routines.PrintAt(1.0F, 0);
  printer.PrintLine(u"Total Items Sold (This Date Range)"_s);
  printer.PrintLine({});
  m_routines.PrintAt(1.0F, 0);
  printer.PrintLine(u"Item Name"_s);
  m_routines.SetPrintFont(10, false, false);
  PrintTotals(sales.fgTotals);
}

void SalesReport::PrintSalesRow(const TextMatrix& grid, int row) {
  TurnPageBefore(grid.Text(row, 1));
  for (std::size_t i = 0; i < ColumnX.size(); ++i) {
    m_routines.PrintAt(ColumnX[i], 0);
    m_routines.Surface().PrintJoined(grid.Text(row, static_cast<int>(i)));
  }
  m_routines.PrintLineRight(UnitsEdge, grid.Text(row, UnitsColumn));
}

void SalesReport::PrintTotals(const TextMatrix& grid) {
  for (int row = 1; row < grid.Rows(); ++row) {
    TurnPageBefore(grid.Text(row, 0));
    m_routines.PrintAt(1.0F, 0);
    m_routines.Surface().PrintJoined(grid.Text(row, 0));
    m_routines.PrintLineRight(UnitsEdge, grid.Text(row, 1));
  }
}

void SalesReport::TurnPageBefore(const QString& text) {
  Printer& printer = m_routines.Surface();
  // Down to the edge of the sheet: there is no bottom margin, which is meant.
  if (printer.TextHeight(text) + printer.CurrentY >= static_cast<float>(printer.Height)) PrintSalesNewPage();
}

void SalesReport::PrintSalesNewPage() {
  m_routines.Surface().NewPage();
  PrintSalesColumns();
  m_routines.PrintAt(1.0F, 2.5F);
}
