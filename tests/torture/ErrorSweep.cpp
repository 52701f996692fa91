#include <algorithm>
#include <cerrno>
#include <limits>
#include <QRegularExpression>
#include <set>

#include "torture/Sweeps.h"

using namespace Qt::StringLiterals;
using FileCalls::Harm;
using FileCalls::Kind;
using FileCalls::Note;
using FileCalls::Plan;

namespace {

/// The file that the user knows.
QString FileOf(QString file) {
  if (file.endsWith(".new"_L1)) file.chop(4);
  return file;
}

QString FileOf(const std::string& path) {
  return FileOf(QString::fromStdString(path));
}

QSet<QString> KeysOf(const DataTree& tree) {
  return QSet<QString>(tree.keyBegin(), tree.keyEnd());
}

/// What the calls before the nth have changed in the unharmed course of things.
QSet<QString> ChangedBefore(const std::vector<Note>& notes, int nth, const QString& root) {
  QSet<QString> names;
  for (const Note& note : notes) {
    if (note.Nth >= nth) break;
    if (note.Result < 0) continue;
    for (const QString& name : ChangedBy(note, root)) names.insert(name);
  }
  return names;
}

/// Whether one of the boxes names the file, the folder, or something in the folder: a name that goes on is another
/// one's.
bool IsNamedIn(const QStringList& told, const QString& name) {
  const QRegularExpression whole(QRegularExpression::escape(name) + u"(?![\\w-]|\\.\\w)"_s);
  return std::any_of(told.begin(), told.end(), [&](const QString& box) { return box.contains(whole); });
}

}  // namespace

/// What was being written when it failed isn't published.
QString Sweep::JudgePublished(const Note& harmed, const Outcome& outcome) const {
  const std::set<Kind> writing{Kind::Create, Kind::Write, Kind::Flush, Kind::Close, Kind::Permissions, Kind::Rename};
  if (!harmed.Path.ends_with(".new") || !writing.contains(harmed.What)) return {};
  const QString name = FileOf(harmed.Path).sliced(m_bench.Root().size());
  if (ChangedBefore(m_bench.Unharmed().Notes, harmed.Nth, m_bench.Root()).contains(name)) return {};
  if (outcome.Tree.value(name) == m_bench.Before().value(name)) return {};
  return u"  %1 was published after its writing failed\n"_s.arg(name);
}

/// Every file's name begins with the root's: it is the root alone that is to be named, or a file that the save touches.
bool Sweep::NamesTheRootOrAFileInIt(const QStringList& told) const {
  const QRegularExpression alone(QRegularExpression::escape(m_bench.Root()) + u"(?!/)"_s);
  const QSet<QString> touched =
      ChangedBefore(m_bench.Unharmed().Notes, std::numeric_limits<int>::max(), m_bench.Root());
  return !told.filter(alone).isEmpty() || std::any_of(touched.begin(), touched.end(), [&](const QString& name) {
    return IsNamedIn(told, m_bench.Root() + name);
  });
}

QString Sweep::JudgeTelling(const Outcome& outcome) const {
  const QStringList told = FailuresOf(outcome.Boxes);
  const bool mustTell = m_bench.What().Tells == Save::Telling::Box;
  const bool done = WithoutTemporaries(outcome.Tree) == m_bench.After();
  if (told.isEmpty()) {
    return mustTell && !done ? u"  the user wasn't told\n"_s + Differences(m_bench.After(), outcome.Tree) : QString();
  }
  // A print job tells in its own words.
  if (!told.filter(u"A Print Error has occurred"_s).isEmpty()) return {};
  // A folder's failure is told by the file whose name was to be kept in it.
  const auto names = [&](const QString& file) { return IsNamedIn(told, file); };
  if (!mustTell && !done) {
    // What fails behind it, on the way back to the menu, is told as ever.
    for (const auto& [name, bytes] : m_bench.After().asKeyValueRange()) {
      const bool written = bytes != m_bench.Before().value(name);
      if (written && names(m_bench.Root() + name)) return u"  the user was told: "_s + told.join(u" | ") + u'\n';
    }
  }
  for (const QString& path : outcome.HarmedPaths) {
    // What it is to become is what the user knows.
    for (const Note& note : m_bench.Unharmed().Notes) {
      if (note.What == Kind::Rename && note.Path == path.toStdString() && names(FileOf(note.To))) return {};
    }
    const QString name = FileOf(path).sliced(m_bench.Root().size());
    if (name.isEmpty() ? NamesTheRootOrAFileInIt(told) : names(FileOf(path)) || names(name)) return {};
  }
  return u"  %1 isn't named: %2\n"_s.arg(FileOf(outcome.Harmed.Path), told.join(u" | "));
}

/// What the call was about, below the root; of a look at a folder the file that was to be changed in it.
QString Sweep::FileAtStake(const Note& harmed) const {
  if (harmed.What == Kind::Look) {
    for (const Note& note : m_bench.Unharmed().Notes) {
      if (note.Nth <= harmed.Nth || !note.Path.starts_with(harmed.Path + '/')) continue;
      for (const QString& name : ChangedBy(note, m_bench.Root())) return FileOf(name);
    }
  }
  return FileOf(harmed.Path).sliced(m_bench.Root().size());
}

