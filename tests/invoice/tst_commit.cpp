// The run from "Print Invoice" to the main menu: its order, its questions, its one handler.
#include <QtTest>

#include "invoice/ClearInvoice.h"
#include "invoice/Commit.h"
#include "support/Bytes.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString Confirm = u"Printing Confirmation? Was the Invoice Printed Correctly"_s;
const QString Retry = u"Print Retry? Would you like to Retry Printing this Invoice"_s;

}  // namespace

class CommitTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;
  QStringList m_steps;
  CommitSteps m_do;
  QString m_selected;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  void Commit() {
    PrintAndCommit(
        {Invoice(), m_desk->Disk, m_desk->Boxes, m_desk->Now, m_desk->Tax, m_desk->Customer, m_desk->SalesItems}, m_do);
  }
  /// Rope of no category and without prices: what is on hand is all that a commit changes.
  static QByteArray Item(const char* onHand) {
    return Field("Rope", 50) + Field("", 20) + QByteArray(16, '\0') + Hex(onHand) + QByteArray(16, '\0');
  }
  /// Step names with what stands on the disk then.
  std::function<void()> Step(const QString& name) {
    return [this, name] { m_steps << name; };
  }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    m_steps.clear();
    m_selected.clear();
    WorkingInvoice& invoice = Invoice();
    invoice.txtInvoiceNo = u"20260001"_s;
    invoice.InvoiceNo = 20260001;
    invoice.lblAcct = invoice.lblAcctNo = u"1001"_s;
    invoice.lblCustomer[6] = u"Bay Farm"_s;
    invoice.SubTotal = Currency::FromUnits(1000000);
    invoice.Tax1 = Currency::FromUnits(50000);
    invoice.Tax2 = Currency::FromUnits(80000);
    invoice.GrandTotal = Currency::FromUnits(1130000);
    invoice.txtGrandTotal = u"$113.00"_s;
    invoice.Controls.Enabled.cmdInvoiceContinue = true;
    m_desk->AddLine({u"4"_s, u"Rope"_s, u""_s, u"$25.00"_s, u"$100.00"_s, u"True"_s});
    m_desk->SalesItems.Items = {{u"Rope"_s, false}};
    m_desk->Tax.cboTaxHeading1 = u"Sales Tax"_s;
    m_desk->Tax.cboTaxHeading2 = u"County Tax"_s;
    m_desk->Customer.txtCustomer0 = u"1001"_s;
    m_desk->Write(u"/KVInventoriedItems.txt"_s, Item("0a 00"));
    m_do = {.BeginPrintJob = Step(u"printer"_s),
            .PrintInvoice = Step(u"print"_s),
            .ReloadItems = Step(u"items"_s),
            .SelectedPartial = [this] { return m_selected; },
            .ReloadPartials = Step(u"partials"_s),
            .PrintPackingSlip = Step(u"slip"_s),
            .ToCreationView = Step(u"creation view"_s),
            .Leave = Step(u"leave"_s)};
  }
  void cleanup() { QVERIFY(m_desk->Boxes.Answers.isEmpty()); }

  void aConfirmedInvoiceIsWrittenEverywhereAndUsesUpItsNumber() {
    m_desk->Boxes.Answers = {true};
    Commit();
    QCOMPARE(m_desk->Boxes.Take(), QStringList(Confirm));
    QCOMPARE(m_steps, QStringList({u"printer"_s, u"print"_s, u"items"_s, u"leave"_s}));
    const auto tree = m_desk->Tree();
    QCOMPARE(tree.keys(),
             QStringList({u"/Backup/KVActiveAccounts/1001.txt"_s, u"/CompletedInvoices/20260001.txt"_s,
                          u"/InvoiceSalesJournal.txt"_s, u"/KVActiveAccounts/1001.txt"_s, u"/KVInventoriedItems.txt"_s,
                          u"/KVInvoiceNo.txt"_s, u"/SoldItems.txt"_s, u"/TaxRecords.txt"_s}));
    QCOMPARE(tree[u"/KVInvoiceNo.txt"_s], "20260002\r\n");
    QCOMPARE(tree[u"/KVInventoriedItems.txt"_s], Item("06 00"));
    QCOMPARE(tree[u"/SoldItems.txt"_s].size(), 90);
    QCOMPARE(tree[u"/InvoiceSalesJournal.txt"_s].size(), 125);
    QCOMPARE(tree[u"/TaxRecords.txt"_s].size(), 150);
    QVERIFY(tree[u"/TaxRecords.txt"_s].startsWith("Sales Tax "));
    QVERIFY(tree[u"/TaxRecords.txt"_s].sliced(75).startsWith("County Tax "));
    QVERIFY(tree[u"/CompletedInvoices/20260001.txt"_s].endsWith(
        "True\r\n\"$0.00\",\"$0.00\",\"$0.00\",\"$113.00\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n"));
    QCOMPARE(Invoice().LineCount, qint16(0));
    QVERIFY(!Invoice().Controls.Enabled.cmdInvoiceContinue);
  }

  void theStoresAreWrittenInTheirOrder() {
    // Each write that fails in turn shows what stood before it.
    const QList<QStringList> standing{{},
                                      {u"SoldItems"_s},
                                      {u"SoldItems"_s, u"InvoiceSalesJournal"_s},
                                      {u"SoldItems"_s, u"InvoiceSalesJournal"_s, u"1001"_s},
                                      {u"SoldItems"_s, u"InvoiceSalesJournal"_s, u"1001"_s, u"20260001"_s}};
    const QStringList blocked{u"/SoldItems.txt"_s, u"/InvoiceSalesJournal.txt"_s, u"/KVActiveAccounts/1001.txt"_s,
                              u"/CompletedInvoices/20260001.txt"_s, u"/TaxRecords.txt"_s};
    for (qsizetype i = 0; i < blocked.size(); ++i) {
      init();
      // A folder where the file should be: the write there fails.
      QVERIFY(QDir(m_desk->Root.path()).mkpath(blocked[i].sliced(1)));
      m_desk->Boxes.Answers = {true};
      Commit();
      QStringList found;
      for (const QString& file : {u"SoldItems"_s, u"InvoiceSalesJournal"_s}) {
        if (m_desk->Tree().value(u'/' + file + u".txt"_s).size() > 0) found << file;
      }
      if (m_desk->Tree().contains(u"/Backup/KVActiveAccounts/1001.txt"_s)) found << u"1001"_s;
      if (m_desk->Tree().contains(u"/CompletedInvoices/20260001.txt"_s)) found << u"20260001"_s;
      QCOMPARE(found, standing[i]);
      // The inventory comes behind the image and before the taxes.
      QCOMPARE(m_desk->Read(u"/KVInventoriedItems.txt"_s), i == 4 ? Item("06 00") : Item("0a 00"));
      QVERIFY(!m_desk->Exists(u"/KVInvoiceNo.txt"_s));
      QCOMPARE(m_desk->Boxes.Take(), QStringList(Confirm));
      QCOMPARE(m_steps.last(), u"leave"_s);
    }
  }

  void withoutItemsItSaysSoAndGoesBack() {
    ClearGrid(Invoice());
    Commit();
    QCOMPARE(m_desk->Boxes.Take(), QStringList(u"No Items Entered: The Invoice contains no Items"_s));
    QCOMPARE(m_steps, QStringList(u"creation view"_s));
    QVERIFY(!Invoice().Controls.Enabled.cmdInvoiceContinue);
    QCOMPARE(Invoice().txtInvoiceNo, u"20260001"_s);
  }

  void notPrintedAndNoRetryWritesNothingButStillLeaves() {
    const auto before = m_desk->Tree();
    m_desk->Boxes.Answers = {false, false};
    Commit();
    QCOMPARE(m_desk->Boxes.Take(), QStringList({Confirm, Retry}));
    QCOMPARE(m_steps, QStringList({u"printer"_s, u"print"_s, u"leave"_s}));
    QCOMPARE(m_desk->Tree(), before);
  }

  void aRetryGoesBackToThePrinterDialog() {
    m_desk->Boxes.Answers = {false, true, true};
    Commit();
    QCOMPARE(m_desk->Boxes.Take(), QStringList({Confirm, Retry, Confirm}));
    QCOMPARE(m_steps, QStringList({u"printer"_s, u"print"_s, u"printer"_s, u"print"_s, u"items"_s, u"leave"_s}));
    QCOMPARE(m_desk->Read(u"/InvoiceSalesJournal.txt"_s).size(), 125);
  }

  void aPrintErrorEndsSilentlyWithNothingWritten_data() {
    QTest::addColumn<int>("error");
    QTest::newRow("cancelled dialog") << 32755;
    QTest::newRow("printer") << 482;
  }
  void aPrintErrorEndsSilentlyWithNothingWritten() {
    QFETCH(const int, error);
    const auto before = m_desk->Tree();
    (error == 482 ? m_do.PrintInvoice : m_do.BeginPrintJob) = [error] { throw RuntimeError(error, {}); };
    Commit();
    QVERIFY(m_desk->Boxes.Said.isEmpty());
    QCOMPARE(m_desk->Tree(), before);
    QCOMPARE(m_steps.last(), u"leave"_s);
  }

  void anErrorInAWriteSkipsTheRestSilently() {
    Invoice().fgInvoice.SetText(1, 0, u"32768"_s);
    Invoice().ckPackingList = true;
    m_desk->Boxes.Answers = {true};
    Commit();
    QCOMPARE(m_desk->Boxes.Take(), QStringList(Confirm));
    QCOMPARE(m_steps, QStringList({u"printer"_s, u"print"_s, u"slip"_s, u"leave"_s}));
    QVERIFY(!m_desk->Exists(u"/InvoiceSalesJournal.txt"_s));
    QVERIFY(!m_desk->Exists(u"/KVInvoiceNo.txt"_s));
    QCOMPARE(Invoice().LineCount, qint16(1));  // still there for the packing slip; leaving clears it
  }

  void anOverflowOfTheNumberAtTheBumpIsSilentToo() {
    Invoice().txtInvoiceNo = u"2147483647"_s;
    m_desk->Boxes.Answers = {true};
    Commit();
    QVERIFY(m_desk->Exists(u"/CompletedInvoices/2147483647.txt"_s));
    QVERIFY(!m_desk->Exists(u"/KVInvoiceNo.txt"_s));
    QCOMPARE(m_steps.last(), u"leave"_s);
  }

  void aRecalledInvoiceLosesItsPartialImageAndKeepsTheCounter() {
    Invoice().RecalledInvoice = true;
    m_selected = u" 20260001 "_s;
    m_desk->Write(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s, "partial");
    m_desk->Write(u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s, "another");
    m_desk->Boxes.Answers = {true};
    Commit();
    QVERIFY(!m_desk->Exists(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s));
    QVERIFY(m_desk->Exists(u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s));
    QVERIFY(!m_desk->Exists(u"/KVInvoiceNo.txt"_s));
    QCOMPARE(m_steps, QStringList({u"printer"_s, u"print"_s, u"items"_s, u"partials"_s, u"leave"_s}));
    QVERIFY(!Invoice().RecalledInvoice);
  }

  void aRecalledInvoiceThatIsGivenUpStaysOnDisk() {
    Invoice().RecalledInvoice = true;
    m_selected = u"20260001"_s;
    m_desk->Write(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s, "partial");
    m_desk->Boxes.Answers = {false, false};
    Commit();
    QVERIFY(m_desk->Exists(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s));
  }

  void thePackingSlipFollowsTheClearingAndTheOptionsAreResetAfterIt() {
    WorkingInvoice& invoice = Invoice();
    invoice.ckPackingList = invoice.ckShipto = invoice.ckExempt = invoice.ck2ndTax = true;
    m_do.PrintPackingSlip = [&] {
      QCOMPARE(invoice.LineCount, qint16(0));
      QVERIFY(invoice.ckShipto);
      m_steps << u"slip"_s;
    };
    m_do.Leave = [&] {
      QVERIFY(!invoice.ckPackingList && !invoice.ckShipto && !invoice.ckExempt && !invoice.ck2ndTax);
      m_steps << u"leave"_s;
    };
    m_desk->Boxes.Answers = {true};
    Commit();
    QCOMPARE(m_steps, QStringList({u"printer"_s, u"print"_s, u"items"_s, u"slip"_s, u"leave"_s}));
  }

  void aMissingInventoryIsSkipped() {
    QVERIFY(QFile::remove(m_desk->Root.path() + u"/KVInventoriedItems.txt"_s));
    m_desk->Boxes.Answers = {true};
    Commit();
    QCOMPARE(m_steps, QStringList({u"printer"_s, u"print"_s, u"leave"_s}));
    QVERIFY(m_desk->Exists(u"/TaxRecords.txt"_s));
  }

  void committingTheSameNumberAgainReplacesTheImageAndAddsAJournalRow() {
    m_desk->Boxes.Answers = {true};
    Commit();
    const QByteArray first = m_desk->Read(u"/CompletedInvoices/20260001.txt"_s);
    m_desk->AddLine({u"1"_s, u"Twine"_s, u""_s, u"$1.00"_s, u"$1.00"_s, u"True"_s});
    Invoice().lblCustomer[6] = u"Hill Farm"_s;
    m_desk->Boxes.Answers = {true};
    Commit();
    QVERIFY(m_desk->Read(u"/CompletedInvoices/20260001.txt"_s) != first);
    QVERIFY(m_desk->Read(u"/CompletedInvoices/20260001.txt"_s).contains("Twine"));
    QCOMPARE(m_desk->Read(u"/InvoiceSalesJournal.txt"_s).size(), 250);
  }

  void aNameThatWouldLeaveItsFolderIsRefusedBeforePrinting_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("account");
    QTest::newRow("number") << u"../1"_s << u"1001"_s;
    QTest::newRow("no number") << u""_s << u"1001"_s;
    QTest::newRow("account") << u"20260001"_s << u"../1"_s;
  }
  void aNameThatWouldLeaveItsFolderIsRefusedBeforePrinting() {
    QFETCH(const QString, number);
    QFETCH(const QString, account);
    Invoice().txtInvoiceNo = number;
    m_desk->Customer.txtCustomer0 = account;
    const auto before = m_desk->Tree();
    Commit();
    QCOMPARE(m_desk->Boxes.Take().size(), 1);
    QVERIFY(!m_steps.contains(u"printer"_s));
    QVERIFY(!m_steps.contains(u"leave"_s));
    QCOMPARE(m_desk->Tree(), before);
    QCOMPARE(Invoice().LineCount, qint16(1));
  }

  void leavingAbandonsTheInvoice() {
    Invoice().RecalledInvoice = true;
    Invoice().txtReference = u"PO 5"_s;
    AbandonInvoice(Invoice(), m_desk->Now);
    QVERIFY(!Invoice().RecalledInvoice);
    QVERIFY(Invoice().txtReference.isEmpty());
    QVERIFY(Invoice().txtInvoiceNo.isEmpty());
    QCOMPARE(Invoice().LineCount, qint16(0));
  }

  void fullFilesCostNoMoreReadingThanEmptyOnes() {
    const auto readBy = [&](bool full) {
      init();
      for (int i = 1; i < 100; ++i) m_desk->AddLine({u"0"_s, u"Rope"_s, u""_s, u"$1.00"_s, u"$1.00"_s, u"True"_s});
      if (full) {
        m_desk->Write(u"/SoldItems.txt"_s, QByteArray(32000 * 90, ' '));
        m_desk->Write(u"/InvoiceSalesJournal.txt"_s, QByteArray(32000 * 125, ' '));
        m_desk->Write(u"/TaxRecords.txt"_s, QByteArray(32000 * 75, ' '));
        m_desk->Write(u"/KAPaymentRecords.txt"_s, QByteArray(32000 * 155, ' '));
      }
      Invoice().ckPrepaid = true;
      m_desk->Boxes.Answers = {true};
      m_desk->Device.Reset();
      Commit();
      return m_desk->Device.BytesRead();
    };
    const qint64 empty = readBy(false);
    QCOMPARE(readBy(true), empty);
    QCOMPARE(m_desk->Read(u"/SoldItems.txt"_s).size(), 32100 * 90);
  }
};

QTEST_GUILESS_MAIN(CommitTest)
#include "tst_commit.moc"
