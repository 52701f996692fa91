// Files at and around their limits: 0, 1, 254, 255 and 256 records of each list of the catalogue; 0, 1, 32,766, 32,767
// and 32,768 of every file that a finished invoice is appended to. What is one too many is told, where telling is
// meant, and nothing that stood is lost.

#include "reliability/MemoryDisk.h"
#include "support/CatalogueScreen.h"
#include "support/InvoiceBench.h"
#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

struct List {
  QString File;
  int Tab;
  const char* Grid;
  int Length;
  int Clear, Add, Delete;  ///< The list's commands.
  QByteArray (*Record)(const QByteArray& name);
};

QByteArray ServiceOf(const QByteArray& name) {
  return CatalogueScreen::Service(name.constData());
}
QByteArray ItemOf(const QByteArray& name) {
  return CatalogueScreen::Item(name.constData(), "Parts");
}
QByteArray CustomOf(const QByteArray& name) {
  return CatalogueScreen::CustomItem(name.constData());
}

const QList<List>& Lists() {
  static const QList<List> lists{{u"/Services.txt"_s, 0, "fgServices", 72, 1, 4, 2, ServiceOf},
                                 {u"/KVInventoriedItems.txt"_s, 1, "fgItems", 104, 8, 13, 10, ItemOf},
                                 {u"/CustomItems.txt"_s, 3, "fgCustom", 70, 18, 22, 20, CustomOf}};
  return lists;
}

/// Names that sort as they are numbered.
QByteArray Records(const List& list, int count) {
  QByteArray all;
  for (int i = 1; i <= count; ++i) all += list.Record("Name " + QByteArray::number(i).rightJustified(5, '0'));
  return all;
}

/// The records in the order of their bytes: a save may put the list in another order.
QByteArrayList Sorted(const QByteArray& content, int length) {
  QByteArrayList records;
  for (qsizetype at = 0; at < content.size(); at += length) records.append(content.mid(at, length));
  std::sort(records.begin(), records.end());
  return records;
}

void AddOne(const CatalogueScreen& screen, const List& list) {
  screen.Click(list.Clear);
  if (list.Tab == 0) {
    screen.Fill("txtDescription_0", "Zebra");
    screen.Fill("txtCharge_0", "5");
  } else if (list.Tab == 1) {
    screen.Fill("txtDescription_1", "Zebra");
    screen.Fill("txtCharge_1", "5");
    screen.Fill("txtCharge_2", "4");
    screen.Fill("txtOnHand", "1");
  } else {
    screen.Fill("txtDescription_2", "Zebra");
    screen.Fill("txtCharge_3", "5");
    screen.Fill("txtCharge_4", "4");
  }
  screen.Click(list.Add);
}

/// The file that a commit writes, and what it does to a file of so many records.
struct Store {
  QString File;
  int Length;
  int Added;        ///< By a commit of one taxed item, prepaid.
  bool HasNoLimit;  ///< The writing counts in 32 bits: the records stay readable one by one, and none is lost.
};

const QList<Store>& Stores() {
  static const QList<Store> stores{{u"/SoldItems.txt"_s, 90, 1, true},
                                   {u"/InvoiceSalesJournal.txt"_s, 125, 1, false},
                                   {u"/TaxRecords.txt"_s, 75, 1, false},
                                   {u"/KVActiveAccounts/1001.txt"_s, 155, 2, false},
                                   {u"/KAPaymentRecords.txt"_s, 155, 1, false}};
  return stores;
}

/// Print, before anything is printed: the full file is told, and the invoice stays.
void MustBeRefused(InvoiceBench& bench, const QString& file) {
  const auto before = bench.Tree.Everything();
  const auto boxes = bench.Answers.Boxes().size();
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{6});
  QCOMPARE(bench.Around.Subjects, QStringList{file});
  QCOMPARE(bench.Paper.Jobs.size(), 0U);
  QCOMPARE(bench.Answers.Boxes().size(), boxes);
  QVERIFY(bench.Tree.Everything() == before);
  QVERIFY(bench.Invoice.LineCount > 0);
}

/// So many records, each with its own number in it.
QByteArray Numbered(int length, int count) {
  QByteArray all(length * count, ' ');
  for (int i = 0; i < count; ++i) all.replace(i * length, 5, QByteArray::number(i).rightJustified(5, '0'));
  return all;
}

}  // namespace

