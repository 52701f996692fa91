// The rules of the customer screen: the ways from record to record, and deletes.
#include "customers/EditorFixture.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;
using Box = CustomerBox;

class CustomerMovesTest : public EditorFixture {
  Q_OBJECT

 private Q_SLOTS:
  void init() { Begin(); }

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

  void aStepDoesNotDependOnTheNumberOfCustomers() {
    OpenWith(Many(2000));
    m_desk->Device.Reset();
    Editor().Navigate(2);
    QCOMPARE(m_desk->Device.BytesRead(), 328 * 2);  // The record before it is overwritten, and the next one.
    QCOMPARE(m_desk->Device.Count(FailingDevice::Call::Write), 1);
  }
};

QTEST_GUILESS_MAIN(CustomerMovesTest)
#include "tst_customerMoves.moc"
