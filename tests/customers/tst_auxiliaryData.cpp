// The auxiliary boxes of an account and their headings, as the user meets them, and the bytes of their files.
#include "customers/CustomerDesk.h"

using namespace Qt::StringLiterals;

class AuxiliaryDataTest : public QObject {
  Q_OBJECT

  static QString File(const QString& account, int box) {
    return u"/AuxFiles/%1/AuxFile%2/Data.txt"_s.arg(account).arg(box);
  }
  static void OpenAux(CustomerDesk& desk) {
    desk.Open();
    desk.Driver().Trigger(u"mnuAux"_s);
  }
  static QString Aux(const CustomerDesk& desk, int box) { return desk.Text(u"txtAux_%1"_s.arg(box)); }
  using Step = std::function<void(CustomerDesk&)>;
  /// Three customers, of whom the second and the first have two boxes with a text each.
  struct DeskWithBoxes : CustomerDesk {
    DeskWithBoxes() : CustomerDesk(Many(3)) {
      for (const QString& account : {u"1"_s, u"2"_s}) {
        Program.Tree.Write(File(account, 0), "unreadable\r\n");
        Program.Tree.Write(File(account, 1), "other\r\n");
      }
    }
  };
  /// Which opening of a file it is that opens box 0 of the account while `act` runs, from 1: told by a run without any
  /// failure of it, on a desk of its own.
  static int OpeningOf(const QString& account, const Step& prepare, const Step& act) {
    DeskWithBoxes desk;
    prepare(desk);
    act(desk);
    const QStringList opened = desk.Program.Files.PathsOf(FailingDevice::Call::Open);
    return static_cast<int>(opened.indexOf(desk.Program.Tree.Path(File(account, 0)))) + 1;
  }
  static QString ToldOf(const CustomerDesk& desk, const QString& account) {
    return desk.Program.Tree.Path(File(account, 0)) +
           u": The file or its folder is write-protected or may not be used. (error 70)\n\nCheck that you may read and "_s
           u"write the file and its folder, then try again. Nothing was lost."_s;
  }
  static void Type(const CustomerDesk& desk, int box, const QString& text) { desk.Fill(u"txtAux_%1"_s.arg(box), text); }

 private Q_SLOTS:
  void captionsAndTipsAreTheProgramsOwn() {
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    const QStringList captions{
        u"Save &Headings"_s, u"Save &Aux Data"_s, u"Close Screen"_s,       u"Reload Aux Data"_s,       u"Hi&de"_s,
        u"Clear"_s,          u"Oops, Reload"_s,   u"&Show Next Account"_s, u"Show &Previous Account"_s};
    for (int i = 0; i < 9; ++i) QCOMPARE(desk.Text(u"cmdSaveAux_%1"_s.arg(i)), captions.at(i));
    QCOMPARE(desk.Text(u"ckSaveAux"_s), u"RETAIN Aux Data between Accounts"_s);
    QVERIFY(!desk.Driver().Control<QCheckBox>(u"ckSaveAux"_s)->isChecked());
    for (int i = 0; i < 6; ++i) {
      QCOMPARE(desk.Driver().Control(u"txtHeading_%1"_s.arg(i))->toolTip(), u"Applies to All Accounts"_s);
      QCOMPARE(desk.Driver().Control(u"txtAux_%1"_s.arg(i))->toolTip(), u"Dbl Click to show in Big Window"_s);
      QCOMPARE(desk.Text(u"lblClear_%1"_s.arg(i)), u"<Clear"_s);
    }
    QVERIFY(!desk.Sees(u"fraBig"_s));
  }

