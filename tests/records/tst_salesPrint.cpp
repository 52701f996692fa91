// The item sales report on the recording surface: what stands where, in which font, and how pages follow each other.
#include <cmath>
#include <QtTest>

#include "records/ItemSales.h"
#include "records/SalesRange.h"
#include "records/SalesReport.h"
#include "support/ErrorOf.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

namespace {

/// Whole twips.
int At(float place) {
  return static_cast<int>(std::lround(place));
}

struct Desk {
  PageFixture Page;
  ItemSales Sales;
  SalesRange Range;
  SalesReport Report{Page.Routines, Page.Pages, Page.Now};

  Desk() {
    Range.DTPicker1 = {QDate(2026, 2, 5), QDate(2026, 3, 7)};
    Range.TakeFromPickers();
    Page.Paper.SetFontSize(10);
  }
  /// So many sales, and the empty row behind them.
  void Fill(int count) {
    Sales.fgSalesItems.SetRows(count + 2);
    for (int row = 1; row <= count; ++row) {
      const QStringList cells{u"P%1"_s.arg(row), u"D%1"_s.arg(row), u"N%1"_s.arg(row), u"U%1"_s.arg(row)};
      for (int col = 0; col < cells.size(); ++col) Sales.fgSalesItems.SetText(row, col, cells.at(col));
    }
  }
  void FillTotals(int count) {
    Sales.fgTotals.SetRows(count + 1);
    for (int row = 1; row <= count; ++row) {
      Sales.fgTotals.SetText(row, 0, u"T%1"_s.arg(row));
      Sales.fgTotals.SetText(row, 1, QString::number(1000 + row));
    }
  }
  void Print() { Report.PrintItemSales(Sales, Range); }
  std::size_t Pages() const { return Page.Paper.Jobs.at(0).Pages.size(); }
  /// The run of that text on a page; the test fails by an exception where it isn't there once.
  PaperText Run(std::size_t page, const QString& text) const {
    std::vector<PaperText> found;
    for (const PaperText& run : Page.Paper.Texts(page)) {
      if (run.Text == text) found.push_back(run);
    }
    if (found.size() != 1) throw std::logic_error(qPrintable(u"%1 of "_s.arg(found.size()) + text));
    return found.front();
  }
  bool Has(std::size_t page, const QString& text) const { return Page.Paper.Words(page).contains(text); }
  float Width(const QString& text, int size, bool bold) {
    Page.Paper.SetFontSize(size);
    Page.Paper.SetFontBold(bold);
    return Page.Paper.TextWidth(text);
  }
  float Line(int size, bool bold) {
    Page.Paper.SetFontSize(size);
    Page.Paper.SetFontBold(bold);
    return Page.Paper.TextHeight(u"A"_s);
  }
};

void CheckFont(const PaperText& run, int size, bool bold) {
  QCOMPARE(run.Font.Size, size);
  QCOMPARE(run.Font.Bold, bold);
  QVERIFY(!run.Font.Underline);
  QCOMPARE(run.Color, quint32{0});
}

}  // namespace

