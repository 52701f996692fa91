// Print Invoice on the screen: the questions, the page, and every byte that a committed invoice leaves on the disk.

#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Confirm = u"Was the Invoice Printed Correctly"_s;
const QString ConfirmTitle = u"Printing Confirmation"_s;
const QString Retry = u"Would you like to Retry Printing this Invoice"_s;
const QString RetryTitle = u"Print Retry"_s;
const QByteArray Today = QByteArray::fromHex("000000000081e640");  // 46088 days since 30 December 1899
const QString Image = u"/CompletedInvoices/20260001.txt"_s;
const QString Ledger = u"/KVActiveAccounts/1001.txt"_s;
const QStringList Left{u"hide frmInvoice"_s, u"show frmStartup"_s};

QByteArray LedgerRecord(const QByteArray& text, const QByteArray& amount) {
  return Field("Acme Tools", 45) + Field("1001", 25) + Field("3/7/2026", 15) + Field(text, 60) + Field(amount, 10);
}

/// Three hammers and a service, finalized with $12.50 for shipping; 6 per cent on the hammers.
void OpenFinalized(InvoiceBench& bench) {
  bench.Tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"County Tax\",\"6.0\",\"1.0\",1,1\r\n");
  bench.Open();
  bench.On().Fill(u"txtReference"_s, u"PO 5"_s);
  bench.On().Fill(u"txtShipto_6"_s, u"Ms Jones"_s);
  bench.On().Click(u"cmdShipToAddress_0"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"3"_s);
  bench.On().Click(u"cmdPost_1"_s);
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.On().Fill(u"txtShip"_s, u"12.5"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
}

void Commit(InvoiceBench& bench) {
  bench.Answers.Yes(Confirm, ConfirmTitle);
  bench.On().Click(u"cmdInvoiceContinue"_s);
}

}  // namespace

class ScreenCommit : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCommittedInvoiceStandsInEveryStore();
  void thePageBearsTheInvoice();
  void theScreenIsLeftClearedAndTheNumberUsedUp();
  void theNextInvoiceStartsWithTheNextNumberAndNoOptions();
  void aTypedNumberSetsTheCounter();
  void aPrepaidInvoicePostsItsPaymentToo();
  void aSecondInvoiceAppendsAndReplacesTheImageOfItsNumber();
  void aFractionOfUnitsIsRoundedToEven();
  void unitsBelowZeroAreZeroWithAMessage();
  void noLinesGoesBackToTheLinesWithAMessage();
  void noAndNoWritesNothingAndLeaves();
  void retryGoesBackToThePrinterDialog();
  void aCancelledPrinterDialogWritesNothingAndLeavesWithoutAMessage();
  void aPrintErrorWritesNothingAndLeavesWithoutAMessage();
  void aWriteThatFailsEndsTheRunWithoutAMessage();
  void aRecalledInvoiceDeletesItsPartialImageAndKeepsTheCounter();
  void withoutACustomerOnTheScreenTheEmptyAccountIsPosted();
  void printIsDisabledWhileItRuns();
  void theShipToBlockPrintsOnlyWhenTicked();
  void aPickedShipDateStandsInImageAndOnPage();
  void theMemoPrintsAsLongAsItsFileStandsWhateverItsTick();
  void anInternationalCustomerPrintsWithoutAState();
  void aChargeTypedAfterFinalizeLetsNothingPrint();
  void soldItemsBearTheHeldNumberAndTheRestTheTypedOne();
  void aLongNumberIsCutInJournalAndLedger();
};

