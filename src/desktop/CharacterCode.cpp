#include "desktop/CharacterCode.h"

#include <QKeyEvent>

namespace {

bool IsChord(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  if (modifiers.testFlag(Qt::MetaModifier)) {
    return true;
  }
  const bool control = modifiers.testFlag(Qt::ControlModifier);
  const bool alt = modifiers.testFlag(Qt::AltModifier);
  // Both together are how some keyboards report AltGr, which types characters.
  return control != alt;
}

}  // namespace

std::optional<int> CharacterCode(const QKeyEvent& event) {
  if (IsChord(event)) {
    return std::nullopt;
  }
  switch (event.key()) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    default:
      break;
  }
  const QString text = event.text();
  if (text.isEmpty() || !text.front().isPrint()) {
    return std::nullopt;
  }
  return text.front().unicode();
}
