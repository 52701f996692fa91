#include <fcntl.h>
#include <unistd.h>
#include <array>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "telephony/ModemSearch.h"
#include "telephony/PhoneSettings.h"

using namespace Qt::StringLiterals;

PortTable AbsentPorts() {
  PortTable ports;
  for (int i = 0; i < SerialPort::Ports; ++i) ports[static_cast<std::size_t>(i)] = u"/dev/absent-port-%1"_s.arg(i);
  return ports;
}

void MeasureAbsentPorts() {
  // Many searches a run: one is too short for the clock.
  constexpr int Searches = 200;
  const PortTable ports = AbsentPorts();
  std::array<QByteArray, SerialPort::Ports> names;
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = ports[i].toLocal8Bit();
  SerialLine line(ports);
  PhoneSettings phone;
  const Pair times = MediansOf(
      7,
      [&] {
        for (int i = 0; i < Searches; ++i) FindModemPort(line, phone);
      },
      [&] {
        for (int i = 0; i < Searches; ++i) {
          for (const QByteArray& name : names) {
            const int port = open(name.constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
            if (port >= 0) close(port);
          }
        }
      });
  Report(u"200 searches of sixteen absent ports over the same opens made raw"_s, times, 1);
}
