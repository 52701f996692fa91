#include "setup/Logo.h"

#include "runtime/CodePage.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int DesignSize = 1440;

/// A width or height of a picture. The range is checked before the number is narrowed, which can't overflow then.
float ReadSize(ListReader& file) {
  const double twips = file.ReadNumber();
  if (!(twips >= 0 && twips <= static_cast<double>(LargestLogoSize))) {
    throw RuntimeError(ErrorNumber::Overflow, file.FileName(), u"A logo of that size fits on no sheet."_s,
                       RuntimeError::Origin::FileContent);
  }
  return static_cast<float>(twips);
}

/// The path that is stored; empty where none is.
QString StoredPath(CommonDiskRoutines& disk) {
  if (!disk.FileExists(u"\\CompanyLogo.txt"_s)) return {};
  return disk.OpenInputFile(u"/CompanyLogo.txt"_s).ReadString();
}

/// Damage of the file that names the picture: it, and not the user's own picture, is what can be done without.
RuntimeError NamesNoLogo(const QString& path, const QString& why) {
  return {ErrorNumber::InvalidPicture, u"/CompanyLogo.txt"_s,
          u"It names "_s + path + u" as the logo, and that file can't be read"_s + why,
          RuntimeError::Origin::FileContent};
}

void LoadLogoFrom(const QString& path, CommonDiskRoutines& disk, PrintAppearance& print, const PictureTest& isPicture) {
  if (path.isEmpty() || !disk.Store().IsFile(path)) return;
  try {
    LoadPicture(disk, print, path, isPicture);
  } catch (const RuntimeError& error) {
    if (error.Number() != ErrorNumber::InvalidPicture) throw;
    throw NamesNoLogo(path, u" as a picture."_s);
  }
}

}  // namespace

void LoadLogo(CommonDiskRoutines& disk, PrintAppearance& print, const PictureTest& isPicture) {
  LoadLogoFrom(StoredPath(disk), disk, print, isPicture);
}

void LoadLogoAtStart(CommonDiskRoutines& disk, PrintAppearance& print, const PictureTest& isPicture) {
  const QString path = StoredPath(disk);
  try {
    LoadLogoFrom(path, disk, print, isPicture);
  } catch (const RuntimeError& error) {
    if (error.Number() == ErrorNumber::InvalidPicture) throw;
    throw NamesNoLogo(path, u". "_s + error.Text());
  }
}

void LoadPicture(CommonDiskRoutines& disk, PrintAppearance& print, const QString& path, const PictureTest& isPicture) {
  const QByteArray content = disk.Store().ReadWhole(path);
  if (!isPicture(content)) throw RuntimeError::AtPath(ErrorNumber::InvalidPicture, path);
  print.Logo = content;
}

void LoadLogoSettings(CommonDiskRoutines& disk, PrintAppearance& print) {
  if (!disk.FileExists(u"/LogoSettings.txt"_s)) {
    print.LogoWidth = DesignSize;
    print.LogoHeight = DesignSize;
    SaveLogoSettings(disk, print);
    return;
  }
  ListReader file = disk.OpenInputFile(u"/LogoSettings.txt"_s);
  const float width = ReadSize(file);
  print.LogoHeight = ReadSize(file);
  print.LogoWidth = width;
}

bool CanStoreLogoPath(const QString& path) {
  return !path.contains(u'"') && FromCodePage(ToCodePage(path)) == path;
}

void SaveLogoPath(CommonDiskRoutines& disk, const PrintAppearance& print, const QString& path) {
  if (path.isEmpty()) return;
  disk.SaveFile(u"/CompanyLogo.txt"_s, ListWriter().Field(path).EndLine().Content(), BackupCopy::Dropped);
  SaveLogoSettings(disk, print);
}

void SaveLogoSettings(CommonDiskRoutines& disk, const PrintAppearance& print) {
  if (print.Logo.isEmpty()) return;
  ListWriter file;
  file.Field(print.LogoWidth).Field(print.LogoHeight).EndLine();
  disk.SaveFile(u"/LogoSettings.txt"_s, file.Content(), BackupCopy::Kept);
}

void ClearLogo(CommonDiskRoutines& disk, PrintAppearance& print) {
  // The file first: where it can't be removed, the logo stays, on the screen too.
  disk.KillWithBackup(u"/CompanyLogo.txt"_s);
  print.Logo.clear();
  print.LogoFrameWidth = DesignSize;
}

float NextLogoSize(float twips) {
  return twips < 1800 ? twips + 90 : 180;
}
