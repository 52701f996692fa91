#include "invoice/Totals.h"

#include "invoice/WorkingInvoice.h"
#include "runtime/Numbers.h"
#include "setup/InvoicerSettings.h"
#include "setup/TaxConfiguration.h"

using namespace Qt::StringLiterals;

namespace {

void SumLines(WorkingInvoice& invoice) {
  for (int row = 1; row <= invoice.LineCount; ++row) {
    const Currency extension =
        Currency::FromText(invoice.fgInvoice.Text(row, LineColumn::Extension), u"Extension of line %1"_s.arg(row));
    invoice.SubTotal += extension;
    if (!invoice.ckExempt && invoice.fgInvoice.Text(row, LineColumn::ApplyTax) == u"True") {
      invoice.TaxableAmount += extension;
    }
  }
}

/// Above the limit the second rate applies to the whole amount and the surcharge is a second, fixed tax.
void ComputeGraduatedTax(WorkingInvoice& invoice, const TaxConfiguration& tax) {
  const Currency limit = Currency::FromText(tax.txtGradulated[0], u"Limit of the graduated tax in Setup"_s);
  if (invoice.TaxableAmount > limit) {
    invoice.Tax1 = PercentOf(invoice.TaxableAmount, ParseLeadingNumber(tax.cboRate2));
    invoice.Tax2 = Currency::FromText(tax.txtGradulated[1], u"Tax surcharge in Setup"_s);
  } else {
    invoice.Tax1 = PercentOf(invoice.TaxableAmount, ParseLeadingNumber(tax.cboRate1));
  }
}

}  // namespace

void ComputeTotals(WorkingInvoice& invoice, const TaxConfiguration& tax) {
  invoice.Tax1 = invoice.Tax2 = invoice.SubTotal = invoice.TaxableAmount = Currency();
  SumLines(invoice);
  if (invoice.SubTotal <= Currency()) return;
  invoice.txtTotal = CurrencyText(invoice.SubTotal);
  if (invoice.TaxableAmount == Currency()) return;
  if (tax.ckApplyGraduated) {
    ComputeGraduatedTax(invoice, tax);
    return;
  }
  // Both taxes are on the same base.
  invoice.Tax1 = PercentOf(invoice.TaxableAmount, ParseLeadingNumber(tax.cboRate1));
  if (invoice.ck2ndTax) invoice.Tax2 = PercentOf(invoice.TaxableAmount, ParseLeadingNumber(tax.cboRate2));
}

void ComputeDiscount(WorkingInvoice& invoice, const InvoicerSettings& settings) {
  if (invoice.optDiscount != DiscountOption::Calculated) return;
  invoice.CalcDiscount = {};
  invoice.txtDiscount = ZeroCurrencyText();
  if (!invoice.ckDiscount) return;
  invoice.CalcDiscount = PercentOf(invoice.SubTotal, ParseLeadingNumber(settings.cboDiscount));
  invoice.txtDiscount = CurrencyText(invoice.CalcDiscount);
  invoice.txtFlatDiscount = ZeroCurrencyText();
}

void ComputeGrandTotal(WorkingInvoice& invoice) {
  // The calculated discount is offered for early payment and isn't deducted.
  invoice.GrandTotal =
      invoice.SubTotal + invoice.Tax1 + invoice.Tax2 + invoice.ShipCharge + invoice.MiscCharge - invoice.FlatDiscount;
  invoice.txtGrandTotal = CurrencyText(invoice.GrandTotal);
  invoice.txtTotal = CurrencyText(invoice.SubTotal);
  invoice.txtTax = CurrencyText(invoice.Tax1);
  invoice.txtTax2 = CurrencyText(invoice.Tax2);
}

void FinalizeInvoice(WorkingInvoice& invoice, const TaxConfiguration& tax, const InvoicerSettings& settings) {
  ComputeTotals(invoice, tax);
  ComputeDiscount(invoice, settings);
  ComputeGrandTotal(invoice);
  invoice.Controls.Enabled.cmdInvoiceContinue = true;
  invoice.Controls.Visible.fraPrePaid = invoice.ckPrepaid;
  if (!invoice.ckPrepaid) return;
  invoice.txtPrepaid = invoice.txtGrandTotal;
  invoice.cboPrepaid.clear();
  invoice.Controls.Focus = u"cboPrepaid"_s;
}

void RequireFinalize(WorkingInvoice& invoice) {
  invoice.Controls.Enabled.cmdInvoiceContinue = false;
  invoice.Controls.Focus = u"cmdInvoice_9"_s;
}
