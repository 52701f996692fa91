// Does the program's saves over and over and harms them in every way there is. Usage:
//
//   karvex_torture short|full|MINUTES [SAVE...]   all sweeps of all saves, or of those named
//   karvex_torture trace SAVE                     every call of one save that touches a file
//   karvex_torture prove                          that each sweep finds what it is there to find
//
// Ends with 0 if every promise held.

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#include <atomic>
#include <cstdio>
#include <QApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "torture/SmallDisk.h"
#include "torture/Sweeps.h"

using namespace Qt::StringLiterals;
using std::chrono::steady_clock;

namespace {

struct Order {
  bool Short = false;
  int Minutes = 0;  ///< 0: no limit.
  std::vector<Save> Saves;
};

/// Where the saves come one after the other, a folder in memory spares the disk.
QString WorkFolder() {
  const QString memory = u"/dev/shm"_s;
  return (::access("/dev/shm", W_OK) == 0 ? memory : QDir::tempPath()) + u"/karvex-torture-XXXXXX"_s;
}

Findings SweepOf(const Save& save, const QString& folder, Effort effort) {
  Findings findings;
  Bench bench(save, folder);
  if (const QString unusable = bench.Unusable(); !unusable.isEmpty()) {
    findings.Failures.append(save.Name + u": "_s + unusable);
    return findings;
  }
  findings.Counts[u"calls"_s] = bench.Unharmed().Calls;
  Sweep sweep(bench, effort, findings);
  sweep.Order();
  sweep.FullDisk();
  sweep.SmallFileSystem();
  sweep.ReadOnly();
  sweep.ShortWrites();
  // Of a limited time the two long ones take half each.
  const auto end = effort.Deadline;
  if (end != steady_clock::time_point::max()) effort.Deadline -= (end - steady_clock::now()) / 2;
  sweep.Kill();
  effort.Deadline = end;
  sweep.Errors();
  return findings;
}

void Store(const QString& file, const Findings& findings) {
  QFile out(file);
  if (!out.open(QIODevice::WriteOnly)) qFatal("the findings can't be written");
  QDataStream stream(&out);
  stream << findings.Counts << findings.Failures;
}

bool Fetch(const QString& file, Findings& findings) {
  QFile in(file);
  if (!in.open(QIODevice::ReadOnly)) return false;
  QDataStream stream(&in);
  stream >> findings.Counts >> findings.Failures;
  return stream.status() == QDataStream::Ok;
}

/// One of several: takes the next save that nobody has taken.
void Work(const Order& order, const QString& folder, std::atomic<std::size_t>& next, steady_clock::time_point end,
          unsigned workers) {
  int count = 1;
  char name[] = "karvex_torture";
  char* arguments[] = {name, nullptr};
  QApplication application(count, arguments);
  while (true) {
    const std::size_t mine = next++;
    if (mine >= order.Saves.size()) break;
    Effort effort;
    if (order.Short) {
      effort.Every = 16;
      effort.RestartEvery = 4;
    }
    if (order.Minutes > 0) {
      const auto left = end - steady_clock::now();
      const auto saves = static_cast<long>((order.Saves.size() - mine + workers - 1) / workers);
      effort.Deadline = steady_clock::now() + left / saves;
    }
    const Save& save = order.Saves[mine];
    Store(folder + u"/findings-"_s + save.Name, SweepOf(save, folder + u"/bench-"_s + save.Name, effort));
  }
  ::_exit(0);
}

int Print(const Order& order, const QString& folder) {
  const QStringList columns{
      u"calls"_s,      u"kills"_s,       u"restarts"_s,  u"errors"_s,           u"short writes"_s,
      u"full disks"_s, u"small disks"_s, u"read-only"_s, u"saves done again"_s, u"renames followed"_s};
  std::printf("%-22s", "");
  for (const QString& column : columns) std::printf(" %16s", qPrintable(column));
  std::printf("\n");
  QStringList failures;
  std::map<QString, int> sum;
  for (const Save& save : order.Saves) {
    Findings findings;
    if (!Fetch(folder + u"/findings-"_s + save.Name, findings)) {
      findings.Failures.append(save.Name + u": the sweep itself ended early"_s);
    }
    std::printf("%-22s", qPrintable(save.Name));
    for (const QString& column : columns) {
      std::printf(" %16d", findings.Counts[column]);
      sum[column] += findings.Counts[column];
    }
    std::printf("\n");
    failures += findings.Failures;
  }
  std::printf("%-22s", "all");
  for (const QString& column : columns) std::printf(" %16d", sum[column]);
  std::printf("\n\n");
  if (sum[u"read-only"_s] == 0) {
    std::printf("NOT DONE: this user may mount nothing, so no real disk was filled and none was made read-only.\n");
  }
  for (const QString& failure : failures) std::printf("%s\n", qPrintable(failure));
  if (failures.isEmpty()) {
    std::printf("Every promise held.\n");
  } else {
    std::printf("%lld broken promises.\n", static_cast<long long>(failures.size()));
  }
  return failures.isEmpty() ? 0 : 1;
}

int Torture(const Order& order) {
  const QTemporaryDir folder(WorkFolder());
  void* shared =
      ::mmap(nullptr, sizeof(std::atomic<std::size_t>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  auto* next = new (shared) std::atomic<std::size_t>(0);
  const auto workers = static_cast<unsigned>(std::max(1L, ::sysconf(_SC_NPROCESSORS_ONLN)));
  const auto end = steady_clock::now() + std::chrono::minutes(order.Minutes);
  for (unsigned i = 0; i < workers; ++i) {
    if (::fork() == 0) Work(order, folder.path(), *next, end, workers);
  }
  while (::wait(nullptr) > 0) {
  }
  return Print(order, folder.path());
}

/// Each careless save is found out, by the words that tell its fault; the careful one passes.
int Prove(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  const QTemporaryDir folder(WorkFolder());
  int unseen = 0;
  for (const CarelessSave& careless : CarelessSaves()) {
    const Findings findings = SweepOf(careless.What, folder.path() + u"/bench"_s, {});
    const bool right =
        careless.Found.isEmpty() ? findings.Failures.isEmpty() : !findings.Failures.filter(careless.Found).isEmpty();
    std::printf("%-32s %s\n", qPrintable(careless.What.Name), right ? "as it should be" : "NOT SEEN");
    if (right) continue;
    ++unseen;
    for (const QString& failure : findings.Failures) std::printf("%s\n", qPrintable(failure));
  }
  return unseen == 0 ? 0 : 1;
}

int Trace(const Save& save, int argc, char* argv[]) {
  const QApplication application(argc, argv);
  const QTemporaryDir folder(WorkFolder());
  Bench bench(save, folder.path() + u"/bench"_s);
  for (const FileCalls::Note& note : bench.Unharmed().Notes) {
    std::printf("%4d %-12s %s %s (%ld) = %ld\n", note.Nth, FileCalls::NameOf(note.What), note.Path.c_str(),
                note.To.c_str(), note.Size, note.Result);
  }
  std::printf("%s\n%s", qPrintable(bench.Unusable()), qPrintable(Differences(bench.Before(), bench.After())));
  return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
  KeepMountsToOneself();
  const QString what = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
  QStringList names;
  for (int i = 2; i < argc; ++i) names << QString::fromLocal8Bit(argv[i]);
  Order order;
  for (const Save& save : AllSaves()) {
    if (names.isEmpty() || names.contains(save.Name)) order.Saves.push_back(save);
  }
  order.Short = what == u"short";
  order.Minutes = what.toInt();
  if (what == u"prove") return Prove(argc, argv);
  const bool known = order.Short || order.Minutes > 0 || what == u"full" || what == u"trace";
  if (!known || order.Saves.empty()) {
    std::fputs("Usage: karvex_torture short|full|MINUTES [SAVE...], or trace SAVE, or prove\n", stderr);
    return 2;
  }
  return what == u"trace" ? Trace(order.Saves.front(), argc, argv) : Torture(order);
}
