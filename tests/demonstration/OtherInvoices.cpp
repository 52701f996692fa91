#include "demonstration/OtherInvoices.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

void OtherInvoices::OpenRoutine(int option) {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_%1"_s.arg(option));
  menu.Click(u"cmdGoto"_s);
}

/// A new invoice of the first customer, at its setup view.
ScreenDriver OtherInvoices::OpenInvoice() {
  OpenRoutine(0);
  const ScreenDriver customers(u"frmNewCustomer"_s);
  customers.Click(u"cmdNav_0"_s);
  customers.Click(u"cmdCustomer_1"_s);
  return ScreenDriver(u"frmInvoice"_s);
}

void OtherInvoices::Post(const ScreenDriver& invoice, const QString& item, const QString& units) {
  invoice.Trigger(u"mnuItems"_s);
  invoice.PickEntry(u"cboDescription_1"_s, item);
  invoice.Fill(u"txtUnits"_s, units);
  invoice.Click(u"cmdPost_1"_s);
}

/// Prints by that button, and the invoice is right.
void OtherInvoices::Commit(const ScreenDriver& invoice, const QString& button) {
  m_answers.AcceptDialog();
  m_answers.Yes(u"Was the Invoice Printed Correctly"_s);
  invoice.Click(button);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void OtherInvoices::PayAnInvoiceWithANarrative() {
  const ScreenDriver invoice = OpenInvoice();
  invoice.Click(u"cmdInvoice_0"_s);
  Post(invoice, u"Pruning shears"_s, u"1"_s);
  invoice.Trigger(u"mnuNarrative"_s);
  invoice.Type(u"The blades were sharpened, and the spring was replaced."_s);
  invoice.PressKey(Qt::Key_Return);
  invoice.Type(u"Please have them looked at once a year, \"before the season\", here or elsewhere."_s);
  m_picture(invoice, u"invoice-narrative"_s);
  invoice.Click(u"cmdNarrative_0"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"ckPrepaid"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  invoice.PickEntry(u"cboPrepaid"_s, u"Check # "_s);
  invoice.Type(u"1187"_s);
  m_picture(invoice, u"invoice-prepaid"_s);
  Commit(invoice, u"cmdPrepaid_0"_s);
}

void OtherInvoices::ParkAnInvoiceAndKeepItsLines() {
  const ScreenDriver invoice = OpenInvoice();
  invoice.Fill(u"txtReference"_s, u"Standing order"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  Post(invoice, u"Navel oranges, crate"_s, u"8"_s);
  Post(invoice, u"Valencia oranges, crate"_s, u"4"_s);
  Post(invoice, u"Pruning shears"_s, u"1"_s);
  invoice.Trigger(u"mnuCreate"_s);
  invoice.Click(u"cmdTemplate_3"_s);
  m_picture(invoice, u"invoice-template-help"_s);
  invoice.Click(u"cmdTemplate_4"_s);
  m_answers.Dialog([](QDialog& dialog) {
    static_cast<QInputDialog&>(dialog).setTextValue(u"Standing order"_s);
    dialog.accept();
  });
  invoice.Click(u"cmdTemplate_2"_s);
  m_answers.Yes({}, u"Save Partial Invoice"_s);
  m_answers.Yes({}, u"Print Draft Copy"_s);
  m_answers.Ok();  // Where the draft, which comes without a dialog, was saved.
  invoice.Click(u"cmdSave"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  m_picture(ScreenDriver(u"frmStartup"_s), u"menu-with-a-partial-invoice"_s);
  // What the user does by hand to load the template later.
  const QString saved = m_folder + u"/KarvexInvoicer/Templates/InvoicesStanding order.txt"_s;
  m_files.MakePath(m_folder + u"/Templates/Invoices"_s);
  for (const auto& folder : {u"/KarvexInvoicer/Templates/Invoices"_s, u"/Templates/Invoices"_s}) {
    m_files.Copy(saved, m_folder + folder + u"/Standing order.txt"_s);
  }
}

void OtherInvoices::PackFromTheTemplate() {
  const ScreenDriver invoice = OpenInvoice();
  auto* list = invoice.Control<QListWidget>(u"flstInvoiceTemplates"_s);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  m_picture(invoice, u"invoice-templates"_s);
  invoice.Click(u"cmdTemplate_0"_s);
  m_picture(invoice, u"invoice-from-a-template"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  invoice.Click(u"ckPackingList"_s);
  // Given up: its slip lists the lines, where that of a recorded one is an empty form.
  m_answers.AcceptDialog();
  m_answers.No(u"Was the Invoice Printed Correctly"_s);
  m_answers.No(u"Would you like to Retry Printing this Invoice"_s);
  m_answers.AcceptDialog();
  m_answers.Yes(u"Was the Packing Slip printed Correctly?"_s);
  invoice.Click(u"cmdInvoiceContinue"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void OtherInvoices::FinishTheParkedInvoice() {
  OpenRoutine(1);
  const ScreenDriver partials(u"frmIncomplete"_s);
  m_answers.AcceptDialog();
  partials.Click(u"cmdReport"_s);
  partials.SelectRow(u"fgIncomplete"_s, 1);
  m_picture(partials, u"partial-invoices"_s);
  m_answers.Ok({}, u"Partial Invoice Loaded"_s);
  partials.Click(u"Command1_1"_s);
  const ScreenDriver invoice(u"frmInvoice"_s);
  m_picture(invoice, u"partial-invoice-recalled"_s);
  invoice.Click(u"cmdInvoice_0"_s);
  Post(invoice, u"Navel oranges, crate"_s, u"2"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  Commit(invoice, u"cmdInvoiceContinue"_s);
}

void OtherInvoices::PrintSheetsToFillIn() {
  OpenRoutine(6);
  const ScreenDriver blanks(u"frmBlanks"_s);
  blanks.Fill(u"txtInvoices"_s, u"1"_s);
  m_picture(blanks, u"blank-invoices"_s);
  m_answers.AcceptDialog();
  blanks.Click(u"Command1_0"_s);
  blanks.Click(u"Command1_1"_s);

  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  const ScreenDriver setup(u"frmSetup"_s);
  setup.Control<QTabWidget>(u"tabInfo"_s)->setCurrentIndex(3);
  ScreenDriver::ProcessEvents();
  m_answers.Ok();  // Where the sample, which comes without a dialog, was saved.
  setup.Click(u"cmdLogo_5"_s);
  setup.Click(u"cmdQuit"_s);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}
