// Terms and discount option, kept in step.
#include <QtTest>

#include "invoice/InvoiceTerms.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString NoDiscountMessage =
    u": You have Selected No Discount but your\r\nInvoice Terms were set to offer a Discount\r\n"
    u"Your Invoice Terms have been reset to\r\nIn full upon Receipt"_s;
const QString FlatMessage =
    u": You have Selected to Enter a Discount\r\nYour Invoice Terms have been reset to\r\n"
    u"A Discount has been Applied\r\nYou may wish to replace this setting"_s;
const QString CalculatedMessage =
    u": You have Selected to Calculate a Discount but your\r\nInvoice Terms were set to no Discount\r\n"
    u"Your Invoice Terms have been reset to\r\nDiscount 1% in 10 days, Net 15 days"_s;

}  // namespace

class TermsTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  void Terms(int index) { SelectTerms(m_desk->Terms(), index); }
  void Option(int option) { SelectDiscountOption(m_desk->Terms(), option); }

 private Q_SLOTS:
  void init() { m_desk.emplace(); }

  void theListHoldsElevenTermsInOrder() {
    QCOMPARE(TermsList(),
             QStringList({u"Payment due in Full upon Receipt"_s, u"Payment due in Full within 10 Days"_s,
                          u"Payment due in Full within 15 Days"_s, u"Payment due in Full within 30 Days"_s,
                          u"Discount 1% in 10 days, Net 15 days"_s, u"Discount 2% in 10 days, Net 15 days"_s,
                          u"Discount 1% in 10 days, Net 20 days"_s, u"Discount 2% in 10 days, Net 20 days"_s,
                          u"Discount 1% in 10 days, Net 30 days"_s, u"Discount 2% in 10 days, Net 30 days"_s,
                          u" A Discount has been Applied"_s}));
  }

  void theScreenStartsWithTwoPerCentInTenDays() {
    LoadInvoiceLists(m_desk->Settings);
    QCOMPARE(m_desk->Settings.cboDiscount, u"2.0"_s);
    QCOMPARE(m_desk->Settings.cboDays, u"10"_s);
  }

  void pickedTermsSetTheDiscount_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("discount");
    QTest::addColumn<QString>("rate");
    for (int i = 0; i <= 3; ++i) QTest::addRow("%d", i) << i << false << u"9"_s;
    for (int i = 4; i <= 9; ++i) QTest::addRow("%d", i) << i << true << (i % 2 == 0 ? u"1.0"_s : u"2.0"_s);
  }
  void pickedTermsSetTheDiscount() {
    QFETCH(const int, index);
    QFETCH(const bool, discount);
    QFETCH(const QString, rate);
    m_desk->Settings.cboDiscount = m_desk->Settings.cboDays = u"9"_s;
    Invoice().ckDiscount = !discount;
    Invoice().optDiscount = discount ? 0 : 2;
    Terms(index);
    QCOMPARE(Invoice().cboTerms.Text, TermsList().at(index));
    QCOMPARE(Invoice().cboTerms.ListIndex, index);
    QCOMPARE(Invoice().ckDiscount, discount);
    QCOMPARE(Invoice().optDiscount, discount ? 2 : 0);
    QCOMPARE(m_desk->Settings.cboDiscount, rate);
    QCOMPARE(m_desk->Settings.cboDays, discount ? u"10"_s : u"9"_s);
    QCOMPARE(Invoice().Controls.Visible.fraDiscount, discount);
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void theLastTermsLeaveTheDiscountAlone() {
    Invoice().ckDiscount = true;
    Invoice().optDiscount = 1;
    m_desk->Settings.cboDiscount = u"1,5"_s;
    Terms(10);
    QCOMPARE(Invoice().cboTerms.Text, u" A Discount has been Applied"_s);
    QVERIFY(Invoice().ckDiscount);
    QCOMPARE(Invoice().optDiscount, 1);
    QCOMPARE(m_desk->Settings.cboDiscount, u"1,5"_s);
  }

  void noDiscountResetsTermsThatOfferOne_data() {
    QTest::addColumn<int>("terms");
    QTest::addColumn<bool>("reset");
    for (int i = -1; i <= 10; ++i) QTest::addRow("%d", i) << i << (i > 3);
  }
  void noDiscountResetsTermsThatOfferOne() {
    QFETCH(const int, terms);
    QFETCH(const bool, reset);
    Invoice().cboTerms = {u"text"_s, terms};
    Invoice().optDiscount = 2;
    Invoice().ckDiscount = true;
    Option(0);
    QCOMPARE(Invoice().cboTerms.ListIndex, reset ? 0 : terms);
    QCOMPARE(Invoice().ckDiscount, !reset);
    QCOMPARE(m_desk->Boxes.Take(), reset ? QStringList(NoDiscountMessage) : QStringList());
  }

  void everyOptionHidesBothFramesAndDropsTheCalculatedDiscount_data() {
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("none") << 1 << 0;
    QTest::newRow("flat") << 2 << 1;
    QTest::newRow("calculated") << 1 << 2;
  }
  void everyOptionHidesBothFramesAndDropsTheCalculatedDiscount() {
    QFETCH(const int, from);
    QFETCH(const int, to);
    Invoice().optDiscount = from;
    Invoice().Controls.Visible.fraFlat = Invoice().Controls.Visible.fraDiscount = true;
    Invoice().Controls.Enabled.cmdInvoiceContinue = true;
    Invoice().txtDiscount = u"$5.00"_s;
    Invoice().CalcDiscount = Currency::FromUnits(50000);
    Option(to);
    QCOMPARE(Invoice().optDiscount, to);
    QCOMPARE(Invoice().Controls.Visible.fraFlat, to == 1);
    QCOMPARE(Invoice().Controls.Visible.fraDiscount, to == 2);
    QVERIFY(!Invoice().Controls.Enabled.cmdInvoiceContinue);
    QCOMPARE(Invoice().txtDiscount, u"$0.00"_s);
    QCOMPARE(Invoice().CalcDiscount, Currency());
  }

  void theSelectedOptionOpensNoDialogueAgain() {
    Invoice().optDiscount = 1;
    Invoice().Controls.Enabled.cmdInvoiceContinue = true;
    Invoice().txtFlatDiscount = u"7"_s;
    Option(1);
    QVERIFY(Invoice().Controls.Enabled.cmdInvoiceContinue);
    QCOMPARE(Invoice().txtFlatDiscount, u"7"_s);
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void theFlatOptionAsksForAnAmountAndSetsItsTerms() {
    Invoice().FlatDiscount = Currency::FromUnits(10000);
    Invoice().txtFlatDiscount = u"$1.00"_s;
    Invoice().Controls.Enabled.cmdAddDiscount = false;
    Option(1);
    QCOMPARE(Invoice().FlatDiscount, Currency());
    QVERIFY(Invoice().txtFlatDiscount.isEmpty());
    QCOMPARE(m_desk->Focus(), u"txtFlatDiscount"_s);
    QVERIFY(Invoice().Controls.Enabled.cmdAddDiscount);
    QCOMPARE(Invoice().cboTerms.ListIndex, 10);
    QCOMPARE(m_desk->Boxes.Take(), QStringList(FlatMessage));
    QCOMPARE(Invoice().optDiscount, 1);
  }

  void theFlatOptionGivesAHeldDiscountBackToAFinalizedInvoice() {
    Invoice().SubTotal = Currency::FromUnits(1000000);
    Invoice().GrandTotal = Currency::FromUnits(900000);
    Invoice().FlatDiscount = Currency::FromUnits(100000);
    Option(1);
    QCOMPARE(Invoice().txtGrandTotal, u"$100.00"_s);
  }

  void theFlatOptionComputesNothingAtGrandTotalZero() {
    Invoice().SubTotal = Currency::FromUnits(1000000);
    Option(1);
    QCOMPARE(Invoice().GrandTotal, Currency());
    QVERIFY(Invoice().txtGrandTotal.isEmpty());
  }

  void theCalculatedOptionResetsTermsThatOfferNone_data() {
    QTest::addColumn<int>("terms");
    QTest::addColumn<bool>("reset");
    for (int i = -1; i <= 10; ++i) QTest::addRow("%d", i) << i << (i < 4 || i == 10);
  }
  void theCalculatedOptionResetsTermsThatOfferNone() {
    QFETCH(const int, terms);
    QFETCH(const bool, reset);
    Invoice().cboTerms = {u"text"_s, terms};
    bool frameBehindBox = true;
    m_desk->Boxes.OnBox = [&] { frameBehindBox = Invoice().Controls.Visible.fraDiscount; };
    Option(2);
    QCOMPARE(Invoice().cboTerms.ListIndex, reset ? 4 : terms);
    QCOMPARE(Invoice().ckDiscount, reset);
    QVERIFY(Invoice().Controls.Visible.fraDiscount);
    QCOMPARE(frameBehindBox, !reset);
    QCOMPARE(m_desk->Boxes.Take(), reset ? QStringList(CalculatedMessage) : QStringList());
    if (reset) QCOMPARE(m_desk->Settings.cboDiscount, u"1.0"_s);
  }

  void theScreenIsShownAsItStandsBeforeAMessage() {
    int termsBehindBox = -2;
    int shown = -2;
    Invoice().Refresh = [&] { shown = Invoice().cboTerms.ListIndex; };
    m_desk->Boxes.OnBox = [&] { termsBehindBox = shown; };
    Option(1);
    QCOMPARE(termsBehindBox, 10);
  }

  void onlyTheUsersUntickingResetsPercentageAndDays() {
    m_desk->Settings.cboDiscount = u"2.0"_s;
    m_desk->Settings.cboDays = u"10"_s;
    ClickDiscountCheck(m_desk->Terms(), true);
    QVERIFY(Invoice().ckDiscount);
    QCOMPARE(m_desk->Settings.cboDiscount, u"2.0"_s);
    Terms(0);
    QVERIFY(!Invoice().ckDiscount);
    QCOMPARE(m_desk->Settings.cboDiscount, u"2.0"_s);
    Invoice().ckDiscount = true;
    ClickDiscountCheck(m_desk->Terms(), false);
    QVERIFY(!Invoice().ckDiscount);
    QCOMPARE(m_desk->Settings.cboDiscount, u"0.0"_s);
    QCOMPARE(m_desk->Settings.cboDays, u"0"_s);
  }

  void withoutDefaultTermsTheFirstArePicked() {
    Invoice().optDiscount = 2;
    Invoice().ckDiscount = true;
    LoadTerms(m_desk->Terms(), m_desk->Disk);
    QCOMPARE(Invoice().cboTerms.ListIndex, 0);
    QCOMPARE(Invoice().cboTerms.Text, u"Payment due in Full upon Receipt"_s);
    QCOMPARE(Invoice().optDiscount, 0);
    QVERIFY(!Invoice().ckDiscount);
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void defaultTermsAreAWholeLineAndPickTheirEntry() {
    m_desk->Write(u"/StatementTerms.txt"_s, "Discount 2% in 10 days, Net 30 days\r\nmore\r\n");
    LoadTerms(m_desk->Terms(), m_desk->Disk);
    QCOMPARE(Invoice().cboTerms.ListIndex, 9);
    QCOMPARE(Invoice().cboTerms.Text, u"Discount 2% in 10 days, Net 30 days"_s);
    QCOMPARE(Invoice().optDiscount, 2);
    QVERIFY(Invoice().ckDiscount);
    QCOMPARE(m_desk->Settings.cboDiscount, u"2.0"_s);
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void defaultTermsThatTheListLacksAreShownAndNothingElseHappens() {
    m_desk->Write(u"/StatementTerms.txt"_s, "Cash on the nail, please\r\n");
    Invoice().optDiscount = 2;
    Invoice().ckDiscount = true;
    LoadTerms(m_desk->Terms(), m_desk->Disk);
    QCOMPARE(Invoice().cboTerms.Text, u"Cash on the nail, please"_s);
    QCOMPARE(Invoice().cboTerms.ListIndex, -1);
    QCOMPARE(Invoice().optDiscount, 2);
    QVERIFY(Invoice().ckDiscount);
  }

  void anEmptyTermsFileIsAReadErrorThatNamesIt() {
    m_desk->Write(u"/StatementTerms.txt"_s, "");
    const RuntimeError thrown = CaughtFrom([&] { LoadTerms(m_desk->Terms(), m_desk->Disk); });
    QCOMPARE(thrown.Number(), 62);
    QCOMPARE(thrown.Subject(), u"/StatementTerms.txt"_s);
  }

  void savingTheTermsKeepsTheTextAsItStandsAndDropsTheBackup() {
    m_desk->Write(u"/Backup/StatementTerms.txt"_s, "old\r\n");
    TypeTerms(Invoice(), u" Net \u20ac, \"quoted\""_s);
    QCOMPARE(Invoice().cboTerms.ListIndex, -1);
    SaveDefaultTerms(Invoice(), m_desk->Disk);
    QCOMPARE(m_desk->Read(u"/StatementTerms.txt"_s), " Net \x80, \"quoted\"\r\n");
    QVERIFY(!m_desk->Exists(u"/Backup/StatementTerms.txt"_s));
  }
};

QTEST_GUILESS_MAIN(TermsTest)
#include "tst_terms.moc"
