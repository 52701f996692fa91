// Deleting the completed invoices before a date.

#include "records/ReprintScreen.h"

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"/CompletedInvoices/"_s;
const QString Narratives = u"/KarvexInvoicer/Narratives/"_s;

/// Stops the work whose progress is shown.
void Stop(QDialog& progress) {
  progress.findChild<QPushButton*>()->click();
}

}  // namespace

class ScreenReprintPurge : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aDateLaterThanTodayIsSetBack();
  void noDeletesNothing();
  void theDefaultDateDeletesEverythingThroughToday();
  void thePickedDayItselfIsKept();
  void thePurgeTakesNarrativesAndBackupCopiesAndNothingElse();
  void aPurgeThatFailsIsTold();
  void aStopWhileInvoicesAreDeletedKeepsTheRest();
};

void ScreenReprintPurge::aDateLaterThanTodayIsSetBack() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  auto* picker = desk.On().Control<QDateEdit>(u"DTPicker1"_s);
  for (const QDate later : {QDate(2026, 3, 9), QDate(2030, 1, 1)}) {
    picker->setDate(later);
    QCOMPARE(desk.Date(), QDate(2026, 3, 7));
  }
  // Only the first value can be tomorrow.
  picker->setDate(QDate(2026, 3, 8));
  QCOMPARE(desk.Date(), QDate(2026, 3, 7));
  picker->setDate(QDate(2026, 3, 6));
  QCOMPARE(desk.Date(), QDate(2026, 3, 6));
  desk.On().Click(u"cmdExit"_s);
  OpenReprint();
  QCOMPARE(desk.Date(), QDate(2026, 3, 8));
}

void ScreenReprintPurge::noDeletesNothing() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.No(u"This will Delete All Invoices before 3/8/2026"_s, u"Delete Invoice Records"_s);
  desk.On().Click(u"cmdKill"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(desk.ShowsList());
}

void ScreenReprintPurge::theDefaultDateDeletesEverythingThroughToday() {
  ReprintScreen desk;
  desk.Program.Tree.Write(Folder + u"20260012.txt"_s, Image("20260012", "Post-dated", "3/8/2026", "$1.00"));
  QVERIFY(desk.Open());
  desk.Purge(u"3/8/2026"_s);
  QCOMPARE(desk.Images(), QStringList{u"20260012.txt"_s});
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmReprint"_s));
  // The last one gone, the menu offers none.
  desk.Program.Calendar.Set(QDate(2026, 3, 8));
  OpenReprint();
  desk.Purge(u"3/9/2026"_s);
  QVERIFY(!ScreenDriver(u"frmStartup"_s).IsVisible(u"optMainMenuSub_2"_s));
}

void ScreenReprintPurge::thePickedDayItselfIsKept() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.On().Control<QDateEdit>(u"DTPicker1"_s)->setDate(QDate(2026, 3, 6));
  desk.Purge(u"3/6/2026"_s);
  QCOMPARE(desk.Images(), (QStringList{u"20260009.txt"_s, u"20260010.txt"_s, u"20260011.txt"_s}));
}

void ScreenReprintPurge::thePurgeTakesNarrativesAndBackupCopiesAndNothingElse() {
  ReprintScreen desk;
  const TemporaryTree& tree = desk.Program.Tree;
  tree.Write(Narratives + u"20260010.txt"_s, "Kept\r\n");
  tree.Write(u"/InvoiceSalesJournal.txt"_s, QByteArray(125, ' '));
  tree.Write(u"/SoldItems.txt"_s, QByteArray(90, ' '));
  tree.Write(u"/TaxRecords.txt"_s, QByteArray(75, ' '));
  tree.Write(u"/KVActiveAccounts/1001.txt"_s, QByteArray(155, ' '));
  for (const QString& name : {Folder + u"900.txt"_s, Folder + u"20260010.txt"_s, Narratives + u"900.txt"_s})
    tree.Write(u"/Backup"_s + name, tree.Bytes(name));
  QVERIFY(desk.Open());
  desk.On().Control<QDateEdit>(u"DTPicker1"_s)->setDate(QDate(2026, 3, 6));
  auto expected = tree.Everything();
  for (const QString& name : {Folder + u"900.txt"_s, Narratives + u"900.txt"_s}) {
    QCOMPARE(expected.remove(name), 1);
    QCOMPARE(expected.remove(u"/Backup"_s + name), 1);
  }
  desk.Purge(u"3/6/2026"_s);
  QCOMPARE(tree.Everything(), expected);
}

void ScreenReprintPurge::aPurgeThatFailsIsTold() {
  ReprintScreen desk;
  QVERIFY(desk.Open());
  desk.Program.Files.FailAlways(FailingDevice::Call::Remove, EACCES);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Ok();
  desk.On().Click(u"cmdKill"_s);
  QVERIFY2(desk.Program.Answers.Last().Text.contains(u"900.txt"_s), qPrintable(desk.Program.Answers.Last().Text));
  QCOMPARE(desk.Images().size(), 4);
  QVERIFY(desk.ShowsList());
  QVERIFY(!desk.Program.Running().HasEnded());
}

void ScreenReprintPurge::aStopWhileInvoicesAreDeletedKeepsTheRest() {
  ReprintScreen desk;
  desk.Program.Patience = 0;
  desk.Program.Answers.Dialog([](QDialog&) {});
  QVERIFY(desk.Open());
  desk.Program.Answers.Yes();
  desk.Program.Answers.Dialog(&Stop);
  desk.On().Click(u"cmdKill"_s);
  QCOMPARE(desk.Images(), (QStringList{u"20260009.txt"_s, u"20260010.txt"_s, u"20260011.txt"_s}));
  QVERIFY(!desk.Program.Tree.Exists(Narratives + u"900.txt"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

QTEST_MAIN(ScreenReprintPurge)
#include "tst_screenReprintPurge.moc"
