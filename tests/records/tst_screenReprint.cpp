// The completed invoices' screen in the real program: the list and its order, one invoice in full, its messages, the
// memo, and the purge.

#include "support/CompletedImages.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"/CompletedInvoices/"_s;
const QString Narratives = u"/KarvexInvoicer/Narratives/"_s;

/// Four images; two of one date, one of an earlier year; and one of the narratives.
void Stock(const TemporaryTree& tree) {
  StockCatalogue(tree);
  tree.Write(Folder + u"20260010.txt"_s, Image("20260010", "Bay Farm", "3/6/2026", "$1,086.50"));
  tree.Write(Folder + u"20260009.txt"_s, Image("20260009", "acme tools", "3/6/2026", "$7.00"));
  tree.Write(Folder + u"900.txt"_s, Image("900", "Hill & Sons", "12/31/2025", "$900.00"));
  tree.Write(Folder + u"20260011.txt"_s, Image("20260011", "Acme Tools", "3/7/2026", "$12.00"));
  tree.Write(Narratives + u"900.txt"_s, "Said then\r\n");
}

struct Desk {
  ProgramFixture Program;
  Desk() { Stock(Program.Tree); }
  /// At the screen.
  bool Open() {
    if (!Program.StartAtMenu()) return false;
    OpenReprint();
    return ScreenDriver::IsShown(u"frmReprint"_s) && !ScreenDriver::IsShown(u"frmStartup"_s);
  }
  ScreenDriver On() const { return ScreenDriver(u"frmReprint"_s); }
  QStringList Column(int col) const {
    const auto* list = On().Control<QTableView>(u"fgReceivables"_s)->model();
    QStringList cells;
    for (int row = 0; row < list->rowCount(); ++row) cells.append(list->index(row, col).data().toString());
    return cells;
  }
  /// Opens the invoice of that number.
  void Select(const QString& number) const {
    On().SelectRow(u"fgReceivables"_s, static_cast<int>(Column(0).indexOf(number)) + 1);
  }
  bool ShowsList() const {
    return On().IsVisible(u"fgReceivables"_s) && !On().IsVisible(u"fraInvoice"_s) &&
           On().Entry(u"mnuSort"_s)->isVisible();
  }
  void Sort(int col, int order) const {
    On().Trigger(u"mnuSort"_s);
    On().Click(u"optCol_%1"_s.arg(col));
    On().Click(u"optSort_%1"_s.arg(order));
    On().Click(u"cmdMode"_s);
  }
  QDate Date() const { return On().Control<QDateEdit>(u"DTPicker1"_s)->date(); }
  void Purge(const QString& date) {
    Program.Answers.Yes(u"This will Delete All Invoices before "_s + date, u"Delete Invoice Records"_s);
    On().Click(u"cmdKill"_s);
  }
  QStringList Images() const { return Program.Tree.List(u"/CompletedInvoices"_s); }
};

/// Stops the work whose progress is shown.
void Stop(QDialog& progress) {
  progress.findChild<QPushButton*>()->click();
}

QString Title(const ScreenDriver& screen) {
  return screen.Control<QGroupBox>(u"fraInvoice"_s)->title();
}

}  // namespace

class ScreenReprint : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itListsTheImagesUnderTheirHeadings();
  void theCaptionsAndTips();
  void atFirstTheListIsSortedByNumberAndTheSortPanelIsHidden();
  void theListIsReadAnewAtEachShowing();
  void withoutAnImageItSaysSoAndTheMenuIsShownAnew();
  void anImageThatCannotBeListedIsNamedAndTheMenuStays_data();
  void anImageThatCannotBeListedIsNamedAndTheMenuStays();
  void theListNeedsNoMoreThanFiveLinesOfAnImage();
  void aClickShowsTheInvoiceInFull();
  void aKeyOpensTheRowToo();
  void theTaxHeadingsAreSetups();
  void inUsaStyleTheStateIsNarrowAndThePostalCodeShows();
  void inInternationalStyleTheStateIsWideAndThePostalCodeIsHidden();
  void textsAreShownAsTheyStand();
  void aRowWithoutItsImageSaysSoAndKeepsTheList();
  void anImageThatOnlyTheBackupHoldsComesBack();
  void aNumberThatCouldLeaveTheFolderIsRefused();
  void whatCannotBeReadNamesTheFileAndKeepsTheList_data();
  void whatCannotBeReadNamesTheFileAndKeepsTheList();
  void anInvoiceWithoutLinesIsShown();
  void reSelectLeadsBackToTheList();
  void escapeLeadsOneStepBack();
  void theMemoShownIsTheOneLoadedNow();
  void clearMemoEmptiesTheBoxAndDeletesItsFileAndCopy();
  void aDoubleClickOnARowClearsNoMemoUnderIt();
  void eachKeySortsBothWays_data();
  void eachKeySortsBothWays();
  void withinADateTheOrderOfTheFormerSortIsKept();
  void theYearLeadsTheOrderOfDates();
  void theTwoKindsOfOptionsAreChosenApart();
  void aDateLaterThanTodayIsSetBack();
  void noDeletesNothing();
  void theDefaultDateDeletesEverythingThroughToday();
  void thePickedDayItselfIsKept();
  void thePurgeTakesNarrativesAndBackupCopiesAndNothingElse();
  void aPurgeThatFailsIsTold();
  void menuUnloadsTheScreen();
  void closingTheWindowEndsTheProgram();
  void aStopWhileTheListIsReadLeadsBackToTheMenu();
  void aStopWhileInvoicesAreDeletedKeepsTheRest();
};

