// What a save by the catalogue screen leaves: its files in the order of their grids, and the lists of the invoice
// screen as the files have them, or as they were where there is none any more.

#include "catalogue/NewEntries.h"
#include "customers/CustomerRecords.h"

using namespace Qt::StringLiterals;

namespace {

const QString Services = u"/Services.txt"_s;
const QString Items = u"/KVInventoriedItems.txt"_s;
const QString Custom = u"/CustomItems.txt"_s;

/// From the main menu to a new invoice of the one customer, and back with what the screen's list offers.
QStringList OfferedOnTheInvoice(const QString& list) {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_0"_s);
  menu.Click(u"cmdGoto"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  const auto* combo = invoice.Window()->findChild<QComboBox*>(list);
  const auto* entries = combo != nullptr ? combo->model() : invoice.Control<QListWidget>(list)->model();
  QStringList offered;
  for (int i = 0; i < entries->rowCount(); ++i) offered << entries->index(i, 0).data().toString();
  invoice.Click(u"cmdInvoice_1"_s);
  return offered;
}

}  // namespace

class ScreenReloads : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theListOfAnEmptiedFileStaysOnTheInvoice_data();
  void theListOfAnEmptiedFileStaysOnTheInvoice();
  void aSaveOrdersServicesByDescriptionAndItemsByCategory();
  void anAddedRowStandsLastUntilTheSecondSave();
};

void ScreenReloads::theListOfAnEmptiedFileStaysOnTheInvoice_data() {
  QTest::addColumn<int>("list");
  QTest::addColumn<bool>("shownBefore");
  for (int list = 0; list < 3; ++list) {
    QTest::addRow("list %d, the invoice screen shown before", list) << list << true;
    QTest::addRow("list %d, shown for the first time", list) << list << false;
  }
}

void ScreenReloads::theListOfAnEmptiedFileStaysOnTheInvoice() {
  QFETCH(const int, list);
  QFETCH(const bool, shownBefore);
  struct Subject {
    int Tab;
    const char* Grid;
    int Delete;
    QString File;
    QStringList Offered;
    QStringList Prices;
  };
  const std::array<Subject, 3> subjects{{{0, "fgServices", 2, Services, {u"Repair"_s}, {u"$1.00"_s}},
                                         {1, "fgItems", 10, Items, {u"Hose"_s}, {u"$12.50"_s}},
                                         {3, "fgCustom", 20, Custom, {u"Engraving"_s}, {u"$100.00"_s}}}};
  const Subject& about = subjects.at(static_cast<std::size_t>(list));
  const QString names = u"cboDescription_%1"_s.arg(list);
  const QString prices = u"cboPrice_%1"_s.arg(list);
  CatalogueScreen screen;
  const TemporaryTree& tree = screen.Program.Tree;
  tree.Write(Services, CatalogueScreen::Service("Repair"));
  tree.Write(Items, CatalogueScreen::Item("Hose", "Air"));
  tree.Write(Custom, CatalogueScreen::CustomItem("Engraving"));
  tree.Write(u"/CustomerData.txt"_s, BusinessRecord("1001", "Acme Tools"));
  screen.Program.StartAtMenu();
  if (shownBefore) QCOMPARE(OfferedOnTheInvoice(names), about.Offered);

  screen.GoFromMenu();
  screen.ShowTab(about.Tab);
  screen.SelectRow(about.Grid, 1);
  screen.Program.Answers.Yes();
  screen.Click(about.Delete);
  screen.Click(0);
  QVERIFY(!tree.Exists(about.File));
  QCOMPARE(OfferedOnTheInvoice(names), about.Offered);
  QCOMPARE(OfferedOnTheInvoice(prices), about.Prices);
  if (list == 1) QCOMPARE(OfferedOnTheInvoice(u"lstCategories"_s), (QStringList{u"All"_s, u"Air"_s}));
  // The other files stand, with their lists.
  for (const Subject& other : subjects) QCOMPARE(tree.Exists(other.File), other.File != about.File);
}

void ScreenReloads::aSaveOrdersServicesByDescriptionAndItemsByCategory() {
  using Made = CatalogueScreen;
  CatalogueScreen screen;
  const TemporaryTree& tree = screen.Program.Tree;
  tree.Write(Services, Made::Service("Welding") + Made::Service("Advice") + Made::Service("Repair"));
  tree.Write(Items, Made::Item("Anvil", "Tools") + Made::Item("Valve", "Air") + Made::Item("Filter", "Oil") +
                        Made::Item("Hose", "Air"));
  tree.Write(Custom, Made::CustomItem("Welding") + Made::CustomItem("Engraving"));
  screen.Open();
  screen.Click(0);
  QCOMPARE(tree.Bytes(Services), Made::Service("Advice") + Made::Service("Repair") + Made::Service("Welding"));
  // Items of one category keep the order in which they stood.
  QCOMPARE(tree.Bytes(Items), Made::Item("Valve", "Air") + Made::Item("Hose", "Air") + Made::Item("Filter", "Oil") +
                                  Made::Item("Anvil", "Tools"));
  QCOMPARE(tree.Bytes(Custom), Made::CustomItem("Engraving") + Made::CustomItem("Welding"));
}

void ScreenReloads::anAddedRowStandsLastUntilTheSecondSave() {
  using Made = CatalogueScreen;
  CatalogueScreen screen;
  const TemporaryTree& tree = screen.Program.Tree;
  tree.Write(Services, Made::Service("Repair"));
  screen.Open();
  AddService(screen, "Advice");
  screen.Click(0);
  QCOMPARE(tree.Bytes(Services), Made::Service("Repair") + Made::Service("Advice"));
  screen.GoFromMenu();
  screen.Click(0);
  QCOMPARE(tree.Bytes(Services), Made::Service("Advice") + Made::Service("Repair"));
}

QTEST_MAIN(ScreenReloads)
#include "tst_screenReloads.moc"
