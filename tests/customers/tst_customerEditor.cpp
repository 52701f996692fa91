// The rules of the customer screen: load, save, add, delete, move, and every message.
#include <QtTest>

#include "customers/CustomerEditor.h"
#include "customers/CustomerFixture.h"
#include "customers/CustomerRecords.h"
#include "setup/BusinessProfile.h"
#include "support/ErrorOf.h"
#include "support/ScriptedDialogs.h"

using namespace Qt::StringLiterals;
using Box = CustomerBox;

class CustomerEditorTest : public QObject {
  Q_OBJECT

  struct Desk : CustomerTree {
    ScriptedDialogs Boxes;
    BusinessProfile Profile;
    CustomerOnScreen OnScreen;
    PlainView View;
    CustomerEditor Editor{Disk, Boxes, Profile, OnScreen, View};
  };
  std::unique_ptr<Desk> m_desk;

  void PutCustomers(const QByteArray& content) { m_desk->Put(u"/CustomerData.txt"_s, content); }
  QByteArray Customers() { return m_desk->Bytes(u"/CustomerData.txt"_s); }
  void Type(Box box, const QString& text) { m_desk->View.SetText(box, text); }
  QString Text(Box box) { return m_desk->View.Text(box); }
  CustomerEditor& Editor() { return m_desk->Editor; }
  QStringList Shown() { return m_desk->Boxes.Take(); }
  void Activate() {
    Editor().DecideAddressStyle();
    Editor().ApplyAccountType(u"Business"_s);
    Editor().BlankBoxes();
    Editor().Open();
  }
  void OpenWith(const QByteArray& content) {
    PutCustomers(content);
    Activate();
  }
  static QByteArray Many(int count) {
    QByteArray all;
    for (int i = 1; i <= count; ++i) all += BusinessRecord(QByteArray::number(i), "Name " + QByteArray::number(i));
    return all;
  }

 private Q_SLOTS:
  void init() {
    m_desk = std::make_unique<Desk>();
    m_desk->Profile.BusinessCity = u"Sparks"_s;
    m_desk->Profile.AddressStyleCaption = u"USA Style Address"_s;
  }

  void withoutAFileTheFirstCustomerIsStarted() {
    Activate();
    QCOMPARE(Shown(), QStringList{u"Create Customers: Your Customer File is Empty\nCreate your First Customer Now\n"
                                  "To create a Residential Account,\nclick the Toggle Acct Type Button\n"
                                  "Click Open Delivery Window to\nto create an automatic delivery"_s});
    QCOMPARE(Editor().CustomerCount(), 1);
    QCOMPARE(Editor().CustomerPointer(), 1);
    QCOMPARE(Text(Box::cboCity), u"Sparks"_s);
    QCOMPARE(Text(Box::lbLType), u"Business"_s);
    QCOMPARE(m_desk->View.Focus, u"box 0"_s);
    QCOMPARE(m_desk->View.Caption, u"Account Information for Customer No 1"_s);
    QVERIFY(!m_desk->Has(u"/CustomerData.txt"_s));
  }

  void theFirstSaveMakesTheFile() {
    Activate();
    Type(Box::txtCustomer0, u"1001"_s);
    Type(Box::txtCustomer1, u"Acme"_s);
    Editor().SaveCustomer();
    QVERIFY(Editor().SaveAccepted());
    RecordText expected;
    expected.AcctNo = "1001";
    expected.AcctName = "Acme";
    expected.CityLine = "Sparks";
    expected.CityShort = "Sparks";
    expected.AcctType = "Business";
    QCOMPARE(Customers(), expected.Bytes());
    QCOMPARE(m_desk->View.Cities, QStringList{u"Sparks"_s});
  }

  void aFileThatOnlyTheBackupHasIsRestored() {
    m_desk->Put(u"/Backup/CustomerData.txt"_s, BusinessRecord("1", "One"));
    Activate();
    QCOMPARE(Shown(), QStringList());
    QCOMPARE(Text(Box::txtCustomer1), u"One"_s);
  }

  void anEmptyFileCountsAsOneBlankRecord() {
    OpenWith({});
    QCOMPARE(Shown(), QStringList());
    QCOMPARE(Editor().CustomerCount(), 1);
    QCOMPARE(Editor().CustomerPointer(), 1);
    QCOMPARE(Text(Box::txtCustomer0), QString());
    QCOMPARE(m_desk->View.Focus, u"box 0"_s);
  }

