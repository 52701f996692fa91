/// What a button does before its click: it takes the focus, so that the box that was left settles first, whether it is
/// pressed by the mouse, by its access key, by the space bar or by Enter.
#pragma once

#include <QObject>
#include <set>

#include "desktop/FocusTracker.h"

class QAbstractButton;
class QEvent;

class ButtonPress : public QObject {
 public:
  explicit ButtonPress(FocusTracker& focus) : m_focus(focus) {}

  /// `dropWhenRefused`: no click where the box that was left takes the focus back, or where its leaving fails.
  void Watch(QAbstractButton* button, bool dropWhenRefused);

  /// Runs the button as its access key does. Answers whether it could be run at all.
  bool Press(QAbstractButton* button);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// The button took the focus, or failed to: whether its press is over with that, and whether a click is still due.
  struct Verdict {
    bool Swallow = false;
    bool Click = false;
  };
  Verdict TakeFocus(QAbstractButton* button, Qt::FocusReason reason);
  bool MousePress(QAbstractButton* button, const QPoint& position);

  FocusTracker& m_focus;
  std::set<const QObject*> m_dropping;
};
