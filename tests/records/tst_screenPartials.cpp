// The partial invoices screen in the real program: what it offers when, its messages, purges, report, and the recall
// of one invoice up to its commit.

#include "customers/CustomerRecords.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"/KarvexInvoicer/IncompleteInvoices"_s;

const QByteArray Bay =
    "20260009\r\n"
    "1001\r\n"
    "Bay Farm\r\n"
    "3/5/2026\r\n"
    "\"Bay Farm\"\r\n"
    "\"1 Dock Rd\"\r\n"
    "\"\"\r\n"
    "\"Salem\"\r\n"
    "\"MA\"\r\n"
    "\"01970\"\r\n"
    "\"Barn\"\r\n"
    "\"\"\r\n"
    "\"\"\r\n"
    "\"Lynn\"\r\n"
    "\"MA\"\r\n"
    "\"01901\"\r\n"
    "20260009\r\n"
    "1001\r\n"
    "PO 5\r\n"
    "Ann\r\n"
    "1\r\n"
    "\r\n"
    "Survey\r\n"
    "3/1/2026\r\n"
    "$80.00\r\n"
    "$80.00\r\n"
    "False\r\n";

/// A catalogue, a customer, and three partial invoices; the second is Bay Farm's.
void Stock(const TemporaryTree& tree) {
  tree.Write(u"/KVInvoiceNo.txt"_s, "20260010\r\n");
  tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n");
  tree.Write(u"/Services.txt"_s, Field("Repair", 60) + Field("$10.00", 10) + Bytes16(1));
  tree.Write(u"/KVInventoriedItems.txt"_s, Field("Hammer", 50) + Field("Tools", 20) + Bytes64(0) + Bytes64(120000) +
                                               Bytes16(10) + Bytes64(0) + Bytes32(0) + Bytes16(0) + Bytes16(0));
  RecordText customer;
  customer.AcctNo = "1001";
  customer.AcctName = "Bay Farm";
  customer.AcctType = "Business";
  tree.Write(u"/CustomerData.txt"_s, customer.Bytes());
  tree.Write(Folder + u"/20260008.txt"_s, "20260008\r\n1002\r\nHill, \"Top\" Ltd\r\n3/4/2026\r\n");
  tree.Write(Folder + u"/20260009.txt"_s, Bay);
  tree.Write(Folder + u"/20260007.txt"_s, "20260007\r\n1003\r\nAcme Tools\r\n3/3/2026\r\n");
}

/// From the main menu to the screen.
void OpenPartials() {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_1"_s);
  menu.Click(u"cmdGoto"_s);
}

bool AnyWindow() {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) return true;
  }
  return false;
}

QStringList Row(const QString& screen, const QString& grid, int row) {
  const auto* lines = ScreenDriver(screen).Control<QTableView>(grid)->model();
  QStringList cells;
  for (int col = 0; col < lines->columnCount(); ++col) cells.append(lines->index(row - 1, col).data().toString());
  return cells;
}

/// Which of `Command1` can be used.
QList<int> Enabled() {
  const ScreenDriver partials(u"frmIncomplete"_s);
  QList<int> enabled;
  for (int i = 0; i < 4; ++i) {
    if (partials.IsEnabled(u"Command1_%1"_s.arg(i))) enabled.append(i);
  }
  return enabled;
}

const QString Loaded =
    u"Partial Invoice Number 20260009\nhas been loaded into the Invoice Screen.\n\nClick OK\n\n"
    "The Invoice Screen will display.\n\nClick the [Add To......] Button"_s;

struct Desk {
  ProgramFixture Program;
  Desk() { Stock(Program.Tree); }
  /// At the screen.
  bool Open() {
    if (!Program.StartAtMenu()) return false;
    OpenPartials();
    return ScreenDriver::IsShown(u"frmIncomplete"_s) && !ScreenDriver::IsShown(u"frmStartup"_s);
  }
  /// Bay Farm's invoice on the invoice screen.
  void Recall() {
    const ScreenDriver partials(u"frmIncomplete"_s);
    partials.SelectRow(u"fgIncomplete"_s, 3);
    Program.Answers.Ok(Loaded, u"Partial Invoice Loaded"_s);
    partials.Click(u"Command1_1"_s);
  }
};

}  // namespace

