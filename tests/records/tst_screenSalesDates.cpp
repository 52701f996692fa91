// The dates of the item sales screen: its pickers, its presets, and the range that they may hold.

#include "catalogue/SalesItemsList.h"
#include "records/SalesScreen.h"

using namespace Qt::StringLiterals;

namespace {

const QString Invalid = u"Your Calendar Selection is Invalid"_s;

}  // namespace

class ScreenSalesDates : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void monthToDate();
  void yearToDate();
  void eternityBeginsInTheYear2000();
  void lastMonthOfEveryMonth_data();
  void lastMonthOfEveryMonth();
  void everyPresetLoads();
  void afterMidnightThePresetsAndThePickersFollow();
  void aFutureDateIsRefusedAndBecomesToday();
  void aFutureDateFromTheCalendarIsRefusedToo();
  void theEndTakesNoLaterDateThanToday();
  void aStartBehindTheEndBecomesTheEnd();
  void anEndBeforeTheStartTakesTheStartAlong();
  void aRefusedDateLoadsWithTheCorrectedOne();
  void enterInADateLoads();
};

void ScreenSalesDates::monthToDate() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::TypeDate(0, u"11/30/2025"_s);
  SalesScreen::TypeDate(1, u"12/31/2025"_s);
  SalesScreen::Driver().PressAccessKey('T');
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 3, 1), QDate(2026, 3, 7)}));
}

void ScreenSalesDates::yearToDate() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Driver().PressAccessKey('Y');
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 1, 1), QDate(2026, 3, 7)}));
  // The end first: from a range of last year the start would lie behind it.
  SalesScreen::TypeDate(0, u"11/30/2025"_s);
  SalesScreen::TypeDate(1, u"12/31/2025"_s);
  SalesScreen::Driver().PressAccessKey('Y');
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 1, 1), QDate(2026, 3, 7)}));
  QVERIFY(desk.Program.Answers.Boxes().isEmpty());
}

void ScreenSalesDates::eternityBeginsInTheYear2000() {
  SalesScreen desk;
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, Sold("Saw", Day::FirstOf2000 - 1, "1", 1) +
                                                   Sold("Saw", Day::FirstOf2000, "2", 2) +
                                                   Sold("Saw", Day::Mar7, "3", 3));
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  SalesScreen::Driver().PressAccessKey('E');
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2000, 1, 1), QDate(2026, 3, 7)}));
  QCOMPARE(SalesScreen::Sales(), (QStringList{u"Saw|1/1/2000|2|2"_s, u"Saw|3/7/2026|3|3"_s, u"|||"_s}));
}

void ScreenSalesDates::lastMonthOfEveryMonth_data() {
  QTest::addColumn<QDate>("today");
  QTest::addColumn<QDate>("start");
  QTest::addColumn<QDate>("end");
  const QDate before[] = {QDate(2023, 12, 31), QDate(2025, 12, 31)};
  const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (const int year : {2024, 2026}) {
    QDate end = before[year == 2024 ? 0 : 1];
    for (int month = 1; month <= 12; ++month) {
      const int length = lengths[month - 1] + (year == 2024 && month == 2 ? 1 : 0);
      const QDate start(end.year(), end.month(), 1);
      for (const int day : {1, 15, length}) {
        const QDate today(year, month, day);
        QTest::newRow(qPrintable(today.toString(Qt::ISODate))) << today << start << end;
      }
      end = QDate(year, month, length);
    }
  }
}

void ScreenSalesDates::lastMonthOfEveryMonth() {
  QFETCH(const QDate, today);
  QFETCH(const QDate, start);
  QFETCH(const QDate, end);
  SalesScreen desk;
  desk.Program.Calendar.Set(today);
  QVERIFY(desk.Open());
  SalesScreen::Click(u"cmdIncome_0"_s);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{start, end}));
  QCOMPARE(desk.Program.Dialogs.Beeps, 0);
}

void ScreenSalesDates::everyPresetLoads() {
  SalesScreen desk;
  desk.Program.Tree.Write(u"/SoldItems.txt"_s, Sold("Saw", Day::Mar1, "1", 1) + Sold("Saw", Day::Feb28, "2", 2) +
                                                   Sold("Saw", Day::Jan1, "3", 4) + Sold("Saw", Day::Dec31, "4", 8));
  QVERIFY(desk.Open());
  SalesScreen::Tick(1);
  const QStringList totals{u"Saw|2"_s, u"Saw|1"_s, u"Saw|7"_s, u"Saw|15"_s};
  for (int i = 0; i < 4; ++i) {
    SalesScreen::Click(u"cmdIncome_%1"_s.arg(i));
    QCOMPARE(SalesScreen::Totals(), QStringList{totals[i]});
  }
  // Last month loads the month to date first; without the file both say so.
  desk.Program.Tree.Remove(u"/SoldItems.txt"_s);
  desk.Program.Answers.Ok(u"No Items Found"_s);
  desk.Program.Answers.Ok(u"No Items Found"_s);
  SalesScreen::Click(u"cmdIncome_0"_s);
}

