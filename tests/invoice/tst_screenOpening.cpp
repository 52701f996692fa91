// What the invoice screen opens with, for a new invoice and a recalled one.

#include <QtWidgets>

#include "invoice/Recalled.h"

using namespace Qt::StringLiterals;

namespace {

/// What the toolkit draws of a label: with a buddy a single ampersand is an access key, and markup is carried out.
QString ShownOn(const InvoiceBench& bench, const QString& name) {
  const auto* label = bench.On().Control<QLabel>(name);
  QString text = label->text();
  if (label->textFormat() != Qt::PlainText && Qt::mightBeRichText(text)) {
    return QTextDocumentFragment::fromHtml(text).toPlainText();
  }
  if (label->buddy() == nullptr) return text;
  text.replace(u"&&"_s, QString(QChar(u'\n')));
  return text.remove(u'&').replace(u'\n', u'&');
}

}  // namespace

class ScreenOpening : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aNewInvoiceOpensInItsSetupView();
  void aRecalledInvoiceOpensToBeAddedTo();
  void aRecalledInvoiceKeepsItsReferenceAndCustomer();
  void aRecalledInvoiceStartsWithoutLaborOrADeductedDiscount();
  void aNewInvoiceAfterARecalledOneUnlocksTheNumber();
  void openingAgainClearsTheInvoiceBefore();
  void templatesShowWhereTheFolderHoldsAny();
  void aShowingThatFailsIsToldAndTheNextOneShows();
  void theInternationalStyleHasNoState();
  void theTaxRowsBearTheHeadingsOfSetup_data();
  void theTaxRowsBearTheHeadingsOfSetup();
  void theSecondTaxShowsAndIsTickedAsSetupSays();
  void aFinalizedInvoiceThatIsOpenedAnewMustBeFinalizedAgain();
  void anInvoiceRecalledFirstOfAllHasTodayAsItsShipDate();
  void namesFromTheFilesStandOnTheLabelsAsTheyAre();
  void openingAgainEndsADraft();
  void anExemptionOutlastsTheWayToTheMenu();
  void theNextInvoiceBearsNoShipToAddressOfTheCustomerBefore();
  void aRecalledInvoiceKeepsItsShipToAddress();
};

