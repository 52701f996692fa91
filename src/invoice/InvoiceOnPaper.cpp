#include "invoice/InvoiceOnPaper.h"

#include "invoice/WorkingInvoice.h"
#include "runtime/Dates.h"
#include "runtime/Numbers.h"
#include "setup/PrintAppearance.h"

using namespace Qt::StringLiterals;

namespace {

PageAddress SoldToBlock(const WorkingInvoice& invoice) {
  const auto& line = invoice.lblCustomer;
  return {line[6], line[7], line[8], line[9], line[10], line[11]};
}

PageAddress ShipToBlock(const WorkingInvoice& invoice) {
  const auto& line = invoice.txtShipto;
  return {TrimBlanks(line[0]), TrimBlanks(line[1]), TrimBlanks(line[2]),
          TrimBlanks(line[3]), TrimBlanks(line[4]), TrimBlanks(line[5])};
}

}  // namespace

InvoicePage PageOf(const WorkingInvoice& invoice, bool usaAddress, QDate today) {
  InvoicePage page;
  page.Heading = {TrimBlanks(invoice.lblAcct), ShortDateText(today), invoice.txtInvoiceNo, invoice.txtReference};
  page.SoldTo = SoldToBlock(invoice);
  page.UsaAddress = usaAddress;
  page.HasShipTo = invoice.ckShipto;
  page.ShipTo = ShipToBlock(invoice);
  page.Shipping = {invoice.cboShipping, ShortDateText(invoice.DTShip), invoice.txtReference};
  page.Lines = &invoice.fgInvoice;
  page.LineCount = invoice.LineCount;
  page.Totals = {invoice.txtTotal, invoice.txtTax,  invoice.txtTax2,
                 invoice.txtShip,  invoice.txtMisc, invoice.txtGrandTotal};
  return page;
}

PaperToInsert PaperFor(const PrintAppearance& appearance) {
  if (appearance.optReturn) return {u"Insert Perforated Response Paper"_s, true};
  return {u"Insert Standard Paper"_s, false};
}
