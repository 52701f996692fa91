// What the roof does at its ends: whichever way the program ends, it ends once, and no screen comes up behind it.

#include "desktop/Style.h"
#include "Program.h"
#include "runtime/FileDevice.h"
#include "support/FixedClock.h"
#include "support/RecordingPrinter.h"
#include "support/ScreenDriver.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

namespace {

/// Runs something at the next opening of a file.
class ListeningDevice final : public FileDevice {
 public:
  std::function<void()> OnOpen;
  int Open(const QString& path, OpenMode mode) override {
    if (OnOpen) std::exchange(OnOpen, {})();
    return FileDevice::Open(path, mode);
  }
};

struct Bench {
  Bench() {
    ApplyStyle(*qApp);
    Running.Ended = [this] { ++Ends; };
  }
  bool Shows(const QString& screen) const { return ScreenDriver::IsShown(screen); }

  TemporaryTree Tree;
  TemporaryTree Locks;
  ListeningDevice Files;
  FixedClock Calendar;
  ScriptedDialogs Boxes;
  RecordingPrinter Paper;
  Program Running{PlatformOn(Tree.Root(), Locks.Root(), Files, Calendar, Boxes, Paper)};
  int Ends = 0;
};

}  // namespace

class ProgramTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anEndInTheMiddleOfAnEndIsTheSameEnd();
  void aScreenWhoseActivationEndsTheProgramDoesNotComeUp();
  void allScreensAreHiddenBeforeTheFirstOneGoes();
};

void ProgramTest::anEndInTheMiddleOfAnEndIsTheSameEnd() {
  Bench bench;
  QVERIFY(bench.Running.Start());
  // The user closes the window while the box stands that tells of the damaged file.
  bench.Boxes.OnBox = [&] { bench.Running.UserClosed(); };
  bench.Running.UnhandledError(
      RuntimeError(ErrorNumber::TypeMismatch, u"/Labor.txt"_s, RuntimeError::Origin::FileContent));
  QVERIFY(bench.Running.HasEnded());
  QCOMPARE(bench.Boxes.Said.size(), 1);
  QCOMPARE(bench.Ends, 1);
}

void ProgramTest::aScreenWhoseActivationEndsTheProgramDoesNotComeUp() {
  Bench bench;
  QVERIFY(bench.Running.Start());
  // The main menu reads the parked invoices when it is shown, once there is anything to sell.
  bench.Tree.Write(u"/Services.txt"_s, "");
  bench.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/1.txt"_s, "1\r\n2\r\n3\r\n4\r\n");
  bool asked = false;
  bench.Files.OnOpen = [&] {
    asked = true;
    bench.Running.QuitProgram();
  };
  bench.Running.Show(ScreenName::frmStartup);
  QVERIFY(asked);
  QVERIFY(!bench.Shows(u"frmStartup"_s));
  QCOMPARE(bench.Ends, 1);
}

void ProgramTest::allScreensAreHiddenBeforeTheFirstOneGoes() {
  auto bench = std::make_unique<Bench>();
  QVERIFY(bench->Running.Start());
  bench->Running.Show(ScreenName::frmStartup);
  bench->Running.Show(ScreenName::frmSetup);
  bench->Running.Hide(ScreenName::frmSetup);
  QVERIFY(bench->Shows(u"frmStartup"_s));
  const QPointer<Screen> menu = bench->Running.Built(ScreenName::frmStartup);
  int gone = 0;
  bool menuStood = false;
  for (const ScreenName name : {ScreenName::frmSplash, ScreenName::frmSetup}) {
    connect(bench->Running.Built(name), &QObject::destroyed, this, [&] {
      ++gone;
      menuStood = menuStood || (menu != nullptr && menu->isVisible());
    });
  }
  bench.reset();
  QCOMPARE(gone, 2);
  QVERIFY(!menuStood);
}

QTEST_MAIN(ProgramTest)
#include "tst_program.moc"