  void aLoadFillsEveryBoxFromItsField() {
    RecordText record;
    record.AcctNo = " 1001";
    record.AcctName = "A name of more than thirty characters in all";
    record.Address1 = "1 Main St";
    record.Address2 = "Suite 2";
    record.CityLine = "Reno";
    record.CityShort = "short";
    record.State = "NV";
    record.PostalShort = "short";
    record.PostalLine = "89501";
    record.Phone = "775-555-0100";
    record.CellPhone = "775-555-0101";
    record.Email = "a@b.example";
    record.Title = "Ms";
    record.FirstName = "Ann";
    record.MiddleInitial = "Q";
    record.LastName = "Bell";
    record.AcctType = "Business";
    OpenWith(record.Bytes());
    QCOMPARE(Text(Box::txtCustomer0), u"1001"_s);
    QCOMPARE(Text(Box::txtCustomer1), u"A name of more than thirty characters in all"_s);
    QCOMPARE(Text(Box::txtCustomer2), u"1 Main St"_s);
    QCOMPARE(Text(Box::txtCustomer3), u"Suite 2"_s);
    QCOMPARE(Text(Box::txtCustomer4), u"NV"_s);
    QCOMPARE(Text(Box::txtCustomer5), u"89501"_s);
    QCOMPARE(Text(Box::txtCustomer6), u"775-555-0100"_s);
    QCOMPARE(Text(Box::txtCustomer7), u"a@b.example"_s);
    QCOMPARE(Text(Box::txtCustomer8), u"Ann"_s);
    QCOMPARE(Text(Box::txtCustomer9), u"Q"_s);
    QCOMPARE(Text(Box::txtCustomer10), u"Bell"_s);
    QCOMPARE(Text(Box::txtCustomer11), u"775-555-0101"_s);
    QCOMPARE(Text(Box::cboCity), u"Reno"_s);
    QCOMPARE(Text(Box::cboStates), u"NV"_s);
    QCOMPARE(Text(Box::cboTitle), u"Ms"_s);
    QCOMPARE(Text(Box::txtAdd3), u"Reno"_s);
    QCOMPARE(Text(Box::txtAdd4), u"89501"_s);
    QCOMPARE(Text(Box::lbLType), u"Business"_s);
    QCOMPARE(m_desk->View.Focus, u"select"_s);
    QCOMPARE(m_desk->View.Caption, u"Account Information for Customer No 1"_s);
    QCOMPARE(m_desk->View.SearchFramesHidden, 1);
    QCOMPARE(m_desk->View.AuxiliaryLoads, 1);
  }

  void aLongNameFromTheFileIsSavedWhole() {
    RecordText record;
    record.AcctNo = "1";
    record.AcctName = "A name of more than thirty characters in all.";
    record.AcctType = "Business";
    OpenWith(record.Bytes());
    Editor().SaveCustomer();
    QCOMPARE(Customers(), record.Bytes());
  }

  void theFlagIsCarriedThroughALoadAndASave() {
    RecordText record;
    record.AcctNo = "1";
    record.AcctName = "One";
    record.AcctType = "Business";
    record.Flag = "\x05\x01";
    record.Reserved = "xy";
    OpenWith(record.Bytes());
    Editor().SaveCustomer();
    QCOMPARE(Customers(), record.Bytes());
    Editor().AddNewCustomer({});
    Type(Box::txtCustomer0, u"2"_s);
    Type(Box::txtCustomer1, u"Two"_s);
    Editor().SaveCustomer();
    QCOMPARE(Customers().mid(328 + 324), QByteArray("\0\0xy", 4));
  }

  void aBlankTypeShowsAsIndividual() {
    RecordText record;
    record.AcctNo = "1";
    record.FirstName = "Ann";
    record.LastName = "Bell";
    OpenWith(record.Bytes());
    QCOMPARE(Text(Box::lbLType), u"Individual"_s);
    QVERIFY(!m_desk->View.Business);
    QCOMPARE(Editor().ScreenCustomerName(), u"Ann Bell"_s);
    QCOMPARE(m_desk->View.AuxCaption, u"Data for Ann Bell"_s);
  }

  void withoutNumberAndTelephoneNothingIsWrittenAndTheResultStays() {
    const QByteArray before = BusinessRecord("1", "One");
    OpenWith(before);
    Type(Box::txtCustomer0, {});
    Editor().SaveCustomer();
    QCOMPARE(Shown(), QStringList{u"No number: The Telephone Number cannot be blank"_s});
    QVERIFY(!Editor().SaveAccepted());
    QCOMPARE(m_desk->View.Focus, u"box 6"_s);
    Type(Box::txtCustomer0, u"1"_s);
    Editor().SaveCustomer();
    QVERIFY(Editor().SaveAccepted());
    const QByteArray saved = Customers();
    Type(Box::txtCustomer0, {});
    Editor().SaveCustomer();
    QVERIFY2(Editor().SaveAccepted(), "stays as the last save left it");
    QCOMPARE(Customers(), saved);
  }

  void aBlankNumberBecomesTheTelephoneUntestedForADuplicate() {
    OpenWith(BusinessRecord("555-1234", "One") + BusinessRecord("2", "Two"));
    Editor().ShowRecord(2);
    Type(Box::txtCustomer0, {});
    Type(Box::txtCustomer6, u" 555-1234 "_s);
    Editor().SaveCustomer();
    QCOMPARE(Shown(), QStringList{u"Account not Entered: Telephone Number will be used as Acct No."_s});
    QCOMPARE(Text(Box::txtCustomer0), u"555-1234"_s);
    QVERIFY(Editor().SaveAccepted());
    QCOMPARE(Customers().mid(328, 20), "555-1234            ");
    QCOMPARE(Customers().mid(328 + 207, 13), " 555-1234    ");
  }

