// Too little room: short writes, a full disk by count, and a real one; and a real disk that takes no writes at all.
#include <cerrno>
#include <set>

#include "torture/SmallDisk.h"
#include "torture/Sweeps.h"

using namespace Qt::StringLiterals;
using FileCalls::Harm;
using FileCalls::Kind;
using FileCalls::Note;
using FileCalls::Plan;

void Sweep::ShortWrites() {
  struct Case {
    Plan What;
    std::string Path;
  };
  // Each write that stops half-way is never left out of a sample.
  std::vector<Case> halves, others;
  for (const Note& note : m_bench.Unharmed().Notes) {
    if (note.What != Kind::Write || note.Size == 0) continue;
    for (const long size : std::set<long>{0, 1, note.Size / 2, note.Size - 1}) {
      if (size == note.Size) continue;
      std::vector<Case>& cases = size == note.Size / 2 ? halves : others;
      if (size > 0) cases.push_back({{Harm::ShortOnce, note.Nth, ENOSPC, size}, note.Path});
      cases.push_back({{Harm::ShortThenFull, note.Nth, ENOSPC, size}, note.Path});
    }
  }
  const auto run = [this](const Case& one) {
    const auto& [plan, path] = one;
    ++m_findings.Counts[u"short writes"_s];
    const bool goesOn = plan.What == Harm::ShortOnce;
    const QString what = u"%1 bytes taken by write %2 (%3), the rest %4"_s.arg(plan.Size).arg(plan.Nth).arg(
        QString::fromStdString(path), goesOn ? u"later"_s : u"never"_s);
    if (!goesOn) {
      Fail(plan, what);
      return;
    }
    const Outcome outcome = m_bench.Try(plan);
    QString lines = outcome.Broken + Differences(m_bench.After(), outcome.Tree);
    lines += FailuresOf(outcome.Boxes).join(u'\n');
    m_findings.Add(m_bench, what, lines);
  };
  m_effort.Each(static_cast<int>(halves.size()), [&](int i) { run(halves[static_cast<std::size_t>(i)]); });
  m_effort.Sample(static_cast<int>(others.size()), [&](int i) { run(others[static_cast<std::size_t>(i)]); });
}

void Sweep::FullDisk() {
  for (int blocks = 0;; ++blocks) {
    ++m_findings.Counts[u"full disks"_s];
    const Plan plan{Harm::FullDisk, 0, ENOSPC, blocks};
    const QString what = u"room for %1 blocks"_s.arg(blocks);
    const Outcome outcome = m_bench.Try(plan, true);
    if (outcome.Broken.isEmpty() && outcome.Harmed.Nth == 0) {
      m_findings.Add(m_bench, what, Differences(m_bench.After(), outcome.Tree));
      return;
    }
    m_findings.Add(m_bench, what, JudgeFailure(plan, outcome));
    GoOn(outcome, what);
    if (m_effort.IsOver()) return;
  }
}

void Sweep::SmallFileSystem() {
  const SmallDisk disk(m_bench.Root());
  if (!disk.IsThere()) return;
  for (int blocks = 0; !m_effort.IsOver(); ++blocks) {
    ++m_findings.Counts[u"small disks"_s];
    const QString what = u"a real disk with room for %1 blocks"_s.arg(blocks);
    const Outcome outcome = m_bench.TryOn(disk, blocks);
    if (outcome.Broken.isEmpty() && outcome.Harmed.Nth == 0) {
      m_findings.Add(m_bench, what, Differences(m_bench.After(), outcome.Tree));
      return;
    }
    m_findings.Add(m_bench, what, JudgeFailure({}, outcome));
    GoOn(outcome, what);
  }
}

void Sweep::ReadOnly() {
  const SmallDisk disk(m_bench.Root());
  if (!disk.IsThere()) return;
  const QString what = u"a real disk that takes no writes"_s;
  m_findings.Counts[u"read-only"_s] += 2;
  const Outcome outcome = m_bench.TryReadOnly(disk);
  QString lines = JudgeFailure({Harm::FailFromOn, 1, EROFS, 0}, outcome);
  if (outcome.Broken.isEmpty()) lines += Differences(m_bench.Before(), outcome.Tree);
  m_findings.Add(m_bench, what, lines);
  GoOn(outcome, what);
  // A start either has nothing to write, or says what it can't.
  const Outcome start = m_bench.StartReadOnly(disk);
  lines = start.Broken + (start.Broken.isEmpty() ? Differences(m_bench.Before(), start.Tree) : QString());
  const bool told = !FailuresOf(start.Boxes).isEmpty();
  if (told != (start.Harmed.Nth > 0)) lines += u"  told: "_s + start.Boxes.join(u" | ") + u'\n';
  m_findings.Add(m_bench, u"a start on "_s + what, lines);
}
