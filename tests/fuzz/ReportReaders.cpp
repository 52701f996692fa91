// The readers of what was recorded: completed invoices and sold items.

#include "catalogue/SalesItemsList.h"
#include "support/PlainPrinter.h"
#include "fuzz/ReaderDesk.h"
#include "printing/KVPrint.h"
#include "records/CompletedInvoice.h"
#include "records/CompletedInvoices.h"
#include "records/ItemSales.h"
#include "records/SalesPurge.h"
#include "records/SalesRange.h"
#include "runtime/RuntimeError.h"
#include "setup/LiveSettings.h"
#include "shell/CommonDialog.h"

using namespace Qt::StringLiterals;

namespace {

const QString Image = u"/CompletedInvoices/20260001.txt"_s;

/// Opened and printed once more.
void OpenCompleted(ReaderDesk& desk) {
  CompletedInvoice invoice;
  OpenCompletedInvoice(invoice, desk.Disk(), u"20260001"_s, u"3/7/2026"_s);
  LiveSettings live;
  CommonDialog dialog;
  PlainPrinter paper;
  PrinterRoutines routines(paper, live.Print, dialog);
  KVPrint pages(routines, desk.Disk(), desk.Boxes(), desk.Today(), {live.Business, live.Print, live.Tax});
  pages.PrintReprint(PageOf(invoice, true));
}

void ListCompleted(ReaderDesk& desk) {
  CompletedInvoices list;
  LoadCompletedInvoices(list, desk.Disk());
  for (int column = 0; column < 3; ++column) SortCompletedInvoices(list, column, column % 2);
}

/// What the list says of an image names the files that go: none outside their folders.
void PurgeCompleted(ReaderDesk& desk) {
  CompletedInvoices list;
  LoadCompletedInvoices(list, desk.Disk());
  PurgeCompletedInvoices(list, desk.Disk(), desk.Today().Today());
}

SalesItemsList Ticked() {
  return {{{u"Bolt"_s, true}, {QString(), true}, {u"Bolt"_s, true}}};
}

SalesRange AllTimes() {
  SalesRange range;
  range.DTPicker1 = {QDate(1900, 1, 1), QDate(9999, 12, 31)};
  return range;
}

void ReportSales(ReaderDesk& desk) {
  ItemSales sales;
  SalesRange range = AllTimes();
  const SalesItemsList list = Ticked();
  LoadSalesGrid(sales, range, list, desk.Disk());
  try {
    BuildSalesTotals(sales, list);
  } catch (const RuntimeError& error) {
    // A total beyond 16 bits names the product, and a product behind one with a blank name finds no row; the file is
    // sound.
    if (error.Number() != ErrorNumber::Overflow && error.Number() != ErrorNumber::OutOfRange) throw;
  }
}

void PurgeSales(ReaderDesk& desk) {
  SalesRange range = AllTimes();
  range.DTPicker1 = {QDate(2026, 1, 1), QDate(2026, 3, 31)};
  PurgeSoldItems(range, desk.Disk());
}

}  // namespace

std::vector<ReaderTarget> ReportReaders() {
  return {{"completed", Image, OpenCompleted},
          {"completed-list", Image, ListCompleted},
          {"completed-purge", Image, PurgeCompleted, 0, true},
          {"sales-report", u"/SoldItems.txt"_s, ReportSales, 90},
          {"sales-purge", u"/SoldItems.txt"_s, PurgeSales, 90, true}};
}
