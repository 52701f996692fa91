// The narrative on the screen: its frame, the default text, and the bytes of both files.
#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Box = u"txtNarrative"_s;
const QString Frame = u"fraNarrative"_s;
const QString Default = u"/Narrative.txt"_s;
const QString Folder = u"/KarvexInvoicer/Narratives"_s;
const QString File = u"/KarvexInvoicer/Narratives/20260001.txt"_s;
const QString Save = u"cmdNarrative_0"_s;
const QString Clear = u"cmdNarrative_1"_s;
const QString Reload = u"cmdNarrative_2"_s;
const QString Keep = u"cmdNarrative_3"_s;
const QString Cancel = u"cmdNarrative_4"_s;

QString Typed(const InvoiceBench& bench) {
  return bench.On().Control<QPlainTextEdit>(Box)->toPlainText();
}

void Open(InvoiceBench& bench) {
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuNarrative"_s);
}

void Put(InvoiceBench& bench, const QString& text) {
  bench.On().Control<QPlainTextEdit>(Box)->setPlainText(text);
}

}  // namespace

class ScreenNarrative : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFrameOpensWithItsHelpAndTheFocusInTheBox();
  void savingWritesTheFileOfTheNumberAndHidesTheFrame();
  void savingReplacesALongerNarrative();
  void anEmptyNarrativeIsLeftOutAndTheOldFileStays();
  void aNarrativeOfOneBlankIsSaved();
  void savingWithoutANumberIsRefused();
  void aNumberThatWouldLeaveTheFolderIsRefused();
  void clearEmptiesTheBoxAndKeepsTheFrame();
  void openingLoadsTheDefaultAndReplacesTheText();
  void theDefaultComesBackFromItsBackup();
  void reloadPutsTheDefaultBack();
  void savingTheDefaultDropsItsBackupCopy();
  void theDefaultGrowsByALineEachTimeItIsLoadedAndStored();
  void anEmptyDefaultIsOneEmptyLine();
  void cancelEmptiesTheBoxAndHidesTheFrame();
  void commasAndQuotesStandAsTyped();
  void theNarrativePrintsAboveTheItems();
  void theNextInvoiceBeginsWithoutANarrative();
  void aFailingDiskKeepsTheTextAndTheOldFiles();
};

void ScreenNarrative::theFrameOpensWithItsHelpAndTheFocusInTheBox() {
  InvoiceBench bench;
  Open(bench);
  QVERIFY(bench.On().IsVisible(Frame));
  QVERIFY(bench.On().IsVisible(u"fraInstructions_10"_s));
  QVERIFY(!bench.On().IsVisible(u"fraSetup"_s));
  QCOMPARE(bench.On().FocusName(), Box);
  QCOMPARE(Typed(bench), QString());
}

void ScreenNarrative::savingWritesTheFileOfTheNumberAndHidesTheFrame() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u"Replaced the pump"_s);
  bench.On().PressKey(Qt::Key_Return);
  bench.On().Type(u"and the seal"_s);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Bytes(File), "Replaced the pump\r\nand the seal\r\n");
  QVERIFY(!bench.On().IsVisible(Frame));
  QCOMPARE(bench.Invoice.txtNarrative, u"Replaced the pump\nand the seal"_s);
}

void ScreenNarrative::savingReplacesALongerNarrative() {
  InvoiceBench bench;
  bench.Tree.Write(File, "a much longer narrative\r\nof two lines\r\n");
  Open(bench);
  bench.On().Type(u"short"_s);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Bytes(File), "short\r\n");
}

void ScreenNarrative::anEmptyNarrativeIsLeftOutAndTheOldFileStays() {
  InvoiceBench bench;
  bench.Tree.Write(File, "old\r\n");
  Open(bench);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Bytes(File), "old\r\n");
  QVERIFY(!bench.On().IsVisible(Frame));
}

void ScreenNarrative::aNarrativeOfOneBlankIsSaved() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u" "_s);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Bytes(File), " \r\n");
}

void ScreenNarrative::savingWithoutANumberIsRefused() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u"text"_s);
  bench.Invoice.txtInvoiceNo.clear();
  bench.Answers.Ok(u"You have not entered an Invoice Number"_s, u"Karvex Invoicer"_s);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.List(Folder), QStringList{});
  QCOMPARE(bench.Invoice.txtNarrative, u"text"_s);
  QVERIFY(bench.On().IsVisible(u"fraInstructions_1"_s));
}

void ScreenNarrative::aNumberThatWouldLeaveTheFolderIsRefused() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u"text"_s);
  bench.Invoice.txtInvoiceNo = u"../../x"_s;
  const auto before = bench.Tree.Everything();
  bench.Answers.Ok(u"The Invoice Number names the file of the Invoice, and \"../../x\" can't name a file."_s);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Everything(), before);
}

void ScreenNarrative::clearEmptiesTheBoxAndKeepsTheFrame() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u"text"_s);
  bench.On().Click(Clear);
  QCOMPARE(Typed(bench), QString());
  QVERIFY(bench.On().IsVisible(Frame));
  QCOMPARE(bench.On().FocusName(), Box);
}

