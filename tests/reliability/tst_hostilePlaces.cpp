// A data root in a place that nobody would choose, and one that goes away: links in it, another file system, a disk
// that takes no writes, no root at all. Nothing outside the root is ever written, and the user is told what is wrong.

#include <sys/stat.h>

#include <cerrno>

#include "reliability/MemoryDisk.h"
#include "reliability/Surroundings.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

void Link(const QString& target, const QString& path) {
  QDir().mkpath(QFileInfo(path).path());
  if (!QFile::link(target, path)) qFatal("a test link isn't made");
}

/// The whole day, from the menu to the end.
void WorkTheDay(ProgramFixture& program) {
  OneDay::SaveSetup();
  OneDay::SaveCatalogue();
  OneDay::SaveCustomer();
  OneDay::CommitInvoice(program);
  OneDay::SavePartial(program);
  program.End();
}

/// What the day leaves, seen in files of each kind.
void CheckTheDay(const TemporaryTree& tree) {
  QVERIFY(tree.Bytes(u"/MyBusinessData.txt"_s).startsWith("\"A New Name\",\"12 Grove Road\","));
  QCOMPARE(tree.Size(u"/Services.txt"_s), 144);
  QCOMPARE(tree.Bytes(u"/CustomerData.txt"_s).mid(65, 12), "99 Elsewhere");
  QVERIFY(tree.Bytes(u"/SoldItems.txt"_s).right(90).startsWith("Hammer "));
  QCOMPARE(tree.Bytes(u"/KVInventoriedItems.txt"_s).mid(86, 2), Bytes16(8));
  QVERIFY(tree.Bytes(u"/CompletedInvoices/20260001.txt"_s).startsWith("20260001\r\n1001\r\nAcme Tools\r\n"));
  QVERIFY(tree.Bytes(u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s).startsWith("20260002\r\n1001\r\n"));
  QCOMPARE(tree.Bytes(u"/Backup/KVActiveAccounts/1001.txt"_s), tree.Bytes(u"/KVActiveAccounts/1001.txt"_s));
  QCOMPARE(tree.Bytes(u"/Backup/CustomerData.txt"_s), tree.Bytes(u"/CustomerData.txt"_s));
  QCOMPARE(tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260003\r\n");
}

}  // namespace

class HostilePlaces : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aDayOnFilesThatAreLinksWritesNothingThroughThem_data();
  void aDayOnFilesThatAreLinksWritesNothingThroughThem();
  void aFolderThatIsALinkKeepsTheProgramFromStarting_data();
  void aFolderThatIsALinkKeepsTheProgramFromStarting();
  void aFolderThatBecomesALinkIsToldAtTheSave_data();
  void aFolderThatBecomesALinkIsToldAtTheSave();
  void aCommitIntoALinkedFolderWritesNothingThere_data();
  void aCommitIntoALinkedFolderWritesNothingThere();
  void aBackupThatBecomesALinkIsPassedOverAtTheEnd();
  void aRootReachedByALinkIsARootLikeAnother();
  void aRootOnAnotherFileSystemIsARootLikeAnother();
  void aRootThatVanishesIsToldAtEachSave_data();
  void aRootThatVanishesIsToldAtEachSave();
  void aCommitWithoutARootWritesNothingAnywhere();
  void aRootThatIsGoneAtTheEndEndsTheProgramAllTheSame();
  void aRootThatTakesNoWritesKeepsTheProgramFromStarting();
  void aRootThatTakesNoMoreWritesLosesNothing();
  void aFolderInAFilesPlaceIsToldAndStays();
};

void HostilePlaces::aDayOnFilesThatAreLinksWritesNothingThroughThem_data() {
  QTest::addColumn<QString>("prefix");
  QTest::addColumn<QString>("ending");
  QTest::addColumn<bool>("dangling");
  QTest::newRow("the files") << u""_s << u""_s << false;
  QTest::newRow("the copies in the backup") << u"/Backup"_s << u""_s << false;
  QTest::newRow("the names of the new files") << u""_s << u".new"_s << false;
  QTest::newRow("the names of the new copies") << u"/Backup"_s << u".new"_s << false;
  QTest::newRow("links to nothing") << u""_s << u""_s << true;
  QTest::newRow("copies that link to nothing") << u"/Backup"_s << u""_s << true;
  QTest::newRow("new files' names that link to nothing") << u""_s << u".new"_s << true;
}

