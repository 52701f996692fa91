/// The ten speed-dial numbers and their file, /SpeedNumbers.txt.
#pragma once

#include <array>
#include <QString>

class CommonDiskRoutines;

struct SpeedNumbers {
  static constexpr int Slots = 10;
  std::array<QString, Slots> Names;
  std::array<QString, Slots> Numbers;
};

/// The pairs of the file, from slot 0 on; none without the file. Throws RuntimeError 9 for more than ten pairs and 62
/// for a name without its number.
SpeedNumbers LoadSpeedNumbers(CommonDiskRoutines& disk);
/// Writes the pairs of the slots that have a name; the entries close up at the next load.
void SaveSpeedNumbers(CommonDiskRoutines& disk, const SpeedNumbers& speed);
