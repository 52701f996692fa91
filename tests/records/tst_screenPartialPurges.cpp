// The purges of the partial invoices screen in the real program, and what they ask first.

#include "records/PartialsDesk.h"

using namespace Qt::StringLiterals;

class ScreenPartialPurges : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void purgeAllRemovesEveryFileOfTheFolder();
  void purgeAllAsksTwice();
  void purgeSelectedRemovesThatOneFile();
  void purgeSelectedAsksTwiceAndWaitsForTheNextClick();
  void purgingTheLastOneLeadsToAMenuWithoutThem();
  void aPurgeOfARowThatCouldLeaveTheFolderIsRefused();
  void aPurgeThatFailsIsTold();
  void theLetterOfBothPurgesRunsNeither();
};

void ScreenPartialPurges::purgeAllRemovesEveryFileOfTheFolder() {
  PartialsDesk desk;
  desk.Program.Tree.Write(Folder + u"/notes.doc"_s, "x");
  desk.Program.Tree.Write(Folder + u"/bare"_s, "x");
  QVERIFY(desk.Open());
  desk.Program.Answers.Yes(u"This will Purge ALL Incomplete Invoices"_s, u"Purge Incomplete Invoices"_s);
  desk.Program.Answers.Yes(u"Are You Sure?"_s, u"Purge Confirmation"_s);
  ScreenDriver(u"frmIncomplete"_s).Click(u"Command1_2"_s);
  QCOMPARE(desk.Program.Tree.List(Folder), QStringList{});
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  const ScreenDriver menu(u"frmStartup"_s);
  QCOMPARE(menu.Text(u"lblIncomplete"_s), u"0"_s);
  QVERIFY(!menu.IsVisible(u"optMainMenuSub_1"_s));
}

void ScreenPartialPurges::purgeAllAsksTwice() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  const ScreenDriver partials(u"frmIncomplete"_s);
  desk.Program.Answers.No();
  partials.Click(u"Command1_2"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  desk.Program.Answers.Yes();
  desk.Program.Answers.No(u"Are You Sure?"_s, u"Purge Confirmation"_s);
  partials.Click(u"Command1_2"_s);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(partials.IsEnabled(u"Command1_2"_s));
}

void ScreenPartialPurges::purgeSelectedRemovesThatOneFile() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 2);
  desk.Program.Answers.Yes(u"This will Purge Incomplete Invoice# 20260008"_s, u"Purge Incomplete Invoice"_s);
  desk.Program.Answers.Yes(u"Are You Sure?"_s, u"Purge Confirmation"_s);
  partials.Click(u"Command1_3"_s);
  QCOMPARE(desk.Program.Tree.List(Folder), (QStringList{u"20260007.txt"_s, u"20260009.txt"_s}));
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  QCOMPARE(ScreenDriver(u"frmStartup"_s).Text(u"lblIncomplete"_s), u"2"_s);
}

void ScreenPartialPurges::purgeSelectedAsksTwiceAndWaitsForTheNextClick() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 2);
  desk.Program.Answers.With(QMessageBox::No, [] { QCOMPARE(Enabled(), (QList<int>{0, 1, 2})); });
  partials.Click(u"Command1_3"_s);
  QCOMPARE(desk.Program.Answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2}));
  partials.SelectRow(u"fgIncomplete"_s, 2);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2, 3}));
  desk.Program.Answers.Yes();
  desk.Program.Answers.No(u"Are You Sure?"_s, u"Purge Confirmation"_s);
  partials.Click(u"Command1_3"_s);
  QCOMPARE(Enabled(), (QList<int>{0, 1, 2}));
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartialPurges::purgingTheLastOneLeadsToAMenuWithoutThem() {
  PartialsDesk desk;
  desk.Program.Tree.Remove(Folder + u"/20260007.txt"_s);
  desk.Program.Tree.Remove(Folder + u"/20260008.txt"_s);
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Yes();
  partials.Click(u"Command1_3"_s);
  const ScreenDriver menu(u"frmStartup"_s);
  QVERIFY(!menu.IsVisible(u"optMainMenuSub_1"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartialPurges::aPurgeOfARowThatCouldLeaveTheFolderIsRefused() {
  PartialsDesk desk;
  desk.Program.Tree.Write(Folder + u"/20260007.txt"_s, "../../Services\r\n1003\r\nAcme Tools\r\n3/3/2026\r\n");
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Yes();
  desk.Program.Answers.Ok();
  partials.Click(u"Command1_3"_s);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"../../Services"_s));
  partials.SelectRow(u"fgIncomplete"_s, 1);
  desk.Program.Answers.Ok();
  partials.Click(u"Command1_1"_s);
  QCOMPARE(desk.Program.Tree.Everything(), before);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartialPurges::aPurgeThatFailsIsTold() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  desk.Program.Files.FailAt(FailingDevice::Call::Remove, 1, EACCES);
  desk.Program.Answers.Yes();
  desk.Program.Answers.Yes();
  desk.Program.Answers.Ok();
  ScreenDriver(u"frmIncomplete"_s).Click(u"Command1_2"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(u"20260007.txt"_s), qPrintable(text));
  QVERIFY(desk.Program.Tree.Exists(Folder + u"/20260009.txt"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartialPurges::theLetterOfBothPurgesRunsNeither() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  partials.PressAccessKey('P');
  const QString first = partials.FocusName();
  partials.PressAccessKey('P');
  const QString second = partials.FocusName();
  QCOMPARE(QSet<QString>({first, second}), QSet<QString>({u"Command1_2"_s, u"Command1_3"_s}));
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

QTEST_MAIN(ScreenPartialPurges)
#include "tst_screenPartialPurges.moc"
