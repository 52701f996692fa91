/// One save, prepared once on a folder of its own, and done as often as a sweep wants: each time from the same tree, by
/// a process of its own that begins where the user is about to save.
///
/// A process that was prepared waits there and forks for each try; what a try does to itself, its death included,
/// leaves the prepared one untouched. A restart is a fork of this process, in which no program has been started yet.
#pragma once

#include <sys/types.h>
#include <vector>

#include "torture/DataTree.h"
#include "torture/FileCalls.h"
#include "torture/Saves.h"

/// What became of one try.
struct Outcome {
  bool Killed = false;  ///< By the plan.
  QString Broken;       ///< How the process ended otherwise than it should; empty if it did as it should.
  DataTree Tree;        ///< When the user had the screen again, or the process was dead.
  QStringList Boxes;
  int Calls = 0;
  FileCalls::Note Harmed{};
  QStringList HarmedPaths;
  std::vector<FileCalls::Note> Notes;  ///< Of an unharmed try.

  bool DidAgain = false;  ///< The same once more in the same process, unharmed.
  DataTree AgainTree;
  QStringList AgainBoxes;
};

class SmallDisk;

/// The files and folders below the root that the call changes.
QStringList ChangedBy(const FileCalls::Note& note, const QString& root);

/// Whether the box tells that something failed.
bool TellsFailure(const QString& box);
QStringList FailuresOf(const QStringList& boxes);

class Bench {
 public:
  /// `folder` is this bench's own; it is emptied.
  Bench(const Save& save, const QString& folder);
  ~Bench();
  Bench(const Bench&) = delete;
  Bench& operator=(const Bench&) = delete;

  const Save& What() const { return m_save; }
  const DataTree& Before() const { return m_before; }
  const DataTree& After() const { return m_unharmed.Tree; }
  const Outcome& Unharmed() const { return m_unharmed; }
  /// What keeps the bench from being of any use; empty if nothing.
  QString Unusable() const;

  /// What in the tree is torn: neither as before nor as after the save.
  QString TornIn(const DataTree& tree) const { return Torn(m_before, After(), tree, m_inPlace); }
  Outcome Try(const FileCalls::Plan& plan, bool again = false);
  /// Unharmed, on a disk that `disk` leaves so many blocks on.
  Outcome TryOn(const SmallDisk& disk, int blocks);
  /// The same on a disk that can only be read.
  Outcome TryReadOnly(const SmallDisk& disk);
  /// A start on the tree before the save, on such a disk.
  Outcome StartReadOnly(const SmallDisk& disk);
  /// A new start on this tree; where `saves`, the way to the save and the save itself as well.
  Outcome Restart(const DataTree& tree, bool saves);
  /// The folder that holds the tree.
  QString Root() const { return m_folder + QStringLiteral("/root"); }

 private:
  Outcome Run(const FileCalls::Plan& plan, bool again);
  Outcome InNewProgram(const std::function<void(Desk&)>& work);
  QString ChangedUnseen() const;
  [[noreturn]] void Serve(int requests, int answers);
  Outcome Read(int status);
  QString AfterFile() const { return m_folder + QStringLiteral("/after"); }
  QString ReportFile() const { return m_folder + QStringLiteral("/report"); }

  const Save& m_save;
  QString m_folder;
  DataTree m_before;
  Outcome m_unharmed;
  QSet<QString> m_inPlace;  ///< The files that the save writes in without replacing them.
  pid_t m_server = -1;
  int m_requests = -1;
  int m_answers = -1;
};
