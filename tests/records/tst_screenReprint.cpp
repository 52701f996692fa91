// The completed invoices' screen in the real program: the list, its order, and the ways off the screen.

#include "records/ReprintScreen.h"

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"/CompletedInvoices/"_s;

/// Stops the work whose progress is shown.
void Stop(QDialog& progress) {
  progress.findChild<QPushButton*>()->click();
}

}  // namespace

class ScreenReprint : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itListsTheImagesUnderTheirHeadings();
  void theCaptionsAndTips();
  void atFirstTheListIsSortedByNumberAndTheSortPanelIsHidden();
  void theListIsReadAnewAtEachShowing();
  void withoutAnImageItSaysSoAndTheMenuIsShownAnew();
  void anImageThatCannotBeListedIsNamedAndTheMenuStays_data();
  void anImageThatCannotBeListedIsNamedAndTheMenuStays();
  void theListNeedsNoMoreThanFiveLinesOfAnImage();
  void eachKeySortsBothWays_data();
  void eachKeySortsBothWays();
  void inTheSortPanelEnterSortsAndEscapeClosesIt();
  void withinADateTheOrderOfTheFormerSortIsKept();
  void theYearLeadsTheOrderOfDates();
  void theTwoKindsOfOptionsAreChosenApart();
  void menuUnloadsTheScreen();
  void closingTheWindowEndsTheProgram();
  void aStopWhileTheListIsReadLeadsBackToTheMenu();
};

void ScreenReprint::itListsTheImagesUnderTheirHeadings() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  auto* view = desk.On().Control<QTableView>(u"fgReceivables"_s);
  const auto* grid = view->model();
  QStringList headings;
  for (int col = 0; col < grid->columnCount(); ++col) headings.append(grid->headerData(col, Qt::Horizontal).toString());
  QCOMPARE(headings, (QStringList{u"Invoice Number"_s, u"Account Number"_s, u"Account Name"_s, u"Invoice Date"_s,
                                  u"Amount"_s, u"Sort"_s}));
  QCOMPARE(grid->rowCount(), 4);
  QCOMPARE(desk.Column(1), QStringList(4, u"1001"_s));
  QCOMPARE(desk.Column(2), (QStringList{u"Hill & Sons"_s, u"acme tools"_s, u"Bay Farm"_s, u"Acme Tools"_s}));
  QCOMPARE(desk.Column(3), (QStringList{u"12/31/2025"_s, u"3/6/2026"_s, u"3/6/2026"_s, u"3/7/2026"_s}));
  QCOMPARE(desk.Column(4), (QStringList{u"$900.00"_s, u"$7.00"_s, u"$1,086.50"_s, u"$12.00"_s}));
  QCOMPARE(desk.Column(5), (QStringList{u"2025465"_s, u"2026165"_s, u"2026165"_s, u"2026166"_s}));
  for (int col = 0; col < 5; ++col) QVERIFY(!view->isColumnHidden(col));
  QVERIFY(view->isColumnHidden(5));
}

void ScreenReprint::theCaptionsAndTips() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  const ScreenDriver screen = desk.On();
  const std::initializer_list<std::pair<QString, QString>> captions{
      {u"cmdPrint"_s, u"&RePrint"_s},
      {u"cmdMemo"_s, u"Clear&M&emo"_s},
      {u"cmdHide"_s, u"Re-&Select"_s},
      {u"cmdExit"_s, u"&Menu"_s},
      {u"cmdReport"_s, u"Print&Report"_s},
      {u"cmdKill"_s, u"Delete"_s},
      {u"cmdMode"_s, u"Sort Grid"_s},
      {u"optCol_0"_s, u"Invoice Number"_s},
      {u"optCol_1"_s, u"Invoice Date"_s},
      {u"optCol_2"_s, u"Account Name"_s},
      {u"optSort_0"_s, u"Asending Order"_s},
      {u"optSort_1"_s, u"Desending Order"_s},
      {u"lblMemoNote"_s, u"This is the Currently LOADED Memo It may not be the Original Memo"_s}};
  for (const auto& [name, caption] : captions) QCOMPARE(screen.Text(name), caption);
  QCOMPARE(screen.Control(u"DTPicker1"_s)->toolTip(), u"Invoices prior to this date will be deleted"_s);
  // The letter of the memo's button isn't that of Menu, which stands beside it.
  QCOMPARE(screen.Control<QAbstractButton>(u"cmdMemo"_s)->shortcut(), QKeySequence(u"Alt+E"_s));
  const auto* items = screen.Control<QTableView>(u"fgItems"_s)->model();
  QStringList headings;
  for (int col = 0; col < items->columnCount(); ++col)
    headings.append(items->headerData(col, Qt::Horizontal).toString());
  QCOMPARE(headings, (QStringList{u"Units"_s, u"Description"_s, u"Date"_s, u"Unit Cost"_s, u"Extension"_s}));
}

