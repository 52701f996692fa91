/// The company's logo: a picture file of the user's own, which stays where it is, and the size that it prints at.
#pragma once

#include <functional>
#include <QByteArray>
#include <QString>

#include "setup/PrintAppearance.h"

/// Whether the bytes of a file are a picture that can be shown and printed.
using PictureTest = std::function<bool(const QByteArray& content)>;

/// Reads the picture that /CompanyLogo.txt names. A path that leads to no file leaves the logo as it is. Throws
/// RuntimeError 481 on /CompanyLogo.txt for a file that is no picture, 62 for a /CompanyLogo.txt that ends too early.
void LoadLogo(CommonDiskRoutines& disk, PrintAppearance& print, const PictureTest& isPicture);
/// The same at the start, where whatever keeps the picture from being looked at or read, as a dead network drive does,
/// is RuntimeError 481 on /CompanyLogo.txt too: the box then tells how to start without the logo.
void LoadLogoAtStart(CommonDiskRoutines& disk, PrintAppearance& print, const PictureTest& isPicture);
/// Reads any picture file into the logo. Throws RuntimeError 481 on that file, or what the reading throws; the logo is
/// as it was then.
void LoadPicture(CommonDiskRoutines& disk, PrintAppearance& print, const QString& path, const PictureTest& isPicture);
/// The longer side of the sheet, in twips: what a logo may have at most.
inline constexpr float LargestLogoSize = 15840;
/// Reads /LogoSettings.txt; without it 1440 by 1440, which is saved. Throws RuntimeError 62, 13, or 6 for a size below
/// zero or above `LargestLogoSize`; both sizes are as they were then.
void LoadLogoSettings(CommonDiskRoutines& disk, PrintAppearance& print);

/// Whether the path can be read back from a line text file as it was written: no double quote, nothing outside the
/// files' characters.
bool CanStoreLogoPath(const QString& path);
/// Writes the path to /CompanyLogo.txt, then `SaveLogoSettings`. Nothing for an empty path.
void SaveLogoPath(CommonDiskRoutines& disk, const PrintAppearance& print, const QString& path);
/// Writes /LogoSettings.txt; its copy in /Backup stays. Nothing where there is no logo.
void SaveLogoSettings(CommonDiskRoutines& disk, const PrintAppearance& print);
/// No logo any more: the picture's path and its backup copy go, /LogoSettings.txt stays.
void ClearLogo(CommonDiskRoutines& disk, PrintAppearance& print);

/// One step of the two sizing buttons: 90 twips more, from 1800 on back to 180.
float NextLogoSize(float twips);
