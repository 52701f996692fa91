// The name list that lies over the name boxes: opening, completing, picking, and leaving it.
#include "customers/CustomerDesk.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray People() {
  return BusinessRecord("1", "Zeta Works") + PersonRecord("2", "Ann", "Q", "Moss") + BusinessRecord("3", "Acme Tools") +
         BusinessRecord("4", "Acme Tools") + PersonRecord("5", "Bo", "", "Moss");
}

/// The first customer on the screen, the list of names open over his name.
struct ListDesk : CustomerDesk {
  explicit ListDesk(const QByteArray& customers = People()) : CustomerDesk(customers) {
    Open();
    Toggle();
  }
  void Toggle() const { Click(u"Command1_1"_s); }
  QComboBox* List() const { return Driver().Control<QComboBox>(u"cboAccounts"_s); }
  bool IsOpen() const { return Sees(u"cboAccounts"_s); }
};

}  // namespace

class NameListTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void openingHidesTheNameBoxesAndTakesTheFocus() {
    ListDesk desk;
    QVERIFY(desk.IsOpen());
    QVERIFY(!desk.Sees(u"txtCustomer_1"_s));
    QCOMPARE(desk.Focus(), u"cboAccounts"_s);
    QCOMPARE(desk.Text(u"cboAccounts"_s), QString());
    desk.Toggle();
    QVERIFY(!desk.IsOpen());
    QVERIFY(desk.Sees(u"txtCustomer_1"_s));
  }

  void openingHidesThePersonsBoxesToo() {
    ListDesk desk(PersonRecord("1", "Ann", "Q", "Moss"));
    for (const QString& box : {u"cboTitle"_s, u"txtCustomer_8"_s, u"txtCustomer_9"_s, u"txtCustomer_10"_s}) {
      QVERIFY2(!desk.Sees(box), qPrintable(box));
    }
    desk.Toggle();
    QVERIFY(desk.Sees(u"txtCustomer_8"_s));
    QVERIFY(!desk.Sees(u"txtCustomer_1"_s));
  }

  void theListIsAlphabeticalAndAMissingInitialLeavesTwoBlanks() {
    ListDesk desk;
    QStringList entries;
    for (int i = 0; i < desk.List()->count(); ++i) entries.append(desk.List()->itemText(i));
    QCOMPARE(entries,
             (QStringList{u"Acme Tools"_s, u"Acme Tools"_s, u"Moss, Ann Q"_s, u"Moss, Bo  "_s, u"Zeta Works"_s}));
  }

  void aPickShowsItsRecordAndSavesNothing() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Fill(u"txtCustomer_2"_s, u"typed"_s);
    desk.Click(u"Command1_1"_s);
    desk.Driver().PickEntry(u"cboAccounts"_s, u"Moss, Ann Q"_s);
    QVERIFY(!desk.Sees(u"cboAccounts"_s));
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Focus(), u"cmdCustomer_1"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 2"_s);
    QCOMPARE(desk.Customers(), People());
  }

  void ofTwoEqualNamesThePickedOneIsShown() {
    ListDesk desk;
    desk.Driver().PickEntry(u"cboAccounts"_s, 1);
    QCOMPARE(desk.Box(0), u"4"_s);
    desk.Toggle();
    desk.Driver().PickEntry(u"cboAccounts"_s, 0);
    QCOMPARE(desk.Box(0), u"3"_s);
  }

  void typingIsCompletedWithTheFirstEntryThatBeginsWithIt() {
    ListDesk desk;
    desk.Driver().Type(u"mo"_s);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"moss, Ann Q"_s);
    QCOMPARE(desk.List()->lineEdit()->selectedText(), u"ss, Ann Q"_s);
    desk.Driver().Type(u"ss, b"_s);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"moss, bo  "_s);
    QVERIFY2(desk.IsOpen(), "completing isn't picking");
  }

  void backspaceAndDeleteDoNotComplete() {
    ListDesk desk;
    desk.Driver().Type(u"mo"_s);
    desk.Driver().PressKey(Qt::Key_Backspace);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"mo"_s);
    desk.Driver().PressKey(Qt::Key_Backspace);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"m"_s);
    desk.Driver().Type(u"o"_s);
    desk.Driver().PressKey(Qt::Key_Delete);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"mo"_s);
  }

  void whatIsTypedIsSettledByHowTheListIsLeft_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");  // By a click there, or by a key.
    QTest::addColumn<QString>("account");
    QTest::addColumn<bool>("open");
    QTest::newRow("a whole name") << u"MOSS, ANN Q "_s << u"txtCustomer_2"_s << u"2"_s << false;
    // From the fifth, the last, on to the first.
    QTest::newRow("a completed name, and the click goes on") << u"moss, b"_s << u"cmdNav_2"_s << u"1"_s << false;
    QTest::newRow("no name") << u"nobody"_s << u"txtCustomer_2"_s << u"1"_s << true;
    QTest::newRow("a completed name, by Enter") << u"moss, b"_s << u"Enter"_s << u"5"_s << false;
    QTest::newRow("nothing, by Escape") << QString() << u"Escape"_s << u"1"_s << false;
    QTest::newRow("a whole name, by Escape") << u"moss, ann q"_s << u"Escape"_s << u"1"_s << false;
    QTest::newRow("a whole name, by the button that opens the list again")
        << u"moss, ann q"_s << u"Command1_1"_s << u"2"_s << true;
  }
  void whatIsTypedIsSettledByHowTheListIsLeft() {
    QFETCH(const QString, typed);
    QFETCH(const QString, left);
    QFETCH(const QString, account);
    QFETCH(const bool, open);
    ListDesk desk;
    desk.Driver().Type(typed);
    if (left == u"Enter" || left == u"Escape") {
      desk.Driver().PressKey(left == u"Enter" ? Qt::Key_Return : Qt::Key_Escape);
    } else {
      desk.Click(left);
    }
    QVERIFY(desk.Shown());
    QCOMPARE(desk.Box(0), account);
    QCOMPARE(desk.IsOpen(), open);
    QCOMPARE(desk.Sees(u"txtCustomer_1"_s) || desk.Sees(u"txtCustomer_10"_s), !open);
    // A text that is no name stays to be corrected; a list that opens again is empty.
    if (open) QCOMPARE(desk.Text(u"cboAccounts"_s), account == u"1" ? typed : QString());
  }

  void anEmptyTextIsNoNameThoughACustomerHasNone() {
    ListDesk desk(BusinessRecord("1", "Zeta Works") + BusinessRecord("2", ""));
    QCOMPARE(desk.List()->itemText(0), QString());
    desk.Click(u"txtCustomer_2"_s);
    QVERIFY(desk.IsOpen());
    QCOMPARE(desk.Box(0), u"1"_s);
  }

  void withAnEmptyListOnlyItsVisibilityChanges() {
    CustomerDesk desk;
    desk.OpenTold();
    desk.Click(u"Command1_1"_s);
    QVERIFY(desk.Sees(u"cboAccounts"_s));
    QVERIFY(desk.Sees(u"txtCustomer_1"_s));
    QVERIFY(desk.Focus() != u"cboAccounts"_s);
    desk.Click(u"Command1_1"_s);
    QVERIFY(!desk.Sees(u"cboAccounts"_s));
    QVERIFY(desk.Sees(u"txtCustomer_1"_s));
  }

  void theListLiesOverTheNameBoxes() {
    CustomerDesk desk(People());
    desk.Open();
    const auto place = [&](const QString& name) {
      const QWidget* control = desk.Driver().Control(name);
      return QRect(control->mapTo(desk.Driver().Window(), QPoint()), control->size());
    };
    const QRect name = place(u"txtCustomer_1"_s);
    desk.Click(u"Command1_1"_s);
    QCOMPARE(place(u"cboAccounts"_s), name);
  }
};

QTEST_MAIN(NameListTest)
#include "tst_nameList.moc"
