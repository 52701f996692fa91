// Saving the catalogue: order of effects, limits, failures, deletes, and what a save loads again.

#include "catalogue/InventoryFile.h"
#include "support/CatalogueTree.h"
#include "support/FailingDevice.h"

using namespace Qt::StringLiterals;

namespace {

const QString Services = u"/Services.txt"_s;
const QString Items = u"/KVInventoriedItems.txt"_s;
const QString Custom = u"/CustomItems.txt"_s;

QByteArray Service(const char* description) {
  return Field(description, 60) + Field("$1.00", 10) + Hex("01 00");
}

/// All amounts zero, no category unless given.
QByteArray Item(const char* description, const char* category = "") {
  return Field(description, 50) + Field(category, 20) + QByteArray(34, '\0');
}

QByteArray CustomItem(const char* description) {
  return Field(description, 50) + QByteArray(20, '\0');
}

void AddService(CatalogueTree& tree, const QString& description) {
  tree.Catalog.PutRow(CatalogueList::Services, false, {description, u"$1.00"_s, u"0:15"_s});
}

void AddItem(CatalogueTree& tree, const QString& description, const QString& category = {}) {
  const QString zero = u"$0.00"_s;
  tree.Catalog.PutRow(CatalogueList::Items, false,
                      {description, category, zero, zero, u"0"_s, zero, u"0"_s, u"0"_s, u"0"_s});
}

void AddCustom(CatalogueTree& tree, const QString& description) {
  tree.Catalog.PutRow(CatalogueList::Custom, false, {description, u"$0.00"_s, u"$0.00"_s, u"0"_s});
}

/// Notes which files are put in place and which are removed, in order.
class NotingDevice : public FileDevice {
 public:
  QStringList Noted;
  int Rename(const QString& from, const QString& to) override {
    Noted << u"write "_s + to.section(u'/', -1);
    return FileDevice::Rename(from, to);
  }
  int Remove(const QString& path) override {
    Noted << u"remove "_s + path.section(u'/', -2 + (path.contains(u"/Backup/") ? 0 : 1));
    return FileDevice::Remove(path);
  }
  int Open(const QString& path, OpenMode mode) override {
    if (mode == OpenMode::Read) Noted << u"read "_s + path.section(u'/', -1);
    return FileDevice::Open(path, mode);
  }
};

}  // namespace

class CatalogueSaves : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theThreeFilesAreSavedInOrderThenLoadedThenTheSalesItems();
  void aSaveDropsTheBackupCopies();
  void anEmptyGridLeavesNeitherFileNorBackup();
  void anEmptiedListStaysOnTheInvoice();
  void nothingOnDiskIsLostByABlankFirstRow();
  void aGridWithoutAnyDescriptionCountsAsEmpty();
  void aLoadedGridHasNoCurrentRow();
  void filesTakeTheOrderOfTheirGridsAndAnAddedRowComesLastUntilTheSecondSave();
  void twoHundredFiftyFiveRowsSave();
  void aTwoHundredFiftySixthRowIsAnOverflowBeforeAnyFileIsTouched();
  void aCellThatDoesNotConvertLeavesItsFileWhole();
  void aFullDiskLeavesTheFileAndItsBackupWhole();
  void aKillAtAnyInstantLeavesEachFileOldOrNew();
  void modifyingPutsTheCellsIntoTheCurrentRow();
  void modifyingWithoutACurrentRowIsRefusedAndHeadingsStay();
  void anAddedItemBecomesTheCurrentRowAnAddedServiceDoesNot();
  void deletingARowSavesAtOnce();
  void deletingTheOnlyRowKillsTheFileAlone();
  void deletingWithoutACurrentRowDoesNothing();
  void aDeleteThatCannotBeSavedLeavesItsRowTheCurrentOne();
  void aDeleteWhoseReloadFailsLeavesNoCurrentRow();
  void aDeleteTakesItsRowOutOfAnOverfullListThoughNothingIsSaved();
  void aDeleteKeepsItsRowWhereAnotherListIsOverfull();
  void aTypedCategoryIsOfferedAndTheInvoiceListGetsTheRecordLastRead();
  void anEmptyCategoryIsNotOffered();
  void oneCategoryNarrowsTheItemListAndItsBreaks();
  void ticksOfSalesItemsSurviveASaveByName();
};

