// The real printer on a machine that has none: the print dialog, and where its PDF files go.
#include <QPrintDialog>

#include "desktop/PaperPrinter.h"
#include "support/ErrorOf.h"
#include "support/FailingDevice.h"
#include "support/PageFixture.h"
#include "support/QueuedAnswers.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

class TestDialog : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theDialogOffersAPdfOfANewName();
  void theChosenFileGetsTheJobWithoutAWord();
  void aCancelIsThe32755AndChangesNothing();
  void aJobWithoutDialogGoesToANewFileAndTellsWhere();
  void aJobAfterTheChosenOneNeverOverwritesIt();
  void theDialogNeverOffersAFileThatIsThere();
  void theDialogAndItsFileSayWhatIsPrinted();
  void aTitleNamesNoPlaceElsewhere();
  void theDocumentsFolderIsMadeWhenNeeded();
  void aFullDiskIsAPrinterErrorAndLeavesNoFile();
  void aFullDiskLeavesAnEarlierFileWhole();
  void anUnreadableLogoIsAPrinterErrorAndLeavesNoFile();
  void aJobWithoutMarksSendsNothing();
  void aDroppedJobSendsNothing();
  void aDroppedJobForgetsTheDialogToo();
  void eachPageThatIsDrawnIsTold();
  void aStoppedJobLeavesNoFile_data();
  void aStoppedJobLeavesNoFile();
};

