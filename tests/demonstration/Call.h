/// The demonstration's call: the modem stands on a pseudo-terminal whose far end is played.
#pragma once

#include <functional>

#include "support/PlayedModem.h"
#include "support/ScreenDriver.h"

/// Calls the customer on the screen, keeps him as a speed-dial entry, and hangs up. `picture` is taken when the talk
/// can begin.
inline void CallTheCustomer(const std::function<void(const ScreenDriver&)>& picture) {
  ScreenDriver(QStringLiteral("frmNewCustomer")).Click(QStringLiteral("Image1_1"));
  const ScreenDriver dialer(QStringLiteral("frmDialer"));
  dialer.Click(QStringLiteral("cmdDialer_0"));
  dialer.Click(QStringLiteral("cmdSpeedDialer_4"));
  dialer.Click(QStringLiteral("ckDial1"));
  dialer.Click(QStringLiteral("cmdNewDial"));
  picture(dialer);
  dialer.Click(QStringLiteral("cmdHangup"));
}
