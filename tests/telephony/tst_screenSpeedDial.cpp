// The ten speed-dial slots on the dialer's screen, up to the bytes of their file.
#include <cerrno>

#include "telephony/PhoneDesk.h"

using namespace Qt::StringLiterals;

namespace {

const QString File = u"/SpeedNumbers.txt"_s;
const QByteArray AnnAndBob = "\"Ann\"\r\n\"555\"\r\n\"Bob\"\r\n\"777\"\r\n";

QStringList Captions() {
  const ScreenDriver dialer = PhoneDesk::Dialer();
  QStringList captions;
  for (int i = 0; i < 10; ++i) captions.append(dialer.Text(u"cmdDialer_%1"_s.arg(i)));
  while (!captions.isEmpty() && captions.last().isEmpty()) captions.removeLast();
  return captions;
}

QString Recipient() {
  const ScreenDriver dialer = PhoneDesk::Dialer();
  return dialer.Text(u"lblName"_s) + u' ' + dialer.Text(u"lblNumber"_s);
}

struct Desk : PhoneDesk {
  explicit Desk(const QByteArray& speed = {}, const QByteArray& customer = Customer("321-555-0142"))
      : PhoneDesk(customer) {
    if (!speed.isEmpty()) Program.Tree.Write(File, speed);
  }
  QByteArray Bytes() const { return Program.Tree.Bytes(File); }
};

/// The file whole, the buttons and what they dial as they were.
void ExpectAnnAndBob(Desk& desk) {
  const ScreenDriver dialer = PhoneDesk::Dialer();
  const QString box = desk.Program.Answers.Last().Text;
  QVERIFY2(box.startsWith(u"/"_s) && box.contains(u"SpeedNumbers.txt"_s), qPrintable(box));
  QVERIFY(!desk.Program.Running().HasEnded());
  QCOMPARE(desk.Bytes(), AnnAndBob);
  QCOMPARE(Captions(), (QStringList{u"Ann"_s, u"Bob"_s}));
  dialer.Click(u"cmdDialer_0"_s);
  QCOMPARE(Recipient(), u"Ann 555"_s);
}

}  // namespace

class ScreenSpeedDial : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theSlotsBearTheirNames();
  void anEmptySlotOpensTheEntry();
  void aSavedEntryStandsOnItsButtonAndInTheFile();
  void enterGoesThroughTheEntryAndEscapeLeavesIt();
  void cancelEmptiesAndHidesTheEntry();
  void aSlotIsTakenAndDialed();
  void restoreBringsBackWhoStoodThereBeforeTheLastSlot_data();
  void restoreBringsBackWhoStoodThereBeforeTheLastSlot();
  void loadCurrentSavesTheRecipientInTheSlotChosenLast();
  void loadCurrentBeforeAnySlotUsesTheFirst();
  void loadCurrentDropsTheQuotesOfAStoredName();
  void aNamedSlotClickedDuringTheEntryIsOverwrittenByItsSave();
  void savingASlotWithoutANameDropsIt();
  void deleteAsksAndTakesTheEntryOut();
  void noToTheDeleteShutsItsButton();
  void aQuoteIsRefused();
  void aNameWithAnAmpersandIsShownAsItIs();
  void elevenPairsNameTheFileAndChangeNothing();
  void aNameWithoutItsNumberTellsWhatToDo();
  void aFullDiskKeepsFileAndEntry();
  void aFullDiskAtASaveLeavesTheScreenAsItWas();
  void aFullDiskAtALoadLeavesTheScreenAsItWas();
};

void ScreenSpeedDial::theSlotsBearTheirNames() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  QCOMPARE(Captions(), (QStringList{u"Ann"_s, u"Bob"_s}));
  // A name may be longer than its button.
  QCOMPARE(dialer.Control(u"cmdDialer_1"_s)->toolTip(), u"Call Bob"_s);
  QVERIFY(!dialer.IsVisible(u"fraSpeedDial"_s));
}

