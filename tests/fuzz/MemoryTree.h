/// A tree of files that the process keeps to itself: the C library's calls that touch files, for one folder and what is
/// below it, done without the system. The fuzzer's loads take half of their time in those calls otherwise.
#pragma once

#include <QString>

namespace MemoryTree {

/// From now on `folder`, absolute, and all below it is kept here, empty at first; every other path is the system's.
/// Only the calls that the program's own reader and writer and the judge make are known here. One thread.
void KeepHere(const QString& folder);

}  // namespace MemoryTree
