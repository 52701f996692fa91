// The item sales screen in the real program: its list, grids, messages and report.

#include "catalogue/SalesItemsList.h"
#include "desktop/GridView.h"
#include "records/SalesScreen.h"
#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

namespace {

const QString ThisScreen = u"frmSalesReport"_s;

}  // namespace

class ScreenSales : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itShowsTheLastThirtyDaysAndEveryProduct();
  void theCaptionsAndToolTips();
  void theGridsHaveTheirHeadings();
  void withoutATickNothingIsLoaded();
  void loadingListsInvoicesAndTotals();
  void bothEndsOfTheRangeCountAndATimeOfDayLiesBehind();
  void aSecondTickIsTakenInAtTheNextLoad();
  void selectAllTicksEveryEntryAndResetClearsTheGrids();
  void ticksAreKeptByNameOverASaveOfTheCatalogue();
  void anActivationSetsTheDatesAndLoads();
  void equalNamesMatchTwice();
  void theListEndsTheProgramWith256OfAKind();
  void aTotalBeyondSixteenBitsIsAnOverflow();
  void anErrorAtTheShowingIsToldAndTheScreenComesUp_data();
  void anErrorAtTheShowingIsToldAndTheScreenComesUp();
  void anErrorOfALaterLoadLeavesTheReportsButtonLive();
  void aFirstLoadWhoseTotalsFailCanBePrinted();
  void aLoadShowsTheFirstOfManySales();
  void aBlankNameBeforeAnotherIsAnErrorOfTheTotals();
  void withoutTheFileItSaysSo();
  void withoutTheFileTheTotalsAreMadeAnewOfTheOldRows();
  void theFileComesBackFromItsCopy();
  void aFileOfMoreRecordsThanACountHoldsIsReported();
  void theReportNamesTheDatesThatStandInThePickersByThen();
  void theTitleTakesTheBusinessNameAtEachShowing();
  void theReportIsPrintedOnce();
  void cancelInThePrinterDialogKeepsTheButton();
  void aPrintErrorIsToldAndKeepsTheButton();
  void theInstructionsComeAndGo();
  void menuAndEscapeLeadBack();
};

namespace {
/// A row of either grid stands out.
bool LooksChosen() {
  const auto stands = [](const QString& grid) {
    return SalesScreen::Driver().Control<QTableView>(grid)->selectionModel()->hasSelection();
  };
  return stands(u"fgSalesItems"_s) || stands(u"fgTotals"_s);
}
}  // namespace

void ScreenSales::itShowsTheLastThirtyDaysAndEveryProduct() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  const ScreenDriver driver = SalesScreen::Driver();
  QCOMPARE(driver.Window()->windowTitle(), u"Item Sales Report for Orange Grove Supply"_s);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 2, 5), QDate(2026, 3, 7)}));
  QCOMPARE(SalesScreen::Listed(), (QStringList{u"Hammer-"_s, u"Saw-"_s, u"Basket-"_s}));
  QVERIFY(!SalesScreen::CanPrint());
  QVERIFY(!driver.IsVisible(u"fraSort"_s));
  QVERIFY(!driver.IsVisible(u"fraInstructions_0"_s));
  QCOMPARE(driver.FocusName(), u"lstSalesItems"_s);
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QCOMPARE(SalesScreen::Totals(), EmptyTotals);
  QVERIFY2(!LooksChosen(), "a blank row is nothing to point at");
}

void ScreenSales::theCaptionsAndToolTips() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  const ScreenDriver driver = SalesScreen::Driver();
  const QStringList sales{u"&Menu"_s,      u"Select All Products"_s, u"Reset All Products"_s,
                          u"Load &Grid"_s, u"Print Report"_s,        u"&Close Instructions Window"_s};
  for (int i = 0; i < sales.size(); ++i)
    QCOMPARE(driver.Control<QPushButton>(u"cmdSales_%1"_s.arg(i))->text(), sales[i]);
  const QStringList presets{u"Last Month"_s, u"M&TD"_s, u"&YTD"_s, u"&Eternity"_s};
  const QStringList tips{u"Generates a Report for last Month"_s, u"Generates a Report for this Month"_s,
                         u"Generates a Report for Current Year"_s, u"Generates a Report for all time"_s};
  for (int i = 0; i < presets.size(); ++i) {
    const auto* button = driver.Control<QPushButton>(u"cmdIncome_%1"_s.arg(i));
    QCOMPARE(button->text(), presets[i]);
    QCOMPARE(button->toolTip(), tips[i]);
  }
  QCOMPARE(driver.Text(u"lblDate_0"_s), u"Starting "_s);
  QCOMPARE(driver.Text(u"lblDate_1"_s), u"Ending"_s);
}

