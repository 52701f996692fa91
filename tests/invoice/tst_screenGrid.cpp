// The posted lines in the grid of the invoice screen: typing, recalculating, the tax flag, moving, deleting, the wheel.

#include <QtWidgets>

#include "desktop/GridView.h"
#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Grid = u"fgInvoice"_s;

/// Two manual lines, a service and two hours of labor.
void OpenWithLines(InvoiceBench& bench) {
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.PostManual(u"Box"_s, u"5"_s, u"3"_s);
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  bench.On().Trigger(u"mnuLabor"_s);
  bench.On().Type(u"2"_s);
  bench.On().Click(u"cmdLabor_0"_s);
  bench.On().Click(u"cmdLabor_1"_s);
  bench.On().Trigger(u"mnuCreate"_s);
}

void Press(const InvoiceBench& bench, Qt::Key key) {
  bench.On().PressKey(key);
}

}  // namespace

class ScreenGrid : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aPriceIsTypedDigitByDigitAndEnterRecalculates();
  void theFirstKeyBlanksAZeroPriceEvenIfItIsRefused();
  void aPriceTakesOnePoint();
  void aPriceOfJustAPointIsLeftByEnter();
  void backspaceSetsPriceAndExtensionToZero();
  void aQuantityIsTypedAndBackspaceBlanksIt();
  void aQuantityTakesNoPoint();
  void otherColumnsTakeNoKeys();
  void withoutEnterTheExtensionStaysStaleAndIsTotalled();
  void aServiceLineIsNotRecalculated();
  void laborCannotBeChanged();
  void enterOnALaborRowLeavesIt();
  void aClickInApplyTaxFlipsIt();
  void theTaxOfAServiceLineCannotBeFlipped();
  void theArrowsAreLiveOnALineWithAQuantity();
  void theDownArrowMovesTheLineUpAndTheUpArrowDown();
  void aLineDoesNotMovePastTheFirstOrOntoOneWithoutAQuantity();
  void aRightPressMakesTheRowCurrentAndOffersItsDeletion();
  void aRightPressOnABlankRowOffersNothing();
  void deletingAsksByNameAndMovesTheRestUp();
  void noKeepsTheLine();
  void theWheelMovesOneRowANotch();
  void aKeyWithoutACurrentRowDoesNothing();
  void theArrowsFollowTheLineThatTheKeysChoose();
  void theSpaceBarFlipsApplyTaxAsAClickDoes();
  void theColumnsAreAlignedAndWideAsTheyAreMeantToBe();
};

void ScreenGrid::aPriceIsTypedDigitByDigitAndEnterRecalculates() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 3);
  Press(bench, Qt::Key_Backspace);
  bench.On().Type(u"12.5"_s);
  QCOMPARE(bench.Row(1), (QStringList{u"2"_s, u"Crate"_s, QString(), u"12.5"_s, u"$0.00"_s, u"False"_s}));
  Press(bench, Qt::Key_Return);
  QCOMPARE(bench.Row(1), (QStringList{u"2"_s, u"Crate"_s, QString(), u"$12.50"_s, u"$25.00"_s, u"False"_s}));
}

void ScreenGrid::theFirstKeyBlanksAZeroPriceEvenIfItIsRefused() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 3);
  Press(bench, Qt::Key_Backspace);
  QCOMPARE(bench.Row(1)[3], u"$0.00"_s);
  bench.On().Type(u"x"_s);
  QCOMPARE(bench.Row(1)[3], QString());
}

void ScreenGrid::aPriceTakesOnePoint() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 3);
  bench.On().Type(u".7-"_s);
  // $10.00 holds a point already, and a minus is refused.
  QCOMPARE(bench.Row(1)[3], u"$10.007"_s);
  Press(bench, Qt::Key_Return);
  QCOMPARE(bench.Row(1)[3], u"$10.01"_s);
  QCOMPARE(bench.Row(1)[4], u"$20.02"_s);
}

