/// The looks that the controls of a form name, put on them: fonts, colours and alignment. Style.h lists them.
#pragma once

#include <QString>

class QObject;
class QWidget;

/// What the control names, or nothing.
QString LookOf(const QObject* control);
void ApplyLook(QWidget* widget, QStringView look);