class ScreenPartials : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itListsThePartialInvoicesUnderItsHeadings();
  void theCaptions();
  void addAndPurgeWaitForAClickOnARow();
  void aKeyClicksTheRowToo();
  void theMenuButtonAndEscapeLeadBack();
  void theListIsReadAnewAtEachShowing();
  void withoutPartialInvoicesTheChoiceLeavesNoWindow();
  void aListThatCannotBeReadIsNamedAndEndsTheProgram();
  void recallFillsTheInvoiceScreen();
  void aDoubleClickRecallsTheRow();
  void nothingElseRecalls();
  void theFileStaysUntilTheInvoiceIsCommitted();
  void aRecalledInvoiceIsAddedToCommittedAndGone();
  void recalledAfterARestartItIsFinishedAsWell();
  void leavingTheInvoiceByMenuForgetsTheRecall();
  void whatCannotBeRecalledLeavesEverythingInPlace_data();
  void whatCannotBeRecalledLeavesEverythingInPlace();
  void purgeAllRemovesEveryFileOfTheFolder();
  void purgeAllAsksTwice();
  void purgeSelectedRemovesThatOneFile();
  void purgeSelectedAsksTwiceAndWaitsForTheNextClick();
  void purgingTheLastOneLeadsToAMenuWithoutThem();
  void aPurgeOfARowThatCouldLeaveTheFolderIsRefused();
  void aPurgeThatFailsIsTold();
  void theLetterOfBothPurgesRunsNeither();
  void theReportPrintsTheList();
  void cancelInThePrinterDialogReturnsQuietly();
  void aPrinterErrorIsToldAndTheProgramGoesOn();
};

void ScreenPartials::itListsThePartialInvoicesUnderItsHeadings() {
  Desk desk;
  QVERIFY(desk.Open());
  const auto* grid = ScreenDriver(u"frmIncomplete"_s).Control<QTableView>(u"fgIncomplete"_s)->model();
  QStringList headings;
  for (int col = 0; col < 4; ++col) headings.append(grid->headerData(col, Qt::Horizontal).toString());
  QCOMPARE(headings, (QStringList{u"Invoice No"_s, u"Account Number"_s, u"Account Name"_s, u"Last Modified Date"_s}));
  QCOMPARE(grid->rowCount(), 3);
  const QString screen = u"frmIncomplete"_s, name = u"fgIncomplete"_s;
  QCOMPARE(Row(screen, name, 1), (QStringList{u"20260007"_s, u"1003"_s, u"Acme Tools"_s, u"3/3/2026"_s}));
  QCOMPARE(Row(screen, name, 2), (QStringList{u"20260008"_s, u"1002"_s, u"Hill, \"Top\" Ltd"_s, u"3/4/2026"_s}));
  QCOMPARE(Row(screen, name, 3), (QStringList{u"20260009"_s, u"1001"_s, u"Bay Farm"_s, u"3/5/2026"_s}));
  QCOMPARE(ScreenDriver(screen).FocusName(), name);
}

void ScreenPartials::theCaptions() {
  Desk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  QCOMPARE(partials.Control<QPushButton>(u"Command1_0"_s)->text(), u"&Menu"_s);
  QCOMPARE(partials.Control<QPushButton>(u"Command1_1"_s)->text(), u"&Add to Selected Invoice"_s);
  QCOMPARE(partials.Control<QPushButton>(u"Command1_2"_s)->text(), u"&Purge All Invoices"_s);
  QCOMPARE(partials.Control<QPushButton>(u"Command1_3"_s)->text(), u"&Purge Selected Invoice"_s);
  QCOMPARE(partials.Control<QPushButton>(u"cmdReport"_s)->text(), u"Print Partial Invoice &Report"_s);
}

void ScreenPartials::addAndPurgeWaitForAClickOnARow() {
  Desk desk;
  QVERIFY(desk.Open());
  QCOMPARE(Enabled(), (QList<int>{0, 2}));
  const ScreenDriver partials(u"frmIncomplete"_s);
  QVERIFY(partials.IsEnabled(u"cmdReport"_s));
  partials.PressKey(Qt::Key_Down);
  QCOMPARE(Enabled(), (QList<int>{0, 2}));
  partials.SelectRow(u"fgIncomplete"_s, 1);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2, 3}));
  partials.Click(u"Command1_0"_s);
  OpenPartials();
  QCOMPARE(Enabled(), (QList<int>{0, 2}));
}

