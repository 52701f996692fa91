#include "setup/PrintAppearance.h"

#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

quint32 ReadColor(ListReader& file) {
  return static_cast<quint32>(file.ReadInt32());
}
int ColorField(quint32 color) {
  return static_cast<qint32>(color);
}

int ReadByte(ListReader& file) {
  const qint16 value = file.ReadInt16();
  if (value < 0 || value > 255) {
    throw RuntimeError(ErrorNumber::Overflow, file.FileName(), RuntimeError::Origin::FileContent);
  }
  return value;
}

}  // namespace

void LoadPrintColors(CommonDiskRoutines& disk, PrintAppearance& print) {
  if (!disk.FileExists(u"/PrintColors.txt"_s)) {
    // `ckColor` stays as it is.
    print.txtBorders = print.BorderColor = print.txtData = 0;
    print.lblFont = u"Arial"_s;
    print.PrintInColor = true;
    print.PrintCopies = 3;
    return;
  }
  ListReader file = disk.OpenInputFile(u"/PrintColors.txt"_s);
  print.txtBorders = print.BorderColor = ReadColor(file);
  print.txtData = ReadColor(file);
  print.lblFont = file.ReadString();
  print.PrintInColor = file.ReadBoolean();
  print.PrintCopies = ReadByte(file);
  print.ckColor = print.PrintInColor;
}

void SavePrintColors(CommonDiskRoutines& disk, PrintAppearance& print) {
  print.BorderColor = print.txtBorders;
  ListWriter file;
  file.Field(ColorField(print.BorderColor)).EndLine();
  file.Field(ColorField(print.txtData)).EndLine();
  file.Field(print.lblFont).EndLine();
  file.Field(print.PrintInColor).EndLine();
  file.Field(print.PrintCopies).EndLine();
  disk.SaveFile(u"/PrintColors.txt"_s, file.Content(), BackupCopy::Dropped);
}