void ScreenReprint::itListsTheImagesUnderTheirHeadings() {
  Desk desk;
  QVERIFY(desk.Open());
  auto* view = desk.On().Control<QTableView>(u"fgReceivables"_s);
  const auto* grid = view->model();
  QStringList headings;
  for (int col = 0; col < grid->columnCount(); ++col) headings.append(grid->headerData(col, Qt::Horizontal).toString());
  QCOMPARE(headings, (QStringList{u"Invoice Number"_s, u"Account Number"_s, u"Account Name"_s, u"Invoice Date"_s,
                                  u"Amount"_s, u"Sort"_s}));
  QCOMPARE(grid->rowCount(), 4);
  QCOMPARE(desk.Column(1), QStringList(4, u"1001"_s));
  QCOMPARE(desk.Column(2), (QStringList{u"Hill & Sons"_s, u"acme tools"_s, u"Bay Farm"_s, u"Acme Tools"_s}));
  QCOMPARE(desk.Column(3), (QStringList{u"12/31/2025"_s, u"3/6/2026"_s, u"3/6/2026"_s, u"3/7/2026"_s}));
  QCOMPARE(desk.Column(4), (QStringList{u"$900.00"_s, u"$7.00"_s, u"$1,086.50"_s, u"$12.00"_s}));
  QCOMPARE(desk.Column(5), (QStringList{u"2025465"_s, u"2026165"_s, u"2026165"_s, u"2026166"_s}));
  for (int col = 0; col < 5; ++col) QVERIFY(!view->isColumnHidden(col));
  QVERIFY(view->isColumnHidden(5));
}

void ScreenReprint::theCaptionsAndTips() {
  Desk desk;
  QVERIFY(desk.Open());
  const ScreenDriver screen = desk.On();
  const std::initializer_list<std::pair<QString, QString>> captions{
      {u"cmdPrint"_s, u"&RePrint"_s},
      {u"cmdMemo"_s, u"Clear&M&emo"_s},
      {u"cmdHide"_s, u"Re-&Select"_s},
      {u"cmdExit"_s, u"&Menu"_s},
      {u"cmdReport"_s, u"Print&Report"_s},
      {u"cmdKill"_s, u"Delete"_s},
      {u"cmdMode"_s, u"Sort Grid"_s},
      {u"optCol_0"_s, u"Invoice Number"_s},
      {u"optCol_1"_s, u"Invoice Date"_s},
      {u"optCol_2"_s, u"Account Name"_s},
      {u"optSort_0"_s, u"Asending Order"_s},
      {u"optSort_1"_s, u"Desending Order"_s},
      {u"lblMemoNote"_s, u"This is the Currently LOADED Memo It may not be the Original Memo"_s}};
  for (const auto& [name, caption] : captions) QCOMPARE(screen.Text(name), caption);
  QCOMPARE(screen.Control(u"DTPicker1"_s)->toolTip(), u"Invoices prior to this date will be deleted"_s);
  // The letter of the memo's button isn't that of Menu, which stands beside it.
  QCOMPARE(screen.Control<QAbstractButton>(u"cmdMemo"_s)->shortcut(), QKeySequence(u"Alt+E"_s));
  const auto* items = screen.Control<QTableView>(u"fgItems"_s)->model();
  QStringList headings;
  for (int col = 0; col < items->columnCount(); ++col)
    headings.append(items->headerData(col, Qt::Horizontal).toString());
  QCOMPARE(headings, (QStringList{u"Units"_s, u"Description"_s, u"Date"_s, u"Unit Cost"_s, u"Extension"_s}));
}

