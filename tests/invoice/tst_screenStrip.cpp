// The strip of views above the lines, by its buttons and by their keys.

#include <QtWidgets>

#include "desktop/Style.h"
#include "invoice/Summary.h"

using namespace Qt::StringLiterals;

namespace {

/// The first invoice of the day, left by Menu with a flat discount of $5.00 deducted.
void LeaveWithAFlatDiscount(InvoiceBench& bench) {
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  DeductDiscount(bench, u"5"_s);
  QCOMPARE(bench.Text(u"txtDiscount"_s), u"$5.00"_s);
  bench.On().Click(u"cmdInvoice_1"_s);
  bench.Customer[1] = u"Other Ltd"_s;
  bench.Reopen();
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.PostManual(u"Crate"_s, u"3"_s, u"10"_s);
}

}  // namespace

class ScreenStrip : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void printReadyDeductsNoDiscountOfTheInvoiceBefore_data();
  void printReadyDeductsNoDiscountOfTheInvoiceBefore();
  void printReadyWithinTheSummaryKeepsTheDiscountJustDeducted();
  void printReadyOutOfSetupLeavesTheNumberAlone();
  void theEntryOfTheMenuKeepsADeductedDiscount();
  void theButtonOfTheViewStandsOutFromTheFirstShowingOn();
  void eachButtonAndItsKeyShowTheView_data();
  void eachButtonAndItsKeyShowTheView();
  void outOfSetupTheStripContinuesFirst_data();
  void outOfSetupTheStripContinuesFirst();
  void whatARecalledInvoiceSoldIsRecordedUnderItsOwnNumber();
  void whereContinueIsRefusedTheSetupViewStays();
  void theEntriesOfTheMenuPassContinueBy();
  void aButtonIsLiveAsTheEntryOfTheMenuIs();
};

void ScreenStrip::printReadyDeductsNoDiscountOfTheInvoiceBefore_data() {
  QTest::addColumn<bool>("byKey");
  QTest::newRow("button") << false;
  QTest::newRow("F12") << true;
}

void ScreenStrip::printReadyDeductsNoDiscountOfTheInvoiceBefore() {
  QFETCH(const bool, byKey);
  InvoiceBench bench;
  LeaveWithAFlatDiscount(bench);
  if (byKey) {
    bench.On().PressKey(Qt::Key_F12);
  } else {
    bench.On().Click(u"btnPrint"_s);
  }
  QVERIFY(bench.On().IsVisible(u"fraPrintReady"_s));
  QVERIFY(bench.Invoice.Controls.Enabled.cmdAddDiscount);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$30.00"_s);
}

void ScreenStrip::printReadyWithinTheSummaryKeepsTheDiscountJustDeducted() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Click(u"cmdPrint"_s);
  DeductDiscount(bench, u"5"_s);
  bench.On().PressKey(Qt::Key_F12);
  bench.On().Click(u"btnPrint"_s);
  QVERIFY(bench.Ticked(u"btnPrint"_s));
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$15.00"_s);
}

void ScreenStrip::printReadyOutOfSetupLeavesTheNumberAlone() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, u"500"_s);
  bench.On().PressKey(Qt::Key_F12);
  QVERIFY(bench.On().IsVisible(u"fraPrintReady"_s));
  // Where the next key would go.
  QCOMPARE(bench.On().FocusName(), u"fgInvoice"_s);
  bench.On().Type(u"5"_s);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"500"_s);
}

void ScreenStrip::theEntryOfTheMenuKeepsADeductedDiscount() {
  InvoiceBench bench;
  LeaveWithAFlatDiscount(bench);
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$25.00"_s);
}

void ScreenStrip::theButtonOfTheViewStandsOutFromTheFirstShowingOn() {
  InvoiceBench bench;
  bench.Open();
  const auto standingOut = [&bench] {
    QStringList names;
    for (const auto* button : bench.On().Control(u"fraViews"_s)->findChildren<QToolButton*>()) {
      if (button->palette().color(QPalette::Active, QPalette::Button) == PrimaryGround()) names << button->objectName();
    }
    return names;
  };
  QCOMPARE(standingOut(), QStringList{u"btnSetup"_s});
  bench.On().Click(u"btnServices"_s);
  QCOMPARE(standingOut(), QStringList{u"btnServices"_s});
  bench.Reopen();
  QCOMPARE(standingOut(), QStringList{u"btnSetup"_s});
}

void ScreenStrip::eachButtonAndItsKeyShowTheView_data() {
  QTest::addColumn<QString>("button");
  QTest::addColumn<int>("key");
  QTest::addColumn<bool>("control");
  QTest::addColumn<QString>("frame");
  QTest::newRow("setup") << u"btnSetup"_s << int(Qt::Key_F2) << false << u"fraSetup"_s;
  QTest::newRow("services") << u"btnServices"_s << int(Qt::Key_F5) << false << u"fraServices"_s;
  QTest::newRow("items") << u"btnItems"_s << int(Qt::Key_F6) << false << u"fraItems"_s;
  QTest::newRow("custom items") << u"btnCItems"_s << int(Qt::Key_F7) << false << u"fraCItems"_s;
  QTest::newRow("manual") << u"btnManual"_s << int(Qt::Key_F8) << false << u"fraManual"_s;
  QTest::newRow("labor") << u"btnLabor"_s << int(Qt::Key_F9) << false << u"fraLabor"_s;
  QTest::newRow("memo") << u"btnMemo"_s << int(Qt::Key_M) << true << u"fraMemo"_s;
  QTest::newRow("narrative") << u"btnNarrative"_s << int(Qt::Key_T) << true << u"fraNarrative"_s;
  QTest::newRow("print ready") << u"btnPrint"_s << int(Qt::Key_F12) << false << u"fraPrintReady"_s;
}

