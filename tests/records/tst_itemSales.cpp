// What was sold, from the records to the grids: the same rows and totals as comparing each record with every entry.
#include <QRandomGenerator>

#include "catalogue/SalesItemsList.h"
#include "records/ItemSales.h"
#include "records/SalesRange.h"
#include "records/SoldItems.h"
#include "support/CatalogueTree.h"

using namespace Qt::StringLiterals;

namespace {

struct Desk {
  CatalogueTree Tree;
  SalesRange Range;
  SalesItemsList List;
  ItemSales Sales;

  Desk() { Range.DTPicker1 = {QDate(2026, 2, 5), QDate(2026, 3, 7)}; }
  void Write(const QByteArray& records) { Tree.Write(u"/SoldItems.txt"_s, records); }
  void Tick(const QStringList& names) {
    for (const QString& name : names) List.Items.push_back({name, true});
  }
  SalesFound Load(const Progress& progress = {}) { return LoadSalesGrid(Sales, Range, List, Tree.Disk, progress); }
  QStringList Rows(const TextMatrix& grid) const {
    QStringList rows;
    for (int row = 1; row < grid.Rows(); ++row) {
      QStringList cells;
      for (int col = 0; col < grid.Cols(); ++col) cells << grid.Text(row, col);
      rows << cells.join(u'|');
    }
    return rows;
  }
  QStringList Shown() const { return Rows(Sales.fgSalesItems); }
  QStringList Totals() const { return Rows(Sales.fgTotals); }
};

}  // namespace

class ItemSalesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aRecordIsReadByItsBytes() {
    Desk desk;
    // 7 March 2026 is day 46,088; 258 units.
    desk.Write(QByteArray("Saw").leftJustified(60) + Hex("00 00 00 00 00 81 E6 40") +
               QByteArray(" 20260001").leftJustified(20) + Hex("02 01"));
    desk.Tick({u"Saw"_s});
    QCOMPARE(desk.Load(), SalesFound::Some);
    QCOMPARE(desk.Shown(), (QStringList{u"Saw|3/7/2026|20260001|258"_s, u"|||"_s}));
    QCOMPARE(desk.Sales.fgSalesItems.Row(), 2);
    QCOMPARE(desk.Range.StartDate, 46058.0);
    QCOMPARE(desk.Range.EndDate, 46088.0);
  }

  void theGridIsWhatComparingWithEveryEntryGives() {
    QRandomGenerator random(4711);
    Desk desk;
    QByteArray records;
    struct Sale {
      QString Name;
      double Date;
      int Number;
      int Units;
    };
    std::vector<Sale> sales;
    for (int i = 0; i < 3000; ++i) {
      const Sale sale{u"Item %1"_s.arg(random.bounded(60)), Day::Feb4 + random.bounded(34), 20260000 + i,
                      random.bounded(-3, 9)};
      sales.push_back(sale);
      records += Sold(sale.Name.toLatin1(), sale.Date, QByteArray::number(sale.Number), sale.Units);
    }
    desk.Write(records);
    // Some names twice, some not ticked, some that nobody bought.
    for (int i = 0; i < 80; ++i) desk.List.Items.push_back({u"Item %1"_s.arg(random.bounded(70)), i % 4 != 0});

    QStringList rows;
    for (const Sale& sale : sales) {
      if (sale.Date < Day::Feb5 || sale.Date > Day::Mar7) continue;
      for (const SalesItem& item : desk.List.Items) {
        const QDate date = QDate(1899, 12, 30).addDays(static_cast<qint64>(sale.Date));
        if (item.Ticked && item.Name == sale.Name) {
          rows << u"%1|%2|%3|%4"_s.arg(sale.Name, date.toString(u"M/d/yyyy"_s)).arg(sale.Number).arg(sale.Units);
        }
      }
    }
    QStringList totals;
    for (const SalesItem& item : desk.List.Items) {
      if (!item.Ticked) continue;
      int total = 0, found = 0;
      for (const QString& row : rows) {
        if (row.section(u'|', 0, 0) != item.Name) continue;
        ++found;
        total += row.section(u'|', 3).toInt();
      }
      if (found > 0) totals << item.Name + u'|' + QString::number(total);
    }
    QVERIFY(rows.size() > 1500 && totals.size() > 40);
    QCOMPARE(desk.Load(), SalesFound::Some);
    QCOMPARE(desk.Shown(), rows + QStringList{u"|||"_s});
    QVERIFY(BuildSalesTotals(desk.Sales, desk.List));
    QCOMPARE(desk.Totals(), totals);
  }

  void oneReadServesAWholeScan() {
    Desk desk;
    desk.Write(Sold("Saw", Day::Mar7, "1", 1).repeated(100));
    desk.Tick({u"Saw"_s});
    QCOMPARE(desk.Load(), SalesFound::Some);
    QCOMPARE(desk.Sales.fgSalesItems.Rows(), 102);
  }

  void namesAreComparedTrimmedAndExactly() {
    Desk desk;
    desk.Write(Sold(" Saw", Day::Mar7, "1", 1) + Sold("saw", Day::Mar7, "2", 1) + Sold("Saws", Day::Mar7, "3", 1) +
               Sold("S\xE4ge", Day::Mar7, "4", 1));
    desk.Tick({u"Saw "_s, u"Säge"_s});
    desk.Load();
    QCOMPARE(desk.Shown(), (QStringList{u"Saw|3/7/2026|1|1"_s, u"Säge|3/7/2026|4|1"_s, u"|||"_s}));
  }

  void aRecordCutShortCountsFromHalfOn() {
    Desk desk;
    desk.Tick({u"Saw"_s});
    desk.Write(Sold("Saw", Day::Mar7, "77", 3).left(80));
    desk.Load();
    QCOMPARE(desk.Shown(), (QStringList{u"Saw|3/7/2026|77|0"_s, u"|||"_s}));
    desk.Write(Sold("Saw", Day::Mar7, "1", 3) + Sold("Saw", Day::Mar7, "2", 3).left(44));
    desk.Load();
    QCOMPARE(desk.Shown(), (QStringList{u"Saw|3/7/2026|1|3"_s, u"|||"_s}));
  }

  void aDateThatIsNoneIsInNoRange() {
    Desk desk;
    desk.Tick({u"Saw"_s});
    desk.Write(Sold("Saw", std::numeric_limits<double>::quiet_NaN(), "1", 3));
    QCOMPARE(desk.Load(), SalesFound::Nothing);
    QCOMPARE(desk.Shown(), QStringList{u"|||"_s});
  }

  void nothingFoundClearsTheGrids() {
    Desk desk;
    desk.Tick({u"Saw"_s});
    desk.Write(Sold("Saw", Day::Mar7, "1", 3));
    desk.Load();
    BuildSalesTotals(desk.Sales, desk.List);
    desk.Range.DTPicker1 = {QDate(2026, 3, 6), QDate(2026, 3, 6)};
    QCOMPARE(desk.Load(), SalesFound::Nothing);
    QCOMPARE(desk.Shown(), QStringList{u"|||"_s});
    QCOMPARE(desk.Sales.fgSalesItems.Row(), 1);
    QCOMPARE(desk.Totals(), QStringList{u"|"_s});
  }

  void withoutTheFileTheGridsStayAndNoneIsMade() {
    Desk desk;
    desk.Tick({u"Saw"_s});
    desk.Write(Sold("Saw", Day::Mar7, "1", 3));
    desk.Load();
    desk.Tree.Disk.KillDataFile(u"/SoldItems.txt"_s);
    QCOMPARE(desk.Load(), SalesFound::NoFile);
    QCOMPARE(desk.Shown(), (QStringList{u"Saw|3/7/2026|1|3"_s, u"|||"_s}));
    QVERIFY(!desk.Tree.Has(u"/SoldItems.txt"_s));
  }

  void theFileMayHoldMoreRecordsThanARecordCount() {
    Desk desk;
    desk.Tick({u"Saw"_s});
    desk.Write(Sold("Saw", Day::Mar7, "1", 0).repeated(32767) + Sold("Saw", Day::Mar7, "last", 7));
    QCOMPARE(desk.Load(), SalesFound::Some);
    QCOMPARE(desk.Sales.fgSalesItems.Rows(), 32770);
    QCOMPARE(desk.Shown().at(32767), u"Saw|3/7/2026|last|7"_s);
    QVERIFY(BuildSalesTotals(desk.Sales, desk.List));
    QCOMPARE(desk.Totals(), QStringList{u"Saw|7"_s});
  }

  void aTotalIsSixteenBitsAtEachStep() {
    Desk desk;
    desk.Tick({u"Saw"_s});
    // In the end it would fit: 32,767 and 1 don't, whatever comes behind them.
    desk.Write(Sold("Saw", Day::Mar7, "1", 32767) + Sold("Saw", Day::Mar7, "2", 1) + Sold("Saw", Day::Mar7, "3", -9));
    desk.Load();
    const RuntimeError error = CaughtFrom([&] { BuildSalesTotals(desk.Sales, desk.List); });
    QCOMPARE(error.Number(), 6);
    QCOMPARE(error.Subject(), u"Saw"_s);
    QVERIFY(error.From() == RuntimeError::Origin::Event);
    desk.Write(Sold("Saw", Day::Mar7, "1", -9) + Sold("Saw", Day::Mar7, "2", 32767) + Sold("Saw", Day::Mar7, "3", 9));
    desk.Load();
    QVERIFY(BuildSalesTotals(desk.Sales, desk.List));
    QCOMPARE(desk.Totals(), QStringList{u"Saw|32767"_s});
    desk.Write(Sold("Saw", Day::Mar7, "1", -32768) + Sold("Saw", Day::Mar7, "2", -1));
    desk.Load();
    QCOMPARE(ErrorOf([&] { BuildSalesTotals(desk.Sales, desk.List); }), 6);
  }

  void whatSoldNothingHasNoTotal() {
    Desk desk;
    desk.Tick({u"Axe"_s, u"Saw"_s, u"Hammer"_s});
    desk.Write(Sold("Hammer", Day::Mar7, "1", 2) + Sold("Saw", Day::Mar7, "1", 0));
    desk.Load();
    QVERIFY(BuildSalesTotals(desk.Sales, desk.List));
    // A total of 0 isn't nothing.
    QCOMPARE(desk.Totals(), (QStringList{u"Saw|0"_s, u"Hammer|2"_s}));
    QCOMPARE(desk.Sales.fgTotals.Col(), 0);
    QCOMPARE(desk.Sales.fgTotals.Alignment(0), Qt::AlignLeft | Qt::AlignVCenter);
  }

  void aBlankNameThatSoldTakesTheLastRowAway() {
    Desk desk;
    desk.Tick({u""_s, u"Saw"_s});
    desk.Write(Sold("", Day::Mar7, "1", 2));
    desk.Load();
    QVERIFY(BuildSalesTotals(desk.Sales, desk.List));
    QCOMPARE(desk.Shown(), (QStringList{u"|3/7/2026|1|2"_s, u"|||"_s}));
    QCOMPARE(desk.Totals(), QStringList{});
  }

  void aBlankNameBeforeAnotherLeavesNoRowForIt() {
    Desk desk;
    desk.Tick({u""_s, u"Saw"_s});
    desk.Write(Sold("", Day::Mar7, "1", 2) + Sold("Saw", Day::Mar7, "2", 3));
    desk.Load();
    const RuntimeError error = CaughtFrom([&] { BuildSalesTotals(desk.Sales, desk.List); });
    QCOMPARE(error.Number(), 9);
    QVERIFY(error.From() == RuntimeError::Origin::Event);
    // Behind all others it costs nothing but its own row.
    desk.List.Items = {{u"Saw"_s, true}, {u""_s, true}};
    QVERIFY(BuildSalesTotals(desk.Sales, desk.List));
    QCOMPARE(desk.Totals(), QStringList{u"Saw|3"_s});
  }

  void aStoppedLoadLeavesEmptyGrids() {
    Desk desk;
    desk.Tick({u"Saw"_s});
    desk.Write(Sold("Saw", Day::Mar7, "1", 0).repeated(5000));
    QCOMPARE(desk.Load(), SalesFound::Some);
    QList<qint64> told;
    QCOMPARE(desk.Load([&](qint64 done, qint64 total) {
      told << done << total;
      return done < 2048;
    }),
             SalesFound::Stopped);
    QCOMPARE(told, (QList<qint64>{1024, 5000, 2048, 5000}));
    QCOMPARE(desk.Shown(), QStringList{u"|||"_s});
    QCOMPARE(desk.Totals(), QStringList{u"|"_s});

    QCOMPARE(desk.Load(), SalesFound::Some);
    QVERIFY(!BuildSalesTotals(desk.Sales, desk.List, [](qint64, qint64) { return false; }));
    QCOMPARE(desk.Shown(), QStringList{u"|||"_s});
    QCOMPARE(desk.Totals(), QStringList{u"|"_s});
  }
};

QTEST_GUILESS_MAIN(ItemSalesTest)
#include "tst_itemSales.moc"
