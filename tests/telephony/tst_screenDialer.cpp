// The dialer on its screen, and the modem's side of it: who is called, the dial and its wait, the ways out.
#include <ctime>

#include "telephony/PhoneDesk.h"

using namespace Qt::StringLiterals;

namespace {

const QString Ready = u"Ready to Dial......"_s;
const QString Talk = u"Pickup Receiver - Then Click Hangup"_s;

}  // namespace

class ScreenDialer : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theCustomersNumberIsHandedOver_data();
  void theCustomersNumberIsHandedOver();
  void anIndividualIsCalledByHisName();
  void afterTheCompleteListTheLastNumberOfTheFileStandsUnderTheNameShown();
  void thePictureIsReachedAndRunByTheKeyboard();
  void theCaptionsAndTips();
  void itOpensReadyToDial();
  void itStandsOverTheCustomerScreen();
  void helpIsShownAndHidden();
  void thePrefixIsPutInFrontAndTakenAway();
  void thePrefixFollowsTheNumberThatStandsThere();
  void aDialEndsAtTheModemsOk();
  void whatTheModemSaidBeforeIsNoAnswer();
  void anyOtherReplyIsIgnored();
  void anOkInTwoPartsIsNeverSeen();
  void theProgramAnswersWhileItDials();
  void theWaitRests();
  void hangingUpEndsTheWait();
  void escapeHangsUpAndEnterDials();
  void aDroppedLineIsWaitedOnUntilTheUserHangsUp();
  void talkingLeavesTheLineUpUntilTheHangUp();
  void afterAHangUpTheSameCustomerIsDialedAgain();
  void hangingUpWithoutADialTellsTheModem();
  void closingTheWindowWhileDialingEndsTheProgram();
  void withoutAModemNothingFailsAndTheWaitIsTheUsersToEnd();
  void itOpensThePortOfSetupsBox();
  void aPortThatIsNoNumberIsSilent();
  void theTextsOfThePortStandAgainAtEachLoad();
};

void ScreenDialer::theCustomersNumberIsHandedOver_data() {
  QTest::addColumn<QByteArray>("phone");
  QTest::addColumn<QByteArray>("cell");
  QTest::addColumn<int>("answer");
  QTest::addColumn<QString>("number");
  QTest::newRow("phone alone") << QByteArray("111-1") << QByteArray() << -1 << u"111-1"_s;
  QTest::newRow("cell alone") << QByteArray() << QByteArray("222-2") << -1 << u"222-2"_s;
  QTest::newRow("both, yes") << QByteArray("111-1") << QByteArray("222-2") << 1 << u"111-1"_s;
  QTest::newRow("both, no") << QByteArray("111-1") << QByteArray("222-2") << 0 << u"222-2"_s;
  QTest::newRow("neither") << QByteArray() << QByteArray() << -1 << QString();
}

void ScreenDialer::theCustomersNumberIsHandedOver() {
  QFETCH(QByteArray, phone);
  QFETCH(QByteArray, cell);
  QFETCH(int, answer);
  QFETCH(QString, number);
  PhoneDesk desk(PhoneDesk::Customer(phone, cell));
  const QString question = u"Click YES to dial Phone,\nClick NO to dial Cell"_s;
  if (answer == 1) desk.Program.Answers.Yes(question, u"Select Phone or Cell"_s);
  if (answer == 0) desk.Program.Answers.No(question, u"Select Phone or Cell"_s);
  const ScreenDriver dialer = desk.Open();
  QCOMPARE(dialer.Text(u"lblName"_s), u"Bay Farm"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), number);
}

void ScreenDialer::anIndividualIsCalledByHisName() {
  RecordText record;
  record.AcctNo = "7";
  record.AcctName = "kept";
  record.FirstName = "Ann";
  record.MiddleInitial = "B";
  record.LastName = "Hill & Sons";
  record.AcctType = "Individual";
  record.Phone = "111-1";
  PhoneDesk desk(record.Bytes());
  const ScreenDriver dialer = desk.Open();
  QVERIFY2(dialer.Text(u"lblName"_s).contains(u"Ann"_s), qPrintable(dialer.Text(u"lblName"_s)));
  QVERIFY(dialer.Text(u"lblName"_s).endsWith(u"Hill & Sons"_s));
}