void ScreenSpeedDial::anEmptySlotOpensTheEntry() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_4"_s);
  QVERIFY(dialer.IsVisible(u"fraSpeedDial"_s));
  QCOMPARE(dialer.FocusName(), u"txtDialer_0"_s);
  QVERIFY(!dialer.IsEnabled(u"cmdSpeedDialer_2"_s));
  QCOMPARE(Recipient(), u"Bay Farm 321-555-0142"_s);
}

void ScreenSpeedDial::aSavedEntryStandsOnItsButtonAndInTheFile() {
  Desk desk;
  const ScreenDriver dialer = desk.Open();
  QVERIFY(!desk.Program.Tree.Exists(File));
  dialer.Click(u"cmdDialer_4"_s);
  dialer.Type(u"Cy, home"_s);
  dialer.Fill(u"txtDialer_1"_s, u"1-888"_s);
  dialer.Click(u"cmdSpeedDialer_0"_s);
  QCOMPARE(desk.Bytes(), "\"Cy, home\"\r\n\"1-888\"\r\n");
  QCOMPARE(dialer.Text(u"cmdDialer_4"_s), u"Cy, home"_s);
  QVERIFY(!dialer.IsVisible(u"fraSpeedDial"_s));
  QCOMPARE(dialer.Text(u"txtDialer_0"_s), QString());
  QCOMPARE(dialer.Text(u"txtDialer_1"_s), QString());
  // Until the next load it stays in its slot, then it closes up.
  dialer.Click(u"cmdDialer_4"_s);
  QCOMPARE(Recipient(), u"Cy, home 1-888"_s);
  PhoneDesk::HangUp();
  desk.Call();
  QCOMPARE(Captions(), QStringList{u"Cy, home"_s});
}

void ScreenSpeedDial::enterGoesThroughTheEntryAndEscapeLeavesIt() {
  Desk desk;
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_0"_s);
  dialer.Type(u"Cy\n888\n"_s);
  QCOMPARE(desk.Bytes(), "\"Cy\"\r\n\"888\"\r\n");
  QVERIFY(desk.Modem.Commands().isEmpty());
  dialer.Click(u"cmdDialer_1"_s);
  dialer.PressKey(Qt::Key_Escape);
  QVERIFY(PhoneDesk::Shown());
  QVERIFY(!dialer.IsVisible(u"fraSpeedDial"_s));
}

void ScreenSpeedDial::cancelEmptiesAndHidesTheEntry() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_4"_s);
  dialer.Type(u"Cy"_s);
  dialer.Fill(u"txtDialer_1"_s, u"888"_s);
  dialer.Click(u"cmdSpeedDialer_1"_s);
  QVERIFY(!dialer.IsVisible(u"fraSpeedDial"_s));
  QCOMPARE(dialer.Text(u"txtDialer_0"_s), QString());
  QCOMPARE(dialer.Text(u"txtDialer_1"_s), QString());
  QCOMPARE(Captions(), (QStringList{u"Ann"_s, u"Bob"_s}));
  QCOMPARE(desk.Bytes(), AnnAndBob);
}

void ScreenSpeedDial::aSlotIsTakenAndDialed() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_1"_s);
  QCOMPARE(Recipient(), u"Bob 777"_s);
  QVERIFY(dialer.IsEnabled(u"cmdSpeedDialer_2"_s));
  dialer.Click(u"cmdNewDial"_s);
  QCOMPARE(desk.Modem.Commands(), QByteArrayList{"ATDT777;"});
}

