// Adding a customer on the screen as its user meets it, and what the cancel button stands for until it goes.
#include "customers/CustomerDesk.h"

using namespace Qt::StringLiterals;

class AddingOnScreenTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anAddedCustomerIsKeptOnceTheScreenMovesOffHim() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    QVERIFY(desk.Sees(u"cmdCustomer_13"_s));
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 2"_s);
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    desk.Driver().Type(u"2"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Two"_s);
    desk.Click(u"cmdNav_0"_s);
    QCOMPARE(desk.Customers().size(), 656);
    QCOMPARE(desk.Customers().mid(328, 24), "2                   Two ");
    QVERIFY2(desk.Sees(u"cmdCustomer_13"_s), "stays until the next activation");
  }

  void cancellingAfterThatTakesTheCountBackAndKeepsTheRecord() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Driver().Type(u"3"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Three"_s);
    desk.Click(u"cmdNav_0"_s);
    desk.Click(u"cmdCustomer_13"_s);
    QVERIFY(!desk.Sees(u"cmdCustomer_13"_s));
    QCOMPARE(desk.Box(0), u"2"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(desk.Customers().size(), 3 * 328);
  }

  void cancelDropsTheCustomerBeingAdded() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Driver().Type(u"3"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Three"_s);
    desk.Click(u"cmdCustomer_13"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Customers(), Many(2));
  }

  void addingWithoutANumberOnTheScreenIsSilent() {
    CustomerDesk desk{QByteArray()};
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    QCOMPARE(desk.BoxesShown(), 0);
    QVERIFY2(!desk.Sees(u"cmdCustomer_13"_s), "nothing was added that could be cancelled");
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 1"_s);
  }

  void addingWithoutANumberCostsNoStoredCustomer() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Click(u"cmdNav_3"_s);
    const QByteArray before = desk.Customers();
    desk.Fill(u"txtCustomer_0"_s, QString());
    desk.Driver().Trigger(u"mnuAdd"_s);
    QVERIFY(!desk.Sees(u"cmdCustomer_13"_s));
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    desk.Driver().Trigger(u"mnuAdd"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 3"_s);
    QCOMPARE(desk.Customers(), before);
  }

  void addingAgainWithoutANumberKeepsTheCancelOfTheFirst() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Driver().Trigger(u"mnuAdd"_s);
    QVERIFY(desk.Sees(u"cmdCustomer_13"_s));
    desk.Click(u"cmdCustomer_13"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
  }

  void addingOnAFullDiskCostsNoStoredCustomer() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Click(u"cmdNav_3"_s);
    const QByteArray before = desk.Customers();
    desk.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    desk.Program.Answers.Ok();
    desk.Driver().Trigger(u"mnuAdd"_s);
    QVERIFY(!desk.Sees(u"cmdCustomer_13"_s));
    desk.Program.Files.Reset();
    desk.Click(u"cmdCustomer_0"_s);
    desk.GoFromMenu();
    desk.Driver().Trigger(u"mnuAdd"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 3"_s);
    desk.Driver().Type(u"3"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Three"_s);
    desk.Click(u"cmdNav_0"_s);
    QCOMPARE(desk.Customers().size(), 3 * 328);
    QCOMPARE(desk.Customers().first(2 * 328), before);
  }

  void aFullFileTakesNoMoreAndOffersNoCancel() {
    CustomerDesk desk(BusinessRecord("1", "One") + QByteArray(328 * 32766, ' '));
    desk.Open();
    desk.Program.Answers.Ok(desk.Program.Tree.Path(u"/CustomerData.txt"_s) +
                            u": The customer file is full: it holds 32,767 customers. (error 6)\n\n"
                            "Delete one first. Nothing was lost."_s);
    desk.Driver().Trigger(u"mnuAdd"_s);
    QVERIFY(!desk.Sees(u"cmdCustomer_13"_s));
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(desk.Customers().size(), 328 * 32767);
  }

  void menuDuringAnAddDropsTheNewCustomer() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Driver().Type(u"3"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Three"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY(!desk.Shown());
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
    QCOMPARE(desk.Customers(), Many(2));
  }

  void selectingWhileCancelIsShownInvoicesTheCustomerBeforeTheAddedOne() {
    CustomerDesk desk(Many(3));
    AddFourthAndMoveOn(desk);
    QCOMPARE(desk.Box(0), u"1"_s);
    desk.Fill(u"txtCustomer_2"_s, u"1 Main St"_s);
    desk.Click(u"cmdCustomer_1"_s);
    const ScreenDriver invoice(u"frmInvoice"_s);
    QCOMPARE(invoice.Text(u"lblAcct"_s), u"3"_s);
    QCOMPARE(invoice.Text(u"lblCustomer_0"_s), u"Name 3"_s);
    QCOMPARE(desk.Customers().first(3 * 328), Many(3));
    QCOMPARE(desk.Customers().size(), 4 * 328);
    QCOMPARE(desk.BoxesShown(), 0);
  }

  void menuWhileCancelIsShownLosesWhatWasTypedOnTheCustomerInSight() {
    CustomerDesk desk(Many(3));
    AddFourthAndMoveOn(desk);
    desk.Fill(u"txtCustomer_2"_s, u"1 Main St"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
    QCOMPARE(desk.Customers().first(3 * 328), Many(3));
    QCOMPARE(desk.BoxesShown(), 0);
  }

  void onceTheMenuWasShownTheCustomerInSightIsInvoiced_data() {
    QTest::addColumn<QString>("move");
    QTest::addColumn<QString>("account");
    QTest::newRow("the first") << u"cmdNav_0"_s << u"1"_s;
    QTest::newRow("the added one") << u"cmdNav_3"_s << u"4"_s;
  }
  void onceTheMenuWasShownTheCustomerInSightIsInvoiced() {
    QFETCH(const QString, move);
    CustomerDesk desk(Many(3));
    AddFourthAndMoveOn(desk);
    desk.Click(u"cmdCustomer_0"_s);
    desk.GoFromMenu();
    QVERIFY(!desk.Sees(u"cmdCustomer_13"_s));
    desk.Click(move);
    desk.Click(u"cmdCustomer_1"_s);
    QTEST(ScreenDriver(u"frmInvoice"_s).Text(u"lblAcct"_s), "account");
  }

  void theHintTellsOfTheMenuBeforeASelection() {
    CustomerDesk desk(Many(1));
    desk.Open();
    QCOMPARE(
        desk.Text(u"lblHintAdding"_s),
        u"A new customer is kept once you move to another one. Then go to the menu and back before you type or "
        "select: as long as Cancel Add New is shown, Menu and Select change to the customer before the new one."_s);
    const QWidget* hint = desk.Driver().Control(u"lblHintAdding"_s);
    desk.Driver().Window()->resize(1024, 700);
    ScreenDriver::ProcessEvents();
    QVERIFY2(hint->height() >= hint->heightForWidth(hint->width()), "its last line is cut");
  }

  void aDeleteAfterARefusedNewCustomerWritesABlankRecord() {
    CustomerDesk desk(Many(2));
    AddThirdWithoutAName(desk);
    ExpectRefusal(desk);
    desk.Click(u"cmdNav_0"_s);
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(desk.Customers().size(), 2 * 328);
    desk.Program.Answers.Yes(u"Delete this Customer"_s);
    desk.Driver().Trigger(u"mnuDelete"_s);
    QCOMPARE(desk.Customers(), BusinessRecord("2", "Name 2") + RecordText().Bytes());
    // It is a record like any other, and goes by a delete.
    desk.Click(u"cmdNav_3"_s);
    QCOMPARE(desk.Box(0), QString());
    desk.Program.Answers.Yes(u"Delete this Customer"_s);
    desk.Driver().Trigger(u"mnuDelete"_s);
    QCOMPARE(desk.Customers(), BusinessRecord("2", "Name 2"));
  }

  void aSecondAddAfterARefusedOneLeavesABlankGap() {
    CustomerDesk desk(Many(2));
    AddThirdWithoutAName(desk);
    ExpectRefusal(desk);
    // The refusal had sent the focus to the name, and the new record takes it from there.
    desk.Program.Answers.Ok({}, u"No Name Entered"_s);
    desk.Driver().Trigger(u"mnuAdd"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 4"_s);
    desk.Fill(u"txtCustomer_0"_s, u"4"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Four"_s);
    desk.Click(u"cmdNav_0"_s);
    QCOMPARE(desk.Customers().size(), 4 * 328);
    QCOMPARE(desk.Customers().mid(2 * 328, 328), QByteArray(328, '\0'));
    QCOMPARE(desk.Customers().mid(3 * 328, 25), "4                   Four ");
  }

  void theMenuAfterARefusedNewCustomerKeepsTheFileWithoutBlanks() {
    CustomerDesk desk(Many(2));
    AddThirdWithoutAName(desk);
    ExpectRefusal(desk);
    desk.Click(u"cmdNav_0"_s);
    desk.Click(u"cmdCustomer_0"_s);
    desk.GoFromMenu();
    desk.Click(u"cmdNav_0"_s);
    desk.Program.Answers.Yes(u"Delete this Customer"_s);
    desk.Driver().Trigger(u"mnuDelete"_s);
    QCOMPARE(desk.Customers().size(), 328);
    QCOMPARE(desk.Customers().first(27), "2                   Name 2 ");
    desk.Driver().Trigger(u"mnuAdd"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 2"_s);
  }

 private:
  static void AddFourthAndMoveOn(CustomerDesk& desk) {
    desk.Program.Tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Fill(u"txtCustomer_0"_s, u"4"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Four"_s);
    desk.Click(u"cmdNav_0"_s);
  }

  static void AddThirdWithoutAName(CustomerDesk& desk) {
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Fill(u"txtCustomer_0"_s, u"3"_s);
  }
  static void ExpectRefusal(CustomerDesk& desk) {
    desk.Program.Answers.Ok(u"The Account Name Cannot be Blank"_s, u"Karvex Invoicer"_s);
  }
};

QTEST_MAIN(AddingOnScreenTest)
#include "tst_addingOnScreen.moc"
