#include "telephony/Dialer.h"

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/SerialPort.h"
#include "telephony/PhoneSettings.h"

using namespace Qt::StringLiterals;

namespace {

const QString LongDistance = u"1-"_s;

}  // namespace

void Dialer::SetRecipient(const QString& name, const QString& number) {
  ShowRecipient(name, number);
  // Until a slot is chosen he is the one whom "Restore" brings back.
  m_originalName = name;
  m_originalNumber = number;
}

void Dialer::Activate() {
  ResetDialer();
  if (!m_desk.Modem.PortOpen()) OpenPort();
  m_view.SetIndicator(m_desk.Modem.PortOpen());
  ShowSlots();
}

void Dialer::OpenPort() {
  try {
    m_desk.Modem.SetCommPort(ToInt16(m_desk.Phone.txtModemPort));
    m_desk.Modem.SetPortOpen(true);
  } catch (const RuntimeError&) {
    // What is no number is no port either: silent, as any port that can't be opened.
  }
}

void Dialer::ResetDialer() {
  m_view.SetEnabled(DialerControl::cmdSpeedDialer2, false);
  m_view.SetEnabled(DialerControl::cmdNewDial, true);
  m_view.SetEnabled(DialerControl::cmdCancel, false);
  m_view.SetText(DialerText::lblStatus, u"Ready to Dial......"_s);
  m_cancelRequested = false;
}

void Dialer::ShowRecipient(const QString& name, const QString& number) {
  m_name = name;
  m_view.SetText(DialerText::lblName, name);
  ShowNumber(number);
}

void Dialer::ShowNumber(const QString& number) {
  m_number = number;
  m_view.SetText(DialerText::lblNumber, number);
}

void Dialer::TogglePrefix(bool ticked) {
  if (ticked) {
    ShowNumber(LongDistance + m_number);
  } else if (m_number.startsWith(LongDistance)) {
    ShowNumber(m_number.sliced(LongDistance.size()));
  }
}

void Dialer::NewDial() {
  m_view.SetEnabled(DialerControl::cmdNewDial, false);
  m_view.SetText(DialerText::lblStatus, u"Dialing..... "_s + m_number);
  m_desk.Modem.ClearInBuffer();
  // Behind the semicolon the modem listens again, so that the call stays up and "OK" comes. The number goes as it is.
  m_desk.Modem.Output(u"ATDT"_s + m_number + u";\r"_s);
  switch (WaitForOk()) {
    case WaitEnd::Answered:
      m_view.SetText(DialerText::lblStatus, u"Pickup Receiver - Then Click Hangup"_s);
      m_view.SetEnabled(DialerControl::cmdCancel, true);
      m_view.FocusOn(DialerControl::cmdCancel);
      break;
    case WaitEnd::Cancelled:
      CancelDial();
      break;
    case WaitEnd::HungUp:
      PutDown();
      break;
    case WaitEnd::Left:
      break;
  }
}

/// There is no limit of time: only an "OK", the user, or the end of the program ends it.
Dialer::WaitEnd Dialer::WaitForOk() {
  m_dialing = true;
  m_hangupRequested = false;
  m_left = false;
  WaitEnd end = WaitEnd::Left;
  while (m_desk.Modem.Yield() && !m_left) {
    if (m_hangupRequested) {
      end = WaitEnd::HungUp;
      break;
    }
    // Each read stands alone, not behind the one before: an "OK" that comes in two parts isn't seen, which is meant.
    if (m_desk.Modem.InBufferCount() >= 2 && m_desk.Modem.Input().contains(u"OK")) {
      end = WaitEnd::Answered;
      break;
    }
    if (m_cancelRequested) {
      end = WaitEnd::Cancelled;
      break;
    }
  }
  m_dialing = false;
  return end;
}

void Dialer::CancelDial() {
  m_cancelRequested = false;
  ResetDialer();
  PutDown();
}

void Dialer::Hangup() {
  if (m_dialing) {
    m_hangupRequested = true;
  } else {
    PutDown();
  }
}

void Dialer::PutDown() {
  m_desk.Modem.Output(u"ATH\r"_s);
  m_desk.Modem.SetPortOpen(false);
  m_view.SetIndicator(false);
  m_view.Unload();
}
