/// The real program on a data root of its own: the files, screens and boxes are real; the clock stands still, the paper
/// is recorded, and the user's answers are queued.
///
///   ProgramFixture program;                                       // nothing on the disk yet
///   program.Tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
///   program.Start();
///   ScreenDriver menu(u"frmStartup"_s);
///
/// A local variable of the test function: its end checks that every queued answer was used.
#pragma once

#include <memory>

#include "desktop/SerialLine.h"
#include "Program.h"
#include "support/FailingDevice.h"
#include "support/FixedClock.h"
#include "support/QueuedAnswers.h"
#include "support/RecordingPrinter.h"
#include "support/ScreenDriver.h"
#include "support/TemporaryTree.h"
#include "support/TestDialogs.h"

class ProgramFixture {
 public:
  ProgramFixture();
  ~ProgramFixture();

  /// `Sub Main`; answers whether the program runs.
  bool Start();
  /// Start, and past the start-up screen: the settings files are written first, so that no welcome stands in the way.
  /// Answers with the main menu shown.
  bool StartAtMenu();
  /// A second program on the same data root while the first one runs; answers whether it runs. It is gone afterwards.
  bool StartSecond();
  /// Ends the program as the user does, by a window's close box, and forgets it; `Start` begins another on the same
  /// tree.
  void End();

  Program& Running() { return *m_program; }
  Screen* Built(ScreenName screen) { return m_program->Built(screen); }

  TemporaryTree Tree;
  FixedClock Calendar;
  FailingDevice Files;
  TestDialogs Dialogs;
  RecordingPrinter Paper;
  /// The serial ports of the next start; none of the machine's own is ever touched.
  PortTable Ports;
  QueuedAnswers Answers;
  /// Of a program that is started after that: 0 shows each progress at once.
  qint64 Patience = LongWork().After;
  /// The time in which work counts as long, in milliseconds: it stands still but for what a test adds to it.
  qint64 WorkTime = 0;
  QString EXEName = QStringLiteral("KarvexInvoicer");

 private:
  Platform OnThisTree(SerialPort& modem);

  std::unique_ptr<SerialLine> m_modem;
  std::unique_ptr<Program> m_program;
};
