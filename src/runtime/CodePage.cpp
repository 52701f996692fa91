#include "runtime/CodePage.h"

#include <algorithm>
#include <QStringDecoder>
#include <QStringEncoder>

namespace {

constexpr char codePageName[] = "windows-1252";

/// Outside 80 to 9F the code page is Latin-1, which needs no converter.
bool IsLatin1Alike(char16_t c) {
  return c < 0x80 || (c >= 0xA0 && c <= 0xFF);
}

QByteArray Encode(QStringView text, QStringConverter::Flags flags, bool& failed) {
  QStringEncoder encoder(codePageName, flags);
  QByteArray bytes = encoder(text);
  failed = encoder.hasError();
  return bytes;
}

/// What `turned` makes of each byte of the code page; a byte whose letter becomes one outside stays as it is. All at a
/// time: each conversion has its price, whatever its length.
template <typename Turn>
std::array<char, 256> EachLetter(Turn turned) {
  QByteArray all;
  for (int i = 0; i < 256; ++i) all.append(static_cast<char>(i));
  QString letters = FromCodePage(all);
  for (QChar& letter : letters) letter = turned(letter);
  const QByteArray bytes = ToCodePage(letters);
  const QString readBack = FromCodePage(bytes);
  std::array<char, 256> result{};
  for (qsizetype i = 0; i < all.size(); ++i) {
    result[static_cast<std::size_t>(i)] = readBack[i] == letters[i] ? bytes[i] : all[i];
  }
  return result;
}

}  // namespace

QByteArray ToCodePage(QStringView text) {
  const char16_t* begin = text.utf16();
  if (std::all_of(begin, begin + text.size(), IsLatin1Alike)) return text.toLatin1();

  bool failed = false;
  QByteArray bytes = Encode(text, QStringConverter::Flag::Default, failed);
  if (failed) {
    // The converter marks what it can't map by 1A, a code that a text may hold too; asked for zeros instead, it
    // tells the two apart.
    const QByteArray zeros = Encode(text, QStringConverter::Flag::ConvertInvalidToNull, failed);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
      if (bytes[i] == '\x1a' && zeros[i] == '\0') bytes[i] = '?';
    }
  }
  // The converter keeps half a character at the end for more to come.
  if (text.back().isHighSurrogate()) bytes.append('?');
  return bytes;
}

QString FromCodePage(QByteArrayView bytes) {
  const auto isLatin1Alike = [](char c) { return IsLatin1Alike(static_cast<unsigned char>(c)); };
  if (std::all_of(bytes.begin(), bytes.end(), isLatin1Alike)) return QString::fromLatin1(bytes);
  QStringDecoder decoder(codePageName);
  return decoder(bytes);
}

std::array<char, 256> CapitalsOfCodePage() {
  return EachLetter([](QChar letter) { return letter.toUpper(); });
}

std::array<char, 256> SmallLettersOfCodePage() {
  return EachLetter([](QChar letter) { return letter.toLower(); });
}
