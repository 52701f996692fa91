// Hostile texts and numbers in every box of the invoice that is being made: head, lines, memo and narrative; and in the
// cells of its grid.

#include <QtWidgets>

#include "reliability/AnyAnswer.h"
#include "reliability/MemoryDisk.h"
#include "reliability/TextStages.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;
using TextSweep::Stage;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

const QList<Stage>& Stages() {
  static const QList<Stage> stages = TextSweep::StagesOfLines();
  return stages;
}

}  // namespace

class HostileInvoiceTexts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyBoxTakesEveryTextAndTheProgramGoesOn_data();
  void everyBoxTakesEveryTextAndTheProgramGoesOn();
  void everyCellOfALineTakesEveryText_data();
  void everyCellOfALineTakesEveryText();
};

void HostileInvoiceTexts::everyBoxTakesEveryTextAndTheProgramGoesOn_data() {
  QTest::addColumn<int>("stage");
  for (int i = 0; i < Stages().size(); ++i) QTest::newRow(Stages()[i].Name) << i;
}

void HostileInvoiceTexts::everyBoxTakesEveryTextAndTheProgramGoesOn() {
  QFETCH(int, stage);
  TextSweep::SweepBoxes(Stages()[stage]);
}

void HostileInvoiceTexts::everyCellOfALineTakesEveryText_data() {
  QTest::addColumn<int>("column");
  QTest::newRow("quantity") << 0;
  QTest::newRow("unit price") << 3;
}

/// A cell takes keys alone, one by one; Enter works the line out anew.
void HostileInvoiceTexts::everyCellOfALineTakesEveryText() {
  QFETCH(const int, column);
  const Stage stage{"a line", u"frmInvoice"_s, &OneDay::ComposeInvoice, {}, {}};
  ProgramFixture program;
  TextSweep::Begin(program, stage);
  QVERIFY(program.StartAtMenu());
  stage.Open();
  const ScreenDriver invoice(stage.Window);
  const AnyAnswer answers(program.Answers);
  const auto* grid = invoice.Control<QTableView>(u"fgInvoice"_s)->model();
  QSet<QString> shown;
  for (const QString& text : TextSweep::Texts()) {
    invoice.SelectRow(u"fgInvoice"_s, 1, column);
    invoice.PressKey(Qt::Key_Backspace);
    QString keys;
    for (const QChar character : text) {
      if (character.unicode() >= u' ' && character.unicode() < 0x7f) keys.append(character);
    }
    invoice.Type(keys);
    invoice.PressKey(Qt::Key_Return);
    QVERIFY2(!program.Running().HasEnded(), qPrintable(text));
    shown.insert(grid->index(0, column).data().toString());
  }
  QVERIFY(shown.size() > 10);
  invoice.Click(u"cmdSave"_s);
  TextSweep::CheckWhatWasSaved(program, stage);
}

QTEST_MAIN(HostileInvoiceTexts)
#include "tst_hostileInvoiceTexts.moc"
