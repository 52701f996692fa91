/// The bytes of records, written by hand.
#pragma once

#include <QByteArray>

/// `text` padded with blanks to `width` bytes, as a record holds it.
inline QByteArray Padded(const QByteArray& text, int width) {
  return text.leftJustified(width, ' ');
}

/// Bytes written as pairs of hexadecimal digits, blanks between them at will.
inline QByteArray Hex(const char* digits) {
  return QByteArray::fromHex(digits);
}