void ScreenReprint::atFirstTheListIsSortedByNumberAndTheSortPanelIsHidden() {
  Desk desk;
  QVERIFY(desk.Open());
  // As numbers: the 900 comes first.
  QCOMPARE(desk.Column(0), (QStringList{u"900"_s, u"20260009"_s, u"20260010"_s, u"20260011"_s}));
  QVERIFY(desk.ShowsList());
  QVERIFY(!desk.On().IsVisible(u"fraSort"_s));
  QCOMPARE(desk.On().FocusName(), u"fgReceivables"_s);
  QCOMPARE(desk.Date(), QDate(2026, 3, 8));
  QVERIFY(desk.On().IsVisible(u"cmdReport"_s));
  for (const auto& name : {u"cmdPrint"_s, u"cmdHide"_s, u"cmdMemo"_s}) QVERIFY(!desk.On().IsVisible(name));
}

void ScreenReprint::theListIsReadAnewAtEachShowing() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Sort(2, 1);
  desk.On().Click(u"cmdExit"_s);
  desk.Program.Tree.Write(Folder + u"20260012.txt"_s, Image("20260012", "New", "3/7/2026", "$1.00"));
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  OpenReprint();
  QCOMPARE(desk.Column(0), (QStringList{u"900"_s, u"20260009"_s, u"20260011"_s, u"20260012"_s}));
}

void ScreenReprint::withoutAnImageItSaysSoAndTheMenuIsShownAnew() {
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  for (const QString& file : desk.Images()) desk.Program.Tree.Remove(Folder + file);
  desk.Program.Answers.Ok(u"No Completed Invoices Exist"_s, u"Karvex Invoicer"_s);
  OpenReprint();
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QVERIFY(!ScreenDriver::IsShown(u"frmReprint"_s));
  QVERIFY(desk.Program.Built(ScreenName::frmReprint) == nullptr);
  const ScreenDriver menu(u"frmStartup"_s);
  QVERIFY(!menu.IsVisible(u"optMainMenuSub_2"_s));
  // And the menu goes on as ever.
  menu.Click(u"optMainMenuSub_3"_s);
  menu.Click(u"cmdGoto"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenReprint::anImageThatCannotBeListedIsNamedAndTheMenuStays_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("error");
  QTest::newRow("empty") << QByteArray() << u"(error 62)"_s;
  QTest::newRow("four lines") << QByteArray("1\r\n1001\r\nBay\r\n3/7/2026\r\n") << u"(error 62)"_s;
  QTest::newRow("no date") << QByteArray("1\r\n1001\r\nBay\r\nsoon\r\n$1.00\r\n") << u"(error 13)"_s;
}

void ScreenReprint::anImageThatCannotBeListedIsNamedAndTheMenuStays() {
  QFETCH(const QByteArray, content);
  QFETCH(const QString, error);
  Desk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Program.Tree.Write(Folder + u"20260010.txt"_s, content);
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.Ok();
  OpenReprint();
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(Folder + u"20260010.txt"_s) && text.contains(error), qPrintable(text));
  QVERIFY(!desk.Program.Running().HasEnded());
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmReprint"_s));
  QCOMPARE(desk.Program.Tree.Everything(), before);
  // Mended, it opens.
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  OpenReprint();
  QCOMPARE(desk.Column(0).size(), 3);
}

void ScreenReprint::theListNeedsNoMoreThanFiveLinesOfAnImage() {
  Desk desk;
  desk.Program.Tree.Write(Folder + u"20260012.txt"_s, "20260012\n1003\nShort\n1/5/2001\n$1.00");
  QVERIFY(desk.Open());
  const auto row = desk.Column(0).indexOf(u"20260012"_s);
  QCOMPARE(desk.Column(4).at(row), u"$1.00"_s);
  QCOMPARE(desk.Column(5).at(row), u"2001105"_s);
}

