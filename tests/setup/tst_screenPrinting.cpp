// Setup's printing sub-tab: colours, font, paper, and the two boxes that never flow back.
#include <QCheckBox>
#include <QRadioButton>
#include <QtTest>

#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class ScreenPrintingTest : public QObject {
  Q_OBJECT

  static QColor Swatch(const ScreenDriver& setup, const QString& name) {
    return setup.Control(name)->palette().color(QPalette::Base);
  }
  static ScreenDriver OpenPrinting(SetupScreen& program) {
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    SetupScreen::GoToOptions(setup, 0);
    return setup;
  }

 private Q_SLOTS:
  void withoutTheFileItIsBlackBlackAndArial() {
    SetupScreen program;
    const ScreenDriver setup = OpenPrinting(program);
    QCOMPARE(Swatch(setup, u"txtBorders"_s), QColor(Qt::black));
    QCOMPARE(Swatch(setup, u"txtData"_s), QColor(Qt::black));
    QCOMPARE(setup.Text(u"lblFont"_s), u"Arial"_s);
    QVERIFY(setup.Control<QCheckBox>(u"ckColor"_s)->isChecked());
    QCOMPARE(setup.Text(u"cboCopies"_s), u"3"_s);
    QVERIFY(setup.Control<QRadioButton>(u"optPlain"_s)->isChecked());
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/PrintColors.txt"_s), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
  }

  void chosenColorsAndFontShowAndAreSaved() {
    SetupScreen program;
    const ScreenDriver setup = OpenPrinting(program);
    program.Answers.Color(0xFF0000);
    setup.Click(u"cmdChange_0"_s);
    QCOMPARE(Swatch(setup, u"txtBorders"_s), QColor(Qt::blue));
    QCOMPARE(Swatch(setup, u"txtData"_s), QColor(Qt::black));
    program.Answers.Color(0x0000FF);
    setup.Click(u"cmdChange_1"_s);
    QCOMPARE(Swatch(setup, u"txtData"_s), QColor(Qt::red));
    program.Answers.Font(u"Liberation Serif"_s);
    setup.Click(u"cmdChange_2"_s);
    QCOMPARE(setup.Text(u"lblFont"_s), u"Liberation Serif"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/PrintColors.txt"_s), "16711680\r\n255\r\n\"Liberation Serif\"\r\n#TRUE#\r\n3\r\n");
  }

  void aCancelledDialogLeavesTheValue() {
    SetupScreen program;
    program.Tree.Write(u"/PrintColors.txt"_s, "255\r\n65280\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    const ScreenDriver setup = OpenPrinting(program);
    for (int i = 0; i < 3; ++i) {
      program.Answers.CancelDialog();
      setup.Click(u"cmdChange_%1"_s.arg(i));
    }
    QCOMPARE(Swatch(setup, u"txtBorders"_s), QColor(Qt::red));
    QCOMPARE(Swatch(setup, u"txtData"_s), QColor(0, 255, 0));
    QCOMPARE(setup.Text(u"lblFont"_s), u"Arial"_s);
  }

  void theColorTickLastsUntilTheProgramEnds() {
    SetupScreen program;
    ScreenDriver setup = OpenPrinting(program);
    setup.Click(u"ckColor"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/PrintColors.txt"_s), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    setup = SetupScreen::OpenAgain();
    QVERIFY(!setup.Control<QCheckBox>(u"ckColor"_s)->isChecked());
    program.End();
    setup = program.Open();
    QVERIFY(setup.Control<QCheckBox>(u"ckColor"_s)->isChecked());
  }

  void theNumberOfCopiesNeverFlowsBack() {
    SetupScreen program;
    program.Tree.Write(u"/PrintColors.txt"_s, "0\r\n0\r\n\"Arial\"\r\n#FALSE#\r\n2\r\n");
    ScreenDriver setup = OpenPrinting(program);
    QVERIFY(!setup.Control<QCheckBox>(u"ckColor"_s)->isChecked());
    QCOMPARE(setup.Text(u"cboCopies"_s), u"2"_s);
    setup.PickEntry(u"cboCopies"_s, u"5"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/PrintColors.txt"_s), "0\r\n0\r\n\"Arial\"\r\n#FALSE#\r\n2\r\n");
    setup = SetupScreen::OpenAgain();
    SetupScreen::GoToOptions(setup, 0);
    QCOMPARE(setup.Text(u"cboCopies"_s), u"5"_s);
  }

  void thePaperIsOneOfTwoAndIsSaved() {
    SetupScreen program;
    ScreenDriver setup = OpenPrinting(program);
    setup.Click(u"optReturn"_s);
    QVERIFY(!setup.Control<QRadioButton>(u"optPlain"_s)->isChecked());
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             "1,0,0,0,0,\"0.0\",\"0\",#FALSE#,#TRUE#,\"$0.00\",\"$0.00\"\r\n");
    setup = SetupScreen::OpenAgain();
    SetupScreen::GoToOptions(setup, 0);
    QVERIFY(setup.Control<QRadioButton>(u"optReturn"_s)->isChecked());
    setup.Click(u"optPlain"_s);
    QVERIFY(!setup.Control<QRadioButton>(u"optReturn"_s)->isChecked());
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
  }

  void aFileThatTurnsBothPapersOffShowsNoneAndStaysSo() {
    SetupScreen program;
    const QByteArray line = "1,0,0,0,0,\"0.0\",\"0\",#FALSE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n";
    program.Tree.Write(u"/KarvexInvoicerSettings.txt"_s, line);
    const ScreenDriver setup = OpenPrinting(program);
    QVERIFY(!setup.Control<QRadioButton>(u"optPlain"_s)->isChecked());
    QVERIFY(!setup.Control<QRadioButton>(u"optReturn"_s)->isChecked());
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/KarvexInvoicerSettings.txt"_s), line);
  }
};

QTEST_MAIN(ScreenPrintingTest)
#include "tst_screenPrinting.moc"
