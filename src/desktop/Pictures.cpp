#include "desktop/Pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include "desktop/Style.h"

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

/// A receiver, held aslant.
void DrawTelephone(QPainter& painter) {
  painter.save();
  painter.translate(Side / 2, Side / 2);
  painter.rotate(-135);
  QPainterPath grip(QPointF(-6.5, -2.5));
  grip.cubicTo(-4, -5.5, 4, -5.5, 6.5, -2.5);
  QPen pen = painter.pen();
  pen.setWidthF(3);
  painter.setPen(pen);
  painter.drawPath(grip);
  painter.setBrush(pen.color());
  painter.setPen(Qt::NoPen);
  for (const qreal left : {-9.0, 4.0}) painter.drawRoundedRect(QRectF(left, -3, 5, 6), 1.5, 1.5);
  painter.restore();
}

}  // namespace

QPixmap DrawnPicture(Picture picture, const QPalette& palette) {
  QPixmap pixmap(Side * Ratio, Side * Ratio);
  pixmap.setDevicePixelRatio(Ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(palette.color(QPalette::Button));
  painter.setPen(QPen(EdgeColor(palette), 1));
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
    case Picture::Telephone:
      DrawTelephone(painter);
      break;
  }
  return pixmap;
}
