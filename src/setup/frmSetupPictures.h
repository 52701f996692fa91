/// The test of a logo's file.
#pragma once

#include <QByteArray>

/// Whether the bytes are a picture that can be decoded whole.
bool IsPicture(const QByteArray& content);
