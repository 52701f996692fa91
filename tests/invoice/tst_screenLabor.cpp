// Labor on the invoice screen: hours, charges, and the lines posted from them.

#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

class ScreenLabor : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void hoursAreChargedAndSummed();
  void laborPostsALineForEachChargeAndOpensTheServices();
  void laborWithoutServicesStaysOpen();
  void hoursThatAreNoNumberComeBackAsZero();
  void emptyHoursAreLeftAlone();
  void clearLaborSetsEverythingBack();
  void laborOntoAFullGridIsTheGridsError();
  void enterInTheHoursCalculates();
  void laborForMoreSlotsThanThereIsRoomPostsNone();
  void hoursTakeDigitsAndOnePointOnly();
};

void ScreenLabor::hoursAreChargedAndSummed() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  bench.On().Type(u"2"_s);
  bench.On().Fill(u"txtHours_0"_s, u"1.5"_s);
  QCOMPARE(bench.Text(u"lblLaborCharge_1"_s), u"$180.00"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdLabor_1"_s));
  bench.On().Click(u"cmdLabor_0"_s);
  QCOMPARE(bench.Text(u"lblLaborCharge_0"_s), u"$67.50"_s);
  QCOMPARE(bench.Text(u"lblLaborCharge_3"_s), u"$247.50"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdLabor_1"_s));
  QCOMPARE(bench.On().FocusName(), u"cmdLabor_1"_s);
}

void ScreenLabor::laborPostsALineForEachChargeAndOpensTheServices() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  bench.Live.Tax.ckLabor = true;
  bench.On().Type(u"2"_s);
  bench.On().Fill(u"txtHours_0"_s, u"1.5"_s);
  bench.On().Click(u"cmdLabor_0"_s);
  bench.On().Click(u"cmdLabor_1"_s);
  QCOMPARE(bench.Row(1),
           (QStringList{u"1.5 Hrs"_s, u"General Labor"_s, QString(), u"$45.00"_s, u"$67.50"_s, u"True"_s}));
  QCOMPARE(bench.Row(2), (QStringList{u"2 Hrs"_s, u"Night Labor"_s, QString(), u"$90.00"_s, u"$180.00"_s, u"True"_s}));
  QCOMPARE(bench.Invoice.LineCount, 2);
  QVERIFY(bench.On().IsEnabled(u"cmdPrint"_s));
  QVERIFY(!bench.Invoice.Controls.Enabled.cmdLabor_1);
  QVERIFY(bench.On().IsVisible(u"fraServices"_s));
  QVERIFY(!bench.On().IsVisible(u"fraLabor"_s));
}

void ScreenLabor::laborWithoutServicesStaysOpen() {
  InvoiceBench bench;
  bench.Tree.Remove(u"/Services.txt"_s);
  bench.OpenAt(u"mnuLabor"_s);
  bench.On().Type(u"1"_s);
  bench.On().Click(u"cmdLabor_0"_s);
  bench.On().Click(u"cmdLabor_1"_s);
  QCOMPARE(bench.Invoice.LineCount, 1);
  QVERIFY(bench.On().IsVisible(u"fraLabor"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdLabor_1"_s));
}

void ScreenLabor::hoursThatAreNoNumberComeBackAsZero() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  bench.On().Type(u"."_s);
  bench.On().Click(u"cmdLabor_0"_s);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.On().FocusName(), u"txtHours_1"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdLabor_1"_s));
}

void ScreenLabor::emptyHoursAreLeftAlone() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  bench.On().Type(u"2"_s);
  bench.On().Click(u"txtHours_0"_s);
  bench.On().Fill(u"txtHours_1"_s, QString());
  bench.On().Click(u"txtHours_0"_s);
  QCOMPARE(bench.Text(u"txtHours_1"_s), QString());
  // What was charged for it before stays.
  QCOMPARE(bench.Text(u"lblLaborCharge_1"_s), u"$180.00"_s);
  QCOMPARE(bench.Dialogs.Beeps, 0);
}

void ScreenLabor::clearLaborSetsEverythingBack() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  bench.On().Type(u"2"_s);
  bench.On().Click(u"cmdLabor_0"_s);
  bench.On().Click(u"cmdLabor_2"_s);
  QCOMPARE(bench.Text(u"txtHours_1"_s), u"0"_s);
  QCOMPARE(bench.Text(u"lblLaborCharge_1"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"lblLaborCharge_3"_s), u"$0.00"_s);
  QCOMPARE(bench.Invoice.LaborAmount[1], Currency());
}

void ScreenLabor::laborOntoAFullGridIsTheGridsError() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  bench.FillGrid(100);
  bench.On().Type(u"2"_s);
  bench.On().Click(u"cmdLabor_0"_s);
  bench.On().Click(u"cmdLabor_1"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{9});
  QCOMPARE(bench.Invoice.LineCount, 100);
  QVERIFY(bench.On().IsVisible(u"fraLabor"_s));
}

void ScreenLabor::enterInTheHoursCalculates() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  bench.On().Type(u"2"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Text(u"lblLaborCharge_3"_s), u"$180.00"_s);
  QCOMPARE(bench.On().FocusName(), u"cmdLabor_1"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Row(1)[0], u"2 Hrs"_s);
}

void ScreenLabor::laborForMoreSlotsThanThereIsRoomPostsNone() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  bench.FillGrid(99);
  bench.On().Type(u"2"_s);
  bench.On().Fill(u"txtHours_0"_s, u"1"_s);
  bench.On().Click(u"cmdLabor_0"_s);
  bench.On().Click(u"cmdLabor_1"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{9});
  QCOMPARE(bench.Invoice.LineCount, 99);
  QCOMPARE(bench.Row(100), QStringList(6, QString()));
  QVERIFY(bench.On().IsEnabled(u"cmdLabor_1"_s));
  // With one slot emptied it fits.
  bench.On().Fill(u"txtHours_0"_s, u".0"_s);
  bench.On().Click(u"cmdLabor_0"_s);
  bench.On().Click(u"cmdLabor_1"_s);
  QCOMPARE(bench.Row(100)[0], u"2 Hrs"_s);
}

void ScreenLabor::hoursTakeDigitsAndOnePointOnly() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuLabor"_s);
  QCOMPARE(bench.On().FocusName(), u"txtHours_1"_s);
  bench.On().Type(u"0"_s);
  QCOMPARE(bench.Text(u"txtHours_1"_s), QString());
  bench.On().Type(u"1x-.5.0"_s);
  QCOMPARE(bench.Text(u"txtHours_1"_s), u"1.50"_s);
  bench.On().PressKey(Qt::Key_Backspace);
  QCOMPARE(bench.Text(u"txtHours_1"_s), u"1.50"_s);
  QCOMPARE(bench.Dialogs.Beeps, 0);
}

QTEST_MAIN(ScreenLabor)
#include "tst_screenLabor.moc"
