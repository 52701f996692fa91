#include "invoice/RecallInvoice.h"

#include "invoice/ClearInvoice.h"
#include "invoice/ImageReader.h"
#include "invoice/InvoiceImage.h"
#include "invoice/InvoiceMemo.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t Attention = 6;  ///< Element of `txtShipto`.

void TakeOver(WorkingInvoice& invoice, const StoredInvoice& image) {
  const size_t lines = image.SoldTo.size();
  for (size_t i = 0; i < lines; ++i) {
    invoice.lblCustomer[i] = invoice.lblCustomer[i + lines] = image.SoldTo[i];
    invoice.txtShipto[i] = image.ShipTo[i];
  }
  invoice.txtInvoiceNo = image.InvoiceNo;
  invoice.lblAcct = invoice.lblAcctNo = image.Acct;
  invoice.txtReference = image.Reference;
  invoice.txtShipto[Attention] = image.Attention;
}

}  // namespace

void LoadIncomplete(WorkingInvoice& invoice, CommonDiskRoutines& disk, const Clock& clock, const QString& invoiceNo,
                    const QString& lastModified) {
  const QString name = InvoiceImageName(invoiceNo, false);
  // Everything is read before anything is taken over.
  const StoredInvoice image = ReadPartialImage(disk, name);
  const QDate date = ParseShortDate(lastModified, name);
  // The memo isn't saved either: the default takes the place of what was typed for the invoice before.
  ReloadInvoiceMemo(invoice, disk);
  invoice.RecalledInvoice = true;
  TakeOver(invoice, image);
  ClearInvoice(invoice, clock);  // Spares the reference of a recalled invoice.
  invoice.LineCount = static_cast<qint16>(image.Lines.size());
  for (int row = 1; row <= invoice.LineCount; ++row) {
    const QStringList& cells = image.Lines[static_cast<size_t>(row - 1)];
    for (int column = 0; column < LineColumn::Count; ++column) invoice.fgInvoice.SetText(row, column, cells.at(column));
  }
  invoice.txtMisc = invoice.txtShip = invoice.txtDiscount = ZeroCurrencyText();
  invoice.InvoiceDate = date;
  // No ship date is saved; where no invoice set one before, it is today's.
  if (!invoice.DTShip.isValid()) invoice.DTShip = clock.Today();
}
