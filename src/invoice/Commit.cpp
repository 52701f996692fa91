#include "invoice/Commit.h"

#include "customers/CommonAccountRoutines.h"
#include "customers/CustomerOnScreen.h"
#include "invoice/ClearInvoice.h"
#include "invoice/CommitRecords.h"
#include "invoice/InvoiceImage.h"
#include "invoice/InvoiceNumber.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "setup/TaxConfiguration.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

/// What the run would write must be able to stand in its folders; asked before anything is printed.
bool CanNameItsFiles(const CommitDesk& desk, const CommitSteps& steps) {
  if (!CheckInvoiceNo(desk.Invoice, desk.Boxes, steps.ToCreationView)) return false;
  if (IsSafeAccount(desk.Customer.txtCustomer0)) return true;
  Tell(desk.Invoice, desk.Boxes,
       u"The account number \"%1\" names the ledger of the customer, and can't name a file. Correct it on the customer "
       u"screen, then print the Invoice."_s.arg(desk.Customer.txtCustomer0));
  return false;
}

/// A full store would end this recording, and each one after it, in its middle and without a word: told before anything
/// is printed.
void RequireRoom(const CommitDesk& desk) {
  try {
    RequireRoomForRecords(desk.Invoice, desk.Customer.txtCustomer0, desk.Disk);
  } catch (const RuntimeError& error) {
    // What can't be looked at is left to the recording.
    if (error.Number() != ErrorNumber::Overflow) return;
    if (error.From() == RuntimeError::Origin::FileContent) desk.Disk.KeepBackupOf(error.Subject());
    throw RuntimeError(ErrorNumber::Overflow, error.Subject(), u"The file takes no more than 32,767 records."_s)
        .WithAdvice(
            u"Move it, and its copy in the Backup folder, elsewhere: the recording starts a new one. Then finalize and "
            u"print the invoice again. Nothing was lost."_s);
  }
}

/// Prints until the user says that it printed; false where he gives up.
bool PrintUntilConfirmed(const CommitDesk& desk, const CommitSteps& steps) {
  do {
    steps.BeginPrintJob();
    steps.PrintInvoice();
    if (Ask(desk.Invoice, desk.Boxes, u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s)) return true;
  } while (Ask(desk.Invoice, desk.Boxes, u"Would you like to Retry Printing this Invoice"_s, u"Print Retry"_s));
  return false;
}

void WriteEveryStore(const CommitDesk& desk, const CommitSteps& steps) {
  WorkingInvoice& invoice = desk.Invoice;
  const QDate today = desk.Today.Today();
  CommonAccountRoutines accounts(desk.Disk, desk.Today);
  WriteSoldItems(invoice, desk.SalesItems, desk.Disk, today);
  WriteSalesJournal(invoice, desk.Disk, today);
  WriteReceivable(invoice, desk.Customer, accounts, today);
  SaveCompletedInvoice(invoice, desk.Disk, today);
  if (UpdateInventory(invoice, desk.Disk, desk.Boxes)) steps.ReloadItems();
  WriteTaxRecords(invoice, desk.Tax.cboTaxHeading1, desk.Tax.cboTaxHeading2, desk.Disk, today);
}

/// The finished invoice leaves the screen, and either its partial image or its number is used up.
void Finish(const CommitDesk& desk, const CommitSteps& steps) {
  ClearInvoice(desk.Invoice, desk.Today);
  if (desk.Invoice.RecalledInvoice) {
    desk.Disk.KillDataFile(InvoiceImageName(TrimBlanks(steps.SelectedPartial()), false));
    steps.ReloadPartials();
  } else {
    BumpInvoiceNo(desk.Invoice, desk.Disk);
  }
  desk.Invoice.RecalledInvoice = false;
}

}  // namespace

void PrintAndCommit(const CommitDesk& desk, const CommitSteps& steps) {
  WorkingInvoice& invoice = desk.Invoice;
  invoice.Controls.Enabled.cmdInvoiceContinue = false;
  if (invoice.LineCount < 1) {
    Tell(invoice, desk.Boxes, u"The Invoice contains no Items"_s, u"No Items Entered"_s);
    steps.ToCreationView();
    return;
  }
  if (!CanNameItsFiles(desk, steps)) return;
  RequireRoom(desk);
  try {
    if (PrintUntilConfirmed(desk, steps)) {
      WriteEveryStore(desk, steps);
      Finish(desk, steps);
    }
  } catch (const RuntimeError& error) {
    // Whatever failed, what remains is skipped without a message, and the screen is left as after a success.
    if (error.From() == RuntimeError::Origin::FileContent) desk.Disk.KeepBackupOf(error.Subject());
  }
  if (invoice.ckPackingList) steps.PrintPackingSlip();
  ResetInvoiceOptions(invoice, desk.Tax);
  ResetPrintOptions(invoice);
  steps.Leave();
}

void AbandonInvoice(WorkingInvoice& invoice, const Clock& clock) {
  invoice.RecalledInvoice = false;
  ClearInvoice(invoice, clock);
  invoice.txtInvoiceNo.clear();
}
