#include "desktop/FocusTracker.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>

namespace {

// Handlers that send the focus round in a circle are stopped after this many steps.
constexpr int StepLimit = 8;

}  // namespace

FocusTracker::FocusTracker(QWidget* window, Guard guard) : m_window(window), m_guard(std::move(guard)) {
  window->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this] { Settle(); });
}

FocusTracker::Hold::~Hold() {
  if (m_tracker != nullptr) {
    --m_tracker->m_holds;
    m_tracker->Settle();
  }
}

void FocusTracker::Keep(Handlers& handlers, QWidget* control, Handler handler) {
  handlers[control].push_back(std::move(handler));
  connect(control, &QObject::destroyed, this, [this, control] {
    m_enter.erase(control);
    m_leave.erase(control);
  });
}

bool FocusTracker::RunAll(const Handlers& handlers, const QWidget* control) {
  const auto found = handlers.find(control);
  if (found == handlers.end()) {
    return true;
  }
  const std::vector<Handler> due = found->second;
  bool whole = true;
  for (const Handler& handler : due) {
    whole = m_guard(handler) && whole;
  }
  return whole;
}

QWidget* FocusTracker::Current() const {
  QWidget* current = m_window->focusWidget();
  const bool menu = qobject_cast<QMenuBar*>(current) != nullptr || qobject_cast<QMenu*>(current) != nullptr;
  return menu ? m_last.data() : current;
}

bool FocusTracker::Step(QWidget* next) {
  const QPointer<FocusTracker> alive(this);
  const QPointer<QWidget> left = m_last;
  m_last = next;
  if (left != nullptr && !RunAll(m_leave, left)) {
    m_outcome.Failed = true;
  }
  if (alive == nullptr) {
    return false;
  }
  QWidget* now = Current();
  m_outcome.Refused = m_outcome.Refused || (left != nullptr && now == left);
  m_last = now;
  if (now != nullptr) {
    RunAll(m_enter, now);
  }
  return alive != nullptr;
}

void FocusTracker::Settle() {
  if (m_settling || m_holds > 0 || !m_window->isVisible()) {
    return;
  }
  m_settling = true;
  for (int steps = 0; steps < StepLimit; ++steps) {
    QWidget* now = Current();
    if (now == m_last) {
      break;
    }
    if (!Step(now)) {
      return;
    }
  }
  m_settling = false;
}

FocusTracker::Outcome FocusTracker::MoveTo(QWidget* control, Qt::FocusReason reason) {
  const int boxesBefore = m_boxes;
  const QPointer<FocusTracker> alive(this);
  const QPointer<QWidget> target(control);
  m_outcome = {};
  Settle();
  if (alive != nullptr && target != nullptr && !m_outcome.Refused) {
    if (!m_window->isActiveWindow()) {
      m_window->activateWindow();
    }
    target->setFocus(reason);
    if (alive != nullptr) {
      Settle();
    }
  }
  if (alive == nullptr) {
    return {true, true, true};
  }
  m_outcome.BoxShown = m_boxes != boxesBefore;
  return m_outcome;
}

bool FocusTracker::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_window) {
    if (event->type() == QEvent::WindowBlocked) {
      ++m_boxes;
    } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
      m_last = nullptr;
    }
  }
  return QObject::eventFilter(watched, event);
}
