/// Labor: three hourly rates of the catalogue, hours entered against them, and the lines posted from that.
#pragma once

class Dialogs;
struct LaborRates;
struct TaxConfiguration;
struct WorkingInvoice;

/// Takes the three rates over from the catalogue: a slot with a name shows under its heading, the others hide and
/// count as 0. `mnuLabor` is enabled when the sum of the rates isn't 0. Throws RuntimeError 13 on a rate that isn't an
/// amount.
void LoadLaborRates(WorkingInvoice& invoice, const LaborRates& rates);
/// Hours of the slots that show to "0", charges and amounts to zero.
void ClearLabor(WorkingInvoice& invoice);
/// Leaving `txtHours`: the slot's charge; text that isn't a number becomes "0", with a beep and the focus back. An
/// empty box is left alone.
void LeaveHours(WorkingInvoice& invoice, int slot, Dialogs& dialogs);
/// `cmdLabor_0`: the sum of the charges; posting is enabled and gets the focus.
void SumLabor(WorkingInvoice& invoice);
/// `cmdLabor_1`: a line for each slot with a charge. A row beyond the grid throws RuntimeError 9. The screen opens the
/// services frame afterwards if `mnuServices` is enabled.
void PostLabor(WorkingInvoice& invoice, const LaborRates& rates, const TaxConfiguration& tax);
