// The road through the invoice screen: Continue, Ready to Print, and the ways out.

#include <QtWidgets>

#include "invoice/Recalled.h"

using namespace Qt::StringLiterals;

class ScreenFlow : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void continueGoesToTheLines();
  void continueGivesTheFocusToTheLinesAndTheNextKeyChangesNothing();
  void enterInABoxOfTheSetupViewContinues_data();
  void enterInABoxOfTheSetupViewContinues();
  void enterOnAButtonOfTheSetupViewRunsThatButtonAlone();
  void continueKeepsTheLineThatWasSelected();
  void continueWithoutANumberShowsBothMessagesAndStaysAtTheNumber();
  void continueFillsAnEmptyReferenceAndKeepsATypedOne();
  void readyToPrintIsEnabledByTheFirstPostNotByContinue();
  void continueOfAnInvoiceWithLinesEnablesReadyToPrint();
  void readyToPrintAsksForThePaperOfSetup();
  void readyToPrintTotalsTheLines();
  void redoEmptiesTheInvoiceAndLeavesThePrintReadyView();
  void menuReadsTheSettingsAgainAndLeaves();
  void theMenuButtonTellsThatItDropsTheLines();
  void exitDropsTheInvoice();
  void menuAlwaysRunsThoughTheBoxThatWasLeftIsRefused();
  void theUsersCloseBoxEndsTheProgram();
  void everyControlThatARuleGivesTheFocusToIsThere_data();
  void everyControlThatARuleGivesTheFocusToIsThere();
  void thePrintEntryOfTheMenuTellsThePaperToo();
  void readyToPrintStaysEnabledForTheNextInvoiceOfTheSession();
  void redoLeavesAnEntryFrameOpen();
};

void ScreenFlow::continueGoesToTheLines() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Click(u"cmdInvoice_0"_s);
  QVERIFY(!bench.On().IsVisible(u"fraSetup"_s));
  QVERIFY(bench.On().IsVisible(u"fraInstructions_1"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdTemplate_2"_s));
}

void ScreenFlow::continueGivesTheFocusToTheLinesAndTheNextKeyChangesNothing() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.PostManual(u"Box"_s, u"2"_s, u"10"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 2);
  bench.On().Click(u"cmdInvoice_1"_s);
  bench.Reopen();
  bench.On().Click(u"cmdInvoice_0"_s);
  QCOMPARE(bench.On().FocusName(), u"fgInvoice"_s);
  bench.On().Type(u"5"_s);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"20260001"_s);
  for (int row = 1; row <= 3; ++row) QCOMPARE(bench.Row(row), QStringList(6, QString()));
}

void ScreenFlow::enterInABoxOfTheSetupViewContinues_data() {
  QTest::addColumn<QString>("box");
  for (const char* box : {"txtInvoiceNo", "DTPicker1", "txtShipto_0", "txtShipto_6", "txtReference", "ckShipto"}) {
    QTest::newRow(box) << QString::fromLatin1(box);
  }
}

void ScreenFlow::enterInABoxOfTheSetupViewContinues() {
  QFETCH(const QString, box);
  InvoiceBench bench;
  bench.Open();
  bench.On().Control(box)->setFocus();
  bench.On().PressKey(Qt::Key_Return);
  QVERIFY(!bench.On().IsVisible(u"fraSetup"_s));
  QCOMPARE(bench.Text(u"txtReference"_s), u"Prepared 3/7/2026"_s);
  QCOMPARE(bench.On().FocusName(), u"fgInvoice"_s);
  // Beside the lines the key has no button to run.
  bench.On().Control(u"txtInvoiceNo"_s)->setFocus();
  bench.On().PressKey(Qt::Key_Return);
  QVERIFY(!bench.On().IsVisible(u"fraPrintReady"_s));
}

void ScreenFlow::enterOnAButtonOfTheSetupViewRunsThatButtonAlone() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Control(u"cmdShipToAddress_0"_s)->setFocus();
  bench.On().PressKey(Qt::Key_Return);
  QVERIFY(bench.On().IsVisible(u"fraSetup"_s));
  QCOMPARE(bench.Text(u"txtShipto_0"_s), u"Acme Tools"_s);
}

void ScreenFlow::continueKeepsTheLineThatWasSelected() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 1);
  bench.On().PressKey(Qt::Key_F2);
  bench.On().PressKey(Qt::Key_F3);
  QCOMPARE(bench.On().FocusName(), u"fgInvoice"_s);
  QCOMPARE(bench.Invoice.fgInvoice.Row(), 1);
}

