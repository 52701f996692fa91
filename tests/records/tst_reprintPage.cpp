// A reprint beside its first print, mark by mark: invoices made, printed and committed on the real screens, then
// printed once more from the completed invoices' screen. What differs is what is meant to, and nothing else. And the
// report.

#include "customers/CustomerRecords.h"
#include "support/CompletedImages.h"
#include "support/InvoiceBench.h"
#include "support/PageFixture.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

/// Everything of a job, in the order of printing: what stands where, in which font, colour and width, on which page.
QStringList MarksOf(const PaperJob& job) {
  QStringList marks;
  for (std::size_t page = 0; page < job.Pages.size(); ++page) {
    for (const PaperMark& mark : job.Pages[page]) {
      QString told;
      if (const auto* text = std::get_if<PaperText>(&mark)) {
        told = text->Font.Name + u' ' + Described(*text);
      } else if (const auto* rule = std::get_if<PaperRule>(&mark)) {
        told = u"%1 %2 %3"_s.arg(Described(*rule)).arg(rule->DrawWidth).arg(rule->Color);
      } else {
        told = u"picture"_s;
      }
      marks.append(u"%1: %2"_s.arg(page + 1).arg(told));
    }
  }
  return marks;
}

/// The marks of `job` that `other` lacks, their texts only.
QStringList Beyond(const PaperJob& job, const PaperJob& other) {
  QStringList rest = MarksOf(job);
  for (const QString& mark : MarksOf(other)) rest.removeOne(mark);
  for (QString& mark : rest) mark = mark.section(u' ', 6);
  return rest;
}

QByteArray Customer(const QByteArray& address1 = "1 Main Street") {
  RecordText record;
  record.AcctNo = "1001";
  record.AcctName = "Acme Tools";
  record.Address1 = address1;
  record.Address2 = "Floor 2";
  record.CityLine = record.CityShort = "Springfield";
  record.State = "IL";
  record.PostalLine = record.PostalShort = "62701";
  record.AcctType = "Business";
  return record.Bytes();
}

struct Desk {
  ProgramFixture Program;
  /// What the invoice has beside its lines.
  bool ShipTo = true;
  int Lines = 2;
  /// Shipping and additional charge are entered and left as they are, which blanks them.
  bool BlankCharges = false;

  Desk() {
    const TemporaryTree& tree = Program.Tree;
    tree.Write(u"/KVInventoriedItems.txt"_s, Field("Hammer with a handle of hickory, twice oiled", 50) +
                                                 Field("Tools", 20) + Bytes64(0) + Bytes64(120000) + Bytes16(1000) +
                                                 Bytes64(0) + Bytes32(0) + Bytes16(0) + Bytes16(0));
    tree.Write(u"/CustomerData.txt"_s, Customer());
    tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"County Tax\",\"6.0\",\"1.0\",1,1\r\n");
    tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
    tree.Write(u"/PrintColors.txt"_s, "255\r\n8388608\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    tree.Write(u"/StatementTerms.txt"_s, "Net 30\r\n");
    tree.Write(u"/ShipVia.txt"_s, "UPS Ground\r\n");
  }

