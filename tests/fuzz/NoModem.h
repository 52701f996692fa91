/// A machine without any serial port.
#pragma once

#include "runtime/SerialPort.h"

class NoModem final : public SerialPort {
 public:
  void SetCommPort(int port) override { m_port = port; }
  int CommPort() const override { return m_port; }
  void SetPortOpen(bool) override {}
  void LetGo() override {}
  bool PortOpen() const override { return false; }
  void Output(const QString&) override {}
  int InBufferCount() override { return 0; }
  void ClearInBuffer() override {}
  QString Input() override { return {}; }
  void WaitForBytes(int, int) override {}
  bool Yield() override { return false; }

 private:
  int m_port = 1;
};
