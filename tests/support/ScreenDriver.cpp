#include "support/ScreenDriver.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

void Fail(const QString& message) {
  QTest::qFail(qPrintable(message), __FILE__, __LINE__);
}

/// Where a person aims: at the indicator of what has one, else at the middle.
QPoint Aim(const QWidget* control) {
  const auto* button = qobject_cast<const QAbstractButton*>(control);
  const bool radio = qobject_cast<const QRadioButton*>(control) != nullptr;
  if (button == nullptr || (!radio && qobject_cast<const QCheckBox*>(control) == nullptr)) {
    return control->rect().center();
  }
  QStyleOptionButton option;
  option.initFrom(button);
  option.text = button->text();
  const auto indicator = radio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator;
  return button->style()->subElementRect(indicator, &option, button).center();
}

Qt::Key KeyOf(QChar character) {
  if (character == u'\n') {
    return Qt::Key_Return;
  }
  const char16_t upper = character.toUpper().unicode();
  return upper >= 0x20 && upper < 0x7F ? static_cast<Qt::Key>(upper) : Qt::Key_unknown;
}

}  // namespace

ScreenDriver::ScreenDriver(const QString& windowName) : m_window(FindWindow(windowName)) {
  if (m_window == nullptr) {
    qFatal("no window named %s is shown", qPrintable(windowName));
  }
  Activate();
}

ScreenDriver::ScreenDriver(QWidget* window) : m_window(window) {
  Activate();
}

QWidget* ScreenDriver::FindWindow(const QString& windowName) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == windowName && window->isVisible()) {
      return window;
    }
  }
  return nullptr;
}

void ScreenDriver::Missing(const QString& name) const {
  qFatal("%s has no such control: %s", qPrintable(m_window->objectName()), qPrintable(name));
}

QAction* ScreenDriver::Entry(const QString& actionName) const {
  auto* action = m_window->findChild<QAction*>(actionName);
  if (action == nullptr) {
    Missing(actionName);
  }
  return action;
}

QString ScreenDriver::Text(const QString& name) const {
  QWidget* control = Control(name);
  if (const auto* line = qobject_cast<QLineEdit*>(control)) {
    return line->text();
  }
  if (const auto* lines = qobject_cast<QPlainTextEdit*>(control)) {
    return lines->toPlainText();
  }
  if (const auto* combo = qobject_cast<QComboBox*>(control)) {
    return combo->currentText();
  }
  if (const auto* label = qobject_cast<QLabel*>(control)) {
    return label->text();
  }
  if (const auto* button = qobject_cast<QAbstractButton*>(control)) {
    return button->text();
  }
  if (const auto* box = qobject_cast<QGroupBox*>(control)) {
    return box->title();
  }
  Fail(u"%1 shows no text"_s.arg(name));
  return {};
}

QString ScreenDriver::FocusName() const {
  const QWidget* focus = m_window->focusWidget();
  return focus != nullptr ? focus->objectName() : QString();
}

void ScreenDriver::ProcessEvents() {
  // Twice: what the first pass queued (activations, deferred deletes, grid fits) is handled as well.
  for (int i = 0; i < 2; ++i) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void ScreenDriver::Activate() const {
  if (!m_window->isVisible()) {
    qFatal("%s isn't shown", qPrintable(m_window->objectName()));
  }
  // A window manager takes its time, above all on a busy machine; behind a box no window is active.
  if (!m_window->isActiveWindow() && QApplication::activeModalWidget() == nullptr) {
    m_window->activateWindow();
    if (!QTest::qWaitForWindowActive(m_window, 30000)) {
      Fail(u"%1 doesn't become active"_s.arg(m_window->objectName()));
    }
  }
  ProcessEvents();
}

QPoint ScreenDriver::Reach(QWidget* control, const QPoint& position) const {
  const QPoint inWindow = control->mapTo(m_window, position);
  if (!control->isVisible()) {
    Fail(u"%1 isn't visible"_s.arg(control->objectName()));
  } else if (!control->isEnabled()) {
    Fail(u"%1 is disabled"_s.arg(control->objectName()));
  } else {
    QWidget* hit = m_window->childAt(inWindow);
    if (hit != control && !control->isAncestorOf(hit)) {
      Fail(u"%1 is covered by %2"_s.arg(control->objectName(),
                                        hit != nullptr ? hit->objectName() : u"the window's edge"_s));
    }
  }
  return inWindow;
}

void ScreenDriver::Click(const QString& name) const {
  Activate();
  QWidget* control = Control(name);
  QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, Reach(control, Aim(control)));
  ProcessEvents();
}

void ScreenDriver::DoubleClick(const QString& name) const {
  Activate();
  QWidget* control = Control(name);
  QTest::mouseDClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, Reach(control, Aim(control)));
  ProcessEvents();
}

