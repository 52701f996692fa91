/// A date box with its calendar. Typing counts when it is ended, by Enter or by leaving the box; what is picked in the
/// calendar, when that has closed; a date that is stepped to counts at once.
#pragma once

#include <functional>
#include <QDateEdit>

class DateBox : public QDateEdit {
 public:
  explicit DateBox(QWidget* parent = nullptr);

  /// Shows a date without running `Change`; not while another is being typed.
  void ShowDate(QDate date);
  /// The latest date that can be picked or stepped to; a later one that the box shows is cut to it without running
  /// `Change`. What is typed is `Change`'s to judge.
  void SetLatest(QDate latest);
  /// The date changed, by hand or by `setDate`. Errors go to the screen's guard.
  std::function<void()> Change;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Settle();
  /// Whether the calendar is open; its closing will settle the date.
  bool IsPicking();
  /// Shut in while nothing is typed, since the parts of a date, typed one by one, pass through later ones.
  void Limit(QDate latest);

  QDate m_latest;
  QDate m_settled;
  bool m_typing = false;
  bool m_advanced = false;  ///< The last digit completed its part of the date.
};