  void aBusinessNeedsAName() {
    const QByteArray before = BusinessRecord("1", "One");
    OpenWith(before);
    Type(Box::txtCustomer1, {});
    Editor().SaveCustomer();
    QCOMPARE(Shown(), QStringList{u": The Account Name Cannot be Blank"_s});
    QVERIFY(!Editor().SaveAccepted());
    QCOMPARE(m_desk->View.Focus, u"box 1"_s);
    QCOMPARE(Customers(), before);
  }

  void anIndividualToggledToABusinessTakesHisNameFromTheBuffer() {
    OpenWith(PersonRecord("1", "Ann", "Q", "Bell"));
    Type(Box::txtCustomer1, {});
    Editor().ToggleAccountType();
    QCOMPARE(Text(Box::lbLType), u"Business"_s);
    Editor().SaveCustomer();
    QCOMPARE(Text(Box::txtCustomer1), u"Mr. Ann Q. Bell"_s);
    QVERIFY(Editor().SaveAccepted());
    QCOMPARE(Customers().mid(20, 16), "Mr. Ann Q. Bell ");
    QCOMPARE(Customers().mid(314, 10), "Business  ");
  }

  void thatNameComesFromWhateverWasScannedLast() {
    OpenWith(PersonRecord("1", "Ann", "Q", "Bell") + PersonRecord("2", "Bo", "", "Cole"));
    Type(Box::txtCustomer1, {});
    Editor().ToggleAccountType();
    Editor().LeaveAccountNo();
    Editor().SaveCustomer();
    QCOMPARE(Text(Box::txtCustomer1), u"Mr. Bo Cole"_s);
  }

  void anIndividualWithAnEmptyNameBoxFailsAtTheNameFirst() {
    OpenWith(PersonRecord("1", "Ann", "Q", "Bell"));
    Type(Box::txtCustomer1, {});
    Type(Box::txtCustomer8, {});
    Editor().SaveCustomer();
    QCOMPARE(Shown(), QStringList{u": The Account Name Cannot be Blank"_s});
    QVERIFY(!Editor().SaveAccepted());
  }

  void anIndividualNeedsFirstAndLastName_data() {
    QTest::addColumn<int>("box");
    QTest::newRow("first") << static_cast<int>(Box::txtCustomer8);
    QTest::newRow("last") << static_cast<int>(Box::txtCustomer10);
  }
  void anIndividualNeedsFirstAndLastName() {
    QFETCH(int, box);
    const QByteArray before = PersonRecord("1", "Ann", "Q", "Bell");
    OpenWith(before);
    Type(static_cast<Box>(box), {});
    Editor().SaveCustomer();
    QCOMPARE(Shown(), QStringList{u": Enter Account 1st and Last Name"_s});
    QVERIFY(!Editor().SaveAccepted());
    QCOMPARE(m_desk->View.Focus, u"box 8"_s);
    QCOMPARE(Customers(), before);
  }

