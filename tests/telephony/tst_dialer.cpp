// The dialer's rules on a line that the test plays pass by pass.
#include <QtTest>

#include "desktop/SerialLine.h"
#include "runtime/SerialPort.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "support/PlayedModem.h"
#include "support/ScriptedDialogs.h"
#include "telephony/Dialer.h"
#include "telephony/PhoneSettings.h"

using namespace Qt::StringLiterals;

namespace {

/// An open line; each pass of the event loop is a step of the script, and behind the last one the program is left.
class ScriptedLine final : public SerialPort {
 public:
  explicit ScriptedLine(QStringList& log) : m_log(log) {}
  void SetCommPort(int port) override { m_port = port; }
  int CommPort() const override { return m_port; }
  void SetPortOpen(bool open) override {
    m_open = open;
    m_log.append(open ? u"open %1"_s.arg(m_port) : u"close"_s);
  }
  void LetGo() override {
    m_open = false;
    m_log.append(u"let go"_s);
  }
  bool PortOpen() const override { return m_open; }
  void Output(const QString& text) override { m_log.append(u"send "_s + text); }
  int InBufferCount() override { return static_cast<int>(Waiting.size()); }
  void ClearInBuffer() override { Waiting.clear(); }
  QString Input() override { return std::exchange(Waiting, {}); }
  void WaitForBytes(int, int) override {}
  bool Yield() override {
    if (Passes.isEmpty()) return false;
    Passes.takeFirst()();
    return true;
  }

  QList<std::function<void()>> Passes;
  QString Waiting;

 private:
  QStringList& m_log;
  int m_port = 1;
  bool m_open = false;
};

/// Notes what the rules tell the screen.
class NotedView final : public DialerView {
 public:
  explicit NotedView(QStringList& log) : m_log(log) {}
  QString Text(DialerText place) const override { return Texts.value(place); }
  void SetText(DialerText place, const QString& text) override {
    Texts[place] = text;
    if (place == DialerText::lblStatus) m_log.append(text);
  }
  void SetSlotCaption(int slot, const QString& caption) override { Captions[slot] = caption; }
  void SetEnabled(DialerControl control, bool enabled) override { Enabled[control] = enabled; }
  void FocusOn(DialerControl control) override { Focus = control; }
  void ShowSpeedDial(bool) override {}
  void SetIndicator(bool lit) override { m_log.append(lit ? u"light"_s : u"dark"_s); }
  void Unload() override { m_log.append(u"unload"_s); }

  QMap<DialerText, QString> Texts;
  QMap<DialerControl, bool> Enabled;
  QMap<int, QString> Captions;
  DialerControl Focus = DialerControl::txtDialer0;

 private:
  QStringList& m_log;
};

struct Desk {
  Desk() {
    Phone.txtModemPort = u"3"_s;
    Call.SetRecipient(u"Ann"_s, u"555"_s);
    Call.Activate();
    Log.clear();
  }
  QStringList Log;
  DataFolder Folder;
  ScriptedDialogs Boxes;
  PhoneSettings Phone;
  ScriptedLine Line{Log};
  NotedView View{Log};
  Dialer Call{DialerDesk{Line, Folder.Disk, Boxes, Phone}, View};
};

}  // namespace

class DialerTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anActivationOpensThePortOfTheBoxAndMakesReady() {
    Desk desk;
    desk.Line.SetPortOpen(false);
    desk.Log.clear();
    desk.Call.Activate();
    QCOMPARE(desk.Log, (QStringList{u"Ready to Dial......"_s, u"open 3"_s, u"light"_s}));
    QCOMPARE(desk.View.Enabled, (QMap<DialerControl, bool>{{DialerControl::cmdNewDial, true},
                                                           {DialerControl::cmdCancel, false},
                                                           {DialerControl::cmdSpeedDialer2, false}}));
    // An open port stays as it is.
    desk.Log.clear();
    desk.Phone.txtModemPort = u"4"_s;
    desk.Call.Activate();
    QCOMPARE(desk.Log, (QStringList{u"Ready to Dial......"_s, u"light"_s}));
  }

  void aCancelledDialMakesReadyThenHangsUp() {
    Desk desk;
    desk.Line.Passes = {[] {}, [&] { desk.Call.Cancel(); }};
    desk.Call.NewDial();
    QCOMPARE(desk.Log, (QStringList{u"Dialing..... 555"_s, u"send ATDT555;\r"_s, u"Ready to Dial......"_s,
                                    u"send ATH\r"_s, u"close"_s, u"dark"_s, u"unload"_s}));
    // The cancellation is spent: the next dial goes on.
    desk.Log.clear();
    desk.Line.Passes = {[] {}, [] {}, [&] { desk.Line.Waiting = u"OK"_s; }};
    desk.Call.NewDial();
    QCOMPARE(desk.Log.last(), u"Pickup Receiver - Then Click Hangup"_s);
  }

  void anOkOfTheSamePassIsSeenBeforeACancellation() {
    Desk desk;
    desk.Line.Passes = {[&] {
      desk.Line.Waiting = u"OK"_s;
      desk.Call.Cancel();
    }};
    desk.Call.NewDial();
    QCOMPARE(desk.Log.last(), u"Pickup Receiver - Then Click Hangup"_s);
    // Nothing clears the flag but the next activation.
    desk.Line.Passes = {[] {}};
    desk.Call.NewDial();
    QCOMPARE(desk.Log.last(), u"unload"_s);
  }

  /// At the modem itself.
  void aCancelledDialHangsUpFreesTheLineAndCanBeDialedAgain() {
    QStringList log;
    DataFolder folder;
    ScriptedDialogs boxes;
    PhoneSettings phone;
    phone.txtModemPort = u"2"_s;
    PlayedModem modem;
    SerialLine line(PortsOn({{2, modem.Device()}}));
    NotedView view(log);
    Dialer call(DialerDesk{line, folder.Disk, boxes, phone}, view);
    call.SetRecipient(u"Ann"_s, u"555"_s);
    call.Activate();
    modem.Answer = [&](const QByteArray& command) {
      if (command.startsWith("ATDT")) call.Cancel();
      return QByteArray();
    };
    call.NewDial();
    QCOMPARE(modem.Take(), (QByteArrayList{"ATDT555;", "ATH"}));
    QVERIFY(!line.PortOpen());
    SerialLine other(PortsOn({{2, modem.Device()}}));
    other.SetCommPort(2);
    other.SetPortOpen(true);
    QVERIFY(other.PortOpen());
    other.SetPortOpen(false);
    call.Activate();
    modem.Answer = [](const QByteArray&) { return QByteArray("OK"); };
    call.NewDial();
    QCOMPARE(log.last(), u"Pickup Receiver - Then Click Hangup"_s);
    QCOMPARE(modem.Take(), QByteArrayList{"ATDT555;"});
  }

  void anActivationClearsTheCancellation() {
    Desk desk;
    desk.Call.Cancel();
    desk.Call.Activate();
    desk.Line.Passes = {[] {}, [&] { desk.Line.Waiting = u"\r\nOK\r\n"_s; }};
    desk.Call.NewDial();
    QCOMPARE(desk.Log.last(), u"Pickup Receiver - Then Click Hangup"_s);
    QCOMPARE(desk.View.Focus, DialerControl::cmdCancel);
    QVERIFY(desk.View.Enabled[DialerControl::cmdCancel]);
    QVERIFY(!desk.View.Enabled[DialerControl::cmdNewDial]);
  }

  void whatWaitedBeforeTheDialIsCleared() {
    Desk desk;
    desk.Line.Waiting = u"OK"_s;
    desk.Line.Passes = {[] {}};
    desk.Call.NewDial();
    QCOMPARE(desk.Log, (QStringList{u"Dialing..... 555"_s, u"send ATDT555;\r"_s}));
  }

  void eachReadReplacesTheOneBefore() {
    Desk desk;
    desk.Line.Passes = {[&] { desk.Line.Waiting = u"\r\nO"_s; }, [&] { desk.Line.Waiting = u"K\r\n"_s; }, [] {}};
    desk.Call.NewDial();
    QCOMPARE(desk.Log.last(), u"send ATDT555;\r"_s);
    QVERIFY(desk.Line.Passes.isEmpty());
  }

  void aSingleCharacterWaitsForTheNext() {
    Desk desk;
    desk.Line.Passes = {[&] { desk.Line.Waiting += u'O'; }, [&] { desk.Line.Waiting += u'K'; }};
    desk.Call.NewDial();
    QCOMPARE(desk.Log.last(), u"Pickup Receiver - Then Click Hangup"_s);
  }

  void aHangUpInTheWaitUnloadsOnlyAtItsEnd() {
    Desk desk;
    QStringList within;
    desk.Line.Passes = {[&] {
      desk.Call.Hangup();
      within = desk.Log;
      // Too late: who hung up doesn't talk.
      desk.Line.Waiting = u"OK"_s;
    }};
    desk.Call.NewDial();
    QCOMPARE(within, (QStringList{u"Dialing..... 555"_s, u"send ATDT555;\r"_s}));
    QCOMPARE(desk.Log.sliced(2), (QStringList{u"send ATH\r"_s, u"close"_s, u"dark"_s, u"unload"_s}));
  }

  void aWindowThatGoesEndsTheWaitAndNothingMoreIsDone() {
    Desk desk;
    desk.Line.Passes = {[&] { desk.Call.Leave(); }, [&] { desk.Line.Waiting = u"OK"_s; }};
    desk.Call.NewDial();
    QCOMPARE(desk.Log, (QStringList{u"Dialing..... 555"_s, u"send ATDT555;\r"_s}));
  }

  void theNumberGoesAsItStands() {
    Desk desk;
    desk.Call.SetRecipient(u"Bob"_s, u"(321) 555-01x9"_s);
    desk.Call.TogglePrefix(true);
    desk.Call.NewDial();
    QCOMPARE(desk.Log.last(), u"send ATDT1-(321) 555-01x9;\r"_s);
  }
};

QTEST_GUILESS_MAIN(DialerTest)
#include "tst_dialer.moc"
