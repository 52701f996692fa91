/// Makes many folders under one parent, quicker than one by one: names are found from the parent, not from the root.
#pragma once

#include <QByteArray>
#include <QString>

class FileDevice;
class FileStore;

class FolderMaker {
 public:
  /// On the store's disk. `parent` exists, else RuntimeError 76.
  FolderMaker(const FileStore& store, QString parent);
  ~FolderMaker();
  Q_DISABLE_COPY_MOVE(FolderMaker)

  /// A name as the file system spells it.
  static QByteArray Encoded(const QString& name);
  /// Nothing if the folder is there. `name` is relative to the parent, encoded, without a separator behind it. Throws
  /// RuntimeError 61, 70, 75 (also where a link to a folder stands in its place) or 76.
  void Make(const QByteArray& name);

 private:
  FileDevice& m_device;
  QString m_parent;
  int m_folder;
};
