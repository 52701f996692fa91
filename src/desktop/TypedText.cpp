#include "desktop/TypedText.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScopedValueRollback>

#include "desktop/CharacterCode.h"

using namespace Qt::StringLiterals;

namespace {

QAction* PasteEntry(const QMenu& menu) {
  const QString shortcut = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
  for (QAction* action : menu.actions()) {
    if (action->objectName() == "edit-paste"_L1 || action->text().endsWith(u'\t' + shortcut)) {
      return action;
    }
  }
  return nullptr;
}

bool IsMiddleRelease(const QEvent& event) {
  return event.type() == QEvent::MouseButtonRelease &&
         static_cast<const QMouseEvent&>(event).button() == Qt::MiddleButton &&
         QApplication::clipboard()->supportsSelection();
}

}  // namespace

TypedText::TypedText(QWidget* box, FocusTracker& focus, FocusTracker::Guard guard)
    : QObject(box), m_box(box), m_focus(focus), m_guard(std::move(guard)) {
  box->installEventFilter(this);
  // Dropped texts would come in past the filter.
  if (QLineEdit* line = Line()) {
    if (line != box) {
      line->installEventFilter(this);
    }
    line->setAcceptDrops(false);
  }
  if (QPlainTextEdit* lines = Lines()) {
    lines->viewport()->installEventFilter(this);
    lines->setAcceptDrops(false);
    lines->viewport()->setAcceptDrops(false);
  }
}

void TypedText::SetFilter(Filter key, Filter paste) {
  m_paste = paste ? std::move(paste) : key;
  m_key = std::move(key);
}

QLineEdit* TypedText::Line() const {
  if (auto* line = qobject_cast<QLineEdit*>(m_box)) {
    return line;
  }
  const auto* combo = qobject_cast<QComboBox*>(m_box);
  return combo != nullptr ? combo->lineEdit() : nullptr;
}

QPlainTextEdit* TypedText::Lines() const {
  return qobject_cast<QPlainTextEdit*>(m_box);
}

bool TypedText::IsClosed() const {
  if (const QLineEdit* line = Line()) {
    return line->isReadOnly();
  }
  const QPlainTextEdit* lines = Lines();
  return lines != nullptr && lines->isReadOnly();
}

int TypedText::Room() const {
  if (m_limit < 0) {
    return std::numeric_limits<int>::max();
  }
  qsizetype held = 0;
  if (const QLineEdit* line = Line()) {
    held = line->text().size() - line->selectedText().size();
  } else if (const QPlainTextEdit* lines = Lines()) {
    held = lines->toPlainText().size() - lines->textCursor().selectedText().size();
  }
  return std::max(0, m_limit - static_cast<int>(held));
}

void TypedText::Insert(const QString& text) {
  if (QLineEdit* line = Line()) {
    line->insert(text);
  } else if (QPlainTextEdit* lines = Lines()) {
    lines->insertPlainText(text);
  }
}

int TypedText::Pass(const Filter& filter, int key) {
  if (!filter) {
    return key;
  }
  int answer = 0;
  const FocusTracker::Hold hold(m_focus);
  m_guard([&] { answer = filter(key); });
  return answer;
}

void TypedText::Feed(const QString& text, const Filter& filter) {
  const QPointer<TypedText> alive(this);
  for (const QChar character : text) {
    const int answer = Pass(filter, character.unicode());
    if (alive == nullptr) {
      return;
    }
    if (answer != 0 && Room() > 0) {
      Insert(QString(QChar(static_cast<char16_t>(answer))));
    }
    if (alive == nullptr) {
      return;
    }
  }
}

void TypedText::Paste(const QString& text) {
  if (IsClosed()) {
    return;
  }
  QString flat = text;
  flat.remove(u'\r');
  if (Lines() == nullptr) {
    flat.replace(u'\n', u' ');
  }
  if (m_paste) {
    Feed(flat, m_paste);
  } else {
    Insert(flat.left(Room()));
  }
}

bool TypedText::KeyPress(QKeyEvent& event) {
  if (IsClosed()) {
    return false;
  }
  const bool holdsText = Line() != nullptr || Lines() != nullptr;
  if (holdsText && event.matches(QKeySequence::Paste)) {
    Paste(QApplication::clipboard()->text());
    return true;
  }
  const std::optional<int> code = CharacterCode(event);
  if (!code) {
    return false;
  }
  const QPointer<TypedText> alive(this);
  const int answer = Pass(m_key, *code);
  if (alive == nullptr || answer == 0) {
    // Enter that the box has no use for is the window's.
    event.setAccepted(*code != 13);
    return true;
  }
  const bool adds = answer >= 32 || (answer == 13 && Lines() != nullptr);
  if (holdsText && adds && Room() == 0) {
    return true;
  }
  if (answer == *code) {
    return false;
  }
  if (adds) {
    Insert(QString(QChar(static_cast<char16_t>(answer))));
  }
  return true;
}

bool TypedText::InputMethod(QInputMethodEvent& event) {
  if (m_passing || IsClosed() || event.commitString().isEmpty()) {
    return false;
  }
  const QString typed = event.commitString();
  const QPointer<TypedText> alive(this);
  if (event.replacementLength() != 0 || !event.preeditString().isEmpty()) {
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    rest.setCommitString(QString(), event.replacementStart(), event.replacementLength());
    const QScopedValueRollback<bool> passing(m_passing, true);
    QCoreApplication::sendEvent(m_box, &rest);
  } else {
    // Ends the composition that the committed text comes from.
    QInputMethodEvent end;
    const QScopedValueRollback<bool> passing(m_passing, true);
    QCoreApplication::sendEvent(m_box, &end);
  }
  Feed(typed, m_key);
  return true;
}

bool TypedText::ContextMenu(const QContextMenuEvent& event) {
  QMenu* menu = Line() != nullptr ? Line()->createStandardContextMenu() : Lines()->createStandardContextMenu();
  if (QAction* paste = PasteEntry(*menu)) {
    paste->disconnect();
    connect(paste, &QAction::triggered, this, [this] { Paste(QApplication::clipboard()->text()); });
  }
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(event.globalPos());
  return true;
}

bool TypedText::eventFilter(QObject* watched, QEvent* event) {
  const bool holdsText = Line() != nullptr || Lines() != nullptr;
  if (watched == m_box && event->type() == QEvent::KeyPress) {
    return KeyPress(*static_cast<QKeyEvent*>(event));
  }
  if (watched == m_box && holdsText && event->type() == QEvent::InputMethod) {
    return InputMethod(*static_cast<QInputMethodEvent*>(event));
  }
  if (holdsText && event->type() == QEvent::ContextMenu) {
    return ContextMenu(*static_cast<QContextMenuEvent*>(event));
  }
  if (holdsText && IsMiddleRelease(*event)) {
    Paste(QApplication::clipboard()->text(QClipboard::Selection));
    return true;
  }
  return false;
}
