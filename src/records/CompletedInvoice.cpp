#include "records/CompletedInvoice.h"

#include "invoice/InvoiceImage.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

CompletedInvoice::CompletedInvoice()
    : fgItems(
          u"^Units     |<Description                                              |^Date        |^Unit Cost     "
          u"|^Extension              "_s) {}

bool OpenCompletedInvoice(CompletedInvoice& invoice, CommonDiskRoutines& disk, const QString& invoiceNo,
                          const QString& creationDate) {
  if (invoiceNo.isEmpty()) return false;
  const QString name = InvoiceImageName(invoiceNo, true);
  if (!disk.FileExists(name)) return false;
  StoredInvoice read = ReadCompletedImage(disk, name);
  std::vector<QStringList> rows;
  // The last cell of a line, its tax, isn't shown.
  for (const QStringList& line : read.Lines) rows.push_back(line.first(invoice.fgItems.Cols()));
  static_cast<StoredInvoice&>(invoice) = std::move(read);
  invoice.CreationDate = creationDate;
  invoice.fgItems.AssignRows(std::move(rows));
  invoice.fgItems.SetRow(0);
  return true;
}

InvoicePage PageOf(const CompletedInvoice& invoice, bool usaAddress) {
  const auto address = [](const std::array<QString, 6>& line) {
    return PageAddress{line[0], line[1], line[2], line[3], line[4], line[5]};
  };
  InvoicePage page;
  page.Heading = {invoice.Acct, invoice.CreationDate, invoice.InvoiceNo, invoice.Reference};
  page.SoldTo = address(invoice.SoldTo);
  page.UsaAddress = usaAddress;
  page.HasShipTo = true;
  page.ShipTo = address(invoice.ShipTo);
  page.Shipping = {invoice.ShipVia, invoice.ShipDate, invoice.Reference};
  page.Lines = &invoice.fgItems;
  page.LineCount = static_cast<qint16>(invoice.Lines.size());
  const auto& [subTotal, tax1, tax2, grandTotal, shipping, handling, discount] = invoice.Amounts;
  page.Totals = {subTotal, tax1, tax2, shipping, handling, grandTotal};
  return page;
}
