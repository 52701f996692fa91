#include "setup/Logo.h"

#include "runtime/CodePage.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int DesignSize = 1440;

/// A width or height of a picture; it can't be negative.
int ReadSize(ListReader& file) {
  const qint32 twips = file.ReadInt32();
  if (twips < 0) throw RuntimeError(ErrorNumber::Overflow, file.FileName(), RuntimeError::Origin::FileContent);
  return twips;
}

}  // namespace

void LoadLogo(CommonDiskRoutines& disk, PrintAppearance& print, const PictureTest& isPicture) {
  if (!disk.FileExists(u"\\CompanyLogo.txt"_s)) return;
  const QString path = disk.OpenInputFile(u"/CompanyLogo.txt"_s).ReadString();
  if (disk.Store().IsFile(path)) LoadPicture(disk, print, path, isPicture);
}

void LoadPicture(CommonDiskRoutines& disk, PrintAppearance& print, const QString& path, const PictureTest& isPicture) {
  const QByteArray content = disk.Store().ReadWhole(path);
  if (!isPicture(content)) {
    throw RuntimeError(InvalidPicture, path, u"The logo's file is no picture that the program can read."_s,
                       RuntimeError::Origin::FileContent);
  }
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
  print.LogoWidth = ReadSize(file);
  print.LogoHeight = ReadSize(file);
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
  print.Logo.clear();
  disk.KillWithBackup(u"/CompanyLogo.txt"_s);
  print.LogoFrameWidth = DesignSize;
}

int NextLogoSize(int twips) {
  return twips < 1800 ? twips + 90 : 180;
}
