/// The summary of an invoice, its charges and its flat discount, as the user comes to them.
#pragma once

#include <QtWidgets>

#include "support/InvoiceBench.h"

inline const QString NoDiscountText = QStringLiteral(
    "You have Selected No Discount but your\nInvoice Terms were set to offer a Discount\n"
    "Your Invoice Terms have been reset to\nIn full upon Receipt");
inline const QString FlatText = QStringLiteral(
    "You have Selected to Enter a Discount\nYour Invoice Terms have been reset to\n"
    "A Discount has been Applied\nYou may wish to replace this setting");
inline const QString CalculateText = QStringLiteral(
    "You have Selected to Calculate a Discount but your\nInvoice Terms were set to no Discount\n"
    "Your Invoice Terms have been reset to\nDiscount 1% in 10 days, Net 15 days");
inline const QString Standard = QStringLiteral("Karvex Invoicer");

/// Two taxed lines of $1,000.00 in all, at the print-ready view; taxes of 6 and 1 per cent.
inline void OpenReady(InvoiceBench& bench) {
  bench.Tree.Write(QStringLiteral("/TaxSettings.txt"), "\"Sales Tax\",\"County Tax\",\"6.0\",\"1.0\",1,1\r\n");
  bench.OpenAtLines();
  bench.On().Trigger(QStringLiteral("mnuManual"));
  bench.On().Click(QStringLiteral("ckManualTax"));
  bench.PostManual(QStringLiteral("Crate"), QStringLiteral("2"), QStringLiteral("300"));
  bench.PostManual(QStringLiteral("Box"), QStringLiteral("4"), QStringLiteral("100"));
  bench.On().Click(QStringLiteral("cmdPrint"));
}

/// Types a flat discount; the box that tells of the new terms is answered.
inline void BeginFlatDiscount(InvoiceBench& bench, const QString& discount) {
  bench.Answers.Ok();
  bench.On().Click(QStringLiteral("optDiscount_1"));
  bench.On().Type(discount);
}

inline void DeductDiscount(InvoiceBench& bench, const QString& discount) {
  BeginFlatDiscount(bench, discount);
  bench.On().Click(QStringLiteral("cmdAddDiscount"));
}

/// Types a charge and leaves its box.
inline void EnterCharge(InvoiceBench& bench, const QString& box, const QString& charge) {
  bench.On().Fill(box, charge);
  bench.On().Click(QStringLiteral("txtInvoiceNo"));
}

inline int Terms(const InvoiceBench& bench) {
  return bench.On().Control<QComboBox>(QStringLiteral("cboTerms"))->currentIndex();
}
