// The boxes of the customer screen: limits, keys, leaving, account types, address styles and lists.
#include "customers/CustomerDesk.h"

using namespace Qt::StringLiterals;

class CustomerBoxesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void typingIsLimitedToWhatARecordTakes_data() {
    QTest::addColumn<QString>("box");
    QTest::addColumn<int>("limit");
    const std::initializer_list<std::pair<int, int>> limits{{0, 20}, {1, 30}, {2, 35}, {3, 25},
                                                            {5, 10}, {6, 12}, {7, 30}, {11, 12}};
    for (const auto& [index, limit] : limits) {
      const QString name = u"txtCustomer_%1"_s.arg(index);
      QTest::newRow(qPrintable(name)) << name << limit;
    }
    QTest::newRow("cboCity") << u"cboCity"_s << 25;
    QTest::newRow("cboStates") << u"cboStates"_s << 2;
  }
  void typingIsLimitedToWhatARecordTakes() {
    QFETCH(QString, box);
    QFETCH(int, limit);
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(box, QString(limit, u'7'));
    desk.Driver().Type(u"8"_s);
    QCOMPARE(desk.Text(box), QString(limit, u'7'));
  }

  void aPersonsNameIsLimitedToo() {
    CustomerDesk desk(PersonRecord("1", "Ann", "Q", "Bell"));
    desk.Open();
    const std::initializer_list<std::pair<QString, int>> limits{
        {u"txtCustomer_8"_s, 15}, {u"txtCustomer_9"_s, 1}, {u"txtCustomer_10"_s, 25}, {u"cboTitle"_s, 10}};
    for (const auto& [box, limit] : limits) {
      desk.Fill(box, QString(limit + 3, u'x'));
      QCOMPARE(desk.Text(box).size(), limit);
    }
  }

  void aLongerNameFromTheFileIsShownAndSavedWhole() {
    const QByteArray name = "A name of more than thirty characters in all.";
    CustomerDesk desk(BusinessRecord("1", name));
    desk.Open();
    QCOMPARE(desk.Box(1), QString::fromLatin1(name));
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(desk.Customers().mid(20, 45), name);
  }

  void theDoubleQuoteIsRefusedInEveryBox_data() {
    QTest::addColumn<QString>("box");
    for (const int index : {0, 1, 2, 3, 5, 6, 7, 11}) {
      const QString name = u"txtCustomer_%1"_s.arg(index);
      QTest::newRow(qPrintable(name)) << name;
    }
    QTest::newRow("cboCity") << u"cboCity"_s;
    QTest::newRow("cboStates") << u"cboStates"_s;
  }
  void theDoubleQuoteIsRefusedInEveryBox() {
    QFETCH(QString, box);
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(box, u"5"_s);
    desk.Program.Answers.Ok(u"This character, (\") is invalid for this field"_s, u"Invalid Key entry"_s);
    desk.Driver().Type(u"\""_s);
    QCOMPARE(desk.Text(box), u"5"_s);
    QCOMPARE(desk.Program.Dialogs.Beeps, 1);
    QCOMPARE(desk.Focus(), box);
  }

  void theDoubleQuoteIsRefusedInAPersonsNameAndInternationalLinesToo_data() {
    QTest::addColumn<QString>("box");
    for (const auto* name : {"txtCustomer_8", "txtCustomer_9", "txtCustomer_10", "cboTitle", "txtAdd3", "txtAdd4"}) {
      QTest::newRow(name) << QString::fromLatin1(name);
    }
  }
  void theDoubleQuoteIsRefusedInAPersonsNameAndInternationalLinesToo() {
    QFETCH(QString, box);
    CustomerDesk desk(PersonRecord("1", "Ann", "Q", "Bell"));
    desk.Program.Tree.Write(u"/MyBusinessData.txt"_s, "\"Orange Grove\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    desk.Open();
    // Empty, so that a box of one character has room for the quote.
    desk.Fill(box, QString());
    desk.Program.Answers.Ok(u"This character, (\") is invalid for this field"_s, u"Invalid Key entry"_s);
    desk.Driver().Type(u"\""_s);
    QCOMPARE(desk.Text(box), QString());
    QCOMPARE(desk.Program.Dialogs.Beeps, 1);
    QCOMPARE(desk.Focus(), box);
    desk.Driver().Paste(u"\"x"_s);
    QCOMPARE(desk.Text(box), u"x"_s);
    QCOMPARE(desk.BoxesShown(), 1);
  }

  void whatAFileNameCannotHoldIsRefusedInANumberOfLetters() {
    CustomerDesk desk(Many(1));
    desk.Open();
    for (const QString& box : {u"txtCustomer_0"_s, u"txtCustomer_6"_s}) {
      desk.Fill(box, u"AB"_s);
      for (const QChar key : u",&.\\*/?"_s) {
        desk.Program.Answers.Ok(u"This character, (%1) is invalid for this field"_s.arg(key), u"Invalid Key entry"_s);
        desk.Driver().Type(QString(key));
      }
      QCOMPARE(desk.Text(box), u"AB"_s);
    }
    desk.Fill(u"txtCustomer_2"_s, u"12/3 B, Sw. & Co?*\\"_s);
    QCOMPARE(desk.Box(2), u"12/3 B, Sw. & Co?*\\"_s);
  }

  void aBoxThatHoldsANumberTakesThemAndTheSaveRefuses() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Fill(u"txtCustomer_0"_s, u"1001/2"_s);
    QCOMPARE(desk.Box(0), u"1001/2"_s);
    desk.Program.Answers.Ok({}, u"Invalid Account Number"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY(desk.Shown());
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    QCOMPARE(desk.Customers(), Many(2));
  }

  void pastedTextLosesWhatIsRefusedWithoutAMessage() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(u"txtCustomer_0"_s, u"A"_s);
    desk.Driver().Paste(u"B\"/C"_s);
    QCOMPARE(desk.Box(0), u"ABC"_s);
    desk.Fill(u"txtCustomer_2"_s, u"A"_s);
    desk.Driver().Paste(u"\"x\"/"_s);
    QCOMPARE(desk.Box(2), u"Ax/"_s);
    QCOMPARE(desk.BoxesShown(), 0);
    QCOMPARE(desk.Program.Dialogs.Beeps, 0);
  }

  void aDuplicateNumberThatIsReplacedDropsTheClick() {
    CustomerDesk desk(Many(3));
    desk.Open();
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    desk.Program.Answers.Yes(u"The Account Number is a duplicate\nClick Yes to Replace it\nEnter a different Number"_s,
                             u"Duplicate Account Number"_s);
    desk.Click(u"cmdNav_3"_s);
    QCOMPARE(desk.Box(0), QString());
    QCOMPARE(desk.Box(1), u"Name 1"_s);
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    QCOMPARE(desk.Customers(), Many(3));
  }

  void aDuplicateNumberThatIsReplacedStartsNoInvoice() {
    CustomerDesk desk(Many(3));
    desk.Program.Tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
    desk.Open();
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    desk.Program.Answers.Yes({}, u"Duplicate Account Number"_s);
    desk.Click(u"cmdCustomer_1"_s);
    QVERIFY(desk.Shown());
    QVERIFY(!ScreenDriver::IsShown(u"frmInvoice"_s));
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    QCOMPARE(desk.Customers(), Many(3));
  }

  void leavingTheNumberWithoutAFileMakesNone() {
    CustomerDesk desk;
    desk.OpenTold();
    desk.Fill(u"txtCustomer_0"_s, u"1001"_s);
    desk.Driver().PressKey(Qt::Key_Tab);
    QVERIFY(!desk.Program.Tree.Exists(u"/CustomerData.txt"_s));
  }

  void aDuplicateNumberThatIsKeptIsSaved() {
    CustomerDesk desk(Many(3));
    desk.Open();
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    desk.Program.Answers.No({}, u"Duplicate Account Number"_s);
    desk.Click(u"cmdNav_3"_s);
    QCOMPARE(desk.Box(0), u"3"_s);
    QCOMPARE(desk.Customers().mid(0, 20), "2                   ");
  }

  void aDuplicateNumberThatIsReplacedKeepsTheScreenFromTheMenu() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Fill(u"txtCustomer_6"_s, u"555-0100"_s);
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    desk.Program.Answers.Yes({}, u"Duplicate Account Number"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY(desk.Shown());
    QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
    QCOMPARE(desk.Box(0), QString());
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    QCOMPARE(desk.Customers(), Many(2));
    desk.Program.Answers.Ok(u"Telephone Number will be used as Acct No."_s, u"Account not Entered"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY2(!desk.Shown(), "the next click runs");
    QCOMPARE(desk.Customers().mid(0, 20), "555-0100            ");
  }

  void aDuplicateNumberThatIsReplacedKeepsTheNewRecordFromBeingCancelled() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Newcomer"_s);
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    desk.Program.Answers.Yes({}, u"Duplicate Account Number"_s);
    desk.Click(u"cmdCustomer_13"_s);
    QVERIFY(desk.Sees(u"cmdCustomer_13"_s));
    QCOMPARE(desk.Box(0), QString());
    QCOMPARE(desk.Box(1), u"Newcomer"_s);
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    desk.Click(u"cmdCustomer_13"_s);
    QVERIFY2(!desk.Sees(u"cmdCustomer_13"_s), "the next click runs");
    QCOMPARE(desk.Box(1), u"Name 2"_s);
    QCOMPARE(desk.Customers(), Many(2));
  }

  void theCustomersOwnNumberIsNoDuplicate() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Fill(u"txtCustomer_0"_s, u"1"_s);
    desk.Driver().PressKey(Qt::Key_Tab);
    QCOMPARE(desk.BoxesShown(), 0);
  }

  void aTelephoneThatBecomesTheNumberIsNotTestedForADuplicate() {
    CustomerDesk desk(BusinessRecord("1", "One") + BusinessRecord("555-0100", "Two"));
    desk.Open();
    desk.Fill(u"txtCustomer_0"_s, QString());
    desk.Fill(u"txtCustomer_6"_s, u"555-0100"_s);
    desk.Program.Answers.Ok({}, u"Account not Entered"_s);
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(desk.Box(0), u"555-0100"_s);
    QCOMPARE(desk.Customers().mid(0, 20), "555-0100            ");
  }

  void aBoxThatHoldsAMustIsEmptiedWhenItIsEntered() {
    RecordText record;
    record.AcctNo = "Must A";
    record.AcctName = "It Must be";
    record.Phone = "Must";
    record.AcctType = "Business";
    CustomerDesk desk(record.Bytes());
    desk.Open();
    desk.Click(u"txtCustomer_0"_s);
    QCOMPARE(desk.Box(0), QString());
    desk.Click(u"txtCustomer_6"_s);
    QCOMPARE(desk.Box(6), QString());
    desk.Click(u"txtCustomer_1"_s);
    QCOMPARE(desk.Box(1), QString());
    desk.Program.Answers.Ok({}, u"No Name Entered"_s);
    desk.Click(u"txtCustomer_2"_s);
  }

  void theTypeTogglesOnlyTheBoxesUntilTheNextSave() {
    CustomerDesk desk(BusinessRecord("1", "Acme") + BusinessRecord("2", "Two"));
    desk.Open();
    const QStringList ofPerson{u"cboTitle"_s, u"txtCustomer_8"_s, u"txtCustomer_9"_s, u"txtCustomer_10"_s};
    QVERIFY(desk.Sees(u"txtCustomer_1"_s));
    for (const QString& box : ofPerson) QVERIFY2(!desk.Sees(box), qPrintable(box));
    desk.Click(u"cmdAcctType"_s);
    QCOMPARE(desk.Text(u"lbLType"_s), u"Individual"_s);
    QVERIFY(!desk.Sees(u"txtCustomer_1"_s));
    for (const QString& box : ofPerson) QVERIFY2(desk.Sees(box), qPrintable(box));
    QCOMPARE(desk.Customers().mid(314, 10), "Business  ");
    desk.Fill(u"txtCustomer_8"_s, u"Ann"_s);
    desk.Fill(u"txtCustomer_10"_s, u"Bell"_s);
    desk.Driver().PickEntry(u"cboTitle"_s, 3);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Customers().mid(314, 10), "Individual");
    QCOMPARE(desk.Customers().mid(263, 10), "Ms        ");
    QCOMPARE(desk.Text(u"lbLType"_s), u"Business"_s);
  }

  void anIndividualWithAnEmptyHiddenNameFailsAtTheName() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, QString());
    desk.Program.Answers.Ok({}, u"No Name Entered"_s);
    desk.Click(u"cmdAcctType"_s);
    desk.Program.Answers.Ok(u"The Account Name Cannot be Blank"_s);
    desk.Click(u"cmdNav_2"_s);
  }

  void aNewIndividualIsSavedWithTheNameThatWasEnteredAsABusiness() {
    CustomerDesk desk(Many(1));
    desk.Open();
    QVERIFY2(desk.Text(u"lblHintPerson"_s).startsWith(u"An Individual needs an account name too"_s),
             "the screen says so");
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Ann Bell"_s);
    desk.Click(u"cmdAcctType"_s);
    desk.Fill(u"txtCustomer_8"_s, u"Ann"_s);
    desk.Fill(u"txtCustomer_10"_s, u"Bell"_s);
    desk.Click(u"cmdNav_0"_s);
    QCOMPARE(desk.BoxesShown(), 0);
    QCOMPARE(desk.Customers().mid(328 + 20, 9), "Ann Bell ");
    QCOMPARE(desk.Customers().mid(328 + 314, 10), "Individual");
  }

  void anIndividualNeedsBothNames() {
    CustomerDesk desk(PersonRecord("1", "Ann", "Q", "Bell"));
    desk.Open();
    desk.Fill(u"txtCustomer_10"_s, QString());
    desk.Program.Answers.Ok(u"Enter Account 1st and Last Name"_s, u"Karvex Invoicer"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY(desk.Shown());
    QCOMPARE(desk.Focus(), u"txtCustomer_8"_s);
  }

  void titlesAndStatesAreOffered() {
    CustomerDesk desk(PersonRecord("1", "Ann", "Q", "Bell"));
    desk.Open();
    const auto entries = [&](const QString& name) {
      const auto* combo = desk.Driver().Control<QComboBox>(name);
      QStringList texts;
      for (int i = 0; i < combo->count(); ++i) texts.append(combo->itemText(i));
      return texts;
    };
    QCOMPARE(entries(u"cboTitle"_s), (QStringList{u"Mr/Mrs"_s, u"Mr."_s, u"Mrs"_s, u"Ms"_s, u"Miss"_s}));
    const QStringList states = entries(u"cboStates"_s);
    QCOMPARE(states.size(), 50);
    QCOMPARE(states.constFirst(), u"AL"_s);
    QCOMPARE(states.constLast(), u"WY"_s);
    QVERIFY(desk.Driver().Control<QComboBox>(u"cboStates"_s)->isEditable());
    QVERIFY(desk.Driver().Control<QComboBox>(u"cboTitle"_s)->isEditable());
  }

  void theSuppliedListHoldsFiftyQuotedLines() {
    QFile file(QFINDTESTDATA("../supplied/StatesList.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QCOMPARE(content.size(), 300);
    QCOMPARE(content.first(12), "\"AL\"\r\n\"AK\"\r\n");
    QCOMPARE(content.last(12), "\"WI\"\r\n\"WY\"\r\n");
    QCOMPARE(content.count("\"\r\n"), 50);
  }

  void withoutAStatesListTheBoxIsEmpty() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Remove(u"/StatesList.txt"_s);
    desk.Open();
    QCOMPARE(desk.Driver().Control<QComboBox>(u"cboStates"_s)->count(), 0);
  }

  void aStatesListThatEndsEarlyEndsTheProgram() {
    CustomerDesk desk(Many(1));
    desk.Program.Tree.Write(u"/StatesList.txt"_s, QByteArray("\"AL\"\r\n").repeated(49));
    desk.OpenTold();
    QVERIFY(desk.Program.Answers.Last().Text.contains(u"StatesList.txt"));
    QVERIFY(desk.Program.Running().HasEnded());
    QCOMPARE(desk.Customers(), Many(1));
  }

  void theStateIsMirroredInItsHiddenBox() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Fill(u"cboStates"_s, u"NV"_s);
    QCOMPARE(desk.Box(4), u"NV"_s);
    QVERIFY(!desk.Sees(u"txtCustomer_4"_s));
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Customers().mid(170, 2), "NV");
    QCOMPARE(desk.Box(4), QString());
  }

  void citiesAreOfferedOnceAndSavedOnesJoin() {
    CustomerDesk desk(BusinessRecord("1", "One", "Reno") + BusinessRecord("2", "Two", "Elko") +
                      BusinessRecord("3", "Three", "Reno"));
    desk.Open();
    auto* cities = desk.Driver().Control<QComboBox>(u"cboCity"_s);
    QCOMPARE(cities->count(), 2);
    QCOMPARE(cities->currentText(), u"Reno"_s);
    desk.Driver().PickEntry(u"cboCity"_s, u"Elko"_s);
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(desk.Customers().mid(125, 5), "Elko ");
    desk.Fill(u"cboCity"_s, u"Fallon"_s);
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(cities->count(), 3);
    QCOMPARE(cities->itemText(2), u"Fallon"_s);
    QCOMPARE(cities->currentText(), u"Fallon"_s);
  }

  void setupsToggleChangesTheAddressBoxesAtOnce() {
    CustomerDesk desk(Many(1));
    desk.Open();
    QVERIFY(desk.Sees(u"fraUSAddress"_s));
    desk.Click(u"cmdCustomer_0"_s);
    ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
    ScreenDriver(u"frmSetup"_s).Click(u"cmdAddress"_s);
    const QWidget* screen = desk.Program.Built(ScreenName::frmNewCustomer);
    QVERIFY(screen->findChild<QWidget*>(u"fraUSAddress"_s)->isHidden());
    QVERIFY(!screen->findChild<QWidget*>(u"fraIntAddress"_s)->isHidden());
  }

  void inInternationalStyleTheLinesAreSavedAndShowInUsaStyle() {
    CustomerDesk desk(BusinessRecord("1", "One", "Reno"));
    desk.Program.Tree.Write(u"/MyBusinessData.txt"_s, "\"Orange Grove\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
    desk.Open();
    QVERIFY(!desk.Sees(u"fraUSAddress"_s));
    QVERIFY(desk.Sees(u"fraIntAddress"_s));
    QCOMPARE(desk.Text(u"txtAdd3"_s), u"Reno"_s);
    desk.Fill(u"txtAdd3"_s, u"75011 Paris"_s);
    desk.Fill(u"txtAdd4"_s, u"France"_s);
    desk.Click(u"cmdCustomer_0"_s);
    RecordText expected;
    expected.AcctNo = "1";
    expected.AcctName = "One";
    expected.CityLine = "75011 Paris";
    expected.CityShort = "Reno";
    expected.PostalLine = "France";
    expected.AcctType = "Business";
    QCOMPARE(desk.Customers(), expected.Bytes());
    ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
    ScreenDriver(u"frmSetup"_s).Click(u"cmdAddress"_s);
    desk.Program.Running().Hide(ScreenName::frmSetup);
    desk.Program.Running().Show(ScreenName::frmNewCustomer);
    QVERIFY(desk.Sees(u"fraUSAddress"_s));
    QCOMPARE(desk.Text(u"cboCity"_s), u"75011 Paris"_s);
    QCOMPARE(desk.Text(u"cboStates"_s), QString());
    QCOMPARE(desk.Box(5), u"France"_s);
  }

  void enterGoesOnToTheNextBox() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Click(u"txtCustomer_2"_s);
    desk.Driver().PressKey(Qt::Key_Return);
    QCOMPARE(desk.Focus(), u"txtCustomer_3"_s);
    desk.Driver().PressKey(Qt::Key_Return);
    QCOMPARE(desk.Focus(), u"cboCity"_s);
    desk.Driver().PressKey(Qt::Key_Return);
    QCOMPARE(desk.Focus(), u"cboStates"_s);
  }
};

QTEST_MAIN(CustomerBoxesTest)
#include "tst_customerBoxes.moc"