void ScreenNarrative::openingLoadsTheDefaultAndReplacesTheText() {
  InvoiceBench bench;
  bench.Tree.Write(Default, "Thank you\r\nfor your trust\r\n");
  Open(bench);
  QCOMPARE(Typed(bench), u"Thank you\nfor your trust\n"_s);
  Put(bench, u"typed"_s);
  bench.On().Trigger(u"mnuCreate"_s);
  bench.On().Trigger(u"mnuNarrative"_s);
  QCOMPARE(Typed(bench), u"Thank you\nfor your trust\n"_s);
}

void ScreenNarrative::theDefaultComesBackFromItsBackup() {
  InvoiceBench bench;
  bench.Tree.Write(u"/Backup"_s + Default, "kept\r\n");
  Open(bench);
  QCOMPARE(Typed(bench), u"kept\n"_s);
  QCOMPARE(bench.Tree.Bytes(Default), "kept\r\n");
}

void ScreenNarrative::reloadPutsTheDefaultBack() {
  InvoiceBench bench;
  bench.Tree.Write(Default, "default\r\n");
  Open(bench);
  Put(bench, u"typed"_s);
  bench.On().Click(Reload);
  QCOMPARE(Typed(bench), u"default\n"_s);
  bench.Tree.Remove(Default);
  bench.On().Click(Reload);
  QCOMPARE(Typed(bench), QString());
}

void ScreenNarrative::savingTheDefaultDropsItsBackupCopy() {
  InvoiceBench bench;
  bench.Tree.Write(Default, "old\r\n");
  bench.Tree.Write(u"/Backup"_s + Default, "older\r\n");
  Open(bench);
  Put(bench, u"new\ntext"_s);
  bench.On().Click(Keep);
  QCOMPARE(bench.Tree.Bytes(Default), "new\r\ntext\r\n");
  QVERIFY(!bench.Tree.Exists(u"/Backup"_s + Default));
  QVERIFY(bench.On().IsVisible(Frame));
  QCOMPARE(bench.Tree.List(Folder), QStringList{});
}

void ScreenNarrative::theDefaultGrowsByALineEachTimeItIsLoadedAndStored() {
  InvoiceBench bench;
  bench.Tree.Write(Default, "text\r\n");
  Open(bench);
  bench.On().Click(Keep);
  QCOMPARE(bench.Tree.Bytes(Default), "text\r\n\r\n");
  bench.On().Click(Reload);
  bench.On().Click(Keep);
  QCOMPARE(bench.Tree.Bytes(Default), "text\r\n\r\n\r\n");
}

void ScreenNarrative::anEmptyDefaultIsOneEmptyLine() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Click(Keep);
  QCOMPARE(bench.Tree.Bytes(Default), "\r\n");
}

void ScreenNarrative::cancelEmptiesTheBoxAndHidesTheFrame() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u"text"_s);
  bench.On().Click(Cancel);
  QCOMPARE(bench.Invoice.txtNarrative, QString());
  QVERIFY(!bench.On().IsVisible(Frame));
  QCOMPARE(bench.Tree.List(Folder), QStringList{});
}

void ScreenNarrative::commasAndQuotesStandAsTyped() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u"a, \"b\", c"_s);
  bench.On().Click(Keep);
  bench.On().Click(Reload);
  QCOMPARE(Typed(bench), u"a, \"b\", c\n"_s);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Bytes(File), "a, \"b\", c\r\n\r\n");
}

void ScreenNarrative::theNarrativePrintsAboveTheItems() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u"Replaced the pump"_s);
  bench.On().Click(Save);
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.Finalize();
  bench.Answers.Yes();
  bench.On().Click(u"cmdInvoiceContinue"_s);
  const QStringList words = bench.Paper.Words(1);
  QVERIFY(words.contains(u"Details"_s));
  QVERIFY(words.indexOf(u"Replaced the pump"_s) > 0);
  QVERIFY(words.indexOf(u"Replaced the pump"_s) < words.indexOf(u"Crate"_s));
}

void ScreenNarrative::theNextInvoiceBeginsWithoutANarrative() {
  InvoiceBench bench;
  Open(bench);
  bench.On().Type(u"text"_s);
  bench.On().Trigger(u"mnuCreate"_s);
  QCOMPARE(bench.Invoice.txtNarrative, u"text"_s);
  bench.On().Click(u"cmdRedo"_s);
  QCOMPARE(Typed(bench), QString());
}

void ScreenNarrative::aFailingDiskKeepsTheTextAndTheOldFiles() {
  for (const QString& button : {Save, Keep}) {
    for (const auto call : {FailingDevice::Call::Write, FailingDevice::Call::Flush, FailingDevice::Call::Rename}) {
      InvoiceBench bench;
      bench.Tree.Write(Default, "default\r\n");
      bench.Tree.Write(u"/Backup"_s + Default, "copy\r\n");
      bench.Tree.Write(File, "old\r\n");
      Open(bench);
      Put(bench, u"typed"_s);
      const auto before = bench.Tree.Everything();
      bench.Device.FailAlways(call, ENOSPC);
      bench.On().Click(button);
      bench.Device.Reset();
      QCOMPARE(bench.Around.Errors, QList<int>{61});
      QCOMPARE(bench.Tree.Everything(), before);
      QCOMPARE(Typed(bench), u"typed"_s);
      QVERIFY(bench.On().IsVisible(Frame));
    }
  }
}

QTEST_MAIN(ScreenNarrative)
#include "tst_screenNarrative.moc"
