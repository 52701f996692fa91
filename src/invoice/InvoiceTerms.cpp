#include "invoice/InvoiceTerms.h"

#include "invoice/InvoiceHeaderData.h"
#include "invoice/Totals.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Dialogs.h"
#include "setup/InvoicerSettings.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

const QString TermsFile = u"/StatementTerms.txt"_s;

// Entries of the terms list: the first four offer no discount, the six after them do, the last leaves it open.
constexpr int InFullUponReceipt = 0;
constexpr int LastWithoutDiscount = 3;
constexpr int OnePercentInTenDays = 4;
constexpr int DiscountApplied = 10;

void Announce(const TermsDesk& desk, const QStringList& lines) {
  Tell(desk.Invoice, desk.Boxes, lines.join(u"\r\n"_s));
}

void ChooseNoDiscount(const TermsDesk& desk) {
  if (desk.Invoice.cboTerms.ListIndex <= LastWithoutDiscount) return;
  SelectTerms(desk, InFullUponReceipt);
  Announce(desk, {u"You have Selected No Discount but your"_s, u"Invoice Terms were set to offer a Discount"_s,
                  u"Your Invoice Terms have been reset to"_s, u"In full upon Receipt"_s});
}

void ChooseFlatDiscount(const TermsDesk& desk) {
  WorkingInvoice& invoice = desk.Invoice;
  invoice.Controls.Visible.fraFlat = true;
  invoice.FlatDiscount = {};
  invoice.txtFlatDiscount.clear();
  invoice.Controls.Focus = u"txtFlatDiscount"_s;
  if (invoice.GrandTotal > Currency()) ComputeGrandTotal(invoice);
  invoice.Controls.Enabled.cmdAddDiscount = true;
  SelectTerms(desk, DiscountApplied);
  Announce(desk, {u"You have Selected to Enter a Discount"_s, u"Your Invoice Terms have been reset to"_s,
                  u"A Discount has been Applied"_s, u"You may wish to replace this setting"_s});
}

void ChooseCalculatedDiscount(const TermsDesk& desk) {
  const int terms = desk.Invoice.cboTerms.ListIndex;
  if (terms == DiscountApplied || terms <= LastWithoutDiscount) {
    SelectTerms(desk, OnePercentInTenDays);
    Announce(desk, {u"You have Selected to Calculate a Discount but your"_s, u"Invoice Terms were set to no Discount"_s,
                    u"Your Invoice Terms have been reset to"_s, u"Discount 1% in 10 days, Net 15 days"_s});
  }
  desk.Invoice.Controls.Visible.fraDiscount = true;
}

}  // namespace

QStringList TermsList() {
  return {u"Payment due in Full upon Receipt"_s,    u"Payment due in Full within 10 Days"_s,
          u"Payment due in Full within 15 Days"_s,  u"Payment due in Full within 30 Days"_s,
          u"Discount 1% in 10 days, Net 15 days"_s, u"Discount 2% in 10 days, Net 15 days"_s,
          u"Discount 1% in 10 days, Net 20 days"_s, u"Discount 2% in 10 days, Net 20 days"_s,
          u"Discount 1% in 10 days, Net 30 days"_s, u"Discount 2% in 10 days, Net 30 days"_s,
          u" A Discount has been Applied"_s};
}

void LoadInvoiceLists(InvoicerSettings& settings) {
  settings.cboDiscount = DiscountList().at(3);
  settings.cboDays = DaysList().at(1);
}

void FillTermsList(WorkingInvoice& invoice) {
  invoice.cboTerms = {};
}

void LoadDefaultTerms(const TermsDesk& desk, CommonDiskRoutines& disk) {
  if (!disk.FileExists(TermsFile)) {
    SelectTerms(desk, InFullUponReceipt);
    return;
  }
  desk.Invoice.cboTerms.Text = disk.OpenInputFile(TermsFile).ReadLine();
  const auto entry = TermsList().indexOf(desk.Invoice.cboTerms.Text);
  if (entry >= 0) SelectTerms(desk, static_cast<int>(entry));
}

void LoadTerms(const TermsDesk& desk, CommonDiskRoutines& disk) {
  FillTermsList(desk.Invoice);
  LoadDefaultTerms(desk, disk);
}

void SaveDefaultTerms(const WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  disk.ReplaceTextFile(TermsFile, invoice.cboTerms.Text);
}

void SelectTerms(const TermsDesk& desk, int index) {
  WorkingInvoice& invoice = desk.Invoice;
  invoice.cboTerms = {TermsList().at(index), index};
  if (index == DiscountApplied) return;
  if (index <= LastWithoutDiscount) {
    invoice.ckDiscount = false;
    SelectDiscountOption(desk, DiscountOption::None);
    return;
  }
  SelectDiscountOption(desk, DiscountOption::Calculated);
  invoice.ckDiscount = true;
  desk.Settings.cboDays = DaysList().at(1);
  desk.Settings.cboDiscount = DiscountList().at(index % 2 == 0 ? 1 : 3);
}

void TypeTerms(WorkingInvoice& invoice, const QString& text) {
  invoice.cboTerms = {text, -1};
}

void SelectDiscountOption(const TermsDesk& desk, int option) {
  WorkingInvoice& invoice = desk.Invoice;
  if (invoice.optDiscount == option) return;
  invoice.optDiscount = option;
  invoice.Controls.Visible.fraFlat = false;
  invoice.Controls.Visible.fraDiscount = false;
  invoice.Controls.Enabled.cmdInvoiceContinue = false;
  invoice.txtDiscount = ZeroCurrencyText();
  invoice.CalcDiscount = {};
  switch (option) {
    case DiscountOption::None:
      return ChooseNoDiscount(desk);
    case DiscountOption::Flat:
      return ChooseFlatDiscount(desk);
    default:
      return ChooseCalculatedDiscount(desk);
  }
}

void ClickDiscountCheck(const TermsDesk& desk, bool ticked) {
  desk.Invoice.ckDiscount = ticked;
  if (ticked) return;
  desk.Settings.cboDiscount = DiscountList().first();
  desk.Settings.cboDays = DaysList().first();
}
