// A whole day of a small business on the real screens, unattended: the first start, Setup, a catalogue, customers, and
// invoices of every kind, printed to PDF and recorded. Leaves the data tree, the PDFs and a picture of each screen in
// the folder that the command line names.

#include <cstdio>

#include "demonstration/Call.h"
#include "demonstration/OtherInvoices.h"
#include "desktop/PaperPrinter.h"
#include "desktop/Style.h"
#include "Program.h"
#include "runtime/Clock.h"
#include "runtime/FileDevice.h"
#include "runtime/FileStore.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"
#include "support/TestDialogs.h"

using namespace Qt::StringLiterals;

class Demonstration : public QObject {
  Q_OBJECT

 public:
  explicit Demonstration(QString folder) : m_folder(std::move(folder)) {}

 private Q_SLOTS:
  void initTestCase();
  void theFirstStartLeadsThroughSetup();
  void theCatalogueIsEntered();
  void twoCustomersAreEntered();
  void customersAreFoundAgainAndDescribed();
  void aCustomerIsCalled();
  void anInvoiceIsComposedPrintedAndRecorded();
  void aLongInvoiceGoesOnPerforatedPaper();
  void invoicesCarryEverythingElse();
  void aProposalBecomesAnInvoice();
  void theSalesAreReported();
  void aCompletedInvoiceIsPrintedOnceMore();
  void theDayEnds();

 private:
  void Picture(const ScreenDriver& screen, const QString& name);
  void AddService(const ScreenDriver& screen, const QString& name, const QString& charge, int time);
  void AddItem(const ScreenDriver& screen, const QString& name, const QString& category, const QStringList& numbers);
  void OpenRoutine(int option);
  void Post(const ScreenDriver& invoice, int element, const QString& description, const QString& units);
  void FinishInvoice(const ScreenDriver& invoice, const QString& name);

  QString m_folder;
  int m_pictures = 0;
  FileDevice m_files;
  std::unique_ptr<FileStore> m_store;
  SystemClock m_clock;
  TestDialogs m_dialogs;
  std::unique_ptr<PaperPrinter> m_paper;
  PlayedModem m_modem;
  SerialLine m_line{PortsOn({{3, m_modem.Device()}})};
  std::unique_ptr<QueuedAnswers> m_answers;
  std::unique_ptr<Program> m_program;
};

void Demonstration::initTestCase() {
  ApplyStyle(*qApp);
  for (const QString& part : {u"/business"_s, u"/pages"_s, u"/pictures"_s}) QVERIFY(QDir().mkpath(m_folder + part));
  m_store = std::make_unique<FileStore>(m_files);
  m_paper = std::make_unique<PaperPrinter>(*m_store, m_dialogs, m_folder + u"/pages"_s);
  m_answers = std::make_unique<QueuedAnswers>();
  m_program =
      std::make_unique<Program>(PlatformOn(m_folder + u"/business"_s, m_files, m_clock, m_dialogs, *m_paper, m_line));
  QVERIFY(m_program->Start());
}

void Demonstration::Picture(const ScreenDriver& screen, const QString& name) {
  ++m_pictures;
  screen.Window()->resize(1180, 760);
  ScreenDriver::ProcessEvents();
  screen.GrabPng(m_folder + u"/pictures/%1-%2.png"_s.arg(m_pictures, 2, 10, QChar(u'0')).arg(name));
}

void Demonstration::OpenRoutine(int option) {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_%1"_s.arg(option));
  menu.Click(u"cmdGoto"_s);
}

void Demonstration::theFirstStartLeadsThroughSetup() {
  const ScreenDriver splash(u"frmSplash"_s);
  Picture(splash, u"start"_s);
  splash.Click(u"cmdContinue"_s);
  Picture(splash, u"welcome"_s);
  splash.Click(u"Image1_1"_s);

  const ScreenDriver setup(u"frmSetup"_s);
  const QStringList business{
      u"Orange Grove Supply"_s,  u"12 Grove Road"_s,  {}, u"Ocala"_s, u"FL"_s, u"34470"_s, u"352-555-0100"_s,
      u"orders@grove.example"_s, u"ABN - 123456789"_s};
  for (int i = 0; i < business.size(); ++i) setup.Fill(u"txtBusiness_%1"_s.arg(i), business[i]);
  Picture(setup, u"setup-business"_s);
  auto* tabs = setup.Control<QTabWidget>(u"tabInfo"_s);
  auto* options = setup.Control<QTabWidget>(u"SSTab2"_s);
  for (int i = 1; i < 4; ++i) {
    tabs->setCurrentIndex(i);
    ScreenDriver::ProcessEvents();
    for (int j = 0; j < (i == 2 ? 3 : 1); ++j) {
      if (i == 2) options->setCurrentIndex(j);
      ScreenDriver::ProcessEvents();
      if (i == 2 && j == 1) {
        setup.PickEntry(u"cboRate1"_s, u"6.0"_s);
        setup.Click(u"ckLabor"_s);
      }
      Picture(setup, i == 2 ? u"setup-options-%1"_s.arg(j) : u"setup-tab-%1"_s.arg(i));
    }
  }
  setup.Click(u"cmdQuit"_s);
  Picture(ScreenDriver(u"frmStartup"_s), u"menu-without-catalogue"_s);
}

