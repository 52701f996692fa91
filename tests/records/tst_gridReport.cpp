// The grid report on the recording surface: what stands where, how pages follow each other, and what is left out.
#include <cmath>
#include <QtTest>

#include "records/GridReport.h"
#include "support/ErrorOf.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

namespace {

const ReportKind Complete{u"Invoices Report"_s, ReportAmounts::Printed};
const ReportKind Incomplete{u"Incomplete Invoices Report"_s};

/// Whole twips.
int At(float place) {
  return static_cast<int>(std::lround(place));
}

struct Desk {
  PageFixture Page;
  TextMatrix Grid{u"^Invoice No|^Account Number|<Account Name|^Date|>Amount|Sort"_s};
  GridReport Reports{Page.Routines, Page.Pages, Page.Now};

  void Fill(int count) {
    Grid.SetRows(count + 1);
    for (int row = 1; row <= count; ++row) {
      const QStringList cells{u"N%1"_s.arg(row), u"A%1"_s.arg(row),    u"Customer %1"_s.arg(row),
                              u"D%1"_s.arg(row), u"$%1.00"_s.arg(row), u"S%1"_s.arg(row)};
      for (int col = 0; col < cells.size(); ++col) Grid.SetText(row, col, cells.at(col));
    }
  }
  void Print(const ReportKind& kind) { Reports.PrintGridReport(kind, Grid); }
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
  /// The height of a line at 10 points, as the surface has it.
  float Line() {
    Page.Paper.SetFontSize(10);
    return Page.Paper.TextHeight(u"A"_s);
  }
};

}  // namespace

class GridReportTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theHeadingHasTitleSenderDateAndColumns() {
    Desk desk;
    desk.Fill(1);
    desk.Print(Incomplete);
    QCOMPARE(desk.Page.Paper.DialogsShown, 1);
    QCOMPARE(desk.Page.Paper.Jobs.size(), std::size_t{1});
    QCOMPARE(desk.Page.Paper.Jobs[0].Title, Incomplete.Title);
    QCOMPARE(desk.Pages(), std::size_t{1});
    const PaperText title = desk.Run(1, Incomplete.Title);
    QCOMPARE(title.Font.Size, 14);
    QVERIFY(title.Font.Bold);
    desk.Page.Paper.SetFontSize(14);
    desk.Page.Paper.SetFontBold(true);
    QCOMPARE(At(title.X), At((12240 - desk.Page.Paper.TextWidth(Incomplete.Title)) / 2));
    QCOMPARE(At(title.Y), At(desk.Page.Paper.TextHeight(Incomplete.Title)));

    const PaperText name = desk.Run(1, u"Orchard Supply"_s);
    QCOMPARE(At(name.X), 1080);
    QCOMPARE(At(name.Y), 576);
    QCOMPARE(name.Font.Size, 12);
    QVERIFY(name.Font.Bold);
    QCOMPARE(At(desk.Run(1, u"Tampa, FL. 33602"_s).X), 1080);

    const PaperText date = desk.Run(1, u"3/7/2026"_s);
    QCOMPARE(At(date.X), 9360);
    QCOMPARE(At(date.Y), 1080);
    QCOMPARE(date.Font.Size, 10);
    QVERIFY(!date.Font.Bold);

