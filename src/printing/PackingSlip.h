/// The packing slip: the lines of an invoice without their prices, on the invoice's frame, with a column for the
/// packer's initials.
#pragma once

#include "printing/KVPrint.h"

class Dialogs;
class TextMatrix;

struct PackingDesk {
  PrinterRoutines& Printing;
  KVPrint& Pages;
  Dialogs& Boxes;
};

/// The printer dialog, the slip of `lines` (quantity in column 0, description in column 1), and the question whether it
/// printed. A reprint comes without another dialog. A cancelled dialog ends it silently, any other error with the print
/// error's box.
void PrintPackingSlip(const PackingDesk& desk, const TextMatrix& lines);
