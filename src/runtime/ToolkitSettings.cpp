#include "runtime/ToolkitSettings.h"

#include <QSettings>

using namespace Qt::StringLiterals;

void KeepNoToolkitSettings() {
  // No folder, so that no file is made in it; the toolkit passes over what it can't write there.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
}
