#include "fuzz/PictureReader.h"

#include "runtime/RuntimeError.h"
#include "setup/frmSetupPictures.h"
#include "setup/Logo.h"

using namespace Qt::StringLiterals;

ReaderTarget PictureReader() {
  return {"logo-picture", u"/logo.png"_s, [](ReaderDesk& desk) {
            PrintAppearance print;
            LoadPicture(desk.Disk(), print, desk.Disk().PathOf(u"/logo.png"_s), IsPicture);
          }};
}
