// The purge of the sold items' records from the item sales screen: its questions, the bytes that it leaves, and what
// stands when it fails or is killed.

#include <QtWidgets>

#include "records/SalesPurge.h"
#include "records/SalesRange.h"
#include "records/SoldItems.h"
#include "shell/CommonDiskRoutines.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString File = u"/SoldItems.txt"_s;
const QString Copy = u"/Backup/SoldItems.txt"_s;
const QString Question =
    u"This will delete ALL Sales Item Records dated\n2/5/2026 through 3/7/2026\nClick Yes to Delete"_s;

const QByteArray Before = Sold("Hammer", Day::Feb4, "20250009", 4);
const QByteArray First = Sold("Saw", Day::Feb5, "20260001", 1);
const QByteArray Last = Sold("Nail", Day::Mar7, "20260003", 9);
const QByteArray Behind = Sold("Hammer", Day::Mar7 + 0.5, "20260004", 8);
const QByteArray LongAgo = Sold("Saw", Day::FirstOf2000, "1", 7);

struct Desk {
  ProgramFixture Program;
  explicit Desk(const QByteArray& records = Last + Before + First + Behind + LongAgo) {
    Program.Tree.Write(u"/KVInventoriedItems.txt"_s, ItemNamed("Hammer") + ItemNamed("Saw"));
    Program.Tree.Write(File, records);
    Program.Tree.Write(Copy, "older");
  }
  bool Open() {
    if (!Program.StartAtMenu()) return false;
    const ScreenDriver menu(u"frmStartup"_s);
    menu.Click(u"optMainMenuSub_5"_s);
    menu.Click(u"cmdGoto"_s);
    return ScreenDriver::IsShown(u"frmSalesReport"_s);
  }
  static ScreenDriver Driver() { return ScreenDriver(u"frmSalesReport"_s); }
  void Agree() {
    Program.Answers.Yes(Question, u"Delete Sales Records"_s);
    Program.Answers.Yes(u"Are you Sure?"_s, u"Delete Verification"_s);
  }
  static void Purge() { Driver().Trigger(u"mnuDelete"_s); }
};

}  // namespace

