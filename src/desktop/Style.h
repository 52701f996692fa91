/// The one look of all screens: Fusion with one small palette and one spacing grid (8 and 16 units).
#pragma once

class QApplication;

/// Sets style, palette (light or dark, as the platform's), fonts and the application's display name.
void ApplyStyle(QApplication& application);

namespace Spacing {
inline constexpr int Small = 8;
inline constexpr int Large = 16;
}  // namespace Spacing
