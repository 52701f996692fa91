// Setup without a mouse: Enter from entry to entry, the graduated scheme by keys, and the letter that two buttons
// share.
#include <QCheckBox>
#include <QRadioButton>
#include <QtTest>

#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class ScreenKeysTest : public QObject {
  Q_OBJECT

  /// Where Enter leads, from a control to the way out.
  static QStringList Way(const ScreenDriver& setup, const QString& from) {
    setup.Control(from)->setFocus();
    ScreenDriver::ProcessEvents();
    QStringList way{setup.FocusName()};
    while (way.last() != u"cmdQuit" && way.size() < 20) {
      setup.PressKey(Qt::Key_Return);
      way << setup.FocusName();
    }
    return way;
  }
  static ScreenDriver OpenScheme(SetupScreen& program) {
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    SetupScreen::GoToOptions(setup, 1);
    setup.Click(u"ckApplyGraduated"_s);
    setup.Click(u"cmdGraduatedTax_0"_s);
    return setup;
  }

 private Q_SLOTS:
  void enterGoesFromBoxToBoxAndThenToTheWayOut() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    QStringList boxes;
    for (int i = 0; i < 9; ++i) boxes << u"txtBusiness_%1"_s.arg(i);
    QCOMPARE(Way(setup, u"txtBusiness_0"_s), boxes + QStringList{u"cmdQuit"_s});
    // A box that doesn't show is no stop.
    setup.Click(u"cmdAddress"_s);
    boxes.removeOne(u"txtBusiness_5"_s);
    QCOMPARE(Way(setup, u"txtBusiness_0"_s), boxes + QStringList{u"cmdQuit"_s});
    QCOMPARE(setup.Text(u"cmdAddress"_s), u"International Style Address"_s);
  }

  void theTabKeyGoesThroughTheTaxationAsTheEyeDoes() {
    SetupScreen program;
    const ScreenDriver setup = OpenScheme(program);
    setup.Control(u"cboTaxHeading1"_s)->setFocus();
    ScreenDriver::ProcessEvents();
    QStringList way{setup.FocusName()};
    while (way.last() != u"cmdQuit" && way.size() < 30) {
      setup.PressKey(Qt::Key_Tab);
      way << setup.FocusName();
    }
    // Tax by tax, then what is taxed, then the graduated scheme: its switch, its button, its amounts, its ways out.
    QCOMPARE(way, (QStringList{u"cboTaxHeading1"_s, u"cboRate1"_s, u"ckApply1stTax"_s, u"cboTaxHeading2"_s,
                               u"cboRate2"_s, u"ckApply2ndTax"_s, u"ckSalesItems"_s, u"ckServices"_s, u"ckLabor"_s,
                               u"ckCustom"_s, u"ckApplyGraduated"_s, u"cmdGraduatedTax_0"_s, u"txtGradulated_0"_s,
                               u"txtGradulated_1"_s, u"cmdGraduatedTax_1"_s, u"cmdGraduatedTax_2"_s, u"cmdQuit"_s}));
  }

  void enterStopsAtTicksOptionsAndListsAndChangesNone() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    SetupScreen::GoToOptions(setup, 0);
    // Two options are one stop, at the chosen one, as for the Tab key.
    QCOMPARE(Way(setup, u"ckColor"_s), (QStringList{u"ckColor"_s, u"optPlain"_s, u"cboCopies"_s, u"cmdQuit"_s}));
    QVERIFY(setup.Control<QCheckBox>(u"ckColor"_s)->isChecked());
    QVERIFY(setup.Control<QRadioButton>(u"optPlain"_s)->isChecked());
    setup.Click(u"optReturn"_s);
    QCOMPARE(Way(setup, u"ckColor"_s), (QStringList{u"ckColor"_s, u"optReturn"_s, u"cboCopies"_s, u"cmdQuit"_s}));
    QVERIFY(setup.Control<QRadioButton>(u"optReturn"_s)->isChecked());
  }

  void enterAtTheWayOutSavesAndReturns() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    Way(setup, u"txtBusiness_8"_s);
    QVERIFY(!program.Tree.Exists(u"/MyBusinessData.txt"_s));
    setup.PressKey(Qt::Key_Return);
    QVERIFY(program.Tree.Exists(u"/MyBusinessData.txt"_s));
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  }

  void enterKeepsWhatWasTypedIntoAList() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    SetupScreen::GoToOptions(setup, 1);
    auto* heading = setup.Control<QComboBox>(u"cboTaxHeading1"_s);
    const int entries = heading->count();
    setup.Fill(u"cboTaxHeading1"_s, u"Bed Tax"_s);
    setup.PressKey(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(setup.FocusName(), u"cboRate1"_s);
    QCOMPARE(setup.Text(u"cboTaxHeading1"_s), u"Bed Tax"_s);
    QCOMPARE(heading->count(), entries);
  }

  void enterGoesThroughTheSchemeAndSavesItAtItsEnd() {
    SetupScreen program;
    const ScreenDriver setup = OpenScheme(program);
    setup.Type(u"1000"_s);
    setup.PressKey(Qt::Key_Return);
    QCOMPARE(setup.FocusName(), u"txtGradulated_1"_s);
    QVERIFY(setup.IsVisible(u"fraGraduated"_s));
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"1000"_s);
    // Enter doesn't empty the zero that it finds.
    setup.PressKey(Qt::Key_Return);
    QVERIFY(!setup.IsVisible(u"fraGraduated"_s));
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"$1,000.00"_s);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"$0.00"_s);
    QVERIFY(setup.Control<QCheckBox>(u"ckApplyGraduated"_s)->isChecked());
    QCOMPARE(program.Dialogs.Beeps, 0);
    QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
  }

  void enterInASchemeThatIsNoneBeepsAndKeepsIt() {
    SetupScreen program;
    const ScreenDriver setup = OpenScheme(program);
    setup.Fill(u"txtGradulated_1"_s, u"abc"_s);
    setup.PressKey(Qt::Key_Return);
    QCOMPARE(program.Dialogs.Beeps, 1);
    QVERIFY(setup.IsVisible(u"fraGraduated"_s));
    QCOMPARE(setup.FocusName(), u"txtGradulated_1"_s);
  }

  void escapeLosesNothingOfTheScheme() {
    SetupScreen program;
    const ScreenDriver setup = OpenScheme(program);
    setup.PressKey(Qt::Key_Escape);
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"$0.00"_s);
    setup.Fill(u"txtGradulated_0"_s, u"1000"_s);
    setup.PressKey(Qt::Key_Escape);
    QVERIFY(setup.IsVisible(u"fraGraduated"_s));
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"1000"_s);
    QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
  }

  void theLetterOfStoreAndSaveOnlyMovesBetweenTheTwo() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, path);
    QVERIFY(setup.IsEnabled(u"cmdLogo_1"_s));
    QStringList reached;
    for (int i = 0; i < 3; ++i) {
      setup.PressAccessKey('S');
      reached << setup.FocusName();
      QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
      QVERIFY(!program.Tree.Exists(u"/CompanyLogo.txt"_s));
      QVERIFY(!program.Tree.Exists(u"/MyBusinessData.txt"_s));
    }
    QStringList both = reached.first(2);
    both.sort();
    QCOMPARE(both, (QStringList{u"cmdLogo_1"_s, u"cmdQuit"_s}));
    QCOMPARE(reached[2], reached[0]);
    // Enter runs the one that was reached.
    if (setup.FocusName() != u"cmdLogo_1") setup.PressAccessKey('S');
    program.Answers.Ok(u"Your Logo has been Stored"_s);
    setup.PressKey(Qt::Key_Return);
    QCOMPARE(program.Tree.Bytes(u"/CompanyLogo.txt"_s), SetupScreen::LogoLine(path));
    // Store is disabled by that: the letter is the way out's alone again.
    QVERIFY(!setup.IsEnabled(u"cmdLogo_1"_s));
    setup.PressAccessKey('S');
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  }
};

QTEST_MAIN(ScreenKeysTest)
#include "tst_screenKeys.moc"