  /// Makes, prints and commits the invoice; the first job.
  void Invoice() {
    ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
    ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
    const ScreenDriver invoice(u"frmInvoice"_s);
    invoice.Click(u"cmdShipToAddress_0"_s);
    if (ShipTo) invoice.Click(u"ckShipto"_s);
    invoice.Fill(u"txtReference"_s, u"PO 5"_s);
    invoice.Click(u"cmdInvoice_0"_s);
    invoice.Trigger(u"mnuItems"_s);
    for (int line = 0; line < Lines; ++line) {
      invoice.Control<QComboBox>(u"cboDescription_1"_s)->setFocus();
      invoice.PickEntry(u"cboDescription_1"_s, 0);
      invoice.Fill(u"txtUnits"_s, QString::number(line + 1));
      invoice.Click(u"cmdPost_1"_s);
    }
    invoice.Click(u"cmdPrint"_s);
    if (BlankCharges) {
      for (const QString& box : {u"txtShip"_s, u"txtMisc"_s}) invoice.Control(box)->setFocus(Qt::TabFocusReason);
    } else {
      invoice.Fill(u"txtShip"_s, u"12.5"_s);
    }
    invoice.Click(u"cmdInvoice_9"_s);
    Program.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
    invoice.Click(u"cmdInvoiceContinue"_s);
  }
  /// From the menu to the invoice in full.
  ScreenDriver Open() const {
    OpenReprint();
    const ScreenDriver screen(u"frmReprint"_s);
    screen.SelectRow(u"fgReceivables"_s, 1);
    return screen;
  }
  void Reprint() const { Open().Click(u"cmdPrint"_s); }
  bool MakeAndReprint() {
    if (!Program.StartAtMenu()) return false;
    Invoice();
    Reprint();
    return Program.Paper.Jobs.size() == 2;
  }
  const PaperJob& First() const { return Program.Paper.Jobs.at(0); }
  const PaperJob& Second() const { return Program.Paper.Jobs.at(1); }
  QStringList Gone() const { return Beyond(First(), Second()); }
  QStringList Added() const { return Beyond(Second(), First()); }
};

QStringList WordsOf(const PaperJob& job) {
  QStringList words;
  for (const PaperPage& page : job.Pages) {
    for (const PaperMark& mark : page) {
      if (const auto* text = std::get_if<PaperText>(&mark)) words.append(text->Text);
    }
  }
  return words;
}

bool AllBold(const PaperJob& job, const QString& text) {
  bool found = false;
  for (const PaperMark& mark : job.Pages.at(0)) {
    const auto* run = std::get_if<PaperText>(&mark);
    if (run == nullptr || run->Text != text) continue;
    found = true;
    if (!run->Font.Bold) return false;
  }
  return found;
}

}  // namespace

class ReprintPage : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aReprintOnTheSameDayIsItsFirstPrintMarkByMark();
  void soItIsOverSeveralPages();
  void soItIsInInternationalStyle();
  void itComesFromThePrinterDialogWithoutAQuestion();
  void itNeverHasTheDetachLineAndIsBoldWithoutIt();
  void theAmountEnclosedLineFollowsTodaysPaper();
  void theShipToBlockPrintsThoughItWasNotTicked();
  void withoutAShipToAddressNothingOfItPrints();
  void aBlankedChargePrintsAsZero();
  void aQuoteInTheAddressEndsItsLine();
  void theHeadingKeepsTheDateOfTheInvoice();
  void theShipRowFollowsTheCalendar();
  void theNarrativePrintsAsItDid();
  void theMemoInTheBoxIsSavedAndPrinted();
  void anEmptyMemoBoxLeavesTheFileAlone();
  void aPrintErrorIsToldAndTheScreenStays();
  void aCancelledDialogIsSilentAndSavesNoMemo();
  void theReportPrintsTheListWithItsAmounts();
  void theReportFollowsTheOrderOnTheScreen();
  void theReportsErrorsAreToldAndItsCancelIsSilent();
  void aReportThatIsStoppedPrintsNothing();
  void theTimeInThePrinterDialogIsNoWork();
};

void ReprintPage::aReprintOnTheSameDayIsItsFirstPrintMarkByMark() {
  Desk desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\nCome again\r\n");
  desk.Program.Tree.Write(u"/MyWebSite.txt"_s, "\"www.grove.example\"\r\n");
  QVERIFY(desk.MakeAndReprint());
  const QStringList marks = MarksOf(desk.First());
  QVERIFY(marks.size() > 60);
  QCOMPARE(MarksOf(desk.Second()), marks);
  // Both had a ship-to block, a memo and two taxes to compare.
  const QStringList words = WordsOf(desk.Second());
  for (const auto& word : {u"SHIPPED TO:"_s, u"UPS Ground"_s, u"Come again"_s, u"County Tax"_s, u"$36.00"_s,
                           u"INVOICE NO: 20260017"_s, u"Acct: 1001"_s, u"Date 3/7/2026"_s, u"Net 30"_s})
    QVERIFY2(words.contains(word), qPrintable(word));
}

