// The recall of a partial image, literal byte by literal byte.
#include <QtTest>

#include "invoice/ClearInvoice.h"
#include "invoice/RecallInvoice.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString File = u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s;

const QByteArray Head =
    "20260009\r\n"
    "1001\r\n"
    "Bay Farm\r\n"
    "3/5/2026\r\n";
const QByteArray Addresses =
    "\"Bay Farm, Inc.\"\r\n"
    "\"1 Dock Rd\"\r\n"
    "\"\"\r\n"
    "\"Salem\"\r\n"
    "\"MA\"\r\n"
    "\"01970\"\r\n"
    "\"Barn\"\r\n"
    "\"2 Hay Ln, rear\"\r\n"
    "\"\"\r\n"
    "\"Lynn\"\r\n"
    "\"NH\"\r\n"
    "\"01901\"\r\n";
const QByteArray Lines =
    " 2\r\n"
    " Rope, \"best\" \r\n"
    "3/1/2026\r\n"
    "$25.00\r\n"
    "$50.00\r\n"
    "True\r\n"
    "\r\n"
    "Survey \x80\r\n"
    "3/5/2026\r\n"
    "$1,080.00\r\n"
    "$1,080.00\r\n"
    "False\r\n";

QByteArray Control(const QByteArray& reference, const QByteArray& attention, const QByteArray& count) {
  return "20260009\r\n1002\r\n" + reference + "\r\n" + attention + "\r\n" + count + "\r\n";
}

}  // namespace

class RecallTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  void Recall(const QString& date = u"3/5/2026"_s) {
    LoadIncomplete(Invoice(), m_desk->Disk, m_desk->Now, u"20260009"_s, date);
  }

 private Q_SLOTS:
  void init() { m_desk.emplace(); }

  void everyFieldComesToItsPlace() {
    m_desk->Write(File, Head + Addresses + Control("PO 5", "Ann at the gate", "2") + Lines);
    const QByteArray before = m_desk->Read(File);
    Recall();
    const WorkingInvoice& invoice = Invoice();
    const QStringList soldTo{u"Bay Farm, Inc."_s, u"1 Dock Rd"_s, u""_s, u"Salem"_s, u"MA"_s, u"01970"_s};
    const QStringList shipTo{u"Barn"_s,  u"2 Hay Ln, rear"_s, u""_s, u"Lynn"_s, u"NH"_s,
                             u"01901"_s, u"Ann at the gate"_s};
    for (int i = 0; i < 6; ++i) {
      QCOMPARE(invoice.lblCustomer[static_cast<size_t>(i)], soldTo[i]);
      QCOMPARE(invoice.lblCustomer[static_cast<size_t>(i + 6)], soldTo[i]);
    }
    for (int i = 0; i < 7; ++i) QCOMPARE(invoice.txtShipto[static_cast<size_t>(i)], shipTo[i]);
    QCOMPARE(invoice.txtInvoiceNo, u"20260009"_s);
    QCOMPARE(invoice.lblAcct, u"1002"_s);
    QCOMPARE(invoice.lblAcctNo, u"1002"_s);
    QCOMPARE(invoice.txtReference, u"PO 5"_s);
    QCOMPARE(invoice.LineCount, qint16{2});
    QCOMPARE(m_desk->Row(1),
             (QStringList{u" 2"_s, u" Rope, \"best\" "_s, u"3/1/2026"_s, u"$25.00"_s, u"$50.00"_s, u"True"_s}));
    QCOMPARE(m_desk->Row(2),
             (QStringList{u""_s, u"Survey \u20ac"_s, u"3/5/2026"_s, u"$1,080.00"_s, u"$1,080.00"_s, u"False"_s}));
    QCOMPARE(invoice.fgInvoice.Rows(), 101);
    QVERIFY(invoice.RecalledInvoice);
    QCOMPARE(invoice.InvoiceDate, QDate(2026, 3, 5));
    QCOMPARE(m_desk->Read(File), before);
  }

  void theDateIsThatOfTheListAndNotOfTheFile() {
    m_desk->Write(File, Head + Addresses + Control("", "", "0"));
    Recall(u"12/31/2025"_s);
    QCOMPARE(Invoice().InvoiceDate, QDate(2025, 12, 31));
  }

  void whatWasOnTheScreenBeforeIsGone() {
    WorkingInvoice& invoice = Invoice();
    for (int line = 0; line < 3; ++line) {
      m_desk->AddLine({u"9"_s, u"Old"_s, u"1/1/2026"_s, u"$1.00"_s, u"$9.00"_s, u"True"_s});
    }
    invoice.txtMisc = invoice.txtShip = invoice.txtDiscount = invoice.txtFlatDiscount = u"$7.00"_s;
    invoice.MiscCharge = invoice.ShipCharge = invoice.CalcDiscount = Currency::FromUnits(70000);
    invoice.txtGrandTotal = u"$9.00"_s;
    invoice.txtNarrative = u"old words"_s;
    invoice.txtReference = u"old reference"_s;
    invoice.Controls.Enabled.cmdPost.fill(false);
    m_desk->Write(File, Head + Addresses + Control("PO 5", "", "1") + Lines);
    Recall();
    QCOMPARE(invoice.LineCount, qint16{1});
    QCOMPARE(m_desk->Row(2), QStringList(6, QString()));
    QCOMPARE(m_desk->Row(3), QStringList(6, QString()));
    for (const QString& box :
         {invoice.txtMisc, invoice.txtShip, invoice.txtDiscount, invoice.txtFlatDiscount, invoice.txtGrandTotal}) {
      QCOMPARE(box, u"$0.00"_s);
    }
    for (const Currency held : {invoice.MiscCharge, invoice.ShipCharge, invoice.CalcDiscount}) {
      QCOMPARE(held.Units(), qint64{0});
    }
    QCOMPARE(invoice.txtNarrative, QString());
    QCOMPARE(invoice.txtReference, u"PO 5"_s);
    QVERIFY(invoice.Controls.Enabled.cmdPost[0]);
  }

  void withoutAShipDateItIsToday() {
    m_desk->Write(File, Head + Addresses + Control("", "", "0"));
    Recall();
    QCOMPARE(Invoice().DTShip, QDate(2026, 3, 7));
    Invoice().DTShip = QDate(2026, 4, 1);
    Recall();
    QCOMPARE(Invoice().DTShip, QDate(2026, 4, 1));
  }

  void anInvoiceOf100LinesIsFull() {
    QByteArray lines;
    for (int line = 1; line <= 100; ++line)
      lines += "1\r\nL" + QByteArray::number(line) + "\r\n\r\n$1.00\r\n$1.00\r\nTrue\r\n";
    m_desk->Write(File, Head + Addresses + Control("", "", "100") + lines);
    Recall();
    QCOMPARE(Invoice().LineCount, qint16{100});
    QCOMPARE(m_desk->Row(100).at(1), u"L100"_s);
  }

  void aCommaInTheReferenceMovesTheAttentionLineIntoTheCount() {
    // "PO 5, rush": the rest becomes the attention line, and the attention line is read as the count.
    m_desk->Write(File, Head + Addresses + Control("PO 5, rush", "1", "1") + Lines);
    Recall();
    QCOMPARE(Invoice().txtReference, u"PO 5"_s);
    QCOMPARE(Invoice().txtShipto[6], u"rush"_s);
    QCOMPARE(Invoice().LineCount, qint16{1});
    // The count's own line is then the first cell, and the last cell is never read.
    QCOMPARE(m_desk->Row(1),
             (QStringList{u"1"_s, u" 2"_s, u" Rope, \"best\" "_s, u"3/1/2026"_s, u"$25.00"_s, u"$50.00"_s}));
  }

  void aCommaInTheAttentionLineMovesItsRestIntoTheCount() {
    m_desk->Write(File, Head + Addresses + Control("PO 5", "Ann, 1", "1") + Lines);
    Recall();
    QCOMPARE(Invoice().txtShipto[6], u"Ann"_s);
    QCOMPARE(Invoice().LineCount, qint16{1});
    QCOMPARE(m_desk->Row(1).at(0), u"1"_s);
  }

  void aQuoteInAnAddressEndsItThere() {
    QByteArray broken = Addresses;
    broken.replace("\"1 Dock Rd\"", "\"1 \"Dock\" Rd\"");
    m_desk->Write(File, Head + broken + Control("PO 5", "Ann", "0"));
    Recall();
    QCOMPARE(Invoice().lblCustomer[1], u"1 "_s);
    QCOMPARE(Invoice().lblCustomer[3], u"Salem"_s);
  }

  void whatCannotBeReadNamesTheFileAndLeavesTheInvoiceAsItWas_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("date");
    QTest::addColumn<int>("number");
    const QString date = u"3/5/2026"_s;
    const QByteArray whole = Head + Addresses + Control("PO 5", "Ann", "2") + Lines;
    QTest::newRow("four lines only") << Head << date << 62;
    QTest::newRow("no control lines") << Head + Addresses << date << 62;
    QTest::newRow("no count") << Head + Addresses + "20260009\r\n1002\r\nPO 5\r\nAnn\r\n" << date << 62;
    QTest::newRow("one cell short") << whole.chopped(7) << date << 62;
    QTest::newRow("more lines promised") << Head + Addresses + Control("PO 5", "Ann", "3") + Lines << date << 62;
    QTest::newRow("a comma in the attention line")
        << Head + Addresses + Control("", "Ann, Bob", "2") + Lines << date << 13;
    QTest::newRow("a comma in the reference")
        << Head + Addresses + Control("PO 5, rush", "Ann", "2") + Lines << date << 13;
    QTest::newRow("an empty count") << Head + Addresses + Control("PO 5", "Ann", "") + Lines << date << 13;
    QTest::newRow("a count beyond 16 bits") << Head + Addresses + Control("PO 5", "Ann", "40000") + Lines << date << 6;
    QTest::newRow("101 lines") << Head + Addresses + Control("PO 5", "Ann", "101") + Lines << date << 9;
    QTest::newRow("less than none") << Head + Addresses + Control("PO 5", "Ann", "-1") + Lines << date << 9;
    QTest::newRow("no date") << whole << u"soon"_s << 13;
  }
  void whatCannotBeReadNamesTheFileAndLeavesTheInvoiceAsItWas() {
    QFETCH(const QByteArray, content);
    QFETCH(const QString, date);
    QFETCH(const int, number);
    m_desk->Write(File, content);
    Invoice().txtInvoiceNo = u"77"_s;
    Invoice().txtReference = u"kept"_s;
    Invoice().txtShip = u"$3.00"_s;
    const QStringList line{u"1"_s, u"Kept"_s, u""_s, u"$1.00"_s, u"$1.00"_s, u"True"_s};
    m_desk->AddLine(line);
    const RuntimeError thrown = CaughtFrom([&] { Recall(date); });
    QCOMPARE(thrown.Number(), number);
    QCOMPARE(thrown.Subject(), File);
    QCOMPARE(thrown.From(), RuntimeError::Origin::Event);
    QVERIFY(!Invoice().RecalledInvoice);
    QCOMPARE(Invoice().txtInvoiceNo, u"77"_s);
    QCOMPARE(Invoice().txtReference, u"kept"_s);
    QCOMPARE(Invoice().txtShip, u"$3.00"_s);
    QCOMPARE(Invoice().LineCount, qint16{1});
    QCOMPARE(m_desk->Row(1), line);
    QVERIFY(!Invoice().InvoiceDate.isValid());
  }

  void aFileThatIsGoneEndsTheEvent() {
    const RuntimeError thrown = CaughtFrom([&] { Recall(); });
    QCOMPARE(thrown.Number(), 53);
    QVERIFY(thrown.Subject().endsWith(u"20260009.txt"_s));
    QCOMPARE(thrown.From(), RuntimeError::Origin::Event);
  }

  void aNumberThatWouldLeaveTheFolderIsRefused() {
    for (const QString& number : {u"../../CompletedInvoices/1"_s, u"a\\b"_s, u""_s}) {
      const RuntimeError thrown =
          CaughtFrom([&] { LoadIncomplete(Invoice(), m_desk->Disk, m_desk->Now, number, u"3/5/2026"_s); });
      QCOMPARE(thrown.Number(), 64);
    }
  }
};

QTEST_GUILESS_MAIN(RecallTest)
#include "tst_recall.moc"
