// The three record files of the catalogue, byte by byte, and what their loads fill.

#include "runtime/RuntimeError.h"
#include "support/CatalogueTree.h"

using namespace Qt::StringLiterals;

namespace {

const QString Services = u"/Services.txt"_s;
const QString Items = u"/KVInventoriedItems.txt"_s;
const QString Custom = u"/CustomItems.txt"_s;

QByteArray Service(const char* description, const char* charge, const char* timeIndex) {
  return Field(description, 60) + Field(charge, 10) + Hex(timeIndex);
}

/// Cost 1.25, price 12.50, 10 on hand, 11.00 from 6 up, reorder 24 at 4.
QByteArray Item(const char* description, const char* category) {
  return Field(description, 50) + Field(category, 20) + Hex("D4 30 00 00 00 00 00 00") +
         Hex("48 E8 01 00 00 00 00 00") + Hex("0A 00") + Hex("B0 AD 01 00 00 00 00 00") + Hex("06 00 00 00") +
         Hex("18 00") + Hex("04 00");
}

/// Price 100, 90.50 from 3 up.
QByteArray CustomItem(const char* description) {
  return Field(description, 50) + Hex("40 42 0F 00 00 00 00 00") + Hex("28 CF 0D 00 00 00 00 00") + Hex("03 00 00 00");
}

}  // namespace

class RecordFiles : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void timesRunByQuartersFromZeroToEightHours();
  void aServiceIsA72ByteRecord();
  void anItemIsA104ByteRecord();
  void aCustomItemIsA70ByteRecord();
  void textsAreCutAtTheirWidthsAndUnmappableCharactersAreQuestionMarks();
  void loadedServicesShowTrimmedTextsAndTheTime();
  void loadedItemsShowAmountsAsCurrencyAndNumbersAsDigits();
  void loadedCustomItemsShowAmountsAsCurrency();
  void aServiceSavedWithZeroTimeReadsBackAsAQuarterOfAnHour();
  void aTimeIndexBeyondTheListShowsNoTimeAndIsSavedAsZero();
  void anIncompleteLastRecordCountsFromHalfItsLength();
  void theServiceListIgnoresCaseAndTheGridDoesNot();
  void aServiceCarriesItsChargeInWholeUnits();
  void itemListsAndBreaksFollowTheFileAndTheGridItsCategories();
  void customListsAndBreaksFollowTheFileAndTheGridItsNames();
  void categoriesAreOfferedOnceAndCaseCounts();
  void anItemWithoutCategoryAddsNone();
  void aLoadReplacesWhatAnEarlierOneFilled();
  void aReloadOfCustomItemsReplacesTheInvoicesList();
  void aLoadTellsWhoShowsItsList();
  void aLoadMakesItsModifyButtonLive();
  void loadingAnAbsentItemFileByHandEmptiesTheListsAndCreatesTheFile();
  void atStartEachFileThatExistsIsLoadedAndBackupsComeBack();
  void atStartWithoutFilesNothingIsOfferedAndNoFileIsMade();
  void twoHundredFiftyFiveRecordsLoad();
  void aTwoHundredFiftySixthRecordIsAnOverflowThatNamesTheFile();
};

void RecordFiles::timesRunByQuartersFromZeroToEightHours() {
  const QStringList times = BuildTimeList();
  QCOMPARE(times.size(), 33);
  QCOMPARE(times.mid(0, 6), (QStringList{u"0:00"_s, u"0:15"_s, u"0:30"_s, u"0:45"_s, u"1:00"_s, u"1:15"_s}));
  QCOMPARE(times.mid(30), (QStringList{u"7:30"_s, u"7:45"_s, u"8:00"_s}));
}

void RecordFiles::aServiceIsA72ByteRecord() {
  CatalogueTree tree;
  tree.Catalog.PutRow(CatalogueList::Services, false, {u"Tune-up"_s, u"$80.00"_s, u"1:30"_s});
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Services),
           QByteArray("Tune-up                                                     $80.00    \x06\x00", 72));
}