void ScreenReprint::aClickShowsTheInvoiceInFull() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Select(u"20260010"_s);
  const ScreenDriver screen = desk.On();
  QVERIFY(screen.IsVisible(u"fraInvoice"_s));
  QVERIFY(!screen.IsVisible(u"fgReceivables"_s));
  QVERIFY(!screen.Entry(u"mnuSort"_s)->isVisible());
  QCOMPARE(Title(screen), u"Details for Invoice 20260010"_s);
  const QStringList billTo{u"Bay Farm"_s, u"1 Dock Rd"_s, u"Gate 2"_s, u"Salem"_s, u"MA"_s, u"01970"_s};
  const QStringList shipTo{u"Barn"_s, u"2 Hill Rd"_s, u""_s, u"Lynn"_s, u"NH"_s, u"01901"_s};
  for (int i = 0; i < 6; ++i) {
    QCOMPARE(screen.Text(u"lblBillTo_%1"_s.arg(i)), billTo[i]);
    QCOMPARE(screen.Text(u"lblShipTo_%1"_s.arg(i)), shipTo[i]);
  }
  const std::initializer_list<std::pair<int, QString>> facts{{19, u"3/6/2026"_s}, {32, u"UPS Ground"_s},
                                                             {33, u"3/9/2026"_s}, {27, u"20260010"_s},
                                                             {17, u"1001"_s},     {9, u"PO 5"_s}};
  for (const auto& [element, text] : facts) QCOMPARE(screen.Text(u"Label1_%1"_s.arg(element)), text);
  QCOMPARE(screen.Text(u"txtAttn"_s), u"Ann"_s);
  const std::initializer_list<std::pair<int, QString>> amounts{{0, u"$1,024.00"_s}, {1, u"$51.20"_s}, {9, u"$1.30"_s},
                                                               {2, u"$1,086.50"_s}, {4, u"$12.50"_s}, {5, u"$3.00"_s},
                                                               {6, u"($2.25)"_s}};
  for (const auto& [element, text] : amounts) QCOMPARE(screen.Text(u"lblInvoice_%1"_s.arg(element)), text);

  const auto* items = screen.Control<QTableView>(u"fgItems"_s)->model();
  QCOMPARE(items->rowCount(), 2);
  const QList<QStringList> lines{{u"2"_s, u"Hammer, \"big\""_s, u""_s, u"$12.00"_s, u"$24.00"_s},
                                 {u""_s, u" Survey "_s, u"3/1/2026"_s, u"$1,000.00"_s, u"$1,000.00"_s}};
  for (int row = 0; row < 2; ++row) {
    for (int col = 0; col < 5; ++col) QCOMPARE(items->index(row, col).data().toString(), lines[row][col]);
  }
  QCOMPARE(items->index(0, 1).data(Qt::TextAlignmentRole).toInt(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter));
  QVERIFY(screen.IsVisible(u"cmdPrint"_s) && screen.IsVisible(u"cmdHide"_s) && screen.IsVisible(u"cmdMemo"_s));
  QVERIFY(screen.IsVisible(u"cmdExit"_s));
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void ScreenReprint::aKeyOpensTheRowToo() {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    Desk desk;
    QVERIFY(desk.Open());
    desk.On().PressKey(Qt::Key_Down);
    desk.On().PressKey(key);
    QCOMPARE(Title(desk.On()), u"Details for Invoice 20260009"_s);
  }
}

void ScreenReprint::theTaxHeadingsAreSetups() {
  Desk desk;
  desk.Program.Tree.Write(u"/TaxSettings.txt"_s, "\"GST\",\"Tax & <b>more</b>\",\"6.0\",\"1.0\",1,1\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  QCOMPARE(desk.On().Text(u"Label1_1"_s), u"GST"_s);
  QCOMPARE(desk.On().Text(u"Label1_22"_s), u"Tax & <b>more</b>"_s);
  QCOMPARE(desk.On().Control<QLabel>(u"Label1_22"_s)->textFormat(), Qt::PlainText);
}

void ScreenReprint::inUsaStyleTheStateIsNarrowAndThePostalCodeShows() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Select(u"20260010"_s);
  for (const auto& block : {u"lblBillTo"_s, u"lblShipTo"_s}) {
    // 435 twips.
    QCOMPARE(desk.On().Control(block + u"_4"_s)->width(), 29);
    QVERIFY(desk.On().IsVisible(block + u"_5"_s));
  }
}

void ScreenReprint::inInternationalStyleTheStateIsWideAndThePostalCodeIsHidden() {
  Desk desk;
  // A name and no postal code, and the customer screen was never shown.
  desk.Program.Tree.Write(u"/MyBusinessData.txt"_s,
                          "\"Grove\",\"12 Grove Road\",\"\",\"Sydney\",\"NSW\",\"\",\"555-0100\",\"\",\"\"\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"20260010"_s);
  for (const auto& block : {u"lblBillTo"_s, u"lblShipTo"_s}) {
    // 2235 twips.
    QCOMPARE(desk.On().Control(block + u"_4"_s)->width(), 149);
    QVERIFY(!desk.On().IsVisible(block + u"_5"_s));
  }
  QCOMPARE(desk.On().Text(u"lblBillTo_5"_s), u"01970"_s);
}

void ScreenReprint::textsAreShownAsTheyStand() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  QCOMPARE(desk.On().Text(u"lblBillTo_0"_s), u"Hill & Sons"_s);
  QCOMPARE(desk.On().Control<QLabel>(u"lblBillTo_0"_s)->textFormat(), Qt::PlainText);
}

void ScreenReprint::aRowWithoutItsImageSaysSoAndKeepsTheList() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  desk.Program.Answers.Ok(
      u"An Image does not exist for this Transaction\nIt most likely is a result of\n"
      "a Service Attention Completion Posting\nor an E-Funds Received\nShown for Reference Only"_s,
      u"Invoice Image Not Found"_s);
  desk.Select(u"20260010"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QVERIFY(desk.ShowsList());
  QCOMPARE(desk.Column(0).size(), 4);
  desk.Select(u"20260011"_s);
  QCOMPARE(Title(desk.On()), u"Details for Invoice 20260011"_s);
}

