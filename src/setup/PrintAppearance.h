/// How documents look: colours, font, paper and logo. Live values of Setup's controls, and beside them the stored
/// values that only a load or a save changes.
#pragma once

#include <QByteArray>
#include <QString>

struct PrintAppearance {
  // Live.
  quint32 txtBorders = 0;  ///< Packed 0x00BBGGRR, as all colours here.
  quint32 txtData = 0;
  QString lblFont = QStringLiteral("Arial");
  bool ckColor = true;
  bool optReturn = false;  ///< Perforated paper with a remittance slip; else plain.
  QByteArray Logo;         ///< The picture file's bytes; empty where there is no picture.
  int LogoWidth = 1440;    ///< `Image3`, in twips.
  int LogoHeight = 1440;
  int LogoFrameWidth = 1440;  ///< `Image2`, in twips: the logo is centred by it.

  // Stored.
  quint32 BorderColor = 0;
  bool PrintInColor = true;
  int PrintCopies = 3;
};