void ScreenDialer::afterTheCompleteListTheLastNumberOfTheFileStandsUnderTheNameShown() {
  RecordText last;
  last.AcctNo = "1002";
  last.AcctName = "Zinc Works";
  last.AcctType = "Business";
  last.Phone = "999-9";
  PhoneDesk desk(PhoneDesk::Customer("111-1") + last.Bytes());
  desk.Start();
  const ScreenDriver customers = PhoneDesk::Customers();
  customers.Trigger(u"mnuPrint"_s);
  customers.Click(u"cmdRetry"_s);
  ScreenDriver dialer = desk.Call();
  QCOMPARE(dialer.Text(u"lblName"_s), u"Bay Farm"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"999-9"_s);
  PhoneDesk::HangUp();
  // A customer who is loaded again has his own.
  customers.Click(u"cmdNav_0"_s);
  dialer = desk.Call();
  QCOMPARE(dialer.Text(u"lblName"_s), u"Bay Farm"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"111-1"_s);
}

void ScreenDialer::thePictureIsReachedAndRunByTheKeyboard() {
  PhoneDesk desk;
  desk.Start();
  const ScreenDriver customers = PhoneDesk::Customers();
  QCOMPARE(customers.Control(u"Image1_1"_s)->toolTip(), u"Call Account Phone or Cell"_s);
  customers.Click(u"txtCustomer_6"_s);
  for (int i = 0; i < 60 && customers.FocusName() != u"Image1_1"_s; ++i) customers.PressKey(Qt::Key_Tab);
  QCOMPARE(customers.FocusName(), u"Image1_1"_s);
  customers.PressKey(Qt::Key_Space);
  QVERIFY(PhoneDesk::Shown());
}

void ScreenDialer::theCaptionsAndTips() {
  PhoneDesk desk;
  const ScreenDriver dialer = desk.Open();
  QCOMPARE(dialer.Window()->windowTitle(), u"Call ..............."_s);
  const QList<QPair<QString, QString>> captions{
      {u"cmdNewDial"_s, u"&Dial"_s},
      {u"cmdCancel"_s, u"Pick up the receiver then &Click to Talk"_s},
      {u"cmdHangup"_s, u"D&isconnect/Cancel"_s},
      {u"ckDial1"_s, u"Dial a Prefix  1-"_s},
      {u"fraSpeedDial"_s, u"Add Speed Dial Name and No."_s},
      {u"cmdSpeedDialer_0"_s, u"&Save"_s},
      {u"cmdSpeedDialer_1"_s, u"Ca&ncel"_s},
      {u"cmdSpeedDialer_2"_s, u"Delete Selected Speed Dial &No"_s},
      {u"cmdSpeedDialer_3"_s, u"&Restore Original Call Recipient"_s},
      {u"cmdSpeedDialer_4"_s, u"&Load Current Player"_s},
      {u"cmdHelp"_s, u"Show Help"_s},
      {u"lblNote"_s,
       u"Not all MODEMS can perform dialing operations. Some UPS Units may use the same port as your modem and a dialing error may occur."_s}};
  for (const auto& [name, caption] : captions) QCOMPARE(dialer.Text(name), caption);
  QCOMPARE(dialer.Control(u"cmdCancel"_s)->toolTip(), u"Disconnect the Call"_s);
  QCOMPARE(dialer.Control(u"ckDial1"_s)->toolTip(), u"Click for Long Distance Calls"_s);
}

