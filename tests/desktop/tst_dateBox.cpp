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

QTEST_MAIN(DateBoxTest)
#include "tst_dateBox.moc"