void ScreenReprint::anImageThatOnlyTheBackupHoldsComesBack() {
  Desk desk;
  QVERIFY(desk.Open());
  const QByteArray image = desk.Program.Tree.Bytes(Folder + u"20260010.txt"_s);
  desk.Program.Tree.Write(u"/Backup"_s + Folder + u"20260010.txt"_s, image);
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  desk.Select(u"20260010"_s);
  QCOMPARE(Title(desk.On()), u"Details for Invoice 20260010"_s);
  QCOMPARE(desk.Program.Tree.Bytes(Folder + u"20260010.txt"_s), image);
}

void ScreenReprint::aNumberThatCouldLeaveTheFolderIsRefused() {
  Desk desk;
  desk.Program.Tree.Write(Folder + u"x.txt"_s, Image("../Services", "Bay", "3/7/2026", "$1.00"));
  desk.Program.Tree.Write(Folder + u"y.txt"_s, Image("", "Blank", "3/7/2026", "$1.00"));
  QVERIFY(desk.Open());
  desk.Program.Answers.Ok();
  desk.Select(u"../Services"_s);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"../Services"_s));
  QVERIFY(desk.ShowsList());
  // One without a number has no image.
  desk.Program.Answers.Ok({}, u"Invoice Image Not Found"_s);
  desk.Select(u""_s);
  desk.Purge(u"3/8/2026"_s);
  QVERIFY(desk.Program.Tree.Exists(u"/Services.txt"_s));
  QCOMPARE(desk.Images(), (QStringList{u"x.txt"_s, u"y.txt"_s}));
}

void ScreenReprint::whatCannotBeReadNamesTheFileAndKeepsTheList_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("error");
  const QByteArray whole = Image("20260010", "Bay Farm", "3/6/2026", "$1,086.50");
  QTest::newRow("without its amounts") << whole.left(whole.lastIndexOf("\r\n\"$1,024.00\"") + 2) << u"(error 62)"_s;
  QTest::newRow("shorter than its count")
      << QByteArray(whole).replace("\r\nAnn\r\n2\r\n", "\r\nAnn\r\n9\r\n") << u"(error 62)"_s;
  QTest::newRow("five lines only") << QByteArray("20260010\r\n1001\r\nBay\r\n3/6/2026\r\n$1.00\r\n") << u"(error 62)"_s;
  QTest::newRow("a word for an amount") << QByteArray(whole).replace("\"$3.00\"", "\"three\"") << u"(error 13)"_s;
  QTest::newRow("an empty amount") << QByteArray(whole).replace("\"$3.00\"", "\"\"") << u"(error 13)"_s;
  QTest::newRow("an amount beyond any") << QByteArray(whole).replace("\"$3.00\"", "\"1E300\"") << u"(error 6)"_s;
  QTest::newRow("a word for the count") << QByteArray(whole).replace("\r\nAnn\r\n2\r\n", "\r\nAnn\r\ntwo\r\n")
                                        << u"(error 13)"_s;
  QTest::newRow("a count beyond 16 bits")
      << QByteArray(whole).replace("\r\nAnn\r\n2\r\n", "\r\nAnn\r\n32768\r\n") << u"(error 6)"_s;
  QTest::newRow("a count below zero") << QByteArray(whole).replace("\r\nAnn\r\n2\r\n", "\r\nAnn\r\n-1\r\n")
                                      << u"(error 9)"_s;
  QTest::newRow("a comma in the attention line")
      << QByteArray(whole).replace("\r\nAnn\r\n", "\r\nAnn, Bob\r\n") << u"(error 13)"_s;
}

void ScreenReprint::whatCannotBeReadNamesTheFileAndKeepsTheList() {
  QFETCH(const QByteArray, content);
  QFETCH(const QString, error);
  Desk desk;
  desk.Program.Tree.Write(Folder + u"20260010.txt"_s, content);
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.Ok();
  desk.Select(u"20260010"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(Folder + u"20260010.txt"_s) && text.contains(error), qPrintable(text));
  QVERIFY(text.endsWith(u"Mend the file or remove it, then try again. Nothing was lost."_s));
  QVERIFY(!desk.Program.Running().HasEnded());
  QVERIFY(desk.ShowsList());
  QCOMPARE(desk.Program.Tree.Everything(), before);
}

