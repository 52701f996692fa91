#include <QApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include "desktop/PaperPrinter.h"
#include "desktop/ProgramPicture.h"
#include "desktop/QtDialogs.h"
#include "desktop/SerialLine.h"
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
  QApplication::setWindowIcon(ProgramPicture());

  FileDevice files;
  FileStore store(files);
  SystemClock clock;
  QtDialogs dialogs;
  PaperPrinter paper(store, dialogs, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  SerialLine modem(PortsOfThisMachine());
  const QFileInfo programFile(QApplication::applicationFilePath());
  QString root;
  try {
    root = ChooseDataRoot(files, programFile.absolutePath(),
                          QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
  } catch (const RuntimeError& error) {
    dialogs.ShowMessage(ErrorBoxText(error, true, root));
    return 1;
  }

  Platform platform = PlatformOn(root, files, clock, dialogs, paper, modem);
  platform.EXEName = programFile.completeBaseName();
  platform.ProgramFolder = programFile.absolutePath();
  Program program(platform);
  program.Ended = &QApplication::quit;
  if (program.Start()) QApplication::exec();
  return program.HasFailed() ? 1 : 0;
}
