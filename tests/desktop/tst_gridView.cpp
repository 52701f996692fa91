// The grid on a screen: one current row, shared with its matrix, by mouse, keys, wheel and code.
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

#include "desktop/GridView.h"
#include "desktop/QtDialogs.h"
#include "support/BenchScreen.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"

using namespace Qt::StringLiterals;

class GridViews : public QObject {
  Q_OBJECT

 private:
  struct Bench {
    explicit Bench(int rows = 101) : matrix(u"<Qty |<Description                    |>Price    "_s, rows) {
      grid->SetMatrix(&matrix);
      grid->Click = [this] { log.append(u"click %1 %2"_s.arg(matrix.Row()).arg(matrix.Col())); };
      grid->DoubleClick = [this] { log.append(u"double %1"_s.arg(matrix.Row())); };
      grid->RightPress = [this](const QPoint&) { log.append(u"right %1"_s.arg(matrix.Row())); };
      grid->KeyPress = [this](int key) { log.append(u"key %1"_s.arg(key)); };
      grid->KeyUp = [this](int key) { log.append(u"up %1"_s.arg(key)); };
      screen.show();
      driver.emplace(&screen);
    }
    TextMatrix matrix;
    RecordingHost host;
    BenchScreen screen{host};
    QLineEdit* box = screen.Add<QLineEdit>(u"box"_s);
    GridView* grid = screen.Add<GridView>(u"grid"_s);
    QStringList log;
    std::optional<ScreenDriver> driver;
  };

 private Q_SLOTS:
  void aClickMakesTheCellCurrentAndRunsTheClick() {
    Bench bench;
    bench.driver->SelectRow(u"grid"_s, 3, 2);
    QCOMPARE(bench.matrix.Row(), 3);
    QCOMPARE(bench.matrix.Col(), 2);
    QCOMPARE(bench.log, QStringList{u"click 3 2"_s});
    // The row that is current already as well.
    bench.driver->SelectRow(u"grid"_s, 3, 0);
    QCOMPARE(bench.log.last(), u"click 3 0"_s);
  }

