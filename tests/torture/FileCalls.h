/// Every call of this process that touches a file below one folder, counted and noted, and one of them harmed: the
/// process dies at it, or it fails, or takes less than it was given.
///
/// The calls of the C library are defined anew in the program that these sources are linked into (FileCalls.cpp), so
/// they are seen whoever makes them. They belong to the whole process; so does this state.
#pragma once

#include <string>
#include <vector>

namespace FileCalls {

enum class Kind {
  Look,    ///< Whether something is there, or may be written.
  List,    ///< A folder's names.
  Open,    ///< To read, or a folder.
  Create,  ///< To write, creating what isn't there.
  Read,
  Write,
  Truncate,
  Flush,
  Close,
  Permissions,
  Rename,
  Remove,
  MakeFolder,
  Mark  ///< No call: what the driver notes among them.
};

enum class Harm {
  None,
  Kill,           ///< Before the nth call.
  KillTorn,       ///< In the nth call, a write, after `Size` bytes of it.
  FailOnce,       ///< The nth call answers `Error` and does nothing; a close closes all the same.
  FailFromOn,     ///< It and all behind it that `Error` can befall.
  ShortOnce,      ///< The nth call, a write, takes `Size` bytes; what follows is sound.
  ShortThenFull,  ///< The same, and every later write that would lengthen a file answers `Error`.
  FullDisk        ///< All files together may grow by `Size` blocks of `BlockSize` bytes; then `Error`.
};

struct Plan {
  Harm What = Harm::None;
  int Nth = 0;
  int Error = 0;
  long Size = 0;
};

struct Note {
  Kind What;
  int Nth;           ///< From 1; 0 of a mark.
  std::string Path;  ///< Absolute; a rename's source; a mark's text.
  std::string To;    ///< A rename's target.
  long Size;         ///< A write's bytes as they were given.
  long Result;       ///< A count or descriptor, or a negative error number.
  int Descriptor;
};

constexpr long BlockSize = 4096;

/// From now on the calls below the folder are counted, from 1, and noted, and the harm is done.
void Arm(const char* folder, const Plan& plan);
/// Calls pass unseen again.
void Disarm();
/// The harm is over; counting and noting go on.
void Heal();
int Count();
const std::vector<Note>& Notes();
void Mark(const std::string& text);
/// The call that was harmed first, or an empty note; and what all harmed ones were about.
const Note& Harmed();
const std::vector<std::string>& HarmedPaths();

const char* NameOf(Kind kind);

}  // namespace FileCalls
