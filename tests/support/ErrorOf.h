/// What an act throws: its error number, 0 for none.
#pragma once

#include "runtime/RuntimeError.h"

template <typename Act>
int ErrorOf(Act act) {
  try {
    act();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

/// The error itself, to look at its subject and origin.
template <typename Act>
RuntimeError CaughtFrom(Act act) {
  try {
    act();
  } catch (const RuntimeError& error) {
    return error;
  }
  return RuntimeError(0, {});
}