void ScreenSpeedDial::restoreBringsBackWhoStoodThereBeforeTheLastSlot_data() {
  QTest::addColumn<QStringList>("clicks");
  QTest::addColumn<QString>("shown");
  QTest::addColumn<QString>("restored");
  const QString bay = u"Bay Farm 321-555-0142"_s;
  QTest::newRow("no slot") << QStringList{u"ckDial1"_s} << u"Bay Farm 1-321-555-0142"_s << bay;
  QTest::newRow("a slot") << QStringList{u"cmdDialer_1"_s} << u"Bob 777"_s << bay;
  QTest::newRow("a slot, dialed") << QStringList{u"cmdDialer_1"_s, u"cmdNewDial"_s} << u"Bob 777"_s << bay;
  QTest::newRow("a second slot") << QStringList{u"cmdDialer_1"_s, u"cmdDialer_0"_s} << u"Ann 555"_s << u"Bob 777"_s;
  QTest::newRow("the prefix, then a slot")
      << QStringList{u"ckDial1"_s, u"cmdDialer_1"_s} << u"Bob 777"_s << u"Bay Farm 1-321-555-0142"_s;
}
void ScreenSpeedDial::restoreBringsBackWhoStoodThereBeforeTheLastSlot() {
  QFETCH(const QStringList, clicks);
  QFETCH(const QString, shown);
  QFETCH(const QString, restored);
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  for (const QString& click : clicks) dialer.Click(click);
  QCOMPARE(Recipient(), shown);
  dialer.Click(u"cmdSpeedDialer_3"_s);
  QCOMPARE(Recipient(), restored);
}

void ScreenSpeedDial::loadCurrentSavesTheRecipientInTheSlotChosenLast() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_7"_s);
  dialer.Click(u"cmdSpeedDialer_4"_s);
  QCOMPARE(desk.Bytes(), AnnAndBob + "\"Bay Farm\"\r\n\"321-555-0142\"\r\n");
  QCOMPARE(dialer.Text(u"cmdDialer_7"_s), u"Bay Farm"_s);
  QVERIFY(!dialer.IsVisible(u"fraSpeedDial"_s));
  QCOMPARE(dialer.Text(u"txtDialer_0"_s), QString());
}

void ScreenSpeedDial::loadCurrentBeforeAnySlotUsesTheFirst() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdSpeedDialer_4"_s);
  QCOMPARE(desk.Bytes(), "\"Bay Farm\"\r\n\"321-555-0142\"\r\n\"Bob\"\r\n\"777\"\r\n");
  QCOMPARE(Captions(), (QStringList{u"Bay Farm"_s, u"Bob"_s}));
}

void ScreenSpeedDial::loadCurrentDropsTheQuotesOfAStoredName() {
  RecordText customer;
  customer.AcctNo = "1001";
  customer.AcctName = "Bay \"Big\", Farm";
  customer.AcctType = "Business";
  customer.Phone = "3\"5, 1";
  Desk desk(AnnAndBob, customer.Bytes());
  const ScreenDriver dialer = desk.Open();
  QCOMPARE(Recipient(), u"Bay \"Big\", Farm 3\"5, 1"_s);
  dialer.Click(u"cmdDialer_2"_s);
  dialer.Click(u"cmdSpeedDialer_4"_s);
  QCOMPARE(desk.Bytes(), AnnAndBob + "\"Bay Big, Farm\"\r\n\"35, 1\"\r\n");
  const QStringList saved{u"Ann"_s, u"Bob"_s, u"Bay Big, Farm"_s};
  QCOMPARE(Captions(), saved);
  PhoneDesk::HangUp();
  desk.Call();
  QVERIFY(!desk.Program.Running().HasEnded());
  QCOMPARE(Captions(), saved);
}

void ScreenSpeedDial::aNamedSlotClickedDuringTheEntryIsOverwrittenByItsSave() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_4"_s);
  dialer.Type(u"Cy"_s);
  dialer.Fill(u"txtDialer_1"_s, u"888"_s);
  dialer.Click(u"cmdDialer_0"_s);
  QCOMPARE(Recipient(), u"Ann 555"_s);
  QVERIFY(dialer.IsVisible(u"fraSpeedDial"_s));
  dialer.Click(u"cmdSpeedDialer_0"_s);
  QCOMPARE(desk.Bytes(), "\"Cy\"\r\n\"888\"\r\n\"Bob\"\r\n\"777\"\r\n");
  QCOMPARE(Captions(), (QStringList{u"Cy"_s, u"Bob"_s}));
}

