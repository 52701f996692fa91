/// Colours as the settings and the paper keep them, packed 0x00BBGGRR, and as Qt does.
#pragma once

#include <QColor>

inline QColor ColorFromPacked(quint32 packed) {
  return QColor(static_cast<int>(packed & 0xFF), static_cast<int>((packed >> 8) & 0xFF),
                static_cast<int>((packed >> 16) & 0xFF));
}

inline quint32 PackedFromColor(const QColor& color) {
  return static_cast<quint32>(color.red()) | static_cast<quint32>(color.green()) << 8 |
         static_cast<quint32>(color.blue()) << 16;
}
