/// A data file and its copy in the Backup folder, each in any of the states that a disk may leave it in: what the tests
/// of all such pairs share. A file that is there is never fetched from the copy, whatever it holds; one that is missing
/// is, and one that can't be read doesn't become the copy.
#pragma once

#include <functional>
#include <optional>

#include "support/ProgramFixture.h"

/// What a place may hold, and what the program makes of it where it reads it.
struct CopyState {
  const char* Name;
  std::optional<QByteArray> Bytes;  ///< Nothing: no file.
  bool Loads;
  QString Seen;                         ///< On the screen that shows it; else words of the box that tells.
  std::optional<QByteArray> Left = {};  ///< What is there afterwards, where the reading changes it.
};

/// One bit of one byte changed.
QByteArray Flipped(QByteArray bytes, const char* before, char mask);

QString CopyOf(const QString& file);
/// Writes the file, or removes what is there.
void Put(const TemporaryTree& tree, const QString& name, const std::optional<QByteArray>& bytes);
std::optional<QByteArray> Held(const TemporaryTree& tree, const QString& name);
/// Whether the file is one of the 18 that the end of the program copies.
bool IsCopiedAtExit(const QString& file);
/// Only what is missing is fetched.
inline const CopyState& ReadOf(const CopyState& live, const CopyState& copy) {
  return live.Bytes ? live : copy;
}

void AddPairColumns();
/// A row for each state of the file with each of its copy.
void AddPairRows(int subject, const QString& file, const QList<CopyState>& states);
template <typename Subject>
void AddPairs(const QList<Subject>& subjects) {
  AddPairColumns();
  for (int s = 0; s < subjects.size(); ++s) AddPairRows(s, subjects[s].File, subjects[s].States);
}

/// A file that is read while the program is worked on.
struct ReadLater {
  /// What comes of a file that can't be loaded: the program tells it and ends, tells it and goes on, or a print job has
  /// its own message.
  enum class Unreadable { EndsIt, IsTold, FailsThePrint };
  /// What the reading does to the copy.
  enum class Copy { Kept, Dropped };

  QString File;
  Unreadable Then = Unreadable::EndsIt;
  Copy Kind = Copy::Kept;
  /// What the user has before him when file and copy come into these states, from the main menu; without it they were
  /// so before the start.
  std::function<void()> Before = {};
  std::function<void(ProgramFixture&)> Go;  ///< From there to where it is read.
  std::function<QString(const ProgramFixture&)> See;
  QList<CopyState> States;
};

/// Which of the two is read, what is seen or told, and what stands on the disk then and after the end of the program.
void CheckReadLater(const ReadLater& about, const CopyState& live, const CopyState& copy);
