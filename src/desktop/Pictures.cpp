#include "desktop/Pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace {

constexpr int Side = 32;
/// Drawn twice as fine as shown, for screens of high resolution.
constexpr int Ratio = 2;

void DrawNext(QPainter& painter) {
  painter.drawLine(QPointF(9, 16), QPointF(22, 16));
  painter.drawPolyline(QPolygonF({QPointF(16, 9.5), QPointF(22.5, 16), QPointF(16, 22.5)}));
}

void DrawClear(QPainter& painter) {
  painter.drawLine(QPointF(10.5, 10.5), QPointF(21.5, 21.5));
  painter.drawLine(QPointF(21.5, 10.5), QPointF(10.5, 21.5));
}

void DrawReload(QPainter& painter) {
  painter.drawArc(QRectF(9, 9, 14, 14), 50 * 16, 290 * 16);
  painter.drawPolyline(QPolygonF({QPointF(15.5, 10.5), QPointF(20.5, 10.6), QPointF(20.6, 5.5)}));
}

}  // namespace

QPixmap DrawnPicture(Picture picture, const QPalette& palette) {
  QPixmap pixmap(Side * Ratio, Side * Ratio);
  pixmap.setDevicePixelRatio(Ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(palette.color(QPalette::Button));
  painter.setPen(QPen(palette.color(QPalette::Mid), 1));
  painter.drawEllipse(QRectF(1, 1, Side - 2, Side - 2));
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  switch (picture) {
    case Picture::Next:
      DrawNext(painter);
      break;
    case Picture::Clear:
      DrawClear(painter);
      break;
    case Picture::Reload:
      DrawReload(painter);
      break;
  }
  return pixmap;
}

QPixmap LogoPicture() {
  // The drawing lies in a static library: nothing else would link it in.
  Q_INIT_RESOURCE(pictures);
  return QPixmap(QStringLiteral(":/pictures/logo.png"));
}
