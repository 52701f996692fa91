/// What may come into a box of text. A filter gets a character's code (Backspace is 8, Enter 13) and answers the code
/// to let through, or 0.
#pragma once

#include <functional>

struct KeyFilters {
  std::function<int(int key)> Typed;
  std::function<int(int key)> Pasted;  ///< Character by character; it shows no message.
};
