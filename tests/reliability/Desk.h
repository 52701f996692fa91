/// The real program on a folder, with a user who isn't there: files, screens and boxes are real, the clock stands
/// still, the paper is recorded, and every box is noted and answered by its Yes, else by its OK.
#pragma once

#include <memory>
#include <QObject>
#include <QStringList>

#include "desktop/SerialLine.h"
#include "Program.h"
#include "runtime/FileDevice.h"
#include "support/FixedClock.h"
#include "support/RecordingPrinter.h"
#include "support/ScreenDriver.h"
#include "support/TestDialogs.h"

class QDialog;

class Desk : public QObject {
 public:
  Desk(const QString& root, const QString& lockFolder);
  ~Desk() override;

  /// Starts the program; whether it runs.
  bool Start();
  /// Past the start-up screen. False where the program ended on the way.
  bool GoToMenu();
  /// From the main menu: the routine of that number.
  void OpenRoutine(int option) const;
  bool Shows(const QString& screen) const { return ScreenDriver::IsShown(screen); }
  bool HasEnded() const { return m_program == nullptr || m_program->HasEnded(); }
  const QString& Root() const { return m_root; }

  QString InputText;  ///< What an input box gets.
  QStringList Boxes;  ///< "title: text" of each that came up.

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Answer(QDialog& dialog);

  QString m_root;
  QString m_lockFolder;
  FileDevice m_files;
  FixedClock m_calendar;
  TestDialogs m_dialogs;
  RecordingPrinter m_paper;
  SerialLine m_modem{PortTable{}};
  std::unique_ptr<Program> m_program;
};
