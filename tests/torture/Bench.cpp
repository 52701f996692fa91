#include "torture/Bench.h"

#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <QDir>
#include <QFile>
#include <QtTest>

#include "torture/Desk.h"
#include "torture/Report.h"
#include "torture/SmallDisk.h"

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned Patience = 120;  ///< Seconds, after which a try counts as hanging.
constexpr int ScreenFailed = 3;     ///< Exit code: the screens couldn't be worked on as told.

struct Request {
  FileCalls::Plan Plan;
  bool Again;
};

template <typename Message>
bool Send(int pipe, const Message& message) {
  return ::write(pipe, &message, sizeof message) == static_cast<ssize_t>(sizeof message);
}

template <typename Message>
bool Receive(int pipe, Message& message) {
  return ::read(pipe, &message, sizeof message) == static_cast<ssize_t>(sizeof message);
}

/// A fork takes along the thread that forks and no other.
bool IsAlone() {
  return QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() == 1;
}

/// Runs `work` in a process of its own, which ends with it; its status.
template <typename Work>
int InChild(Work work) {
  const pid_t child = ::fork();
  if (child < 0) qFatal("no process can be forked");
  if (child == 0) {
    ::alarm(Patience);
    work();
    ::_exit(QTest::currentTestFailed() ? ScreenFailed : 0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return status;
}

/// After a failure the user does the same again, unless he sees that it was done all the same. He has to be told of it,
/// but where nothing is told.
bool DoesAgain(const Desk& desk, const Save& save, const DataTree& found, const QString& after) {
  if (save.Screen.isEmpty() || desk.HasEnded() || !desk.Shows(save.Screen)) return false;
  if (save.Tells == Save::Telling::Box && FailuresOf(desk.Boxes).isEmpty()) return false;
  Outcome unharmed;
  return ReadReport(after, unharmed) && !save.WasDone(WithoutTemporaries(found), unharmed.Tree);
}

/// The try itself, where the user is about to save.
void DoSave(Desk& desk, const Save& save, const Request& request, const QString& report, const QString& after) {
  Outcome outcome;
  FileCalls::Arm(desk.Root().toLocal8Bit().constData(), request.Plan);
  save.Perform(desk);
  FileCalls::Mark("back");
  FileCalls::Disarm();
  outcome.Boxes = desk.Boxes;
  outcome.Calls = FileCalls::Count();
  outcome.Harmed = FileCalls::Harmed();
  for (const std::string& path : FileCalls::HarmedPaths()) outcome.HarmedPaths.append(QString::fromStdString(path));
  outcome.Tree = ReadTree(desk.Root());
  if (request.Plan.What == FileCalls::Harm::None) outcome.Notes = FileCalls::Notes();
  if (request.Again && DoesAgain(desk, save, outcome.Tree, after)) {
    desk.Boxes.clear();
    if (save.FromMenu) save.Prepare(desk);
    save.Perform(desk);
    outcome.DidAgain = true;
    outcome.AgainBoxes = desk.Boxes;
    outcome.AgainTree = ReadTree(desk.Root());
  }
  WriteReport(report, outcome);
}

}  // namespace

bool TellsFailure(const QString& box) {
  // A print job has its own words for whatever happens in it, and the printer's dialog for a file that it can't open.
  return box.contains(u"(error ") || box.contains(u"A Print Error has occurred") ||
         box.contains(u"Please choose a different file name");
}

QStringList FailuresOf(const QStringList& boxes) {
  QStringList failures;
  for (const QString& box : boxes) {
    if (TellsFailure(box)) failures.append(box);
  }
  return failures;
}

QStringList ChangedBy(const FileCalls::Note& note, const QString& root) {
  switch (note.What) {
    case FileCalls::Kind::Create:
    case FileCalls::Kind::Write:
    case FileCalls::Kind::Remove:
      return {QString::fromStdString(note.Path).sliced(root.size())};
    case FileCalls::Kind::MakeFolder:
      return {QString::fromStdString(note.Path).sliced(root.size()) + u'/'};
    case FileCalls::Kind::Rename:
      return {QString::fromStdString(note.Path).sliced(root.size()),
              QString::fromStdString(note.To).sliced(root.size())};
    default:
      return {};
  }
}

Bench::Bench(const Save& save, const QString& folder) : m_save(save), m_folder(folder) {
  QDir(m_folder).removeRecursively();
  QDir().mkpath(Root());
  DataTree tree = CommonTree();
  m_save.Stock(tree);
  WriteTree(Root(), tree);
  int requests[2], answers[2];
  if (::pipe(requests) != 0 || ::pipe(answers) != 0) qFatal("no pipe");
  m_server = ::fork();
  if (m_server < 0) qFatal("no process can be forked");
  if (m_server == 0) {
    ::close(requests[1]);
    ::close(answers[0]);
    Serve(requests[0], answers[1]);
  }
  ::close(requests[0]);
  ::close(answers[1]);
  m_requests = requests[1];
  m_answers = answers[0];
  int ready = 0;
  if (!Receive(m_answers, ready) || ready != 0) {
    m_unharmed.Broken = u"the way to the save can't be gone"_s;
    return;
  }
  m_before = ReadTree(Root());
  m_unharmed = Try({});
  WriteReport(AfterFile(), m_unharmed);
  for (const FileCalls::Note& note : m_unharmed.Notes) {
    const QString path = QString::fromStdString(note.Path);
    if (note.What == FileCalls::Kind::Write && !path.endsWith(".new"_L1)) m_inPlace.insert(path.sliced(Root().size()));
  }
  // A ledger's copy is renewed with each posting, so that it may stand at any of them.
  for (const QString& name : QSet<QString>(m_inPlace)) m_inPlace.insert(u"/Backup"_s + name);
}

Bench::~Bench() {
  ::close(m_requests);
  ::close(m_answers);
  ::waitpid(m_server, nullptr, 0);
  QDir(m_folder).removeRecursively();
}

QString Bench::Unusable() const {
  if (!m_unharmed.Broken.isEmpty()) return m_unharmed.Broken;
  if (m_unharmed.Tree == m_before) return u"the save changes nothing"_s;
  if (!TemporariesOf(m_unharmed.Tree).isEmpty()) return u"the save leaves a temporary file"_s;
  if (const QString unseen = ChangedUnseen(); !unseen.isEmpty()) return unseen + u" changes by no call that is seen"_s;
  return {};
}

/// What can't be harmed, because the program changes it by a call that FileCalls.cpp leaves out.
QString Bench::ChangedUnseen() const {
  QSet<QString> seen;
  for (const FileCalls::Note& note : m_unharmed.Notes) {
    for (const QString& name : ChangedBy(note, Root())) seen.insert(name);
  }
  for (const DataTree& tree : {m_before, m_unharmed.Tree}) {
    for (const auto& [name, bytes] : tree.asKeyValueRange()) {
      const bool same = m_before.contains(name) == m_unharmed.Tree.contains(name) &&
                        m_before.value(name) == m_unharmed.Tree.value(name);
      if (!same && !seen.contains(name)) return name;
    }
  }
  return {};
}

void Bench::Serve(int requests, int answers) {
  Desk desk(Root(), m_save.OnPaper);
  if (!m_save.AtStart() && desk.Start() && desk.GoToMenu()) m_save.Prepare(desk);
  const int ready = !IsAlone() || QTest::currentTestFailed() || (!m_save.AtStart() && desk.HasEnded()) ? 1 : 0;
  Send(answers, ready);
  desk.Boxes.clear();
  Request request{};
  while (ready == 0 && Receive(requests, request)) {
    const int status = InChild([&] { DoSave(desk, m_save, request, ReportFile(), AfterFile()); });
    Send(answers, status);
  }
  // Not by the program's own end: that is a save.
  ::_exit(0);
}

Outcome Bench::Try(const FileCalls::Plan& plan, bool again) {
  WriteTree(Root(), m_before);
  return Run(plan, again);
}

Outcome Bench::TryOn(const SmallDisk& disk, int blocks) {
  disk.MakeRoom();
  WriteTree(Root(), m_before);
  disk.LeaveBlocks(blocks);
  const Outcome outcome = Run({}, false);
  disk.MakeRoom();
  return outcome;
}

Outcome Bench::TryReadOnly(const SmallDisk& disk) {
  disk.MakeRoom();
  WriteTree(Root(), m_before);
  disk.RefuseWrites();
  const Outcome outcome = Run({}, false);
  disk.MakeRoom();
  return outcome;
}

Outcome Bench::StartReadOnly(const SmallDisk& disk) {
  disk.MakeRoom();
  WriteTree(Root(), m_before);
  disk.RefuseWrites();
  const Outcome outcome = InNewProgram([&](Desk& desk) {
    Save start{.Name = m_save.Name};
    start.Perform = [](Desk& begun) {
      if (begun.Start()) begun.GoToMenu();
    };
    DoSave(desk, start, {}, ReportFile(), {});
  });
  disk.MakeRoom();
  return outcome;
}

Outcome Bench::Run(const FileCalls::Plan& plan, bool again) {
  QFile::remove(ReportFile());
  int status = 0;
  if (!Send(m_requests, Request{plan, again}) || !Receive(m_answers, status)) qFatal("the prepared process is gone");
  return Read(status);
}

Outcome Bench::Restart(const DataTree& tree, bool saves) {
  WriteTree(Root(), tree);
  return InNewProgram([&](Desk& desk) {
    if (m_save.AtStart()) {
      DoSave(desk, m_save, {}, ReportFile(), {});
      return;
    }
    if (desk.Start() && desk.GoToMenu() && saves) m_save.Prepare(desk);
    Save nothing{.Name = m_save.Name};
    nothing.Perform = [](Desk&) {};
    DoSave(desk, saves && !desk.HasEnded() ? m_save : nothing, {}, ReportFile(), {});
  });
}

Outcome Bench::InNewProgram(const std::function<void(Desk&)>& work) {
  QFile::remove(ReportFile());
  return Read(InChild([&] {
    Desk desk(Root(), m_save.OnPaper);
    work(desk);
  }));
}

Outcome Bench::Read(int status) {
  Outcome outcome;
  outcome.Killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  if (outcome.Killed) {
    outcome.Tree = ReadTree(Root());
    return outcome;
  }
  const bool told = ReadReport(ReportFile(), outcome);
  if (WIFSIGNALED(status)) {
    outcome.Broken = WTERMSIG(status) == SIGALRM ? u"hung"_s : u"crashed (signal %1)"_s.arg(WTERMSIG(status));
  } else if (WEXITSTATUS(status) == ScreenFailed) {
    outcome.Broken = u"the screens can't be worked on"_s;
  } else if (WEXITSTATUS(status) != 0 || !told) {
    outcome.Broken = u"ended with code %1"_s.arg(WEXITSTATUS(status));
  }
  return outcome;
}
