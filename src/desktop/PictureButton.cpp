#include "desktop/PictureButton.h"

#include <QPainter>

#include "desktop/Style.h"

namespace {
// Around the picture, for the sign of the focus.
constexpr int Ring = 2;
}  // namespace

PictureButton::PictureButton(QWidget* parent) : QPushButton(parent) {
  setCursor(Qt::PointingHandCursor);
}

void PictureButton::SetPicture(const QPixmap& picture) {
  m_picture = picture;
  updateGeometry();
  update();
}

QSize PictureButton::sizeHint() const {
  return m_picture.deviceIndependentSize().toSize() + QSize(2 * Ring, 2 * Ring);
}

QSize PictureButton::minimumSizeHint() const {
  return sizeHint().boundedTo(QSize(3 * Spacing::Large, 3 * Spacing::Large));
}

void PictureButton::paintEvent(QPaintEvent* event) {
  Q_UNUSED(event)
  QPainter painter(this);
  const QRect room = rect().adjusted(Ring, Ring, -Ring, -Ring);
  if (!m_picture.isNull()) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setOpacity(isEnabled() ? (isDown() ? 0.8 : 1.0) : 0.4);
    QRect target(QPoint(), m_picture.deviceIndependentSize().toSize().scaled(room.size(), Qt::KeepAspectRatio));
    target.moveCenter(room.center());
    // To scale a picture, even by nothing, the toolkit starts threads.
    if (target.size() == m_picture.deviceIndependentSize().toSize()) {
      painter.drawPixmap(target.topLeft(), m_picture);
    } else {
      painter.drawPixmap(target, m_picture);
    }
    painter.setOpacity(1.0);
  }
  if (hasFocus()) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(AccentColor(palette()), 2));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 3, 3);
  }
}
