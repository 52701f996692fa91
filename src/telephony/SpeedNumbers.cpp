#include "telephony/SpeedNumbers.h"

#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

const QString FileName = u"/SpeedNumbers.txt"_s;

}  // namespace

SpeedNumbers LoadSpeedNumbers(CommonDiskRoutines& disk) {
  SpeedNumbers speed;
  if (!disk.FileExists(FileName)) return speed;
  ListReader file = disk.OpenInputFile(FileName);
  for (std::size_t slot = 0; !file.AtEnd(); ++slot) {
    if (slot == SpeedNumbers::Slots) {
      throw RuntimeError(ErrorNumber::OutOfRange, FileName, u"It holds more than 10 speed-dial numbers."_s,
                         RuntimeError::Origin::FileContent);
    }
    speed.Names[slot] = file.ReadString();
    speed.Numbers[slot] = file.ReadString();
  }
  return speed;
}

void SaveSpeedNumbers(CommonDiskRoutines& disk, const SpeedNumbers& speed) {
  ListWriter file;
  for (std::size_t slot = 0; slot < SpeedNumbers::Slots; ++slot) {
    if (speed.Names[slot].isEmpty()) continue;
    file.Field(speed.Names[slot]).EndLine();
    file.Field(speed.Numbers[slot]).EndLine();
  }
  disk.SaveFile(FileName, file.Content(), BackupCopy::Dropped);
}