void ScreenPartials::aKeyClicksTheRowToo() {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    Desk desk;
    QVERIFY(desk.Open());
    const ScreenDriver partials(u"frmIncomplete"_s);
    partials.PressKey(Qt::Key_Down);
    partials.PressKey(Qt::Key_A);
    QCOMPARE(Enabled(), (QList<int>{0, 2}));
    partials.PressKey(key);
    QCOMPARE(Enabled(), (QList<int>{0, 1, 2, 3}));
    desk.Program.Answers.No(u"This will Purge Incomplete Invoice# 20260008"_s);
    partials.Click(u"Command1_3"_s);
  }
}

void ScreenPartials::theMenuButtonAndEscapeLeadBack() {
  Desk desk;
  QVERIFY(desk.Open());
  ScreenDriver(u"frmIncomplete"_s).PressAccessKey('M');
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  OpenPartials();
  ScreenDriver(u"frmIncomplete"_s).PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::theListIsReadAnewAtEachShowing() {
  Desk desk;
  QVERIFY(desk.Open());
  ScreenDriver(u"frmIncomplete"_s).Click(u"Command1_0"_s);
  desk.Program.Tree.Remove(Folder + u"/20260007.txt"_s);
  OpenPartials();
  QCOMPARE(Row(u"frmIncomplete"_s, u"fgIncomplete"_s, 1).at(0), u"20260008"_s);
}

void ScreenPartials::withoutPartialInvoicesTheChoiceLeavesNoWindow() {
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  // The menu offers what it counted; meanwhile they have gone.
  for (const QString& file : desk.Program.Tree.List(Folder)) desk.Program.Tree.Remove(Folder + u'/' + file);
  OpenPartials();
  QVERIFY(!AnyWindow());
  QVERIFY(!desk.Program.Running().HasEnded());
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void ScreenPartials::aListThatCannotBeReadIsNamedAndEndsTheProgram() {
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Program.Tree.Write(Folder + u"/20260008.txt"_s, "20260008\r\n1002\r\n");
  desk.Program.Answers.Ok();
  OpenPartials();
  QVERIFY2(desk.Program.Answers.Last().Text.contains(u"20260008.txt"_s), qPrintable(desk.Program.Answers.Last().Text));
  QVERIFY(desk.Program.Running().HasEnded());
  QVERIFY(!desk.Program.Tree.Exists(u"/Backup/Services.txt"_s));
}

void ScreenPartials::recallFillsTheInvoiceScreen() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Recall();
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
  const ScreenDriver invoice(u"frmInvoice"_s);
  QCOMPARE(invoice.Text(u"cmdInvoice_0"_s), u"Add To......."_s);
  QVERIFY(invoice.IsVisible(u"fraSetup"_s));
  QVERIFY(invoice.Control<QLineEdit>(u"txtInvoiceNo"_s)->isReadOnly());
  const QStringList soldTo{u"Bay Farm"_s, u"1 Dock Rd"_s, u""_s, u"Salem"_s, u"MA"_s, u"01970"_s};
  const QStringList shipTo{u"Barn"_s, u""_s, u""_s, u"Lynn"_s, u"MA"_s, u"01901"_s, u"Ann"_s};
  for (int i = 0; i < 6; ++i) {
    QCOMPARE(invoice.Text(u"lblCustomer_%1"_s.arg(i)), soldTo[i]);
    QCOMPARE(invoice.Text(u"lblCustomer_%1"_s.arg(i + 6)), soldTo[i]);
  }
  for (int i = 0; i < 7; ++i) QCOMPARE(invoice.Text(u"txtShipto_%1"_s.arg(i)), shipTo[i]);
  QCOMPARE(invoice.Text(u"txtInvoiceNo"_s), u"20260009"_s);
  QCOMPARE(invoice.Text(u"lblAcct"_s), u"1001"_s);
  QCOMPARE(invoice.Text(u"lblAcctNo"_s), u"1001"_s);
  QCOMPARE(invoice.Text(u"txtReference"_s), u"PO 5"_s);
  for (const auto& box : {u"txtShip"_s, u"txtMisc"_s, u"txtDiscount"_s}) QCOMPARE(invoice.Text(box), u"$0.00"_s);
  QCOMPARE(invoice.Control<QDateEdit>(u"DTPicker1"_s)->date(), QDate(2026, 3, 5));
  QCOMPARE(Row(u"frmInvoice"_s, u"fgInvoice"_s, 1),
           (QStringList{u""_s, u"Survey"_s, u"3/1/2026"_s, u"$80.00"_s, u"$80.00"_s, u"False"_s}));
  QCOMPARE(Row(u"frmInvoice"_s, u"fgInvoice"_s, 2), QStringList(6, u""_s));
}

void ScreenPartials::aDoubleClickRecallsTheRow() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Program.Answers.Ok(Loaded, u"Partial Invoice Loaded"_s);
  ScreenDriver(u"frmIncomplete"_s).DoubleClickRow(u"fgIncomplete"_s, 3);
  QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"txtInvoiceNo"_s), u"20260009"_s);
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::nothingElseRecalls() {
  Desk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 3);
  partials.RightPressRow(u"fgIncomplete"_s, 3);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Return, Qt::Key_Space}) partials.PressKey(key);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmInvoice"_s));
}

