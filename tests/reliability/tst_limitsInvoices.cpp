// Stored invoices, templates and sales at and around their limits: 0, 1, 99, 100 and 101 lines of what goes into the
// invoice's grid; 0, 1, 32,766, 32,767 and 32,768 of everything else that is shown. What is one too many is told, and
// nothing that stood is lost.

#include <QtWidgets>

#include "records/SoldItems.h"
#include "reliability/MemoryDisk.h"
#include "support/CompletedImages.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

const QString Completed = u"/CompletedInvoices/20260001.txt"_s;
const QString Partial = u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s;

QByteArray Lines(int count) {
  QByteArray lines;
  for (int i = 1; i <= count; ++i)
    lines += "1\r\nCrate " + QByteArray::number(i) + "\r\n\r\n$1.00\r\n$1.00\r\nFalse\r\n";
  return lines;
}

/// The two addresses of an image, quoted.
QByteArray Addresses() {
  return QByteArray("\"Acme Tools\"\r\n\"1 Main Street\"\r\n\"\"\r\n\"Salem\"\r\n\"MA\"\r\n\"01970\"\r\n").repeated(2);
}

QByteArray CompletedImage(int lines) {
  return "20260001\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n$25.00\r\n" + Addresses() +
         "UPS\r\n3/9/2026\r\n20260001\r\n1001\r\nPO 5\r\nAnn\r\n" + QByteArray::number(lines) + "\r\n" + Lines(lines) +
         "\"$25.00\",\"$0.00\",\"$0.00\",\"$25.00\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n";
}

QByteArray PartialImage(int lines) {
  return "20260009\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n" + Addresses() + "20260009\r\n1001\r\nPO 5\r\nAnn\r\n" +
         QByteArray::number(lines) + "\r\n" + Lines(lines);
}

/// The grid's column, its last blank row left out.
QStringList Column(const QString& window, const QString& grid, int column) {
  const auto* rows = ScreenDriver(window).Control<QTableView>(grid)->model();
  QStringList cells;
  for (int row = 0; row < rows->rowCount(); ++row) cells.append(rows->index(row, column).data().toString());
  while (!cells.isEmpty() && cells.last().isEmpty()) cells.removeLast();
  return cells;
}

/// "Crate 1", "Crate 2" ...
QStringList Crates(int count) {
  QStringList names;
  for (int i = 1; i <= count; ++i) names.append(u"Crate %1"_s.arg(i));
  return names;
}

void OpenRoutine(int option) {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_%1"_s.arg(option));
  menu.Click(u"cmdGoto"_s);
}

/// The list of partial invoices, of one with so many lines.
void OpenPartialInvoices(ProgramFixture& program, int lines) {
  OneDay::Stock(program.Tree);
  program.Tree.Write(Partial, PartialImage(lines));
  QVERIFY(program.StartAtMenu());
  OpenRoutine(1);
}

void AddRows(const QList<int>& counts) {
  QTest::addColumn<int>("count");
  for (const int count : counts) QTest::addRow("%d", count) << count;
}

}  // namespace

class LimitsInvoices : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCompletedInvoiceShowsItsLines_data() { AddRows({0, 1, 32766, 32767}); }
  void aCompletedInvoiceShowsItsLines();
  void moreLinesThanACountHoldsAreTold();
  void aPartialInvoiceIsRecalledWithItsLines_data() { AddRows({0, 1, 99, 100}); }
  void aPartialInvoiceIsRecalledWithItsLines();
  void aPartialInvoiceOfMoreLinesThanTheGridHoldsIsTold_data() { AddRows({101, 32767, 32768}); }
  void aPartialInvoiceOfMoreLinesThanTheGridHoldsIsTold();
  void aTemplateIsLoadedWithItsLines_data() { AddRows({0, 1, 99, 100}); }
  void aTemplateIsLoadedWithItsLines();
  void aTemplateOfMoreLinesThanTheGridHoldsIsTold_data() { AddRows({101, 32767, 32768}); }
  void aTemplateOfMoreLinesThanTheGridHoldsIsTold();
  void aFolderOfInvoicesIsListedWhole_data();
  void aFolderOfInvoicesIsListedWhole();
  void everySaleIsShown_data() { AddRows({0, 1, 32766, 32767, 32768}); }
  void everySaleIsShown();
  void salesArePurgedUpToTheLimit_data() { AddRows({1, 32766, 32767, 32768}); }
  void salesArePurgedUpToTheLimit();
  void allProductsOfFullListsAreOffered();
};

