// The calls of the C library that touch files, in place of its own: each one asks the plan first and then does what it
// always did. A flush that is looked after isn't done: what a killed process has written is the system's already, and
// whether it was asked for is what the notes tell.
#include "torture/FileCalls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cstdarg>

#include "torture/FileCallsPlan.h"

using namespace FileCalls;

namespace {

template <typename Call>
Call* Next(const char* name) {
  return reinterpret_cast<Call*>(::dlsym(RTLD_NEXT, name));
}

using OpenCall = int(const char*, int, ...);
using OpenAtCall = int(int, const char*, int, ...);
using ReadCall = ssize_t(int, void*, size_t, off_t);
using WriteCall = ssize_t(int, const void*, size_t, off_t);

template <typename Call>
int Opened(const std::string& path, int flags, Call call) {
  if (path.empty()) return call();
  const bool writes = (flags & O_ACCMODE) != O_RDONLY;
  const int descriptor = Through(writes ? Kind::Create : Kind::Open, path, {}, call);
  if (descriptor >= 0) {
    Remember(descriptor, path);
    LeaveOpened(descriptor);
  }
  return descriptor;
}

ssize_t ReadThrough(ReadCall* next, int descriptor, void* data, size_t size, off_t offset) {
  return Through(Kind::Read, WatchedOpen(descriptor), {}, [&] { return next(descriptor, data, size, offset); });
}

ssize_t WriteThrough(WriteCall* next, int descriptor, const void* data, size_t size, off_t offset) {
  const std::string path = WatchedOpen(descriptor);
  if (path.empty()) return next(descriptor, data, size, offset);
  int error = Enter(Kind::Write, path, {}, static_cast<long>(size), descriptor);
  const long allowed = error != 0 ? -error : Allowed(descriptor, size, offset);
  if (allowed < 0) {
    errno = static_cast<int>(-allowed);
    return -1;
  }
  const ssize_t written = next(descriptor, data, static_cast<size_t>(allowed), offset);
  error = errno;
  if (DiesTorn()) Die();
  Leave(written < 0 ? -error : written);
  errno = error;
  return written;
}

int FlushThrough(int (*next)(int), int descriptor) {
  const std::string path = WatchedOpen(descriptor);
  if (path.empty()) return next(descriptor);
  if (const int error = Enter(Kind::Flush, path, {}, 0, descriptor)) {
    errno = error;
    return -1;
  }
  return 0;
}

int ModeOf(int flags, va_list arguments) {
  return (flags & O_CREAT) != 0 ? va_arg(arguments, int) : 0;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  static auto* const next = Next<OpenCall>("open");
  va_list arguments;
  va_start(arguments, flags);
  const int mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Opened(Watched(path), flags, [&] { return next(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
  static auto* const next = Next<OpenCall>("open64");
  va_list arguments;
  va_start(arguments, flags);
  const int mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Opened(Watched(path), flags, [&] { return next(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
  static auto* const next = Next<OpenAtCall>("openat");
  va_list arguments;
  va_start(arguments, flags);
  const int mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Opened(WatchedIn(folder, path), flags, [&] { return next(folder, path, flags, mode); });
}

int openat64(int folder, const char* path, int flags, ...) {
  static auto* const next = Next<OpenAtCall>("openat64");
  va_list arguments;
  va_start(arguments, flags);
  const int mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Opened(WatchedIn(folder, path), flags, [&] { return next(folder, path, flags, mode); });
}

/// Not taken: a fork has its parent's locks too, and a program that is started anew would be told of the one that
/// waits.
int flock(int, int) {
  return 0;
}

int close(int descriptor) {
  static auto* const next = Next<int(int)>("close");
  const std::string path = WatchedOpen(descriptor);
  if (path.empty()) return next(descriptor);
  const int error = Enter(Kind::Close, path, {}, 0, descriptor);
  Forget(descriptor);
  const int closed = next(descriptor);
  if (error == 0) return closed;
  errno = error;
  return -1;
}

ssize_t pread(int descriptor, void* data, size_t size, off_t offset) {
  static auto* const next = Next<ReadCall>("pread");
  return ReadThrough(next, descriptor, data, size, offset);
}

ssize_t pread64(int descriptor, void* data, size_t size, off64_t offset) {
  static auto* const next = Next<ReadCall>("pread64");
  return ReadThrough(next, descriptor, data, size, offset);
}

ssize_t read(int descriptor, void* data, size_t size) {
  static auto* const next = Next<ssize_t(int, void*, size_t)>("read");
  return Through(Kind::Read, WatchedOpen(descriptor), {}, [&] { return next(descriptor, data, size); });
}

ssize_t pwrite(int descriptor, const void* data, size_t size, off_t offset) {
  static auto* const next = Next<WriteCall>("pwrite");
  return WriteThrough(next, descriptor, data, size, offset);
}

ssize_t pwrite64(int descriptor, const void* data, size_t size, off64_t offset) {
  static auto* const next = Next<WriteCall>("pwrite64");
  return WriteThrough(next, descriptor, data, size, offset);
}

ssize_t write(int descriptor, const void* data, size_t size) {
  static auto* const next = Next<ssize_t(int, const void*, size_t)>("write");
  if (WatchedOpen(descriptor).empty()) return next(descriptor, data, size);
  const auto call = [](int file, const void* bytes, size_t count, off_t) { return next(file, bytes, count); };
  return WriteThrough(call, descriptor, data, size, ::lseek(descriptor, 0, SEEK_CUR));
}

int ftruncate(int descriptor, off_t size) noexcept {
  static auto* const next = Next<int(int, off_t)>("ftruncate");
  return Through(Kind::Truncate, WatchedOpen(descriptor), {}, [&] { return next(descriptor, size); });
}

int ftruncate64(int descriptor, off64_t size) noexcept {
  static auto* const next = Next<int(int, off64_t)>("ftruncate64");
  return Through(Kind::Truncate, WatchedOpen(descriptor), {}, [&] { return next(descriptor, size); });
}

int fsync(int descriptor) {
  static auto* const next = Next<int(int)>("fsync");
  return FlushThrough(next, descriptor);
}

int fdatasync(int descriptor) {
  static auto* const next = Next<int(int)>("fdatasync");
  return FlushThrough(next, descriptor);
}

int fchmod(int descriptor, mode_t mode) noexcept {
  static auto* const next = Next<int(int, mode_t)>("fchmod");
  return Through(Kind::Permissions, WatchedOpen(descriptor), {}, [&] { return next(descriptor, mode); });
}

int rename(const char* from, const char* to) noexcept {
  static auto* const next = Next<int(const char*, const char*)>("rename");
  return Through(Kind::Rename, Watched(from), to, [&] { return next(from, to); });
}

int unlink(const char* path) noexcept {
  static auto* const next = Next<int(const char*)>("unlink");
  return Through(Kind::Remove, Watched(path), {}, [&] { return next(path); });
}

int mkdir(const char* path, mode_t mode) noexcept {
  static auto* const next = Next<int(const char*, mode_t)>("mkdir");
  return Through(Kind::MakeFolder, Watched(path), {}, [&] { return next(path, mode); });
}

int mkdirat(int folder, const char* path, mode_t mode) noexcept {
  static auto* const next = Next<int(int, const char*, mode_t)>("mkdirat");
  return Through(Kind::MakeFolder, WatchedIn(folder, path), {}, [&] { return next(folder, path, mode); });
}

int access(const char* path, int mode) noexcept {
  static auto* const next = Next<int(const char*, int)>("access");
  return Through(Kind::Look, Watched(path), {}, [&] { return next(path, mode); });
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
  static auto* const next = Next<int(int, const char*, int, int)>("faccessat");
  return Through(Kind::Look, WatchedIn(folder, path), {}, [&] { return next(folder, path, mode, flags); });
}

int stat(const char* path, struct stat* status) noexcept {
  static auto* const next = Next<int(const char*, struct stat*)>("stat");
  return Through(Kind::Look, Watched(path), {}, [&] { return next(path, status); });
}

int lstat(const char* path, struct stat* status) noexcept {
  static auto* const next = Next<int(const char*, struct stat*)>("lstat");
  return Through(Kind::Look, Watched(path), {}, [&] { return next(path, status); });
}

int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
  static auto* const next = Next<int(int, const char*, struct stat*, int)>("fstatat");
  return Through(Kind::Look, WatchedIn(folder, path), {}, [&] { return next(folder, path, status, flags); });
}

ssize_t getdents64(int folder, void* entries, size_t size) noexcept {
  static auto* const next = Next<ssize_t(int, void*, size_t)>("getdents64");
  return Through(Kind::List, WatchedOpen(folder), {}, [&] { return next(folder, entries, size); });
}

}  // extern "C"