void HostilePlaces::aDayOnFilesThatAreLinksWritesNothingThroughThem() {
  QFETCH(QString, prefix);
  QFETCH(QString, ending);
  QFETCH(bool, dangling);
  Surroundings around;
  ProgramFixture program;
  const TemporaryTree outside;
  const auto files = OneDay::Files();
  for (auto it = files.cbegin(); it != files.cend(); ++it) {
    // Where the links lead to nothing, the day still needs its customer and its wares.
    const bool needed = !program.Tree.Exists(it.key()) && (!ending.isEmpty() || !prefix.isEmpty());
    if (needed) program.Tree.Write(it.key(), it.value());
    if (dangling && prefix.isEmpty() && ending.isEmpty()) program.Tree.Write(u"/Backup"_s + it.key(), it.value());
    if (!dangling) outside.Write(it.key(), it.value());
    Link(outside.Path(it.key()), program.Tree.Path(prefix + it.key() + ending));
  }
  around.Watch({program.Tree.Root()});
  // Not by the fixture's own way to the menu: it would write the settings through the links.
  QVERIFY(program.Start());
  ScreenDriver(u"frmSplash"_s).Click(u"cmdContinue"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  WorkTheDay(program);
  QCOMPARE(around.Changes().join(u'\n'), QString());
  CheckTheDay(program.Tree);
  // What was written is the tree's own now.
  for (const auto* name : {"/MyBusinessData.txt", "/Services.txt", "/CustomerData.txt", "/KVInventoriedItems.txt",
                           "/SoldItems.txt", "/InvoiceSalesJournal.txt", "/KVActiveAccounts/1001.txt",
                           "/CompletedInvoices/20260001.txt", "/KVInvoiceNo.txt", "/Backup/CustomerData.txt"}) {
    QVERIFY2(!QFileInfo(program.Tree.Path(QString::fromLatin1(name))).isSymLink(), name);
  }
}

void HostilePlaces::aFolderThatIsALinkKeepsTheProgramFromStarting_data() {
  QTest::addColumn<QString>("folder");
  for (const auto* name : {"/2026",
                           "/CompletedInvoices",
                           "/KarvexInvoicer",
                           "/KarvexInvoicer/IncompleteInvoices",
                           "/KVActiveAccounts",
                           "/KarvexCycleInvoicer",
                           "/KarvexProposals",
                           "/KarvexInvoicer/Narratives",
                           "/KarvexInvoicer/Templates",
                           "/KarvexInvoicer/Templates/Invoices",
                           "/Backup",
                           "/Backup/KarvexInvoicer",
                           "/Backup/KVActiveAccounts",
                           "/Backup/KVActiveAccountsBACK",
                           "/Backup/CompletedInvoices",
                           "/Backup/KarvexInvoicer/IncompleteInvoices",
                           "/Templates",
                           "/Templates/Contracts",
                           "/Templates/ContractInvoices",
                           "/Templates/Proposals",
                           "/KarvexProposals/ProposalBody",
                           "/ConstructionProjects",
                           "/AuxFiles",
                           "/AuxFiles/1001",
                           "/AuxFiles/1001/AuxFile3"}) {
    QTest::newRow(name) << QString::fromLatin1(name);
  }
}

void HostilePlaces::aFolderThatIsALinkKeepsTheProgramFromStarting() {
  QFETCH(QString, folder);
  for (const bool dangling : {false, true}) {
    Surroundings around;
    ProgramFixture program;
    const TemporaryTree outside;
    OneDay::Stock(program.Tree);
    if (!dangling) outside.MakeFolder(u"/its place"_s);
    Link(outside.Path(u"/its place"_s), program.Tree.Path(folder));
    const auto before = program.Tree.Everything();
    around.Watch({program.Tree.Root()});
    program.Answers.Ok(program.Tree.Path(folder) +
                       u": It is a link to another place, and the program changes nothing outside its own folder. "
                       "(error 75)\n\nThe program can't start. Mend this and start it again; no file was changed by "
                       "it."_s);
    QVERIFY(!program.Start());
    QCOMPARE(around.Changes().join(u'\n'), QString());
    QCOMPARE(program.Tree.Everything(), before);
    // Mended, it starts.
    QVERIFY(QFile::remove(program.Tree.Path(folder)));
    QVERIFY(program.Start());
  }
}

namespace {

/// The folder goes elsewhere, with all that it holds, and a link takes its place.
void MoveAwayAndLink(const ProgramFixture& program, const TemporaryTree& outside, const QString& folder) {
  QVERIFY(QDir().rename(program.Tree.Path(folder), outside.Path(u"/moved"_s)));
  Link(outside.Path(u"/moved"_s), program.Tree.Path(folder));
}

}  // namespace

void HostilePlaces::aFolderThatBecomesALinkIsToldAtTheSave_data() {
  using Act = std::function<void(ProgramFixture&)>;
  QTest::addColumn<QString>("folder");
  QTest::addColumn<Act>("act");
  const Act setup = [](ProgramFixture& program) {
    program.Answers.Ok();
    OneDay::SaveSetup();
  };
  const Act catalogue = [](ProgramFixture& program) {
    program.Answers.Ok();
    OneDay::SaveCatalogue();
  };
  const Act partial = [](ProgramFixture& program) {
    OneDay::ComposeInvoice();
    OneDay::AnswerPartialSave(program);
    program.Answers.Ok();
    ScreenDriver(u"frmInvoice"_s).Click(u"cmdSave"_s);
  };
  QTest::newRow("the copy that a Setup save drops") << u"/Backup"_s << setup;
  QTest::newRow("the copy that the catalogue's save drops") << u"/Backup"_s << catalogue;
  QTest::newRow("a partial invoice") << u"/KarvexInvoicer/IncompleteInvoices"_s << partial;
  QTest::newRow("a partial invoice, one folder above") << u"/KarvexInvoicer"_s << partial;
}

void HostilePlaces::aFolderThatBecomesALinkIsToldAtTheSave() {
  using Act = std::function<void(ProgramFixture&)>;
  QFETCH(QString, folder);
  QFETCH(Act, act);
  Surroundings around;
  ProgramFixture program;
  const TemporaryTree outside;
  OneDay::Stock(program.Tree);
  const auto files = OneDay::Files();
  for (auto it = files.cbegin(); it != files.cend(); ++it) program.Tree.Write(u"/Backup"_s + it.key(), it.value());
  QVERIFY(program.StartAtMenu());
  MoveAwayAndLink(program, outside, folder);
  around.Watch({program.Tree.Root()});
  act(program);
  QCOMPARE(program.Answers.Last().Text,
           program.Tree.Path(folder) +
               u": It is a link to another place, and the program changes nothing outside its own folder. (error 75)"
               "\n\nPut a folder with what the link leads to in the link's place, then try again. Nothing was lost."_s);
  QVERIFY(program.Answers.AllUsed());
  QVERIFY(!program.Running().HasEnded());
  QCOMPARE(around.Changes().join(u'\n'), QString());
  // The folder comes home, and the end, which saves the catalogue first, has nothing to tell.
  QVERIFY(QFile::remove(program.Tree.Path(folder)));
  QVERIFY(QDir().rename(outside.Path(u"/moved"_s), program.Tree.Path(folder)));
  program.End();
}

void HostilePlaces::aCommitIntoALinkedFolderWritesNothingThere_data() {
  QTest::addColumn<QString>("folder");
  for (const auto* name : {"/KVActiveAccounts", "/Backup/KVActiveAccounts", "/CompletedInvoices"}) {
    QTest::newRow(name) << QString::fromLatin1(name);
  }
}

void HostilePlaces::aCommitIntoALinkedFolderWritesNothingThere() {
  QFETCH(QString, folder);
  Surroundings around;
  ProgramFixture program;
  const TemporaryTree outside;
  OneDay::Stock(program.Tree);
  for (const auto* name : {"/KVActiveAccounts/1001.txt", "/Backup/KVActiveAccounts/1001.txt"}) {
    program.Tree.Write(QString::fromLatin1(name), QByteArray(155, ' '));
  }
  QVERIFY(program.StartAtMenu());
  MoveAwayAndLink(program, outside, folder);
  around.Watch({program.Tree.Root()});
  OneDay::CommitInvoice(program);
  // The rest is skipped without a word, and the number isn't used up.
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260001\r\n");
  QCOMPARE(program.Tree.Size(u"/InvoiceSalesJournal.txt"_s), 125);
  QVERIFY(!program.Tree.Exists(u"/TaxRecords.txt"_s));
  QCOMPARE(around.Changes().join(u'\n'), QString());
}

void HostilePlaces::aBackupThatBecomesALinkIsPassedOverAtTheEnd() {
  Surroundings around;
  ProgramFixture program;
  const TemporaryTree outside;
  OneDay::Stock(program.Tree);
  program.Tree.Write(u"/Backup/CustomerData.txt"_s, "the older copy");
  QVERIFY(program.StartAtMenu());
  MoveAwayAndLink(program, outside, u"/Backup"_s);
  around.Watch({program.Tree.Root()});
  program.End();
  QCOMPARE(around.Changes().join(u'\n'), QString());
  QCOMPARE(outside.Bytes(u"/moved/CustomerData.txt"_s), "the older copy");
}

void HostilePlaces::aRootReachedByALinkIsARootLikeAnother() {
  ProgramFixture program;
  const TemporaryTree elsewhere;
  OneDay::Stock(program.Tree);
  // The folder itself lies elsewhere, and its own name is a link to there.
  QVERIFY(QDir().rename(program.Tree.Root(), elsewhere.Path(u"/root"_s)));
  Link(elsewhere.Path(u"/root"_s), program.Tree.Root());
  QVERIFY(program.StartAtMenu());
  WorkTheDay(program);
  CheckTheDay(program.Tree);
  QVERIFY(QFile::remove(program.Tree.Root()));
}

void HostilePlaces::aRootOnAnotherFileSystemIsARootLikeAnother() {
  // The other tests of this program work in memory; this one on the disk that holds the test program.
  struct stat here, there;
  const QString other = QCoreApplication::applicationDirPath();
  const bool known = ::stat(qPrintable(QDir::tempPath()), &here) == 0 && ::stat(qPrintable(other), &there) == 0;
  if (!known || here.st_dev == there.st_dev || !QFileInfo(other).isWritable()) {
    QSKIP("there is no second file system here");
  }
  const QByteArray before = qgetenv("TMPDIR");
  qputenv("TMPDIR", QFile::encodeName(other));
  {
    ProgramFixture program;
    qputenv("TMPDIR", before);
    QVERIFY(program.Tree.Root().startsWith(other));
    OneDay::Stock(program.Tree);
    QVERIFY(program.StartAtMenu());
    WorkTheDay(program);
    CheckTheDay(program.Tree);
  }
}

void HostilePlaces::aRootThatVanishesIsToldAtEachSave_data() {
  using Act = std::function<void(ProgramFixture&)>;
  QTest::addColumn<Act>("go");
  QTest::addColumn<QString>("save");
  QTest::addColumn<QString>("screen");
  QTest::addColumn<QString>("file");
  QTest::newRow("Setup") << Act([](ProgramFixture&) {
    ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
    ScreenDriver(u"frmSetup"_s).Fill(u"txtBusiness_0"_s, u"A New Name"_s);
  }) << u"cmdQuit"_s << u"frmSetup"_s
                         << u"/MyBusinessData.txt"_s;
  QTest::newRow("the catalogue") << Act([](ProgramFixture&) { OneDay::EnterService(); }) << u"cmdServices_0"_s
                                 << u"frmServices"_s << u"/Services.txt"_s;
  QTest::newRow("a customer") << Act([](ProgramFixture&) {
    OneDay::GoToCustomers();
    ScreenDriver(u"frmNewCustomer"_s).Fill(u"txtCustomer_2"_s, u"99 Elsewhere"_s);
  }) << u"cmdCustomer_0"_s << u"frmNewCustomer"_s
                              << u"/CustomerData.txt"_s;
  QTest::newRow("a partial invoice") << Act([](ProgramFixture& program) {
    OneDay::ComposeInvoice();
    OneDay::AnswerPartialSave(program);
  }) << u"cmdSave"_s << u"frmInvoice"_s
                                     << u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s;
}

void HostilePlaces::aRootThatVanishesIsToldAtEachSave() {
  using Act = std::function<void(ProgramFixture&)>;
  QFETCH(Act, go);
  QFETCH(QString, save);
  QFETCH(QString, screen);
  QFETCH(QString, file);
  Surroundings around;
  ProgramFixture program;
  const TemporaryTree elsewhere;
  OneDay::Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  go(program);
  const QString moved = elsewhere.Path(u"/moved"_s);
  QVERIFY(QDir().rename(program.Tree.Root(), moved));
  around.Watch({});
  program.Answers.Ok();
  ScreenDriver(screen).Click(save);
  const QString text = program.Answers.Last().Text;
  QVERIFY2(text.startsWith(program.Tree.Path(file) + u": "_s) && text.contains(u"(error 76)"_s), qPrintable(text));
  QVERIFY(program.Answers.AllUsed());
  QVERIFY(!program.Running().HasEnded());
  QVERIFY(ScreenDriver::IsShown(screen));
  QCOMPARE(around.Changes().join(u'\n'), QString());

  // It is back, and the same save works.
  QVERIFY(QDir().rename(moved, program.Tree.Root()));
  if (screen == u"frmInvoice"_s) OneDay::AnswerPartialSave(program);
  ScreenDriver(screen).Click(save);
  QVERIFY(program.Tree.Exists(file));
  program.End();
}

void HostilePlaces::aCommitWithoutARootWritesNothingAnywhere() {
  Surroundings around;
  ProgramFixture program;
  const TemporaryTree elsewhere;
  OneDay::Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  OneDay::ComposeInvoice();
  OneDay::Finalize();
  QVERIFY(QDir().rename(program.Tree.Root(), elsewhere.Path(u"/moved"_s)));
  around.Watch({});
  OneDay::Commit(program);
  QCOMPARE(around.Changes().join(u'\n'), QString());
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(QDir().rename(elsewhere.Path(u"/moved"_s), program.Tree.Root()));
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260001\r\n");
}

void HostilePlaces::aRootThatIsGoneAtTheEndEndsTheProgramAllTheSame() {
  Surroundings around;
  ProgramFixture program;
  const TemporaryTree elsewhere;
  OneDay::Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  QVERIFY(QDir().rename(program.Tree.Root(), elsewhere.Path(u"/moved"_s)));
  around.Watch({});
  program.End();
  QCOMPARE(around.Changes().join(u'\n'), QString());
}

void HostilePlaces::aRootThatTakesNoWritesKeepsTheProgramFromStarting() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  const auto before = program.Tree.Everything();
  using Call = FailingDevice::Call;
  for (const Call call : {Call::MayWrite, Call::Open, Call::Write, Call::MakeFolder, Call::Rename, Call::Remove}) {
    program.Files.AlsoFailAlways(call, EROFS);
  }
  program.Answers.Ok();
  QVERIFY(!program.Start());
  const QString text = program.Answers.Last().Text;
  QVERIFY2(text.startsWith(program.Tree.Path(u"/2026"_s)) && text.contains(u"(error 70)"_s), qPrintable(text));
  QVERIFY(text.contains(u"The program can't start."_s));
  QCOMPARE(program.Tree.Everything(), before);
}

