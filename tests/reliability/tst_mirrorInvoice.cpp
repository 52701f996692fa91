// The files that a new invoice is made from, and that it is appended to when it is finished: with the file and its copy
// each missing, empty, cut short, damaged, older or good.

#include <QtWidgets>

#include "reliability/MemoryDisk.h"
#include "reliability/TwoCopies.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

void OpenInvoice(ProgramFixture&) {
  OneDay::GoToCustomers();
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
}

void OpenNarrative(ProgramFixture& program) {
  OpenInvoice(program);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_0"_s);
  ScreenDriver(u"frmInvoice"_s).Trigger(u"mnuNarrative"_s);
}

auto Shown(const QString& box) {
  return [box](const ProgramFixture&) { return ScreenDriver(u"frmInvoice"_s).Text(box); };
}

ReadLater DefaultNarrative() {
  return {.File = u"/Narrative.txt"_s,
          .Go = &OpenNarrative,
          .See = Shown(u"txtNarrative"_s),
          .States = {{"good", "As agreed.\r\n", true, u"As agreed.\n"_s},
                     {"older", "As told.\r\n", true, u"As told.\n"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", true, u""_s},
                     {"cut", "As", true, u"As\n"_s},
                     {"text", "as agreed.\r\n", true, u"as agreed.\n"_s}}};
}

ReadLater Counter() {
  return {.File = u"/KVInvoiceNo.txt"_s,
          .Kind = ReadLater::Copy::Dropped,
          .Go = &OpenInvoice,
          .See = Shown(u"txtInvoiceNo"_s),
          .States = {{"good", "20260017\r\n", true, u"20260017"_s},
                     {"older", "20260016\r\n", true, u"20260016"_s},
                     // The first of the year, which is kept at once.
                     {"missing", {}, true, u"20260001"_s, "20260001\r\n"},
                     {"empty", "", false, {}},
                     // What is left of a number is a number, which the next invoice has; where it isn't as high as the
                     // year, by its digits, the year begins anew.
                     {"cut", "202600", true, u"202600"_s, "202600\r\n"},
                     {"cut in the year", "202", true, u"20260001"_s, "20260001\r\n"},
                     {"text", "2026q017\r\n", false, {}},
                     {"too large", "20260017000\r\n", false, {}}}};
}

ReadLater Terms() {
  return {
      .File = u"/StatementTerms.txt"_s,
      .Go = &OpenInvoice,
      .See = Shown(u"cboTerms"_s),
      .States = {{"good", "Payment due in Full within 15 Days\r\n", true, u"Payment due in Full within 15 Days"_s},
                 {"older", "Cash, on delivery\r\n", true, u"Cash, on delivery"_s},
                 {"missing", {}, true, u"Payment due in Full upon Receipt"_s},
                 {"empty", "", false, {}},
                 {"cut", "Paym", true, u"Paym"_s},
                 {"text", "payment due in Full within 15 Days\r\n", true, u"payment due in Full within 15 Days"_s}}};
}

/// It is read at the start already, and anew for each invoice.
ReadLater Carrier() {
  return {.File = u"/ShipVia.txt"_s,
          .Before = [] {},
          .Go = &OpenInvoice,
          .See = Shown(u"cboShipping"_s),
          .States = {{"good", "Truck\r\n", true, u"Truck"_s},
                     {"older", "Rail, slow\r\n", true, u"Rail, slow"_s},
                     {"missing", {}, true, u"None"_s},
                     {"empty", "", false, {}},
                     {"cut", "Tr", true, u"Tr"_s},
                     {"text", "truck\r\n", true, u"truck"_s}}};
}

QByteArray TemplateLine(const QByteArray& quantity) {
  return Field(quantity, 10) + Field("Crate", 45) + Field("10.00", 10) + Field("False", 5);
}

/// The file that the lines of a template are counted in; they are read from another, which holds two.
ReadLater LinesOfATemplate() {
  return {.File = u"/KarvexInvoicer/Templates/InvoicesRoof.txt"_s,
          .Go =
              [](ProgramFixture& program) {
                program.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Roof.txt"_s, "listed");
                program.Tree.Write(u"/Templates/Invoices/Roof.txt"_s, TemplateLine("3") + TemplateLine("4"));
                OpenInvoice(program);
                const ScreenDriver invoice(u"frmInvoice"_s);
                auto* list = invoice.Control<QListWidget>(u"flstInvoiceTemplates"_s);
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
                invoice.Click(u"cmdTemplate_0"_s);
              },
          .See =
              [](const ProgramFixture&) {
                const auto* lines = ScreenDriver(u"frmInvoice"_s).Control<QTableView>(u"fgInvoice"_s)->model();
                QString quantities;
                for (int row = 0; row < 3; ++row) quantities += lines->index(row, 0).data().toString();
                return quantities;
              },
          .States = {{"good", TemplateLine("3") + TemplateLine("4"), true, u"34"_s},
                     {"older", TemplateLine("3"), true, u"3"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", true, u""_s},
                     // A last record of which less than half is left doesn't count.
                     {"cut", (TemplateLine("3") + TemplateLine("4")).left(100), true, u"3"_s},
                     {"text", TemplateLine("7") + TemplateLine("4"), true, u"34"_s}}};
}

QList<ReadLater> Subjects() {
  return {DefaultNarrative(), Counter(), Terms(), Carrier(), LinesOfATemplate()};
}

/// A file of records that a commit appends to.
struct Store {
  QString File;
  int Length;
  int Added;  ///< By a prepaid invoice of one taxed item.
};

const QList<Store>& Stores() {
  static const QList<Store> stores{{u"/SoldItems.txt"_s, 90, 1},
                                   {u"/InvoiceSalesJournal.txt"_s, 125, 1},
                                   {u"/TaxRecords.txt"_s, 75, 1},
                                   {u"/KVActiveAccounts/1001.txt"_s, 155, 2},
                                   {u"/KAPaymentRecords.txt"_s, 155, 1}};
  return stores;
}

/// What such a file may be: its last record counts where more than half of it is there.
struct Length {
  const char* Name;
  std::optional<double> Records;  ///< Nothing: no file.
  int Counted;
};
const QList<Length>& Lengths() {
  static const QList<Length> lengths{{"missing", {}, 0}, {"empty", 0, 0},          {"one", 1, 1},
                                     {"two", 2, 2},      {"a third more", 1.3, 1}, {"two thirds more", 1.7, 2}};
  return lengths;
}

std::optional<QByteArray> Records(const Store& store, const Length& length, char byte) {
  if (!length.Records) return {};
  return QByteArray(qRound(*length.Records * store.Length), byte);
}

}  // namespace

class MirrorInvoice : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatIsToldHappensInEveryState_data() { AddPairs(Subjects()); }
  void whatIsToldHappensInEveryState();
  void aFinishedInvoiceIsAppendedToWhatIsThereOrToItsCopy_data();
  void aFinishedInvoiceIsAppendedToWhatIsThereOrToItsCopy();
  void aFileThatACommitFoundTooLongKeepsItsCopy_data();
  void aFileThatACommitFoundTooLongKeepsItsCopy();
};