void ScreenDialer::itOpensReadyToDial() {
  PhoneDesk desk;
  const ScreenDriver dialer = desk.Open();
  QCOMPARE(dialer.Text(u"lblStatus"_s), Ready);
  QVERIFY(dialer.IsEnabled(u"cmdNewDial"_s));
  QVERIFY(!dialer.IsEnabled(u"cmdCancel"_s));
  QVERIFY(!dialer.IsEnabled(u"cmdSpeedDialer_2"_s));
  QVERIFY(!dialer.IsVisible(u"fraSpeedDial"_s));
  QVERIFY(!dialer.IsVisible(u"fraHelp"_s));
  QCOMPARE(dialer.Text(u"Image2"_s), u"\u25CF Line open"_s);
  QCOMPARE(dialer.Text(u"Text1"_s), u"Your Modem Comm Port Is 2."_s);
  QCOMPARE(dialer.Text(u"Label2"_s), u"COM Port # 2"_s);
  // The port is open since the start: nothing more is said to the modem.
  QVERIFY(desk.Modem.Commands().isEmpty());
}

void ScreenDialer::itStandsOverTheCustomerScreen() {
  PhoneDesk desk;
  desk.Open();
  QVERIFY(ScreenDriver::IsShown(u"frmNewCustomer"_s));
  QVERIFY(PhoneDesk::Dialer().Window()->isModal());
  const ScreenDriver customers(ScreenDriver::FindWindow(u"frmNewCustomer"_s));
  const QPoint button = customers.Control(u"cmdCustomer_0"_s)->mapTo(customers.Window(), QPoint(5, 5));
  QTest::mouseClick(customers.Window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, button);
  ScreenDriver::ProcessEvents();
  QVERIFY(ScreenDriver::IsShown(u"frmNewCustomer"_s));
  PhoneDesk::HangUp();
  QVERIFY(!PhoneDesk::Shown());
  QVERIFY(ScreenDriver::FindWindow(u"frmNewCustomer"_s)->isActiveWindow());
  PhoneDesk::Customers().Click(u"cmdCustomer_0"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenDialer::helpIsShownAndHidden() {
  PhoneDesk desk;
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdHelp"_s);
  QVERIFY(dialer.IsVisible(u"fraHelp"_s));
  QCOMPARE(dialer.Text(u"cmdHelp"_s), u"Hide Help"_s);
  dialer.Click(u"cmdHelp"_s);
  QVERIFY(!dialer.IsVisible(u"fraHelp"_s));
  QCOMPARE(dialer.Text(u"cmdHelp"_s), u"Show Help"_s);
}

void ScreenDialer::thePrefixIsPutInFrontAndTakenAway() {
  PhoneDesk desk;
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"ckDial1"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"1-321-555-0142"_s);
  dialer.Click(u"ckDial1"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"321-555-0142"_s);
}

void ScreenDialer::thePrefixFollowsTheNumberThatStandsThere() {
  PhoneDesk desk(PhoneDesk::Customer("1-321-0142"));
  desk.Program.Tree.Write(u"/SpeedNumbers.txt"_s, "\"Ann\"\r\n\"1-555\"\r\n\"Bob\"\r\n\"777\"\r\n");
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"ckDial1"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"1-1-321-0142"_s);
  dialer.Click(u"ckDial1"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"1-321-0142"_s);
  // Ticked before the number came: the untick takes away a prefix that it didn't put there.
  dialer.Click(u"ckDial1"_s);
  dialer.Click(u"cmdDialer_0"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"1-555"_s);
  dialer.Click(u"ckDial1"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"555"_s);
  dialer.Click(u"ckDial1"_s);
  dialer.Click(u"cmdDialer_1"_s);
  dialer.Click(u"ckDial1"_s);
  QCOMPARE(dialer.Text(u"lblNumber"_s), u"777"_s);
}

void ScreenDialer::aDialEndsAtTheModemsOk() {
  PhoneDesk desk;
  desk.Open();
  QString status;
  QString focus;
  bool dial = true;
  bool cancel = true;
  desk.DialAnd([&] {
    const ScreenDriver dialer = PhoneDesk::Dialer();
    status = dialer.Text(u"lblStatus"_s);
    focus = dialer.FocusName();
    dial = dialer.IsEnabled(u"cmdNewDial"_s);
    cancel = dialer.IsEnabled(u"cmdCancel"_s);
    desk.Modem.Say("\r\nOK\r\n");
  });
  QCOMPARE(status, u"Dialing..... 321-555-0142"_s);
  QCOMPARE(focus, u"cmdHangup"_s);
  QVERIFY(!dial);
  QVERIFY(!cancel);
  const ScreenDriver dialer = PhoneDesk::Dialer();
  QCOMPARE(desk.Modem.Commands(), QByteArrayList{"ATDT321-555-0142;"});
  QCOMPARE(dialer.Text(u"lblStatus"_s), Talk);
  QVERIFY(dialer.IsEnabled(u"cmdCancel"_s));
  QVERIFY(!dialer.IsEnabled(u"cmdNewDial"_s));
  QCOMPARE(dialer.FocusName(), u"cmdCancel"_s);
}

