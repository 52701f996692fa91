// Setup as a whole: how it is reached, its tabs and menu, and the way back through all saves.
#include <QCheckBox>
#include <QMenu>
#include <QtTest>

#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class ScreenReturnTest : public QObject {
  Q_OBJECT

  static int Tab(const ScreenDriver& setup, const QString& name) {
    return setup.Control<QTabWidget>(name)->currentIndex();
  }
  static QStringList TabTexts(const ScreenDriver& setup, const QString& name) {
    QStringList texts;
    const auto* tabs = setup.Control<QTabWidget>(name);
    for (int i = 0; i < tabs->count(); ++i) texts << tabs->tabText(i);
    return texts;
  }

 private Q_SLOTS:
  void theTabsStandInOrder() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    QCOMPARE(TabTexts(setup, u"tabInfo"_s),
             (QStringList{u"Business Info"_s, u"Setup Help"_s, u"Options"_s, u"Logo"_s}));
    QCOMPARE(TabTexts(setup, u"SSTab2"_s), (QStringList{u"Printing"_s, u"Taxation"_s, u"Phone and Modem"_s}));
  }

  void thePicturesStepThroughTheTabsAndRoundAgain() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    QCOMPARE(setup.Control(u"Image1_0"_s)->toolTip(), u"Toggles the Tab Selection"_s);
    QCOMPARE(setup.Control(u"Image1_1"_s)->toolTip(), u"Toggles the Sub-Tab Selection"_s);
    for (const int tab : {1, 2, 3, 0}) {
      setup.Click(u"Image1_0"_s);
      QCOMPARE(Tab(setup, u"tabInfo"_s), tab);
    }
    // The step among the sub-tabs is offered where they show.
    for (int tab = 0; tab < 4; ++tab) {
      SetupScreen::GoToTab(setup, tab);
      QCOMPARE(setup.IsVisible(u"Image1_1"_s), tab == 2);
      QCOMPARE(setup.IsVisible(u"lblNextSubTab"_s), tab == 2);
    }
    SetupScreen::GoToTab(setup, 2);
    for (const int subTab : {1, 2, 0}) {
      setup.Click(u"Image1_1"_s);
      QCOMPARE(Tab(setup, u"SSTab2"_s), subTab);
      QCOMPARE(Tab(setup, u"tabInfo"_s), 2);
    }
  }

  void aShowOpensTheFirstSubTabAndKeepsTheTab() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    SetupScreen::GoToOptions(setup, 2);
    program.Running().Hide(ScreenName::frmSetup);
    program.Running().Show(ScreenName::frmSetup);
    QCOMPARE(Tab(setup, u"tabInfo"_s), 2);
    QCOMPARE(Tab(setup, u"SSTab2"_s), 0);
  }

  void createModifyOpensTheFirstTab() {
    SetupScreen program;
    ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    SetupScreen::GoToTab(setup, 3);
    SetupScreen::SaveAndReturn(setup);
    setup = SetupScreen::OpenAgain();
    QCOMPARE(Tab(setup, u"tabInfo"_s), 0);
    QCOMPARE(setup.FocusName(), u"txtBusiness_0"_s);
    QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
  }

  void createModifyOpensTheFirstTabAtAFirstUseToo() {
    SetupScreen program;
    program.StartAtMenu();
    const ScreenDriver setup = SetupScreen::OpenAgain();
    QCOMPARE(Tab(setup, u"tabInfo"_s), 0);
    QCOMPARE(setup.Text(u"txtBusiness_0"_s), u"Orange Grove Supply"_s);
  }

  void nameAndTelephoneAreRequired_data() {
    QTest::addColumn<QString>("filled");
    QTest::newRow("neither") << QString();
    QTest::newRow("name alone") << u"txtBusiness_0"_s;
    QTest::newRow("telephone alone") << u"txtBusiness_6"_s;
  }
  void nameAndTelephoneAreRequired() {
    QFETCH(QString, filled);
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    if (!filled.isEmpty()) setup.Fill(filled, u"given"_s);
    SetupScreen::GoToTab(setup, 1);
    const auto before = program.Tree.Everything();
    program.Answers.Ok(u"Name and Telephone are Required"_s, u"Missing Name or Telphone"_s);
    SetupScreen::SaveAndReturn(setup);
    QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
    QCOMPARE(setup.FocusName(), u"txtBusiness_0"_s);
    QCOMPARE(program.Tree.Everything(), before);
  }

  void aFirstSaveWritesAllFilesAndLeadsToTheMainMenu() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    SetupScreen::SaveAndReturn(setup);
    const TemporaryTree& tree = program.Tree;
    QCOMPARE(tree.Bytes(u"/MyBusinessData.txt"_s), "\"Acme\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
    QCOMPARE(tree.Bytes(u"/KarvexInvoicerSettings.txt"_s),
             "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
    QCOMPARE(tree.Bytes(u"/PrintColors.txt"_s), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    QCOMPARE(tree.Bytes(u"/Phone.txt"_s), "#FALSE#\r\n1\r\n");
    QCOMPARE(tree.Bytes(u"/CallID.txt"_s), "#FALSE#\r\n");
    QCOMPARE(tree.Bytes(u"/TaxSettings.txt"_s), "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n");
    QVERIFY(!tree.Exists(u"/LogoSettings.txt"_s));
    QVERIFY(!tree.Exists(u"/CompanyLogo.txt"_s));
    QVERIFY(!ScreenDriver::IsShown(u"frmSetup"_s));
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  }

  void aSaveDropsTheBackupsOfAllButTheProfileAndTheExitBringsBackTheListedOnes() {
    SetupScreen program;
    const QStringList dropped = {u"/Backup/KarvexInvoicerSettings.txt"_s, u"/Backup/PrintColors.txt"_s,
                                 u"/Backup/Phone.txt"_s, u"/Backup/CallID.txt"_s, u"/Backup/TaxSettings.txt"_s};
    program.Tree.Write(dropped[0], "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
    program.Tree.Write(dropped[1], "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    program.Tree.Write(dropped[2], "#FALSE#\r\n1\r\n");
    program.Tree.Write(dropped[3], "#FALSE#\r\n");
    program.Tree.Write(dropped[4], "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n");
    program.Tree.Write(u"/Backup/MyBusinessData.txt"_s, "\"Old\",\"\",\"\",\"\",\"\",\"\",\"1\",\"\",\"\"\r\n");
    const ScreenDriver setup = program.Open();
    QCOMPARE(setup.Text(u"txtBusiness_0"_s), u"Old"_s);
    SetupScreen::FillNameAndTelephone(setup);
    SetupScreen::SaveAndReturn(setup);
    for (const QString& name : dropped) QVERIFY2(!program.Tree.Exists(name), qPrintable(name));
    QCOMPARE(program.Tree.Bytes(u"/Backup/MyBusinessData.txt"_s),
             "\"Old\",\"\",\"\",\"\",\"\",\"\",\"1\",\"\",\"\"\r\n");
    program.End();
    QVERIFY(program.Tree.Exists(dropped[0]));
    QVERIFY(program.Tree.Exists(dropped[1]));
    for (const QString& name : {dropped[2], dropped[3], dropped[4]}) {
      QVERIFY2(!program.Tree.Exists(name), qPrintable(name));
    }
  }

  void aFullDiskAtAnySaveIsToldAndSetupStays_data() {
    QTest::addColumn<bool>("withLogo");
    QTest::addColumn<int>("write");
    QTest::addColumn<QString>("name");
    for (const bool withLogo : {false, true}) {
      QStringList names{u"MyBusinessData.txt"_s, u"KarvexInvoicerSettings.txt"_s,
                        u"PrintColors.txt"_s,    u"Phone.txt"_s,
                        u"CallID.txt"_s,         u"TaxSettings.txt"_s};
      if (withLogo) names.insert(3, u"LogoSettings.txt"_s);
      for (int i = 0; i < names.size(); ++i) {
        QTest::addRow("%s%d", withLogo ? "with a logo, " : "", i + 1) << withLogo << i + 1 << names[i];
      }
    }
  }
  void aFullDiskAtAnySaveIsToldAndSetupStays() {
    QFETCH(bool, withLogo);
    QFETCH(int, write);
    QFETCH(QString, name);
    SetupScreen program;
    if (withLogo) {
      program.Tree.Write(u"/CompanyLogo.txt"_s, SetupScreen::LogoLine(program.Picture(u"/logo.png"_s)));
    }
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    program.Files.FailAt(FailingDevice::Call::Write, write, ENOSPC);
    program.Answers.Ok();
    SetupScreen::SaveAndReturn(setup);
    QVERIFY2(program.Answers.Last().Text.contains(name), qPrintable(program.Answers.Last().Text));
    QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
    QVERIFY(!program.Tree.Exists(u'/' + name));
    // With room made, the next click saves everything.
    SetupScreen::SaveAndReturn(setup);
    QVERIFY(program.Tree.Exists(u"/TaxSettings.txt"_s));
    QCOMPARE(program.Tree.Exists(u"/LogoSettings.txt"_s), withLogo);
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  }

  void theCloseBoxEndsTheProgramAndSavesNothing() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    setup.CloseByUser();
    QVERIFY(program.Running().HasEnded());
    QVERIFY(!program.Tree.Exists(u"/MyBusinessData.txt"_s));
  }

  void theAccessKeySavesAndReturns() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    QCOMPARE(setup.Text(u"cmdQuit"_s), u"&Save Settings / Return to Menu"_s);
    QCOMPARE(setup.Control(u"cmdQuit"_s)->toolTip(), u"Returns to Main Menu"_s);
    setup.PressAccessKey('S');
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  }

  void theCallerTickIsADisplay() {
    SetupScreen program;
    program.Tree.Write(u"/CallID.txt"_s, "#FALSE#\r\n");
    ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    SetupScreen::GoToOptions(setup, 2);
    QVERIFY(setup.Control<QCheckBox>(u"ckCallerID"_s)->isChecked());
    QVERIFY(setup.IsVisible(u"lblCallid"_s));
    QCOMPARE(setup.Text(u"lblCallid"_s),
             u"Modem Supports Caller ID  Check with your Phone Co for support for this feature"_s);
    setup.Click(u"ckCallerID"_s);
    QVERIFY(!setup.IsVisible(u"lblCallid"_s));
    setup.Click(u"ckCallerID"_s);
    QVERIFY(setup.IsVisible(u"lblCallid"_s));
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/CallID.txt"_s), "#FALSE#\r\n");
  }

  void thePortThatTheFileHoldsIsKeptAndTheFoundOneShown() {
    SetupScreen program;
    program.Tree.Write(u"/Phone.txt"_s, "#TRUE#\r\n5\r\n");
    const ScreenDriver setup = program.Open();
    SetupScreen::FillNameAndTelephone(setup);
    SetupScreen::GoToOptions(setup, 2);
    QCOMPARE(setup.Text(u"txtModemPort"_s), u"1"_s);
    QVERIFY(setup.Control<QCheckBox>(u"ckPhone"_s)->isChecked());
    setup.Fill(u"txtModemPort"_s, u"9"_s);
    setup.Click(u"ckPhone"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/Phone.txt"_s), "#FALSE#\r\n5\r\n");
  }

  void theOrderingMenuAsksAndOpensTheSuppliersPage() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    program.Answers.No(
        u"Perforated Response Paper is used to create\nInvoices with a Remittance Slip\n"
        "Click Yes to connect to a Supplier"_s,
        u"Order Paper"_s);
    setup.Trigger(u"mnuPPaper"_s);
    QVERIFY(program.Dialogs.Pages.isEmpty());
    program.Answers.Yes();
    setup.Trigger(u"mnuPPaper"_s);
    const QString page = program.Tree.Root() + u"/suppliers/perforated-response-paper.html"_s;
    QCOMPARE(program.Dialogs.Pages, QStringList{page});
    QCOMPARE(program.Tree.Bytes(u"/Temp.url"_s), "[InternetShortcut]\r\nURL = " + page.toLatin1() + "\r\n");
    setup.Trigger(u"mnuDeluxe"_s);
    QCOMPARE(program.Dialogs.Pages.size(), 2);
  }

  void theOrderingMenuHasAllItsEntries() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    QVERIFY(setup.Control<QMenu>(u"mnuForms"_s) != nullptr);
    QVERIFY(setup.Control<QMenu>(u"mnuDeluxeForms"_s) != nullptr);
    for (const QString& name : {u"mnuDeluxe"_s, u"mnuDepositSlips"_s, u"mnuPPaper"_s, u"mnuPPPaper"_s, u"mnuGraytex"_s,
                                u"mnuAddress"_s, u"mnuLabels"_s}) {
      QVERIFY2(setup.Entry(name) != nullptr, qPrintable(name));
    }
  }

  void nothingIsCutInTheSmallestWindow() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    SetupScreen::GoToOptions(setup, 1);
    setup.Click(u"cmdGraduatedTax_0"_s);
    const QSize least = setup.Window()->minimumSizeHint();
    QVERIFY2(least.width() <= 1024 && least.height() <= 700,
             qPrintable(u"%1 by %2"_s.arg(least.width()).arg(least.height())));
  }

  void everyControlCanBeReachedByTheKeyboardAndHasAName() {
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    for (const QWidget* control : setup.Window()->findChildren<QWidget*>()) {
      const bool works = qobject_cast<const QAbstractButton*>(control) != nullptr ||
                         qobject_cast<const QComboBox*>(control) != nullptr ||
                         (qobject_cast<const QLineEdit*>(control) != nullptr &&
                          qobject_cast<const QComboBox*>(control->parentWidget()) == nullptr);
      if (!works || control->objectName().startsWith(u"qt_"_s) || control->objectName().isEmpty()) continue;
      const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
      QVERIFY2(face != nullptr && !face->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
      const bool swatch = control->objectName() == u"txtBorders" || control->objectName() == u"txtData";
      QVERIFY2(swatch || control->focusPolicy() != Qt::NoFocus, qPrintable(control->objectName()));
    }
  }
};

QTEST_MAIN(ScreenReturnTest)
#include "tst_screenReturn.moc"
