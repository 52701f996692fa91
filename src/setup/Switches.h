/// A tick box in a settings file: 0 or 1.
#pragma once

#include "runtime/ListFile.h"

/// Throws RuntimeError 13 for a number that is neither, as damage of the file.
bool ReadSwitch(ListReader& file);
inline int SwitchValue(bool ticked) {
  return ticked ? 1 : 0;
}
