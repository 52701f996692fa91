// The main menu: what it offers for the data at hand, and where each routine leads.

#include <cerrno>

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray OneService = QByteArray("Repair").leftJustified(60, ' ') +
                              QByteArray("$10.00").leftJustified(10, ' ') + QByteArray("\x01\x00", 2);

QString Option(int index) {
  return u"optMainMenuSub_"_s + QString::number(index);
}

QList<int> Offered(const ScreenDriver& menu) {
  QList<int> offered;
  for (int i = 0; i < 7; ++i) {
    if (menu.IsVisible(Option(i))) offered.append(i);
  }
  return offered;
}

/// What the user reads of a caption: without the mark of its access key.
QString Read(QString caption) {
  return caption.remove(u'&');
}

bool IsSelected(const ScreenDriver& menu, int index) {
  return menu.Control<QRadioButton>(Option(index))->isChecked();
}

}  // namespace

class MainMenu : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anEmptyTreeOffersOnlyTheCatalogue();
  void aCatalogueWithOneServiceOffersInvoicesToo();
  void oneCatalogueFileAloneIsEnoughAndTheOtherComesBackFromTheBackup();
  void theCaptionsAndTips();
  void theHeadingsStandOverTheirRoutines();
  void theMenuBarsCaptions();
  void eachReportIsOfferedByItsFile();
  void aFileThatOnlyTheBackupHoldsIsRestoredByShowingTheMenu();
  void theNumberOfPartialInvoicesStandsBesideTheirOption();
  void aDamagedPartialInvoiceIsNamedAndNothingIsOverwritten();
  void theInvoiceReportHidesTheMenuAndOpensNothing();
  void aDoubleClickRunsAnOption();
  void invoicesBeginWithTheProposalsWhereThereAreAny();
  void theLastPartialGoneTakesItsSelectionAlong();
  void aRestoreThatFailsAtTheMenuLeavesAWindow();
  void theMenuEntriesOpenSetupAndTheManualAndEnd();
  void anOrderFormAsksAndOpensItsPageOnYes();
  void gotoWithoutASelectionDoesNothing();
};

void MainMenu::anEmptyTreeOffersOnlyTheCatalogue() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  QCOMPARE(Offered(menu), QList<int>{3});
  QVERIFY(IsSelected(menu, 3));
  QVERIFY(menu.IsVisible(u"fraInstructions"_s));
  QCOMPARE(
      menu.Text(u"lblInstructions_0"_s),
      u"In order to create invoices, you first need to create at least one Inventoried Item or one Service Item"_s);
  QCOMPARE(menu.Text(u"lblInstructions_1"_s), u"Click the Goto Button"_s);
  menu.Click(u"cmdGoto"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
}

void MainMenu::aCatalogueWithOneServiceOffersInvoicesToo() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  QCOMPARE(Offered(menu), (QList<int>{0, 3}));
  QVERIFY(IsSelected(menu, 0));
  QVERIFY(!menu.IsVisible(u"fraInstructions"_s));
  QCOMPARE(menu.Text(u"lblIncomplete"_s), u"0"_s);
  // The option isn't there to say of what that is the number.
  QVERIFY(menu.IsVisible(u"lblNoPartials"_s));
  QCOMPARE(menu.Text(u"lblNoPartials"_s), u"Partial invoices"_s);
  program.Answers.Ok({}, u"Create Customers"_s);
  menu.PressKey(Qt::Key_Return);
  QVERIFY(ScreenDriver::IsShown(u"frmNewCustomer"_s));
}

void MainMenu::oneCatalogueFileAloneIsEnoughAndTheOtherComesBackFromTheBackup() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  QVERIFY(program.StartAtMenu());
  program.Tree.Write(u"/Backup/KVInventoriedItems.txt"_s, QByteArray(104, ' '));
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  ScreenDriver(u"frmSetup"_s).Click(u"cmdQuit"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(program.Tree.Bytes(u"/KVInventoriedItems.txt"_s), QByteArray(104, ' '));
}

