/// The invoice in the making. There is one; the invoice screen's controls write through to it, and totals, pages and
/// commit read it.
#pragma once

#include <QDate>
#include <QString>
#include <array>

#include "runtime/Currency.h"
#include "runtime/TextMatrix.h"

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
  QString cboTerms;
  QDate DTPicker1;
  QString txtMemo;
  bool ckAddMemo = false;
  QString txtNarrative;
  QString txtShip, txtMisc, txtTotal, txtTax, txtTax2, txtGrandTotal, txtDiscount, txtFlatDiscount;
  bool ckExempt = false, ck2ndTax = false, ckApplyVolumeDiscount = false, ckPackingList = false, ckPrepaid = false;
  bool ckShipto = false, ckManualTax = false;
  int optDiscount = 0;  ///< 0 none, 1 flat, 2 calculated.
  bool ckDiscount = false;
  QString cboDiscount, cboDays;
  QString txtPrepaid, cboPrepaid;
};
