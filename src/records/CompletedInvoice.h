/// One completed invoice as its image holds it, and as a page prints it once more.
#pragma once

#include "invoice/ImageReader.h"
#include "printing/InvoicePage.h"
#include "runtime/TextMatrix.h"

class CommonDiskRoutines;

struct CompletedInvoice : StoredInvoice {
  CompletedInvoice();

  QString CreationDate;  ///< As the list shows it.
  TextMatrix fgItems;    ///< `Lines` as shown: units, description, date, unit cost, extension.
};

/// Reads the image of that number, after the restore, whole before anything is taken over. False where there is none.
/// Throws RuntimeError 62, 13, 9 or 6, naming the file, for an image that is shorter than its count or whose count or
/// amounts aren't what they must be; 64 for a number that can't name a file.
bool OpenCompletedInvoice(CompletedInvoice& invoice, CommonDiskRoutines& disk, const QString& invoiceNo,
                          const QString& creationDate);

/// Every text of the page; the grid is referred to, so the invoice must outlive the page.
InvoicePage PageOf(const CompletedInvoice& invoice, bool usaAddress);
