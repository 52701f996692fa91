/// What a program runs on: its folder, and the devices that the system gives it.
#pragma once

#include <QString>

#include "runtime/Progress.h"

class Clock;
class Dialogs;
class FileDevice;
class Printer;
class SerialPort;

struct Platform {
  QString DataRoot;       ///< Absolute, without a trailing separator; exists.
  QString EXEName;        ///< The program file's name without extension.
  QString ProgramFolder;  ///< Where the supplied files and the manual stand.
  QString Version;        ///< "major.minor.revision".
  FileDevice* Files = nullptr;
  const Clock* Calendar = nullptr;
  Dialogs* Boxes = nullptr;
  Printer* Paper = nullptr;
  SerialPort* Modem = nullptr;
  LongWork Patience;
};

/// A platform on one folder, under the program's own name and version: what tests, benchmarks and the demonstration run
/// on, and what `main` starts from.
Platform PlatformOn(const QString& root, FileDevice& files, const Clock& calendar, Dialogs& boxes, Printer& paper,
                    SerialPort& modem);