class SalesPrint : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theHeadingHasTitleDateAndSender() {
    Desk desk;
    desk.Fill(1);
    desk.Print();
    QCOMPARE(desk.Page.Paper.DialogsShown, 1);
    const PaperText title = desk.Run(1, u"Item Sales Report"_s);
    CheckFont(title, 14, true);
    QCOMPARE(At(title.X), At((12240 - desk.Width(title.Text, 14, true)) / 2));
    QCOMPARE(At(title.Y), At(desk.Line(10, false)));
    const PaperText date = desk.Page.Paper.Texts(1).at(1);
    QCOMPARE(date.Text, u"3/7/2026"_s);
    CheckFont(date, 14, true);
    QCOMPARE(At(date.X), 10080);
    QCOMPARE(At(date.Y), 1080);
    const PaperText name = desk.Run(1, u"Orchard Supply"_s);
    CheckFont(name, 12, true);
    QCOMPARE(At(name.X), 1440);
    QCOMPARE(At(name.Y), 720);
    CheckFont(desk.Run(1, u"1 Grove Road"_s), 10, false);
  }

  void theRangeIsCentredByATextWithABlankMore() {
    Desk desk;
    desk.Fill(1);
    desk.Print();
    const PaperText range = desk.Run(1, u"Report Date Range: 2/5/2026 to 3/7/2026"_s);
    CheckFont(range, 12, true);
    const float measured = desk.Width(u"Report Date Range:  to 2/5/20263/7/2026"_s, 12, true);
    QCOMPARE(At(range.X), At((12240 - measured) / 2));
    // The text itself would stand elsewhere: the one measured puts its blanks and dates together otherwise.
    const PaperText last = desk.Run(1, u"Telephone: 813-555-0100"_s);
    QCOMPARE(At(range.Y), At(last.Y + 2 * desk.Line(10, false)));
  }

  void theRangePrintedIsTheOneTheGridsAreLoadedBy() {
    Desk desk;
    desk.Range.DTPicker1 = {QDate(2020, 1, 1), QDate(2020, 1, 2)};
    desk.Print();
    QVERIFY(desk.Has(1, u"Report Date Range: 2/5/2026 to 3/7/2026"_s));
  }

  void theColumnsStandBetweenHeadingAndRows() {
    Desk desk;
    desk.Fill(1);
    desk.Print();
    const PaperText caption = desk.Run(1, u"Item Sales by Invoice"_s);
    CheckFont(caption, 12, true);
    QCOMPARE(At(caption.X), 1440);
    QCOMPARE(At(caption.Y), 2880);
    const int y = At(2880 + 2 * desk.Line(12, true));
    const std::initializer_list<std::pair<QString, int>> headings{
        {u"Inventoried Item Name"_s, 1440}, {u"Invoice Date"_s, 4320}, {u"Invoice No."_s, 6480}};
    for (const auto& [text, x] : headings) {
      const PaperText heading = desk.Run(1, text);
      CheckFont(heading, 12, true);
      QCOMPARE(At(heading.X), x);
      QCOMPARE(At(heading.Y), y);
    }
    const PaperText units = desk.Run(1, u"Units Sold"_s);
    CheckFont(units, 12, true);
    QCOMPARE(At(units.X), At(9360 - desk.Width(units.Text, 12, true)));
    QCOMPARE(At(units.Y), y);
  }

  void aRowStandsUnderItsHeadings() {
    Desk desk;
    desk.Fill(2);
    desk.Print();
    const std::initializer_list<std::pair<QString, int>> cells{{u"P1"_s, 1440}, {u"D1"_s, 4320}, {u"N1"_s, 6480}};
    for (const auto& [text, x] : cells) {
      const PaperText run = desk.Run(1, text);
      CheckFont(run, 10, false);
      QCOMPARE(At(run.X), x);
      QCOMPARE(At(run.Y), 3600);
    }
    QCOMPARE(At(desk.Run(1, u"U1"_s).X), At(9360 - desk.Width(u"U1"_s, 10, false)));
    QCOMPARE(At(desk.Run(1, u"P2"_s).Y), At(3600 + desk.Line(10, false)));
  }

  void theTotalsFollowTheEmptyRow() {
    Desk desk;
    desk.Fill(2);
    desk.FillTotals(2);
    desk.Print();
    const float line = desk.Line(10, false);
    const float heavy = desk.Line(12, true);
    // Two rows, the empty one, an empty line.
    const PaperText heading = desk.Run(1, u"Total Items Sold (This Date Range)"_s);
    CheckFont(heading, 12, true);
    QCOMPARE(At(heading.X), 1440);
    QCOMPARE(At(heading.Y), At(3600 + 4 * line));
    const PaperText name = desk.Run(1, u"Item Name"_s);
    CheckFont(name, 12, true);
    QCOMPARE(At(name.X), 1440);
    QCOMPARE(At(name.Y), At(heading.Y + 2 * heavy));
    const PaperText first = desk.Run(1, u"T1"_s);
    CheckFont(first, 10, false);
    QCOMPARE(At(first.X), 1440);
    QCOMPARE(At(first.Y), At(name.Y + heavy));
    const PaperText units = desk.Run(1, u"1001"_s);
    QCOMPARE(At(units.X), At(9360 - desk.Width(u"1001"_s, 10, false)));
    QCOMPARE(At(units.Y), At(first.Y));
    QCOMPARE(At(desk.Run(1, u"T2"_s).Y), At(first.Y + line));
  }

  void theRowsRunDownToTheEdgeOfTheSheet() {
    // From 2.5 inches 54 rows of 223.4 twips end above 15,840; the empty one behind them is the 55th.
    Desk full;
    full.Fill(53);
    full.FillTotals(0);
    full.Print();
    QCOMPARE(full.Pages(), std::size_t{1});
    QVERIFY(full.Run(1, u"P53"_s).Y > 15000);

    Desk over;
    over.Fill(55);
    over.Print();
    QCOMPARE(over.Pages(), std::size_t{2});
    QVERIFY(over.Has(1, u"P54"_s) && !over.Has(1, u"P55"_s));
    const float line = over.Line(10, false);
    const float last = over.Run(1, u"P54"_s).Y;
    QVERIFY(last + line < 15840 && last + 2 * line >= 15840);
  }

  void aNewPageHasTheColumnsAloneAndStartsAtTheSameHeight() {
    Desk desk;
    desk.Fill(60);
    desk.Print();
    QCOMPARE(desk.Pages(), std::size_t{2});
    QCOMPARE(desk.Page.Paper.Words(2).first(), u"Item Sales by Invoice"_s);
    QCOMPARE(At(desk.Run(2, u"Item Sales by Invoice"_s).Y), 2880);
    QVERIFY(!desk.Has(2, u"Item Sales Report"_s));
    QVERIFY(!desk.Has(2, u"Orchard Supply"_s));
    const PaperText first = desk.Run(2, u"P55"_s);
    CheckFont(first, 10, false);
    QCOMPARE(At(first.X), 1440);
    QCOMPARE(At(first.Y), 3600);
  }

  void theTotalsTurnPagesToo() {
    Desk desk;
    desk.Fill(1);
    desk.FillTotals(110);
    desk.Print();
    QCOMPARE(desk.Pages(), std::size_t{3});
    for (int row = 1; row <= 110; ++row) QCOMPARE(desk.Page.Paper.Find(u"T%1"_s.arg(row)).size(), std::size_t{1});
    QCOMPARE(desk.Page.Paper.Words(2).first(), u"Item Sales by Invoice"_s);
    QCOMPARE(At(desk.Page.Paper.Texts(2).at(5).Y), 3600);
    QVERIFY(!desk.Has(2, u"Total Items Sold (This Date Range)"_s));
  }

  void theHeadingOfTheTotalsTurnsNoPage() {
    Desk desk;
    desk.Fill(53);
    desk.FillTotals(1);
    desk.Print();
    QCOMPARE(desk.Pages(), std::size_t{2});
    QVERIFY(desk.Run(1, u"Total Items Sold (This Date Range)"_s).Y > 15840);
    QCOMPARE(At(desk.Run(2, u"T1"_s).Y), 3600);
  }

  void manyPagesHoldEveryRowOnce() {
    Desk desk;
    desk.Fill(200);
    desk.Print();
    QCOMPARE(desk.Pages(), std::size_t{4});
    for (int row = 1; row <= 200; ++row) QCOMPARE(desk.Page.Paper.Find(u"P%1"_s.arg(row)).size(), std::size_t{1});
  }

  void clearedGridsPrintTheirEmptyRows() {
    Desk desk;
    desk.Print();
    QCOMPARE(desk.Pages(), std::size_t{1});
    QCOMPARE(At(desk.Run(1, u"Total Items Sold (This Date Range)"_s).Y), At(3600 + 2 * desk.Line(10, false)));
    QCOMPARE(desk.Page.Paper.Words(1).last(), u"Item Name"_s);
  }

  void colourFollowsTheSwitchOnly() {
    Desk desk;
    desk.Page.Look.ckColor = true;
    desk.Print();
    QCOMPARE(desk.Page.Paper.ColorMode, 2);
    for (const PaperText& run : desk.Page.Paper.Texts(1)) QCOMPARE(run.Color, quint32{0});
    desk.Page.Look.ckColor = false;
    desk.Print();
    QCOMPARE(desk.Page.Paper.ColorMode, 1);
  }

  void aStoppedJobEndsSilentlyAndLeavesNothing() {
    Desk desk;
    desk.Fill(3000);
    // The first step is behind the dialog; the rows, the empty one with them, are the first half of the work.
    QStringList told;
    desk.Page.Paper.OnDialog = [&] { told << u"dialog"_s; };
    const bool printed = desk.Page.Routines.RunPrintJob(desk.Page.Messages, [&] {
      desk.Report.PrintItemSales(desk.Sales, desk.Range, [&](qint64 done, qint64 total) {
        told << u"%1 of %2"_s.arg(done).arg(total);
        return done < 2000;
      });
    });
    QVERIFY(!printed);
    QCOMPARE(told, (QStringList{u"dialog"_s, u"0 of 6004"_s, u"1024 of 6004"_s, u"2048 of 6004"_s}));
    QVERIFY(desk.Page.Messages.Messages.isEmpty());
    QVERIFY(desk.Page.Paper.Jobs.empty());
    desk.Fill(1);
    desk.Print();
    QCOMPARE(desk.Pages(), std::size_t{1});
  }

  void theDrawingOfThePagesIsToldAndStopped() {
    Desk desk;
    desk.Fill(100);
    desk.Page.Paper.TellsPages = true;
    QStringList told;
    const auto print = [&](qint64 last) {
      told.clear();
      return desk.Page.Routines.RunPrintJob(desk.Page.Messages, [&] {
        desk.Report.PrintItemSales(desk.Sales, desk.Range, [&](qint64 done, qint64 total) {
          told << u"%1 of %2"_s.arg(done).arg(total);
          return done < last;
        });
      });
    };
    // Two pages, the second half of the work.
    QVERIFY(!print(3));
    QCOMPARE(told, (QStringList{u"0 of 204"_s, u"3 of 4"_s}));
    QVERIFY(desk.Page.Paper.Jobs.empty());
    QVERIFY(print(5));
    QCOMPARE(told, (QStringList{u"0 of 204"_s, u"3 of 4"_s, u"4 of 4"_s}));
    QCOMPARE(desk.Pages(), std::size_t{2});
  }
};

QTEST_MAIN(SalesPrint)
#include "tst_salesPrint.moc"
