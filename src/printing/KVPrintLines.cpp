// The lower half of the page: the narrative, the line items with their overflow, and the totals.
#include <array>

#include "printing/KVPrint.h"
#include "runtime/Currency.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/TextMatrix.h"
#include "setup/PrintAppearance.h"
#include "setup/TaxConfiguration.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {
constexpr float NarrativeBottom = 7200;
constexpr std::array<float, 6> TotalsY = {8.55F, 8.8F, 9.05F, 9.3F, 9.55F, 9.8F};

/// The columns of a page's lines.
namespace Cell {
constexpr int Quantity = 0;
constexpr int Description = 1;
constexpr int Date = 2;
constexpr int Price = 3;
constexpr int Total = 4;
}  // namespace Cell

QString AmountText(const QString& amount) {
  return CurrencyTextOf(amount).value_or(amount);
}
}  // namespace

void KVPrint::StartItems() {
  m_routines.PrintAt(0.75F, BodyY(4.9));
}

void KVPrint::PrintLineItems(const InvoicePage& page) {
  m_pageBottom = 11880;
  m_routines.PrintAt(0.75F, 4.9F);
  if (m_hasNarrative) {
    PrintNarrative(page.Heading.InvoiceNo);
    StartItems();
  }
  for (m_currentLine = 1; m_currentLine <= page.LineCount; ++m_currentLine) PrintRow(page);
  if (m_printer.CurrentY >= m_pageBottom) PrintContinuationPage(page);
  m_printer.SetForeColor(FixedInk::Black);
}

void KVPrint::PrintRow(const InvoicePage& page) {
  const auto cell = [&](int column) { return page.Lines->Text(m_currentLine, column); };
  const QString description = cell(Cell::Description);
  // The test sees one line of the description only, before the row and behind it, so that a long wrap passes the
  // limit and a full page sends the totals to the next: meant.
  const auto breakIfFull = [&] {
    if (m_printer.TextHeight(description) + m_printer.CurrentY >= m_pageBottom) PrintContinuationPage(page);
  };
  breakIfFull();
  m_routines.SetPrintColor(true);
  m_routines.PrintJoinedRight(1224, cell(Cell::Quantity));
  m_routines.PrintJoinedCentred(2520, cell(Cell::Date));
  m_routines.PrintJoinedRight(9360, cell(Cell::Price));
  m_routines.PrintJoinedRight(11520, cell(Cell::Total));
  m_routines.PrintAt(2.3F, 0);
  m_routines.PrintWrappedHere(4248, description);
  breakIfFull();
}

void KVPrint::PrintNarrative(const QString& invoiceNo) {
  m_printer.CurrentY = 5328;
  m_routines.SetPrintFont(10, true, true);
  m_routines.PrintAt(0.25F, 0);
  m_printer.PrintLine(u"Details"_s);
  m_routines.SetPrintFont(10, false, false);
  ListReader narrative = m_disk.OpenInputFile(NarrativeName(invoiceNo));
  while (!narrative.AtEnd()) {
    if (m_printer.TextHeight(u"ABC"_s) + m_printer.CurrentY >= NarrativeBottom) {
      m_dialogs.ShowMessage(
          u"Your Narrative will not fit completely in the allotted area\r\nReview the Invoice after Printing\r\n"
          u"Answer NO if the invoice is unacceptable\r\nRe-enter your Narrative"_s,
          u"Narrative is to Big"_s);
      m_routines.SetPrintFont(10, false, false);
      return;
    }
    m_routines.PrintWrapped(360, m_routines.WholeY(), 10800, narrative.ReadLine());
  }
  m_disk.CloseAllFiles();
}

void KVPrint::PrintTotals(const PageTotals& totals) {
  const bool inColor = m_settings.Appearance.ckColor;
  const std::array<QString, 6> labels = {
      u"Sub-Total"_s, m_settings.Tax.cboTaxHeading1, m_settings.Tax.cboTaxHeading2, u"Shipping"_s, u"Handling"_s,
      u"Total"_s};
  m_routines.SetPrintFont(10, true, false);
  for (std::size_t row = 0; row < labels.size(); ++row) {
    m_routines.PrintAt(5.6F, TotalsY[row]);
    m_printer.PrintLine(labels[row]);
  }
  const std::array<QString, 6> amounts = {totals.SubTotal, totals.Tax1,     totals.Tax2,
                                          totals.Shipping, totals.Handling, totals.GrandTotal};
  m_routines.SetPrintColor(false);
  m_routines.SetPrintFont(10, true, false);
  m_routines.SetPrintColor(true);
  for (std::size_t row = 0; row < amounts.size(); ++row) {
    if (row == 5) {
      if (inColor) m_printer.SetForeColor(FixedInk::Red);
      m_routines.SetPrintFont(12, true, false);
    }
    m_routines.PrintAt(0, TotalsY[row]);
    m_routines.PrintLineRight(11520, AmountText(amounts[row]));
  }
  PrintTerms();
}

void KVPrint::PrintTerms() {
  if (m_settings.Appearance.ckColor) m_printer.SetForeColor(FixedInk::Green);
  m_printer.CurrentY = 13824;
  QString terms;
  const QString file = u"/StatementTerms.txt"_s;
  if (m_disk.FileExists(file)) terms = TextOfFile(file, &ListReader::ReadLine);
  PrintLineAt(1.3F, terms);
}
