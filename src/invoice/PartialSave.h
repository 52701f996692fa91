/// `cmdSave`: an invoice that is left unfinished goes to its partial image, to be recalled from the main menu.
#pragma once

#include <functional>

class Clock;
class CommonDiskRoutines;
class Dialogs;
struct WorkingInvoice;

/// What the run works on.
struct PartialSaveDesk {
  WorkingInvoice& Invoice;
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  const Clock& Today;
};

/// The steps that other floors do. All must be set.
struct PartialSaveSteps {
  /// Prints the invoice as it stands, without a printer dialog; false where the print failed and was told.
  std::function<bool()> PrintInvoice;
  /// Reads the partial list again (`LoadPartialList`).
  std::function<void()> ReloadPartials;
  /// The creation view (`mnuCreate`).
  std::function<void()> ToCreationView;
  /// `cmdExit`: the screen's way back to the main menu.
  std::function<void()> Leave;
};

/// The whole run: the question, a draft copy if wanted, a date in every line, the image, and for an invoice that wasn't
/// recalled the next number. A number that can't name a file is refused with a message before anything else. A failed
/// print or write ends the run where it stands, and the invoice stays on the screen.
void SavePartial(const PartialSaveDesk& desk, const PartialSaveSteps& steps);
