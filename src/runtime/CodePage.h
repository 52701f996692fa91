/// The files' characters: one byte each, Windows-1252. A character outside it is written as `?`.
#pragma once

#include <array>
#include <QByteArray>
#include <QString>

QByteArray ToCodePage(QStringView text);
/// The five bytes that the code page leaves undefined come back as the control characters of the same value, so
/// that every byte survives a load and a save.
QString FromCodePage(QByteArrayView bytes);

/// The capital of each byte. One whose capital the code page lacks, or writes with two letters, is its own.
std::array<char, 256> CapitalsOfCodePage();
std::array<char, 256> SmallLettersOfCodePage();
