/// The dialer of the real program, reached from the customer screen, with a modem on port 2 that the test plays.
#pragma once

#include <QtTest>

#include "customers/CustomerRecords.h"
#include "support/PlayedModem.h"
#include "support/ProgramFixture.h"

class PhoneDesk {
 public:
  static QByteArray Customer(const QByteArray& phone, const QByteArray& cell = {}) {
    RecordText record;
    record.AcctNo = "1001";
    record.AcctName = "Bay Farm";
    record.AcctType = "Business";
    record.Phone = phone;
    record.CellPhone = cell;
    return record.Bytes();
  }

  explicit PhoneDesk(const QByteArray& customer = Customer("321-555-0142")) {
    Program.Tree.Write(QStringLiteral("/Services.txt"),
                       QByteArray("Mowing").leftJustified(60) + "$1.00     \1" + QByteArray(1, '\0'));
    QFile states(QFINDTESTDATA("../supplied/StatesList.txt"));
    if (!states.open(QIODevice::ReadOnly)) qFatal("the supplied states list isn't there");
    Program.Tree.Write(QStringLiteral("/StatesList.txt"), states.readAll());
    Program.Tree.Write(QStringLiteral("/CustomerData.txt"), customer);
    Program.Ports = PortsOn({{2, Modem.Device()}});
  }

  /// At the customer screen.
  void Start() {
    Program.StartAtMenu();
    ScreenDriver(QStringLiteral("frmStartup")).Click(QStringLiteral("cmdGoto"));
  }
  /// At the dialer; what the modem was told until then is forgotten.
  ScreenDriver Open() {
    Start();
    return Call();
  }
  ScreenDriver Call() {
    Customers().Click(QStringLiteral("Image1_1"));
    Modem.Take();
    return Dialer();
  }
  static ScreenDriver Customers() { return ScreenDriver(QStringLiteral("frmNewCustomer")); }
  static ScreenDriver Dialer() { return ScreenDriver(QStringLiteral("frmDialer")); }
  static bool Shown() { return ScreenDriver::IsShown(QStringLiteral("frmDialer")); }

  /// Dials; the modem doesn't answer, and `act` runs while the program waits for it. Comes back when the wait has
  /// ended.
  void DialAnd(std::function<void()> act) {
    Modem.Answer = [this, act = std::move(act)](const QByteArray& command) {
      if (command.startsWith("ATDT")) QTimer::singleShot(0, &Modem, act);
      return QByteArray();
    };
    Dialer().Click(QStringLiteral("cmdNewDial"));
  }
  static bool IsDialing() { return Dialer().Text(QStringLiteral("lblStatus")).startsWith(QStringLiteral("Dialing")); }
  static void HangUp() { Dialer().Click(QStringLiteral("cmdHangup")); }

  ProgramFixture Program;
  PlayedModem Modem;
};
