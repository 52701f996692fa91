/// The steps of `Sub Main` that need no screen.
#pragma once

class Clock;
class Dialogs;
class PreviousInstance;

#include "shell/DataTree.h"

/// False, after a box, when another instance of the program runs on the same data root. No file is touched then.
bool CheckPreviousInstance(PreviousInstance& instance, Dialogs& dialogs);
