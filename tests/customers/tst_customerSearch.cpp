// Searching for customers, and their complete list, as the user meets them on the customer screen.
#include "customers/CustomerDesk.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Street(const QByteArray& number, const QByteArray& name, const QByteArray& address) {
  RecordText record;
  record.AcctNo = number;
  record.AcctName = name;
  record.Address1 = address;
  record.CityLine = "Reno";
  record.Phone = "775-555-010" + number;
  record.AcctType = "Business";
  return record.Bytes();
}
QByteArray Town() {
  return Street("1", "Zeta Works", "1 Main St") + Street("2", "Acme Tools", "12 Park Lane") +
         Street("3", "Bell & Sons", "7 Oak Rd") + PersonRecord("4", "Ann", "Q", "Moss") +
         Street("5", "Dock Five", "9 bark way");
}
/// The customers of the town, the first on the screen.
struct TownDesk : CustomerDesk {
  TownDesk() : CustomerDesk(Town()) { Open(); }
};

QTableView* Grid(const CustomerDesk& desk) {
  return desk.Driver().Control<QTableView>(u"fgCustomersFound"_s);
}
/// The rows of the grid, cells joined by a bar.
QStringList Rows(const CustomerDesk& desk) {
  const QAbstractItemModel* model = Grid(desk)->model();
  QStringList rows;
  for (int row = 0; row < model->rowCount(); ++row) {
    QStringList cells;
    for (int col = 0; col < model->columnCount(); ++col) cells.append(model->index(row, col).data().toString());
    rows.append(cells.join(u'|'));
  }
  return rows;
}
void Search(const CustomerDesk& desk, int criterion, const QString& text) {
  desk.Click(u"Command1_0"_s);
  if (criterion != 0 || !desk.Driver().Control<QRadioButton>(u"optSearch_0"_s)->isChecked()) {
    desk.Click(u"optSearch_%1"_s.arg(criterion));
  }
  desk.Fill(u"txtSearchfor"_s, text);
  desk.Click(u"cmdStartSearch"_s);
}
/// A menu's entry or a button.
void Run(const CustomerDesk& desk, const QString& name) {
  if (name.startsWith(u"mnu")) {
    desk.Driver().Trigger(name);
  } else {
    desk.Click(name);
  }
}
QString ListEntry(const CustomerDesk& desk) {
  return desk.Driver().Entry(u"mnuPrint"_s)->text();
}

}  // namespace

class CustomerSearchTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void captionsAreTheProgramsOwn() {
    TownDesk desk;
    const QStringList criteria{u"by Business Name"_s,     u"by Address #1"_s, u"by Address #2"_s,
                               u"by City or (Addr #3)"_s, u"by State"_s,      u"by Zip Code (or Addr #4)"_s,
                               u"by Telephone Number"_s,  u"by Last Name"_s,  u"by Account Number"_s};
    for (int i = 0; i < 9; ++i) QCOMPARE(desk.Text(u"optSearch_%1"_s.arg(i)), criteria.at(i));
    QCOMPARE(desk.Text(u"cmdClearSearch"_s), u"Clear"_s);
    QCOMPARE(desk.Text(u"cmdHideSearch"_s), u"Hide"_s);
    QCOMPARE(desk.Text(u"cmdRetry"_s), u"Hide"_s);
    QCOMPARE(ListEntry(desk), u"View Customer List"_s);
    const QAbstractItemModel* model = Grid(desk)->model();
    const QStringList headings{u"Customer Name"_s, u"Telephone"_s, u"Record"_s};
    QCOMPARE(model->columnCount(), 3);
    for (int i = 0; i < 3; ++i) QCOMPARE(model->headerData(i, Qt::Horizontal).toString(), headings.at(i));
    QCOMPARE(model->rowCount(), 0);
  }

  void theSearchOpensOnTheFirstCriterion() {
    TownDesk desk;
    QVERIFY(!desk.Sees(u"fraSearch"_s));
    desk.Click(u"Command1_0"_s);
    QVERIFY(desk.Sees(u"fraSearch"_s));
    QVERIFY(desk.Sees(u"fraCustomer"_s));
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
    QCOMPARE(desk.Focus(), u"txtSearchfor"_s);
    for (int i = 0; i < 9; ++i) {
      QCOMPARE(desk.Driver().Control<QRadioButton>(u"optSearch_%1"_s.arg(i))->isChecked(), i == 0);
    }
  }

  void openingTheSearchSavesTheCustomer() {
    TownDesk desk;
    desk.Fill(u"txtCustomer_1"_s, u"Changed"_s);
    desk.Click(u"Command1_0"_s);
    QCOMPARE(desk.Customers().mid(20, 8), "Changed ");
    QVERIFY(desk.Sees(u"fraSearch"_s));
  }

  void aRefusedSaveOpensNoSearch() {
    TownDesk desk;
    desk.Fill(u"txtCustomer_1"_s, QString());
    desk.Program.Answers.Ok({}, u"No Name Entered"_s);
    desk.Program.Answers.Ok(u"The Account Name Cannot be Blank"_s);
    desk.Click(u"Command1_0"_s);
    QVERIFY(!desk.Sees(u"fraSearch"_s));
    QCOMPARE(desk.Customers(), Town());
  }

  void openingTheSearchShowsTheNameBoxesAgainAndHidesTheList() {
    TownDesk desk;
    desk.Click(u"Command1_1"_s);
    QVERIFY(!desk.Sees(u"txtCustomer_1"_s));
    desk.Driver().Trigger(u"mnuPrint"_s);
    QVERIFY(desk.Sees(u"fraCustomersFound"_s));
    desk.Click(u"Command1_0"_s);
    QVERIFY(desk.Sees(u"txtCustomer_1"_s));
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
  }

  void whatLeadsOnHidesTheFrame_data() {
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QString>("then");
    const QString found = u"fraCustomersFound"_s;
    QTest::newRow("the name list, those found") << u"mnuPrint"_s << found << u"Command1_1"_s;
    QTest::newRow("a new customer, those found") << u"mnuPrint"_s << found << u"mnuAdd"_s;
    QTest::newRow("a new customer, the search") << u"Command1_0"_s << u"fraSearch"_s << u"mnuAdd"_s;
    QTest::newRow("another customer, those found") << u"mnuPrint"_s << found << u"cmdNav_2"_s;
    QTest::newRow("another customer, the search") << u"Command1_0"_s << u"fraSearch"_s << u"cmdNav_2"_s;
  }
  void whatLeadsOnHidesTheFrame() {
    QFETCH(const QString, opened);
    QFETCH(const QString, frame);
    QFETCH(const QString, then);
    TownDesk desk;
    Run(desk, opened);
    QVERIFY(desk.Sees(frame));
    Run(desk, then);
    QVERIFY(!desk.Sees(frame));
  }

  void withoutATextTheSearchAsksForOne() {
    TownDesk desk;
    desk.Click(u"Command1_0"_s);
    desk.Program.Answers.Ok(u"You must enter some criteria data for the Search"_s, u"Karvex Invoicer"_s);
    desk.Click(u"cmdStartSearch"_s);
    QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(desk.Sees(u"fraSearch"_s));
    QCOMPARE(Rows(desk), QStringList());
  }

  void afterThatTheTextCanBeTypedAtOnce() {
    CustomerDesk desk(Town());
    desk.Open();
    desk.Click(u"Command1_0"_s);
    desk.Program.Answers.Ok(u"You must enter some criteria data for the Search"_s);
    desk.Driver().PressKey(Qt::Key_Return);
    QCOMPARE(desk.Focus(), u"txtSearchfor"_s);
    desk.Driver().Type(u"acme"_s);
    desk.Driver().PressKey(Qt::Key_Return);
    QCOMPARE(desk.Box(0), u"2"_s);
  }

  void aTextInsideAWordAndAcrossCaseIsFoundInFileOrder() {
    TownDesk desk;
    Search(desk, 1, u"ark"_s);
    QCOMPARE(Rows(desk), (QStringList{u"Acme Tools|775-555-0102|2"_s, u"Dock Five|775-555-0105|5"_s}));
    QVERIFY(desk.Sees(u"fraCustomersFound"_s));
    QVERIFY(!desk.Sees(u"fraSearch"_s));
    QVERIFY(desk.Sees(u"fraCustomer"_s));
    QCOMPARE(desk.Box(0), u"1"_s);
    QCOMPARE(desk.Focus(), u"fgCustomersFound"_s);
    QCOMPARE(desk.BoxesShown(), 0);
  }

  void aSingleHitIsShownAndItsRowAsWell() {
    TownDesk desk;
    Search(desk, 1, u" PARK "_s);
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 2"_s);
    QCOMPARE(desk.Focus(), u"cmdCustomer_1"_s);
    QVERIFY(desk.Sees(u"fraCustomersFound"_s));
    QVERIFY(!desk.Sees(u"fraSearch"_s));
    QCOMPARE(Rows(desk), QStringList{u"Acme Tools|775-555-0102|2"_s});
  }

  void withoutAHitTheOldRowsStay() {
    TownDesk desk;
    Search(desk, 1, u"ark"_s);
    const QStringList before = Rows(desk);
    desk.Program.Answers.Ok(u"No Customer Record meets this Criteria"_s, u"Customer not Found"_s);
    Search(desk, 1, u"nowhere"_s);
    QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(Rows(desk), before);
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
    QVERIFY(!desk.Sees(u"fraSearch"_s));
    QVERIFY(desk.Sees(u"fraCustomer"_s));
    QCOMPARE(desk.Box(0), u"1"_s);
  }

  void fewerHitsDropTheRowsBeyondThem() {
    TownDesk desk;
    Search(desk, 3, u"reno"_s);
    QCOMPARE(Rows(desk).size(), 4);
    desk.Driver().SelectRow(u"fgCustomersFound"_s, 4);
    desk.Driver().ClickPopup(u"mnupopup"_s, u"mnuSelect"_s);
    Search(desk, 1, u"ark"_s);
    QCOMPARE(Rows(desk).size(), 2);
    QCOMPARE(Grid(desk)->currentIndex().row(), 0);
  }

  void aSearchForBlanksFindsEverybody() {
    TownDesk desk;
    Search(desk, 8, u"  "_s);
    QCOMPARE(Rows(desk).size(), 5);
  }

  void theLastNameIsSearchedWhereABusinessHasOneToo() {
    RecordText business;
    business.AcctNo = "5";
    business.AcctName = "Moss Garden";
    business.AcctType = "Business";
    RecordText toggled = business;
    toggled.AcctNo = "6";
    toggled.LastName = "Mossley";
    CustomerDesk desk(business.Bytes() + toggled.Bytes() + PersonRecord("7", "Ann", "Q", "Moss"));
    desk.Open();
    Search(desk, 7, u"moss"_s);
    QCOMPARE(Rows(desk), (QStringList{u"Moss Garden||2"_s, u"Mr. Ann Q. Moss||3"_s}));
  }

  void anAccentedLetterTypedFindsItself() {
    CustomerDesk desk(BusinessRecord("1", "Zeta") + BusinessRecord("2", "CAF\xc9 DU PORT"));
    desk.Open();
    Search(desk, 0, u"caf\u00e9"_s);
    QCOMPARE(desk.Box(0), u"2"_s);
  }

  void anotherCriterionAndClearEmptyTheText() {
    TownDesk desk;
    desk.Click(u"Command1_0"_s);
    desk.Driver().Type(u"abc"_s);
    desk.Click(u"optSearch_4"_s);
    QCOMPARE(desk.Text(u"txtSearchfor"_s), QString());
    QCOMPARE(desk.Focus(), u"txtSearchfor"_s);
    desk.Driver().Type(u"abc"_s);
    desk.Click(u"cmdClearSearch"_s);
    QCOMPARE(desk.Text(u"txtSearchfor"_s), QString());
    QCOMPARE(desk.Focus(), u"txtSearchfor"_s);
    QVERIFY(desk.Sees(u"fraSearch"_s));
  }

  void hideClosesSearchAndResults() {
    TownDesk desk;
    desk.Driver().Trigger(u"mnuPrint"_s);
    desk.Click(u"Command1_0"_s);
    desk.Click(u"cmdHideSearch"_s);
    QVERIFY(!desk.Sees(u"fraSearch"_s));
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
    QVERIFY(desk.Sees(u"fraCustomer"_s));
  }

  void enterStartsTheSearchAndEscapeClosesIt() {
    TownDesk desk;
    desk.Click(u"Command1_0"_s);
    desk.Driver().PressKey(Qt::Key_Escape);
    QVERIFY(!desk.Sees(u"fraSearch"_s));
    QVERIFY(desk.Shown());
    desk.Click(u"Command1_0"_s);
    desk.Driver().Type(u"acme"_s);
    desk.Driver().PressKey(Qt::Key_Return);
    QCOMPARE(desk.Box(0), u"2"_s);
  }

  void theListShowsEveryCustomer() {
    TownDesk desk;
    desk.Driver().Trigger(u"mnuPrint"_s);
    QCOMPARE(desk.Text(u"fraCustomersFound"_s), u"Complete Customer List"_s);
    QCOMPARE(ListEntry(desk), u"Close Customer List"_s);
    QCOMPARE(Rows(desk),
             (QStringList{u"Zeta Works|775-555-0101|1"_s, u"Acme Tools|775-555-0102|2"_s,
                          u"Bell & Sons|775-555-0103|3"_s, u"Mr. Ann Q. Moss||4"_s, u"Dock Five|775-555-0105|5"_s}));
    QCOMPARE(desk.BoxesShown(), 0);
    desk.Driver().Trigger(u"mnuPrint"_s);
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
    QCOMPARE(ListEntry(desk), u"View Customer List"_s);
  }

  void theListHasTheFocusSoThatTheKeysChooseFromIt() {
    CustomerDesk desk(Town());
    desk.Open();
    const auto choose = [&] {
      QCOMPARE(desk.Focus(), u"fgCustomersFound"_s);
      desk.Driver().PressKey(Qt::Key_Home, Qt::ControlModifier);
      desk.Driver().PressKey(Qt::Key_Down);
      desk.Driver().PressKey(Qt::Key_Return);
      QCOMPARE(desk.Box(0), u"2"_s);
    };
    desk.Driver().PressKey(Qt::Key_L, Qt::ControlModifier);
    choose();
    desk.Click(u"cmdNav_0"_s);
    desk.Click(u"Command1_2"_s);
    choose();
  }

  void aListOfOneIsNotLoaded() {
    CustomerDesk desk(Many(1));
    desk.Open();
    desk.Fill(u"txtCustomer_2"_s, u"typed"_s);
    desk.Driver().Trigger(u"mnuPrint"_s);
    QVERIFY(desk.Sees(u"fraCustomersFound"_s));
    QCOMPARE(desk.Box(2), u"typed"_s);
  }

  void theButtonShowsTheListToo() {
    TownDesk desk;
    desk.Click(u"Command1_2"_s);
    QCOMPARE(Rows(desk).size(), 5);
    QVERIFY(desk.Sees(u"fraCustomersFound"_s));
    desk.Click(u"cmdRetry"_s);
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
    QCOMPARE(ListEntry(desk), u"Close Customer List"_s);
    desk.Click(u"Command1_2"_s);
    QVERIFY2(desk.Sees(u"fraCustomersFound"_s), "what counts is whether the list is shown");
  }

  void withoutAFileTheListBeeps() {
    CustomerDesk desk;
    desk.OpenTold();
    desk.Driver().Trigger(u"mnuPrint"_s);
    QCOMPARE(desk.Program.Dialogs.Beeps, 1);
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
    QCOMPARE(ListEntry(desk), u"View Customer List"_s);
    QVERIFY(!desk.Program.Tree.Exists(u"/CustomerData.txt"_s));
  }

  void theListsCaptionStaysThroughLaterSearches() {
    TownDesk desk;
    QVERIFY(desk.Text(u"fraCustomersFound"_s) != u"Complete Customer List"_s);
    desk.Click(u"Command1_2"_s);
    Search(desk, 1, u"ark"_s);
    QCOMPARE(desk.Text(u"fraCustomersFound"_s), u"Complete Customer List"_s);
    QCOMPARE(Rows(desk).size(), 2);
  }

  void aCustomerIsLoadedFromThePopup() {
    TownDesk desk;
    desk.Fill(u"txtCustomer_2"_s, u"typed"_s);
    desk.Driver().Trigger(u"mnuPrint"_s);
    desk.Driver().SelectRow(u"fgCustomersFound"_s, 3);
    QCOMPARE(ListEntry(desk), u"View Customer List"_s);
    QVERIFY2(desk.Sees(u"fraCustomersFound"_s), "the popup alone loads nobody");
    desk.Driver().ClickPopup(u"mnupopup"_s, u"mnuSelect"_s);
    QCOMPARE(desk.Box(0), u"3"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 3"_s);
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
    QCOMPARE(desk.Customers(), Town());
  }

  void aRightPressAndEnterLoadACustomerToo() {
    TownDesk desk;
    desk.Driver().Trigger(u"mnuPrint"_s);
    QCOMPARE(ListEntry(desk), u"Close Customer List"_s);
    desk.Driver().RightPressRow(u"fgCustomersFound"_s, 5);
    QCOMPARE(ListEntry(desk), u"View Customer List"_s);
    QVERIFY(desk.Sees(u"fraCustomersFound"_s));
    desk.Driver().ClickPopup(u"mnupopup"_s, u"mnuSelect"_s);
    QCOMPARE(desk.Box(0), u"5"_s);
    desk.Driver().Trigger(u"mnuPrint"_s);
    Grid(desk)->setFocus();
    desk.Driver().PressKey(Qt::Key_Down);
    desk.Driver().PressKey(Qt::Key_Return);
    QCOMPARE(desk.Box(0), u"2"_s);
    QCOMPARE(ListEntry(desk), u"View Customer List"_s);
    QVERIFY(!desk.Sees(u"fraCustomersFound"_s));
  }

  void selectingWithoutAnyRowIsAnErrorThatLosesNothing() {
    TownDesk desk;
    desk.Fill(u"txtCustomer_2"_s, u"typed"_s);
    desk.Program.Answers.Ok();
    desk.Driver().Trigger(u"mnuSelect"_s);
    QCOMPARE(desk.Box(2), u"typed"_s);
    QVERIFY(!desk.Program.Running().HasEnded());
  }

  void theRecordNumbersOfTheListGoStaleWithADelete() {
    TownDesk desk;
    desk.Driver().Trigger(u"mnuPrint"_s);
    desk.Program.Answers.Yes(u"Delete this Customer"_s);
    desk.Driver().Trigger(u"mnuDelete"_s);
    QVERIFY2(!desk.Sees(u"fraCustomersFound"_s), "loading a record hides the list");
    QCOMPARE(Rows(desk).constFirst(), u"Zeta Works|775-555-0101|1"_s);
    desk.Driver().Trigger(u"mnuSelect"_s);
    QCOMPARE(desk.Box(1), u"Acme Tools"_s);
  }

  void theNumberOnTheScreenGoesStaleToo() {
    TownDesk desk;
    desk.Click(u"cmdNav_3"_s);
    desk.Driver().Trigger(u"mnuPrint"_s);
    desk.Driver().SelectRow(u"fgCustomersFound"_s, 5);
    desk.Driver().PressKey(Qt::Key_Escape);
    desk.Program.Answers.Yes();
    desk.Driver().Trigger(u"mnuDelete"_s);
    desk.Driver().Trigger(u"mnuSelect"_s);
    QCOMPARE(desk.Text(u"fraCustomer"_s), u"Account Information for Customer No 5"_s);
    QCOMPARE(desk.Box(0), QString());
  }

  void theSearchSeesACustomerThatWasJustTyped() {
    TownDesk desk;
    desk.Driver().Trigger(u"mnuAdd"_s);
    desk.Fill(u"txtCustomer_0"_s, u"6"_s);
    desk.Fill(u"txtCustomer_1"_s, u"New Parkway Inn"_s);
    Search(desk, 0, u"parkway"_s);
    QCOMPARE(Rows(desk), QStringList{u"New Parkway Inn||6"_s});
  }

  void aDuplicateNumberIsToBeSettledBeforeTheListCloses() {
    TownDesk desk;
    desk.Driver().Trigger(u"mnuPrint"_s);
    desk.Fill(u"txtCustomer_0"_s, u"2"_s);
    desk.Program.Answers.Yes({}, u"Duplicate Account Number"_s);
    desk.Click(u"cmdRetry"_s);
    QVERIFY(desk.Sees(u"fraCustomersFound"_s));
    QCOMPARE(desk.Focus(), u"txtCustomer_0"_s);
  }

  void afterASearchTheNameListAndTheTypeTakeTheNameOfTheCustomerReadLast() {
    for (const QString& button : {u"Command1_1"_s, u"cmdAcctType"_s}) {
      TownDesk desk;
      Search(desk, 1, u"ark"_s);
      // Opened and closed; or to an individual and back.
      desk.Click(button);
      desk.Click(button);
      QCOMPARE(desk.Text(u"fraAux"_s), u"Data for Dock Five"_s);
      QCOMPARE(desk.Box(1), u"Zeta Works"_s);
      desk.Click(u"cmdNav_0"_s);
      QCOMPARE(desk.Text(u"fraAux"_s), u"Data for Zeta Works"_s);
    }
  }

  void theCompleteListOf32767OpensAndScrollsWithoutAWidgetPerRow() {
    CustomerDesk desk(Many(2));
    desk.Open();
    const auto widgets = [&] { return Grid(desk)->findChildren<QWidget*>().size(); };
    desk.Driver().Trigger(u"mnuPrint"_s);
    const auto few = widgets();
    desk.Driver().Trigger(u"mnuPrint"_s);
    desk.Click(u"cmdCustomer_0"_s);
    desk.Program.Tree.Write(u"/CustomerData.txt"_s, Many(32767));
    desk.GoFromMenu();
    desk.Driver().Trigger(u"mnuPrint"_s);
    QCOMPARE(Grid(desk)->model()->rowCount(), 32767);
    QScrollBar* bar = Grid(desk)->verticalScrollBar();
    bar->setValue(bar->maximum());
    ScreenDriver::ProcessEvents();
    QCOMPARE(widgets(), few);
    QVERIFY(Grid(desk)->viewport()->rect().contains(Grid(desk)->visualRect(Grid(desk)->model()->index(32766, 0))));
    desk.Driver().SelectRow(u"fgCustomersFound"_s, 32767);
    desk.Driver().ClickPopup(u"mnupopup"_s, u"mnuSelect"_s);
    QCOMPARE(desk.Box(1), u"Name 32767"_s);
  }
};

QTEST_MAIN(CustomerSearchTest)
#include "tst_customerSearch.moc"
