#include "support/TemporaryTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

using namespace Qt::StringLiterals;

TemporaryTree::TemporaryTree() {
  if (!m_directory.isValid()) {
    qFatal("no temporary folder could be made");
  }
}

bool TemporaryTree::Exists(const QString& name) const {
  return QFileInfo::exists(Path(name));
}

QByteArray TemporaryTree::Bytes(const QString& name) const {
  QFile file(Path(name));
  if (!file.open(QIODevice::ReadOnly)) {
    QTest::qFail(qPrintable(u"there is no file %1"_s.arg(name)), __FILE__, __LINE__);
    return {};
  }
  return file.readAll();
}

qint64 TemporaryTree::Size(const QString& name) const {
  return QFileInfo(Path(name)).size();
}

void TemporaryTree::Write(const QString& name, const QByteArray& bytes) const {
  QDir().mkpath(QFileInfo(Path(name)).path());
  QFile file(Path(name));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
    qFatal("the test could not write %s", qPrintable(name));
  }
}

void TemporaryTree::MakeFolder(const QString& name) const {
  QDir().mkpath(Path(name));
}

void TemporaryTree::Remove(const QString& name) const {
  if (QFileInfo(Path(name)).isDir()) {
    QDir(Path(name)).removeRecursively();
  } else {
    QFile::remove(Path(name));
  }
}

QStringList TemporaryTree::List(const QString& folder) const {
  QStringList names;
  const QDir directory(Path(folder));
  for (const QFileInfo& info : directory.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
    names.append(info.isDir() ? info.fileName() + u'/' : info.fileName());
  }
  names.sort();
  return names;
}

QMap<QString, QByteArray> TemporaryTree::Everything() const {
  QMap<QString, QByteArray> files;
  QDirIterator all(Root(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (all.hasNext()) {
    const QString name = all.next().mid(Root().size());
    files.insert(name, Bytes(name));
  }
  return files;
}

void TemporaryTree::SetReadOnly(const QString& folder, bool readOnly) const {
  QFileDevice::Permissions permissions = QFileDevice::ReadOwner | QFileDevice::ExeOwner;
  permissions.setFlag(QFileDevice::WriteOwner, !readOnly);
  QFile::setPermissions(Path(folder), permissions);
}

bool TemporaryTree::CanBeReadOnly() const {
  const QString probe = u"/.readonly-probe"_s;
  MakeFolder(probe);
  SetReadOnly(probe, true);
  QFile file(Path(probe + "/file"_L1));
  const bool written = file.open(QIODevice::WriteOnly);
  file.close();
  SetReadOnly(probe, false);
  Remove(probe);
  return !written;
}
