/// A file device that works on the real disk until the test's nth call, then fails as a full or broken disk does, or
/// stops as if the process had been killed.
#pragma once

#include <map>
#include <QStringList>

#include "runtime/FileDevice.h"

class FailingDevice : public FileDevice {
 public:
  enum class Call {
    MayWrite,
    Open,
    Read,
    Write,
    Truncate,
    Flush,
    Close,
    CopyPermissions,
    Rename,
    Remove,
    MakeFolder,
    FlushFolder
  };

  /// Thrown in place of the call at which the process is killed, and of every later one.
  struct Killed {};

  /// The `nth` call of the kind from now on, from 1, answers `-error` and does nothing.
  void FailAt(Call call, int nth, int error);
  /// Besides what is set already, without a new count.
  void AlsoFailAt(Call call, int nth, int error) { m_failures[{call, nth}] = error; }
  /// Every call of the kind from now on.
  void FailAlways(Call call, int error);
  /// Besides what is set already, without a new count.
  void AlsoFailAlways(Call call, int error) { m_always[call] = error; }
  /// The `nth` write takes only `size` bytes; the one after it answers `-error`.
  void WriteShortAt(int nth, qint64 size, int error);
  /// Every call from the `nth` on, whatever its kind.
  void KillAt(int nth);
  /// Answers flushes without waiting for the disk: for tests of what is written, not of how safely.
  void SkipFlushes() { m_skipFlushes = true; }
  /// All calls of a kind, or of any kind, since the last setting.
  int Count(Call call) const;
  int CountAll() const { return m_all; }
  /// Every call of the kind since the last setting, in order: the path where the call has one (a rename's target).
  QStringList PathsOf(Call call) const;
  /// What was read since the last setting: a scan shows where a single record would do.
  qint64 BytesRead() const { return m_bytesRead; }
  /// Nothing fails any more; the counts begin anew.
  void Reset();

  int MayWrite(const QString& path) override;
  int Open(const QString& path, OpenMode mode) override;
  qint64 Read(int descriptor, char* data, qint64 size, qint64 offset) override;
  qint64 Write(int descriptor, const char* data, qint64 size, qint64 offset) override;
  int Truncate(int descriptor, qint64 size) override;
  int Flush(int descriptor) override;
  int Close(int descriptor) override;
  int CopyPermissions(const QString& from, int descriptor) override;
  int Rename(const QString& from, const QString& to) override;
  int Remove(const QString& path) override;
  int MakeFolder(const QString& path) override;
  int MakeFolderIn(int folder, const char* name) override;
  int FlushFolder(const QString& path) override;

 private:
  /// Counts the call; a negative errno if it is the one to fail.
  int Enter(Call call);

  void Note(Call call, const QString& path) { m_paths.append({call, path}); }

  std::map<Call, int> m_counts;
  QList<std::pair<Call, QString>> m_paths;
  int m_all = 0;
  qint64 m_bytesRead = 0;
  std::map<std::pair<Call, int>, int> m_failures;
  std::map<Call, int> m_always;
  int m_killAt = 0;
  bool m_skipFlushes = false;
  int m_shortAt = 0;
  qint64 m_shortSize = 0;
};
