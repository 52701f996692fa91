#include "runtime/FolderMaker.h"

#include <unistd.h>

#include <fcntl.h>
#include <QFile>

#include "runtime/FileDevice.h"
#include "runtime/FileErrors.h"

FolderMaker::FolderMaker(FileDevice& device, QString parent)
    : m_device(device), m_parent(std::move(parent)), m_folder(m_device.Open(m_parent, FileDevice::OpenMode::Read)) {
  CheckFolder(m_folder, m_parent);
}

FolderMaker::~FolderMaker() {
  m_device.Close(m_folder);
}

QByteArray FolderMaker::Encoded(const QString& name) {
  return QFile::encodeName(name);
}

void FolderMaker::Make(const QByteArray& name) {
  // With the separator behind it, only a folder answers to the name.
  if (::faccessat(m_folder, name.constData(), F_OK, 0) == 0) return;
  CheckFolder(m_device.MakeFolderIn(m_folder, name.constData()), m_parent + u'/' + QFile::decodeName(name));
}