namespace {
/// The dialog's own Print button, whose click checks the file name.
void Press(QDialog& dialog) {
  dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

struct Desk {
  TemporaryTree Folder;
  FailingDevice Device;
  FileStore Store{Device};
  MessageRecorder Messages;
  PaperPrinter Paper{Store, Messages, Folder.Path(u"/Documents"_s)};
  QueuedAnswers Answers;

  void Print(const QString& text) {
    Paper.PrintLine(text);
    Paper.EndDoc();
  }
  void AcceptAs(const QString& path) {
    Answers.Dialog([path](QDialog& dialog) {
      dialog.findChild<QLineEdit*>(u"filename"_s)->setText(path);
      Press(dialog);
    });
  }
};

const QString FirstName = u"/Documents/Karvex Invoicer.pdf"_s;
const QString SecondName = u"/Documents/Karvex Invoicer 2.pdf"_s;
}  // namespace

void TestDialog::theDialogOffersAPdfOfANewName() {
  Desk desk;
  desk.Answers.Dialog([&](QDialog& dialog) {
    auto* print = qobject_cast<QPrintDialog*>(&dialog);
    QVERIFY(print != nullptr);
    QVERIFY(print->testOption(QAbstractPrintDialog::PrintToFile));
    QVERIFY(print->testOption(QAbstractPrintDialog::PrintCollateCopies));
    QVERIFY(!print->testOption(QAbstractPrintDialog::PrintPageRange));
    QVERIFY(!print->testOption(QAbstractPrintDialog::PrintSelection));
    QVERIFY(!print->testOption(QAbstractPrintDialog::PrintCurrentPage));
    auto* name = print->findChild<QLineEdit*>(u"filename"_s);
    QVERIFY(name != nullptr && name->isEnabled());
    QCOMPARE(name->text(), desk.Folder.Path(FirstName));
    Press(dialog);
  });
  desk.Paper.ShowPrinter();
  desk.Print(u"a"_s);
  QVERIFY(desk.Folder.Bytes(FirstName).startsWith("%PDF-"));
}

void TestDialog::theChosenFileGetsTheJobWithoutAWord() {
  Desk desk;
  desk.AcceptAs(desk.Folder.Path(u"/mine.pdf"_s));
  desk.Paper.ShowPrinter();
  desk.Print(u"a"_s);
  QVERIFY(desk.Folder.Bytes(u"/mine.pdf"_s).startsWith("%PDF-"));
  QCOMPARE(desk.Messages.Messages, QStringList());
}

void TestDialog::aCancelIsThe32755AndChangesNothing() {
  Desk desk;
  desk.Answers.CancelDialog();
  QCOMPARE(ErrorOf([&] { desk.Paper.ShowPrinter(); }), 32755);
  QCOMPARE(desk.Folder.List(u"/Documents"_s), QStringList());
  desk.Print(u"a"_s);
  QCOMPARE(desk.Messages.Messages,
           QStringList(u": The page was saved as a PDF file:\n"_s + desk.Folder.Path(FirstName)));
}

void TestDialog::aJobWithoutDialogGoesToANewFileAndTellsWhere() {
  Desk desk;
  desk.Print(u"first"_s);
  const QByteArray first = desk.Folder.Bytes(FirstName);
  QVERIFY(first.startsWith("%PDF-"));
  desk.Print(u"second"_s);
  QVERIFY(desk.Folder.Bytes(SecondName).startsWith("%PDF-"));
  QCOMPARE(desk.Folder.Bytes(FirstName), first);
  QCOMPARE(desk.Messages.Messages,
           QStringList({u": The page was saved as a PDF file:\n"_s + desk.Folder.Path(FirstName),
                        u": The page was saved as a PDF file:\n"_s + desk.Folder.Path(SecondName)}));
}

void TestDialog::aJobAfterTheChosenOneNeverOverwritesIt() {
  Desk desk;
  desk.AcceptAs(desk.Folder.Path(u"/mine.pdf"_s));
  desk.Paper.ShowPrinter();
  desk.Print(u"invoice"_s);
  const QByteArray invoice = desk.Folder.Bytes(u"/mine.pdf"_s);
  desk.Print(u"draft"_s);
  QCOMPARE(desk.Folder.Bytes(u"/mine.pdf"_s), invoice);
  QVERIFY(desk.Folder.Bytes(FirstName).startsWith("%PDF-"));
}

void TestDialog::theDialogNeverOffersAFileThatIsThere() {
  Desk desk;
  desk.Print(u"first"_s);
  desk.Answers.Dialog([&](QDialog& dialog) {
    QCOMPARE(dialog.findChild<QLineEdit*>(u"filename"_s)->text(), desk.Folder.Path(SecondName));
    Press(dialog);
  });
  desk.Paper.ShowPrinter();
  desk.Print(u"second"_s);
  desk.Answers.Dialog([&](QDialog& dialog) {
    QCOMPARE(dialog.findChild<QLineEdit*>(u"filename"_s)->text(),
             desk.Folder.Path(u"/Documents/Karvex Invoicer 3.pdf"_s));
    dialog.reject();
  });
  QCOMPARE(ErrorOf([&] { desk.Paper.ShowPrinter(); }), 32755);
}

void TestDialog::theDialogAndItsFileSayWhatIsPrinted() {
  Desk desk;
  desk.Paper.Title = u"Invoice 20260002"_s;
  for (const QString& name : {u"/Documents/Invoice 20260002.pdf"_s, u"/Documents/Invoice 20260002 2.pdf"_s}) {
    desk.Answers.Dialog([&](QDialog& dialog) {
      QCOMPARE(dialog.windowTitle(), u"Print Invoice 20260002"_s);
      QCOMPARE(dialog.findChild<QLineEdit*>(u"filename"_s)->text(), desk.Folder.Path(name));
      Press(dialog);
    });
    desk.Paper.ShowPrinter();
    desk.Print(u"a"_s);
    // The document's title, in the two bytes a character that such a text has there.
    QVERIFY(desk.Folder.Bytes(name).contains(QByteArray("/Title (\xfe\xff\0I\0n\0v\0o\0i\0c\0e", 24)));
  }
  desk.Paper.Title = u"Draft Invoice 20260002"_s;
  desk.Print(u"draft"_s);
  QVERIFY(desk.Folder.Exists(u"/Documents/Draft Invoice 20260002.pdf"_s));
}

void TestDialog::aTitleNamesNoPlaceElsewhere() {
  Desk desk;
  desk.Paper.Title = u"Invoice ../../A\\B:\"C\"*"_s;
  desk.Print(u"a"_s);
  QCOMPARE(desk.Folder.List(u"/Documents"_s), QStringList(u"Invoice ..-..-A-B--C--.pdf"_s));
  desk.Paper.Title = u"Invoice "_s + QString(400, u'7');
  desk.Print(u"b"_s);
  QCOMPARE(desk.Folder.List(u"/Documents"_s).size(), 2);
}

void TestDialog::theDocumentsFolderIsMadeWhenNeeded() {
  Desk desk;
  QCOMPARE(desk.Folder.List(), QStringList());
  desk.Print(u"a"_s);
  QCOMPARE(desk.Folder.List(), QStringList(u"Documents/"_s));
  QCOMPARE(desk.Folder.List(u"/Documents"_s), QStringList(u"Karvex Invoicer.pdf"_s));
}

void TestDialog::aFullDiskIsAPrinterErrorAndLeavesNoFile() {
  Desk desk;
  desk.Folder.MakeFolder(u"/Documents"_s);
  desk.Device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  desk.Paper.PrintLine(u"a"_s);
  const RuntimeError error = CaughtFrom([&] { desk.Paper.EndDoc(); });
  QCOMPARE(error.Number(), 482);
  QCOMPARE(error.Subject(), desk.Folder.Path(FirstName));
  QCOMPARE(error.Text(), RuntimeError(61, {}).Text());
  QCOMPARE(desk.Folder.List(u"/Documents"_s), QStringList());
  QCOMPARE(desk.Messages.Messages, QStringList());
  desk.Device.Reset();
  desk.Print(u"next"_s);
  QVERIFY(desk.Folder.Bytes(FirstName).startsWith("%PDF-"));
}

void TestDialog::aFullDiskLeavesAnEarlierFileWhole() {
  Desk desk;
  desk.Folder.Write(u"/mine.pdf"_s, "an earlier invoice");
  desk.AcceptAs(desk.Folder.Path(u"/mine.pdf"_s));
  desk.Answers.Yes();  // The dialog's own question whether to overwrite.
  desk.Paper.ShowPrinter();
  desk.Device.WriteShortAt(1, 100, ENOSPC);
  desk.Paper.PrintLine(u"a"_s);
  QCOMPARE(ErrorOf([&] { desk.Paper.EndDoc(); }), 482);
  QCOMPARE(desk.Folder.Bytes(u"/mine.pdf"_s), QByteArray("an earlier invoice"));
  // The choice was for that job only.
  desk.Print(u"next"_s);
  QCOMPARE(desk.Folder.Bytes(u"/mine.pdf"_s), QByteArray("an earlier invoice"));
}

void TestDialog::anUnreadableLogoIsAPrinterErrorAndLeavesNoFile() {
  Desk desk;
  desk.Paper.PaintPicture("no picture", 100, 100, 1440, 1440);
  QCOMPARE(ErrorOf([&] { desk.Paper.EndDoc(); }), 482);
  QVERIFY(!desk.Folder.Exists(FirstName));
}

void TestDialog::aJobWithoutMarksSendsNothing() {
  Desk desk;
  desk.Paper.EndDoc();
  QCOMPARE(desk.Folder.List(), QStringList());
  QCOMPARE(desk.Messages.Messages, QStringList());
}

void TestDialog::aDroppedJobSendsNothing() {
  Desk desk;
  desk.Paper.PrintLine(u"half"_s);
  desk.Paper.KillDoc();
  desk.Paper.EndDoc();
  QCOMPARE(desk.Folder.List(), QStringList());
}

void TestDialog::aDroppedJobForgetsTheDialogToo() {
  Desk desk;
  desk.AcceptAs(desk.Folder.Path(u"/mine.pdf"_s));
  desk.Paper.ShowPrinter();
  desk.Paper.KillDoc();
  desk.Print(u"draft"_s);
  QVERIFY(!desk.Folder.Exists(u"/mine.pdf"_s));
  QVERIFY(desk.Folder.Exists(FirstName));
}

namespace {
void PutThreePages(PaperPrinter& paper) {
  paper.PrintLine(u"first"_s);
  paper.NewPage();
  paper.PrintLine(u"second"_s);
  paper.NewPage();
  paper.PrintLine(u"third"_s);
}
}  // namespace

void TestDialog::eachPageThatIsDrawnIsTold() {
  Desk desk;
  PutThreePages(desk.Paper);
  QList<qint64> told;
  desk.Paper.EndDoc([&](qint64 done, qint64 total) {
    told << done << total;
    return true;
  });
  QCOMPARE(told, (QList<qint64>{1, 3, 2, 3, 3, 3}));
  QVERIFY(desk.Folder.Bytes(FirstName).startsWith("%PDF-"));
}

void TestDialog::aStoppedJobLeavesNoFile_data() {
  QTest::addColumn<qint64>("page");
  QTest::newRow("at the first page") << qint64{1};
  QTest::newRow("at the second page") << qint64{2};
  QTest::newRow("at the last page") << qint64{3};
}

void TestDialog::aStoppedJobLeavesNoFile() {
  QFETCH(const qint64, page);
  Desk desk;
  desk.Folder.Write(u"/mine.pdf"_s, "an earlier report");
  const auto stop = [page](qint64 done, qint64) { return done < page; };
  PutThreePages(desk.Paper);
  QCOMPARE(ErrorOf([&] { desk.Paper.EndDoc(stop); }), 32755);
  QCOMPARE(desk.Folder.List(u"/Documents"_s), QStringList());
  QCOMPARE(desk.Messages.Messages, QStringList());
  // One that was to take a file's place leaves it whole.
  desk.AcceptAs(desk.Folder.Path(u"/mine.pdf"_s));
  desk.Answers.Yes();  // The dialog's own question whether to overwrite.
  desk.Paper.ShowPrinter();
  PutThreePages(desk.Paper);
  QCOMPARE(ErrorOf([&] { desk.Paper.EndDoc(stop); }), 32755);
  QCOMPARE(desk.Folder.Bytes(u"/mine.pdf"_s), "an earlier report");
  // The next job is its own, in a file of its own.
  desk.Print(u"next"_s);
  QCOMPARE(desk.Folder.Bytes(u"/mine.pdf"_s), "an earlier report");
  QVERIFY(desk.Folder.Bytes(FirstName).startsWith("%PDF-"));
}

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