void ScreenGrid::aPriceOfJustAPointIsLeftByEnter() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 3);
  Press(bench, Qt::Key_Backspace);
  bench.On().Type(u"."_s);
  Press(bench, Qt::Key_Return);
  QCOMPARE(bench.Row(1)[3], u"."_s);
  QCOMPARE(bench.Around.Errors, QList<int>{});
}

void ScreenGrid::backspaceSetsPriceAndExtensionToZero() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 2, 3);
  Press(bench, Qt::Key_Backspace);
  QCOMPARE(bench.Row(2), (QStringList{u"5"_s, u"Box"_s, QString(), u"$0.00"_s, u"$0.00"_s, u"False"_s}));
}

void ScreenGrid::aQuantityIsTypedAndBackspaceBlanksIt() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 2, 0);
  Press(bench, Qt::Key_Backspace);
  QCOMPARE(bench.Row(2)[0], QString());
  QCOMPARE(bench.Row(2)[4], u"$0.00"_s);
  bench.On().Type(u"12"_s);
  Press(bench, Qt::Key_Return);
  QCOMPARE(bench.Row(2), (QStringList{u"12"_s, u"Box"_s, QString(), u"$3.00"_s, u"$36.00"_s, u"False"_s}));
}

void ScreenGrid::aQuantityTakesNoPoint() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 2, 0);
  bench.On().Type(u".a1"_s);
  QCOMPARE(bench.Row(2)[0], u"51"_s);
}

void ScreenGrid::otherColumnsTakeNoKeys() {
  InvoiceBench bench;
  OpenWithLines(bench);
  for (const int col : {1, 2, 4}) {
    bench.On().SelectRow(Grid, 1, col);
    bench.On().Type(u"7"_s);
    Press(bench, Qt::Key_Backspace);
  }
  QCOMPARE(bench.Row(1), (QStringList{u"2"_s, u"Crate"_s, QString(), u"$10.00"_s, u"$20.00"_s, u"False"_s}));
}

void ScreenGrid::withoutEnterTheExtensionStaysStaleAndIsTotalled() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().SelectRow(Grid, 1, 3);
  bench.On().Type(u"9"_s);
  QCOMPARE(bench.Row(1)[3], u"$10.009"_s);
  bench.On().SelectRow(Grid, 1, 0);
  bench.On().Type(u"5"_s);
  bench.On().SelectRow(Grid, 2, 1);
  QCOMPARE(bench.Row(1), (QStringList{u"25"_s, u"Crate"_s, QString(), u"$10.009"_s, u"$20.00"_s, u"False"_s}));
  bench.Finalize();
  QCOMPARE(bench.Text(u"txtTotal"_s), u"$20.00"_s);
}

void ScreenGrid::aServiceLineIsNotRecalculated() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 3, 3);
  Press(bench, Qt::Key_Backspace);
  bench.On().Type(u"90"_s);
  Press(bench, Qt::Key_Return);
  QCOMPARE(bench.Row(3)[3], u"90"_s);
  QCOMPARE(bench.Row(3)[4], u"$0.00"_s);
}

void ScreenGrid::laborCannotBeChanged() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 4, 0);
  bench.Answers.Ok(
      u"Labor cannot be changed inside the Invoice Body\nDelete the Labor Item and Re-enter from the labor Grid)"_s,
      u"Karvex Invoicer"_s);
  bench.On().Type(u"5"_s);
  QCOMPARE(bench.Row(4)[0], u"2 Hrs"_s);
  QCOMPARE(bench.Answers.Last().Text.count(u"\r\n"_s), 1);
  bench.On().SelectRow(Grid, 4, 3);
  bench.Answers.Ok();
  Press(bench, Qt::Key_Backspace);
  QCOMPARE(bench.Row(4)[3], u"$90.00"_s);
}

void ScreenGrid::enterOnALaborRowLeavesIt() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 4, 1);
  bench.Answers.Ok();
  Press(bench, Qt::Key_Return);
  bench.Answers.Forget();
  QCOMPARE(bench.Row(4), (QStringList{u"2 Hrs"_s, u"Night Labor"_s, QString(), u"$90.00"_s, u"$180.00"_s, u"False"_s}));
  QCOMPARE(bench.Around.Errors, QList<int>{});
}

