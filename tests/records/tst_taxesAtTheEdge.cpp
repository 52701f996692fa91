// Taxes where an invoice has only the second one, or less than nothing to tax: in the real program, from Setup or the
// list of partial invoices to the summary and the disk.

#include "records/InvoicingDesk.h"
#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class TaxesAtTheEdge : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aFirstRateOfZeroLeavesOneRecordUnderTheSecondHeading();
  void aNegativeSubTotalHasNoTaxIsNotShownAndTakesACharge();
};

void TaxesAtTheEdge::aFirstRateOfZeroLeavesOneRecordUnderTheSecondHeading() {
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  const ScreenDriver setup = SetupScreen::OpenAgain();
  SetupScreen::FillNameAndTelephone(setup);
  SetupScreen::GoToOptions(setup, 1);
  setup.Fill(u"cboRate1"_s, u"0"_s);
  setup.Fill(u"cboTaxHeading2"_s, u"County Tax"_s);
  setup.Fill(u"cboRate2"_s, u"2.5"_s);
  setup.Click(u"ckApply2ndTax"_s);
  SetupScreen::SaveAndReturn(setup);
  QCOMPARE(desk.Program.Tree.Bytes(u"/TaxSettings.txt"_s), "\"Sales Tax\",\"County Tax\",\"0\",\"2.5\",1,1\r\n");

  desk.BeginInvoice(u"PO 5"_s, u"Ann"_s);
  desk.PostHammers(u"3"_s);
  InvoicingDesk::Invoice().Click(u"cmdPrint"_s);
  InvoicingDesk::Invoice().Click(u"cmdInvoice_9"_s);
  QVERIFY(InvoicingDesk::Invoice().Control<QCheckBox>(u"ck2ndTax"_s)->isChecked());
  QCOMPARE(InvoicingDesk::Text(u"txtTax"_s), u"$0.00"_s);
  QCOMPARE(InvoicingDesk::Text(u"txtTax2"_s), u"$0.90"_s);
  QCOMPARE(InvoicingDesk::Text(u"txtGrandTotal"_s), u"$36.90"_s);
  desk.Commit();
  QCOMPARE(desk.Program.Tree.Bytes(u"/TaxRecords.txt"_s),
           "County Tax          "
           "3/7/2026       "
           "20260017                      "
           "0.9       ");
}

void TaxesAtTheEdge::aNegativeSubTotalHasNoTaxIsNotShownAndTakesACharge() {
  InvoicingDesk desk;
  desk.Program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s,
                          "20260009\r\n1001\r\nAcme Tools\r\n3/5/2026\r\n"
                          "\"Acme Tools\"\r\n\"1 Main Street\"\r\n\"\"\r\n\"Springfield\"\r\n\"IL\"\r\n\"62701\"\r\n"
                          "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
                          "20260009\r\n1001\r\nPO 5\r\nAnn\r\n1\r\n"
                          "1\r\nReturned\r\n3/1/2026\r\n($5.00)\r\n($5.00)\r\nTrue\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  desk.Recall();
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Click(u"cmdInvoice_0"_s);
  desk.PostHammers(u"1"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  QCOMPARE(invoice.Text(u"txtTotal"_s), u"$7.00"_s);
  QCOMPARE(invoice.Text(u"txtTax"_s), u"$0.42"_s);

  desk.Program.Answers.Yes(u"Delete item Hammer from Invoice?"_s);
  invoice.SelectRow(u"fgInvoice"_s, 2, 1);
  invoice.Trigger(u"mnuDeleteItem"_s);
  QCOMPARE(InvoicingDesk::Line(1)[4], u"($5.00)"_s);
  QCOMPARE(InvoicingDesk::Line(2)[1], QString());
  // Ready to Print totals the lines, and shows nothing of a sub-total below zero.
  invoice.Click(u"cmdPrint"_s);
  QCOMPARE(invoice.Text(u"txtTotal"_s), u"$7.00"_s);
  invoice.Fill(u"txtShip"_s, u"7"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  QCOMPARE(invoice.Text(u"txtTotal"_s), u"($5.00)"_s);
  QCOMPARE(invoice.Text(u"txtTax"_s), u"$0.00"_s);
  QCOMPARE(invoice.Text(u"txtTax2"_s), u"$0.00"_s);
  QCOMPARE(invoice.Text(u"txtGrandTotal"_s), u"$2.00"_s);
  desk.Commit();
  QVERIFY(!desk.Program.Tree.Exists(u"/TaxRecords.txt"_s));
}

QTEST_MAIN(TaxesAtTheEdge)
#include "tst_taxesAtTheEdge.moc"
