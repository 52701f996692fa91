#include "invoice/InvoiceNumber.h"

#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/VerifyDataRoutines.h"

using namespace Qt::StringLiterals;

namespace {

const QString CounterFile = u"/KVInvoiceNo.txt"_s;
const QString Box = u"txtInvoiceNo"_s;

qint32 NumberOfYear(const QString& year, QLatin1StringView serial) {
  return ToInt32(QString(year + serial), Box);
}

}  // namespace

void LoadInvoiceNo(WorkingInvoice& invoice, CommonDiskRoutines& disk, const Clock& clock) {
  const QString year = QString::number(clock.Today().year());
  if (disk.FileExists(CounterFile)) {
    const qint32 counter = disk.OpenInputFile(CounterFile).ReadInt32();
    invoice.InvoiceNo = counter == 0 ? NumberOfYear(year, "0000"_L1) : counter;
  } else {
    invoice.InvoiceNo = NumberOfYear(year, "0001"_L1);
  }
  // The year is compared as text, by the leading four characters of any number, which is meant.
  if (QString::number(invoice.InvoiceNo).left(4) < year) invoice.InvoiceNo = NumberOfYear(year, "0001"_L1);
  SaveInvoiceNo(invoice.InvoiceNo, disk);
  invoice.txtInvoiceNo = QString::number(invoice.InvoiceNo);
  invoice.Controls.txtInvoiceNoLocked = false;
}

void SaveInvoiceNo(qint32 number, CommonDiskRoutines& disk) {
  disk.SaveFile(CounterFile, ListWriter().Field(number).EndLine().Content(), BackupCopy::Dropped);
}

void BumpInvoiceNo(WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  invoice.InvoiceNo = ToInt32(ToNumber(invoice.txtInvoiceNo, Box) + 1.0, Box);
  SaveInvoiceNo(invoice.InvoiceNo, disk);
}

void ReloadInvoiceNo(WorkingInvoice& invoice) {
  invoice.txtInvoiceNo = QString::number(invoice.InvoiceNo);
}

void TakeOverInvoiceNo(WorkingInvoice& invoice) {
  if (IsNumeric(invoice.txtInvoiceNo)) invoice.InvoiceNo = ToInt32(invoice.txtInvoiceNo, Box);
}

bool CheckInvoiceNo(WorkingInvoice& invoice, Dialogs& dialogs, const std::function<void()>& toCreationView) {
  if (CanNameAFile(invoice.txtInvoiceNo)) return true;
  Tell(invoice, dialogs,
       invoice.txtInvoiceNo.isEmpty()
           ? u"You have not entered an Invoice Number"_s
           : u"The Invoice Number names the file of the Invoice, and \"%1\" can't name a file."_s.arg(
                 invoice.txtInvoiceNo));
  if (toCreationView) toCreationView();
  invoice.Controls.Focus = Box;
  return false;
}

int PasteIntoInvoiceNo(int key, const QString& boxText) {
  const bool refused = !IsNumeric(boxText) && IsRefusedInFileNames(key);
  return refused ? 0 : VerifyDecimalKey(key, boxText);
}

void LeaveInvoiceNo(WorkingInvoice& invoice, Dialogs& dialogs) {
  if (!invoice.txtInvoiceNo.isEmpty()) return;
  Tell(invoice, dialogs, u"Enter an Invoice Number"_s);
  invoice.Controls.Focus = Box;
}
