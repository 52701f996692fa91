#include "reliability/TextStages.h"

#include <QtWidgets>

#include "records/SoldItems.h"
#include "support/CompletedImages.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace TextSweep {

namespace {

void OpenRoutine(int option) {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_%1"_s.arg(option));
  menu.Click(u"cmdGoto"_s);
}

void OpenSetup() {
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
}

void OpenGraduatedTax() {
  OpenSetup();
  const ScreenDriver setup(u"frmSetup"_s);
  ShowPageOf(setup.Control<QWidget>(u"ckApplyGraduated"_s));
  if (!setup.Control<QCheckBox>(u"ckApplyGraduated"_s)->isChecked()) setup.Click(u"ckApplyGraduated"_s);
  setup.Click(u"cmdGraduatedTax_0"_s);
}

void OpenCatalogue(int tab) {
  OpenRoutine(3);
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

/// The names of a person stand where a business has its own.
void OpenPerson() {
  OpenCustomers();
  const ScreenDriver screen(u"frmNewCustomer"_s);
  if (!screen.IsVisible(u"personName"_s)) screen.Click(u"cmdAcctType"_s);
}

void OpenBigWindow() {
  OpenCustomers(u"mnuAux"_s);
  ScreenDriver(u"frmNewCustomer"_s).DoubleClick(u"txtAux_0"_s);
}

void OpenDialer() {
  OpenCustomersAnd(u"Image1_1"_s);
}

/// A slot that has its entry is emptied first: only then is it open to another.
void OpenSpeedNumber() {
  OpenDialer();
  const ScreenDriver dialer(u"frmDialer"_s);
  dialer.Click(u"cmdDialer_1"_s);
  if (dialer.IsVisible(u"txtDialer_0"_s)) return;
  dialer.Click(u"cmdSpeedDialer_2"_s);
  dialer.Click(u"cmdDialer_1"_s);
}

void OpenCompleted() {
  OpenReprint();
  ScreenDriver(u"frmReprint"_s).SelectRow(u"fgReceivables"_s, 1);
}

void StockSales(const TemporaryTree& tree) {
  tree.Write(u"/SoldItems.txt"_s, Sold("Hammer", Day::Mar1, "20260001", 3));
}

/// With something to print.
void OpenSales() {
  OpenRoutine(5);
  const ScreenDriver sales(u"frmSalesReport"_s);
  sales.Click(u"cmdSales_1"_s);
  sales.Click(u"cmdSales_3"_s);
}

/// A profile without a postal code is of the international style.
void StockAbroad(const TemporaryTree& tree) {
  tree.Write(u"/MyBusinessData.txt"_s,
             "\"Grove\",\"12 Grove Road\",\"\",\"Ocala\",\"Spain\",\"\",\"555-0100\",\"\",\"\"\r\n");
}

}  // namespace

void OpenCustomersAnd(const QString& button) {
  OpenCustomers();
  ScreenDriver(u"frmNewCustomer"_s).Click(button);
}

void StockCompleted(const TemporaryTree& tree) {
  tree.Write(u"/CompletedInvoices/20260001.txt"_s, Image("20260001", "Acme Tools", "3/9/2026", "$25.00"));
}

QStringList Numbered(const QString& name, int first, int last) {
  QStringList names;
  for (int i = first; i <= last; ++i) names.append(name + u'_' + QString::number(i));
  return names;
}

QList<Stage> StagesOfSetup() {
  const QString window = u"frmSetup"_s;
  return {{"profile", window, &OpenSetup, Numbered(u"txtBusiness"_s, 0, 8), {u"cmdQuit"_s}},
          {"options",
           window,
           &OpenSetup,
           {u"cboCopies"_s, u"cboTaxHeading1"_s, u"cboTaxHeading2"_s, u"cboRate1"_s, u"cboRate2"_s, u"txtModemPort"_s},
           {u"cmdQuit"_s}},
          {"graduated tax",
           window,
           &OpenGraduatedTax,
           Numbered(u"txtGradulated"_s, 0, 1),
           {u"cmdGraduatedTax_1"_s, u"cmdQuit"_s}}};
}

QList<Stage> StagesOfCatalogue() {
  const QString window = u"frmServices"_s;
  return {{"services",
           window,
           [] { OpenCatalogue(0); },
           {u"txtDescription_0"_s, u"txtCharge_0"_s},
           {u"cmdServices_4"_s, u"cmdServices_0"_s}},
          {"catalogue items",
           window,
           [] { OpenCatalogue(1); },
           {u"txtDescription_1"_s, u"cboCategory"_s, u"txtCost"_s, u"txtCharge_1"_s, u"txtOnHand"_s, u"txtCharge_2"_s,
            u"txtDiscountQty"_s, u"txtReorderAmount"_s, u"txtReorderAt"_s},
           {u"cmdServices_13"_s, u"cmdServices_0"_s}},
          {"labor",
           window,
           [] { OpenCatalogue(2); },
           Numbered(u"txtLabor"_s, 0, 2) + Numbered(u"txtLaborRate"_s, 0, 2),
           {u"cmdServices_17"_s, u"cmdServices_0"_s}},
          {"catalogue custom items",
           window,
           [] { OpenCatalogue(3); },
           {u"txtDescription_2"_s, u"txtCharge_3"_s, u"txtCharge_4"_s, u"txtCustomDiscItems"_s},
           {u"cmdServices_22"_s, u"cmdServices_0"_s}}};
}

QList<Stage> StagesOfCustomers() {
  const QString window = u"frmNewCustomer"_s;
  const QStringList saves{u"cmdNav_0"_s, u"cmdCustomer_0"_s};
  const auto open = [] { OpenCustomers(); };
  return {{"customers", window, open,
           Numbered(u"txtCustomer"_s, 0, 3) + Numbered(u"txtCustomer"_s, 5, 7) +
               QStringList{u"txtCustomer_11"_s, u"cboCity"_s, u"cboStates"_s},
           saves},
          {"person", window, &OpenPerson, Numbered(u"txtCustomer"_s, 8, 10) + QStringList{u"cboTitle"_s}, saves},
          {"abroad", window, open, {u"txtAdd3"_s, u"txtAdd4"_s}, saves, {}, &StockAbroad},
          {"customer added",
           window,
           [] { OpenCustomers(u"mnuAdd"_s); },
           {u"txtCustomer_0"_s, u"txtCustomer_1"_s},
           saves,
           open},
          {"name list", window, [] { OpenCustomersAnd(u"Command1_1"_s); }, {u"cboAccounts"_s}, saves},
          {"notes",
           window,
           [] { OpenCustomers(u"mnuAux"_s); },
           Numbered(u"txtHeading"_s, 0, 5) + Numbered(u"txtAux"_s, 0, 5),
           {u"cmdSaveAux_0"_s, u"cmdSaveAux_1"_s, u"cmdSaveAux_3"_s}},
          {"big window", window, &OpenBigWindow, {u"txtBig"_s}, {u"cmdSaveAux_4"_s, u"cmdSaveAux_1"_s}},
          {"search", window, [] { OpenCustomersAnd(u"Command1_0"_s); }, {u"txtSearchfor"_s}, {u"cmdStartSearch"_s}}};
}

QList<Stage> StagesOfRecords() {
  return {{"blanks", u"frmBlanks"_s, [] { OpenRoutine(6); }, {u"txtInvoices"_s}, {u"Command1_0"_s, u"Command1_1"_s}},
          {"speed numbers",
           u"frmDialer"_s,
           &OpenSpeedNumber,
           Numbered(u"txtDialer"_s, 0, 1),
           {u"cmdSpeedDialer_0"_s},
           &OpenDialer},
          {"completed invoice", u"frmReprint"_s, &OpenCompleted, {u"txtMemo"_s}, {u"cmdPrint"_s}, {}, &StockCompleted},
          {"completed invoices", u"frmReprint"_s, &OpenReprint, {u"DTPicker1"_s}, {u"cmdKill"_s}, {}, &StockCompleted},
          {"item sales",
           u"frmSalesReport"_s,
           &OpenSales,
           Numbered(u"DTPicker1"_s, 0, 1),
           {u"cmdSales_3"_s, u"cmdSales_4"_s},
           {},
           &StockSales}};
}

QMap<QString, QString> NeverOpen() {
  return {{u"frmNewCustomer/txtCustomer_4"_s, u"it follows the list of states and is never shown"_s}};
}

}  // namespace TextSweep
