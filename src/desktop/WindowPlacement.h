/// Where the last screen stood, so that the next one opens there.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

class WindowPlacement {
 public:
  /// Takes note of a visible window; minimized ones are left out.
  void Remember(const QWidget& window);
  /// Puts a window that is about to be shown there; the first one gets the default size in the middle of its display,
  /// or less, so that its frame stands on the display as well.
  void Apply(QWidget& window) const;

  /// The place of the first window, its frame counted in, on a display less the system's panels.
  static QRect FirstFrame(const QRect& display);

  static constexpr int DefaultWidth = 1180;
  static constexpr int DefaultHeight = 760;

 private:
  bool m_known = false;
  bool m_maximized = false;
  bool m_fullScreen = false;
  QPoint m_position;
  QSize m_size;
};
