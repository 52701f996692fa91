/// Totals of the invoice in the making: sub-total, the two taxes, the discounts, the grand total. Amounts are Currency;
/// every product goes through a double. Overflow throws RuntimeError 6.
#pragma once

struct InvoicerSettings;
struct TaxConfiguration;
struct WorkingInvoice;

/// Sums the Extension column into `SubTotal` and its taxable part into `TaxableAmount`, then the taxes. A sub-total
/// that isn't above 0 leaves the boxes as they are. Throws RuntimeError 13 if a cell or a graduated amount isn't an
/// amount.
void ComputeTotals(WorkingInvoice& invoice, const TaxConfiguration& tax);
/// The discount offered for early payment, on the sub-total alone; nothing happens unless `optDiscount_2` is selected.
void ComputeDiscount(WorkingInvoice& invoice, const InvoicerSettings& settings);
/// Everything added up, the flat discount deducted, and the four boxes shown.
void ComputeGrandTotal(WorkingInvoice& invoice);
/// "Finalize Invoice": the three above in this order; then the invoice may be printed. With `ckPrepaid` the payment
/// boxes are made ready: the amount is the grand total's text, the form of payment is empty.
void FinalizeInvoice(WorkingInvoice& invoice, const TaxConfiguration& tax, const InvoicerSettings& settings);
/// The total must be computed anew before printing: no `cmdInvoiceContinue`, focus on Finalize.
void RequireFinalize(WorkingInvoice& invoice);
