// The life of the process, from the first start to the exit backup, on the real screens.

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray DefaultSettings = "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n";

QByteArray Customer(const QByteArray& account) {
  return account.leftJustified(328, ' ');
}

void WriteFirstRunFiles(const TemporaryTree& tree, const QString& folder = {}) {
  tree.Write(folder + u"/KarvexInvoicerSettings.txt"_s, DefaultSettings);
  tree.Write(folder + u"/MyBusinessData.txt"_s, "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
  tree.Write(folder + u"/Phone.txt"_s, "#FALSE#\r\n1\r\n");
}

}  // namespace

class StartUp : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aFirstStartMakesTheWholeTreeAndNoFile();
  void theWelcomeFrameTellsWhatToDo();
  void theStartUpScreenBearsNameVersionAndNotice();
  void theLogoLeadsToSetupFromBothItsPlaces();
  void aMissingFileComesBackFromTheBackupAtContinue();
  void aFileMissingInBothPlacesShowsTheWelcomeFrame();
  void eachOfTheThreeFilesGetsItsRestoreEvenWhenAnotherIsMissing();
  void theStartBringsBackTheFilesThatItAsksForAndNoOther();
  void aCustomerGetsAFolderWithSixInside();
  void accountNumbersThatCouldLeaveTheirFolderArePassedOver();
  void aNewYearAddsItsFolderAndNothingElse();
  void aSecondStartIsRefusedAndChangesNothing();
  void aSecondStartInANewYearMakesNoFolder();
  void aRenamedCopyBesideTheRunningProgramIsASecondStart();
  void theMarkOfARunningProgramLiesOutsideTheTree();
  void aRenamedProgramFileHasItsOwnFolders();
  void theCloseBoxRunsTheBackupAndEndsTheProgram();
  void aFolderThatCannotBeMadeEndsTheStartWithABox();
};

