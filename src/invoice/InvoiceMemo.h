/// The memo of an invoice and its default text in /InvoiceMemo.txt.
#pragma once

class CommonDiskRoutines;
struct WorkingInvoice;

/// Appends the default memo to `txtMemo`, a line for each field of the file (a comma in it becomes a line break), and
/// ticks and shows `ckAddMemo`; without a file the memo is emptied and the tick cleared and hidden. A file that can't
/// be read leaves everything as it was.
void LoadInvoiceMemo(WorkingInvoice& invoice, CommonDiskRoutines& disk);
/// The same in place of what stands in `txtMemo`.
void ReloadInvoiceMemo(WorkingInvoice& invoice, CommonDiskRoutines& disk);

/// The commands of `cmdInvoiceMemo` on the memo itself. 0: hide `lblMemo`, empty the memo, focus to it. 1: reload the
/// default. 2: save as default, unless empty. 3 does nothing, and 4 (closing the frame) is the screen's.
void DoInvoiceMemoCommand(WorkingInvoice& invoice, int index, CommonDiskRoutines& disk);

/// `mnuMemo`: without a tick in `ckAddMemo` commands 1 and 2 are disabled.
void OpenMemo(WorkingInvoice& invoice);
/// Any key in `txtMemo` enables command 2.
void TypeInMemo(WorkingInvoice& invoice);
