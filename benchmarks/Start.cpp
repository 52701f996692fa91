#include <cstdio>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Trees.h"
#include "desktop/PaperPrinter.h"
#include "desktop/QtDialogs.h"
#include "desktop/Style.h"
#include "Program.h"
#include "runtime/Clock.h"
#include "runtime/FileDevice.h"
#include "runtime/FileStore.h"

using namespace Qt::StringLiterals;

namespace {

/// Resident memory of this process, in KB.
long ResidentKilobytes() {
  QFile status(u"/proc/self/status"_s);
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toLong();
  }
  return 0;
}

/// Leaves the process once its window has been painted.
void LeaveAfterFirstPaint() {
  QTimer::singleShot(0, qApp, [] {
    std::printf("%ld\n", ResidentKilobytes());
    QCoreApplication::exit();
  });
}

int ShowBareWindow(QApplication& application) {
  QMainWindow window;
  window.resize(1180, 760);
  window.show();
  LeaveAfterFirstPaint();
  return application.exec();
}

int ShowFirstScreen(QApplication& application, const QString& root) {
  ApplyStyle(application);
  QApplication::setQuitOnLastWindowClosed(false);
  FileDevice files;
  FileStore store(files);
  SystemClock clock;
  QtDialogs dialogs;
  PaperPrinter paper(store, dialogs, root);
  SerialLine modem(AbsentPorts());
  Program program(PlatformOn(root, files, clock, dialogs, paper, modem));
  if (!program.Start()) return 1;
  LeaveAfterFirstPaint();
  return application.exec();
}

struct Child {
  double Milliseconds;
  double Kilobytes;
};

Child RunChild(const QString& program, const QStringList& arguments) {
  QElapsedTimer timer;
  timer.start();
  QProcess process;
  process.start(program, arguments);
  process.waitForFinished(-1);
  MustHold(process.error() == QProcess::UnknownError && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0,
           u"%1 shows its window and ends without an error"_s.arg(arguments.first()));
  const double elapsed = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  return {elapsed, process.readAllStandardOutput().trimmed().toDouble()};
}

void MeasureStartOn(const QString& ownProgramFile, const QString& tree, const QString& name) {
  // Once unmeasured: it makes the folders.
  RunChild(ownProgramFile, {u"--first-screen"_s, tree});
  double programMemory = 0;
  double bareMemory = 0;
  const Pair times = MediansOf(
      5,
      [&] {
        programMemory = RunChild(ownProgramFile, {u"--first-screen"_s, tree}).Kilobytes;
      },
      [&] { bareMemory = RunChild(ownProgramFile, {u"--bare-window"_s}).Kilobytes; });
  Report(name, times, 1.5);
  std::printf("%-66s %8.1f MB %8.1f MB %8s %6s\n", "  memory beside the bare window's (aim: 45 MB in all)",
              programMemory / 1024, bareMemory / 1024, "", "");
}

}  // namespace

int RunAsStarter(int argc, char* argv[]) {
  if (argc < 2) return -1;
  const QByteArray part(argv[1]);
  if (part != "--bare-window" && part != "--first-screen") return -1;
  QApplication application(argc, argv);
  if (part == "--bare-window") return ShowBareWindow(application);
  return ShowFirstScreen(application, QString::fromLocal8Bit(argv[2]));
}

void MeasureStart(const QString& ownProgramFile, const QString& fullTree) {
  const QTemporaryDir small;
  FillTree(small.path(), 200, Limit::Catalogue, Limit::Records);
  MeasureStartOn(ownProgramFile, small.path(), u"first window, 200 customers, over a bare window"_s);
  MeasureStartOn(ownProgramFile, fullTree, u"first window, 32,767 customers (most of it the folder calls below)"_s);
}
