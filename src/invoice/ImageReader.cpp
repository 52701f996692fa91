#include "invoice/ImageReader.h"

#include <limits>

#include "invoice/WorkingInvoice.h"
#include "runtime/Currency.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

/// The lines of each kind in front of the addresses, which a list screen shows; and how many lines of an invoice
/// there may be.
struct Kind {
  bool IsComplete;
  int HeaderLines;
  int MostLines;
};
constexpr Kind Partial{false, 4, MaximumLines};
constexpr Kind Completed{true, 5, std::numeric_limits<qint16>::max()};

std::vector<QStringList> ReadLines(ListReader& file, int mostLines) {
  const qint16 count = file.ReadInt16();
  if (count < 0 || count > mostLines) {
    throw RuntimeError(ErrorNumber::OutOfRange, file.FileName(),
                       u"Its count of lines, %1, is none that an invoice can have."_s.arg(count));
  }
  std::vector<QStringList> lines;
  for (int line = 0; line < count; ++line) {
    QStringList& cells = lines.emplace_back();
    for (int column = 0; column < LineColumn::Count; ++column) cells.append(file.ReadLine());
  }
  return lines;
}

StoredInvoice Read(ListReader& file, const Kind& kind) {
  StoredInvoice image;
  for (int line = 0; line < kind.HeaderLines; ++line) file.ReadLine();
  for (QString& line : image.SoldTo) line = file.ReadString();
  for (QString& line : image.ShipTo) line = file.ReadString();
  // The control lines were written plain: a comma in one splits it, and what follows moves down. That is the format.
  if (kind.IsComplete) {
    image.ShipVia = file.ReadString();
    image.ShipDate = file.ReadString();
  }
  for (QString* field : {&image.InvoiceNo, &image.Acct, &image.Reference, &image.Attention}) *field = file.ReadString();
  image.Lines = ReadLines(file, kind.MostLines);
  if (kind.IsComplete) {
    for (QString& amount : image.Amounts) amount = CurrencyText(Currency::FromText(file.ReadString(), file.FileName()));
  }
  return image;
}

StoredInvoice ReadImage(CommonDiskRoutines& disk, const QString& name, const Kind& kind) {
  ListReader file = disk.OpenInputFile(name);
  try {
    StoredInvoice image = Read(file, kind);
    disk.CloseAllFiles();
    return image;
  } catch (const RuntimeError& error) {
    throw error.AsEvent(name);
  }
}

}  // namespace

StoredInvoice ReadPartialImage(CommonDiskRoutines& disk, const QString& name) {
  return ReadImage(disk, name, Partial);
}

StoredInvoice ReadCompletedImage(CommonDiskRoutines& disk, const QString& name) {
  return ReadImage(disk, name, Completed);
}
