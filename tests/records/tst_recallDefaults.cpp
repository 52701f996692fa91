// What a partial invoice doesn't keep: charges, discount, carrier, terms and memo were entered before it was saved, and
// are the defaults of the day when it is recalled, on the screen, on the page and in the image.

#include "records/InvoicingDesk.h"

using namespace Qt::StringLiterals;

namespace {

const QString FlatText =
    u"You have Selected to Enter a Discount\nYour Invoice Terms have been reset to\nA Discount has been Applied\nYou "
    u"may "
    "wish to replace this setting"_s;

const QByteArray Addresses =
    "\"Acme Tools\"\r\n"
    "\"1 Main Street\"\r\n"
    "\"\"\r\n"
    "\"Springfield\"\r\n"
    "\"IL\"\r\n"
    "\"62701\"\r\n"
    "\"Acme Tools\"\r\n"
    "\"1 Main Street\"\r\n"
    "\"\"\r\n"
    "\"Springfield\"\r\n"
    "\"IL\"\r\n"
    "\"62701\"\r\n";
/// The count of lines, and the one line.
const QByteArray Hammers = "1\r\n2\r\nHammer\r\n3/7/2026\r\n$12.00\r\n$24.00\r\nTrue\r\n";

bool Ticked(const QString& name) {
  return InvoicingDesk::Invoice().Control<QAbstractButton>(name)->isChecked();
}

/// Two hammers for an invoice with everything that isn't saved, and a ship-to address.
void EnterEverything(InvoicingDesk& desk, bool flat) {
  desk.OpenInvoice();
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Click(u"cmdShipToAddress_0"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  desk.PostHammers(u"2"_s);
  invoice.Trigger(u"mnuMemo"_s);
  invoice.Type(u"Leave it at the back door. "_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_6"_s);
  invoice.PickEntry(u"cboShipping"_s, u"UPS - Ground"_s);
  invoice.PickEntry(u"cboTerms"_s, 6);
  invoice.Fill(u"txtShip"_s, u"13"_s);
  invoice.Fill(u"txtMisc"_s, u"5"_s);
  if (flat) {
    desk.Program.Answers.Ok(FlatText);
    invoice.Click(u"optDiscount_1"_s);
    invoice.Fill(u"txtFlatDiscount"_s, u"3"_s);
    invoice.Click(u"cmdAddDiscount"_s);
  }
  invoice.Click(u"cmdInvoice_9"_s);
}

}  // namespace

class RecallDefaults : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatIsNotSavedComesBackAsTheDefault_data();
  void whatIsNotSavedComesBackAsTheDefault();
  void withoutDefaultFilesTheProgramsOwnComeBack();
  void aMemoThatCannotBeReadRecallsNothing();
};

void RecallDefaults::whatIsNotSavedComesBackAsTheDefault_data() {
  QTest::addColumn<bool>("flat");
  QTest::newRow("a flat discount") << true;
  QTest::newRow("a calculated discount") << false;
}

void RecallDefaults::whatIsNotSavedComesBackAsTheDefault() {
  QFETCH(const bool, flat);
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  tree.Write(u"/InvoiceMemo.txt"_s, "Closed on Sunday\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  EnterEverything(desk, flat);
  QCOMPARE(InvoicingDesk::Text(u"txtGrandTotal"_s), flat ? u"$40.44"_s : u"$43.44"_s);
  QVERIFY(Ticked(flat ? u"optDiscount_1"_s : u"optDiscount_2"_s));
  QVERIFY(flat || InvoicingDesk::Text(u"txtDiscount"_s) != u"$0.00"_s);
  desk.Save();
  QCOMPARE(tree.Bytes(u"/KarvexInvoicer/IncompleteInvoices/20260017.txt"_s),
           "20260017\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n" + Addresses +
               "20260017\r\n1001\r\nPrepared 3/7/2026\r\n\r\n" + Hammers);

  tree.Write(u"/ShipVia.txt"_s, "FEDEX - Ground\r\n");
  tree.Write(u"/StatementTerms.txt"_s, "Payment due in Full within 15 Days\r\n");
  tree.Write(u"/InvoiceMemo.txt"_s, "Open on Sunday\r\n");
  desk.Recall();
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  for (const auto& box : {u"txtShip"_s, u"txtMisc"_s, u"txtDiscount"_s, u"txtFlatDiscount"_s, u"txtGrandTotal"_s}) {
    QCOMPARE(invoice.Text(box), u"$0.00"_s);
  }
  QCOMPARE(invoice.Text(u"cboShipping"_s), u"FEDEX - Ground"_s);
  QCOMPARE(invoice.Text(u"cboTerms"_s), u"Payment due in Full within 15 Days"_s);
  QCOMPARE(invoice.Text(u"txtMemo"_s), u"Open on Sunday\n"_s);
  QVERIFY(Ticked(u"ckAddMemo"_s));
  QVERIFY(Ticked(u"optDiscount_0"_s));
  QVERIFY(!Ticked(u"ckDiscount"_s));

  if (!Ticked(u"ckShipto"_s)) invoice.Click(u"ckShipto"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  QCOMPARE(invoice.Text(u"txtGrandTotal"_s), u"$25.44"_s);
  desk.Commit();
  const QStringList words = desk.Program.Paper.Words(1);
  for (const auto& printed : {u"FEDEX - Ground"_s, u"Open on Sunday"_s, u"$25.44"_s}) {
    QVERIFY2(words.contains(printed), qPrintable(words.join(u'|')));
  }
  QCOMPARE(words.filter(u"within 15 Days"_s).size(), 1);
  for (const auto& entered : {u"UPS"_s, u"back door"_s, u"Discount"_s, u"$13.00"_s, u"$5.00"_s, u"$3.00"_s}) {
    QVERIFY2(words.filter(entered).isEmpty(), qPrintable(entered));
  }
  QCOMPARE(tree.Bytes(u"/CompletedInvoices/20260017.txt"_s),
           "20260017\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n$25.44\r\n" + Addresses +
               "FEDEX - Ground\r\n3/7/2026\r\n20260017\r\n1001\r\nPrepared 3/7/2026\r\n\r\n" + Hammers +
               "\"$24.00\",\"$1.44\",\"$0.00\",\"$25.44\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
}

void RecallDefaults::withoutDefaultFilesTheProgramsOwnComeBack() {
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  EnterEverything(desk, false);
  desk.Save();
  desk.Recall();
  QCOMPARE(InvoicingDesk::Text(u"cboShipping"_s), u"None"_s);
  QCOMPARE(InvoicingDesk::Text(u"cboTerms"_s), u"Payment due in Full upon Receipt"_s);
  QCOMPARE(InvoicingDesk::Text(u"txtMemo"_s), QString());
  QVERIFY(!Ticked(u"ckAddMemo"_s));
}

void RecallDefaults::aMemoThatCannotBeReadRecallsNothing() {
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  EnterEverything(desk, false);
  desk.Save();
  desk.Program.Tree.Write(u"/InvoiceMemo.txt"_s, "Open on Sunday\r\n");
  const ScreenDriver partials = desk.OpenPartials();
  // The image is read first, then the memo.
  desk.Program.Files.FailAt(FailingDevice::Call::Open, 2, EACCES);
  desk.Program.Answers.Ok();
  partials.Click(u"Command1_1"_s);
  QVERIFY2(desk.Program.Answers.Last().Text.contains(u"/InvoiceMemo.txt"_s),
           qPrintable(desk.Program.Answers.Last().Text));
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  // What comes next is a new invoice, with the memo as it was typed.
  partials.Click(u"Command1_0"_s);
  desk.OpenInvoice();
  QCOMPARE(InvoicingDesk::Text(u"cmdInvoice_0"_s), u"Continue......"_s);
  QCOMPARE(InvoicingDesk::Text(u"txtMemo"_s), u"Leave it at the back door. "_s);
}

QTEST_MAIN(RecallDefaults)
#include "tst_recallDefaults.moc"