void RecordFiles::anItemIsA104ByteRecord() {
  CatalogueTree tree;
  tree.Catalog.PutRow(
      CatalogueList::Items, false,
      {u"Oil filter"_s, u"Parts"_s, u"$1.25"_s, u"$12.50"_s, u"10"_s, u"$11.00"_s, u"6"_s, u"24"_s, u"4"_s});
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Items), Item("Oil filter", "Parts"));
  QCOMPARE(tree.Read(Items).size(), 104);
}

void RecordFiles::aCustomItemIsA70ByteRecord() {
  CatalogueTree tree;
  tree.Catalog.PutRow(CatalogueList::Custom, false, {u"Engraving"_s, u"$100.00"_s, u"$90.50"_s, u"3"_s});
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Custom), CustomItem("Engraving"));
  QCOMPARE(tree.Read(Custom).size(), 70);
}

void RecordFiles::textsAreCutAtTheirWidthsAndUnmappableCharactersAreQuestionMarks() {
  CatalogueTree tree;
  const QString tooLong(61, u'x');
  tree.Catalog.PutRow(CatalogueList::Services, false, {tooLong, u"$12,345,678.00"_s, u"0:15"_s});
  tree.Catalog.PutRow(CatalogueList::Custom, false, {u"Caf\u00e9 \u0416"_s, u"$100.00"_s, u"$90.50"_s, u"3"_s});
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Services), QByteArray(60, 'x') + "$12,345,67" + Hex("01 00"));
  QCOMPARE(tree.Read(Custom), CustomItem("Caf\xe9 ?"));
}

void RecordFiles::loadedServicesShowTrimmedTextsAndTheTime() {
  CatalogueTree tree;
  tree.Write(Services, Service("  Tune-up", "$80.00", "06 00"));
  tree.Catalog.LoadServices();
  QCOMPARE(tree.Catalog.fgServices.Rows(), 2);
  QCOMPARE(tree.Catalog.fgServices.Text(1, 0), u"Tune-up"_s);
  QCOMPARE(tree.Catalog.fgServices.Text(1, 1), u"$80.00"_s);
  QCOMPARE(tree.Catalog.fgServices.Text(1, 2), u"1:30"_s);
}

void RecordFiles::loadedItemsShowAmountsAsCurrencyAndNumbersAsDigits() {
  CatalogueTree tree;
  tree.Write(Items, Item("Oil filter", "Parts"));
  tree.Catalog.LoadAdditionalItems();
  const QStringList cells{u"Oil filter"_s, u"Parts"_s, u"$1.25"_s, u"$12.50"_s, u"10"_s,
                          u"$11.00"_s,     u"6"_s,     u"24"_s,    u"4"_s};
  for (int col = 0; col < 9; ++col) QCOMPARE(tree.Catalog.fgItems.Text(1, col), cells.at(col));
}

void RecordFiles::loadedCustomItemsShowAmountsAsCurrency() {
  CatalogueTree tree;
  tree.Write(Custom, CustomItem("Engraving"));
  tree.Catalog.LoadCustomItems();
  const QStringList cells{u"Engraving"_s, u"$100.00"_s, u"$90.50"_s, u"3"_s};
  for (int col = 0; col < 4; ++col) QCOMPARE(tree.Catalog.fgCustom.Text(1, col), cells.at(col));
}

void RecordFiles::aServiceSavedWithZeroTimeReadsBackAsAQuarterOfAnHour() {
  CatalogueTree tree;
  tree.Catalog.PutRow(CatalogueList::Services, false, {u"Advice"_s, u"$5.00"_s, u"0:00"_s});
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Services), Service("Advice", "$5.00", "00 00"));
  QCOMPARE(tree.Catalog.fgServices.Text(1, 2), u"0:15"_s);
}

void RecordFiles::aTimeIndexBeyondTheListShowsNoTimeAndIsSavedAsZero() {
  CatalogueTree tree;
  tree.Write(Services, Service("Advice", "$5.00", "21 00") + Service("Beyond", "$5.00", "FF FF"));
  tree.Catalog.LoadServices();
  QCOMPARE(Column(tree.Catalog.fgServices, 2), (QStringList{QString(), QString()}));
  tree.Catalog.SaveCatalogue();
  QCOMPARE(tree.Read(Services), Service("Advice", "$5.00", "00 00") + Service("Beyond", "$5.00", "00 00"));
}

