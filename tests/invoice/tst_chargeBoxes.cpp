// Shipping, additional charge and flat discount.
#include <QtTest>

#include "invoice/ChargeBoxes.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

Currency Units(qint64 tenThousandths) {
  return Currency::FromUnits(tenThousandths);
}

}  // namespace

class ChargeBoxesTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  void Deduct(const QString& text) {
    Invoice().txtFlatDiscount = text;
    DeductDiscount(Invoice(), m_desk->Tax, m_desk->Boxes);
  }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    Invoice().Controls.Enabled.cmdInvoiceContinue = true;
    m_desk->Tax.cboRate1 = u"5.0"_s;
  }

  void leavingShipping_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<qint64>("held");
    QTest::addColumn<bool>("printable");
    QTest::addColumn<QString>("focus");
    QTest::addColumn<QStringList>("said");
    QTest::newRow("amount") << u"12.5"_s << u"$12.50"_s << qint64{125000} << false << QString() << QStringList();
    QTest::newRow("zero") << u"$0.00"_s << u"$0.00"_s << qint64{0} << false << QString() << QStringList();
    QTest::newRow("emptied: the held charge stays")
        << u""_s << u""_s << qint64{70000} << true << QString() << QStringList();
    QTest::newRow("letters") << u"x"_s << u""_s << qint64{70000} << true << u"txtShip"_s << QStringList(u"beep"_s);
    QTest::newRow("negative") << u"-2"_s << u"($2.00)"_s << qint64{-20000} << false << QString() << QStringList();
  }
  void leavingShipping() {
    QFETCH(const QString, typed);
    QFETCH(const QString, shown);
    QFETCH(const qint64, held);
    QFETCH(const bool, printable);
    QFETCH(const QString, focus);
    QFETCH(const QStringList, said);
    Invoice().ShipCharge = Units(70000);
    Invoice().txtShip = typed;
    LeaveShip(Invoice(), m_desk->Boxes);
    QCOMPARE(Invoice().txtShip, shown);
    QCOMPARE(Invoice().ShipCharge, Units(held));
    QCOMPARE(Invoice().Controls.Enabled.cmdInvoiceContinue, printable);
    QCOMPARE(m_desk->Focus(), focus);
    QCOMPARE(m_desk->Boxes.Take(), said);
  }

  void leavingTheAdditionalCharge_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<qint64>("held");
    QTest::addColumn<bool>("printable");
    QTest::addColumn<QString>("focus");
    QTest::addColumn<QStringList>("said");
    QTest::newRow("amount") << u"12.5"_s << u"$12.50"_s << qint64{125000} << false << u"cmdInvoice_9"_s
                            << QStringList();
    QTest::newRow("zero is passed over") << u"$0.00"_s << u"$0.00"_s << qint64{70000} << true << QString()
                                         << QStringList();
    QTest::newRow("emptied: the held charge stays")
        << u""_s << u""_s << qint64{70000} << true << QString() << QStringList();
    QTest::newRow("letters need no new total")
        << u"x"_s << u""_s << qint64{70000} << true << u"txtMisc"_s << QStringList(u"beep"_s);
  }
  void leavingTheAdditionalCharge() {
    QFETCH(const QString, typed);
    QFETCH(const QString, shown);
    QFETCH(const qint64, held);
    QFETCH(const bool, printable);
    QFETCH(const QString, focus);
    QFETCH(const QStringList, said);
    Invoice().MiscCharge = Units(70000);
    Invoice().txtMisc = typed;
    LeaveMisc(Invoice(), m_desk->Boxes);
    QCOMPARE(Invoice().txtMisc, shown);
    QCOMPARE(Invoice().MiscCharge, Units(held));
    QCOMPARE(Invoice().Controls.Enabled.cmdInvoiceContinue, printable);
    QCOMPARE(m_desk->Focus(), focus);
    QCOMPARE(m_desk->Boxes.Take(), said);
  }

  void aDoubleClickClearsOneCharge() {
    Invoice().ShipCharge = Invoice().MiscCharge = Units(70000);
    Invoice().txtShip = Invoice().txtMisc = u"$7.00"_s;
    ClearShip(Invoice());
    QCOMPARE(Invoice().ShipCharge, Currency());
    QCOMPARE(Invoice().txtShip, u"$0.00"_s);
    QCOMPARE(Invoice().MiscCharge, Units(70000));
    ClearMisc(Invoice());
    QCOMPARE(Invoice().MiscCharge, Currency());
    QCOMPARE(Invoice().txtMisc, u"$0.00"_s);
    QVERIFY(Invoice().Controls.Enabled.cmdInvoiceContinue);
  }

  void aResetNeedsANewTotal() {
    Invoice().ShipCharge = Invoice().MiscCharge = Units(70000);
    ResetShip(Invoice());
    QCOMPARE(Invoice().ShipCharge, Currency());
    QCOMPARE(Invoice().MiscCharge, Units(70000));
    QVERIFY(!Invoice().Controls.Enabled.cmdInvoiceContinue);
    QCOMPARE(m_desk->Focus(), u"cmdInvoice_9"_s);
    Invoice().Controls.Enabled.cmdInvoiceContinue = true;
    ResetMisc(Invoice());
    QCOMPARE(Invoice().MiscCharge, Currency());
    QVERIFY(!Invoice().Controls.Enabled.cmdInvoiceContinue);
    QCOMPARE(m_desk->Focus(), u"cmdInvoice_9"_s);
  }

  void leavingTheFlatDiscountReformatsANumberAndMovesOn() {
    Invoice().txtFlatDiscount = u"5"_s;
    LeaveFlatDiscount(Invoice());
    QCOMPARE(Invoice().txtFlatDiscount, u"$5.00"_s);
    QCOMPARE(m_desk->Focus(), u"cmdAddDiscount"_s);
    Invoice().txtFlatDiscount = u"."_s;
    LeaveFlatDiscount(Invoice());
    QCOMPARE(Invoice().txtFlatDiscount, u"."_s);
    QVERIFY(m_desk->Focus().isEmpty());
  }

  void aDeductedDiscountIsShownAndWaitsForFinalize() {
    m_desk->AddLine({u"1"_s, u"Rope"_s, u""_s, u"$100.00"_s, u"$100.00"_s, u"True"_s});
    Invoice().GrandTotal = Units(42);
    Invoice().ckDiscount = true;
    m_desk->Settings.cboDiscount = u"2.0"_s;
    Deduct(u"$15.00"_s);
    QCOMPARE(Invoice().FlatDiscount, Units(150000));
    QCOMPARE(Invoice().txtDiscount, u"$15.00"_s);
    QVERIFY(!Invoice().Controls.Enabled.cmdAddDiscount);
    QVERIFY(!Invoice().ckDiscount);
    QCOMPARE(m_desk->Settings.cboDiscount, u"2.0"_s);
    QCOMPARE(Invoice().GrandTotal, Units(42));
    QCOMPARE(Invoice().Tax1, Units(50000));
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void aDiscountMustBeBelowTheSum_data() {
    QTest::addColumn<QString>("discount");
    QTest::addColumn<bool>("refused");
    QTest::newRow("one ten-thousandth below") << u"113.9999"_s << false;
    QTest::newRow("equal") << u"114"_s << true;
    QTest::newRow("above") << u"$200.00"_s << true;
  }
  void aDiscountMustBeBelowTheSum() {
    QFETCH(const QString, discount);
    QFETCH(const bool, refused);
    m_desk->AddLine({u"1"_s, u"Rope"_s, u""_s, u"$100.00"_s, u"$100.00"_s, u"True"_s});
    Invoice().ShipCharge = Units(70000);
    Invoice().MiscCharge = Units(20000);
    Invoice().ckDiscount = true;
    Deduct(discount);
    QCOMPARE(m_desk->Boxes.Take(),
             refused ? QStringList({u"beep"_s, u": Your discount exceeds the Invoice Amount"_s}) : QStringList());
    QCOMPARE(Invoice().FlatDiscount, refused ? Currency() : Units(1139999));
    QCOMPARE(Invoice().txtFlatDiscount, refused ? u"$0.00"_s : discount);
    QCOMPARE(m_desk->Focus(), refused ? u"txtFlatDiscount"_s : QString());
    QCOMPARE(Invoice().Controls.Enabled.cmdAddDiscount, refused);
    QCOMPARE(Invoice().ckDiscount, refused);
  }

  void aDiscountThatIsNoAmountIsAnErrorOnItsBox() {
    m_desk->AddLine({u"1"_s, u"Rope"_s, u""_s, u"$100.00"_s, u"$100.00"_s, u"True"_s});
    Invoice().FlatDiscount = Units(5);
    const RuntimeError thrown = CaughtFrom([&] { Deduct(u""_s); });
    QCOMPARE(thrown.Number(), 13);
    QCOMPARE(thrown.Subject(), u"txtFlatDiscount"_s);
    QCOMPARE(Invoice().FlatDiscount, Units(5));
    QVERIFY(Invoice().Controls.Enabled.cmdAddDiscount);
  }
};

QTEST_GUILESS_MAIN(ChargeBoxesTest)
#include "tst_chargeBoxes.moc"