  void headingsAreReadAtEachShowing() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(u"/AuxHeadings.txt"_s, "Machines, old\r\n\"Keys\"\r\n\r\nDogs\nFive\r\nSix\r\n");
    OpenAux(desk);
    const QStringList first{u"Machines, old"_s, u"\"Keys\""_s, QString(), u"Dogs"_s, u"Five"_s, u"Six"_s};
    for (int i = 0; i < 6; ++i) QCOMPARE(desk.Text(u"txtHeading_%1"_s.arg(i)), first.at(i));
    desk.Click(u"cmdCustomer_0"_s);
    desk.Program.Tree.Write(u"/AuxHeadings.txt"_s, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    desk.GoFromMenu();
    QCOMPARE(desk.Text(u"txtHeading_0"_s), u"1"_s);
    QCOMPARE(desk.Text(u"txtHeading_5"_s), u"6"_s);
  }

  void withoutAFileTheHeadingsStayAsTheyAre() {
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    QCOMPARE(desk.Text(u"txtHeading_0"_s), QString());
    desk.Fill(u"txtHeading_0"_s, u"typed"_s);
    desk.Click(u"cmdCustomer_0"_s);
    desk.GoFromMenu();
    QCOMPARE(desk.Text(u"txtHeading_0"_s), u"typed"_s);
  }

  void headingsComeBackFromTheBackup() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(u"/Backup/AuxHeadings.txt"_s, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    OpenAux(desk);
    QCOMPARE(desk.Text(u"txtHeading_5"_s), u"6"_s);
  }

  void headingsAreSavedAsSixLinesAndTheirCopyGoes() {
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    desk.Program.Tree.Write(u"/Backup/AuxHeadings.txt"_s, "old");
    desk.Fill(u"txtHeading_0"_s, u"Machines, old"_s);
    desk.Fill(u"txtHeading_1"_s, u"\"Keys\""_s);
    desk.Fill(u"txtHeading_5"_s, u"Caf\u00e9"_s);
    desk.Click(u"cmdSaveAux_0"_s);
    QCOMPARE(desk.Program.Tree.Bytes(u"/AuxHeadings.txt"_s), "Machines, old\r\n\"Keys\"\r\n\r\n\r\n\r\nCaf\xe9\r\n");
    QVERIFY(!desk.Program.Tree.Exists(u"/Backup/AuxHeadings.txt"_s));
    QVERIFY(!desk.Program.Tree.Exists(File(u"1"_s, 0)));
  }

