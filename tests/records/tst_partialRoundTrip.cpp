// An invoice parked on one day and finished after a restart: what comes back, what doesn't, and what the disk holds.

#include "customers/CustomerRecords.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString Image = u"/KarvexInvoicer/IncompleteInvoices/20260017.txt"_s;

void Stock(const TemporaryTree& tree) {
  tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
  tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n");
  tree.Write(u"/KVInventoriedItems.txt"_s, Field("Hammer", 50) + Field("Tools", 20) + Bytes64(0) + Bytes64(120000) +
                                               Bytes16(10) + Bytes64(0) + Bytes32(0) + Bytes16(0) + Bytes16(0));
  RecordText customer;
  customer.AcctNo = "1001";
  customer.AcctName = "Acme Tools";
  customer.AcctType = "Business";
  tree.Write(u"/CustomerData.txt"_s, customer.Bytes());
}

/// A new invoice for the one customer with that reference and attention line, up to its lines.
void BeginInvoice(const QString& reference, const QString& attention) {
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Fill(u"txtReference"_s, reference);
  invoice.Fill(u"txtShipto_6"_s, attention);
  invoice.Click(u"cmdInvoice_0"_s);
}

void PostHammers(const QString& units) {
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Trigger(u"mnuItems"_s);
  invoice.PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  invoice.Fill(u"txtUnits"_s, units);
  invoice.Click(u"cmdPost_1"_s);
}

void Save(ProgramFixture& program) {
  program.Answers.Yes({}, u"Save Partial Invoice"_s);
  program.Answers.No({}, u"Print Draft Copy"_s);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdSave"_s);
}

/// The first partial invoice, from the main menu to the invoice screen.
void Recall(ProgramFixture& program) {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_1"_s);
  menu.Click(u"cmdGoto"_s);
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  program.Answers.Ok({}, u"Partial Invoice Loaded"_s);
  partials.Click(u"Command1_1"_s);
}

QStringList Line(int row) {
  const auto* lines = ScreenDriver(u"frmInvoice"_s).Control<QTableView>(u"fgInvoice"_s)->model();
  QStringList cells;
  for (int col = 0; col < 6; ++col) cells.append(lines->index(row - 1, col).data().toString());
  return cells;
}

}  // namespace

class PartialRoundTrip : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void parkedQuitRecalledAndFinished();
  void aRecalledInvoiceThatIsSavedAgainReplacesItsFile();
  void aCommaInTheReferenceIsKeptInTheFileThoughItCannotBeRecalled();
  void aLineBreakPastedIntoTheReferenceLosesNoPartialInvoice();
};

void PartialRoundTrip::parkedQuitRecalledAndFinished() {
  ProgramFixture program;
  Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  BeginInvoice(u"PO \"5\""_s, u"Ann"_s);
  PostHammers(u"2"_s);
  Save(program);
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260018\r\n");
  QCOMPARE(ScreenDriver(u"frmStartup"_s).Text(u"lblIncomplete"_s), u"1"_s);
  program.End();

  program.Calendar.Set(QDate(2026, 3, 9));
  QVERIFY(program.StartAtMenu());
  Recall(program);
  const ScreenDriver invoice(u"frmInvoice"_s);
  QCOMPARE(invoice.Text(u"txtInvoiceNo"_s), u"20260017"_s);
  QCOMPARE(invoice.Text(u"txtReference"_s), u"PO \"5\""_s);
  QCOMPARE(invoice.Text(u"txtShipto_6"_s), u"Ann"_s);
  QCOMPARE(invoice.Control<QDateEdit>(u"DTPicker1"_s)->date(), QDate(2026, 3, 7));
  // The item's blank date became that of the save.
  QCOMPARE(Line(1), (QStringList{u"2"_s, u"Hammer"_s, u"3/7/2026"_s, u"$12.00"_s, u"$24.00"_s, u"True"_s}));
  invoice.Click(u"cmdInvoice_0"_s);
  PostHammers(u"1"_s);
  QCOMPARE(Line(2), (QStringList{u"1"_s, u"Hammer"_s, u""_s, u"$12.00"_s, u"$12.00"_s, u"True"_s}));
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  QCOMPARE(invoice.Text(u"txtGrandTotal"_s), u"$38.16"_s);
  program.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
  QVERIFY(!program.Tree.Exists(Image));
  QCOMPARE(program.Tree.List(u"/CompletedInvoices"_s), QStringList{u"20260017.txt"_s});
  QVERIFY(program.Tree.Bytes(u"/CompletedInvoices/20260017.txt"_s)
              .startsWith("20260017\r\n1001\r\nAcme Tools\r\n3/9/2026\r\n$38.16\r\n"));
  // Everything is booked on the day that it is finished, not on that of its save.
  const QByteArray finished = QByteArray::fromHex("000000004081e640");  // 46090 days since 30 December 1899
  QCOMPARE(program.Tree.Bytes(u"/SoldItems.txt"_s), Field("Hammer", 60) + finished + Field("20260017", 20) +
                                                        Bytes16(2) + Field("Hammer", 60) + finished +
                                                        Field("20260017", 20) + Bytes16(1));
  QCOMPARE(program.Tree.Bytes(u"/InvoiceSalesJournal.txt"_s).mid(85, 8), finished);
  QCOMPARE(program.Tree.Bytes(u"/TaxRecords.txt"_s).left(35), Field("Sales Tax", 20) + Field("3/9/2026", 15));
  const QStringList words = program.Paper.Words(1);
  QVERIFY2(words.contains(u"Date 3/9/2026"_s), qPrintable(words.join(u'|')));
  // Counted once, when it was saved.
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260018\r\n");
  QVERIFY(!ScreenDriver(u"frmStartup"_s).IsVisible(u"optMainMenuSub_1"_s));
}

