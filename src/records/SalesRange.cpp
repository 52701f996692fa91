#include "records/SalesRange.h"

#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Dialogs.h"

using namespace Qt::StringLiterals;

namespace {

enum Picker { Start, End };

constexpr int DaysShown = 30;
constexpr int FirstYear = 2000;

QString InvalidSelection() {
  return u"Your Calendar Selection is Invalid"_s;
}

}  // namespace

void SalesRange::TakeFromPickers() {
  StartDate = ToDayCount(DTPicker1[Start]);
  EndDate = ToDayCount(DTPicker1[End]);
}

SalesDates::SalesDates(SalesRange& range, Dialogs& dialogs, const Clock& clock)
    : m_range(range), m_dialogs(dialogs), m_clock(clock) {}

void SalesDates::Load() {
  const QDate today = m_clock.Today();
  m_range.DTPicker1 = {QDate(today.year(), today.month(), 1), today};
  m_range.TakeFromPickers();
}

void SalesDates::Activate() {
  // Both at once: the range isn't checked between them, so no message comes.
  const QDate today = m_clock.Today();
  m_range.DTPicker1 = {today.addDays(-DaysShown), today};
  m_range.TakeFromPickers();
}

void SalesDates::Pick(int picker, QDate date) {
  Set(picker, date);
}

void SalesDates::Set(int picker, QDate date) {
  QDate& shown = m_range.DTPicker1.at(static_cast<std::size_t>(picker));
  // A picker that shows the date already hasn't changed.
  if (shown == date) return;
  shown = date;
  if (date > m_clock.Today()) {
    m_dialogs.Beep();
    m_dialogs.ShowMessage(InvalidSelection());
    Set(picker, m_clock.Today());
    return;
  }
  (picker == Start ? m_range.StartDate : m_range.EndDate) = ToDayCount(date);
  CheckDateRange();
}

void SalesDates::CheckDateRange() {
  if (m_range.EndDate >= m_range.StartDate) return;
  m_dialogs.ShowMessage(InvalidSelection());
  Set(Start, m_range.DTPicker1[End]);
}

void SalesDates::MonthToDate() {
  const QDate today = m_clock.Today();
  Set(End, today);
  Set(Start, QDate(today.year(), today.month(), 1));
}

void SalesDates::YearToDate() {
  const QDate today = m_clock.Today();
  Set(End, today);
  Set(Start, QDate(today.year(), 1, 1));
}

void SalesDates::Eternity() {
  Set(End, m_clock.Today());
  Set(Start, QDate(FirstYear, 1, 1));
}

void SalesDates::LastMonth() {
  const QDate today = m_clock.Today();
  const bool january = today.month() == 1;
  Set(Start, QDate(today.year() - (january ? 1 : 0), january ? 12 : today.month() - 1, 1));
  // Back day by day: that lands on the last day of the month before, whatever its length.
  while (m_range.DTPicker1[End].month() == today.month()) Set(End, m_range.DTPicker1[End].addDays(-1));
}
