// The save of a partial invoice as a rule: the questions to the letter, and the order of its effects.
#include <QtTest>

#include "invoice/PartialSave.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString Image = u"/KarvexInvoicer/IncompleteInvoices/20260005.txt"_s;
const QString SaveQuestion =
    u"Save Partial Invoice? The account data, invoice items, quantites,\r\nprices, and extensions will be saved\r\n"
    "Recall the invoice from the Main Menu,\r\nPartial Invoices and add to the invoice"_s;
const QString DraftQuestion = u"Print Draft Copy? Would you like to Print a Draft Copy?"_s;

struct Run {
  Run() {
    It.Invoice.txtInvoiceNo = u"20260005"_s;
    It.AddLine({u"2"_s, u"Hammer"_s, u""_s, u"$12.00"_s, u"$24.00"_s, u"True"_s});
  }

  void Save() {
    const auto note = [this](const QString& step) {
      Steps << step + (It.Exists(Image) ? u" image"_s : QString()) +
                   (It.Exists(u"/KVInvoiceNo.txt"_s) ? u" counter"_s : QString());
    };
    SavePartial({It.Invoice, It.Disk, It.Boxes, It.Now},
                {[this, note] {
                   note(It.Invoice.DraftPrint ? u"draft"_s : u"invoice"_s);
                   return Prints;
                 },
                 [note] { note(u"list"_s); }, [note] { note(u"lines"_s); }, [note] { note(u"leave"_s); }});
  }

  InvoiceFixture It;
  QStringList Steps;
  bool Prints = true;
};

}  // namespace

class PartialSave : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theQuestionsHaveTheseWords();
  void theImageAndTheCounterStandBeforeTheListIsReadAgain();
  void theDraftIsPrintedBeforeAnythingIsWritten();
  void aFailedDraftEndsTheRun();
  void anErrorInTheDraftLeavesNoDraftBehind();
  void aRecalledInvoiceCountsNoNumber();
  void aNumberThatWouldLeaveTheFolderIsRefusedBeforeTheQuestions();
};

void PartialSave::theQuestionsHaveTheseWords() {
  Run run;
  run.It.Boxes.Answers = {true, false};
  run.Save();
  QCOMPARE(run.It.Boxes.Said, QStringList({SaveQuestion, DraftQuestion}));
}

void PartialSave::theImageAndTheCounterStandBeforeTheListIsReadAgain() {
  Run run;
  run.It.Boxes.Answers = {true, false};
  run.Save();
  QCOMPARE(run.Steps, QStringList({u"list image counter"_s, u"leave image counter"_s}));
  QCOMPARE(run.It.Read(u"/KVInvoiceNo.txt"_s), "20260006\r\n");
}

void PartialSave::theDraftIsPrintedBeforeAnythingIsWritten() {
  Run run;
  run.It.Boxes.Answers = {true, true};
  run.Save();
  QCOMPARE(run.Steps.first(), u"draft"_s);
  QVERIFY(!run.It.Invoice.DraftPrint);
  QVERIFY(run.It.Exists(Image));
}

void PartialSave::aFailedDraftEndsTheRun() {
  Run run;
  run.It.Boxes.Answers = {true, true};
  run.Prints = false;
  run.Save();
  QCOMPARE(run.Steps, QStringList{u"draft"_s});
  QVERIFY(!run.It.Exists(Image));
  QCOMPARE(run.It.Row(1).at(2), QString());
}

void PartialSave::anErrorInTheDraftLeavesNoDraftBehind() {
  Run run;
  run.It.Boxes.Answers = {true, true};
  PartialSaveSteps steps;
  steps.PrintInvoice = []() -> bool { throw std::runtime_error("paper"); };
  QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                           SavePartial({run.It.Invoice, run.It.Disk, run.It.Boxes, run.It.Now}, steps));
  QVERIFY(!run.It.Invoice.DraftPrint);
}

void PartialSave::aRecalledInvoiceCountsNoNumber() {
  Run run;
  run.It.Invoice.RecalledInvoice = true;
  run.It.Boxes.Answers = {true, false};
  run.Save();
  QCOMPARE(run.Steps, QStringList({u"list image"_s, u"leave image"_s}));
}

void PartialSave::aNumberThatWouldLeaveTheFolderIsRefusedBeforeTheQuestions() {
  for (const auto& number : {u""_s, u" "_s, u".."_s, u"../5"_s, u"..\\5"_s, u"a/b"_s}) {
    Run run;
    run.It.Invoice.txtInvoiceNo = number;
    const auto before = run.It.Tree();
    run.Save();
    QCOMPARE(run.It.Boxes.Said.size(), 1);
    QVERIFY2(!run.It.Boxes.Said.first().contains(u'?'), qPrintable(run.It.Boxes.Said.first()));
    QCOMPARE(run.Steps, QStringList{u"lines"_s});
    QCOMPARE(run.It.Focus(), u"txtInvoiceNo"_s);
    QCOMPARE(run.It.Tree(), before);
  }
}

QTEST_GUILESS_MAIN(PartialSave)
#include "tst_partialSave.moc"
