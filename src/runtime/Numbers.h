/// Numbers read from text and narrowed, by the fixed United States regional setting.
#pragma once

#include <QString>

/// Numeric test: blanks around are ignored; one sign before or after, or brackets for a negative; one `$`; digits
/// with commas between them; one point; an exponent (`1E3`); at least one digit. Empty text isn't numeric.
bool IsNumeric(QStringView text);
/// Strict conversion: what `IsNumeric` accepts; anything else throws RuntimeError 13 on `subject`.
double ToNumber(QStringView text, const QString& subject = {});
/// Leading-number parse: blanks, a sign, digits, a point, digits, an exponent; stops at the first other character;
/// nothing found is 0, never an error.
double ParseLeadingNumber(QStringView text);

/// To the nearest whole number, ties to even; outside the width throws RuntimeError 6 on `subject`.
qint16 ToInt16(double value, const QString& subject = {});
qint32 ToInt32(double value, const QString& subject = {});
/// Strict conversion, then as above.
qint16 ToInt16(QStringView text, const QString& subject = {});
qint32 ToInt32(QStringView text, const QString& subject = {});

/// Removes blanks at both ends (and the zero bytes of a never-written field), nothing else.
QString TrimBlanks(QStringView text);
