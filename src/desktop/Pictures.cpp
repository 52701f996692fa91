#include "desktop/Pictures.h"

QPixmap LogoPicture() {
  // The drawing lies in a static library: nothing else would link it in.
  Q_INIT_RESOURCE(pictures);
  return QPixmap(QStringLiteral(":/pictures/logo.png"));
}