void Demonstration::AddService(const ScreenDriver& screen, const QString& name, const QString& charge, int time) {
  screen.Click(u"cmdServices_1"_s);
  screen.Fill(u"txtDescription_0"_s, name);
  screen.Fill(u"txtCharge_0"_s, charge);
  screen.Control<QListWidget>(u"lstTime"_s)->setCurrentRow(time);
  screen.Click(u"cmdServices_4"_s);
}

void Demonstration::AddItem(const ScreenDriver& screen, const QString& name, const QString& category,
                            const QStringList& numbers) {
  screen.Click(u"cmdServices_8"_s);
  screen.Fill(u"txtDescription_1"_s, name);
  screen.Fill(u"cboCategory"_s, category);
  const QStringList boxes{u"txtCost"_s,        u"txtCharge_1"_s,      u"txtOnHand"_s,   u"txtCharge_2"_s,
                          u"txtDiscountQty"_s, u"txtReorderAmount"_s, u"txtReorderAt"_s};
  for (int i = 0; i < boxes.size(); ++i) screen.Fill(boxes[i], numbers[i]);
  screen.Click(u"cmdServices_13"_s);
}

void Demonstration::theCatalogueIsEntered() {
  OpenRoutine(3);
  const ScreenDriver screen(u"frmServices"_s);
  auto* tabs = screen.Control<QTabWidget>(u"tabServices"_s);
  tabs->setCurrentIndex(0);
  AddService(screen, u"Grove inspection"_s, u"85"_s, 4);
  AddService(screen, u"Irrigation tune-up"_s, u"140"_s, 8);
  AddService(screen, u"Tree pruning, per tree"_s, u"35"_s, 2);
  Picture(screen, u"services"_s);

  tabs->setCurrentIndex(1);
  ScreenDriver::ProcessEvents();
  AddItem(screen, u"Navel oranges, crate"_s, u"Fruit"_s,
          {u"14.5"_s, u"27.5"_s, u"120"_s, u"24.95"_s, u"10"_s, u"50"_s, u"20"_s});
  AddItem(screen, u"Valencia oranges, crate"_s, u"Fruit"_s,
          {u"13"_s, u"24"_s, u"80"_s, u"22"_s, u"10"_s, u"50"_s, u"20"_s});
  AddItem(screen, u"Picking ladder, 12 ft"_s, u"Tools"_s,
          {u"96"_s, u"159"_s, u"6"_s, u"149"_s, u"3"_s, u"4"_s, u"2"_s});
  AddItem(screen, u"Pruning shears"_s, u"Tools"_s,
          {u"11.2"_s, u"24.75"_s, u"40"_s, u"22.5"_s, u"5"_s, u"20"_s, u"8"_s});
  Picture(screen, u"items"_s);

  tabs->setCurrentIndex(2);
  ScreenDriver::ProcessEvents();
  const QStringList labor{u"General Labor"_s, u"Irrigation technician"_s, u"Arborist"_s};
  const QStringList rates{u"38"_s, u"62.5"_s, u"90"_s};
  for (int i = 0; i < 3; ++i) {
    screen.Fill(u"txtLabor_%1"_s.arg(i), labor[i]);
    screen.Fill(u"txtLaborRate_%1"_s.arg(i), rates[i]);
  }
  screen.Click(u"txtLabor_0"_s);
  Picture(screen, u"labor"_s);
  screen.Click(u"cmdServices_17"_s);

  tabs->setCurrentIndex(3);
  ScreenDriver::ProcessEvents();
  screen.Click(u"cmdServices_18"_s);
  screen.Fill(u"txtDescription_2"_s, u"Gift basket, to order"_s);
  screen.Fill(u"txtCharge_3"_s, u"49"_s);
  screen.Fill(u"txtCharge_4"_s, u"45"_s);
  screen.Fill(u"txtCustomDiscItems"_s, u"6"_s);
  screen.Click(u"cmdServices_22"_s);
  Picture(screen, u"custom-items"_s);
  tabs->setCurrentIndex(4);
  ScreenDriver::ProcessEvents();
  Picture(screen, u"catalogue-instructions"_s);
  screen.Click(u"cmdServices_0"_s);
  Picture(ScreenDriver(u"frmStartup"_s), u"menu"_s);
}

