// The files that are read while the program is worked on, and can come back from the Backup folder then: with the file
// and its copy each missing, empty, cut short, damaged, older or good. And the files that a finished invoice is
// appended to, where they or their copies are there. What is listed from its folder (images, partial invoices,
// proposals, templates) is never missed, and so never fetched.

#include <QtWidgets>

#include "customers/CustomerRecords.h"
#include "records/SoldItems.h"
#include "reliability/MemoryDisk.h"
#include "reliability/OneDay.h"
#include "support/CompletedImages.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

/// What a place may hold, and what the user sees of it.
struct State {
  const char* Name;
  std::optional<QByteArray> Bytes;  ///< Nothing: no file.
  bool Loads;
  QString Seen;
};

/// What comes of a file that can't be loaded: the program tells it and ends, or a print job has its own message.
enum class Unreadable { EndsIt, FailsThePrint };
/// What the reading does to the copy.
enum class Copy { Kept, Dropped };

struct Subject {
  QString File;
  Unreadable Then;
  Copy Kind;
  std::function<void()> Go;  ///< From the main menu to where it is read.
  std::function<QString(const ProgramFixture&)> See;
  QList<State> States;
};

QString TextOf(const QString& window, const QString& box) {
  return ScreenDriver(window).Text(box);
}

void OpenDialer() {
  OneDay::GoToCustomers();
  ScreenDriver(u"frmNewCustomer"_s).Click(u"Image1_1"_s);
}

/// As far as the program gets.
void OpenNotes() {
  OneDay::GoToCustomers();
  if (ScreenDriver::IsShown(u"frmNewCustomer"_s)) ScreenDriver(u"frmNewCustomer"_s).Trigger(u"mnuAux"_s);
}

void OpenInvoice() {
  OneDay::GoToCustomers();
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
}

void OpenNarrative() {
  OpenInvoice();
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_0"_s);
  ScreenDriver(u"frmInvoice"_s).Trigger(u"mnuNarrative"_s);
}

void OpenSales() {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_5"_s);
  menu.Click(u"cmdGoto"_s);
  const ScreenDriver sales(u"frmSalesReport"_s);
  sales.Click(u"cmdIncome_3"_s);
  sales.Click(u"cmdSales_1"_s);
  sales.Click(u"cmdSales_3"_s);
}

