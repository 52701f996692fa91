// Labor: rates, hours, charges and the lines posted from them.
#include <QtTest>

#include "invoice/LaborEntry.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

class LaborEntryTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  LineEntryBoxes& Boxes() { return m_desk->Invoice.Entry; }
  void Load() {
    LoadLaborRates(Invoice(), m_desk->Prices.Labor);
    ClearLabor(Invoice());
  }
  void Enter(int slot, const QString& hours) {
    Boxes().txtHours[static_cast<size_t>(slot)] = hours;
    LeaveHours(Invoice(), slot, m_desk->Boxes);
  }
  void Post() { PostLabor(Invoice(), m_desk->Prices.Labor, m_desk->Tax); }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    m_desk->Prices.Labor = {{u"General Labor"_s, u""_s, u"Rigger"_s}, {u"$45.00"_s, u"$60.00"_s, u"$33.33"_s}};
  }

  void aSlotWithANameShowsItsHeadingAndAnEmptyOneHides() {
    Load();
    QCOMPARE(Boxes().LaborShows, (std::array<bool, 3>{true, false, true}));
    QCOMPARE(Boxes().lblLaborHeading[0], u"General Labor at $45.00 per Hour"_s);
    QCOMPARE(Boxes().lblLaborHeading[2], u"Rigger at $33.33 per Hour"_s);
    QCOMPARE(Invoice().LaborRate[0], Currency::FromUnits(450000));
    QCOMPARE(Invoice().LaborRate[1], Currency());
    QVERIFY(Invoice().Controls.Enabled.mnuLabor);
  }

  void aRateStandsAsItsTextInHeadingAndLine() {
    m_desk->Prices.Labor = {{u"General Labor"_s, u""_s, u""_s}, {u"45"_s, u"$0.00"_s, u"$0.00"_s}};
    Load();
    QCOMPARE(Boxes().lblLaborHeading[0], u"General Labor at 45 per Hour"_s);
    Enter(0, u"2"_s);
    SumLabor(Invoice());
    Post();
    QCOMPARE(m_desk->Row(1), QStringList({u"2 Hrs"_s, u"General Labor"_s, u""_s, u"45"_s, u"$90.00"_s, u"False"_s}));
  }

  void withoutAnyRateTheLaborEntryIsDisabledAndComesBackWithOne() {
    m_desk->Prices.Labor = {{u"General Labor"_s, u""_s, u""_s}, {u"$0.00"_s, u"$0.00"_s, u"$0.00"_s}};
    Load();
    QVERIFY(!Invoice().Controls.Enabled.mnuLabor);
    m_desk->Prices.Labor.txtLaborRate[0] = u"$1.00"_s;
    Load();
    QVERIFY(Invoice().Controls.Enabled.mnuLabor);
  }

  void aRateThatIsNoAmountIsAnErrorThatNamesIt() {
    m_desk->Prices.Labor.txtLaborRate[2] = u"dear"_s;
    const RuntimeError thrown = CaughtFrom([&] { Load(); });
    QCOMPARE(thrown.Number(), 13);
    // Its box stands on a screen that may never have been shown.
    QCOMPARE(thrown.Subject(), QString());
    QVERIFY(thrown.Text().contains(u'"' + m_desk->Prices.Labor.txtLabor[2] + u'"'));
  }

  void theErrorOfAnEmptiedRateTellsWhereToEnterIt() {
    m_desk->Prices.Labor.txtLaborRate[0].clear();
    const RuntimeError thrown = CaughtFrom([&] { Load(); });
    QCOMPARE(thrown.Number(), 13);
    QCOMPARE(thrown.Text(), u"The rate of \"General Labor\" isn't an amount."_s);
    QCOMPARE(thrown.Advice(), u"Enter it on the Labor Rates tab of Create and Manage, then open the invoice again."_s);
    QCOMPARE(thrown.From(), RuntimeError::Origin::Event);
  }

  void hoursMakeACharge() {
    Load();
    Enter(2, u"1.5"_s);
    QCOMPARE(Invoice().LaborAmount[2], Currency::FromUnits(499950));
    QCOMPARE(Boxes().lblLaborCharge[2], u"$50.00"_s);
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void hoursThatAreNoNumberBecomeZeroWithABeep() {
    Load();
    Enter(0, u"."_s);
    QCOMPARE(Boxes().txtHours[0], u"0"_s);
    QCOMPARE(m_desk->Focus(), u"txtHours_0"_s);
    QCOMPARE(m_desk->Boxes.Take(), QStringList(u"beep"_s));
  }

  void emptyHoursAreLeftWithTheChargeTheyHad() {
    Load();
    Enter(0, u"2"_s);
    Enter(0, u""_s);
    QCOMPARE(Invoice().LaborAmount[0], Currency::FromUnits(900000));
    QVERIFY(Boxes().txtHours[0].isEmpty());
  }

  void clearingSetsOnlyVisibleHoursToZero() {
    Load();
    Enter(0, u"2"_s);
    Boxes().txtHours[1] = u"kept"_s;
    Boxes().lblLaborCharge[3] = u"$90.00"_s;
    ClearLabor(Invoice());
    QCOMPARE(Boxes().txtHours, (std::array<QString, 3>{u"0"_s, u"kept"_s, u"0"_s}));
    QCOMPARE(Boxes().lblLaborCharge, (std::array<QString, 4>{u"$0.00"_s, u"$0.00"_s, u"$0.00"_s, u"$0.00"_s}));
    QCOMPARE(Invoice().LaborAmount, (std::array<Currency, 3>{}));
  }

  void theSumEnablesPostingAndSendsTheFocusThere() {
    Load();
    Enter(0, u"2"_s);
    Enter(2, u"1"_s);
    SumLabor(Invoice());
    QCOMPARE(Boxes().lblLaborCharge[3], u"$123.33"_s);
    QVERIFY(Invoice().Controls.Enabled.cmdLabor_1);
    QCOMPARE(m_desk->Focus(), u"cmdLabor_1"_s);
  }

  void everySlotWithAChargeBecomesALine() {
    Load();
    m_desk->Tax.ckLabor = true;
    m_desk->AddLine({u"1"_s, u"Rope"_s});
    Enter(0, u"2"_s);
    Enter(2, u"1.5"_s);
    SumLabor(Invoice());
    Post();
    QCOMPARE(Invoice().LineCount, qint16(3));
    QCOMPARE(m_desk->Row(2), QStringList({u"2 Hrs"_s, u"General Labor"_s, u""_s, u"$45.00"_s, u"$90.00"_s, u"True"_s}));
    QCOMPARE(m_desk->Row(3), QStringList({u"1.5 Hrs"_s, u"Rigger"_s, u""_s, u"$33.33"_s, u"$50.00"_s, u"True"_s}));
    QVERIFY(Invoice().Controls.Enabled.cmdPrint);
    QVERIFY(!Invoice().Controls.Enabled.cmdLabor_1);
  }

  void withoutAChargeNothingIsPosted() {
    Load();
    Post();
    QCOMPARE(Invoice().LineCount, qint16(0));
    QVERIFY(!Invoice().Controls.Enabled.cmdPrint);
  }

  void theHundredthLaborLineStandsSilentlyAndOneMoreIsTheGridsError() {
    Load();
    for (int i = 0; i < 99; ++i) m_desk->AddLine({u"1"_s, u"Rope"_s});
    Enter(0, u"2"_s);
    Post();
    QCOMPARE(Invoice().LineCount, qint16(100));
    QVERIFY(m_desk->Boxes.Said.isEmpty());
    QCOMPARE(ErrorOf([&] { Post(); }), 9);
    QCOMPARE(Invoice().LineCount, qint16(100));
  }

  void withoutRoomForAllSlotsNoneIsPosted() {
    Load();
    for (int i = 0; i < 99; ++i) m_desk->AddLine({u"1"_s, u"Rope"_s});
    Enter(0, u"2"_s);
    Enter(2, u"1"_s);
    SumLabor(Invoice());
    QCOMPARE(ErrorOf([&] { Post(); }), 9);
    QCOMPARE(Invoice().LineCount, qint16(99));
    QCOMPARE(m_desk->Row(100), QStringList(6, QString()));
    QVERIFY(!Invoice().Controls.Enabled.cmdPrint);
    QVERIFY(Invoice().Controls.Enabled.cmdLabor_1);
  }
};

QTEST_GUILESS_MAIN(LaborEntryTest)
#include "tst_laborEntry.moc"
