#include "runtime/FileStore.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <vector>

#include "runtime/FileErrors.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

/// Beside the target, so that the rename stays on one disk; one fixed name, so that what a kill leaves behind is gone
/// after the next save. No list of files shows it.
constexpr auto TemporaryEnding = ".new"_L1;

QString TemporaryNameOf(const QString& path) {
  return path + TemporaryEnding;
}

/// Some file systems, network ones above all, can't flush a folder and say so: there is nothing to flush then.
void FlushFolderOf(FileDevice& device, const QString& path) {
  const int flushed = device.FlushFolder(FolderOf(path));
  if (flushed != -EINVAL) CheckFile(flushed, path);
}

/// An open file that is closed whatever happens.
class OpenFile {
 public:
  OpenFile(FileDevice& device, int descriptor) : m_device(device), m_descriptor(descriptor) {}
  ~OpenFile() {
    if (m_descriptor >= 0) m_device.Close(m_descriptor);
  }
  Q_DISABLE_COPY_MOVE(OpenFile)
  int Descriptor() const { return m_descriptor; }
  int Close() { return m_device.Close(std::exchange(m_descriptor, -1)); }

 private:
  FileDevice& m_device;
  int m_descriptor;
};

/// Writes to the last byte, whatever the device takes at a time. 0 or a negative errno; `taken` counts what was taken.
qint64 WriteAll(FileDevice& device, int descriptor, QByteArrayView bytes, qint64 offset, qint64* taken = nullptr) {
  while (!bytes.isEmpty()) {
    const qint64 written = device.Write(descriptor, bytes.data(), bytes.size(), offset);
    if (written < 0) return written;
    if (written == 0) return -ENOSPC;
    if (taken != nullptr) *taken += written;
    bytes = bytes.sliced(written);
    offset += written;
  }
  return 0;
}

/// Reads until `size` bytes are there or the file ends.
QByteArray ReadUpTo(FileDevice& device, int descriptor, qint64 size, qint64 offset, const QString& path) {
  QByteArray bytes(size, Qt::Uninitialized);
  qint64 filled = 0;
  while (filled < size) {
    const qint64 got = device.Read(descriptor, bytes.data() + filled, size - filled, offset + filled);
    CheckFile(got, path);
    if (got == 0) break;
    filled += got;
  }
  bytes.truncate(filled);
  return bytes;
}

/// Refused by its name, and not by memory that runs out while it is read.
[[noreturn]] void RaiseTooLarge(const QString& path) {
  throw RuntimeError::AtPath(ErrorNumber::Overflow, path, u"The file is larger than any that the program can read."_s);
}

/// Whether what the checked writer is writing, or left where it was killed, counts as a file.
enum class Unfinished { Skipped, Listed };

/// How much of a folder the system tells at a time. One question about it needs little, however much it holds.
constexpr size_t WholeFolder = 32768;
constexpr size_t StartOfFolder = 1024;

/// Calls `found` with each file of the folder that matches until it answers false. The kind of an entry comes with
/// its name; only where the file system doesn't tell it is the file itself looked at. A folder that isn't there is
/// empty; one that can't be read throws.
void EachMatch(const QString& folder, const QString& wildcard, Unfinished unfinished, size_t atATime,
               const std::function<bool(const QString&)>& found) {
  const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0 && errno == ENOENT) return;
  if (descriptor < 0) RaiseFileError(-errno, folder);
  const auto close = qScopeGuard([descriptor] { ::close(descriptor); });
  const auto pattern =
      QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::wildcardToRegularExpression(wildcard)),
                         QRegularExpression::CaseInsensitiveOption);
  std::vector<char> entries(atATime);
  while (true) {
    const ssize_t told = ::getdents64(descriptor, entries.data(), entries.size());
    if (told < 0) RaiseFileError(-errno, folder);
    if (told == 0) return;
    for (ssize_t at = 0; at < told;) {
      const auto* entry = reinterpret_cast<const dirent64*>(entries.data() + at);
      at += entry->d_reclen;
      if (entry->d_type == DT_DIR) continue;
      const QString name = QFile::decodeName(entry->d_name);
      if (unfinished == Unfinished::Skipped && name.endsWith(TemporaryEnding)) continue;
      if (!pattern.match(name).hasMatch()) continue;
      if (entry->d_type != DT_REG && !IsFileAt(folder + u'/' + name)) continue;
      if (!found(name)) return;
    }
  }
}

