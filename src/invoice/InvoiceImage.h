/// The invoice on disk: a line text file, partial in /KarvexInvoicer/IncompleteInvoices/ or completed in
/// /CompletedInvoices/.
#pragma once

#include <QDate>
#include <QString>

class CommonDiskRoutines;
class ListWriter;
struct WorkingInvoice;

QString PartialInvoicesFolder();    ///< Root-relative, without a trailing separator.
QString CompletedInvoicesFolder();  ///< The same.

/// Root-relative name of an image. Throws RuntimeError 64, whose text tells the number, for one that can't name a file.
QString InvoiceImageName(const QString& invoiceNo, bool complete);

/// The four writers, called in this order. `complete` adds the lines that only a completed image has.
void WriteImageHeader(ListWriter& file, const WorkingInvoice& invoice, bool complete, QDate today);
void WriteImageAddresses(ListWriter& file, const WorkingInvoice& invoice, bool complete);
void WriteImageControl(ListWriter& file, const WorkingInvoice& invoice);
void WriteImageLines(ListWriter& file, const WorkingInvoice& invoice);

/// Each of the seven summary boxes that is empty becomes the currency text of 0.
void FormatTotals(WorkingInvoice& invoice);

/// Replaces the image of this number, whole.
void SaveCompletedInvoice(WorkingInvoice& invoice, CommonDiskRoutines& disk, QDate today);
void SavePartialImage(const WorkingInvoice& invoice, CommonDiskRoutines& disk, QDate today);
