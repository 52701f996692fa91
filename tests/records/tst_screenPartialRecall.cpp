// The recall of a partial invoice in the real program, from its row up to the commit.

#include "records/PartialsDesk.h"

using namespace Qt::StringLiterals;

class ScreenPartialRecall : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void recallFillsTheInvoiceScreen();
  void aDoubleClickRecallsTheRow();
  void nothingElseRecalls();
  void theFileStaysUntilTheInvoiceIsCommitted();
  void aRecalledInvoiceIsAddedToCommittedAndGone();
  void recalledAfterARestartItIsFinishedAsWell();
  void leavingTheInvoiceByMenuForgetsTheRecall();
  void whatCannotBeRecalledLeavesEverythingInPlace_data();
  void whatCannotBeRecalledLeavesEverythingInPlace();
};

void ScreenPartialRecall::recallFillsTheInvoiceScreen() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  desk.Recall();
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmStartup"_s));
  const ScreenDriver invoice(u"frmInvoice"_s);
  QCOMPARE(invoice.Text(u"cmdInvoice_0"_s), u"Add To......."_s);
  QVERIFY(invoice.IsVisible(u"fraSetup"_s));
  QVERIFY(invoice.Control<QLineEdit>(u"txtInvoiceNo"_s)->isReadOnly());
  const QStringList soldTo{u"Bay Farm"_s, u"1 Dock Rd"_s, u""_s, u"Salem"_s, u"MA"_s, u"01970"_s};
  const QStringList shipTo{u"Barn"_s, u""_s, u""_s, u"Lynn"_s, u"MA"_s, u"01901"_s, u"Ann"_s};
  for (int i = 0; i < 6; ++i) {
    QCOMPARE(invoice.Text(u"lblCustomer_%1"_s.arg(i)), soldTo[i]);
    QCOMPARE(invoice.Text(u"lblCustomer_%1"_s.arg(i + 6)), soldTo[i]);
  }
  for (int i = 0; i < 7; ++i) QCOMPARE(invoice.Text(u"txtShipto_%1"_s.arg(i)), shipTo[i]);
  QCOMPARE(invoice.Text(u"txtInvoiceNo"_s), u"20260009"_s);
  QCOMPARE(invoice.Text(u"lblAcct"_s), u"1001"_s);
  QCOMPARE(invoice.Text(u"lblAcctNo"_s), u"1001"_s);
  QCOMPARE(invoice.Text(u"txtReference"_s), u"PO 5"_s);
  for (const auto& box : {u"txtShip"_s, u"txtMisc"_s, u"txtDiscount"_s}) QCOMPARE(invoice.Text(box), u"$0.00"_s);
  QCOMPARE(invoice.Control<QDateEdit>(u"DTPicker1"_s)->date(), QDate(2026, 3, 5));
  QCOMPARE(Row(u"frmInvoice"_s, u"fgInvoice"_s, 1),
           (QStringList{u""_s, u"Survey"_s, u"3/1/2026"_s, u"$80.00"_s, u"$80.00"_s, u"False"_s}));
  QCOMPARE(Row(u"frmInvoice"_s, u"fgInvoice"_s, 2), QStringList(6, u""_s));
}

void ScreenPartialRecall::aDoubleClickRecallsTheRow() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  desk.Program.Answers.Ok(Loaded, u"Partial Invoice Loaded"_s);
  ScreenDriver(u"frmIncomplete"_s).DoubleClickRow(u"fgIncomplete"_s, 3);
  QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"txtInvoiceNo"_s), u"20260009"_s);
  QVERIFY(!ScreenDriver::IsShown(u"frmIncomplete"_s));
}

void ScreenPartialRecall::nothingElseRecalls() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 3);
  partials.RightPressRow(u"fgIncomplete"_s, 3);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Return, Qt::Key_Space}) partials.PressKey(key);
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmInvoice"_s));
}

void ScreenPartialRecall::theFileStaysUntilTheInvoiceIsCommitted() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  desk.Recall();
  QCOMPARE(desk.Program.Tree.Everything(), before);
}