void LimitsInvoices::aCompletedInvoiceShowsItsLines() {
  QFETCH(const int, count);
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  program.Tree.Write(Completed, CompletedImage(count));
  QVERIFY(program.StartAtMenu());
  OpenReprint();
  ScreenDriver(u"frmReprint"_s).SelectRow(u"fgReceivables"_s, 1);
  QVERIFY(ScreenDriver(u"frmReprint"_s).IsVisible(u"fraInvoice"_s));
  QVERIFY(Column(u"frmReprint"_s, u"fgItems"_s, 1) == Crates(count));
  QVERIFY(program.Tree.Bytes(Completed) == CompletedImage(count));
}

void LimitsInvoices::moreLinesThanACountHoldsAreTold() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  program.Tree.Write(Completed, CompletedImage(32768));
  QVERIFY(program.StartAtMenu());
  OpenReprint();
  program.Answers.Ok();
  ScreenDriver(u"frmReprint"_s).SelectRow(u"fgReceivables"_s, 1);
  const QString text = program.Answers.Last().Text;
  QVERIFY2(text.startsWith(program.Tree.Path(Completed)) && text.contains(u"(error 6)"_s), qPrintable(text));
  QVERIFY(!program.Running().HasEnded());
  QVERIFY(program.Tree.Bytes(Completed) == CompletedImage(32768));
}

void LimitsInvoices::aPartialInvoiceIsRecalledWithItsLines() {
  QFETCH(const int, count);
  ProgramFixture program;
  OpenPartialInvoices(program, count);
  program.Answers.Ok({}, u"Partial Invoice Loaded"_s);
  ScreenDriver(u"frmIncomplete"_s).DoubleClickRow(u"fgIncomplete"_s, 1);
  QCOMPARE(Column(u"frmInvoice"_s, u"fgInvoice"_s, 1), Crates(count));

  // One more finds room up to the hundredth; with it the invoice is full.
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Trigger(u"mnuManual"_s);
  invoice.Fill(u"txtManual_0"_s, u"Crate %1"_s.arg(count + 1));
  invoice.Fill(u"txtManual_2"_s, u"1"_s);
  invoice.Fill(u"txtManual_1"_s, u"1"_s);
  if (count >= 99) program.Answers.Ok();
  invoice.Click(u"cmdPost_2"_s);
  QCOMPARE(Column(u"frmInvoice"_s, u"fgInvoice"_s, 1), Crates(qMin(count + 1, 100)));
  OneDay::AnswerPartialSave(program);
  invoice.Click(u"cmdSave"_s);
  const QByteArray saved = program.Tree.Bytes(Partial);
  QVERIFY(saved.contains("\r\nAnn\r\n" + QByteArray::number(qMin(count + 1, 100)) + "\r\n"));
}

void LimitsInvoices::aPartialInvoiceOfMoreLinesThanTheGridHoldsIsTold() {
  QFETCH(const int, count);
  ProgramFixture program;
  OpenPartialInvoices(program, count);
  program.Answers.Ok();
  ScreenDriver(u"frmIncomplete"_s).DoubleClickRow(u"fgIncomplete"_s, 1);
  const QString text = program.Answers.Last().Text;
  const QString error = count > 32767 ? u"(error 6)"_s : u"(error 9)"_s;
  QVERIFY2(text.startsWith(program.Tree.Path(Partial)) && text.contains(error), qPrintable(text));
  QVERIFY(!program.Running().HasEnded());
  QVERIFY(program.Tree.Bytes(Partial) == PartialImage(count));
}

