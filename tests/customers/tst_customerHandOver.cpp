// The rules of the customer screen: the checks of its boxes, and what it hands on to the invoice and the telephone.
#include "customers/EditorFixture.h"

using namespace Qt::StringLiterals;
using Box = CustomerBox;

class CustomerHandOverTest : public EditorFixture {
  Q_OBJECT

 private Q_SLOTS:
  void init() { Begin(); }

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

  void theNumberToDialIsTheOneReadLast() {
    RecordText shown;
    shown.AcctNo = "1";
    shown.AcctName = "Acme";
    shown.AcctType = "Business";
    shown.Phone = "111";
    RecordText last = shown;
    last.AcctNo = "2";
    last.AcctName = "Bell";
    last.Phone = "222";
    OpenWith(shown.Bytes() + last.Bytes());
    QCOMPARE(Editor().NumberToDial(), u"111"_s);
    Editor().Find({EveryCustomer, "All"});
    QCOMPARE(Editor().ScreenCustomerName(), u"Acme"_s);
    QCOMPARE(Editor().NumberToDial(), u"222"_s);
    // Any load brings it back to whom the screen shows.
    Editor().ShowRecord(1);
    QCOMPARE(Editor().NumberToDial(), u"111"_s);
  }

  void theNameOfABusinessWithoutOneIsTheOneReadLast() {
    OpenWith(BusinessRecord("1", "Acme") + PersonRecord("2", "Ann", "Q", "Bell"));
    Type(Box::txtCustomer1, {});
    Editor().Find({EveryCustomer, "All"});
    Editor().SaveCustomer();
    QCOMPARE(Text(Box::txtCustomer1), u"Mr. Ann Q. Bell"_s);
    QCOMPARE(Shown(), QStringList());
  }
};

QTEST_GUILESS_MAIN(CustomerHandOverTest)
#include "tst_customerHandOver.moc"