QStringList SortedMatches(const QString& folder, const QString& wildcard, Unfinished unfinished) {
  QStringList names;
  EachMatch(folder, wildcard, unfinished, WholeFolder, [&](const QString& name) {
    names.append(name);
    return true;
  });
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
  });
  return names;
}

}  // namespace

bool FileStore::IsFile(const QString& path) const {
  return IsFileAt(path);
}

bool FileStore::IsFolder(const QString& path) const {
  return IsFolderAt(path);
}

qint64 FileStore::Size(const QString& path) const {
  struct stat status;
  if (::stat(QFile::encodeName(path).constData(), &status) < 0) RaiseFileError(-errno, path);
  return status.st_size;
}

QStringList FileStore::List(const QString& folder, const QString& wildcard) const {
  return SortedMatches(folder, wildcard, Unfinished::Skipped);
}

QStringList FileStore::ListEverything(const QString& folder) const {
  return SortedMatches(folder, QStringLiteral("*"), Unfinished::Listed);
}

bool FileStore::AnyMatch(const QString& folder, const QString& wildcard) const {
  QString& known = m_knownMatches[folder + u'/' + wildcard];
  if (!known.isEmpty() && IsFileAt(known)) return true;
  known.clear();
  EachMatch(folder, wildcard, Unfinished::Skipped, StartOfFolder, [&](const QString& name) {
    known = folder + u'/' + name;
    return false;
  });
  return !known.isEmpty();
}

QByteArray FileStore::ReadWhole(const QString& path) const {
  const qint64 size = Size(path);
  if (size > LargestWholeFile) RaiseTooLarge(path);
  return ReadPart(path, 0, size);
}

QByteArray FileStore::ReadPart(const QString& path, qint64 offset, qint64 size) const {
  const int descriptor = m_device.Open(path, FileDevice::OpenMode::Read);
  CheckFile(descriptor, path);
  const OpenFile file(m_device, descriptor);
  return ReadUpTo(m_device, descriptor, size, offset, path);
}

QByteArray FileStore::ReadLines(const QString& path, int lines) const {
  constexpr qint64 chunk = 512;
  const int descriptor = m_device.Open(path, FileDevice::OpenMode::Read);
  CheckFile(descriptor, path);
  const OpenFile file(m_device, descriptor);
  QByteArray bytes;
  qsizetype end = 0;  // Behind the last line found.
  int found = 0;
  while (found < lines) {
    const qsizetype before = bytes.size();
    if (before > LargestWholeFile) RaiseTooLarge(path);
    // As much again as was read so far: a long line isn't read in thousands of pieces.
    const qint64 wanted = std::min(std::max<qint64>(chunk, before), LargestWholeFile + 1 - before);
    bytes.resize(before + wanted);
    const qint64 got = m_device.Read(descriptor, bytes.data() + before, wanted, before);
    CheckFile(got, path);
    bytes.truncate(before + got);
    // The last line may have no end.
    if (got == 0) return bytes;
    for (qsizetype from = before; found < lines; ++found) {
      const qsizetype feed = bytes.indexOf('\n', from);
      if (feed < 0) break;
      end = from = feed + 1;
    }
  }
  bytes.truncate(end);
  return bytes;
}

void FileStore::RequireInTree(const QString& path) const {
  if (m_tree.isEmpty() || !path.startsWith(m_tree + u'/')) return;
  qsizetype end = m_tree.size() + 1;
  while ((end = path.indexOf(u'/', end)) >= 0) CheckNoLink(path.left(end++));
}

void FileStore::WriteTemporary(const QString& temporary, const QString& path, const QByteArray& content) {
  const int descriptor = m_device.Open(temporary, FileDevice::OpenMode::WriteNew);
  CheckFile(descriptor, path);
  OpenFile file(m_device, descriptor);
  if (IsFile(path)) CheckFile(m_device.CopyPermissions(path, descriptor), path);
  CheckFile(WriteAll(m_device, descriptor, content, 0), path);
  CheckFile(m_device.Flush(descriptor), path);
  CheckFile(file.Close(), path);
}

