/// The decimal digits inside a text that passes the numeric test: what the conversions share.
#pragma once

#include <optional>
#include <QByteArray>
#include <QStringView>

/// The value is `digits` times ten to the power of `exponent`; `digits` has no leading zeros and is empty for zero.
struct NumericText {
  bool negative = false;
  QByteArray digits;
  int exponent = 0;
};

/// Nothing if the text isn't numeric (see `IsNumeric`).
std::optional<NumericText> ParseNumericText(QStringView text);
