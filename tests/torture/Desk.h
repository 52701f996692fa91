/// The real program on a folder, with a user who isn't there: files, screens and boxes are real, the clock stands
/// still, the paper is recorded or goes to PDF files, and every box is noted and answered by its Yes, else by its OK.
#pragma once

#include <memory>
#include <QObject>
#include <QStringList>

#include "desktop/PaperPrinter.h"
#include "desktop/SerialLine.h"
#include "Program.h"
#include "runtime/FileDevice.h"
#include "runtime/FileStore.h"
#include "support/FixedClock.h"
#include "support/RecordingPrinter.h"
#include "support/ScreenDriver.h"
#include "support/TestDialogs.h"

class QDialog;
class QPrintDialog;

/// The real dialogs but the one for files, whose folder is read by a thread of its own.
class DeskDialogs final : public TestDialogs {
 public:
  explicit DeskDialogs(const QString& chosen) : m_chosen(chosen) {}
  QString ChooseFile(const QString&, const QString&) override { return m_chosen; }

 private:
  const QString& m_chosen;
};

class Desk : public QObject {
 public:
  /// `onPaper`: prints to PDF files in the root's folder /Printed.
  Desk(const QString& root, bool onPaper);
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

  QString InputText;   ///< What an input box gets.
  QString ChosenFile;  ///< What the dialogs for files and for the printer get, by its full path.
  QStringList Boxes;   ///< "title: text" of each that came up.

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Answer(QDialog& dialog);
  void Print(QPrintDialog& dialog) const;

  QString m_root;
  FileDevice m_files;
  FixedClock m_calendar;
  DeskDialogs m_dialogs{ChosenFile};
  RecordingPrinter m_recorder;
  FileStore m_store{m_files};
  std::unique_ptr<PaperPrinter> m_printer;
  SerialLine m_modem{PortTable{}};
  std::unique_ptr<Program> m_program;
};