void ScreenCommit::aCommittedInvoiceStandsInEveryStore() {
  InvoiceBench bench;
  OpenFinalized(bench);
  Commit(bench);
  QCOMPARE(bench.Tree.Bytes(u"/SoldItems.txt"_s), Field("Hammer", 60) + Today + Field("20260001", 20) + Bytes16(3));
  QCOMPARE(bench.Tree.Bytes(u"/InvoiceSalesJournal.txt"_s), Field("Acme Tools", 45) + Field("1001", 20) +
                                                                Field("20260001", 20) + Today + Bytes64(1160000) +
                                                                Bytes64(25200) + Bytes64(0) + Bytes64(1310200));
  QCOMPARE(bench.Tree.Bytes(Ledger), LedgerRecord("Previous Balance", "$0.00") + LedgerRecord("20260001", "131.02"));
  QCOMPARE(bench.Tree.Bytes(u"/Backup"_s + Ledger), bench.Tree.Bytes(Ledger));
  QCOMPARE(bench.Tree.Bytes(Image),
           "20260001\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n$131.02\r\n"
           "\"Acme Tools\"\r\n\"1 Main Street\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
           "\"Acme Tools\"\r\n\"1 Main Street\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
           "None\r\n3/7/2026\r\n"
           "20260001\r\n1001\r\nPO 5\r\nMs Jones\r\n2\r\n"
           "3\r\nHammer\r\n\r\n$12.00\r\n$36.00\r\nTrue\r\n"
           "\r\nRepair\r\n3/7/2026\r\n$80.00\r\n$80.00\r\nFalse\r\n"
           "\"$116.00\",\"$2.16\",\"$0.36\",\"$131.02\",\"$12.50\",\"$0.00\",\"$0.00\"\r\n");
  // Ten hammers less three; the records behind the first stay.
  QCOMPARE(bench.Tree.Bytes(u"/KVInventoriedItems.txt"_s).mid(86, 2), Bytes16(7));
  QCOMPARE(bench.Tree.Bytes(u"/KVInventoriedItems.txt"_s).mid(104 + 86, 2), Bytes16(3));
  QCOMPARE(bench.Prices.fgItems.Text(2, 4), u"7"_s);
  QCOMPARE(bench.Tree.Bytes(u"/TaxRecords.txt"_s),
           Field("Sales Tax", 20) + Field("3/7/2026", 15) + Field("20260001", 30) + Field("2.16", 10) +
               Field("County Tax", 20) + Field("3/7/2026", 15) + Field("20260001", 30) + Field("0.36", 10));
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260002\r\n");
}

void ScreenCommit::thePageBearsTheInvoice() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.Paper.OnDialog = [&] { QCOMPARE(bench.Paper.Title, u"Invoice 20260001"_s); };
  Commit(bench);
  QCOMPARE(bench.Paper.DialogsShown, 1);
  QCOMPARE(bench.Paper.Jobs.size(), 1U);
  const QStringList words = bench.Paper.Words(1);
  for (const auto& word : {u"INVOICE"_s, u"Date 3/7/2026"_s, u"INVOICE NO: 20260001"_s, u"Acct: 1001"_s, u"PO 5"_s,
                           u"Acme Tools"_s, u"Hammer"_s, u"$36.00"_s, u"Repair"_s, u"$116.00"_s, u"$131.02"_s}) {
    QVERIFY2(words.contains(word), qPrintable(word + u" in "_s + words.join(u'|')));
  }
}

