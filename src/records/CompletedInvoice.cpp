#include "records/CompletedInvoice.h"

#include "invoice/InvoiceImage.h"
#include "runtime/Currency.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int HeaderLines = 5;
const QString MemoFile = u"/InvoiceMemo.txt"_s;

/// The rows of an image's lines; the sixth cell of a line, its tax, isn't shown.
std::vector<QStringList> ReadLines(ListReader& file, int count, int columns) {
  std::vector<QStringList> rows;
  for (int line = 0; line < count; ++line) {
    QStringList row;
    for (int column = 0; column < columns; ++column) row.append(file.ReadLine());
    file.ReadLine();
    rows.push_back(std::move(row));
  }
  return rows;
}

/// The image behind its header, as far as the count of lines.
CompletedTexts ReadHead(ListReader& file) {
  CompletedTexts head;
  for (int line = 0; line < HeaderLines; ++line) file.ReadLine();
  for (QString& line : head.lblBillTo) line = file.ReadString();
  for (QString& line : head.lblShipTo) line = file.ReadString();
  // The control lines were written plain: a comma in one splits it, and what follows moves down. That is the format.
  for (QString* field : {&head.ShipVia, &head.ShipDate, &head.InvoiceNo, &head.AcctNo, &head.Reference, &head.txtAttn})
    *field = file.ReadString();
  head.LineCount = file.ReadInt16();
  if (head.LineCount < 0) {
    throw RuntimeError(ErrorNumber::OutOfRange, file.FileName(),
                       u"Its count of lines, %1, is none that an invoice can have."_s.arg(head.LineCount));
  }
  return head;
}

}  // namespace

CompletedInvoice::CompletedInvoice()
    : fgItems(
          u"^Units     |<Description                                              |^Date        |^Unit Cost     "
          u"|^Extension              "_s) {}

bool OpenCompletedInvoice(CompletedInvoice& invoice, CommonDiskRoutines& disk, const QString& invoiceNo,
                          const QString& creationDate) {
  if (invoiceNo.isEmpty()) return false;
  const QString name = InvoiceImageName(invoiceNo, true);
  if (!disk.FileExists(name)) return false;
  ListReader file = disk.OpenInputFile(name);
  CompletedTexts read;
  std::vector<QStringList> rows;
  try {
    read = ReadHead(file);
    rows = ReadLines(file, read.LineCount, invoice.fgItems.Cols());
    for (QString& amount : read.Amounts) amount = CurrencyText(Currency::FromText(file.ReadString(), name));
  } catch (const RuntimeError& error) {
    // The user asked for this one file just now: the others are sound, and the program goes on.
    throw RuntimeError(error.Number(), name, error.Text());
  }
  disk.CloseAllFiles();
  read.CreationDate = creationDate;
  static_cast<CompletedTexts&>(invoice) = read;
  invoice.fgItems.AssignRows(std::move(rows));
  invoice.fgItems.SetRow(0);
  return true;
}

InvoicePage PageOf(const CompletedInvoice& invoice, bool usaAddress) {
  const auto address = [](const std::array<QString, 6>& line) {
    return PageAddress{line[0], line[1], line[2], line[3], line[4], line[5]};
  };
  InvoicePage page;
  page.Heading = {invoice.AcctNo, invoice.CreationDate, invoice.InvoiceNo, invoice.Reference};
  page.SoldTo = address(invoice.lblBillTo);
  page.UsaAddress = usaAddress;
  page.HasShipTo = true;
  page.ShipTo = address(invoice.lblShipTo);
  page.Shipping = {invoice.ShipVia, invoice.ShipDate, invoice.Reference};
  page.Lines = &invoice.fgItems;
  page.LineCount = invoice.LineCount;
  const auto& [subTotal, tax1, tax2, grandTotal, shipping, handling, discount] = invoice.Amounts;
  page.Totals = {subTotal, tax1, tax2, shipping, handling, grandTotal};
  return page;
}

QString LoadedMemo(CommonDiskRoutines& disk) {
  QString memo;
  if (!disk.FileExists(MemoFile)) return memo;
  ListReader file = disk.OpenInputFile(MemoFile);
  // Each field brings its line end, so that a memo that is loaded and saved again grows by a line; that is meant.
  while (!file.AtEnd()) memo += file.ReadString() + u'\n';
  return memo;
}

void SaveMemo(const QString& memo, CommonDiskRoutines& disk) {
  if (!memo.isEmpty()) disk.ReplaceTextFile(MemoFile, QString(memo).replace(u'\n', u"\r\n"_s));
}

void KillMemo(CommonDiskRoutines& disk) {
  disk.KillWithBackup(MemoFile);
}
