// The rules of the customer screen: opening, loading and saving, and every message of a save.
#include "customers/EditorFixture.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;
using Box = CustomerBox;

class CustomerEditorTest : public EditorFixture {
  Q_OBJECT

 private Q_SLOTS:
  void init() { Begin(); }

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
};

QTEST_GUILESS_MAIN(CustomerEditorTest)
#include "tst_customerEditor.moc"
