// The report of the partial invoices as its button prints it: where everything stands on the first sheet, on a second
// one, and on a third.

#include "records/InvoicingDesk.h"

using namespace Qt::StringLiterals;

namespace {

int At(float twips) {
  return qRound(twips);
}

/// A line of 10 points on the recording surface.
constexpr float Line = 223.453125F;

class ReportDesk : public InvoicingDesk {
 public:
  /// Prints the list of that many partial invoices.
  explicit ReportDesk(int count) {
    for (int i = 1; i <= count; ++i) {
      const QByteArray number = QByteArray::number(20250000 + i);
      Program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/%1.txt"_s.arg(20250000 + i),
                         number + "\r\nA" + QByteArray::number(i) + "\r\nName, " + QByteArray::number(i) + "\r\n3/" +
                             QByteArray::number(i % 28 + 1) + "/2025\r\n");
    }
    if (Program.StartAtMenu()) OpenPartials().Click(u"cmdReport"_s);
  }
  std::size_t Pages() const { return Program.Paper.Jobs.back().Pages.size(); }
  /// The one run of that text on the page.
  PaperText Run(std::size_t page, const QString& text) const {
    std::vector<PaperText> found;
    for (const PaperText& run : Program.Paper.Texts(page)) {
      if (run.Text == text) found.push_back(run);
    }
    if (found.size() != 1) throw std::runtime_error(qPrintable(QString::number(found.size()) + u" times "_s + text));
    return found.front();
  }
  /// The top of a row, and that its four cells stand beside one another.
  float Row(std::size_t page, int row) const {
    const PaperText number = Run(page, QString::number(20250000 + row));
    const PaperText account = Run(page, u"A%1"_s.arg(row));
    const PaperText name = Run(page, u"Name, %1"_s.arg(row));
    const bool inPlace = At(number.X) == 1440 && At(account.X) == 3240 && At(name.X) == 5040 &&
                         At(account.Y) == At(number.Y) && At(name.Y) == At(number.Y);
    return inPlace && !number.Font.Bold && number.Font.Size == 10 ? number.Y : -1;
  }
};

}  // namespace

class PartialReport : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void oneSheetHasTitleSenderDateHeadingsAndRows();
  void theRowsRunDownToTheEdgeOfTheSheet();
  void theSecondSheetStartsHigherAndOverprintsItsHeadings();
  void manySheetsHoldEveryRowOnce();
  void aStopEndsItSilently();
  void theTimeInThePrinterDialogIsNoWork();
};

void PartialReport::oneSheetHasTitleSenderDateHeadingsAndRows() {
  ReportDesk desk(2);
  QCOMPARE(desk.Program.Paper.DialogsShown, 1);
  QCOMPARE(desk.Pages(), 1U);
  const PaperText title = desk.Run(1, u"Incomplete Invoices Report"_s);
  QCOMPARE(title.Font.Size, 14);
  QVERIFY(title.Font.Bold);
  desk.Program.Paper.SetFontSize(14);
  desk.Program.Paper.SetFontBold(true);
  QCOMPARE(At(title.X), At((12240 - desk.Program.Paper.TextWidth(title.Text)) / 2));
  const PaperText sender = desk.Run(1, u"Orange Grove Supply"_s);
  QCOMPARE(At(sender.X), 1080);
  QCOMPARE(At(sender.Y), 576);
  const PaperText date = desk.Run(1, u"3/7/2026"_s);
  QCOMPARE(At(date.X), 9360);
  QCOMPARE(At(date.Y), 1080);
  for (const auto& [text, x] :
       {std::pair(u"Invoice No."_s, 1440), {u"Account No"_s, 3240}, {u"Account"_s, 5040}, {u"Date"_s, 7920}}) {
    const PaperText heading = desk.Run(1, text);
    QCOMPARE(At(heading.X), x);
    QCOMPARE(At(heading.Y), 3168);
    QVERIFY(heading.Font.Bold);
  }
  QCOMPARE(desk.Row(1, 1), 3600);
  QCOMPARE(At(desk.Row(1, 2)), At(3600 + Line));
  QCOMPARE(At(desk.Run(1, u"3/2/2025"_s).X), 7920);
  QVERIFY(!desk.Program.Paper.Words(1).contains(u"Amount"_s));
}

void PartialReport::theRowsRunDownToTheEdgeOfTheSheet() {
  QCOMPARE(ReportDesk(54).Pages(), 1U);
  ReportDesk desk(55);
  QCOMPARE(desk.Pages(), 2U);
  const float last = desk.Row(1, 54);
  QVERIFY(last + Line < 15840 && last + 2 * Line >= 15840);
  QCOMPARE(At(desk.Row(2, 55)), 2520);
}

void PartialReport::theSecondSheetStartsHigherAndOverprintsItsHeadings() {
  ReportDesk desk(60);
  QCOMPARE(desk.Pages(), 2U);
  QCOMPARE(At(desk.Run(2, u"Incomplete Invoices Report"_s).Y), At(desk.Run(1, u"Incomplete Invoices Report"_s).Y));
  QCOMPARE(At(desk.Run(2, u"Invoice No."_s).Y), 3168);
  QCOMPARE(At(desk.Row(2, 55)), 2520);
  const float third = desk.Row(2, 57);
  const float fourth = desk.Row(2, 58);
  QVERIFY(third < 3168 && third + Line > 3168);
  QVERIFY(fourth > 3168 && fourth < 3168 + Line);
}

void PartialReport::manySheetsHoldEveryRowOnce() {
  ReportDesk desk(120);
  QCOMPARE(desk.Pages(), 3U);
  for (int row = 1; row <= 120; ++row) QVERIFY(desk.Row(row <= 54 ? 1 : row <= 113 ? 2 : 3, row) > 0);
  QCOMPARE(At(desk.Row(3, 114)), 2520);
}

void PartialReport::aStopEndsItSilently() {
  InvoicingDesk desk;
  desk.Program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/1.txt"_s, "1\r\n1001\r\nBay\r\n3/5/2026\r\n");
  desk.Program.Patience = 0;
  QVERIFY(desk.Program.StartAtMenu());
  const ScreenDriver partials = desk.OpenPartials();
  desk.Program.Answers.Dialog([](QDialog& dialog) { dialog.findChild<QPushButton*>()->click(); });
  partials.Click(u"cmdReport"_s);
  QVERIFY(desk.Program.Paper.Jobs.empty());
  QVERIFY(desk.Program.Answers.Boxes().isEmpty());
  desk.Program.Answers.Dialog([](QDialog&) {});
  partials.Click(u"cmdReport"_s);
  QCOMPARE(desk.Program.Paper.Jobs.size(), 1U);
}

void PartialReport::theTimeInThePrinterDialogIsNoWork() {
  InvoicingDesk desk;
  desk.Program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/1.txt"_s, "1\r\n1001\r\nBay\r\n3/5/2026\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  const ScreenDriver partials = desk.OpenPartials();
  // A progress that came up behind it would be a dialog that nobody expected.
  desk.Program.Paper.OnDialog = [&desk] { desk.Program.WorkTime += 60'000; };
  partials.Click(u"cmdReport"_s);
  QCOMPARE(desk.Program.Paper.Jobs.size(), 1U);
}

QTEST_MAIN(PartialReport)
#include "tst_partialReport.moc"
