#include "desktop/WindowPlacement.h"

#include <QScreen>
#include <QWidget>

namespace {

// The window manager's frame isn't known before the first window shows: room for a title bar and for edges.
constexpr QMargins Frame(8, 40, 8, 8);

}  // namespace

void WindowPlacement::Remember(const QWidget& window) {
  if (!window.isVisible() || window.isMinimized()) {
    return;
  }
  m_maximized = window.isMaximized();
  m_fullScreen = window.isFullScreen();
  if (!m_maximized && !m_fullScreen) {
    m_position = window.pos();
    m_size = window.size();
    m_known = true;
  }
}

QRect WindowPlacement::FirstFrame(const QRect& display) {
  const QSize framed = QSize(DefaultWidth, DefaultHeight).grownBy(Frame).boundedTo(display.size());
  return {display.center() - QRect(QPoint(), framed).center(), framed};
}

void WindowPlacement::Apply(QWidget& window) const {
  if (m_known) {
    window.resize(m_size);
    window.move(m_position);
  } else {
    const QRect framed = FirstFrame(window.screen()->availableGeometry());
    window.resize(framed.marginsRemoved(Frame).size());
    window.move(framed.topLeft());
  }
  Qt::WindowStates states = window.windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized);
  states.setFlag(Qt::WindowMaximized, m_maximized);
  states.setFlag(Qt::WindowFullScreen, m_fullScreen);
  window.setWindowState(states);
}
