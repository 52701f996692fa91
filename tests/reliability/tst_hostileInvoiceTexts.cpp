// Hostile texts and numbers in every box of the invoice: head, lines, memo, narrative, charges and payment.

#include "reliability/MemoryDisk.h"
#include "reliability/TextSweep.h"

using namespace Qt::StringLiterals;
using TextSweep::Stage;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

void OpenInvoice(const QString& entry = {}) {
  OneDay::GoToCustomers();
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  if (entry.isEmpty()) return;
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Trigger(entry);
  if (entry == u"mnuServices"_s) invoice.PickEntry(u"cboDescription_0"_s, 0);
  if (entry == u"mnuItems"_s) invoice.PickEntry(u"cboDescription_1"_s, 0);
  if (entry == u"mnuCItems"_s) invoice.PickEntry(u"cboDescription_2"_s, 0);
}

void OpenPrintView() {
  OneDay::ComposeInvoice();
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdPrint"_s);
}

void OpenPrintViewAt(const QString& choice) {
  OpenPrintView();
  ScreenDriver(u"frmInvoice"_s).Click(choice);
}

const QList<Stage>& Stages() {
  static const QList<Stage> stages{
      {"invoice's head", [] { OpenInvoice(); }, u"frmInvoice"_s, {u"cmdInvoice_0"_s, u"cmdSave"_s}},
      {"service line", [] { OpenInvoice(u"mnuServices"_s); }, u"frmInvoice"_s, {u"cmdPost_0"_s, u"cmdSave"_s}},
      {"item line", [] { OpenInvoice(u"mnuItems"_s); }, u"frmInvoice"_s, {u"cmdPost_1"_s, u"cmdSave"_s}},
      {"custom line", [] { OpenInvoice(u"mnuCItems"_s); }, u"frmInvoice"_s, {u"cmdPost_3"_s, u"cmdSave"_s}},
      {"manual line", [] { OpenInvoice(u"mnuManual"_s); }, u"frmInvoice"_s, {u"cmdPost_2"_s, u"cmdSave"_s}},
      {"hours", [] { OpenInvoice(u"mnuLabor"_s); }, u"frmInvoice"_s, {u"cmdLabor_0"_s, u"cmdLabor_1"_s, u"cmdSave"_s}},
      {"memo", [] { OpenInvoice(u"mnuMemo"_s); }, u"frmInvoice"_s, {u"cmdInvoiceMemo_2"_s, u"cmdSave"_s}},
      {"narrative",
       [] { OpenInvoice(u"mnuNarrative"_s); },
       u"frmInvoice"_s,
       {u"cmdNarrative_3"_s, u"cmdNarrative_0"_s, u"cmdSave"_s}},
      {"charges", &OpenPrintView, u"frmInvoice"_s, {u"cmdReadyPrint_0"_s, u"cmdInvoice_9"_s, u"cmdInvoiceContinue"_s}},
      {"carrier",
       [] { OpenPrintViewAt(u"cmdInvoice_6"_s); },
       u"frmInvoice"_s,
       {u"cmdReadyPrint_1"_s, u"cmdInvoice_9"_s, u"cmdInvoiceContinue"_s},
       {},
       {u"cboShipping"_s}},
      {"flat discount",
       [] { OpenPrintViewAt(u"optDiscount_1"_s); },
       u"frmInvoice"_s,
       {u"cmdAddDiscount"_s, u"cmdInvoice_9"_s, u"cmdInvoiceContinue"_s},
       &OpenPrintView,
       {u"txtFlatDiscount"_s}},
      {"calculated discount",
       [] { OpenPrintViewAt(u"optDiscount_2"_s); },
       u"frmInvoice"_s,
       {u"cmdInvoice_9"_s, u"cmdInvoiceContinue"_s},
       &OpenPrintView,
       {u"cboDiscount"_s, u"cboDays"_s}},
      {"prepaid",
       [] {
         OpenPrintViewAt(u"ckPrepaid"_s);
         ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_9"_s);
       },
       u"frmInvoice"_s,
       {u"cmdPrepaid_0"_s, u"cmdInvoice_9"_s, u"cmdInvoiceContinue"_s},
       &OpenPrintView,
       {u"txtPrepaid"_s, u"cboPrepaid"_s}}};
  return stages;
}

}  // namespace

class HostileInvoiceTexts : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyBoxTakesEveryTextAndTheProgramGoesOn_data();
  void everyBoxTakesEveryTextAndTheProgramGoesOn();
};

void HostileInvoiceTexts::everyBoxTakesEveryTextAndTheProgramGoesOn_data() {
  QTest::addColumn<int>("stage");
  for (int i = 0; i < Stages().size(); ++i) QTest::newRow(Stages()[i].Name) << i;
}

void HostileInvoiceTexts::everyBoxTakesEveryTextAndTheProgramGoesOn() {
  QFETCH(int, stage);
  TextSweep::SweepBoxes(Stages()[stage]);
}

QTEST_MAIN(HostileInvoiceTexts)
#include "tst_hostileInvoiceTexts.moc"
