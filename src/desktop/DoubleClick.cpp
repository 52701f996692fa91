#include "desktop/DoubleClick.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>

#include "desktop/Screen.h"

namespace {

class DoubleClickFilter final : public QObject {
 public:
  DoubleClickFilter(QWidget* box, std::function<void()> handler)
      : QObject(box), m_box(box), m_handler(std::move(handler)) {
    box->installEventFilter(this);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(box)) {
      // The mouse meets the viewport, the keys meet the box.
      area->viewport()->installEventFilter(this);
    }
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    const bool byMouse =
        event->type() == QEvent::MouseButtonDblClick && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    const bool byKey = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2 &&
                       static_cast<QKeyEvent*>(event)->modifiers() == Qt::NoModifier;
    if (!byMouse && !byKey) {
      return false;
    }
    RunInScreen(m_box, m_handler);
    return true;
  }

 private:
  QWidget* m_box;
  std::function<void()> m_handler;
};

}  // namespace

void OnDoubleClick(QWidget* box, std::function<void()> handler) {
  new DoubleClickFilter(box, std::move(handler));
}
