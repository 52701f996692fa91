/// Settles the boxes of one window: when the focus goes from one control to another, the leave handler of the first
/// runs, then the enter handler of the control that has the focus after that.
#pragma once

#include <functional>
#include <map>
#include <QObject>
#include <QPointer>
#include <vector>

class QWidget;

/// It compares the window's own focus control with the one it last saw, so that a box, a menu or another program that
/// takes the focus for a while is no leaving. Hiding the window forgets the control without leaving it.
class FocusTracker : public QObject {
 public:
  using Handler = std::function<void()>;
  /// Runs a handler and answers whether it ran to its end.
  using Guard = std::function<bool(const Handler&)>;

  FocusTracker(QWidget* window, Guard guard);

  void OnEnter(QWidget* control, Handler handler) { Keep(m_enter, control, std::move(handler)); }
  void OnLeave(QWidget* control, Handler handler) { Keep(m_leave, control, std::move(handler)); }

  /// What settling led to.
  struct Outcome {
    bool Refused = false;   ///< A leave handler took the focus back to its box.
    bool Failed = false;    ///< A leave handler ended with an error.
    bool BoxShown = false;  ///< A message box or dialog stood over the window meanwhile.
  };
  /// Gives the focus to the control, on an inactive window too, and settles what was left for it.
  Outcome MoveTo(QWidget* control, Qt::FocusReason reason);
  /// How many message boxes and dialogs have stood over the window so far.
  int BoxesShown() const { return m_boxes; }
  /// Runs what is due now. Does nothing while a handler runs: what that handler leaves is settled after it.
  void Settle();

  /// While one lives nothing is settled: for key filters, whose boxes set off no leaving.
  class Hold {
   public:
    explicit Hold(FocusTracker& tracker) : m_tracker(&tracker) { ++tracker.m_holds; }
    ~Hold();
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    QPointer<FocusTracker> m_tracker;
  };

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Handlers = std::map<const QWidget*, std::vector<Handler>>;
  void Keep(Handlers& handlers, QWidget* control, Handler handler);
  bool RunAll(const Handlers& handlers, const QWidget* control);
  QWidget* Current() const;
  /// One step from a control to the next; false when the tracker died in it.
  bool Step(QWidget* next);

  QWidget* m_window;
  Guard m_guard;
  Handlers m_enter;
  Handlers m_leave;
  QPointer<QWidget> m_last;
  Outcome m_outcome;
  int m_boxes = 0;
  int m_holds = 0;
  bool m_settling = false;
};
