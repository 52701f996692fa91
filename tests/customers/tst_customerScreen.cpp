// The customer screen as its user meets it: opening, moving, deleting, and the ways off it.
#include "customers/CustomerDesk.h"

using namespace Qt::StringLiterals;

class CustomerScreenTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void withoutAFileTheUserIsToldToStartTheFirstCustomer() {
    CustomerDesk desk;
    desk.Program.StartAtMenu();
    desk.Program.Answers.Ok(
        u"Your Customer File is Empty\nCreate your First Customer Now\nTo create a Residential Account,\n"
        "click the Toggle Acct Type Button\nClick Open Delivery Window to\nto create an automatic delivery"_s,
        u"Create Customers"_s);
    desk.GoFromMenu();
    QCOMPARE(desk.Driver().Window()->windowTitle(), u"Select Customer for Managing Account Data"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 1"_s);
    QCOMPARE(desk.Text(u"cboCity"_s), u"Ocala"_s);
    QCOMPARE(desk.Text(u"lbLType"_s), u"Business"_s);
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    QVERIFY(!desk.Sees(u"cmdCustomer_13"_s));
    QVERIFY(desk.Driver().Entry(u"mnuAdd"_s)->isVisible());
    QVERIFY(!desk.Program.Tree.Exists(u"/CustomerData.txt"_s));
  }

