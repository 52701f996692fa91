// Files that can't be what they must be: the start tells which one, ends the program, and leaves the disk as it is.

#include "runtime/FileStore.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

/// The program's windows that stand on the screen.
QStringList ScreensShown() {
  QStringList names;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && dynamic_cast<const Screen*>(window) != nullptr) names.append(window->objectName());
  }
  return names;
}

/// What stands on the screen while the start tells of the damage.
QStringList ScreensBehindTheBox(ProgramFixture& program) {
  QStringList shown{u"no box"_s};
  program.Answers.With(QMessageBox::Ok, [&] { shown = ScreensShown(); });
  if (program.Start()) shown.append(u"the program runs"_s);
  return shown;
}

}  // namespace

class DamagedFiles : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aDamagedFileEndsTheStartAndChangesNothing_data();
  void aDamagedFileEndsTheStartAndChangesNothing();
  void aLogoThatIsNoPictureEndsTheStartAndChangesNothing();
  void eachAdviceOfTheLogosBoxLetsTheProgramStart_data();
  void eachAdviceOfTheLogosBoxLetsTheProgramStart();
  void aLogoThatCannotBeReadTellsHowToStartWithoutIt();
  void aLogoThatIsGoneIsPassedOver();
  void aDamagedSettingIsToldBeforeAnyWindowShows();
  void aDamagedCatalogueIsToldOverTheStartUpScreen();
  void theTreeAndItsCustomersComeBeforeTheSettings();
  void aDamagedSettingLeavesTheWholeTreeMade();
  void theRecordsOfWhatWasSoldAreNotReadAtStart();
};

void DamagedFiles::aDamagedFileEndsTheStartAndChangesNothing_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QByteArray>("bytes");
  QTest::newRow("profile, empty") << u"/MyBusinessData.txt"_s << QByteArray();
  QTest::newRow("profile, cut short") << u"/MyBusinessData.txt"_s << QByteArray("\"Shop\",\"\",");
  QTest::newRow("settings, empty") << u"/KarvexInvoicerSettings.txt"_s << QByteArray();
  QTest::newRow("settings, letters for a number") << u"/KarvexInvoicerSettings.txt"_s << QByteArray("x,0,0,0,0\r\n");
  QTest::newRow("phone, empty") << u"/Phone.txt"_s << QByteArray();
  QTest::newRow("phone, garbled") << u"/Phone.txt"_s << QByteArray("\x01\x02\x03");
  QTest::newRow("caller id, empty") << u"/CallID.txt"_s << QByteArray();
  QTest::newRow("caller id, garbled") << u"/CallID.txt"_s << QByteArray("\xff\x01maybe\r\n");
  QTest::newRow("colours, cut short") << u"/PrintColors.txt"_s << QByteArray("0\r\n0\r\n");
  QTest::newRow("colours, garbled") << u"/PrintColors.txt"_s << QByteArray("red\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
  QTest::newRow("taxes, empty") << u"/TaxSettings.txt"_s << QByteArray();
  QTest::newRow("taxes, cut short") << u"/TaxSettings.txt"_s << QByteArray("\"Sales Tax\"");
  QTest::newRow("taxes, garbled") << u"/TaxSettings.txt"_s
                                  << QByteArray("\"Sales Tax\",\"Tax\",\"6.0\",\"1.0\",\x01\x02,0\r\n");
  QTest::newRow("logo, empty") << u"/CompanyLogo.txt"_s << QByteArray();
  QTest::newRow("logo size, empty") << u"/LogoSettings.txt"_s << QByteArray();
  QTest::newRow("logo size, garbled") << u"/LogoSettings.txt"_s << QByteArray("wide,1440\r\n");
  QTest::newRow("logo size, below zero") << u"/LogoSettings.txt"_s << QByteArray("1440,-90\r\n");
  QTest::newRow("logo size, beyond a sheet") << u"/LogoSettings.txt"_s << QByteArray("2147483647,2147483647\r\n");
  QTest::newRow("labor, cut short") << u"/Labor.txt"_s << QByteArray("\"General Labor\",\"$0.00\"\r\n");
  QTest::newRow("services, beyond the limit") << u"/Services.txt"_s << QByteArray(256 * 72, ' ');
  QTest::newRow("items, beyond the limit") << u"/KVInventoriedItems.txt"_s << QByteArray(256 * 104, ' ');
  QTest::newRow("custom items, beyond the limit") << u"/CustomItems.txt"_s << QByteArray(256 * 70, ' ');
  QTest::newRow("customers, beyond the limit") << u"/CustomerData.txt"_s << QByteArray(32768 * 328, ' ');
}

