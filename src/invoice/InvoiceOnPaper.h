/// The invoice in the making as a page prints it.
#pragma once

#include <QDate>

#include "printing/InvoicePage.h"

struct PrintAppearance;
struct WorkingInvoice;

/// Every text of the page; the grid is referred to, so the invoice must outlive the page. The heading bears `today`,
/// and the customer's address style governs both address blocks.
InvoicePage PageOf(const WorkingInvoice& invoice, bool usaAddress, QDate today);

/// What the print-ready view tells about the paper: the caption of `fraPrintReady`, and whether the hint about the
/// perforation (`Label2_6`) shows.
struct PaperToInsert {
  QString fraPrintReady;
  bool Label2_6 = false;
};
PaperToInsert PaperFor(const PrintAppearance& appearance);