void ReprintPage::soItIsOverSeveralPages() {
  Desk desk;
  desk.Lines = 40;
  QVERIFY(desk.MakeAndReprint());
  QVERIFY(desk.First().Pages.size() > 1);
  QCOMPARE(MarksOf(desk.Second()), MarksOf(desk.First()));
}

void ReprintPage::soItIsInInternationalStyle() {
  Desk desk;
  desk.Program.Tree.Write(u"/MyBusinessData.txt"_s,
                          "\"Grove\",\"12 Grove Road\",\"\",\"Sydney\",\"NSW\",\"\",\"555-0100\",\"\",\"\"\r\n");
  QVERIFY(desk.MakeAndReprint());
  QCOMPARE(MarksOf(desk.Second()), MarksOf(desk.First()));
  const QStringList words = WordsOf(desk.Second());
  // The postal code that the screen hides prints all the same.
  QCOMPARE(words.count(u"62701"_s), 2);
  QVERIFY(!words.contains(u"IL"_s));
}

void ReprintPage::itComesFromThePrinterDialogWithoutAQuestion() {
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Invoice();
  const auto before = desk.Program.Tree.Everything();
  const auto boxes = desk.Program.Answers.Boxes().size();
  desk.Program.Paper.DialogsShown = 0;
  desk.Program.Paper.OnDialog = [&] { QCOMPARE(desk.Program.Paper.Title, u"Invoice 20260017"_s); };
  desk.Reprint();
  QCOMPARE(desk.Program.Paper.DialogsShown, 1);
  QCOMPARE(desk.Program.Answers.Boxes().size(), boxes);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(ScreenDriver(u"frmReprint"_s).IsVisible(u"fraInvoice"_s));
}

void ReprintPage::itNeverHasTheDetachLineAndIsBoldWithoutIt() {
  Desk desk;
  desk.Program.Tree.Write(u"/KarvexInvoicerSettings.txt"_s,
                          "1,0,0,0,0,\"0.0\",\"0\",#FALSE#,#TRUE#,\"$0.00\",\"$0.00\"\r\n");
  QVERIFY(desk.MakeAndReprint());
  const QStringList first = WordsOf(desk.First()), second = WordsOf(desk.Second());
  QStringList expected = first;
  QCOMPARE(expected.removeAll(u"Detach Here and Return Top Section"_s), 1);
  QCOMPARE(second, expected);
  QVERIFY(second.contains(u"Amount Enclosed              _______________"_s));
  // The line leaves the plain font behind, so its page is plain from the addresses on, and the reprint bold.
  QVERIFY(!AllBold(desk.First(), u"Acme Tools"_s));
  QVERIFY(AllBold(desk.Second(), u"Acme Tools"_s));
  QVERIFY(AllBold(desk.Second(), u"$12.00"_s));
}

