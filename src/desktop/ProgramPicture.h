/// The program's own picture: oranges before an invoice. It is drawn, not read from a file: to read a picture, the
/// toolkit loads every library of picture formats that is installed, and the first window would wait for that.
#pragma once

#include <QPixmap>

/// As large as the first screen shows it, so that it needn't be scaled there, and fine enough for the screen of the
/// highest resolution.
QPixmap ProgramPicture();