void ScreenReprint::anInvoiceWithoutLinesIsShown() {
  Desk desk;
  desk.Program.Tree.Write(Folder + u"20260010.txt"_s,
                          "20260010\r\n1001\r\nBay\r\n3/6/2026\r\n$0.00\r\n" + QByteArray("\"\"\r\n").repeated(12) +
                              "None\r\n3/6/2026\r\n20260010\r\n1001\r\n\r\n\r\n0\r\n"
                              "\"0\",\"$0.00\",\"0\",\"1.005\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"20260009"_s);
  desk.On().Click(u"cmdHide"_s);
  desk.Select(u"20260010"_s);
  QCOMPARE(desk.On().Control<QTableView>(u"fgItems"_s)->model()->rowCount(), 0);
  // Amounts come through currency formatting, whatever the file holds.
  QCOMPARE(desk.On().Text(u"lblInvoice_0"_s), u"$0.00"_s);
  QCOMPARE(desk.On().Text(u"lblInvoice_2"_s), u"$1.01"_s);
}

void ScreenReprint::reSelectLeadsBackToTheList() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().Click(u"cmdHide"_s);
  QVERIFY(desk.ShowsList());
  QVERIFY(desk.On().IsVisible(u"cmdReport"_s) && desk.On().IsVisible(u"cmdKill"_s));
  desk.Select(u"20260011"_s);
  QCOMPARE(Title(desk.On()), u"Details for Invoice 20260011"_s);
}

void ScreenReprint::escapeLeadsOneStepBack() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(desk.ShowsList());
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenReprint::theMemoShownIsTheOneLoadedNow() {
  Desk desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thank you, come again\r\n\"Closed, on Sundays\"\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  QCOMPARE(desk.On().Text(u"txtMemo"_s), u"Thank you\ncome again\nClosed, on Sundays\n"_s);
  QVERIFY(desk.On().IsVisible(u"lblMemoNote"_s));
  desk.On().Fill(u"txtMemo"_s, u"typed"_s);
  desk.On().Click(u"cmdHide"_s);
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "New\r\n");
  desk.Select(u"20260009"_s);
  QCOMPARE(desk.On().Text(u"txtMemo"_s), u"New\n"_s);
  desk.On().Click(u"cmdHide"_s);
  desk.Program.Tree.Remove(u"/InvoiceMemo.txt"_s);
  desk.Select(u"900"_s);
  QCOMPARE(desk.On().Text(u"txtMemo"_s), QString());
}

