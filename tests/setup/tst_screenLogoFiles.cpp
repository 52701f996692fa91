// Setup's logo and the disk: which file Store stores, and what a bad file, a full disk or another use of the shared
// dialog leave behind.
#include <QFileDialog>
#include <QtTest>

#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class ScreenLogoFilesTest : public QObject {
  Q_OBJECT

  /// One manual line for a customer, printed; the dialog ends as the paper is told to.
  static void PrintAnInvoice(SetupScreen& program) {
    program.Running().Hide(ScreenName::frmStartup);
    program.Running().StartInvoiceFor(SoldTo{
        u"1001"_s, {u"Acme Tools"_s, u"1 Main Street"_s, {}, u"Springfield"_s, u"IL"_s, u"62701"_s, u"555-0100"_s}});
    const ScreenDriver invoice(u"frmInvoice"_s);
    invoice.Click(u"cmdInvoice_0"_s);
    invoice.Trigger(u"mnuManual"_s);
    invoice.Fill(u"txtManual_0"_s, u"Hammer"_s);
    invoice.Fill(u"txtManual_2"_s, u"1"_s);
    invoice.Fill(u"txtManual_1"_s, u"5"_s);
    invoice.Click(u"cmdPost_2"_s);
    invoice.Click(u"cmdPrint"_s);
    invoice.Click(u"cmdInvoice_9"_s);
    invoice.Click(u"cmdInvoiceContinue"_s);
  }

  static void UseTheDialogFor(SetupScreen& program, const QString& use) {
    ScreenDriver setup(u"frmSetup"_s);
    if (use.contains(u"invoice"_s)) {
      SetupScreen::SaveAndReturn(setup);
      if (use == u"a cancelled invoice") {
        program.Paper.DialogError = ErrorNumber::DialogCancelled;
      } else {
        program.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
      }
      PrintAnInvoice(program);
      QCOMPARE(program.Paper.DialogsShown, 1);
      SetupScreen::OpenAgain();
    } else {
      SetupScreen::GoToOptions(setup, 0);
      if (use == u"a color") program.Answers.Color(255);
      if (use == u"a font") program.Answers.Font(u"Liberation Serif"_s);
      if (use == u"a cancelled color") program.Answers.CancelDialog();
      setup.Click(use == u"a font" ? u"cmdChange_2"_s : u"cmdChange_0"_s);
    }
    SetupScreen::GoToTab(setup, 3);
  }

 private Q_SLOTS:
  void findOffersPicturesFirstAndThenAllFiles() {
    SetupScreen program;
    const ScreenDriver setup = program.OpenLogo();
    QStringList filters;
    QString chosen;
    program.Answers.Dialog([&](QDialog& dialog) {
      const auto* files = qobject_cast<QFileDialog*>(&dialog);
      if (files != nullptr) {
        filters = files->nameFilters();
        chosen = files->selectedNameFilter();
        QCOMPARE(files->acceptMode(), QFileDialog::AcceptOpen);
      }
      dialog.reject();
    });
    setup.Click(u"cmdLogo_0"_s);
    QCOMPARE(filters, (QStringList{u"Pictures (*.bmp *.BMP *.ico *.ICO *.cur *.CUR *jpg *JPG *.EMF)"_s, u"All (*)"_s}));
    QCOMPARE(chosen, filters.value(0));
  }

  void storeAfterSizingWritesTheSizeThatShows() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, path);
    setup.Click(u"cmdLogo_3"_s);
    setup.Click(u"cmdLogo_3"_s);
    setup.Click(u"cmdLogo_4"_s);
    program.Answers.Ok(u"Your Logo has been Stored"_s);
    setup.Click(u"cmdLogo_1"_s);
    QCOMPARE(program.Tree.Bytes(u"/LogoSettings.txt"_s), "1620,1530\r\n");
    setup.Click(u"cmdLogo_5"_s);
    QCOMPARE(program.Paper.Pictures(1).at(0).Place.size(), QSize(1620, 1530));
  }

  void anotherUseOfTheSharedDialogForgetsTheFoundFile_data() {
    QTest::addColumn<QString>("use");
    for (const QString& use :
         {u"a color"_s, u"a font"_s, u"a cancelled color"_s, u"an invoice"_s, u"a cancelled invoice"_s}) {
      QTest::newRow(qPrintable(use)) << use;
    }
  }
  void anotherUseOfTheSharedDialogForgetsTheFoundFile() {
    QFETCH(QString, use);
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, path);
    UseTheDialogFor(program, use);
    QVERIFY(SetupScreen::ShowsPicture(setup, u"Image3"_s));
    setup.Click(u"cmdLogo_1"_s);
    QVERIFY(!program.Tree.Exists(u"/CompanyLogo.txt"_s));
    // Found again, it is stored.
    program.Find(setup, path);
    program.Answers.Ok(u"Your Logo has been Stored"_s);
    setup.Click(u"cmdLogo_1"_s);
    QCOMPARE(program.Tree.Bytes(u"/CompanyLogo.txt"_s), SetupScreen::LogoLine(path));
  }

  void theSampleUsesNoDialogAndLeavesTheFoundFile() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, path);
    setup.Click(u"cmdLogo_5"_s);
    QCOMPARE(program.Paper.Jobs.size(), 1U);
    program.Answers.Ok(u"Your Logo has been Stored"_s);
    setup.Click(u"cmdLogo_1"_s);
    QCOMPARE(program.Tree.Bytes(u"/CompanyLogo.txt"_s), SetupScreen::LogoLine(path));
  }

  void aFileThatIsNoPictureEndsTheFindQuietly() {
    SetupScreen program;
    program.Tree.Write(u"/logo.jpg"_s, "these are letters");
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, program.Tree.Path(u"/logo.jpg"_s));
    QVERIFY(!SetupScreen::ShowsPicture(setup, u"Image2"_s));
    QVERIFY(!setup.IsEnabled(u"cmdLogo_1"_s));
  }

  void aFileThatIsNoPictureDoesNotBecomeTheOneToStore() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    program.Tree.Write(u"/letters.png"_s, "these are letters");
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, path);
    program.Find(setup, program.Tree.Path(u"/letters.png"_s));
    program.Answers.Ok(u"Your Logo has been Stored"_s);
    setup.Click(u"cmdLogo_1"_s);
    // What shows is what was stored.
    QCOMPARE(program.Tree.Bytes(u"/CompanyLogo.txt"_s), SetupScreen::LogoLine(path));
    QVERIFY(SetupScreen::ShowsPicture(setup, u"Image3"_s));
  }

  void aFileThatWasOverwrittenSinceItWasFoundIsNotStored() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, path);
    program.Tree.Write(u"/logo.png"_s, "these are letters");
    setup.Click(u"cmdLogo_1"_s);
    QVERIFY(!program.Tree.Exists(u"/CompanyLogo.txt"_s));
    QVERIFY(!program.Tree.Exists(u"/LogoSettings.txt"_s));
    SetupScreen::SaveAndReturn(setup);
    program.End();
    QVERIFY(program.Start());
  }

  void aPathThatTheFileCannotHoldIsRefusedInPlainWords() {
    SetupScreen program;
    const QString path = program.Picture(u"/\u65E5.png"_s);
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, path);
    program.Answers.Ok();
    setup.Click(u"cmdLogo_1"_s);
    QVERIFY(program.Answers.Last().Text.contains(u"can't be stored"_s));
    QVERIFY(!program.Tree.Exists(u"/CompanyLogo.txt"_s));
  }

  void aFullDiskAtTheStoringIsToldAndTheOldPathStays() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    program.Tree.Write(u"/CompanyLogo.txt"_s, "\"/no/such/logo.png\"\r\n");
    const ScreenDriver setup = program.OpenLogo();
    program.Find(setup, path);
    program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    program.Answers.Ok();
    setup.Click(u"cmdLogo_1"_s);
    QVERIFY(program.Answers.Last().Text.contains(u"CompanyLogo.txt"_s));
    QCOMPARE(program.Tree.Bytes(u"/CompanyLogo.txt"_s), "\"/no/such/logo.png\"\r\n");
    QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
  }

  void aLogoThatCannotBeClearedStaysOnTheScreenAndOnThePaper() {
    SetupScreen program;
    const QString path = program.Picture(u"/logo.png"_s);
    program.Tree.Write(u"/CompanyLogo.txt"_s, SetupScreen::LogoLine(path));
    const ScreenDriver setup = program.OpenLogo();
    program.Files.FailAlways(FailingDevice::Call::Remove, EACCES);
    program.Answers.Yes(u"This will Delete your Company Logo"_s);
    program.Answers.Ok();
    setup.Click(u"cmdLogo_2"_s);
    QVERIFY2(program.Answers.Last().Text.contains(u"CompanyLogo.txt"_s), qPrintable(program.Answers.Last().Text));
    QCOMPARE(program.Tree.Bytes(u"/CompanyLogo.txt"_s), SetupScreen::LogoLine(path));
    QVERIFY(SetupScreen::ShowsPicture(setup, u"Image2"_s));
    QVERIFY(SetupScreen::ShowsPicture(setup, u"Image3"_s));
    setup.Click(u"cmdLogo_5"_s);
    QCOMPARE(program.Paper.Pictures(1).size(), 1U);
    program.Files.Reset();
    program.Answers.Yes(u"This will Delete your Company Logo"_s);
    setup.Click(u"cmdLogo_2"_s);
    QVERIFY(!SetupScreen::ShowsPicture(setup, u"Image3"_s));
    setup.Click(u"cmdLogo_5"_s);
    QVERIFY(program.Paper.Pictures(1).empty());
  }

  void aSizeWithAFractionSurvivesASave() {
    SetupScreen program;
    program.Tree.Write(u"/CompanyLogo.txt"_s, SetupScreen::LogoLine(program.Picture(u"/logo.png"_s)));
    program.Tree.Write(u"/LogoSettings.txt"_s, "1710.25,899.6\r\n");
    const ScreenDriver setup = program.OpenLogo();
    setup.Click(u"cmdLogo_5"_s);
    QCOMPARE(program.Paper.Pictures(1).at(0).Place.size(), QSize(1710, 900));
    SetupScreen::SaveAndReturn(setup);
    QCOMPARE(program.Tree.Bytes(u"/LogoSettings.txt"_s), "1710.25,899.6\r\n");
  }

  void theLargestSizeShowsInItsFrame() {
    SetupScreen program;
    program.Tree.Write(u"/CompanyLogo.txt"_s, SetupScreen::LogoLine(program.Picture(u"/logo.png"_s)));
    program.Tree.Write(u"/LogoSettings.txt"_s, "15840,0\r\n");
    const ScreenDriver setup = program.OpenLogo();
    const QSize shown = setup.Control<QLabel>(u"Image3"_s)->pixmap(Qt::ReturnByValue).size();
    QVERIFY2(shown.width() <= setup.Control(u"Image3"_s)->width() && shown.height() >= 1,
             qPrintable(u"%1 by %2"_s.arg(shown.width()).arg(shown.height())));
  }
};

QTEST_MAIN(ScreenLogoFilesTest)
#include "tst_screenLogoFiles.moc"