void MainMenu::theCaptionsAndTips() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  const QList<QStringList> captions{{u"Create a C&ustomer Invoice"_s, u"Select Customer and Create Invoice"_s},
                                    {u"&Add to a Partial Invoice"_s, u"Add Items to a Partially Created Invoice"_s},
                                    {u"&View or Reprint Completed Invoices"_s, u"Displays Completed Invoices"_s},
                                    {u"&Create and Manage - Sales Items,  Custom Items, Services, and Labor Rates"_s,
                                     u"Items that you will add to an Invoice"_s},
                                    {u"Create an &Invoice Report"_s, u"Shows Sales, Tax, Discounts, etc"_s},
                                    {u"Create an Item &Sales Report"_s, u"Display and Print a Report by Items Sold"_s},
                                    {u"Print Blank Invoices"_s, u"Shows tax(es) by date range"_s}};
  for (int i = 0; i < 7; ++i) {
    QCOMPARE(menu.Control<QRadioButton>(Option(i))->text(), captions[i][0]);
    QCOMPARE(menu.Control<QRadioButton>(Option(i))->toolTip(), captions[i][1]);
  }
  QCOMPARE(menu.Control(u"cmdGoto"_s)->toolTip(), u"Starts the Selected Routine"_s);
}

void MainMenu::theHeadingsStandOverTheirRoutines() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s, "20260001\r\n7\r\nSmith\r\n3/7/2026\r\n");
  program.Tree.Write(u"/SoldItems.txt"_s, "");
  QVERIFY(program.StartAtMenu());
  const ScreenDriver menu(u"frmStartup"_s);
  const auto placeOf = [&menu](const QString& name) { return menu.Control(name)->mapTo(menu.Window(), QPoint(0, 0)); };
  const QList<std::tuple<QString, QString, QList<int>>> headings{{u"Label1_0"_s, u"Invoice Routines"_s, {0, 1, 2}},
                                                                 {u"Label1_1"_s, u"Karvex Invoicer Routines"_s, {3}},
                                                                 {u"Label1_3"_s, u"Report Routines"_s, {4, 5, 6}}};
  for (const auto& [name, caption, routines] : headings) {
    QCOMPARE(menu.Text(name), caption);
    QVERIFY2(menu.IsVisible(name), qPrintable(caption));
    for (const int routine : routines) {
      QCOMPARE(menu.Control(Option(routine))->parentWidget(), menu.Control(name)->parentWidget());
      if (!menu.IsVisible(Option(routine))) continue;
      QVERIFY2(placeOf(name).y() < placeOf(Option(routine)).y(), qPrintable(caption));
    }
  }
  // "Existing" reads on to the number behind it, on the row of the partial invoices.
  QCOMPARE(menu.Text(u"Label1_2"_s), u"Existing"_s);
  QVERIFY(menu.IsVisible(u"Label1_2"_s));
  QVERIFY(placeOf(Option(1)).x() < placeOf(u"Label1_2"_s).x());
  QVERIFY(placeOf(u"Label1_2"_s).x() < placeOf(u"lblIncomplete"_s).x());
  QCOMPARE(menu.Control(u"Label1_2"_s)->geometry().center().y(),
           menu.Control(u"lblIncomplete"_s)->geometry().center().y());
}

void MainMenu::theMenuBarsCaptions() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  const ScreenDriver menu(u"frmStartup"_s);
  QStringList bar;
  for (const QAction* heading : menu.Window()->findChild<QMenuBar*>()->actions()) bar.append(Read(heading->text()));
  QCOMPARE(bar, (QStringList{u" Files"_s, u"Order Forms"_s, u"Help"_s}));
  QCOMPARE(Read(menu.Control<QMenu>(u"mnuFiles"_s)->title()), u" Files"_s);
  QCOMPARE(Read(menu.Control<QMenu>(u"mnuOrder"_s)->title()), u"Order Forms"_s);
  QCOMPARE(Read(menu.Entry(u"mnuHelp"_s)->text()), u"Help"_s);
  QStringList files;
  for (const QAction* entry : menu.Control<QMenu>(u"mnuFiles"_s)->actions()) {
    if (!entry->isSeparator()) files.append(Read(entry->text()));
  }
  QCOMPARE(files, (QStringList{u"Create/Modify"_s, u"Exit"_s}));
  QCOMPARE(Read(menu.Entry(u"mnuCreate"_s)->text()), u"Create/Modify"_s);
  QCOMPARE(Read(menu.Entry(u"mnuExit"_s)->text()), u"Exit"_s);
}

