#include "desktop/Looks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QVariant>

#include "desktop/Style.h"

using namespace Qt::StringLiterals;

namespace {

struct FontLook {
  QLatin1StringView Name;
  /// Over the size of the program's own font.
  qreal Times;
  QFont::Weight Weight;
};

constexpr FontLook FontLooks[] = {{"display"_L1, 3.5, QFont::Bold},
                                  {"title"_L1, 1.75, QFont::DemiBold},
                                  {"section"_L1, 1.35, QFont::DemiBold},
                                  {"heading"_L1, 1, QFont::DemiBold},
                                  {"large"_L1, 1.15, QFont::Normal}};

/// From the program's own font, so that a second polish changes nothing.
void ApplyFont(QWidget* widget, QStringView look) {
  for (const FontLook& named : FontLooks) {
    if (look != named.Name) {
      continue;
    }
    QFont font = QApplication::font(widget);
    font.setPointSizeF(font.pointSizeF() * named.Times);
    font.setWeight(named.Weight);
    widget->setFont(font);
  }
}

void LookOfLabel(QLabel* label, QStringView look) {
  if (look == "amount"_L1) {
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

}  // namespace

QString LookOf(const QObject* control) {
  return control->property("look").toString();
}

void ApplyLook(QWidget* widget, QStringView look) {
  ApplyFont(widget, look);
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