void CatalogueSaves::theThreeFilesAreSavedInOrderThenLoadedThenTheSalesItems() {
  NotingDevice device;
  CatalogueTree tree(device);
  AddService(tree, u"a"_s);
  AddItem(tree, u"b"_s);
  AddCustom(tree, u"c"_s);
  tree.Catalog.SaveCatalogue();
  device.Noted.removeIf(
      [](const QString& note) { return note.startsWith(u"remove Backup") || note.endsWith(u".new"); });
  QCOMPARE(device.Noted,
           (QStringList{u"write Services.txt"_s, u"write KVInventoriedItems.txt"_s, u"write CustomItems.txt"_s,
                        u"read Services.txt"_s, u"read KVInventoriedItems.txt"_s, u"read CustomItems.txt"_s,
                        u"read KVInventoriedItems.txt"_s, u"read CustomItems.txt"_s}));
  QCOMPARE(tree.SalesItems.Items.size(), std::size_t(2));
  QCOMPARE(tree.SalesItems.Items[0].Name, u"b"_s);
  QCOMPARE(tree.SalesItems.Items[1].Name, u"c"_s);
}

void CatalogueSaves::aSaveDropsTheBackupCopies() {
  CatalogueTree tree;
  for (const QString& name : {Services, Items, Custom}) tree.Write(u"/Backup"_s + name, "old");
  AddService(tree, u"a"_s);
  AddItem(tree, u"b"_s);
  AddCustom(tree, u"c"_s);
  tree.Catalog.SaveCatalogue();
  for (const QString& name : {Services, Items, Custom}) QVERIFY(!tree.Has(u"/Backup"_s + name));
  QCOMPARE(tree.Read(Services), Service("a"));
  QCOMPARE(tree.Read(Items), Item("b"));
  QCOMPARE(tree.Read(Custom), CustomItem("c"));
}

void CatalogueSaves::anEmptyGridLeavesNeitherFileNorBackup() {
  CatalogueTree tree;
  for (const QString& name : {Services, Items, Custom}) {
    tree.Write(name, QByteArray(104, ' '));
    tree.Write(u"/Backup"_s + name, "old");
  }
  tree.Catalog.SaveCatalogue();
  for (const QString& name : {Services, Items, Custom}) {
    QVERIFY(!tree.Has(name));
    QVERIFY(!tree.Has(u"/Backup"_s + name));
  }
}

void CatalogueSaves::anEmptiedListStaysOnTheInvoice() {
  CatalogueTree tree;
  AddService(tree, u"a"_s);
  AddItem(tree, u"b"_s, u"Parts"_s);
  tree.Catalog.SaveCatalogue();
  tree.Catalog.fgItems.SetRow(1);
  tree.Catalog.DeleteRow(CatalogueList::Items);
  tree.Catalog.SaveCatalogue();
  QVERIFY(!tree.Has(Items));
  QCOMPARE(Offered(tree.Lists, 1), QStringList{u"b"_s});
  QCOMPARE(tree.Catalog.cboCategory(), QStringList{u"Parts"_s});
}

void CatalogueSaves::nothingOnDiskIsLostByABlankFirstRow() {
  CatalogueTree tree;
  tree.Write(Services, Service("a") + Service(""));
  tree.Write(Items, Item("b", "Parts") + Item(""));
  tree.Write(Custom, CustomItem("c") + CustomItem(""));
  tree.Catalog.Load();
  QCOMPARE(Column(tree.Catalog.fgServices, 0), (QStringList{QString(), u"a"_s}));
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Services), Service("") + Service("a"));
  QCOMPARE(tree.Read(Items), Item("") + Item("b", "Parts"));
  QCOMPARE(tree.Read(Custom), CustomItem("") + CustomItem("c"));
}

void CatalogueSaves::aGridWithoutAnyDescriptionCountsAsEmpty() {
  CatalogueTree tree;
  tree.Write(Services, Service("") + Service(""));
  tree.Write(u"/Backup"_s + Services, "old");
  tree.Catalog.LoadServices();
  tree.Catalog.SaveCatalogue();
  QVERIFY(!tree.Has(Services));
  QVERIFY(!tree.Has(u"/Backup"_s + Services));
}

void CatalogueSaves::aLoadedGridHasNoCurrentRow() {
  CatalogueTree tree;
  for (const QString& name : {u"b"_s, u"a"_s}) {
    AddService(tree, name);
    AddItem(tree, name);
    AddCustom(tree, name);
  }
  tree.Catalog.fgServices.SetRow(1);
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Catalog.fgServices.Row(), 0);
  QCOMPARE(tree.Catalog.fgItems.Row(), 0);
  QCOMPARE(tree.Catalog.fgCustom.Row(), 0);
}