void ScreenFlow::continueWithoutANumberShowsBothMessagesAndStaysAtTheNumber() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, QString());
  bench.Answers.Ok(u"Enter an Invoice Number"_s, u"Karvex Invoicer"_s);
  bench.Answers.Ok(u"You have not entered an Invoice Number"_s, u"Karvex Invoicer"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  QVERIFY(bench.Answers.AllUsed());
  QVERIFY(!bench.On().IsVisible(u"fraSetup"_s));
  QVERIFY(bench.On().IsVisible(u"fraInstructions_1"_s));
  QCOMPARE(bench.On().FocusName(), u"txtInvoiceNo"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdTemplate_2"_s));
  QCOMPARE(bench.Text(u"txtReference"_s), QString());
}

void ScreenFlow::continueFillsAnEmptyReferenceAndKeepsATypedOne() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Click(u"cmdInvoice_0"_s);
  QCOMPARE(bench.Text(u"txtReference"_s), u"Prepared 3/7/2026"_s);
  bench.On().Trigger(u"mnuSetup"_s);
  bench.On().Fill(u"txtReference"_s, u"PO 5"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  QCOMPARE(bench.Text(u"txtReference"_s), u"PO 5"_s);
}

void ScreenFlow::readyToPrintIsEnabledByTheFirstPostNotByContinue() {
  InvoiceBench bench;
  bench.OpenAtLines();
  QVERIFY(bench.On().IsVisible(u"cmdPrint"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdPrint"_s));
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdPrint"_s));
}

void ScreenFlow::continueOfAnInvoiceWithLinesEnablesReadyToPrint() {
  InvoiceBench bench;
  bench.Open();
  Recall(bench);
  bench.Reopen();
  QVERIFY(!bench.On().IsEnabled(u"cmdPrint"_s));
  bench.On().Click(u"cmdInvoice_0"_s);
  QVERIFY(bench.On().IsVisible(u"cmdPrint"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdPrint"_s));
}

void ScreenFlow::readyToPrintAsksForThePaperOfSetup() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  QCOMPARE(bench.Text(u"fraPrintReady"_s), u"Insert Standard Paper"_s);
  QVERIFY(!bench.On().IsVisible(u"Label2_6"_s));
  bench.Live.Print.optReturn = true;
  bench.On().Click(u"cmdPrint"_s);
  QCOMPARE(bench.Text(u"fraPrintReady"_s), u"Insert Perforated Response Paper"_s);
  QVERIFY(bench.On().IsVisible(u"Label2_6"_s));
}

void ScreenFlow::readyToPrintTotalsTheLines() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$20.00"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$0.00"_s);
}

void ScreenFlow::redoEmptiesTheInvoiceAndLeavesThePrintReadyView() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.Finalize();
  bench.On().Click(u"cmdRedo"_s);
  QVERIFY(!bench.On().IsVisible(u"fraPrintReady"_s));
  QCOMPARE(bench.Row(1), QStringList(6, QString()));
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"txtReference"_s), QString());
}

void ScreenFlow::menuReadsTheSettingsAgainAndLeaves() {
  InvoiceBench bench;
  bench.Tree.Write(u"/KarvexInvoicerSettings.txt"_s, "1,0,0,0,0,\"1.5\",\"20\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
  bench.OpenAtLines();
  QCOMPARE(bench.Text(u"cboDiscount"_s), u"1.5"_s);
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_2"_s);
  QCOMPARE(bench.Live.Invoicer.cboDiscount, u"1.0"_s);
  bench.On().Click(u"cmdInvoice_1"_s);
  QCOMPARE(bench.Live.Invoicer.cboDiscount, u"1.5"_s);
  QCOMPARE(bench.Live.Invoicer.cboDays, u"20"_s);
  QCOMPARE(bench.Around.Asked, (QStringList{u"hide frmInvoice"_s, u"show frmStartup"_s}));
  // The lines stay until the next invoice begins.
  QCOMPARE(bench.Invoice.LineCount, 1);
}

void ScreenFlow::theMenuButtonTellsThatItDropsTheLines() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  QVERIFY(bench.On().Control(u"cmdInvoice_1"_s)->toolTip().contains(u"lines are dropped"_s));
  bench.On().Click(u"cmdInvoice_1"_s);
  bench.Reopen();
  QCOMPARE(bench.Invoice.LineCount, 0);
}

