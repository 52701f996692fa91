#include "support/FailingDevice.h"

#include <algorithm>

void FailingDevice::FailAt(Call call, int nth, int error) {
  Reset();
  m_failures[{call, nth}] = error;
}

void FailingDevice::FailAlways(Call call, int error) {
  Reset();
  m_always[call] = error;
}

void FailingDevice::WriteShortAt(int nth, qint64 size, int error) {
  FailAt(Call::Write, nth + 1, error);
  m_shortAt = nth;
  m_shortSize = size;
}

void FailingDevice::KillAt(int nth) {
  Reset();
  m_killAt = nth;
}

int FailingDevice::Count(Call call) const {
  const auto found = m_counts.find(call);
  return found == m_counts.end() ? 0 : found->second;
}

void FailingDevice::Reset() {
  m_counts.clear();
  m_paths.clear();
  m_all = 0;
  m_bytesRead = 0;
  m_failures.clear();
  m_always.clear();
  m_killAt = 0;
  m_shortAt = 0;
}

QStringList FailingDevice::PathsOf(Call call) const {
  QStringList paths;
  for (const auto& [kind, path] : m_paths) {
    if (kind == call) paths.append(path);
  }
  return paths;
}

int FailingDevice::Enter(Call call) {
  const int nth = ++m_counts[call];
  ++m_all;
  // Closing is what the system does for a killed process; it runs from a destructor and can't throw.
  if (m_killAt > 0 && m_all >= m_killAt && call != Call::Close) throw Killed();
  if (const auto always = m_always.find(call); always != m_always.end()) return -always->second;
  const auto failure = m_failures.find({call, nth});
  return failure == m_failures.end() ? 0 : -failure->second;
}

int FailingDevice::MayWrite(const QString& path) {
  const int failed = Enter(Call::MayWrite);
  return failed < 0 ? failed : FileDevice::MayWrite(path);
}

int FailingDevice::Open(const QString& path, OpenMode mode) {
  const int failed = Enter(Call::Open);
  Note(Call::Open, path);
  return failed < 0 ? failed : FileDevice::Open(path, mode);
}

qint64 FailingDevice::Read(int descriptor, char* data, qint64 size, qint64 offset) {
  const int failed = Enter(Call::Read);
  if (failed < 0) return failed;
  const qint64 read = FileDevice::Read(descriptor, data, size, offset);
  m_bytesRead += std::max<qint64>(read, 0);
  return read;
}

qint64 FailingDevice::Write(int descriptor, const char* data, qint64 size, qint64 offset) {
  const int failed = Enter(Call::Write);
  if (failed < 0) return failed;
  if (m_shortAt == Count(Call::Write)) size = m_shortSize;
  return FileDevice::Write(descriptor, data, size, offset);
}

int FailingDevice::Truncate(int descriptor, qint64 size) {
  const int failed = Enter(Call::Truncate);
  return failed < 0 ? failed : FileDevice::Truncate(descriptor, size);
}

int FailingDevice::Flush(int descriptor) {
  const int failed = Enter(Call::Flush);
  return failed < 0 || m_skipFlushes ? failed : FileDevice::Flush(descriptor);
}

int FailingDevice::Close(int descriptor) {
  const int failed = Enter(Call::Close);
  const int closed = FileDevice::Close(descriptor);
  return failed < 0 ? failed : closed;
}

int FailingDevice::CopyPermissions(const QString& from, int descriptor) {
  const int failed = Enter(Call::CopyPermissions);
  return failed < 0 ? failed : FileDevice::CopyPermissions(from, descriptor);
}

int FailingDevice::Rename(const QString& from, const QString& to) {
  const int failed = Enter(Call::Rename);
  Note(Call::Rename, to);
  return failed < 0 ? failed : FileDevice::Rename(from, to);
}

int FailingDevice::Remove(const QString& path) {
  const int failed = Enter(Call::Remove);
  return failed < 0 ? failed : FileDevice::Remove(path);
}

int FailingDevice::MakeFolder(const QString& path) {
  const int failed = Enter(Call::MakeFolder);
  return failed < 0 ? failed : FileDevice::MakeFolder(path);
}

int FailingDevice::MakeFolderIn(int folder, const char* name) {
  const int failed = Enter(Call::MakeFolder);
  return failed < 0 ? failed : FileDevice::MakeFolderIn(folder, name);
}

int FailingDevice::FlushFolder(const QString& path) {
  const int failed = Enter(Call::FlushFolder);
  return failed < 0 || m_skipFlushes ? failed : FileDevice::FlushFolder(path);
}
