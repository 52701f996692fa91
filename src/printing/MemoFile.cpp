#include "printing/MemoFile.h"

#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

const QString MemoFile = u"/InvoiceMemo.txt"_s;

}  // namespace

std::optional<QStringList> MemoLines(CommonDiskRoutines& disk) {
  if (!disk.FileExists(MemoFile)) return std::nullopt;
  ListReader file = disk.OpenInputFile(MemoFile);
  QStringList lines;
  while (!file.AtEnd()) lines.append(file.ReadString());
  return lines;
}

QString MemoText(const QStringList& lines) {
  QString memo;
  for (const QString& line : lines) memo += line + u'\n';
  return memo;
}

void SaveMemo(const QString& memo, CommonDiskRoutines& disk) {
  if (!memo.isEmpty()) disk.ReplaceTextFile(MemoFile, QString(memo).replace(u'\n', u"\r\n"_s));
}

void KillMemo(CommonDiskRoutines& disk) {
  disk.KillWithBackup(MemoFile);
}
