// "Print Blank Invoices" in the real program, from the main menu and back.
#include <QLineEdit>

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

class ScreenBlanks : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theMenuOpensItWithTheBoxInFocus();
  void itsTextsAreTheSystemsOwn();
  void printPrintsAsManySheetsAsEntered();
  void enterPrints();
  void thePaperOfSetupDecides();
  void aCountThatIsNoNumberIsAPrintError();
  void afterAWrongCountTheBoxHasTheFocusAgain();
  void aCancelledDialogLeavesTheScreenAsItIs();
  void returnToMenuHidesItAndShowsTheMenu();
  void escapeReturnsToTheMenu();
};

namespace {
/// The program at this screen, reached by its option.
ScreenDriver Open(ProgramFixture& program) {
  program.Tree.Write(u"/Services.txt"_s, QByteArray("Repair").leftJustified(60, ' ') +
                                             QByteArray("$10.00").leftJustified(10, ' ') + QByteArray("\x01\x00", 2));
  program.Tree.Write(u"/TaxRecords.txt"_s, "");
  program.StartAtMenu();
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_6"_s);
  menu.Click(u"cmdGoto"_s);
  return ScreenDriver(u"frmBlanks"_s);
}
}  // namespace

void ScreenBlanks::theMenuOpensItWithTheBoxInFocus() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(blanks.FocusName(), u"txtInvoices"_s);
  QCOMPARE(blanks.Text(u"txtInvoices"_s), QString());
}

void ScreenBlanks::itsTextsAreTheSystemsOwn() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  QCOMPARE(blanks.Window()->windowTitle(), u"Print Blank Invoices"_s);
  QCOMPARE(blanks.Text(u"Label1"_s).remove(u'&'), u"Enter the Number of Invoices to Print"_s);
  QCOMPARE(blanks.Control<QAbstractButton>(u"Command1_0"_s)->text().remove(u'&'), u"Print"_s);
  QCOMPARE(blanks.Control<QAbstractButton>(u"Command1_1"_s)->text().remove(u'&'), u"Return to Menu"_s);
}

void ScreenBlanks::printPrintsAsManySheetsAsEntered() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  blanks.Fill(u"txtInvoices"_s, u"2"_s);
  blanks.Click(u"Command1_0"_s);
  QCOMPARE(program.Paper.DialogsShown, 2);
  QCOMPARE(program.Paper.Jobs.size(), 2U);
  const QStringList words = program.Paper.Words(1);
  for (const auto& word : {u"INVOICE"_s, u"Date 3/7/2026"_s, u"INVOICE NO: "_s, u"Acct: "_s, u"Page 1"_s,
                           u"Reference"_s, u"QTY"_s, u"DESCRIPTION"_s}) {
    QVERIFY2(words.contains(word), qPrintable(word + u" in "_s + words.join(u'|')));
  }
  QVERIFY(ScreenDriver::IsShown(u"frmBlanks"_s));
  QCOMPARE(blanks.Text(u"txtInvoices"_s), u"2"_s);
}

void ScreenBlanks::enterPrints() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  blanks.Type(u"1"_s);
  blanks.PressKey(Qt::Key_Return);
  QCOMPARE(program.Paper.Jobs.size(), 1U);
}

void ScreenBlanks::thePaperOfSetupDecides() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  const QString detach = u"Detach Here and Return Top Section"_s;
  blanks.Type(u"1"_s);
  blanks.Click(u"Command1_0"_s);
  QVERIFY(!program.Paper.Words(1).contains(detach));
  program.Running().ShowSetupAtFirstTab();
  ScreenDriver(u"frmSetup"_s).Control<QAbstractButton>(u"optReturn"_s)->click();
  program.Running().Hide(ScreenName::frmSetup);
  blanks.Click(u"Command1_0"_s);
  QVERIFY(program.Paper.Words(1).contains(detach));
  QVERIFY(program.Paper.Words(1).contains(u"Amount Enclosed              _______________"_s));
}

void ScreenBlanks::aCountThatIsNoNumberIsAPrintError() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  for (const auto& text : {QString(), u"ten"_s}) {
    blanks.Fill(u"txtInvoices"_s, text);
    program.Answers.Ok(u"A Print Error has occurred"_s, u"Print Error"_s);
    blanks.Click(u"Command1_0"_s);
    QVERIFY(program.Answers.AllUsed());
  }
  QCOMPARE(program.Paper.DialogsShown, 0);
  QVERIFY(ScreenDriver::IsShown(u"frmBlanks"_s));
}

void ScreenBlanks::afterAWrongCountTheBoxHasTheFocusAgain() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  blanks.Type(u"abc"_s);
  program.Answers.Ok(u"A Print Error has occurred"_s);
  blanks.PressKey(Qt::Key_Return);
  QCOMPARE(blanks.FocusName(), u"txtInvoices"_s);
  blanks.Type(u"2"_s);
  blanks.PressKey(Qt::Key_Return);
  QCOMPARE(program.Paper.Jobs.size(), 2U);
}

void ScreenBlanks::aCancelledDialogLeavesTheScreenAsItIs() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  program.Paper.DialogError = ErrorNumber::DialogCancelled;
  blanks.Type(u"4"_s);
  blanks.Click(u"Command1_0"_s);
  QCOMPARE(program.Paper.DialogsShown, 1);
  QCOMPARE(program.Paper.Jobs.size(), 0U);
  QVERIFY(program.Answers.Boxes().isEmpty());
  QVERIFY(ScreenDriver::IsShown(u"frmBlanks"_s));
}

void ScreenBlanks::returnToMenuHidesItAndShowsTheMenu() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  blanks.Click(u"Command1_1"_s);
  QVERIFY(!ScreenDriver::IsShown(u"frmBlanks"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenBlanks::escapeReturnsToTheMenu() {
  ProgramFixture program;
  const ScreenDriver blanks = Open(program);
  blanks.Type(u"4"_s);
  blanks.PressKey(Qt::Key_Escape);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmBlanks"_s));
  QCOMPARE(program.Paper.DialogsShown, 0);
}

QTEST_MAIN(ScreenBlanks)
#include "tst_screenBlanks.moc"