void ScreenStrip::eachButtonAndItsKeyShowTheView() {
  QFETCH(const QString, button);
  QFETCH(const int, key);
  QFETCH(const bool, control);
  QFETCH(const QString, frame);
  InvoiceBench bench;
  bench.OpenAtLines();
  for (const bool byKey : {false, true}) {
    if (byKey) {
      bench.On().PressKey(Qt::Key(key), control ? Qt::ControlModifier : Qt::NoModifier);
    } else {
      bench.On().Click(button);
    }
    QVERIFY2(bench.On().IsVisible(frame), qPrintable(frame));
    QVERIFY(bench.Ticked(button));
    QVERIFY(!bench.Ticked(u"btnCreate"_s));
    // Once more changes nothing.
    bench.On().Click(button);
    QVERIFY(bench.On().IsVisible(frame));
    QVERIFY(bench.Ticked(button));
    bench.On().PressKey(Qt::Key_F3);
    QVERIFY(!bench.On().IsVisible(frame));
    QVERIFY(!bench.Ticked(button));
    QVERIFY(bench.Ticked(u"btnCreate"_s));
  }
}

void ScreenStrip::outOfSetupTheStripContinuesFirst_data() {
  QTest::addColumn<QString>("button");
  QTest::addColumn<QString>("frame");
  for (const char* view : {"Services", "Items", "CItems", "Manual", "Labor", "Memo", "Narrative"}) {
    QTest::newRow(view) << u"btn%1"_s.arg(QLatin1StringView(view)) << u"fra%1"_s.arg(QLatin1StringView(view));
  }
  QTest::newRow("print ready") << u"btnPrint"_s << u"fraPrintReady"_s;
  QTest::newRow("lines") << u"btnCreate"_s << u"fraInstructions_1"_s;
}

void ScreenStrip::outOfSetupTheStripContinuesFirst() {
  QFETCH(const QString, button);
  QFETCH(const QString, frame);
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, u"500"_s);
  bench.On().Click(button);
  QVERIFY2(bench.On().IsVisible(frame), qPrintable(frame));
  QVERIFY(!bench.On().IsVisible(u"fraSetup"_s));
  QCOMPARE(bench.Invoice.InvoiceNo, 500);
  QCOMPARE(bench.Text(u"txtReference"_s), u"Prepared 3/7/2026"_s);
  QVERIFY(bench.On().Control(u"cmdTemplate_2"_s)->isEnabledTo(bench.On().Window()));
}

void ScreenStrip::whatARecalledInvoiceSoldIsRecordedUnderItsOwnNumber() {
  InvoiceBench bench;
  bench.Open();
  bench.Invoice.RecalledInvoice = true;
  bench.Invoice.InvoiceDate = QDate(2026, 2, 3);
  bench.Invoice.txtInvoiceNo = u"20260009"_s;
  bench.FillGrid(1);
  bench.Invoice.fgInvoice.SetText(1, LineColumn::Description, u"Hammer"_s);
  bench.Reopen();
  bench.On().PressKey(Qt::Key_F12);
  QVERIFY(bench.On().IsEnabled(u"cmdPrint"_s));
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Yes();
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Tree.Bytes(u"/SoldItems.txt"_s).mid(68, 20), Field("20260009", 20));
}

void ScreenStrip::whereContinueIsRefusedTheSetupViewStays() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, QString());
  for (const bool byKey : {false, true}) {
    bench.Answers.Ok(u"You have not entered an Invoice Number"_s, u"Karvex Invoicer"_s);
    if (byKey) {
      bench.On().PressKey(Qt::Key_F12);
    } else {
      bench.On().Click(u"btnServices"_s);
    }
    QVERIFY(bench.Answers.AllUsed());
    QVERIFY(bench.On().IsVisible(u"fraSetup"_s));
    QVERIFY(bench.Ticked(u"btnSetup"_s));
    QVERIFY(!bench.Ticked(byKey ? u"btnPrint"_s : u"btnServices"_s));
    QCOMPARE(bench.On().FocusName(), u"txtInvoiceNo"_s);
  }
  // The setup view itself needs no number.
  bench.On().PressKey(Qt::Key_F2);
  QVERIFY(bench.On().IsVisible(u"fraSetup"_s));
}

void ScreenStrip::theEntriesOfTheMenuPassContinueBy() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, u"500"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(bench.On().IsVisible(u"fraPrintReady"_s));
  QCOMPARE(bench.Invoice.InvoiceNo, 20260001);
}

void ScreenStrip::aButtonIsLiveAsTheEntryOfTheMenuIs() {
  InvoiceBench bench;
  bench.Tree.Remove(u"/Services.txt"_s);
  bench.OpenAtLines();
  QVERIFY(!bench.On().IsEnabled(u"btnServices"_s));
  QVERIFY(bench.On().IsEnabled(u"btnItems"_s));
  bench.On().PressKey(Qt::Key_F5);
  QVERIFY(!bench.On().IsVisible(u"fraServices"_s));
  bench.Tree.Write(u"/Services.txt"_s, Field("Repair", 60) + Field("$80.00", 10) + Bytes16(4));
  bench.Reopen();
  bench.On().Click(u"cmdInvoice_0"_s);
  QVERIFY(bench.On().IsEnabled(u"btnServices"_s));
  bench.On().PressKey(Qt::Key_F5);
  QVERIFY(bench.On().IsVisible(u"fraServices"_s));
}

QTEST_MAIN(ScreenStrip)
#include "tst_screenStrip.moc"
