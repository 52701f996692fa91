#include "runtime/NumericText.h"

namespace {

/// Beyond any value that a double or a currency holds; an exponent written longer stops growing here.
constexpr int exponentLimit = 100000;

bool IsDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}
bool IsSign(QChar c) {
  return c == u'+' || c == u'-';
}

/// The signs, brackets and dollar sign around the number, each counted.
struct Wrapping {
  int signs = 0, minuses = 0, dollars = 0, opened = 0, closed = 0;

  bool Take(QChar c) {
    if (IsSign(c)) {
      ++signs;
      if (c == u'-') ++minuses;
    } else if (c == u'$') {
      ++dollars;
    } else if (c == u'(') {
      ++opened;
    } else if (c == u')') {
      ++closed;
    } else {
      return false;
    }
    return true;
  }

  bool Holds() const { return dollars <= 1 && opened == closed && signs + opened <= 1; }
  bool Negative() const { return minuses + opened > 0; }
};

/// Takes an exponent off the end of `number`: false if the letter stands there without a number behind it.
bool TakeExponent(QStringView& number, int& exponent) {
  qsizetype letter = 0;
  while (letter < number.size() && number[letter] != u'E' && number[letter] != u'e') ++letter;
  if (letter == number.size()) return true;
  QStringView power = number.sliced(letter + 1);
  number = number.first(letter);
  bool negative = false;
  if (!power.isEmpty() && IsSign(power.front())) {
    negative = power.front() == u'-';
    power = power.sliced(1);
  }
  if (power.isEmpty()) return false;
  for (QChar c : power) {
    if (!IsDigit(c)) return false;
    exponent = std::min(exponent * 10 + (c.unicode() - u'0'), exponentLimit);
  }
  if (negative) exponent = -exponent;
  return true;
}

/// Digits, commas that stand between two digits before the point, and one point.
bool TakeDigits(QStringView number, NumericText& result) {
  bool anyDigit = false, pointSeen = false;
  for (qsizetype i = 0; i < number.size(); ++i) {
    const QChar c = number[i];
    if (IsDigit(c)) {
      anyDigit = true;
      if (!result.digits.isEmpty() || c != u'0') result.digits.append(static_cast<char>(c.unicode()));
      if (pointSeen) --result.exponent;
    } else if (c == u'.' && !pointSeen) {
      pointSeen = true;
    } else if (c == u',' && !pointSeen) {
      const bool between = i > 0 && IsDigit(number[i - 1]) && i + 1 < number.size() && IsDigit(number[i + 1]);
      if (!between) return false;
    } else {
      return false;
    }
  }
  return anyDigit;
}

}  // namespace

std::optional<NumericText> ParseNumericText(QStringView text) {
  while (!text.isEmpty() && text.front() == u' ') text = text.sliced(1);
  while (!text.isEmpty() && text.back() == u' ') text.chop(1);

  Wrapping wrapping;
  while (!text.isEmpty() && text.front() != u')' && wrapping.Take(text.front())) text = text.sliced(1);
  while (!text.isEmpty() && text.back() != u'(' && wrapping.Take(text.back())) text.chop(1);
  if (!wrapping.Holds()) return std::nullopt;

  NumericText result;
  result.negative = wrapping.Negative();
  if (!TakeExponent(text, result.exponent)) return std::nullopt;
  if (!TakeDigits(text, result)) return std::nullopt;
  return result;
}