namespace {

const QString Counted = u"/KarvexInvoicer/Templates/InvoicesRoof.txt"_s;
const QString Opened = u"/Templates/Invoices/Roof.txt"_s;

QByteArray Template(int lines) {
  QByteArray records;
  for (int i = 1; i <= lines; ++i) {
    records += Field("1", 10) + Field("Crate " + QByteArray::number(i), 45) + Field("1.00", 10) + Field("False", 5);
  }
  return records;
}

/// At a new invoice, the template loaded.
void LoadTemplate(ProgramFixture& program, int count) {
  OneDay::Stock(program.Tree);
  program.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Roof.txt"_s, "listed");
  program.Tree.Write(Counted, Template(count));
  program.Tree.Write(Opened, Template(count));
  QVERIFY(program.StartAtMenu());
  OneDay::GoToCustomers();
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  auto* list = invoice.Control<QListWidget>(u"flstInvoiceTemplates"_s);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  invoice.Click(u"cmdTemplate_0"_s);
}

}  // namespace

void LimitsInvoices::aTemplateIsLoadedWithItsLines() {
  QFETCH(const int, count);
  ProgramFixture program;
  LoadTemplate(program, count);
  QCOMPARE(Column(u"frmInvoice"_s, u"fgInvoice"_s, 1), Crates(count));
}

void LimitsInvoices::aTemplateOfMoreLinesThanTheGridHoldsIsTold() {
  QFETCH(const int, count);
  ProgramFixture program;
  program.Answers.Ok();
  LoadTemplate(program, count);
  const QString text = program.Answers.Last().Text;
  const QString error = count > 32767 ? u"(error 6)"_s : u"(error 9)"_s;
  QVERIFY2(text.contains(u"Roof.txt"_s) && text.contains(error), qPrintable(text));
  QVERIFY(!program.Running().HasEnded());
  QCOMPARE(Column(u"frmInvoice"_s, u"fgInvoice"_s, 1), QStringList());
  QVERIFY(program.Tree.Bytes(Counted) == Template(count));
  QVERIFY(program.Tree.Bytes(Opened) == Template(count));
}

void LimitsInvoices::aFolderOfInvoicesIsListedWhole_data() {
  QTest::addColumn<int>("option");
  QTest::addColumn<QString>("folder");
  QTest::addColumn<QString>("window");
  QTest::addColumn<QString>("grid");
  QTest::newRow("completed") << 2 << u"/CompletedInvoices"_s << u"frmReprint"_s << u"fgReceivables"_s;
  QTest::newRow("partial") << 1 << u"/KarvexInvoicer/IncompleteInvoices"_s << u"frmIncomplete"_s << u"fgIncomplete"_s;
}

