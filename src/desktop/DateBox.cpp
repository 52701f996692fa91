#include "desktop/DateBox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include "desktop/Screen.h"

DateBox::DateBox(QWidget* parent) : QDateEdit(parent), m_settled(date()) {
  setCalendarPopup(true);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_typing = true; });
  connect(this, &QDateEdit::editingFinished, this, [this] { Settle(); });
  connect(this, &QDateEdit::dateChanged, this, [this] {
    if (!m_typing) Settle();
  });
}

void DateBox::ShowDate(QDate date) {
  if (m_typing) return;
  const QSignalBlocker quiet(this);
  setDate(date);
  m_settled = date;
}

void DateBox::Settle() {
  m_typing = false;
  if (date() == m_settled) return;
  m_settled = date();
  RunInScreen(this, Change);
}

void DateBox::keyPressEvent(QKeyEvent* event) {
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
