#include "shell/PreviousInstance.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QLockFile>

#include "runtime/FileStore.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

PreviousInstance::PreviousInstance(FileStore& store, const QString& lockFolder, const QString& dataRoot)
    : m_store(store), m_folder(lockFolder) {
  // Two ways to one folder are one root.
  const QString canonical = QFileInfo(dataRoot).canonicalFilePath();
  const QByteArray root = (canonical.isEmpty() ? dataRoot : canonical).toUtf8();
  const QByteArray mark = QCryptographicHash::hash(root, QCryptographicHash::Sha1).toHex();
  m_lock = std::make_unique<QLockFile>(lockFolder + u"/karvex-invoicer-"_s + QString::fromLatin1(mark) + u".lock"_s);
  // A mark never grows old: only the death of its program frees it.
  m_lock->setStaleLockTime(0);
}

PreviousInstance::~PreviousInstance() = default;

bool PreviousInstance::Claim() {
  try {
    m_store.MakePath(m_folder);
  } catch (const RuntimeError&) {
    // The lock will tell.
  }
  if (m_lock->tryLock(0)) return true;
  if (m_lock->error() != QLockFile::LockFailedError) return true;
  // A mark that tells of no program is one whose program was killed while it set it. The system's own lock on the file
  // tells that from one that is being set just now, and keeps it.
  qint64 process = 0;
  QString host, program;
  if (m_lock->getLockInfo(&process, &host, &program)) return false;
  return m_lock->removeStaleLockFile() && m_lock->tryLock(0);
}

void PreviousInstance::Release() {
  m_lock->unlock();
}