void DamagedFiles::aDamagedFileEndsTheStartAndChangesNothing() {
  QFETCH(QString, name);
  QFETCH(QByteArray, bytes);
  ProgramFixture program;
  program.Tree.Write(name, bytes);
  program.Tree.Write(u"/Backup"_s + name, "the good copy");
  const auto before = program.Tree.Everything();
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  QVERIFY(!program.Start());
  QVERIFY(program.Running().HasEnded());
  QVERIFY2(program.Answers.Last().Text.contains(name.mid(1)), qPrintable(program.Answers.Last().Text));
  QVERIFY(program.Answers.Last().Text.contains(u"The program ends"_s));
  QVERIFY(program.Tree.Everything() == before);
  QCOMPARE(ScreensShown(), QStringList{});
}

void DamagedFiles::aLogoThatIsNoPictureEndsTheStartAndChangesNothing() {
  ProgramFixture program;
  const TemporaryTree pictures;
  pictures.Write(u"/logo.png"_s, "no picture");
  const QString path = pictures.Path(u"/logo.png"_s);
  program.Tree.Write(u"/CompanyLogo.txt"_s, '"' + path.toUtf8() + "\"\r\n");
  const auto before = program.Tree.Everything();
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  QVERIFY(!program.Start());
  // The file of the tree that names it comes first: the picture is the user's own, and stays his.
  QCOMPARE(
      program.Answers.Last().Text,
      program.Tree.Path(u"/CompanyLogo.txt"_s) + u": It names "_s + path +
          u" as the logo, and that file can't be read as a picture. (error 481)\n\nThe program ends and leaves all "
          u"files as they are. Put a picture in that place, or move what stands there elsewhere; or remove "
          u"CompanyLogo.txt and its copy in the Backup folder. Then start the program again."_s);
  QCOMPARE(program.Tree.Everything(), before);
  QCOMPARE(pictures.Bytes(u"/logo.png"_s), "no picture");
}

void DamagedFiles::eachAdviceOfTheLogosBoxLetsTheProgramStart_data() {
  QTest::addColumn<int>("advice");
  QTest::newRow("a picture in that place") << 0;
  QTest::newRow("what stands there moved") << 1;
  QTest::newRow("the path and its copy removed") << 2;
}