void ScreenSpeedDial::savingASlotWithoutANameDropsIt() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_4"_s);
  dialer.Fill(u"txtDialer_1"_s, u"888"_s);
  dialer.Click(u"cmdSpeedDialer_0"_s);
  QCOMPARE(desk.Bytes(), AnnAndBob);
  // A slot that had a name: the entry shows again over an empty one, so the last slot chosen is that.
  dialer.Click(u"cmdDialer_5"_s);
  dialer.Click(u"cmdDialer_0"_s);
  QVERIFY(dialer.IsVisible(u"fraSpeedDial"_s));
  dialer.Fill(u"txtDialer_1"_s, u"888"_s);
  dialer.Click(u"cmdSpeedDialer_0"_s);
  QCOMPARE(desk.Bytes(), "\"Bob\"\r\n\"777\"\r\n");
  QCOMPARE(dialer.Text(u"cmdDialer_0"_s), QString());
}

void ScreenSpeedDial::deleteAsksAndTakesTheEntryOut() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_0"_s);
  desk.Program.Answers.Yes(u"This will delete SpeedDial entry  Ann\nAre you Sure"_s, u"Delete Speed Dial"_s);
  dialer.Click(u"cmdSpeedDialer_2"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  QCOMPARE(desk.Bytes(), "\"Bob\"\r\n\"777\"\r\n");
  QCOMPARE(Captions(), QStringList{u"Bob"_s});
  // The button stays live on the same slot: the entry that moved up is the next that it takes out.
  QVERIFY(dialer.IsEnabled(u"cmdSpeedDialer_2"_s));
  desk.Program.Answers.Yes(u"This will delete SpeedDial entry  Bob\nAre you Sure"_s, u"Delete Speed Dial"_s);
  dialer.Click(u"cmdSpeedDialer_2"_s);
  QCOMPARE(desk.Bytes(), QByteArray());
}

void ScreenSpeedDial::noToTheDeleteShutsItsButton() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_0"_s);
  desk.Program.Answers.No(u"This will delete SpeedDial entry  Ann\nAre you Sure"_s, u"Delete Speed Dial"_s);
  dialer.Click(u"cmdSpeedDialer_2"_s);
  QCOMPARE(desk.Bytes(), AnnAndBob);
  QCOMPARE(Captions(), (QStringList{u"Ann"_s, u"Bob"_s}));
  QVERIFY(!dialer.IsEnabled(u"cmdSpeedDialer_2"_s));
}

void ScreenSpeedDial::aQuoteIsRefused() {
  Desk desk;
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_0"_s);
  for (const QString& box : {u"txtDialer_0"_s, u"txtDialer_1"_s}) {
    dialer.Fill(box, u"a"_s);
    desk.Program.Answers.Ok();
    dialer.Type(u"\""_s);
    dialer.Paste(u"b\"c"_s);
    QCOMPARE(dialer.Text(box), u"abc"_s);
  }
}

void ScreenSpeedDial::aNameWithAnAmpersandIsShownAsItIs() {
  Desk desk("\"Hill & Sons\"\r\n\"1\"\r\n");
  const ScreenDriver dialer = desk.Open();
  QVERIFY(dialer.Control<QPushButton>(u"cmdDialer_0"_s)->shortcut().isEmpty());
  QCOMPARE(dialer.Text(u"cmdDialer_0"_s), u"Hill && Sons"_s);
  dialer.Click(u"cmdDialer_0"_s);
  QCOMPARE(Recipient(), u"Hill & Sons 1"_s);
}

void ScreenSpeedDial::elevenPairsNameTheFileAndChangeNothing() {
  QByteArray eleven;
  for (int i = 0; i < 11; ++i) eleven += "\"N\"\r\n\"1\"\r\n";
  Desk desk(eleven);
  desk.Start();
  desk.Program.Answers.Ok();
  PhoneDesk::Customers().Click(u"Image1_1"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.startsWith(desk.Program.Tree.Path(u"/SpeedNumbers.txt"_s) +
                           u": It holds more than 10 speed-dial numbers. (error 9)"_s),
           qPrintable(text));
  // A data file beyond its limit ends the program, without the exit backup.
  QVERIFY(desk.Program.Running().HasEnded());
  QCOMPARE(desk.Bytes(), eleven);
  QVERIFY(!desk.Program.Tree.Exists(u"/Backup/CustomerData.txt"_s));
}

