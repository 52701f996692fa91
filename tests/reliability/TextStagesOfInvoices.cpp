// The stages of the invoice's screen.
#include <QtWidgets>

#include "reliability/TextStages.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace TextSweep {

namespace {

void OpenInvoice(const QString& entry = {}) {
  OpenCustomersAnd(u"cmdCustomer_1"_s);
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

void OpenPrepaid() {
  OpenPrintViewAt(u"ckPrepaid"_s);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_9"_s);
}

void StockThreeLabors(const TemporaryTree& tree) {
  tree.Write(u"/Labor.txt"_s, "\"General Labor\",\"$45.00\"\r\n\"Night\",\"$90.00\"\r\n\"Crane\",\"$120.50\"\r\n");
}

}  // namespace

QList<Stage> StagesOfLines() {
  const QString window = u"frmInvoice"_s;
  return {{"invoice's head",
           window,
           [] { OpenInvoice(); },
           Numbered(u"txtShipto"_s, 0, 6) + QStringList{u"txtInvoiceNo"_s, u"txtReference"_s, u"DTPicker1"_s},
           {u"cmdInvoice_0"_s, u"cmdSave"_s}},
          {"service line",
           window,
           [] { OpenInvoice(u"mnuServices"_s); },
           {u"cboDescription_0"_s, u"cboPrice_0"_s},
           {u"cmdPost_0"_s, u"cmdSave"_s}},
          {"item line",
           window,
           [] { OpenInvoice(u"mnuItems"_s); },
           {u"cboDescription_1"_s, u"cboPrice_1"_s, u"txtUnits"_s},
           {u"cmdPost_1"_s, u"cmdSave"_s}},
          {"custom line",
           window,
           [] { OpenInvoice(u"mnuCItems"_s); },
           {u"cboDescription_2"_s, u"cboPrice_2"_s, u"txtCUnits"_s},
           {u"cmdPost_3"_s, u"cmdSave"_s}},
          {"manual line",
           window,
           [] { OpenInvoice(u"mnuManual"_s); },
           Numbered(u"txtManual"_s, 0, 2),
           {u"cmdPost_2"_s, u"cmdSave"_s}},
          {"hours",
           window,
           [] { OpenInvoice(u"mnuLabor"_s); },
           Numbered(u"txtHours"_s, 0, 2),
           {u"cmdLabor_0"_s, u"cmdLabor_1"_s, u"cmdSave"_s},
           {},
           &StockThreeLabors},
          {"memo", window, [] { OpenInvoice(u"mnuMemo"_s); }, {u"txtMemo"_s}, {u"cmdInvoiceMemo_2"_s, u"cmdSave"_s}},
          {"narrative",
           window,
           [] { OpenInvoice(u"mnuNarrative"_s); },
           {u"txtNarrative"_s},
           {u"cmdNarrative_3"_s, u"cmdNarrative_0"_s, u"cmdSave"_s}}};
}

QList<Stage> StagesOfPrinting() {
  const QString window = u"frmInvoice"_s;
  const QStringList commit{u"cmdInvoice_9"_s, u"cmdInvoiceContinue"_s};
  return {{"charges",
           window,
           &OpenPrintView,
           {u"cboTerms"_s, u"txtShip"_s, u"txtMisc"_s},
           QStringList{u"cmdReadyPrint_0"_s} + commit},
          {"carrier",
           window,
           [] { OpenPrintViewAt(u"cmdInvoice_6"_s); },
           {u"cboShipping"_s, u"DTShip"_s},
           QStringList{u"cmdReadyPrint_1"_s} + commit},
          {"flat discount",
           window,
           [] { OpenPrintViewAt(u"optDiscount_1"_s); },
           {u"txtFlatDiscount"_s},
           QStringList{u"cmdAddDiscount"_s} + commit,
           &OpenPrintView},
          {"calculated discount",
           window,
           [] { OpenPrintViewAt(u"optDiscount_2"_s); },
           {u"cboDiscount"_s, u"cboDays"_s},
           commit,
           &OpenPrintView},
          {"prepaid", window, &OpenPrepaid, {u"txtPrepaid"_s, u"cboPrepaid"_s}, {u"cmdPrepaid_0"_s}, &OpenPrintView}};
}

}  // namespace TextSweep