void ScreenOpening::aNewInvoiceOpensInItsSetupView() {
  InvoiceBench bench;
  bench.Open();
  QVERIFY(bench.On().IsVisible(u"fraSetup"_s));
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"20260001"_s);
  QCOMPARE(bench.Text(u"cmdInvoice_0"_s), u"Continue......"_s);
  QCOMPARE(bench.On().Control(u"cmdInvoice_0"_s)->toolTip(), u"Create this Invoice"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoice_2"_s));
  QVERIFY(bench.On().IsVisible(u"lblInvoiceNo"_s));
  QVERIFY(!bench.On().Control<QLineEdit>(u"txtInvoiceNo"_s)->isReadOnly());
  QCOMPARE(bench.On().Control<QDateEdit>(u"DTPicker1"_s)->date(), QDate(2026, 3, 7));
  QCOMPARE(bench.On().Control<QDateEdit>(u"DTShip"_s)->date(), QDate(2026, 3, 7));
  QVERIFY(!bench.On().IsEnabled(u"cmdPrint"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdTemplate_2"_s));
  QVERIFY(!bench.On().IsEnabled(u"UpDown1_up"_s));
  const QStringList block{u"Acme Tools"_s, u"1 Main Street"_s, QString(), u"Springfield"_s, u"IL"_s, u"62701"_s};
  for (int i = 0; i < 6; ++i) {
    QCOMPARE(bench.Text(u"lblCustomer_%1"_s.arg(i)), block[i]);
    QCOMPARE(bench.Text(u"lblCustomer_%1"_s.arg(i + 6)), block[i]);
  }
  QCOMPARE(bench.Text(u"lblAcct"_s), u"1001"_s);
  QCOMPARE(bench.Text(u"lblAcctNo"_s), u"1001"_s);
  QCOMPARE(bench.On().FocusName(), u"txtShipto_6"_s);
}

void ScreenOpening::aRecalledInvoiceOpensToBeAddedTo() {
  InvoiceBench bench;
  bench.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Monthly.txt"_s, "");
  bench.Open();
  Recall(bench);
  bench.Reopen();
  QCOMPARE(bench.Text(u"cmdInvoice_0"_s), u"Add To......."_s);
  QCOMPARE(bench.On().Control(u"cmdInvoice_0"_s)->toolTip(), u"Continues the Creation of this Invoice"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoice_2"_s));
  QVERIFY(!bench.On().IsVisible(u"lblInvoiceNo"_s));
  QVERIFY(!bench.On().IsVisible(u"fraTemplates"_s));
  QVERIFY(bench.On().Control<QLineEdit>(u"txtInvoiceNo"_s)->isReadOnly());
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"20260009"_s);
  QCOMPARE(bench.On().Control<QDateEdit>(u"DTPicker1"_s)->date(), QDate(2026, 2, 3));
  QCOMPARE(bench.Row(1), (QStringList{u"2"_s, u"Hammer"_s, u"2/3/2026"_s, u"$12.00"_s, u"$24.00"_s, u"True"_s}));
}

void ScreenOpening::aRecalledInvoiceKeepsItsReferenceAndCustomer() {
  InvoiceBench bench;
  bench.Open();
  Recall(bench);
  bench.Reopen();
  QCOMPARE(bench.Text(u"txtReference"_s), u"PO 77"_s);
  QCOMPARE(bench.Text(u"lblAcct"_s), u"2002"_s);
  QCOMPARE(bench.Text(u"lblCustomer_6"_s), u"Kept Ltd"_s);
  bench.On().Click(u"cmdRedo"_s);
  QCOMPARE(bench.Text(u"txtReference"_s), u"PO 77"_s);
  QCOMPARE(bench.Row(1), QStringList(6, QString()));
}

void ScreenOpening::aRecalledInvoiceStartsWithoutLaborOrADeductedDiscount() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().Trigger(u"mnuLabor"_s);
  bench.On().Type(u"2"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_1"_s);
  bench.On().Type(u"5"_s);
  bench.On().Click(u"cmdAddDiscount"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdAddDiscount"_s));
  QCOMPARE(bench.Text(u"lblLaborCharge_1"_s), u"$180.00"_s);
  Recall(bench);
  bench.Reopen();
  QVERIFY(bench.Invoice.Controls.Enabled.cmdAddDiscount);
  QCOMPARE(bench.Text(u"lblLaborCharge_1"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"txtHours_1"_s), u"0"_s);
}

void ScreenOpening::aNewInvoiceAfterARecalledOneUnlocksTheNumber() {
  InvoiceBench bench;
  bench.Open();
  Recall(bench);
  bench.Reopen();
  bench.On().Click(u"cmdInvoice_1"_s);
  QVERIFY(!bench.Invoice.RecalledInvoice);
  bench.Reopen();
  QVERIFY(!bench.On().Control<QLineEdit>(u"txtInvoiceNo"_s)->isReadOnly());
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"20260001"_s);
  QCOMPARE(bench.Text(u"txtReference"_s), QString());
  QCOMPARE(bench.Text(u"lblCustomer_6"_s), u"Acme Tools"_s);
}

void ScreenOpening::openingAgainClearsTheInvoiceBefore() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.Finalize();
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$25.00"_s);
  bench.Reopen();
  QCOMPARE(bench.Row(1), QStringList(6, QString()));
  for (const auto& box : {u"txtTotal"_s, u"txtTax"_s, u"txtTax2"_s, u"txtGrandTotal"_s, u"txtShip"_s, u"txtMisc"_s,
                          u"txtDiscount"_s, u"txtFlatDiscount"_s}) {
    QCOMPARE(bench.Text(box), u"$0.00"_s);
  }
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenOpening::templatesShowWhereTheFolderHoldsAny() {
  InvoiceBench bench;
  bench.Open();
  QVERIFY(!bench.On().IsVisible(u"fraTemplates"_s));
  bench.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Monthly.txt"_s, "");
  bench.Reopen();
  QVERIFY(bench.On().IsVisible(u"fraTemplates"_s));
  const auto* list = bench.On().Control<QListWidget>(u"flstInvoiceTemplates"_s);
  QCOMPARE(list->count(), 1);
  QCOMPARE(list->item(0)->text(), u"Monthly.txt"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdTemplate_0"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdTemplate_1"_s));
}

void ScreenOpening::aShowingThatFailsIsToldAndTheNextOneShows() {
  InvoiceBench bench;
  bench.OpenAtLines();
  // An option that the form doesn't have, and a focus for a control that it doesn't have.
  QVERIFY_THROWS_EXCEPTION(std::logic_error, [&] {
    bench.Invoice.Controls.Focus = u"txtNowhere"_s;
    bench.Invoice.Show();
  }());
  bench.Invoice.optDiscount = 9;
  bench.On().Trigger(u"mnuMemo"_s);
  QVERIFY(!bench.Around.Errors.isEmpty());
  QCOMPARE(bench.Around.Errors, QList<int>(bench.Around.Errors.size(), 0));
  bench.Around.Errors.clear();
  bench.Invoice.optDiscount = DiscountOption::None;
  bench.Invoice.txtMemo = u"Shown again"_s;
  bench.On().Trigger(u"mnuManual"_s);
  QVERIFY(bench.Around.Errors.isEmpty());
  QCOMPARE(bench.On().Control<QPlainTextEdit>(u"txtMemo"_s)->toPlainText(), u"Shown again"_s);
}

void ScreenOpening::theInternationalStyleHasNoState() {
  InvoiceBench bench;
  bench.Tree.Write(u"/MyBusinessData.txt"_s, "\"Grove\",\"12 Road\",\"\",\"Town\",\"\",\"\",\"555\",\"\",\"\"\r\n");
  bench.Open();
  const QWidget* postal = bench.On().Control(u"txtShipto_5"_s);
  for (const auto& name : {u"lblCustomer_4"_s, u"lblCustomer_10"_s, u"txtShipto_4"_s}) {
    QVERIFY2(!bench.On().IsVisible(name), qPrintable(name));
  }
  QCOMPARE(postal->width(), bench.On().Control(u"txtShipto_0"_s)->width());
  bench.Live.Business.AddressStyleCaption = u"USA Style Address"_s;
  bench.Reopen();
  for (const auto& name : {u"lblCustomer_4"_s, u"lblCustomer_10"_s, u"txtShipto_4"_s}) {
    QVERIFY2(bench.On().IsVisible(name), qPrintable(name));
  }
  QVERIFY(postal->width() < bench.On().Control(u"txtShipto_0"_s)->width());
}

void ScreenOpening::theTaxRowsBearTheHeadingsOfSetup_data() {
  QTest::addColumn<bool>("second");
  QTest::addColumn<bool>("graduated");
  QTest::addColumn<QString>("heading");
  QTest::newRow("one tax") << false << false << QString();
  QTest::newRow("two taxes") << true << false << u"County Tax"_s;
  QTest::newRow("graduated") << false << true << u"Tax Surcharge"_s;
  QTest::newRow("graduated, two taxes") << true << true << u"Tax Surcharge"_s;
}

void ScreenOpening::theTaxRowsBearTheHeadingsOfSetup() {
  QFETCH(bool, second);
  QFETCH(bool, graduated);
  QFETCH(QString, heading);
  InvoiceBench bench;
  bench.Tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"County Tax\",\"6.0\",\"1.0\",1,0\r\n");
  bench.Open();
  bench.Live.Tax.ckApply2ndTax = second;
  bench.Live.Tax.ckApplyGraduated = graduated;
  bench.Reopen();
  QCOMPARE(bench.Text(u"Label1_2"_s), u"Sales Tax"_s);
  QCOMPARE(bench.Text(u"Label1_0"_s), heading);
}