void ScreenSales::theGridsHaveTheirHeadings() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  const auto headings = [](const QString& grid) {
    const auto* model = SalesScreen::Driver().Control<QTableView>(grid)->model();
    QStringList texts;
    for (int col = 0; col < model->columnCount(); ++col) texts << model->headerData(col, Qt::Horizontal).toString();
    return texts;
  };
  QCOMPARE(headings(u"fgSalesItems"_s),
           (QStringList{u"Description"_s, u"Date"_s, u"Invoice Number"_s, u"Units Sold"_s}));
  QCOMPARE(headings(u"fgTotals"_s), (QStringList{u"Product Description"_s, u"Units Sold"_s}));
}

void ScreenSales::withoutATickNothingIsLoaded() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  desk.Program.Tree.Remove(u"/SoldItems.txt"_s);
  SalesScreen::Click(u"cmdSales_3"_s);
  SalesScreen::Click(u"cmdIncome_3"_s);
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QVERIFY(!SalesScreen::CanPrint());
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void ScreenSales::loadingListsInvoicesAndTotals() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  for (int i = 0; i < 3; ++i) SalesScreen::Tick(i);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Sales(), (QStringList{u"Hammer|3/7/2026|20260003|2"_s, u"Saw|3/1/2026|20260002|5"_s,
                                              u"Basket|2/5/2026|20260001|1"_s, u"|||"_s}));
  QCOMPARE(SalesScreen::Totals(), (QStringList{u"Hammer|2"_s, u"Saw|5"_s, u"Basket|1"_s}));
  QVERIFY(SalesScreen::CanPrint());
  QCOMPARE(SalesScreen::Driver().Control<QTableView>(u"fgSalesItems"_s)->rowAt(1), 0);
  QVERIFY(!LooksChosen());
  SalesScreen::Driver().SelectRow(u"fgSalesItems"_s, 2);
  QVERIFY(LooksChosen());
  SalesScreen::Click(u"cmdSales_3"_s);
  QVERIFY(!LooksChosen());
}

void ScreenSales::bothEndsOfTheRangeCountAndATimeOfDayLiesBehind() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::TypeDate(0, u"2/4/2026"_s);
  SalesScreen::Click(u"cmdSales_3"_s);
  // The record of half a day past the end isn't among them.
  QCOMPARE(SalesScreen::Sales(),
           (QStringList{u"Hammer|3/7/2026|20260003|2"_s, u"Hammer|2/4/2026|20250009|4"_s, u"|||"_s}));
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Hammer|6"_s});
  desk.Program.Calendar.Set(QDate(2026, 3, 8));
  SalesScreen::Click(u"cmdIncome_1"_s);
  QCOMPARE(SalesScreen::Sales(),
           (QStringList{u"Hammer|3/7/2026|20260003|2"_s, u"Hammer|3/7/2026|20260004|8"_s, u"|||"_s}));
}

void ScreenSales::aSecondTickIsTakenInAtTheNextLoad() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_3"_s);
  SalesScreen::Tick(1);
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Hammer|2"_s});
  SalesScreen::Driver().PressAccessKey('G');
  QCOMPARE(SalesScreen::Totals(), (QStringList{u"Hammer|2"_s, u"Saw|5"_s}));
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|5"_s});
  // What sold nothing in the range has no total, and the report button stays as it was.
  SalesScreen::Tick(1);
  SalesScreen::Tick(2);
  SalesScreen::Click(u"cmdIncome_1"_s);
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QCOMPARE(SalesScreen::Totals(), QStringList{});
  QVERIFY(SalesScreen::CanPrint());
}

void ScreenSales::selectAllTicksEveryEntryAndResetClearsTheGrids() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Click(u"cmdSales_1"_s);
  QCOMPARE(SalesScreen::Listed(), (QStringList{u"Hammer+"_s, u"Saw+"_s, u"Basket+"_s}));
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals().size(), 3);
  SalesScreen::Click(u"cmdSales_2"_s);
  QCOMPARE(SalesScreen::Listed(), (QStringList{u"Hammer-"_s, u"Saw-"_s, u"Basket-"_s}));
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QCOMPARE(SalesScreen::Totals(), EmptyTotals);
}

