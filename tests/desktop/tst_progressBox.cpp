// The progress box: short work shows nothing, long work shows how far it is, and its button stops it.

#include <QtWidgets>

#include "desktop/ProgressBox.h"
#include "support/BenchScreen.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"

using namespace Qt::StringLiterals;

class ProgressBoxTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void shortWorkShowsNothing() {
    ProgressBox box(u"Counting ..."_s, 60'000);
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
      ProgressBox box(u"Counting ..."_s, 0);
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

  void itsTimeCanCountFromTheFirstStep() {
    constexpr int patience = 100;
    const auto wait = [] {
      QElapsedTimer time;
      time.start();
      while (!time.hasExpired(patience)) {
      }
    };
    QueuedAnswers answers;
    {
      ProgressBox box(u"Printing ..."_s, patience, ProgressBox::Since::FirstStep);
      wait();
      const Progress tell = box.Teller();
      QVERIFY(tell(0, 4));
      QVERIFY(QApplication::activeModalWidget() == nullptr);
      wait();
      answers.Dialog([](QDialog&) {});
      QVERIFY(tell(1, 4));
      QVERIFY(QApplication::activeModalWidget() != nullptr);
    }
    ProgressBox box(u"Counting ..."_s, patience);
    wait();
    answers.Dialog([](QDialog&) {});
    QVERIFY(box.Teller()(0, 4));
    QVERIFY(QApplication::activeModalWidget() != nullptr);
  }

  void itsButtonStopsTheWork() {
    QueuedAnswers answers;
    ProgressBox box(u"Counting ..."_s, 0);
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
