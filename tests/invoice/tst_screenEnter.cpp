// Enter in a box of the invoice that presses a button: where a message came up, the user stands in his box again.

#include <QtWidgets>

#include "records/InvoicingDesk.h"

using namespace Qt::StringLiterals;

class ScreenEnter : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anErrorOfThePostLeavesTheUserInThePrice();
  void anErrorOfTheDiscountLeavesTheUserInItsBox();
  void aTemplateThatIsYetToBeSelectedLeavesTheUserInTheList();
  void aPressOfTheButtonItselfLeavesHimThere();
};

namespace {

const QString TooMuch = QString(25, u'9');
const QString Caption = u"Karvex Invoicer"_s;

/// A service typed by hand, at a price beyond any amount; the price has the focus.
void TypeService(const ScreenDriver& invoice) {
  invoice.Trigger(u"mnuServices"_s);
  invoice.Type(u"Survey"_s);
  invoice.Fill(u"cboPrice_0"_s, TooMuch);
  QCOMPARE(invoice.FocusName(), u"cboPrice_0"_s);
}

InvoicingDesk& WithService(InvoicingDesk& desk) {
  desk.Program.Tree.Write(u"/Services.txt"_s, Field("Repair", 60) + Field("$10.00", 10) + Bytes16(1));
  return desk;
}

}  // namespace

void ScreenEnter::anErrorOfThePostLeavesTheUserInThePrice() {
  InvoicingDesk desk;
  QVERIFY(WithService(desk).Program.StartAtMenu());
  desk.BeginInvoice(u"PO 5"_s, u"Ann"_s);
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  TypeService(invoice);
  desk.Program.Answers.Ok({}, Caption);
  invoice.PressKey(Qt::Key_Return);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"(error 6)"_s));
  QCOMPARE(invoice.FocusName(), u"cboPrice_0"_s);
  QCOMPARE(InvoicingDesk::Line(1).at(1), QString());
  // Corrected there, it is posted by the same key, and the next service follows.
  invoice.Fill(u"cboPrice_0"_s, u"80"_s);
  invoice.PressKey(Qt::Key_Return);
  QCOMPARE(InvoicingDesk::Line(1).at(4), u"$80.00"_s);
  QCOMPARE(invoice.FocusName(), u"cboDescription_0"_s);
}

void ScreenEnter::anErrorOfTheDiscountLeavesTheUserInItsBox() {
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.BeginInvoice(u"PO 5"_s, u"Ann"_s);
  desk.PostHammers(u"2"_s);
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Click(u"cmdPrint"_s);
  desk.Program.Answers.Ok();
  invoice.Click(u"optDiscount_1"_s);
  invoice.Type(TooMuch);
  desk.Program.Answers.Ok({}, Caption);
  invoice.PressKey(Qt::Key_Return);
  QVERIFY(desk.Program.Answers.Last().Text.contains(u"(error 6)"_s));
  QCOMPARE(invoice.FocusName(), u"txtFlatDiscount"_s);
  // What is typed next takes the place of it.
  invoice.Type(u"4"_s);
  invoice.PressKey(Qt::Key_Return);
  QCOMPARE(InvoicingDesk::Text(u"txtDiscount"_s), u"$4.00"_s);
}

void ScreenEnter::aTemplateThatIsYetToBeSelectedLeavesTheUserInTheList() {
  InvoiceBench bench;
  bench.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Monthly.txt"_s, "");
  bench.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Yearly.txt"_s, "");
  bench.Open();
  auto* list = bench.On().Control<QListWidget>(u"flstInvoiceTemplates"_s);
  bench.On().Control(u"flstInvoiceTemplates"_s)->setFocus();
  list->setCurrentRow(0);
  bench.Answers.Ok();
  bench.On().Click(u"cmdTemplate_1"_s);
  bench.On().Fill(u"txtReference"_s, u"PO 5"_s);
  bench.On().PressKey(Qt::Key_Tab);
  QVERIFY(list->selectedItems().isEmpty());
  bench.Answers.Ok(u"Select a Template in the list first"_s, u"No Template selected"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.On().FocusName(), u"flstInvoiceTemplates"_s);
}

void ScreenEnter::aPressOfTheButtonItselfLeavesHimThere() {
  InvoicingDesk desk;
  QVERIFY(WithService(desk).Program.StartAtMenu());
  desk.BeginInvoice(u"PO 5"_s, u"Ann"_s);
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  TypeService(invoice);
  desk.Program.Answers.Ok({}, Caption);
  invoice.Click(u"cmdPost_0"_s);
  QCOMPARE(invoice.FocusName(), u"cmdPost_0"_s);
}

QTEST_MAIN(ScreenEnter)
#include "tst_screenEnter.moc"
