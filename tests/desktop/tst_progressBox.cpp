// The progress box: short work shows nothing, long work shows how far it is, and its button stops it.

#include <QtWidgets>

#include "desktop/ProgressBox.h"
#include "support/BenchScreen.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"

using namespace Qt::StringLiterals;

namespace {
const LongWork StandingStill{.Time = [] { return qint64{0}; }};
}  // namespace

class ProgressBoxTest : public QObject {
  Q_OBJECT

  /// From `now` on.
  static void CheckLongAfterHalfASecond(const Progress& tell, qint64& now) {
    QueuedAnswers answers;
    now += 499;
    QVERIFY(tell(1, 4));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    now += 1;
    answers.Dialog([](QDialog&) {});
    QVERIFY(tell(2, 4));
    QVERIFY(QApplication::activeModalWidget() != nullptr);
  }

 private Q_SLOTS:
  void shortWorkShowsNothing() {
    ProgressBox box(u"Counting ..."_s, StandingStill);
    const Progress tell = box.Teller();
    for (int i = 1; i <= 100; ++i) QVERIFY(tell(i, 100));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
  }

  void longWorkShowsHowFarItIs() {
    RecordingHost host;
    BenchScreen screen(host);
    screen.show();
    ScreenDriver::ProcessEvents();
    {
      QueuedAnswers answers;
      ProgressBox box(u"Counting ..."_s, LongWork{.After = 0});
      const Progress tell = box.Teller();
      QString text;
      answers.Dialog([&](QDialog& dialog) { text = dynamic_cast<QProgressDialog&>(dialog).labelText(); });
      QVERIFY(tell(1, 4));
      QCOMPARE(text, u"Counting ..."_s);
      const auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
      QVERIFY(dialog != nullptr);
      QCOMPARE(dialog->value(), 250);
      QCOMPARE(dialog->maximum(), 1000);
    }
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    ScreenDriver::ProcessEvents();
    QVERIFY(screen.isActiveWindow());
  }

  void workIsLongAfterHalfASecond() {
    qint64 now = 1000;
    ProgressBox box(u"Counting ..."_s, {.Time = [&now] { return now; }});
    CheckLongAfterHalfASecond(box.Teller(), now);
  }

  void itsTimeCanCountFromTheFirstStep() {
    qint64 now = 0;
    ProgressBox box(u"Printing ..."_s, {.Time = [&now] { return now; }}, ProgressBox::Since::FirstStep);
    const Progress tell = box.Teller();
    now = 10'000;
    QVERIFY(tell(0, 4));
    CheckLongAfterHalfASecond(tell, now);
  }

  void theMachinesOwnTimeGoesOn() {
    const LongWork work;
    const qint64 start = work.Now();
    QTRY_VERIFY(work.Now() > start);
    // In milliseconds: a second of it is no more than a second of the system's.
    QElapsedTimer real;
    real.start();
    const qint64 from = work.Now();
    QTRY_VERIFY(work.Now() - from >= 20);
    QVERIFY(real.elapsed() >= 19);
  }

  void itsButtonStopsTheWork() {
    QueuedAnswers answers;
    ProgressBox box(u"Counting ..."_s, LongWork{.After = 0});
    const Progress tell = box.Teller();
    answers.Dialog([](QDialog& dialog) {
      auto* stop = dialog.findChild<QPushButton*>();
      QCOMPARE(stop->text(), u"&Stop"_s);
      stop->click();
    });
    QVERIFY(!tell(1, 10));
    QVERIFY(!tell(2, 10));
    QVERIFY(!tell(3, 10));
  }
};

QTEST_MAIN(ProgressBoxTest)
#include "tst_progressBox.moc"
