#include "invoice/InvoiceHeaderData.h"

#include "invoice/ClearInvoice.h"
#include "invoice/InvoiceNumber.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/Screens.h"

using namespace Qt::StringLiterals;

namespace {

const QString CarrierFile = u"/ShipVia.txt"_s;
constexpr size_t SoldToLines = 6;

}  // namespace

void TakeSoldTo(WorkingInvoice& invoice, const SoldTo& customer) {
  invoice.SoldToAcct = customer.Acct;
  invoice.SoldToLine = customer.Line;
}

void ShowCustomer(WorkingInvoice& invoice) {
  ClearCustomer(invoice);
  invoice.lblAcct = invoice.lblAcctNo = invoice.SoldToAcct;
  for (size_t i = 0; i < SoldToLines; ++i) {
    invoice.lblCustomer[i] = invoice.lblCustomer[i + SoldToLines] = invoice.SoldToLine[i];
  }
  invoice.Controls.Focus = u"txtShipto_6"_s;
}

void ClearCustomer(WorkingInvoice& invoice) {
  invoice.lblAcct.clear();
  invoice.lblAcctNo.clear();
  invoice.lblCustomer.fill(QString());
  invoice.txtShipto.fill(QString());
}

void CopySoldToIntoShipTo(WorkingInvoice& invoice) {
  for (size_t i = 0; i < SoldToLines; ++i) invoice.txtShipto[i] = invoice.lblCustomer[i + SoldToLines];
  invoice.Controls.Focus = u"txtShipto_0"_s;
}

void ClearShipTo(WorkingInvoice& invoice) {
  for (size_t i = 0; i < SoldToLines; ++i) invoice.txtShipto[i].clear();
}

void FillReference(WorkingInvoice& invoice, const Clock& clock) {
  if (invoice.txtReference.isEmpty()) invoice.txtReference = u"Prepared "_s + ShortDateText(clock.Today());
}

void PickServiceDate(WorkingInvoice& invoice, QDate date, const Clock& clock, Dialogs& dialogs) {
  invoice.DTPicker1 = date;
  // A later date is kept for the services to come; only the line isn't dated ahead.
  if (date > clock.Today()) {
    dialogs.Beep();
    return;
  }
  TextMatrix& grid = invoice.fgInvoice;
  // A line without a quantity, which is a service, keeps the date that it was posted with.
  if (grid.Row() != 0 && IsNumeric(grid.Text(grid.Row(), LineColumn::Quantity))) {
    grid.SetText(grid.Row(), LineColumn::ServiceDate, ShortDateText(date));
  }
}

void ResetServiceDate(WorkingInvoice& invoice) {
  TextMatrix& grid = invoice.fgInvoice;
  if (grid.Row() != 0) grid.SetText(grid.Row(), LineColumn::ServiceDate, {});
}

void SetInvoiceMode(WorkingInvoice& invoice, bool recalled, CommonDiskRoutines& disk, const Clock& clock) {
  invoice.Controls.Enabled.cmdInvoice_2 = !recalled;
  invoice.Controls.Visible.lblInvoiceNo = !recalled;
  if (recalled) {
    invoice.Controls.txtInvoiceNoLocked = true;
    invoice.DTPicker1 = invoice.InvoiceDate;
    return;
  }
  LoadInvoiceNo(invoice, disk, clock);
  invoice.DTPicker1 = invoice.DTShip = clock.Today();
  ClearInvoice(invoice, clock);
}

QStringList CarrierList() {
  return {u"UPS - Next Day Air"_s,   u"UPS - 2nd Day Air"_s,
          u"UPS - Ground"_s,         u"USPS - Express"_s,
          u"USPS - Priority Mail"_s, u"USPS - Parcel Post"_s,
          u"FEDEX - Next Day Air"_s, u"FEDEX - 2nd Day Air"_s,
          u"FEDEX - Ground"_s,       u"None"_s};
}

void LoadShipVia(WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  invoice.cboShipping =
      disk.FileExists(CarrierFile) ? disk.OpenInputFile(CarrierFile).ReadLine() : CarrierList().last();
}

void SaveShipVia(const WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  disk.ReplaceTextFile(CarrierFile, invoice.cboShipping);
}

QStringList PrepaidList() {
  return {u"Check # "_s, u"Credit Card # "_s, u"Cash"_s};
}

// The comma forms stand here on purpose; the number parse stops at the comma, so that "1,5" counts as 1.
QStringList DiscountList() {
  return {u"0.0"_s, u"1.0"_s, u"1.5"_s, u"2.0"_s, u"0,0"_s, u"1,0"_s, u"1,5"_s, u"2,0"_s};
}

QStringList DaysList() {
  return {u"0"_s, u"10"_s, u"15"_s, u"20"_s, u"30"_s};
}
