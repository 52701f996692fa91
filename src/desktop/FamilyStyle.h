/// Fusion with the spacing of this program's screens and the looks that their controls name.
#pragma once

#include <QProxyStyle>

class QStyleOptionGroupBox;

class FamilyStyle : public QProxyStyle {
 public:
  FamilyStyle();
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returnData) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  using QProxyStyle::polish;
  void polish(QWidget* widget) override;

 protected:
  /// A look that is named after its control was polished: a form names it late, and a tab's first page is early.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void DrawGroupEdge(QPainter* painter, const QStyleOption& option, const QWidget* widget) const;
  void DrawGroup(QPainter* painter, const QStyleOptionGroupBox& group, const QWidget* widget) const;
};
