/// The inventory as a commit lowers it: one record changed in place, all others untouched.
#pragma once

#include <QHash>
#include <QString>

#include "shell/CommonDiskRoutines.h"

/// Opens `/KVInventoriedItems.txt` and reads it in one pass. Whether the file exists is the caller's to test: opening
/// creates it.
class InventoryFile {
 public:
  enum class Stock {
    NoSuchItem,  ///< No record of this name; nothing was written.
    Enough,
    RanShort  ///< The stock would have gone below 0 and is 0 now.
  };

  /// Throws RuntimeError 6 for a file beyond the limit.
  explicit InventoryFile(CommonDiskRoutines& disk);

  /// Takes `units` off the first record whose trimmed name equals `name` exactly, rounded to a whole number, a tie to
  /// the even one, and writes that record. Throws RuntimeError 6 where there is such a record and they, or what they
  /// leave, don't fit 16 bits; 61, 70 or 75 where the write fails.
  Stock Lower(const QString& name, double units);

 private:
  RandomFile m_file;
  RecordBuffer m_records;
  QHash<QString, int> m_firstOfName;  ///< Record numbers.
  QHash<int, qint16> m_lowered;       ///< The stock of records that were written since the pass.
};