QString Sweep::JudgeFailure(const Plan& plan, const Outcome& outcome) const {
  if (!outcome.Broken.isEmpty()) return u"  "_s + outcome.Broken + u'\n';
  if (outcome.Harmed.Nth == 0) return u"  nothing was harmed\n"_s;
  QString lines = m_bench.TornIn(outcome.Tree);
  lines += JudgeTelling(outcome) + JudgePublished(outcome.Harmed, outcome);
  // What fails from then on can't be cleared away either.
  const QStringList temporaries = TemporariesOf(outcome.Tree);
  if (plan.What == Harm::FailOnce && !temporaries.isEmpty())
    lines += u"  left behind: "_s + temporaries.join(u' ') + u'\n';
  const DataTree files = WithoutTemporaries(outcome.Tree);
  if (files == m_bench.After()) return lines;

  const QSet<QString> before = ChangedBefore(m_bench.Unharmed().Notes, outcome.Harmed.Nth, m_bench.Root());
  const QString harmed = FileAtStake(outcome.Harmed);
  const QSet<QString> all = KeysOf(m_bench.Before()).unite(KeysOf(m_bench.After()));
  for (const QString& name : all) {
    const bool old = files.value(name) == m_bench.Before().value(name);
    const bool isNew = files.value(name) == m_bench.After().value(name);
    if (m_bench.What().Tells == Save::Telling::SkipsRest && !old && !before.contains(name)) {
      lines += u"  %1 was still written after the failure\n"_s.arg(name);
    }
    if (m_bench.What().Tells == Save::Telling::PassesOver && plan.What == Harm::FailOnce && !isNew && name != harmed &&
        name != u"/Backup"_s + harmed) {
      lines += u"  %1 was passed over as well\n"_s.arg(name);
    }
  }
  return lines;
}

/// When the fault is gone the next save works: in the same program where its screen still stands or the user is back at
/// the menu, and in the next.
void Sweep::GoOn(const Outcome& outcome, const QString& what) {
  if (!outcome.Broken.isEmpty()) return;
  const bool fromMenu = m_bench.What().FromMenu;
  if (!outcome.DidAgain || fromMenu) StartAgain(outcome.Tree, what);
  if (!outcome.DidAgain) return;
  ++m_findings.Counts[u"saves done again"_s];
  const DataTree wanted = fromMenu ? Wanted(WithoutTemporaries(outcome.Tree)) : m_bench.After();
  QString lines = Differences(wanted, outcome.AgainTree);
  for (const QString& error : FailuresOf(outcome.AgainBoxes)) lines += u"  told: "_s + error + u'\n';
  m_findings.Add(m_bench, what + u", then saved again"_s, lines);
}

void Sweep::Fail(const Plan& plan, const QString& what) {
  const Outcome outcome = m_bench.Try(plan, true);
  m_findings.Add(m_bench, what, JudgeFailure(plan, outcome));
  GoOn(outcome, what);
}

void Sweep::Errors() {
  struct Failure {
    int Error;
    const char* Name;
  };
  const std::vector<Failure> failures{{ENOSPC, "no space"}, {EIO, "an I/O error"}, {EACCES, "access denied"}};
  const std::set<Kind> decisive{Kind::Create, Kind::Write, Kind::Flush, Kind::Rename, Kind::Remove};
  struct Case {
    Plan What;
    QString Name;
  };
  std::vector<Case> cases, others;
  for (const Note& note : m_bench.Unharmed().Notes) {
    if (note.What == Kind::Mark) continue;
    for (std::size_t i = 0; i < failures.size(); ++i) {
      for (const Harm harm : {Harm::FailOnce, Harm::FailFromOn}) {
        const QString name =
            u"%1 at call %2 (%3 %4)%5"_s.arg(QString::fromLatin1(failures[i].Name))
                .arg(note.Nth)
                .arg(QString::fromLatin1(FileCalls::NameOf(note.What)), QString::fromStdString(note.Path),
                     harm == Harm::FailOnce ? QString() : u" and from then on"_s);
        // What decides whether a file stands is never left out of a sample.
        const bool chosen = decisive.contains(note.What) && harm == Harm::FailOnce &&
                            i == static_cast<std::size_t>(note.Nth) % failures.size();
        (chosen ? cases : others).push_back({{harm, note.Nth, failures[i].Error, 0}, name});
      }
    }
  }
  const auto run = [this](const Case& one) {
    ++m_findings.Counts[u"errors"_s];
    Fail(one.What, one.Name);
  };
  m_effort.Each(static_cast<int>(cases.size()), [&](int i) { run(cases[static_cast<std::size_t>(i)]); });
  m_effort.Sample(static_cast<int>(others.size()), [&](int i) { run(others[static_cast<std::size_t>(i)]); });
}