void ScreenDialer::whatTheModemSaidBeforeIsNoAnswer() {
  PhoneDesk desk;
  desk.Open();
  desk.Modem.Say("\r\nOK\r\n");
  ScreenDriver::ProcessEvents();
  bool dialing = false;
  desk.DialAnd([&] {
    desk.Modem.WhenHeard([&] {
      dialing = PhoneDesk::IsDialing();
      PhoneDesk::HangUp();
    });
  });
  QVERIFY(dialing);
}

void ScreenDialer::anyOtherReplyIsIgnored() {
  PhoneDesk desk;
  desk.Open();
  bool dialing = false;
  desk.DialAnd([&] {
    desk.Modem.Say("\r\nBUSY\r\n");
    desk.Modem.WhenHeard([&] {
      dialing = PhoneDesk::IsDialing();
      desk.Modem.Say("OK");
    });
  });
  QVERIFY(dialing);
  QCOMPARE(PhoneDesk::Dialer().Text(u"lblStatus"_s), Talk);
}

void ScreenDialer::anOkInTwoPartsIsNeverSeen() {
  PhoneDesk desk;
  desk.Open();
  bool dialing = false;
  desk.DialAnd([&] {
    desk.Modem.Say("\r\nO");
    desk.Modem.WhenHeard([&] {
      desk.Modem.Say("K\r\n");
      desk.Modem.WhenHeard([&] {
        dialing = PhoneDesk::IsDialing();
        PhoneDesk::HangUp();
      });
    });
  });
  QVERIFY(dialing);
  QVERIFY(!PhoneDesk::Shown());
}

void ScreenDialer::theProgramAnswersWhileItDials() {
  PhoneDesk desk;
  desk.Program.Tree.Write(u"/SpeedNumbers.txt"_s, "\"Ann\"\r\n\"555\"\r\n");
  desk.Open();
  desk.DialAnd([&] {
    const ScreenDriver dialer = PhoneDesk::Dialer();
    dialer.Click(u"cmdHelp"_s);
    QVERIFY(dialer.IsVisible(u"fraHelp"_s));
    dialer.Click(u"cmdDialer_0"_s);
    QCOMPARE(dialer.Text(u"lblNumber"_s), u"555"_s);
    desk.Program.Answers.No();
    dialer.Click(u"cmdSpeedDialer_2"_s);
    QVERIFY(PhoneDesk::IsDialing());
    desk.Modem.Say("OK");
  });
  QCOMPARE(PhoneDesk::Dialer().Text(u"lblStatus"_s), Talk);
}

void ScreenDialer::theWaitRests() {
  PhoneDesk desk;
  desk.Open();
  std::clock_t used = 0;
  desk.DialAnd([&] {
    const std::clock_t before = std::clock();
    QTimer::singleShot(400, &desk.Modem, [&, before] {
      used = std::clock() - before;
      PhoneDesk::HangUp();
    });
  });
  // Processor time, not the clock's: a wait that turned without rest would have used the whole time.
  QVERIFY2(used < CLOCKS_PER_SEC / 5, qPrintable(QString::number(used)));
}

void ScreenDialer::hangingUpEndsTheWait() {
  PhoneDesk desk;
  desk.Open();
  desk.DialAnd([] { PhoneDesk::HangUp(); });
  QVERIFY(!PhoneDesk::Shown());
  QVERIFY(desk.Program.Built(ScreenName::frmDialer) == nullptr);
  QCOMPARE(desk.Modem.Commands(), (QByteArrayList{"ATDT321-555-0142;", "ATH"}));
  QVERIFY(ScreenDriver::IsShown(u"frmNewCustomer"_s));
  QVERIFY(!desk.Program.Running().HasEnded());
}

