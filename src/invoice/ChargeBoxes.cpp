#include "invoice/ChargeBoxes.h"

#include "invoice/Totals.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "setup/TaxConfiguration.h"
#include "shell/VerifyDataRoutines.h"

using namespace Qt::StringLiterals;

namespace {

/// Takes the amount of a charge box over. Answers false where there was none to take.
bool TakeCharge(WorkingInvoice& invoice, QString& box, Currency& charge, const QString& name, Dialogs& dialogs) {
  if (!VerifyCurrencyBox(box, dialogs)) {
    invoice.Controls.Focus = name;
    return false;
  }
  charge = Currency::FromText(box, name);
  box = CurrencyText(charge);
  return true;
}

}  // namespace

void LeaveShip(WorkingInvoice& invoice, Dialogs& dialogs) {
  if (invoice.txtShip.isEmpty()) return;
  if (TakeCharge(invoice, invoice.txtShip, invoice.ShipCharge, u"txtShip"_s, dialogs)) {
    invoice.Controls.Enabled.cmdInvoiceContinue = false;
  }
}

void LeaveMisc(WorkingInvoice& invoice, Dialogs& dialogs) {
  if (invoice.txtMisc.isEmpty() || invoice.txtMisc == ZeroCurrencyText()) return;
  if (TakeCharge(invoice, invoice.txtMisc, invoice.MiscCharge, u"txtMisc"_s, dialogs)) RequireFinalize(invoice);
}

void ClearShip(WorkingInvoice& invoice) {
  invoice.ShipCharge = {};
  invoice.txtShip = ZeroCurrencyText();
}

void ClearMisc(WorkingInvoice& invoice) {
  invoice.MiscCharge = {};
  invoice.txtMisc = ZeroCurrencyText();
}

void ResetShip(WorkingInvoice& invoice) {
  ClearShip(invoice);
  RequireFinalize(invoice);
}

void ResetMisc(WorkingInvoice& invoice) {
  ClearMisc(invoice);
  RequireFinalize(invoice);
}

void LeaveFlatDiscount(WorkingInvoice& invoice) {
  const std::optional<QString> amount = CurrencyTextOf(invoice.txtFlatDiscount);
  if (!amount) return;
  invoice.txtFlatDiscount = *amount;
  invoice.Controls.Focus = u"cmdAddDiscount"_s;
}

void DeductDiscount(WorkingInvoice& invoice, const TaxConfiguration& tax, Dialogs& dialogs) {
  ComputeTotals(invoice, tax);
  invoice.FlatDiscount = Currency::FromText(invoice.txtFlatDiscount, u"txtFlatDiscount"_s);
  const Currency sum = invoice.SubTotal + invoice.Tax1 + invoice.Tax2 + invoice.ShipCharge + invoice.MiscCharge;
  if (invoice.FlatDiscount >= sum) {
    dialogs.Beep();
    Tell(invoice, dialogs, u"Your discount exceeds the Invoice Amount"_s);
    ClearFlatDiscount(invoice);
    invoice.Controls.Focus = u"txtFlatDiscount"_s;
    return;
  }
  invoice.txtDiscount = CurrencyText(invoice.FlatDiscount);
  invoice.Controls.Enabled.cmdAddDiscount = false;
  invoice.ckDiscount = false;
}

void ClearFlatDiscount(WorkingInvoice& invoice) {
  invoice.FlatDiscount = {};
  invoice.txtFlatDiscount = ZeroCurrencyText();
}