void ScreenDriver::ClickPopup(const QString& menuName, const QString& actionName) const {
  auto* menu = Control<QMenu>(menuName);
  if (!menu->isVisible()) {
    Fail(u"the popup %1 isn't open"_s.arg(menuName));
    return;
  }
  const QPoint position = menu->actionGeometry(Entry(actionName)).center();
  QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
  ProcessEvents();
}

void ScreenDriver::Type(const QString& text) const {
  Activate();
  for (const QChar character : text) {
    const Qt::KeyboardModifiers modifiers = character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    QTest::sendKeyEvent(QTest::Click, m_window->windowHandle(), KeyOf(character), QString(character), modifiers);
    ProcessEvents();
  }
}

void ScreenDriver::PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
  Activate();
  QTest::keyClick(m_window->windowHandle(), key, modifiers);
  ProcessEvents();
}

void ScreenDriver::PressAccessKey(char letter) const {
  PressKey(static_cast<Qt::Key>(QChar::fromLatin1(letter).toUpper().unicode()), Qt::AltModifier);
}

void ScreenDriver::Fill(const QString& name, const QString& text) const {
  if (m_window->focusWidget() != Control(name)) {
    Click(name);
  }
  PressKey(Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) {
    PressKey(Qt::Key_Delete);
  } else {
    Type(text);
  }
}

void ScreenDriver::Paste(const QString& text) const {
  QApplication::clipboard()->setText(text);
  PressKey(Qt::Key_V, Qt::ControlModifier);
}

void ScreenDriver::PickEntry(const QString& comboName, int index) const {
  Activate();
  auto* combo = Control<QComboBox>(comboName);
  Reach(combo, combo->rect().center());
  combo->setFocus(Qt::TabFocusReason);
  ProcessEvents();
  PressKey(Qt::Key_F4);
  QAbstractItemView* list = combo->view();
  if (!list->isVisible() || index < 0 || index >= combo->count()) {
    Fail(u"%1 shows no entry %2"_s.arg(comboName).arg(index));
    combo->hidePopup();
    return;
  }
  const QModelIndex entry = combo->model()->index(index, 0);
  list->scrollTo(entry);
  list->setCurrentIndex(entry);
  ProcessEvents();
  const QPoint position = list->viewport()->mapTo(list->window(), list->visualRect(entry).center());
  QTest::mouseClick(list->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
  ProcessEvents();
}

void ScreenDriver::PickEntry(const QString& comboName, const QString& entry) const {
  PickEntry(comboName, Control<QComboBox>(comboName)->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

QPoint ScreenDriver::CellAt(const QString& gridName, int row, int col) const {
  Activate();
  auto* grid = Control<QTableView>(gridName);
  const QModelIndex cell = grid->model()->index(row - 1, col);
  if (!cell.isValid()) {
    qFatal("%s has no cell at row %d, column %d", qPrintable(gridName), row, col);
  }
  grid->scrollTo(cell);
  ProcessEvents();
  return Reach(grid, grid->viewport()->mapTo(grid, grid->visualRect(cell).center()));
}

void ScreenDriver::SelectRow(const QString& gridName, int row, int col) const {
  const QPoint position = CellAt(gridName, row, col);
  QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
  ProcessEvents();
}

void ScreenDriver::DoubleClickRow(const QString& gridName, int row, int col) const {
  const QPoint position = CellAt(gridName, row, col);
  QTest::mouseDClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
  ProcessEvents();
}

void ScreenDriver::RightPressRow(const QString& gridName, int row, int col) const {
  const QPoint position = CellAt(gridName, row, col);
  QTest::mouseClick(m_window->windowHandle(), Qt::RightButton, Qt::NoModifier, position);
  ProcessEvents();
}

void ScreenDriver::Wheel(const QString& name, int delta) const {
  Activate();
  QWidget* control = Control(name);
  const QPoint position = Reach(control, control->rect().center());
  QWheelEvent event(position, m_window->mapToGlobal(position), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&event);
  qApp->notify(m_window->windowHandle(), &event);
  ProcessEvents();
}

void ScreenDriver::Trigger(const QString& actionName) const {
  Activate();
  QAction* action = Entry(actionName);
  if (!action->isVisible() || !action->isEnabled()) {
    Fail(u"the menu entry %1 is %2"_s.arg(actionName, action->isVisible() ? u"disabled"_s : u"hidden"_s));
    return;
  }
  action->activate(QAction::Trigger);
  ProcessEvents();
}

void ScreenDriver::CloseByUser() const {
  QCloseEvent event;
  QSpontaneKeyEvent::setSpontaneous(&event);
  // Not sent: sending would mark it as the program's own.
  qApp->notify(m_window, &event);
  ProcessEvents();
}

void ScreenDriver::GrabPng(const QString& fileName) const {
  ProcessEvents();
  if (!m_window->grab().save(fileName, "PNG")) {
    Fail(u"the picture %1 could not be written"_s.arg(fileName));
  }
}
