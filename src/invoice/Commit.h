/// What makes an invoice real: `cmdInvoiceContinue` prints it, asks whether it printed, and then writes every store in
/// one fixed order.
#pragma once

#include <functional>

#include <QString>

class Clock;
class CommonDiskRoutines;
class Dialogs;
struct CustomerOnScreen;
struct SalesItemsList;
struct TaxConfiguration;
struct WorkingInvoice;

/// What the run works on.
struct CommitDesk {
  WorkingInvoice& Invoice;
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  const Clock& Today;
  const TaxConfiguration& Tax;
  const CustomerOnScreen& Customer;
  const SalesItemsList& SalesItems;
};

/// The steps that other floors do. All must be set.
struct CommitSteps {
  /// The printer dialog and the set-up for portrait. Runs again at each retry.
  std::function<void()> BeginPrintJob;
  std::function<void()> PrintInvoice;
  /// The items as the screens show them are read again (`LoadAdditionalItems`).
  std::function<void()> ReloadItems;
  /// The number of the partial invoice that is selected in the partial list, as column 0 shows it.
  std::function<QString()> SelectedPartial;
  /// Reads the partial list again (`LoadPartialList`).
  std::function<void()> ReloadPartials;
  std::function<void()> PrintPackingSlip;
  /// The creation view (`mnuCreate`).
  std::function<void()> ToCreationView;
  /// `cmdExit`: the screen's way back to the main menu.
  std::function<void()> Leave;
};

/// The whole run. An invoice without lines goes back to the creation view with a message; a number or an account that
/// can't name a file is refused with a message, and the invoice stays. From then on any RuntimeError ends the writing
/// without a message: the options are reset and the screen is left.
void PrintAndCommit(const CommitDesk& desk, const CommitSteps& steps);

/// `cmdExit`'s part on the invoice: no longer recalled, cleared, without a number.
void AbandonInvoice(WorkingInvoice& invoice, const Clock& clock);
