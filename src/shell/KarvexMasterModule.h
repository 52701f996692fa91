/// The first step of `Sub Main`, before any file is touched; the others are `Program::Start`'s.
#pragma once

class Clock;
class Dialogs;
class FolderLock;

/// False, after a box, when another instance of the program runs on the same data root. No file is touched then.
bool CheckPreviousInstance(FolderLock& dataRoot, Dialogs& dialogs);
