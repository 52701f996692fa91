#include "invoice/RecallInvoice.h"

#include "invoice/ClearInvoice.h"
#include "invoice/InvoiceImage.h"
#include "invoice/InvoiceMemo.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int HeaderLines = 4;
constexpr size_t AddressLines = 6;
constexpr size_t Attention = 6;  ///< Element of `txtShipto`.

struct PartialImage {
  std::array<QString, AddressLines> SoldTo;
  std::array<QString, AddressLines> ShipTo;
  QString InvoiceNo, Acct, Reference, AttentionLine;
  qint16 LineCount = 0;
  QStringList Cells;  ///< Six of each line.
};

PartialImage ReadImage(ListReader& file) {
  PartialImage image;
  for (int line = 0; line < HeaderLines; ++line) file.ReadLine();
  for (QString& line : image.SoldTo) line = file.ReadString();
  for (QString& line : image.ShipTo) line = file.ReadString();
  // The control lines were written plain: a comma in one splits it, and what follows moves down. That is the format.
  image.InvoiceNo = file.ReadString();
  image.Acct = file.ReadString();
  image.Reference = file.ReadString();
  image.AttentionLine = file.ReadString();
  image.LineCount = file.ReadInt16();
  if (image.LineCount < 0 || image.LineCount > MaximumLines) {
    throw RuntimeError(ErrorNumber::OutOfRange, file.FileName(),
                       u"Its count of lines, %1, is none that an invoice can have."_s.arg(image.LineCount));
  }
  const int cells = image.LineCount * LineColumn::Count;
  for (int cell = 0; cell < cells; ++cell) image.Cells.append(file.ReadLine());
  return image;
}

PartialImage OpenImage(CommonDiskRoutines& disk, const QString& name) {
  ListReader file = disk.OpenInputFile(name);
  try {
    PartialImage image = ReadImage(file);
    disk.CloseAllFiles();
    return image;
  } catch (const RuntimeError& error) {
    // The user asked for this one file just now: the others are sound, and the program goes on.
    throw RuntimeError(error.Number(), name, error.Text());
  }
}

void TakeOver(WorkingInvoice& invoice, const PartialImage& image) {
  for (size_t i = 0; i < AddressLines; ++i) {
    invoice.lblCustomer[i] = invoice.lblCustomer[i + AddressLines] = image.SoldTo[i];
    invoice.txtShipto[i] = image.ShipTo[i];
  }
  invoice.txtInvoiceNo = image.InvoiceNo;
  invoice.lblAcct = invoice.lblAcctNo = image.Acct;
  invoice.txtReference = image.Reference;
  invoice.txtShipto[Attention] = image.AttentionLine;
}

}  // namespace

void LoadIncomplete(WorkingInvoice& invoice, CommonDiskRoutines& disk, const Clock& clock, const QString& invoiceNo,
                    const QString& lastModified) {
  const QString name = InvoiceImageName(invoiceNo, false);
  // Everything is read before anything is taken over.
  const PartialImage image = OpenImage(disk, name);
  const QDate date = ParseShortDate(lastModified, name);
  // The memo isn't saved either: the default takes the place of what was typed for the invoice before.
  ReloadInvoiceMemo(invoice, disk);
  invoice.RecalledInvoice = true;
  TakeOver(invoice, image);
  ClearInvoice(invoice, clock);  // Spares the reference of a recalled invoice.
  invoice.LineCount = image.LineCount;
  for (int cell = 0; cell < image.Cells.size(); ++cell) {
    invoice.fgInvoice.SetText(cell / LineColumn::Count + 1, cell % LineColumn::Count, image.Cells.at(cell));
  }
  invoice.txtMisc = invoice.txtShip = invoice.txtDiscount = ZeroCurrencyText();
  invoice.InvoiceDate = date;
  // No ship date is saved; where no invoice set one before, it is today's.
  if (!invoice.DTShip.isValid()) invoice.DTShip = clock.Today();
}
