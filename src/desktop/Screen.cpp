#include "desktop/Screen.h"

#include <map>
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <vector>

#include "desktop/ButtonPress.h"
#include "desktop/FocusTracker.h"
#include "desktop/TypedText.h"

struct Screen::State {
  explicit State(Screen* screen)
      : focus(screen, [screen](const FocusTracker::Handler& handler) { return screen->Run(handler); }), press(focus) {}

  FocusTracker focus;
  ButtonPress press;
  std::map<QWidget*, QPointer<TypedText>> typed;
  std::vector<QPointer<QWidget>> pendingFocus;
  QPointer<QAbstractButton> enterButton;
  QPointer<QAbstractButton> escapeButton;
};

Screen::Screen(const QString& name, ScreenHost& host) : m_state(std::make_unique<State>(this)), m_host(host) {
  setObjectName(name);
}

Screen::~Screen() = default;

bool Screen::Run(const std::function<void()>& handler) {
  // No exception may cross the toolkit's event loop: its libraries can't be unwound.
  try {
    handler();
    return true;
  } catch (const RuntimeError& error) {
    m_host.UnhandledError(error);
  } catch (const std::exception& error) {
    m_host.UnhandledError(RuntimeError(0, QString(), QString::fromLocal8Bit(error.what())));
  }
  return false;
}

void Screen::OnClick(QAbstractButton* button, std::function<void()> handler, WhenLeaveRefused rule) {
  m_state->press.Watch(button, rule == WhenLeaveRefused::Dropped);
  connect(button, &QAbstractButton::clicked, this, [this, handler = std::move(handler)] { Run(handler); });
}

void Screen::PressButton(QAbstractButton* button) {
  const QPointer<Screen> alive(this);
  const QPointer<QAbstractButton> pressed(button);
  const QPointer<QWidget> from(focusWidget());
  const int boxes = m_state->focus.BoxesShown();
  m_state->press.Press(button);
  if (alive == nullptr || from == nullptr || pressed == nullptr || !isVisible()) {
    return;
  }
  if (m_state->focus.BoxesShown() != boxes && focusWidget() == pressed) {
    SetFocusTo(from);
    if (auto* line = qobject_cast<QLineEdit*>(from.data())) line->selectAll();
  }
}

void Screen::SetEnterButton(QAbstractButton* button) {
  m_state->enterButton = button;
}

void Screen::SetEscapeButton(QAbstractButton* button) {
  m_state->escapeButton = button;
}

void Screen::keyPressEvent(QKeyEvent* event) {
  QAbstractButton* button = nullptr;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    button = m_state->enterButton;
  } else if (event->key() == Qt::Key_Escape) {
    button = m_state->escapeButton;
  }
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && !event->isAutoRepeat();
  if (button != nullptr && plain && button->isVisible()) {
    PressButton(button);
    return;
  }
  QMainWindow::keyPressEvent(event);
}

bool Screen::event(QEvent* event) {
  if (event->type() == QEvent::Polish) {
    LeaveRoomForMenuBar();
    // The Tab key goes from box to box, also out of boxes of several lines.
    for (QPlainTextEdit* lines : findChildren<QPlainTextEdit*>()) {
      lines->setTabChangesFocus(true);
    }
    // A box of one line holds one line, whatever is pasted: in a file a line break would make two rows of it.
    for (QLineEdit* line : findChildren<QLineEdit*>()) {
      auto* combo = qobject_cast<QComboBox*>(line->parentWidget());
      const bool isPart = qobject_cast<QAbstractSpinBox*>(line->parentWidget()) != nullptr;
      if (!isPart) Typed(combo != nullptr ? static_cast<QWidget*>(combo) : line);
    }
  }
  return QMainWindow::event(event);
}

void Screen::LeaveRoomForMenuBar() {
  const bool isTitled = findChild<QLabel*>(QStringLiteral("lblHeading")) != nullptr;
  if (menuWidget() != nullptr || !isTitled) return;
  QMenuBar bar;
  bar.addMenu(objectName());
  setContentsMargins(0, bar.sizeHint().height(), 0, 0);
}

void Screen::OnEnter(QWidget* control, std::function<void()> handler) {
  m_state->focus.OnEnter(control, std::move(handler));
}

void Screen::OnLeave(QWidget* control, std::function<void()> handler) {
  m_state->focus.OnLeave(control, std::move(handler));
}

TypedText& Screen::Typed(QWidget* box) {
  QPointer<TypedText>& typed = m_state->typed[box];
  if (typed == nullptr) {
    typed = new TypedText(box, m_state->focus, [this](const std::function<void()>& filter) { return Run(filter); });
  }
  return *typed;
}

void Screen::FilterKeys(QWidget* box, KeyFilter filter, KeyFilter pasteFilter) {
  Typed(box).SetFilter(std::move(filter), std::move(pasteFilter));
}

void Screen::SetTypingLimit(QWidget* box, int characters) {
  Typed(box).SetLimit(characters);
}

void Screen::SetFocusTo(QWidget* control) {
  if (control == nullptr) {
    return;
  }
  if (!isVisible()) {
    m_state->pendingFocus.emplace_back(control);
    return;
  }
  if (control->isVisible() && control->isEnabled()) {
    control->setFocus(Qt::OtherFocusReason);
    m_state->focus.Settle();
  }
}

void Screen::ApplyPendingFocus() {
  const std::vector<QPointer<QWidget>> pending = std::exchange(m_state->pendingFocus, {});
  for (auto control = pending.rbegin(); control != pending.rend(); ++control) {
    if (*control != nullptr && (*control)->isVisible() && (*control)->isEnabled()) {
      SetFocusTo(*control);
      return;
    }
  }
}

void Screen::setVisible(bool visible) {
  if (visible && !isVisible()) {
    m_host.Placement().Apply(*this);
  } else if (!visible) {
    m_host.Placement().Remember(*this);
  }
  QMainWindow::setVisible(visible);
  if (visible) {
    ApplyPendingFocus();
  }
}

void Screen::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  m_host.Placement().Remember(*this);
}

void Screen::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  m_host.Placement().Remember(*this);
}

void Screen::closeEvent(QCloseEvent* event) {
  if (!event->spontaneous()) {
    QMainWindow::closeEvent(event);
    return;
  }
  // What closes the windows is the program's one way out, never the toolkit.
  event->ignore();
  if (Run([this] { BeforeUserClose(); })) {
    Run([this] { m_host.UserClosed(); });
  }
}

void RunInScreen(QWidget* control, const std::function<void()>& callback) {
  if (!callback) {
    return;
  }
  if (auto* screen = dynamic_cast<Screen*>(control->window())) {
    screen->Run(callback);
  } else {
    callback();
  }
}