void MainMenu::eachReportIsOfferedByItsFile() {
  const QList<QPair<QString, int>> files{{u"/CompletedInvoices/20260001.txt"_s, 2},
                                         {u"/InvoiceSalesJournal.txt"_s, 4},
                                         {u"/SoldItems.txt"_s, 5},
                                         {u"/TaxRecords.txt"_s, 6}};
  for (const auto& [file, option] : files) {
    ProgramFixture program;
    program.Tree.Write(u"/Services.txt"_s, OneService);
    program.Tree.Write(file, "");
    QVERIFY(program.StartAtMenu());
    ScreenDriver menu(u"frmStartup"_s);
    QList<int> expected{0, 3};
    expected.append(option);
    std::sort(expected.begin(), expected.end());
    QCOMPARE(Offered(menu), expected);
  }
}

void MainMenu::aFileThatOnlyTheBackupHoldsIsRestoredByShowingTheMenu() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/Backup/TaxRecords.txt"_s, QByteArray(75, ' '));
  program.Tree.Write(u"/Backup/SoldItems.txt"_s, QByteArray(90, ' '));
  program.Tree.Write(u"/Backup/InvoiceSalesJournal.txt"_s, QByteArray(125, ' '));
  QVERIFY(program.StartAtMenu());
  QCOMPARE(Offered(ScreenDriver(u"frmStartup"_s)), (QList<int>{0, 3, 4, 5, 6}));
  QCOMPARE(program.Tree.Bytes(u"/TaxRecords.txt"_s), QByteArray(75, ' '));
  QCOMPARE(program.Tree.Bytes(u"/SoldItems.txt"_s), QByteArray(90, ' '));
  QCOMPARE(program.Tree.Bytes(u"/InvoiceSalesJournal.txt"_s), QByteArray(125, ' '));
}

void MainMenu::theNumberOfPartialInvoicesStandsBesideTheirOption() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s, "20260001\r\n7\r\nSmith\r\n3/7/2026\r\n");
  program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s, "20260002\r\n8\r\nJones\r\n3/7/2026\r\n");
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  QCOMPARE(Offered(menu), (QList<int>{0, 1, 3}));
  QCOMPARE(menu.Text(u"lblIncomplete"_s), u"2"_s);
  QVERIFY(!menu.IsVisible(u"lblNoPartials"_s));
}

void MainMenu::aDamagedPartialInvoiceIsNamedAndNothingIsOverwritten() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/Backup/Services.txt"_s, "the good copy");
  program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s, "20260001\r\n7\r\n");
  program.Answers.Ok();
  QVERIFY(!program.StartAtMenu());
  QVERIFY2(program.Answers.Last().Text.contains(u"20260001.txt"_s), qPrintable(program.Answers.Last().Text));
  QVERIFY(program.Running().HasEnded());
  QCOMPARE(program.Tree.Bytes(u"/Backup/Services.txt"_s), "the good copy");
}

void MainMenu::theInvoiceReportHidesTheMenuAndOpensNothing() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/InvoiceSalesJournal.txt"_s, "");
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  menu.Click(Option(4));
  menu.Click(u"cmdGoto"_s);
  for (QWidget* window : QApplication::topLevelWidgets())
    QVERIFY2(!window->isVisible(), qPrintable(window->objectName()));
  QVERIFY(!program.Running().HasEnded());
}

void MainMenu::aDoubleClickRunsAnOption() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  auto* option = menu.Control<QRadioButton>(Option(3));
  QTest::mouseDClick(option, Qt::LeftButton, Qt::NoModifier, QPoint(8, option->height() / 2));
  ScreenDriver::ProcessEvents();
  QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
}

