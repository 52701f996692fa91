/// The file operations that the one reader and the one writer use; the tests put a failing one in its place.
#pragma once

#include <memory>
#include <QByteArray>
#include <QString>

/// One method per operation that opens, reads or changes a file or folder, mostly one system call; what only looks
/// (whether a file is there, its length, a folder's names) is asked of the system directly, outside. All paths are
/// absolute. A method answers 0 or a count on success and a negative errno (`-ENOSPC`) on failure; none throws. Nothing
/// is written through a symbolic link: opening one to write is `-ELOOP`.
class FileDevice {
 public:
  enum class OpenMode {
    Read,
    WriteNew,
    Update
  };  ///< WriteNew refuses a file that is there; Update is in place, creating.

  virtual ~FileDevice() = default;
  virtual int MayWrite(const QString& path);             ///< 0 if the file or folder there can be written to.
  virtual int Open(const QString& path, OpenMode mode);  ///< A descriptor, or a negative errno.
  virtual qint64 Read(int descriptor, char* data, qint64 size, qint64 offset);
  virtual qint64 Write(int descriptor, const char* data, qint64 size, qint64 offset);  ///< May write less.
  virtual int Truncate(int descriptor, qint64 size);
  virtual int Flush(int descriptor);  ///< To the disk.
  virtual int Close(int descriptor);
  /// Gives an open file the permissions of another.
  virtual int CopyPermissions(const QString& from, int descriptor);
  virtual int Rename(const QString& from, const QString& to);
  virtual int Remove(const QString& path);
  virtual int MakeFolder(const QString& path);
  /// `name` is relative to an open folder, in the file system's own characters.
  virtual int MakeFolderIn(int folder, const char* name);
  virtual int FlushFolder(const QString& path);
};
