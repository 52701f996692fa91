/// The clearing routines of the invoice screen. Boxes that are cleared show the currency text of 0.
#pragma once

class Clock;
struct TaxConfiguration;
struct WorkingInvoice;

/// Grid, charges, labor and entry boxes, and the service date to today. Posting is possible again.
void ClearInvoice(WorkingInvoice& invoice, const Clock& clock);
/// All cells blank, no lines.
void ClearGrid(WorkingInvoice& invoice);
/// Both charges and the calculated discount with their boxes; the flat discount's box only, its held value stays.
void ClearAddOns(WorkingInvoice& invoice);
/// Units, narrative, the reference of a new invoice, and `ClearTotals`.
void ClearEntryBoxes(WorkingInvoice& invoice);
/// Sub-total, taxes and grand total, text and value; the taxable amount.
void ClearTotals(WorkingInvoice& invoice);

/// "Clear Totals/Addons - Redo": totals, add-ons and the held flat discount. The screen then goes to its creation view.
void CancelPrint(WorkingInvoice& invoice);
/// The quantity-break mark hides; `ck2ndTax` shows and is ticked as Setup's second tax says.
void ResetInvoiceOptions(WorkingInvoice& invoice, const TaxConfiguration& tax);
/// Clears `ckAddMemo`, `ckExempt`, `ckApplyVolumeDiscount`, `ckPrepaid`, `ckPackingList` and `ckShipto`.
void ResetPrintOptions(WorkingInvoice& invoice);
