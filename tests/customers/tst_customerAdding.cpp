// The rules of the customer screen: adding a customer, and what a cancel leaves.
#include "customers/EditorFixture.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;
using Box = CustomerBox;

class CustomerAddingTest : public EditorFixture {
  Q_OBJECT

 private Q_SLOTS:
  void init() { Begin(); }

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
};

QTEST_GUILESS_MAIN(CustomerAddingTest)
#include "tst_customerAdding.moc"
