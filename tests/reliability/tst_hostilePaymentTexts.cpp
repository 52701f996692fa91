// Hostile texts and numbers in every box of the invoice that is being finished: terms, carrier, charges, discounts and
// payment.

#include "reliability/MemoryDisk.h"
#include "reliability/TextStages.h"

using namespace Qt::StringLiterals;
using TextSweep::Stage;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

const QList<Stage>& Stages() {
  static const QList<Stage> stages = TextSweep::StagesOfPrinting();
  return stages;
}

}  // namespace

class HostilePaymentTexts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyBoxTakesEveryTextAndTheProgramGoesOn_data();
  void everyBoxTakesEveryTextAndTheProgramGoesOn();
};

void HostilePaymentTexts::everyBoxTakesEveryTextAndTheProgramGoesOn_data() {
  QTest::addColumn<int>("stage");
  for (int i = 0; i < Stages().size(); ++i) QTest::newRow(Stages()[i].Name) << i;
}

void HostilePaymentTexts::everyBoxTakesEveryTextAndTheProgramGoesOn() {
  QFETCH(int, stage);
  TextSweep::SweepBoxes(Stages()[stage]);
}

QTEST_MAIN(HostilePaymentTexts)
#include "tst_hostilePaymentTexts.moc"