void ScreenSales::ticksAreKeptByNameOverASaveOfTheCatalogue() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  SalesScreen::Tick(2);
  SalesScreen::Click(u"cmdSales_0"_s);
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_3"_s);
  menu.Click(u"cmdGoto"_s);
  const ScreenDriver catalogue(u"frmServices"_s);
  catalogue.Control<QTabWidget>(u"tabServices"_s)->setCurrentIndex(3);
  ScreenDriver::ProcessEvents();
  catalogue.Click(u"cmdServices_18"_s);
  catalogue.Fill(u"txtDescription_2"_s, u"Arbor"_s);
  catalogue.Fill(u"txtCharge_3"_s, u"49"_s);
  catalogue.Fill(u"txtCharge_4"_s, u"45"_s);
  catalogue.Fill(u"txtCustomDiscItems"_s, u"6"_s);
  catalogue.Click(u"cmdServices_22"_s);
  catalogue.Click(u"cmdServices_0"_s);
  QVERIFY(SalesScreen::Reopen());
  QCOMPARE(SalesScreen::Listed(), (QStringList{u"Hammer-"_s, u"Saw+"_s, u"Basket+"_s, u"Arbor-"_s}));
  QCOMPARE(SalesScreen::Totals(), (QStringList{u"Saw|5"_s, u"Basket|1"_s}));
}

void ScreenSales::anActivationSetsTheDatesAndLoads() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdIncome_3"_s);
  QCOMPARE(SalesScreen::Sales().size(), 3);
  SalesScreen::Click(u"cmdSales_0"_s);
  QVERIFY(SalesScreen::Reopen());
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 2, 5), QDate(2026, 3, 7)}));
  QCOMPARE(SalesScreen::Sales(), (QStringList{u"Hammer|3/7/2026|20260003|2"_s, u"|||"_s}));
  // Far from what the pickers showed, in either direction: no message comes.
  for (const QDate today : {QDate(2031, 1, 2), QDate(2020, 1, 2)}) {
    SalesScreen::Click(u"cmdSales_0"_s);
    desk.Program.Calendar.Set(today);
    QVERIFY(SalesScreen::Reopen());
    QCOMPARE(SalesScreen::Range(), (QList<QDate>{today.addDays(-30), today}));
  }
}

void ScreenSales::equalNamesMatchTwice() {
  SalesScreen desk;
  desk.Program.Tree.Write(u"/CustomItems.txt"_s, CustomItemNamed("Basket") + CustomItemNamed("Hammer"));
  QVERIFY(desk.Open());
  SalesScreen::Click(u"cmdSales_1"_s);
  SalesScreen::Click(u"cmdSales_3"_s);
  const QString hammer = u"Hammer|3/7/2026|20260003|2"_s;
  QCOMPARE(SalesScreen::Sales(),
           (QStringList{hammer, hammer, u"Saw|3/1/2026|20260002|5"_s, u"Basket|2/5/2026|20260001|1"_s, u"|||"_s}));
  QCOMPARE(SalesScreen::Totals(), (QStringList{u"Hammer|4"_s, u"Saw|5"_s, u"Basket|1"_s, u"Hammer|4"_s}));
  // Only what is ticked counts.
  SalesScreen::Tick(3);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Sales().first(2), (QStringList{hammer, u"Saw|3/1/2026|20260002|5"_s}));
  QCOMPARE(SalesScreen::Totals(), (QStringList{u"Hammer|2"_s, u"Saw|5"_s, u"Basket|1"_s}));
}

void ScreenSales::theListEndsTheProgramWith256OfAKind() {
  SalesScreen desk;
  desk.Program.Tree.Write(u"/CustomItems.txt"_s, CustomItemNamed("c").repeated(255));
  QVERIFY(desk.Open());
  QCOMPARE(SalesScreen::List()->count(), 257);
  desk.Program.End();
  desk.Program.Tree.Write(u"/CustomItems.txt"_s, CustomItemNamed("c").repeated(256));
  desk.Program.Answers.Ok();
  QVERIFY(!desk.Program.Start());
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(u"/CustomItems.txt"_s) && text.contains(u"(error 6)"_s), qPrintable(text));
}