void CatalogueSaves::filesTakeTheOrderOfTheirGridsAndAnAddedRowComesLastUntilTheSecondSave() {
  CatalogueTree tree;
  for (const QString& name : {u"beta"_s, u"Alpha"_s}) AddService(tree, name);
  AddItem(tree, u"x"_s, u"Tools"_s);
  AddItem(tree, u"y"_s, u"Air"_s);
  for (const QString& name : {u"q"_s, u"p"_s}) AddCustom(tree, name);
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Services), Service("beta") + Service("Alpha"));
  QCOMPARE(tree.Read(Items), Item("x", "Tools") + Item("y", "Air"));
  QCOMPARE(tree.Read(Custom), CustomItem("q") + CustomItem("p"));
  QCOMPARE(Column(tree.Catalog.fgItems, 0), (QStringList{u"y"_s, u"x"_s}));
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Services), Service("Alpha") + Service("beta"));
  QCOMPARE(tree.Read(Items), Item("y", "Air") + Item("x", "Tools"));
  QCOMPARE(tree.Read(Custom), CustomItem("p") + CustomItem("q"));
}

void CatalogueSaves::twoHundredFiftyFiveRowsSave() {
  CatalogueTree tree;
  for (int i = 0; i < 255; ++i) {
    AddService(tree, u"a"_s);
    AddItem(tree, u"b"_s);
    AddCustom(tree, u"c"_s);
  }
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Services), Service("a").repeated(255));
  QCOMPARE(tree.Read(Items), Item("b").repeated(255));
  QCOMPARE(tree.Read(Custom), CustomItem("c").repeated(255));
  QCOMPARE(tree.Catalog.fgCustom.Rows(), 256);
}

void CatalogueSaves::aTwoHundredFiftySixthRowIsAnOverflowBeforeAnyFileIsTouched() {
  CatalogueTree tree;
  tree.Write(Services, Service("old"));
  tree.Write(u"/Backup"_s + Services, "older");
  AddService(tree, u"a"_s);
  for (int i = 0; i < 256; ++i) AddCustom(tree, u"c"_s);
  const RuntimeError error = CaughtFrom([&] { tree.Catalog.SaveCatalogue(); });
  QCOMPARE(error.Number(), 6);
  QCOMPARE(error.Subject(), Custom);
  QCOMPARE(int(error.From()), int(RuntimeError::Origin::Event));
  QCOMPARE(tree.Read(Services), Service("old"));
  QCOMPARE(tree.Read(u"/Backup"_s + Services), QByteArray("older"));
  QVERIFY(!tree.Has(Custom));
  QCOMPARE(tree.Catalog.fgCustom.Rows(), 257);
  // With one line deleted everything is saved.
  tree.Catalog.fgCustom.SetRow(1);
  tree.Catalog.DeleteRow(CatalogueList::Custom);
  QCOMPARE(tree.Read(Services), Service("a"));
  QCOMPARE(tree.Read(Custom).size(), 255 * 70);
}

void CatalogueSaves::aCellThatDoesNotConvertLeavesItsFileWhole() {
  const QList<std::pair<QString, int>> cases{{u"letters"_s, 13}, {u"32768"_s, 6}, {QString(), 13}};
  for (const auto& [onHand, number] : cases) {
    CatalogueTree tree;
    tree.Write(Items, Item("old"));
    AddService(tree, u"a"_s);
    AddItem(tree, u"b"_s);
    tree.Catalog.fgItems.SetText(1, ItemColumn::OnHand, onHand);
    AddCustom(tree, u"c"_s);
    const RuntimeError error = CaughtFrom([&] { tree.Catalog.SaveCatalogue(); });
    QCOMPARE(error.Number(), number);
    QCOMPARE(error.Subject(), Items);
    QCOMPARE(tree.Read(Services), Service("a"));
    QCOMPARE(tree.Read(Items), Item("old"));
    QVERIFY(!tree.Has(Custom));
    QCOMPARE(Column(tree.Catalog.fgItems, 0), QStringList{u"b"_s});
  }
}

