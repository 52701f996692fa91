#include "invoice/PartialSave.h"

#include <QScopeGuard>

#include "invoice/InvoiceImage.h"
#include "invoice/InvoiceNumber.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Dialogs.h"

using namespace Qt::StringLiterals;

namespace {

const QString SaveQuestion =
    u"The account data, invoice items, quantites,\r\n"
    "prices, and extensions will be saved\r\n"
    "Recall the invoice from the Main Menu,\r\n"
    "Partial Invoices and add to the invoice"_s;

bool PrintDraft(WorkingInvoice& invoice, const PartialSaveSteps& steps) {
  invoice.DraftPrint = true;
  // A print that fails on the way leaves the flag; the next print must be an invoice again.
  const auto printed = qScopeGuard([&invoice] { invoice.DraftPrint = false; });
  return steps.PrintInvoice();
}

/// No line of a partial invoice is without a date.
void DateEveryLine(WorkingInvoice& invoice, QDate today) {
  TextMatrix& grid = invoice.fgInvoice;
  for (int row = 1; row <= invoice.LineCount; ++row) {
    if (grid.Text(row, LineColumn::ServiceDate).isEmpty()) {
      grid.SetText(row, LineColumn::ServiceDate, ShortDateText(today));
    }
  }
}

}  // namespace

void SavePartial(const PartialSaveDesk& desk, const PartialSaveSteps& steps) {
  WorkingInvoice& invoice = desk.Invoice;
  if (!CheckInvoiceNo(invoice, desk.Boxes, steps.ToCreationView)) return;
  if (!Ask(invoice, desk.Boxes, SaveQuestion, u"Save Partial Invoice"_s)) return;
  if (Ask(invoice, desk.Boxes, u"Would you like to Print a Draft Copy?"_s, u"Print Draft Copy"_s) &&
      !PrintDraft(invoice, steps)) {
    return;
  }
  const QDate today = desk.Today.Today();
  DateEveryLine(invoice, today);
  SavePartialImage(invoice, desk.Disk, today);
  // A number that was saved is spoken for; a recalled one was counted when it was saved first.
  if (!invoice.RecalledInvoice) BumpInvoiceNo(invoice, desk.Disk);
  steps.ReloadPartials();
  steps.Leave();
}
