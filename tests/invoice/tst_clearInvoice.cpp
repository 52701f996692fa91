// The clearing routines.
#include <QtTest>

#include "invoice/ClearInvoice.h"
#include "invoice/LaborEntry.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

class ClearInvoiceTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }

  /// Every amount, box and tick that a clearing routine may touch, filled.
  void Fill() {
    WorkingInvoice& invoice = Invoice();
    m_desk->AddLine({u"1"_s, u"Rope"_s, u"1/1/2026"_s, u"$5.00"_s, u"$5.00"_s, u"True"_s});
    invoice.fgInvoice.SetText(100, 1, u"last row"_s);
    const Currency five = Currency::FromUnits(50000);
    for (Currency* held : {&invoice.SubTotal, &invoice.GrandTotal, &invoice.Tax1, &invoice.Tax2, &invoice.ShipCharge,
                           &invoice.MiscCharge, &invoice.CalcDiscount, &invoice.FlatDiscount, &invoice.TaxableAmount}) {
      *held = five;
    }
    for (QString* box : {&invoice.txtTotal, &invoice.txtTax, &invoice.txtTax2, &invoice.txtGrandTotal, &invoice.txtShip,
                         &invoice.txtMisc, &invoice.txtDiscount, &invoice.txtFlatDiscount}) {
      *box = u"$5.00"_s;
    }
    invoice.Entry.txtUnits = invoice.Entry.txtCUnits = u"3"_s;
    invoice.txtNarrative = u"tale"_s;
    invoice.txtReference = u"PO 5"_s;
    invoice.Entry.LaborShows.fill(true);
    invoice.Entry.txtHours.fill(u"3"_s);
    invoice.LaborAmount.fill(five);
    invoice.DTPicker1 = QDate(2025, 1, 1);
    invoice.Controls.Enabled.cmdPost.fill(false);
  }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    Fill();
  }

  void clearingTheInvoiceLeavesNothingButTheHeldFlatDiscount() {
    ClearInvoice(Invoice(), m_desk->Now);
    const WorkingInvoice& invoice = Invoice();
    QCOMPARE(invoice.LineCount, qint16(0));
    QCOMPARE(m_desk->Row(1), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    QVERIFY(invoice.fgInvoice.Text(100, 1).isEmpty());
    QCOMPARE(invoice.fgInvoice.Text(0, 1), u"Item Description"_s);
    QCOMPARE(invoice.fgInvoice.Rows(), 101);
    for (const Currency held : {invoice.SubTotal, invoice.GrandTotal, invoice.Tax1, invoice.Tax2, invoice.ShipCharge,
                                invoice.MiscCharge, invoice.CalcDiscount, invoice.TaxableAmount}) {
      QCOMPARE(held, Currency());
    }
    QCOMPARE(invoice.FlatDiscount, Currency::FromUnits(50000));
    for (const QString& box : {invoice.txtTotal, invoice.txtTax, invoice.txtTax2, invoice.txtGrandTotal,
                               invoice.txtShip, invoice.txtMisc, invoice.txtDiscount, invoice.txtFlatDiscount}) {
      QCOMPARE(box, u"$0.00"_s);
    }
    QVERIFY(invoice.Entry.txtUnits.isEmpty());
    QCOMPARE(invoice.Entry.txtCUnits, u"3"_s);
    QVERIFY(invoice.txtNarrative.isEmpty());
    QVERIFY(invoice.txtReference.isEmpty());
    QCOMPARE(invoice.Entry.txtHours, (std::array<QString, 3>{u"0"_s, u"0"_s, u"0"_s}));
    QCOMPARE(invoice.LaborAmount, (std::array<Currency, 3>{}));
    QCOMPARE(invoice.DTPicker1, QDate(2026, 3, 7));
    QCOMPARE(invoice.Controls.Enabled.cmdPost, (std::array<bool, 4>{true, true, true, true}));
  }

  void aRecalledInvoiceKeepsItsReference() {
    Invoice().RecalledInvoice = true;
    ClearInvoice(Invoice(), m_desk->Now);
    QCOMPARE(Invoice().txtReference, u"PO 5"_s);
  }

  void redoClearsTotalsAddOnsAndTheHeldFlatDiscountAndKeepsTheLines() {
    CancelPrint(Invoice());
    const WorkingInvoice& invoice = Invoice();
    QCOMPARE(invoice.LineCount, qint16(1));
    for (const Currency held :
         {invoice.SubTotal, invoice.GrandTotal, invoice.Tax1, invoice.Tax2, invoice.ShipCharge, invoice.MiscCharge,
          invoice.CalcDiscount, invoice.FlatDiscount, invoice.TaxableAmount}) {
      QCOMPARE(held, Currency());
    }
    QCOMPARE(invoice.txtFlatDiscount, u"$0.00"_s);
    QCOMPARE(invoice.txtReference, u"PO 5"_s);
  }

  void theSecondTaxShowsAsSetupSays_data() {
    QTest::addColumn<bool>("applies");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
  }
  void theSecondTaxShowsAsSetupSays() {
    QFETCH(const bool, applies);
    m_desk->Tax.ckApply2ndTax = applies;
    Invoice().ck2ndTax = Invoice().Controls.Visible.ck2ndTax = !applies;
    Invoice().Controls.Visible.Label4_42 = true;
    ResetInvoiceOptions(Invoice(), m_desk->Tax);
    QCOMPARE(Invoice().ck2ndTax, applies);
    QCOMPARE(Invoice().Controls.Visible.ck2ndTax, applies);
    QVERIFY(!Invoice().Controls.Visible.Label4_42);
  }

  void thePrintOptionsAreCleared() {
    WorkingInvoice& invoice = Invoice();
    invoice.ckAddMemo = invoice.ckExempt = invoice.ckApplyVolumeDiscount = invoice.ckPrepaid = true;
    invoice.ckPackingList = invoice.ckShipto = invoice.ckManualTax = invoice.ck2ndTax = true;
    ResetPrintOptions(invoice);
    QVERIFY(!invoice.ckAddMemo && !invoice.ckExempt && !invoice.ckApplyVolumeDiscount && !invoice.ckPrepaid);
    QVERIFY(!invoice.ckPackingList && !invoice.ckShipto);
    QVERIFY(invoice.ckManualTax && invoice.ck2ndTax);
  }
};

QTEST_GUILESS_MAIN(ClearInvoiceTest)
#include "tst_clearInvoice.moc"
