// The grid behind every list: its cells, its current row, its sorts, and what it tells a view.
#include <QAbstractItemModelTester>
#include <QtTest>

#include "runtime/TextMatrix.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

namespace {

QStringList Column(const TextMatrix& matrix, int col) {
  QStringList texts;
  for (int row = 1; row < matrix.Rows(); ++row) texts.append(matrix.Text(row, col));
  return texts;
}

void Fill(TextMatrix& matrix, const QStringList& texts) {
  matrix.SetRows(static_cast<int>(texts.size()) + 1);
  for (int i = 0; i < texts.size(); ++i) {
    matrix.SetText(i + 1, 0, texts[i]);
    matrix.SetText(i + 1, 1, QString::number(i));
  }
}

}  // namespace

class TextMatrixTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theFormatStringGivesHeadingsAlignmentsAndWidths() {
    const TextMatrix matrix(u"<Description      |^ Tax |>  Price|Plain"_s, 3);
    QCOMPARE(matrix.Cols(), 4);
    QCOMPARE(matrix.Rows(), 3);
    QCOMPARE(matrix.Text(0, 0), u"Description"_s);
    QCOMPARE(matrix.Text(0, 1), u"Tax"_s);
    QCOMPARE(matrix.Text(0, 2), u"Price"_s);
    QCOMPARE(matrix.Text(0, 3), u"Plain"_s);
    QCOMPARE(matrix.Alignment(0), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(matrix.Alignment(1), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(matrix.Alignment(2), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(matrix.Alignment(3), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(matrix.FormatWidth(0), 17);
    QCOMPARE(matrix.FormatWidth(1), 5);
    QCOMPARE(matrix.FormatWidth(2), 7);
    QCOMPARE(matrix.Text(2, 3), QString());
  }

  void theErrorNamesTheRowOrColumnThatIsNotThere() {
    TextMatrix matrix(u"<A|<B"_s, 101);
    QCOMPARE(CaughtFrom([&] { matrix.SetText(101, 0, {}); }).Subject(), u"the grid, row 101"_s);
    QCOMPARE(CaughtFrom([&] { matrix.Text(1, 2); }).Subject(), u"the grid, column 2"_s);
    QCOMPARE(CaughtFrom([&] { matrix.SetRows(0); }).Subject(), u"the grid, row 0"_s);
    QCOMPARE(CaughtFrom([&] { matrix.RemoveItem(0); }).Subject(), u"the grid, row 0"_s);
  }

  void whatIsNotThereIsErrorNine() {
    TextMatrix matrix(u"<A|<B"_s, 3);
    QCOMPARE(ErrorOf([&] { matrix.Text(3, 0); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.Text(0, 2); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.Text(-1, 0); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SetText(1, -1, {}); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SetText(3, 0, {}); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SetRow(3); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SetCol(2); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SetRows(0); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.RemoveItem(0); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.RemoveItem(3); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.InsertItem(0, {u"a"_s, u"b"_s}); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.InsertItem(4, {u"a"_s, u"b"_s}); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.InsertItem(1, {u"a"_s}); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SwapRows(1, 3, 2); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SwapRows(1, 2, 3); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SortGenericAscending(2); }), 9);
    QCOMPARE(ErrorOf([&] { matrix.SortTextIgnoringCase(-1); }), 9);
    QCOMPARE(ErrorOf([] { TextMatrix(u"<A"_s, 0); }), 9);
  }

  void newRowsAreBlankAndLostRowsStayLost() {
    TextMatrix matrix(u"<A|<B"_s, 2);
    matrix.SetText(1, 1, u"x"_s);
    matrix.SetRows(1);
    matrix.SetRows(3);
    QCOMPARE(matrix.Text(1, 1), QString());
    QCOMPARE(matrix.Text(2, 0), QString());
    QCOMPARE(matrix.Text(0, 1), u"B"_s);
  }

  void theCurrentRowStaysInsideAndIsTold() {
    TextMatrix matrix(u"<A"_s, 5);
    QList<int> told;
    matrix.OnRowChanged(this, [&](int row) { told.append(row); });
    QCOMPARE(matrix.Row(), 0);
    matrix.SetRow(4);
    matrix.SetRow(4);
    matrix.RemoveItem(1);
    QCOMPARE(matrix.Row(), 3);
    matrix.SetRows(2);
    QCOMPARE(matrix.Row(), 1);
    matrix.SetRow(0);
    QCOMPARE(told, (QList<int>{4, 3, 1, 0}));
  }

  void whoeverHasGoneOrAskedToBeForgottenIsNotTold() {
    TextMatrix matrix(u"<A"_s, 5);
    QStringList told;
    auto first = std::make_unique<QObject>(), second = std::make_unique<QObject>();
    QObject third;
    matrix.OnRowChanged(first.get(), [&](int row) { told.append(u"first %1"_s.arg(row)); });
    matrix.OnRowChanged(second.get(), [&](int row) { told.append(u"second %1"_s.arg(row)); });
    matrix.OnRowChanged(&third, [&](int row) { told.append(u"third %1"_s.arg(row)); });
    matrix.SetRow(1);
    first.reset();
    matrix.SetRow(2);
    matrix.ForgetRowChanged(&third);
    matrix.SetRow(3);
    QCOMPARE(told,
             (QStringList{u"first 1"_s, u"second 1"_s, u"third 1"_s, u"second 2"_s, u"third 2"_s, u"second 3"_s}));
  }

  void aListenerMayTakeAnotherWithIt() {
    TextMatrix matrix(u"<A"_s, 5);
    QList<int> told;
    auto second = std::make_unique<QObject>();
    matrix.OnRowChanged(this, [&](int) { second.reset(); });
    matrix.OnRowChanged(second.get(), [&](int row) { told.append(row); });
    matrix.SetRow(1);
    QCOMPARE(told, QList<int>{});
  }

  void aViewThatAsksForWhatIsNotThereGetsNothing() {
    TextMatrix matrix(u"<A|<B"_s, 3);
    const QModelIndex last = matrix.index(1, 1);
    QCOMPARE(matrix.data(last, Qt::DisplayRole), QVariant(QString()));
    matrix.SetRows(2);
    for (const int role : {Qt::DisplayRole, Qt::TextAlignmentRole}) {
      QVERIFY(!matrix.data(last, role).isValid());
      QVERIFY(!matrix.headerData(2, Qt::Horizontal, role).isValid());
      QVERIFY(!matrix.headerData(-1, Qt::Horizontal, role).isValid());
      QVERIFY(!matrix.headerData(0, Qt::Vertical, role).isValid());
    }
  }

  void removingARowMovesTheOthersUp() {
    TextMatrix matrix(u"<A|<B"_s);
    Fill(matrix, {u"a"_s, u"b"_s, u"c"_s});
    matrix.RemoveItem(2);
    QCOMPARE(Column(matrix, 0), (QStringList{u"a"_s, u"c"_s}));
    matrix.RemoveItem(1);
    matrix.RemoveItem(1);
    QCOMPARE(matrix.Rows(), 1);
  }

  void aRemovedRowCanBePutBackWhereItStood() {
    TextMatrix matrix(u"<A|<B"_s);
    Fill(matrix, {u"a"_s, u"b"_s, u"c"_s});
    matrix.SetRow(2);
    for (const int row : {1, 2, 3}) {
      const QStringList texts = matrix.RemoveItem(row);
      QCOMPARE(texts, (QStringList{QString(u"abc"_s[row - 1]), QString::number(row - 1)}));
      matrix.InsertItem(row, texts);
      QCOMPARE(Column(matrix, 0), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
      QCOMPARE(Column(matrix, 1), (QStringList{u"0"_s, u"1"_s, u"2"_s}));
      QCOMPARE(matrix.Row(), 2);
      QCOMPARE(matrix.rowCount(), 3);
    }
  }

  void rowsSwapInTheGivenColumnsOnly() {
    TextMatrix matrix(u"<A|<B"_s);
    Fill(matrix, {u"a"_s, u"b"_s});
    matrix.SwapRows(1, 2, 1);
    QCOMPARE(Column(matrix, 0), (QStringList{u"b"_s, u"a"_s}));
    QCOMPARE(Column(matrix, 1), (QStringList{u"0"_s, u"1"_s}));
  }

  void clearingBlanksDataAndKeepsHeadings() {
    TextMatrix matrix(u"<A|<B"_s);
    Fill(matrix, {u"a"_s, u"b"_s});
    matrix.Clear();
    QCOMPARE(matrix.Rows(), 3);
    QCOMPARE(Column(matrix, 0), (QStringList{QString(), QString()}));
    QCOMPARE(matrix.Text(0, 0), u"A"_s);
  }

  void theGenericOrderComparesNumbersAsNumbersAndTextsByCode_data() {
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("sorted");
    QTest::newRow("numbers") << QStringList{u"10"_s, u"9"_s, u"-1"_s, u"$2.50"_s, u"1,000"_s}
                             << QStringList{u"-1"_s, u"$2.50"_s, u"9"_s, u"10"_s, u"1,000"_s};
    QTest::newRow("texts by code") << QStringList{u"b"_s, u"a"_s, u"B"_s, u"_"_s}
                                   << QStringList{u"B"_s, u"_"_s, u"a"_s, u"b"_s};
    QTest::newRow("a number against a text")
        << QStringList{u"a"_s, u"5"_s, u" x"_s} << QStringList{u" x"_s, u"5"_s, u"a"_s};
    QTest::newRow("blanks first") << QStringList{u"a"_s, u""_s, u"1"_s, u""_s}
                                  << QStringList{u""_s, u""_s, u"1"_s, u"a"_s};
    QTest::newRow("beyond any number is text") << QStringList{u"2"_s, u"1E400"_s} << QStringList{u"1E400"_s, u"2"_s};
    QTest::newRow("one") << QStringList{u"a"_s} << QStringList{u"a"_s};
    QTest::newRow("none") << QStringList{} << QStringList{};
  }
  void theGenericOrderComparesNumbersAsNumbersAndTextsByCode() {
    QFETCH(QStringList, texts);
    QFETCH(QStringList, sorted);
    TextMatrix matrix(u"<A|<B"_s);
    Fill(matrix, texts);
    matrix.SortGenericAscending(0);
    QCOMPARE(Column(matrix, 0), sorted);
    QCOMPARE(matrix.Text(0, 0), u"A"_s);
  }

  void everyOrderIsStable() {
    TextMatrix matrix(u"<A|<B"_s);
    Fill(matrix, {u"b"_s, u"A"_s, u"a"_s, u"b"_s, u"a"_s, u"B"_s, u"A"_s});
    matrix.SortTextIgnoringCase(0);
    QCOMPARE(Column(matrix, 0), (QStringList{u"A"_s, u"a"_s, u"a"_s, u"A"_s, u"b"_s, u"b"_s, u"B"_s}));
    QCOMPARE(Column(matrix, 1), (QStringList{u"1"_s, u"2"_s, u"4"_s, u"6"_s, u"0"_s, u"3"_s, u"5"_s}));
    Fill(matrix, {u"1.0"_s, u"1"_s, u"0"_s, u"1.00"_s});
    matrix.SortGenericAscending(0);
    QCOMPARE(Column(matrix, 0), (QStringList{u"0"_s, u"1.0"_s, u"1"_s, u"1.00"_s}));
  }

  void theGenericOrderRunsTheOtherWayRoundAndStaysStable() {
    TextMatrix matrix(u"a|b"_s, 6);
    const QList<QStringList> rows{
        {u"2"_s, u"x"_s}, {u"10"_s, u"y"_s}, {u"b"_s, u"z"_s}, {u"2.0"_s, u"v"_s}, {u"B"_s, u"w"_s}};
    for (int row = 1; row <= 5; ++row) {
      for (int col = 0; col < 2; ++col) matrix.SetText(row, col, rows[row - 1][col]);
    }
    matrix.SortGenericDescending(0);
    QStringList order;
    for (int row = 1; row <= 5; ++row) order.append(matrix.Text(row, 1));
    QCOMPARE(order, (QStringList{u"z"_s, u"w"_s, u"y"_s, u"x"_s, u"v"_s}));
    QCOMPARE(ErrorOf([&] { matrix.SortGenericDescending(2); }), 9);
  }

  void aMixtureThatHasNoConsistentOrderStillEndsWithEveryRow() {
    TextMatrix matrix(u"<A|<B"_s);
    QStringList texts;
    for (int i = 0; i < 300; ++i) texts << u"2"_s << u"10"_s << u"1a"_s;  // each before the next, and round again
    Fill(matrix, texts);
    matrix.SortGenericAscending(0);
    QStringList after = Column(matrix, 0);
    after.sort();
    texts.sort();
    QCOMPARE(after, texts);
  }

  void rowsSortByAnyRule() {
    TextMatrix matrix(u"<A|<B"_s);
    Fill(matrix, {u"a"_s, u"b"_s, u"c"_s});
    matrix.SetRow(1);
    matrix.SortRows([](const QStringList& x, const QStringList& y) { return x[1].toInt() > y[1].toInt(); });
    QCOMPARE(Column(matrix, 0), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
    QCOMPARE(matrix.Row(), 1);  // a number, not a line
  }

  void aViewIsToldOfEveryChange() {
    TextMatrix matrix(u"<A|>B"_s, 1);
    const QAbstractItemModelTester tester(&matrix, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy data(&matrix, &QAbstractItemModel::dataChanged);
    QSignalSpy header(&matrix, &QAbstractItemModel::headerDataChanged);
    QSignalSpy inserted(&matrix, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&matrix, &QAbstractItemModel::rowsRemoved);
    QSignalSpy layout(&matrix, &QAbstractItemModel::layoutChanged);
    matrix.SetRows(4);
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted[0][1].toInt(), 0);
    QCOMPARE(inserted[0][2].toInt(), 2);
    matrix.SetText(2, 1, u"x"_s);
    QCOMPARE(data.size(), 1);
    QCOMPARE(data[0][0].toModelIndex(), matrix.index(1, 1));
    matrix.SetText(2, 1, u"x"_s);
    QCOMPARE(data.size(), 1);
    matrix.SetText(0, 1, u"Amount"_s);
    QCOMPARE(header.size(), 1);
    matrix.SortGenericAscending(1);
    QCOMPARE(layout.size(), 1);
    matrix.RemoveItem(2);
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed[0][1].toInt(), 1);
    matrix.SetRows(2);
    QCOMPARE(removed.size(), 2);
    matrix.Clear();
    QCOMPARE(data.size(), 2);
    matrix.SetRows(1);
    matrix.Clear();
    QCOMPARE(data.size(), 2);
  }

  void aViewSeesDataRowsUnderTheHeadings() {
    TextMatrix matrix(u"<A|>B"_s, 2);
    matrix.SetText(1, 1, u"$5.00"_s);
    QCOMPARE(matrix.rowCount(), 1);
    QCOMPARE(matrix.columnCount(), 2);
    QCOMPARE(matrix.data(matrix.index(0, 1), Qt::DisplayRole).toString(), u"$5.00"_s);
    QCOMPARE(matrix.data(matrix.index(0, 1), Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    QVERIFY(!matrix.data(matrix.index(0, 1), Qt::ToolTipRole).isValid());
    QCOMPARE(matrix.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"B"_s);
    QVERIFY(!matrix.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    QVERIFY(!matrix.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
  }

  void allRowsAreTakenAtOnceAndTheFirstIsCurrent() {
    TextMatrix matrix(u"<A|<B"_s, 5);
    matrix.SetRow(4);
    QSignalSpy resets(&matrix, &QAbstractItemModel::modelReset);
    QSignalSpy changes(&matrix, &QAbstractItemModel::dataChanged);
    QList<int> told;
    matrix.OnRowChanged(this, [&told](int row) { told.append(row); });
    matrix.AssignRows({{u"1"_s, u"2"_s}, {u"3"_s, u"4"_s}});
    QCOMPARE(matrix.Rows(), 3);
    QCOMPARE(matrix.Text(0, 1), u"B"_s);
    QCOMPARE(matrix.Text(1, 0), u"1"_s);
    QCOMPARE(matrix.Text(2, 1), u"4"_s);
    QCOMPARE(matrix.Row(), 1);
    QCOMPARE(told, QList<int>{1});
    QCOMPARE(resets.size(), 1);
    QCOMPARE(changes.size(), 0);
    matrix.AssignRows({});
    QCOMPARE(matrix.Rows(), 1);
    QCOMPARE(matrix.Row(), 0);
  }

  void aRowOfAnotherWidthIsRefusedAndNothingChanges() {
    TextMatrix matrix(u"<A|<B"_s, 2);
    matrix.SetText(1, 0, u"old"_s);
    QCOMPARE(ErrorOf([&] { matrix.AssignRows({{u"1"_s, u"2"_s}, {u"3"_s}}); }), 9);
    QCOMPARE(matrix.Rows(), 2);
    QCOMPARE(matrix.Text(1, 0), u"old"_s);
  }

  void theLargestListIsFilledAndSortedAtOnce() {
    TextMatrix matrix(u"<A|<B"_s);
    QElapsedTimer timer;
    timer.start();
    matrix.SetRows(32768);
    for (int row = 1; row < matrix.Rows(); ++row) matrix.SetText(row, 0, QString::number((row * 7919) % 32767));
    matrix.SortGenericAscending(0);
    matrix.SortTextIgnoringCase(0);
    QVERIFY2(timer.elapsed() < 5000, "filling and sorting take many times what they should");
    QCOMPARE(matrix.Text(1, 0), u"0"_s);
  }
};

QTEST_GUILESS_MAIN(TextMatrixTest)
#include "tst_textMatrix.moc"
