/// The two dates of the item sales report, and the ways to set them.
#pragma once

#include <array>
#include <QDate>

class Clock;
class Dialogs;

struct SalesRange {
  std::array<QDate, 2> DTPicker1;  ///< Start and end, as the pickers show them.
  double StartDate = 0;            ///< As records hold a date.
  double EndDate = 0;

  void TakeFromPickers();
};

/// Sets the pickers as their change handler allows: a date later than today becomes today, and a start behind the end
/// becomes the end, each with a message.
class SalesDates {
 public:
  SalesDates(SalesRange& range, Dialogs& dialogs, const Clock& clock);

  /// At start: the current month up to today.
  void Load();
  /// At each showing: the last 30 days.
  void Activate();
  /// The user's pick, 0 for the start and 1 for the end.
  void Pick(int picker, QDate date);

  // The presets.
  void MonthToDate();
  void YearToDate();
  void Eternity();   ///< From 1 January 2000.
  void LastMonth();  ///< From the month to date.

 private:
  void Set(int picker, QDate date);
  void CheckDateRange();

  SalesRange& m_range;
  Dialogs& m_dialogs;
  const Clock& m_clock;
};
