#include <QApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include "desktop/PaperPrinter.h"
#include "desktop/Pictures.h"
#include "desktop/QtDialogs.h"
#include "desktop/Style.h"
#include "Program.h"
#include "runtime/Clock.h"
#include "runtime/FileDevice.h"
#include "runtime/FileStore.h"
#include "shell/DataRoot.h"
#include "shell/ErrorText.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyStyle(application);
  QApplication::setWindowIcon(LogoPicture());

  FileDevice files;
  FileStore store(files);
  SystemClock clock;
  QtDialogs dialogs;
  PaperPrinter paper(store, dialogs, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QFileInfo programFile(QApplication::applicationFilePath());
  Platform platform;
  platform.EXEName = programFile.completeBaseName();
  platform.ProgramFolder = programFile.absolutePath();
  platform.LockFolder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  platform.Version = QStringLiteral(KARVEX_VERSION);
  platform.Files = &files;
  platform.Calendar = &clock;
  platform.Boxes = &dialogs;
  platform.Paper = &paper;
  try {
    platform.DataRoot = ChooseDataRoot(files, platform.ProgramFolder,
                                       QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
  } catch (const RuntimeError& error) {
    dialogs.ShowMessage(ErrorBoxText(error, true));
    return 1;
  }

  Program program(platform);
  program.Ended = &QApplication::quit;
  if (!program.Start()) return 0;
  return QApplication::exec();
}
