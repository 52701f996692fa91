#include "desktop/WindowPlacement.h"

#include <QScreen>
#include <QWidget>

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

void WindowPlacement::Apply(QWidget& window) const {
  if (m_known) {
    window.resize(m_size);
    window.move(m_position);
  } else {
    const QRect display = window.screen()->availableGeometry();
    window.resize(QSize(DefaultWidth, DefaultHeight).boundedTo(display.size()));
    window.move(display.center() - window.rect().center());
  }
  Qt::WindowStates states = window.windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized);
  states.setFlag(Qt::WindowMaximized, m_maximized);
  states.setFlag(Qt::WindowFullScreen, m_fullScreen);
  window.setWindowState(states);
}
