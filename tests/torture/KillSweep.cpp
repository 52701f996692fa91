#include <QCryptographicHash>
#include <set>
#include <utility>

#include "torture/Sweeps.h"

using namespace Qt::StringLiterals;
using FileCalls::Harm;
using FileCalls::Plan;

namespace {

/// The tree as one value; what stands in a temporary file is of no account to a restart, only that it is there.
QByteArray FingerprintOf(const DataTree& tree) {
  QCryptographicHash hash(QCryptographicHash::Sha1);
  for (const auto& [name, bytes] : tree.asKeyValueRange()) {
    const bool temporary = TemporariesOf({{name, {}}}).size() == 1;
    hash.addData(name.toUtf8() + '\0' + QByteArray::number(temporary ? 0 : bytes.size()) + '\0');
    if (!temporary) hash.addData(bytes);
  }
  return hash.result();
}

/// Each start makes the folders of each customer's notes.
DataTree WithoutNewFolders(DataTree tree, const DataTree& before) {
  for (const QString& name : tree.keys()) {
    if (name.startsWith(u"/AuxFiles/") && name.endsWith(u'/') && !before.contains(name)) tree.remove(name);
  }
  return tree;
}

bool Changes(FileCalls::Kind kind) {
  using FileCalls::Kind;
  return kind == Kind::Create || kind == Kind::Write || kind == Kind::Truncate || kind == Kind::Rename ||
         kind == Kind::Remove || kind == Kind::MakeFolder;
}

}  // namespace

void Effort::Sample(int count, const std::function<void(int)>& work) const {
  // From coarse to fine: whenever the time is over, what was done is spread over all of it.
  QSet<int> done;
  int stride = Every;
  while (stride < count) stride *= 2;
  for (; stride >= Every; stride /= 2) {
    for (int i = 0; i < count; i += stride) {
      if (done.contains(i)) continue;
      if (IsOver()) return;
      done.insert(i);
      work(i);
    }
    if (stride == 1) break;
  }
}

void Effort::Each(int count, const std::function<void(int)>& work) const {
  Effort each = *this;
  each.Every = 1;
  each.Sample(count, work);
}

void Findings::Add(const Bench& bench, const QString& what, const QString& lines) {
  if (!lines.isEmpty()) Failures.append(u"%1, %2:\n%3"_s.arg(bench.What().Name, what, lines));
}

DataTree Sweep::Wanted(const DataTree& left) const {
  return m_bench.What().Again ? m_bench.What().Again(left, m_bench.Before(), m_bench.After()) : m_bench.After();
}

/// Where the user takes it for done, only what the save names may be as it was before.
QString Sweep::JudgeDone(const DataTree& files) const {
  QString lines;
  for (const DataTree& tree : {files, m_bench.After()}) {
    for (const QString& name : tree.keys()) {
      const bool same =
          files.contains(name) == m_bench.After().contains(name) && files.value(name) == m_bench.After().value(name);
      if (!same && !m_bench.What().MayLag.contains(name)) lines += u"  it counts as done, and %1 isn't\n"_s.arg(name);
    }
  }
  return lines;
}

void Sweep::StartAgain(const DataTree& left, const QString& what) {
  const QByteArray fingerprint = FingerprintOf(left);
  if (m_restarted.contains(fingerprint)) return;
  m_restarted.insert(fingerprint);
  if (m_states++ % m_effort.RestartEvery != 0) return;
  ++m_findings.Counts[u"restarts"_s];
  const DataTree files = WithoutTemporaries(left);
  const bool done = m_bench.What().WasDone(files, m_bench.After());
  const Outcome outcome = m_bench.Restart(left, !done);
  QString lines = outcome.Broken;
  for (const QString& box : FailuresOf(outcome.Boxes)) lines += u"  told: "_s + box + u'\n';
  lines += done ? JudgeDone(files) + Differences(left, WithoutNewFolders(outcome.Tree, left))
                : Differences(Wanted(files), outcome.Tree);
  m_findings.Add(m_bench, what + u", then started again"_s, lines);
}

void Sweep::KillOnce(const Plan& plan, const QString& what) {
  ++m_findings.Counts[u"kills"_s];
  const Outcome outcome = m_bench.Try(plan);
  if (!outcome.Killed) {
    m_findings.Add(m_bench, what, u"  it wasn't killed; "_s + outcome.Broken);
    return;
  }
  m_findings.Add(m_bench, what, m_bench.TornIn(outcome.Tree));
  StartAgain(outcome.Tree, what);
}

void Sweep::Kill() {
  struct Case {
    Plan What;
    QString Name;
  };
  std::vector<Case> cases;
  bool differs = true;
  for (const FileCalls::Note& note : m_bench.Unharmed().Notes) {
    if (note.What == FileCalls::Kind::Mark) continue;
    // A sample leaves out the kills that find the disk as the one before found it.
    const bool isNew = std::exchange(differs, Changes(note.What)) || m_effort.Every == 1;
    const QString call = u"call %1 (%2 %3)"_s.arg(note.Nth).arg(QString::fromLatin1(FileCalls::NameOf(note.What)),
                                                                QString::fromStdString(note.Path));
    if (isNew) cases.push_back({{Harm::Kill, note.Nth, 0, 0}, u"killed before "_s + call});
    if (note.What != FileCalls::Kind::Write) continue;
    // A record's write in place is one call of less than a page: the system does it whole or not at all. One that lies
    // across two pages of its file a kill may tear, which isn't tried: docs/reliability.md.
    const int record = RecordLengthOf(QString::fromStdString(note.Path).sliced(m_bench.Root().size()));
    if (record > 0 && note.Size == record) continue;
    for (const long size : std::set<long>{1, note.Size / 2, note.Size - 1}) {
      if (size > 0 && size < note.Size)
        cases.push_back({{Harm::KillTorn, note.Nth, 0, size}, u"killed %1 bytes into "_s.arg(size) + call});
    }
  }
  // A kill is quick; it is the restarts that a sample spares.
  m_effort.Each(static_cast<int>(cases.size()), [&](int i) {
    const Case& one = cases[static_cast<std::size_t>(i)];
    KillOnce(one.What, one.Name);
  });
}
