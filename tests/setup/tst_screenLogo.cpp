// Setup's logo tab: finding, sizing, storing, clearing and sampling the picture.
#include <QLabel>
#include <QtTest>

#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class ScreenLogoTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void storingIsOfferedOnlyAfterAFind() {
    SetupScreen program;
    const ScreenDriver setup = program.OpenLogo();
    QVERIFY(!setup.IsEnabled(u"cmdLogo_1"_s));
    QCOMPARE(setup.Text(u"cmdLogo_1"_s), u"&Store"_s);
  }

  void aFoundPictureShowsInBothFramesAndCanBeStored() {
    SetupScreen program;
    const QString path = program.Picture(u"/my logo.png"_s);
    const ScreenDriver setup = program.OpenLogo();
    program.Answers.File(path);
    setup.Click(u"cmdLogo_0"_s);
    QVERIFY(SetupScreen::ShowsPicture(setup, u"Image2"_s));
    QVERIFY(SetupScreen::ShowsPicture(setup, u"Image3"_s));
    QVERIFY(!program.Tree.Exists(u"/CompanyLogo.txt"_s));
    QVERIFY(setup.IsEnabled(u"cmdLogo_1"_s));
    program.Answers.Ok(u"Your Logo has been Stored"_s, u"Karvex Invoicer"_s);
    setup.Click(u"cmdLogo_1"_s);
    QCOMPARE(program.Tree.Bytes(u"/CompanyLogo.txt"_s), SetupScreen::LogoLine(path));
    QCOMPARE(program.Tree.Bytes(u"/LogoSettings.txt"_s), "1440,1440\r\n");
    QVERIFY(!setup.IsEnabled(u"cmdLogo_1"_s));
  }

  void aCancelledFindChangesNothing() {
    SetupScreen program;
    const ScreenDriver setup = program.OpenLogo();
    program.Answers.CancelDialog();
    setup.Click(u"cmdLogo_0"_s);
    QVERIFY(!SetupScreen::ShowsPicture(setup, u"Image3"_s));
    QVERIFY(!setup.IsEnabled(u"cmdLogo_1"_s));
  }

  void theSizingButtonsStepByNinetyAndWrapAround() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    program.Tree.Write(u"/CompanyLogo.txt"_s, SetupScreen::LogoLine(path));
    program.Tree.Write(u"/LogoSettings.txt"_s, "1710,1800\r\n");
    ScreenDriver setup = program.OpenLogo();
    QCOMPARE(setup.Text(u"lblLogoSize"_s), u"On paper: 1.19 in wide, 1.25 in high"_s);
    const int narrow = setup.Control<QLabel>(u"Image3"_s)->pixmap(Qt::ReturnByValue).width();
    setup.Click(u"cmdLogo_3"_s);
    QVERIFY(setup.Control<QLabel>(u"Image3"_s)->pixmap(Qt::ReturnByValue).width() > narrow);
    setup.Click(u"cmdLogo_4"_s);
    QCOMPARE(setup.Text(u"lblLogoSize"_s), u"On paper: 1.25 in wide, 0.13 in high"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/LogoSettings.txt"_s), "1800,180\r\n");
    setup = SetupScreen::OpenAgain();
    SetupScreen::GoToTab(setup, 3);
    setup.Click(u"cmdLogo_3"_s);
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/LogoSettings.txt"_s), "180,180\r\n");
  }

  void clearingAnsweredWithNoChangesNothing() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    program.Tree.Write(u"/CompanyLogo.txt"_s, SetupScreen::LogoLine(path));
    const ScreenDriver setup = program.OpenLogo();
    program.Answers.No(u"This will Delete your Company Logo"_s, u"Delete Logo"_s);
    setup.Click(u"cmdLogo_2"_s);
    QVERIFY(SetupScreen::ShowsPicture(setup, u"Image3"_s));
    QCOMPARE(program.Tree.Bytes(u"/CompanyLogo.txt"_s), SetupScreen::LogoLine(path));
  }

  void clearingTakesThePicturesAndThePathAndLeavesTheSize() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    program.Tree.Write(u"/CompanyLogo.txt"_s, SetupScreen::LogoLine(path));
    program.Tree.Write(u"/Backup/CompanyLogo.txt"_s, SetupScreen::LogoLine(path));
    program.Tree.Write(u"/LogoSettings.txt"_s, "1710,180\r\n");
    const ScreenDriver setup = program.OpenLogo();
    program.Answers.Yes(u"This will Delete your Company Logo"_s);
    setup.Click(u"cmdLogo_2"_s);
    QVERIFY(!SetupScreen::ShowsPicture(setup, u"Image2"_s));
    QVERIFY(!SetupScreen::ShowsPicture(setup, u"Image3"_s));
    QVERIFY(!program.Tree.Exists(u"/CompanyLogo.txt"_s));
    QVERIFY(!program.Tree.Exists(u"/Backup/CompanyLogo.txt"_s));
    QCOMPARE(program.Tree.Bytes(u"/LogoSettings.txt"_s), "1710,180\r\n");
  }

  void aPictureThatVanishedIsSkippedAtTheStart() {
    SetupScreen program;
    program.Tree.Write(u"/CompanyLogo.txt"_s, "\"/no/such/logo.png\"\r\n");
    const ScreenDriver setup = program.OpenLogo();
    QVERIFY(!SetupScreen::ShowsPicture(setup, u"Image3"_s));
  }

  void theSampleIsThePageFrameWithoutAnyDialog() {
    SetupScreen program;
    const ScreenDriver setup = program.OpenLogo();
    QCOMPARE(setup.Control(u"cmdLogo_5"_s)->toolTip(), u"Print a sample to Review"_s);
    setup.Click(u"cmdLogo_5"_s);
    QCOMPARE(program.Paper.Jobs.size(), 1U);
    QCOMPARE(program.Paper.DialogsShown, 0);
    QVERIFY(program.Paper.Words(1).contains(u"INVOICE"_s));
  }

  void aSampleThatCannotBePrintedIsAPrintError() {
    SetupScreen program;
    const ScreenDriver setup = program.OpenLogo();
    program.Paper.SendError = ErrorNumber::PrinterError;
    program.Answers.Ok(u"A Print Error has occurred"_s, u"Print Error"_s);
    setup.Click(u"cmdLogo_5"_s);
    QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
  }

  void theWarningsStandOnTheTab() {
    SetupScreen program;
    const ScreenDriver setup = program.OpenLogo();
    QStringList texts;
    for (const QLabel* label : setup.Control(u"pageLogo"_s)->findChildren<QLabel*>()) texts << label->text();
    QVERIFY(texts.contains(u"BEFORE SELECTING YOUR LOGO: COPY THE FILE INTO YOUR KARVEXSOFT FOLDER"_s));
    QVERIFY(
        texts.contains(u"Do not select your LOGO from a Network Device or a removable device.   An error will "
                       "occur if the network device or removable device is unavailable."_s));
    QVERIFY(
        texts.contains(u"Your LOGO is not Saved when clicking Save Changes and Return to Menu. It must be STORED "
                       "while diplaying the Logo Screen. "_s));
  }
};

QTEST_MAIN(ScreenLogoTest)
#include "tst_screenLogo.moc"
