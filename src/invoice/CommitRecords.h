/// The records that a commit writes: what was sold, the sales journal, the ledger entries, the taxes, and the units
/// taken out of the inventory. Each routine throws what a file or a conversion throws; what it wrote before stays.
#pragma once

#include <QDate>
#include <QString>

#include "runtime/Currency.h"

class CommonAccountRoutines;
class CommonDiskRoutines;
class Dialogs;
struct CustomerOnScreen;
struct SalesItemsList;
struct WorkingInvoice;

/// Error 6 on the first store that can't take the records of this invoice: journal, ledger of the account, payments,
/// taxes. The sold items have no limit.
void RequireRoomForRecords(const WorkingInvoice& invoice, const QString& account, CommonDiskRoutines& disk);

/// One record in /SoldItems.txt for each line and each entry of the list that equals its description.
void WriteSoldItems(const WorkingInvoice& invoice, const SalesItemsList& list, CommonDiskRoutines& disk, QDate today);

/// A row of the sales journal, in the order of the record's fields.
struct SalesJournalEntry {
  QString CustomerName;
  QString AcctNo;
  QString InvoiceNo;
  QDate InvoiceDate;
  Currency SubTotal;
  Currency TaxTotal;
  Currency Discount;
  Currency GrandTotal;
};
void WriteSalesJournal(const SalesJournalEntry& entry, CommonDiskRoutines& disk);
void WriteSalesJournal(const WorkingInvoice& invoice, CommonDiskRoutines& disk, QDate today);

/// Ledger entry and backup of the account on the customer screen; a prepaid invoice posts its payment too.
void WriteReceivable(const WorkingInvoice& invoice, const CustomerOnScreen& customer, CommonAccountRoutines& accounts,
                     QDate today);

void WriteTaxRecord(const QString& taxHeading, const QString& invoiceNo, QDate taxDate, const QString& taxAmount,
                    CommonDiskRoutines& disk);
/// A record for each tax above 0.
void WriteTaxRecords(const WorkingInvoice& invoice, const QString& heading1, const QString& heading2,
                     CommonDiskRoutines& disk, QDate today);

/// Lowers `OnHand` of the first item with each line's name; one that would fall below 0 becomes 0, with a message.
/// Labor lines and lines with a blank quantity take nothing. Answers whether there is an inventory.
bool UpdateInventory(const WorkingInvoice& invoice, CommonDiskRoutines& disk, Dialogs& dialogs);
