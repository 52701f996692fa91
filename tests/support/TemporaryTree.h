/// A data root of its own for one test, gone with it. Names are root-relative and begin with a separator, as the
/// program's own do: tree.Write("/KVInvoiceNo.txt", "20260001\r\n").
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

class TemporaryTree {
 public:
  TemporaryTree();

  QString Root() const { return m_directory.path(); }
  QString Path(const QString& name) const { return Root() + name; }

  bool Exists(const QString& name) const;
  /// Fails the test if there is no such file.
  QByteArray Bytes(const QString& name) const;
  qint64 Size(const QString& name) const;
  /// Makes the folders on the way as well.
  void Write(const QString& name, const QByteArray& bytes) const;
  void MakeFolder(const QString& name) const;
  void Remove(const QString& name) const;
  /// Names in a folder, sorted; folders end with "/".
  QStringList List(const QString& folder = QStringLiteral("/")) const;
  /// Every file of the tree by name, with its bytes: to prove that nothing changed.
  QMap<QString, QByteArray> Everything() const;
  /// The folder takes no new files any more, or does again. Without effect for a privileged user: see `CanBeReadOnly`.
  void SetReadOnly(const QString& folder, bool readOnly) const;
  bool CanBeReadOnly() const;

 private:
  QTemporaryDir m_directory;
};
