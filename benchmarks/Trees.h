/// Data trees filled to the system's limits.
#pragma once

#include <QString>

namespace Limit {
inline constexpr int Customers = 32767;
inline constexpr int Catalogue = 255;
inline constexpr int Records = 32000;
}  // namespace Limit

/// Settings, `customers` customers, `catalogue` records in each catalogue file, and `records` journal, sold-item and
/// tax records, in `root`, which exists.
void FillTree(const QString& root, int customers, int catalogue, int records);
