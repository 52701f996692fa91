/// The invoice in the making. There is one; the invoice screen's controls write through to it, and totals, pages and
/// commit read it.
#pragma once

#include <array>
#include <functional>
#include <QDate>
#include <QString>

#include "invoice/InvoiceControls.h"
#include "invoice/LineEntryBoxes.h"
#include "runtime/Currency.h"
#include "runtime/TextMatrix.h"

class Dialogs;

/// Columns of the line grid; all cells are text.
namespace LineColumn {
inline constexpr int Quantity = 0;  ///< As typed; blank on a service line; hours and " Hrs" on a labor line.
inline constexpr int Description = 1;
inline constexpr int ServiceDate = 2;
inline constexpr int UnitPrice = 3;
inline constexpr int Extension = 4;  ///< The only amount that the totals read.
inline constexpr int ApplyTax = 5;   ///< "True" or "False".
inline constexpr int Count = 6;
}  // namespace LineColumn

inline constexpr int MaximumLines = 100;

/// Elements of `optDiscount`.
namespace DiscountOption {
inline constexpr int None = 0;
inline constexpr int Flat = 1;
inline constexpr int Calculated = 2;
}  // namespace DiscountOption

/// Several lines of text in one member stand with a line feed between them, as the boxes have it; files get CR LF.
/// The discount percentage and days (`cboDiscount`, `cboDays`) live in `InvoicerSettings`, which remembers them.
struct WorkingInvoice {
  WorkingInvoice();

  TextMatrix fgInvoice;  ///< 6 columns, 101 rows; lines occupy rows 1 to LineCount.
  qint16 LineCount = 0;
  Currency SubTotal, GrandTotal, Tax1, Tax2, ShipCharge, MiscCharge;
  Currency CalcDiscount;  ///< Offered for early payment; shown, never deducted.
  Currency FlatDiscount;  ///< Deducted from GrandTotal.
  Currency TaxableAmount;
  qint32 InvoiceNo = 0;
  bool DraftPrint = false;
  QDate InvoiceDate;  ///< Of a recalled partial invoice.
  std::array<Currency, 3> LaborRate;
  std::array<Currency, 3> LaborAmount;
  /// From the moment a partial invoice is loaded until the invoice is finished or the screen left.
  bool RecalledInvoice = false;
  QString SoldToAcct;
  std::array<QString, 7> SoldToLine;

  // The controls that are data.
  QString txtInvoiceNo;  ///< This text, not InvoiceNo, names the image file.
  QString lblAcct, lblAcctNo;
  std::array<QString, 12> lblCustomer;  ///< 0 to 5 and 6 to 11: the sold-to block, twice.
  std::array<QString, 7> txtShipto;     ///< 6 is the attention line.
  QString txtReference;
  QString cboShipping;
  QDate DTShip;
  ComboValue cboTerms;
  QDate DTPicker1;
  QString txtMemo;
  bool ckAddMemo = false;
  QString txtNarrative;
  QString txtShip, txtMisc, txtTotal, txtTax, txtTax2, txtGrandTotal, txtDiscount, txtFlatDiscount;
  bool ckExempt = false, ck2ndTax = false, ckApplyVolumeDiscount = false, ckPackingList = false, ckPrepaid = false;
  bool ckShipto = false, ckManualTax = false;
  int optDiscount = DiscountOption::None;
  bool ckDiscount = false;
  QString txtPrepaid, cboPrepaid;

  /// The default memo as last loaded; the reprint screen shows it too.
  QString DefaultMemo;

  LineEntryBoxes Entry;
  InvoiceControls Controls;

  /// Set by the screen: puts everything here on its controls, silently (no handler of theirs runs), and gives the
  /// focus where `Controls.Focus` says. The screen calls it itself after each rule; a rule calls it, through `Show`,
  /// before a box of its own comes up, so that the user sees behind the box what it speaks of.
  std::function<void()> Refresh;
  void Show() const {
    if (Refresh) Refresh();
  }
};

/// Shows the invoice as it stands, then the message (or the question).
void Tell(const WorkingInvoice& invoice, Dialogs& dialogs, const QString& text, const QString& title = {});
bool Ask(const WorkingInvoice& invoice, Dialogs& dialogs, const QString& text, const QString& title);

/// An amount box that gets the focus: the currency text of zero is blanked, so that the user types over it. It holds
/// for `txtShip`, `txtMisc`, `txtFlatDiscount` and `txtManual_1`.
void EnterAmountBox(QString& boxText);
/// A count box that gets the focus: "0" is blanked (`txtUnits`, `txtCUnits`, `txtHours`).
void EnterCountBox(QString& boxText);
