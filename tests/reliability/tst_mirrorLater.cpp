// The files that are read on the way through the screens, and can come back from the Backup folder then: with the file
// and its copy each missing, empty, cut short, damaged, older or good.

#include <QtWidgets>

#include "records/SoldItems.h"
#include "reliability/MemoryDisk.h"
#include "reliability/TwoCopies.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

QString TextOf(const QString& window, const QString& box) {
  return ScreenDriver(window).Text(box);
}

void OpenDialer(ProgramFixture&) {
  OneDay::GoToCustomers();
  ScreenDriver(u"frmNewCustomer"_s).Click(u"Image1_1"_s);
}

/// As far as the program gets.
void OpenNotes(ProgramFixture&) {
  OneDay::GoToCustomers();
  if (ScreenDriver::IsShown(u"frmNewCustomer"_s)) ScreenDriver(u"frmNewCustomer"_s).Trigger(u"mnuAux"_s);
}

void OpenSales(ProgramFixture&) {
  const ScreenDriver menu(u"frmStartup"_s);
  if (!menu.IsVisible(u"optMainMenuSub_5"_s)) return;
  menu.Click(u"optMainMenuSub_5"_s);
  menu.Click(u"cmdGoto"_s);
  const ScreenDriver sales(u"frmSalesReport"_s);
  sales.Click(u"cmdIncome_3"_s);
  sales.Click(u"cmdSales_1"_s);
  sales.Click(u"cmdSales_3"_s);
}

ReadLater SpeedNumbers() {
  const QByteArray good = "\"Ann\"\r\n\"555\"\r\n";
  return {.File = u"/SpeedNumbers.txt"_s,
          .Go = &OpenDialer,
          .See = [](const ProgramFixture&) { return TextOf(u"frmDialer"_s, u"cmdDialer_0"_s); },
          .States = {{"good", good, true, u"Ann"_s},
                     {"older", "\"Bob\"\r\n\"444\"\r\n", true, u"Bob"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", true, u""_s},
                     {"cut", good.left(7), false, {}},
                     {"text", "\"Cnn\"\r\n\"555\"\r\n", true, u"Cnn"_s},
                     {"too many", good.repeated(11), false, {}}}};
}

ReadLater States() {
  const QByteArray good = QByteArray("\"FL\"\r\n").repeated(50);
  return {.File = u"/StatesList.txt"_s,
          .Go = [](ProgramFixture&) { OneDay::GoToCustomers(); },
          .See =
              [](const ProgramFixture&) {
                const auto* states = ScreenDriver(u"frmNewCustomer"_s).Control<QComboBox>(u"cboStates"_s);
                return QString::number(states->count()) + states->itemText(0);
              },
          .States = {{"good", good, true, u"50FL"_s},
                     {"older", QByteArray("\"OH\"\r\n").repeated(50), true, u"50OH"_s},
                     {"missing", {}, true, u"0"_s},
                     {"empty", "", false, {}},
                     {"cut", good.left(100), false, {}},
                     {"text", "\"GL\"\r\n" + good.mid(6), true, u"50GL"_s}}};
}

ReadLater Headings() {
  const QByteArray good = "Gate\r\nDog\r\nc\r\nd\r\ne\r\nf\r\n";
  return {.File = u"/AuxHeadings.txt"_s,
          .Go = &OpenNotes,
          .See = [](const ProgramFixture&) { return TextOf(u"frmNewCustomer"_s, u"txtHeading_0"_s); },
          .States = {{"good", good, true, u"Gate"_s},
                     {"older", "Door" + good.mid(4), true, u"Door"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", false, {}},
                     {"cut", good.left(9), false, {}},
                     {"text", "gate" + good.mid(4), true, u"gate"_s}}};
}

ReadLater Notes() {
  return {.File = u"/AuxFiles/1001/AuxFile0/Data.txt"_s,
          .Go = &OpenNotes,
          .See = [](const ProgramFixture&) { return TextOf(u"frmNewCustomer"_s, u"txtAux_0"_s); },
          .States = {{"good", "Rings twice\r\n", true, u"Rings twice\n"_s},
                     {"older", "Rings\r\n", true, u"Rings\n"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", true, u""_s},
                     {"cut", "Ri", true, u"Ri\n"_s},
                     {"text", "rings twice\r\n", true, u"rings twice\n"_s}}};
}

ReadLater Sales() {
  const QByteArray good = Sold("Hammer", Day::Mar1, "20260001", 3) + Sold("Hammer", Day::Feb4, "20260000", 2);
  return {.File = u"/SoldItems.txt"_s,
          .Go = &OpenSales,
          .See =
              [](const ProgramFixture&) {
                if (!ScreenDriver::IsShown(u"frmSalesReport"_s)) return u"not offered"_s;
                const auto* totals = ScreenDriver(u"frmSalesReport"_s).Control<QTableView>(u"fgTotals"_s)->model();
                return totals->index(0, 1).data().toString();
              },
          .States = {{"good", good, true, u"5"_s},
                     {"older", good.left(90), true, u"3"_s},
                     {"missing", {}, true, u"not offered"_s},
                     {"empty", "", true, u""_s},
                     // A last record of which less than half is left doesn't count.
                     {"cut", good.left(90 + 40), true, u"3"_s},
                     {"text", Sold("Hammer", Day::Mar1, "20260001", 7), true, u"7"_s}}};
}

/// A file that the main menu asks for, whatever it holds, to show its option.
ReadLater AskedByTheMenu(const QString& file, const QString& option, int length) {
  const QString offered = u"offered"_s;
  const QByteArray good(2 * length, 'g');
  return {.File = file,
          .Go = [](ProgramFixture&) {},
          .See =
              [option, offered](const ProgramFixture&) {
                return ScreenDriver(u"frmStartup"_s).IsVisible(option) ? offered : u"not offered"_s;
              },
          .States = {{"good", good, true, offered},
                     {"older", good.left(length), true, offered},
                     {"missing", {}, true, u"not offered"_s},
                     {"empty", "", true, offered},
                     {"cut", good.left(length + 20), true, offered},
                     {"text", 'G' + good.mid(1), true, offered}}};
}

QList<ReadLater> Subjects() {
  return {SpeedNumbers(),
          States(),
          Headings(),
          Notes(),
          Sales(),
          AskedByTheMenu(u"/InvoiceSalesJournal.txt"_s, u"optMainMenuSub_4"_s, 125),
          AskedByTheMenu(u"/TaxRecords.txt"_s, u"optMainMenuSub_6"_s, 75)};
}

}  // namespace

class MirrorLater : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatIsToldHappensInEveryState_data() { AddPairs(Subjects()); }
  void whatIsToldHappensInEveryState();
};

void MirrorLater::whatIsToldHappensInEveryState() {
  QFETCH(const int, subject);
  QFETCH(const int, live);
  QFETCH(const int, copy);
  const ReadLater about = Subjects()[subject];
  CheckReadLater(about, about.States[live], about.States[copy]);
}

QTEST_MAIN(MirrorLater)
#include "tst_mirrorLater.moc"
