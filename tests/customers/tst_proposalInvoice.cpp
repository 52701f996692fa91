// A proposal's customer on a new invoice: on its screen, on the page, and in the records that the commit writes.

#include "customers/CustomerRecords.h"
#include "customers/ProposalFiles.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

/// A service, two proposals, and a customer who is neither's.
void Stock(const TemporaryTree& tree) {
  tree.Write(u"/KVInvoiceNo.txt"_s, "20260010\r\n");
  tree.Write(u"/Services.txt"_s, Field("Repair", 60) + Field("$10.00", 10) + Bytes16(1));
  tree.Write(u"/CustomerData.txt"_s, BusinessRecord("1001", "Acme Tools"));
  tree.Write(u"/KarvexProposals/a.txt"_s, MarkedProposal());
  tree.Write(u"/KarvexProposals/b.txt"_s, PlainProposal());
}

void OpenRoutine() {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_0"_s);
  menu.Click(u"cmdGoto"_s);
}

/// From the main menu to the invoice of the proposal in that row.
void InvoiceOf(int row) {
  OpenRoutine();
  const ScreenDriver selection(u"frmCustomerSelection"_s);
  selection.Click(u"cmdStartup_1"_s);
  selection.SelectRow(u"fgProposals"_s, row);
  selection.Click(u"cmdCreation_1"_s);
}

void Finish(ProgramFixture& program) {
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Trigger(u"mnuServices"_s);
  invoice.PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  invoice.Click(u"cmdPost_0"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  program.Answers.Yes(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
}

}  // namespace

class ProposalInvoice : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theInvoiceOpensWithTheProposalsCustomer_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("account");
    QTest::addColumn<QStringList>("soldTo");
    QTest::newRow("marked, CR LF") << 1 << u"2001"_s
                                   << QStringList{u"Bay Farm, Inc."_s, u"1 Dock Rd"_s, u"Suite 4, rear"_s,
                                                  u"Salem"_s,          u"MA"_s,        u"01970"_s};
    QTest::newRow("unmarked, LF") << 2 << u"2002"_s
                                  << QStringList{
                                         u"Hill, Top & Sons"_s, u"12 Ridge Road"_s, {}, u"Lynn"_s, u"MA"_s, u"01901"_s};
  }
  void theInvoiceOpensWithTheProposalsCustomer() {
    QFETCH(const int, row);
    QFETCH(const QString, account);
    QFETCH(const QStringList, soldTo);
    ProgramFixture program;
    Stock(program.Tree);
    QVERIFY(program.StartAtMenu());
    InvoiceOf(row);
    QVERIFY(!ScreenDriver::IsShown(u"frmCustomerSelection"_s));
    QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
    const ScreenDriver invoice(u"frmInvoice"_s);
    QVERIFY(invoice.IsVisible(u"fraSetup"_s));
    QCOMPARE(invoice.Text(u"cmdInvoice_0"_s), u"Continue......"_s);
    QCOMPARE(invoice.Text(u"lblAcct"_s), account);
    QCOMPARE(invoice.Text(u"lblAcctNo"_s), account);
    for (int i = 0; i < 6; ++i) {
      QCOMPARE(invoice.Text(u"lblCustomer_%1"_s.arg(i)), soldTo[i]);
      QCOMPARE(invoice.Text(u"lblCustomer_%1"_s.arg(i + 6)), soldTo[i]);
    }
    QCOMPARE(invoice.FocusName(), u"txtShipto_6"_s);
    QCOMPARE(invoice.Text(u"txtInvoiceNo"_s), u"20260010"_s);
  }

  void thePageBearsTheProposalsCustomer() {
    ProgramFixture program;
    Stock(program.Tree);
    QVERIFY(program.StartAtMenu());
    InvoiceOf(1);
    Finish(program);
    QCOMPARE(program.Paper.SoldToBlock(), (QStringList{u"SOLD TO:"_s, u"Bay Farm, Inc."_s, u"1 Dock Rd"_s,
                                                       u"Suite 4, rear"_s, u"Salem, MA 01970"_s}));
    QVERIFY(!program.Paper.Find(u"Acct: 2001"_s).empty());
    InvoiceOf(2);
    Finish(program);
    QCOMPARE(program.Paper.SoldToBlock(),
             (QStringList{u"SOLD TO:"_s, u"Hill, Top & Sons"_s, u"12 Ridge Road"_s, u"Lynn, MA 01901"_s}));
    QVERIFY(!program.Paper.Find(u"Acct: 2002"_s).empty());
  }

  void theRecordsNameTheProposalsAccountButTheLedgerIsTheCustomerScreens() {
    ProgramFixture program;
    Stock(program.Tree);
    QVERIFY(program.StartAtMenu());
    OpenRoutine();
    ScreenDriver(u"frmCustomerSelection"_s).Click(u"cmdStartup_0"_s);
    ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_0"_s);
    InvoiceOf(1);
    Finish(program);
    const TemporaryTree& tree = program.Tree;
    QVERIFY(tree.Bytes(u"/CompletedInvoices/20260010.txt"_s)
                .startsWith("20260010\r\n2001\r\nBay Farm, Inc.\r\n3/7/2026\r\n$10.00\r\n\"Bay Farm, Inc.\"\r\n"
                            "\"1 Dock Rd\"\r\n\"Suite 4, rear\"\r\n\"Salem\"\r\n\"MA\"\r\n\"01970\"\r\n"));
    const QByteArray journal = tree.Bytes(u"/InvoiceSalesJournal.txt"_s);
    QCOMPARE(journal.left(85), Field("Bay Farm, Inc.", 45) + Field("2001", 20) + Field("20260010", 20));
    // The account comes from the customer screen, the name from the invoice.
    QVERIFY(!tree.Exists(u"/KVActiveAccounts/2001.txt"_s));
    const QByteArray ledger = tree.Bytes(u"/KVActiveAccounts/1001.txt"_s);
    QCOMPARE(ledger.size(), 310);
    QCOMPARE(ledger.mid(155, 70), Field("Bay Farm, Inc.", 45) + Field("1001", 25));
  }

  void aProposalIsReadOnlyAndStays() {
    ProgramFixture program;
    Stock(program.Tree);
    QVERIFY(program.StartAtMenu());
    InvoiceOf(2);
    Finish(program);
    QCOMPARE(program.Tree.List(u"/KarvexProposals"_s), (QStringList{u"ProposalBody/"_s, u"a.txt"_s, u"b.txt"_s}));
    QCOMPARE(program.Tree.Bytes(u"/KarvexProposals/b.txt"_s), PlainProposal());
    QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  }

  void theInternationalStyleLeavesTheStateOut() {
    ProgramFixture program;
    Stock(program.Tree);
    program.Tree.Write(u"/MyBusinessData.txt"_s,
                       "\"Grove\",\"12 Grove Road\",\"\",\"Sydney\",\"NSW\",\"\",\"555-0100\",\"\",\"\"\r\n");
    QVERIFY(program.StartAtMenu());
    InvoiceOf(1);
    const ScreenDriver invoice(u"frmInvoice"_s);
    QVERIFY(!invoice.IsVisible(u"lblCustomer_4"_s));
    QCOMPARE(invoice.Text(u"lblCustomer_4"_s), u"MA"_s);
    Finish(program);
    QVERIFY(program.Paper.SoldToBlock().contains(u"Bay Farm, Inc."_s));
    QVERIFY(program.Paper.Find(u"MA"_s).empty());
  }
};

QTEST_MAIN(ProposalInvoice)
#include "tst_proposalInvoice.moc"