void ScreenCommit::theScreenIsLeftClearedAndTheNumberUsedUp() {
  InvoiceBench bench;
  OpenFinalized(bench);
  Commit(bench);
  QCOMPARE(bench.Around.Asked, Left);
  QCOMPARE(bench.Around.Errors, QList<int>{});
  QCOMPARE(bench.Invoice.LineCount, 0);
  QCOMPARE(bench.Invoice.txtInvoiceNo, QString());
  QCOMPARE(bench.Invoice.GrandTotal, Currency());
  QCOMPARE(bench.Answers.Boxes().size(), 1);
  QCOMPARE(bench.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
}

void ScreenCommit::theNextInvoiceStartsWithTheNextNumberAndNoOptions() {
  InvoiceBench bench;
  OpenFinalized(bench);
  for (const auto& option : {u"ckExempt"_s, u"ckPackingList"_s, u"ckPrepaid"_s, u"ckApplyVolumeDiscount"_s}) {
    bench.On().Click(option);
  }
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Yes(Confirm, ConfirmTitle);
  bench.Answers.Yes(u"Was the Packing Slip printed Correctly?"_s);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  bench.Reopen();
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"20260002"_s);
  for (const auto& option :
       {u"ckExempt"_s, u"ckPackingList"_s, u"ckPrepaid"_s, u"ckApplyVolumeDiscount"_s, u"ckShipto"_s, u"ckAddMemo"_s}) {
    QVERIFY2(!bench.Ticked(option), qPrintable(option));
  }
  QVERIFY(bench.Ticked(u"ck2ndTax"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenCommit::aTypedNumberSetsTheCounter() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.On().Trigger(u"mnuSetup"_s);
  bench.On().Fill(u"txtInvoiceNo"_s, u"500"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  Commit(bench);
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "501\r\n");
  QVERIFY(bench.Tree.Exists(u"/CompletedInvoices/500.txt"_s));
}

void ScreenCommit::aPrepaidInvoicePostsItsPaymentToo() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.On().Click(u"ckPrepaid"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  Commit(bench);
  QCOMPARE(bench.Tree.Bytes(Ledger), LedgerRecord("Previous Balance", "$0.00") + LedgerRecord("20260001", "131.02") +
                                         LedgerRecord("Payment Received", "$131.02"));
  QCOMPARE(bench.Tree.Bytes(u"/KAPaymentRecords.txt"_s), LedgerRecord("", "$131.02"));
}

void ScreenCommit::aSecondInvoiceAppendsAndReplacesTheImageOfItsNumber() {
  InvoiceBench bench;
  OpenFinalized(bench);
  Commit(bench);
  bench.Reopen();
  bench.On().Fill(u"txtInvoiceNo"_s, u"20260001"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.Finalize();
  Commit(bench);
  QCOMPARE(bench.Tree.Size(u"/InvoiceSalesJournal.txt"_s), 250);
  QCOMPARE(bench.Tree.Size(Ledger), 3 * 155);
  QVERIFY(bench.Tree.Bytes(Image).contains("Crate"));
  QVERIFY(!bench.Tree.Bytes(Image).contains("Hammer"));
  // The manual line is on no list of sold items, and carried no tax.
  QCOMPARE(bench.Tree.Size(u"/SoldItems.txt"_s), 90);
  QCOMPARE(bench.Tree.Size(u"/TaxRecords.txt"_s), 150);
}

void ScreenCommit::aFractionOfUnitsIsRoundedToEven() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"2.5"_s);
  bench.On().Click(u"cmdPost_1"_s);
  bench.Finalize();
  Commit(bench);
  QCOMPARE(bench.Tree.Bytes(u"/SoldItems.txt"_s).right(2), Bytes16(2));
  QCOMPARE(bench.Tree.Bytes(u"/KVInventoriedItems.txt"_s).mid(86, 2), Bytes16(8));
}

void ScreenCommit::unitsBelowZeroAreZeroWithAMessage() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Nails"_s);
  bench.On().Type(u"4"_s);
  bench.On().Click(u"cmdPost_1"_s);
  bench.Finalize();
  bench.Answers.Yes(Confirm, ConfirmTitle);
  bench.Answers.Ok(u"Item Nails may be low in Inventory"_s, u"Karvex Invoicer"_s);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Tree.Bytes(u"/KVInventoriedItems.txt"_s).mid(104 + 86, 2), Bytes16(0));
}

void ScreenCommit::noLinesGoesBackToTheLinesWithAMessage() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  const auto before = bench.Tree.Everything();
  bench.Answers.Ok(u"The Invoice contains no Items"_s, u"No Items Entered"_s);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QVERIFY(bench.On().IsVisible(u"fraInstructions_1"_s));
  QVERIFY(!bench.On().IsVisible(u"fraPrintReady"_s));
  QCOMPARE(bench.Paper.DialogsShown, 0);
  QCOMPARE(bench.Tree.Everything(), before);
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenCommit::noAndNoWritesNothingAndLeaves() {
  InvoiceBench bench;
  OpenFinalized(bench);
  const auto before = bench.Tree.Everything();
  bench.Answers.No(Confirm, ConfirmTitle);
  bench.Answers.No(Retry, RetryTitle);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Around.Asked, Left);
  // The invoice is gone, and its number isn't used up.
  QCOMPARE(bench.Invoice.LineCount, 0);
  bench.Reopen();
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"20260001"_s);
}

void ScreenCommit::retryGoesBackToThePrinterDialog() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.Answers.No(Confirm, ConfirmTitle);
  bench.Answers.Yes(Retry, RetryTitle);
  bench.Answers.Yes(Confirm, ConfirmTitle);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Paper.DialogsShown, 2);
  QCOMPARE(bench.Paper.Jobs.size(), 2U);
  QVERIFY(bench.Tree.Exists(Image));
}

void ScreenCommit::aCancelledPrinterDialogWritesNothingAndLeavesWithoutAMessage() {
  InvoiceBench bench;
  OpenFinalized(bench);
  const auto before = bench.Tree.Everything();
  bench.Paper.DialogError = 32755;
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Around.Asked, Left);
  QVERIFY(bench.Paper.Jobs.empty());
}