void ScreenReprint::atFirstTheListIsSortedByNumberAndTheSortPanelIsHidden() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  // As numbers: the 900 comes first.
  QCOMPARE(desk.Column(0), (QStringList{u"900"_s, u"20260009"_s, u"20260010"_s, u"20260011"_s}));
  QVERIFY(desk.ShowsList());
  QVERIFY(!desk.On().IsVisible(u"fraSort"_s));
  QCOMPARE(desk.On().FocusName(), u"fgReceivables"_s);
  QCOMPARE(desk.Date(), QDate(2026, 3, 8));
  QVERIFY(desk.On().IsVisible(u"cmdReport"_s));
  for (const auto& name : {u"cmdPrint"_s, u"cmdHide"_s, u"cmdMemo"_s}) QVERIFY(!desk.On().IsVisible(name));
}

void ScreenReprint::theListIsReadAnewAtEachShowing() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Sort(2, 1);
  desk.On().Click(u"cmdExit"_s);
  desk.Program.Tree.Write(Folder + u"20260012.txt"_s, Image("20260012", "New", "3/7/2026", "$1.00"));
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  OpenReprint();
  QCOMPARE(desk.Column(0), (QStringList{u"900"_s, u"20260009"_s, u"20260011"_s, u"20260012"_s}));
}

void ScreenReprint::withoutAnImageItSaysSoAndTheMenuIsShownAnew() {
  ReprintScreen desk;
  QVERIFY(desk.Program.StartAtMenu());
  for (const QString& file : desk.Images()) desk.Program.Tree.Remove(Folder + file);
  desk.Program.Answers.Ok(u"No Completed Invoices Exist"_s, u"Karvex Invoicer"_s);
  OpenReprint();
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QVERIFY(!ScreenDriver::IsShown(u"frmReprint"_s));
  QVERIFY(desk.Program.Built(ScreenName::frmReprint) == nullptr);
  const ScreenDriver menu(u"frmStartup"_s);
  QVERIFY(!menu.IsVisible(u"optMainMenuSub_2"_s));
  // And the menu goes on as ever.
  menu.Click(u"optMainMenuSub_3"_s);
  menu.Click(u"cmdGoto"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenReprint::anImageThatCannotBeListedIsNamedAndTheMenuStays_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("error");
  QTest::newRow("empty") << QByteArray() << u"(error 62)"_s;
  QTest::newRow("four lines") << QByteArray("1\r\n1001\r\nBay\r\n3/7/2026\r\n") << u"(error 62)"_s;
  QTest::newRow("no date") << QByteArray("1\r\n1001\r\nBay\r\nsoon\r\n$1.00\r\n") << u"(error 13)"_s;
}

void ScreenReprint::anImageThatCannotBeListedIsNamedAndTheMenuStays() {
  QFETCH(const QByteArray, content);
  QFETCH(const QString, error);
  ReprintScreen desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Program.Tree.Write(Folder + u"20260010.txt"_s, content);
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.Ok();
  OpenReprint();
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(Folder + u"20260010.txt"_s) && text.contains(error), qPrintable(text));
  QVERIFY(!desk.Program.Running().HasEnded());
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmReprint"_s));
  QCOMPARE(desk.Program.Tree.Everything(), before);
  // Mended, it opens.
  desk.Program.Tree.Remove(Folder + u"20260010.txt"_s);
  OpenReprint();
  QCOMPARE(desk.Column(0).size(), 3);
}

void ScreenReprint::theListNeedsNoMoreThanFiveLinesOfAnImage() {
  ReprintScreen desk;
  desk.Program.Tree.Write(Folder + u"20260012.txt"_s, "20260012\n1003\nShort\n1/5/2001\n$1.00");
  QVERIFY(desk.Open());
  const auto row = desk.Column(0).indexOf(u"20260012"_s);
  QCOMPARE(desk.Column(4).at(row), u"$1.00"_s);
  QCOMPARE(desk.Column(5).at(row), u"2001105"_s);
}

void ScreenReprint::eachKeySortsBothWays_data() {
  QTest::addColumn<int>("col");
  QTest::addColumn<int>("order");
  QTest::addColumn<QStringList>("numbers");
  const QString a = u"900"_s, b = u"20260009"_s, c = u"20260010"_s, d = u"20260011"_s;
  QTest::newRow("number, ascending") << 0 << 0 << QStringList{a, b, c, d};
  QTest::newRow("number, descending") << 0 << 1 << QStringList{d, c, b, a};
  QTest::newRow("date, ascending") << 1 << 0 << QStringList{a, b, c, d};
  // The two of one date stay as they stood.
  QTest::newRow("date, descending") << 1 << 1 << QStringList{d, b, c, a};
  // Texts by character code: capitals first.
  QTest::newRow("name, ascending") << 2 << 0 << QStringList{d, c, a, b};
  QTest::newRow("name, descending") << 2 << 1 << QStringList{b, a, c, d};
}

