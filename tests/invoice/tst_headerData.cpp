// The head of an invoice: customer, ship-to, reference, dates, carrier, the fixed lists.
#include <QtTest>

#include "invoice/InvoiceHeaderData.h"
#include "shell/Screens.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

class HeaderDataTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

 private Q_SLOTS:
  void init() { m_desk.emplace(); }

  void theCustomerFillsAccountAndBothBlocks() {
    WorkingInvoice& invoice = m_desk->Invoice;
    invoice.lblCustomer.fill(u"old"_s);
    TakeSoldTo(invoice, {u"1001"_s, {u"Bay Farm"_s, u"1 Dock Rd"_s, u""_s, u"Salem"_s, u"MA"_s, u"01970"_s, u"555"_s}});
    ShowCustomer(invoice);
    QCOMPARE(invoice.lblAcct, u"1001"_s);
    QCOMPARE(invoice.lblAcctNo, u"1001"_s);
    const std::array<QString, 12> block{u"Bay Farm"_s, u"1 Dock Rd"_s, u""_s, u"Salem"_s, u"MA"_s, u"01970"_s,
                                        u"Bay Farm"_s, u"1 Dock Rd"_s, u""_s, u"Salem"_s, u"MA"_s, u"01970"_s};
    QCOMPARE(invoice.lblCustomer, block);
    QCOMPARE(m_desk->Focus(), u"txtShipto_6"_s);
  }

  void clearingTheCustomerEmptiesLabelsBlocksAndShipTo() {
    WorkingInvoice& invoice = m_desk->Invoice;
    invoice.lblAcct = invoice.lblAcctNo = u"1001"_s;
    invoice.lblCustomer.fill(u"x"_s);
    invoice.txtShipto.fill(u"x"_s);
    ClearCustomer(invoice);
    QVERIFY(invoice.lblAcct.isEmpty());
    QVERIFY(invoice.lblAcctNo.isEmpty());
    QCOMPARE(invoice.lblCustomer, (std::array<QString, 12>{}));
    QCOMPARE(invoice.txtShipto, (std::array<QString, 7>{}));
  }

  void anotherCustomerEmptiesTheShipToBlock() {
    WorkingInvoice& invoice = m_desk->Invoice;
    invoice.txtShipto = {u"Barn"_s, u"2 Hay Ln"_s, u""_s, u"Lynn"_s, u"MA"_s, u"01901"_s, u"Ann"_s};
    TakeSoldTo(invoice, {u"1001"_s, {u"Bay Farm"_s, u"1 Dock Rd"_s, u""_s, u"Salem"_s, u"MA"_s, u"01970"_s, u"555"_s}});
    ShowCustomer(invoice);
    QCOMPARE(invoice.txtShipto, (std::array<QString, 7>{}));
  }

  void sameAsSoldToCopiesSixLinesAndNotTheAttentionLine() {
    WorkingInvoice& invoice = m_desk->Invoice;
    for (size_t i = 0; i < 12; ++i) invoice.lblCustomer[i] = QString::number(i);
    invoice.txtShipto[6] = u"Ann"_s;
    CopySoldToIntoShipTo(invoice);
    QCOMPARE(invoice.txtShipto, (std::array<QString, 7>{u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"Ann"_s}));
    QCOMPARE(m_desk->Focus(), u"txtShipto_0"_s);
    ClearShipTo(invoice);
    QCOMPARE(invoice.txtShipto, (std::array<QString, 7>{u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, u"Ann"_s}));
  }

  void anEmptyReferenceSaysWhenItWasPrepared() {
    FillReference(m_desk->Invoice, m_desk->Now);
    QCOMPARE(m_desk->Invoice.txtReference, u"Prepared 3/7/2026"_s);
    m_desk->Invoice.txtReference = u"PO 5"_s;
    FillReference(m_desk->Invoice, m_desk->Now);
    QCOMPARE(m_desk->Invoice.txtReference, u"PO 5"_s);
  }

  void aPickedDateGoesIntoACurrentRowWithANumericQuantity_data() {
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("date");
    QTest::newRow("an item") << u"3"_s << u"2/1/2026"_s;
    QTest::newRow("a service keeps its own") << u""_s << u"1/1/2026"_s;
    QTest::newRow("labor keeps its own") << u"2 Hrs"_s << u"1/1/2026"_s;
  }
  void aPickedDateGoesIntoACurrentRowWithANumericQuantity() {
    QFETCH(const QString, quantity);
    QFETCH(const QString, date);
    m_desk->AddLine({quantity, u"Rope"_s, u"1/1/2026"_s});
    m_desk->Invoice.fgInvoice.SetRow(1);
    PickServiceDate(m_desk->Invoice, {2026, 2, 1}, m_desk->Now, m_desk->Boxes);
    QCOMPARE(m_desk->Row(1).at(2), date);
    QCOMPARE(m_desk->Invoice.DTPicker1, QDate(2026, 2, 1));
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void aDateLaterThanTodayIsKeptAndOnlyBeepsForTheRow() {
    m_desk->AddLine({u"3"_s, u"Rope"_s});
    m_desk->Invoice.fgInvoice.SetRow(1);
    PickServiceDate(m_desk->Invoice, {2026, 3, 8}, m_desk->Now, m_desk->Boxes);
    QCOMPARE(m_desk->Boxes.Take(), QStringList(u"beep"_s));
    QCOMPARE(m_desk->Row(1).at(2), QString());
    QCOMPARE(m_desk->Invoice.DTPicker1, QDate(2026, 3, 8));
    PickServiceDate(m_desk->Invoice, {2026, 3, 7}, m_desk->Now, m_desk->Boxes);
    QVERIFY(m_desk->Boxes.Said.isEmpty());
    QCOMPARE(m_desk->Row(1).at(2), u"3/7/2026"_s);
  }

  void withoutACurrentRowNoDateIsWrittenOrReset() {
    m_desk->AddLine({u"3"_s, u"Rope"_s, u"1/1/2026"_s});
    PickServiceDate(m_desk->Invoice, {2026, 2, 1}, m_desk->Now, m_desk->Boxes);
    ResetServiceDate(m_desk->Invoice);
    QCOMPARE(m_desk->Row(1).at(2), u"1/1/2026"_s);
    QCOMPARE(m_desk->Invoice.fgInvoice.Text(0, 2), u"Service Date"_s);
  }

  void resetBlanksTheDateOfTheCurrentRow() {
    m_desk->AddLine({u""_s, u"Survey"_s, u"1/1/2026"_s});
    m_desk->Invoice.fgInvoice.SetRow(1);
    ResetServiceDate(m_desk->Invoice);
    QCOMPARE(m_desk->Row(1), QStringList({u""_s, u"Survey"_s, u""_s, u""_s, u""_s, u""_s}));
  }

  void aNewInvoiceTakesTheNextNumberAndTodayAndNothingElse() {
    m_desk->AddLine({u"3"_s, u"Rope"_s});
    m_desk->Invoice.DTPicker1 = m_desk->Invoice.DTShip = QDate(2025, 1, 1);
    m_desk->Invoice.txtReference = u"old"_s;
    SetInvoiceMode(m_desk->Invoice, false, m_desk->Disk, m_desk->Now);
    QCOMPARE(m_desk->Invoice.txtInvoiceNo, u"20260001"_s);
    QCOMPARE(m_desk->Invoice.DTPicker1, QDate(2026, 3, 7));
    QCOMPARE(m_desk->Invoice.DTShip, QDate(2026, 3, 7));
    QCOMPARE(m_desk->Invoice.LineCount, qint16(0));
    QVERIFY(m_desk->Invoice.txtReference.isEmpty());
    QVERIFY(m_desk->Invoice.Controls.Enabled.cmdInvoice_2);
    QVERIFY(m_desk->Invoice.Controls.Visible.lblInvoiceNo);
    QVERIFY(!m_desk->Invoice.Controls.txtInvoiceNoLocked);
  }

  void aRecalledInvoiceKeepsItsLinesAndItsLockedNumber() {
    m_desk->AddLine({u"3"_s, u"Rope"_s});
    m_desk->Invoice.txtInvoiceNo = u"20250009"_s;
    m_desk->Invoice.InvoiceDate = QDate(2025, 12, 30);
    SetInvoiceMode(m_desk->Invoice, true, m_desk->Disk, m_desk->Now);
    QCOMPARE(m_desk->Invoice.txtInvoiceNo, u"20250009"_s);
    QCOMPARE(m_desk->Invoice.DTPicker1, QDate(2025, 12, 30));
    QCOMPARE(m_desk->Invoice.LineCount, qint16(1));
    QVERIFY(!m_desk->Invoice.Controls.Enabled.cmdInvoice_2);
    QVERIFY(!m_desk->Invoice.Controls.Visible.lblInvoiceNo);
    QVERIFY(m_desk->Invoice.Controls.txtInvoiceNoLocked);
    QVERIFY(m_desk->Tree().isEmpty());
  }

  void theCarrierIsTheSavedLineWithItsCommas() {
    m_desk->Write(u"/ShipVia.txt"_s, "Acme, overnight\r\nmore\r\n");
    LoadShipVia(m_desk->Invoice, m_desk->Disk);
    QCOMPARE(m_desk->Invoice.cboShipping, u"Acme, overnight"_s);
  }

  void withoutASavedCarrierItIsNone() {
    m_desk->Invoice.cboShipping = u"UPS - Ground"_s;
    LoadShipVia(m_desk->Invoice, m_desk->Disk);
    QCOMPARE(m_desk->Invoice.cboShipping, u"None"_s);
  }

  void anEmptyCarrierFileIsAReadError() {
    m_desk->Write(u"/ShipVia.txt"_s, "");
    const RuntimeError thrown = CaughtFrom([&] { LoadShipVia(m_desk->Invoice, m_desk->Disk); });
    QCOMPARE(thrown.Number(), 62);
    QCOMPARE(thrown.Subject(), u"/ShipVia.txt"_s);
  }

  void savingTheCarrierDropsItsBackup() {
    m_desk->Write(u"/Backup/ShipVia.txt"_s, "old\r\n");
    m_desk->Invoice.cboShipping = u"FEDEX - Ground"_s;
    SaveShipVia(m_desk->Invoice, m_desk->Disk);
    QCOMPARE(m_desk->Read(u"/ShipVia.txt"_s), "FEDEX - Ground\r\n");
    QVERIFY(!m_desk->Exists(u"/Backup/ShipVia.txt"_s));
  }

  void theListsHoldTheirEntriesInOrder() {
    QCOMPARE(CarrierList(),
             QStringList({u"UPS - Next Day Air"_s, u"UPS - 2nd Day Air"_s, u"UPS - Ground"_s, u"USPS - Express"_s,
                          u"USPS - Priority Mail"_s, u"USPS - Parcel Post"_s, u"FEDEX - Next Day Air"_s,
                          u"FEDEX - 2nd Day Air"_s, u"FEDEX - Ground"_s, u"None"_s}));
    QCOMPARE(PrepaidList(), QStringList({u"Check # "_s, u"Credit Card # "_s, u"Cash"_s}));
    QCOMPARE(DiscountList(),
             QStringList({u"0.0"_s, u"1.0"_s, u"1.5"_s, u"2.0"_s, u"0,0"_s, u"1,0"_s, u"1,5"_s, u"2,0"_s}));
    QCOMPARE(DaysList(), QStringList({u"0"_s, u"10"_s, u"15"_s, u"20"_s, u"30"_s}));
  }
};

QTEST_GUILESS_MAIN(HeaderDataTest)
#include "tst_headerData.moc"
