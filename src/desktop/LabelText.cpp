#include "desktop/LabelText.h"

#include <QLabel>

using namespace Qt::StringLiterals;

void ShowOnLabel(QLabel* label, const QString& text) {
  label->setTextFormat(Qt::PlainText);
  QString shown = text;
  if (label->buddy() != nullptr) shown.replace(u'&', "&&"_L1);
  label->setText(shown);
}
