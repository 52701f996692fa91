#include "runtime/Dates.h"

#include <cmath>

#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

QDate DayZero() {
  return QDate(1899, 12, 30);
}

/// A whole number of `fewest` to `most` digits; -1 for anything else.
int Digits(QStringView text, qsizetype fewest, qsizetype most) {
  if (text.size() < fewest || text.size() > most) return -1;
  int number = 0;
  for (QChar c : text) {
    if (c < u'0' || c > u'9') return -1;
    number = number * 10 + (c.unicode() - u'0');
  }
  return number;
}

}  // namespace

QString ShortDateText(QDate date) {
  if (!date.isValid()) return {};
  return u"%1/%2/%3"_s.arg(date.month()).arg(date.day()).arg(date.year(), 4, 10, QChar(u'0'));
}

QDate ParseShortDate(QStringView text, const QString& subject) {
  const QList<QStringView> parts = text.split(u'/');
  if (parts.size() == 3) {
    const int year = Digits(parts[2], 4, 4);
    const QDate date(year, Digits(parts[0], 1, 2), Digits(parts[1], 1, 2));
    if (year > 0 && date.isValid()) return date;
  }
  throw RuntimeError(ErrorNumber::TypeMismatch, subject);
}

double ToDayCount(QDate date) {
  return static_cast<double>(DayZero().daysTo(date));
}

QDate FromDayCount(double dayCount) {
  // The dates of a four-digit year; also keeps out what isn't a number.
  constexpr double first = -657434, last = 2958465;
  if (!(dayCount > first - 1 && dayCount < last + 1)) return {};
  return DayZero().addDays(static_cast<qint64>(std::trunc(dayCount)));
}