void ScreenGrid::aClickInApplyTaxFlipsIt() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 5);
  QCOMPARE(bench.Row(1)[5], u"True"_s);
  bench.On().SelectRow(Grid, 1, 5);
  QCOMPARE(bench.Row(1)[5], u"False"_s);
  bench.On().SelectRow(Grid, 1, 4);
  QCOMPARE(bench.Row(1)[5], u"False"_s);
}

void ScreenGrid::theTaxOfAServiceLineCannotBeFlipped() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 3, 5);
  QCOMPARE(bench.Row(3)[5], u"False"_s);
}

void ScreenGrid::theArrowsAreLiveOnALineWithAQuantity() {
  InvoiceBench bench;
  OpenWithLines(bench);
  QVERIFY(!bench.On().IsEnabled(u"UpDown1_up"_s));
  bench.On().SelectRow(Grid, 3, 1);
  QVERIFY(!bench.On().IsEnabled(u"UpDown1_up"_s));
  bench.On().SelectRow(Grid, 1, 1);
  QVERIFY(bench.On().IsEnabled(u"UpDown1_up"_s));
  QVERIFY(bench.On().IsEnabled(u"UpDown1_down"_s));
}

void ScreenGrid::theDownArrowMovesTheLineUpAndTheUpArrowDown() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 2, 1);
  bench.On().Click(u"UpDown1_down"_s);
  QCOMPARE(bench.Row(1)[1], u"Box"_s);
  QCOMPARE(bench.Row(2), (QStringList{u"2"_s, u"Crate"_s, QString(), u"$10.00"_s, u"$20.00"_s, u"False"_s}));
  QCOMPARE(bench.Invoice.fgInvoice.Row(), 1);
  bench.On().Click(u"UpDown1_up"_s);
  QCOMPARE(bench.Row(2)[1], u"Box"_s);
  QCOMPARE(bench.Invoice.fgInvoice.Row(), 2);
}

void ScreenGrid::aLineDoesNotMovePastTheFirstOrOntoOneWithoutAQuantity() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 1);
  bench.On().Click(u"UpDown1_down"_s);
  QCOMPARE(bench.Row(1)[1], u"Crate"_s);
  bench.On().SelectRow(Grid, 2, 1);
  bench.On().Click(u"UpDown1_up"_s);
  QCOMPARE(bench.Row(2)[1], u"Box"_s);
  QCOMPARE(bench.Row(3)[1], u"Repair"_s);
}

void ScreenGrid::aRightPressMakesTheRowCurrentAndOffersItsDeletion() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 1);
  bench.On().RightPressRow(Grid, 2, 1);
  auto* popup = bench.On().Control<QMenu>(u"mnupopup"_s);
  QVERIFY(popup->isVisible());
  QCOMPARE(bench.Invoice.fgInvoice.Row(), 2);
  bench.Answers.Yes(u"Delete item Box from Invoice?"_s, u"Item Deletion"_s);
  popup->setActiveAction(bench.On().Entry(u"mnuDeleteItem"_s));
  QTest::keyClick(popup, Qt::Key_Return);
  ScreenDriver::ProcessEvents();
  QCOMPARE(bench.Row(2)[1], u"Repair"_s);
}

void ScreenGrid::aRightPressOnABlankRowOffersNothing() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().RightPressRow(Grid, 6, 1);
  QVERIFY(!bench.On().Control<QMenu>(u"mnupopup"_s)->isVisible());
  QCOMPARE(bench.Invoice.fgInvoice.Row(), 6);
  // The entry of the menu bar asks nothing either.
  bench.On().Trigger(u"mnuDeleteItem"_s);
  QCOMPARE(bench.Invoice.LineCount, 4);
}

void ScreenGrid::deletingAsksByNameAndMovesTheRestUp() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 1);
  bench.Answers.Yes(u"Delete item Crate from Invoice?"_s, u"Item Deletion"_s);
  bench.On().Trigger(u"mnuDeleteItem"_s);
  QCOMPARE(bench.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
  QCOMPARE(bench.Row(1)[1], u"Box"_s);
  QCOMPARE(bench.Invoice.LineCount, 3);
  QCOMPARE(bench.Invoice.fgInvoice.Rows(), 101);
}