void CatalogueSaves::aFullDiskLeavesTheFileAndItsBackupWhole() {
  FailingDevice device;
  CatalogueTree tree(device);
  tree.Write(Items, Item("old"));
  tree.Write(u"/Backup"_s + Items, "older");
  AddService(tree, u"a"_s);
  AddItem(tree, u"b"_s);
  device.FailAt(FailingDevice::Call::Write, 2, ENOSPC);
  QCOMPARE(ErrorOf([&] { tree.Catalog.SaveCatalogue(); }), 61);
  QCOMPARE(tree.Read(Services), Service("a"));
  QCOMPARE(tree.Read(Items), Item("old"));
  QCOMPARE(tree.Read(u"/Backup"_s + Items), QByteArray("older"));
  device.Reset();
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Items), Item("b"));
}

void CatalogueSaves::aKillAtAnyInstantLeavesEachFileOldOrNew() {
  bool finished = false;
  for (int step = 1; !finished; ++step) {
    FailingDevice device;
    CatalogueTree tree(device);
    tree.Write(Services, Service("old"));
    tree.Write(Items, Item("old"));
    tree.Write(Custom, CustomItem("old"));
    AddService(tree, u"new"_s);
    AddItem(tree, u"new"_s);
    AddCustom(tree, u"new"_s);
    device.KillAt(step);
    try {
      tree.Catalog.SaveCatalogue();
      finished = true;
    } catch (const FailingDevice::Killed&) {
    }
    QVERIFY(tree.Read(Services) == Service("old") || tree.Read(Services) == Service("new"));
    QVERIFY(tree.Read(Items) == Item("old") || tree.Read(Items) == Item("new"));
    QVERIFY(tree.Read(Custom) == CustomItem("old") || tree.Read(Custom) == CustomItem("new"));
    QVERIFY(step < 500);
  }
}

void CatalogueSaves::modifyingPutsTheCellsIntoTheCurrentRow() {
  CatalogueTree tree;
  AddService(tree, u"a"_s);
  AddService(tree, u"b"_s);
  tree.Catalog.fgServices.SetRow(1);
  tree.Catalog.PutRow(CatalogueList::Services, true, {u"z"_s, u"$2.00"_s, u"8:00"_s});
  QCOMPARE(Column(tree.Catalog.fgServices, 0), (QStringList{u"z"_s, u"b"_s}));
  QCOMPARE(Column(tree.Catalog.fgServices, 1), (QStringList{u"$2.00"_s, u"$1.00"_s}));
  QCOMPARE(Column(tree.Catalog.fgServices, 2), (QStringList{u"8:00"_s, u"0:15"_s}));
}

void CatalogueSaves::modifyingWithoutACurrentRowIsRefusedAndHeadingsStay() {
  CatalogueTree tree;
  QCOMPARE(ErrorOf([&] { tree.Catalog.PutRow(CatalogueList::Services, true, {u"z"_s, u"$2.00"_s, u"8:00"_s}); }), 9);
  QCOMPARE(tree.Catalog.fgServices.Text(0, 0), u"Service Description"_s);
  QCOMPARE(tree.Catalog.fgServices.Rows(), 1);
}

void CatalogueSaves::anAddedItemBecomesTheCurrentRowAnAddedServiceDoesNot() {
  CatalogueTree tree;
  for (const QString& name : {u"a"_s, u"b"_s}) {
    AddService(tree, name);
    AddItem(tree, name);
    AddCustom(tree, name);
  }
  QCOMPARE(tree.Catalog.fgServices.Row(), 0);
  QCOMPARE(tree.Catalog.fgItems.Row(), 2);
  QCOMPARE(tree.Catalog.fgCustom.Row(), 2);
}

void CatalogueSaves::deletingARowSavesAtOnce() {
  CatalogueTree tree;
  for (const QString& name : {u"a"_s, u"b"_s, u"c"_s}) AddService(tree, name);
  AddCustom(tree, u"d"_s);
  tree.Catalog.fgServices.SetRow(2);
  tree.Catalog.DeleteRow(CatalogueList::Services);
  QCOMPARE(tree.Read(Services), Service("a") + Service("c"));
  QCOMPARE(tree.Read(Custom), CustomItem("d"));
  QCOMPARE(Offered(tree.Lists, 0), (QStringList{u"a"_s, u"c"_s}));
}

