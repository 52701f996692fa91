/// The window that a box or dialog belongs to, and that is active again once it has closed.
#pragma once

#include <QPointer>
#include <QWidget>

/// A local variable around the dialog: its end makes the owner active again.
class DialogOwner {
 public:
  /// The active window. After a box has closed none may be active for a while; then it is the screen in sight.
  DialogOwner();
  ~DialogOwner();
  DialogOwner(const DialogOwner&) = delete;
  DialogOwner& operator=(const DialogOwner&) = delete;

  QWidget* Window() const { return m_window; }

 private:
  QPointer<QWidget> m_window;
};
