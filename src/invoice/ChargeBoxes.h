/// Shipping, additional charge and the flat discount: boxes of the summary with an amount held behind each.
#pragma once

class Dialogs;
struct TaxConfiguration;
struct WorkingInvoice;

/// Leaving a charge box takes an amount over; text that isn't one is emptied with a beep and the focus comes back. An
/// empty box keeps the charge that is held. `txtMisc` skips zero too, and an accepted amount there runs
/// `RequireFinalize`; an accepted one in `txtShip` only disables `cmdInvoiceContinue`.
void LeaveShip(WorkingInvoice& invoice, Dialogs& dialogs);
void LeaveMisc(WorkingInvoice& invoice, Dialogs& dialogs);
/// Double click: the charge is 0.
void ClearShip(WorkingInvoice& invoice);
void ClearMisc(WorkingInvoice& invoice);
/// "Reset Shipping Charge" and "Reset Additional Charge": cleared, then `RequireFinalize`.
void ResetShip(WorkingInvoice& invoice);
void ResetMisc(WorkingInvoice& invoice);

/// Leaving `txtFlatDiscount`: a number is reformatted and the focus moves to "Deduct Discount".
void LeaveFlatDiscount(WorkingInvoice& invoice);
/// "Deduct Discount". One that isn't below the amount before it is refused with a message. The grand total waits for
/// Finalize. Throws RuntimeError 13 on the box if it isn't an amount.
void DeductDiscount(WorkingInvoice& invoice, const TaxConfiguration& tax, Dialogs& dialogs);
/// The held flat discount to 0 and its box to the currency text of 0.
void ClearFlatDiscount(WorkingInvoice& invoice);
