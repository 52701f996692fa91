/// What stands behind the calls of FileCalls.cpp: whether a path is looked after, and what is to become of a call.
#pragma once

#include <sys/types.h>
#include <cerrno>
#include <string>

#include "torture/FileCalls.h"

namespace FileCalls {

/// The path if it lies below the folder, else empty. A relative one belongs to an open folder.
std::string Watched(const char* path);
std::string WatchedIn(int folder, const char* path);
std::string WatchedOpen(int descriptor);
void Remember(int descriptor, const std::string& path);
void Forget(int descriptor);

/// Counts the call and kills the process if its turn has come. 0, or the error that it is to answer.
int Enter(Kind kind, const std::string& path, const std::string& to = {}, long size = 0, int descriptor = -1);
/// How many of the bytes the write may take; negative: the error.
long Allowed(int descriptor, size_t size, off_t offset);
/// Notes what became of the call that was entered last.
void Leave(long result);
void LeaveOpened(int descriptor);
/// For a write that dies on its way.
bool DiesTorn();
[[noreturn]] void Die();

/// A call that answers 0 or more, or -1 and errno.
template <typename Call>
auto Through(Kind kind, const std::string& path, const std::string& to, Call call) -> decltype(call()) {
  if (path.empty()) return call();
  if (const int error = Enter(kind, path, to)) {
    errno = error;
    return -1;
  }
  const auto result = call();
  const int error = errno;
  Leave(result < 0 ? -error : static_cast<long>(result));
  errno = error;
  return result;
}

}  // namespace FileCalls
