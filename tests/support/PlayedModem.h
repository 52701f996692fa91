/// The far end of a serial line: a pseudo-terminal whose master the test plays as the modem.
///
///   PlayedModem modem;                                  // answers "OK" to everything
///   program.Ports[1] = modem.Device();                  // on port 2
///   modem.Answer = [](const QByteArray& command) { ... };
///   QCOMPARE(modem.Commands(), (QByteArrayList{"AT", "AT#CID=1"}));
///
/// It answers in the event loop of the program, as each command ends.
#pragma once

#include <functional>
#include <QByteArrayList>
#include <QObject>

#include "desktop/SerialLine.h"

/// A table of ports on which only these stand.
inline PortTable PortsOn(std::initializer_list<std::pair<int, QString>> devices) {
  PortTable ports;
  for (const auto& [port, device] : devices) ports[static_cast<std::size_t>(port - 1)] = device;
  return ports;
}

class PlayedModem : public QObject {
 public:
  PlayedModem();
  ~PlayedModem() override;

  QString Device() const { return m_device; }
  /// What it was sent, a command each, without the carriage return.
  QByteArrayList Commands();
  /// The commands since the last call.
  QByteArrayList Take() { return std::exchange(m_commands, (Commands(), QByteArrayList())); }

  /// Its answer to a command, empty for none; called as the command ends.
  std::function<QByteArray(const QByteArray& command)> Answer = [](const QByteArray&) { return "\r\nOK\r\n"; };
  /// What it says by itself.
  void Say(const QByteArray& bytes);
  /// Whether the program has taken all that was said.
  bool IsHeard() const;
  /// Runs something once all that was said has been heard and looked at.
  void WhenHeard(std::function<void()> then);
  /// The line goes dead.
  void Drop();

 private:
  void Read();

  int m_master = -1;
  int m_line = -1;  ///< Keeps the line up while the program has it closed.
  QString m_device;
  QByteArray m_begun;
  QByteArrayList m_commands;
};
