/// The narrative: free text that belongs to one invoice, and the default text that a new one begins with.
#pragma once

#include <functional>

class CommonDiskRoutines;
class Dialogs;
struct WorkingInvoice;

/// Writes the narrative to the file of the invoice's number; an empty one is left out, as by Cancel, and a file that
/// stands there stays. True where the frame closes, false where the number was refused with a message (see
/// `CheckInvoiceNo`).
bool SaveNarrative(WorkingInvoice& invoice, CommonDiskRoutines& disk, Dialogs& dialogs,
                   const std::function<void()>& toCreationView);
/// Replaces the text by the default narrative, or by nothing where none was kept.
void LoadDefaultNarrative(WorkingInvoice& invoice, CommonDiskRoutines& disk);
/// Keeps the text as the default; the old default's backup copy goes.
void SaveDefaultNarrative(const WorkingInvoice& invoice, CommonDiskRoutines& disk);