void ScreenReprint::clearMemoEmptiesTheBoxAndDeletesItsFileAndCopy() {
  Desk desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thanks\r\n");
  desk.Program.Tree.Write(u"/Backup/InvoiceMemo.txt"_s, "Old thanks\r\n");
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().PressAccessKey('E');
  QCOMPARE(desk.On().Text(u"txtMemo"_s), QString());
  QVERIFY(!desk.Program.Tree.Exists(u"/InvoiceMemo.txt"_s));
  QVERIFY(!desk.Program.Tree.Exists(u"/Backup/InvoiceMemo.txt"_s));
  QVERIFY(desk.On().IsVisible(u"fraInvoice"_s));
  // Without a file nothing more happens.
  desk.On().Click(u"cmdMemo"_s);
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void ScreenReprint::aDoubleClickOnARowClearsNoMemoUnderIt() {
  Desk desk;
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Thanks\r\n");
  for (int i = 0; i < 40; ++i) {
    const QByteArray number = QByteArray::number(20260020 + i);
    desk.Program.Tree.Write(Folder + QString::fromLatin1(number) + u".txt"_s, Image(number, "Bay", "3/7/2026", "$1"));
  }
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  const ScreenDriver screen = desk.On();
  const auto* button = screen.Control(u"cmdMemo"_s);
  const QPoint place = button->mapTo(screen.Window(), button->rect().center());
  screen.Click(u"cmdHide"_s);
  const auto* list = screen.Control<QTableView>(u"fgReceivables"_s);
  QVERIFY(list->indexAt(list->viewport()->mapFrom(screen.Window(), place)).isValid());
  QTest::mouseDClick(screen.Window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
  ScreenDriver::ProcessEvents();
  QVERIFY(screen.IsVisible(u"fraInvoice"_s));
  QCOMPARE(desk.Program.Tree.Bytes(u"/InvoiceMemo.txt"_s), "Thanks\r\n");
  QVERIFY(screen.IsEnabled(u"cmdMemo"_s));
  screen.Click(u"cmdMemo"_s);
  QVERIFY(!desk.Program.Tree.Exists(u"/InvoiceMemo.txt"_s));
}

void ScreenReprint::eachKeySortsBothWays_data() {
  QTest::addColumn<int>("col");
  QTest::addColumn<int>("order");
  QTest::addColumn<QStringList>("numbers");
  const QString a = u"900"_s, b = u"20260009"_s, c = u"20260010"_s, d = u"20260011"_s;
  QTest::newRow("number, ascending") << 0 << 0 << QStringList{a, b, c, d};
  QTest::newRow("number, descending") << 0 << 1 << QStringList{d, c, b, a};
  QTest::newRow("date, ascending") << 1 << 0 << QStringList{a, b, c, d};
  // The two of one date stay as they stood.
  QTest::newRow("date, descending") << 1 << 1 << QStringList{d, b, c, a};
  // Texts by character code: capitals first.
  QTest::newRow("name, ascending") << 2 << 0 << QStringList{d, c, a, b};
  QTest::newRow("name, descending") << 2 << 1 << QStringList{b, a, c, d};
}

void ScreenReprint::eachKeySortsBothWays() {
  QFETCH(const int, col);
  QFETCH(const int, order);
  QFETCH(const QStringList, numbers);
  Desk desk;
  QVERIFY(desk.Open());
  desk.On().Trigger(u"mnuSort"_s);
  QVERIFY(desk.On().IsVisible(u"fraSort"_s));
  QCOMPARE(desk.On().FocusName(), u"optCol_0"_s);
  desk.Sort(col, order);
  QCOMPARE(desk.Column(0), numbers);
  QVERIFY(!desk.On().IsVisible(u"fraSort"_s));
  QVERIFY(desk.ShowsList());
  // A click opens the row that stands there now.
  desk.On().SelectRow(u"fgReceivables"_s, 1);
  QCOMPARE(Title(desk.On()), u"Details for Invoice "_s + numbers.first());
}

void ScreenReprint::withinADateTheOrderOfTheFormerSortIsKept() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Sort(0, 1);
  desk.Sort(1, 0);
  QCOMPARE(desk.Column(0), (QStringList{u"900"_s, u"20260010"_s, u"20260009"_s, u"20260011"_s}));
}

void ScreenReprint::theYearLeadsTheOrderOfDates() {
  Desk desk;
  for (const QString& file : desk.Images()) desk.Program.Tree.Remove(Folder + file);
  const std::initializer_list<std::pair<QByteArray, QByteArray>> dates{
      {"1", "1/5/2026"}, {"2", "12/31/2025"}, {"3", "12/30/2026"}, {"4", "2/1/2026"}, {"5", "12/31/2024"}};
  for (const auto& [number, date] : dates)
    desk.Program.Tree.Write(Folder + QString::fromLatin1(number) + u".txt"_s, Image(number, "Bay", date, "$1.00"));
  QVERIFY(desk.Open());
  desk.Sort(1, 1);
  QCOMPARE(desk.Column(0), (QStringList{u"3"_s, u"4"_s, u"1"_s, u"2"_s, u"5"_s}));
  // The leap year's last day is its 366th.
  QCOMPARE(desk.Column(5), (QStringList{u"2026464"_s, u"2026132"_s, u"2026105"_s, u"2025465"_s, u"2024466"_s}));
}

void ScreenReprint::theTwoKindsOfOptionsAreChosenApart() {
  Desk desk;
  QVERIFY(desk.Open());
  const ScreenDriver screen = desk.On();
  screen.Trigger(u"mnuSort"_s);
  const auto chosen = [&] {
    QStringList names;
    for (const auto* option : screen.Window()->findChildren<QRadioButton*>()) {
      if (option->isChecked()) names.append(option->objectName());
    }
    names.sort();
    return names;
  };
  QCOMPARE(chosen(), (QStringList{u"optCol_0"_s, u"optSort_0"_s}));
  screen.Click(u"optCol_2"_s);
  QCOMPARE(chosen(), (QStringList{u"optCol_2"_s, u"optSort_0"_s}));
  screen.Click(u"optSort_1"_s);
  QCOMPARE(chosen(), (QStringList{u"optCol_2"_s, u"optSort_1"_s}));
}

void ScreenReprint::aDateLaterThanTodayIsSetBack() {
  Desk desk;
  QVERIFY(desk.Open());
  auto* picker = desk.On().Control<QDateEdit>(u"DTPicker1"_s);
  for (const QDate later : {QDate(2026, 3, 9), QDate(2030, 1, 1)}) {
    picker->setDate(later);
    QCOMPARE(desk.Date(), QDate(2026, 3, 7));
  }
  // Only the first value can be tomorrow.
  picker->setDate(QDate(2026, 3, 8));
  QCOMPARE(desk.Date(), QDate(2026, 3, 7));
  picker->setDate(QDate(2026, 3, 6));
  QCOMPARE(desk.Date(), QDate(2026, 3, 6));
  desk.On().Click(u"cmdExit"_s);
  OpenReprint();
  QCOMPARE(desk.Date(), QDate(2026, 3, 8));
}

void ScreenReprint::noDeletesNothing() {
  Desk desk;
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.No(u"This will Delete All Invoices before 3/8/2026"_s, u"Delete Invoice Records"_s);
  desk.On().Click(u"cmdKill"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(desk.ShowsList());
}

void ScreenReprint::theDefaultDateDeletesEverythingThroughToday() {
  Desk desk;
  desk.Program.Tree.Write(Folder + u"20260012.txt"_s, Image("20260012", "Post-dated", "3/8/2026", "$1.00"));
  QVERIFY(desk.Open());
  desk.Purge(u"3/8/2026"_s);
  QCOMPARE(desk.Images(), QStringList{u"20260012.txt"_s});
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmReprint"_s));
  // The last one gone, the menu offers none.
  desk.Program.Calendar.Set(QDate(2026, 3, 8));
  OpenReprint();
  desk.Purge(u"3/9/2026"_s);
  QVERIFY(!ScreenDriver(u"frmStartup"_s).IsVisible(u"optMainMenuSub_2"_s));
}

void ScreenReprint::thePickedDayItselfIsKept() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.On().Control<QDateEdit>(u"DTPicker1"_s)->setDate(QDate(2026, 3, 6));
  desk.Purge(u"3/6/2026"_s);
  QCOMPARE(desk.Images(), (QStringList{u"20260009.txt"_s, u"20260010.txt"_s, u"20260011.txt"_s}));
}

void ScreenReprint::thePurgeTakesNarrativesAndBackupCopiesAndNothingElse() {
  Desk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  tree.Write(Narratives + u"20260010.txt"_s, "Kept\r\n");
  tree.Write(u"/InvoiceSalesJournal.txt"_s, QByteArray(125, ' '));
  tree.Write(u"/SoldItems.txt"_s, QByteArray(90, ' '));
  tree.Write(u"/TaxRecords.txt"_s, QByteArray(75, ' '));
  tree.Write(u"/KVActiveAccounts/1001.txt"_s, QByteArray(155, ' '));
  for (const QString& name : {Folder + u"900.txt"_s, Folder + u"20260010.txt"_s, Narratives + u"900.txt"_s})
    tree.Write(u"/Backup"_s + name, tree.Bytes(name));
  QVERIFY(desk.Open());
  desk.On().Control<QDateEdit>(u"DTPicker1"_s)->setDate(QDate(2026, 3, 6));
  auto expected = tree.Everything();
  for (const QString& name : {Folder + u"900.txt"_s, Narratives + u"900.txt"_s}) {
    QCOMPARE(expected.remove(name), 1);
    QCOMPARE(expected.remove(u"/Backup"_s + name), 1);
  }
  desk.Purge(u"3/6/2026"_s);
  QCOMPARE(tree.Everything(), expected);
}

void ScreenReprint::aPurgeThatFailsIsTold() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Program.Files.FailAlways(FailingDevice::Call::Remove, EACCES);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Ok();
  desk.On().Click(u"cmdKill"_s);
  QVERIFY2(desk.Program.Answers.Last().Text.contains(u"900.txt"_s), qPrintable(desk.Program.Answers.Last().Text));
  QCOMPARE(desk.Images().size(), 4);
  QVERIFY(desk.ShowsList());
  QVERIFY(!desk.Program.Running().HasEnded());
}