void ScreenSales::aTotalBeyondSixteenBitsIsAnOverflow() {
  SalesScreen desk;
  const QByteArray most = Sold("Hammer", Day::Mar7, "1", 32767);
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, most + Sold("Saw", Day::Mar7, "2", 1));
  QVERIFY(desk.Open());
  SalesScreen::Click(u"cmdSales_1"_s);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals(), (QStringList{u"Hammer|32767"_s, u"Saw|1"_s}));

  desk.Program.Tree.Write(
      u"/SoldItems.txt"_s,
      most + Sold("Saw", Day::Mar7, "2", 1) + Sold("Hammer", Day::Mar7, "3", 1) + Sold("Hammer", Day::Mar7, "4", -1));
  desk.Program.Answers.Ok({}, u"Karvex Invoicer"_s);
  SalesScreen::Click(u"cmdSales_3"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.startsWith(u"Hammer: "_s) && text.contains(u"(error 6)"_s), qPrintable(text));
  QVERIFY(text.endsWith(u"No total can be beyond 32,767 units. Choose a shorter range of dates. Nothing was lost."_s));
  QVERIFY(ScreenDriver::IsShown(ThisScreen));
  QCOMPARE(SalesScreen::Sales().size(), 5);
  QCOMPARE(SalesScreen::Totals(), EmptyTotals);
}

void ScreenSales::anErrorAtTheShowingIsToldAndTheScreenComesUp_data() {
  QTest::addColumn<QByteArray>("records");
  QTest::addColumn<int>("failure");
  QTest::addColumn<QString>("error");
  QTest::newRow("a total too high") << Sold("Hammer", Day::Mar7, "1", 32767) + Sold("Hammer", Day::Mar7, "2", 1) << 0
                                    << u"(error 6)"_s;
  QTest::newRow("a file that can't be read") << Sold("Hammer", Day::Mar7, "1", 1) << EACCES << u"(error 70)"_s;
}

void ScreenSales::anErrorAtTheShowingIsToldAndTheScreenComesUp() {
  QFETCH(const QByteArray, records);
  QFETCH(const int, failure);
  QFETCH(const QString, error);
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_0"_s);
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, records);
  if (failure != 0) desk.Program.Files.FailAlways(FailingDevice::Call::Read, failure);
  // The box first, then the screen.
  desk.Program.Answers.With(QMessageBox::Ok, [] { QVERIFY(!ScreenDriver::IsShown(ThisScreen)); });
  QVERIFY(SalesScreen::Reopen());
  desk.Program.Files.Reset();
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(error), qPrintable(text));
  QVERIFY(!desk.Program.Running().HasEnded());
  QCOMPARE(SalesScreen::Driver().FocusName(), u"lstSalesItems"_s);
  QCOMPARE(SalesScreen::Listed(), (QStringList{u"Hammer+"_s, u"Saw-"_s, u"Basket-"_s}));
  // Here the way out is found: with a product less the screen works.
  SalesScreen::Tick(0);
  SalesScreen::Tick(1);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals(), QStringList{});
}

void ScreenSales::anErrorOfALaterLoadLeavesTheReportsButtonLive() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_3"_s);
  QVERIFY(SalesScreen::CanPrint());
  desk.Program.Files.FailAlways(FailingDevice::Call::Read, EACCES);
  desk.Program.Answers.Ok();
  SalesScreen::Click(u"cmdSales_3"_s);
  desk.Program.Files.Reset();
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"(error 70)"_s));
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QVERIFY(SalesScreen::CanPrint());
}

void ScreenSales::aFirstLoadWhoseTotalsFailCanBePrinted() {
  SalesScreen desk;
  desk.Program.Tree.Write(u"/SoldItems.txt"_s,
                          Sold("Hammer", Day::Mar7, "1", 32767) + Sold("Hammer", Day::Mar7, "2", 1));
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  desk.Program.Answers.Ok();
  SalesScreen::Click(u"cmdSales_3"_s);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"(error 6)"_s));
  // Sales that were found enable it; the totals come after that.
  QVERIFY(SalesScreen::CanPrint());
  SalesScreen::Click(u"cmdSales_4"_s);
  QVERIFY(desk.Program.Paper.Words(1).contains(u"32767"_s));
  QVERIFY(!SalesScreen::CanPrint());
}