Subject SpeedNumbers() {
  const QByteArray good = "\"Ann\"\r\n\"555\"\r\n";
  return {u"/SpeedNumbers.txt"_s,
          Unreadable::EndsIt,
          Copy::Kept,
          &OpenDialer,
          [](const ProgramFixture&) { return TextOf(u"frmDialer"_s, u"cmdDialer_0"_s); },
          {{"good", good, true, u"Ann"_s},
           {"older", "\"Bob\"\r\n\"444\"\r\n", true, u"Bob"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", true, u""_s},
           {"cut", good.left(7), false, {}},
           {"text", "\"Cnn\"\r\n\"555\"\r\n", true, u"Cnn"_s},
           {"too many", good.repeated(11), false, {}}}};
}

Subject States() {
  const QByteArray good = QByteArray("\"FL\"\r\n").repeated(50);
  return {u"/StatesList.txt"_s,
          Unreadable::EndsIt,
          Copy::Kept,
          [] { OneDay::GoToCustomers(); },
          [](const ProgramFixture&) {
            const auto* states = ScreenDriver(u"frmNewCustomer"_s).Control<QComboBox>(u"cboStates"_s);
            return QString::number(states->count()) + states->itemText(0);
          },
          {{"good", good, true, u"50FL"_s},
           {"older", QByteArray("\"OH\"\r\n").repeated(50), true, u"50OH"_s},
           {"empty", "", false, {}},
           {"cut", good.left(100), false, {}},
           {"text", "\"GL\"\r\n" + good.mid(6), true, u"50GL"_s}}};
}

Subject Headings() {
  const QByteArray good = "Gate\r\nDog\r\nc\r\nd\r\ne\r\nf\r\n";
  return {u"/AuxHeadings.txt"_s,
          Unreadable::EndsIt,
          Copy::Kept,
          &OpenNotes,
          [](const ProgramFixture&) { return TextOf(u"frmNewCustomer"_s, u"txtHeading_0"_s); },
          {{"good", good, true, u"Gate"_s},
           {"older", "Door" + good.mid(4), true, u"Door"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", false, {}},
           {"cut", good.left(9), false, {}},
           {"text", "gate" + good.mid(4), true, u"gate"_s}}};
}

Subject Notes() {
  return {u"/AuxFiles/1001/AuxFile0/Data.txt"_s,
          Unreadable::EndsIt,
          Copy::Kept,
          &OpenNotes,
          [](const ProgramFixture&) { return TextOf(u"frmNewCustomer"_s, u"txtAux_0"_s); },
          {{"good", "Rings twice\r\n", true, u"Rings twice\n"_s},
           {"older", "Rings\r\n", true, u"Rings\n"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", true, u""_s},
           {"cut", "Ri", true, u"Ri\n"_s},
           {"text", "rings twice\r\n", true, u"rings twice\n"_s}}};
}

Subject DefaultNarrative() {
  return {u"/Narrative.txt"_s,
          Unreadable::EndsIt,
          Copy::Kept,
          &OpenNarrative,
          [](const ProgramFixture&) { return TextOf(u"frmInvoice"_s, u"txtNarrative"_s); },
          {{"good", "As agreed.\r\n", true, u"As agreed.\n"_s},
           {"older", "As told.\r\n", true, u"As told.\n"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", true, u""_s},
           {"cut", "As", true, u"As\n"_s},
           {"text", "as agreed.\r\n", true, u"as agreed.\n"_s}}};
}

Subject Counter() {
  return {u"/KVInvoiceNo.txt"_s,
          Unreadable::EndsIt,
          Copy::Dropped,
          &OpenInvoice,
          [](const ProgramFixture&) { return TextOf(u"frmInvoice"_s, u"txtInvoiceNo"_s); },
          {{"good", "20260017\r\n", true, u"20260017"_s},
           {"older", "20260016\r\n", true, u"20260016"_s},
           {"empty", "", false, {}},
           {"text", "2026q017\r\n", false, {}},
           {"too large", "20260017000\r\n", false, {}}}};
}

Subject Sales() {
  const QByteArray good = Sold("Hammer", Day::Mar1, "20260001", 3) + Sold("Hammer", Day::Feb4, "20260000", 2);
  return {u"/SoldItems.txt"_s,
          Unreadable::EndsIt,
          Copy::Kept,
          &OpenSales,
          [](const ProgramFixture&) {
            const auto* totals = ScreenDriver(u"frmSalesReport"_s).Control<QTableView>(u"fgTotals"_s)->model();
            return totals->index(0, 1).data().toString();
          },
          {{"good", good, true, u"5"_s},
           {"older", good.left(90), true, u"3"_s},
           {"empty", "", true, u""_s},
           // A last record of which less than half is left doesn't count.
           {"cut", good.left(90 + 40), true, u"3"_s},
           {"text", Sold("Hammer", Day::Mar1, "20260001", 7), true, u"7"_s}}};
}

void Reprint() {
  OpenReprint();
  const ScreenDriver reprint(u"frmReprint"_s);
  reprint.SelectRow(u"fgReceivables"_s, 1);
  reprint.Click(u"cmdPrint"_s);
}

/// The one of these texts that was printed.
auto Printed(const QStringList& texts) {
  return [texts](const ProgramFixture& program) {
    for (const QString& text : texts) {
      if (!program.Paper.Find(text).empty()) return text;
    }
    return QString();
  };
}

Subject WebSite() {
  return {u"/MyWebSite.txt"_s,
          Unreadable::FailsThePrint,
          Copy::Kept,
          &Reprint,
          Printed({u"grove.example"_s, u"orchard.example"_s, u"Grove.example"_s, u"gro"_s}),
          {{"good", "\"grove.example\"\r\n", true, u"grove.example"_s},
           {"older", "\"orchard.example\"\r\n", true, u"orchard.example"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", false, {}},
           {"cut", "\"gro", true, u"gro"_s},
           {"text", "\"Grove.example\"\r\n", true, u"Grove.example"_s}}};
}

Subject NarrativeOfAnInvoice() {
  return {u"/KarvexInvoicer/Narratives/20260001.txt"_s,
          Unreadable::FailsThePrint,
          Copy::Kept,
          &Reprint,
          Printed({u"felled"_s, u"Felled"_s, u"pruned"_s, u"fel"_s}),
          {{"good", "felled\r\n", true, u"felled"_s},
           {"older", "pruned\r\n", true, u"pruned"_s},
           {"missing", {}, true, u""_s},
           {"empty", "", true, u""_s},
           {"cut", "fel", true, u"fel"_s},
           {"text", "Felled\r\n", true, u"Felled"_s}}};
}

QList<Subject> Subjects() {
  return {WebSite(), NarrativeOfAnInvoice(), SpeedNumbers(), States(), Headings(),
          Notes(),   DefaultNarrative(),     Counter(),      Sales()};
}

void Put(const TemporaryTree& tree, const QString& name, const std::optional<QByteArray>& bytes) {
  if (bytes) {
    tree.Write(name, *bytes);
  } else if (tree.Exists(name)) {
    tree.Remove(name);
  }
}

std::optional<QByteArray> Held(const TemporaryTree& tree, const QString& name) {
  return tree.Exists(name) ? std::optional(tree.Bytes(name)) : std::nullopt;
}

}  // namespace

class MirrorLater : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatIsToldHappensInEveryState_data();
  void whatIsToldHappensInEveryState();
  void aFinishedInvoiceIsAppendedToWhatIsThereOrToItsCopy_data();
  void aFinishedInvoiceIsAppendedToWhatIsThereOrToItsCopy();
};

void MirrorLater::whatIsToldHappensInEveryState_data() {
  QTest::addColumn<int>("subject");
  QTest::addColumn<int>("live");
  QTest::addColumn<int>("copy");
  const QList<Subject> subjects = Subjects();
  for (int s = 0; s < subjects.size(); ++s) {
    const QList<State>& states = subjects[s].States;
    for (int live = 0; live < states.size(); ++live) {
      for (int copy = 0; copy < states.size(); ++copy) {
        QTest::addRow("%s %s, copy %s", qPrintable(subjects[s].File), states[live].Name, states[copy].Name)
            << s << live << copy;
      }
    }
  }
}

void MirrorLater::whatIsToldHappensInEveryState() {
  QFETCH(const int, subject);
  QFETCH(const int, live);
  QFETCH(const int, copy);
  const Subject about = Subjects()[subject];
  const State& there = about.States[live];
  const State& kept = about.States[copy];
  const QString copyName = u"/Backup"_s + about.File;
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  const QByteArray witness = "an older copy of another file";
  program.Tree.Write(u"/Backup/Services.txt"_s, witness);
  program.Tree.Write(u"/CompletedInvoices/20260001.txt"_s, Image("20260001", "Acme Tools", "3/7/2026", "$25.00"));
  Put(program.Tree, about.File, there.Bytes);
  Put(program.Tree, copyName, kept.Bytes);
  QVERIFY(program.StartAtMenu());

  // Only what is missing is fetched.
  const State& read = there.Bytes ? there : kept;
  if (!read.Loads) program.Answers.Ok();
  about.Go();
  QCOMPARE(Held(program.Tree, about.File), read.Bytes);
  if (read.Loads) {
    QCOMPARE(about.See(program), read.Seen);
    QVERIFY(!program.Running().HasEnded());
    QCOMPARE(Held(program.Tree, copyName), about.Kind == Copy::Dropped ? std::nullopt : kept.Bytes);
    return;
  }
  const QString text = program.Answers.Last().Text;
  const bool ends = about.Then == Unreadable::EndsIt;
  QVERIFY2(text.contains(ends ? about.File : u"A Print Error has occurred"_s), qPrintable(text));
  QCOMPARE(Held(program.Tree, copyName), kept.Bytes);
  QCOMPARE(program.Running().HasEnded(), ends);
  // The good copies aren't written over by such an end.
  QCOMPARE(program.Tree.Bytes(u"/Backup/Services.txt"_s), witness);
}

void MirrorLater::aFinishedInvoiceIsAppendedToWhatIsThereOrToItsCopy_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<int>("length");
  QTest::addColumn<int>("there");
  QTest::addColumn<int>("kept");
  for (const auto& [file, length] : {std::pair{u"/SoldItems.txt"_s, 90},
                                     {u"/InvoiceSalesJournal.txt"_s, 125},
                                     {u"/TaxRecords.txt"_s, 75},
                                     {u"/KVActiveAccounts/1001.txt"_s, 155}}) {
    // Records of the file and of its copy; -1: none is there.
    for (const int there : {-1, 1, 2}) {
      for (const int kept : {-1, 1, 3}) {
        QTest::addRow("%s %d, copy %d", qPrintable(file), there, kept) << file << length << there << kept;
      }
    }
  }
}

void MirrorLater::aFinishedInvoiceIsAppendedToWhatIsThereOrToItsCopy() {
  QFETCH(const QString, file);
  QFETCH(const int, length);
  QFETCH(const int, there);
  QFETCH(const int, kept);
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  if (there >= 0) program.Tree.Write(file, QByteArray(there * length, 't'));
  if (kept >= 0) program.Tree.Write(u"/Backup"_s + file, QByteArray(kept * length, 'k'));
  QVERIFY(program.StartAtMenu());
  OneDay::CommitInvoice(program);
  const QByteArray before = there >= 0  ? QByteArray(there * length, 't')
                            : kept >= 0 ? QByteArray(kept * length, 'k')
                                        : QByteArray();
  const QByteArray after = program.Tree.Bytes(file);
  QVERIFY(after.startsWith(before));
  // A ledger that there was nothing of begins with its opening record.
  const bool opened = before.isEmpty() && file.contains(u"/KVActiveAccounts/"_s);
  QCOMPARE(after.size(), before.size() + length * (opened ? 2 : 1));
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260002\r\n");
}

QTEST_MAIN(MirrorLater)
#include "tst_mirrorLater.moc"
