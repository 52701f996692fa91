#include "invoice/InvoiceImage.h"

#include "invoice/WorkingInvoice.h"
#include "runtime/Dates.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t AddressLines = 6;
constexpr size_t SecondSoldTo = 6;  ///< The first element of the block that images take.
constexpr size_t Attention = 6;     ///< Element of `txtShipto`.

}  // namespace

QString PartialInvoicesFolder() {
  return u"/KarvexInvoicer/IncompleteInvoices"_s;
}

QString CompletedInvoicesFolder() {
  return u"/CompletedInvoices"_s;
}

QString InvoiceImageName(const QString& invoiceNo, bool complete) {
  if (!CanNameAFile(invoiceNo)) {
    throw RuntimeError(
        ErrorNumber::BadFileName, {},
        u"The invoice number \"%1\" can't name a file. Give the invoice another number."_s.arg(invoiceNo));
  }
  return (complete ? CompletedInvoicesFolder() : PartialInvoicesFolder()) + u'/' + invoiceNo + u".txt"_s;
}

void WriteImageHeader(ListWriter& file, const WorkingInvoice& invoice, bool complete, QDate today) {
  file.Print(TrimBlanks(invoice.txtInvoiceNo));
  file.Print(TrimBlanks(invoice.lblAcctNo));
  file.Print(TrimBlanks(invoice.lblCustomer[SecondSoldTo]));
  file.Print(ShortDateText(today));
  if (complete) file.Print(invoice.txtGrandTotal);
}

void WriteImageAddresses(ListWriter& file, const WorkingInvoice& invoice, bool complete) {
  for (size_t i = 0; i < AddressLines; ++i) file.Field(TrimBlanks(invoice.lblCustomer[i + SecondSoldTo])).EndLine();
  for (size_t i = 0; i < AddressLines; ++i) file.Field(TrimBlanks(invoice.txtShipto[i])).EndLine();
  if (!complete) return;
  file.Print(invoice.cboShipping);
  file.Print(ShortDateText(invoice.DTShip));
}

void WriteImageControl(ListWriter& file, const WorkingInvoice& invoice) {
  // Plain lines, though the readers split them at a comma: that belongs to the format.
  file.Print(TrimBlanks(invoice.txtInvoiceNo));
  file.Print(TrimBlanks(invoice.lblAcctNo));
  file.Print(TrimBlanks(invoice.txtReference));
  file.Print(TrimBlanks(invoice.txtShipto[Attention]));
  file.Print(QString::number(invoice.LineCount));
}

void WriteImageLines(ListWriter& file, const WorkingInvoice& invoice) {
  for (int row = 1; row <= invoice.LineCount; ++row) {
    for (int column = 0; column < LineColumn::Count; ++column) file.Print(invoice.fgInvoice.Text(row, column));
  }
}

void FormatTotals(WorkingInvoice& invoice) {
  for (QString* box : {&invoice.txtTotal, &invoice.txtTax, &invoice.txtTax2, &invoice.txtGrandTotal, &invoice.txtShip,
                       &invoice.txtMisc, &invoice.txtDiscount}) {
    if (box->isEmpty()) *box = ZeroCurrencyText();
  }
}

void SaveCompletedInvoice(WorkingInvoice& invoice, CommonDiskRoutines& disk, QDate today) {
  const QString name = InvoiceImageName(invoice.txtInvoiceNo, true);
  FormatTotals(invoice);
  ListWriter file;
  WriteImageHeader(file, invoice, true, today);
  WriteImageAddresses(file, invoice, true);
  WriteImageControl(file, invoice);
  WriteImageLines(file, invoice);
  file.Field(invoice.txtTotal).Field(invoice.txtTax).Field(invoice.txtTax2).Field(invoice.txtGrandTotal);
  file.Field(invoice.txtShip).Field(invoice.txtMisc).Field(invoice.txtDiscount).EndLine();
  disk.SaveFile(name, file.Content(), BackupCopy::Kept);
}

void SavePartialImage(const WorkingInvoice& invoice, CommonDiskRoutines& disk, QDate today) {
  const QString name = InvoiceImageName(invoice.txtInvoiceNo, false);
  ListWriter file;
  WriteImageHeader(file, invoice, false, today);
  WriteImageAddresses(file, invoice, false);
  WriteImageControl(file, invoice);
  WriteImageLines(file, invoice);
  disk.SaveFile(name, file.Content(), BackupCopy::Kept);
}
