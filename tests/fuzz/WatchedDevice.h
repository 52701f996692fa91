/// The real disk with a look at each change: none may leave the data root, and what only reads makes none.
#pragma once

#include <unistd.h>

#include <QFile>
#include <QString>

#include "runtime/FileDevice.h"

class WatchedDevice final : public FileDevice {
 public:
  void Watch(const QString& root) { m_root = root + u'/'; }
  void Forget() {
    m_changed.clear();
    m_escaped.clear();
  }
  const QString& Changed() const { return m_changed; }  ///< The file changed last, empty where none was.
  const QString& Escaped() const { return m_escaped; }  ///< What was to be changed outside the root.

  int Open(const QString& path, OpenMode mode) override {
    if (mode != OpenMode::Read && !Note(path)) return -1;
    return FileDevice::Open(path, mode);
  }
  int Rename(const QString& from, const QString& to) override {
    return Note(from) && Note(to) ? FileDevice::Rename(from, to) : -1;
  }
  int Remove(const QString& path) override {
    if (::access(QFile::encodeName(path).constData(), F_OK) == 0 && !Note(path)) return -1;
    return FileDevice::Remove(path);
  }
  int MakeFolder(const QString& path) override { return Note(path) ? FileDevice::MakeFolder(path) : -1; }
  /// Looked at and not made: millions of made up accounts would fill the disk.
  int MakeFolderIn(int, const char* name) override {
    const QByteArray path = QByteArray("/") + name + '/';
    const bool leaves = name[0] == '/' || name[0] == '\0' || path.contains("/../") || path.contains("/./") ||
                        path.contains("//") || path.contains('\\');
    if (leaves) m_escaped = QFile::decodeName(name);
    return 0;
  }
  int Flush(int) override { return 0; }
  int FlushFolder(const QString&) override { return 0; }

 private:
  bool Note(const QString& path) {
    m_changed = path;
    const bool inside = path.startsWith(m_root) && !path.contains(u"/../");
    if (!inside) m_escaped = path;
    return inside;
  }
  QString m_root;
  QString m_changed;
  QString m_escaped;
};
