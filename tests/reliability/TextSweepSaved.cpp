// What the text sweep looks at when a box has had its texts: the records, the next start and the partial invoices.
#include <QtWidgets>

#include "reliability/TextSweep.h"

using namespace Qt::StringLiterals;
using TextSweep::Stage;

namespace {

/// Whether one of the records begins with these bytes.
bool HasRecord(const QByteArray& content, int length, const QByteArray& begin) {
  for (qsizetype at = 0; at < content.size(); at += length) {
    if (content.sliced(at).startsWith(begin)) return true;
  }
  return false;
}

/// Every record is whole. What is only appended to begins as it began; in the lists, what no stage touches still
/// stands, the inventory's units aside.
void CheckRecords(const ProgramFixture& program, const Stage& stage) {
  ProgramFixture first;
  TextSweep::Begin(first, stage);
  for (const auto& [name, length, kept] : {std::tuple{u"/CustomerData.txt"_s, 328, 328},
                                           {u"/Services.txt"_s, 72, 72},
                                           {u"/KVInventoriedItems.txt"_s, 104, 86},
                                           {u"/CustomItems.txt"_s, 70, 70},
                                           {u"/SoldItems.txt"_s, 90, 0},
                                           {u"/InvoiceSalesJournal.txt"_s, 125, 0},
                                           {u"/TaxRecords.txt"_s, 75, 0},
                                           {u"/KVActiveAccounts/1001.txt"_s, 155, 0}}) {
    const QByteArray content = program.Tree.Bytes(name), old = first.Tree.Bytes(name);
    QVERIFY2(content.size() >= old.size() && content.size() % length == 0, qPrintable(name));
    const bool stands = kept > 0 ? HasRecord(content, length, old.last(length).first(kept)) : content.startsWith(old);
    QVERIFY2(stands, qPrintable(name));
  }
}

}  // namespace

void TextSweep::CheckWhatWasSaved(ProgramFixture& program, const Stage& stage) {
  CheckRecords(program, stage);
  if (QTest::currentTestFailed()) return;
  QVERIFY(program.StartAtMenu());
  stage.Again ? stage.Again() : stage.Open();
  QVERIFY(ScreenDriver::IsShown(stage.Window));
  const qsizetype partials = program.Tree.List(u"/KarvexInvoicer/IncompleteInvoices"_s).size();
  if (partials == 0) return;
  QVERIFY(program.StartAtMenu());
  for (int row = 1; row <= partials; ++row) {
    ScreenDriver(u"frmStartup"_s).Click(u"optMainMenuSub_1"_s);
    ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
    program.Answers.Ok();
    ScreenDriver(u"frmIncomplete"_s).DoubleClickRow(u"fgIncomplete"_s, row);
    const QueuedAnswers::Box said = program.Answers.Last();
    QVERIFY2(said.Title == u"Partial Invoice Loaded"_s, qPrintable(u"row %1: %2"_s.arg(row).arg(said.Text)));
    ScreenDriver(u"frmInvoice"_s).Click(u"cmdExit"_s);
  }
}
