#include "reliability/MoneyInvoice.h"

#include <algorithm>

#include "reliability/MoneyOracle.h"
#include "support/Bytes.h"

using namespace Qt::StringLiterals;

namespace Oracle {

namespace {

/// 7 March 2026, counted from 30 December 1899.
const QByteArray TodayCounted = LittleEndian(46088.0);

/// A text field of a record: padded with blanks, cut at the width.
QByteArray Cut(const QString& text, int width) {
  return text.toLatin1().leftJustified(width, ' ', true);
}

QByteArray LedgerEntry(const QString& what, const QString& amount) {
  return Cut(Customer, 45) + Cut(Account, 25) + Cut(Today, 15) + Cut(what, 60) + Cut(amount, 10);
}

QByteArray Ledger(const Invoice& invoice) {
  QByteArray ledger = LedgerEntry(u"Previous Balance"_s, u"$0.00"_s) + LedgerEntry(Number, Plain(invoice.GrandTotal));
  if (invoice.Prepaid) ledger += LedgerEntry(u"Payment Received"_s, Text(invoice.GrandTotal));
  return ledger;
}

QByteArray Journal(const Invoice& invoice) {
  return Cut(Customer, 45) + Cut(Account, 20) + Cut(Number, 20) + TodayCounted + Bytes64(invoice.SubTotal) +
         Bytes64(invoice.Tax1 + invoice.Tax2) + Bytes64(invoice.Offered) + Bytes64(invoice.GrandTotal);
}

QByteArray SoldItems(const Invoice& invoice) {
  QByteArray sold;
  for (const Line& line : invoice.Lines) {
    if (line.Description != StockedItem && !(line.Description == CustomItem && invoice.CustomIsListed)) continue;
    sold += Cut(line.Description, 60) + TodayCounted + Cut(Number, 20) +
            Bytes16(static_cast<int>(WholeUnits(line.Hundredths)));
  }
  return sold;
}

QByteArray TaxRecords(const Invoice& invoice) {
  QByteArray taxes;
  const auto add = [&](const QString& heading, qint64 amount) {
    if (amount > 0) taxes += Cut(heading, 20) + Cut(Today, 15) + Cut(Number, 30) + Cut(Plain(amount), 10);
  };
  add(TaxHeadings[0], invoice.Tax1);
  add(TaxHeadings[1], invoice.Tax2);
  return taxes;
}

int OnHandAfter(const Invoice& invoice) {
  qint64 left = invoice.OnHand;
  for (const Line& line : invoice.Lines) {
    if (line.Description == StockedItem) left = std::max(qint64{0}, left - WholeUnits(line.Hundredths));
  }
  return static_cast<int>(left);
}

QByteArray Image(const Invoice& invoice) {
  const QString quoted = u"\"Bay Farm\"\r\n\"2 Lime Street\"\r\n\"\"\r\n\"Orlando\"\r\n\"FL\"\r\n\"32801\"\r\n"_s;
  QString image = u"7\r\n1001\r\nBay Farm\r\n3/7/2026\r\n"_s + Text(invoice.GrandTotal) + u"\r\n"_s + quoted +
                  u"\"\"\r\n"_s.repeated(6) + u"None\r\n3/7/2026\r\n7\r\n1001\r\nPO 5\r\nAnn\r\n"_s +
                  QString::number(invoice.Lines.size()) + u"\r\n"_s;
  for (const Line& line : invoice.Lines) image += line.Cells().join(u"\r\n"_s) + u"\r\n"_s;
  image += u"\"%1\",\"%2\",\"%3\",\"%4\",\"%5\",\"%6\",\"%7\"\r\n"_s.arg(
      Text(invoice.SubTotal), Text(invoice.Tax1), Text(invoice.Tax2), Text(invoice.GrandTotal), Text(invoice.Ship),
      Text(invoice.Misc), invoice.Discount());
  return image.toLatin1();
}

QByteArray Item(const QByteArray& name, int onHand) {
  return Field(name, 50) + Field("Rigging", 20) + Bytes64(10000) + Bytes64(20000) + Bytes16(onHand) + Bytes64(0) +
         Bytes32(0) + Bytes16(5) + Bytes16(2);
}

}  // namespace

QStringList Line::Cells() const {
  return {Quantity, Description, Date, Text(Price), Text(Extension), Taxed ? u"True"_s : u"False"_s};
}

QString Invoice::Discount() const {
  return Text(Flat != 0 ? Flat : Offered);
}

QStringList Invoice::Summary() const {
  return {u"Sub-Total "_s + Text(SubTotal), TaxHeadings[0] + u' ' + Text(Tax1), TaxHeadings[1] + u' ' + Text(Tax2),
          u"Shipping "_s + Text(Ship),      u"Handling "_s + Text(Misc),        u"Total "_s + Text(GrandTotal)};
}

QByteArray Inventory(int onHand) {
  return Item("Oakum", 40) + Item(StockedItem.toLatin1(), onHand) + Item("Tar", 40);
}

QMap<QString, QByteArray> StoresAfter(const Invoice& invoice) {
  QMap<QString, QByteArray> files{{u"/CompletedInvoices/7.txt"_s, Image(invoice)},
                                  {u"/InvoiceSalesJournal.txt"_s, Journal(invoice)},
                                  {u"/KVActiveAccounts/1001.txt"_s, Ledger(invoice)},
                                  {u"/Backup/KVActiveAccounts/1001.txt"_s, Ledger(invoice)},
                                  {u"/SoldItems.txt"_s, SoldItems(invoice)},
                                  {u"/KVInventoriedItems.txt"_s, Inventory(OnHandAfter(invoice))},
                                  {u"/KVInvoiceNo.txt"_s, "8\r\n"}};
  if (invoice.Prepaid) files.insert(u"/KAPaymentRecords.txt"_s, LedgerEntry(u"Cash"_s, Text(invoice.GrandTotal)));
  if (const QByteArray taxes = TaxRecords(invoice); !taxes.isEmpty()) files.insert(u"/TaxRecords.txt"_s, taxes);
  return files;
}

}  // namespace Oracle