void ScreenDialer::escapeHangsUpAndEnterDials() {
  PhoneDesk desk;
  const ScreenDriver dialer = desk.Open();
  QCOMPARE(dialer.FocusName(), u"cmdNewDial"_s);
  desk.Modem.Answer = [&desk](const QByteArray& command) {
    if (command.startsWith("ATDT")) {
      QTimer::singleShot(0, &desk.Modem, [] { PhoneDesk::Dialer().PressKey(Qt::Key_Escape); });
    }
    return QByteArray();
  };
  dialer.PressKey(Qt::Key_Return);
  QVERIFY(!PhoneDesk::Shown());
  QCOMPARE(desk.Modem.Commands(), (QByteArrayList{"ATDT321-555-0142;", "ATH"}));
}

void ScreenDialer::aDroppedLineIsWaitedOnUntilTheUserHangsUp() {
  PhoneDesk desk;
  desk.Open();
  bool dialing = false;
  std::clock_t used = 0;
  desk.DialAnd([&] {
    desk.Modem.Drop();
    const std::clock_t before = std::clock();
    QTimer::singleShot(400, &desk.Modem, [&, before] {
      used = std::clock() - before;
      dialing = PhoneDesk::IsDialing();
      PhoneDesk::HangUp();
    });
  });
  QVERIFY(dialing);
  QVERIFY2(used < CLOCKS_PER_SEC / 5, qPrintable(QString::number(used)));
  QVERIFY(!PhoneDesk::Shown());
  // The device is gone: the next showing is silent about it.
  PhoneDesk::Customers().Click(u"Image1_1"_s);
  QCOMPARE(PhoneDesk::Dialer().Text(u"Image2"_s), u"\u25CB Line closed"_s);
}

void ScreenDialer::talkingLeavesTheLineUpUntilTheHangUp() {
  PhoneDesk desk;
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdNewDial"_s);
  QCOMPARE(dialer.Text(u"lblStatus"_s), Talk);
  dialer.Click(u"cmdCancel"_s);
  QVERIFY(PhoneDesk::Shown());
  QCOMPARE(dialer.Text(u"lblStatus"_s), Talk);
  QCOMPARE(desk.Modem.Commands(), QByteArrayList{"ATDT321-555-0142;"});
  PhoneDesk::HangUp();
  QVERIFY(!PhoneDesk::Shown());
  QCOMPARE(desk.Modem.Commands(), (QByteArrayList{"ATDT321-555-0142;", "ATH"}));
}

void ScreenDialer::afterAHangUpTheSameCustomerIsDialedAgain() {
  PhoneDesk desk;
  ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdNewDial"_s);
  // The flag that this leaves is cleared at the next showing: the next dial isn't cancelled by it.
  dialer.Click(u"cmdCancel"_s);
  PhoneDesk::HangUp();
  dialer = desk.Call();
  QCOMPARE(dialer.Text(u"lblStatus"_s), Ready);
  QCOMPARE(dialer.Text(u"Image2"_s), u"\u25CF Line open"_s);
  dialer.Click(u"cmdNewDial"_s);
  QCOMPARE(dialer.Text(u"lblStatus"_s), Talk);
  QCOMPARE(desk.Modem.Commands(), QByteArrayList{"ATDT321-555-0142;"});
}

void ScreenDialer::hangingUpWithoutADialTellsTheModem() {
  PhoneDesk desk;
  desk.Open();
  PhoneDesk::HangUp();
  QVERIFY(!PhoneDesk::Shown());
  QCOMPARE(desk.Modem.Commands(), QByteArrayList{"ATH"});
  // The port is free: somebody else can have it.
  SerialLine other(PortsOn({{1, desk.Modem.Device()}}));
  other.SetPortOpen(true);
  QVERIFY(other.PortOpen());
}