void ScreenCommit::aPrintErrorWritesNothingAndLeavesWithoutAMessage() {
  InvoiceBench bench;
  OpenFinalized(bench);
  const auto before = bench.Tree.Everything();
  bench.Paper.SendError = 482;
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Around.Asked, Left);
  QCOMPARE(bench.Around.Errors, QList<int>{});
}

void ScreenCommit::aWriteThatFailsEndsTheRunWithoutAMessage() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.Tree.MakeFolder(Image);
  Commit(bench);
  // What came before the image stands, what comes behind it was skipped.
  QVERIFY(bench.Tree.Exists(u"/InvoiceSalesJournal.txt"_s));
  QVERIFY(bench.Tree.Exists(Ledger));
  QVERIFY(!bench.Tree.Exists(u"/TaxRecords.txt"_s));
  QCOMPARE(bench.Tree.Bytes(u"/KVInventoriedItems.txt"_s).mid(86, 2), Bytes16(10));
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260001\r\n");
  QCOMPARE(bench.Around.Errors, QList<int>{});
  QCOMPARE(bench.Around.Asked, Left);
}

void ScreenCommit::aRecalledInvoiceDeletesItsPartialImageAndKeepsTheCounter() {
  InvoiceBench bench;
  bench.Tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
  bench.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s, "x\r\n");
  OpenFinalized(bench);
  bench.Invoice.RecalledInvoice = true;
  bench.SelectedPartial = u"20260009 "_s;
  Commit(bench);
  QVERIFY(!bench.Tree.Exists(u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s));
  QCOMPARE(bench.PartialReloads, 1);
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260017\r\n");
  QVERIFY(!bench.Invoice.RecalledInvoice);
}

void ScreenCommit::withoutACustomerOnTheScreenTheEmptyAccountIsPosted() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.Invoice.RecalledInvoice = true;
  bench.OnScreen.txtCustomer0.clear();
  bench.OnScreen.txtCustomer1.clear();
  Commit(bench);
  QVERIFY(bench.Tree.Exists(u"/KVActiveAccounts/.txt"_s));
  QVERIFY(bench.Tree.Exists(Image));
}

void ScreenCommit::printIsDisabledWhileItRuns() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bool enabled = true;
  bench.Answers.With(QMessageBox::Yes, [&] { enabled = bench.On().Control(u"cmdInvoiceContinue"_s)->isEnabled(); });
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QVERIFY(!enabled);
}

void ScreenCommit::theShipToBlockPrintsOnlyWhenTicked() {
  for (const bool ticked : {false, true}) {
    InvoiceBench bench;
    OpenFinalized(bench);
    if (ticked) {
      bench.On().Trigger(u"mnuSetup"_s);
      bench.On().Click(u"ckShipto"_s);
      bench.On().Trigger(u"mnuPrint"_s);
    }
    Commit(bench);
    QCOMPARE(bench.Paper.Words(1).contains(u"SHIPPED TO:"_s), ticked);
  }
}

void ScreenCommit::aPickedShipDateStandsInImageAndOnPage() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.On().Trigger(u"mnuSetup"_s);
  bench.On().Click(u"ckShipto"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_6"_s);
  bench.On().PickEntry(u"cboShipping"_s, u"UPS - Ground"_s);
  bench.On().Control(u"DTShip"_s)->setFocus(Qt::TabFocusReason);
  bench.On().Type(u"3/19/2026"_s);
  bench.On().PressKey(Qt::Key_Return);
  Commit(bench);
  QCOMPARE(bench.Tree.Bytes(Image),
           "20260001\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n$131.02\r\n"
           "\"Acme Tools\"\r\n\"1 Main Street\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
           "\"Acme Tools\"\r\n\"1 Main Street\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
           "UPS - Ground\r\n3/19/2026\r\n"
           "20260001\r\n1001\r\nPO 5\r\nMs Jones\r\n2\r\n"
           "3\r\nHammer\r\n\r\n$12.00\r\n$36.00\r\nTrue\r\n"
           "\r\nRepair\r\n3/7/2026\r\n$80.00\r\n$80.00\r\nFalse\r\n"
           "\"$116.00\",\"$2.16\",\"$0.36\",\"$131.02\",\"$12.50\",\"$0.00\",\"$0.00\"\r\n");
  QVERIFY(bench.Paper.Words(1).contains(u"UPS - Ground"_s));
  QVERIFY2(bench.Paper.Words(1).contains(u"Sheduled - 3/19/2026"_s), qPrintable(bench.Paper.Words(1).join(u'|')));
}

