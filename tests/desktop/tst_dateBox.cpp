// A date box tells of whole dates: typed ones when they are ended, others at once.

#include <QtWidgets>

#include "desktop/DateBox.h"
#include "support/BenchScreen.h"
#include "support/ScreenDriver.h"

using namespace Qt::StringLiterals;

namespace {

/// A screen with a date box that shows 7 March 2026 and notes what it tells.
struct Bench {
  Bench() : Screen(Host), Driver((Screen.show(), &Screen)) {}

  void Type(const QString& text) {
    Other->setFocus();
    Box->setFocus(Qt::TabFocusReason);
    Driver.Type(text);
  }

  RecordingHost Host;
  BenchScreen Screen;
  DateBox* Box = [this] {
    auto* box = Screen.Add<DateBox>(u"DTPicker1"_s);
    box->setDisplayFormat(u"M/d/yyyy"_s);
    box->ShowDate(QDate(2026, 3, 7));
    box->Change = [this, box] { Told << box->date(); };
    return box;
  }();
  QLineEdit* Other = Screen.Add<QLineEdit>(u"txtOther"_s);
  QList<QDate> Told;
  ScreenDriver Driver;
};

}  // namespace

class DateBoxTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aTypedDateIsToldOnceWhenItIsEnded_data();
  void aTypedDateIsToldOnceWhenItIsEnded();
  void leavingTheBoxEndsTheTyping();
  void aDateThatIsSetIsToldAtOnce();
  void aDateThatIsShownIsNotTold();
  void aDateIsNotShownIntoTheTyping();
  void aBoxWithALatestDateTakesEarlierOnesInWhateverOrder_data();
  void aBoxWithALatestDateTakesEarlierOnesInWhateverOrder();
  void aLaterDateThatIsTypedIsToldAndCutIfItStays();
  void nobodyStepsBeyondTheLatestDate();
  void aLatestDateIsToldToNobody();
  void whatTheCalendarPassesOverIsNotTold();
};

void DateBoxTest::aTypedDateIsToldOnceWhenItIsEnded_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QDate>("date");
  QTest::newRow("month that needs one digit") << u"2/9/2026"_s << QDate(2026, 2, 9);
  QTest::newRow("month that may have two") << u"1/31/2026"_s << QDate(2026, 1, 31);
  QTest::newRow("two digits") << u"12/5/2025"_s << QDate(2025, 12, 5);
  QTest::newRow("leading zeros") << u"02/09/2026"_s << QDate(2026, 2, 9);
}

void DateBoxTest::aTypedDateIsToldOnceWhenItIsEnded() {
  QFETCH(QString, typed);
  QFETCH(QDate, date);
  Bench bench;
  bench.Type(typed);
  QCOMPARE(bench.Told, QList<QDate>{});
  bench.Driver.PressKey(Qt::Key_Return);
  QCOMPARE(bench.Told, QList<QDate>{date});
}

void DateBoxTest::leavingTheBoxEndsTheTyping() {
  Bench bench;
  bench.Type(u"2/9/2026"_s);
  bench.Driver.Click(u"txtOther"_s);
  QCOMPARE(bench.Told, QList<QDate>{QDate(2026, 2, 9)});
}

void DateBoxTest::aDateThatIsSetIsToldAtOnce() {
  Bench bench;
  bench.Box->setDate(QDate(2026, 3, 1));
  QCOMPARE(bench.Told, QList<QDate>{QDate(2026, 3, 1)});
  // A step with the arrow keys counts at once as well.
  bench.Box->setFocus(Qt::TabFocusReason);
  bench.Driver.PressKey(Qt::Key_Up);
  QCOMPARE(bench.Told.last(), QDate(2026, 4, 1));
}

void DateBoxTest::aDateThatIsShownIsNotTold() {
  Bench bench;
  bench.Box->ShowDate(QDate(2026, 3, 1));
  QCOMPARE(bench.Told, QList<QDate>{});
  bench.Driver.Click(u"txtOther"_s);
  QCOMPARE(bench.Told, QList<QDate>{});
}

