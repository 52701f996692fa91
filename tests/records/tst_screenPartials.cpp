// The partial invoices screen in the real program: what it lists and offers when, the ways off it, and its report.

#include "records/PartialsDesk.h"

using namespace Qt::StringLiterals;

namespace {

bool AnyWindow() {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) return true;
  }
  return false;
}

}  // namespace

class ScreenPartials : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itListsThePartialInvoicesUnderItsHeadings();
  void theCaptions();
  void addAndPurgeWaitForAClickOnARow();
  void aKeyClicksTheRowToo();
  void aDeclinedPurgeLeavesTheKeysAtTheList();
  void theMenuButtonAndEscapeLeadBack();
  void theListIsReadAnewAtEachShowing();
  void withoutPartialInvoicesTheChoiceLeavesNoWindow();
  void aListThatCannotBeReadIsNamedAndEndsTheProgram();
  void theReportPrintsTheList();
  void cancelInThePrinterDialogReturnsQuietly();
  void aPrinterErrorIsToldAndTheProgramGoesOn();
};

void ScreenPartials::itListsThePartialInvoicesUnderItsHeadings() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const auto* grid = ScreenDriver(u"frmIncomplete"_s).Control<QTableView>(u"fgIncomplete"_s)->model();
  QStringList headings;
  for (int col = 0; col < 4; ++col) headings.append(grid->headerData(col, Qt::Horizontal).toString());
  QCOMPARE(headings, (QStringList{u"Invoice No"_s, u"Account Number"_s, u"Account Name"_s, u"Last Modified Date"_s}));
  QCOMPARE(grid->rowCount(), 3);
  const QString screen = u"frmIncomplete"_s, name = u"fgIncomplete"_s;
  QCOMPARE(Row(screen, name, 1), (QStringList{u"20260007"_s, u"1003"_s, u"Acme Tools"_s, u"3/3/2026"_s}));
  QCOMPARE(Row(screen, name, 2), (QStringList{u"20260008"_s, u"1002"_s, u"Hill, \"Top\" Ltd"_s, u"3/4/2026"_s}));
  QCOMPARE(Row(screen, name, 3), (QStringList{u"20260009"_s, u"1001"_s, u"Bay Farm"_s, u"3/5/2026"_s}));
  QCOMPARE(ScreenDriver(screen).FocusName(), name);
}

void ScreenPartials::theCaptions() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  QCOMPARE(partials.Control<QPushButton>(u"Command1_0"_s)->text(), u"&Menu"_s);
  QCOMPARE(partials.Control<QPushButton>(u"Command1_1"_s)->text(), u"&Add to Selected Invoice"_s);
  QCOMPARE(partials.Control<QPushButton>(u"Command1_2"_s)->text(), u"&Purge All Invoices"_s);
  QCOMPARE(partials.Control<QPushButton>(u"Command1_3"_s)->text(), u"&Purge Selected Invoice"_s);
  QCOMPARE(partials.Control<QPushButton>(u"cmdReport"_s)->text(), u"Print Partial Invoice &Report"_s);
}

void ScreenPartials::addAndPurgeWaitForAClickOnARow() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  QCOMPARE(Enabled(), (QList<int>{0, 2}));
  const ScreenDriver partials(u"frmIncomplete"_s);
  QVERIFY(partials.IsEnabled(u"cmdReport"_s));
  const auto shown = [&] { return partials.Control<QTableView>(u"fgIncomplete"_s)->selectionModel()->hasSelection(); };
  QVERIFY2(!shown(), "no row looks chosen before one is");
  partials.PressKey(Qt::Key_Down);
  QCOMPARE(Enabled(), (QList<int>{0, 2}));
  partials.SelectRow(u"fgIncomplete"_s, 1);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2, 3}));
  QVERIFY(shown());
  partials.Click(u"Command1_0"_s);
  OpenPartials();
  QCOMPARE(Enabled(), (QList<int>{0, 2}));
  QVERIFY(!shown());
}

