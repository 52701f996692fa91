/// What the box of an unhandled error says.
#pragma once

#include "runtime/RuntimeError.h"

/// What happened, to which file or box, and what the user can do. `ends` tells that the program ends by it.
QString ErrorBoxText(const RuntimeError& error, bool ends);
