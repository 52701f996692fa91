#include "runtime/Numbers.h"

#include <cmath>
#include <limits>

#include "runtime/NumericText.h"
#include "runtime/RuntimeError.h"

namespace {

bool IsDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

/// `number` is a plain ASCII number with a point; too large gives infinity.
double FromPlainDigits(const QByteArray& number) {
  return number.toDouble();
}

template <typename Int>
Int Narrow(double value, const QString& subject) {
  const double rounded = std::nearbyint(value);  // the default rounding mode: ties to even
  const bool fits = rounded >= static_cast<double>(std::numeric_limits<Int>::min()) &&
                    rounded <= static_cast<double>(std::numeric_limits<Int>::max());
  if (!fits) throw RuntimeError(ErrorNumber::Overflow, subject);
  return static_cast<Int>(rounded);
}

}  // namespace

bool IsNumeric(QStringView text) {
  return ParseNumericText(text).has_value();
}

double ToNumber(QStringView text, const QString& subject) {
  const auto parsed = ParseNumericText(text);
  if (!parsed) throw RuntimeError(ErrorNumber::TypeMismatch, subject);
  if (parsed->digits.isEmpty()) return 0;
  const double value = FromPlainDigits(parsed->digits + 'e' + QByteArray::number(parsed->exponent));
  if (std::isinf(value)) throw RuntimeError(ErrorNumber::Overflow, subject);
  return parsed->negative ? -value : value;
}

double ParseLeadingNumber(QStringView text) {
  qsizetype at = 0;
  QByteArray number;
  const auto take = [&] { number.append(static_cast<char>(text[at++].unicode())); };
  const auto takeDigits = [&] {
    const qsizetype before = at;
    while (at < text.size() && IsDigit(text[at])) take();
    return at - before;
  };

  while (at < text.size() && text[at] == u' ') ++at;
  if (at < text.size() && (text[at] == u'-' || text[at] == u'+')) take();
  qsizetype digits = takeDigits();
  if (at < text.size() && text[at] == u'.') {
    take();
    digits += takeDigits();
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
    const QByteArray mantissa = number;
    take();
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+')) take();
    if (takeDigits() == 0) number = mantissa;
  }
  const double value = FromPlainDigits(number);
  if (std::isinf(value)) return std::copysign(std::numeric_limits<double>::max(), value);
  return value;
}

qint16 ToInt16(double value, const QString& subject) {
  return Narrow<qint16>(value, subject);
}
qint32 ToInt32(double value, const QString& subject) {
  return Narrow<qint32>(value, subject);
}
qint16 ToInt16(QStringView text, const QString& subject) {
  return ToInt16(ToNumber(text, subject), subject);
}
qint32 ToInt32(QStringView text, const QString& subject) {
  return ToInt32(ToNumber(text, subject), subject);
}

QString TrimBlanks(QStringView text) {
  const auto isBlank = [](QChar c) { return c == u' ' || c.isNull(); };
  while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text.toString();
}
