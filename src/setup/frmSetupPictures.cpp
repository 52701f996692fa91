#include "setup/frmSetupPictures.h"

#include <QImage>

bool IsPicture(const QByteArray& content) {
  return !QImage::fromData(content).isNull();
}