void ScreenCommit::theMemoPrintsAsLongAsItsFileStandsWhateverItsTick() {
  InvoiceBench bench;
  bench.Tree.Write(u"/InvoiceMemo.txt"_s, "Closed on Mondays\r\n");
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  bench.On().Click(u"ckAddMemo"_s);
  for (const int job : {1, 2}) {
    // The tick goes with the invoice that it was set for: the second one begins without it.
    QVERIFY(!bench.Ticked(u"ckAddMemo"_s));
    bench.PostManual(u"Rope"_s, u"1"_s, u"4"_s);
    bench.Finalize();
    Commit(bench);
    QCOMPARE(bench.Paper.Jobs.size(), static_cast<std::size_t>(job));
    QVERIFY(bench.Paper.Words(1).contains(u"Closed on Mondays"_s));
    bench.Reopen();
    bench.On().Click(u"cmdInvoice_0"_s);
  }
}

void ScreenCommit::anInternationalCustomerPrintsWithoutAState() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.OnScreen.UsaAddress = false;
  Commit(bench);
  QVERIFY(bench.Paper.Words(1).contains(u"Springfield"_s));
  QVERIFY(!bench.Paper.Words(1).contains(u"Springfield, IL 62701"_s));
}

void ScreenCommit::aChargeTypedAfterFinalizeLetsNothingPrint() {
  for (const auto& box : {u"txtShip"_s, u"txtMisc"_s}) {
    for (const bool byKey : {false, true}) {
      InvoiceBench bench;
      OpenFinalized(bench);
      QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
      const auto before = bench.Tree.Everything();
      bench.On().Fill(box, u"3"_s);
      QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
      if (byKey) {
        bench.On().PressAccessKey('P');
      } else {
        bench.On().Click(u"cmdInvoiceContinue"_s);
      }
      QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
      QCOMPARE(bench.Text(box), u"$3.00"_s);
      QCOMPARE(bench.Paper.DialogsShown, 0);
      QVERIFY(bench.Answers.Boxes().isEmpty());
      QCOMPARE(bench.Tree.Everything(), before);
      QCOMPARE(bench.Around.Asked, QStringList());
    }
  }
}

void ScreenCommit::soldItemsBearTheHeldNumberAndTheRestTheTypedOne() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.On().Trigger(u"mnuSetup"_s);
  bench.On().Fill(u"txtInvoiceNo"_s, u"7"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.On().Fill(u"txtInvoiceNo"_s, u"500"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  Commit(bench);
  QCOMPARE(bench.Tree.Bytes(u"/SoldItems.txt"_s).mid(68, 20), Field("7", 20));
  QCOMPARE(bench.Tree.Bytes(u"/InvoiceSalesJournal.txt"_s).mid(65, 20), Field("500", 20));
  QCOMPARE(bench.Tree.Bytes(u"/TaxRecords.txt"_s).mid(35, 30), Field("500", 30));
  QCOMPARE(bench.Tree.Bytes(Ledger).mid(155), LedgerRecord("500", "131.02"));
  QVERIFY(bench.Tree.Exists(u"/CompletedInvoices/500.txt"_s));
}

void ScreenCommit::aLongNumberIsCutInJournalAndLedger() {
  InvoiceBench bench;
  OpenFinalized(bench);
  bench.On().Fill(u"txtInvoiceNo"_s, u"1234567890123456789012345"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  Commit(bench);
  QCOMPARE(bench.Tree.Bytes(Ledger).mid(155), LedgerRecord("12345678901234567890", "131.02"));
  QCOMPARE(bench.Tree.Bytes(u"/InvoiceSalesJournal.txt"_s).mid(65, 20), QByteArray("12345678901234567890"));
  QCOMPARE(bench.Tree.Bytes(u"/TaxRecords.txt"_s).mid(35, 30), Field("1234567890123456789012345", 30));
  QVERIFY(bench.Tree.Exists(u"/CompletedInvoices/1234567890123456789012345.txt"_s));
  // The next number would be beyond 32 bits: the counter stays, without a message.
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260001\r\n");
  QCOMPARE(bench.Around.Errors, QList<int>{});
}

QTEST_MAIN(ScreenCommit)
#include "tst_screenCommit.moc"
