// The search for the modem at start, on pseudo-terminals whose far end the test plays.
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <QtTest>

#include "desktop/SerialLine.h"
#include "support/DataFolder.h"
#include "support/PlayedModem.h"
#include "telephony/ModemSearch.h"
#include "telephony/PhoneSettings.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Silence(const QByteArray&) {
  return {};
}

/// Notes what is asked of it. A modem answers on one port, perhaps nobody on another; the others can't be opened.
class NotedPorts final : public SerialPort {
 public:
  explicit NotedPorts(int modemOn, int silentOn = 0) : m_modemOn(modemOn), m_silentOn(silentOn) {}
  void SetCommPort(int port) override { m_port = port; }
  int CommPort() const override { return m_port; }
  void SetPortOpen(bool open) override {
    if (open) Asked.append(u"open %1"_s.arg(m_port));
    if (!open && m_open) Asked.append(u"close"_s);
    m_open = open && (m_port == m_modemOn || m_port == m_silentOn);
  }
  void LetGo() override {
    if (m_open) Asked.append(u"let go"_s);
    m_open = false;
  }
  bool PortOpen() const override { return m_open; }
  void Output(const QString& text) override {
    if (m_open || text != u"AT\r") Asked.append(u"send "_s + text.trimmed());
  }
  int InBufferCount() override { return m_open && m_port == m_modemOn ? 2 : 0; }
  void ClearInBuffer() override { Asked.append(u"clear"_s); }
  QString Input() override { return {}; }
  void WaitForBytes(int count, int milliseconds) override {
    if (m_open) Asked.append(u"wait %1 bytes %2 ms"_s.arg(count).arg(milliseconds));
  }
  bool Yield() override { return false; }

  QStringList Asked;

 private:
  int m_modemOn;
  int m_silentOn;
  int m_port = 1;
  bool m_open = false;
};

void ExpectPort(const PhoneSettings& phone, int port) {
  const QString number = QString::number(port);
  QCOMPARE(phone.ModemPort, port);
  QCOMPARE(phone.txtModemPort, number);
  QCOMPARE(phone.Text1, u"Your Modem Comm Port Is "_s + number + u"."_s);
  QCOMPARE(phone.Label2, u"COM Port # "_s + number);
}

}  // namespace

