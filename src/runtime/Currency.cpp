#include "runtime/Currency.h"

#include <cmath>
#include <limits>

#include "runtime/Numbers.h"
#include "runtime/NumericText.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int currencyDecimals = 4;
constexpr qsizetype significantDigits = 15;

/// Arithmetic has no box to name; `subject` is the box that was typed into.
RuntimeError TooLarge(const QString& subject = {}) {
  return RuntimeError(ErrorNumber::Overflow, subject.isEmpty() ? u"an amount"_s : subject);
}

quint64 Magnitude(qint64 units) {
  return units < 0 ? 0 - static_cast<quint64>(units) : static_cast<quint64>(units);
}

/// Adds one to a number of decimal digits.
void Increment(QByteArray& digits) {
  for (qsizetype i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      digits[i] = static_cast<char>(digits[i] + 1);
      return;
    }
    digits[i] = '0';
  }
  digits.prepend('1');
}

/// Whether cutting `digits` before `cut` must round up: ties to the even digit before the cut.
bool RoundsUpToEven(const QByteArray& digits, qsizetype cut) {
  if (digits[cut] != '5') return digits[cut] > '5';
  for (qsizetype i = cut + 1; i < digits.size(); ++i) {
    if (digits[i] != '0') return true;
  }
  return cut > 0 && (digits[cut - 1] - '0') % 2 == 1;
}

/// The digits of the value in ten-thousandths, rounded ties to even; more than 19 of them are beyond a currency.
QByteArray UnitDigits(const NumericText& number) {
  if (number.digits.isEmpty()) return "0";
  const qsizetype kept = number.digits.size() + number.exponent + currencyDecimals;
  if (kept < 0) return "0";
  if (kept >= number.digits.size()) {
    const qsizetype zeros = std::min<qsizetype>(kept - number.digits.size(), 20);
    return number.digits + QByteArray(zeros, '0');
  }
  QByteArray units = number.digits.first(kept);
  if (RoundsUpToEven(number.digits, kept)) Increment(units);
  return units.isEmpty() ? "0" : units;
}

/// Groups whole dollars by thousands and puts the sign and the cents around them.
QString Assemble(bool negative, const QByteArray& dollars, const QByteArray& cents) {
  QString text;
  text.reserve(dollars.size() * 4 / 3 + 6);
  for (qsizetype i = 0; i < dollars.size(); ++i) {
    if (i > 0 && (dollars.size() - i) % 3 == 0) text += u',';
    text += QLatin1Char(dollars[i]);
  }
  const QString amount = u'$' + text + u'.' + QString::fromLatin1(cents);
  return negative ? u'(' + amount + u')' : amount;
}

}  // namespace

Currency Currency::FromDouble(double value) {
  constexpr double limit = 9223372036854775808.0;  // two to the 63rd
  const double units = std::nearbyint(value * 10000.0);
  if (!(units >= -limit && units < limit)) throw TooLarge();
  return FromUnits(static_cast<qint64>(units));
}

Currency Currency::FromText(QStringView text, const QString& subject) {
  const auto parsed = ParseNumericText(text);
  if (!parsed) throw RuntimeError(ErrorNumber::TypeMismatch, subject);
  bool fits = false;
  const quint64 units = UnitDigits(*parsed).toULongLong(&fits);
  constexpr quint64 most = std::numeric_limits<qint64>::max();
  if (!fits || units > most + (parsed->negative ? 1 : 0)) throw TooLarge(subject);
  return FromUnits(static_cast<qint64>(parsed->negative ? 0 - units : units));
}

QString Currency::PlainText() const {
  const quint64 magnitude = Magnitude(m_units);
  QString text = QString::number(magnitude / 10000);
  if (const quint64 rest = magnitude % 10000; rest != 0) {
    QString decimals = QString::number(rest).rightJustified(currencyDecimals, u'0');
    while (decimals.endsWith(u'0')) decimals.chop(1);
    text += u'.' + decimals;
  }
  return m_units < 0 ? u'-' + text : text;
}

Currency operator+(Currency a, Currency b) {
  qint64 sum = 0;
  if (__builtin_add_overflow(a.m_units, b.m_units, &sum)) throw TooLarge();
  return Currency::FromUnits(sum);
}

Currency operator-(Currency a, Currency b) {
  qint64 difference = 0;
  if (__builtin_sub_overflow(a.m_units, b.m_units, &difference)) throw TooLarge();
  return Currency::FromUnits(difference);
}

Currency Times(Currency amount, double factor) {
  return Currency::FromDouble(amount.ToDouble() * factor);
}

Currency PercentOf(Currency amount, double rate) {
  return Currency::FromDouble(amount.ToDouble() * rate / 100.0);
}

QString CurrencyText(Currency amount) {
  const quint64 magnitude = Magnitude(amount.Units());
  const quint64 cents = magnitude / 100 + (magnitude % 100 >= 50 ? 1 : 0);
  return Assemble(amount.Units() < 0 && cents != 0, QByteArray::number(cents / 100),
                  QByteArray::number(cents % 100).rightJustified(2, '0'));
}

QString CurrencyText(double amount) {
  if (!std::isfinite(amount)) throw TooLarge();
  // "d.dddde+xx": 15 digits, the first of them standing for ten to the power of xx.
  const QByteArray scientific = QByteArray::number(std::fabs(amount), 'e', significantDigits - 1);
  const qsizetype letter = scientific.indexOf('e');
  QByteArray digits = scientific.first(letter);
  digits.remove(1, 1);
  const qsizetype kept = scientific.sliced(letter + 1).toInt() + 3;  // digits down to the cents
  if (kept < 0) return ZeroCurrencyText();
  if (kept >= digits.size()) {
    digits.append(kept - digits.size(), '0');
  } else {
    const bool up = digits[kept] >= '5';
    digits.truncate(kept);
    if (up) Increment(digits);
  }
  digits = digits.rightJustified(3, '0');
  const bool zero = digits.count('0') == digits.size();
  return Assemble(amount < 0 && !zero, digits.chopped(2), digits.last(2));
}

std::optional<QString> CurrencyTextOf(QStringView text) {
  if (!IsNumeric(text)) return std::nullopt;
  return CurrencyText(ToNumber(text));
}

QString ExtensionText(Currency price, double quantity) {
  return CurrencyText(price.ToDouble() * quantity);
}

QString ZeroCurrencyText() {
  return u"$0.00"_s;
}
