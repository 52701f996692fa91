/// The sweeps: each does one save many times, harms it in each way there is, and looks at what the disk holds and what
/// the user was told.
#pragma once

#include <chrono>
#include <functional>
#include <QMap>
#include <QSet>
#include <QStringList>

#include "torture/Bench.h"

/// How much of a sweep is done: all of its cases, or an even sample of them.
class Effort {
 public:
  int Every = 1;         ///< Of the cases that may be sampled: each `Every`th.
  int RestartEvery = 1;  ///< Of the trees that were left: each `RestartEvery`th is started on again.
  std::chrono::steady_clock::time_point Deadline = std::chrono::steady_clock::time_point::max();

  bool IsOver() const { return std::chrono::steady_clock::now() >= Deadline; }
  /// Calls `work` with numbers below `count`, evenly spread from the first on, until the time is over.
  void Sample(int count, const std::function<void(int)>& work) const;
  /// For what no sample leaves out: calls it with every number below `count`, until the time is over.
  void Each(int count, const std::function<void(int)>& work) const;
};

/// What the sweeps of one save found.
struct Findings {
  QMap<QString, int> Counts;  ///< By what was done.
  QStringList Failures;

  void Add(const Bench& bench, const QString& what, const QString& lines);
};

class Sweep {
 public:
  Sweep(Bench& bench, const Effort& effort, Findings& findings)
      : m_bench(bench), m_effort(effort), m_findings(findings) {}

  /// Killed before each call, and in the middle of each write: every file is whole, and the restarted program does the
  /// same save to the end.
  void Kill();
  /// Each call fails, once and from then on, for want of room, of a sound disk and of permission.
  void Errors();
  /// Each write takes less than it was given, and the rest later or never.
  void ShortWrites();
  /// The disk has room for nothing, for one block more each time, at last for all.
  void FullDisk();
  /// The same on a real file system of so many blocks, where this user may make one.
  void SmallFileSystem();
  /// On a file system that can only be read, where this user may make one: the save is told of or goes as its place has
  /// it, and so is a start; nothing changes, and the save works when the disk takes writes again.
  void ReadOnly();
  /// From the unharmed trace: what is published was flushed before, and its folder behind it, before the user hears.
  void Order();

 private:
  void KillOnce(const FileCalls::Plan& plan, const QString& what);
  void StartAgain(const DataTree& left, const QString& what);
  void Fail(const FileCalls::Plan& plan, const QString& what);
  QString JudgeFailure(const FileCalls::Plan& plan, const Outcome& outcome) const;
  QString FileAtStake(const FileCalls::Note& harmed) const;
  bool NamesTheRootOrAFileInIt(const QStringList& told) const;
  QString JudgeTelling(const Outcome& outcome) const;
  QString JudgeDone(const DataTree& files) const;
  QString JudgePublished(const FileCalls::Note& harmed, const Outcome& outcome) const;
  void GoOn(const Outcome& outcome, const QString& what);
  DataTree Wanted(const DataTree& left) const;

  Bench& m_bench;
  const Effort& m_effort;
  Findings& m_findings;
  QSet<QByteArray> m_restarted;  ///< Trees that a restart was tried on.
  int m_states = 0;
};

/// What is wrong with the order of a trace; empty if nothing is.
QString OrderFaults(const std::vector<FileCalls::Note>& notes);
