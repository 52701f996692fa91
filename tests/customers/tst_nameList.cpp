// The name list that lies over the name boxes: opening, completing, picking, and leaving it.
#include "customers/CustomerDesk.h"

using namespace Qt::StringLiterals;

class NameListTest : public QObject {
  Q_OBJECT

  static QByteArray People() {
    return BusinessRecord("1", "Zeta Works") + PersonRecord("2", "Ann", "Q", "Moss") +
           BusinessRecord("3", "Acme Tools") + BusinessRecord("4", "Acme Tools") + PersonRecord("5", "Bo", "", "Moss");
  }
  static QComboBox* List(const CustomerDesk& desk) { return desk.Driver().Control<QComboBox>(u"cboAccounts"_s); }

 private Q_SLOTS:
  void openingHidesTheNameBoxesAndTakesTheFocus() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    QVERIFY(desk.Sees(u"cboAccounts"_s));
    QVERIFY(!desk.Sees(u"txtCustomer_1"_s));
    QCOMPARE(desk.Focus(), u"cboAccounts"_s);
    QCOMPARE(desk.Text(u"cboAccounts"_s), QString());
    desk.Click(u"Command1_1"_s);
    QVERIFY(!desk.Sees(u"cboAccounts"_s));
    QVERIFY(desk.Sees(u"txtCustomer_1"_s));
  }

  void openingHidesThePersonsBoxesToo() {
    CustomerDesk desk(PersonRecord("1", "Ann", "Q", "Moss"));
    desk.Open();
    desk.Click(u"Command1_1"_s);
    for (const QString& box : {u"cboTitle"_s, u"txtCustomer_8"_s, u"txtCustomer_9"_s, u"txtCustomer_10"_s}) {
      QVERIFY2(!desk.Sees(box), qPrintable(box));
    }
    desk.Click(u"Command1_1"_s);
    QVERIFY(desk.Sees(u"txtCustomer_8"_s));
    QVERIFY(!desk.Sees(u"txtCustomer_1"_s));
  }

  void theListIsAlphabeticalAndAMissingInitialLeavesTwoBlanks() {
    CustomerDesk desk(People());
    desk.Open();
    QStringList entries;
    for (int i = 0; i < List(desk)->count(); ++i) entries.append(List(desk)->itemText(i));
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
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().PickEntry(u"cboAccounts"_s, 1);
    QCOMPARE(desk.Box(0), u"4"_s);
    desk.Click(u"Command1_1"_s);
    desk.Driver().PickEntry(u"cboAccounts"_s, 0);
    QCOMPARE(desk.Box(0), u"3"_s);
  }

  void typingIsCompletedWithTheFirstEntryThatBeginsWithIt() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().Type(u"mo"_s);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"moss, Ann Q"_s);
    QCOMPARE(List(desk)->lineEdit()->selectedText(), u"ss, Ann Q"_s);
    desk.Driver().Type(u"ss, b"_s);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"moss, bo  "_s);
    QVERIFY2(desk.Sees(u"cboAccounts"_s), "completing isn't picking");
  }

  void backspaceAndDeleteDoNotComplete() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().Type(u"mo"_s);
    desk.Driver().PressKey(Qt::Key_Backspace);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"mo"_s);
    desk.Driver().PressKey(Qt::Key_Backspace);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"m"_s);
    desk.Driver().Type(u"o"_s);
    desk.Driver().PressKey(Qt::Key_Delete);
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"mo"_s);
  }

  void aNameTypedWholeIsShownWhenTheListIsLeft() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().Type(u"ZETA WORKS "_s);
    desk.Click(u"txtCustomer_2"_s);
    QVERIFY(!desk.Sees(u"cboAccounts"_s));
    QCOMPARE(desk.Box(0), u"1"_s);
  }

  void aCompletedNameIsShownWhenTheListIsLeftAndTheClickGoesOn() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().Type(u"moss, b"_s);
    desk.Click(u"cmdNav_2"_s);
    QVERIFY(!desk.Sees(u"cboAccounts"_s));
    QCOMPARE(desk.Box(0), u"1"_s);  // From the fifth, the last, on to the first.
  }

  void aTextThatIsNoNameChangesNothing() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().Type(u"nobody"_s);
    desk.Click(u"txtCustomer_2"_s);
    QVERIFY(desk.Sees(u"cboAccounts"_s));
    QCOMPARE(desk.Text(u"cboAccounts"_s), u"nobody"_s);
    QCOMPARE(desk.Box(0), u"1"_s);
  }

  void anEmptyTextIsNoNameThoughACustomerHasNone() {
    CustomerDesk desk(BusinessRecord("1", "Zeta Works") + BusinessRecord("2", ""));
    desk.Open();
    QCOMPARE(List(desk)->itemText(0), QString());
    desk.Click(u"Command1_1"_s);
    desk.Click(u"txtCustomer_2"_s);
    QVERIFY(desk.Sees(u"cboAccounts"_s));
    QCOMPARE(desk.Box(0), u"1"_s);
  }

  void enterShowsTheCompletedName() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().Type(u"moss, b"_s);
    desk.Driver().PressKey(Qt::Key_Return);
    QVERIFY(!desk.Sees(u"cboAccounts"_s));
    QCOMPARE(desk.Box(0), u"5"_s);
  }

  void escapeClosesTheList() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().PressKey(Qt::Key_Escape);
    QVERIFY(!desk.Sees(u"cboAccounts"_s));
    QVERIFY(desk.Sees(u"txtCustomer_1"_s));
    QVERIFY(desk.Shown());
  }

  void escapePicksNothingEvenAfterAWholeName() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().Type(u"moss, ann q"_s);
    desk.Driver().PressKey(Qt::Key_Escape);
    QVERIFY(!desk.Sees(u"cboAccounts"_s));
    QCOMPARE(desk.Box(0), u"1"_s);
  }

  void theButtonPicksAWholeNameAndOpensTheListAgain() {
    CustomerDesk desk(People());
    desk.Open();
    desk.Click(u"Command1_1"_s);
    desk.Driver().Type(u"moss, ann q"_s);
    desk.Click(u"Command1_1"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
    QVERIFY(desk.Sees(u"cboAccounts"_s));
    QCOMPARE(desk.Text(u"cboAccounts"_s), QString());
  }

  void withAnEmptyListOnlyItsVisibilityChanges() {
    CustomerDesk desk;
    desk.Program.StartAtMenu();
    desk.Program.Answers.Ok();
    desk.GoFromMenu();
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
