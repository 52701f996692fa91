/// What an invoice must come to, in whole numbers: nothing here goes through a double or through the program's own
/// arithmetic. Amounts are in ten-thousandths, quantities in hundredths, rates in thousandths of a per cent.
#pragma once

#include <QString>

namespace Oracle {

/// Whole-number division of magnitudes, halves away from zero.
inline qint64 DivideAway(qint64 dividend, qint64 divisor) {
  const qint64 magnitude = dividend < 0 ? -dividend : dividend;
  const qint64 quotient = magnitude / divisor + (magnitude % divisor * 2 >= divisor ? 1 : 0);
  return dividend < 0 ? -quotient : quotient;
}

/// `$1,234.50` or `($1,234.50)` of an amount in ten-thousandths.
inline QString Text(qint64 amount) {
  const qint64 cents = DivideAway(amount < 0 ? -amount : amount, 100);
  QString dollars = QString::number(cents / 100);
  for (qsizetype at = dollars.size() - 3; at > 0; at -= 3) dollars.insert(at, u',');
  const QString text = u'$' + dollars + u'.' + QString::number(cents % 100).rightJustified(2, u'0');
  return amount < 0 && cents != 0 ? u'(' + text + u')' : text;
}

/// The amount as plain decimals, as ledger and tax records have it: `80.0008`, `5`.
inline QString Plain(qint64 amount) {
  const qint64 magnitude = amount < 0 ? -amount : amount;
  QString text = QString::number(magnitude / 10000);
  QString decimals = QString::number(magnitude % 10000).rightJustified(4, u'0');
  while (decimals.endsWith(u'0')) decimals.chop(1);
  if (!decimals.isEmpty()) text += u'.' + decimals;
  return amount < 0 ? u'-' + text : text;
}

/// What a line costs, rounded to cents at once.
inline qint64 Extension(qint64 price, qint64 quantity) {
  return DivideAway(price * quantity, 10000) * 100;
}

/// Hundredths of a unit as whole units, as the counts of stock and sales take them: halves to the even one.
inline qint64 WholeUnits(qint64 hundredths) {
  const qint64 units = hundredths / 100;
  const qint64 rest = hundredths % 100;
  return units + (rest > 50 || (rest == 50 && units % 2 == 1) ? 1 : 0);
}

/// Whether `held` is the percentage of an amount: the exact value rounded to ten-thousandths. An exact half may go
/// either way, as its double falls.
inline bool IsPercentage(qint64 held, qint64 amount, qint64 rate) {
  const qint64 off = amount * rate - held * 100000;
  return off >= -50000 && off <= 50000;
}

/// A count of hundredths or ten-thousandths as it is typed.
inline QString Typed(qint64 number, int decimals) {
  const qint64 magnitude = number < 0 ? -number : number;
  qint64 divisor = 1;
  for (int i = 0; i < decimals; ++i) divisor *= 10;
  const QString text =
      QString::number(magnitude / divisor) + u'.' + QString::number(magnitude % divisor).rightJustified(decimals, u'0');
  return number < 0 ? u'-' + text : text;
}

}  // namespace Oracle
