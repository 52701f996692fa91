#include "records/GridReport.h"

#include <array>

#include "printing/KVPrint.h"
#include "printing/PrinterRoutines.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/TextMatrix.h"

using namespace Qt::StringLiterals;

namespace {

/// In inches: number, account number, account, date.
constexpr std::array<float, 4> ColumnX{1.0F, 2.25F, 3.5F, 5.5F};
constexpr float AmountEdge = 10800;  ///< In twips.
constexpr int AmountColumn = 4;

}  // namespace

GridReport::GridReport(PrinterRoutines& routines, KVPrint& pages, const Clock& clock)
    : m_routines(routines), m_pages(pages), m_clock(clock) {}

void GridReport::PrintGridReport(const ReportKind& kind, const TextMatrix& grid, const Progress& progress) {
  m_routines.DrawJob([&] {
    m_routines.PrintRows(kind.Title, grid.Rows(), progress, [&](const Progress& rows) {
      PrintReportHeading(kind);
      PrintReportRows(kind, grid, rows);
    });
  });
}

void GridReport::PrintReportHeading(const ReportKind& kind) {
  Printer& printer = m_routines.Surface();
  m_routines.SetPrintFont(14, true, false);
  printer.PrintLine({});
  m_routines.PrintLineCentred(static_cast<float>(printer.Width) / 2, kind.Title);
  m_routines.SetPrintFont(10, true, false);
  m_pages.PrintBusinessBlock(0.75F, 0.4F, 12);
  m_routines.PrintAt(6.5F, 0.75F);
  printer.PrintLine(ShortDateText(m_clock.Today()));
  PrintReportColumns(kind);
}

void GridReport::PrintReportColumns(const ReportKind& kind) {
  Printer& printer = m_routines.Surface();
  const std::array<QString, ColumnX.size()> headings{u"Invoice No."_s, u"Account No"_s, u"Account"_s, u"Date"_s};
  printer.SetFontBold(true);
  for (std::size_t i = 0; i < ColumnX.size(); ++i) {
    m_routines.PrintAt(ColumnX[i], 2.2F);
    printer.PrintJoined(headings[i]);
  }
  EndReportLine(kind, u"Amount"_s);
  printer.SetFontBold(false);
}

void GridReport::PrintReportRows(const ReportKind& kind, const TextMatrix& grid, const Progress& progress) {
  Printer& printer = m_routines.Surface();
  m_routines.PrintAt(1.0F, 2.5F);
  for (int row = 1; row < grid.Rows(); ++row) {
    PrinterRoutines::TellStep(progress, row, grid.Rows());
    // Down to the edge of the sheet: there is no bottom margin, which is meant.
    if (printer.TextHeight(grid.Text(row, 1)) + printer.CurrentY >= static_cast<float>(printer.Height)) {
      PrintReportNewPage(kind);
    }
    for (std::size_t i = 0; i < ColumnX.size(); ++i) {
      m_routines.PrintAt(ColumnX[i], 0);
      printer.PrintJoined(grid.Text(row, static_cast<int>(i)));
    }
    EndReportLine(kind, grid.Cols() > AmountColumn ? grid.Text(row, AmountColumn) : QString());
  }
}

void GridReport::PrintReportNewPage(const ReportKind& kind) {
  m_routines.Surface().NewPage();
  PrintReportHeading(kind);
  // Above the column headings, which the rows then overprint: that is how the page is.
  m_routines.PrintAt(1.0F, 1.75F);
}

void GridReport::EndReportLine(const ReportKind& kind, const QString& amount) {
  if (kind.Amounts == ReportAmounts::Printed) {
    m_routines.PrintLineRight(AmountEdge, amount);
  } else {
    m_routines.Surface().PrintLine({});
  }
}
