/// A data tree whose one file holds what a test or the fuzzer made up, the reader of that file, and the judgement on
/// what the reader did with it.
#pragma once

#include <functional>
#include <memory>
#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <vector>

#include "fuzz/WatchedDevice.h"
#include "shell/CommonDiskRoutines.h"
#include "support/AgreeingDialogs.h"
#include "support/FixedClock.h"

class ReaderDesk;

/// One reader of the program and the file that it reads.
struct ReaderTarget {
  QByteArray Name;
  QString File;  ///< Root-relative.
  std::function<void(ReaderDesk&)> Load;
  int RecordLength = 0;     ///< 0 for a text.
  bool AlsoWrites = false;  ///< The load ends in a save of its own; any other reader leaves the tree alone.
  QString SecondFile{};     ///< Holds the same bytes; empty where there is none.
};

class ReaderDesk {
 public:
  /// On the memory disk where the system has one: a load then costs microseconds.
  ReaderDesk();

  /// Puts the bytes into the target's file, the only one of the tree at its first run, and loads it. The answer is
  /// empty where the load went through or was refused by a RuntimeError that names the file, and nothing was written;
  /// else it says what went wrong.
  QByteArray Run(const ReaderTarget& target, const QByteArray& bytes);
  int Refused() const { return m_refused; }  ///< How many of the runs ended in a RuntimeError.

  QString Root() const { return m_folder.path(); }
  CommonDiskRoutines& Disk() { return *m_disk; }
  Dialogs& Boxes() { return m_dialogs; }
  const Clock& Today() const { return m_clock; }

 private:
  void ClearFor(const QByteArray& target);
  void Put(const QString& name, const QByteArray& bytes);
  QTemporaryDir m_folder;
  WatchedDevice m_device;
  FileStore m_store{m_device};
  std::unique_ptr<CommonDiskRoutines> m_disk;
  AgreeingDialogs m_dialogs;
  FixedClock m_clock;
  QByteArray m_target;
  int m_refused = 0;
};

/// Every reader of the rules, in a fixed order.
std::vector<ReaderTarget> ReaderTargets();
std::vector<ReaderTarget> SettingsReaders();
std::vector<ReaderTarget> RecordReaders();
std::vector<ReaderTarget> InvoiceReaders();
std::vector<ReaderTarget> PageReaders();
std::vector<ReaderTarget> ReportReaders();
