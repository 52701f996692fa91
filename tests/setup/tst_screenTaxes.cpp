// Setup's taxation sub-tab: lists, ticks and the graduated scheme.
#include <QCheckBox>
#include <QtTest>

#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class ScreenTaxesTest : public QObject {
  Q_OBJECT

  static bool Ticked(const ScreenDriver& setup, const QString& name) {
    return setup.Control<QCheckBox>(name)->isChecked();
  }
  static QStringList Entries(const ScreenDriver& setup, const QString& name) {
    QStringList entries;
    const auto* box = setup.Control<QComboBox>(name);
    for (int i = 0; i < box->count(); ++i) entries << box->itemText(i);
    return entries;
  }
  static ScreenDriver OpenTaxation(SetupScreen& program) {
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    SetupScreen::GoToOptions(setup, 1);
    return setup;
  }

 private Q_SLOTS:
  void withoutFilesTheDefaultsShow() {
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    QCOMPARE(setup.Text(u"cboTaxHeading1"_s), u"Sales Tax"_s);
    QCOMPARE(setup.Text(u"cboTaxHeading2"_s), u"Tax"_s);
    QCOMPARE(setup.Text(u"cboRate1"_s), u"4.0"_s);
    QCOMPARE(setup.Text(u"cboRate2"_s), u"4.0"_s);
    QVERIFY(!Ticked(setup, u"ckApply1stTax"_s));
    QVERIFY(!Ticked(setup, u"ckApply2ndTax"_s));
    QVERIFY(Ticked(setup, u"ckSalesItems"_s));
    for (const QString& name : {u"ckServices"_s, u"ckLabor"_s, u"ckCustom"_s, u"ckApplyGraduated"_s}) {
      QVERIFY2(!Ticked(setup, name), qPrintable(name));
    }
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"$0.00"_s);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"$0.00"_s);
    QVERIFY(!setup.IsVisible(u"fraGraduated"_s));
  }

  void theListsOfferTheirEntriesInOrder() {
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    const QStringList rates = {u"4.0"_s, u"5.0"_s, u"6.0"_s, u"7.0"_s, u"5,0"_s, u"6,0"_s, u"7,0"_s};
    const QStringList headings = {u"Sales Tax"_s, u"County Tax"_s,     u"Tax"_s, u"Taxes"_s,
                                  u"VAT Tax"_s,   u"Provincial Tax"_s, u"GST"_s};
    QCOMPARE(Entries(setup, u"cboRate1"_s), rates);
    QCOMPARE(Entries(setup, u"cboRate2"_s), rates);
    QCOMPARE(Entries(setup, u"cboTaxHeading1"_s), headings);
    QCOMPARE(Entries(setup, u"cboTaxHeading2"_s), headings + QStringList{u"Tax Surcharge"_s});
  }

  void picksTypedTextsAndTicksAreSaved() {
    SetupScreen program;
    ScreenDriver setup = OpenTaxation(program);
    setup.PickEntry(u"cboTaxHeading1"_s, u"GST"_s);
    setup.Fill(u"cboTaxHeading2"_s, u"Bed Tax"_s);
    setup.Fill(u"cboRate1"_s, u"6,5"_s);
    setup.PickEntry(u"cboRate2"_s, u"7.0"_s);
    setup.Click(u"ckApply1stTax"_s);
    setup.Click(u"ckApply2ndTax"_s);
    setup.Click(u"ckSalesItems"_s);
    setup.Click(u"ckServices"_s);
    setup.Click(u"ckLabor"_s);
    setup.Click(u"ckCustom"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/TaxSettings.txt"_s), "\"GST\",\"Bed Tax\",\"6,5\",\"7.0\",1,1\r\n");
    QCOMPARE(program.Tree.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             "0,1,1,1,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
    setup = SetupScreen::OpenAgain();
    SetupScreen::GoToOptions(setup, 1);
    QCOMPARE(setup.Text(u"cboTaxHeading2"_s), u"Bed Tax"_s);
    QVERIFY(!Entries(setup, u"cboTaxHeading2"_s).contains(u"Bed Tax"_s));
    QCOMPARE(setup.Text(u"cboRate1"_s), u"6,5"_s);
  }

  void theNextStartShowsWhatWasSaved() {
    SetupScreen program;
    program.Tree.Write(u"/TaxSettings.txt"_s, "\"Bed Tax\",\"GST\",\"3\",\"6,0\",0,1\r\n");
    program.Tree.Write(u"/KarvexInvoicerSettings.txt"_s,
                       "0,1,0,1,1,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$1,000.00\",\"$5.00\"\r\n");
    const ScreenDriver setup = OpenTaxation(program);
    QCOMPARE(setup.Text(u"cboTaxHeading1"_s), u"Bed Tax"_s);
    QCOMPARE(setup.Text(u"cboTaxHeading2"_s), u"GST"_s);
    QCOMPARE(setup.Text(u"cboRate1"_s), u"3"_s);
    QCOMPARE(setup.Text(u"cboRate2"_s), u"6,0"_s);
    QVERIFY(!Ticked(setup, u"ckApply1stTax"_s));
    QVERIFY(Ticked(setup, u"ckApply2ndTax"_s));
    QVERIFY(!Ticked(setup, u"ckSalesItems"_s));
    QVERIFY(Ticked(setup, u"ckServices"_s));
    QVERIFY(!Ticked(setup, u"ckLabor"_s));
    QVERIFY(Ticked(setup, u"ckCustom"_s));
    QVERIFY(Ticked(setup, u"ckApplyGraduated"_s));
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"$1,000.00"_s);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"$5.00"_s);
  }

  void theDoubleQuoteIsRefusedInTheBoxesThatAreSaved() {
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    setup.Click(u"cmdGraduatedTax_0"_s);
    for (const QString& box : {u"cboTaxHeading1"_s, u"cboTaxHeading2"_s, u"cboRate1"_s, u"cboRate2"_s,
                               u"txtGradulated_0"_s, u"txtGradulated_1"_s}) {
      setup.Fill(box, u"7"_s);
      program.Answers.Ok(u"This character, (\") is invalid for this field"_s, u"Invalid Key entry"_s);
      setup.Type(u"\""_s);
      QCOMPARE(setup.Text(box), u"7"_s);
    }
  }

  void theSchemeOpensOnItsLimitAndClosesWithBothAmountsFormatted() {
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    setup.Click(u"ckApplyGraduated"_s);
    setup.Click(u"cmdGraduatedTax_0"_s);
    QVERIFY(setup.IsVisible(u"fraGraduated"_s));
    QCOMPARE(setup.FocusName(), u"txtGradulated_0"_s);
    setup.Fill(u"txtGradulated_0"_s, u"1000"_s);
    setup.Fill(u"txtGradulated_1"_s, u"5"_s);
    setup.Click(u"cmdGraduatedTax_1"_s);
    QVERIFY(!setup.IsVisible(u"fraGraduated"_s));
    // One more Enter opens it again, and doesn't leave Setup.
    QCOMPARE(setup.FocusName(), u"cmdGraduatedTax_0"_s);
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"$1,000.00"_s);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"$5.00"_s);
    QVERIFY(Ticked(setup, u"ckApplyGraduated"_s));
    QVERIFY(!program.Tree.Exists(u"/KarvexInvoicerSettings.txt"_s));
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             "1,0,0,0,1,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$1,000.00\",\"$5.00\"\r\n");
  }

  void aLimitOfZeroTurnsTheSchemeOffWhateverWasTicked() {
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    setup.Click(u"ckApplyGraduated"_s);
    setup.Click(u"cmdGraduatedTax_0"_s);
    setup.Click(u"cmdGraduatedTax_1"_s);
    QVERIFY(!Ticked(setup, u"ckApplyGraduated"_s));
    QVERIFY(!setup.IsVisible(u"fraGraduated"_s));
  }

  void anAmountThatIsNoNumberBeepsAndKeepsTheFrame_data() {
    QTest::addColumn<int>("box");
    QTest::newRow("limit") << 0;
    QTest::newRow("surcharge") << 1;
  }
  void anAmountThatIsNoNumberBeepsAndKeepsTheFrame() {
    QFETCH(int, box);
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    setup.Click(u"ckApplyGraduated"_s);
    setup.Click(u"cmdGraduatedTax_0"_s);
    setup.Fill(u"txtGradulated_0"_s, u"100"_s);
    setup.Fill(u"txtGradulated_%1"_s.arg(box), u"abc"_s);
    setup.Click(u"cmdGraduatedTax_1"_s);
    QCOMPARE(program.Dialogs.Beeps, 1);
    QVERIFY(setup.IsVisible(u"fraGraduated"_s));
    QCOMPARE(setup.Text(u"txtGradulated_%1"_s.arg(box)), u"$0.00"_s);
    QCOMPARE(setup.FocusName(), u"txtGradulated_%1"_s.arg(box));
    QVERIFY(Ticked(setup, u"ckApplyGraduated"_s));
  }

  void anAmountTooLargeForANumberIsToldAndStaysAsItWasTyped() {
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    setup.Click(u"ckApplyGraduated"_s);
    setup.Click(u"cmdGraduatedTax_0"_s);
    setup.Fill(u"txtGradulated_0"_s, u"1000"_s);
    setup.Fill(u"txtGradulated_1"_s, u"1E400"_s);
    program.Answers.Ok();
    setup.Click(u"cmdGraduatedTax_1"_s);
    QVERIFY2(program.Answers.Last().Text.startsWith(u"Graduated Tax Levels: "_s) &&
                 program.Answers.Last().Text.contains(u"(error 6)"_s),
             qPrintable(program.Answers.Last().Text));
    QVERIFY(setup.IsVisible(u"fraGraduated"_s));
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"1000"_s);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"1E400"_s);
    QVERIFY(Ticked(setup, u"ckApplyGraduated"_s));
    // What the screen shows is what a save writes.
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             "1,0,0,0,1,\"0.0\",\"0\",#TRUE#,#FALSE#,\"1000\",\"1E400\"\r\n");
  }

  void clearRedoSetsBothToZero() {
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    setup.Click(u"cmdGraduatedTax_0"_s);
    setup.Fill(u"txtGradulated_0"_s, u"1000"_s);
    setup.Fill(u"txtGradulated_1"_s, u"5"_s);
    setup.Click(u"cmdGraduatedTax_2"_s);
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"$0.00"_s);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"$0.00"_s);
    QCOMPARE(setup.FocusName(), u"txtGradulated_0"_s);
    QVERIFY(setup.IsVisible(u"fraGraduated"_s));
  }

  void aKeyTypesOverTheZeroOfEitherAmount_data() {
    QTest::addColumn<QString>("box");
    QTest::newRow("limit") << u"txtGradulated_0"_s;
    QTest::newRow("surcharge") << u"txtGradulated_1"_s;
  }
  void aKeyTypesOverTheZeroOfEitherAmount() {
    QFETCH(QString, box);
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    setup.Click(u"cmdGraduatedTax_0"_s);
    setup.Click(box);
    setup.Type(u"7"_s);
    QCOMPARE(setup.Text(box), u"7"_s);
    setup.Type(u"5"_s);
    QCOMPARE(setup.Text(box), u"75"_s);
    // An amount that isn't zero is typed on.
    setup.Fill(box, u"$1.00"_s);
    setup.PressKey(Qt::Key_End);
    setup.Type(u"5"_s);
    QCOMPARE(setup.Text(box), u"$1.005"_s);
  }

  void theKeysThatLeadElsewhereLeaveTheZero() {
    SetupScreen program;
    const ScreenDriver setup = OpenTaxation(program);
    setup.Click(u"cmdGraduatedTax_0"_s);
    setup.Type(u"12"_s);
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"12"_s);
    setup.PressKey(Qt::Key_Tab);
    QCOMPARE(setup.FocusName(), u"txtGradulated_1"_s);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"$0.00"_s);
    setup.PressKey(Qt::Key_Shift);
    setup.PressKey(Qt::Key_Tab);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"$0.00"_s);
  }
};

QTEST_MAIN(ScreenTaxesTest)
#include "tst_screenTaxes.moc"