void ScreenReprint::menuUnloadsTheScreen() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().Click(u"cmdExit"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(desk.Program.Built(ScreenName::frmReprint) == nullptr);
  // It comes back as it was at first.
  OpenReprint();
  QVERIFY(desk.ShowsList());
}

void ScreenReprint::closingTheWindowEndsTheProgram() {
  Desk desk;
  QVERIFY(desk.Open());
  desk.On().CloseByUser();
  QVERIFY(desk.Program.Running().HasEnded());
  QVERIFY(desk.Program.Tree.Exists(u"/Backup/Services.txt"_s));
}

void ScreenReprint::aStopWhileTheListIsReadLeadsBackToTheMenu() {
  Desk desk;
  desk.Program.Patience = 0;
  QVERIFY(desk.Program.StartAtMenu());
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.Dialog(&Stop);
  OpenReprint();
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmReprint"_s));
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  // The next time it isn't stopped.
  desk.Program.Answers.Dialog([](QDialog&) {});
  OpenReprint();
  QCOMPARE(desk.Column(0).size(), 4);
}

void ScreenReprint::aStopWhileInvoicesAreDeletedKeepsTheRest() {
  Desk desk;
  desk.Program.Patience = 0;
  desk.Program.Answers.Dialog([](QDialog&) {});
  QVERIFY(desk.Open());
  desk.Program.Answers.Yes();
  desk.Program.Answers.Dialog(&Stop);
  desk.On().Click(u"cmdKill"_s);
  QCOMPARE(desk.Images(), (QStringList{u"20260009.txt"_s, u"20260010.txt"_s, u"20260011.txt"_s}));
  QVERIFY(!desk.Program.Tree.Exists(Narratives + u"900.txt"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

QTEST_MAIN(ScreenReprint)
#include "tst_screenReprint.moc"