void MirrorInvoice::whatIsToldHappensInEveryState() {
  QFETCH(const int, subject);
  QFETCH(const int, live);
  QFETCH(const int, copy);
  const ReadLater about = Subjects()[subject];
  CheckReadLater(about, about.States[live], about.States[copy]);
}

void MirrorInvoice::aFinishedInvoiceIsAppendedToWhatIsThereOrToItsCopy_data() {
  QTest::addColumn<int>("store");
  QTest::addColumn<int>("there");
  QTest::addColumn<int>("kept");
  for (int store = 0; store < Stores().size(); ++store) {
    for (int there = 0; there < Lengths().size(); ++there) {
      for (int kept = 0; kept < Lengths().size(); ++kept) {
        QTest::addRow("%s %s, copy %s", qPrintable(Stores()[store].File), Lengths()[there].Name, Lengths()[kept].Name)
            << store << there << kept;
      }
    }
  }
}

void MirrorInvoice::aFinishedInvoiceIsAppendedToWhatIsThereOrToItsCopy() {
  QFETCH(const int, store);
  QFETCH(const int, there);
  QFETCH(const int, kept);
  const Store& about = Stores()[store];
  const auto live = Records(about, Lengths()[there], 't');
  const auto copy = Records(about, Lengths()[kept], 'k');
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  Put(program.Tree, about.File, live);
  Put(program.Tree, CopyOf(about.File), copy);
  QVERIFY(program.StartAtMenu());
  OneDay::CommitPrepaid(program);

  const int counted = Lengths()[live ? there : kept].Counted;
  // What is missing of a record that counts is zeros; one that doesn't count gives its place to the next.
  QByteArray before = live.value_or(copy.value_or(QByteArray())).left(counted * about.Length);
  before.append(counted * about.Length - before.size(), '\0');
  const QByteArray after = program.Tree.Bytes(about.File);
  QVERIFY(after.startsWith(before));
  // A ledger that there was nothing of begins with its opening record.
  const bool opened = counted == 0 && about.Added == 2;
  QCOMPARE(after.size(), before.size() + about.Length * (about.Added + (opened ? 1 : 0)));
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260002\r\n");

  program.End();
  // The ledger's copy is renewed with each entry; the payments have none but what somebody put there.
  const bool renewed = IsCopiedAtExit(about.File) || about.Added == 2;
  QCOMPARE(Held(program.Tree, CopyOf(about.File)), renewed ? std::optional(after) : copy);
}

void MirrorInvoice::aFileThatACommitFoundTooLongKeepsItsCopy_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<QByteArray>("bytes");
  QTest::newRow("the journal") << u"/InvoiceSalesJournal.txt"_s << QByteArray(125 * 32768, 'j');
  QTest::newRow("the tax records") << u"/TaxRecords.txt"_s << QByteArray(75 * 32768, 't');
  QTest::newRow("the inventory") << u"/KVInventoriedItems.txt"_s << QByteArray(104 * 256, 'i');
}

void MirrorInvoice::aFileThatACommitFoundTooLongKeepsItsCopy() {
  QFETCH(const QString, file);
  QFETCH(const QByteArray, bytes);
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  program.Tree.Write(file, bytes);
  program.Tree.Write(CopyOf(file), "the good copy");
  OneDay::ComposeInvoice();
  OneDay::Finalize();
  if (file == u"/KVInventoriedItems.txt"_s) {
    OneDay::Commit(program);
  } else {
    // Told before anything is printed.
    program.Answers.Ok();
    ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoiceContinue"_s);
    QCOMPARE(program.Answers.Last().Text.section(u'\n', 0, 0),
             program.Tree.Path(file) + u": The file takes no more than 32,767 records. (error 6)"_s);
    QVERIFY(ScreenDriver::IsShown(u"frmInvoice"_s));
  }
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260001\r\n");
  program.End();
  QVERIFY(program.Tree.Bytes(file) == bytes);
  QCOMPARE(program.Tree.Bytes(CopyOf(file)), "the good copy");
  // What is sound has its turn.
  QCOMPARE(program.Tree.Bytes(u"/Backup/Services.txt"_s), program.Tree.Bytes(u"/Services.txt"_s));
}

QTEST_MAIN(MirrorInvoice)
#include "tst_mirrorInvoice.moc"