void RecordFiles::anIncompleteLastRecordCountsFromHalfItsLength() {
  CatalogueTree tree;
  const QByteArray one = Service("Advice", "$5.00", "01 00");
  // One and a half rounds to the even two, two and a half too.
  tree.Write(Services, one + Service("Bench work", "$6.00", "01 00").left(36));
  tree.Catalog.LoadServices();
  QCOMPARE(Column(tree.Catalog.fgServices, 0), (QStringList{u"Advice"_s, u"Bench work"_s}));
  QCOMPARE(tree.Catalog.fgServices.Text(2, 1), QString());
  QCOMPARE(tree.Catalog.fgServices.Text(2, 2), u"0:15"_s);
  tree.Write(Services, one + one + one.left(36));
  tree.Catalog.LoadServices();
  QCOMPARE(tree.Catalog.fgServices.Rows(), 3);
  tree.Write(Services, one + one.left(35));
  tree.Catalog.LoadServices();
  QCOMPARE(tree.Catalog.fgServices.Rows(), 2);
}

void RecordFiles::theServiceListIgnoresCaseAndTheGridDoesNot() {
  CatalogueTree tree;
  tree.Write(Services, Service("beta", "$2.00", "01 00") + Service("Gamma", "$3.00", "01 00") +
                           Service("Alpha", "$1.00", "01 00") + Service("10", "$10.00", "01 00") +
                           Service("9", "$9.00", "01 00"));
  tree.Catalog.LoadServices();
  QCOMPARE(Offered(tree.Lists, 0), (QStringList{u"10"_s, u"9"_s, u"Alpha"_s, u"beta"_s, u"Gamma"_s}));
  QCOMPARE(tree.Lists.Entries[0][3].Price, u"$2.00"_s);
  QCOMPARE(Column(tree.Catalog.fgServices, 0), (QStringList{u"9"_s, u"10"_s, u"Alpha"_s, u"Gamma"_s, u"beta"_s}));
}

void RecordFiles::aServiceCarriesItsChargeInWholeUnits() {
  CatalogueTree tree;
  tree.Write(Services, Service("a", "$80.50", "01 00") + Service("b", "$81.50", "01 00") +
                           Service("c", "on request", "01 00") + Service("d", "", "01 00") +
                           Service("e", "9999999999", "01 00"));
  tree.Catalog.LoadServices();
  QList<int> words;
  for (const CatalogueEntry& entry : tree.Lists.Entries[0]) words << entry.Data;
  QCOMPARE(words, (QList<int>{80, 82, 0, 0, 0}));
  QCOMPARE(tree.Lists.Entries[0][2].Price, u"on request"_s);
}

void RecordFiles::itemListsAndBreaksFollowTheFileAndTheGridItsCategories() {
  CatalogueTree tree;
  QByteArray second = Item("Air hose", "Air");
  second.replace(96, 4, Hex("00 00 01 00"));
  tree.Write(Items, Item("Oil filter", "Parts") + second);
  tree.Catalog.LoadAdditionalItems();
  QCOMPARE(Offered(tree.Lists, 1), (QStringList{u"Oil filter"_s, u"Air hose"_s}));
  QCOMPARE(tree.Lists.Entries[1][0].Data, 0);
  QCOMPARE(tree.Lists.Entries[1][1].Data, 1);
  QCOMPARE(tree.Lists.Entries[1][1].Price, u"$12.50"_s);
  QCOMPARE(tree.Lists.ItemBreaks.size(), std::size_t(3));
  QCOMPARE(tree.Lists.ItemBreaks[1].Units, 6);
  QCOMPARE(tree.Lists.ItemBreaks[1].DiscountPrice.Units(), 110000);
  QCOMPARE(tree.Lists.ItemBreaks[2].Units, 65536);
  QCOMPARE(Column(tree.Catalog.fgItems, 0), (QStringList{u"Air hose"_s, u"Oil filter"_s}));
}

