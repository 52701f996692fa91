// The serial line and its waits: what has been sent is out before anything else happens, and what the user does while
// a port is looked at waits. The line is a pseudo-terminal; how full the queue of its driver is, the test says.
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <termios.h>
#include <unistd.h>
#include <cstdarg>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QtTest>
#include <QWidget>

#include "desktop/SerialLine.h"
#include "support/PlayedModem.h"

using namespace Qt::StringLiterals;

namespace {

/// A driver that hasn't put on the wire yet what it was given; a pseudo-terminal never says so by itself.
struct Driver {
  int Queued = 0;    ///< One less with each look; below zero it stands still.
  QStringList Done;  ///< The looks at the queue, the wait for what is in the device, and what was thrown away.
};
Driver* played = nullptr;

}  // namespace

extern "C" int ioctl(int line, unsigned long request, ...) noexcept {
  va_list rest;
  va_start(rest, request);
  void* argument = va_arg(rest, void*);
  va_end(rest);
  if (played != nullptr && request == TIOCOUTQ) {
    *static_cast<int*>(argument) = qAbs(played->Queued);
    played->Done.append(u"%1 queued"_s.arg(qAbs(played->Queued)));
    if (played->Queued > 0) --played->Queued;
    return 0;
  }
  return static_cast<int>(syscall(SYS_ioctl, line, request, argument));
}

extern "C" int tcdrain(int line) {
  if (played != nullptr) played->Done.append(u"drained"_s);
  // A wait without end where the line stands still; on a pseudo-terminal it is over at once.
  return static_cast<int>(syscall(SYS_ioctl, line, TCSBRK, 1));
}

extern "C" int tcflush(int line, int queues) noexcept {
  if (played != nullptr && queues == TCOFLUSH) played->Done.append(u"thrown away"_s);
  return static_cast<int>(syscall(SYS_ioctl, line, TCFLSH, queues));
}

class SerialLineTest : public QObject {
  Q_OBJECT

  /// Counts the moves of the mouse over it.
  class Desk : public QWidget {
   public:
    Desk() {
      setMouseTracking(true);
      resize(300, 200);
      show();
    }
    /// What the user does waits in the toolkit's queue until a loop asks for it, as on a desktop. Keys and clicks that
    /// a test sends don't, so it is a move; keys and clicks wait in the same queue under the same mark.
    void MoveMouse(const QPoint& place) const { QCursor::setPos(mapToGlobal(place)); }
    int Moves = 0;

   protected:
    void mouseMoveEvent(QMouseEvent*) override { ++Moves; }
  };

  /// Sends a hang-up down a line whose driver puts nothing of it on the wire.
  void SendWhileItStandsStill(Driver& driver) const {
    driver.Queued = -3;
    played = &driver;
    m_line->Output(u"ATH\r"_s);
  }

 private Q_SLOTS:
  void init() {
    m_modem = std::make_unique<PlayedModem>();
    m_modem->Answer = [](const QByteArray&) { return QByteArray(); };
    m_line = std::make_unique<SerialLine>(PortsOn({{1, m_modem->Device()}}));
    m_line->SetPortOpen(true);
    QVERIFY(m_line->PortOpen());
  }
  void cleanup() { played = nullptr; }

  void whatIsSentHasReachedTheOtherEndAtOnce() {
    m_line->Output(u"AT\r"_s);
    QCOMPARE(m_modem->Commands(), QByteArrayList{"AT"});
  }

  void aTextIsSentOnlyOnceTheDriverHoldsNothingMore() {
    Driver driver;
    driver.Queued = 3;
    played = &driver;
    m_line->Output(u"AT\r"_s);
    QCOMPARE(driver.Done, (QStringList{u"3 queued"_s, u"2 queued"_s, u"1 queued"_s, u"0 queued"_s, u"drained"_s}));
  }