void ScreenSpeedDial::aNameWithoutItsNumberTellsWhatToDo() {
  const QByteArray damaged = AnnAndBob + "\"Cy\"\r\n";
  Desk desk(damaged);
  desk.Start();
  desk.Program.Answers.Ok();
  PhoneDesk::Customers().Click(u"Image1_1"_s);
  QCOMPARE(
      desk.Program.Answers.Last().Text,
      desk.Program.Tree.Path(u"/SpeedNumbers.txt"_s) +
          u": Its last name has no number. (error 62)\n\n"
          "The file can't be read as what it must be. The program ends and leaves all files as they are. "
          "Remove SpeedNumbers.txt from the program's data folder, which empties the speed-dial buttons, or mend it: "
          "two lines for each entry, its name and its number, and 10 entries at most. Then start the program again."_s);
  QVERIFY(desk.Program.Running().HasEnded());
  QCOMPARE(desk.Bytes(), damaged);
  // What it advises helps.
  desk.Program.Tree.Remove(File);
  desk.Open();
  QVERIFY(PhoneDesk::Shown());
  QCOMPARE(Captions(), QStringList());
}

void ScreenSpeedDial::aFullDiskKeepsFileAndEntry() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_0"_s);
  desk.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Ok();
  dialer.Click(u"cmdSpeedDialer_2"_s);
  QVERIFY(desk.Program.Answers.Last().Text.startsWith(u"/"_s));
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"SpeedNumbers.txt"_s));
  QCOMPARE(desk.Bytes(), AnnAndBob);
  QCOMPARE(Captions(), (QStringList{u"Ann"_s, u"Bob"_s}));
  QVERIFY(!desk.Program.Running().HasEnded());
}

void ScreenSpeedDial::aFullDiskAtASaveLeavesTheScreenAsItWas() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  dialer.Click(u"cmdDialer_4"_s);
  dialer.Fill(u"txtDialer_0"_s, u"Cy"_s);
  dialer.Fill(u"txtDialer_1"_s, u"888"_s);
  dialer.Click(u"cmdDialer_0"_s);  // The slot that the save would overwrite.
  desk.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  desk.Program.Answers.Ok();
  dialer.Click(u"cmdSpeedDialer_0"_s);
  ExpectAnnAndBob(desk);
  // What was typed is still there: once there is room, it is saved by another click.
  QVERIFY(dialer.IsVisible(u"fraSpeedDial"_s));
  QCOMPARE(dialer.Text(u"txtDialer_0"_s), u"Cy"_s);
  QCOMPARE(dialer.Text(u"txtDialer_1"_s), u"888"_s);
  dialer.Click(u"cmdSpeedDialer_0"_s);
  QCOMPARE(desk.Bytes(), "\"Cy\"\r\n\"888\"\r\n\"Bob\"\r\n\"777\"\r\n");
}

void ScreenSpeedDial::aFullDiskAtALoadLeavesTheScreenAsItWas() {
  Desk desk(AnnAndBob);
  const ScreenDriver dialer = desk.Open();
  desk.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  desk.Program.Answers.Ok();
  dialer.Click(u"cmdSpeedDialer_4"_s);
  ExpectAnnAndBob(desk);
  // The next entry begins empty.
  dialer.Click(u"cmdDialer_4"_s);
  QCOMPARE(dialer.Text(u"txtDialer_0"_s), QString());
  QCOMPARE(dialer.Text(u"txtDialer_1"_s), QString());
}

QTEST_MAIN(ScreenSpeedDial)
#include "tst_screenSpeedDial.moc"
