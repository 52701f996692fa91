#include "runtime/FolderMaker.h"

#include <unistd.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <QFile>

#include "runtime/FileDevice.h"
#include "runtime/FileErrors.h"
#include "runtime/FileStore.h"

FolderMaker::FolderMaker(const FileStore& store, QString parent)
    : m_device(store.m_device),
      m_parent(std::move(parent)),
      m_folder(m_device.Open(m_parent, FileDevice::OpenMode::Read)) {
  CheckFolder(m_folder, m_parent);
}

FolderMaker::~FolderMaker() {
  m_device.Close(m_folder);
}

QByteArray FolderMaker::Encoded(const QString& name) {
  return QFile::encodeName(name);
}

void FolderMaker::Make(const QByteArray& name) {
  const auto path = [&] { return QString(m_parent + u'/' + QFile::decodeName(name)); };
  struct stat status;
  if (::fstatat(m_folder, name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
    if (S_ISDIR(status.st_mode)) return;
    // What would be made in it would lie elsewhere.
    if (S_ISLNK(status.st_mode)) RaiseLinkedFolder(path());
  } else if (errno != ENOENT) {
    CheckFolder(-errno, path());
  }
  const int made = m_device.MakeFolderIn(m_folder, name.constData());
  if (made < 0) CheckFolder(made, path());
}
