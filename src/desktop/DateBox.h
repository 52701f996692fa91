/// A date box with its calendar. Typing counts when it is ended, by Enter or by leaving the box; a date that is picked
/// or stepped to counts at once.
#pragma once

#include <functional>
#include <QDateEdit>

class DateBox : public QDateEdit {
 public:
  explicit DateBox(QWidget* parent = nullptr);

  /// Shows a date without running `Change`; not while another is being typed.
  void ShowDate(QDate date);
  /// The date changed, by hand or by `setDate`. Errors go to the screen's guard.
  std::function<void()> Change;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Settle();

  QDate m_settled;
  bool m_typing = false;
  bool m_advanced = false;  ///< The last digit completed its part of the date.
};