void ScreenSales::aLoadShowsTheFirstOfManySales() {
  SalesScreen desk;
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, Sold("Hammer", Day::Mar7, "1", 1).repeated(200));
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_3"_s);
  auto* grid = SalesScreen::Driver().Control<GridView>(u"fgSalesItems"_s);
  QCOMPARE(grid->TopRow(), 1);
  // The current row is the last, which isn't in sight then; nor is it where the user had it in sight before.
  grid->SetTopRow(150);
  QVERIFY(grid->TopRow() > 100);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(grid->TopRow(), 1);
}

void ScreenSales::aBlankNameBeforeAnotherIsAnErrorOfTheTotals() {
  SalesScreen desk;
  desk.Program.Tree.Write(u"/KVInventoriedItems.txt"_s, ItemNamed("") + ItemNamed("Saw"));
  desk.Program.Tree.Write(u"/CustomItems.txt"_s, CustomItemNamed("Basket"));
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, Sold("", Day::Mar7, "1", 2) + Sold("Saw", Day::Mar7, "2", 3));
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  SalesScreen::Tick(0);
  SalesScreen::Tick(1);
  desk.Program.Answers.Ok();
  SalesScreen::Click(u"cmdSales_3"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(u"(error 9)"_s) && text.endsWith(u"Nothing was lost."_s), qPrintable(text));
  QCOMPARE(SalesScreen::Sales(), (QStringList{u"|3/7/2026|1|2"_s, u"Saw|3/7/2026|2|3"_s, u"|||"_s}));
  QCOMPARE(desk.Program.Tree.Everything(), before);
  // Without the blank one the totals come.
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|3"_s});
}

void ScreenSales::withoutTheFileItSaysSo() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_3"_s);
  desk.Program.Tree.Remove(u"/SoldItems.txt"_s);
  desk.Program.Answers.Ok(u"No Items Found"_s, u"Karvex Invoicer"_s);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Ok);
  QVERIFY(!desk.Program.Tree.Exists(u"/SoldItems.txt"_s));
  // The grids stay as they were.
  QCOMPARE(SalesScreen::Sales(), (QStringList{u"Hammer|3/7/2026|20260003|2"_s, u"|||"_s}));
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Hammer|2"_s});
}

void ScreenSales::withoutTheFileTheTotalsAreMadeAnewOfTheOldRows() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Tick(1);
  SalesScreen::Click(u"cmdSales_3"_s);
  desk.Program.Tree.Remove(u"/SoldItems.txt"_s);
  SalesScreen::Tick(0);
  // The message comes before the totals.
  desk.Program.Answers.With(QMessageBox::Ok, [] {
    QCOMPARE(SalesScreen::Totals(), (QStringList{u"Hammer|2"_s, u"Saw|5"_s}));
  });
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(desk.Program.Answers.Last().Text, u"No Items Found"_s);
  QCOMPARE(SalesScreen::Sales(),
           (QStringList{u"Hammer|3/7/2026|20260003|2"_s, u"Saw|3/1/2026|20260002|5"_s, u"|||"_s}));
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|5"_s});
}

void ScreenSales::theFileComesBackFromItsCopy() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  desk.Program.Tree.Remove(u"/SoldItems.txt"_s);
  desk.Program.Tree.Write(u"/Backup/SoldItems.txt"_s, Sold("Saw", Day::Mar7, "9", 3));
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|3"_s});
  QVERIFY(desk.Program.Tree.Exists(u"/SoldItems.txt"_s));
}

void ScreenSales::aFileOfMoreRecordsThanACountHoldsIsReported() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, QByteArray(32767 * 90, ' ') + Sold("Saw", Day::Mar7, "20260003", 3));
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Sales(), (QStringList{u"Saw|3/7/2026|20260003|3"_s, u"|||"_s}));
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|3"_s});
  QVERIFY(!desk.Program.Running().HasEnded());
}

void ScreenSales::theReportNamesTheDatesThatStandInThePickersByThen() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  SalesScreen::Click(u"cmdSales_3"_s);
  // A date alone loads nothing: the rows of the whole range stay.
  SalesScreen::TypeDate(0, u"3/2/2026"_s);
  QCOMPARE(SalesScreen::Sales().first(), u"Saw|3/1/2026|20260002|5"_s);
  SalesScreen::Click(u"cmdSales_4"_s);
  const QStringList words = desk.Program.Paper.Words(1);
  QVERIFY2(words.contains(u"Report Date Range: 3/2/2026 to 3/7/2026"_s), qPrintable(words.join(u'|')));
  QVERIFY(words.contains(u"3/1/2026"_s));
}

