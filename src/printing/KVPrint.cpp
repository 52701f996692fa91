#include "printing/KVPrint.h"

#include "runtime/RuntimeError.h"
#include "setup/PrintAppearance.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {
constexpr float BlockTop = 0.4F;
}

KVPrint::KVPrint(PrinterRoutines& routines, CommonDiskRoutines& disk, Dialogs& dialogs, const Clock& clock,
                 const Settings& settings)
    : m_routines(routines),
      m_printer(routines.Surface()),
      m_disk(disk),
      m_dialogs(dialogs),
      m_clock(clock),
      m_settings(settings) {}

void KVPrint::PrintInvoice(const InvoicePage& page, bool& draft) {
  m_routines.DrawJob([&] {
    m_routines.BeginPrintJobWithoutDialog((draft ? u"Draft Invoice "_s : u"Invoice "_s) + page.Heading.InvoiceNo);
    PrintPageFrame(draft ? u"DRAFT INVOICE"_s : u"INVOICE"_s, BlockTop, page.Heading.InvoiceNo);
    PrintInvoiceHeading(page.Heading);
    if (m_settings.Appearance.optReturn) PrintDetachLine();
    PrintSoldTo(page.SoldTo, page.UsaAddress);
    if (page.HasShipTo) PrintShipTo(page.ShipTo, page.UsaAddress, page.Shipping);
    PrintLineItems(page);
    if (!draft) PrintTotals(page.Totals);
    draft = false;
    m_printer.EndDoc();
  });
}

void KVPrint::PrintReprint(const InvoicePage& page) {
  m_routines.DrawJob([&] {
    m_routines.BeginPrintJobWithoutDialog(u"Invoice "_s + page.Heading.InvoiceNo);
    PrintPageFrame(u"INVOICE"_s, BlockTop, page.Heading.InvoiceNo);
    PrintInvoiceHeading(page.Heading);
    PrintSoldTo(page.SoldTo, page.UsaAddress);
    PrintShipTo(page.ShipTo, page.UsaAddress, page.Shipping);
    m_printer.PrintLine({});
    PrintLineItems(page);
    PrintTotals(page.Totals);
    m_printer.EndDoc();
  });
}

void KVPrint::PrintSample() {
  m_routines.DrawJob([&] {
    m_routines.BeginPrintJobWithoutDialog(u"Sample Invoice"_s);
    PrintPageFrame(u"INVOICE"_s, BlockTop, u"12345"_s);
    m_printer.EndDoc();
  });
}

QString KVPrint::TextOfFile(const QString& name, QString (ListReader::*read)()) {
  try {
    ListReader file = m_disk.OpenInputFile(name);
    const QString text = (file.*read)();
    m_disk.CloseAllFiles();
    return text;
  } catch (const RuntimeError& error) {
    if (error.From() == RuntimeError::Origin::FileContent) m_disk.KeepBackupOf(name);
    throw;
  }
}

void KVPrint::PrintContinuationPage(const InvoicePage& page) {
  m_printer.NewPage();
  PrintPageFrame(u"INVOICE"_s, BlockTop, page.Heading.InvoiceNo);
  // The heading prints memo and column headings once more, over these; that is how the page is.
  PrintColumnHeadings();
  PrintInvoiceHeading(page.Heading);
  PrintSoldTo(page.SoldTo, page.UsaAddress);
  StartItems();
}
