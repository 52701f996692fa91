#include "desktop/DateBox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include "desktop/Screen.h"

DateBox::DateBox(QWidget* parent) : QDateEdit(parent), m_settled(date()) {
  setCalendarPopup(true);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_typing = true; });
  connect(this, &QDateEdit::editingFinished, this, [this] { Settle(); });
  connect(this, &QDateEdit::dateChanged, this, [this] {
    if (!m_typing && !IsPicking()) Settle();
  });
}

void DateBox::ShowDate(QDate date) {
  if (m_typing) return;
  const QSignalBlocker quiet(this);
  setDate(date);
  m_settled = date;
}

bool DateBox::IsPicking() {
  QWidget* calendar = QApplication::activePopupWidget();
  if (calendar == nullptr || calendar->parentWidget() != this) return false;
  // The arrow keys pass over dates that aren't meant; and a box over an open calendar couldn't be reached.
  calendar->installEventFilter(this);
  return true;
}

bool DateBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide && watched->parent() == this) {
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (!m_typing) Settle();
        },
        Qt::QueuedConnection);
  }
  return QDateEdit::eventFilter(watched, event);
}

void DateBox::SetLatest(QDate latest) {
  m_latest = latest;
  if (!m_typing) Limit(latest);
}

void DateBox::Limit(QDate latest) {
  if (!latest.isValid() || latest == maximumDate()) return;
  const QSignalBlocker quiet(this);
  setMaximumDate(latest);
  if (!m_typing) m_settled = date();
}

void DateBox::Settle() {
  m_typing = false;
  if (date() != m_settled) {
    m_settled = date();
    RunInScreen(this, Change);
  }
  Limit(m_latest);
}

void DateBox::keyPressEvent(QKeyEvent* event) {
  if (m_latest.isValid() && !event->text().isEmpty()) {
    const QSignalBlocker quiet(this);
    clearMaximumDate();
  }
  // A month or day that its digits have completed moves on by itself; the separator typed behind it moves no further.
  const bool separator = event->text() == u"/";
  if (separator && m_advanced) {
    m_advanced = false;
    event->accept();
    return;
  }
  const Section part = currentSection();
  QDateEdit::keyPressEvent(event);
  m_advanced = !event->text().isEmpty() && event->text().at(0).isDigit() && currentSection() != part;
}