void ScreenOpening::theSecondTaxShowsAndIsTickedAsSetupSays() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(!bench.On().IsVisible(u"ck2ndTax"_s));
  QVERIFY(!bench.Ticked(u"ck2ndTax"_s));
  bench.Live.Tax.ckApply2ndTax = true;
  bench.Reopen();
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(bench.On().IsVisible(u"ck2ndTax"_s));
  QVERIFY(bench.Ticked(u"ck2ndTax"_s));
  // Unticked for one invoice, it is ticked again for the next.
  bench.On().Click(u"ck2ndTax"_s);
  QVERIFY(!bench.Invoice.ck2ndTax);
  bench.On().Click(u"cmdRedo"_s);
  QVERIFY(bench.Invoice.ck2ndTax);
}

void ScreenOpening::aFinalizedInvoiceThatIsOpenedAnewMustBeFinalizedAgain() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.Finalize();
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  // Posting after Finalize leaves it enabled.
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
  bench.Reopen();
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceContinue"_s));
}

void ScreenOpening::anInvoiceRecalledFirstOfAllHasTodayAsItsShipDate() {
  InvoiceBench bench;
  Recall(bench);
  bench.Open();
  QCOMPARE(bench.On().Control<QDateEdit>(u"DTShip"_s)->date(), QDate(2026, 3, 7));
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.Finalize();
  bench.Answers.Yes();
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QVERIFY(bench.Tree.Bytes(u"/CompletedInvoices/20260009.txt"_s).contains("\r\nNone\r\n3/7/2026\r\n20260009\r\n"));
}