class Limits : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aListOfTheCatalogueTakesUpTo255_data();
  void aListOfTheCatalogueTakesUpTo255();
  void aListOf256EndsTheStartAndStays_data();
  void aListOf256EndsTheStartAndStays();
  void aCommitAddsToAFileUpToItsLimit_data();
  void aCommitAddsToAFileUpToItsLimit();
  void aLedgerWithRoomForOneTakesNoPaymentBesides();
  void taxRecordsWithRoomForOneTakeNoTwoAndANewFileTakesThem();
  void theMenuStandsWhateverTheRecordsAre_data();
  void theMenuStandsWhateverTheRecordsAre();
};

void Limits::aListOfTheCatalogueTakesUpTo255_data() {
  QTest::addColumn<int>("number");
  QTest::addColumn<int>("count");
  for (int number = 0; number < Lists().size(); ++number) {
    for (const int count : {0, 1, 254, 255}) QTest::addRow("%s, %d", Lists()[number].Grid, count) << number << count;
  }
}

void Limits::aListOfTheCatalogueTakesUpTo255() {
  QFETCH(int, number);
  QFETCH(int, count);
  const List& list = Lists()[number];
  const QByteArray before = Records(list, count);
  CatalogueScreen screen;
  screen.Program.Tree.Write(list.File, before);
  screen.Program.Tree.Write(u"/Backup"_s + list.File, "the copy");
  screen.Open(list.Tab);
  QCOMPARE(screen.Rows(list.Grid), count);
  if (count > 0) {
    const QString last = u"Name %1"_s.arg(count, 5, 10, QChar(u'0'));
    QVERIFY2(screen.Row(list.Grid, count).startsWith(last), qPrintable(screen.Row(list.Grid, count)));
  }

  AddOne(screen, list);
  QByteArrayList kept = Sorted(before, list.Length);
  if (count == 255) {
    const auto untouched = screen.Program.Tree.Everything();
    screen.Program.Answers.Ok();
    screen.Click(0);
    const QString text = screen.Program.Answers.Last().Text;
    QVERIFY2(text.startsWith(screen.Program.Tree.Path(list.File) + u": The list holds 256 entries"_s),
             qPrintable(text));
    QVERIFY2(text.endsWith(u"Delete some first. Nothing was lost."_s), qPrintable(text));
    QCOMPARE(screen.Program.Tree.Everything(), untouched);
    QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));
    // One goes, and the rest is saved, the new one too.
    screen.SelectRow(list.Grid, 1);
    screen.Program.Answers.Yes();
    screen.Click(list.Delete);
    kept.removeFirst();
  }
  screen.Click(0);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QByteArrayList after = Sorted(screen.Program.Tree.Bytes(list.File), list.Length);
  QCOMPARE(after.size(), kept.size() + 1);
  QVERIFY(after.takeLast().startsWith("Zebra "));
  QCOMPARE(after, kept);
  QVERIFY(!screen.Program.Tree.Exists(u"/Backup"_s + list.File));
}

void Limits::aListOf256EndsTheStartAndStays_data() {
  QTest::addColumn<int>("number");
  for (int number = 0; number < Lists().size(); ++number) QTest::newRow(Lists()[number].Grid) << number;
}

void Limits::aListOf256EndsTheStartAndStays() {
  QFETCH(int, number);
  const List& list = Lists()[number];
  ProgramFixture program;
  program.Tree.Write(list.File, Records(list, 256));
  program.Tree.Write(u"/Backup"_s + list.File, Records(list, 255));
  const auto before = program.Tree.Everything();
  program.Answers.Ok();
  QVERIFY(!program.Start());
  const QString text = program.Answers.Last().Text;
  QVERIFY2(text.startsWith(program.Tree.Path(list.File) + u": "_s) && text.contains(u"(error 6)"_s), qPrintable(text));
  QCOMPARE(program.Tree.Everything(), before);
  // The copy put in its place, as the box advises, the program starts.
  program.Tree.Remove(list.File);
  QVERIFY(program.Start());
  QCOMPARE(program.Tree.Bytes(list.File), Records(list, 255));
}

void Limits::aCommitAddsToAFileUpToItsLimit_data() {
  QTest::addColumn<int>("store");
  QTest::addColumn<int>("count");
  for (int store = 0; store < Stores().size(); ++store) {
    for (const int count : {0, 1, 32766, 32767, 32768}) {
      // Where one more fits and two are posted has its own test.
      if (Stores()[store].Added == 2 && count == 32766) continue;
      QTest::addRow("%s, %d", qPrintable(Stores()[store].File), count) << store << count;
    }
  }
}

