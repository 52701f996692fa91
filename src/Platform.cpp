#include "Platform.h"

Platform PlatformOn(const QString& root, FileDevice& files, const Clock& calendar, Dialogs& boxes, Printer& paper,
                    SerialPort& modem) {
  Platform platform;
  platform.DataRoot = root;
  platform.EXEName = QStringLiteral("KarvexInvoicer");
  platform.ProgramFolder = root;
  platform.Version = QStringLiteral(KARVEX_VERSION);
  platform.Files = &files;
  platform.Calendar = &calendar;
  platform.Boxes = &boxes;
  platform.Paper = &paper;
  platform.Modem = &modem;
  return platform;
}
