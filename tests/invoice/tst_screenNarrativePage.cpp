// The narrative on the printed invoice, as the user of the invoice screen meets it: its place, and the message that it
// is too long, which comes before the question that it speaks of.
#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Narrative = u"/KarvexInvoicer/Narratives/20260001.txt"_s;
const QString Confirm = u"Was the Invoice Printed Correctly"_s;
const QString Retry = u"Would you like to Retry Printing this Invoice"_s;
const QString TooBig =
    u"Your Narrative will not fit completely in the allotted area\nReview the Invoice after Printing\n"
    u"Answer NO if the invoice is unacceptable\nRe-enter your Narrative"_s;
const QString TooBigTitle = u"Narrative is to Big"_s;

/// One manual line, finalized; the narrative stands on the disk.
void OpenWith(InvoiceBench& bench, const QByteArray& narrative) {
  bench.OpenAtLines();
  bench.PostManual(u"Planks"_s, u"2"_s, u"5"_s);
  bench.Finalize();
  bench.Tree.Write(Narrative, narrative);
}

void Print(InvoiceBench& bench) {
  bench.On().Click(u"cmdInvoiceContinue"_s);
}

QByteArray Lines(int count) {
  QByteArray lines;
  for (int line = 1; line <= count; ++line) lines += "Step " + QByteArray::number(line) + "\r\n";
  return lines;
}

}  // namespace

class ScreenNarrativePage : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aFittingNarrativeIsPrintedWithoutAMessage();
  void anEmptyNarrativePrintsDetailsAndLowersTheTable();
  void oneVeryLongWordGoesBeyondTheRightRule();
  void theMessageStandsBeforeThePageIsSent();
  void noKeepsTheInvoiceUncommitted();
  void aRetryPrintsTheNarrativeAsItStandsThen();
  void anotherInvoicesNarrativeIsNotPrinted();
};

void ScreenNarrativePage::aFittingNarrativeIsPrintedWithoutAMessage() {
  InvoiceBench bench;
  OpenWith(bench, Lines(7));
  bench.Answers.Yes(Confirm);
  Print(bench);
  const QStringList words = bench.Paper.Words(1);
  QCOMPARE(words.filter(u"Step "_s).size(), 7);
  QVERIFY(words.indexOf(u"Details"_s) < words.indexOf(u"Step 1"_s));
  QVERIFY(words.indexOf(u"Step 7"_s) < words.indexOf(u"Planks"_s));
  QCOMPARE(bench.Answers.Boxes().size(), 1);
}

void ScreenNarrativePage::anEmptyNarrativePrintsDetailsAndLowersTheTable() {
  InvoiceBench bench;
  OpenWith(bench, {});
  bench.Answers.Yes(Confirm);
  Print(bench);
  QCOMPARE(bench.Paper.Find(u"Details"_s).size(), 1U);
  QCOMPARE(bench.Paper.Rules(1).at(1).Y1, 7200);
  QCOMPARE(bench.Paper.Find(u"Planks"_s).at(0).Y, 8496.0F);
}

void ScreenNarrativePage::oneVeryLongWordGoesBeyondTheRightRule() {
  InvoiceBench bench;
  const QString word(150, u'0');
  OpenWith(bench, word.toLatin1() + "\r\n");
  bench.Answers.Yes(Confirm);
  Print(bench);
  QCOMPARE(bench.Paper.Find(word).size(), 1U);
  QCOMPARE(bench.Paper.Find(word).at(0).X, 360.0F);
  // A digit is 111.21875 wide: 150 of them end at 17042, the rule stands at 11880.
}

void ScreenNarrativePage::theMessageStandsBeforeThePageIsSent() {
  InvoiceBench bench;
  OpenWith(bench, Lines(8));
  std::size_t sentBefore = 99;
  bench.Answers.With(QMessageBox::Ok, [&] { sentBefore = bench.Paper.Jobs.size(); });
  bench.Answers.Yes(Confirm);
  Print(bench);
  QCOMPARE(sentBefore, 0U);
  const QueuedAnswers::Box box = bench.Answers.Boxes().at(0);
  QCOMPARE(box.Title, TooBigTitle);
  QCOMPARE(box.Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  // The items go on after it, on the same page; the eighth line is dropped.
  QCOMPARE(bench.Paper.Jobs.size(), 1U);
  QCOMPARE(bench.Paper.Words(1).filter(u"Step "_s).size(), 7);
  QVERIFY(bench.Paper.Words(1).contains(u"Planks"_s));
  QVERIFY(!bench.Paper.Find(u"Planks"_s).at(0).Font.Bold);
  QVERIFY(bench.Tree.Exists(u"/CompletedInvoices/20260001.txt"_s));
}

void ScreenNarrativePage::noKeepsTheInvoiceUncommitted() {
  InvoiceBench bench;
  OpenWith(bench, Lines(8));
  bench.Answers.Ok(TooBig, TooBigTitle);
  bench.Answers.No(Confirm);
  bench.Answers.No(Retry);
  Print(bench);
  QVERIFY(!bench.Tree.Exists(u"/CompletedInvoices/20260001.txt"_s));
  QVERIFY(!bench.Tree.Exists(u"/InvoiceSalesJournal.txt"_s));
  QCOMPARE(bench.Tree.Bytes(Narrative), Lines(8));
}

void ScreenNarrativePage::aRetryPrintsTheNarrativeAsItStandsThen() {
  InvoiceBench bench;
  OpenWith(bench, Lines(8));
  bench.Answers.Ok(TooBig, TooBigTitle);
  bench.Answers.No(Confirm);
  bench.Answers.With(QMessageBox::Yes, [&] { bench.Tree.Write(Narrative, "Short now\r\n"); });
  bench.Answers.Yes(Confirm);
  Print(bench);
  QCOMPARE(bench.Paper.Jobs.size(), 2U);
  QVERIFY(bench.Paper.Words(1).contains(u"Short now"_s));
  QVERIFY(bench.Paper.Words(1).filter(u"Step "_s).isEmpty());
}

void ScreenNarrativePage::anotherInvoicesNarrativeIsNotPrinted() {
  InvoiceBench bench;
  OpenWith(bench, Lines(1));
  bench.Tree.Remove(Narrative);
  bench.Tree.Write(u"/KarvexInvoicer/Narratives/20260002.txt"_s, Lines(1));
  bench.Answers.Yes(Confirm);
  Print(bench);
  QCOMPARE(bench.Paper.Find(u"Details"_s).size(), 0U);
  QCOMPARE(bench.Paper.Rules(1).at(1).Y1, 5760);
}

QTEST_MAIN(ScreenNarrativePage)
#include "tst_screenNarrativePage.moc"