void ScreenPartials::theFileStaysUntilTheInvoiceIsCommitted() {
  Desk desk;
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  desk.Recall();
  QCOMPARE(desk.Program.Tree.Everything(), before);
}

void ScreenPartials::aRecalledInvoiceIsAddedToCommittedAndGone() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Recall();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Trigger(u"mnuItems"_s);
  invoice.PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  invoice.Fill(u"txtUnits"_s, u"2"_s);
  invoice.Click(u"cmdPost_1"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  desk.Program.Answers.Yes(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));

  const TemporaryTree& tree = desk.Program.Tree;
  QCOMPARE(tree.List(Folder), (QStringList{u"20260007.txt"_s, u"20260008.txt"_s}));
  // Its number was counted when it was saved.
  QCOMPARE(tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260010\r\n");
  QCOMPARE(tree.Bytes(u"/CompletedInvoices/20260009.txt"_s),
           "20260009\r\n"
           "1001\r\n"
           "Bay Farm\r\n"
           "3/7/2026\r\n"
           "$105.44\r\n"
           "\"Bay Farm\"\r\n"
           "\"1 Dock Rd\"\r\n"
           "\"\"\r\n"
           "\"Salem\"\r\n"
           "\"MA\"\r\n"
           "\"01970\"\r\n"
           "\"Barn\"\r\n"
           "\"\"\r\n"
           "\"\"\r\n"
           "\"Lynn\"\r\n"
           "\"MA\"\r\n"
           "\"01901\"\r\n"
           "None\r\n"
           "3/7/2026\r\n"
           "20260009\r\n"
           "1001\r\n"
           "PO 5\r\n"
           "Ann\r\n"
           "2\r\n"
           "\r\n"
           "Survey\r\n"
           "3/1/2026\r\n"
           "$80.00\r\n"
           "$80.00\r\n"
           "False\r\n"
           "2\r\n"
           "Hammer\r\n"
           "\r\n"
           "$12.00\r\n"
           "$24.00\r\n"
           "True\r\n"
           "\"$104.00\",\"$1.44\",\"$0.00\",\"$105.44\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
  const ScreenDriver menu(u"frmStartup"_s);
  QCOMPARE(menu.Text(u"lblIncomplete"_s), u"2"_s);
  // The next invoice is a new one.
  menu.Click(u"optMainMenuSub_0"_s);
  menu.Click(u"cmdGoto"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  QCOMPARE(invoice.Text(u"cmdInvoice_0"_s), u"Continue......"_s);
  QCOMPARE(invoice.Text(u"txtInvoiceNo"_s), u"20260010"_s);
}

void ScreenPartials::recalledAfterARestartItIsFinishedAsWell() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Program.End();
  QVERIFY(desk.Open());
  desk.Recall();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  desk.Program.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
  QVERIFY(!desk.Program.Tree.Exists(Folder + u"/20260009.txt"_s));
  QVERIFY(desk.Program.Tree.Exists(u"/CompletedInvoices/20260009.txt"_s));
  QCOMPARE(desk.Program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260010\r\n");
}

void ScreenPartials::leavingTheInvoiceByMenuForgetsTheRecall() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Recall();
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_1"_s);
  QVERIFY(desk.Program.Tree.Exists(Folder + u"/20260009.txt"_s));
  OpenPartials();
  desk.Recall();
  QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"txtReference"_s), u"PO 5"_s);
}