  void tooFewHeadingsAreADamagedFile() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(u"/AuxHeadings.txt"_s, "1\r\n2\r\n");
    desk.OpenTold();
    QVERIFY(desk.Program.Answers.Last().Text.contains(u"AuxHeadings.txt"));
    QVERIFY(desk.Program.Running().HasEnded());
    QCOMPARE(desk.Program.Tree.Bytes(u"/AuxHeadings.txt"_s), "1\r\n2\r\n");
  }

  void headingsThatMayNotBeReadLetTheScreenComeUp() {
    const QString headings = u"/AuxHeadings.txt"_s;
    const auto open = [&](CustomerDesk& desk) {
      desk.Program.Tree.Write(headings, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
      desk.Program.StartAtMenu();
      desk.Program.Files.Reset();
    };
    int opening = 0;
    {
      CustomerDesk probe(Many(1));
      open(probe);
      probe.GoFromMenu();
      const QStringList opened = probe.Program.Files.PathsOf(FailingDevice::Call::Open);
      opening = static_cast<int>(opened.indexOf(probe.Program.Tree.Path(headings))) + 1;
    }
    QVERIFY(opening > 0);
    CustomerDesk desk(Many(1));
    open(desk);
    desk.Program.Files.FailAt(FailingDevice::Call::Open, opening, EACCES);
    desk.Program.Answers.Ok();
    desk.GoFromMenu();
    QVERIFY(desk.Program.Answers.Last().Text.contains(u"AuxHeadings.txt"_s));
    QVERIFY(desk.Shown());
    QVERIFY(!desk.Program.Running().HasEnded());
    QCOMPARE(desk.Box(0), u"1"_s);
    desk.Driver().Trigger(u"mnuAux"_s);
    QCOMPARE(desk.Text(u"txtHeading_0"_s), QString());
    desk.Fill(u"txtHeading_2"_s, u"third"_s);
    desk.Click(u"cmdSaveAux_0"_s);
    QCOMPARE(desk.Program.Tree.Bytes(headings), "1\r\n2\r\nthird\r\n4\r\n5\r\n6\r\n");
    QCOMPARE(desk.Text(u"txtHeading_0"_s), u"1"_s);
  }

  void aDoubleClickEmptiesAHeading() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(u"/AuxHeadings.txt"_s, "One word\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    OpenAux(desk);
    desk.Driver().DoubleClick(u"txtHeading_0"_s);
    QCOMPARE(desk.Text(u"txtHeading_0"_s), QString());
    QCOMPARE(desk.Text(u"txtHeading_1"_s), u"2"_s);
    QCOMPARE(desk.Program.Tree.Bytes(u"/AuxHeadings.txt"_s), "One word\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    desk.Click(u"lblClear_1"_s);
    desk.Driver().DoubleClick(u"lblClear_1"_s);
    QCOMPARE(desk.Text(u"txtHeading_1"_s), u"2"_s);
  }

  void eachBoxIsAFileOfItsAccount() {
    CustomerDesk desk(Many(2));
    OpenAux(desk);
    Type(desk, 0, u"Mower\nTractor"_s);
    Type(desk, 5, u"say \"hi\", twice"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, 0)), "Mower\r\nTractor\r\n");
    for (int box = 1; box < 5; ++box) QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, box)), "\r\n");
    QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, 5)), "say \"hi\", twice\r\n");
    QVERIFY(!desk.Program.Tree.Exists(File(u"2"_s, 0)));
    QVERIFY(!desk.Program.Tree.Exists(u"/AuxHeadings.txt"_s));
  }

  void commasBreakLinesAndQuotesAreLost() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(File(u"1"_s, 0), "a, b\r\n\"c, d\" dropped,e\nlast");
    desk.Program.Tree.Write(File(u"1"_s, 3), "  blanks before\r\n\r\n");
    desk.Program.Tree.Write(File(u"1"_s, 4), "");
    OpenAux(desk);
    QCOMPARE(Aux(desk, 0), u"a\nb\nc, d\ne\nlast\n"_s);
    QCOMPARE(Aux(desk, 1), QString());
    QCOMPARE(Aux(desk, 3), u"blanks before\n\n"_s);
    QCOMPARE(Aux(desk, 4), QString());
  }

  void eachSaveAndLoadAddsALineEnd() {
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    Type(desk, 0, u"Mower"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    desk.Click(u"cmdSaveAux_3"_s);
    QCOMPARE(Aux(desk, 0), u"Mower\n"_s);
    QCOMPARE(Aux(desk, 1), u"\n"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, 0)), "Mower\r\n\r\n");
    desk.Click(u"cmdSaveAux_3"_s);
    QCOMPARE(Aux(desk, 0), u"Mower\n\n"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, 0)), "Mower\r\n\r\n\r\n");
  }

  void movingToAnotherCustomerShowsHisData() {
    CustomerDesk desk(Many(3));
    desk.Program.Tree.Write(File(u"1"_s, 0), "first\r\n");
    desk.Program.Tree.Write(File(u"2"_s, 0), "second\r\n");
    OpenAux(desk);
    QCOMPARE(Aux(desk, 0), u"first\n"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(Aux(desk, 0), u"second\n"_s);
    QVERIFY2(desk.Sees(u"fraAux"_s), "the frame stays while one moves");
    QCOMPARE(desk.Text(u"fraAux"_s), u"Data for Name 2"_s);
    QCOMPARE(desk.Text(u"lblAccount"_s), u"Name 1"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(Aux(desk, 0), QString());
  }

  void aBoxThatCannotBeReadLeavesTheCustomerShownWhole() {
    const Step prepare = [](CustomerDesk& desk) {
      OpenAux(desk);
      desk.Program.Files.Reset();
    };
    const Step act = [](CustomerDesk& desk) { desk.Click(u"cmdNav_2"_s); };
    const int opening = OpeningOf(u"2"_s, prepare, act);
    QVERIFY(opening > 0);
    DeskWithBoxes desk;
    prepare(desk);
    desk.Program.Files.AlsoFailAt(FailingDevice::Call::Open, opening, EACCES);
    desk.Program.Answers.Ok();
    act(desk);
    QCOMPARE(desk.Program.Answers.Last().Text, ToldOf(desk, u"2"_s));
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 2"_s);
    QCOMPARE(desk.Focus(), u"cmdCustomer_1"_s);
    QCOMPARE(Aux(desk, 0), QString());
    QVERIFY2(Aux(desk, 1) == u"other\n"_s, "the boxes behind it are filled: a save would empty their files");
    desk.Click(u"cmdSaveAux_1"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"2"_s, 0)), "unreadable\r\n");
    QCOMPARE(desk.Program.Tree.Bytes(File(u"2"_s, 1)), "other\r\n\r\n");
    desk.Fill(u"txtCustomer_0"_s, u"22"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    QVERIFY2(desk.Program.Tree.Bytes(File(u"22"_s, 0)) == "\r\n", "another account gets what the boxes show");
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    Type(desk, 0, u"x"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"2"_s, 0)), "x\r\n");
    Type(desk, 0, QString());
    desk.Click(u"cmdSaveAux_1"_s);
    QVERIFY2(desk.Program.Tree.Bytes(File(u"2"_s, 0)) == "\r\n", "a box that was typed into is the user's to empty");
    desk.Program.Tree.Write(File(u"2"_s, 0), "unreadable\r\n");
    desk.Click(u"cmdSaveAux_3"_s);
    QCOMPARE(Aux(desk, 0), u"unreadable\n"_s);
    Type(desk, 0, QString());
    desk.Click(u"cmdSaveAux_1"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"2"_s, 0)), "\r\n");
  }

  void aBoxThatCannotBeReadLetsTheScreenComeUp() {
    const Step prepare = [](CustomerDesk& desk) {
      desk.Program.StartAtMenu();
      desk.Program.Files.Reset();
    };
    const Step act = [](CustomerDesk& desk) { desk.GoFromMenu(); };
    const int opening = OpeningOf(u"1"_s, prepare, act);
    QVERIFY(opening > 0);
    DeskWithBoxes desk;
    prepare(desk);
    desk.Program.Files.AlsoFailAt(FailingDevice::Call::Open, opening, EACCES);
    desk.Program.Answers.Ok();
    act(desk);
    QCOMPARE(desk.Program.Answers.Last().Text, ToldOf(desk, u"1"_s));
    QVERIFY(desk.Shown());
    QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
    QVERIFY(!desk.Program.Running().HasEnded());
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 1"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
  }

  void aBoxThatCannotBeReadAfterADeleteLeavesTheListRight_data() {
    QTest::addColumn<bool>("deleteFails");
    QTest::newRow("the delete is done") << false;
    QTest::newRow("the delete has its own failure, which is told") << true;
  }
  void aBoxThatCannotBeReadAfterADeleteLeavesTheListRight() {
    QFETCH(bool, deleteFails);
    const Step prepare = [deleteFails](CustomerDesk& desk) {
      desk.Open();
      desk.Program.Files.Reset();
      if (deleteFails) desk.Program.Files.FailAt(FailingDevice::Call::FlushFolder, 2, EIO);
    };
    const auto deleteFirst = [](CustomerDesk& desk, bool told) {
      desk.Program.Answers.Yes(u"Delete this Customer"_s);
      if (told) desk.Program.Answers.Ok();
      desk.Driver().Trigger(u"mnuDelete"_s);
    };
    const int opening = OpeningOf(u"2"_s, prepare, [&](CustomerDesk& desk) { deleteFirst(desk, deleteFails); });
    QVERIFY(opening > 0);
    DeskWithBoxes desk;
    prepare(desk);
    desk.Program.Files.AlsoFailAt(FailingDevice::Call::Open, opening, EACCES);
    deleteFirst(desk, true);
    const QString told = desk.Program.Answers.Last().Text;
    if (deleteFails) {
      QVERIFY2(told.contains(u"(error 75)"_s) && told.contains(u"The customer is gone from the file all the same"_s),
               qPrintable(told));
    } else {
      QCOMPARE(told, ToldOf(desk, u"2"_s));
    }
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 1"_s);
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    const auto* list = desk.Driver().Control<QComboBox>(u"cboAccounts"_s);
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->itemText(0), u"Name 2"_s);
    QCOMPARE(list->itemText(1), u"Name 3"_s);
  }

  void movingSavesNoAuxiliaryData() {
    CustomerDesk desk(Many(2));
    OpenAux(desk);
    Type(desk, 0, u"typed"_s);
    desk.Click(u"cmdNav_2"_s);
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(Aux(desk, 0), QString());
    QVERIFY(!desk.Program.Tree.Exists(File(u"1"_s, 0)));
  }

  void retainedDataAreSavedToTheAccountOnTheScreen() {
    CustomerDesk desk(Many(2));
    desk.Program.Tree.Write(File(u"2"_s, 0), "second\r\n");
    OpenAux(desk);
    Type(desk, 0, u"first"_s);
    desk.Click(u"ckSaveAux"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(Aux(desk, 0), u"first"_s);
    desk.Click(u"cmdSaveAux_3"_s);
    QCOMPARE(Aux(desk, 0), u"first"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"2"_s, 0)), "first\r\n");
    QVERIFY(!desk.Program.Tree.Exists(File(u"1"_s, 0)));
  }

  void aNewAccountsFoldersAreMadeByTheSave() {
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Fill(u"txtCustomer_0"_s, u" 77 "_s);
    QVERIFY(!desk.Program.Tree.Exists(u"/AuxFiles/77"_s));
    Type(desk, 2, u"new"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"77"_s, 2)), "new\r\n");
    QCOMPARE(desk.Program.Tree.List(u"/AuxFiles/77"_s), (QStringList{u"AuxFile0/"_s, u"AuxFile1/"_s, u"AuxFile2/"_s,
                                                                     u"AuxFile3/"_s, u"AuxFile4/"_s, u"AuxFile5/"_s}));
  }

  void theFolderOfADeletedAccountServesTheNextOneOfItsNumber() {
    CustomerDesk desk(Many(2));
    OpenAux(desk);
    Type(desk, 0, u"left behind"_s);
    desk.Click(u"cmdSaveAux_1"_s);
    desk.Program.Answers.Yes();
    desk.Driver().Trigger(u"mnuDelete"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, 0)), "left behind\r\n");
    QCOMPARE(Aux(desk, 0), QString());
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Fill(u"txtCustomer_0"_s, u"1"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Another"_s);
    desk.Click(u"cmdNav_3"_s);
    QCOMPARE(desk.Box(1), u"Another"_s);
    QCOMPARE(Aux(desk, 0), u"left behind\n"_s);
  }

  void aChangedNumberLeavesTheFilesUnderTheOldOne() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(File(u"1"_s, 0), "old number\r\n");
    OpenAux(desk);
    desk.Fill(u"txtCustomer_0"_s, u"9"_s);
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(Aux(desk, 0), QString());
    QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, 0)), "old number\r\n");
  }

  void aNumberThatCanNameNoFolderIsRefused_data() {
    QTest::addColumn<QString>("number");
    QTest::newRow("blank") << QString();
    QTest::newRow("only blanks") << u"  "_s;
    QTest::newRow("another folder") << u"1001/2"_s;
    QTest::newRow("another alphabet") << u"\u0105"_s;
  }
  void aNumberThatCanNameNoFolderIsRefused() {
    QFETCH(QString, number);
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    // The digits stand first: a box that holds a number takes any key.
    desk.Fill(u"txtCustomer_0"_s, number);
    const auto before = desk.Program.Tree.Everything();
    Type(desk, 0, u"typed"_s);
    desk.Program.Answers.Ok();
    desk.Click(u"cmdSaveAux_1"_s);
    QVERIFY(desk.Program.Answers.Last().Text.contains(u"cannot be blank"));
    QCOMPARE(desk.Program.Tree.Everything(), before);
    QVERIFY(!desk.Program.Running().HasEnded());
    QCOMPARE(Aux(desk, 0), u"typed"_s);
    desk.Click(u"cmdSaveAux_3"_s);
    QCOMPARE(Aux(desk, 0), QString());
  }

  void aFullDiskLeavesTheOldData() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(File(u"1"_s, 0), "old\r\n");
    OpenAux(desk);
    Type(desk, 0, u"new"_s);
    desk.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    desk.Program.Answers.Ok();
    desk.Click(u"cmdSaveAux_1"_s);
    QVERIFY(desk.Program.Answers.Last().Text.contains(u"Data.txt"));
    QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, 0)), "old\r\n");
    QCOMPARE(Aux(desk, 0), u"new"_s);
    QVERIFY(!desk.Program.Running().HasEnded());
  }

  void aDoubleClickShowsTheBoxBigAndCountsFromOne() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(File(u"1"_s, 2), "third\r\n");
    OpenAux(desk);
    desk.Driver().DoubleClick(u"txtAux_2"_s);
    QVERIFY(desk.Sees(u"fraBig"_s));
    QCOMPARE(desk.Text(u"txtBig"_s), u"third\n"_s);
    QCOMPARE(desk.Text(u"lblEditing"_s), u"Editing Data Box # 3"_s);
    QCOMPARE(desk.Focus(), u"txtBig"_s);
    desk.Fill(u"txtBig"_s, u"edited"_s);
    QCOMPARE(Aux(desk, 2), u"third\n"_s);
    desk.Click(u"cmdSaveAux_6"_s);
    QCOMPARE(desk.Text(u"txtBig"_s), u"third\n"_s);
    desk.Click(u"cmdSaveAux_5"_s);
    QCOMPARE(desk.Text(u"txtBig"_s), QString());
    QCOMPARE(Aux(desk, 2), u"third\n"_s);
    desk.Fill(u"txtBig"_s, u"edited"_s);
    desk.Click(u"cmdSaveAux_4"_s);
    QVERIFY(!desk.Sees(u"fraBig"_s));
    QCOMPARE(Aux(desk, 2), u"edited"_s);
    QCOMPARE(desk.Focus(), u"txtAux_2"_s);
    QCOMPARE(desk.Program.Tree.Bytes(File(u"1"_s, 2)), "third\r\n");
  }

  void theBigWindowGoesIntoTheBoxOfTheCustomerThenShown() {
    CustomerDesk desk(Many(2));
    desk.Program.Tree.Write(File(u"1"_s, 1), "first\r\n");
    desk.Program.Tree.Write(File(u"2"_s, 1), "second\r\n");
    OpenAux(desk);
    desk.Driver().DoubleClick(u"txtAux_1"_s);
    desk.Click(u"cmdNav_2"_s);
    QVERIFY(desk.Sees(u"fraBig"_s));
    QCOMPARE(desk.Text(u"txtBig"_s), u"first\n"_s);
    QCOMPARE(Aux(desk, 1), u"second\n"_s);
    desk.Click(u"cmdSaveAux_6"_s);
    QCOMPARE(desk.Text(u"txtBig"_s), u"second\n"_s);
    desk.Fill(u"txtBig"_s, u"first"_s);
    desk.Click(u"cmdSaveAux_4"_s);
    QCOMPARE(Aux(desk, 1), u"first"_s);
    QCOMPARE(Aux(desk, 0), QString());
  }

  void aCustomerBeingAddedShowsTheBoxesOfTheOneBefore() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(File(u"1"_s, 0), "first\r\n");
    OpenAux(desk);
    desk.Driver().Trigger(u"mnuAdd"_s);
    QCOMPARE(desk.Box(0), QString());
    QCOMPARE(Aux(desk, 0), u"first\n"_s);
    QVERIFY(desk.Sees(u"fraAux"_s));
  }

  void theKeyboardOpensAndClosesTheBigWindow() {
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    Type(desk, 0, u"one"_s);
    desk.Driver().PressKey(Qt::Key_F2);
    QVERIFY(desk.Sees(u"fraBig"_s));
    QVERIFY2(!desk.Driver().IsEnabled(u"txtAux_0"_s), "what is covered can't be reached");
    desk.Driver().Type(u" two"_s);
    desk.Driver().PressKey(Qt::Key_Escape);
    QVERIFY(!desk.Sees(u"fraBig"_s));
    QVERIFY(desk.Driver().IsEnabled(u"txtAux_0"_s));
    QCOMPARE(Aux(desk, 0), u"one two"_s);
    desk.Driver().PressKey(Qt::Key_Escape);
    QVERIFY(!desk.Sees(u"fraAux"_s));
    QVERIFY(desk.Shown());
  }

  void theFirstBoxHasTheFocusAsTheNotesOpen() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Driver().PressKey(Qt::Key_U, Qt::ControlModifier);
    QCOMPARE(desk.Focus(), u"txtAux_0"_s);
    desk.Driver().PressKey(Qt::Key_U, Qt::ControlModifier);
    QVERIFY(!desk.Sees(u"fraAux"_s));
  }

  void nextAndPreviousDoNothing() {
    CustomerDesk desk(Many(3));
    OpenAux(desk);
    Type(desk, 0, u"typed"_s);
    const auto before = desk.Program.Tree.Everything();
    desk.Click(u"cmdSaveAux_7"_s);
    desk.Click(u"cmdSaveAux_8"_s);
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(Aux(desk, 0), u"typed"_s);
    QVERIFY(desk.Sees(u"fraAux"_s));
    QCOMPARE(desk.Program.Tree.Everything(), before);
  }

  void closeHidesTheFrame() {
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    desk.Click(u"cmdSaveAux_2"_s);
    QVERIFY(!desk.Sees(u"fraAux"_s));
    QVERIFY(desk.Shown());
  }

  void theFrameShownLastLiesOnTop() {
    CustomerDesk desk(Many(3));
    OpenAux(desk);
    desk.Click(u"Command1_2"_s);
    QVERIFY(desk.Sees(u"fraAux"_s));
    QVERIFY(!desk.Driver().IsEnabled(u"txtAux_0"_s));
    desk.Click(u"cmdRetry"_s);
    QVERIFY(desk.Driver().IsEnabled(u"txtAux_0"_s));
    Type(desk, 0, u"reached"_s);
    QCOMPARE(Aux(desk, 0), u"reached"_s);
  }

  void enterInABoxIsANewLineAndTabGoesOn() {
    CustomerDesk desk(Many(1));
    OpenAux(desk);
    Type(desk, 0, u"a\nb"_s);
    QCOMPARE(Aux(desk, 0), u"a\nb"_s);
    desk.Driver().PressKey(Qt::Key_Tab);
    QCOMPARE(desk.Focus(), u"txtHeading_1"_s);
  }
};

QTEST_MAIN(AuxiliaryDataTest)
#include "tst_auxiliaryData.moc"
