// What other screens read of the customer screen, and how it hands its customer on.
#include <QtTest>

#include "customers/CustomerRecords.h"
#include "customers/frmNewCustomer.h"
#include "setup/BusinessProfile.h"
#include "support/DataFolder.h"
#include "support/ScriptedDialogs.h"

using namespace Qt::StringLiterals;

namespace {

class NotedHost final : public ScreenHost {
 public:
  void UnhandledError(const RuntimeError& error) override { Errors.append(error.Number()); }
  void UserClosed() override {}
  QList<int> Errors;
};

class NotedScreens final : public Screens {
 public:
  QStringList Calls;
  SoldTo Customer;
  int Fails = 0;

  void Show(ScreenName screen) override { Note(u"show"_s, screen); }
  void Hide(ScreenName screen) override { Note(u"hide"_s, screen); }
  void Unload(ScreenName) override {}
  void ShowSetupAtFirstTab() override {}
  void StartInvoiceFor(const SoldTo& customer) override {
    if (Fails != 0) throw RuntimeError(Fails, u"/KVInvoiceNo.txt"_s);
    Customer = customer;
    Calls.append(u"invoice"_s);
  }
  void StartCall(const QString&, const QString&) override {}
  void PrintSample() override {}
  void QuitProgram() override {}

 private:
  void Note(const QString& what, ScreenName screen) {
    Calls.append(what + (screen == ScreenName::frmStartup ? u" menu"_s : u" customers"_s));
  }
};

}  // namespace

class CustomerOnScreenTest : public QObject {
  Q_OBJECT

  struct Desk : DataFolder {
    ScriptedDialogs Boxes;
    BusinessProfile Profile;
    CustomerOnScreen OnScreen;
    NotedHost Host;
    NotedScreens Others;
    std::unique_ptr<frmNewCustomer> Screen;

    void Open(const QByteArray& customers) {
      Put(u"/CustomerData.txt"_s, customers);
      Screen = std::make_unique<frmNewCustomer>(Host, Others, Disk, Boxes, Profile, OnScreen);
      Screen->Activate();
      Screen->show();
    }
    void Click(const QString& name) const { Screen->findChild<QPushButton*>(name)->click(); }
  };

 private Q_SLOTS:
  void beforeTheScreenIsBuiltThereIsNoCustomer() {
    const CustomerOnScreen nobody;
    QCOMPARE(nobody.txtCustomer0, QString());
    QCOMPARE(nobody.txtCustomer1, QString());
    QVERIFY(nobody.UsaAddress);
  }

  void numberAndNameFollowTheBoxesAtEachMoment() {
    Desk desk;
    desk.Open(BusinessRecord("1", "One") + PersonRecord("2", "Ann", "Q", "Bell"));
    QCOMPARE(desk.OnScreen.txtCustomer0, u"1"_s);
    QCOMPARE(desk.OnScreen.txtCustomer1, u"One"_s);
    QTest::keyClicks(desk.Screen->findChild<QLineEdit*>(u"txtCustomer_0"_s), u"7"_s);
    QCOMPARE(desk.OnScreen.txtCustomer0, u"17"_s);
    QTest::keyClicks(desk.Screen->findChild<QLineEdit*>(u"txtCustomer_1"_s), u"!"_s);
    QCOMPARE(desk.OnScreen.txtCustomer1, u"One!"_s);
    desk.Click(u"cmdNav_2"_s);
    QCOMPARE(desk.OnScreen.txtCustomer0, u"2"_s);
    QCOMPARE(desk.OnScreen.txtCustomer1, u"kept"_s);
    desk.Screen->hide();
    QCOMPARE(desk.OnScreen.txtCustomer0, u"2"_s);
  }

  void theAddressStyleIsSetupsAtEachActivationAndAtEachToggle() {
    Desk desk;
    desk.Open(BusinessRecord("1", "One"));
    QVERIFY(!desk.OnScreen.UsaAddress);
    desk.Profile.AddressStyleCaption = u"USA Style Address"_s;
    desk.Screen->Activate();
    QVERIFY(desk.OnScreen.UsaAddress);
    desk.Screen->UseAddressStyle(false);
    QVERIFY(!desk.OnScreen.UsaAddress);
    QVERIFY(desk.Screen->findChild<QWidget*>(u"fraUSAddress"_s)->isHidden());
  }

  void menuShowsTheMenuInThisScreensPlace() {
    Desk desk;
    desk.Open(BusinessRecord("1", "One"));
    desk.Click(u"cmdCustomer_0"_s);
    QCOMPARE(desk.Others.Calls, (QStringList{u"show menu"_s, u"hide customers"_s}));
  }

  void selectingHandsTheCustomerOnAsSaved() {
    Desk desk;
    desk.Profile.AddressStyleCaption = u"USA Style Address"_s;
    desk.Open(PersonRecord("1", "Ann", "Q", "Bell"));
    desk.Screen->findChild<QLineEdit*>(u"txtCustomer_10"_s)->setText(u"Cole"_s);
    desk.Click(u"cmdCustomer_1"_s);
    QCOMPARE(desk.Others.Calls, (QStringList{u"invoice"_s, u"hide customers"_s}));
    QCOMPARE(desk.Others.Customer.Acct, u"1"_s);
    QCOMPARE(desk.Others.Customer.Line[0], u"Mr. Ann Q. Cole"_s);
    QCOMPARE(desk.Bytes(u"/CustomerData.txt"_s).mid(289, 5), "Cole ");
  }

  void selectingDuringAnAddDropsTheNewCustomer() {
    Desk desk;
    desk.Open(BusinessRecord("1", "One"));
    desk.Screen->findChild<QAction*>(u"mnuAdd"_s)->trigger();
    desk.Screen->findChild<QLineEdit*>(u"txtCustomer_0"_s)->setText(u"2"_s);
    desk.Screen->findChild<QLineEdit*>(u"txtCustomer_1"_s)->setText(u"Two"_s);
    desk.Click(u"cmdCustomer_1"_s);
    QCOMPARE(desk.Others.Customer.Acct, u"1"_s);
    QCOMPARE(desk.Bytes(u"/CustomerData.txt"_s).size(), 328);
  }

  void anInvoiceThatCannotStartLeavesThisScreenInSight() {
    Desk desk;
    desk.Open(BusinessRecord("1", "One"));
    desk.Others.Fails = 62;
    desk.Click(u"cmdCustomer_1"_s);
    QCOMPARE(desk.Host.Errors, QList<int>{62});
    QCOMPARE(desk.Others.Calls, QStringList());
    QVERIFY(desk.Screen->isVisible());
  }
};

QTEST_MAIN(CustomerOnScreenTest)
#include "tst_customerOnScreen.moc"
