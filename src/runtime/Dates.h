/// Dates as text and as the day count of the records.
#pragma once

#include <QDate>
#include <QString>

/// Month, day and four-digit year without leading zeros: `3/7/2026`. An invalid date is empty text.
QString ShortDateText(QDate date);
/// Reads the form back, leading zeros allowed; anything else throws RuntimeError 13 on `subject`.
QDate ParseShortDate(QStringView text, const QString& subject = {});
/// Days since 30 December 1899, as records store a date.
double ToDayCount(QDate date);
/// The date of a stored day count, its time part dropped; an impossible count gives an invalid date.
QDate FromDayCount(double dayCount);
