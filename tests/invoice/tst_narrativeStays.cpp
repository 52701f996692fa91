// A narrative that was saved can be replaced and not taken back on the screen, and the screen says so.
#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString File = u"/KarvexInvoicer/Narratives/20260001.txt"_s;

/// An invoice of one line whose narrative is saved.
void OpenWithANarrative(InvoiceBench& bench) {
  bench.OpenAtLines();
  bench.PostManual(u"Planks"_s, u"2"_s, u"5"_s);
  bench.On().Trigger(u"mnuNarrative"_s);
  bench.On().Type(u"Cut to measure"_s);
  bench.On().Click(u"cmdNarrative_0"_s);
  bench.On().Trigger(u"mnuNarrative"_s);
}

void PrintAndGiveUp(InvoiceBench& bench) {
  bench.Finalize();
  bench.Answers.No();
  bench.Answers.No();
  bench.On().Click(u"cmdInvoiceContinue"_s);
}

}  // namespace

class NarrativeStays : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void anEmptiedBoxAndCancelLeaveIt_data();
  void anEmptiedBoxAndCancelLeaveIt();
  void theFrameOpensWithoutIt();
  void theHelpAndTheTipSaySo();
};

void NarrativeStays::anEmptiedBoxAndCancelLeaveIt_data() {
  QTest::addColumn<QStringList>("buttons");
  QTest::newRow("emptied and saved") << QStringList{u"cmdNarrative_1"_s, u"cmdNarrative_0"_s};
  QTest::newRow("cancelled") << QStringList{u"cmdNarrative_4"_s};
}

void NarrativeStays::anEmptiedBoxAndCancelLeaveIt() {
  QFETCH(const QStringList, buttons);
  InvoiceBench bench;
  OpenWithANarrative(bench);
  for (const QString& button : buttons) bench.On().Click(button);
  QCOMPARE(bench.Tree.Bytes(File), "Cut to measure\r\n");
  PrintAndGiveUp(bench);
  QVERIFY(bench.Paper.Words(1).contains(u"Cut to measure"_s));
}

void NarrativeStays::theFrameOpensWithoutIt() {
  InvoiceBench bench;
  bench.Tree.Write(u"/Narrative.txt"_s, "Thank you\r\n");
  OpenWithANarrative(bench);
  QCOMPARE(bench.Text(u"txtNarrative"_s), u"Thank you\n"_s);
}

void NarrativeStays::theHelpAndTheTipSaySo() {
  InvoiceBench bench;
  OpenWithANarrative(bench);
  QVERIFY(bench.On().IsVisible(u"fraInstructions_10"_s));
  QVERIFY(bench.Text(u"lblInstructions_10"_s).contains(u"an empty box and Cancel leave what was saved before"_s));
  QVERIFY(bench.On().Control(u"cmdNarrative_4"_s)->toolTip().contains(u"what was saved before stays and prints"_s));
  for (const auto& text : {bench.Text(u"lblInstructions_10"_s), bench.On().Control(u"cmdNarrative_4"_s)->toolTip()}) {
    QVERIFY2(!text.contains(u"leave it out"_s) && !text.contains(u"Leaves the narrative out"_s), qPrintable(text));
  }
}

QTEST_MAIN(NarrativeStays)
#include "tst_narrativeStays.moc"
