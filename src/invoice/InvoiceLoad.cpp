#include "invoice/InvoiceLoad.h"

#include "invoice/InvoiceHeaderData.h"
#include "invoice/InvoiceMemo.h"
#include "invoice/InvoiceTerms.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"

void LoadInvoiceScreen(WorkingInvoice& invoice, InvoicerSettings& settings, CommonDiskRoutines& disk,
                       const Clock& clock) {
  LoadInvoiceLists(settings);
  invoice.DTPicker1 = invoice.DTShip = clock.Today();
  LoadShipVia(invoice, disk);
  LoadInvoiceMemo(invoice, disk);
}
