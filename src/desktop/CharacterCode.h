/// Which character a key press types, as the key filters of the screens see it.
#pragma once

#include <optional>

class QKeyEvent;

/// The code of the character: Backspace is 8, Enter 13. Nothing for chords and for keys that only edit or move.
std::optional<int> CharacterCode(const QKeyEvent& event);