void MainMenu::invoicesBeginWithTheProposalsWhereThereAreAny() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/KarvexProposals/a.txt"_s, "FP1,5,3/2/2026,7,Smith,1 Main Street,,Reno,NV,89501,555-0100\r\n");
  QVERIFY(program.StartAtMenu());
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"cmdGoto"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmCustomerSelection"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
  ScreenDriver(u"frmCustomerSelection"_s).Click(u"cmdCreation_0"_s);
  program.Tree.Remove(u"/KarvexProposals/a.txt"_s);
  program.Answers.Ok({}, u"Create Customers"_s);
  menu.Click(u"cmdGoto"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmNewCustomer"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
}

void MainMenu::theLastPartialGoneTakesItsSelectionAlong() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s, "20260001\r\n7\r\nSmith\r\n3/7/2026\r\n");
  QVERIFY(program.StartAtMenu());
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(Option(1));
  program.Tree.Remove(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s);
  menu.Trigger(u"mnuCreate"_s);
  ScreenDriver(u"frmSetup"_s).Click(u"cmdQuit"_s);
  QCOMPARE(Offered(menu), (QList<int>{0, 3}));
  QVERIFY(!IsSelected(menu, 1));
  QVERIFY(IsSelected(menu, 0));
}

void MainMenu::aRestoreThatFailsAtTheMenuLeavesAWindow() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  const ScreenDriver setup(u"frmSetup"_s);
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/Backup/TaxRecords.txt"_s, QByteArray(75, ' '));
  // The six files of Setup's save go through; what fails is the copy that the menu asks for.
  program.Files.FailAt(FailingDevice::Call::Write, 7, ENOSPC);
  program.Answers.Ok();
  setup.Click(u"cmdQuit"_s);
  QVERIFY2(program.Answers.Last().Text.contains(u"TaxRecords.txt"_s), qPrintable(program.Answers.Last().Text));
  QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
  program.Files.Reset();
  setup.Click(u"cmdQuit"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(program.Tree.Bytes(u"/TaxRecords.txt"_s), QByteArray(75, ' '));
}

void MainMenu::theMenuEntriesOpenSetupAndTheManualAndEnd() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  menu.Trigger(u"mnuHelp"_s);
  QCOMPARE(program.Dialogs.Pages.size(), 1);
  QVERIFY(program.Dialogs.Pages[0].endsWith(u"/manual/index.html"_s));
  QCOMPARE(program.Tree.Bytes(u"/Temp.url"_s),
           "[InternetShortcut]\r\nURL = " + program.Dialogs.Pages[0].toLatin1() + "\r\n");

  menu.Trigger(u"mnuCreate"_s);
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
  ScreenDriver setup(u"frmSetup"_s);
  setup.Control<QTabWidget>(u"tabInfo"_s)->setCurrentIndex(2);
  setup.Click(u"cmdQuit"_s);
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  QCOMPARE(setup.Control<QTabWidget>(u"tabInfo"_s)->currentIndex(), 0);
  setup.Click(u"cmdQuit"_s);

  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuExit"_s);
  QVERIFY(program.Running().HasEnded());
  QVERIFY(program.Tree.Exists(u"/Backup/MyBusinessData.txt"_s));
}

void MainMenu::anOrderFormAsksAndOpensItsPageOnYes() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  const QString text =
      u"Perforated Response Paper is used to create\nInvoices with a Remittance Slip\nClick Yes to connect to a Supplier"_s;
  program.Answers.No(text, u"Order Paper"_s);
  menu.Trigger(u"mnuPPaper"_s);
  QVERIFY(program.Dialogs.Pages.isEmpty());
  program.Answers.Yes(text, u"Order Paper"_s);
  menu.Trigger(u"mnuPPaper"_s);
  QCOMPARE(program.Dialogs.Pages.size(), 1);
  menu.Trigger(u"mnuDeluxe"_s);
  menu.Trigger(u"mnuDepositSlips"_s);
  QCOMPARE(program.Dialogs.Pages.size(), 3);
}

void MainMenu::gotoWithoutASelectionDoesNothing() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver menu(u"frmStartup"_s);
  auto* option = menu.Control<QRadioButton>(Option(3));
  option->group()->setExclusive(false);
  option->setChecked(false);
  option->group()->setExclusive(true);
  menu.Click(u"cmdGoto"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

QTEST_MAIN(MainMenu)
#include "tst_mainmenu.moc"