void ScreenPartials::aKeyClicksTheRowToo() {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    PartialsDesk desk;
    QVERIFY(desk.Open());
    const ScreenDriver partials(u"frmIncomplete"_s);
    // The first time to the first row, then on from it.
    partials.PressKey(Qt::Key_Down);
    partials.PressKey(Qt::Key_A);
    QCOMPARE(Enabled(), (QList<int>{0, 2}));
    partials.PressKey(key);
    QCOMPARE(Enabled(), (QList<int>{0, 1, 2, 3}));
    desk.Program.Answers.No(u"This will Purge Incomplete Invoice# 20260007"_s);
    partials.Click(u"Command1_3"_s);
    partials.Control(u"fgIncomplete"_s)->setFocus();
    partials.PressKey(Qt::Key_Down);
    partials.PressKey(key);
    desk.Program.Answers.No(u"This will Purge Incomplete Invoice# 20260008"_s);
    partials.Click(u"Command1_3"_s);
  }
}

/// On the next button, which purges all, a second Enter would ask for that.
void ScreenPartials::aDeclinedPurgeLeavesTheKeysAtTheList() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  partials.Control(u"Command1_3"_s)->setFocus();
  desk.Program.Answers.No(u"This will Purge Incomplete Invoice# 20260007"_s);
  partials.PressKey(Qt::Key_Space);
  QCOMPARE(partials.FocusName(), u"fgIncomplete"_s);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2}));
}

void ScreenPartials::theMenuButtonAndEscapeLeadBack() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  ScreenDriver(u"frmIncomplete"_s).PressAccessKey('M');
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  OpenPartials();
  ScreenDriver(u"frmIncomplete"_s).PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::theListIsReadAnewAtEachShowing() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  ScreenDriver(u"frmIncomplete"_s).Click(u"Command1_0"_s);
  desk.Program.Tree.Remove(Folder + u"/20260007.txt"_s);
  OpenPartials();
  QCOMPARE(Row(u"frmIncomplete"_s, u"fgIncomplete"_s, 1).at(0), u"20260008"_s);
}

void ScreenPartials::withoutPartialInvoicesTheChoiceLeavesNoWindow() {
  PartialsDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  // The menu offers what it counted; meanwhile they have gone.
  for (const QString& file : desk.Program.Tree.List(Folder)) desk.Program.Tree.Remove(Folder + u'/' + file);
  OpenPartials();
  QVERIFY(!AnyWindow());
  QVERIFY(!desk.Program.Running().HasEnded());
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void ScreenPartials::aListThatCannotBeReadIsNamedAndEndsTheProgram() {
  PartialsDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.Program.Tree.Write(Folder + u"/20260008.txt"_s, "20260008\r\n1002\r\n");
  desk.Program.Answers.Ok();
  OpenPartials();
  QVERIFY2(desk.Program.Answers.Last().Text.contains(u"20260008.txt"_s), qPrintable(desk.Program.Answers.Last().Text));
  QVERIFY(desk.Program.Running().HasEnded());
  QVERIFY(!desk.Program.Tree.Exists(u"/Backup/Services.txt"_s));
}

void ScreenPartials::theReportPrintsTheList() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  ScreenDriver(u"frmIncomplete"_s).Click(u"cmdReport"_s);
  const RecordingPrinter& paper = desk.Program.Paper;
  QCOMPARE(paper.DialogsShown, 1);
  QCOMPARE(paper.Jobs.size(), std::size_t{1});
  const QStringList words = paper.Words(1);
  QVERIFY(words.contains(u"Incomplete Invoices Report"_s));
  QVERIFY(words.contains(u"Orange Grove Supply"_s));
  QVERIFY(words.contains(u"3/7/2026"_s));
  QVERIFY(!words.contains(u"Amount"_s));
  for (int row = 1; row <= 3; ++row) {
    for (const QString& cell : Row(u"frmIncomplete"_s, u"fgIncomplete"_s, row))
      QVERIFY2(words.contains(cell), qPrintable(cell));
  }
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::cancelInThePrinterDialogReturnsQuietly() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  desk.Program.Paper.DialogError = 32755;
  ScreenDriver(u"frmIncomplete"_s).Click(u"cmdReport"_s);
  QCOMPARE(desk.Program.Paper.Jobs.size(), std::size_t{0});
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartials::aPrinterErrorIsToldAndTheProgramGoesOn() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  desk.Program.Paper.SendError = 482;
  desk.Program.Answers.Ok();
  ScreenDriver(u"frmIncomplete"_s).Click(u"cmdReport"_s);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"(error 482)"_s));
  QVERIFY(!desk.Program.Running().HasEnded());
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

QTEST_MAIN(ScreenPartials)
#include "tst_screenPartials.moc"