  void theFirstCustomerMakesTheFile() {
    CustomerDesk desk;
    desk.OpenTold();
    desk.Fill(u"txtCustomer_0"_s, u"1001"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Acme Tools"_s);
    desk.Click(u"cmdNav_0"_s);
    RecordText expected;
    expected.AcctNo = "1001";
    expected.AcctName = "Acme Tools";
    expected.CityLine = "Ocala";
    expected.CityShort = "Ocala";
    expected.AcctType = "Business";
    QCOMPARE(desk.Customers(), expected.Bytes());
  }

  void openingShowsTheFirstCustomer() {
    CustomerDesk desk(Many(3));
    desk.Open();
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(desk.Box(1), u"Name 1"_s);
    QCOMPARE(desk.Focus(), u"cmdCustomer_1"_s);
    QCOMPARE(desk.BoxesShown(), 0);
    for (const QString& hidden : {u"cmdCustomer_13"_s, u"cboAccounts"_s, u"fraAux"_s, u"fraSearch"_s,
                                  u"fraCustomersFound"_s, u"txtCustomer_4"_s, u"fraIntAddress"_s}) {
      QVERIFY2(!desk.Sees(hidden), qPrintable(hidden));
    }
  }

  void comingBackShowsTheSameCustomerAgain() {
    CustomerDesk desk(Many(3));
    desk.Open();
    desk.Click(u"cmdNav_2"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY(!desk.Shown());
    desk.GoFromMenu();
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 2"_s);
  }

  void anEmptyFileShowsABlankRecordWithoutAMessage() {
    CustomerDesk desk{QByteArray()};
    desk.Open();
    QCOMPARE(desk.BoxesShown(), 0);
    QCOMPARE(desk.Box(0), QString());
    QCOMPARE(desk.Text(u"lbLType"_s), u"Individual"_s);
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
  }

  void aFileBeyondItsLimitEndsTheProgramAndStaysAsItIs() {
    const QByteArray damaged(328 * 32768, ' ');
    CustomerDesk desk;
    desk.Program.StartAtMenu();
    desk.Program.Tree.Write(u"/CustomerData.txt"_s, damaged);
    desk.Program.Tree.Write(u"/Backup/CustomerData.txt"_s, "good");
    desk.Program.Answers.Ok();
    desk.GoFromMenu();
    QVERIFY(desk.Program.Answers.Last().Text.contains(u"CustomerData.txt"));
    QVERIFY(desk.Program.Running().HasEnded());
    QCOMPARE(desk.Customers(), damaged);
    QCOMPARE(desk.Program.Tree.Bytes(u"/Backup/CustomerData.txt"_s), "good");
  }

  void captionsAndTipsAreTheProgramsOwn() {
    CustomerDesk desk(Many(1));
    desk.Open();
    using Texts = std::initializer_list<std::pair<const char*, const char*>>;
    for (const auto& [name, caption] : Texts{{"cmdCustomer_0", "&Menu"},
                                             {"cmdCustomer_1", "Select this &Account and Start  Routine"},
                                             {"cmdCustomer_13", "Cancel Add &New"},
                                             {"Command1_0", "&Search by Criteria,such as Street Address"},
                                             {"Command1_1", "&Find Account in Name List Alphbetically"},
                                             {"Command1_2", "&Locate Account in Name List "},
                                             {"cmdAcctType", "Toggle Type"},
                                             {"cmdNav_0", "|<<"},
                                             {"cmdNav_1", "&<1"},
                                             {"cmdNav_2", "1&>"},
                                             {"cmdNav_3", ">>|"},
                                             {"cmdNav_4", "||"},
                                             {"cmdNav_5", "|<"},
                                             {"cmdNav_6", "|>"},
                                             {"cmdNav_7", "<<10"},
                                             {"cmdNav_8", "10>>"}}) {
      QCOMPARE(desk.Text(QString::fromLatin1(name)), QString::fromLatin1(caption));
    }
    for (const auto& [name, tip] :
         Texts{{"cmdCustomer_1", "Selects this Customer and continues with the Selected Routine"},
               {"txtCustomer_1", "Displays Business Accts"},
               {"txtCustomer_3", "Enter a Sub-divsion, PO Box, etc"},
               {"txtCustomer_5", "Enter Zipcode here"},
               {"txtCustomer_6", "Enter telephone Number with Area Code FIRST (as AAA-EEE-NNNN)"},
               {"txtCustomer_7", "Store Account email Address"},
               {"txtCustomer_11", "Enter telephone Number with Area Code FIRST (as AAA-EEE-NNNN)"},
               {"cboCity", "Shows Service City List that you Created during Setup"},
               {"cboAccounts", "Accts are shown alphabetically"},
               {"Image1_1", "Call Account Phone or Cell"}}) {
      QCOMPARE(desk.Driver().Control(QString::fromLatin1(name))->toolTip(), QString::fromLatin1(tip));
    }
  }

  void theMenuHasItsFourEntries() {
    CustomerDesk desk(Many(1));
    desk.Open();
    const auto* menu = desk.Driver().Window()->findChild<QMenu*>(u"mnuCust"_s);
    QCOMPARE(menu->title(), u"Customer Routines"_s);
    QVERIFY(menu->menuAction()->isVisible());
    QStringList entries;
    for (const QAction* entry : menu->actions()) entries.append(entry->objectName() + u'|' + entry->text());
    QCOMPARE(entries, (QStringList{u"mnuAdd|Add New"_s, u"mnuDelete|Delete Current"_s, u"mnuPrint|View Customer List"_s,
                                   u"mnuAux|Auxilary Screen"_s}));
    const auto* popup = desk.Driver().Window()->findChild<QMenu*>(u"mnupopup"_s);
    QCOMPARE(popup->actions().size(), 1);
    QCOMPARE(popup->actions().constFirst()->objectName(), u"mnuSelect"_s);
    QCOMPARE(popup->actions().constFirst()->text(), u"Load Customer"_s);
  }

  void movingSavesWhatWasTyped() {
    CustomerDesk desk(Many(3));
    desk.Open();
    desk.Fill(u"txtCustomer_2"_s, u"1 Main St"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Customers().mid(65, 35), QByteArray("1 Main St").leftJustified(35));
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(desk.Box(2), u"1 Main St"_s);
  }

  void theNumberWrapsForwardButNotBackward() {
    CustomerDesk desk(Many(3));
    desk.Open();
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(desk.Box(0), u"1"_s);
    desk.Click(u"cmdNav_3"_s);
    QCOMPARE(desk.Box(0), u"3"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Box(0), u"1"_s);
  }

  void backFromTheFirstSavesAndReloadsIt() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, u" Spaced "_s);
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(desk.Box(1), u"Spaced"_s);
    QCOMPARE(desk.Customers().mid(20, 9), " Spaced  ");
  }

