/// Setup's clickable pictures, and the test of a logo's file.
#pragma once

#include <QByteArray>
#include <QPixmap>

class QPalette;

enum class Picture { Next, Clear, Reload };

/// Drawn in the palette's own colours, so that it reads on a light and on a dark one.
QPixmap SetupPicture(Picture picture, const QPalette& palette);

/// Whether the bytes are a picture that can be decoded whole.
bool IsPicture(const QByteArray& content);
