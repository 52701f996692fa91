/// The invoice number: the counter in /KVInvoiceNo.txt, which starts anew each year in the form YYYYNNNN, and the box
/// that the user may overtype.
#pragma once

#include <functional>
#include <QString>

class Clock;
class CommonDiskRoutines;
class Dialogs;
struct WorkingInvoice;

/// Offers the next number: reads the counter into `InvoiceNo`, repairs a 0, starts a new year, writes the counter back
/// at once, puts it into `txtInvoiceNo` and unlocks the box. A counter that isn't a number, or none at all in a file
/// that exists, throws RuntimeError 13, 6 or 62 that names the file.
void LoadInvoiceNo(WorkingInvoice& invoice, CommonDiskRoutines& disk, const Clock& clock);
/// Writes the counter; its backup copy is dropped.
void SaveInvoiceNo(qint32 number, CommonDiskRoutines& disk);
/// After a new invoice was committed or saved as partial: the counter becomes what `txtInvoiceNo` says plus 1. Throws
/// RuntimeError 6 beyond 32 bits, 13 for a text that isn't a number.
void BumpInvoiceNo(WorkingInvoice& invoice, CommonDiskRoutines& disk);
/// "Reload Next Invoice No".
void ReloadInvoiceNo(WorkingInvoice& invoice);
/// Continue takes a numeric box over into `InvoiceNo`; beyond 32 bits throws RuntimeError 6 on the box.
void TakeOverInvoiceNo(WorkingInvoice& invoice);
/// The gate before Continue and before a narrative is saved: false, after a message and with the focus sent to
/// `txtInvoiceNo`, when the box is empty or its text can't name a file. The screen then goes to its creation view;
/// `toCreationView` runs between the message and the focus.
bool CheckInvoiceNo(WorkingInvoice& invoice, Dialogs& dialogs, const std::function<void()>& toCreationView = {});
/// What the box takes of a pasted text: of each character what it would take if it were typed, without the message.
int PasteIntoInvoiceNo(int key, const QString& boxText);
/// Leaving the box empty: a message, and the focus goes back.
void LeaveInvoiceNo(WorkingInvoice& invoice, Dialogs& dialogs);
