#include "telephony/ModemSearch.h"

#include "runtime/SerialPort.h"
#include "telephony/PhoneSettings.h"

using namespace Qt::StringLiterals;

namespace {

/// A modem's time to answer. One single look: a slower one is passed over, which is meant.
constexpr int LookMilliseconds = 5;
/// What counts as an answer: an echo of the command is taken for one, which is meant.
constexpr int AnswerLength = 2;

/// Leaves the port open where something answers on it.
bool Answers(SerialPort& modem, int port) {
  modem.SetCommPort(port);
  if (modem.PortOpen()) return false;
  modem.SetPortOpen(true);
  modem.Output(u"AT\r"_s);
  modem.WaitForBytes(AnswerLength, LookMilliseconds);
  if (modem.InBufferCount() >= AnswerLength) return true;
  // A device that takes no byte mustn't hold up the start.
  modem.LetGo();
  return false;
}

}  // namespace

void FindModemPort(SerialPort& modem, PhoneSettings& phone) {
  int port = 1;
  while (port <= SerialPort::Ports && !Answers(modem, port)) ++port;
  if (port > SerialPort::Ports) {
    phone.Text1 = u"Modem Not Detected Or In Use."_s;
    phone.ModemPort = 1;
  } else {
    modem.LetGo();
    phone.ModemPort = port;
  }
  modem.SetCommPort(phone.ModemPort);
  const QString told = QString::number(phone.ModemPort);
  // Also where nothing answered: the program then claims port 1, which is meant.
  phone.Text1 = u"Your Modem Comm Port Is "_s + told + u'.';
  phone.Label2 = u"COM Port # "_s + told;
  phone.txtModemPort = told;
  if (!modem.PortOpen()) modem.SetPortOpen(true);
  modem.ClearInBuffer();
  // What the modem says to it stays unread until the dialer clears it.
  modem.Output(u"AT#CID=1\r"_s);
}
