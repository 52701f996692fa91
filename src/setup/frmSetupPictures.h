/// The test of a logo's file.
#pragma once

#include <QByteArray>

/// Whether the bytes show and print as a picture. Of one that is cut short some formats (JPEG, BMP) still give what is
/// there, and so it is one; PNG and ICO give nothing, and it is none.
bool IsPicture(const QByteArray& content);