void ScreenFlow::exitDropsTheInvoice() {
  InvoiceBench bench;
  bench.Tree.Write(u"/KarvexInvoicerSettings.txt"_s, "1,0,0,0,0,\"1.5\",\"20\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
  bench.Open();
  Recall(bench);
  bench.Reopen();
  bench.Live.Invoicer.cboDiscount = u"2.0"_s;
  bench.On().Click(u"cmdExit"_s);
  QCOMPARE(bench.Live.Invoicer.cboDiscount, u"1.5"_s);
  QCOMPARE(bench.Around.Asked, (QStringList{u"hide frmInvoice"_s, u"show frmStartup"_s}));
  QVERIFY(!bench.Invoice.RecalledInvoice);
  QCOMPARE(bench.Invoice.LineCount, 0);
  QCOMPARE(bench.Invoice.txtInvoiceNo, QString());
  QCOMPARE(bench.Invoice.fgInvoice.Text(1, 1), QString());
  // The number is offered again.
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260001\r\n");
}

void ScreenFlow::menuAlwaysRunsThoughTheBoxThatWasLeftIsRefused() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.On().Fill(u"txtShip"_s, u"abc"_s);
  bench.On().Click(u"cmdInvoice_1"_s);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.Around.Asked, (QStringList{u"hide frmInvoice"_s, u"show frmStartup"_s}));
}

void ScreenFlow::theUsersCloseBoxEndsTheProgram() {
  InvoiceBench bench;
  bench.Open();
  bench.On().CloseByUser();
  QCOMPARE(bench.Around.Asked, QStringList{u"quit"_s});
}

void ScreenFlow::everyControlThatARuleGivesTheFocusToIsThere_data() {
  QTest::addColumn<QString>("name");
  for (const char* name :
       {"txtInvoiceNo",     "txtShipto_0",     "txtShipto_6",    "cboDescription_0", "cboDescription_1",
        "cboDescription_2", "cboPrice_0",      "cboPrice_1",     "cboPrice_2",       "txtUnits",
        "txtCUnits",        "txtManual_0",     "txtManual_1",    "txtHours_0",       "txtHours_1",
        "txtHours_2",       "cmdLabor_1",      "txtMemo",        "txtNarrative",     "txtShip",
        "txtMisc",          "txtFlatDiscount", "cmdAddDiscount", "cboPrepaid",       "cmdInvoice_9"}) {
    QTest::newRow(name) << QString::fromLatin1(name);
  }
}

void ScreenFlow::everyControlThatARuleGivesTheFocusToIsThere() {
  QFETCH(const QString, name);
  InvoiceBench bench;
  bench.Open();
  bench.Invoice.Controls.Focus = name;
  bench.Invoice.Show();
  QVERIFY(bench.Around.Errors.isEmpty());
  QVERIFY(bench.On().Control<QWidget>(name)->focusPolicy() != Qt::NoFocus);
}

void ScreenFlow::thePrintEntryOfTheMenuTellsThePaperToo() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Trigger(u"mnuPrint"_s);
  QCOMPARE(bench.Text(u"fraPrintReady"_s), u"Insert Standard Paper"_s);
  QVERIFY(!bench.On().IsVisible(u"Label2_6"_s));
  bench.Live.Print.optReturn = true;
  bench.On().Trigger(u"mnuPrint"_s);
  QCOMPARE(bench.Text(u"fraPrintReady"_s), u"Insert Perforated Response Paper"_s);
  QVERIFY(bench.On().IsVisible(u"Label2_6"_s));
}

void ScreenFlow::readyToPrintStaysEnabledForTheNextInvoiceOfTheSession() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().Click(u"cmdInvoice_1"_s);
  bench.Reopen();
  bench.On().Click(u"cmdInvoice_0"_s);
  QCOMPARE(bench.Row(1), QStringList(6, QString()));
  QVERIFY(bench.On().IsVisible(u"cmdPrint"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdPrint"_s));
}

void ScreenFlow::redoLeavesAnEntryFrameOpen() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().Click(u"cmdRedo"_s);
  QCOMPARE(bench.Row(1), QStringList(6, QString()));
  QVERIFY(bench.On().IsVisible(u"fraItems"_s));
}

QTEST_MAIN(ScreenFlow)
#include "tst_screenFlow.moc"