void ScreenSales::theTitleTakesTheBusinessNameAtEachShowing() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Click(u"cmdSales_0"_s);
  const ScreenDriver setup = SetupScreen::OpenAgain();
  setup.Fill(u"txtBusiness_0"_s, u"Palm Supply"_s);
  SetupScreen::SaveAndReturn(setup);
  QVERIFY(SalesScreen::Reopen());
  QCOMPARE(SalesScreen::Driver().Window()->windowTitle(), u"Item Sales Report for Palm Supply"_s);
}

void ScreenSales::theReportIsPrintedOnce() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Tick(1);
  SalesScreen::Click(u"cmdSales_3"_s);
  SalesScreen::Click(u"cmdSales_4"_s);
  const RecordingPrinter& paper = desk.Program.Paper;
  QCOMPARE(paper.DialogsShown, 1);
  QCOMPARE(paper.Jobs.size(), std::size_t{1});
  QCOMPARE(paper.Jobs[0].Title, u"Item Sales Report"_s);
  QCOMPARE(paper.Words(1).mid(0, 2), (QStringList{u"Item Sales Report"_s, u"3/7/2026"_s}));
  QVERIFY(paper.Words(1).contains(u"Orange Grove Supply"_s));
  QCOMPARE(paper.Words(1).mid(paper.Words(1).indexOf(u"Item Sales by Invoice"_s)),
           (QStringList{u"Item Sales by Invoice"_s, u"Inventoried Item Name"_s, u"Invoice Date"_s, u"Invoice No."_s,
                        u"Units Sold"_s, u"Hammer"_s, u"3/7/2026"_s, u"20260003"_s, u"2"_s, u"Saw"_s, u"3/1/2026"_s,
                        u"20260002"_s, u"5"_s, u"Total Items Sold (This Date Range)"_s, u"Item Name"_s, u"Hammer"_s,
                        u"2"_s, u"Saw"_s, u"5"_s}));
  QVERIFY(!SalesScreen::CanPrint());
  // A load that finds nothing doesn't bring it back, one that finds something does.
  SalesScreen::Tick(0);
  SalesScreen::TypeDate(0, u"3/2/2026"_s);
  SalesScreen::Click(u"cmdSales_3"_s);
  QVERIFY(!SalesScreen::CanPrint());
  SalesScreen::Click(u"cmdIncome_1"_s);
  QVERIFY(SalesScreen::CanPrint());
}

void ScreenSales::cancelInThePrinterDialogKeepsTheButton() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_3"_s);
  desk.Program.Paper.DialogError = 32755;
  SalesScreen::Click(u"cmdSales_4"_s);
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
  QVERIFY(desk.Program.Paper.Jobs.empty());
  QVERIFY(SalesScreen::CanPrint());
}

void ScreenSales::aPrintErrorIsToldAndKeepsTheButton() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Click(u"cmdSales_3"_s);
  desk.Program.Paper.SendError = 482;
  desk.Program.Answers.Ok(u"A Print Error has occurred"_s, u"Print Error"_s);
  SalesScreen::Click(u"cmdSales_4"_s);
  QVERIFY(SalesScreen::CanPrint());
  SalesScreen::Click(u"cmdSales_4"_s);
  QCOMPARE(desk.Program.Paper.Jobs.size(), std::size_t{1});
}

void ScreenSales::theInstructionsComeAndGo() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  const ScreenDriver driver = SalesScreen::Driver();
  driver.Trigger(u"mnuInstructions"_s);
  QVERIFY(driver.IsVisible(u"fraInstructions_0"_s));
  driver.Trigger(u"mnuInstructions"_s);
  QVERIFY(!driver.IsVisible(u"fraInstructions_0"_s));
  driver.Trigger(u"mnuInstructions"_s);
  driver.PressAccessKey('C');
  QVERIFY(!driver.IsVisible(u"fraInstructions_0"_s));
}

void ScreenSales::menuAndEscapeLeadBack() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Driver().PressAccessKey('M');
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s) && !ScreenDriver::IsShown(ThisScreen));
  QVERIFY(SalesScreen::Reopen());
  SalesScreen::Driver().PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s) && !ScreenDriver::IsShown(ThisScreen));
}

QTEST_MAIN(ScreenSales)
#include "tst_screenSales.moc"
