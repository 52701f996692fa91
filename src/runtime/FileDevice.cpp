#include "runtime/FileDevice.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <QFile>

namespace {

/// Repeats a system call that a signal broke off; a failure becomes a negative errno.
template <typename Call>
auto Attempt(Call call) -> decltype(call()) {
  decltype(call()) result;
  do {
    result = call();
  } while (result < 0 && errno == EINTR);
  return result < 0 ? static_cast<decltype(call())>(-errno) : result;
}

int FlagsOf(FileDevice::OpenMode mode) {
  switch (mode) {
    case FileDevice::OpenMode::Read:
      return O_RDONLY;
    case FileDevice::OpenMode::WriteNew:
      return O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
    case FileDevice::OpenMode::Update:
      break;
  }
  return O_RDWR | O_CREAT | O_NOFOLLOW;
}

}  // namespace

int FileDevice::MayWrite(const QString& path) {
  const QByteArray name = QFile::encodeName(path);
  return Attempt([&] { return ::access(name.constData(), W_OK); });
}

int FileDevice::Open(const QString& path, OpenMode mode) {
  const QByteArray name = QFile::encodeName(path);
  return Attempt([&] { return ::open(name.constData(), FlagsOf(mode) | O_CLOEXEC, 0666); });
}

qint64 FileDevice::Read(int descriptor, char* data, qint64 size, qint64 offset) {
  return Attempt([&] { return qint64{::pread(descriptor, data, static_cast<size_t>(size), offset)}; });
}

qint64 FileDevice::Write(int descriptor, const char* data, qint64 size, qint64 offset) {
  return Attempt([&] { return qint64{::pwrite(descriptor, data, static_cast<size_t>(size), offset)}; });
}

int FileDevice::Truncate(int descriptor, qint64 size) {
  return Attempt([&] { return ::ftruncate(descriptor, size); });
}

int FileDevice::Flush(int descriptor) {
  return Attempt([&] { return ::fsync(descriptor); });
}

int FileDevice::Close(int descriptor) {
  // A close that a signal broke off has closed all the same: never repeated.
  return ::close(descriptor) < 0 && errno != EINTR ? -errno : 0;
}

int FileDevice::CopyPermissions(const QString& from, int descriptor) {
  struct stat status;
  const QByteArray name = QFile::encodeName(from);
  if (::stat(name.constData(), &status) < 0) return -errno;
  return Attempt([&] { return ::fchmod(descriptor, status.st_mode & 07777); });
}

int FileDevice::Rename(const QString& from, const QString& to) {
  const QByteArray fromName = QFile::encodeName(from), toName = QFile::encodeName(to);
  return Attempt([&] { return std::rename(fromName.constData(), toName.constData()); });
}

int FileDevice::Remove(const QString& path) {
  const QByteArray name = QFile::encodeName(path);
  return Attempt([&] { return ::unlink(name.constData()); });
}

int FileDevice::MakeFolder(const QString& path) {
  const QByteArray name = QFile::encodeName(path);
  return Attempt([&] { return ::mkdir(name.constData(), 0777); });
}

int FileDevice::MakeFolderIn(int folder, const char* name) {
  return Attempt([&] { return ::mkdirat(folder, name, 0777); });
}

int FileDevice::FlushFolder(const QString& path) {
  const QByteArray name = QFile::encodeName(path);
  const int descriptor = Attempt([&] { return ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  if (descriptor < 0) return descriptor;
  const int flushed = Attempt([&] { return ::fsync(descriptor); });
  ::close(descriptor);
  return flushed;
}
