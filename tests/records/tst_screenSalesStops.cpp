// Long work of the item sales screen: what it shows of its progress, and what a stop leaves.

#include "catalogue/SalesItemsList.h"
#include "desktop/Style.h"
#include "records/frmSalesReport.h"
#include "records/ItemSales.h"
#include "records/SalesRange.h"
#include "records/SalesReport.h"
#include "records/SalesScreen.h"
#include "support/BenchScreen.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString ThisScreen = u"frmSalesReport"_s;

/// The screen alone, whose work shows its progress after that many milliseconds.
struct ImpatientDesk {
  PageFixture Page;
  RecordingHost Host;
  NotingProgram Others;
  QueuedAnswers Answers;
  ItemSales Sales;
  SalesRange Range;
  SalesDates Dates{Range, Page.Messages, Page.Now};
  SalesItemsList Items{{{u"Saw"_s, true}}};
  SalesReport Report{Page.Routines, Page.Pages, Page.Now};
  frmSalesReport Screen;

  /// Moves only where a test moves it.
  qint64 WorkTime = 0;

  explicit ImpatientDesk(qint64 patience = 0, int records = 5000)
      : Screen(Host, SalesDesk{Sales, Range, Dates, Items, Report, Page.Routines, Page.Disk, Page.Messages, Page.Now,
                               Page.Business, Others, LongWork{patience, [this] { return WorkTime; }}}) {
    ApplyStyle(*qApp);
    Page.Write(u"/SoldItems.txt"_s, Sold("Saw", Day::Mar7, "1", 1).repeated(records));
    Dates.Activate();
    Screen.show();
    ScreenDriver::ProcessEvents();
  }
  ScreenDriver Driver() { return ScreenDriver(&Screen); }
  void Stop() {
    Answers.Dialog([](QDialog& dialog) { dialog.findChild<QPushButton*>()->click(); });
  }
  void GoOn() {
    Answers.Dialog([](QDialog& dialog) { QVERIFY(qobject_cast<QProgressDialog*>(&dialog) != nullptr); });
  }
};

/// Stops the work whose progress is shown.
void StopWork(QDialog& progress) {
  QVERIFY(qobject_cast<QProgressDialog*>(&progress) != nullptr);
  progress.findChild<QPushButton*>()->click();
}

}  // namespace

class ScreenSalesStops : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aLoadThatIsStoppedLeavesTheGridsEmpty();
  void aStopInTheTotalsLeavesNothingToPrint();
  void aStopWhileTheScreenComesUpLeavesItEmpty();
  void aStopBehindThePurgeLeavesTheGridsEmpty();
  void aStopInLastMonthEndsItWhole();
  void aReportThatIsStoppedPrintsNothing();
  void theTimeInThePrinterDialogIsNoWork();
  void theTimeThatItsMessageStandsIsNoWork();
};

void ScreenSalesStops::aLoadThatIsStoppedLeavesTheGridsEmpty() {
  ImpatientDesk desk;
  desk.Stop();
  desk.Driver().Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QCOMPARE(SalesScreen::Totals(), EmptyTotals);
  QVERIFY(!SalesScreen::CanPrint());
  QVERIFY(desk.Host.Errors.isEmpty());
  desk.GoOn();
  desk.Driver().Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|5000"_s});
  QVERIFY(SalesScreen::CanPrint());
}

void ScreenSalesStops::aStopInTheTotalsLeavesNothingToPrint() {
  // Too few records to be told of while they are looked through, and rows enough for the totals: the name sells twice.
  ImpatientDesk desk(0, 1000);
  desk.Items.Items.push_back({u"Saw"_s, true});
  desk.Stop();
  desk.Driver().Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QCOMPARE(SalesScreen::Totals(), EmptyTotals);
  QVERIFY(!SalesScreen::CanPrint());
  desk.GoOn();
  desk.Driver().Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals(), (QStringList{u"Saw|2000"_s, u"Saw|2000"_s}));
  QVERIFY(SalesScreen::CanPrint());
  // Also where there was something to print before.
  desk.Stop();
  desk.Driver().Click(u"cmdSales_3"_s);
  QVERIFY(!SalesScreen::CanPrint());
}

