/// Money: a signed 64-bit count of ten-thousandths. The only place of the program that multiplies or rounds money.
#pragma once

#include <compare>
#include <optional>
#include <QString>

class Currency {
 public:
  constexpr Currency() = default;
  static constexpr Currency FromUnits(qint64 tenThousandths) { return Currency(tenThousandths); }
  /// Rounds to four decimals, ties to even. Throws RuntimeError 6 beyond 64 bits (NaN and infinity too).
  static Currency FromDouble(double value);
  /// Strict: what `IsNumeric` accepts, rounded to four decimals (ties to even); anything else is error 13 on
  /// `subject`, a number too large error 6.
  static Currency FromText(QStringView text, const QString& subject = {});

  constexpr qint64 Units() const { return m_units; }
  double ToDouble() const { return static_cast<double>(m_units) / 10000.0; }
  /// No trailing zeros, a point, a leading minus: `80.0008`, `5`, `-2.5`.
  QString PlainText() const;

  /// Sums and differences are exact; overflow is error 6.
  friend Currency operator+(Currency a, Currency b);
  friend Currency operator-(Currency a, Currency b);
  Currency& operator+=(Currency other) { return *this = *this + other; }
  Currency& operator-=(Currency other) { return *this = *this - other; }
  friend constexpr auto operator<=>(Currency, Currency) = default;

 private:
  constexpr explicit Currency(qint64 units) : m_units(units) {}
  qint64 m_units = 0;
};

/// A product of money goes through a double and back: price times quantity, rounded to four decimals.
Currency Times(Currency amount, double factor);
/// `amount` times `rate` divided by 100, in this order, in doubles, rounded to four decimals.
Currency PercentOf(Currency amount, double rate);

/// Currency text, `$1,234.50` or `($1,234.50)`: two decimals, rounded half away from zero on the four decimals.
QString CurrencyText(Currency amount);
/// The same for a double, rounded half away from zero on its 15 significant digits: 3 * 33.335 reads `$100.01`.
QString CurrencyText(double amount);
/// The same of what a box or cell holds, as a double; nothing where that isn't numeric. Throws RuntimeError 6 on a
/// number that is too large.
std::optional<QString> CurrencyTextOf(QStringView text);
/// What a line costs, as it reads: the double product of price and quantity, rounded to cents at once, as above. As a
/// currency it would be rounded to four decimals first, and a cent could go another way.
QString ExtensionText(Currency price, double quantity);
/// The currency text of zero, `$0.00`, which many boxes compare with.
QString ZeroCurrencyText();
