/// Empty invoice forms for filling in by hand.
#pragma once

#include "printing/KVPrint.h"

class Clock;
class Dialogs;
struct PrintAppearance;

struct BlanksDesk {
  PrinterRoutines& Printing;
  KVPrint& Pages;
  const PrintAppearance& Appearance;
  Dialogs& Boxes;
  const Clock& Today;
};

/// Prints as many forms as `txtInvoices` says, each a job of its own with its own printer dialog. A cancelled dialog
/// ends the run at that sheet silently; any other error, a text that isn't a 16-bit number among them, ends it with the
/// print error's box. 0 prints nothing.
void PrintBlanks(const BlanksDesk& desk, const QString& txtInvoices);