void ScreenSalesStops::aStopWhileTheScreenComesUpLeavesItEmpty() {
  SalesScreen desk;
  desk.Program.Patience = 0;
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|5"_s});
  SalesScreen::Click(u"cmdSales_0"_s);
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, Sold("Saw", Day::Mar7, "1", 1).repeated(3000));
  desk.Program.Answers.Dialog(&StopWork);
  QVERIFY(SalesScreen::Reopen());
  QCOMPARE(SalesScreen::Driver().FocusName(), u"lstSalesItems"_s);
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QCOMPARE(SalesScreen::Totals(), EmptyTotals);
  QVERIFY(!SalesScreen::CanPrint());
}

void ScreenSalesStops::aStopBehindThePurgeLeavesTheGridsEmpty() {
  SalesScreen desk;
  desk.Program.Patience = 0;
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  SalesScreen::Click(u"cmdSales_3"_s);
  const QByteArray kept = Sold("Saw", Day::FirstOf2000, "1", 1).repeated(3000);
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, Sold("Saw", Day::Mar7, "2", 2) + kept);
  desk.Program.Answers.Yes({}, u"Delete Sales Records"_s);
  desk.Program.Answers.Yes({}, u"Delete Verification"_s);
  desk.Program.Answers.Dialog(&StopWork);
  SalesScreen::Driver().Trigger(u"mnuDelete"_s);
  QCOMPARE(desk.Program.Tree.Bytes(u"/SoldItems.txt"_s), kept);
  QVERIFY(ScreenDriver::IsShown(ThisScreen));
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QCOMPARE(SalesScreen::Totals(), EmptyTotals);
  QVERIFY(!SalesScreen::CanPrint());
}

void ScreenSalesStops::aStopInLastMonthEndsItWhole() {
  SalesScreen desk;
  desk.Program.Patience = 0;
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, Sold("Saw", Day::Feb28, "1", 1).repeated(3000));
  // Of the two loads the second isn't begun: it would show a progress of its own.
  desk.Program.Answers.Dialog(&StopWork);
  SalesScreen::Click(u"cmdIncome_0"_s);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 3, 1), QDate(2026, 3, 7)}));
  QCOMPARE(SalesScreen::Sales(), EmptySales);
  QVERIFY(!SalesScreen::CanPrint());
  const auto goOn = [](QDialog& dialog) { QVERIFY(qobject_cast<QProgressDialog*>(&dialog) != nullptr); };
  desk.Program.Answers.Dialog(goOn);
  desk.Program.Answers.Dialog(goOn);
  SalesScreen::Click(u"cmdIncome_0"_s);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 2, 1), QDate(2026, 2, 28)}));
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|3000"_s});
}

void ScreenSalesStops::aReportThatIsStoppedPrintsNothing() {
  ImpatientDesk desk;
  desk.GoOn();
  desk.Driver().Click(u"cmdSales_3"_s);
  desk.Stop();
  desk.Driver().Click(u"cmdSales_4"_s);
  QVERIFY(desk.Page.Paper.Jobs.empty());
  QVERIFY(desk.Page.Messages.Messages.isEmpty());
  QVERIFY(SalesScreen::CanPrint());
  desk.GoOn();
  desk.Driver().Click(u"cmdSales_4"_s);
  QCOMPARE(desk.Page.Paper.Jobs.size(), std::size_t{1});
  QVERIFY(!SalesScreen::CanPrint());
}

void ScreenSalesStops::theTimeInThePrinterDialogIsNoWork() {
  ImpatientDesk desk(500, 10);
  desk.Driver().Click(u"cmdSales_3"_s);
  QVERIFY(SalesScreen::CanPrint());
  // The user takes that time in the dialog. A progress that came up behind it would be a dialog that nobody expected.
  desk.Page.Paper.OnDialog = [&desk] { desk.WorkTime += 60'000; };
  desk.Driver().Click(u"cmdSales_4"_s);
  QCOMPARE(desk.Page.Paper.Jobs.size(), std::size_t{1});
}

void ScreenSalesStops::theTimeThatItsMessageStandsIsNoWork() {
  SalesScreen desk;
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, Sold("Saw", Day::Mar7, "1", 1).repeated(3000));
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  SalesScreen::Click(u"cmdSales_3"_s);
  desk.Program.Tree.Remove(u"/SoldItems.txt"_s);
  // The totals of so many rows tell how far they are. A progress that came up would be a dialog that nobody expected.
  desk.Program.Answers.With(QMessageBox::Ok, [&desk] { desk.Program.WorkTime += 60'000; });
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(desk.Program.Answers.Last().Text, u"No Items Found"_s);
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Saw|3000"_s});
}

QTEST_MAIN(ScreenSalesStops)
#include "tst_screenSalesStops.moc"
