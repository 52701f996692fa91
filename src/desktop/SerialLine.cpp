#include "desktop/SerialLine.h"

#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QSerialPort>
#include <QThread>
#include <QTimer>

#include "runtime/CodePage.h"

using namespace Qt::StringLiterals;

namespace {

/// The longest that a text may take to leave the machine: a few characters on a line that doesn't stand still.
constexpr int DrainMilliseconds = 100;
/// What is left of it gets as long again and more before a line is let go: the last text is what hangs up.
constexpr int LastMilliseconds = 1000;
/// Between two looks at what the driver still holds: half a character at the usual speed.
constexpr unsigned long LookMicroseconds = 500;
/// What is kept of a line that nobody reads: more than any reply, and no more of a device that talks all day.
constexpr qint64 InputLimit = 4096;
/// The longest pass of the event loop without bytes: short enough that a click in it is answered at once.
constexpr int PassMilliseconds = 20;

/// Whether there is something to open. Asked first, so that absent ports cost one question to the system each and
/// not the lock file that the toolkit makes before it looks.
bool CanBeOpened(const QString& device) {
  return !device.isEmpty() && access(device.toLocal8Bit().constData(), R_OK | W_OK) == 0;
}

/// Waits until the driver has put everything on the wire. Its queue is asked rather than waited for, since a line that
/// stands still would keep such a wait for ever; what is left then are the few characters in the device itself.
/// False where it stands still.
bool Drain(int line, const QDeadlineTimer& limit) {
  int queued = 1;
  while (ioctl(line, TIOCOUTQ, &queued) == 0 && queued > 0 && !limit.hasExpired()) {
    QThread::usleep(LookMicroseconds);
  }
  if (queued != 0) return false;
  tcdrain(line);
  return true;
}

}  // namespace

PortTable PortsOfThisMachine() {
  return {u"/dev/ttyS0"_s,   u"/dev/ttyS1"_s,   u"/dev/ttyS2"_s,   u"/dev/ttyS3"_s,
          u"/dev/ttyACM0"_s, u"/dev/ttyACM1"_s, u"/dev/ttyACM2"_s, u"/dev/ttyACM3"_s,
          u"/dev/ttyUSB0"_s, u"/dev/ttyUSB1"_s, u"/dev/ttyUSB2"_s, u"/dev/ttyUSB3"_s,
          u"/dev/ttyUSB4"_s, u"/dev/ttyUSB5"_s, u"/dev/ttyUSB6"_s, u"/dev/ttyUSB7"_s};
}

SerialLine::SerialLine(PortTable ports) : m_ports(std::move(ports)) {}

SerialLine::~SerialLine() {
  // What hangs up is sent by the dialer, which closes the line itself: what is left here is nothing to wait for.
  LetGo();
}

void SerialLine::SetCommPort(int port) {
  if (!PortOpen()) m_commPort = port;
}

bool SerialLine::PortOpen() const {
  return m_port != nullptr && !m_dropped;
}

void SerialLine::SetPortOpen(bool open) {
  if (open == PortOpen()) return;
  if (PortOpen() && m_standsStill) m_standsStill = !IsSentWithin(LastMilliseconds);
  LetGo();
  if (open) Open();
}

void SerialLine::LetGo() {
  // The system would wait half a minute, as it closes, for the rest to go out on a line that stands still.
  if (PortOpen() && m_standsStill) m_port->clear(QSerialPort::Output);
  m_port.reset();
}

void SerialLine::Open() {
  if (m_commPort < 1 || m_commPort > Ports) return;
  const QString& device = m_ports[static_cast<std::size_t>(m_commPort - 1)];
  if (!CanBeOpened(device)) return;
  auto port = std::make_unique<QSerialPort>(device);
  if (!port->open(QIODevice::ReadWrite)) return;
  m_dropped = false;
  m_standsStill = false;
  m_port = std::move(port);
  const auto watch = [this, line = m_port.get()](QSerialPort::SerialPortError error) {
    const bool gone =
        error == QSerialPort::ReadError || error == QSerialPort::WriteError || error == QSerialPort::ResourceError;
    if (!gone || m_dropped) return;
    m_dropped = true;
    // A line that has dropped reports so without end while it is open; it can't be closed within its own report.
    QMetaObject::invokeMethod(line, &QSerialPort::close, Qt::QueuedConnection);
  };
  QObject::connect(m_port.get(), &QSerialPort::errorOccurred, m_port.get(), watch);
  // Taken and dropped, not left to wait: with the toolkit's own limit a full buffer would keep a text from being sent,
  // and a dropped line from being seen.
  QObject::connect(m_port.get(), &QSerialPort::readyRead, m_port.get(), [line = m_port.get()] {
    if (const qint64 beyond = line->bytesAvailable() - InputLimit; beyond > 0) line->skip(beyond);
  });
}

void SerialLine::Output(const QString& text) {
  if (!PortOpen()) return;
  m_port->write(ToCodePage(text));
  // Only then is it the other end's turn, and the time that it has to answer in begins.
  m_standsStill = !IsSentWithin(DrainMilliseconds);
}

bool SerialLine::IsSentWithin(int milliseconds) {
  const QDeadlineTimer limit(milliseconds, Qt::PreciseTimer);
  while (m_port->bytesToWrite() > 0) {
    if (!m_port->waitForBytesWritten(static_cast<int>(limit.remainingTime()))) return false;
  }
  return Drain(m_port->handle(), limit);
}

int SerialLine::InBufferCount() {
  return PortOpen() ? static_cast<int>(m_port->bytesAvailable()) : 0;
}

void SerialLine::ClearInBuffer() {
  if (PortOpen()) m_port->clear(QSerialPort::Input);
}

QString SerialLine::Input() {
  return PortOpen() ? FromCodePage(m_port->readAll()) : QString();
}

void SerialLine::WaitForBytes(int count, int milliseconds) {
  if (!PortOpen() || InBufferCount() >= count) return;
  QEventLoop pass;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &pass, &QEventLoop::quit);
  QObject::connect(m_port.get(), &QSerialPort::readyRead, &pass, [this, &pass, count] {
    if (InBufferCount() >= count) pass.quit();
  });
  pass.exec(QEventLoop::ExcludeUserInputEvents);
  // On a busy machine the time may be over before the loop came to look: what has come by then still counts.
  if (InBufferCount() < count && PortOpen()) m_port->waitForReadyRead(0);
}

bool SerialLine::Yield() {
  QEventLoop pass;
  QTimer::singleShot(PassMilliseconds, &pass, &QEventLoop::quit);
  if (PortOpen()) QObject::connect(m_port.get(), &QSerialPort::readyRead, &pass, &QEventLoop::quit);
  // Once the application has been told to leave, a loop doesn't begin any more.
  return pass.exec() >= 0;
}
