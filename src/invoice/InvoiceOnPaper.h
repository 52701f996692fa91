/// The invoice in the making as a page prints it.
#pragma once

#include <QDate>

#include "printing/InvoicePage.h"

struct WorkingInvoice;

/// Every text of the page; the grid is referred to, so the invoice must outlive the page. The heading bears `today`,
/// and the customer's address style governs both address blocks.
InvoicePage PageOf(const WorkingInvoice& invoice, bool usaAddress, QDate today);
