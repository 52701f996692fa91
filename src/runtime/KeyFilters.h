/// What may come into a box of text. A filter gets a character's code (Backspace is 8, Enter 13) and answers the code
/// to let through, or 0.
#pragma once

#include <functional>

using KeyFilter = std::function<int(int key)>;

struct KeyFilters {
  KeyFilter Typed;
  KeyFilter Pasted;  ///< Character by character; it shows no message.
};
