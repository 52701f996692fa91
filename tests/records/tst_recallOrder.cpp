// The order of a recall: the invoice is read, the message stands over the list, and only then the screens change.

#include "records/InvoicingDesk.h"

using namespace Qt::StringLiterals;

class RecallOrder : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theMessageStandsOverTheListAndThenTheInvoiceShows_data();
  void theMessageStandsOverTheListAndThenTheInvoiceShows();
};

void RecallOrder::theMessageStandsOverTheListAndThenTheInvoiceShows_data() {
  QTest::addColumn<bool>("doubleClick");
  QTest::newRow("Add to Selected Invoice") << false;
  QTest::newRow("a double click") << true;
}

void RecallOrder::theMessageStandsOverTheListAndThenTheInvoiceShows() {
  QFETCH(const bool, doubleClick);
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.BeginInvoice(u"PO 5"_s, u"Ann"_s);
  desk.PostHammers(u"2"_s);
  desk.Save();
  const ScreenDriver partials = desk.OpenPartials();
  const QString image = u"/KarvexInvoicer/IncompleteInvoices/20260017.txt"_s;
  bool listShown = false;
  bool invoiceShown = true;
  desk.Program.Answers.With(QMessageBox::Ok, [&] {
    listShown = ScreenDriver::IsShown(u"frmIncomplete"_s);
    invoiceShown = ScreenDriver::IsShown(u"frmInvoice"_s);
    // It has been read by now.
    desk.Program.Tree.Remove(image);
  });
  if (doubleClick) {
    partials.DoubleClickRow(u"fgIncomplete"_s, 1);
  } else {
    partials.Click(u"Command1_1"_s);
  }
  QCOMPARE(desk.Program.Answers.Last().Title, u"Partial Invoice Loaded"_s);
  QVERIFY(listShown);
  QVERIFY(!invoiceShown);
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmInvoice"_s));
  QCOMPARE(InvoicingDesk::Line(1).at(1), u"Hammer"_s);
}

QTEST_MAIN(RecallOrder)
#include "tst_recallOrder.moc"
