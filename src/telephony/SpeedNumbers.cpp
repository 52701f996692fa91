#include "telephony/SpeedNumbers.h"

#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

const QString FileName = u"/SpeedNumbers.txt"_s;

/// No exit copies this file, so none can be brought back.
RuntimeError Damage(int number, const QString& text) {
  return RuntimeError(number, FileName, text, RuntimeError::Origin::FileContent)
      .WithAdvice(
          u"Remove SpeedNumbers.txt from the program's data folder, which empties the speed-dial buttons, or mend it: "
          u"two lines for each entry, its name and its number, and 10 entries at most. Then start the program again."_s);
}

}  // namespace

SpeedNumbers LoadSpeedNumbers(CommonDiskRoutines& disk) {
  SpeedNumbers speed;
  if (!disk.FileExists(FileName)) return speed;
  ListReader file = disk.OpenInputFile(FileName);
  for (std::size_t slot = 0; !file.AtEnd(); ++slot) {
    if (slot == SpeedNumbers::Slots) {
      throw Damage(ErrorNumber::OutOfRange, u"It holds more than 10 speed-dial numbers."_s);
    }
    speed.Names[slot] = file.ReadString();
    if (file.AtEnd()) throw Damage(ErrorNumber::InputPastEnd, u"Its last name has no number."_s);
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
