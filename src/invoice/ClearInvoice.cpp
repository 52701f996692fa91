#include "invoice/ClearInvoice.h"

#include "invoice/ChargeBoxes.h"
#include "invoice/LaborEntry.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "setup/TaxConfiguration.h"

void ClearInvoice(WorkingInvoice& invoice, const Clock& clock) {
  ClearGrid(invoice);
  ClearAddOns(invoice);
  ClearLabor(invoice);
  ClearEntryBoxes(invoice);
  invoice.DTPicker1 = clock.Today();
  invoice.Controls.Enabled.cmdPost.fill(true);
}

void ClearGrid(WorkingInvoice& invoice) {
  invoice.fgInvoice.Clear();
  invoice.LineCount = 0;
}

void ClearAddOns(WorkingInvoice& invoice) {
  ClearMisc(invoice);
  ClearShip(invoice);
  invoice.CalcDiscount = {};
  invoice.txtDiscount = ZeroCurrencyText();
  invoice.txtFlatDiscount = ZeroCurrencyText();
}

void ClearEntryBoxes(WorkingInvoice& invoice) {
  invoice.Entry.txtUnits.clear();
  invoice.txtNarrative.clear();
  if (!invoice.RecalledInvoice) invoice.txtReference.clear();
  ClearTotals(invoice);
}

void ClearTotals(WorkingInvoice& invoice) {
  invoice.SubTotal = invoice.Tax1 = invoice.Tax2 = invoice.GrandTotal = invoice.TaxableAmount = Currency();
  invoice.txtTotal = invoice.txtTax = invoice.txtTax2 = invoice.txtGrandTotal = ZeroCurrencyText();
}

void CancelPrint(WorkingInvoice& invoice) {
  ClearTotals(invoice);
  ClearAddOns(invoice);
  ClearFlatDiscount(invoice);
}

void ResetInvoiceOptions(WorkingInvoice& invoice, const TaxConfiguration& tax) {
  invoice.Controls.Visible.Label4_42 = false;
  invoice.Controls.Visible.ck2ndTax = tax.ckApply2ndTax;
  invoice.ck2ndTax = tax.ckApply2ndTax;
}

void ResetPrintOptions(WorkingInvoice& invoice) {
  invoice.ckAddMemo = false;
  invoice.ckExempt = false;
  invoice.ckApplyVolumeDiscount = false;
  invoice.ckPrepaid = false;
  invoice.ckPackingList = false;
  invoice.ckShipto = false;
}