  void aNumberThatCannotNameItsFilesIsRefused_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("cannot");
    QTest::newRow("separator") << u"1001/2"_s << u"hold / or \\, nor be . or .. alone"_s;
    QTest::newRow("the folder above") << u".."_s << u"hold / or \\, nor be . or .. alone"_s;
    QTest::newRow("beyond the code page") << u"\u04161"_s << u"hold letters outside the Western alphabets"_s;
  }
  void aNumberThatCannotNameItsFilesIsRefused() {
    QFETCH(QString, number);
    QFETCH(QString, cannot);
    const QByteArray before = BusinessRecord("1", "One");
    OpenWith(before);
    Type(Box::txtCustomer0, number);
    Editor().SaveCustomer();
    QCOMPARE(Shown(), QStringList{u"Invalid Account Number: The Account Number \"%1\" cannot be used.\n"
                                  "It also names the files of this account, so it cannot %2.\n"
                                  "Nothing was saved: enter a different Number"_s.arg(number, cannot)});
    QVERIFY(!Editor().SaveAccepted());
    QCOMPARE(m_desk->View.Focus, u"box 0"_s);
    QCOMPARE(Customers(), before);
  }

  void anInternationalRecordHasABlankStateAndShowsItsLinesInUsaStyle() {
    OpenWith(BusinessRecord("1", "One"));
    m_desk->Profile.AddressStyleCaption = u"International Style Address"_s;
    Editor().DecideAddressStyle();
    QVERIFY(!m_desk->View.Usa);
    QVERIFY(!m_desk->OnScreen.UsaAddress);
    Type(Box::cboCity, u"Reno"_s);
    Type(Box::cboStates, u"NV"_s);
    Type(Box::txtCustomer5, u"89501"_s);
    Type(Box::txtAdd3, u"75011 Paris"_s);
    Type(Box::txtAdd4, u"France"_s);
    Editor().SaveCustomer();
    RecordText expected;
    expected.AcctNo = "1";
    expected.AcctName = "One";
    expected.CityLine = "75011 Paris";
    expected.CityShort = "Reno";
    expected.PostalShort = "89501";
    expected.PostalLine = "France";
    expected.AcctType = "Business";
    QCOMPARE(Customers(), expected.Bytes());
    QCOMPARE(m_desk->View.Cities, (QStringList{u"Reno"_s, u"75011 Paris"_s}));
    m_desk->Profile.AddressStyleCaption = u"USA Style Address"_s;
    Editor().DecideAddressStyle();
    QVERIFY(m_desk->View.Usa);
    Editor().LoadCustomer();
    QCOMPARE(Text(Box::cboCity), u"75011 Paris"_s);
    QCOMPARE(Text(Box::cboStates), QString());
    QCOMPARE(Text(Box::txtCustomer5), u"France"_s);
  }

  void aUsaSaveTrimsTheStateAlone() {
    OpenWith(BusinessRecord("1", "One"));
    Type(Box::cboStates, u" N"_s);
    Type(Box::cboCity, u" Elko"_s);
    Type(Box::txtCustomer5, u" 89801"_s);
    Editor().SaveCustomer();
    QCOMPARE(Customers().mid(170, 2), "N ");
    QCOMPARE(Customers().mid(125, 6), " Elko ");
    QCOMPARE(Customers().mid(182, 7), " 89801 ");
    QVERIFY(m_desk->View.Cities.contains(u"Elko"_s));
  }

  void aFullDiskLeavesTheRecordAndTheBoxes() {
    const QByteArray before = Many(2);
    OpenWith(before);
    Type(Box::txtCustomer1, u"Typed"_s);
    m_desk->Device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { Editor().Navigate(2); }), 61);
    QCOMPARE(Customers(), before);
    QCOMPARE(Text(Box::txtCustomer1), u"Typed"_s);
    QCOMPARE(Editor().CustomerPointer(), 1);
  }

  void addingSavesAndStartsTheNextRecord() {
    OpenWith(PersonRecord("1", "Ann", "Q", "Bell"));
    Type(Box::cboStates, u"NV"_s);
    Type(Box::txtCustomer11, u"775"_s);
    Type(Box::txtCustomer2, u"1 Main St"_s);
    Editor().AddNewCustomer(u"555-0000"_s);
    QCOMPARE(Customers().mid(65, 10), "1 Main St ");
    QCOMPARE(Customers().size(), 328);
    QCOMPARE(Editor().CustomerCount(), 2);
    QCOMPARE(Editor().CustomerPointer(), 2);
    QCOMPARE(Text(Box::lbLType), u"Individual"_s);
    QCOMPARE(Text(Box::cboCity), u"Sparks"_s);
    QCOMPARE(Text(Box::cboStates), u"NV"_s);
    QCOMPARE(Text(Box::txtCustomer2), QString());
    QCOMPARE(Text(Box::txtCustomer11), QString());
    QCOMPARE(Text(Box::txtCustomer6), u"555-0000"_s);
    QCOMPARE(m_desk->View.Focus, u"box 0"_s);
    QCOMPARE(m_desk->View.Caption, u"Account Information for Customer No 2"_s);
  }

  void theAddedRecordExtendsTheFile() {
    OpenWith(BusinessRecord("1", "One"));
    Editor().AddNewCustomer({});
    Type(Box::txtCustomer0, u"2"_s);
    Type(Box::txtCustomer1, u"Two"_s);
    Editor().Navigate(0);
    QCOMPARE(Customers().size(), 656);
    QCOMPARE(Customers().mid(328, 25), "2                   Two  ");
    QCOMPARE(Editor().CustomerPointer(), 1);
  }

  void addingAddsEvenIfTheSaveFails() {
    const QByteArray before = BusinessRecord("1", "One");
    OpenWith(before);
    Type(Box::txtCustomer1, {});
    Editor().AddNewCustomer({});
    QCOMPARE(Shown(), QStringList{u": The Account Name Cannot be Blank"_s});
    QCOMPARE(Editor().CustomerPointer(), 2);
    QCOMPARE(Customers(), before);
  }

  void addingBlanksEveryBoxInBothStyles() {
    m_desk->Profile.AddressStyleCaption = u"International Style Address"_s;
    OpenWith(BusinessRecord("1", "One"));
    for (int i = 0; i <= static_cast<int>(Box::txtAdd4); ++i) Type(static_cast<Box>(i), u"typed"_s);
    QVERIFY(Editor().AddNewCustomer({}));
    for (int i = 0; i <= static_cast<int>(Box::txtAdd4); ++i) {
      const auto box = static_cast<Box>(i);
      const bool stays = box == Box::cboStates || box == Box::cboTitle;
      const QString expected = stays ? u"typed"_s : box == Box::cboCity ? u"Sparks"_s : QString();
      QVERIFY2(Text(box) == expected, qPrintable(QString::number(i)));
    }
  }

  void aNewCustomerTakesNoNameFromTheRecordBefore() {
    OpenWith(PersonRecord("1", "Ann", "Q", "Bell"));
    Editor().AddNewCustomer({});
    QCOMPARE(Text(Box::lbLType), u"Individual"_s);
    Type(Box::txtCustomer0, u"2"_s);
    Editor().ToggleAccountType();
    QCOMPARE(Text(Box::lbLType), u"Business"_s);
    Editor().SaveCustomer();
    QCOMPARE(Shown(), QStringList{u": The Account Name Cannot be Blank"_s});
    QCOMPARE(Customers(), PersonRecord("1", "Ann", "Q", "Bell"));
  }

  void afterACancelTheNextCustomerTakesNoStoredRecordsPlace() {
    OpenWith(Many(2));
    Editor().AddNewCustomer({});
    Type(Box::txtCustomer0, u"3"_s);
    Type(Box::txtCustomer1, u"Name 3"_s);
    Editor().Navigate(0);
    Editor().CancelAddNew();
    QCOMPARE(Editor().CustomerCount(), 2);
    Editor().AddNewCustomer({});
    QCOMPARE(Editor().CustomerPointer(), 4);
    Type(Box::txtCustomer0, u"4"_s);
    Type(Box::txtCustomer1, u"Four"_s);
    Editor().Navigate(0);
    QCOMPARE(Customers().size(), 4 * 328);
    QCOMPARE(Customers().mid(2 * 328, 28), "3                   Name 3  ");
    QCOMPARE(Customers().mid(3 * 328, 25), "4                   Four ");
  }

  void afterACancelADeleteDropsNoOtherRecord() {
    OpenWith(Many(2));
    Editor().AddNewCustomer({});
    Type(Box::txtCustomer0, u"3"_s);
    Type(Box::txtCustomer1, u"Name 3"_s);
    Editor().Navigate(0);
    const QByteArray third = Customers().mid(2 * 328);
    Editor().CancelAddNew();
    Editor().ShowRecord(1);
    m_desk->Boxes.Answers = {true};
    Editor().DeleteCustomer();
    QCOMPARE(Customers(), BusinessRecord("2", "Name 2") + third);
    QCOMPARE(Editor().CustomerCount(), 2);
  }

  void deletingTheCustomerBeingAddedKeepsTheOthers() {
    OpenWith(Many(2));
    Editor().AddNewCustomer({});
    m_desk->Boxes.Answers = {true};
    Editor().DeleteCustomer();
    QCOMPARE(Customers(), Many(2));
    QCOMPARE(Editor().CustomerCount(), 2);
    QCOMPARE(Editor().CustomerPointer(), 2);
  }

  void addingWithoutANumberIsSilentWhileTheSwitchesAreOff() {
    OpenWith(BusinessRecord("1", "One"));
    Type(Box::txtCustomer0, {});
    QVERIFY(!Editor().AddNewCustomer({}));
    QCOMPARE(Shown(), QStringList());
    QCOMPARE(Editor().CustomerCount(), 1);
    QCOMPARE(Text(Box::txtCustomer1), u"One"_s);
    Editor().BeepOnError = true;
    Editor().PromptOnError = true;
    Editor().AddNewCustomer({});
    QCOMPARE(Shown(), (QStringList{u"beep"_s, u": Enter an Account Number"_s}));
  }

  void aFullFileTakesNoMoreCustomers() {
    OpenWith(BusinessRecord("1", "One") + QByteArray(328 * 32766, ' '));
    QCOMPARE(Editor().CustomerCount(), 32767);
    const RuntimeError error = CaughtFrom([&] { Editor().AddNewCustomer({}); });
    QCOMPARE(error.Number(), 6);
    QCOMPARE(error.Text(), u"The customer file is full: it holds 32,767 customers."_s);
    QCOMPARE(error.Advice(), u"Delete one first. Nothing was lost."_s);
    QCOMPARE(Editor().CustomerCount(), 32767);
    QCOMPARE(Text(Box::txtCustomer1), u"One"_s);
    QCOMPARE(Customers().size(), 328 * 32767);
  }

  void cancellingAnAddReturnsToTheLastRecord() {
    OpenWith(Many(3));
    Editor().AddNewCustomer({});
    Type(Box::txtCustomer0, u"typed"_s);
    Editor().CancelAddNew();
    QCOMPARE(Editor().CustomerCount(), 3);
    QCOMPARE(Editor().CustomerPointer(), 3);
    QCOMPARE(Text(Box::txtCustomer0), u"3"_s);
    QCOMPARE(Customers().size(), 3 * 328);
  }

  void cancellingAfterTheAddedRecordWasSavedLeavesItInTheFile() {
    OpenWith(Many(2));
    Editor().AddNewCustomer({});
    Type(Box::txtCustomer0, u"3"_s);
    Type(Box::txtCustomer1, u"Three"_s);
    Editor().Navigate(0);
    Editor().CancelAddNew();
    QCOMPARE(Editor().CustomerCount(), 2);
    QCOMPARE(Editor().CustomerPointer(), 2);
    QCOMPARE(Customers().size(), 3 * 328);
  }

  void thePointerNeverFallsBelowOne() {
    OpenWith({});
    Editor().CancelAddNew();
    QCOMPARE(Editor().CustomerPointer(), 1);
    Editor().CancelAddNew();
    QCOMPARE(Editor().CustomerCount(), 0);
    QCOMPARE(Editor().CustomerPointer(), 1);
    Editor().Navigate(3);
    QCOMPARE(Editor().CustomerPointer(), 1);
    Editor().Navigate(8);
    QCOMPARE(Editor().CustomerPointer(), 1);
  }

  void navigationMoves_data() {
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("to");
    QTest::newRow("first") << 30 << 7 << 0 << 1;
    QTest::newRow("one back") << 30 << 7 << 1 << 6;
    QTest::newRow("one back from the first") << 30 << 1 << 1 << 1;
    QTest::newRow("one on") << 30 << 7 << 2 << 8;
    QTest::newRow("one on from the last wraps") << 30 << 30 << 2 << 1;
    QTest::newRow("last") << 30 << 7 << 3 << 30;
    QTest::newRow("half") << 31 << 7 << 4 << 15;
    QTest::newRow("quarter") << 31 << 7 << 5 << 7;
    QTest::newRow("three quarters, of the whole quarter") << 31 << 7 << 6 << 21;
    QTest::newRow("half of four") << 4 << 4 << 4 << 2;
    QTest::newRow("quarter of four") << 4 << 4 << 5 << 1;
    QTest::newRow("half of three stays") << 3 << 3 << 4 << 3;
    QTest::newRow("quarter of three stays") << 3 << 3 << 5 << 3;
    QTest::newRow("three quarters of three stay") << 3 << 2 << 6 << 2;
    QTest::newRow("ten back") << 30 << 17 << 7 << 7;
    QTest::newRow("ten back stops at the first") << 30 << 10 << 7 << 1;
    QTest::newRow("ten on") << 30 << 17 << 8 << 27;
    QTest::newRow("ten on stops at the last") << 30 << 25 << 8 << 30;
  }
  void navigationMoves() {
    QFETCH(int, count);
    QFETCH(int, from);
    QFETCH(int, index);
    OpenWith(Many(count));
    Editor().ShowRecord(from);
    Editor().Navigate(index);
    QTEST(Editor().CustomerPointer(), "to");
    QCOMPARE(Text(Box::txtCustomer0), QString::number(Editor().CustomerPointer()));
    QCOMPARE(m_desk->View.Caption,
             u"Account Information for Customer No "_s + QString::number(Editor().CustomerPointer()));
  }

  void withFewerThanFourRecordsTheJumpsSaveButDoNotReload() {
    OpenWith(Many(3));
    const int loads = m_desk->View.AuxiliaryLoads;
    Type(Box::txtCustomer1, u"Changed"_s);
    Editor().Navigate(4);
    QCOMPARE(m_desk->View.AuxiliaryLoads, loads);
    QCOMPARE(Customers().mid(20, 8), "Changed ");
  }

  void backFromTheFirstSavesAndReloadsIt() {
    OpenWith(Many(2));
    const int loads = m_desk->View.AuxiliaryLoads;
    Type(Box::txtCustomer1, u" Changed"_s);
    Editor().Navigate(1);
    QCOMPARE(Customers().mid(20, 9), " Changed ");
    QCOMPARE(Text(Box::txtCustomer1), u"Changed"_s);
    QCOMPARE(m_desk->View.AuxiliaryLoads, loads + 1);
  }

  void aFailedSaveDoesNotStopTheMove() {
    const QByteArray before = Many(2);
    OpenWith(before);
    Type(Box::txtCustomer1, {});
    Editor().Navigate(2);
    QCOMPARE(Shown(), QStringList{u": The Account Name Cannot be Blank"_s});
    QCOMPARE(Text(Box::txtCustomer1), u"Name 2"_s);
    QCOMPARE(Customers(), before);
  }

  void aDeleteIsAskedOnce() {
    const QByteArray before = Many(2);
    OpenWith(before);
    m_desk->Boxes.Answers = {false};
    Editor().DeleteCustomer();
    QCOMPARE(Shown(), QStringList{u"? Delete this Customer"_s});
    QCOMPARE(Customers(), before);
    QCOMPARE(m_desk->View.Focus, u"box 0"_s);
  }

  void aDeleteShowsTheRecordThatTakesThePlace() {
    OpenWith(Many(3));
    Editor().ShowRecord(2);
    m_desk->Boxes.Answers = {true};
    Editor().DeleteCustomer();
    QCOMPARE(Editor().CustomerCount(), 2);
    QCOMPARE(Editor().CustomerPointer(), 2);
    QCOMPARE(Text(Box::txtCustomer0), u"3"_s);
    QCOMPARE(m_desk->View.Focus, u"box 0"_s);
    QCOMPARE(m_desk->View.Accounts, (QStringList{u"Name 1"_s, u"Name 3"_s}));
    QCOMPARE(m_desk->View.Records, (QList<int>{1, 2}));
  }

  void deletingTheLastRecordMovesToTheNewLastOne() {
    OpenWith(Many(3));
    Editor().ShowRecord(3);
    m_desk->Boxes.Answers = {true};
    Editor().DeleteCustomer();
    QCOMPARE(Editor().CustomerPointer(), 2);
    QCOMPARE(Text(Box::txtCustomer0), u"2"_s);
    QCOMPARE(Customers(), Many(2));
  }

  void deletingTheOnlyRecordLeavesAnEmptyFileAndABlankRecord() {
    OpenWith(BusinessRecord("1", "One"));
    m_desk->Boxes.Answers = {true};
    Editor().DeleteCustomer();
    QCOMPARE(Customers(), QByteArray());
    QCOMPARE(Editor().CustomerCount(), 1);
    QCOMPARE(Editor().CustomerPointer(), 1);
    QCOMPARE(Text(Box::txtCustomer0), QString());
    QCOMPARE(Text(Box::txtCustomer1), QString());
  }

  void aDeleteKillsTheLedgerOfTheNumberInTheBox() {
    OpenWith(Many(2));
    m_desk->Put(u"/KVActiveAccounts/1.txt"_s, "ledger");
    m_desk->Put(u"/KVActiveAccounts/77.txt"_s, "ledger");
    m_desk->Put(u"/Backup/KVActiveAccounts/77.txt"_s, "ledger");
    Type(Box::txtCustomer0, u"77 "_s);
    m_desk->Boxes.Answers = {true};
    Editor().DeleteCustomer();
    QVERIFY(m_desk->Has(u"/KVActiveAccounts/1.txt"_s));
    QVERIFY(!m_desk->Has(u"/KVActiveAccounts/77.txt"_s));
    QVERIFY(!m_desk->Has(u"/Backup/KVActiveAccounts/77.txt"_s));
  }

  void aDeleteThatFailsOnceTheCustomerIsGoneShowsWhoTookThePlace() {
    OpenWith(Many(3));
    Editor().ShowRecord(2);
    m_desk->Boxes.Answers = {true};
    m_desk->Device.FailAt(FailingDevice::Call::FlushFolder, 2, EIO);
    QCOMPARE(ErrorOf([&] { Editor().DeleteCustomer(); }), 75);
    QCOMPARE(Editor().CustomerCount(), 2);
    QCOMPARE(Editor().CustomerPointer(), 2);
    QCOMPARE(Text(Box::txtCustomer0), u"3"_s);
    QCOMPARE(m_desk->View.Accounts, (QStringList{u"Name 1"_s, u"Name 3"_s}));
  }

  void aFirstSaveThatFailsLeavesNoFile() {
    Activate();
    Type(Box::txtCustomer0, u"1001"_s);
    Type(Box::txtCustomer1, u"Acme"_s);
    m_desk->Device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { Editor().SaveCustomer(); }), 61);
    QVERIFY(!m_desk->Has(u"/CustomerData.txt"_s));
    Editor().SaveCustomer();
    QCOMPARE(Customers().size(), 328);
  }

  void aDuplicateNumberIsReplacedOrKept() {
    OpenWith(Many(2));
    Type(Box::txtCustomer0, u"2"_s);
    m_desk->Boxes.Answers = {false};
    Editor().LeaveAccountNo();
    QCOMPARE(Shown(), QStringList{u"Duplicate Account Number? The Account Number is a duplicate\n"
                                  "Click Yes to Replace it\nEnter a different Number"_s});
    QCOMPARE(Text(Box::txtCustomer0), u"2"_s);
    m_desk->Boxes.Answers = {true};
    Editor().LeaveAccountNo();
    QCOMPARE(Text(Box::txtCustomer0), QString());
    QCOMPARE(m_desk->View.Focus, u"box 0"_s);
    Shown();
    Editor().LeaveAccountNo();
    Type(Box::txtCustomer0, u"3"_s);
    Editor().LeaveAccountNo();
    QCOMPARE(Shown(), QStringList());
  }

  void aShortNameIsToldOf() {
    OpenWith(Many(1));
    Type(Box::txtCustomer1, u"A"_s);
    Editor().LeaveName();
    QCOMPARE(Shown(), QStringList{u"No Name Entered: The Name Field Must be at least 2 Characters\n"
                                  "This is okay if Cancelling a New Entry\nClick Cancel AddNew Again"_s});
    Type(Box::txtCustomer1, u"AB"_s);
    Editor().LeaveName();
    QCOMPARE(Shown(), QStringList());
  }

  void aBoxThatHoldsAMustIsEmptiedOnEntry() {
    Type(Box::txtCustomer6, u"A Must"_s);
    Type(Box::txtCustomer1, u"must"_s);
    Editor().EnterBox(Box::txtCustomer6);
    Editor().EnterBox(Box::txtCustomer1);
    QCOMPARE(Text(Box::txtCustomer6), QString());
    QCOMPARE(Text(Box::txtCustomer1), u"must"_s);
  }

  void theAccountTextIsTheNameInTheBoxes() {
    OpenWith(PersonRecord("1", "Ann", "Q", "Bell"));
    QCOMPARE(Editor().AccountText(), u"Mr. Ann Bell"_s);
    Type(Box::cboTitle, {});
    QCOMPARE(Editor().AccountText(), u" Ann Bell"_s);
    Editor().ToggleAccountType();
    Type(Box::txtCustomer1, u"Acme"_s);
    QCOMPARE(Editor().AccountText(), u"Acme"_s);
  }

  void toTheInvoiceGoesTheCustomerAsJustSaved() {
    RecordText record;
    record.AcctNo = "1";
    record.AcctName = "Old name";
    record.Address1 = "1 Main St";
    record.Address2 = "Suite 2";
    record.CityLine = "Reno";
    record.State = "NV";
    record.PostalLine = "89501";
    record.Phone = "775-555-0100";
    record.AcctType = "Business";
    OpenWith(record.Bytes());
    Type(Box::txtCustomer1, u"New name"_s);
    Editor().SaveCustomer();
    QCOMPARE(Editor().ScreenCustomerName(), u"Old name"_s);
    const SoldTo customer = Editor().CustomerForInvoice();
    QCOMPARE(customer.Acct, u"1"_s);
    const std::array<QString, 7> expected{u"New name"_s, u"1 Main St"_s, u"Suite 2"_s,     u"Reno"_s,
                                          u"NV"_s,       u"89501"_s,     u"775-555-0100"_s};
    QVERIFY(customer.Line == expected);
  }

  void anIndividualGoesToTheInvoiceUnderHisPersonName() {
    OpenWith(PersonRecord("1", "Ann", "Q", "Bell"));
    Type(Box::txtCustomer10, u"Cole"_s);
    Editor().SaveCustomer();
    QCOMPARE(Editor().CustomerForInvoice().Line[0], u"Mr. Ann Q. Cole"_s);
  }

  void inInternationalStyleTheAddressLinesGoToTheInvoice() {
    m_desk->Profile.AddressStyleCaption = u"International Style Address"_s;
    OpenWith(BusinessRecord("1", "One"));
    Type(Box::txtAdd3, u"75011 Paris"_s);
    Type(Box::txtAdd4, u"France"_s);
    Type(Box::cboStates, u"NV"_s);
    Editor().SaveCustomer();
    const SoldTo customer = Editor().CustomerForInvoice();
    QCOMPARE(customer.Line[3], u"75011 Paris"_s);
    QCOMPARE(customer.Line[4], QString());
    QCOMPARE(customer.Line[5], u"France"_s);
  }

  void theNumberToDialIsAskedForOnlyWhereThereAreTwo_data() {
    QTest::addColumn<QByteArray>("phone");
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<bool>("yes");
    QTest::addColumn<QString>("number");
    QTest::newRow("phone") << QByteArray("111") << QByteArray() << true << u"111"_s;
    QTest::newRow("cell") << QByteArray() << QByteArray("222") << true << u"222"_s;
    QTest::newRow("none") << QByteArray() << QByteArray() << true << QString();
    QTest::newRow("both, yes") << QByteArray("111") << QByteArray("222") << true << u"111"_s;
    QTest::newRow("both, no") << QByteArray("111") << QByteArray("222") << false << u"222"_s;
  }
  void theNumberToDialIsAskedForOnlyWhereThereAreTwo() {
    QFETCH(QByteArray, phone);
    QFETCH(QByteArray, cell);
    QFETCH(bool, yes);
    RecordText record;
    record.AcctNo = "1";
    record.Phone = phone;
    record.CellPhone = cell;
    OpenWith(record.Bytes());
    const bool both = !phone.isEmpty() && !cell.isEmpty();
    if (both) m_desk->Boxes.Answers = {yes};
    QTEST(Editor().NumberToDial(), "number");
    QCOMPARE(Shown(), both ? QStringList{u"Select Phone or Cell? Click YES to dial Phone,\nClick NO to dial Cell"_s}
                           : QStringList());
  }

  void aStepDoesNotDependOnTheNumberOfCustomers() {
    OpenWith(Many(2000));
    m_desk->Device.Reset();
    Editor().Navigate(2);
    QCOMPARE(m_desk->Device.BytesRead(), 328 * 2);  // The record before it is overwritten, and the next one.
    QCOMPARE(m_desk->Device.Count(FailingDevice::Call::Write), 1);
  }
};

QTEST_GUILESS_MAIN(CustomerEditorTest)
#include "tst_customerEditor.moc"
