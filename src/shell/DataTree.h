/// The folder tree under the data root, and the test of a first run.
#pragma once

class Clock;
class CommonDiskRoutines;

/// Makes the 25 folders in their order, each only if it isn't there. Throws RuntimeError 70 or 75 for a folder that
/// can't be made.
void MakeDataTree(CommonDiskRoutines& disk, const Clock& clock);

/// Whether Setup was ever saved here: its three files exist. Each is asked for, so each gets its restore.
bool RequiredFilesPresent(CommonDiskRoutines& disk);
