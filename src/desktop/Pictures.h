/// The signs on the clickable pictures.
#pragma once

#include <QPixmap>

class QPalette;

enum class Picture { Next, Clear, Reload, Telephone };

/// Drawn in the palette's own colours, so that it reads on a light and on a dark one.
QPixmap DrawnPicture(Picture picture, const QPalette& palette);