void DateBoxTest::aDateIsNotShownIntoTheTyping() {
  Bench bench;
  bench.Type(u"2/9"_s);
  bench.Box->ShowDate(QDate(2026, 3, 7));
  bench.Driver.PressKey(Qt::Key_Return);
  QCOMPARE(bench.Told, QList<QDate>{QDate(2026, 2, 9)});
}

void DateBoxTest::aBoxWithALatestDateTakesEarlierOnesInWhateverOrder_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QDate>("date");
  QTest::newRow("a later month of an earlier year") << u"12/5/2025"_s << QDate(2025, 12, 5);
  QTest::newRow("a later day of an earlier month") << u"2/28/2026"_s << QDate(2026, 2, 28);
  QTest::newRow("the latest itself") << u"3/7/2026"_s << QDate(2026, 3, 7);
}

void DateBoxTest::aBoxWithALatestDateTakesEarlierOnesInWhateverOrder() {
  QFETCH(const QString, typed);
  QFETCH(const QDate, date);
  Bench bench;
  bench.Box->SetLatest(QDate(2026, 3, 7));
  bench.Type(typed);
  bench.Driver.PressKey(Qt::Key_Tab);
  QCOMPARE(bench.Box->date(), date);
}

void DateBoxTest::aLaterDateThatIsTypedIsToldAndCutIfItStays() {
  Bench bench;
  bench.Box->SetLatest(QDate(2026, 3, 7));
  bench.Type(u"4/9/2026"_s);
  bench.Driver.PressKey(Qt::Key_Tab);
  QCOMPARE(bench.Told, QList<QDate>{QDate(2026, 4, 9)});
  QCOMPARE(bench.Box->date(), QDate(2026, 3, 7));
}

void DateBoxTest::nobodyStepsBeyondTheLatestDate() {
  Bench bench;
  bench.Box->SetLatest(QDate(2026, 3, 7));
  bench.Type(u"3/6/2026"_s);
  bench.Driver.PressKey(Qt::Key_Return);
  for (int i = 0; i < 3; ++i) {
    bench.Box->setCurrentSection(QDateTimeEdit::DaySection);
    bench.Driver.PressKey(Qt::Key_Up);
  }
  QCOMPARE(bench.Box->date(), QDate(2026, 3, 7));
  QCOMPARE(bench.Told, (QList<QDate>{QDate(2026, 3, 6), QDate(2026, 3, 7)}));
}

void DateBoxTest::aLatestDateIsToldToNobody() {
  Bench bench;
  bench.Box->SetLatest(QDate(2026, 3, 1));
  QCOMPARE(bench.Box->date(), QDate(2026, 3, 1));
  QCOMPARE(bench.Told, QList<QDate>{});
  bench.Box->ShowDate(QDate(2026, 2, 1));
  QCOMPARE(bench.Told, QList<QDate>{});
}

void DateBoxTest::whatTheCalendarPassesOverIsNotTold() {
  Bench bench;
  QTest::mouseClick(bench.Box, Qt::LeftButton, {}, QPoint(bench.Box->width() - 8, bench.Box->height() / 2));
  ScreenDriver::ProcessEvents();
  QVERIFY(QApplication::activePopupWidget() != nullptr);
  auto* days = bench.Box->calendarWidget()->findChild<QTableView*>();
  for (int i = 0; i < 2; ++i) QTest::keyClick(days, Qt::Key_Down);
  ScreenDriver::ProcessEvents();
  QCOMPARE(bench.Told, QList<QDate>{});
  QTest::keyClick(days, Qt::Key_Return);
  ScreenDriver::ProcessEvents();
  QVERIFY(QApplication::activePopupWidget() == nullptr);
  QCOMPARE(bench.Told, QList<QDate>{QDate(2026, 3, 21)});
}

QTEST_MAIN(DateBoxTest)
#include "tst_dateBox.moc"
