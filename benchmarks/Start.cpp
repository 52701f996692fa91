#include <cstdio>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <vector>

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

/// Tells the memory on the standard output once a window has been painted, and leaves the process.
class FirstPaint final : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || !watched->isWidgetType() || !static_cast<QWidget*>(watched)->isWindow()) {
      return false;
    }
    qApp->removeEventFilter(this);
    // The painting goes on to the window's children and is done when the event loop is back.
    QTimer::singleShot(0, this, [] {
      std::printf("%ld\n", ResidentKilobytes());
      std::fflush(stdout);
      QCoreApplication::exit();
    });
    return false;
  }
};

int ShowBareWindow(QApplication& application, const QString& word) {
  QMainWindow window;
  window.resize(1180, 760);
  if (!word.isEmpty()) window.setCentralWidget(new QLabel(word));
  window.show();
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
  return application.exec();
}

struct Child {
  double Milliseconds;  ///< From its start until its first window is painted and its event loop runs.
  double Kilobytes;
};

Child RunChild(const QString& program, const QStringList& arguments) {
  QElapsedTimer timer;
  timer.start();
  QProcess process;
  process.start(program, arguments);
  MustHold(process.waitForReadyRead(60000), u"%1 paints its window"_s.arg(arguments.first()));
  const double elapsed = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  process.waitForFinished(-1);
  MustHold(process.error() == QProcess::UnknownError && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0,
           u"%1 shows its window and ends without an error"_s.arg(arguments.first()));
  return {elapsed, process.readAllStandardOutput().trimmed().toDouble()};
}

struct Children {
  double Milliseconds() const { return MedianOf(Times); }
  void Run(const QString& program) {
    const Child child = RunChild(program, Arguments);
    Times.push_back(child.Milliseconds);
    Kilobytes = child.Kilobytes;
  }
  QStringList Arguments;
  std::vector<double> Times{};
  double Kilobytes = 0;
};

void MeasureStartOn(const QString& ownProgramFile, const QString& tree, const QString& name) {
  Children ours{.Arguments = {u"--first-screen"_s, tree}};
  Children bare{.Arguments = {u"--bare-window"_s}};
  Children word{.Arguments = {u"--bare-window"_s, u"Welcome"_s}};
  // Once unmeasured: it makes the folders.
  RunChild(ownProgramFile, ours.Arguments);
  for (int i = 0; i < 15; ++i) {
    for (Children* each : {&ours, &bare, &word}) each->Run(ownProgramFile);
  }
  Report(name, {ours.Milliseconds(), bare.Milliseconds()}, 1.5);
  Report(u"  over a window with one word, which needs the fonts"_s, {ours.Milliseconds(), word.Milliseconds()}, 0);
  std::printf("%-66s %8.1f MB %8.1f MB %8s %6s\n", "  memory beside the bare window's (aim: 45 MB in all)",
              ours.Kilobytes / 1024, bare.Kilobytes / 1024, "", "");
}

}  // namespace

int RunAsStarter(int argc, char* argv[]) {
  if (argc < 2) return -1;
  const QByteArray part(argv[1]);
  if (part != "--bare-window" && part != "--first-screen") return -1;
  QApplication application(argc, argv);
  FirstPaint painted;
  application.installEventFilter(&painted);
  const QString argument = QString::fromLocal8Bit(argc > 2 ? argv[2] : "");
  if (part == "--bare-window") return ShowBareWindow(application, argument);
  return ShowFirstScreen(application, argument);
}

void MeasureStart(const QString& ownProgramFile, const QString& fullTree) {
  const QTemporaryDir small;
  FillTree(small.path(), 200, Limit::Catalogue, Limit::Records);
  MeasureStartOn(ownProgramFile, small.path(), u"first window, 200 customers, over a bare window"_s);
  MeasureStartOn(ownProgramFile, fullTree, u"first window, 32,767 customers (most of it the folder calls below)"_s);
}
