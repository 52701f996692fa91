#include "invoice/LaborEntry.h"

#include <algorithm>

#include "catalogue/CatalogueLists.h"
#include "invoice/LineEntry.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t Slots = 3;
constexpr size_t Total = 3;  ///< Element of `lblLaborCharge`.

/// A rate that isn't an amount stops the invoice, so the error tells where rates are entered.
Currency RateOf(const LaborRates& rates, size_t slot) {
  if (!IsNumeric(rates.txtLaborRate[slot])) {
    throw RuntimeError(ErrorNumber::TypeMismatch, QString(),
                       u"The rate of \"%1\" isn't an amount."_s.arg(rates.txtLabor[slot]))
        .WithAdvice(u"Enter it on the Labor Rates tab of Create and Manage, then open the invoice again."_s);
  }
  return Currency::FromText(rates.txtLaborRate[slot], u"txtLaborRate_%1"_s.arg(slot));
}

}  // namespace

void LoadLaborRates(WorkingInvoice& invoice, const LaborRates& rates) {
  Currency sum;
  for (size_t i = 0; i < Slots; ++i) {
    const bool shows = !rates.txtLabor[i].isEmpty();
    invoice.Entry.LaborShows[i] = shows;
    invoice.LaborRate[i] = {};
    if (!shows) continue;
    invoice.Entry.lblLaborHeading[i] = rates.txtLabor[i] + u" at "_s + rates.txtLaborRate[i] + u" per Hour"_s;
    invoice.LaborRate[i] = RateOf(rates, i);
    sum += invoice.LaborRate[i];
  }
  invoice.Controls.Enabled.mnuLabor = sum != Currency();
}

void ClearLabor(WorkingInvoice& invoice) {
  for (size_t i = 0; i < Slots; ++i) {
    if (invoice.Entry.LaborShows[i]) invoice.Entry.txtHours[i] = u"0"_s;
  }
  invoice.Entry.lblLaborCharge.fill(ZeroCurrencyText());
  invoice.LaborAmount.fill(Currency());
}

void LeaveHours(WorkingInvoice& invoice, int slot, Dialogs& dialogs) {
  const auto i = static_cast<size_t>(slot);
  QString& hours = invoice.Entry.txtHours.at(i);
  if (hours.isEmpty()) return;
  if (!IsNumeric(hours)) {
    hours = u"0"_s;
    invoice.Controls.Focus = u"txtHours_%1"_s.arg(slot);
    dialogs.Beep();
    return;
  }
  invoice.LaborAmount[i] = Times(invoice.LaborRate[i], ToNumber(hours));
  invoice.Entry.lblLaborCharge[i] = CurrencyText(invoice.LaborAmount[i]);
}

void SumLabor(WorkingInvoice& invoice) {
  Currency sum;
  for (const Currency amount : invoice.LaborAmount) sum += amount;
  invoice.Entry.lblLaborCharge[Total] = CurrencyText(sum);
  invoice.Controls.Enabled.cmdLabor_1 = true;
  invoice.Controls.Focus = u"cmdLabor_1"_s;
}

void PostLabor(WorkingInvoice& invoice, const LaborRates& rates, const TaxConfiguration& tax) {
  TextMatrix& grid = invoice.fgInvoice;
  const auto charged = std::count_if(invoice.LaborAmount.begin(), invoice.LaborAmount.end(),
                                     [](Currency amount) { return amount != Currency(); });
  // The limit of 100 lines isn't tested here, which is meant: only the grid refuses rows too many, and then all of
  // them.
  RequireRoom(invoice, static_cast<int>(charged));
  for (size_t i = 0; i < Slots; ++i) {
    if (invoice.LaborAmount[i] == Currency()) continue;
    const int row = invoice.LineCount + 1;
    grid.SetText(row, LineColumn::Quantity, invoice.Entry.txtHours[i] + u" Hrs"_s);
    grid.SetText(row, LineColumn::Description, rates.txtLabor[i]);
    grid.SetText(row, LineColumn::UnitPrice, rates.txtLaborRate[i]);
    grid.SetText(row, LineColumn::Extension, invoice.Entry.lblLaborCharge[i]);
    SetApplyTax(invoice, LineKind::Labor, tax);
    ++invoice.LineCount;
    invoice.Controls.Enabled.cmdPrint = true;
  }
  invoice.Controls.Enabled.cmdLabor_1 = false;
}