/// A folder has no limit of its own.
void LimitsInvoices::aFolderOfInvoicesIsListedWhole() {
  QFETCH(const int, option);
  QFETCH(const QString, folder);
  QFETCH(const QString, window);
  QFETCH(const QString, grid);
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  program.Tree.MakeFolder(folder);
  QStringList numbers;
  for (int i = 1; i <= 32768; ++i) {
    numbers.append(QString::number(20260000 + i));
    QFile file(program.Tree.Path(folder + u'/' + numbers.last() + u".txt"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(numbers.last().toLatin1() + "\r\n1001\r\nAcme Tools\r\n3/7/2026\r\n$25.00\r\n");
  }
  QVERIFY(program.StartAtMenu());
  OpenRoutine(option);
  QVERIFY(Column(window, grid, 0) == numbers);
}

void LimitsInvoices::everySaleIsShown() {
  QFETCH(const int, count);
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  QByteArray sold;
  for (int i = 1; i <= count; ++i) sold += Sold("Hammer", Day::Mar7, QByteArray::number(i), i % 2);
  program.Tree.Write(u"/SoldItems.txt"_s, sold);
  QVERIFY(program.StartAtMenu());
  OpenRoutine(5);
  ScreenDriver(u"frmSalesReport"_s).Click(u"cmdSales_1"_s);
  ScreenDriver(u"frmSalesReport"_s).Click(u"cmdSales_3"_s);
  const QStringList shown = Column(u"frmSalesReport"_s, u"fgSalesItems"_s, 2);
  QCOMPARE(shown.size(), count);
  if (count > 0) QCOMPARE(shown.last(), QString::number(count));
  const QStringList units = Column(u"frmSalesReport"_s, u"fgTotals"_s, 1);
  if (count > 0) QCOMPARE(units, QStringList{QString::number((count + 1) / 2)});
  QVERIFY(program.Tree.Bytes(u"/SoldItems.txt"_s) == sold);
}

void LimitsInvoices::salesArePurgedUpToTheLimit() {
  QFETCH(const int, count);
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  // One in the range that is offered, the others long before.
  const QByteArray old = Sold("Saw", Day::Jan1, "1", 2).repeated(count - 1);
  const QByteArray sold = old + Sold("Hammer", Day::Mar7, "2", 3);
  program.Tree.Write(u"/SoldItems.txt"_s, sold);
  program.Tree.Write(u"/Backup/SoldItems.txt"_s, "older");
  QVERIFY(program.StartAtMenu());
  OpenRoutine(5);
  program.Answers.Yes({}, u"Delete Sales Records"_s);
  program.Answers.Yes({}, u"Delete Verification"_s);
  if (count > 32767) program.Answers.Ok();
  ScreenDriver(u"frmSalesReport"_s).Trigger(u"mnuDelete"_s);
  QVERIFY(!program.Tree.Exists(u"/TemporaryFile.txt"_s));
  if (count > 32767) {
    const QString text = program.Answers.Last().Text;
    QVERIFY2(text.startsWith(program.Tree.Path(u"/SoldItems.txt"_s)) && text.contains(u"(error 6)"_s),
             qPrintable(text));
    QVERIFY(program.Tree.Bytes(u"/SoldItems.txt"_s) == sold);
    QCOMPARE(program.Tree.Bytes(u"/Backup/SoldItems.txt"_s), "older");
  } else if (count > 1) {
    QVERIFY(program.Tree.Bytes(u"/SoldItems.txt"_s) == old);
    QVERIFY(program.Tree.Bytes(u"/Backup/SoldItems.txt"_s) == old);
  } else {
    // Nothing is kept: the file and its copy go.
    QVERIFY(!program.Tree.Exists(u"/SoldItems.txt"_s));
    QVERIFY(!program.Tree.Exists(u"/Backup/SoldItems.txt"_s));
  }
}

void LimitsInvoices::allProductsOfFullListsAreOffered() {
  ProgramFixture program;
  QByteArray items, custom;
  for (int i = 1; i <= 255; ++i) {
    items += ItemNamed("Item " + QByteArray::number(i));
    custom += CustomItemNamed("Custom " + QByteArray::number(i));
  }
  program.Tree.Write(u"/KVInventoriedItems.txt"_s, items);
  program.Tree.Write(u"/CustomItems.txt"_s, custom);
  program.Tree.Write(u"/SoldItems.txt"_s, Sold("Custom 255", Day::Mar7, "1", 4));
  QVERIFY(program.StartAtMenu());
  OpenRoutine(5);
  const ScreenDriver sales(u"frmSalesReport"_s);
  const auto* offered = sales.Control<QListWidget>(u"lstSalesItems"_s);
  QCOMPARE(offered->count(), 510);
  QCOMPARE(offered->item(509)->text(), u"Custom 255"_s);
  sales.Click(u"cmdSales_1"_s);
  sales.Click(u"cmdSales_3"_s);
  QCOMPARE(Column(u"frmSalesReport"_s, u"fgTotals"_s, 0), QStringList{u"Custom 255"_s});
}

QTEST_MAIN(LimitsInvoices)
#include "tst_limitsInvoices.moc"
