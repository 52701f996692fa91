// A full disk, a broken one and a folder that can't be written, met on the real screens: a box names the file, every
// file is as it was, the program goes on, and the next save works.

#include <cerrno>

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

void AddFailures() {
  QTest::addColumn<int>("call");
  QTest::addColumn<int>("error");
  QTest::newRow("the disk is full") << static_cast<int>(FailingDevice::Call::Write) << ENOSPC;
  QTest::newRow("the folder is read-only") << static_cast<int>(FailingDevice::Call::Open) << EACCES;
  QTest::newRow("the flush fails") << static_cast<int>(FailingDevice::Call::Flush) << EIO;
  QTest::newRow("the rename fails") << static_cast<int>(FailingDevice::Call::Rename) << EACCES;
}

const QByteArray OneService = QByteArray("Repair").leftJustified(60, ' ') +
                              QByteArray("$10.00").leftJustified(10, ' ') + QByteArray("\x01\x00", 2);

QByteArray OneCustomer() {
  QByteArray record(328, ' ');
  record.replace(0, 4, "1001");
  record.replace(20, 5, "Smith");
  record.replace(207, 8, "555-1234");
  record.replace(314, 8, "Business");
  record.replace(324, 4, QByteArray(4, '\0'));
  return record;
}

}  // namespace

class FailingDisk : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void setupKeepsItsFilesAndIsSavedLater_data() { AddFailures(); }
  void setupKeepsItsFilesAndIsSavedLater();
  void aFolderThatCannotBeFlushedIsToldThoughTheNewFileStands();
  void theCatalogueKeepsItsFilesAndIsSavedLater_data() { AddFailures(); }
  void theCatalogueKeepsItsFilesAndIsSavedLater();
  void theExitBackupPassesOverWhatItCannotWrite();
  void aCustomerKeepsHisRecordAndIsSavedLater();
};

void FailingDisk::setupKeepsItsFilesAndIsSavedLater() {
  QFETCH(int, call);
  QFETCH(int, error);
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  const ScreenDriver setup(u"frmSetup"_s);
  setup.Fill(u"txtBusiness_0"_s, u"A New Name"_s);
  const auto before = program.Tree.Everything();

  program.Files.FailAlways(static_cast<FailingDevice::Call>(call), error);
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  setup.Click(u"cmdQuit"_s);
  QVERIFY2(program.Answers.Last().Text.contains(u"MyBusinessData.txt"_s), qPrintable(program.Answers.Last().Text));
  QCOMPARE(program.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
  QVERIFY(!program.Running().HasEnded());
  QCOMPARE(setup.Text(u"txtBusiness_0"_s), u"A New Name"_s);

  program.Files.Reset();
  setup.Click(u"cmdQuit"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(program.Tree.Bytes(u"/MyBusinessData.txt"_s).startsWith("\"A New Name\",\"12 Grove Road\","));
}

void FailingDisk::aFolderThatCannotBeFlushedIsToldThoughTheNewFileStands() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  const ScreenDriver setup(u"frmSetup"_s);
  setup.Fill(u"txtBusiness_0"_s, u"A New Name"_s);
  program.Files.FailAlways(FailingDevice::Call::FlushFolder, EIO);
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  setup.Click(u"cmdQuit"_s);
  QCOMPARE(program.Answers.Last().Text,
           program.Tree.Path(u"/MyBusinessData.txt"_s) +
               u": The file or folder can't be used. (error 75)\n\n"
               "Check that you may read and write the file and its folder, then try again. Nothing was lost."_s);
  QVERIFY(program.Tree.Bytes(u"/MyBusinessData.txt"_s).startsWith("\"A New Name\","));
  QVERIFY(ScreenDriver::IsShown(u"frmSetup"_s));
}

void FailingDisk::theCatalogueKeepsItsFilesAndIsSavedLater() {
  QFETCH(int, call);
  QFETCH(int, error);
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/Backup/Services.txt"_s, OneService);
  QVERIFY(program.StartAtMenu());
  ScreenDriver(u"frmStartup"_s).Click(u"optMainMenuSub_3"_s);
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  const ScreenDriver screen(u"frmServices"_s);
  screen.Click(u"cmdServices_1"_s);
  screen.Fill(u"txtDescription_0"_s, u"Cleaning"_s);
  screen.Fill(u"txtCharge_0"_s, u"25"_s);
  screen.Click(u"cmdServices_4"_s);
  const auto before = program.Tree.Everything();

  program.Files.FailAlways(static_cast<FailingDevice::Call>(call), error);
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  screen.Click(u"cmdServices_0"_s);
  QVERIFY2(program.Answers.Last().Text.contains(u"Services.txt"_s), qPrintable(program.Answers.Last().Text));
  QCOMPARE(program.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));

  program.Files.Reset();
  screen.Click(u"cmdServices_0"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(program.Tree.Size(u"/Services.txt"_s), 144);
  QVERIFY(!program.Tree.Exists(u"/Backup/Services.txt"_s));
}

void FailingDisk::theExitBackupPassesOverWhatItCannotWrite() {
  ProgramFixture program;
  QVERIFY(program.StartAtMenu());
  const auto before = program.Tree.Everything();
  program.Files.FailAlways(FailingDevice::Call::Write, ENOSPC);
  ScreenDriver(u"frmStartup"_s).CloseByUser();
  QVERIFY(program.Running().HasEnded());
  QCOMPARE(program.Tree.Everything(), before);
}

void FailingDisk::aCustomerKeepsHisRecordAndIsSavedLater() {
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, OneService);
  program.Tree.Write(u"/CustomerData.txt"_s, OneCustomer());
  QVERIFY(program.StartAtMenu());
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  const ScreenDriver screen(u"frmNewCustomer"_s);
  screen.Fill(u"txtCustomer_2"_s, u"1 New Street"_s);

  program.Files.FailAlways(FailingDevice::Call::Write, ENOSPC);
  program.Answers.Ok({}, u"Karvex Invoicer"_s);
  screen.Click(u"cmdCustomer_0"_s);
  QVERIFY2(program.Answers.Last().Text.contains(u"CustomerData.txt"_s), qPrintable(program.Answers.Last().Text));
  QCOMPARE(program.Tree.Bytes(u"/CustomerData.txt"_s), OneCustomer());
  QVERIFY(ScreenDriver::IsShown(u"frmNewCustomer"_s));
  QCOMPARE(screen.Text(u"txtCustomer_2"_s), u"1 New Street"_s);

  program.Files.Reset();
  screen.Click(u"cmdCustomer_0"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(program.Tree.Bytes(u"/CustomerData.txt"_s).mid(65, 35), QByteArray("1 New Street").leftJustified(35, ' '));
}

QTEST_MAIN(FailingDisk)
#include "tst_failingdisk.moc"
