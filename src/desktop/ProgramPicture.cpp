#include "desktop/ProgramPicture.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>

namespace {

/// The room that the first screen has for it.
constexpr int Side = 216;
/// The square that all coordinates below are told in.
constexpr qreal Grid = 256;

void DrawGround(QPainter& painter) {
  painter.setPen(QPen(QColor(0xE7, 0xD8, 0xC3), 3));
  painter.setBrush(QColor(0xFD, 0xF6, 0xEC));
  painter.drawRoundedRect(QRectF(8, 8, 240, 240), 40, 40);
}

void DrawSheet(QPainter& painter) {
  const QColor ink(0x35, 0x50, 0x6B);
  painter.setPen(QPen(ink, 4, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
  painter.setBrush(Qt::white);
  painter.drawPolygon(QPolygonF({{84, 34}, {160, 34}, {188, 62}, {188, 180}, {84, 180}}));
  painter.setBrush(QColor(0xDB, 0xE6, 0xF0));
  painter.drawPolygon(QPolygonF({{160, 34}, {160, 62}, {188, 62}}));
  painter.setPen(QPen(ink, 5, Qt::SolidLine, Qt::RoundCap));
  painter.drawLines({QLineF(102, 76, 146, 76), QLineF(102, 94, 170, 94), QLineF(102, 112, 170, 112)});
}

/// Brighter by `share` towards where the light falls.
QColor Peel(qreal share) {
  constexpr QRgb Stops[] = {0xFFE0700C, 0xFFF68B1F, 0xFFFFC46B};
  constexpr qreal Middle = 0.35;
  const bool isOuter = share < Middle;
  const QColor from(Stops[isOuter ? 0 : 1]);
  const QColor to(Stops[isOuter ? 1 : 2]);
  const qreal part = isOuter ? share / Middle : (share - Middle) / (1 - Middle);
  const auto mixed = [part](int a, int b) { return qRound(a + (b - a) * part); };
  return QColor(mixed(from.red(), to.red()), mixed(from.green(), to.green()), mixed(from.blue(), to.blue()));
}

/// Ring upon ring: for a gradient the toolkit would start threads.
void DrawOrange(QPainter& painter, QPointF center, qreal radius) {
  constexpr int Rings = 36;
  const QPointF light = center - QPointF(0.24, 0.36) * radius;
  painter.setPen(Qt::NoPen);
  for (int ring = 0; ring < Rings; ++ring) {
    const qreal share = static_cast<qreal>(ring) / Rings;
    painter.setBrush(Peel(share));
    painter.drawEllipse(center + (light - center) * share, radius * (1 - share), radius * (1 - share));
  }
}

void DrawPores(QPainter& painter) {
  painter.setBrush(QColor(0xB8, 0x55, 0x04, 0x8C));
  for (const QPointF pore : {QPointF(78, 176), QPointF(98, 196), QPointF(108, 174), QPointF(160, 190),
                             QPointF(178, 200), QPointF(184, 178), QPointF(126, 208), QPointF(140, 214)}) {
    painter.drawEllipse(pore, 2, 2);
  }
}

/// From its stalk to its tip, lit on one half; `bend` is how far its two edges swing out.
void DrawLeaf(QPainter& painter, QPointF stalk, QPointF tip, QPointF bend) {
  const QPointF middle = (stalk + tip) / 2;
  QPainterPath whole(stalk);
  whole.quadTo(middle - bend, tip);
  whole.quadTo(middle + bend, stalk);
  painter.setBrush(QColor(0x2F, 0x7D, 0x32));
  painter.drawPath(whole);
  QPainterPath lit(stalk);
  lit.quadTo(middle - bend, tip);
  lit.quadTo(middle + bend * 0.1, stalk);
  painter.setBrush(QColor(0x5F, 0xAF, 0x45));
  painter.drawPath(lit);
}

QPixmap DrawnLogo(qreal ratio) {
  const int pixels = qRound(Side * ratio);
  QPixmap pixmap(pixels, pixels);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(Side / Grid, Side / Grid);
  DrawGround(painter);
  DrawSheet(painter);
  DrawOrange(painter, QPointF(92, 178), 46);
  DrawOrange(painter, QPointF(168, 184), 40);
  DrawOrange(painter, QPointF(131, 204), 30);
  DrawLeaf(painter, QPointF(90, 134), QPointF(130, 110), QPointF(8, 14));
  DrawLeaf(painter, QPointF(166, 146), QPointF(206, 134), QPointF(4, 13));
  DrawPores(painter);
  return pixmap;
}

}  // namespace

QPixmap ProgramPicture() {
  const qreal ratio = qApp->devicePixelRatio();
  const QString name = QStringLiteral("karvex-logo-%1").arg(ratio);
  QPixmap logo;
  if (!QPixmapCache::find(name, &logo)) {
    logo = DrawnLogo(ratio);
    QPixmapCache::insert(name, logo);
  }
  return logo;
}
