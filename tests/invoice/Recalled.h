/// A partial invoice that is opened to be added to.
#pragma once

#include <QtWidgets>

#include "support/InvoiceBench.h"

/// As the partial list leaves an invoice that it hands over.
inline void Recall(InvoiceBench& bench) {
  bench.Invoice.RecalledInvoice = true;
  bench.Invoice.InvoiceDate = QDate(2026, 2, 3);
  bench.Invoice.txtInvoiceNo = QStringLiteral("20260009");
  bench.Invoice.txtReference = QStringLiteral("PO 77");
  bench.Invoice.lblAcct = bench.Invoice.lblAcctNo = QStringLiteral("2002");
  for (size_t i : {size_t{0}, size_t{6}}) bench.Invoice.lblCustomer[i] = QStringLiteral("Kept Ltd");
  const QStringList cells{QStringLiteral("2"),      QStringLiteral("Hammer"), QStringLiteral("2/3/2026"),
                          QStringLiteral("$12.00"), QStringLiteral("$24.00"), QStringLiteral("True")};
  for (int col = 0; col < 6; ++col) bench.Invoice.fgInvoice.SetText(1, col, cells[col]);
  bench.Invoice.LineCount = 1;
}
