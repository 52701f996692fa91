// The packing slip of an invoice that was given up, as the invoice screen prints it: its column for the packer, a
// description wider than the sheet, and several sheets.
#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

/// Prints the invoice as it stands and gives it up; the slip follows.
void PrintSlip(InvoiceBench& bench) {
  bench.Finalize();
  bench.On().Click(u"ckPackingList"_s);
  bench.Answers.No(u"Was the Invoice Printed Correctly"_s);
  bench.Answers.No(u"Would you like to Retry Printing this Invoice"_s);
  bench.Answers.Yes(u"Was the Packing Slip printed Correctly?"_s);
  bench.On().Click(u"cmdInvoiceContinue"_s);
}

void PostLines(InvoiceBench& bench, int count) {
  for (int line = 1; line <= count; ++line) bench.PostManual(u"Line %1"_s.arg(line), QString::number(line), u"1"_s);
}

QStringList Lines(int from, int to) {
  QStringList lines;
  for (int line = from; line <= to; ++line) lines << QString::number(line) << u"Line %1"_s.arg(line);
  return lines;
}

/// What a sheet bears below its headings.
QStringList Rows(const InvoiceBench& bench, std::size_t page) {
  const QStringList words = bench.Paper.Words(page);
  return words.mid(words.indexOf(u"Description"_s) + 1);
}

}  // namespace

class PackingSlipPages : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void packedByStaysEmptyBetweenItsRules();
  void aDescriptionWiderThanTheSheetIsOneRun();
  void threeSheetsAreThreeWholeFramesWithoutAPageNumber();
};

void PackingSlipPages::packedByStaysEmptyBetweenItsRules() {
  InvoiceBench bench;
  bench.OpenAtLines();
  PostLines(bench, 3);
  PrintSlip(bench);
  QCOMPARE(bench.Paper.Jobs.back().Pages.size(), 1U);
  QCOMPARE(Rows(bench, 1), Lines(1, 3));
  QList<int> upright;
  for (const PaperRule& rule : bench.Paper.Rules(1)) {
    if (!rule.IsBox && rule.X1 == rule.X2 && rule.Y2 > 7000) upright.append(rule.X1);
  }
  QVERIFY(upright.contains(1800) && upright.contains(3240));
  int lines = 0;
  for (const PaperText& run : bench.Paper.Texts(1)) {
    if (run.Y < 6480) continue;
    ++lines;
    bench.Paper.SetFontSize(10);
    bench.Paper.SetFontBold(false);
    QVERIFY2(run.X + bench.Paper.TextWidth(run.Text) < 1800 || run.X > 3240, qPrintable(run.Text));
  }
  QCOMPARE(lines, 6);
}

void PackingSlipPages::aDescriptionWiderThanTheSheetIsOneRun() {
  const QString wide = u"Plank of old oak, "_s.repeated(7).trimmed();
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(wide, u"1"_s, u"1"_s);
  bench.PostManual(u"Nail"_s, u"2"_s, u"1"_s);
  PrintSlip(bench);
  const auto found = bench.Paper.Find(wide);
  QCOMPARE(found.size(), 1U);
  QCOMPARE(qRound(found.front().X), 3456);
  bench.Paper.SetFontSize(10);
  bench.Paper.SetFontBold(false);
  QVERIFY(found.front().X + bench.Paper.TextWidth(wide) > 12240);
  // It takes one line, as any other.
  QCOMPARE(qRound(bench.Paper.Find(u"Nail"_s).front().Y), qRound(found.front().Y + 223.453125F));
}

void PackingSlipPages::threeSheetsAreThreeWholeFramesWithoutAPageNumber() {
  InvoiceBench bench;
  bench.OpenAtLines();
  PostLines(bench, 50);
  PrintSlip(bench);
  QCOMPARE(bench.Paper.Jobs.back().Pages.size(), 3U);
  QCOMPARE(Rows(bench, 1), Lines(1, 23));
  QCOMPARE(Rows(bench, 2), Lines(24, 46));
  QCOMPARE(Rows(bench, 3), Lines(47, 50));
  const auto rules = bench.Paper.Rules(1);
  QCOMPARE(rules.size(), 19U);
  for (std::size_t page = 1; page <= 3; ++page) {
    const QStringList words = bench.Paper.Words(page);
    QVERIFY(words.contains(u"Packing Slip"_s) && words.contains(u"Packed By"_s));
    QVERIFY2(words.filter(u"Page"_s).isEmpty(), qPrintable(words.join(u'|')));
    QCOMPARE(bench.Paper.Rules(page), rules);
  }
}

QTEST_MAIN(PackingSlipPages)
#include "tst_packingSlipPages.moc"