void ScreenReprint::eachKeySortsBothWays() {
  QFETCH(const int, col);
  QFETCH(const int, order);
  QFETCH(const QStringList, numbers);
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.On().Trigger(u"mnuSort"_s);
  QVERIFY(desk.On().IsVisible(u"fraSort"_s));
  QCOMPARE(desk.On().FocusName(), u"optCol_0"_s);
  desk.Sort(col, order);
  QCOMPARE(desk.Column(0), numbers);
  QVERIFY(!desk.On().IsVisible(u"fraSort"_s));
  QVERIFY(desk.ShowsList());
  // A click opens the row that stands there now.
  desk.On().SelectRow(u"fgReceivables"_s, 1);
  QCOMPARE(ReprintScreen::Title(), u"Details for Invoice "_s + numbers.first());
}

void ScreenReprint::inTheSortPanelEnterSortsAndEscapeClosesIt() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  const QStringList order = desk.Column(0);
  desk.On().Trigger(u"mnuSort"_s);
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(!desk.On().IsVisible(u"fraSort"_s));
  QVERIFY(desk.ShowsList());
  QCOMPARE(desk.On().FocusName(), u"fgReceivables"_s);
  QCOMPARE(desk.Column(0), order);
  desk.On().Trigger(u"mnuSort"_s);
  desk.On().Click(u"optSort_1"_s);
  desk.On().PressKey(Qt::Key_Return);
  QVERIFY(!desk.On().IsVisible(u"fraSort"_s));
  QCOMPARE(desk.Column(0), QStringList(order.crbegin(), order.crend()));
  QCOMPARE(desk.On().FocusName(), u"fgReceivables"_s);
  // At the list Enter opens the row, and Escape leads to the menu again.
  desk.On().PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenReprint::withinADateTheOrderOfTheFormerSortIsKept() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Sort(0, 1);
  desk.Sort(1, 0);
  QCOMPARE(desk.Column(0), (QStringList{u"900"_s, u"20260010"_s, u"20260009"_s, u"20260011"_s}));
}

void ScreenReprint::theYearLeadsTheOrderOfDates() {
  ReprintScreen desk;
  for (const QString& file : desk.Images()) desk.Program.Tree.Remove(Folder + file);
  const std::initializer_list<std::pair<QByteArray, QByteArray>> dates{
      {"1", "1/5/2026"}, {"2", "12/31/2025"}, {"3", "12/30/2026"}, {"4", "2/1/2026"}, {"5", "12/31/2024"}};
  for (const auto& [number, date] : dates)
    desk.Program.Tree.Write(Folder + QString::fromLatin1(number) + u".txt"_s, Image(number, "Bay", date, "$1.00"));
  QVERIFY(desk.Open());
  desk.Sort(1, 1);
  QCOMPARE(desk.Column(0), (QStringList{u"3"_s, u"4"_s, u"1"_s, u"2"_s, u"5"_s}));
  // The leap year's last day is its 366th.
  QCOMPARE(desk.Column(5), (QStringList{u"2026464"_s, u"2026132"_s, u"2026105"_s, u"2025465"_s, u"2024466"_s}));
}

void ScreenReprint::theTwoKindsOfOptionsAreChosenApart() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  const ScreenDriver screen = desk.On();
  screen.Trigger(u"mnuSort"_s);
  const auto chosen = [&] {
    QStringList names;
    for (const auto* option : screen.Window()->findChildren<QRadioButton*>()) {
      if (option->isChecked()) names.append(option->objectName());
    }
    names.sort();
    return names;
  };
  QCOMPARE(chosen(), (QStringList{u"optCol_0"_s, u"optSort_0"_s}));
  screen.Click(u"optCol_2"_s);
  QCOMPARE(chosen(), (QStringList{u"optCol_2"_s, u"optSort_0"_s}));
  screen.Click(u"optSort_1"_s);
  QCOMPARE(chosen(), (QStringList{u"optCol_2"_s, u"optSort_1"_s}));
}

void ScreenReprint::menuUnloadsTheScreen() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Select(u"900"_s);
  desk.On().Click(u"cmdExit"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(desk.Program.Built(ScreenName::frmReprint) == nullptr);
  // It comes back as it was at first.
  OpenReprint();
  QVERIFY(desk.ShowsList());
}

void ScreenReprint::closingTheWindowEndsTheProgram() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.On().CloseByUser();
  QVERIFY(desk.Program.Running().HasEnded());
  QVERIFY(desk.Program.Tree.Exists(u"/Backup/Services.txt"_s));
}

void ScreenReprint::aStopWhileTheListIsReadLeadsBackToTheMenu() {
  ReprintScreen desk;
  desk.Program.Patience = 0;
  QVERIFY(desk.Program.StartAtMenu());
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.Dialog(&Stop);
  OpenReprint();
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmReprint"_s));
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  // The next time it isn't stopped.
  desk.Program.Answers.Dialog([](QDialog&) {});
  OpenReprint();
  QCOMPARE(desk.Column(0).size(), 4);
}

QTEST_MAIN(ScreenReprint)
#include "tst_screenReprint.moc"
