/// The one look of all screens: Fusion with one small palette and one spacing grid (8 and 16 units).
///
/// A control says what it is by its dynamic property "look", set in its form:
///   "title"        the label at the top left that says what the screen is about
///   "hint"         a label in a quieter colour, for explanations
///   "heading"      a label over a group of boxes
///   "section"      a larger heading, and
///   "large"        larger text, on the screens that are read more than filled in: start, menu, help
///   "display"      the program's name on the first screen
///   "amount"       a label or box that shows a figure: right-aligned
///   "panel"        a frame on its own ground: help panels and views beside a grid
///   "primary"      the button of the way forward, one per view
///   "destructive"  a button that deletes; it stands apart from the others
///
/// All screens are built alike, top to bottom: a menu bar or its room, a title row (title left), the form or grid,
/// which takes the room that is left, and the row of actions: "Menu" at its left end, a spacer, the others, and the way
/// forward at its right end. The style gives a margin of 16 around a window and on a tab's page, 8 inside, and a
/// spacing of 8; a group that has the room takes 16. Boxes and buttons are as high as the style makes them; sizes of
/// text come from the looks.
#pragma once

class QApplication;
class QColor;
class QPalette;

/// Sets style, palette (light or dark, as the platform's) and fonts; and the one regional setting, United States, which
/// date boxes and calendars follow whatever the machine's own is.
void ApplyStyle(QApplication& application);

/// The two palettes; every text on its ground has a contrast of at least 4.5 to 1.
QPalette LightPalette();
QPalette DarkPalette();
/// The grounds of buttons that stand out, white text on them. The toolkit's gradient shows them lighter.
QColor PrimaryGround();
QColor DestructiveGround();
/// Quieter text on the palette's window ground.
QColor HintText(const QPalette& palette);

/// What marks the control in use and the button that stays pressed.
QColor AccentColor(const QPalette& palette);
/// The frames around groups and panels.
QColor QuietEdgeColor(const QPalette& palette);
/// The edges of boxes and indicators: at least 3 to 1 on their grounds.
QColor EdgeColor(const QPalette& palette);

namespace Spacing {
inline constexpr int Small = 8;
inline constexpr int Large = 16;
}  // namespace Spacing