void ScreenDialer::closingTheWindowWhileDialingEndsTheProgram() {
  PhoneDesk desk;
  desk.Open();
  desk.DialAnd([] { PhoneDesk::Dialer().CloseByUser(); });
  QVERIFY(desk.Program.Running().HasEnded());
  QVERIFY(!PhoneDesk::Shown());
  QVERIFY(desk.Program.Tree.Exists(u"/Backup/CustomerData.txt"_s));
  QCOMPARE(desk.Modem.Commands(), QByteArrayList{"ATDT321-555-0142;"});
}

void ScreenDialer::withoutAModemNothingFailsAndTheWaitIsTheUsersToEnd() {
  PhoneDesk desk;
  desk.Program.Ports = {};
  const ScreenDriver dialer = desk.Open();
  QCOMPARE(dialer.Text(u"Text1"_s), u"Your Modem Comm Port Is 1."_s);
  QCOMPARE(dialer.Text(u"Label2"_s), u"COM Port # 1"_s);
  QCOMPARE(dialer.Text(u"Image2"_s), u"\u25CB Line closed"_s);
  bool dialing = false;
  QTimer::singleShot(50, &desk.Modem, [&] {
    dialing = PhoneDesk::IsDialing();
    PhoneDesk::HangUp();
  });
  dialer.Click(u"cmdNewDial"_s);
  QVERIFY(dialing);
  QVERIFY(!PhoneDesk::Shown());
}

void ScreenDialer::itOpensThePortOfSetupsBox() {
  PhoneDesk desk;
  PlayedModem other;
  desk.Program.Ports = PortsOn({{2, desk.Modem.Device()}, {7, other.Device()}});
  desk.Program.StartAtMenu();
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  const ScreenDriver setup(u"frmSetup"_s);
  setup.Control<QTabWidget>(u"tabInfo"_s)->setCurrentIndex(2);
  setup.Control<QTabWidget>(u"SSTab2"_s)->setCurrentIndex(2);
  ScreenDriver::ProcessEvents();
  QCOMPARE(setup.Text(u"txtModemPort"_s), u"2"_s);
  setup.Fill(u"txtModemPort"_s, u"7"_s);
  setup.Click(u"cmdQuit"_s);
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  // While the found port is open it stays in use; the hang-up closes it.
  desk.Call().Click(u"cmdNewDial"_s);
  QCOMPARE(desk.Modem.Commands(), QByteArrayList{"ATDT321-555-0142;"});
  PhoneDesk::HangUp();
  desk.Call().Click(u"cmdNewDial"_s);
  QCOMPARE(other.Commands(), QByteArrayList{"ATDT321-555-0142;"});
}

void ScreenDialer::aPortThatIsNoNumberIsSilent() {
  PhoneDesk desk;
  desk.Program.StartAtMenu();
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  const ScreenDriver setup(u"frmSetup"_s);
  setup.Control<QTabWidget>(u"tabInfo"_s)->setCurrentIndex(2);
  setup.Control<QTabWidget>(u"SSTab2"_s)->setCurrentIndex(2);
  ScreenDriver::ProcessEvents();
  setup.Fill(u"txtModemPort"_s, u"none"_s);
  setup.Click(u"cmdQuit"_s);
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  desk.Call();
  PhoneDesk::HangUp();
  QCOMPARE(desk.Call().Text(u"Image2"_s), u"\u25CB Line closed"_s);
}

void ScreenDialer::theTextsOfThePortStandAgainAtEachLoad() {
  PhoneDesk desk;
  desk.Program.Tree.Write(u"/Phone.txt"_s, "#TRUE#\r\n5\r\n");
  desk.Open();
  PhoneDesk::HangUp();
  const ScreenDriver dialer = desk.Call();
  QCOMPARE(dialer.Text(u"Text1"_s), u"Your Modem Comm Port Is 2."_s);
  QCOMPARE(dialer.Text(u"Label2"_s), u"COM Port # 2"_s);
  // The found port is the one that is opened again, not the stored one.
  dialer.Click(u"cmdNewDial"_s);
  QCOMPARE(dialer.Text(u"lblStatus"_s), Talk);
}

QTEST_MAIN(ScreenDialer)
#include "tst_screenDialer.moc"
