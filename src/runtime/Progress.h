/// How far a long piece of work has come.
#pragma once

#include <chrono>
#include <functional>
#include <QtGlobal>

/// The work tells `done` of `total` steps now and then; the answer is whether to go on. Work that is told to stop
/// leaves everything whole. An empty one always goes on.
using Progress = std::function<bool(qint64 done, qint64 total)>;

/// When work counts as long, so that a screen shows its progress.
struct LongWork {
  qint64 After = 500;              ///< Milliseconds.
  std::function<qint64()> Time{};  ///< In milliseconds, from any moment on; empty is the machine's own.

  qint64 Now() const {
    using namespace std::chrono;
    return Time ? Time() : duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
  }
};

/// Asks at every 1024th step only, so that asking costs nothing.
inline bool GoesOn(const Progress& progress, qint64 done, qint64 total) {
  return !progress || done % 1024 != 0 || progress(done, total);
}

/// One of `parts` equal parts of the work, from 0: its steps are told as steps of the whole.
inline Progress PartOf(const Progress& progress, qint64 part, qint64 parts) {
  if (!progress) return {};
  return [=](qint64 done, qint64 total) { return progress(part * total + done, parts * total); };
}