  void theKeysClickTheRowTheyReachedWhereTheyAreMeantTo() {
    Bench bench;
    bench.grid->ClickByKeys();
    bench.driver->SelectRow(u"grid"_s, 1);
    bench.log.clear();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
      bench.driver->PressKey(Qt::Key_Down);
      bench.driver->PressKey(key);
      bench.driver->PressKey(Qt::Key_A);
    }
    bench.log.removeIf([](const QString& entry) { return entry.startsWith(u"up"_s); });
    QCOMPARE(bench.log, (QStringList{u"click 2 0"_s, u"click 3 0"_s, u"click 4 0"_s}));
  }

  void aDoubleClickIsAClickFirst() {
    Bench bench;
    bench.driver->DoubleClickRow(u"grid"_s, 2);
    QCOMPARE(bench.log, (QStringList{u"click 2 0"_s, u"double 2"_s}));
  }

  void aRightPressMakesThePressedRowCurrentFirst() {
    Bench bench;
    bench.driver->SelectRow(u"grid"_s, 1);
    bench.log.clear();
    bench.driver->RightPressRow(u"grid"_s, 4);
    QCOMPARE(bench.log, QStringList{u"right 4"_s});
    QCOMPARE(bench.grid->currentIndex().row(), 3);
  }

  void theMenuKeyIsARightPressOnTheCurrentRow() {
    Bench bench;
    bench.driver->SelectRow(u"grid"_s, 2);
    bench.log.clear();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(bench.grid->viewport(), &event);
    QCOMPARE(bench.log, QStringList{u"right 2"_s});
  }

  void aPressBesideTheLinesLeavesTheCurrentOne() {
    Bench bench(3);
    bench.driver->SelectRow(u"grid"_s, 2);
    bench.log.clear();
    const QPoint below = bench.grid->viewport()->mapTo(&bench.screen, QPoint(20, bench.grid->viewport()->height() - 4));
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
      QTest::mouseClick(bench.screen.windowHandle(), button, Qt::NoModifier, below);
    }
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.matrix.Row(), 2);
    QCOMPARE(bench.log, QStringList());
  }

  void theViewFollowsTheMatrix() {
    Bench bench;
    QList<int> told;
    bench.grid->RowChanged = [&](int row) { told.append(row); };
    bench.matrix.SetText(90, 1, u"Gravel"_s);
    bench.matrix.SetRow(90);
    QCOMPARE(bench.grid->currentIndex().row(), 89);
    QVERIFY(bench.grid->selectionModel()->isRowSelected(89));
    // It is brought into sight.
    QVERIFY(bench.grid->TopRow() > 1);
    QVERIFY(bench.grid->TopRow() <= 90);
    bench.matrix.SetRow(0);
    QVERIFY(!bench.grid->currentIndex().isValid());
    QVERIFY(!bench.grid->selectionModel()->hasSelection());
    QCOMPARE(told, (QList<int>{90, 0}));
  }

  void viewsOnOneMatrixGoInAnyOrder() {
    TextMatrix matrix(u"A"_s, 5);
    auto first = std::make_unique<GridView>(), second = std::make_unique<GridView>();
    first->SetMatrix(&matrix);
    second->SetMatrix(&matrix);
    first.reset();
    matrix.SetRow(2);
    QCOMPARE(second->currentIndex().row(), 1);
    second.reset();
    matrix.SetRow(3);
    QCOMPARE(matrix.Row(), 3);
  }

  void aViewWhoseMatrixWentIsEmptyAndTakesEveryEvent() {
    Bench bench(3);
    auto matrix = std::make_unique<TextMatrix>(u"A"_s, 5);
    bench.grid->SetMatrix(matrix.get());
    matrix->SetRow(2);
    bench.log.clear();
    // One that changed just before has its columns measured after it went.
    matrix->SetText(1, 0, u"wide"_s);
    matrix.reset();
    QVERIFY(bench.grid->Matrix() == nullptr);
    QVERIFY(bench.grid->model() == nullptr);
    ScreenDriver::ProcessEvents();
    bench.screen.resize(bench.screen.size() + QSize(40, 40));
    const QPoint inside = bench.grid->viewport()->mapTo(&bench.screen, QPoint(20, 10));
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
      QTest::mouseClick(bench.screen.windowHandle(), button, Qt::NoModifier, inside);
    }
    QTest::mouseDClick(bench.screen.windowHandle(), Qt::LeftButton, Qt::NoModifier, inside);
    bench.grid->clearFocus();
    bench.grid->setFocus(Qt::TabFocusReason);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.log, QStringList());
    QTest::keyClick(bench.screen.windowHandle(), Qt::Key_Down);
    QTest::keyClick(bench.screen.windowHandle(), Qt::Key_PageDown);
    ScreenDriver::ProcessEvents();
    TextMatrix next(u"A"_s, 5);
    next.SetRow(3);
    bench.grid->SetMatrix(&next);
    QCOMPARE(bench.grid->currentIndex().row(), 2);
  }

  void aViewThatGotAnotherMatrixFollowsOnlyThat() {
    TextMatrix former(u"A"_s, 5), matrix(u"A"_s, 5);
    GridView grid;
    QList<int> told;
    grid.RowChanged = [&](int row) { told.append(row); };
    grid.SetMatrix(&former);
    grid.SetMatrix(&matrix);
    former.SetRow(4);
    matrix.SetRow(2);
    QCOMPARE(told, QList<int>{2});
    QCOMPARE(grid.currentIndex().row(), 1);
  }

  void whoeverFollowedTheMatrixBeforeIsStillTold() {
    TextMatrix matrix(u"A"_s, 5);
    QList<int> told;
    matrix.OnRowChanged(this, [&](int row) { told.append(row); });
    {
      GridView grid;
      grid.SetMatrix(&matrix);
      matrix.SetRow(2);
      QCOMPARE(grid.currentIndex().row(), 1);
    }
    matrix.SetRow(3);
    QCOMPARE(told, (QList<int>{2, 3}));
  }

  void comingToTheGridSelectsNothingByItself() {
    Bench bench;
    bench.box->setFocus();
    bench.driver->PressKey(Qt::Key_Tab);
    QCOMPARE(bench.driver->FocusName(), u"grid"_s);
    QCOMPARE(bench.matrix.Row(), 0);
    QVERIFY(!bench.grid->currentIndex().isValid());
    bench.driver->PressKey(Qt::Key_Down);
    QCOMPARE(bench.matrix.Row(), 1);
    bench.driver->PressKey(Qt::Key_Down);
    QCOMPARE(bench.matrix.Row(), 2);
    bench.driver->PressKey(Qt::Key_Tab);
    QVERIFY(bench.driver->FocusName() != u"grid"_s);
  }

  void removedAndAddedRowsKeepTheRowThatTheMatrixNames() {
    Bench bench(6);
    bench.matrix.SetRow(3);
    bench.matrix.RemoveItem(1);
    QCOMPARE(bench.matrix.Row(), 3);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.grid->currentIndex().row(), 2);
    bench.matrix.SetRows(2);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.matrix.Row(), 1);
    QCOMPARE(bench.grid->currentIndex().row(), 0);
    bench.matrix.SetRows(1);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.matrix.Row(), 0);
    QVERIFY(!bench.grid->currentIndex().isValid());
  }

  void theGridGetsCharacterCodesAndNeverSearches() {
    Bench bench;
    bench.matrix.SetText(5, 0, u"5"_s);
    bench.driver->SelectRow(u"grid"_s, 2);
    bench.log.clear();
    bench.driver->Type(u"5"_s);
    bench.driver->PressKey(Qt::Key_Backspace);
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.matrix.Row(), 2);
    QCOMPARE(bench.log, (QStringList{u"key 53"_s, u"up 53"_s, u"key 8"_s, u"up 8"_s, u"key 13"_s, u"up 13"_s}));
  }

  void anEnterThatClosedABoxIsNotReleasedOnTheGrid() {
    Bench bench;
    QtDialogs dialogs;
    QueuedAnswers answers;
    bench.grid->KeyPress = [&](int key) {
      bench.log.append(u"key %1"_s.arg(key));
      dialogs.ShowMessage(u"No"_s);
    };
    bench.driver->SelectRow(u"grid"_s, 2);
    bench.log.clear();
    answers.Ok();
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.log, QStringList{u"key 13"_s});
  }

  void aNotchMovesTheTopRowByOne() {
    Bench bench;
    bench.driver->Wheel(u"grid"_s, -120);
    QCOMPARE(bench.grid->TopRow(), 2);
    bench.driver->Wheel(u"grid"_s, -240);
    QCOMPARE(bench.grid->TopRow(), 4);
    bench.driver->Wheel(u"grid"_s, 120);
    QCOMPARE(bench.grid->TopRow(), 3);
    QCOMPARE(bench.matrix.Row(), 0);
  }

  void partsOfANotchAddUp() {
    Bench bench;
    for (int i = 0; i < 3; ++i) {
      bench.driver->Wheel(u"grid"_s, -30);
      QCOMPARE(bench.grid->TopRow(), 1);
    }
    bench.driver->Wheel(u"grid"_s, -30);
    QCOMPARE(bench.grid->TopRow(), 2);
  }

  void aNotchAtTheTopStaysAtTheFirstRow() {
    Bench bench;
    bench.driver->Wheel(u"grid"_s, 120);
    QCOMPARE(bench.grid->TopRow(), 1);
    bench.grid->SetTopRow(-5);
    QCOMPARE(bench.grid->TopRow(), 1);
    bench.grid->SetTopRow(5000);
    QVERIFY(bench.grid->TopRow() <= 100);
    QVERIFY(bench.grid->rowAt(bench.grid->viewport()->height() - 2) == 99);
  }

  void columnsAreWideEnoughForEveryTextAndTheWidestTakesTheRest() {
    Bench bench;
    const auto total = [&] { return bench.grid->horizontalHeader()->length(); };
    QCOMPARE(total(), bench.grid->viewport()->width());
    QVERIFY(bench.grid->columnWidth(1) > bench.grid->columnWidth(0));
    QVERIFY(bench.grid->columnWidth(1) > bench.grid->columnWidth(2));
    const QString wide = u"a quantity as wide as nobody would have thought it"_s;
    bench.matrix.SetText(1, 0, wide);
    ScreenDriver::ProcessEvents();
    QVERIFY(bench.grid->columnWidth(0) > bench.grid->fontMetrics().horizontalAdvance(wide));
    bench.matrix.SetText(1, 0, u"1"_s);
    ScreenDriver::ProcessEvents();
    QVERIFY(bench.grid->columnWidth(0) < bench.grid->fontMetrics().horizontalAdvance(wide));
    bench.screen.resize(1600, 700);
    ScreenDriver::ProcessEvents();
    QCOMPARE(total(), bench.grid->viewport()->width());
  }

  void aTextOutOfSightIsNotCutEither() {
    Bench bench;
    const QString wide(60, u'W');
    bench.matrix.SetText(100, 2, wide);
    ScreenDriver::ProcessEvents();
    QVERIFY(bench.grid->columnWidth(2) > bench.grid->fontMetrics().horizontalAdvance(wide));
  }

  void aLongTextGivesWaySoThatTheFiguresStayInSight() {
    Bench bench;
    const QString wide = u"a description that goes on and on "_s.repeated(20) + u"<b>&"_s;
    bench.matrix.SetText(1, 1, wide);
    bench.matrix.SetText(2, 2, u"$123,456,789,012.00"_s);
    for (const int width : {1180, 640}) {
      bench.screen.resize(width, 700);
      ScreenDriver::ProcessEvents();
      QCOMPARE(bench.grid->horizontalHeader()->length(), bench.grid->viewport()->width());
      QVERIFY(bench.grid->columnWidth(2) > bench.grid->fontMetrics().horizontalAdvance(u"$123,456,789,012.00"_s));
      QVERIFY(bench.grid->columnWidth(0) > bench.grid->fontMetrics().horizontalAdvance(u"Qty"_s));
      QVERIFY(!bench.grid->horizontalScrollBar()->isVisible());
    }
    QCOMPARE(bench.grid->textElideMode(), Qt::ElideRight);
    // The whole text is a tool tip, told as it is.
    const auto help = [&](int row, int col) {
      const QPoint place = bench.grid->visualRect(bench.grid->model()->index(row, col)).center();
      QHelpEvent event(QEvent::ToolTip, place, bench.grid->viewport()->mapToGlobal(place));
      QCoreApplication::sendEvent(bench.grid->viewport(), &event);
      return QToolTip::text();
    };
    QCOMPARE(help(0, 1), u"<p>%1</p>"_s.arg(wide.toHtmlEscaped()));
    // A press takes the tip away at once; what can be read in its cell has none.
    bench.driver->Click(u"box"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QToolTip::text(), QString());
    QCOMPARE(help(1, 2), QString());
    QCOMPARE(help(0, 1), u"<p>%1</p>"_s.arg(wide.toHtmlEscaped()));
  }

  void theGridScrollsSidewaysOnlyWhereItsFiguresAloneAreTooWide() {
    Bench bench;
    bench.screen.resize(640, 700);
    bench.matrix.SetText(1, 2, QString(200, u'8'));
    ScreenDriver::ProcessEvents();
    QVERIFY(bench.grid->horizontalScrollBar()->isVisible());
    QVERIFY(bench.grid->columnWidth(2) > bench.grid->fontMetrics().horizontalAdvance(QString(200, u'8')));
    // A word of the description is still there to be read.
    QVERIFY(bench.grid->columnWidth(1) >= 12 * bench.grid->fontMetrics().averageCharWidth());
  }

  void aBlankRowShowsAsCurrentOnlyWhileTheUserStandsOnIt() {
    Bench bench;
    const auto shows = [&] { return bench.grid->selectionModel()->hasSelection(); };
    bench.matrix.SetText(1, 1, u"Gravel"_s);
    bench.matrix.SetRow(1);
    QVERIFY(shows());
    bench.matrix.SetRow(2);
    QVERIFY(!shows());
    QCOMPARE(bench.grid->currentIndex().row(), 1);
    bench.driver->SelectRow(u"grid"_s, 5);
    QVERIFY(bench.grid->selectionModel()->isRowSelected(4));
    bench.driver->PressKey(Qt::Key_Down);
    QVERIFY(bench.grid->selectionModel()->isRowSelected(5));
    bench.driver->Click(u"box"_s);
    QVERIFY(!shows());
    QCOMPARE(bench.matrix.Row(), 6);
    // What is written there shows it again, and what is cleared hides it.
    bench.matrix.SetText(6, 1, u"Sand"_s);
    ScreenDriver::ProcessEvents();
    QVERIFY(bench.grid->selectionModel()->isRowSelected(5));
    bench.matrix.Clear();
    ScreenDriver::ProcessEvents();
    QVERIFY(!shows());
  }

  void whereAChoiceIsAwaitedNoRowShowsAsCurrentBeforeIt() {
    Bench bench(3);
    const auto shows = [&](int row) { return bench.grid->selectionModel()->isRowSelected(row - 1); };
    bench.matrix.SetText(1, 1, u"Gravel"_s);
    bench.matrix.SetText(2, 1, u"Sand"_s);
    bench.matrix.SetRow(1);
    bench.grid->setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Up, Qt::Key_Down}) {
      bench.grid->AwaitChoice();
      QVERIFY(!shows(1));
      bench.driver->PressKey(key);
      QVERIFY2(shows(1), qPrintable(QString::number(key)));
      QCOMPARE(bench.matrix.Row(), 1);
    }
    // From there the Down key leads on.
    bench.driver->PressKey(Qt::Key_Down);
    QVERIFY(shows(2));
    bench.grid->AwaitChoice();
    bench.driver->SelectRow(u"grid"_s, 2);
    QVERIFY(shows(2));
    bench.driver->Click(u"box"_s);
    QVERIFY(shows(2));
    bench.matrix.SetRow(1);
    QVERIFY(!shows(1) && !shows(2));
    QCOMPARE(bench.matrix.Row(), 1);
  }

  void headingsAndNumbersStandAsTheFormatSays() {
    Bench bench;
    bench.matrix.SetText(1, 2, u"$1.00"_s);
    const QAbstractItemModel* model = bench.grid->model();
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), u"Description"_s);
    QCOMPARE(model->data(model->index(0, 2)).toString(), u"$1.00"_s);
    QVERIFY(model->data(model->index(0, 2), Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    QVERIFY(model->data(model->index(0, 0), Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
    QVERIFY(bench.grid->horizontalHeader()->isVisible());
    QVERIFY(bench.grid->alternatingRowColors());
  }

  void accessibilityToolsReadTheCells() {
    Bench bench;
    bench.matrix.SetText(2, 1, u"Gravel"_s);
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(bench.grid);
    QVERIFY(access != nullptr && access->tableInterface() != nullptr);
    QCOMPARE(access->tableInterface()->rowCount(), 100);
    QCOMPARE(access->tableInterface()->cellAt(1, 1)->text(QAccessible::Name), u"Gravel"_s);
  }

  void anErrorInAHandlerGoesToTheHost() {
    Bench bench;
    bench.grid->Click = [] { throw RuntimeError(ErrorNumber::TypeMismatch, u"grid"_s); };
    bench.grid->KeyUp = [](int) { throw RuntimeError(ErrorNumber::Overflow, u"grid"_s); };
    bench.driver->SelectRow(u"grid"_s, 1);
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.host.Errors, (QList<int>{ErrorNumber::TypeMismatch, ErrorNumber::Overflow}));
  }
};

QTEST_MAIN(GridViews)
#include "tst_gridView.moc"
