#include "support/PlayedModem.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#include <cstdlib>
#include <QSocketNotifier>
#include <QTimer>

PlayedModem::PlayedModem() {
  m_master = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
  if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0) qFatal("no pseudo-terminal");
  m_device = QString::fromLocal8Bit(ptsname(m_master));
  m_line = open(ptsname(m_master), O_RDWR | O_NOCTTY);
  // Nothing on the line answers but the test.
  termios plain{};
  tcgetattr(m_line, &plain);
  cfmakeraw(&plain);
  tcsetattr(m_line, TCSANOW, &plain);
  auto* notifier = new QSocketNotifier(m_master, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] { Read(); });
}

PlayedModem::~PlayedModem() {
  Drop();
  close(m_line);
}

void PlayedModem::Read() {
  char bytes[256];
  for (ssize_t count = 0; m_master >= 0 && (count = read(m_master, bytes, sizeof bytes)) > 0;) {
    m_begun.append(bytes, count);
  }
  for (qsizetype end = 0; (end = m_begun.indexOf('\r')) >= 0;) {
    const QByteArray command = m_begun.left(end);
    m_begun.remove(0, end + 1);
    m_commands.append(command);
    if (Answer) Say(Answer(command));
  }
}

QByteArrayList PlayedModem::Commands() {
  Read();
  return m_commands;
}

void PlayedModem::Say(const QByteArray& bytes) {
  if (m_master < 0 || bytes.isEmpty()) return;
  if (write(m_master, bytes.constData(), static_cast<std::size_t>(bytes.size())) != bytes.size()) {
    qFatal("the played modem isn't heard");
  }
}

bool PlayedModem::IsHeard() const {
  int waiting = 0;
  return ioctl(m_line, FIONREAD, &waiting) != 0 || waiting == 0;
}

void PlayedModem::WhenHeard(std::function<void()> then) {
  // Two turns of the loop behind the one that took the bytes: whoever waited for them has looked by then.
  auto* turns = new QTimer(this);
  connect(turns, &QTimer::timeout, this, [this, turns, then = std::move(then), left = 2]() mutable {
    if (!IsHeard() || left-- > 0) return;
    turns->deleteLater();
    turns->stop();
    then();
  });
  turns->start(0);
}

void PlayedModem::Drop() {
  if (m_master < 0) return;
  for (QSocketNotifier* notifier : findChildren<QSocketNotifier*>()) delete notifier;
  close(m_master);
  m_master = -1;
}
