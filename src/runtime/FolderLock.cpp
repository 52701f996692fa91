#include "runtime/FolderLock.h"

#include <unistd.h>

#include <fcntl.h>
#include <sys/file.h>
#include <cerrno>
#include <QFile>

FolderLock::FolderLock(QString folder) : m_folder(std::move(folder)) {}

FolderLock::~FolderLock() {
  Drop();
}

bool FolderLock::Take() {
  if (m_descriptor >= 0) return true;
  // Not for a program that this one starts, which may outlive it.
  const int descriptor = ::open(QFile::encodeName(m_folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return true;
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
    m_descriptor = descriptor;
    return true;
  }
  const bool held = errno == EWOULDBLOCK;
  ::close(descriptor);
  return !held;
}

void FolderLock::Drop() {
  if (m_descriptor >= 0) ::close(m_descriptor);
  m_descriptor = -1;
}
