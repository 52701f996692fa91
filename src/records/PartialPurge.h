/// The purges of the partial invoices screen. Both read the list anew.
#pragma once

class CommonDiskRoutines;
struct PartialList;

/// Deletes every file of the folder, whatever its extension.
void PurgeAllPartials(PartialList& list, CommonDiskRoutines& disk);
/// Deletes the file that column 0 of the selected row names, as it stands there; nothing where none is selected. Throws
/// RuntimeError 64 where that can't name a file.
void PurgeSelectedPartial(PartialList& list, CommonDiskRoutines& disk);
