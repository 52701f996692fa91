#include "desktop/ButtonPress.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRadioButton>
#include <QScrollArea>
#include <QShortcutEvent>
#include <QStyle>
#include <QStyleOptionButton>

namespace {

/// Radio buttons and check boxes answer to a press on their indicator and text only, the others everywhere.
bool Hits(const QAbstractButton* button, const QPoint& position) {
  const bool radio = qobject_cast<const QRadioButton*>(button) != nullptr;
  if (!radio && qobject_cast<const QCheckBox*>(button) == nullptr) {
    return button->rect().contains(position);
  }
  QStyleOptionButton option;
  option.initFrom(button);
  option.text = button->text();
  option.icon = button->icon();
  option.iconSize = button->iconSize();
  const auto area = radio ? QStyle::SE_RadioButtonClickRect : QStyle::SE_CheckBoxClickRect;
  return button->style()->subElementRect(area, &option, button).contains(position);
}

void ClickIfPossible(const QPointer<QAbstractButton>& button) {
  if (button != nullptr && button->isVisible()) {
    button->click();
  }
}

/// A key press that runs the button at once; the space bar is left to the button, which shows itself pressed.
bool IsEnter(const QKeyEvent& event) {
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  return enter && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && !event.isAutoRepeat();
}

}  // namespace

void ButtonPress::Watch(QAbstractButton* button, bool dropWhenRefused) {
  if (dropWhenRefused) {
    if (m_dropping.insert(button).second) {
      // The address may become another button's.
      connect(button, &QObject::destroyed, this, [this](QObject* gone) { m_dropping.erase(gone); });
    }
  } else {
    m_dropping.erase(button);
  }
  // The filter gives the focus on a press; were it the toolkit's own click focus, the leaving would be over unseen.
  button->setFocusPolicy(Qt::TabFocus);
  for (QWidget* parent = button->parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
    if (qobject_cast<QScrollArea*>(parent) != nullptr) {
      parent->setFocusPolicy(Qt::NoFocus);
    }
  }
  button->removeEventFilter(this);
  button->installEventFilter(this);
}

ButtonPress::Verdict ButtonPress::TakeFocus(QAbstractButton* button, Qt::FocusReason reason) {
  const QPointer<QAbstractButton> alive(button);
  const bool dropWhenRefused = m_dropping.count(button) > 0;
  const FocusTracker::Outcome outcome = m_focus.MoveTo(button, reason);
  if (alive == nullptr) {
    return {true, false};
  }
  if (dropWhenRefused && (outcome.Refused || outcome.Failed)) {
    return {true, false};
  }
  // The box took the release of this press with it.
  return {outcome.BoxShown, outcome.BoxShown};
}

bool ButtonPress::MousePress(QAbstractButton* button, const QPoint& position) {
  if (!button->isEnabled() || !Hits(button, position)) {
    return false;
  }
  const QPointer<QAbstractButton> alive(button);
  const Verdict verdict = TakeFocus(button, Qt::MouseFocusReason);
  if (verdict.Click) {
    ClickIfPossible(alive);
  }
  return verdict.Swallow;
}

bool ButtonPress::Press(QAbstractButton* button) {
  if (!button->isEnabled()) {
    return false;
  }
  const QPointer<QAbstractButton> alive(button);
  const Verdict verdict = TakeFocus(button, Qt::ShortcutFocusReason);
  if (verdict.Click || !verdict.Swallow) {
    ClickIfPossible(alive);
  }
  return true;
}

bool ButtonPress::eventFilter(QObject* watched, QEvent* event) {
  auto* button = qobject_cast<QAbstractButton*>(watched);
  if (button == nullptr) {
    return false;
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      return mouse->button() == Qt::LeftButton && MousePress(button, mouse->position().toPoint());
    }
    case QEvent::Shortcut:
      // A letter that two buttons share only moves the focus between them.
      return !static_cast<QShortcutEvent*>(event)->isAmbiguous() && Press(button);
    case QEvent::KeyPress:
      if (!button->isCheckable() && IsEnter(*static_cast<QKeyEvent*>(event))) {
        return Press(button);
      }
      return false;
    default:
      return false;
  }
}