void CatalogueSaves::deletingTheOnlyRowKillsTheFileAlone() {
  CatalogueTree tree;
  for (const CatalogueList list : {CatalogueList::Services, CatalogueList::Items, CatalogueList::Custom}) {
    const QString name = CatalogueFileOf(list);
    tree.Write(name, "old");
    tree.Write(u"/Backup"_s + name, "older");
  }
  AddService(tree, u"a"_s);
  AddItem(tree, u"b"_s);
  AddCustom(tree, u"c"_s);
  tree.Catalog.fgServices.SetRow(1);
  tree.Catalog.DeleteRow(CatalogueList::Services);
  QVERIFY(!tree.Has(Services));
  QVERIFY(!tree.Has(u"/Backup"_s + Services));
  QCOMPARE(tree.Catalog.fgServices.Rows(), 1);
  QCOMPARE(tree.Catalog.fgServices.Row(), 0);
  // No save ran: the other files stand as before.
  QCOMPARE(tree.Read(Items), QByteArray("old"));
  QCOMPARE(tree.Read(Custom), QByteArray("old"));
  QCOMPARE(tree.Read(u"/Backup"_s + Custom), QByteArray("older"));
}

void CatalogueSaves::deletingWithoutACurrentRowDoesNothing() {
  CatalogueTree tree;
  tree.Write(Services, Service("old"));
  AddService(tree, u"a"_s);
  AddService(tree, u"b"_s);
  tree.Catalog.DeleteRow(CatalogueList::Services);
  QCOMPARE(tree.Catalog.fgServices.Rows(), 3);
  QCOMPARE(tree.Read(Services), Service("old"));
}