  void aLineThatStandsStillIsGivenUp() {
    Driver driver;
    QElapsedTimer timer;
    timer.start();
    SendWhileItStandsStill(driver);
    const qint64 waited = timer.elapsed();
    QVERIFY2(waited >= 95 && waited < 30'000, qPrintable(QString::number(waited)));
    // What is in the device isn't waited for then: nobody could say for how long.
    QVERIFY(!driver.Done.isEmpty());
    QVERIFY(!driver.Done.contains(u"drained"_s));
    QVERIFY(m_line->PortOpen());
  }

  void whereNobodyReadsItIsGivenUpToo() {
    Driver driver;
    played = &driver;
    QElapsedTimer timer;
    timer.start();
    // More than a line holds that isn't read.
    m_line->Output(QString(1'000'000, u'A'));
    const qint64 waited = timer.elapsed();
    QVERIFY2(waited >= 95 && waited < 30'000, qPrintable(QString::number(waited)));
    QCOMPARE(driver.Done, QStringList());
    timer.start();
    m_line->SetPortOpen(false);
    QVERIFY(timer.elapsed() < 30'000);
  }

  void whatALineThatStandsStillHoldsIsThrownAwayAsItCloses() {
    Driver driver;
    SendWhileItStandsStill(driver);
    QVERIFY(!driver.Done.contains(u"thrown away"_s));
    // Else the system waits for it.
    m_line->SetPortOpen(false);
    QCOMPARE(driver.Done.last(), u"thrown away"_s);
    QVERIFY(!m_line->PortOpen());
  }

  void whatGoesOutLateIsNotThrownAway() {
    Driver driver;
    SendWhileItStandsStill(driver);
    // It moves again.
    driver.Queued = 3;
    m_line->SetPortOpen(false);
    QCOMPARE(driver.Done.last(), u"drained"_s);
    QVERIFY(!m_line->PortOpen());
  }

  void aLineThatIsLetGoIsWaitedForNoMore() {
    Driver driver;
    driver.Queued = -3;
    played = &driver;
    m_line->Output(u"AT\r"_s);
    driver.Done.clear();
    m_line->LetGo();
    QCOMPARE(driver.Done, QStringList{u"thrown away"_s});
    QVERIFY(!m_line->PortOpen());
    // Nobody holds it any more.
    driver.Queued = 0;
    driver.Done.clear();
    m_line->SetPortOpen(true);
    QVERIFY(m_line->PortOpen());
    // There is nothing to throw away of one that took all, or of none.
    m_line->Output(u"AT\r"_s);
    driver.Done.clear();
    m_line->LetGo();
    m_line->LetGo();
    QCOMPARE(driver.Done, QStringList());
    QVERIFY(!m_line->PortOpen());
  }

  void atTheEndOfTheProgramNoLineIsWaitedFor() {
    Driver driver;
    driver.Queued = -3;
    played = &driver;
    m_line->Output(u"AT\r"_s);
    driver.Done.clear();
    m_line.reset();
    QCOMPARE(driver.Done, QStringList{u"thrown away"_s});
  }

  void aLineThatTookAllIsClosedAsItIs() {
    Driver driver;
    SendWhileItStandsStill(driver);
    driver.Queued = 0;
    m_line->Output(u"ATH\r"_s);
    m_line->SetPortOpen(false);
    QVERIFY(!driver.Done.contains(u"thrown away"_s));
  }

  void aDeviceThatTalksAllDayFillsNoMemory() {
    FillInput();
    // What comes last is there, and what came first went.
    m_modem->Say("OK");
    QString heard;
    QTRY_VERIFY((heard += m_line->Input()).endsWith(u"xOK"));
    FillInput();
    m_line->ClearInBuffer();
    QCOMPARE(m_line->InBufferCount(), 0);
    m_modem->Say("OK");
    heard.clear();
    QTRY_VERIFY((heard += m_line->Input()).endsWith(u"OK"));
  }

  void besideADeviceThatTalksAllDayATextIsSentAndADropIsSeen() {
    FillInput();
    m_modem->Say(QByteArray(2048, 'x'));
    m_line->Output(u"ATH\r"_s);
    QCOMPARE(m_modem->Commands(), QByteArrayList{"ATH"});
    m_modem->Say(QByteArray(2048, 'x'));
    m_modem->Drop();
    QTRY_VERIFY(!m_line->PortOpen());
  }

  void aLineThatGoesWithItsOwnerIsLetGoAtOnceToo() {
    Driver driver;
    driver.Queued = -3;
    played = &driver;
    m_line->Output(u"ATDT5;\r"_s);
    m_line.reset();
    QCOMPARE(driver.Done.last(), u"thrown away"_s);
  }

  void whatTheUserDoesWaitsUntilAPortWasLookedAt() {
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk));
    desk.MoveMouse({10, 10});
    QCoreApplication::processEvents();
    desk.Moves = 0;
    desk.MoveMouse({100, 100});
    m_line->WaitForBytes(2, 50);
    QCOMPARE(desk.Moves, 0);
    // Nothing of it is lost.
    QCoreApplication::processEvents();
    QCOMPARE(desk.Moves, 1);
  }

  void whatTheUserDoesIsHeardWhileANumberIsDialed() {
    Desk desk;
    QVERIFY(QTest::qWaitForWindowExposed(&desk));
    desk.MoveMouse({10, 10});
    QCoreApplication::processEvents();
    desk.Moves = 0;
    desk.MoveMouse({100, 100});
    QVERIFY(m_line->Yield());
    QCOMPARE(desk.Moves, 1);
  }

 private:
  /// As much as is kept of what nobody reads.
  void FillInput() {
    for (int i = 0; i < 10'000 && m_line->InBufferCount() < 4096; ++i) {
      if (m_modem->IsHeard()) m_modem->Say(QByteArray(1024, 'x'));
      QCoreApplication::processEvents();
    }
    m_modem->Say(QByteArray(1024, 'x'));
    m_line->WaitForBytes(4097, 20);
    QCOMPARE(m_line->InBufferCount(), 4096);
  }

  std::unique_ptr<PlayedModem> m_modem;
  std::unique_ptr<SerialLine> m_line;
};

QTEST_MAIN(SerialLineTest)
#include "tst_serialLine.moc"