void ScreenGrid::noKeepsTheLine() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 1);
  bench.Answers.No();
  bench.On().Trigger(u"mnuDeleteItem"_s);
  QCOMPARE(bench.Row(1)[1], u"Crate"_s);
  QCOMPARE(bench.Invoice.LineCount, 4);
}

void ScreenGrid::theWheelMovesOneRowANotch() {
  InvoiceBench bench;
  OpenWithLines(bench);
  const auto* grid = bench.On().Control<GridView>(Grid);
  QCOMPARE(grid->TopRow(), 1);
  bench.On().Wheel(Grid, 120);
  QCOMPARE(grid->TopRow(), 1);
  bench.On().Wheel(Grid, -240);
  QCOMPARE(grid->TopRow(), 3);
  bench.On().Wheel(Grid, 120);
  QCOMPARE(grid->TopRow(), 2);
}

void ScreenGrid::aKeyWithoutACurrentRowDoesNothing() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.Invoice.fgInvoice.SetRow(0);
  bench.On().Control(Grid)->setFocus();
  bench.On().Type(u"5"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{});
  QCOMPARE(bench.Row(1)[0], u"2"_s);
}

void ScreenGrid::theArrowsFollowTheLineThatTheKeysChoose() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().Control(Grid)->setFocus();
  bench.Invoice.fgInvoice.SetRow(3);
  QVERIFY(!bench.On().IsEnabled(u"UpDown1_up"_s));
  Press(bench, Qt::Key_Up);
  QCOMPARE(bench.Invoice.fgInvoice.Row(), 2);
  QVERIFY(bench.On().IsEnabled(u"UpDown1_up"_s));
  QVERIFY(bench.On().IsEnabled(u"UpDown1_down"_s));
  Press(bench, Qt::Key_Down);
  QVERIFY(!bench.On().IsEnabled(u"UpDown1_up"_s));
  QVERIFY(!bench.On().IsEnabled(u"UpDown1_down"_s));
}

void ScreenGrid::theSpaceBarFlipsApplyTaxAsAClickDoes() {
  InvoiceBench bench;
  OpenWithLines(bench);
  bench.On().SelectRow(Grid, 1, 4);
  Press(bench, Qt::Key_Space);
  QCOMPARE(bench.Row(1)[5], u"False"_s);
  Press(bench, Qt::Key_Right);
  Press(bench, Qt::Key_Space);
  QCOMPARE(bench.Row(1)[5], u"True"_s);
  Press(bench, Qt::Key_Space);
  QCOMPARE(bench.Row(1)[5], u"False"_s);
  // A service has no quantity and keeps its flag; labor has one and flips.
  Press(bench, Qt::Key_Down);
  Press(bench, Qt::Key_Down);
  Press(bench, Qt::Key_Space);
  QCOMPARE(bench.Row(3)[5], u"False"_s);
  Press(bench, Qt::Key_Down);
  Press(bench, Qt::Key_Space);
  QCOMPARE(bench.Row(4)[5], u"True"_s);
}

void ScreenGrid::theColumnsAreAlignedAndWideAsTheyAreMeantToBe() {
  const WorkingInvoice invoice;
  const QList<Qt::AlignmentFlag> sides{Qt::AlignHCenter, Qt::AlignLeft,  Qt::AlignHCenter,
                                       Qt::AlignRight,   Qt::AlignRight, Qt::AlignLeft};
  const QList<int> widths{10, 56, 12, 15, 15, 9};
  for (int col = 0; col < 6; ++col) {
    QCOMPARE(invoice.fgInvoice.Alignment(col) & Qt::AlignHorizontal_Mask, Qt::Alignment(sides[col]));
    QCOMPARE(invoice.fgInvoice.FormatWidth(col), widths[col]);
  }
}

QTEST_MAIN(ScreenGrid)
#include "tst_screenGrid.moc"