void CatalogueSaves::aDeleteThatCannotBeSavedLeavesItsRowTheCurrentOne() {
  for (const int row : {1, 2, 3}) {
    // The file of the list itself, and one behind it.
    for (const int write : {1, 2}) {
      FailingDevice device;
      CatalogueTree tree(device);
      for (const QString& name : {u"a"_s, u"b"_s, u"c"_s}) AddService(tree, name);
      AddCustom(tree, u"d"_s);
      tree.Write(Services, "old");
      tree.Catalog.fgServices.SetRow(row);
      device.FailAt(FailingDevice::Call::Write, write, ENOSPC);
      QCOMPARE(ErrorOf([&] { tree.Catalog.DeleteRow(CatalogueList::Services); }), 61);
      QCOMPARE(Column(tree.Catalog.fgServices, 0), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
      QCOMPARE(tree.Catalog.fgServices.Text(row, 1), u"$1.00"_s);
      QCOMPARE(tree.Catalog.fgServices.Row(), row);
      if (write == 1) QCOMPARE(tree.Read(Services), QByteArray("old"));
      QVERIFY(!tree.Has(Custom));
      device.Reset();
      tree.Catalog.DeleteRow(CatalogueList::Services);
      QByteArray others;
      for (const char* name : {"a", "b", "c"}) {
        if (*name != 'a' + row - 1) others += Service(name);
      }
      QCOMPARE(tree.Read(Services), others);
      QCOMPARE(tree.Read(Custom), CustomItem("d"));
    }
  }
}

void CatalogueSaves::aDeleteWhoseReloadFailsLeavesNoCurrentRow() {
  FailingDevice device;
  CatalogueTree tree(device);
  for (const QString& name : {u"a"_s, u"b"_s, u"c"_s}) AddService(tree, name);
  tree.Catalog.fgServices.SetRow(1);
  device.FailAt(FailingDevice::Call::Read, 1, EIO);
  QVERIFY(ErrorOf([&] { tree.Catalog.DeleteRow(CatalogueList::Services); }) != 0);
  QCOMPARE(tree.Read(Services), Service("b") + Service("c"));
  QCOMPARE(Column(tree.Catalog.fgServices, 0), (QStringList{u"b"_s, u"c"_s}));
  QCOMPARE(tree.Catalog.fgServices.Row(), 0);
}

void CatalogueSaves::aDeleteTakesItsRowOutOfAnOverfullListThoughNothingIsSaved() {
  CatalogueTree tree;
  for (int i = 0; i < 257; ++i) AddCustom(tree, u"c"_s);
  tree.Catalog.fgCustom.SetRow(1);
  QCOMPARE(ErrorOf([&] { tree.Catalog.DeleteRow(CatalogueList::Custom); }), 6);
  QVERIFY(!tree.Has(Custom));
  QCOMPARE(tree.Catalog.fgCustom.Rows(), 257);
  // Pressed again it doesn't hit the row behind.
  QCOMPARE(tree.Catalog.fgCustom.Row(), 0);
  tree.Catalog.DeleteRow(CatalogueList::Custom);
  QCOMPARE(tree.Catalog.fgCustom.Rows(), 257);
  QVERIFY(!tree.Has(Custom));
  tree.Catalog.fgCustom.SetRow(1);
  tree.Catalog.DeleteRow(CatalogueList::Custom);
  QCOMPARE(tree.Read(Custom).size(), 255 * 70);
}

void CatalogueSaves::aDeleteKeepsItsRowWhereAnotherListIsOverfull() {
  CatalogueTree tree;
  for (const QString& name : {u"a"_s, u"b"_s, u"c"_s}) AddService(tree, name);
  for (int i = 0; i < 256; ++i) AddCustom(tree, u"c"_s);
  tree.Catalog.fgServices.SetRow(2);
  QCOMPARE(ErrorOf([&] { tree.Catalog.DeleteRow(CatalogueList::Services); }), 6);
  QCOMPARE(Column(tree.Catalog.fgServices, 0), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
  QCOMPARE(tree.Catalog.fgServices.Row(), 2);
  QVERIFY(!tree.Has(Services));
}

void CatalogueSaves::aTypedCategoryIsOfferedAndTheInvoiceListGetsTheRecordLastRead() {
  CatalogueTree tree;
  tree.Write(Items, Item("a", "Parts"));
  tree.Catalog.LoadAdditionalItems();
  QStringList added;
  tree.Catalog.CategoryAdded = [&](const QString& category) { added << category; };
  tree.Catalog.AddCategory(u"Tools"_s);
  tree.Catalog.AddCategory(u"Tools"_s);
  tree.Catalog.AddCategory(u"Parts"_s);
  QCOMPARE(added, QStringList{u"Tools"_s});
  QCOMPARE(tree.Catalog.cboCategory(), (QStringList{u"Parts"_s, u"Tools"_s}));
  QCOMPARE(QStringList(tree.Lists.lstCategories.cbegin(), tree.Lists.lstCategories.cend()),
           (QStringList{u"All"_s, u"Parts"_s, u"Parts"_s}));
}

void CatalogueSaves::anEmptyCategoryIsNotOffered() {
  CatalogueTree tree;
  tree.Catalog.AddCategory(QString());
  QVERIFY(tree.Catalog.cboCategory().isEmpty());
  QVERIFY(tree.Lists.lstCategories.empty());
}

void CatalogueSaves::oneCategoryNarrowsTheItemListAndItsBreaks() {
  CatalogueTree tree;
  AddItem(tree, u"a"_s, u"Parts"_s);
  AddItem(tree, u"b"_s, u"Tools"_s);
  AddItem(tree, u"c"_s, u"Parts"_s);
  tree.Catalog.fgItems.SetText(3, ItemColumn::Price, u"$4.00"_s);
  tree.Catalog.fgItems.SetText(3, ItemColumn::DiscountPrice, u"$3.50"_s);
  tree.Catalog.fgItems.SetText(3, ItemColumn::DiscountQty, u"12"_s);
  QList<int> told;
  tree.Lists.Changed.push_back([&](int element) { told << element; });
  tree.Catalog.ListCategory(u"Parts"_s);
  QCOMPARE(Offered(tree.Lists, 1), (QStringList{u"a"_s, u"c"_s}));
  QCOMPARE(tree.Lists.Entries[1][0].Data, 1);
  QCOMPARE(tree.Lists.Entries[1][1].Data, 2);
  QCOMPARE(tree.Lists.Entries[1][1].Price, u"$4.00"_s);
  QCOMPARE(tree.Lists.ItemBreaks.size(), std::size_t(3));
  QCOMPARE(tree.Lists.ItemBreaks[2].DiscountPrice.Units(), 35000);
  QCOMPARE(tree.Lists.ItemBreaks[2].Units, 12);
  QCOMPARE(told, QList<int>{1});
  tree.Catalog.ListCategory(u"parts"_s);
  QVERIFY(Offered(tree.Lists, 1).isEmpty());
}

void CatalogueSaves::ticksOfSalesItemsSurviveASaveByName() {
  CatalogueTree tree;
  tree.SalesItems.Items = {{u"b"_s, true}, {u"gone"_s, true}};
  AddItem(tree, u"a"_s);
  AddItem(tree, u"b"_s);
  AddCustom(tree, u"b"_s);
  tree.Catalog.SaveCatalogue();
  QStringList shown;
  for (const SalesItem& item : tree.SalesItems.Items) shown << item.Name + (item.Ticked ? u"+"_s : u"-"_s);
  QCOMPARE(shown, (QStringList{u"a-"_s, u"b+"_s, u"b+"_s}));
}

QTEST_GUILESS_MAIN(CatalogueSaves)
#include "tst_saves.moc"
