#include "desktop/FamilyStyle.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QStackedWidget>
#include <QStyleOption>
#include <QTabWidget>

#include "desktop/Looks.h"
#include "desktop/Style.h"

using namespace Qt::StringLiterals;

namespace {

// As high as a button or a box is at least.
constexpr int Control = 28;
constexpr int CellMargin = 5;
// What the toolkit leaves between the edge of a box and its text.
constexpr int BoxMargin = 3;
constexpr int FocusRing = 2;

bool IsWindowGround(const QWidget* widget) {
  if (widget == nullptr || widget->isWindow()) {
    return true;
  }
  const QWidget* parent = widget->parentWidget();
  const auto* window = qobject_cast<const QMainWindow*>(parent);
  return window != nullptr && window->centralWidget() == widget;
}

bool IsTabPage(const QWidget* widget) {
  const QWidget* stack = widget != nullptr ? widget->parentWidget() : nullptr;
  return qobject_cast<const QStackedWidget*>(stack) != nullptr &&
         qobject_cast<const QTabWidget*>(stack->parentWidget()) != nullptr;
}

/// The line in the middle of an editable list or of a date: that control draws the box.
bool IsInsideOfBox(const QWidget* widget) {
  const QWidget* parent = widget != nullptr ? widget->parentWidget() : nullptr;
  return qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
         (parent != nullptr && parent->inherits("QComboBox"));
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

/// A box that is only read lies flat on the window, as what can't be used does.
bool IsOnlyRead(const QStyleOption& option, const QWidget* widget) {
  return option.state.testFlag(QStyle::State_ReadOnly) && !IsInsideOfBox(widget);
}

/// The frame of a group of controls, which the toolkit draws too faint on a dark palette.
void DrawQuietEdge(QPainter* painter, const QStyleOption& option) {
  painter->save();
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QuietEdgeColor(option.palette));
  painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

void DrawRing(QPainter* painter, const QRectF& rect, const QColor& color) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen(color, FocusRing));
  painter->drawRoundedRect(rect, 2, 2);
  painter->restore();
}

/// A tab on the window's own ground like its page, the one in front open to it and under a bar.
void DrawTab(QPainter* painter, const QStyleOptionTab& tab) {
  const bool inFront = tab.state.testFlag(QStyle::State_Selected);
  const bool pointedAt = tab.state.testFlag(QStyle::State_MouseOver) && tab.state.testFlag(QStyle::State_Enabled);
  // The last but one line is the upper edge of the page.
  const QRect rect = inFront ? tab.rect.adjusted(0, 0, 0, -1) : tab.rect.adjusted(0, 2, 0, -2);
  const bool first = tab.position == QStyleOptionTab::Beginning || tab.position == QStyleOptionTab::OnlyOneTab;
  painter->save();
  painter->fillRect(rect, tab.palette.color(inFront || pointedAt ? QPalette::Window : QPalette::Button));
  painter->setPen(QuietEdgeColor(tab.palette));
  painter->drawLine(rect.topLeft(), rect.topRight());
  if (inFront || first) {
    painter->drawLine(rect.topLeft(), rect.bottomLeft());
  }
  if (tab.selectedPosition != QStyleOptionTab::NextIsSelected) {
    painter->drawLine(rect.topRight(), rect.bottomRight());
  }
  if (inFront) {
    painter->fillRect(QRect(rect.topLeft(), QSize(rect.width(), 3)), AccentColor(tab.palette));
  }
  painter->restore();
  if (tab.state.testFlag(QStyle::State_HasFocus)) {
    DrawRing(painter, QRectF(rect).adjusted(4, 6, -3, -3), AccentColor(tab.palette));
  }
}

/// The button in use has a ring: the accent on a plain one, the colour of its caption on one that stands out.
void DrawButtonFocus(QPainter* painter, const QStyleOption& option) {
  const bool plain = option.palette.color(QPalette::Button) == QGuiApplication::palette().color(QPalette::Button);
  const qreal inset = plain ? 1 : 3;
  DrawRing(painter, QRectF(option.rect).adjusted(inset, inset, -inset, -inset),
           plain ? AccentColor(option.palette) : option.palette.color(QPalette::ButtonText));
}

/// A button that stays pressed shows it by a bar as well as by its ground.
void DrawPressedBar(QPainter* painter, const QStyleOption& option) {
  const QRect bar(option.rect.left() + 3, option.rect.bottom() - 3, option.rect.width() - 6, 3);
  painter->fillRect(bar, AccentColor(option.palette));
}

}  // namespace

FamilyStyle::FamilyStyle() : QProxyStyle(u"Fusion"_s) {}

int FamilyStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
      return IsWindowGround(widget) || IsTabPage(widget) ? Spacing::Large : Spacing::Small;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return Spacing::Small;
    case PM_DefaultFrameWidth:
      // Room for the ring of the grid or list in use.
      return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr
                 ? FocusRing
                 : QProxyStyle::pixelMetric(metric, option, widget);
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
  if (element == PE_FrameTabWidget) {
    return DrawQuietEdge(painter, *option);
  }
  if (element == PE_FrameGroupBox) {
    return DrawGroupEdge(painter, *option, widget);
  }
  if (element == PE_PanelLineEdit && IsOnlyRead(*option, widget)) {
    painter->fillRect(option->rect, option->palette.brush(QPalette::Window));
    return option->state.testFlag(State_HasFocus) ? DrawEdge(painter, *option, false) : DrawQuietEdge(painter, *option);
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  switch (element) {
    case PE_FrameLineEdit:
    case PE_IndicatorCheckBox:
      DrawEdge(painter, *option, false);
      break;
    case PE_IndicatorRadioButton:
      DrawEdge(painter, *option, true);
      break;
    case PE_Frame:
      if (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
        DrawEdge(painter, *option, false);
      } else {
        DrawQuietEdge(painter, *option);
      }
      break;
    case PE_PanelButtonTool:
    case PE_PanelButtonCommand:
      if (option->state.testFlag(State_On)) {
        DrawPressedBar(painter, *option);
      }
      if (option->state.testFlag(State_HasFocus) && option->state.testFlag(State_Enabled)) {
        DrawButtonFocus(painter, *option);
      }
      break;
    default:
      break;
  }
}

void FamilyStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
  if (element == CE_TabBarTabShape && tab != nullptr && tab->shape == QTabBar::RoundedNorth) {
    return DrawTab(painter, *tab);
  }
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element == CE_PushButtonLabel && button != nullptr && button->icon.isNull()) {
    // A caption that is somebody's data may be longer than its button: it ends in dots and isn't cut on both sides.
    QStyleOptionButton shown(*button);
    shown.text =
        button->fontMetrics.elidedText(button->text, Qt::ElideRight, button->rect.width(), Qt::TextShowMnemonic);
    return QProxyStyle::drawControl(element, &shown, painter, widget);
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void FamilyStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
  const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
  if (control == CC_GroupBox && group != nullptr) {
    return DrawGroup(painter, *group, widget);
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ComboBox || control == CC_SpinBox) {
    DrawEdge(painter, *option, false);
  }
}

/// On the ground of the window, below the title, where the toolkit has its own frame.
void FamilyStyle::DrawGroupEdge(QPainter* painter, const QStyleOption& option, const QWidget* widget) const {
  constexpr int Above = 3;
  const auto* group = qobject_cast<const QGroupBox*>(widget);
  const bool titled = group == nullptr || group->isCheckable() || !group->title().isEmpty();
  const int title = qMax(pixelMetric(PM_IndicatorHeight, &option, widget), option.fontMetrics.height());
  QStyleOption edge = option;
  edge.rect.setTop(option.rect.top() + Above + (titled ? title : 0));
  DrawQuietEdge(painter, edge);
}

/// Its title stands out from the labels inside. A font of the box itself would be inherited by all of them.
void FamilyStyle::DrawGroup(QPainter* painter, const QStyleOptionGroupBox& group, const QWidget* widget) const {
  QFont font = painter->font();
  font.setWeight(QFont::DemiBold);
  QStyleOptionGroupBox bold = group;
  bold.fontMetrics = QFontMetrics(font);
  painter->save();
  painter->setFont(font);
  QProxyStyle::drawComplexControl(CC_GroupBox, &bold, painter, widget);
  painter->restore();
}

int FamilyStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const {
  // Access keys are always underlined, so that they can be learnt.
  return hint == SH_UnderlineShortcut ? 1 : QProxyStyle::styleHint(hint, option, widget, returnData);
}

QRect FamilyStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  const QRect rect = QProxyStyle::subElementRect(element, option, widget);
  if (element == SE_LineEditContents && !IsInsideOfBox(widget)) {
    // A text begins as far from the edge as in the cell of a grid.
    return rect.adjusted(CellMargin - BoxMargin, 0, BoxMargin - CellMargin, 0);
  }
  return rect;
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
    case CT_TabBarTab:
    case CT_ComboBox:
    case CT_SpinBox:
      return wanted.expandedTo(QSize(0, Control));
    case CT_LineEdit:
      return IsInsideOfBox(widget)
                 ? wanted
                 : wanted.grownBy({CellMargin - BoxMargin, 0, CellMargin - BoxMargin, 0}).expandedTo(QSize(0, Control));
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