void FileStore::ReplaceWhole(const QString& path, const QByteArray& content) {
  RequireInTree(path);
  // A rename would replace a write-protected file as well; the protection is somebody's wish.
  const int mayWrite = m_device.MayWrite(path);
  if (mayWrite != -ENOENT) CheckFile(mayWrite, path);

  const QString temporary = TemporaryNameOf(path);
  m_device.Remove(temporary);
  try {
    WriteTemporary(temporary, path, content);
    CheckFile(m_device.Rename(temporary, path), path);
  } catch (const RuntimeError&) {
    Discard(temporary);
    throw;
  }
  FlushFolderOf(m_device, path);
}

void FileStore::WriteInPlace(const QString& path, qint64 offset, const QByteArray& bytes) {
  RequireInTree(path);
  const bool isNew = !IsFile(path);
  int descriptor = m_device.Open(path, FileDevice::OpenMode::Update);
  if (descriptor == -ELOOP) {
    // Nothing is written through a link: the tree gets a file of its own in the link's place.
    ReplaceWhole(path, isNew ? QByteArray() : ReadWhole(path));
    descriptor = m_device.Open(path, FileDevice::OpenMode::Update);
  }
  CheckFile(descriptor, path);
  OpenFile file(m_device, descriptor);
  const qint64 lengthBefore = Size(path);
  QByteArray before;
  if (offset < lengthBefore) before = ReadUpTo(m_device, descriptor, bytes.size(), offset, path);

  qint64 taken = 0;
  qint64 failed = WriteAll(m_device, descriptor, bytes, offset, &taken);
  // Some disks tell only at the close that they couldn't keep what they took.
  const int closed = file.Close();
  if (failed == 0) failed = closed;
  if (failed == 0) return;
  if (isNew) {
    Discard(path);
  } else if (taken > 0 && !PutBack(path, before, offset, lengthBefore)) {
    throw RuntimeError::AtPath(ErrorNumber::DeviceError, path);
  }
  RaiseFileError(failed, path);
}

/// Undoes a write in place; false if that fails as well.
bool FileStore::PutBack(const QString& path, const QByteArray& before, qint64 offset, qint64 lengthBefore) {
  const int descriptor = m_device.Open(path, FileDevice::OpenMode::Update);
  if (descriptor < 0) return false;
  OpenFile file(m_device, descriptor);
  const bool written = WriteAll(m_device, descriptor, before, offset) == 0;
  const bool cut = Size(path) <= lengthBefore || m_device.Truncate(descriptor, lengthBefore) == 0;
  return file.Close() == 0 && written && cut;
}

void FileStore::Copy(const QString& from, const QString& to) {
  ReplaceWhole(to, ReadWhole(from));
}

void FileStore::Rename(const QString& from, const QString& to) {
  RequireInTree(from);
  RequireInTree(to);
  const int mayWrite = m_device.MayWrite(to);
  if (mayWrite != -ENOENT) {
    // As where a file is written anew: what is replaced keeps its protection and its permissions.
    CheckFile(mayWrite, to);
    const int descriptor = m_device.Open(from, FileDevice::OpenMode::Read);
    CheckFile(descriptor, from);
    OpenFile file(m_device, descriptor);
    CheckFile(m_device.CopyPermissions(to, descriptor), to);
    CheckFile(file.Close(), from);
  }
  CheckFile(m_device.Rename(from, to), from);
  FlushFolderOf(m_device, to);
}

void FileStore::Remove(const QString& path) {
  RequireInTree(path);
  const int result = m_device.Remove(path);
  if (result < 0 && result != -ENOENT && result != -ENOTDIR) RaiseFileError(result, path);
}

void FileStore::Discard(const QString& path) {
  try {
    Remove(path);
  } catch (const RuntimeError&) {
    // It stays.
  }
}

void FileStore::MakeFolder(const QString& path) {
  // Nearly always it is there: one look is cheaper than an attempt, which would have to look afterwards as well.
  RequireInTree(path + u'/');
  if (IsFolder(path)) return;
  CheckFolder(m_device.MakeFolder(path), path);
}

void FileStore::MakePath(const QString& path) {
  if (IsFolder(path)) return;
  const QString parent = FolderOf(path);
  if (parent != path) MakePath(parent);
  MakeFolder(path);
}