void StartUp::aFirstStartMakesTheWholeTreeAndNoFile() {
  ProgramFixture program;
  QVERIFY(program.Start());
  const QStringList expected{u"2026/"_s,
                             u"AuxFiles/"_s,
                             u"Backup/"_s,
                             u"CompletedInvoices/"_s,
                             u"ConstructionProjects/"_s,
                             u"KVActiveAccounts/"_s,
                             u"KarvexCycleInvoicer/"_s,
                             u"KarvexInvoicer/"_s,
                             u"KarvexProposals/"_s,
                             u"Templates/"_s};
  QStringList root = program.Tree.List();
  root.sort();
  QCOMPARE(root, expected);
  QCOMPARE(program.Tree.List(u"/KarvexInvoicer"_s),
           (QStringList{u"IncompleteInvoices/"_s, u"Narratives/"_s, u"Templates/"_s}));
  QCOMPARE(program.Tree.List(u"/KarvexInvoicer/Templates"_s), QStringList{u"Invoices/"_s});
  QCOMPARE(program.Tree.List(u"/Backup"_s), (QStringList{u"CompletedInvoices/"_s, u"KVActiveAccounts/"_s,
                                                         u"KVActiveAccountsBACK/"_s, u"KarvexInvoicer/"_s}));
  QCOMPARE(program.Tree.List(u"/Backup/KarvexInvoicer"_s), QStringList{u"IncompleteInvoices/"_s});
  QCOMPARE(program.Tree.List(u"/Templates"_s), (QStringList{u"ContractInvoices/"_s, u"Contracts/"_s, u"Proposals/"_s}));
  QCOMPARE(program.Tree.List(u"/KarvexProposals"_s), QStringList{u"ProposalBody/"_s});
  QCOMPARE(program.Tree.List(u"/AuxFiles"_s), QStringList{});
  QVERIFY(program.Tree.Everything().isEmpty());

  ScreenDriver splash(u"frmSplash"_s);
  QVERIFY(!splash.IsVisible(u"fraWelcome"_s));
  splash.Click(u"cmdContinue"_s);
  QVERIFY(splash.IsVisible(u"fraWelcome"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
}

void StartUp::theWelcomeFrameTellsWhatToDo() {
  ProgramFixture program;
  QVERIFY(program.Start());
  ScreenDriver splash(u"frmSplash"_s);
  splash.PressKey(Qt::Key_Return);
  QVERIFY(splash.IsVisible(u"fraWelcome"_s));
  QCOMPARE(splash.Control<QGroupBox>(u"fraWelcome"_s)->title(), u"Welcome to KarvexInvoicer"_s);
  const QStringList texts{
      u"It has a series of File Folders where information the program requires is stored."_s,
      u"Enter the information for each Folder."_s,
      u"The Setup Screen will be displayed when you click our LOGO."_s,
      u"When you're completed, click on the Menu Button. That's it!"_s,
      u"The program will start.(Unless you forgot something)"_s,
      u"You may return to the Setup Screen at any time and make changes by Selecting Files | Create/Modify from the "
      u"Main "
      u"Menu Screen."_s,
      u"If you see this screen after initial Setup, one of your files is missing."_s,
      u"An unsuccessful attempt was made to restore it from the Backup Folder. You need to recreate it."_s};
  for (int i = 0; i < texts.size(); ++i) QCOMPARE(splash.Text(u"lblWelcome_"_s + QString::number(i)), texts[i]);
  QCOMPARE(splash.Text(u"lblLogo"_s), u"LOGO >"_s);
  QCOMPARE(splash.Control(u"lblLogo"_s)->toolTip(), u"Not Me!, The Oranges!"_s);
  QCOMPARE(splash.Control(u"Image1_0"_s)->toolTip(), u"Shows the Setup Screen"_s);
  QCOMPARE(splash.Control(u"Image1_1"_s)->toolTip(), u"Yes me, I'm the LOGO"_s);
}

void StartUp::theStartUpScreenBearsNameVersionAndNotice() {
  ProgramFixture program;
  QVERIFY(program.Start());
  ScreenDriver splash(u"frmSplash"_s);
  QCOMPARE(splash.Text(u"lblProductName_2"_s), u"KarvexInvoicer"_s);
  QCOMPARE(splash.Text(u"lblProductName_3"_s), u"KarvexInvoicer"_s);
  QVERIFY(QRegularExpression(u"^Version \\d+\\.\\d+\\.\\d+$"_s).match(splash.Text(u"lblVersion"_s)).hasMatch());
  QCOMPARE(splash.Text(u"lblRunning_0"_s), u"Karvexsoft Programs share files."_s);
  QCOMPARE(splash.Text(u"lblRunning_1"_s), u"Exit all other Karvexsoft Programs"_s);
  QCOMPARE(splash.Text(u"lblRunning_2"_s), u"before continuing...."_s);
  QCOMPARE(splash.Text(u"cmdContinue"_s), u"Continue"_s);
  QCOMPARE(splash.Control(u"cmdContinue"_s)->toolTip(), u"Starts the Program"_s);
}

void StartUp::theLogoLeadsToSetupFromBothItsPlaces() {
  for (const QString& logo : {u"Image1_0"_s, u"Image1_1"_s}) {
    ProgramFixture program;
    QVERIFY(program.Start());
    ScreenDriver splash(u"frmSplash"_s);
    splash.Click(u"cmdContinue"_s);
    splash.Click(logo);
    QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
    QVERIFY(!ScreenDriver::IsShown(u"frmSplash"_s));
    QVERIFY(program.Built(ScreenName::frmSplash) == nullptr);
  }
}

void StartUp::aMissingFileComesBackFromTheBackupAtContinue() {
  ProgramFixture program;
  WriteFirstRunFiles(program.Tree);
  QVERIFY(program.Start());
  program.Tree.Remove(u"/Phone.txt"_s);
  program.Tree.Write(u"/Backup/Phone.txt"_s, "#TRUE#\r\n4\r\n");
  ScreenDriver(u"frmSplash"_s).Click(u"cmdContinue"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(program.Built(ScreenName::frmSplash) == nullptr);
  QCOMPARE(program.Tree.Bytes(u"/Phone.txt"_s), "#TRUE#\r\n4\r\n");
}

void StartUp::aFileMissingInBothPlacesShowsTheWelcomeFrame() {
  ProgramFixture program;
  WriteFirstRunFiles(program.Tree);
  QVERIFY(program.Start());
  program.Tree.Remove(u"/Phone.txt"_s);
  ScreenDriver splash(u"frmSplash"_s);
  splash.Click(u"cmdContinue"_s);
  QVERIFY(splash.IsVisible(u"fraWelcome"_s));
  splash.Click(u"Image1_1"_s);
  ScreenDriver setup(u"frmSetup"_s);
  setup.Click(u"cmdQuit"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(program.Tree.Exists(u"/Phone.txt"_s));
}

void StartUp::eachOfTheThreeFilesGetsItsRestoreEvenWhenAnotherIsMissing() {
  ProgramFixture program;
  QVERIFY(program.Start());
  program.Tree.Write(u"/Backup/MyBusinessData.txt"_s, "kept");
  program.Tree.Write(u"/Backup/Phone.txt"_s, "#FALSE#\r\n1\r\n");
  ScreenDriver splash(u"frmSplash"_s);
  splash.Click(u"cmdContinue"_s);
  QVERIFY(splash.IsVisible(u"fraWelcome"_s));
  QCOMPARE(program.Tree.Bytes(u"/MyBusinessData.txt"_s), "kept");
  QCOMPARE(program.Tree.Bytes(u"/Phone.txt"_s), "#FALSE#\r\n1\r\n");
}

void StartUp::theStartBringsBackTheFilesThatItAsksForAndNoOther() {
  const QMap<QString, QByteArray> asked{
      {u"/KarvexInvoicerSettings.txt"_s, DefaultSettings},
      {u"/MyBusinessData.txt"_s, "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n"},
      {u"/Phone.txt"_s, "#FALSE#\r\n1\r\n"},
      {u"/CallID.txt"_s, "#FALSE#\r\n"},
      {u"/PrintColors.txt"_s, "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n"},
      {u"/TaxSettings.txt"_s, "\"Sales Tax\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n"},
      {u"/CompanyLogo.txt"_s, "\"/no/such/logo.png\"\r\n"},
      {u"/LogoSettings.txt"_s, "1440,1440\r\n"},
      {u"/ShipVia.txt"_s, "UPS\r\n"},
      {u"/InvoiceMemo.txt"_s, "Thank you\r\n"},
      {u"/CustomerData.txt"_s, Customer("1001")},
      {u"/Labor.txt"_s, "\"General Labor\",\"$1.00\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n"},
      {u"/Services.txt"_s, QByteArray(72, ' ')},
      {u"/KVInventoriedItems.txt"_s, QByteArray(104, ' ')},
      {u"/CustomItems.txt"_s, QByteArray(70, ' ')}};
  ProgramFixture program;
  for (const auto& [name, bytes] : asked.asKeyValueRange()) program.Tree.Write(u"/Backup"_s + name, bytes);
  for (const auto* name : {"KVInvoiceNo", "StatementTerms", "SoldItems", "TaxRecords", "InvoiceSalesJournal",
                           "Narrative", "AuxHeadings", "SpeedNumbers", "MyWebSite", "KAPaymentRecords"}) {
    program.Tree.Write(u"/Backup/%1.txt"_s.arg(QLatin1String(name)), "not asked for");
  }
  QVERIFY(program.Start());
  QVERIFY(ScreenDriver::IsShown(u"frmSplash"_s));
  QMap<QString, QByteArray> back = program.Tree.Everything();
  back.removeIf(
      [](const std::pair<const QString&, QByteArray&>& file) { return file.first.startsWith(u"/Backup/"_s); });
  QCOMPARE(back, asked);
}

void StartUp::aCustomerGetsAFolderWithSixInside() {
  ProgramFixture program;
  program.Tree.Write(u"/CustomerData.txt"_s, Customer("1001"));
  QVERIFY(program.Start());
  QCOMPARE(program.Tree.List(u"/AuxFiles"_s), QStringList{u"1001/"_s});
  QCOMPARE(program.Tree.List(u"/AuxFiles/1001"_s), (QStringList{u"AuxFile0/"_s, u"AuxFile1/"_s, u"AuxFile2/"_s,
                                                                u"AuxFile3/"_s, u"AuxFile4/"_s, u"AuxFile5/"_s}));
}

void StartUp::accountNumbersThatCouldLeaveTheirFolderArePassedOver() {
  ProgramFixture program;
  program.Tree.Write(u"/CustomerData.txt"_s, Customer("") + Customer("..") + Customer("../x") + Customer("a\\b") +
                                                 Customer("1001/2") + Customer("7"));
  QVERIFY(program.Start());
  QCOMPARE(program.Tree.List(u"/AuxFiles"_s), QStringList{u"7/"_s});
  QVERIFY(!program.Tree.Exists(u"/x"_s));
}

void StartUp::aNewYearAddsItsFolderAndNothingElse() {
  ProgramFixture program;
  QVERIFY(program.Start());
  program.End();
  const QStringList before = program.Tree.List();
  program.Calendar.Set(QDate(2027, 1, 1));
  QVERIFY(program.Start());
  QStringList after = program.Tree.List();
  QVERIFY(after.removeOne(u"2027/"_s));
  QCOMPARE(after, before);
}

void StartUp::aSecondStartIsRefusedAndChangesNothing() {
  ProgramFixture first;
  WriteFirstRunFiles(first.Tree);
  QVERIFY(first.Start());
  const auto before = first.Tree.Everything();
  first.Answers.Ok(u"Karvex Invoicer is already Running!\nLook for it on the Task Bar"_s, u"Karvex Invoicer"_s);
  QVERIFY(!first.StartSecond());
  QCOMPARE(first.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QCOMPARE(first.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmSplash"_s));
  ScreenDriver(u"frmSplash"_s).Click(u"cmdContinue"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void StartUp::aSecondStartInANewYearMakesNoFolder() {
  ProgramFixture first;
  QVERIFY(first.Start());
  const QStringList before = first.Tree.List();
  first.Calendar.Set(QDate(2027, 1, 1));
  first.Answers.Ok(u"Karvex Invoicer is already Running!\nLook for it on the Task Bar"_s);
  QVERIFY(!first.StartSecond());
  QCOMPARE(first.Tree.List(), before);
}

void StartUp::aRenamedCopyBesideTheRunningProgramIsASecondStart() {
  ProgramFixture first;
  QVERIFY(first.Start());
  const QStringList before = first.Tree.List();
  first.EXEName = u"Billing"_s;
  first.Answers.Ok(u"Karvex Invoicer is already Running!\nLook for it on the Task Bar"_s);
  QVERIFY(!first.StartSecond());
  QCOMPARE(first.Tree.List(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmSplash"_s));
}

void StartUp::theMarkOfARunningProgramLiesOutsideTheTree() {
  ProgramFixture program;
  QVERIFY(program.Start());
  QVERIFY(program.Tree.Everything().isEmpty());
}

void StartUp::aRenamedProgramFileHasItsOwnFolders() {
  ProgramFixture program;
  program.EXEName = u"Billing"_s;
  QVERIFY(program.Start());
  QCOMPARE(program.Tree.List(u"/Billing"_s), QStringList{u"IncompleteInvoices/"_s});
  QCOMPARE(program.Tree.List(u"/Backup/Billing"_s), QStringList{u"IncompleteInvoices/"_s});
  QVERIFY(program.Tree.Exists(u"/KarvexInvoicer/Narratives"_s));
  ScreenDriver splash(u"frmSplash"_s);
  QCOMPARE(splash.Text(u"lblProductName_2"_s), u"Billing"_s);
}

void StartUp::theCloseBoxRunsTheBackupAndEndsTheProgram() {
  ProgramFixture program;
  WriteFirstRunFiles(program.Tree);
  program.Tree.Write(u"/Backup/MyWebSite.txt"_s, "\"old\"\r\n");
  program.Tree.Write(u"/Backup/MyBusinessData.txt"_s, "stale");
  QVERIFY(program.Start());
  program.Tree.Remove(u"/MyWebSite.txt"_s);
  ScreenDriver(u"frmSplash"_s).CloseByUser();
  QVERIFY(program.Running().HasEnded());
  QCOMPARE(program.Tree.Bytes(u"/Backup/KarvexInvoicerSettings.txt"_s), DefaultSettings);
  QCOMPARE(program.Tree.Bytes(u"/Backup/MyBusinessData.txt"_s),
           "\"Shop\",\"\",\"\",\"\",\"\",\"\",\"555-1234\",\"\",\"\"\r\n");
  QVERIFY(!program.Tree.Exists(u"/Backup/Phone.txt"_s));
  QCOMPARE(program.Tree.Bytes(u"/Backup/MyWebSite.txt"_s), "\"old\"\r\n");
}

void StartUp::aFolderThatCannotBeMadeEndsTheStartWithABox() {
  ProgramFixture program;
  // A file stands where a folder must be.
  program.Tree.Write(u"/CompletedInvoices"_s, "in the way");
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  QVERIFY(!program.Start());
  QVERIFY2(program.Answers.Last().Text.contains(u"CompletedInvoices"_s), qPrintable(program.Answers.Last().Text));
  QCOMPARE(program.Tree.Bytes(u"/CompletedInvoices"_s), "in the way");
}

QTEST_MAIN(StartUp)
#include "tst_startup.moc"
