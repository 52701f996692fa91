#include "invoice/InvoiceNarrative.h"

#include "invoice/InvoiceNumber.h"
#include "invoice/WorkingInvoice.h"
#include "printing/KVPrint.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

const QString DefaultFile = u"/Narrative.txt"_s;

/// The text as one print: its lines, and the end of the print behind the last.
QByteArray Printed(const WorkingInvoice& invoice) {
  return ListWriter().Print(QString(invoice.txtNarrative).replace(u'\n', u"\r\n"_s)).Content();
}

}  // namespace

bool SaveNarrative(WorkingInvoice& invoice, CommonDiskRoutines& disk, Dialogs& dialogs,
                   const std::function<void()>& toCreationView) {
  if (invoice.txtNarrative.isEmpty()) return true;
  if (!CheckInvoiceNo(invoice, dialogs, toCreationView)) return false;
  disk.SaveFile(KVPrint::NarrativeName(invoice.txtInvoiceNo), Printed(invoice), BackupCopy::Kept);
  return true;
}

void LoadDefaultNarrative(WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  invoice.txtNarrative.clear();
  if (!disk.FileExists(DefaultFile)) return;
  ListReader file = disk.OpenInputFile(DefaultFile);
  // Each line brings its end, so that a default that is loaded and stored again grows by a line; that is meant.
  while (!file.AtEnd()) invoice.txtNarrative += file.ReadLine() + u'\n';
}

void SaveDefaultNarrative(const WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  disk.SaveFile(DefaultFile, Printed(invoice), BackupCopy::Dropped);
}
