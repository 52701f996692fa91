#include "runtime/Numbers.h"

#include <cmath>
#include <limits>

#include "runtime/NumericText.h"
#include "runtime/RuntimeError.h"

namespace {

bool IsDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

/// Too large gives infinity, too small zero.
double ToDouble(const NumericText& number) {
  if (number.digits.isEmpty()) return 0;
  bool inRange = false;
  double value = (number.digits + 'e' + QByteArray::number(number.exponent)).toDouble(&inRange);
  if (!inRange) value = number.digits.size() + number.exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
  return number.negative ? -value : value;
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
  const double value = ToDouble(*parsed);
  if (std::isinf(value)) throw RuntimeError(ErrorNumber::Overflow, subject);
  return value;
}

double ParseLeadingNumber(QStringView text) {
  qsizetype at = 0;
  const auto skip = [&](auto belongs) {
    const qsizetype before = at;
    while (at < text.size() && belongs(text[at])) ++at;
    return at - before;
  };
  const auto skipOne = [&](QStringView any) {
    const bool found = at < text.size() && any.contains(text[at]);
    if (found) ++at;
    return found;
  };

  skip([](QChar c) { return c == u' '; });
  skipOne(u"+-");
  qsizetype digits = skip(IsDigit);
  if (skipOne(u".")) digits += skip(IsDigit);
  if (digits == 0) return 0;
  qsizetype end = at;
  if (skipOne(u"Ee")) {
    skipOne(u"+-");
    if (skip(IsDigit) > 0) end = at;
  }
  const auto number = ParseNumericText(text.first(end));
  const double value = number ? ToDouble(*number) : 0;
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