void RecordFiles::customListsAndBreaksFollowTheFileAndTheGridItsNames() {
  CatalogueTree tree;
  tree.Write(Custom, CustomItem("Welding") + CustomItem("Engraving"));
  tree.Catalog.LoadCustomItems();
  QCOMPARE(Offered(tree.Lists, 2), (QStringList{u"Welding"_s, u"Engraving"_s}));
  QCOMPARE(tree.Lists.Entries[2][0].Data, 0);
  QCOMPARE(tree.Lists.Entries[2][1].Data, 1);
  QCOMPARE(tree.Lists.Entries[2][0].Price, u"$100.00"_s);
  QCOMPARE(tree.Lists.CustomBreaks.size(), std::size_t(3));
  QCOMPARE(tree.Lists.CustomBreaks[2].DiscountPrice.Units(), 905000);
  QCOMPARE(tree.Lists.CustomBreaks[2].Units, 3);
  QCOMPARE(Column(tree.Catalog.fgCustom, 0), (QStringList{u"Engraving"_s, u"Welding"_s}));
}

void RecordFiles::categoriesAreOfferedOnceAndCaseCounts() {
  CatalogueTree tree;
  tree.Write(Items, Item("a", "Parts") + Item("b", "parts") + Item("c", "Parts") + Item("d", "Air"));
  tree.Catalog.LoadAdditionalItems();
  const QStringList categories{u"Parts"_s, u"parts"_s, u"Air"_s};
  QCOMPARE(tree.Catalog.cboCategory(), categories);
  QCOMPARE(QStringList(tree.Lists.lstCategories.cbegin(), tree.Lists.lstCategories.cend()),
           QStringList{u"All"_s} + categories);
}

void RecordFiles::anItemWithoutCategoryAddsNone() {
  CatalogueTree tree;
  tree.Write(Items, Item("a", ""));
  tree.Catalog.LoadAdditionalItems();
  QVERIFY(tree.Catalog.cboCategory().isEmpty());
  QCOMPARE(tree.Lists.lstCategories.size(), std::size_t(1));
}

void RecordFiles::aLoadReplacesWhatAnEarlierOneFilled() {
  CatalogueTree tree;
  tree.Write(Items, Item("a", "Parts") + Item("b", "Air"));
  tree.Catalog.LoadAdditionalItems();
  tree.Write(Items, Item("c", "Tools"));
  tree.Catalog.LoadAdditionalItems();
  QCOMPARE(Offered(tree.Lists, 1), QStringList{u"c"_s});
  QCOMPARE(tree.Catalog.cboCategory(), QStringList{u"Tools"_s});
  QCOMPARE(tree.Lists.lstCategories.size(), std::size_t(2));
  QCOMPARE(tree.Lists.ItemBreaks.size(), std::size_t(2));
  QCOMPARE(tree.Catalog.fgItems.Rows(), 2);
}

void RecordFiles::aReloadOfCustomItemsReplacesTheInvoicesList() {
  CatalogueTree tree;
  const QByteArray numbers(20, '\0');
  tree.Write(CatalogueFile::Custom(), Field("a", 50) + numbers + Field("b", 50) + numbers);
  tree.Catalog.LoadCustomItems();
  QCOMPARE(Offered(tree.Lists, 2), (QStringList{u"a"_s, u"b"_s}));
  tree.Write(CatalogueFile::Custom(), Field("c", 50) + numbers);
  tree.Catalog.LoadCustomItems();
  QCOMPARE(Offered(tree.Lists, 2), QStringList{u"c"_s});
  QCOMPARE(tree.Lists.Entries[2][0].Data, 0);
  QCOMPARE(tree.Lists.CustomBreaks.size(), std::size_t(2));
}

void RecordFiles::aLoadTellsWhoShowsItsList() {
  CatalogueTree tree;
  tree.Write(Services, Service("a", "$1.00", "01 00"));
  tree.Write(Items, Item("b", "Parts"));
  tree.Write(Custom, CustomItem("c"));
  QList<int> told;
  tree.Lists.Changed.push_back([&](int element) {
    told << element;
    QCOMPARE(tree.Lists.Entries.at(std::size_t(element)).size(), std::size_t(1));
  });
  tree.Catalog.Load();
  QCOMPARE(told, (QList<int>{0, 1, 2}));
}

