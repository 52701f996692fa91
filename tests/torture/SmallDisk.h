/// A real file system of a few blocks over a folder, for as long as this object lives. It is seen by this process and
/// those that it forks alone. Not every user may have one.
#pragma once

#include <QString>

class SmallDisk {
 public:
  explicit SmallDisk(QString folder);
  ~SmallDisk();
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  bool IsThere() const { return m_there; }
  /// Room for everything, or for what stands there and so many blocks more.
  void MakeRoom() const;
  void LeaveBlocks(int blocks) const;
  /// What stands there can be read, and nothing written.
  void RefuseWrites() const;

 private:
  bool Mount(unsigned long flags, const QByteArray& size) const;

  QString m_folder;
  bool m_there = false;
};

/// Gives this process a view of the mounted file systems of its own, as another user than root by a user namespace.
/// Without effect where it may not.
void KeepMountsToOneself();
