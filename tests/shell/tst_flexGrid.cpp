// Moving the current line of the grid.
#include <QtTest>

#include "shell/FlexGrid.h"

using namespace Qt::StringLiterals;

class FlexGridTest : public QObject {
  Q_OBJECT

  std::unique_ptr<TextMatrix> m_grid;

  QStringList Column(int col) const {
    QStringList texts;
    for (int row = 0; row < m_grid->Rows(); ++row) texts.append(m_grid->Text(row, col));
    return texts;
  }

 private Q_SLOTS:
  void init() {
    m_grid = std::make_unique<TextMatrix>(u"<Quantity|<Description|<Note"_s, 5);
    for (int row = 1; row <= 3; ++row) {
      m_grid->SetText(row, 0, QString::number(row));
      m_grid->SetText(row, 1, u"line %1"_s.arg(row));
      m_grid->SetText(row, 2, u"note %1"_s.arg(row));
    }
  }

  void theLineMovesUpWithWhatItHolds() {
    m_grid->SetRow(2);
    SwapGridRows(*m_grid, true, 3);
    QCOMPARE(Column(0), (QStringList{u"Quantity"_s, u"2"_s, u"1"_s, u"3"_s, u""_s}));
    QCOMPARE(Column(1), (QStringList{u"Description"_s, u"line 2"_s, u"line 1"_s, u"line 3"_s, u""_s}));
    QCOMPARE(Column(2), (QStringList{u"Note"_s, u"note 2"_s, u"note 1"_s, u"note 3"_s, u""_s}));
    QCOMPARE(m_grid->Row(), 1);
  }

  void theLineMovesDown() {
    m_grid->SetRow(1);
    SwapGridRows(*m_grid, false, 3);
    QCOMPARE(Column(0), (QStringList{u"Quantity"_s, u"2"_s, u"1"_s, u"3"_s, u""_s}));
    QCOMPARE(m_grid->Row(), 2);
  }

  void onlyTheGivenColumnsMove() {
    m_grid->SetRow(1);
    SwapGridRows(*m_grid, false, 2);
    QCOMPARE(Column(1).mid(1, 2), (QStringList{u"line 2"_s, u"line 1"_s}));
    QCOMPARE(Column(2).mid(1, 2), (QStringList{u"note 1"_s, u"note 2"_s}));
  }

  void nothingMoves_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("up");
    QTest::newRow("up at row 1") << 1 << true;
    QTest::newRow("down onto an empty line") << 3 << false;
    QTest::newRow("up from an empty line") << 4 << true;
    QTest::newRow("down at the last row") << 4 << false;
    QTest::newRow("no current row, up") << 0 << true;
    QTest::newRow("no current row, down") << 0 << false;
  }
  void nothingMoves() {
    QFETCH(int, row);
    QFETCH(bool, up);
    m_grid->SetRow(row);
    const QStringList before = Column(1);
    SwapGridRows(*m_grid, up, 3);
    QCOMPARE(Column(1), before);
    QCOMPARE(m_grid->Row(), row);
  }

  void downAtAFullLastRowNothingMoves() {
    m_grid->SetRows(4);
    m_grid->SetRow(3);
    SwapGridRows(*m_grid, false, 3);
    QCOMPARE(m_grid->Row(), 3);
    QCOMPARE(m_grid->Text(3, 0), u"3"_s);
  }
};

QTEST_GUILESS_MAIN(FlexGridTest)
#include "tst_flexGrid.moc"
