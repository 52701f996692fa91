// Hostile texts and numbers in every box of Setup, the catalogue, the customers and the records; and that no box of any
// screen is left out.

#include <QtWidgets>

#include "reliability/AnyAnswer.h"
#include "reliability/MemoryDisk.h"
#include "reliability/TextStages.h"

using namespace Qt::StringLiterals;
using TextSweep::Stage;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

const QList<Stage>& Stages() {
  using namespace TextSweep;
  static const QList<Stage> stages = StagesOfSetup() + StagesOfCatalogue() + StagesOfCustomers() + StagesOfRecords();
  return stages;
}

/// The boxes that some stage tries, as "window/box".
QStringList Tried() {
  QStringList boxes = TextSweep::NeverOpen().keys();
  for (const Stage& stage : Stages() + TextSweep::StagesOfLines() + TextSweep::StagesOfPrinting()) {
    for (const QString& box : stage.Boxes) boxes.append(stage.Window + u'/' + box);
  }
  boxes.sort();
  boxes.removeDuplicates();
  return boxes;
}

}  // namespace

class HostileTexts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyBoxOfEveryScreenStandsInAStage();
  void everyBoxTakesEveryTextAndTheProgramGoesOn_data();
  void everyBoxTakesEveryTextAndTheProgramGoesOn();
};

void HostileTexts::everyBoxOfEveryScreenStandsInAStage() {
  ProgramFixture program;
  TextSweep::Begin(program, {"", {}, {}, {}, {}, {}, &TextSweep::StockCompleted});
  QVERIFY(program.StartAtMenu());
  const AnyAnswer answers(program.Answers);
  QStringList found;
  for (int i = 0; i <= static_cast<int>(ScreenName::frmDialer); ++i) {
    const auto name = static_cast<ScreenName>(i);
    program.Running().Show(name);
    ScreenDriver::ProcessEvents();
    const Screen* screen = program.Built(name);
    // The list of partial invoices goes where there is none; it has no box.
    if (name == ScreenName::frmIncomplete || name == ScreenName::frmCustomerSelection) continue;
    QVERIFY2(screen != nullptr, qPrintable(QString::number(i)));
    for (const QString& box : TextSweep::BoxesOf(screen)) found.append(screen->objectName() + u'/' + box);
  }
  found.sort();
  QCOMPARE(found.join(u'\n'), Tried().join(u'\n'));
}

void HostileTexts::everyBoxTakesEveryTextAndTheProgramGoesOn_data() {
  QTest::addColumn<int>("stage");
  for (int i = 0; i < Stages().size(); ++i) QTest::newRow(Stages()[i].Name) << i;
}

void HostileTexts::everyBoxTakesEveryTextAndTheProgramGoesOn() {
  QFETCH(int, stage);
  TextSweep::SweepBoxes(Stages()[stage]);
}

QTEST_MAIN(HostileTexts)
#include "tst_hostileTexts.moc"