    const std::initializer_list<std::pair<QString, int>> headings{
        {u"Invoice No."_s, 1440}, {u"Account No"_s, 3240}, {u"Account"_s, 5040}, {u"Date"_s, 7920}};
    for (const auto& [text, x] : headings) {
      const PaperText heading = desk.Run(1, text);
      QCOMPARE(At(heading.X), x);
      QCOMPARE(At(heading.Y), 3168);
      QVERIFY(heading.Font.Bold);
      QCOMPARE(heading.Font.Size, 10);
    }
  }

  void aRowStandsUnderItsHeadings() {
    Desk desk;
    desk.Fill(2);
    desk.Print(Incomplete);
    const std::initializer_list<std::pair<QString, int>> cells{
        {u"N1"_s, 1440}, {u"A1"_s, 3240}, {u"Customer 1"_s, 5040}, {u"D1"_s, 7920}};
    for (const auto& [text, x] : cells) {
      const PaperText run = desk.Run(1, text);
      QCOMPARE(At(run.X), x);
      QCOMPARE(At(run.Y), 3600);
      QVERIFY(!run.Font.Bold);
      QCOMPARE(run.Font.Size, 10);
    }
    const PaperText second = desk.Run(1, u"N2"_s);
    QCOMPARE(At(second.X), 1440);
    QCOMPARE(At(second.Y), At(3600 + desk.Line()));
  }

  void everyTextOfTheReportIsBlack() {
    Desk desk;
    desk.Page.Look.ckColor = true;
    desk.Page.Paper.SetForeColor(0x0000FF);
    desk.Fill(60);
    desk.Print(Complete);
    for (std::size_t page = 1; page <= 2; ++page) {
      for (const PaperText& run : desk.Page.Paper.Texts(page)) QCOMPARE(run.Color, quint32{0});
      QVERIFY(desk.Page.Paper.Rules(page).empty());
    }
  }

  void theInvoicesReportHasTheAmountsAtTheRightEdge() {
    Desk desk;
    desk.Fill(2);
    desk.Print(Complete);
    const PaperText amount = desk.Run(1, u"$2.00"_s);
    desk.Page.Paper.SetFontSize(10);
    desk.Page.Paper.SetFontBold(false);
    QCOMPARE(At(amount.X), At(10800 - desk.Page.Paper.TextWidth(u"$2.00"_s)));
    QCOMPARE(At(amount.Y), At(3600 + desk.Line()));
    const PaperText heading = desk.Run(1, u"Amount"_s);
    QVERIFY(heading.Font.Bold);
    desk.Page.Paper.SetFontBold(true);
    QCOMPARE(At(heading.X), At(10800 - desk.Page.Paper.TextWidth(u"Amount"_s)));
    QCOMPARE(At(heading.Y), 3168);
  }

  void theReportOfPartialInvoicesHasNoAmounts() {
    Desk desk;
    desk.Fill(2);
    desk.Print(Incomplete);
    QVERIFY(desk.Has(1, u"D2"_s));
    QVERIFY(!desk.Has(1, u"Amount"_s));
    QVERIFY(!desk.Has(1, u"$1.00"_s));
    QCOMPARE(At(desk.Run(1, u"N2"_s).Y), At(3600 + desk.Line()));
  }

  void theHiddenSortColumnIsNeverPrinted() {
    Desk desk;
    desk.Fill(1);
    desk.Print(Complete);
    QVERIFY(desk.Has(1, u"$1.00"_s));
    QVERIFY(!desk.Has(1, u"S1"_s));
    QVERIFY(!desk.Has(1, u"Sort"_s));
  }

  void aGridWithoutAmountsIsPrintedWithoutThem() {
    Desk desk;
    TextMatrix narrow(u"^a|^b|^c|^d"_s, 2);
    narrow.SetText(1, 0, u"N1"_s);
    desk.Reports.PrintGridReport(Incomplete, narrow);
    QVERIFY(desk.Has(1, u"N1"_s));
  }

  void theRowsComeInTheGridsPresentOrder() {
    Desk desk;
    desk.Fill(3);
    desk.Grid.SortRows([](const QStringList& a, const QStringList& b) { return a[0] > b[0]; });
    desk.Print(Incomplete);
    QVERIFY(desk.Run(1, u"N3"_s).Y < desk.Run(1, u"N2"_s).Y);
    QVERIFY(desk.Run(1, u"N2"_s).Y < desk.Run(1, u"N1"_s).Y);
  }

  void anEmptyListPrintsTheHeadingPageAlone() {
    Desk desk;
    desk.Print(Complete);
    QCOMPARE(desk.Pages(), std::size_t{1});
    QVERIFY(desk.Has(1, Complete.Title));
    QCOMPARE(desk.Page.Paper.Words(1).last(), u"Amount"_s);
  }

  void theRowsRunDownToTheEdgeOfTheSheet() {
    // At 10 points a line is 223.4 twips high: 54 of them end above 15,840, and the 55th would end below it.
    Desk full;
    full.Fill(54);
    full.Print(Incomplete);
    QCOMPARE(full.Pages(), std::size_t{1});
    QVERIFY(full.Run(1, u"N54"_s).Y > 14400);

    Desk over;
    over.Fill(55);
    over.Print(Incomplete);
    QCOMPARE(over.Pages(), std::size_t{2});
    QVERIFY(over.Has(1, u"N54"_s));
    QVERIFY(!over.Has(1, u"N55"_s));
    const float line = over.Line();
    QVERIFY(over.Run(1, u"N54"_s).Y + line < 15840);
    QVERIFY(over.Run(1, u"N54"_s).Y + 2 * line >= 15840);
  }

  void aContinuationPageStartsHigherAndOverprintsItsHeadings() {
    Desk desk;
    desk.Fill(60);
    desk.Print(Complete);
    QCOMPARE(desk.Pages(), std::size_t{2});
    QCOMPARE(At(desk.Run(2, Complete.Title).Y), At(desk.Run(1, Complete.Title).Y));
    QCOMPARE(At(desk.Run(2, u"Orchard Supply"_s).Y), 576);
    const PaperText headings = desk.Run(2, u"Invoice No."_s);
    QCOMPARE(At(headings.Y), 3168);
    QVERIFY(headings.Font.Bold);
    const PaperText first = desk.Run(2, u"N55"_s);
    QCOMPARE(At(first.X), 1440);
    QCOMPARE(At(first.Y), 2520);
    QVERIFY(!first.Font.Bold);
    const float line = desk.Line();
    QCOMPARE(At(desk.Run(2, u"N56"_s).Y), At(2520 + line));
    // The third row reaches into the line of the headings, and the fourth begins in it.
    const float third = desk.Run(2, u"N57"_s).Y;
    const float fourth = desk.Run(2, u"N58"_s).Y;
    QVERIFY(third < 3168 && third + line > 3168);
    QVERIFY(fourth > 3168 && fourth < 3168 + line);
  }

  void manyPagesHoldEveryRowOnce() {
    Desk desk;
    desk.Fill(200);
    desk.Print(Complete);
    QCOMPARE(desk.Pages(), std::size_t{4});
    for (int row = 1; row <= 200; ++row) {
      QCOMPARE(desk.Page.Paper.Find(u"N%1"_s.arg(row)).size(), std::size_t{1});
      QCOMPARE(desk.Page.Paper.Find(u"$%1.00"_s.arg(row)).size(), std::size_t{1});
    }
    // 54 rows, then 59 a page from 1.75 inches.
    QCOMPARE(At(desk.Run(2, u"N55"_s).Y), 2520);
    QCOMPARE(At(desk.Run(3, u"N114"_s).Y), 2520);
    QCOMPARE(At(desk.Run(4, u"N173"_s).Y), 2520);
    QCOMPARE(desk.Page.Paper.Find(u"Invoice No."_s).size(), std::size_t{4});
  }

  void aStoppedReportLeavesNothing() {
    Desk desk;
    desk.Fill(3000);
    QStringList told;
    desk.Page.Paper.OnDialog = [&] { told << u"dialog"_s; };
    const auto print = [&](qint64 last) {
      desk.Reports.PrintGridReport(Complete, desk.Grid, [&](qint64 done, qint64 total) {
        told << u"%1 of %2"_s.arg(done).arg(total);
        return done < last;
      });
    };
    QCOMPARE(ErrorOf([&] { print(2000); }), 32755);
    // The first step is behind the dialog; the rows are the first half of the work.
    QCOMPARE(told, (QStringList{u"dialog"_s, u"0 of 6002"_s, u"1024 of 6002"_s, u"2048 of 6002"_s}));
    QVERIFY(desk.Page.Paper.Jobs.empty());
    // Nothing of it stands on the next job.
    desk.Fill(1);
    desk.Print(Complete);
    QCOMPARE(desk.Pages(), std::size_t{1});
    QVERIFY(!desk.Has(1, u"N2"_s));
  }

  void theDrawingOfThePagesIsToldAndStopped() {
    Desk desk;
    desk.Fill(60);
    desk.Page.Paper.TellsPages = true;
    QStringList told;
    const auto print = [&](qint64 last) {
      told.clear();
      desk.Reports.PrintGridReport(Incomplete, desk.Grid, [&](qint64 done, qint64 total) {
        told << u"%1 of %2"_s.arg(done).arg(total);
        return done < last;
      });
    };
    QCOMPARE(ErrorOf([&] { print(3); }), 32755);
    QCOMPARE(told, (QStringList{u"0 of 122"_s, u"3 of 4"_s}));
    QVERIFY(desk.Page.Paper.Jobs.empty());
    print(5);
    QCOMPARE(told, (QStringList{u"0 of 122"_s, u"3 of 4"_s, u"4 of 4"_s}));
    QCOMPARE(desk.Pages(), std::size_t{2});
  }

  void whatGoesWrongIsThrownAndNothingStaysOnTheSurface() {
    Desk desk;
    desk.Fill(1);
    desk.Page.Paper.SendError = 482;
    QCOMPARE(ErrorOf([&] { desk.Print(Complete); }), 482);
    desk.Print(Complete);
    QCOMPARE(desk.Page.Paper.Jobs.size(), std::size_t{1});
    QCOMPARE(desk.Pages(), std::size_t{1});
    QVERIFY(desk.Page.Messages.Messages.isEmpty());
  }
};

QTEST_MAIN(GridReportTest)
#include "tst_gridReport.moc"
