#include "customers/StatesList.h"

#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

QStringList LoadStatesList(CommonDiskRoutines& disk) {
  constexpr int count = 50;
  const QString file = u"/StatesList.txt"_s;
  QStringList states;
  if (disk.FileExists(file)) {
    ListReader reader = disk.OpenInputFile(file);
    for (int i = 0; i < count; ++i) {
      states.append(reader.ReadString());
    }
    disk.CloseAllFiles();
  }
  return states;
}