class ScreenSalesPurge : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theRangeGoesAndTheRestStaysInOrder() {
    Desk desk;
    QVERIFY(desk.Open());
    desk.Agree();
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Bytes(File), Before + Behind + LongAgo);
    // The copy is of the shortened file.
    QCOMPARE(desk.Program.Tree.Bytes(Copy), Before + Behind + LongAgo);
    QVERIFY(!desk.Program.Tree.Exists(u"/TemporaryFile.txt"_s));
    QCOMPARE(desk.Program.Answers.Boxes().at(0).Buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(desk.Program.Answers.Boxes().at(1).Buttons, QMessageBox::Yes | QMessageBox::No);
    QVERIFY(ScreenDriver::IsShown(u"frmSalesReport"_s));
  }

  void eachQuestionCanEndIt() {
    Desk desk;
    QVERIFY(desk.Open());
    const auto before = desk.Program.Tree.Everything();
    desk.Program.Answers.No(Question, u"Delete Sales Records"_s);
    Desk::Purge();
    desk.Program.Answers.Yes();
    desk.Program.Answers.No(u"Are you Sure?"_s, u"Delete Verification"_s);
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Everything(), before);
    QVERIFY(ScreenDriver::IsShown(u"frmSalesReport"_s));
  }

  void thePickersSayWhatGoes() {
    Desk desk;
    QVERIFY(desk.Open());
    Desk::Driver().Click(u"cmdIncome_3"_s);
    desk.Program.Answers.Yes(
        u"This will delete ALL Sales Item Records dated\n1/1/2000 through 3/7/2026\nClick Yes to Delete"_s);
    desk.Program.Answers.Yes();
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Bytes(File), Behind);
  }

  void whatIsLeftIsShownAsAtAnActivation() {
    Desk desk;
    QVERIFY(desk.Open());
    const ScreenDriver driver = Desk::Driver();
    driver.Click(u"cmdSales_1"_s);
    driver.Click(u"cmdIncome_2"_s);
    QCOMPARE(driver.Control<QTableView>(u"fgSalesItems"_s)->model()->rowCount(), 3);
    desk.Program.Answers.Yes();
    desk.Program.Answers.Yes();
    Desk::Purge();
    QCOMPARE(driver.Control<QDateEdit>(u"DTPicker1_0"_s)->date(), QDate(2026, 2, 5));
    QCOMPARE(driver.Control<QDateEdit>(u"DTPicker1_1"_s)->date(), QDate(2026, 3, 7));
    QCOMPARE(driver.Control<QTableView>(u"fgSalesItems"_s)->model()->rowCount(), 1);
    QCOMPARE(driver.Control<QTableView>(u"fgTotals"_s)->model()->rowCount(), 0);
  }

  void aRangeOfAllRecordsTakesTheFileAndLeadsToTheMenu() {
    Desk desk(First + Last);
    QVERIFY(desk.Open());
    desk.Agree();
    Desk::Purge();
    QVERIFY(!desk.Program.Tree.Exists(File));
    QVERIFY(!desk.Program.Tree.Exists(Copy));
    QVERIFY(!desk.Program.Tree.Exists(u"/TemporaryFile.txt"_s));
    QVERIFY(!ScreenDriver::IsShown(u"frmSalesReport"_s));
    QVERIFY(!ScreenDriver(u"frmStartup"_s).IsVisible(u"optMainMenuSub_5"_s));
  }

  void anOldTemporaryFileBringsNothingBack() {
    Desk desk;
    desk.Program.Tree.Write(u"/TemporaryFile.txt"_s, Sold("Old", Day::Jan1, "5", 5).repeated(20));
    QVERIFY(desk.Open());
    desk.Agree();
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Bytes(File), Before + Behind + LongAgo);
    QVERIFY(!desk.Program.Tree.Exists(u"/TemporaryFile.txt"_s));
  }

  void aLastRecordThatIsCutShortIsFilledUp() {
    Desk desk(First + Before.left(75) + QByteArray());
    QVERIFY(desk.Open());
    desk.Agree();
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Bytes(File), QByteArray("Hammer").leftJustified(60) + BytesOf(Day::Feb4) +
                                                QByteArray("2025000").leftJustified(20) + QByteArray(2, '\0'));
  }

  void aFileOfMoreRecordsThanACountHoldsIsToldAndStays() {
    const QByteArray full = First + QByteArray(32767 * 90, ' ');
    Desk desk(full);
    QVERIFY(desk.Open());
    desk.Agree();
    desk.Program.Answers.Ok(
        desk.Program.Tree.Path(u"/SoldItems.txt"_s) +
            u": A number is too large for its place. (error 6)\n\nIt holds more than 32,767 records, and "
            u"from so "
            u"many none can be deleted. Nothing was lost."_s,
        u"Karvex Invoicer"_s);
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Bytes(File), full);
    QCOMPARE(desk.Program.Tree.Bytes(Copy), "older");
    QVERIFY(!desk.Program.Running().HasEnded());
    QVERIFY(ScreenDriver::IsShown(u"frmSalesReport"_s));
    // One record less, and they go.
    desk.Program.Tree.Write(File, full.chopped(90));
    desk.Agree();
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Bytes(File), QByteArray(32766 * 90, ' '));
  }

  void withoutAFileThereIsNothingToKeep() {
    Desk desk;
    QVERIFY(desk.Open());
    desk.Program.Tree.Remove(File);
    desk.Program.Tree.Remove(Copy);
    desk.Agree();
    Desk::Purge();
    QVERIFY(!desk.Program.Tree.Exists(File));
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  }

  void aDiskThatFailsLeavesTheRecords_data() {
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("error");
    QTest::newRow("the disk is full") << static_cast<int>(FailingDevice::Call::Write) << ENOSPC;
    QTest::newRow("the folder is read-only") << static_cast<int>(FailingDevice::Call::Open) << EACCES;
    QTest::newRow("the flush fails") << static_cast<int>(FailingDevice::Call::Flush) << EIO;
    QTest::newRow("the rename fails") << static_cast<int>(FailingDevice::Call::Rename) << EACCES;
  }
  void aDiskThatFailsLeavesTheRecords() {
    QFETCH(const int, call);
    QFETCH(const int, error);
    Desk desk;
    QVERIFY(desk.Open());
    const auto before = desk.Program.Tree.Everything();
    desk.Program.Files.FailAlways(static_cast<FailingDevice::Call>(call), error);
    desk.Agree();
    desk.Program.Answers.Ok({}, u"Karvex Invoicer"_s);
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Everything(), before);
    QVERIFY(ScreenDriver::IsShown(u"frmSalesReport"_s));
    desk.Program.Files.Reset();
    desk.Agree();
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Bytes(File), Before + Behind + LongAgo);
  }

  void aDiskThatFailsOnceOnTheWayLeavesNoSecondFile() {
    // The second rename is the one that puts the shorter file in place, the first folder the one before it.
    for (const auto& [call, nth] : {std::pair(FailingDevice::Call::Rename, 2), {FailingDevice::Call::FlushFolder, 1}}) {
      Desk desk;
      QVERIFY(desk.Open());
      const auto before = desk.Program.Tree.Everything();
      desk.Program.Files.FailAt(call, nth, EIO);
      desk.Agree();
      desk.Program.Answers.Ok({}, u"Karvex Invoicer"_s);
      Desk::Purge();
      QCOMPARE(desk.Program.Tree.Everything(), before);
    }
  }

  void aFailureBehindTheRenameIsToldAndPassesWithTheNextPurge_data() {
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("nth");
    QTest::addColumn<QString>("file");
    // Folders are flushed behind the temporary file, the rename, and the copy; the third rename is the copy's.
    QTest::newRow("the folder can't be flushed") << static_cast<int>(FailingDevice::Call::FlushFolder) << 2 << File;
    QTest::newRow("the copy can't be made") << static_cast<int>(FailingDevice::Call::Rename) << 3 << Copy;
  }
  void aFailureBehindTheRenameIsToldAndPassesWithTheNextPurge() {
    QFETCH(const int, call);
    QFETCH(const int, nth);
    QFETCH(const QString, file);
    Desk desk;
    QVERIFY(desk.Open());
    const ScreenDriver driver = Desk::Driver();
    const auto listed = [&driver] {
      const auto* lines = driver.Control<QTableView>(u"fgSalesItems"_s)->model();
      QStringList numbers;
      for (int row = 0; row < lines->rowCount(); ++row) numbers << lines->index(row, 2).data().toString();
      return numbers;
    };
    driver.Click(u"cmdSales_1"_s);
    driver.Click(u"cmdSales_3"_s);
    QCOMPARE(listed(), (QStringList{u"20260001"_s, QString()}));
    desk.Program.Files.FailAt(static_cast<FailingDevice::Call>(call), nth, EIO);
    desk.Agree();
    desk.Program.Answers.Ok(desk.Program.Tree.Path(file) +
                                u": The file or folder can't be used. (error 75)\n\nCheck that you may read and write "
                                u"the file and its folder, then try again. Nothing was lost."_s,
                            u"Karvex Invoicer"_s);
    Desk::Purge();
    // The records are gone, the copy is the one of before; the list shows what it showed.
    QCOMPARE(desk.Program.Tree.Bytes(File), Before + Behind + LongAgo);
    QCOMPARE(desk.Program.Tree.Bytes(Copy), "older");
    QVERIFY(!desk.Program.Tree.Exists(u"/TemporaryFile.txt"_s));
    QVERIFY(ScreenDriver::IsShown(u"frmSalesReport"_s));
    QCOMPARE(listed(), (QStringList{u"20260001"_s, QString()}));
    // Tried again, as the box says.
    desk.Agree();
    Desk::Purge();
    QCOMPARE(desk.Program.Tree.Bytes(File), Before + Behind + LongAgo);
    QCOMPARE(desk.Program.Tree.Bytes(Copy), Before + Behind + LongAgo);
    QCOMPARE(listed(), QStringList{QString()});
  }

  void killedAtAnyStepTheFileIsOldOrNew() {
    const QByteArray old = Last + Before + First;
    int step = 1;
    for (bool done = false; !done; ++step) {
      TemporaryTree tree;
      tree.MakeFolder(u"/Backup"_s);
      tree.Write(File, old);
      FailingDevice device;
      FileStore store(device);
      CommonDiskRoutines disk(store, tree.Root(), u"KarvexInvoicer"_s);
      SalesRange range;
      range.DTPicker1 = {QDate(2026, 2, 5), QDate(2026, 3, 7)};
      device.KillAt(step);
      try {
        PurgeSoldItems(range, disk);
        done = true;
      } catch (const FailingDevice::Killed&) {
      }
      const QByteArray left = tree.Bytes(File);
      QVERIFY2(left == old || left == Before, qPrintable(u"killed at %1"_s.arg(step)));
      if (done) QCOMPARE(left, Before);
    }
    QVERIFY(step > 8);
  }
};

QTEST_MAIN(ScreenSalesPurge)
#include "tst_screenSalesPurge.moc"
