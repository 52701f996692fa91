/// The system's own lock on a folder, which one program at a time holds.
#pragma once

#include <QString>

/// Nothing is written for it, in the folder or elsewhere. It belongs to the folder itself, whatever path leads there
/// and whichever user asks, and the system drops it with its program, however that ends.
class FolderLock {
 public:
  explicit FolderLock(QString folder);
  ~FolderLock();
  Q_DISABLE_COPY_MOVE(FolderLock)

  /// False where another lock of this or another program holds the folder. A folder that can't be locked for another
  /// reason keeps nobody from working.
  bool Take();
  void Drop();

 private:
  QString m_folder;
  int m_descriptor = -1;
};
