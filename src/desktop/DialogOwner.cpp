#include "desktop/DialogOwner.h"

#include <QApplication>
#include <QMainWindow>

DialogOwner::DialogOwner() : m_window(QApplication::activeWindow()) {
  if (m_window) return;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) {
      m_window = window;
      return;
    }
  }
}

DialogOwner::~DialogOwner() {
  if (m_window != nullptr && m_window->isVisible()) m_window->activateWindow();
}
