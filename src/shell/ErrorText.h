/// What the box of an unhandled error says.
#pragma once

#include "runtime/RuntimeError.h"

/// What happened, to which file or box, and what the user can do. `ends` tells that the program ends by it.
/// `box` is what its screen calls the box that the error is about.
QString ErrorBoxText(const RuntimeError& error, bool ends, const QString& dataRoot, const QString& box = {});

/// What the user can do about an error that the program outlives, for advice of one's own: the box's usual words,
/// without "Nothing was lost.".
QString UsualRemedy(const RuntimeError& error);