void RecordFiles::aLoadMakesItsModifyButtonLive() {
  CatalogueTree tree;
  for (const int index : {2, 3, 9, 10, 11, 16, 19, 20}) QVERIFY(!tree.Catalog.CommandEnabled(index));
  for (const int index : {0, 1, 8, 18, 21, 24}) QVERIFY(tree.Catalog.CommandEnabled(index));
  tree.Write(Services, Service("a", "$1.00", "01 00"));
  tree.Write(Items, Item("b", "Parts"));
  tree.Write(Custom, CustomItem("c"));
  tree.Catalog.LoadServices();
  QVERIFY(tree.Catalog.CommandEnabled(3));
  QVERIFY(!tree.Catalog.CommandEnabled(9));
  tree.Catalog.LoadAdditionalItems();
  QVERIFY(tree.Catalog.CommandEnabled(9));
  QVERIFY(!tree.Catalog.CommandEnabled(19));
  tree.Catalog.LoadCustomItems();
  QVERIFY(tree.Catalog.CommandEnabled(19));
}

void RecordFiles::loadingAnAbsentItemFileByHandEmptiesTheListsAndCreatesTheFile() {
  CatalogueTree tree;
  tree.Write(Items, Item("a", "Parts"));
  tree.Catalog.LoadAdditionalItems();
  QFile::remove(tree.Root() + Items);
  tree.Catalog.LoadAdditionalItems();
  QVERIFY(Offered(tree.Lists, 1).isEmpty());
  QVERIFY(tree.Has(Items));
  QCOMPARE(tree.Read(Items), QByteArray(""));
}

void RecordFiles::atStartEachFileThatExistsIsLoadedAndBackupsComeBack() {
  CatalogueTree tree;
  tree.Write(Services, Service("a", "$1.00", "01 00"));
  tree.Write(u"/Backup"_s + Custom, CustomItem("c"));
  tree.Catalog.Load();
  QCOMPARE(Offered(tree.Lists, 0), QStringList{u"a"_s});
  QVERIFY(Offered(tree.Lists, 1).isEmpty());
  QVERIFY(!tree.Has(Items));
  QCOMPARE(Offered(tree.Lists, 2), QStringList{u"c"_s});
  QCOMPARE(tree.Read(Custom), CustomItem("c"));
}

void RecordFiles::atStartWithoutFilesNothingIsOfferedAndNoFileIsMade() {
  CatalogueTree tree;
  tree.Catalog.Load();
  for (const TextMatrix* grid : {&tree.Catalog.fgServices, &tree.Catalog.fgItems, &tree.Catalog.fgCustom}) {
    QCOMPARE(grid->Rows(), 1);
  }
  for (const QString& name : {Services, Items, Custom, u"/Labor.txt"_s}) QVERIFY(!tree.Has(name));
}

void RecordFiles::twoHundredFiftyFiveRecordsLoad() {
  CatalogueTree tree;
  tree.Write(Services, Service("a", "$1.00", "01 00").repeated(255));
  tree.Write(Items, Item("b", "Parts").repeated(255));
  tree.Write(Custom, CustomItem("c").repeated(255));
  tree.Catalog.Load();
  for (const int element : {0, 1, 2}) QCOMPARE(Offered(tree.Lists, element).size(), 255);
}

void RecordFiles::aTwoHundredFiftySixthRecordIsAnOverflowThatNamesTheFile() {
  const QList<std::pair<QString, QByteArray>> files{
      {Services, Service("a", "$1.00", "01 00")}, {Items, Item("b", "Parts")}, {Custom, CustomItem("c")}};
  for (const auto& [name, record] : files) {
    CatalogueTree tree;
    const QByteArray content = record.repeated(256);
    tree.Write(name, content);
    try {
      tree.Catalog.Load();
      QFAIL("256 records were loaded");
    } catch (const RuntimeError& error) {
      QCOMPARE(error.Number(), 6);
      QCOMPARE(error.Subject(), name);
      QCOMPARE(int(error.From()), int(RuntimeError::Origin::FileContent));
    }
    QCOMPARE(tree.Read(name), content);
    for (const int element : {0, 1, 2}) QVERIFY(Offered(tree.Lists, element).isEmpty());
  }
}

QTEST_GUILESS_MAIN(RecordFiles)
#include "tst_recordFiles.moc"
