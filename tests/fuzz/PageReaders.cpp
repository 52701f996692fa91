// The readers of the texts that only the printed page takes in.

#include "support/PlainPrinter.h"
#include "fuzz/ReaderDesk.h"
#include "invoice/WorkingInvoice.h"
#include "printing/KVPrint.h"
#include "setup/LiveSettings.h"
#include "shell/CommonDialog.h"

using namespace Qt::StringLiterals;

namespace {

void PrintPage(ReaderDesk& desk) {
  LiveSettings live;
  CommonDialog dialog;
  PlainPrinter paper;
  PrinterRoutines routines(paper, live.Print, dialog);
  KVPrint pages(routines, desk.Disk(), desk.Boxes(), desk.Today(), {live.Business, live.Print, live.Tax});
  WorkingInvoice invoice;
  InvoicePage page;
  page.Heading.InvoiceNo = u"20260001"_s;
  page.Lines = &invoice.fgInvoice;
  bool draft = false;
  pages.PrintInvoice(page, draft);
}

}  // namespace

std::vector<ReaderTarget> PageReaders() {
  return {{"page-web-site", u"/MyWebSite.txt"_s, PrintPage},
          {"page-memo", u"/InvoiceMemo.txt"_s, PrintPage},
          {"page-terms", u"/StatementTerms.txt"_s, PrintPage},
          {"page-narrative", u"/KarvexInvoicer/Narratives/20260001.txt"_s, PrintPage}};
}
