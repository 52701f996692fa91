// What of the invoice in the making goes on its page, and the grid that holds its lines.
#include <QtTest>

#include "invoice/InvoiceOnPaper.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

QStringList Texts(const PageAddress& address) {
  return {address.Name, address.Address1, address.Address2, address.City, address.State, address.Postal};
}

}  // namespace

class OnPaperTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

 private Q_SLOTS:
  void init() { m_desk.emplace(); }

  void theGridHasItsSixColumnsAndARowForEachOfAHundredLines() {
    QCOMPARE(m_desk->Row(0), QStringList({u"Quantity"_s, u"Item Description"_s, u"Service Date"_s, u"Unit Price"_s,
                                          u"Extension"_s, u"Apply Tax"_s}));
    QCOMPARE(m_desk->Invoice.fgInvoice.Rows(), 101);
    QCOMPARE(m_desk->Invoice.fgInvoice.Cols(), 6);
  }

  void thePageTakesItsTextsFromTheScreensBoxes() {
    WorkingInvoice& invoice = m_desk->Invoice;
    invoice.lblAcct = u" 1001 "_s;
    invoice.txtInvoiceNo = u"20260001"_s;
    invoice.txtReference = u"PO 5"_s;
    for (size_t i = 0; i < 12; ++i) invoice.lblCustomer[i] = u"line %1"_s.arg(i);
    for (size_t i = 0; i < 7; ++i) invoice.txtShipto[i] = u" to %1 "_s.arg(i);
    invoice.cboShipping = u"None"_s;
    invoice.DTShip = QDate(2026, 12, 1);
    invoice.DTPicker1 = invoice.InvoiceDate = QDate(2026, 1, 2);
    invoice.ckShipto = true;
    m_desk->AddLine({u"1"_s, u"Rope"_s});
    const InvoicePage page = PageOf(invoice, false, m_desk->Now.Today());
    QCOMPARE(page.Heading.Acct, u"1001"_s);
    QCOMPARE(page.Heading.Date, u"3/7/2026"_s);
    QCOMPARE(page.Heading.InvoiceNo, u"20260001"_s);
    QCOMPARE(page.Heading.Reference, u"PO 5"_s);
    QCOMPARE(Texts(page.SoldTo),
             QStringList({u"line 6"_s, u"line 7"_s, u"line 8"_s, u"line 9"_s, u"line 10"_s, u"line 11"_s}));
    QCOMPARE(Texts(page.ShipTo), QStringList({u"to 0"_s, u"to 1"_s, u"to 2"_s, u"to 3"_s, u"to 4"_s, u"to 5"_s}));
    QVERIFY(page.HasShipTo);
    QVERIFY(!page.UsaAddress);
    QCOMPARE(page.Shipping.ShipVia, u"None"_s);
    QCOMPARE(page.Shipping.ShipDate, u"12/1/2026"_s);
    QCOMPARE(page.Lines, &invoice.fgInvoice);
    QCOMPARE(page.LineCount, qint16(1));
  }

  void aBlankedChargeReachesThePageAsEmptyText() {
    WorkingInvoice& invoice = m_desk->Invoice;
    invoice.txtTotal = u"$1.00"_s;
    invoice.txtTax = u"$2.00"_s;
    invoice.txtTax2 = u"$3.00"_s;
    invoice.txtMisc = u"$5.00"_s;
    invoice.txtGrandTotal = u"$6.00"_s;
    invoice.ShipCharge = Currency::FromUnits(40000);
    const PageTotals totals = PageOf(invoice, true, m_desk->Now.Today()).Totals;
    QCOMPARE(totals.SubTotal, u"$1.00"_s);
    QCOMPARE(totals.Tax1, u"$2.00"_s);
    QCOMPARE(totals.Tax2, u"$3.00"_s);
    QVERIFY(totals.Shipping.isEmpty());
    QCOMPARE(totals.Handling, u"$5.00"_s);
    QCOMPARE(totals.GrandTotal, u"$6.00"_s);
  }
};

QTEST_GUILESS_MAIN(OnPaperTest)
#include "tst_onPaper.moc"