void ScreenPartials::whatCannotBeRecalledLeavesEverythingInPlace_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("error");
  QTest::newRow("cut short") << Bay.chopped(7) << u"(error 62)"_s;
  QByteArray comma = Bay;
  comma.replace("\r\nAnn\r\n", "\r\nAnn, Bob\r\n");
  QTest::newRow("a comma in the attention line") << comma << u"(error 13)"_s;
  QByteArray many = Bay;
  many.replace("\r\nAnn\r\n1\r\n", "\r\nAnn\r\n101\r\n");
  QTest::newRow("101 lines") << many << u"(error 9)"_s;
}

void ScreenPartials::whatCannotBeRecalledLeavesEverythingInPlace() {
  QFETCH(const QByteArray, content);
  QFETCH(const QString, error);
  Desk desk;
  desk.Program.Tree.Write(Folder + u"/20260009.txt"_s, content);
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 3);
  desk.Program.Answers.Ok();
  partials.Click(u"Command1_1"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(u"/20260009.txt"_s) && text.contains(error), qPrintable(text));
  QVERIFY(text.endsWith(u"Mend the file or remove it, then try again. Nothing was lost."_s));
  QVERIFY(!desk.Program.Running().HasEnded());
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmInvoice"_s));
  QCOMPARE(desk.Program.Tree.Everything(), before);
  // What comes next is a new invoice.
  partials.Click(u"Command1_0"_s);
  ScreenDriver(u"frmStartup"_s).Click(u"optMainMenuSub_0"_s);
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"cmdInvoice_0"_s), u"Continue......"_s);
}

void ScreenPartials::purgeAllRemovesEveryFileOfTheFolder() {
  Desk desk;
  desk.Program.Tree.Write(Folder + u"/notes.doc"_s, "x");
  desk.Program.Tree.Write(Folder + u"/bare"_s, "x");
  QVERIFY(desk.Open());
  desk.Program.Answers.Yes(u"This will Purge ALL Incomplete Invoices"_s, u"Purge Incomplete Invoices"_s);
  desk.Program.Answers.Yes(u"Are You Sure?"_s, u"Purge Confirmation"_s);
  ScreenDriver(u"frmIncomplete"_s).Click(u"Command1_2"_s);
  QCOMPARE(desk.Program.Tree.List(Folder), QStringList{});
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  const ScreenDriver menu(u"frmStartup"_s);
  QCOMPARE(menu.Text(u"lblIncomplete"_s), u"0"_s);
  QVERIFY(!menu.IsVisible(u"optMainMenuSub_1"_s));
}

void ScreenPartials::purgeAllAsksTwice() {
  Desk desk;
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  const ScreenDriver partials(u"frmIncomplete"_s);
  desk.Program.Answers.No();
  partials.Click(u"Command1_2"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  desk.Program.Answers.Yes();
  desk.Program.Answers.No(u"Are You Sure?"_s, u"Purge Confirmation"_s);
  partials.Click(u"Command1_2"_s);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(partials.IsEnabled(u"Command1_2"_s));
}

void ScreenPartials::purgeSelectedRemovesThatOneFile() {
  Desk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 2);
  desk.Program.Answers.Yes(u"This will Purge Incomplete Invoice# 20260008"_s, u"Purge Incomplete Invoice"_s);
  desk.Program.Answers.Yes(u"Are You Sure?"_s, u"Purge Confirmation"_s);
  partials.Click(u"Command1_3"_s);
  QCOMPARE(desk.Program.Tree.List(Folder), (QStringList{u"20260007.txt"_s, u"20260009.txt"_s}));
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  QCOMPARE(ScreenDriver(u"frmStartup"_s).Text(u"lblIncomplete"_s), u"2"_s);
}

