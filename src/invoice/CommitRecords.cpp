#include "invoice/CommitRecords.h"

#include <cmath>
#include <limits>
#include <QHash>

#include "catalogue/CatalogueRecords.h"
#include "catalogue/InventoryFile.h"
#include "catalogue/SalesItemsList.h"
#include "customers/CommonAccountRoutines.h"
#include "customers/CustomerOnScreen.h"
#include "invoice/SoldItemRecord.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Dates.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SalesJournalLength = 125;
constexpr int TaxRecordLength = 75;

QString JournalName() {
  return u"/InvoiceSalesJournal.txt"_s;
}

QString TaxRecordsName() {
  return u"/TaxRecords.txt"_s;
}

/// The quantity as the inventory takes it: through a single-precision number and its text.
double InventoryUnits(const QString& quantity) {
  const double number = ToNumber(quantity, u"Quantity"_s);
  if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
    throw RuntimeError(ErrorNumber::Overflow, u"Quantity"_s);
  }
  const auto single = static_cast<float>(number);
  constexpr int singleDigits = 7;
  return ToNumber(QString::number(static_cast<double>(single), 'g', singleDigits), u"Quantity"_s);
}

}  // namespace

void RequireRoomForRecords(const WorkingInvoice& invoice, const QString& account, CommonDiskRoutines& disk) {
  const int taxes = (invoice.Tax1 > Currency() ? 1 : 0) + (invoice.Tax2 > Currency() ? 1 : 0);
  const int payments = invoice.ckPrepaid ? 1 : 0;
  disk.RequireRoom(JournalName(), SalesJournalLength, 1);
  disk.RequireRoom(LedgerName(account), LedgerRecord::Length, 1 + payments);
  if (payments > 0) disk.RequireRoom(PaymentRecordsName(), LedgerRecord::Length, payments);
  if (taxes > 0) disk.RequireRoom(TaxRecordsName(), TaxRecordLength, taxes);
}

void WriteSoldItems(const WorkingInvoice& invoice, const SalesItemsList& list, CommonDiskRoutines& disk, QDate today) {
  const QString name = u"/SoldItems.txt"_s;
  qint32 number = 1;
  if (disk.FileExists(name)) {
    const auto length = static_cast<double>(disk.Store().Size(disk.PathOf(name)));
    number = ToInt32(length / SoldItemRecord::Length + 1.0, name);
  }
  RandomFile file = disk.OpenRandomFile(name, SoldItemRecord::Length);
  // How often each name is on the list: a name that stands there twice is recorded twice, which is meant.
  QHash<QString, int> timesListed;
  for (const SalesItem& item : list.Items) ++timesListed[TrimBlanks(item.Name)];
  for (int row = 1; row <= invoice.LineCount; ++row) {
    const QString& description = invoice.fgInvoice.Text(row, LineColumn::Description);
    for (int times = timesListed.value(description); times > 0; --times) {
      const qint16 quantity = ToInt16(invoice.fgInvoice.Text(row, LineColumn::Quantity), u"Quantity"_s);
      using namespace SoldItemRecord;
      RecordBuilder record(Length);
      record.Text(Description, DescriptionWidth, TrimBlanks(description)).Double(SaleDate, ToDayCount(today));
      record.Text(InvoiceNo, InvoiceNoWidth, QString::number(invoice.InvoiceNo)).Int16(Quantity, quantity);
      file.Put(number++, record.Record());
    }
  }
}

void WriteSalesJournal(const SalesJournalEntry& entry, CommonDiskRoutines& disk) {
  RecordBuilder record(SalesJournalLength);
  record.Text(0, 45, entry.CustomerName).Text(45, 20, entry.AcctNo).Text(65, 20, entry.InvoiceNo);
  record.Double(85, ToDayCount(entry.InvoiceDate));
  record.Amount(93, entry.SubTotal).Amount(101, entry.TaxTotal);
  record.Amount(109, entry.Discount).Amount(117, entry.GrandTotal);
  disk.AppendRecord(JournalName(), record.Record());
}

void WriteSalesJournal(const WorkingInvoice& invoice, CommonDiskRoutines& disk, QDate today) {
  WriteSalesJournal({.CustomerName = invoice.lblCustomer[6],
                     .AcctNo = invoice.lblAcct,
                     .InvoiceNo = TrimBlanks(invoice.txtInvoiceNo),
                     .InvoiceDate = today,
                     .SubTotal = invoice.SubTotal,
                     .TaxTotal = invoice.Tax1 + invoice.Tax2,
                     .Discount = invoice.CalcDiscount,
                     .GrandTotal = invoice.GrandTotal},
                    disk);
}

void WriteReceivable(const WorkingInvoice& invoice, const CustomerOnScreen& customer, CommonAccountRoutines& accounts,
                     QDate today) {
  const QString& account = customer.txtCustomer0;
  const QString& name = invoice.lblCustomer[6];
  constexpr int referenceWidth = 20;
  const QString reference = TrimBlanks(invoice.txtInvoiceNo).left(referenceWidth);
  accounts.PostLedgerEntry(account, name, invoice.GrandTotal.PlainText(), reference, today);
  accounts.BackupLedger(account);
  if (!invoice.ckPrepaid) return;
  accounts.PostLedgerEntry(account, name, invoice.txtPrepaid, u"Payment Received"_s, today);
  accounts.BackupLedger(account);
  accounts.WritePaymentRecord(TrimBlanks(account), TrimBlanks(customer.txtCustomer1), invoice.txtPrepaid,
                              invoice.cboPrepaid, today);
}

void WriteTaxRecord(const QString& taxHeading, const QString& invoiceNo, QDate taxDate, const QString& taxAmount,
                    CommonDiskRoutines& disk) {
  RecordBuilder record(TaxRecordLength);
  record.Text(0, 20, taxHeading).Text(20, 15, ShortDateText(taxDate)).Text(35, 30, invoiceNo).Text(65, 10, taxAmount);
  disk.AppendRecord(TaxRecordsName(), record.Record());
}

void WriteTaxRecords(const WorkingInvoice& invoice, const QString& heading1, const QString& heading2,
                     CommonDiskRoutines& disk, QDate today) {
  if (invoice.Tax1 > Currency()) {
    WriteTaxRecord(heading1, invoice.txtInvoiceNo, today, invoice.Tax1.PlainText(), disk);
  }
  // A surcharge is recorded under this heading too.
  if (invoice.Tax2 > Currency()) {
    WriteTaxRecord(heading2, invoice.txtInvoiceNo, today, invoice.Tax2.PlainText(), disk);
  }
}

bool UpdateInventory(const WorkingInvoice& invoice, CommonDiskRoutines& disk, Dialogs& dialogs) {
  if (!disk.FileExists(CatalogueFile::Items())) return false;
  InventoryFile inventory(disk);
  for (int row = 1; row <= invoice.LineCount; ++row) {
    const QString quantity = TrimBlanks(invoice.fgInvoice.Text(row, LineColumn::Quantity));
    if (quantity.isEmpty() || quantity.contains(u"Hrs")) continue;
    const QString name = TrimBlanks(invoice.fgInvoice.Text(row, LineColumn::Description));
    if (inventory.Lower(name, InventoryUnits(quantity)) == InventoryFile::Stock::RanShort) {
      Tell(invoice, dialogs, u"Item "_s + name + u" may be low in Inventory"_s);
    }
  }
  return true;
}