void HostilePlaces::aRootThatTakesNoMoreWritesLosesNothing() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  const auto before = program.Tree.Everything();
  using Call = FailingDevice::Call;
  for (const Call call : {Call::MayWrite, Call::Write, Call::MakeFolder, Call::Rename, Call::Remove}) {
    program.Files.AlsoFailAlways(call, EROFS);
  }
  program.Answers.Ok();
  OneDay::SaveSetup();
  QVERIFY2(program.Answers.Last().Text.contains(u"(error 70)"_s), qPrintable(program.Answers.Last().Text));
  QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
  program.End();
  QCOMPARE(program.Tree.Everything(), before);
}

void HostilePlaces::aFolderInAFilesPlaceIsToldAndStays() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  program.Tree.MakeFolder(u"/TaxRecords.txt/kept"_s);
  QVERIFY(program.StartAtMenu());
  QVERIFY(QFile::remove(program.Tree.Path(u"/MyBusinessData.txt"_s)));
  program.Tree.MakeFolder(u"/MyBusinessData.txt/kept"_s);
  program.Answers.Ok();
  OneDay::SaveSetup();
  const QString text = program.Answers.Last().Text;
  QVERIFY2(text.startsWith(program.Tree.Path(u"/MyBusinessData.txt"_s) + u": "_s), qPrintable(text));
  QVERIFY(program.Tree.Exists(u"/MyBusinessData.txt/kept"_s));
  QVERIFY(!program.Running().HasEnded());
  program.End();
}

QTEST_MAIN(HostilePlaces)
#include "tst_hostilePlaces.moc"
