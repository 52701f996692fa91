/// A data root of a test's own, gone with it: an empty folder with its Backup, and the disk routines on it.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "shell/CommonDiskRoutines.h"
#include "support/FailingDevice.h"

class DataFolder {
 public:
  explicit DataFolder(const QString& exeName = QStringLiteral("KarvexInvoicer"))
      : Store(Device), Disk(Store, m_root.path(), exeName) {
    QDir(m_root.path()).mkdir(QStringLiteral("Backup"));
  }

  QString Path(const QString& name) const { return m_root.path() + name; }
  bool Has(const QString& name) const { return QFile::exists(Path(name)); }
  void Put(const QString& name, const QByteArray& content) const {
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) qFatal("a test file isn't written");
  }
  QByteArray Bytes(const QString& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(absent)");
  }
  /// The files, not folders, of the root or of a folder in it.
  QStringList Files(const QString& folder = {}) const {
    return QDir(m_root.path() + folder).entryList(QDir::Files, QDir::Name);
  }

 private:
  QTemporaryDir m_root;

 public:
  FailingDevice Device;
  FileStore Store;
  CommonDiskRoutines Disk;
};
