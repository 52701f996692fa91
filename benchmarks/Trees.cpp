#include "benchmarks/Trees.h"

#include <functional>
#include <QDir>

#include "catalogue/CatalogueRecords.h"
#include "runtime/FileStore.h"
#include "runtime/RecordFile.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Records(int count, const std::function<QByteArray(int)>& record) {
  QByteArray bytes;
  for (int i = 0; i < count; ++i) bytes += record(i);
  return bytes;
}

/// Names that differ early and aren't in order.
QString NameOf(int i) {
  return u"%1 Trading %2"_s.arg((i * 7919) % 99991, 5, 36, QChar(u'a')).arg(i);
}

QByteArray Customer(int i) {
  return RecordBuilder(328)
      .Text(0, 20, QString::number(100000 + i))
      .Text(20, 45, NameOf(i))
      .Text(65, 35, u"12 Grove Road"_s)
      .Text(125, 25, u"City %1"_s.arg(i % 900))
      .Text(170, 2, u"FL")
      .Text(182, 25, u"34470")
      .Text(207, 13, u"352-555-0100")
      .Text(314, 10, u"Business")
      .Int16(324, 0)
      .Record();
}

QByteArray Item(int i) {
  InventoryItemRecord item;
  item.Description = u"Item %1"_s.arg(i, 3, 10, QChar(u'0'));
  item.Category = u"Category %1"_s.arg(i % 12);
  item.Price = Currency::FromUnits(123400 + i * 100);
  item.OnHand = 32000;
  return item.Bytes();
}

}  // namespace

void FillTree(const QString& root, int customers, int catalogue, int records) {
  FileDevice device;
  FileStore store(device);
  store.ReplaceWhole(root + u"/KarvexInvoicerSettings.txt"_s,
                     "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
  store.ReplaceWhole(
      root + u"/MyBusinessData.txt"_s,
      "\"Orange Grove Supply\",\"12 Grove Road\",\"\",\"Ocala\",\"FL\",\"34470\",\"352-555-0100\",\"\",\"\"\r\n");
  store.ReplaceWhole(root + u"/Phone.txt"_s, "#FALSE#\r\n1\r\n");
  store.ReplaceWhole(root + u"/CustomerData.txt"_s, Records(customers, &Customer));
  store.ReplaceWhole(root + u"/KVInventoriedItems.txt"_s, Records(catalogue, &Item));
  store.ReplaceWhole(root + u"/Services.txt"_s, Records(catalogue, [](int i) {
                       return ServiceRecord{u"Service %1"_s.arg(i, 3, 10, QChar(u'0')), u"$50.00"_s, 4}.Bytes();
                     }));
  store.ReplaceWhole(root + u"/CustomItems.txt"_s, Records(catalogue, [](int i) {
                       CustomItemRecord item;
                       item.Description = u"Custom %1"_s.arg(i, 3, 10, QChar(u'0'));
                       item.Price = Currency::FromUnits(990000);
                       return item.Bytes();
                     }));
  store.ReplaceWhole(root + u"/SoldItems.txt"_s, QByteArray(records * 90LL, ' '));
  store.ReplaceWhole(root + u"/TaxRecords.txt"_s, QByteArray(records * 75LL, ' '));
  store.ReplaceWhole(root + u"/InvoiceSalesJournal.txt"_s, QByteArray(records * 125LL, ' '));
}
