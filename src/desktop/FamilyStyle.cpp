#include "desktop/FamilyStyle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QStyleOption>
#include <QVariant>

#include "desktop/Style.h"

using namespace Qt::StringLiterals;

namespace {

// As high as a button or a box is at least.
constexpr int Control = 28;
constexpr int CellMargin = 5;

bool IsWindowGround(const QWidget* widget) {
  if (widget == nullptr || widget->isWindow()) {
    return true;
  }
  const auto* window = qobject_cast<const QMainWindow*>(widget->parentWidget());
  return window != nullptr && window->centralWidget() == widget;
}

/// The edge of a box or an indicator, drawn over the toolkit's own, which is too faint on either palette.
void DrawEdge(QPainter* painter, const QStyleOption& option, bool round) {
  const bool focus = option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Enabled);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen(focus ? AccentColor(option.palette) : EdgeColor(option.palette), focus ? 2 : 1));
  const qreal inset = focus ? 1.0 : 0.5;
  const QRectF edge = QRectF(option.rect).adjusted(inset, inset, -inset, -inset);
  if (round) {
    painter->drawEllipse(edge);
  } else {
    painter->drawRoundedRect(edge, 2, 2);
  }
  painter->restore();
}

/// A button that stays pressed shows it by a bar as well as by its ground.
void DrawPressedBar(QPainter* painter, const QStyleOption& option) {
  const QRect bar(option.rect.left() + 3, option.rect.bottom() - 3, option.rect.width() - 6, 3);
  painter->fillRect(bar, AccentColor(option.palette));
}

void LookOfLabel(QLabel* label, QStringView look) {
  // From the program's own font, so that a second polish changes nothing.
  QFont font = QApplication::font(label);
  if (look == "title"_L1) {
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
  } else if (look == "heading"_L1) {
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
  } else if (look == "amount"_L1) {
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  } else if (look == "hint"_L1) {
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, HintText(palette));
    label->setPalette(palette);
  }
}

void LookOfButton(QAbstractButton* button, QStringView look) {
  if (look != "primary"_L1 && look != "destructive"_L1) {
    return;
  }
  const QColor ground = look == "primary"_L1 ? PrimaryGround() : DestructiveGround();
  QPalette palette = button->palette();
  for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Button, ground);
    palette.setColor(group, QPalette::ButtonText, Qt::white);
  }
  button->setPalette(palette);
}

void ApplyLook(QWidget* widget, QStringView look) {
  if (auto* label = qobject_cast<QLabel*>(widget)) {
    LookOfLabel(label, look);
  } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    LookOfButton(button, look);
  } else if (auto* line = qobject_cast<QLineEdit*>(widget); line != nullptr && look == "amount"_L1) {
    line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  } else if (auto* frame = qobject_cast<QFrame*>(widget); frame != nullptr && look == "panel"_L1) {
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    frame->setBackgroundRole(QPalette::AlternateBase);
  }
}

QString LookOf(const QObject* control) {
  return control->property("look").toString();
}

}  // namespace

FamilyStyle::FamilyStyle() : QProxyStyle(u"Fusion"_s) {}

int FamilyStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
      return IsWindowGround(widget) ? Spacing::Large : Spacing::Small;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return Spacing::Small;
    case PM_FocusFrameHMargin:
    case PM_HeaderMargin:
      // The air left and right of a text in a cell, an entry or a heading.
      return CellMargin;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

void FamilyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  switch (element) {
    case PE_FrameLineEdit:
    case PE_IndicatorCheckBox:
      DrawEdge(painter, *option, false);
      break;
    case PE_IndicatorRadioButton:
      DrawEdge(painter, *option, true);
      break;
    case PE_PanelButtonTool:
    case PE_PanelButtonCommand:
      if (option->state.testFlag(State_On)) {
        DrawPressedBar(painter, *option);
      }
      break;
    default:
      break;
  }
}

void FamilyStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ComboBox || control == CC_SpinBox) {
    DrawEdge(painter, *option, false);
  }
}

int FamilyStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const {
  // Access keys are always underlined, so that they can be learnt.
  return hint == SH_UnderlineShortcut ? 1 : QProxyStyle::styleHint(hint, option, widget, returnData);
}

QSize FamilyStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                    const QWidget* widget) const {
  QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
  switch (type) {
    case CT_PushButton:
      // The toolkit lets a long caption touch the edges.
      if (option != nullptr && wanted.width() < size.width() + 2 * Spacing::Small) {
        wanted.setWidth(size.width() + 2 * Spacing::Small);
      }
      [[fallthrough]];
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_SpinBox:
      return wanted.expandedTo(QSize(0, Control));
    default:
      return wanted;
  }
}

void FamilyStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  const QString look = LookOf(widget);
  if (!look.isEmpty()) {
    ApplyLook(widget, look);
  } else if (!widget->isWindow()) {
    widget->installEventFilter(this);
  }
}

bool FamilyStyle::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::DynamicPropertyChange || event->type() == QEvent::Show) {
    auto* widget = qobject_cast<QWidget*>(watched);
    const QString look = LookOf(watched);
    if (widget != nullptr && !look.isEmpty()) {
      ApplyLook(widget, look);
    }
    if (!look.isEmpty() || event->type() == QEvent::Show) {
      watched->removeEventFilter(this);
    }
  }
  return QProxyStyle::eventFilter(watched, event);
}