class ModemSearch : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void thePortsOfTheMachineStandInTheirOrder() {
    const PortTable ports = PortsOfThisMachine();
    QCOMPARE(
        QStringList(ports.begin(), ports.end()).join(u' '),
        u"/dev/ttyS0 /dev/ttyS1 /dev/ttyS2 /dev/ttyS3 /dev/ttyACM0 /dev/ttyACM1 /dev/ttyACM2 /dev/ttyACM3 "
        "/dev/ttyUSB0 /dev/ttyUSB1 /dev/ttyUSB2 /dev/ttyUSB3 /dev/ttyUSB4 /dev/ttyUSB5 /dev/ttyUSB6 /dev/ttyUSB7"_s);
  }

  void withoutAModemSixteenPortsAreTriedAndPortOneIsClaimed() {
    NotedPorts ports(0);
    PhoneSettings phone;
    FindModemPort(ports, phone);
    QStringList expected;
    for (int port = 1; port <= 16; ++port) expected.append(u"open %1"_s.arg(port));
    // The program goes on with port 1, and asks for caller identification whether it is there or not.
    expected += {u"open 1"_s, u"clear"_s, u"send AT#CID=1"_s};
    QCOMPARE(ports.Asked, expected);
    ExpectPort(phone, 1);
  }

  // No port is closed as one that a call hangs on: a device that takes no byte would hold up the start.
  void theStepsOfASearchThatEndsOnPortTwo() {
    NotedPorts ports(2);
    PhoneSettings phone;
    FindModemPort(ports, phone);
    QCOMPARE(ports.Asked, (QStringList{u"open 1"_s, u"open 2"_s, u"send AT"_s, u"wait 2 bytes 5 ms"_s, u"let go"_s,
                                       u"open 2"_s, u"clear"_s, u"send AT#CID=1"_s}));
    QVERIFY(ports.PortOpen());
  }

  void anOpenPortThatIsSilentCostsOneWaitOfFiveMilliseconds() {
    NotedPorts ports(3, 1);
    PhoneSettings phone;
    FindModemPort(ports, phone);
    QCOMPARE(ports.Asked, (QStringList{u"open 1"_s, u"send AT"_s, u"wait 2 bytes 5 ms"_s, u"let go"_s, u"open 2"_s,
                                       u"open 3"_s, u"send AT"_s, u"wait 2 bytes 5 ms"_s, u"let go"_s, u"open 3"_s,
                                       u"clear"_s, u"send AT#CID=1"_s}));
    ExpectPort(phone, 3);
  }

  void portsThatAreNotThereAreSilent() {
    SerialLine line(PortsOn({{1, u"/nowhere/one"_s}, {2, u"/nowhere/two"_s}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    QVERIFY(!line.PortOpen());
    ExpectPort(phone, 1);
  }

  void aModemOnPortTwoIsFoundAndLeftOpenWithCallerIdentificationAsked() {
    PlayedModem modem;
    SerialLine line(PortsOn({{2, modem.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 2);
    QVERIFY(line.PortOpen());
    QCOMPARE(line.CommPort(), 2);
    QCOMPARE(modem.Commands(), (QByteArrayList{"AT", "AT#CID=1"}));
  }

  void theFirstOfTwoModemsIsTaken() {
    PlayedModem third;
    PlayedModem ninth;
    SerialLine line(PortsOn({{3, third.Device()}, {9, ninth.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 3);
    QVERIFY(ninth.Commands().isEmpty());
  }

  void theModemMayBeOnTheLastPort() {
    PlayedModem modem;
    SerialLine line(PortsOn({{16, modem.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 16);
  }

  void anEchoOfTwoBytesIsTakenForAModem() {
    PlayedModem echo;
    echo.Answer = [](const QByteArray& command) { return command.left(2); };
    SerialLine line(PortsOn({{2, echo.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 2);
  }

  void oneCharacterIsNoAnswer() {
    PlayedModem short1;
    short1.Answer = [](const QByteArray&) { return QByteArray("O"); };
    PlayedModem modem;
    SerialLine line(PortsOn({{2, short1.Device()}, {3, modem.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 3);
    QCOMPARE(short1.Commands(), QByteArrayList{"AT"});
  }

  void aSilentDeviceIsPassedOverAtOnceAndLetGo() {
    PlayedModem silent;
    silent.Answer = Silence;
    PlayedModem modem;
    SerialLine line(PortsOn({{1, silent.Device()}, {2, modem.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 2);
    // Nobody holds it any more: another line can have it.
    SerialLine other(PortsOn({{1, silent.Device()}}));
    other.SetPortOpen(true);
    QVERIFY(other.PortOpen());
  }

  void aModemThatAnswersWhenTheSearchHasGoneOnIsPassedOver() {
    PlayedModem slow;
    slow.Answer = Silence;
    PlayedModem modem;
    modem.Answer = [&slow](const QByteArray&) {
      slow.Say("\r\nOK\r\n");
      return QByteArray("\r\nOK\r\n");
    };
    SerialLine line(PortsOn({{2, slow.Device()}, {3, modem.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 3);
    QCOMPARE(slow.Commands(), QByteArrayList{"AT"});
  }

  void aModemOnPortOneThatAnswersLateIsClaimedAllTheSame() {
    PlayedModem slow;
    slow.Answer = Silence;
    SerialLine line(PortsOn({{1, slow.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    // Port 1 is gone on with whether anybody answered on it or not.
    ExpectPort(phone, 1);
    QVERIFY(line.PortOpen());
    QCOMPARE(slow.Commands(), (QByteArrayList{"AT", "AT#CID=1"}));
    slow.Say("\r\nOK\r\n");
    line.WaitForBytes(6, 20'000);
    QCOMPARE(line.InBufferCount(), 6);
  }

  void theLookAtAnOpenPortLastsAsLongAsAskedAndNoLonger() {
    PlayedModem silent;
    silent.Answer = Silence;
    SerialLine line(PortsOn({{1, silent.Device()}}));
    line.SetPortOpen(true);
    // The events themselves tell how long it is, however busy the machine: what is due before its end comes, and what
    // is due a minute later doesn't.
    QTimer before;
    QTimer after;
    for (QTimer* timer : {&before, &after}) {
      timer->setSingleShot(true);
      timer->setTimerType(Qt::PreciseTimer);
    }
    before.start(4);
    after.start(60'000);
    line.WaitForBytes(2, 5);
    QVERIFY(!before.isActive());
    QVERIFY(after.isActive());
    // On a port that isn't open there is nothing to wait for.
    line.SetPortOpen(false);
    before.start(0);
    line.WaitForBytes(2, 60'000);
    QVERIFY(before.isActive());
  }

  void aPortThatAnotherProgramHoldsIsPassedOver() {
    PlayedModem held;
    SerialLine holder(PortsOn({{1, held.Device()}}));
    holder.SetPortOpen(true);
    QVERIFY(holder.PortOpen());
    SerialLine line(PortsOn({{1, held.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 1);
    QVERIFY(!line.PortOpen());
    QVERIFY(held.Commands().isEmpty());
  }

  void aDeviceThatIsNoSerialLineIsPassedOver() {
    DataFolder folder;
    folder.Put(u"/device"_s, "xx");
    SerialLine line(PortsOn({{1, folder.Path(u"/device"_s)}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    ExpectPort(phone, 1);
    QVERIFY(!line.PortOpen());
    QCOMPARE(folder.Bytes(u"/device"_s), "xx");
  }

  void theRepliesToTheCallerIdentificationStayUnread() {
    PlayedModem modem;
    SerialLine line(PortsOn({{1, modem.Device()}}));
    PhoneSettings phone;
    FindModemPort(line, phone);
    // What it said to "AT" is cleared; what it says to the last command waits.
    line.WaitForBytes(6, 1000);
    QCOMPARE(line.Input(), u"\r\nOK\r\n"_s);
  }

  void theStoredPortFiveReplacesTheFoundPortThreeInTheVariableOnly() {
    PlayedModem modem;
    DataFolder folder;
    folder.Put(u"/Phone.txt"_s, "#TRUE#\r\n5\r\n");
    SerialLine line(PortsOn({{3, modem.Device()}}));
    PhoneSettings phone;
    StartModem(line, folder.Disk, phone);
    QCOMPARE(phone.ModemPort, 5);
    QCOMPARE(phone.txtModemPort, u"3"_s);
    QCOMPARE(phone.Text1, u"Your Modem Comm Port Is 3."_s);
    QCOMPARE(line.CommPort(), 3);
    QVERIFY(line.PortOpen());
  }

  void thePortStaysWhileItIsOpen() {
    PlayedModem modem;
    SerialLine line(PortsOn({{1, modem.Device()}}));
    line.SetPortOpen(true);
    line.SetCommPort(4);
    QCOMPARE(line.CommPort(), 1);
    line.SetPortOpen(false);
    line.SetCommPort(4);
    QCOMPARE(line.CommPort(), 4);
    line.SetCommPort(17);
    line.SetPortOpen(true);
    QVERIFY(!line.PortOpen());
  }

  void aLineThatDropsIsClosedAndCostsNothingMore() {
    PlayedModem modem;
    SerialLine line(PortsOn({{1, modem.Device()}}));
    line.SetPortOpen(true);
    modem.Drop();
    for (int pass = 0; pass < 100 && line.PortOpen(); ++pass) QVERIFY(line.Yield());
    QVERIFY(!line.PortOpen());
    QCOMPARE(line.InBufferCount(), 0);
    line.Output(u"ATH\r"_s);
    // A pass without anything to hear rests until its time is over.
    QElapsedTimer timer;
    timer.start();
    for (int pass = 0; pass < 5; ++pass) line.Yield();
    QVERIFY2(timer.elapsed() >= 50, qPrintable(QString::number(timer.elapsed())));
  }
};

QTEST_GUILESS_MAIN(ModemSearch)
#include "tst_modemSearch.moc"
