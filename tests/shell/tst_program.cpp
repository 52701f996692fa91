// What the roof does at its ends: whichever way the program ends, it ends once, and no screen comes up behind it.

#include "desktop/SerialLine.h"
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

/// Runs something at the next opening of a file that is awaited.
class ListeningDevice final : public FileDevice {
 public:
  std::function<void()> OnOpen;
  /// Only a path that holds this counts.
  QString Awaited;
  int Open(const QString& path, OpenMode mode) override {
    if (OnOpen && path.contains(Awaited)) std::exchange(OnOpen, {})();
    return FileDevice::Open(path, mode);
  }
};

struct Bench {
  Bench() {
    ApplyStyle(*qApp);
    Running.Ended = [this] { ++Ends; };
  }
  bool Shows(const QString& screen) const { return ScreenDriver::IsShown(screen); }
  /// A first run: the start-up screen's welcome, Setup from there, and what it can't do without.
  ScreenDriver SetupOfAFirstRun() {
    Running.Start();
    const ScreenDriver splash(u"frmSplash"_s);
    splash.Click(u"cmdContinue"_s);
    splash.Click(u"Image1_1"_s);
    ScreenDriver setup(u"frmSetup"_s);
    setup.Fill(u"txtBusiness_0"_s, u"Acme"_s);
    setup.Fill(u"txtBusiness_6"_s, u"555-1234"_s);
    return setup;
  }

  TemporaryTree Tree;
  ListeningDevice Files;
  FixedClock Calendar;
  ScriptedDialogs Boxes;
  RecordingPrinter Paper;
  SerialLine NoPorts{PortTable{}};
  Program Running{PlatformOn(Tree.Root(), Files, Calendar, Boxes, Paper, NoPorts)};
  int Ends = 0;
};

}  // namespace

class ProgramTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anErrorOfABoxNamesItAsItsScreenDoes();
  void anEndInTheMiddleOfAnEndIsTheSameEnd();
  void aScreenWhoseActivationEndsTheProgramDoesNotComeUp();
  void allScreensAreHiddenBeforeTheFirstOneGoes();
  void theStartUpScreenIsAlwaysShownAnew();
  void aScreenThatWasUnloadedGoesWithTheProgramAtTheLatest();
  void aReturnFromSetupWithAFileMissingShowsTheStartUpScreenAnew();
};

void ProgramTest::aScreenThatWasUnloadedGoesWithTheProgramAtTheLatest() {
  QPointer<Screen> splash;
  {
    Bench bench;
    QVERIFY(bench.Running.Start());
    splash = bench.Running.Built(ScreenName::frmSplash);
    QVERIFY(splash != nullptr);
    // No event runs behind this one.
    bench.Running.Unload(ScreenName::frmSplash);
    QVERIFY(splash != nullptr);
    QVERIFY(bench.Running.Built(ScreenName::frmSplash) == nullptr);
  }
  QVERIFY(splash == nullptr);
}

void ProgramTest::anErrorOfABoxNamesItAsItsScreenDoes() {
  Bench bench;
  QVERIFY(bench.Running.Start());
  bench.Running.Show(ScreenName::frmSetup);
  bench.Running.UnhandledError(RuntimeError(ErrorNumber::TypeMismatch, u"txtGradulated_1"_s));
  QCOMPARE(bench.Boxes.Said.size(), 1);
  QVERIFY2(bench.Boxes.Said.last().contains(u"Apply a Surcharge of: What stands there"_s),
           qPrintable(bench.Boxes.Said.last()));
  // What is no box's name stands as it is.
  bench.Running.UnhandledError(RuntimeError(ErrorNumber::TypeMismatch, u"Unit Price"_s));
  QVERIFY(bench.Boxes.Said.last().contains(u"Unit Price: What stands there"_s));
}

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

void ProgramTest::theStartUpScreenIsAlwaysShownAnew() {
  Bench bench;
  const ScreenDriver setup = bench.SetupOfAFirstRun();
  setup.Click(u"cmdQuit"_s);
  QVERIFY(bench.Shows(u"frmStartup"_s));
  // The first one, whose welcome stood open, is gone by now.
  QVERIFY(bench.Running.Built(ScreenName::frmSplash) == nullptr);

  bench.Running.Show(ScreenName::frmSplash);
  bench.Running.Hide(ScreenName::frmStartup);
  const ScreenDriver anew(u"frmSplash"_s);
  QVERIFY(!anew.IsVisible(u"fraWelcome"_s));
  QVERIFY(anew.Text(u"lblVersion"_s).startsWith(u"Version "_s));
  anew.Click(u"cmdContinue"_s);
  QVERIFY(bench.Shows(u"frmStartup"_s));
  QVERIFY(!bench.Shows(u"frmSplash"_s));
}

void ProgramTest::aReturnFromSetupWithAFileMissingShowsTheStartUpScreenAnew() {
  Bench bench;
  const ScreenDriver setup = bench.SetupOfAFirstRun();
  // Somebody takes a file away that the save has just written, while it writes its last one.
  bench.Files.Awaited = u"/TaxSettings.txt"_s;
  bench.Files.OnOpen = [&] { bench.Tree.Remove(u"/Phone.txt"_s); };
  setup.Click(u"cmdQuit"_s);
  QVERIFY(!bench.Shows(u"frmSetup"_s));
  QVERIFY(!bench.Shows(u"frmStartup"_s));

  const ScreenDriver anew(u"frmSplash"_s);
  QVERIFY(!anew.IsVisible(u"fraWelcome"_s));
  anew.Click(u"cmdContinue"_s);
  QVERIFY(anew.IsVisible(u"fraWelcome"_s));
  anew.Click(u"Image1_1"_s);
  ScreenDriver(u"frmSetup"_s).Click(u"cmdQuit"_s);
  QVERIFY(bench.Shows(u"frmStartup"_s));
  QVERIFY(!bench.Shows(u"frmSplash"_s));
  QCOMPARE(bench.Boxes.Said, QStringList{});
}

QTEST_MAIN(ProgramTest)
#include "tst_program.moc"
