/// What the invoice screen brings along before it is first shown.
#pragma once

class Clock;
class CommonDiskRoutines;
struct InvoicerSettings;
struct WorkingInvoice;

/// Lists with their defaults, both dates at today (an invoice that is recalled before any new one was made has its ship
/// date from here), the default carrier and the default memo. The settings file is loaded afterwards and has the last
/// word on the lists.
void LoadInvoiceScreen(WorkingInvoice& invoice, InvoicerSettings& settings, CommonDiskRoutines& disk,
                       const Clock& clock);