void Limits::aCommitAddsToAFileUpToItsLimit() {
  QFETCH(int, store);
  QFETCH(int, count);
  const Store& about = Stores()[store];
  const QByteArray before = Numbered(about.Length, count);
  InvoiceBench bench;
  bench.Tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"County Tax\",\"6.0\",\"1.0\",1,0\r\n");
  bench.Tree.Write(about.File, before);
  bench.Open();
  bench.On().Click(u"cmdInvoice_0"_s);
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"3"_s);
  bench.On().Click(u"cmdPost_1"_s);
  bench.Finalize();
  bench.On().Click(u"ckPrepaid"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  const bool fits = about.HasNoLimit || count < 32767;
  if (!fits) {
    MustBeRefused(bench, about.File);
    return;
  }
  bench.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
  bench.On().Click(u"cmdInvoiceContinue"_s);

  // A ledger without a record gets its opening one.
  const int added = about.Added + (about.Added == 2 && count == 0 ? 1 : 0);
  const QByteArray after = bench.Tree.Bytes(about.File);
  QCOMPARE(after.size(), (count + added) * about.Length);
  QVERIFY(after.startsWith(before));
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260002\r\n");
  QCOMPARE(bench.Around.Errors, QList<int>{});
}

void Limits::aLedgerWithRoomForOneTakesNoPaymentBesides() {
  InvoiceBench bench;
  const QString ledger = u"/KVActiveAccounts/1001.txt"_s;
  const QByteArray before = Numbered(155, 32766);
  bench.Tree.Write(ledger, before);
  bench.OpenAtLines();
  bench.PostManual(u"Ladder"_s, u"1"_s, u"20"_s);
  bench.Finalize();
  bench.On().Click(u"ckPrepaid"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  MustBeRefused(bench, ledger);
  // The invoice alone has room.
  bench.On().Click(u"ckPrepaid"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  const QByteArray after = bench.Tree.Bytes(ledger);
  QCOMPARE(after.size(), 155 * 32767);
  QVERIFY(after.startsWith(before));
  QVERIFY(after.right(155).mid(85).startsWith("20260001 "));
}

void Limits::taxRecordsWithRoomForOneTakeNoTwoAndANewFileTakesThem() {
  InvoiceBench bench;
  const QByteArray before = Numbered(75, 32766);
  bench.Tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"County Tax\",\"6.0\",\"1.0\",1,1\r\n");
  bench.Tree.Write(u"/TaxRecords.txt"_s, before);
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuManual"_s);
  bench.On().Click(u"ckManualTax"_s);
  bench.PostManual(u"Ladder"_s, u"1"_s, u"20"_s);
  bench.Finalize();
  MustBeRefused(bench, u"/TaxRecords.txt"_s);
  // Moved elsewhere, as the box advises, and finalized again.
  bench.Tree.Remove(u"/TaxRecords.txt"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  bench.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
  bench.On().Click(u"cmdInvoiceContinue"_s);
  QCOMPARE(bench.Tree.Bytes(u"/TaxRecords.txt"_s),
           Field("Sales Tax", 20) + Field("3/7/2026", 15) + Field("20260001", 30) + Field("1.2", 10) +
               Field("County Tax", 20) + Field("3/7/2026", 15) + Field("20260001", 30) + Field("0.2", 10));
  QCOMPARE(bench.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260002\r\n");
}

void Limits::theMenuStandsWhateverTheRecordsAre_data() {
  QTest::addColumn<int>("count");
  for (const int count : {0, 1, 32766, 32767, 32768}) QTest::addRow("%d", count) << count;
}

void Limits::theMenuStandsWhateverTheRecordsAre() {
  QFETCH(int, count);
  ProgramFixture program;
  program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("Repair"));
  for (const Store& store : Stores()) program.Tree.Write(store.File, Numbered(store.Length, count));
  QVERIFY(program.StartAtMenu());
  for (const int option : {0, 3, 4, 5, 6}) {
    QVERIFY(ScreenDriver(u"frmStartup"_s).IsVisible(u"optMainMenuSub_%1"_s.arg(option)));
  }
  program.End();
  // The end makes its copies, whole, however long the files are.
  for (const Store& store : Stores()) {
    QCOMPARE(program.Tree.Size(store.File), store.Length * count);
    if (!store.File.contains(u"KA"_s) && !store.File.contains(u"KVActive"_s)) {
      QVERIFY(program.Tree.Bytes(u"/Backup"_s + store.File) == Numbered(store.Length, count));
    }
  }
}

QTEST_MAIN(Limits)
#include "tst_limits.moc"
