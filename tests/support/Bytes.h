/// The bytes of records, written by hand.
#pragma once

#include <QByteArray>
#include <QtEndian>

/// A record's text field: `text` padded with blanks to `width` bytes.
inline QByteArray Field(const QByteArray& text, int width) {
  return text.leftJustified(width, ' ');
}

/// Bytes written as pairs of hexadecimal digits, blanks between them at will.
inline QByteArray Hex(const char* digits) {
  return QByteArray::fromHex(digits);
}

template <typename Number>
QByteArray LittleEndian(Number value) {
  QByteArray bytes(sizeof(Number), '\0');
  qToLittleEndian(value, bytes.data());
  return bytes;
}

// A number as a record holds it; amounts in ten-thousandths.
inline QByteArray Bytes16(int number) {
  return LittleEndian(static_cast<qint16>(number));
}
inline QByteArray Bytes32(int number) {
  return LittleEndian(static_cast<qint32>(number));
}
inline QByteArray Bytes64(qint64 number) {
  return LittleEndian(number);
}