void DamagedFiles::eachAdviceOfTheLogosBoxLetsTheProgramStart() {
  QFETCH(int, advice);
  ProgramFixture program;
  program.Tree.Write(u"/logo.png"_s, "no picture");
  const QString path = program.Tree.Path(u"/logo.png"_s);
  program.Tree.Write(u"/CompanyLogo.txt"_s, '"' + path.toUtf8() + "\"\r\n");
  program.Tree.Write(u"/Backup/CompanyLogo.txt"_s, '"' + path.toUtf8() + "\"\r\n");
  program.Answers.Ok();
  QVERIFY(!program.Start());
  if (advice == 0) {
    QImage picture(6, 3, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QVERIFY(picture.save(path));
  } else if (advice == 1) {
    QVERIFY(QFile::rename(path, program.Tree.Path(u"/elsewhere.png"_s)));
  } else {
    program.Tree.Remove(u"/CompanyLogo.txt"_s);
    program.Tree.Remove(u"/Backup/CompanyLogo.txt"_s);
  }
  QVERIFY(program.Start());
}

void DamagedFiles::aLogoThatCannotBeReadTellsHowToStartWithoutIt() {
  ProgramFixture program;
  const TemporaryTree pictures;
  pictures.Write(u"/logo.png"_s, "");
  const QString path = pictures.Path(u"/logo.png"_s);
  QVERIFY(QFile::resize(path, LargestWholeFile + 1));
  program.Tree.Write(u"/CompanyLogo.txt"_s, '"' + path.toUtf8() + "\"\r\n");
  const auto before = program.Tree.Everything();
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  QVERIFY(!program.Start());
  QVERIFY(program.Running().HasFailed());
  QCOMPARE(
      program.Answers.Last().Text,
      program.Tree.Path(u"/CompanyLogo.txt"_s) + u": It names "_s + path +
          u" as the logo, and that file can't be read. The file is larger than any that the program can read. (error "
          u"481)\n\nThe program ends and leaves all files as they are. Put a picture in that place, or move what "
          u"stands "
          u"there elsewhere; or remove CompanyLogo.txt and its copy in the Backup folder. Then start the program again."_s);
  QCOMPARE(program.Tree.Everything(), before);
  program.Tree.Remove(u"/CompanyLogo.txt"_s);
  QVERIFY(program.Start());
  QVERIFY(!program.Running().HasFailed());
}

void DamagedFiles::aLogoThatIsGoneIsPassedOver() {
  ProgramFixture program;
  program.Tree.Write(u"/CompanyLogo.txt"_s, "\"/no/such/logo.png\"\r\n");
  const auto before = program.Tree.Everything();
  QVERIFY(program.Start());
  QCOMPARE(program.Tree.Everything(), before);
}

void DamagedFiles::aDamagedSettingIsToldBeforeAnyWindowShows() {
  // The last of the settings to be read.
  ProgramFixture program;
  program.Tree.Write(u"/KarvexInvoicerSettings.txt"_s, "x");
  QCOMPARE(ScreensBehindTheBox(program), QStringList{});
}

void DamagedFiles::aDamagedCatalogueIsToldOverTheStartUpScreen() {
  for (const auto& [name, size] :
       {std::pair{"/Services.txt", 72}, {"/KVInventoriedItems.txt", 104}, {"/CustomItems.txt", 70}}) {
    ProgramFixture program;
    program.Tree.Write(QString::fromLatin1(name), QByteArray(256 * size, ' '));
    QCOMPARE(ScreensBehindTheBox(program), QStringList{u"frmSplash"_s});
  }
}

void DamagedFiles::theTreeAndItsCustomersComeBeforeTheSettings() {
  ProgramFixture program;
  program.Tree.Write(u"/CustomerData.txt"_s, QByteArray(32768 * 328, ' '));
  // The first of the settings to be read, and the last one.
  program.Tree.Write(u"/MyBusinessData.txt"_s, "");
  program.Tree.Write(u"/KarvexInvoicerSettings.txt"_s, "x");
  program.Answers.Ok();
  QVERIFY(!program.Start());
  QCOMPARE(program.Answers.Boxes().size(), 1);
  QVERIFY2(program.Answers.Last().Text.startsWith(program.Tree.Path(u"/CustomerData.txt"_s) + u": "_s),
           qPrintable(program.Answers.Last().Text));
}

void DamagedFiles::aDamagedSettingLeavesTheWholeTreeMade() {
  ProgramFixture program;
  program.Tree.Write(u"/MyBusinessData.txt"_s, "");
  program.Answers.Ok();
  QVERIFY(!program.Start());
  QVERIFY2(program.Answers.Last().Text.startsWith(program.Tree.Path(u"/MyBusinessData.txt"_s) + u": "_s),
           qPrintable(program.Answers.Last().Text));
  QStringList folders;
  QDirIterator tree(program.Tree.Root(), QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (tree.hasNext()) folders.append(tree.next().mid(program.Tree.Root().size()));
  folders.sort();
  const QStringList expected{u"/2026"_s,
                             u"/AuxFiles"_s,
                             u"/Backup"_s,
                             u"/Backup/CompletedInvoices"_s,
                             u"/Backup/KVActiveAccounts"_s,
                             u"/Backup/KVActiveAccountsBACK"_s,
                             u"/Backup/KarvexInvoicer"_s,
                             u"/Backup/KarvexInvoicer/IncompleteInvoices"_s,
                             u"/CompletedInvoices"_s,
                             u"/ConstructionProjects"_s,
                             u"/KVActiveAccounts"_s,
                             u"/KarvexCycleInvoicer"_s,
                             u"/KarvexInvoicer"_s,
                             u"/KarvexInvoicer/IncompleteInvoices"_s,
                             u"/KarvexInvoicer/Narratives"_s,
                             u"/KarvexInvoicer/Templates"_s,
                             u"/KarvexInvoicer/Templates/Invoices"_s,
                             u"/KarvexProposals"_s,
                             u"/KarvexProposals/ProposalBody"_s,
                             u"/Templates"_s,
                             u"/Templates/ContractInvoices"_s,
                             u"/Templates/Contracts"_s,
                             u"/Templates/Proposals"_s};
  QCOMPARE(folders, expected);
}

void DamagedFiles::theRecordsOfWhatWasSoldAreNotReadAtStart() {
  ProgramFixture program;
  const QStringList names{u"SoldItems"_s,   u"TaxRecords"_s,     u"InvoiceSalesJournal"_s, u"KAPaymentRecords"_s,
                          u"KVInvoiceNo"_s, u"StatementTerms"_s, u"Narrative"_s,           u"MyWebSite"_s,
                          u"AuxHeadings"_s, u"SpeedNumbers"_s};
  for (const QString& name : names) program.Tree.Write(u'/' + name + u".txt"_s, "\x01\x02");
  program.Tree.Write(u"/Labor.txt"_s, "\"a\",\"$1.00\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n");
  const auto before = program.Tree.Everything();
  QVERIFY(program.Start());
  const QStringList opened = program.Files.PathsOf(FailingDevice::Call::Open);
  QVERIFY(opened.contains(program.Tree.Path(u"/Labor.txt"_s)));
  for (const QString& name : names)
    QVERIFY2(!opened.contains(program.Tree.Path(u'/' + name + u".txt"_s)), qPrintable(name));
  QCOMPARE(program.Tree.Everything(), before);
}

QTEST_MAIN(DamagedFiles)
#include "tst_damagedFiles.moc"