void ScreenSalesDates::afterMidnightThePresetsAndThePickersFollow() {
  SalesScreen desk;
  desk.Program.Calendar.Set(QDate(2026, 3, 31));
  QVERIFY(desk.Open());
  auto* end = SalesScreen::Driver().Control<QDateEdit>(u"DTPicker1_1"_s);
  QCOMPARE(end->maximumDate(), QDate(2026, 3, 31));
  desk.Program.Calendar.Set(QDate(2026, 4, 1));
  SalesScreen::Click(u"cmdIncome_1"_s);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 4, 1), QDate(2026, 4, 1)}));
  SalesScreen::Click(u"cmdSales_0"_s);
  desk.Program.Calendar.Set(QDate(2026, 4, 2));
  QVERIFY(SalesScreen::Reopen());
  QCOMPARE(end->maximumDate(), QDate(2026, 4, 2));
  QCOMPARE(SalesScreen::Picked(1), QDate(2026, 4, 2));
}

void ScreenSalesDates::aFutureDateIsRefusedAndBecomesToday() {
  for (int picker = 0; picker < 2; ++picker) {
    SalesScreen desk;
    QVERIFY(desk.Open());
    SalesScreen::TypeDate(1, u"3/6/2026"_s);
    desk.Program.Answers.Ok(Invalid, u"Karvex Invoicer"_s);
    // A start of today is behind the end of yesterday: that is told as well, and the start becomes the end.
    if (picker == 0) desk.Program.Answers.Ok(Invalid, u"Karvex Invoicer"_s);
    SalesScreen::TypeDate(picker, u"3/8/2026"_s);
    QCOMPARE(desk.Program.Dialogs.Beeps, 1);
    QCOMPARE(SalesScreen::Range(), picker == 0 ? (QList<QDate>{QDate(2026, 3, 6), QDate(2026, 3, 6)})
                                               : (QList<QDate>{QDate(2026, 2, 5), QDate(2026, 3, 7)}));
  }
}

void ScreenSalesDates::aFutureDateFromTheCalendarIsRefusedToo() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  auto* start = SalesScreen::Driver().Control<QDateEdit>(u"DTPicker1_0"_s);
  QTest::mouseClick(start, Qt::LeftButton, {}, QPoint(start->width() - 8, start->height() / 2));
  ScreenDriver::ProcessEvents();
  QWidget* popup = QApplication::activePopupWidget();
  QVERIFY(popup != nullptr);
  // From 5 February eleven weeks on; nothing is said on the way.
  auto* days = start->calendarWidget()->findChild<QTableView*>();
  for (int i = 0; i < 11; ++i) QTest::keyClick(days, Qt::Key_Down);
  ScreenDriver::ProcessEvents();
  QCOMPARE(start->date(), QDate(2026, 4, 23));
  desk.Program.Answers.With(QMessageBox::Ok, [] { QVERIFY(QApplication::activePopupWidget() == nullptr); });
  QTest::keyClick(days, Qt::Key_Return);
  ScreenDriver::ProcessEvents();
  QVERIFY(!popup->isVisible());
  QCOMPARE(desk.Program.Dialogs.Beeps, 1);
  QCOMPARE(desk.Program.Answers.Last().Text, Invalid);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 3, 7), QDate(2026, 3, 7)}));
}

void ScreenSalesDates::theEndTakesNoLaterDateThanToday() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  auto* end = SalesScreen::Driver().Control<QDateEdit>(u"DTPicker1_1"_s);
  QCOMPARE(end->maximumDate(), QDate(2026, 3, 7));
  end->setFocus(Qt::TabFocusReason);
  end->setCurrentSection(QDateTimeEdit::DaySection);
  SalesScreen::Driver().PressKey(Qt::Key_Up);
  QCOMPARE(SalesScreen::Picked(1), QDate(2026, 3, 7));
  QCOMPARE(desk.Program.Dialogs.Beeps, 0);
}

void ScreenSalesDates::aStartBehindTheEndBecomesTheEnd() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::TypeDate(1, u"3/1/2026"_s);
  desk.Program.Answers.Ok(Invalid, u"Karvex Invoicer"_s);
  SalesScreen::TypeDate(0, u"3/2/2026"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Ok);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 3, 1), QDate(2026, 3, 1)}));
  SalesScreen::TypeDate(0, u"2/28/2026"_s);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 2, 28), QDate(2026, 3, 1)}));
}

void ScreenSalesDates::anEndBeforeTheStartTakesTheStartAlong() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  desk.Program.Answers.Ok(Invalid, u"Karvex Invoicer"_s);
  SalesScreen::TypeDate(1, u"12/24/2025"_s);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2025, 12, 24), QDate(2025, 12, 24)}));
}

void ScreenSalesDates::aRefusedDateLoadsWithTheCorrectedOne() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Driver().Control(u"DTPicker1_0"_s)->setFocus(Qt::TabFocusReason);
  SalesScreen::Driver().Type(u"4/1/2026"_s);
  desk.Program.Answers.Ok(Invalid);
  SalesScreen::Click(u"cmdSales_3"_s);
  QCOMPARE(SalesScreen::Range(), (QList<QDate>{QDate(2026, 3, 7), QDate(2026, 3, 7)}));
  QCOMPARE(SalesScreen::Sales(), (QStringList{u"Hammer|3/7/2026|20260003|2"_s, u"|||"_s}));
}

void ScreenSalesDates::enterInADateLoads() {
  SalesScreen desk;
  QVERIFY(desk.Open());
  SalesScreen::Tick(0);
  SalesScreen::Driver().Control(u"DTPicker1_0"_s)->setFocus(Qt::TabFocusReason);
  SalesScreen::Driver().Type(u"2/4/2026"_s);
  SalesScreen::Driver().PressKey(Qt::Key_Return);
  QCOMPARE(SalesScreen::Totals(), QStringList{u"Hammer|6"_s});
}

QTEST_MAIN(ScreenSalesDates)
#include "tst_screenSalesDates.moc"