void Demonstration::twoCustomersAreEntered() {
  m_answers->Ok({}, u"Create Customers"_s);
  OpenRoutine(0);
  const ScreenDriver screen(u"frmNewCustomer"_s);
  const QList<QPair<QString, QString>> business{{u"txtCustomer_0"_s, u"1001"_s},
                                                {u"txtCustomer_1"_s, u"Sunrise Juice Bar"_s},
                                                {u"txtCustomer_2"_s, u"400 Ocean Drive"_s},
                                                {u"txtCustomer_3"_s, u"Suite 3"_s},
                                                {u"cboCity"_s, u"Cocoa Beach"_s},
                                                {u"cboStates"_s, u"FL"_s},
                                                {u"txtCustomer_5"_s, u"32931"_s},
                                                {u"txtCustomer_6"_s, u"321-555-0142"_s},
                                                {u"txtCustomer_7"_s, u"hello@sunrise.example"_s}};
  for (const auto& [box, text] : business) screen.Fill(box, text);
  Picture(screen, u"customer-business"_s);
  screen.Trigger(u"mnuAdd"_s);
  screen.Fill(u"txtCustomer_1"_s, u"Maria L. Delgado"_s);
  screen.Click(u"cmdAcctType"_s);
  const QList<QPair<QString, QString>> person{{u"txtCustomer_0"_s, u"1002"_s},
                                              {u"txtCustomer_8"_s, u"Maria"_s},
                                              {u"txtCustomer_9"_s, u"L"_s},
                                              {u"txtCustomer_10"_s, u"Delgado"_s},
                                              {u"txtCustomer_2"_s, u"7 Palm Court"_s},
                                              {u"cboCity"_s, u"Ocala"_s},
                                              {u"cboStates"_s, u"FL"_s},
                                              {u"txtCustomer_5"_s, u"34471"_s},
                                              {u"txtCustomer_6"_s, u"352-555-0187"_s}};
  for (const auto& [box, text] : person) screen.Fill(box, text);
  Picture(screen, u"customer-individual"_s);
}

void Demonstration::customersAreFoundAgainAndDescribed() {
  const ScreenDriver screen(u"frmNewCustomer"_s);
  screen.Click(u"cmdNav_0"_s);
  screen.Click(u"Command1_0"_s);
  screen.Click(u"optSearch_1"_s);
  screen.Fill(u"txtSearchfor"_s, u"palm"_s);
  Picture(screen, u"customer-search"_s);
  screen.Click(u"cmdStartSearch"_s);
  QCOMPARE(screen.Text(u"txtCustomer_10"_s), u"Delgado"_s);
  Picture(screen, u"customer-found"_s);
  screen.Click(u"cmdRetry"_s);
  screen.Click(u"Command1_2"_s);
  Picture(screen, u"customer-complete-list"_s);
  screen.SelectRow(u"fgCustomersFound"_s, 1);
  screen.ClickPopup(u"mnupopup"_s, u"mnuSelect"_s);
  QCOMPARE(screen.Text(u"txtCustomer_1"_s), u"Sunrise Juice Bar"_s);

  screen.Trigger(u"mnuAux"_s);
  const QStringList headings{u"Open"_s, u"Deliveries"_s, u"Keys"_s, u"Machines"_s, u"Wishes"_s, u"Notes"_s};
  for (int i = 0; i < headings.size(); ++i) screen.Fill(u"txtHeading_%1"_s.arg(i), headings[i]);
  screen.Click(u"cmdSaveAux_0"_s);
  screen.Fill(u"txtAux_0"_s, u"Mon to Sat 7 to 19\nSun closed"_s);
  screen.Fill(u"txtAux_1"_s, u"At the back door"_s);
  screen.DoubleClick(u"txtAux_3"_s);
  screen.Type(u"Juicer, two years old\nIce maker"_s);
  Picture(screen, u"customer-big-window"_s);
  screen.Click(u"cmdSaveAux_4"_s);
  screen.Click(u"cmdSaveAux_1"_s);
  Picture(screen, u"customer-auxiliary"_s);
  screen.Click(u"cmdSaveAux_2"_s);
  QVERIFY(QFile::exists(m_folder + u"/business/AuxFiles/1001/AuxFile3/Data.txt"_s));
}

