/// Records of /SoldItems.txt and of the catalogue for tests, put together by hand from the widths of their fields.
#pragma once

#include <array>
#include <bit>
#include <QByteArray>

/// Days since 30 December 1899.
namespace Day {
inline constexpr double Mar7 = 46088;  ///< 2026, today in the tests.
inline constexpr double Mar1 = 46082;
inline constexpr double Feb28 = 46081;
inline constexpr double Feb5 = 46058;  ///< 30 days before.
inline constexpr double Feb4 = 46057;
inline constexpr double Jan1 = 46023;
inline constexpr double Dec31 = 46022;  ///< 2025.
inline constexpr double FirstOf2000 = 36526;
}  // namespace Day

inline QByteArray BytesOf(double value) {
  const auto bytes = std::bit_cast<std::array<char, sizeof(double)>>(value);
  return QByteArray(bytes.data(), sizeof(double));
}

inline QByteArray BytesOf(short value) {
  const auto bytes = std::bit_cast<std::array<char, sizeof(short)>>(value);
  return QByteArray(bytes.data(), sizeof(short));
}

inline QByteArray Sold(const QByteArray& name, double day, const QByteArray& invoice, int units) {
  return name.leftJustified(60) + BytesOf(day) + invoice.leftJustified(20) + BytesOf(static_cast<short>(units));
}

inline QByteArray ItemNamed(const QByteArray& name) {
  return name.leftJustified(50) + QByteArray("Tools").leftJustified(20) + QByteArray(34, '\0');
}

inline QByteArray CustomItemNamed(const QByteArray& name) {
  return name.leftJustified(50) + QByteArray(20, '\0');
}
