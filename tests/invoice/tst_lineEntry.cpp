// Posting lines from the entry boxes.
#include <QtTest>

#include "catalogue/CatalogueRecords.h"
#include "invoice/LineEntry.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

Currency Dollars(qint64 dollars) {
  return Currency::FromUnits(dollars * 10000);
}

}  // namespace

class LineEntryTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  LineEntryBoxes& Boxes() { return m_desk->Invoice.Entry; }
  void Post(int kind) { PostLine(m_desk->Entry(), kind); }
  void Pick(int element, int index) { SelectDescription(Invoice(), m_desk->Lists, element, index); }

  /// The boxes of a kind, filled so that a post succeeds.
  void FillBoxes(int kind) {
    const auto element = static_cast<size_t>(ElementOf(kind));
    if (kind == LineKind::Manual) {
      Boxes().txtManual = {u"Twine"_s, u"4"_s, u"2"_s};
      return;
    }
    Boxes().cboDescription[element].Text = u"Rope"_s;
    Boxes().cboPrice[element].Text = u"4"_s;
    Boxes().txtUnits = Boxes().txtCUnits = u"2"_s;
  }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    CatalogueLists& lists = m_desk->Lists;
    lists.Entries[0] = {{u"Survey"_s, 80, u"$80.00"_s}, {u"Towing"_s, 120, u"$120.00"_s}};
    lists.Entries[1] = {{u"Anchor"_s, 0, u"$50.00"_s}, {u"Rope"_s, 1, u"$4.00"_s}};
    lists.ItemBreaks = {{}, {Dollars(45), 0}, {Dollars(3), 10}};
    lists.Entries[2] = {{u"sail"_s, 0, u"$900.00"_s}, {u"Awning"_s, 1, u"$300.00"_s}, {u"Cover"_s, 2, u"$75.00"_s}};
    lists.CustomBreaks = {{}, {Dollars(800), 2}, {Dollars(250), 5}, {}};
  }

  void aServiceLineHasADateAndNoQuantity() {
    Pick(0, 1);
    Post(LineKind::Service);
    QCOMPARE(m_desk->Row(1), QStringList({u""_s, u"Towing"_s, u"3/7/2026"_s, u"$120.00"_s, u"$120.00"_s, u"False"_s}));
    QCOMPARE(Invoice().LineCount, qint16(1));
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void aServicePriceKeepsItsFourDecimalsUntilItIsShown() {
    Boxes().cboDescription[0].Text = u"Survey"_s;
    Boxes().cboPrice[0].Text = u"33.335"_s;
    Post(LineKind::Service);
    QCOMPARE(m_desk->Row(1), QStringList({u""_s, u"Survey"_s, u"3/7/2026"_s, u"$33.34"_s, u"$33.34"_s, u"False"_s}));
  }

  void threeUnitsAt33335Extend10001() {
    Boxes().cboDescription[1].Text = u"Rope"_s;
    Boxes().cboPrice[1].Text = u"33.335"_s;
    Boxes().txtUnits = u"3"_s;
    Post(LineKind::Item);
    QCOMPARE(m_desk->Row(1), QStringList({u"3"_s, u"Rope"_s, u""_s, u"$33.34"_s, u"$100.01"_s, u"True"_s}));
  }

  void anItemLineHasUnitsAndNoDate() {
    Pick(1, 0);
    Boxes().txtUnits = u"2.5"_s;
    Post(LineKind::Item);
    QCOMPARE(m_desk->Row(1), QStringList({u"2.5"_s, u"Anchor"_s, u""_s, u"$50.00"_s, u"$125.00"_s, u"True"_s}));
  }

  void aManualLineStandsAsTyped() {
    Boxes().txtManual = {u"Odd job"_s, u"12.5"_s, u"4"_s};
    Post(LineKind::Manual);
    QCOMPARE(m_desk->Row(1), QStringList({u"4"_s, u"Odd job"_s, u""_s, u"$12.50"_s, u"$50.00"_s, u"False"_s}));
  }

  void aManualLineWithoutAQuantityPostsAsOne() {
    Boxes().txtManual = {u"Odd job"_s, u"$12.50"_s, u""_s};
    Post(LineKind::Manual);
    QCOMPARE(m_desk->Row(1), QStringList({u"1"_s, u"Odd job"_s, u""_s, u"$12.50"_s, u"$12.50"_s, u"False"_s}));
  }

  void aManualQuantityThatIsNoNumberPostsAsOne() {
    Boxes().txtManual = {u"Odd job"_s, u"5"_s, u"2 boxes"_s};
    Post(LineKind::Manual);
    QCOMPARE(m_desk->Row(1).at(0), u"1"_s);
    QCOMPARE(m_desk->Row(1).at(4), u"$5.00"_s);
  }

  void aManualQuantityIsParsedUpToItsComma() {
    Boxes().txtManual = {u"Odd job"_s, u"5"_s, u"1,200"_s};
    Post(LineKind::Manual);
    QCOMPARE(m_desk->Row(1).at(0), u"1,200"_s);
    QCOMPARE(m_desk->Row(1).at(4), u"$5.00"_s);
  }

  void aManualLineIsRefusedBoxByBox_data() {
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QString>("focus");
    QTest::addColumn<QStringList>("said");
    const QStringList beep{u"beep"_s};
    QTest::newRow("no price") << QStringList({u"Job"_s, u""_s, u""_s}) << QStringList({u"Job"_s, u""_s, u""_s})
                              << u"txtManual_1"_s << beep;
    QTest::newRow("price zero") << QStringList({u"Job"_s, u"$0.00"_s, u""_s})
                                << QStringList({u"Job"_s, u"$0.00"_s, u""_s}) << u"txtManual_1"_s << beep;
    QTest::newRow("no description") << QStringList({u""_s, u"5"_s, u""_s}) << QStringList({u""_s, u"5"_s, u"1"_s})
                                    << u"txtManual_0"_s << QStringList();
    QTest::newRow("price no number") << QStringList({u"Job"_s, u"."_s, u"x"_s})
                                     << QStringList({u"Job"_s, u"0"_s, u"x"_s}) << u"txtManual_1"_s << QStringList();
  }
  void aManualLineIsRefusedBoxByBox() {
    QFETCH(const QStringList, boxes);
    QFETCH(const QStringList, after);
    QFETCH(const QString, focus);
    QFETCH(const QStringList, said);
    Boxes().txtManual = {boxes[0], boxes[1], boxes[2]};
    Post(LineKind::Manual);
    QCOMPARE(QStringList(Boxes().txtManual.begin(), Boxes().txtManual.end()), after);
    QCOMPARE(m_desk->Focus(), focus);
    QCOMPARE(m_desk->Boxes.Take(), said);
    QCOMPARE(Invoice().LineCount, qint16(0));
    QCOMPARE(m_desk->Row(1), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    QVERIFY(Invoice().Controls.Enabled.cmdPrint);
  }

  void aListLineIsRefusedBoxByBox_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("focus");
    QTest::newRow("service, no price") << 0 << u"Survey"_s << u""_s << u"cboPrice_0"_s;
    QTest::newRow("service, price no number") << 0 << u"Survey"_s << u"cheap"_s << u"cboPrice_0"_s;
    QTest::newRow("service, no description") << 0 << u""_s << u"5"_s << u"cboDescription_0"_s;
    QTest::newRow("item, no price, before the description") << 1 << u""_s << u""_s << u"cboPrice_1"_s;
    QTest::newRow("item, no description") << 1 << u""_s << u"5"_s << u"cboDescription_1"_s;
    QTest::newRow("item, no units") << 1 << u"Rope"_s << u"5"_s << u"txtUnits"_s;
    QTest::newRow("custom, no price") << 3 << u"Sail"_s << u""_s << u"cboPrice_2"_s;
    QTest::newRow("custom, no description") << 3 << u""_s << u"5"_s << u"cboDescription_2"_s;
    QTest::newRow("custom, no units") << 3 << u"Sail"_s << u"5"_s << u"txtCUnits"_s;
  }
  void aListLineIsRefusedBoxByBox() {
    QFETCH(const int, kind);
    QFETCH(const QString, description);
    QFETCH(const QString, price);
    QFETCH(const QString, focus);
    const auto element = static_cast<size_t>(ElementOf(kind));
    Boxes().cboDescription[element].Text = description;
    Boxes().cboPrice[element].Text = price;
    Post(kind);
    QCOMPARE(m_desk->Focus(), focus);
    QCOMPARE(m_desk->Boxes.Take(), QStringList(u"beep"_s));
    QCOMPARE(Invoice().LineCount, qint16(0));
    QVERIFY(Invoice().Controls.Enabled.cmdPrint);
  }

  void unitsThatDontConvertFailThePostAndLeaveNothingInTheGrid_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("box");
    QTest::newRow("item") << 1 << u"txtUnits"_s;
    QTest::newRow("custom") << 3 << u"txtCUnits"_s;
  }
  void unitsThatDontConvertFailThePostAndLeaveNothingInTheGrid() {
    QFETCH(const int, kind);
    QFETCH(const QString, box);
    FillBoxes(kind);
    Boxes().txtUnits = Boxes().txtCUnits = u"12abc"_s;
    const RuntimeError thrown = CaughtFrom([&] { Post(kind); });
    QCOMPARE(thrown.Number(), 13);
    QCOMPARE(thrown.Subject(), box);
    QCOMPARE(Invoice().LineCount, qint16(0));
    QCOMPARE(m_desk->Row(1), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    QVERIFY(Invoice().Controls.Enabled.cmdPrint);
  }

  void anItemAtTheBreakQuantityTakesTheDiscountPrice_data() {
    QTest::addColumn<bool>("applies");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<bool>("mark");
    QTest::newRow("exactly the quantity") << true << 1 << u"10"_s << u"$3.00"_s << u"$30.00"_s << true;
    QTest::newRow("one fewer") << true << 1 << u"9"_s << u"$4.00"_s << u"$36.00"_s << false;
    QTest::newRow("a fraction fewer") << true << 1 << u"9.99"_s << u"$4.00"_s << u"$39.96"_s << false;
    QTest::newRow("more") << true << 1 << u"11"_s << u"$3.00"_s << u"$33.00"_s << true;
    QTest::newRow("not asked for") << false << 1 << u"10"_s << u"$4.00"_s << u"$40.00"_s << false;
    QTest::newRow("units 0 never") << true << 0 << u"1000"_s << u"$50.00"_s << u"$50,000.00"_s << false;
  }
  void anItemAtTheBreakQuantityTakesTheDiscountPrice() {
    QFETCH(const bool, applies);
    QFETCH(const int, index);
    QFETCH(const QString, units);
    QFETCH(const QString, price);
    QFETCH(const QString, extension);
    QFETCH(const bool, mark);
    Invoice().ckApplyVolumeDiscount = applies;
    Invoice().Controls.Visible.Label4_42 = true;
    Pick(1, index);
    Boxes().txtUnits = units;
    Post(LineKind::Item);
    QCOMPARE(m_desk->Row(1).at(3), price);
    QCOMPARE(m_desk->Row(1).at(4), extension);
    QCOMPARE(Invoice().Controls.Visible.Label4_42, mark);
  }

  void aHandTypedPriceHasNoBreak() {
    Invoice().ckApplyVolumeDiscount = true;
    Pick(1, 1);
    TypePrice(Invoice(), 1, u"6"_s);
    QCOMPARE(Boxes().cboPrice[1].ListIndex, -1);
    Boxes().txtUnits = u"10"_s;
    Post(LineKind::Item);
    QCOMPARE(m_desk->Row(1).at(3), u"$6.00"_s);
  }

  void aCustomBreakFollowsThePickedPriceAndHasNoMark() {
    Invoice().ckApplyVolumeDiscount = true;
    Pick(2, 0);  // "Awning" comes first in the sorted list and second in the price list.
    Boxes().txtCUnits = u"5"_s;
    Post(LineKind::Custom);
    QCOMPARE(m_desk->Row(1), QStringList({u"5"_s, u"Awning"_s, u""_s, u"$250.00"_s, u"$1,250.00"_s, u"False"_s}));
    QVERIFY(!Invoice().Controls.Visible.Label4_42);
  }

  void eachKindFollowsItsOwnTaxSwitch_data() {
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind <= 4; ++kind) QTest::addRow("%d", kind) << kind;
  }
  void eachKindFollowsItsOwnTaxSwitch() {
    QFETCH(const int, kind);
    TaxConfiguration& tax = m_desk->Tax;
    const std::array<bool*, 5> switches{&tax.ckServices, &tax.ckSalesItems, &Invoice().ckManualTax, &tax.ckCustom,
                                        &tax.ckLabor};
    for (int i = 0; i <= 4; ++i) *switches[static_cast<size_t>(i)] = i == kind;
    SetApplyTax(Invoice(), kind, tax);
    QCOMPARE(m_desk->Row(1).at(5), u"True"_s);
    for (int i = 0; i <= 4; ++i) *switches[static_cast<size_t>(i)] = i != kind;
    SetApplyTax(Invoice(), kind, tax);
    QCOMPARE(m_desk->Row(1).at(5), u"False"_s);
  }

  void theHundredthLineStandsBeforeTheMessageAndClosesOnlyItsButton() {
    for (int i = 0; i < 99; ++i) m_desk->AddLine({u"1"_s, u"Rope"_s});
    FillBoxes(LineKind::Item);
    QStringList behindBox;
    m_desk->Boxes.OnBox = [&] { behindBox = m_desk->Row(100); };
    Post(LineKind::Item);
    QCOMPARE(m_desk->Boxes.Take(), QStringList({u"beep"_s, u": The Invoice is full"_s}));
    QCOMPARE(behindBox, QStringList({u"2"_s, u"Rope"_s, u""_s, u"$4.00"_s, u"$8.00"_s, u"True"_s}));
    QCOMPARE(Invoice().LineCount, qint16(100));
    QCOMPARE(Invoice().Controls.Enabled.cmdPost, (std::array<bool, 4>{true, false, true, true}));
  }

  void aLineTooManyIsTheGridsErrorAndPostsNothing_data() {
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind <= 3; ++kind) QTest::addRow("%d", kind) << kind;
  }
  void aLineTooManyIsTheGridsErrorAndPostsNothing() {
    QFETCH(const int, kind);
    for (int i = 0; i < 100; ++i) m_desk->AddLine({u"1"_s, u"Rope"_s});
    FillBoxes(kind);
    const RuntimeError thrown = CaughtFrom([&] { Post(kind); });
    QCOMPARE(thrown.Number(), 9);
    QCOMPARE(thrown.Subject(), u"fgInvoice"_s);
    QCOMPARE(Invoice().LineCount, qint16(100));
    QCOMPARE(Invoice().fgInvoice.Rows(), 101);
    QVERIFY(m_desk->Boxes.Said.isEmpty());
  }

  void afterAPostTheFirstEntryIsPickedAgain() {
    Pick(1, 1);
    Boxes().txtUnits = u"3"_s;
    Boxes().txtCUnits = u"9"_s;
    Post(LineKind::Item);
    QCOMPARE(Boxes().cboDescription[1].Text, u"Anchor"_s);
    QCOMPARE(Boxes().cboDescription[1].ListIndex, 0);
    QCOMPARE(Boxes().cboPrice[1].Text, u"$50.00"_s);
    QCOMPARE(Boxes().cboPrice[1].ListIndex, 0);
    QVERIFY(Boxes().txtUnits.isEmpty());
    QVERIFY(Boxes().txtCUnits.isEmpty());
    QCOMPARE(m_desk->Focus(), u"txtUnits"_s);
  }

  void afterAServicePostTheFocusIsOnTheDescription() {
    Pick(0, 1);
    Post(LineKind::Service);
    QCOMPARE(Boxes().cboDescription[0].Text, u"Survey"_s);
    QCOMPARE(Boxes().cboPrice[0].Text, u"$80.00"_s);
    QCOMPARE(m_desk->Focus(), u"cboDescription_0"_s);
  }

  void afterACustomPostTheFirstSortedEntryIsPicked() {
    Pick(2, 1);
    Boxes().txtCUnits = u"1"_s;
    Post(LineKind::Custom);
    QCOMPARE(Boxes().cboDescription[2].Text, u"Awning"_s);
    QCOMPARE(Boxes().cboPrice[2].Text, u"$300.00"_s);
    QCOMPARE(m_desk->Focus(), u"txtCUnits"_s);
  }

  void aHiddenOrEmptyListIsLeftWithoutSelection() {
    Pick(0, 1);
    PostLine(m_desk->Entry(), LineKind::Service, false);
    QCOMPARE(Boxes().cboDescription[0].ListIndex, -1);
    QVERIFY(Boxes().cboDescription[0].Text.isEmpty());
    QVERIFY(Boxes().cboPrice[0].Text.isEmpty());
    m_desk->Lists.Entries[0].clear();
    FillBoxes(LineKind::Service);
    Post(LineKind::Service);
    QCOMPARE(Boxes().cboDescription[0].ListIndex, -1);
    QCOMPARE(Invoice().LineCount, qint16(2));
  }

  void afterAManualPostItsBoxesAreEmptyAndThePriceZero() {
    FillBoxes(LineKind::Manual);
    Post(LineKind::Manual);
    QCOMPARE(Boxes().txtManual, (std::array<QString, 3>{u""_s, u"$0.00"_s, u""_s}));
    QVERIFY(m_desk->Focus().isEmpty());
  }

  void aPickedCustomItemShowsThePriceThatItsDataWordSays_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("price");
    QTest::addColumn<int>("priceIndex");
    QTest::newRow("first") << 0 << u"Awning"_s << u"$300.00"_s << 1;
    QTest::newRow("second") << 1 << u"Cover"_s << u"$75.00"_s << 2;
    QTest::newRow("last, in small letters") << 2 << u"sail"_s << u"$900.00"_s << 0;
  }
  void aPickedCustomItemShowsThePriceThatItsDataWordSays() {
    QFETCH(const int, index);
    QFETCH(const QString, description);
    QFETCH(const QString, price);
    QFETCH(const int, priceIndex);
    Pick(2, index);
    QCOMPARE(Boxes().cboDescription[2].Text, description);
    QCOMPARE(Boxes().cboDescription[2].ListIndex, index);
    QCOMPARE(Boxes().cboPrice[2].Text, price);
    QCOMPARE(Boxes().cboPrice[2].ListIndex, priceIndex);
    QCOMPARE(m_desk->Focus(), u"txtCUnits"_s);
  }

  void typingADescriptionBlanksPriceAndUnits() {
    Pick(1, 1);
    Boxes().txtUnits = Boxes().txtCUnits = u"3"_s;
    TypeDescription(Invoice(), 1, u"Ro"_s);
    QCOMPARE(Boxes().cboDescription[1].Text, u"Ro"_s);
    QCOMPARE(Boxes().cboDescription[1].ListIndex, -1);
    QVERIFY(Boxes().cboPrice[1].Text.isEmpty());
    QVERIFY(Boxes().txtUnits.isEmpty());
    QVERIFY(Boxes().txtCUnits.isEmpty());
  }

  void unitsThatAreNoNumberBecomeZeroOnLeaving_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("after");
    QTest::newRow("letters") << u"12abc"_s << u"0"_s;
    QTest::newRow("number") << u"12.5"_s << u"12.5"_s;
    QTest::newRow("empty") << u""_s << u""_s;
  }
  void unitsThatAreNoNumberBecomeZeroOnLeaving() {
    QFETCH(const QString, typed);
    QFETCH(const QString, after);
    Boxes().txtUnits = typed;
    LeaveUnits(Invoice(), m_desk->Boxes);
    QCOMPARE(Boxes().txtUnits, after);
    QCOMPARE(m_desk->Focus(), typed == after ? QString() : u"txtUnits"_s);
    QCOMPARE(m_desk->Boxes.Take(), typed == after ? QStringList() : QStringList(u"beep"_s));
  }

  void boxesBlankTheirZeroOnEntering() {
    QString amount = u"$0.00"_s, other = u"$1.00"_s, count = u"0"_s, ten = u"10"_s;
    EnterAmountBox(amount);
    EnterAmountBox(other);
    EnterCountBox(count);
    EnterCountBox(ten);
    QVERIFY(amount.isEmpty());
    QCOMPARE(other, u"$1.00"_s);
    QVERIFY(count.isEmpty());
    QCOMPARE(ten, u"10"_s);
  }

  void aCategoryNarrowsTheItemsAndTheirBreaks() {
    auto& catalogue = m_desk->Prices;
    QByteArray file;
    for (const auto& [name, category, quantity] :
         {std::tuple{u"Anchor"_s, u"Iron"_s, 0}, {u"Rope"_s, u"Line"_s, 10}, {u"Twine"_s, u"Line"_s, 5}}) {
      InventoryItemRecord record;
      record.Description = name;
      record.Category = category;
      record.Price = Dollars(4);
      record.DiscountPrice = Dollars(3);
      record.DiscountQty = quantity;
      file += record.Bytes();
    }
    m_desk->Write(u"/KVInventoriedItems.txt"_s, file);
    catalogue.LoadAdditionalItems();
    Boxes().txtUnits = u"3"_s;
    Boxes().cboPrice[1] = {u"$1.00"_s, 0};
    PickCategory(Invoice(), catalogue, m_desk->Lists, 2);
    QCOMPARE(m_desk->Lists.Entries[1].size(), size_t(2));
    QVERIFY(Boxes().cboPrice[1].Text.isEmpty());
    QVERIFY(Boxes().txtUnits.isEmpty());
    QCOMPARE(m_desk->Focus(), u"cboDescription_1"_s);
    Invoice().ckApplyVolumeDiscount = true;
    Pick(1, 1);
    QCOMPARE(Boxes().cboDescription[1].Text, u"Twine"_s);
    Boxes().txtUnits = u"5"_s;
    Post(LineKind::Item);
    QCOMPARE(m_desk->Row(1).at(3), u"$3.00"_s);

    PickCategory(Invoice(), catalogue, m_desk->Lists, 0);
    QCOMPARE(m_desk->Lists.Entries[1].size(), size_t(3));
    QCOMPARE(Boxes().cboDescription[1].ListIndex, -1);
  }
};

QTEST_GUILESS_MAIN(LineEntryTest)
#include "tst_lineEntry.moc"
