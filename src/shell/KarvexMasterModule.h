/// The first step of `Sub Main`, before any file is touched; the others are `Program::Start`'s.
#pragma once

class Clock;
class Dialogs;
class PreviousInstance;

/// False, after a box, when another instance of the program runs on the same data root. No file is touched then.
bool CheckPreviousInstance(PreviousInstance& instance, Dialogs& dialogs);
