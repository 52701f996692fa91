/// How documents look: colours, font, paper and logo. Live values of Setup's controls, and beside them the stored
/// values that only a load or a save changes.
#pragma once

#include <QByteArray>
#include <QString>

class CommonDiskRoutines;

struct PrintAppearance {
  // Live.
  quint32 txtBorders = 0;  ///< Packed 0x00BBGGRR, as all colours here.
  quint32 txtData = 0;
  QString lblFont = QStringLiteral("Arial");
  bool ckColor = true;
  bool optPlain = true;    ///< Plain paper. One of the two is on, unless a file says otherwise of both.
  bool optReturn = false;  ///< Perforated paper with a remittance slip.
  QByteArray Logo;         ///< The picture file's bytes; empty where there is no picture.
  float LogoWidth = 1440;  ///< `Image3`, in twips, rounded where it is drawn.
  float LogoHeight = 1440;
  int LogoFrameWidth = 1440;  ///< `Image2`, in twips: the logo is centred by it.

  // Stored.
  quint32 BorderColor = 0;
  bool PrintInColor = true;
  int PrintCopies = 3;
};

/// Reads /PrintColors.txt; without it black, black, "Arial", colour and 3 copies. Throws RuntimeError 62, 13 or 6 for
/// a file that isn't what it must be.
void LoadPrintColors(CommonDiskRoutines& disk, PrintAppearance& print);
/// Writes the two colours and the font that the controls show. `PrintInColor` and `PrintCopies` go back as they were
/// loaded: a change of `ckColor` and `cboCopies` lasts until the program ends, which is meant.
void SavePrintColors(CommonDiskRoutines& disk, PrintAppearance& print);
