#include "desktop/LabelText.h"

#include <QLabel>

using namespace Qt::StringLiterals;

void ShowOnLabel(QLabel* label, const QString& text) {
  label->setTextFormat(Qt::PlainText);
  label->setText(label->buddy() != nullptr ? PlainCaption(text) : text);
}

QString PlainCaption(const QString& text) {
  return QString(text).replace(u'&', "&&"_L1);
}