void ScreenPartials::purgeSelectedAsksTwiceAndWaitsForTheNextClick() {
  Desk desk;
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 2);
  desk.Program.Answers.With(QMessageBox::No, [] { QCOMPARE(Enabled(), (QList<int>{0, 1, 2})); });
  partials.Click(u"Command1_3"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2}));
  partials.SelectRow(u"fgIncomplete"_s, 2);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2, 3}));
  desk.Program.Answers.Yes();
  desk.Program.Answers.No(u"Are You Sure?"_s, u"Purge Confirmation"_s);
  partials.Click(u"Command1_3"_s);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2}));
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::purgingTheLastOneLeadsToAMenuWithoutThem() {
  Desk desk;
  desk.Program.Tree.Remove(Folder + u"/20260007.txt"_s);
  desk.Program.Tree.Remove(Folder + u"/20260008.txt"_s);
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Yes();
  partials.Click(u"Command1_3"_s);
  const ScreenDriver menu(u"frmStartup"_s);
  QVERIFY(!menu.IsVisible(u"optMainMenuSub_1"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::aPurgeOfARowThatCouldLeaveTheFolderIsRefused() {
  Desk desk;
  desk.Program.Tree.Write(Folder + u"/20260007.txt"_s, "../../Services\r\n1003\r\nAcme Tools\r\n3/3/2026\r\n");
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Yes();
  desk.Program.Answers.Ok();
  partials.Click(u"Command1_3"_s);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"../../Services"_s));
  partials.SelectRow(u"fgIncomplete"_s, 1);
  desk.Program.Answers.Ok();
  partials.Click(u"Command1_1"_s);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::aPurgeThatFailsIsTold() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Program.Files.FailAt(FailingDevice::Call::Remove, 1, EACCES);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Yes();
  desk.Program.Answers.Ok();
  ScreenDriver(u"frmIncomplete"_s).Click(u"Command1_2"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(u"20260007.txt"_s), qPrintable(text));
  QVERIFY(desk.Program.Tree.Exists(Folder + u"/20260009.txt"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::theLetterOfBothPurgesRunsNeither() {
  Desk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  partials.PressAccessKey('P');
  const QString first = partials.FocusName();
  partials.PressAccessKey('P');
  const QString second = partials.FocusName();
  QCOMPARE(QSet<QString>({first, second}), QSet<QString>({u"Command1_2"_s, u"Command1_3"_s}));
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void ScreenPartials::theReportPrintsTheList() {
  Desk desk;
  QVERIFY(desk.Open());
  ScreenDriver(u"frmIncomplete"_s).Click(u"cmdReport"_s);
  const RecordingPrinter& paper = desk.Program.Paper;
  QCOMPARE(paper.DialogsShown, 1);
  QCOMPARE(paper.Jobs.size(), std::size_t{1});
  const QStringList words = paper.Words(1);
  QVERIFY(words.contains(u"Incomplete Invoices Report"_s));
  QVERIFY(words.contains(u"Orange Grove Supply"_s));
  QVERIFY(words.contains(u"3/7/2026"_s));
  QVERIFY(!words.contains(u"Amount"_s));
  for (int row = 1; row <= 3; ++row) {
    for (const QString& cell : Row(u"frmIncomplete"_s, u"fgIncomplete"_s, row))
      QVERIFY2(words.contains(cell), qPrintable(cell));
  }
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::cancelInThePrinterDialogReturnsQuietly() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Program.Paper.DialogError = 32755;
  ScreenDriver(u"frmIncomplete"_s).Click(u"cmdReport"_s);
  QCOMPARE(desk.Program.Paper.Jobs.size(), std::size_t{0});
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::aPrinterErrorIsToldAndTheProgramGoesOn() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Program.Paper.SendError = 482;
  desk.Program.Answers.Ok();
  ScreenDriver(u"frmIncomplete"_s).Click(u"cmdReport"_s);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"(error 482)"_s));
  QVERIFY(!desk.Program.Running().HasEnded());
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

QTEST_MAIN(ScreenPartials)
#include "tst_screenPartials.moc"
