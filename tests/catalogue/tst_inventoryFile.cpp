// The inventory as a commit lowers it, and the tick list of products.

#include "catalogue/InventoryFile.h"
#include "support/CatalogueTree.h"
#include "support/FailingDevice.h"

using namespace Qt::StringLiterals;

namespace {

const QString Items = u"/KVInventoriedItems.txt"_s;

QByteArray Item(const char* description, const char* onHand) {
  // A blank in front, and odd bytes around the stock: all of it must stay as it stands.
  return Field(description, 50) + Field(" Parts", 20) + QByteArray(16, '\x7F') + Hex(onHand) + QByteArray(16, '\x01');
}

using Stock = InventoryFile::Stock;

}  // namespace

class InventoryFileTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void unitsComeOffTheFirstRecordOfTheNameAlone();
  void lowerOnTheSameItemAddsUp();
  void aStockThatWouldFallBelowZeroIsZero();
  void anUnknownNameChangesNothing();
  void aReturnRaisesTheStock();
  void aStockBeyondSixteenBitsIsAnOverflow();
  void aRecordCutShortIsFilledUp();
  void aFailedWriteLeavesTheRecord();
  void salesItemsAreItemsThenCustomItemsInFileOrder();
  void salesItemsWithoutFilesAreEmptyAndNoFileIsMade();
  void salesItemsBeyondTheLimitAreAnOverflowAndTheListStays();
};

void InventoryFileTest::unitsComeOffTheFirstRecordOfTheNameAlone() {
  CatalogueTree tree;
  tree.Write(Items, Item("Hose", "05 00") + Item("  Filter", "0A 00") + Item("Filter", "0A 00"));
  InventoryFile file(tree.Disk);
  QCOMPARE(file.Lower(u"Filter"_s, 3), Stock::Enough);
  QCOMPARE(tree.Read(Items), Item("Hose", "05 00") + Item("  Filter", "07 00") + Item("Filter", "0A 00"));
}

void InventoryFileTest::lowerOnTheSameItemAddsUp() {
  CatalogueTree tree;
  tree.Write(Items, Item("Filter", "0A 00"));
  InventoryFile file(tree.Disk);
  QCOMPARE(file.Lower(u"Filter"_s, 3), Stock::Enough);
  QCOMPARE(file.Lower(u"Filter"_s, 7), Stock::Enough);
  QCOMPARE(tree.Read(Items), Item("Filter", "00 00"));
  QCOMPARE(file.Lower(u"Filter"_s, 1), Stock::RanShort);
  QCOMPARE(tree.Read(Items), Item("Filter", "00 00"));
}

void InventoryFileTest::aStockThatWouldFallBelowZeroIsZero() {
  CatalogueTree tree;
  tree.Write(Items, Item("Filter", "0A 00"));
  QCOMPARE(InventoryFile(tree.Disk).Lower(u"Filter"_s, 11), Stock::RanShort);
  QCOMPARE(tree.Read(Items), Item("Filter", "00 00"));
}

void InventoryFileTest::anUnknownNameChangesNothing() {
  CatalogueTree tree;
  tree.Write(Items, Item("Filter", "0A 00"));
  QCOMPARE(InventoryFile(tree.Disk).Lower(u"filter"_s, 1), Stock::NoSuchItem);
  QCOMPARE(tree.Read(Items), Item("Filter", "0A 00"));
}

void InventoryFileTest::aReturnRaisesTheStock() {
  CatalogueTree tree;
  tree.Write(Items, Item("Filter", "FB FF"));
  QCOMPARE(InventoryFile(tree.Disk).Lower(u"Filter"_s, -8), Stock::Enough);
  QCOMPARE(tree.Read(Items), Item("Filter", "03 00"));
}

void InventoryFileTest::aStockBeyondSixteenBitsIsAnOverflow() {
  CatalogueTree tree;
  tree.Write(Items, Item("Filter", "FF 7F"));
  InventoryFile file(tree.Disk);
  QCOMPARE(ErrorOf([&] { file.Lower(u"Filter"_s, -1); }), 6);
  QCOMPARE(tree.Read(Items), Item("Filter", "FF 7F"));
}

void InventoryFileTest::aRecordCutShortIsFilledUp() {
  CatalogueTree tree;
  tree.Write(Items, Item("Filter", "0A 00").left(88));
  QCOMPARE(InventoryFile(tree.Disk).Lower(u"Filter"_s, 1), Stock::Enough);
  QCOMPARE(tree.Read(Items),
           Field("Filter", 50) + Field("Parts", 20) + QByteArray(16, '\x7F') + Hex("09 00") + QByteArray(16, '\0'));
}

void InventoryFileTest::aFailedWriteLeavesTheRecord() {
  FailingDevice device;
  CatalogueTree tree(device);
  tree.Write(Items, Item("Filter", "0A 00"));
  InventoryFile file(tree.Disk);
  device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  QCOMPARE(ErrorOf([&] { file.Lower(u"Filter"_s, 1); }), 61);
  QCOMPARE(tree.Read(Items), Item("Filter", "0A 00"));
}

void InventoryFileTest::salesItemsAreItemsThenCustomItemsInFileOrder() {
  CatalogueTree tree;
  tree.Write(Items, Item("b", "00 00") + Item(" a", "00 00"));
  tree.Write(u"/Backup/CustomItems.txt"_s, Field("c", 70) + Field("a", 70));
  tree.SalesItems.Items = {{u"a"_s, true}};
  LoadSalesItems(tree.SalesItems, tree.Disk);
  QStringList shown;
  for (const SalesItem& item : tree.SalesItems.Items) shown << item.Name + (item.Ticked ? u"+"_s : u"-"_s);
  QCOMPARE(shown, (QStringList{u"b-"_s, u"a+"_s, u"c-"_s, u"a+"_s}));
}

void InventoryFileTest::salesItemsWithoutFilesAreEmptyAndNoFileIsMade() {
  CatalogueTree tree;
  tree.SalesItems.Items = {{u"a"_s, true}};
  LoadSalesItems(tree.SalesItems, tree.Disk);
  QVERIFY(tree.SalesItems.Items.empty());
  QVERIFY(!tree.Has(Items));
  QVERIFY(!tree.Has(u"/CustomItems.txt"_s));
}

void InventoryFileTest::salesItemsBeyondTheLimitAreAnOverflowAndTheListStays() {
  CatalogueTree tree;
  tree.Write(u"/CustomItems.txt"_s, Field("c", 70).repeated(255));
  LoadSalesItems(tree.SalesItems, tree.Disk);
  QCOMPARE(tree.SalesItems.Items.size(), std::size_t(255));
  tree.Write(u"/CustomItems.txt"_s, Field("d", 70).repeated(256));
  const RuntimeError error = CaughtFrom([&] { LoadSalesItems(tree.SalesItems, tree.Disk); });
  QCOMPARE(error.Number(), 6);
  QCOMPARE(error.Subject(), u"/CustomItems.txt"_s);
  QCOMPARE(tree.SalesItems.Items[0].Name, u"c"_s);
}

QTEST_GUILESS_MAIN(InventoryFileTest)
#include "tst_inventoryFile.moc"
