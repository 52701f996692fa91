/// The serial line of this machine, on the toolkit's own serial port.
#pragma once

#include <array>
#include <memory>

#include "runtime/SerialPort.h"

class QSerialPort;

/// The device names of ports 1 to 16; an empty one is a port that isn't there.
using PortTable = std::array<QString, SerialPort::Ports>;

/// The one place that says which devices the ports are. Tests hand over tables of their own.
PortTable PortsOfThisMachine();

class SerialLine final : public SerialPort {
 public:
  explicit SerialLine(PortTable ports);
  ~SerialLine() override;
  SerialLine(const SerialLine&) = delete;
  SerialLine& operator=(const SerialLine&) = delete;

  void SetCommPort(int port) override;
  int CommPort() const override { return m_commPort; }
  void SetPortOpen(bool open) override;
  void LetGo() override;
  bool PortOpen() const override;
  void Output(const QString& text) override;
  int InBufferCount() override;
  void ClearInBuffer() override;
  QString Input() override;
  void WaitForBytes(int count, int milliseconds) override;
  bool Yield() override;

 private:
  void Open();
  /// Waits until all that was written has left the machine, no longer than that.
  bool IsSentWithin(int milliseconds);

  PortTable m_ports;
  int m_commPort = 1;
  std::unique_ptr<QSerialPort> m_port;  ///< While a port is open, its line perhaps dropped.
  bool m_dropped = false;
  bool m_standsStill = false;  ///< What was sent last didn't go out in time.
};