void ReprintPage::theAmountEnclosedLineFollowsTodaysPaper() {
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Invoice();
  desk.Program.End();
  desk.Program.Tree.Write(u"/KarvexInvoicerSettings.txt"_s,
                          "1,0,0,0,0,\"0.0\",\"0\",#FALSE#,#TRUE#,\"$0.00\",\"$0.00\"\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  desk.Reprint();
  QVERIFY(!WordsOf(desk.First()).contains(u"Amount Enclosed              _______________"_s));
  QVERIFY(WordsOf(desk.Second()).contains(u"Amount Enclosed              _______________"_s));
}

void ReprintPage::theShipToBlockPrintsThoughItWasNotTicked() {
  Desk desk;
  desk.ShipTo = false;
  QVERIFY(desk.MakeAndReprint());
  QVERIFY(desk.Gone().isEmpty());
  QCOMPARE(desk.Added(),
           (QStringList{u"SHIPPED TO:"_s, u"Acme Tools"_s, u"1 Main Street"_s, u"Floor 2"_s, u"Springfield,IL 62701"_s,
                        u"PO 5"_s, u"UPS Ground"_s, u"Shipped On - 3/7/2026"_s}));
}

void ReprintPage::withoutAShipToAddressNothingOfItPrints() {
  Desk desk;
  StockCatalogue(desk.Program.Tree);
  QByteArray image = Image("7", "Bay", "3/7/2026", "$1.00");
  image.replace("\"Barn\"", "\"\"").replace("\"2 Hill Rd\"", "\"\"").replace("\"Lynn\"", "\"\"");
  image.replace("\"NH\"", "\"\"").replace("\"01901\"", "\"\"");
  desk.Program.Tree.Write(u"/CompletedInvoices/7.txt"_s, image);
  QVERIFY(desk.Program.StartAtMenu());
  desk.Reprint();
  const QStringList words = WordsOf(desk.First());
  QVERIFY(!words.contains(u"SHIPPED TO:"_s));
  QVERIFY(!words.contains(u"UPS Ground"_s));
  QVERIFY(words.contains(u"Hammer, \"big\""_s));
  QVERIFY(words.contains(u"$1,024.00"_s));
}

void ReprintPage::aBlankedChargePrintsAsZero() {
  Desk desk;
  desk.BlankCharges = true;
  QVERIFY(desk.MakeAndReprint());
  QVERIFY(desk.Gone().isEmpty());
  QCOMPARE(desk.Added(), (QStringList{u"$0.00"_s, u"$0.00"_s}));
}

void ReprintPage::aQuoteInTheAddressEndsItsLine() {
  Desk desk;
  desk.Program.Tree.Write(u"/CustomerData.txt"_s, Customer("12\" Pipe Row"));
  QVERIFY(desk.MakeAndReprint());
  QVERIFY(desk.Program.Tree.Bytes(u"/CompletedInvoices/20260017.txt"_s).contains("\r\n\"12\" Pipe Row\"\r\n"));
  QCOMPARE(desk.Gone(), (QStringList{u"12\" Pipe Row"_s, u"12\" Pipe Row"_s}));
  QCOMPARE(desk.Added(), (QStringList{u"12"_s, u"12"_s}));
}

void ReprintPage::theHeadingKeepsTheDateOfTheInvoice() {
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Invoice();
  desk.Program.Calendar.Set(QDate(2026, 5, 20));
  desk.Reprint();
  QCOMPARE(MarksOf(desk.Second()), MarksOf(desk.First()));
  QVERIFY(WordsOf(desk.Second()).contains(u"Date 3/7/2026"_s));
}

void ReprintPage::theShipRowFollowsTheCalendar() {
  Desk desk;
  StockCatalogue(desk.Program.Tree);
  desk.Program.Tree.Write(u"/CompletedInvoices/7.txt"_s, Image("7", "Bay", "3/7/2026", "$1.00"));
  QVERIFY(desk.Program.StartAtMenu());
  const ScreenDriver screen = desk.Open();
  screen.Click(u"cmdPrint"_s);
  QVERIFY(WordsOf(desk.First()).contains(u"Sheduled - 3/9/2026"_s));
  desk.Program.Calendar.Set(QDate(2026, 3, 9));
  screen.Click(u"cmdPrint"_s);
  QVERIFY(WordsOf(desk.Second()).contains(u"Shipped On - 3/9/2026"_s));
}

void ReprintPage::theNarrativePrintsAsItDid() {
  Desk desk;
  desk.Program.Tree.Write(u"/KarvexInvoicer/Narratives/20260017.txt"_s, "As agreed on the phone\r\nTwice\r\n");
  QVERIFY(desk.MakeAndReprint());
  QVERIFY(WordsOf(desk.First()).contains(u"As agreed on the phone"_s));
  QCOMPARE(MarksOf(desk.Second()), MarksOf(desk.First()));
}

void ReprintPage::theMemoInTheBoxIsSavedAndPrinted() {
  Desk desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  desk.Program.Tree.Write(u"/Backup/InvoiceMemo.txt"_s, "Older\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  desk.Invoice();
  const ScreenDriver screen = desk.Open();
  screen.Fill(u"txtMemo"_s, u"Paid\nwith thanks, Ann"_s);
  screen.Click(u"cmdPrint"_s);
  QCOMPARE(desk.Program.Tree.Bytes(u"/InvoiceMemo.txt"_s), "Paid\r\nwith thanks, Ann\r\n");
  QVERIFY(!desk.Program.Tree.Exists(u"/Backup/InvoiceMemo.txt"_s));
  QCOMPARE(desk.Gone(), QStringList{u"Thank you"_s});
  QCOMPARE(desk.Added(), (QStringList{u"Paid"_s, u"with thanks"_s, u"Ann"_s}));
}

void ReprintPage::anEmptyMemoBoxLeavesTheFileAlone() {
  Desk desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  desk.Invoice();
  const ScreenDriver screen = desk.Open();
  screen.Fill(u"txtMemo"_s, QString());
  screen.Click(u"cmdPrint"_s);
  QCOMPARE(desk.Program.Tree.Bytes(u"/InvoiceMemo.txt"_s), "Thank you\r\n");
  QCOMPARE(MarksOf(desk.Second()), MarksOf(desk.First()));
}

void ReprintPage::aPrintErrorIsToldAndTheScreenStays() {
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Invoice();
  desk.Program.Paper.SendError = 482;
  desk.Program.Answers.Ok(u"A Print Error has occurred"_s, u"Print Error"_s);
  desk.Reprint();
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QVERIFY(ScreenDriver(u"frmReprint"_s).IsVisible(u"fraInvoice"_s));
  ScreenDriver(u"frmReprint"_s).Click(u"cmdPrint"_s);
  QCOMPARE(MarksOf(desk.Second()), MarksOf(desk.First()));
}

void ReprintPage::aCancelledDialogIsSilentAndSavesNoMemo() {
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Invoice();
  const auto boxes = desk.Program.Answers.Boxes().size();
  const ScreenDriver screen = desk.Open();
  screen.Fill(u"txtMemo"_s, u"Typed"_s);
  desk.Program.Paper.DialogError = 32755;
  screen.Click(u"cmdPrint"_s);
  QCOMPARE(desk.Program.Paper.Jobs.size(), std::size_t{1});
  QCOMPARE(desk.Program.Answers.Boxes().size(), boxes);
  QVERIFY(!desk.Program.Tree.Exists(u"/InvoiceMemo.txt"_s));
  QVERIFY(screen.IsVisible(u"fraInvoice"_s));
}

namespace {
/// Three images and their list on the screen.
ScreenDriver OpenList(ProgramFixture& program) {
  StockCatalogue(program.Tree);
  program.Tree.Write(u"/CompletedInvoices/1.txt"_s, Image("1", "Bay Farm", "3/5/2026", "$1.50"));
  program.Tree.Write(u"/CompletedInvoices/2.txt"_s, Image("2", "Acme Tools", "3/6/2026", "$1,222.00"));
  program.Tree.Write(u"/CompletedInvoices/3.txt"_s, Image("3", "Hill", "3/4/2026", "$3.00"));
  program.StartAtMenu();
  OpenReprint();
  return ScreenDriver(u"frmReprint"_s);
}

/// The numbers of the three, as the report has them from top to bottom.
QStringList ReportOrder(const RecordingPrinter& paper) {
  QStringList order;
  for (const PaperText& run : paper.Texts(1)) {
    if (run.X == 1440.0F && run.Y >= 3600.0F) order.append(run.Text);
  }
  return order;
}
}  // namespace

void ReprintPage::theReportPrintsTheListWithItsAmounts() {
  ProgramFixture program;
  const ScreenDriver screen = OpenList(program);
  screen.PressAccessKey('R');
  QCOMPARE(program.Paper.DialogsShown, 1);
  QCOMPARE(program.Paper.Jobs.size(), std::size_t{1});
  const QStringList words = program.Paper.Words(1);
  for (const auto& word : {u"Invoices Report"_s, u"Orange Grove Supply"_s, u"3/7/2026"_s, u"Amount"_s, u"Bay Farm"_s,
                           u"3/5/2026"_s, u"$1.50"_s, u"$1,222.00"_s, u"$3.00"_s, u"1001"_s})
    QVERIFY2(words.contains(word), qPrintable(word));
  // The sort key stays hidden here too.
  for (const auto& word : {u"Sort"_s, u"2026164"_s, u"2026165"_s, u"2026163"_s}) QVERIFY(!words.contains(word));
  QCOMPARE(ReportOrder(program.Paper), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
  QVERIFY(screen.IsVisible(u"fgReceivables"_s));
}

void ReprintPage::theReportFollowsTheOrderOnTheScreen() {
  ProgramFixture program;
  const ScreenDriver screen = OpenList(program);
  screen.Trigger(u"mnuSort"_s);
  screen.Click(u"optCol_1"_s);
  screen.Click(u"optSort_1"_s);
  screen.Click(u"cmdMode"_s);
  screen.Click(u"cmdReport"_s);
  QCOMPARE(ReportOrder(program.Paper), (QStringList{u"2"_s, u"1"_s, u"3"_s}));
}

void ReprintPage::theReportsErrorsAreToldAndItsCancelIsSilent() {
  ProgramFixture program;
  const ScreenDriver screen = OpenList(program);
  program.Paper.DialogError = 32755;
  screen.Click(u"cmdReport"_s);
  QCOMPARE(program.Answers.Boxes().size(), 0);
  program.Paper.SendError = 482;
  program.Answers.Ok(u"A Print Error has occurred"_s, u"Print Error"_s);
  screen.Click(u"cmdReport"_s);
  QCOMPARE(program.Paper.Jobs.size(), std::size_t{0});
  QVERIFY(ScreenDriver::IsShown(u"frmReprint"_s));
}

void ReprintPage::aReportThatIsStoppedPrintsNothing() {
  ProgramFixture program;
  program.Patience = 0;
  const auto goOn = [](QDialog& dialog) { QVERIFY(qobject_cast<QProgressDialog*>(&dialog) != nullptr); };
  program.Answers.Dialog(goOn);  // The list.
  const ScreenDriver screen = OpenList(program);
  program.Answers.Dialog([](QDialog& dialog) { dialog.findChild<QPushButton*>()->click(); });
  screen.Click(u"cmdReport"_s);
  QVERIFY(program.Paper.Jobs.empty());
  QCOMPARE(program.Answers.Boxes().size(), 0);
  QVERIFY(screen.IsVisible(u"fgReceivables"_s));
  program.Answers.Dialog(goOn);
  screen.Click(u"cmdReport"_s);
  QCOMPARE(ReportOrder(program.Paper), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
}

void ReprintPage::theTimeInThePrinterDialogIsNoWork() {
  ProgramFixture program;
  const ScreenDriver screen = OpenList(program);
  // The user takes that time in the dialog. A progress that came up behind it would be a dialog that nobody expected.
  program.Paper.OnDialog = [&program] { program.WorkTime += 60'000; };
  screen.Click(u"cmdReport"_s);
  QCOMPARE(program.Paper.Jobs.size(), std::size_t{1});
}

QTEST_MAIN(ReprintPage)
#include "tst_reprintPage.moc"
