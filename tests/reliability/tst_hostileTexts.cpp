// Hostile texts and numbers in every box of Setup, the catalogue, the customers and the blank invoices.

#include "reliability/MemoryDisk.h"
#include "reliability/TextSweep.h"

using namespace Qt::StringLiterals;
using TextSweep::Stage;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

void OpenCatalogue(int tab) {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_3"_s);
  menu.Click(u"cmdGoto"_s);
  const ScreenDriver screen(u"frmServices"_s);
  const auto* tabs = screen.Control<QTabWidget>(u"tabServices"_s);
  for (int i = 0; i < 4 && tabs->currentIndex() != tab; ++i) screen.Click(u"Image1"_s);
  if (tab == 0) {
    screen.Click(u"cmdServices_1"_s);
    screen.Fill(u"txtDescription_0"_s, u"Cleaning"_s);
    screen.Fill(u"txtCharge_0"_s, u"25"_s);
  } else if (tab == 1) {
    screen.Click(u"cmdServices_8"_s);
    screen.Fill(u"txtDescription_1"_s, u"Saw"_s);
    screen.Fill(u"txtCharge_1"_s, u"5"_s);
    screen.Fill(u"txtCharge_2"_s, u"4"_s);
    screen.Fill(u"txtOnHand"_s, u"1"_s);
  } else if (tab == 3) {
    screen.Click(u"cmdServices_18"_s);
    screen.Fill(u"txtDescription_2"_s, u"Banner"_s);
    screen.Fill(u"txtCharge_3"_s, u"5"_s);
    screen.Fill(u"txtCharge_4"_s, u"4"_s);
  }
}

void OpenCustomers(const QString& entry = {}) {
  OneDay::GoToCustomers();
  const ScreenDriver screen(u"frmNewCustomer"_s);
  if (!entry.isEmpty()) screen.Trigger(entry);
  if (entry != u"mnuAdd"_s) return;
  screen.Fill(u"txtCustomer_0"_s, u"1002"_s);
  screen.Fill(u"txtCustomer_1"_s, u"Bell Farm"_s);
}

void OpenBlanks() {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_6"_s);
  menu.Click(u"cmdGoto"_s);
}

const QList<Stage>& Stages() {
  static const QList<Stage> stages{
      {"Setup", [] { ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s); }, u"frmSetup"_s, {u"cmdQuit"_s}},
      {"services", [] { OpenCatalogue(0); }, u"frmServices"_s, {u"cmdServices_4"_s, u"cmdServices_0"_s}},
      {"catalogue items", [] { OpenCatalogue(1); }, u"frmServices"_s, {u"cmdServices_13"_s, u"cmdServices_0"_s}},
      {"labor", [] { OpenCatalogue(2); }, u"frmServices"_s, {u"cmdServices_0"_s}},
      {"catalogue custom items", [] { OpenCatalogue(3); }, u"frmServices"_s, {u"cmdServices_22"_s, u"cmdServices_0"_s}},
      {"customers", [] { OpenCustomers(); }, u"frmNewCustomer"_s, {u"cmdNav_0"_s, u"cmdCustomer_0"_s}},
      {"customer added",
       [] { OpenCustomers(u"mnuAdd"_s); },
       u"frmNewCustomer"_s,
       {u"cmdNav_0"_s, u"cmdCustomer_0"_s},
       [] { OpenCustomers(); },
       {u"txtCustomer_0"_s, u"txtCustomer_1"_s}},
      {"notes",
       [] { OpenCustomers(u"mnuAux"_s); },
       u"frmNewCustomer"_s,
       {u"cmdSaveAux_0"_s, u"cmdSaveAux_1"_s, u"cmdSaveAux_3"_s},
       {},
       {u"txtHeading_0"_s, u"txtAux_0"_s, u"txtHeading_5"_s, u"txtAux_5"_s}},
      {"search",
       [] {
         OpenCustomers();
         ScreenDriver(u"frmNewCustomer"_s).Click(u"Command1_0"_s);
       },
       u"frmNewCustomer"_s,
       {u"cmdStartSearch"_s},
       {},
       {u"txtSearchfor"_s}},
      {"blanks", &OpenBlanks, u"frmBlanks"_s, {u"Command1_0"_s, u"Command1_1"_s}}};
  return stages;
}

}  // namespace

class HostileTexts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyBoxTakesEveryTextAndTheProgramGoesOn_data();
  void everyBoxTakesEveryTextAndTheProgramGoesOn();
};

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
