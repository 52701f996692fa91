// The road of one invoice through the real program: what the menu offers after it, what a window's close box leaves on
// the disk in the middle of it, and how the page takes over the address style.

#include "customers/CustomerRecords.h"
#include "support/InvoiceBench.h"
#include "support/OneDay.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString Settings = u"/KarvexInvoicerSettings.txt"_s;

QByteArray Customer() {
  RecordText record;
  record.AcctNo = "1001";
  record.AcctName = "Acme Tools";
  record.Address1 = "1 Main Street";
  record.CityLine = record.CityShort = "Springfield";
  record.State = "IL";
  record.PostalLine = record.PostalShort = "62701";
  record.AcctType = "Business";
  return record.Bytes();
}

/// A taxed item and a customer; the settings tax items.
void Stock(const TemporaryTree& tree) {
  tree.Write(u"/KVInventoriedItems.txt"_s, Field("Hammer", 50) + Field("Tools", 20) + Bytes64(0) + Bytes64(120000) +
                                               Bytes16(10) + Bytes64(0) + Bytes32(0) + Bytes16(0) + Bytes16(0));
  tree.Write(u"/CustomerData.txt"_s, Customer());
  tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n");
}

QList<int> Offered() {
  const ScreenDriver menu(u"frmStartup"_s);
  QList<int> offered;
  for (int i = 0; i < 7; ++i) {
    if (menu.IsVisible(u"optMainMenuSub_%1"_s.arg(i))) offered.append(i);
  }
  return offered;
}

QString FirstLine() {
  const auto* lines = ScreenDriver(u"frmInvoice"_s).Control<QTableView>(u"fgInvoice"_s)->model();
  return lines->index(0, 1).data().toString();
}

void PrintAndConfirm(ProgramFixture& program) {
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  program.Answers.Yes(u"Was the Invoice Printed Correctly"_s, u"Printing Confirmation"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
}

/// What the exit backup makes of a tree: the 18 files' copies as the files now are, all else as it was.
QMap<QString, QByteArray> WithExitBackup(QMap<QString, QByteArray> tree) {
  for (const auto* name :
       {"KarvexInvoicerSettings", "KVInvoiceNo", "KVInventoriedItems", "CompanyLogo", "CustomerData", "CustomItems",
        "InvoiceMemo", "InvoiceSalesJournal", "Labor", "LogoSettings", "MyBusinessData", "MyWebSite", "Narrative",
        "PrintColors", "Services", "SoldItems", "StatementTerms", "TaxRecords"}) {
    const QString file = u"/%1.txt"_s.arg(QLatin1String(name));
    if (tree.contains(file)) tree.insert(u"/Backup"_s + file, tree.value(file));
  }
  return tree;
}

}  // namespace

class Road : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void afterTheFirstCommitTheMenuOffersWhatHasData();
  void closingTheInvoiceRunsTheBackupEndsTheProgramAndLosesTheInvoice();
  void closingTheCustomerScreenRunsTheBackupEndsTheProgramAndSavesNothing();
  void anInternationalProfileAtStartPrintsTheCustomerWithoutHisState();
  void aProfileInUsaStylePrintsTheStateInOneLine();
};

void Road::afterTheFirstCommitTheMenuOffersWhatHasData() {
  ProgramFixture program;
  Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  QCOMPARE(Offered(), (QList<int>{0, 3}));
  OneDay::ComposeInvoice();
  PrintAndConfirm(program);
  QCOMPARE(Offered(), (QList<int>{0, 2, 3, 4, 5, 6}));
}

void Road::closingTheInvoiceRunsTheBackupEndsTheProgramAndLosesTheInvoice() {
  ProgramFixture program;
  Stock(program.Tree);
  program.Tree.Write(u"/Backup/CustomerData.txt"_s, "an older copy");
  QVERIFY(program.StartAtMenu());
  OneDay::ComposeInvoice();
  QCOMPARE(FirstLine(), u"Hammer"_s);
  const auto expected = WithExitBackup(program.Tree.Everything());
  ScreenDriver(u"frmInvoice"_s).CloseByUser();
  QVERIFY(program.Running().HasEnded());
  QCOMPARE(program.Answers.Boxes().size(), 0);
  QCOMPARE(program.Tree.Everything(), expected);
  QCOMPARE(program.Tree.Bytes(u"/Backup/CustomerData.txt"_s), Customer());
  QVERIFY(program.Tree.Exists(u"/Backup"_s + Settings));
  QCOMPARE(program.Tree.List(u"/CompletedInvoices"_s), QStringList{});
  QCOMPARE(program.Tree.List(u"/KarvexInvoicer/IncompleteInvoices"_s), QStringList{});

  program.End();
  QVERIFY(program.StartAtMenu());
  QCOMPARE(Offered(), (QList<int>{0, 3}));
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_0"_s);
  QCOMPARE(FirstLine(), QString());
}

void Road::closingTheCustomerScreenRunsTheBackupEndsTheProgramAndSavesNothing() {
  ProgramFixture program;
  Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  const ScreenDriver customers(u"frmNewCustomer"_s);
  customers.Fill(u"txtCustomer_2"_s, u"99 Elsewhere"_s);
  const auto expected = WithExitBackup(program.Tree.Everything());
  customers.CloseByUser();
  QVERIFY(program.Running().HasEnded());
  QCOMPARE(program.Answers.Boxes().size(), 0);
  QCOMPARE(program.Tree.Everything(), expected);
  QCOMPARE(program.Tree.Bytes(u"/CustomerData.txt"_s), Customer());
  QCOMPARE(program.Tree.Bytes(u"/Backup/CustomerData.txt"_s), Customer());
}

void Road::anInternationalProfileAtStartPrintsTheCustomerWithoutHisState() {
  ProgramFixture program;
  Stock(program.Tree);
  // A name and no postal code.
  program.Tree.Write(u"/MyBusinessData.txt"_s,
                     "\"Grove\",\"12 Grove Road\",\"\",\"Sydney\",\"NSW\",\"\",\"555-0100\",\"\",\"\"\r\n");
  QVERIFY(program.StartAtMenu());
  OneDay::ComposeInvoice();
  PrintAndConfirm(program);
  QCOMPARE(program.Paper.SoldToBlock(),
           (QStringList{u"SOLD TO:"_s, u"Acme Tools"_s, u"1 Main Street"_s, u"Springfield"_s, u"62701"_s}));
  QVERIFY(program.Paper.Find(u"IL"_s).empty());
}

void Road::aProfileInUsaStylePrintsTheStateInOneLine() {
  ProgramFixture program;
  Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  OneDay::ComposeInvoice();
  PrintAndConfirm(program);
  QCOMPARE(program.Paper.SoldToBlock(),
           (QStringList{u"SOLD TO:"_s, u"Acme Tools"_s, u"1 Main Street"_s, u"Springfield, IL 62701"_s}));
}

QTEST_MAIN(Road)
#include "tst_road.moc"