  void aFailedSaveDoesNotStopTheMove() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, QString());
    desk.Program.Answers.Ok(
        u"The Name Field Must be at least 2 Characters\nThis is okay if Cancelling a New Entry\n"
        "Click Cancel AddNew Again"_s,
        u"No Name Entered"_s);
    desk.Program.Answers.Ok(u"The Account Name Cannot be Blank"_s, u"Karvex Invoicer"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Customers(), Many(2));
  }

  void aFullDiskLeavesTheFileAndWhatWasTyped() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, u"Typed"_s);
    desk.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    desk.Program.Answers.Ok();
    desk.Click(u"cmdNav_2"_s);
    QVERIFY(desk.Program.Answers.Last().Text.contains(u"CustomerData.txt"));
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(desk.Box(1), u"Typed"_s);
    QCOMPARE(desk.Customers(), Many(2));
    desk.Program.Files.Reset();
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Customers().mid(20, 6), "Typed ");
  }

  void aDeleteThatFailsLateNeverSavesTheDeletedOverAnother() {
    CustomerDesk desk(Many(3));
    desk.Open();
    desk.Click(u"cmdNav_2"_s);
    desk.Program.Files.FailAt(FailingDevice::Call::FlushFolder, 2, EIO);
    desk.Program.Answers.Yes();
    desk.Program.Answers.Ok();
    desk.Driver().Trigger(u"mnuDelete"_s);
    QVERIFY(desk.Program.Answers.Last().Text.contains(u"CustomerData.txt"));
    QVERIFY(desk.Program.Answers.Last().Text.endsWith(
        u"The customer is gone from the file all the same: don't delete again. Nothing else was lost."_s));
    QCOMPARE(desk.Box(0), u"3"_s);
    const QByteArray left = Many(1) + BusinessRecord("3", "Name 3");
    QCOMPARE(desk.Customers(), left);
    desk.Program.Files.Reset();
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(desk.Customers(), left);
  }

  void anActivationAppliesBusinessToTheFirstCustomer() {
    CustomerDesk desk(PersonRecord("1", "Ann", "Q", "Bell"));
    desk.Open();
    QCOMPARE(desk.Text(u"lbLType"_s), u"Individual"_s);
    desk.Click(u"cmdCustomer_0"_s);
    desk.Program.Tree.Remove(u"/CustomerData.txt"_s);
    desk.Program.Tree.Remove(u"/Backup/CustomerData.txt"_s);
    desk.Program.Answers.Ok({}, u"Create Customers"_s);
    desk.GoFromMenu();
    QCOMPARE(desk.Text(u"lbLType"_s), u"Business"_s);
    QVERIFY(desk.Sees(u"txtCustomer_1"_s));
    QVERIFY(!desk.Sees(u"txtCustomer_8"_s));
  }

  void aDeleteAsksOnceAndANoChangesNothing() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Program.Answers.No(u"Delete this Customer"_s, u"Karvex Invoicer"_s);
    desk.Driver().Trigger(u"mnuDelete"_s);
    QCOMPARE(desk.Customers(), Many(2));
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  }

  void aDeletedCustomerIsGoneWithHisLedgerButNotHisFolder() {
    CustomerDesk desk(Many(3));
    desk.Program.Tree.Write(u"/KVActiveAccounts/3.txt"_s, "ledger");
    desk.Program.Tree.Write(u"/Backup/KVActiveAccounts/3.txt"_s, "ledger");
    desk.Program.Tree.Write(u"/Backup/CustomerData.txt"_s, "older");
    desk.Open();
    desk.Click(u"cmdNav_3"_s);
    desk.Program.Answers.Yes();
    desk.Driver().Trigger(u"mnuDelete"_s);
    QCOMPARE(desk.Customers(), Many(2));
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
    QVERIFY(!desk.Program.Tree.Exists(u"/KVActiveAccounts/3.txt"_s));
    QVERIFY(!desk.Program.Tree.Exists(u"/Backup/KVActiveAccounts/3.txt"_s));
    QVERIFY(!desk.Program.Tree.Exists(u"/Backup/CustomerData.txt"_s));
    QVERIFY(!desk.Program.Tree.Exists(u"/CUSTOMER.TMP"_s));
    QVERIFY(QFileInfo(desk.Program.Tree.Path(u"/AuxFiles/3"_s)).isDir());
    QCOMPARE(desk.Driver().Control<QComboBox>(u"cboAccounts"_s)->count(), 2);
  }

  void deletingTheOnlyCustomerLeavesABlankRecord() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Program.Answers.Yes();
    desk.Driver().Trigger(u"mnuDelete"_s);
    QCOMPARE(desk.Customers(), QByteArray());
    QCOMPARE(desk.Box(0), QString());
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 1"_s);
    desk.Fill(u"txtCustomer_0"_s, u"9"_s);
    desk.Click(u"cmdAcctType"_s);
    desk.Fill(u"txtCustomer_1"_s, u"Nine"_s);
    desk.Click(u"cmdNav_1"_s);
    QCOMPARE(desk.Customers().size(), 328);
  }

  void aFullDiskDuringADeleteLosesNothing() {
    CustomerDesk desk(Many(2));
    desk.Program.Tree.Write(u"/KVActiveAccounts/1.txt"_s, "ledger");
    desk.Open();
    desk.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    desk.Program.Answers.Yes();
    desk.Program.Answers.Ok();
    desk.Driver().Trigger(u"mnuDelete"_s);
    QCOMPARE(desk.Customers(), Many(2));
    QCOMPARE(desk.Program.Tree.Bytes(u"/KVActiveAccounts/1.txt"_s), "ledger");
    QCOMPARE(desk.Box(1), u"Name 1"_s);
  }

  void menuSavesAndGoesBack() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, u"Changed"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY(!desk.Shown());
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
    QCOMPARE(desk.Customers().mid(20, 8), "Changed ");
  }

  void aRefusedSaveKeepsTheScreen() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, QString());
    desk.Program.Answers.Ok({}, u"No Name Entered"_s);
    desk.Program.Answers.Ok(u"The Account Name Cannot be Blank"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY(desk.Shown());
    QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
    QCOMPARE(desk.Focus(), u"txtCustomer_1"_s);
  }

  void withoutNumberAndTelephoneTheWayOffHangsOnTheLastSave() {
    CustomerDesk desk(Many(2));
    desk.Open();
    desk.Fill(u"txtCustomer_0"_s, QString());
    desk.Program.Answers.Ok(u"The Telephone Number cannot be blank"_s, u"No number"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY2(desk.Shown(), "nothing was saved yet");
    QCOMPARE(desk.Focus(), u"txtCustomer_6"_s);
    desk.Fill(u"txtCustomer_0"_s, u"1"_s);
    desk.Click(u"cmdNav_2"_s);
    desk.Fill(u"txtCustomer_0"_s, QString());
    desk.Program.Answers.Ok({}, u"No number"_s);
    desk.Click(u"cmdCustomer_0"_s);
    QVERIFY2(!desk.Shown(), "the last save was accepted");
    QCOMPARE(desk.Customers(), Many(2));
  }

  void selectingHandsTheCustomerToTheInvoice() {
    RecordText record;
    record.AcctNo = "1001";
    record.AcctName = "Old name";
    record.Address1 = "1 Main St";
    record.Address2 = "Suite 2";
    record.CityLine = "Reno";
    record.State = "NV";
    record.PostalLine = "89501";
    record.Phone = "775-555-0100";
    record.AcctType = "Business";
    CustomerDesk desk(record.Bytes());
    desk.Program.Tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, u"New name"_s);
    desk.Click(u"cmdCustomer_1"_s);
    QVERIFY(!desk.Shown());
    QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
    const ScreenDriver invoice(u"frmInvoice"_s);
    QCOMPARE(invoice.Text(u"lblAcct"_s), u"1001"_s);
    const QStringList block{u"New name"_s, u"1 Main St"_s, u"Suite 2"_s, u"Reno"_s, u"NV"_s, u"89501"_s};
    for (int i = 0; i < 6; ++i) QCOMPARE(invoice.Text(u"lblCustomer_%1"_s.arg(i)), block.at(i));
    QCOMPARE(desk.Customers().mid(20, 9), "New name ");
  }

  void closingTheWindowSavesNothingAndEndsTheProgram() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, u"Typed"_s);
    desk.Driver().CloseByUser();
    QVERIFY(desk.Program.Running().HasEnded());
    QCOMPARE(desk.Customers(), Many(1));
    QCOMPARE(desk.Program.Tree.Bytes(u"/Backup/CustomerData.txt"_s), Many(1));
  }

  void theAuxiliaryScreenFlipsAndNamesTheAccount() {
    CustomerDesk desk(BusinessRecord("1", "Acme & Sons") + PersonRecord("2", "Ann", "Q", "Bell"));
    desk.Open();
    desk.Driver().Trigger(u"mnuAux"_s);
    QVERIFY(desk.Sees(u"fraAux"_s));
    QCOMPARE(desk.Text(u"lblAccount"_s), u"Acme & Sons"_s);
    QCOMPARE(desk.Text(u"fraAux"_s), u"Data for Acme && Sons"_s);
    desk.Driver().Trigger(u"mnuAux"_s);
    QVERIFY(!desk.Sees(u"fraAux"_s));
    desk.Click(u"cmdNav_2"_s);
    desk.Driver().Trigger(u"mnuAux"_s);
    QCOMPARE(desk.Text(u"lblAccount"_s), u"Mr. Ann Bell"_s);
    QCOMPARE(desk.Text(u"fraAux"_s), u"Data for Mr. Ann Q. Bell"_s);
  }

  void searchingSavesTheCustomerFirst() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(u"txtCustomer_1"_s, u"Changed"_s);
    desk.Click(u"Command1_0"_s);
    QCOMPARE(desk.Customers().mid(20, 8), "Changed ");
  }

  void escapeGoesBackUnlessACustomerIsBeingAdded() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Driver().PressKey(Qt::Key_Escape);
    QVERIFY(desk.Shown());
    desk.Click(u"cmdCustomer_13"_s);
    desk.Driver().PressKey(Qt::Key_Escape);
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
    QVERIFY(!desk.Shown());
  }

  void everythingIsReachedByAccessKeys() {
    CustomerDesk desk(Many(3));
    desk.Open();
    desk.Driver().PressKey(Qt::Key_Greater, Qt::AltModifier);
    QCOMPARE(desk.Box(0), u"2"_s);
    desk.Driver().PressKey(Qt::Key_Less, Qt::AltModifier);
    QCOMPARE(desk.Box(0), u"1"_s);
    desk.Driver().PressAccessKey('F');
    QVERIFY(desk.Sees(u"cboAccounts"_s));
    desk.Driver().PressAccessKey('M');
    QVERIFY(!desk.Shown());
  }

  void everyControlHasAnAccessibleName() {
    CustomerDesk desk(Many(1));
    desk.Open();
    for (const QWidget* control : desk.Driver().Window()->findChildren<QWidget*>()) {
      const bool named =
          qobject_cast<const QLineEdit*>(control) != nullptr || qobject_cast<const QComboBox*>(control) != nullptr;
      const bool ofCombo = qobject_cast<const QComboBox*>(control->parentWidget()) != nullptr;
      if (named && !ofCombo) QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    }
  }

  void nothingIsCutOffAtTheSmallestSize_data() {
    QTest::addColumn<QString>("frame");
    for (const char* frame : {"", "fraAux", "fraBig", "fraSearch", "fraCustomersFound"}) {
      QTest::newRow(frame) << QString::fromLatin1(frame);
    }
  }
  void nothingIsCutOffAtTheSmallestSize() {
    QFETCH(QString, frame);
    CustomerDesk desk(PersonRecord("1", "Ann", "Q", "Bell"));
    desk.Open();
    if (frame == u"fraAux" || frame == u"fraBig") desk.Driver().Trigger(u"mnuAux"_s);
    if (frame == u"fraBig") desk.Driver().DoubleClick(u"txtAux_0"_s);
    if (frame == u"fraSearch") desk.Click(u"Command1_0"_s);
    if (frame == u"fraCustomersFound") desk.Click(u"Command1_2"_s);
    if (!frame.isEmpty()) QVERIFY(desk.Sees(frame));
    desk.Driver().Window()->resize(1024, 700);
    ScreenDriver::ProcessEvents();
    QCOMPARE(desk.Driver().Window()->size(), QSize(1024, 700));
    for (const QWidget* control : desk.Driver().Window()->findChildren<QWidget*>()) {
      if (!control->isVisible() || control->isWindow()) continue;
      if (const auto* button = qobject_cast<const QPushButton*>(control);
          button != nullptr && button->objectName() != u"Image1_1") {
        const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
        QVERIFY2(button->width() >= text + 16, qPrintable(button->objectName()));
      }
      if (const auto* label = qobject_cast<const QLabel*>(control); label != nullptr && !label->wordWrap()) {
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->objectName()));
      }
      const QPoint corner = control->mapTo(desk.Driver().Window(), QPoint(control->width(), control->height()));
      QVERIFY2(corner.x() <= 1024 && corner.y() <= 700, qPrintable(control->objectName()));
    }
  }
};

QTEST_MAIN(CustomerScreenTest)
#include "tst_customerScreen.moc"
