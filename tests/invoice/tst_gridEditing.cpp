// Editing posted lines in the grid.
#include <QtTest>

#include "invoice/GridEditing.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

class GridEditingTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  TextMatrix& Grid() { return m_desk->Invoice.fgInvoice; }
  void At(int row, int column) {
    Grid().SetRow(row);
    Grid().SetCol(column);
  }
  void Type(const QString& keys) {
    for (const QChar key : keys) TypeInGrid(Invoice(), key.unicode(), m_desk->Boxes);
  }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    m_desk->AddLine({u"2"_s, u"Rope"_s, u""_s, u"$4.00"_s, u"$8.00"_s, u"True"_s});
    m_desk->AddLine({u""_s, u"Survey"_s, u"3/1/2026"_s, u"$80.00"_s, u"$80.00"_s, u"False"_s});
    m_desk->AddLine({u"2 Hrs"_s, u"Rigger"_s, u""_s, u"$33.00"_s, u"$66.00"_s, u"False"_s});
    m_desk->AddLine({u"5"_s, u"Twine"_s, u""_s, u"$1.00"_s, u"$5.00"_s, u"True"_s});
  }

  void keysInThePrice_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("extension");
    QTest::newRow("digits are appended") << u"$4.00"_s << u"15"_s << u"$4.0015"_s << u"$8.00"_s;
    QTest::newRow("backspace zeroes price and extension") << u"$4.00"_s << u"\b"_s << u"$0.00"_s << u"$0.00"_s;
    QTest::newRow("a zero price is typed over") << u"$0.00"_s << u"12.5"_s << u"12.5"_s << u"$8.00"_s;
    QTest::newRow("one point only") << u"1.5"_s << u"."_s << u"1.5"_s << u"$8.00"_s;
    QTest::newRow("letters are refused") << u"1"_s << u"a-, "_s << u"1"_s << u"$8.00"_s;
    QTest::newRow("a refused key blanks the zero first") << u"$0.00"_s << u"a"_s << u""_s << u"$8.00"_s;
    QTest::newRow("a lone point") << u"$0.00"_s << u"."_s << u"."_s << u"$8.00"_s;
  }
  void keysInThePrice() {
    QFETCH(const QString, before);
    QFETCH(const QString, keys);
    QFETCH(const QString, after);
    QFETCH(const QString, extension);
    At(1, LineColumn::UnitPrice);
    Grid().SetText(1, 3, before);
    Type(keys);
    QCOMPARE(m_desk->Row(1), QStringList({u"2"_s, u"Rope"_s, u""_s, after, extension, u"True"_s}));
  }

  void keysInTheQuantity_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("extension");
    QTest::newRow("digits are appended") << u"50"_s << u"250"_s << u"$8.00"_s;
    QTest::newRow("backspace blanks it and zeroes the extension") << u"\b"_s << u""_s << u"$0.00"_s;
    QTest::newRow("no point") << u".5"_s << u"25"_s << u"$8.00"_s;
    QTest::newRow("no letters") << u"x"_s << u"2"_s << u"$8.00"_s;
  }
  void keysInTheQuantity() {
    QFETCH(const QString, keys);
    QFETCH(const QString, after);
    QFETCH(const QString, extension);
    At(1, LineColumn::Quantity);
    Type(keys);
    QCOMPARE(m_desk->Row(1), QStringList({after, u"Rope"_s, u""_s, u"$4.00"_s, extension, u"True"_s}));
  }

  void keysElsewhereDoNothing() {
    for (const int column : {1, 2, 4, 5}) {
      At(1, column);
      Type(u"5\b"_s);
    }
    Grid().SetRow(0);
    Grid().SetCol(3);
    Type(u"5\b"_s);
    QCOMPARE(m_desk->Row(1), QStringList({u"2"_s, u"Rope"_s, u""_s, u"$4.00"_s, u"$8.00"_s, u"True"_s}));
    QCOMPARE(Grid().Text(0, 3), u"Unit Price"_s);
  }

  void aLaborRowIsntChangedAndSaysWhy() {
    At(3, LineColumn::UnitPrice);
    Type(u"5"_s);
    QCOMPARE(m_desk->Boxes.Take(), QStringList(u": Labor cannot be changed inside the Invoice Body\r\n"
                                               u"Delete the Labor Item and Re-enter from the labor Grid)"_s));
    QCOMPARE(m_desk->Row(3), QStringList({u"2 Hrs"_s, u"Rigger"_s, u""_s, u"$33.00"_s, u"$66.00"_s, u"False"_s}));
  }

  void enterRecalculatesTheRow_data() {
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("newPrice");
    QTest::addColumn<QString>("extension");
    QTest::newRow("whole") << u"3"_s << u"12.5"_s << u"$12.50"_s << u"$37.50"_s;
    QTest::newRow("from the price as shown") << u"3"_s << u"33.335"_s << u"$33.34"_s << u"$100.02"_s;
    QTest::newRow("fraction") << u"2.5"_s << u"$1,000.00"_s << u"$1,000.00"_s << u"$2,500.00"_s;
    QTest::newRow("digits behind the cents") << u"2"_s << u"$4.0015"_s << u"$4.00"_s << u"$8.00"_s;
    QTest::newRow("no quantity") << u""_s << u"12.5"_s << u"12.5"_s << u"old"_s;
    QTest::newRow("no price") << u"3"_s << u""_s << u""_s << u"old"_s;
    QTest::newRow("only a point") << u"3"_s << u"."_s << u"."_s << u"old"_s;
    QTest::newRow("labor") << u"2 Hrs"_s << u"12.5"_s << u"12.5"_s << u"old"_s;
  }
  void enterRecalculatesTheRow() {
    QFETCH(const QString, quantity);
    QFETCH(const QString, price);
    QFETCH(const QString, newPrice);
    QFETCH(const QString, extension);
    Grid().SetText(1, 0, quantity);
    Grid().SetText(1, 3, price);
    Grid().SetText(1, 4, u"old"_s);
    At(1, 3);
    RecalculateRow(Invoice());
    QCOMPARE(m_desk->Row(1), QStringList({quantity, u"Rope"_s, u""_s, newPrice, extension, u"True"_s}));
  }

  void aQuantityThatIsNoNumberIsAnErrorAndChangesNothing() {
    Grid().SetText(1, 0, u"3x"_s);
    Grid().SetText(1, 3, u"12.5"_s);
    At(1, 3);
    QCOMPARE(ErrorOf([&] { RecalculateRow(Invoice()); }), 13);
    QCOMPARE(m_desk->Row(1), QStringList({u"3x"_s, u"Rope"_s, u""_s, u"12.5"_s, u"$8.00"_s, u"True"_s}));
    Grid().SetRow(0);
    RecalculateRow(Invoice());
  }

  void anEditedPriceWithoutEnterLeavesAStaleExtension() {
    At(1, LineColumn::UnitPrice);
    Type(u"9"_s);
    At(2, 1);
    QCOMPARE(m_desk->Row(1).at(3), u"$4.009"_s);
    QCOMPARE(m_desk->Row(1).at(4), u"$8.00"_s);
  }

  void aClickInApplyTaxFlipsIt() {
    At(1, LineColumn::ApplyTax);
    ClickGrid(Invoice());
    QCOMPARE(m_desk->Row(1).at(5), u"False"_s);
    ClickGrid(Invoice());
    QCOMPARE(m_desk->Row(1).at(5), u"True"_s);
    At(1, LineColumn::Extension);
    ClickGrid(Invoice());
    QCOMPARE(m_desk->Row(1).at(5), u"True"_s);
    QVERIFY(Invoice().Controls.Enabled.UpDown1);
  }

  void aServiceLinesTaxCantBeFlippedNorItsLineMoved() {
    At(2, LineColumn::ApplyTax);
    ClickGrid(Invoice());
    QCOMPARE(m_desk->Row(2).at(5), u"False"_s);
    QVERIFY(!Invoice().Controls.Enabled.UpDown1);
    Grid().SetRow(0);
    ClickGrid(Invoice());
    QCOMPARE(Grid().Text(0, 5), u"Apply Tax"_s);
  }

  void theDownArrowMovesALineUpAndTheUpArrowDown() {
    At(4, 0);
    MoveLine(Invoice(), true);
    QCOMPARE(Grid().Row(), 3);
    QCOMPARE(m_desk->Row(3), QStringList({u"5"_s, u"Twine"_s, u""_s, u"$1.00"_s, u"$5.00"_s, u"True"_s}));
    QCOMPARE(m_desk->Row(4), QStringList({u"2 Hrs"_s, u"Rigger"_s, u""_s, u"$33.00"_s, u"$66.00"_s, u"False"_s}));
    MoveLine(Invoice(), false);
    QCOMPARE(Grid().Row(), 4);
    QCOMPARE(m_desk->Row(4).at(1), u"Twine"_s);
  }

  void aLineDoesntMovePastAServiceNorPastTheFirstRow() {
    At(1, 0);
    MoveLine(Invoice(), true);
    MoveLine(Invoice(), false);
    QCOMPARE(Grid().Row(), 1);
    QCOMPARE(m_desk->Row(1).at(1), u"Rope"_s);
  }

  void deletingAsksAndTakesTheLineOut() {
    Invoice().Controls.Enabled.cmdPost = {true, false, true, true};
    At(2, 0);
    QVERIFY(CanDeleteLine(Invoice()));
    m_desk->Boxes.Answers = {false};
    DeleteItem(Invoice(), m_desk->Boxes);
    QCOMPARE(m_desk->Boxes.Take(), QStringList(u"Item Deletion? Delete item Survey from Invoice?"_s));
    QCOMPARE(Invoice().LineCount, qint16(4));
    m_desk->Boxes.Answers = {true};
    DeleteItem(Invoice(), m_desk->Boxes);
    QCOMPARE(Invoice().LineCount, qint16(3));
    QCOMPARE(Grid().Rows(), 101);
    QCOMPARE(m_desk->Row(2).at(1), u"Rigger"_s);
    QCOMPARE(m_desk->Row(3).at(1), u"Twine"_s);
    QCOMPARE(m_desk->Row(4), QStringList({u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}));
    QCOMPARE(Invoice().Controls.Enabled.cmdPost, (std::array<bool, 4>{true, true, true, true}));
  }

  void withoutADescriptionThereIsNothingToDelete() {
    At(5, 0);
    QVERIFY(!CanDeleteLine(Invoice()));
    DeleteItem(Invoice(), m_desk->Boxes);
    Grid().SetRow(0);
    QVERIFY(!CanDeleteLine(Invoice()));
    DeleteGridLine(Invoice());
    QVERIFY(m_desk->Boxes.Said.isEmpty());
    QCOMPARE(Invoice().LineCount, qint16(4));
    QCOMPARE(Grid().Rows(), 101);
  }
};

QTEST_GUILESS_MAIN(GridEditingTest)
#include "tst_gridEditing.moc"
