#include "desktop/Style.h"

#include <QApplication>
#include <QLocale>
#include <QPalette>

#include "desktop/FamilyStyle.h"

namespace {

struct Tones {
  QRgb Window, WindowText, Base, AlternateBase, Text, Button, ButtonText, Highlight, HighlightedText, Disabled, Link,
      Placeholder;
};

QPalette PaletteOf(const Tones& tones) {
  QPalette palette(QColor(tones.Button), QColor(tones.Window));
  palette.setColor(QPalette::Window, QColor(tones.Window));
  palette.setColor(QPalette::WindowText, QColor(tones.WindowText));
  palette.setColor(QPalette::Base, QColor(tones.Base));
  palette.setColor(QPalette::AlternateBase, QColor(tones.AlternateBase));
  palette.setColor(QPalette::Text, QColor(tones.Text));
  palette.setColor(QPalette::Button, QColor(tones.Button));
  palette.setColor(QPalette::ButtonText, QColor(tones.ButtonText));
  palette.setColor(QPalette::ToolTipBase, QColor(tones.Base));
  palette.setColor(QPalette::ToolTipText, QColor(tones.Text));
  palette.setColor(QPalette::Highlight, QColor(tones.Highlight));
  palette.setColor(QPalette::HighlightedText, QColor(tones.HighlightedText));
  palette.setColor(QPalette::Link, QColor(tones.Link));
  palette.setColor(QPalette::LinkVisited, QColor(tones.Link));
  palette.setColor(QPalette::PlaceholderText, QColor(tones.Placeholder));
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(tones.Disabled));
  }
  // What can't be used lies flat on the window.
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(tones.Window));
  palette.setColor(QPalette::Disabled, QPalette::Button, QColor(tones.Window));
  return palette;
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace

QPalette LightPalette() {
  return PaletteOf({.Window = 0xFFF4F2EE,
                    .WindowText = 0xFF22262B,
                    .Base = 0xFFFFFFFF,
                    .AlternateBase = 0xFFF0F4F3,
                    .Text = 0xFF22262B,
                    .Button = 0xFFE9E6E0,
                    .ButtonText = 0xFF22262B,
                    .Highlight = 0xFF1F6F66,
                    .HighlightedText = 0xFFFFFFFF,
                    .Disabled = 0xFF5F6368,
                    .Link = 0xFF0B5C8A,
                    .Placeholder = 0xFF5F6368});
}

QPalette DarkPalette() {
  return PaletteOf({.Window = 0xFF26292D,
                    .WindowText = 0xFFECEAE6,
                    .Base = 0xFF1B1D20,
                    .AlternateBase = 0xFF23282A,
                    .Text = 0xFFECEAE6,
                    .Button = 0xFF2F3237,
                    .ButtonText = 0xFFECEAE6,
                    .Highlight = 0xFF1F6F66,
                    .HighlightedText = 0xFFFFFFFF,
                    .Disabled = 0xFFA9ADB2,
                    .Link = 0xFF7CC4EE,
                    .Placeholder = 0xFFA3A6AA});
}

QColor PrimaryGround() {
  return QColor(0x17, 0x52, 0x4C);
}

QColor DestructiveGround() {
  return QColor(0x7C, 0x25, 0x1F);
}

QColor AccentColor(const QPalette& palette) {
  return IsDark(palette) ? QColor(0x4F, 0xB3, 0xA6) : QColor(0x1F, 0x6F, 0x66);
}

QColor EdgeColor(const QPalette& palette) {
  return IsDark(palette) ? QColor(0x7C, 0x82, 0x89) : QColor(0x80, 0x84, 0x88);
}

QColor QuietEdgeColor(const QPalette& palette) {
  return IsDark(palette) ? QColor(0x4A, 0x4F, 0x55) : QColor(0xC4, 0xC1, 0xBB);
}

QColor HintText(const QPalette& palette) {
  return IsDark(palette) ? QColor(0xB9, 0xBC, 0xC0) : QColor(0x55, 0x5A, 0x60);
}

void ApplyStyle(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  const bool dark = IsDark(QGuiApplication::palette());
  application.setStyle(new FamilyStyle);
  application.setPalette(dark ? DarkPalette() : LightPalette());
}
