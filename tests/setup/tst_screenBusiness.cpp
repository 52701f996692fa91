// Setup's first tab: the profile in its boxes and the address form that follows the style.
#include <QtTest>

#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class ScreenBusinessTest : public QObject {
  Q_OBJECT

  static constexpr char NameWithoutPostal[] =
      "\"Acme\",\"1 High St\",\"Flat 2\",\"Leeds\",\"Yorkshire\",\"\",\"555-1234\",\"a@b.example\",\"GB1\"\r\n";
  static constexpr char WithPostal[] =
      "\"Acme\",\"1 Main St\",\"\",\"Tampa\",\"FL\",\"33601\",\"555-1234\",\"\",\"12-3\"\r\n";

  static QStringList Boxes(const ScreenDriver& setup) {
    QStringList texts;
    for (int i = 0; i < 9; ++i) texts << setup.Text(u"txtBusiness_%1"_s.arg(i));
    return texts;
  }

 private Q_SLOTS:
  void aFirstRunIsInUsaStyleWithTwoLettersForTheState() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    QCOMPARE(setup.Text(u"cmdAddress"_s), u"USA Style Address"_s);
    QCOMPARE(setup.Text(u"lblAddress_3"_s), u"City"_s);
    QCOMPARE(setup.Text(u"lblAddress_4"_s), u"State"_s);
    QVERIFY(setup.IsVisible(u"lblAddress_5"_s));
    QVERIFY(setup.IsVisible(u"txtBusiness_5"_s));
    QVERIFY(setup.IsVisible(u"lblPostal"_s));
    QCOMPARE(setup.Text(u"lblPostal"_s), u"Postal Code is Mandatory"_s);
    setup.Fill(u"txtBusiness_4"_s, u"FLA"_s);
    QCOMPARE(setup.Text(u"txtBusiness_4"_s), u"FL"_s);
    QCOMPARE(setup.FocusName(), u"txtBusiness_4"_s);
  }

  void theLabelsNameTheNineBoxes() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    const QStringList names = {u"Company Name"_s,  u"Address 1"_s,       u"Address 2"_s, u"City"_s,
                               u"State"_s,         u"Postal Zip Code"_s, u"Telephone"_s, u"Fax No,email or Web"_s,
                               u"FEIN, VAT, ABN"_s};
    for (int i = 0; i < 9; ++i) QCOMPARE(setup.Text(u"lblAddress_%1"_s.arg(i)), names[i]);
    QCOMPARE(setup.Text(u"lblExample"_s), u"Example : ABN - 123456789"_s);
  }

  void theFocusIsOnTheName() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    QCOMPARE(setup.FocusName(), u"txtBusiness_0"_s);
  }

  void aNameWithoutPostalCodeOpensInInternationalStyle() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, NameWithoutPostal);
    const ScreenDriver setup = program.Open();
    QCOMPARE(setup.Text(u"cmdAddress"_s), u"International Style Address"_s);
    QCOMPARE(setup.Text(u"lblAddress_3"_s), u"Address 3"_s);
    QCOMPARE(setup.Text(u"lblAddress_4"_s), u"Address 4"_s);
    QVERIFY(!setup.IsVisible(u"lblAddress_5"_s));
    QVERIFY(!setup.IsVisible(u"txtBusiness_5"_s));
    QVERIFY(!setup.IsVisible(u"lblPostal"_s));
    QCOMPARE(setup.Text(u"txtBusiness_4"_s), u"Yorkshire"_s);
    setup.Fill(u"txtBusiness_4"_s, QString(60, u'x'));
    QCOMPARE(setup.Text(u"txtBusiness_4"_s), QString(55, u'x'));
    QCOMPARE(setup.Text(u"txtBusiness_8"_s), u"GB1"_s);
  }

  void turningToUsaStyleDoesNotCutTheStateThatTheBoxHolds() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, NameWithoutPostal);
    const ScreenDriver setup = program.Open();
    setup.Click(u"cmdAddress"_s);
    QCOMPARE(setup.Text(u"cmdAddress"_s), u"USA Style Address"_s);
    QCOMPARE(setup.Text(u"txtBusiness_4"_s), u"Yorkshire"_s);
    QCOMPARE(setup.FocusName(), u"txtBusiness_5"_s);
  }

  void theStateIsNarrowAndTheCityShorterInUsaStyle() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    setup.Window()->resize(1180, 760);
    ScreenDriver::ProcessEvents();
    const auto width = [&](int box) { return setup.Control(u"txtBusiness_%1"_s.arg(box))->width(); };
    QVERIFY(width(4) < width(3));
    QVERIFY(width(3) < width(0));
    setup.Click(u"cmdAddress"_s);
    QCOMPARE(width(4), width(0));
    QCOMPARE(width(3), width(0));
  }

  void thePostalBoxEmptiesAndRefillsWithTheStyle() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, WithPostal);
    const ScreenDriver setup = program.Open();
    QCOMPARE(setup.Text(u"txtBusiness_5"_s), u"33601"_s);
    setup.Fill(u"txtBusiness_5"_s, u"99999"_s);
    setup.Click(u"cmdAddress"_s);
    QCOMPARE(setup.Text(u"txtBusiness_5"_s), QString());
    QVERIFY(!setup.IsVisible(u"txtBusiness_5"_s));
    setup.Click(u"cmdAddress"_s);
    QCOMPARE(setup.Text(u"txtBusiness_5"_s), u"33601"_s);
    QCOMPARE(setup.FocusName(), u"txtBusiness_5"_s);
  }

  void aSaveInInternationalStyleKeepsNoPostalCode() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, WithPostal);
    ScreenDriver setup = program.Open();
    setup.Click(u"cmdAddress"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/MyBusinessData.txt"_s),
             "\"Acme\",\"1 Main St\",\"\",\"Tampa\",\"FL\",\"\",\"555-1234\",\"\",\"12-3\"\r\n");
    setup = SetupScreen::OpenAgain();
    QCOMPARE(setup.Text(u"cmdAddress"_s), u"International Style Address"_s);
  }

  void aPostalCodeOfLettersWithoutANameTurnsTheStyleOverAtEachActivation() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, "\"\",\"\",\"\",\"\",\"\",\"SW1A\",\"5\",\"\",\"\"\r\n");
    const ScreenDriver setup = program.Open();
    // Once at the load, to USA style, and once when the screen is shown.
    QCOMPARE(setup.Text(u"cmdAddress"_s), u"International Style Address"_s);
    program.Running().Hide(ScreenName::frmSetup);
    program.Running().Show(ScreenName::frmSetup);
    QCOMPARE(setup.Text(u"cmdAddress"_s), u"USA Style Address"_s);
  }

  void anActivationRefillsAllBoxesButTheTaxNumber() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, WithPostal);
    const ScreenDriver setup = program.Open();
    for (int i = 0; i < 9; ++i) setup.Fill(u"txtBusiness_%1"_s.arg(i), u"x"_s);
    program.Running().Hide(ScreenName::frmSetup);
    program.Running().Show(ScreenName::frmSetup);
    QCOMPARE(Boxes(setup), (QStringList{u"Acme"_s, u"1 Main St"_s, QString(), u"Tampa"_s, u"FL"_s, u"33601"_s,
                                        u"555-1234"_s, QString(), u"x"_s}));
  }

  void aResetAnsweredWithNoChangesNothing() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, WithPostal);
    const ScreenDriver setup = program.Open();
    const QStringList before = Boxes(setup);
    program.Answers.No(u"Do you want to reset (clear)all Business Data?"_s, u"Reset Business Data"_s);
    setup.Click(u"Image4"_s);
    QCOMPARE(Boxes(setup), before);
  }

  void aResetEmptiesTheBoxesAndTheReloadBringsThemBackFromTheDisk() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, WithPostal);
    const ScreenDriver setup = program.Open();
    const QStringList before = Boxes(setup);
    program.Answers.Yes(u"Do you want to reset (clear)all Business Data?"_s);
    setup.Click(u"Image4"_s);
    QCOMPARE(Boxes(setup), QStringList(9, QString(u""_s)));
    QCOMPARE(setup.FocusName(), u"txtBusiness_0"_s);
    QCOMPARE(program.Tree.Bytes(u"/MyBusinessData.txt"_s), WithPostal);
    setup.Click(u"Image5"_s);
    QCOMPARE(Boxes(setup), before);
    QCOMPARE(program.Tree.Bytes(u"/MyBusinessData.txt"_s), WithPostal);
  }

  void theReloadReadsTheDiskAndNotWhatIsRemembered() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, WithPostal);
    const ScreenDriver setup = program.Open();
    program.Tree.Write(
        u"/MyBusinessData.txt"_s,
        "\"Zenith\",\"2 Low Rd\",\"Unit 9\",\"Ocala\",\"GA\",\"34470\",\"555-9\",\"z@b.example\",\"98\"\r\n");
    setup.Click(u"Image5"_s);
    QCOMPARE(Boxes(setup), (QStringList{u"Zenith"_s, u"2 Low Rd"_s, u"Unit 9"_s, u"Ocala"_s, u"GA"_s, u"34470"_s,
                                        u"555-9"_s, u"z@b.example"_s, u"98"_s}));
  }

  void aReloadInInternationalStyleKeepsThePostalCodeThroughASave() {
    SetupScreen program;
    program.Tree.Write(u"/MyBusinessData.txt"_s, WithPostal);
    const ScreenDriver setup = program.Open();
    setup.Click(u"cmdAddress"_s);
    QCOMPARE(setup.Text(u"txtBusiness_5"_s), QString());
    setup.Click(u"Image5"_s);
    // The box fills though it doesn't show: all nine are reloaded.
    QVERIFY(!setup.IsVisible(u"txtBusiness_5"_s));
    QCOMPARE(setup.Text(u"txtBusiness_5"_s), u"33601"_s);
    QCOMPARE(setup.Text(u"cmdAddress"_s), u"International Style Address"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/MyBusinessData.txt"_s), WithPostal);
  }

  void aReloadWithoutAFileChangesNothing() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    setup.Fill(u"txtBusiness_0"_s, u"Acme"_s);
    setup.Click(u"Image5"_s);
    QCOMPARE(setup.Text(u"txtBusiness_0"_s), u"Acme"_s);
  }

  void theDoubleQuoteIsRefusedInEveryBox() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    for (int i = 0; i < 9; ++i) {
      const QString box = u"txtBusiness_%1"_s.arg(i);
      setup.Fill(box, u"a"_s);
      program.Answers.Ok(u"This character, (\") is invalid for this field"_s, u"Invalid Key entry"_s);
      setup.Type(u"\""_s);
      QCOMPARE(setup.Text(box), u"a"_s);
      QCOMPARE(setup.FocusName(), box);
    }
    QCOMPARE(program.Dialogs.Beeps, 9);
    setup.Fill(u"txtBusiness_0"_s, {});
    setup.Paste(u"The \"Best\", Inc."_s);
    QCOMPARE(setup.Text(u"txtBusiness_0"_s), u"The Best, Inc."_s);
  }

  void thePicturesSayWhatTheyDo() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    QCOMPARE(setup.Control(u"Image4"_s)->toolTip(), u"Clear All business Data"_s);
    QCOMPARE(setup.Control(u"Image5"_s)->toolTip(), u"Reload Business Data"_s);
  }
};

QTEST_MAIN(ScreenBusinessTest)
#include "tst_screenBusiness.moc"