void ScreenOpening::namesFromTheFilesStandOnTheLabelsAsTheyAre() {
  InvoiceBench bench;
  bench.Tree.Write(u"/TaxSettings.txt"_s, "\"Sales & Use Tax\",\"<b>R&D</b>\",\"6.0\",\"1.0\",1,1\r\n");
  bench.Tree.Write(u"/Labor.txt"_s, "\"R&D\",\"$45.00\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n");
  bench.Customer[1] = u"<i>Smith & Sons</i>"_s;
  bench.Open();
  QCOMPARE(ShownOn(bench, u"Label1_2"_s), u"Sales & Use Tax"_s);
  QCOMPARE(ShownOn(bench, u"Label1_0"_s), u"<b>R&D</b>"_s);
  QCOMPARE(ShownOn(bench, u"lblLaborHeading_0"_s), u"R&D at $45.00 per Hour"_s);
  QCOMPARE(ShownOn(bench, u"lblCustomer_0"_s), u"<i>Smith & Sons</i>"_s);
  QCOMPARE(ShownOn(bench, u"lblCustomer_6"_s), u"<i>Smith & Sons</i>"_s);
}

void ScreenOpening::openingAgainEndsADraft() {
  InvoiceBench bench;
  bench.Open();
  bench.Invoice.DraftPrint = true;
  bench.Reopen();
  QVERIFY(!bench.Invoice.DraftPrint);
}

void ScreenOpening::anExemptionOutlastsTheWayToTheMenu() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"ckExempt"_s);
  bench.On().Click(u"cmdInvoice_1"_s);
  bench.Customer[1] = u"Other Ltd"_s;
  bench.Reopen();
  QVERIFY(bench.Ticked(u"ckExempt"_s));
  QCOMPARE(bench.Text(u"lblCustomer_6"_s), u"Other Ltd"_s);
}

void ScreenOpening::theNextInvoiceBearsNoShipToAddressOfTheCustomerBefore() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Click(u"cmdShipToAddress_0"_s);
  bench.On().Fill(u"txtShipto_6"_s, u"Ms Jones"_s);
  QCOMPARE(bench.Text(u"txtShipto_0"_s), u"Acme Tools"_s);
  bench.On().Click(u"cmdInvoice_1"_s);
  bench.Customer[1] = u"Other Ltd"_s;
  bench.Reopen();
  for (int i = 0; i < 7; ++i) QCOMPARE(bench.Text(u"txtShipto_%1"_s.arg(i)), QString());
  QCOMPARE(bench.On().FocusName(), u"txtShipto_6"_s);
}

void ScreenOpening::aRecalledInvoiceKeepsItsShipToAddress() {
  InvoiceBench bench;
  bench.Open();
  Recall(bench);
  bench.Invoice.txtShipto = {u"Barn"_s, u"2 Hay Ln"_s, u""_s, u"Lynn"_s, u"MA"_s, u"01901"_s, u"Ann"_s};
  bench.Reopen();
  QCOMPARE(bench.Text(u"txtShipto_0"_s), u"Barn"_s);
  QCOMPARE(bench.Text(u"txtShipto_6"_s), u"Ann"_s);
}

QTEST_MAIN(ScreenOpening)
#include "tst_screenOpening.moc"