void Demonstration::aCustomerIsCalled() {
  // The number comes from the record that was read last: the arrow makes it the first customer's.
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdNav_0"_s);
  CallTheCustomer([this](const ScreenDriver& dialer) {
    QCOMPARE(dialer.Text(u"lblStatus"_s), u"Pickup Receiver - Then Click Hangup"_s);
    Picture(dialer, u"dialer"_s);
  });
  QVERIFY(!ScreenDriver::IsShown(u"frmDialer"_s));
  QCOMPARE(m_modem.Commands(), (QByteArrayList{"AT", "AT#CID=1", "ATDT1-321-555-0142;", "ATH"}));
}

void Demonstration::Post(const ScreenDriver& invoice, int element, const QString& description, const QString& units) {
  invoice.PickEntry(u"cboDescription_%1"_s.arg(element), description);
  if (element == 1) invoice.Fill(u"txtUnits"_s, units);
  if (element == 2) invoice.Fill(u"txtCUnits"_s, units);
  invoice.Click(element == 2 ? u"cmdPost_3"_s : u"cmdPost_%1"_s.arg(element));
}

void Demonstration::FinishInvoice(const ScreenDriver& invoice, const QString& name) {
  invoice.Click(u"cmdInvoice_9"_s);
  Picture(invoice, name + u"-finalized"_s);
  m_answers->AcceptDialog();
  m_answers->Yes(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void Demonstration::anInvoiceIsComposedPrintedAndRecorded() {
  const ScreenDriver customers(u"frmNewCustomer"_s);
  customers.Click(u"cmdNav_0"_s);
  customers.Click(u"cmdCustomer_1"_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdShipToAddress_0"_s);
  invoice.Click(u"ckShipto"_s);
  invoice.Fill(u"txtReference"_s, u"PO 4711"_s);
  Picture(invoice, u"invoice-setup"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  Picture(invoice, u"invoice-creation"_s);
  invoice.Trigger(u"mnuServices"_s);
  Post(invoice, 0, u"Grove inspection"_s, {});
  Picture(invoice, u"invoice-services"_s);
  invoice.Trigger(u"mnuItems"_s);
  Post(invoice, 1, u"Navel oranges, crate"_s, u"12"_s);
  Post(invoice, 1, u"Pruning shears"_s, u"2"_s);
  Picture(invoice, u"invoice-items"_s);
  invoice.Trigger(u"mnuCItems"_s);
  Post(invoice, 2, u"Gift basket, to order"_s, u"3"_s);
  Picture(invoice, u"invoice-custom-items"_s);
  invoice.Trigger(u"mnuManual"_s);
  invoice.Fill(u"txtManual_0"_s, u"Delivery to the beach"_s);
  invoice.Fill(u"txtManual_2"_s, u"1"_s);
  invoice.Fill(u"txtManual_1"_s, u"18.5"_s);
  Picture(invoice, u"invoice-manual"_s);
  invoice.Click(u"cmdPost_2"_s);
  invoice.Trigger(u"mnuLabor"_s);
  invoice.Fill(u"txtHours_1"_s, u"2.5"_s);
  invoice.Click(u"cmdLabor_0"_s);
  Picture(invoice, u"invoice-labor"_s);
  invoice.Click(u"cmdLabor_1"_s);
  invoice.Trigger(u"mnuMemo"_s);
  Picture(invoice, u"invoice-memo"_s);
  invoice.Trigger(u"mnuClose"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Fill(u"txtShip"_s, u"12"_s);
  Picture(invoice, u"invoice-print-ready"_s);
  FinishInvoice(invoice, u"invoice"_s);
  Picture(ScreenDriver(u"frmStartup"_s), u"menu-after-an-invoice"_s);
}

void Demonstration::aLongInvoiceGoesOnPerforatedPaper() {
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  const ScreenDriver setup(u"frmSetup"_s);
  setup.Control<QTabWidget>(u"tabInfo"_s)->setCurrentIndex(2);
  ScreenDriver::ProcessEvents();
  setup.Click(u"optReturn"_s);
  setup.Click(u"cmdQuit"_s);

  OpenRoutine(0);
  const ScreenDriver customers(u"frmNewCustomer"_s);
  customers.Click(u"cmdNav_3"_s);
  customers.Click(u"cmdCustomer_1"_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Trigger(u"mnuItems"_s);
  for (int i = 0; i < 45; ++i)
    Post(invoice, 1, i % 2 == 0 ? u"Valencia oranges, crate"_s : u"Pruning shears"_s, u"1"_s);
  invoice.Trigger(u"mnuClose"_s);
  invoice.Click(u"cmdPrint"_s);
  m_answers->Ok();
  invoice.Click(u"optDiscount_1"_s);
  invoice.Fill(u"txtFlatDiscount"_s, u"25"_s);
  invoice.Click(u"cmdAddDiscount"_s);
  FinishInvoice(invoice, u"long-invoice"_s);
}

void Demonstration::invoicesCarryEverythingElse() {
  OtherInvoices others(*m_answers, *m_store, m_folder + u"/business"_s,
                       [this](const ScreenDriver& screen, const QString& name) { Picture(screen, name); });
  others.PayAnInvoiceWithANarrative();
  others.ParkAnInvoiceAndKeepItsLines();
  others.PackFromTheTemplate();
  others.FinishTheParkedInvoice();
  others.PrintSheetsToFillIn();
}

void Demonstration::aProposalBecomesAnInvoice() {
  // As the companion program would leave it.
  const QByteArray proposal =
      "\"FP-0012\",\"1890\",\"3/2/2026\",\"1003\",\"Lakeside Inn, Inc.\",\"9 Shore Road\",\"\",\"Mount Dora\","
      "\"FL\",\"32757\",\"352-555-0164\"\r\n";
  const QString file = m_folder + u"/business/KarvexProposals/Lakeside.txt"_s;
  m_store->ReplaceWhole(file, proposal);
  OpenRoutine(0);
  const ScreenDriver selection(u"frmCustomerSelection"_s);
  selection.Click(u"cmdStartup_1"_s);
  Picture(selection, u"proposals"_s);
  selection.SelectRow(u"fgProposals"_s, 1);
  Picture(selection, u"proposal-chosen"_s);
  selection.Click(u"cmdCreation_1"_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  QCOMPARE(invoice.Text(u"lblCustomer_0"_s), u"Lakeside Inn, Inc."_s);
  Picture(invoice, u"proposal-invoice-setup"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Trigger(u"mnuServices"_s);
  Post(invoice, 0, u"Irrigation tune-up"_s, {});
  invoice.Click(u"cmdPrint"_s);
  FinishInvoice(invoice, u"proposal-invoice"_s);
  m_store->Remove(file);
}

void Demonstration::theSalesAreReported() {
  OpenRoutine(5);
  const ScreenDriver sales(u"frmSalesReport"_s);
  sales.Click(u"cmdSales_1"_s);
  sales.Click(u"cmdIncome_2"_s);
  QCOMPARE(sales.Control<QTableView>(u"fgTotals"_s)->model()->rowCount(), 4);
  Picture(sales, u"item-sales"_s);
  m_answers->AcceptDialog();
  sales.Click(u"cmdSales_4"_s);
  QVERIFY(!sales.IsEnabled(u"cmdSales_4"_s));
  sales.Click(u"cmdSales_0"_s);
}

void Demonstration::aCompletedInvoiceIsPrintedOnceMore() {
  OpenRoutine(2);
  const ScreenDriver screen(u"frmReprint"_s);
  screen.Trigger(u"mnuSort"_s);
  screen.Click(u"optSort_1"_s);
  Picture(screen, u"completed-invoices"_s);
  screen.Click(u"cmdMode"_s);
  m_answers->AcceptDialog();
  screen.Click(u"cmdReport"_s);
  screen.SelectRow(u"fgReceivables"_s, 2);
  QVERIFY(screen.IsVisible(u"fraInvoice"_s));
  Picture(screen, u"completed-invoice"_s);
  m_answers->AcceptDialog();
  screen.Click(u"cmdPrint"_s);
  screen.Click(u"cmdHide"_s);
  screen.Click(u"cmdExit"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void Demonstration::theDayEnds() {
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuExit"_s);
  QVERIFY(m_program->HasEnded());
  QVERIFY(QFile::exists(m_folder + u"/business/Backup/CustomerData.txt"_s));
  m_answers.reset();
}

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc < 2) {
    std::fputs("The folder to work in is missing.\n", stderr);
    return 2;
  }
  Demonstration demonstration(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
  return QTest::qExec(&demonstration, QStringList{QString::fromLocal8Bit(argv[0]), u"-silent"_s});
}

#include "demonstrate.moc"