void PartialRoundTrip::aRecalledInvoiceThatIsSavedAgainReplacesItsFile() {
  ProgramFixture program;
  Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  BeginInvoice(u"PO 5"_s, u"Ann"_s);
  PostHammers(u"2"_s);
  Save(program);
  program.Calendar.Set(QDate(2026, 3, 9));
  Recall(program);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_0"_s);
  PostHammers(u"1"_s);
  Save(program);
  QCOMPARE(program.Tree.List(u"/KarvexInvoicer/IncompleteInvoices"_s), QStringList{u"20260017.txt"_s});
  const QByteArray bytes = program.Tree.Bytes(Image);
  QVERIFY(bytes.startsWith("20260017\r\n1001\r\nAcme Tools\r\n3/9/2026\r\n"));
  QVERIFY(
      bytes.endsWith("20260017\r\n1001\r\nPO 5\r\nAnn\r\n2\r\n"
                     "2\r\nHammer\r\n3/7/2026\r\n$12.00\r\n$24.00\r\nTrue\r\n"
                     "1\r\nHammer\r\n3/9/2026\r\n$12.00\r\n$12.00\r\nTrue\r\n"));
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260018\r\n");
  Recall(program);
  QCOMPARE(Line(2).at(2), u"3/9/2026"_s);
}

void PartialRoundTrip::aCommaInTheReferenceIsKeptInTheFileThoughItCannotBeRecalled() {
  ProgramFixture program;
  Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  BeginInvoice(u"PO 5, rush"_s, u"Ann"_s);
  PostHammers(u"2"_s);
  Save(program);
  const QByteArray saved = program.Tree.Bytes(Image);
  QVERIFY(saved.contains("\r\nPO 5, rush\r\nAnn\r\n1\r\n"));
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_1"_s);
  menu.Click(u"cmdGoto"_s);
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  program.Answers.Ok();
  partials.Click(u"Command1_1"_s);
  QVERIFY2(program.Answers.Last().Text.contains(u"20260017.txt"_s), qPrintable(program.Answers.Last().Text));
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QCOMPARE(program.Tree.Bytes(Image), saved);
}

void PartialRoundTrip::aLineBreakPastedIntoTheReferenceLosesNoPartialInvoice() {
  ProgramFixture program;
  Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  BeginInvoice(u"PO 5"_s, u"Ann"_s);
  ScreenDriver(u"frmInvoice"_s).Trigger(u"mnuSetup"_s);
  ScreenDriver(u"frmInvoice"_s).Fill(u"txtReference"_s, u"PO "_s);
  ScreenDriver(u"frmInvoice"_s).Paste(u"6\r\nlot 7"_s);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_0"_s);
  PostHammers(u"2"_s);
  Save(program);
  QVERIFY(program.Tree.Bytes(Image).contains("\r\nPO 6 lot 7\r\nAnn\r\n1\r\n"));
  Recall(program);
  QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"txtReference"_s), u"PO 6 lot 7"_s);
}

QTEST_MAIN(PartialRoundTrip)
#include "tst_partialRoundTrip.moc"