void ScreenPartialRecall::aRecalledInvoiceIsAddedToCommittedAndGone() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  desk.Recall();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Trigger(u"mnuItems"_s);
  invoice.PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  invoice.Fill(u"txtUnits"_s, u"2"_s);
  invoice.Click(u"cmdPost_1"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  desk.Program.Answers.Yes(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));

  const TemporaryTree& tree = desk.Program.Tree;
  QCOMPARE(tree.List(Folder), (QStringList{u"20260007.txt"_s, u"20260008.txt"_s}));
  // Its number was counted when it was saved.
  QCOMPARE(tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260010\r\n");
  QCOMPARE(tree.Bytes(u"/CompletedInvoices/20260009.txt"_s),
           "20260009\r\n"
           "1001\r\n"
           "Bay Farm\r\n"
           "3/7/2026\r\n"
           "$105.44\r\n"
           "\"Bay Farm\"\r\n"
           "\"1 Dock Rd\"\r\n"
           "\"\"\r\n"
           "\"Salem\"\r\n"
           "\"MA\"\r\n"
           "\"01970\"\r\n"
           "\"Barn\"\r\n"
           "\"\"\r\n"
           "\"\"\r\n"
           "\"Lynn\"\r\n"
           "\"MA\"\r\n"
           "\"01901\"\r\n"
           "None\r\n"
           "3/7/2026\r\n"
           "20260009\r\n"
           "1001\r\n"
           "PO 5\r\n"
           "Ann\r\n"
           "2\r\n"
           "\r\n"
           "Survey\r\n"
           "3/1/2026\r\n"
           "$80.00\r\n"
           "$80.00\r\n"
           "False\r\n"
           "2\r\n"
           "Hammer\r\n"
           "\r\n"
           "$12.00\r\n"
           "$24.00\r\n"
           "True\r\n"
           "\"$104.00\",\"$1.44\",\"$0.00\",\"$105.44\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n");
  const ScreenDriver menu(u"frmStartup"_s);
  QCOMPARE(menu.Text(u"lblIncomplete"_s), u"2"_s);
  // The next invoice is a new one.
  menu.Click(u"optMainMenuSub_0"_s);
  menu.Click(u"cmdGoto"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  QCOMPARE(invoice.Text(u"cmdInvoice_0"_s), u"Continue......"_s);
  QCOMPARE(invoice.Text(u"txtInvoiceNo"_s), u"20260010"_s);
}

void ScreenPartialRecall::recalledAfterARestartItIsFinishedAsWell() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  desk.Program.End();
  QVERIFY(desk.Open());
  desk.Recall();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  desk.Program.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
  QVERIFY(!desk.Program.Tree.Exists(Folder + u"/20260009.txt"_s));
  QVERIFY(desk.Program.Tree.Exists(u"/CompletedInvoices/20260009.txt"_s));
  QCOMPARE(desk.Program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260010\r\n");
}

void ScreenPartialRecall::leavingTheInvoiceByMenuForgetsTheRecall() {
  PartialsDesk desk;
  QVERIFY(desk.Open());
  desk.Recall();
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_1"_s);
  QVERIFY(desk.Program.Tree.Exists(Folder + u"/20260009.txt"_s));
  OpenPartials();
  desk.Recall();
  QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"txtReference"_s), u"PO 5"_s);
}

void ScreenPartialRecall::whatCannotBeRecalledLeavesEverythingInPlace_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("error");
  QTest::newRow("cut short") << Bay.chopped(7) << u"(error 62)"_s;
  QByteArray comma = Bay;
  comma.replace("\r\nAnn\r\n", "\r\nAnn, Bob\r\n");
  QTest::newRow("a comma in the attention line") << comma << u"(error 13)"_s;
  QByteArray many = Bay;
  many.replace("\r\nAnn\r\n1\r\n", "\r\nAnn\r\n101\r\n");
  QTest::newRow("101 lines") << many << u"(error 9)"_s;
}

void ScreenPartialRecall::whatCannotBeRecalledLeavesEverythingInPlace() {
  QFETCH(const QByteArray, content);
  QFETCH(const QString, error);
  PartialsDesk desk;
  desk.Program.Tree.Write(Folder + u"/20260009.txt"_s, content);
  QVERIFY(desk.Open());
  const auto before = desk.Program.Tree.Everything();
  const ScreenDriver partials(u"frmIncomplete"_s);
  partials.SelectRow(u"fgIncomplete"_s, 3);
  desk.Program.Answers.Ok();
  partials.Click(u"Command1_1"_s);
  const QString text = desk.Program.Answers.Last().Text;
  QVERIFY2(text.contains(u"/20260009.txt"_s) && text.contains(error), qPrintable(text));
  QVERIFY(text.endsWith(u"Mend the file or remove it, then try again. Nothing was lost."_s));
  QVERIFY(!desk.Program.Running().HasEnded());
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QVERIFY(!ScreenDriver::IsShown(u"frmInvoice"_s));
  QCOMPARE(desk.Program.Tree.Everything(), before);
  // What comes next is a new invoice.
  partials.Click(u"Command1_0"_s);
  ScreenDriver(u"frmStartup"_s).Click(u"optMainMenuSub_0"_s);
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  QCOMPARE(ScreenDriver(u"frmInvoice"_s).Text(u"cmdInvoice_0"_s), u"Continue......"_s);
}

QTEST_MAIN(ScreenPartialRecall)
#include "tst_screenPartialRecall.moc"
