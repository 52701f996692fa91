// The head of the invoice and its setup view: number, dates, reference, ship-to.
#include <QGridLayout>

#include "desktop/DateBox.h"
#include "invoice/frmInvoice.h"
#include "invoice/InvoiceHeaderData.h"
#include "invoice/InvoiceNumber.h"
#include "invoice/WorkingInvoice.h"
#include "setup/LiveSettings.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/VerifyDataRoutines.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

void frmInvoice::WireHeader() {
  WireNumber();
  WireDates();
  Click(ui->cmdResetDate, [this] { ResetServiceDate(m_invoice); });
  Leave(ui->txtReference, [this] { FillReference(m_invoice, m_desk.Today); });
  const ControlArray<QLineEdit, 7> txtShipto(this, u"txtShipto"_s);
  for (int i = 0; i < txtShipto.Size(); ++i) FilterKeys(txtShipto[i], QuoteFilters(m_desk.Boxes));
  Click(ui->cmdShipToAddress_0, [this] { CopySoldToIntoShipTo(m_invoice); });
  Click(ui->cmdShipToAddress_1, [this] { ClearShipTo(m_invoice); });
}

void frmInvoice::WireDates() {
  ui->DTPicker1->Change = [this] {
    Do([this] { PickServiceDate(m_invoice, ui->DTPicker1->date(), m_desk.Today, m_desk.Boxes); });
  };
  ui->DTShip->Change = [this] { m_invoice.DTShip = ui->DTShip->date(); };
  m_shown.emplace_back([this] {
    if (m_invoice.DTPicker1.isValid()) ui->DTPicker1->ShowDate(m_invoice.DTPicker1);
    if (m_invoice.DTShip.isValid()) ui->DTShip->ShowDate(m_invoice.DTShip);
  });
}

void frmInvoice::WireNumber() {
  QLineEdit* box = ui->txtInvoiceNo;
  FilterKeys(
      box,
      [this, box](int key) { return VerifyDecimalKey(VerifyFileNameKey(key, box->text(), m_desk.Boxes), box->text()); },
      [box](int key) { return PasteIntoInvoiceNo(key, box->text()); });
  Leave(box, [this] { LeaveInvoiceNo(m_invoice, m_desk.Boxes); });
  Click(m_cmdInvoice[2], [this] { ReloadInvoiceNo(m_invoice); });
}

/// The international style has no state, and the last line takes the whole width.
void frmInvoice::ArrangeAddressBoxes() {
  const bool usa = m_desk.Settings.Business.IsUsaStyle();
  for (QWidget* state : {static_cast<QWidget*>(ui->lblCustomer_4), static_cast<QWidget*>(ui->lblCustomer_10),
                         static_cast<QWidget*>(ui->txtShipto_4), static_cast<QWidget*>(ui->lblShipto_4)}) {
    state->setVisible(usa);
  }
  ui->lblShipto_3->setText(usa ? tr("City") : tr("Address 3"));
  ui->lblShipto_5->setText(usa ? tr("Postal Code") : tr("Address 4"));
  auto* rows = static_cast<QGridLayout*>(ui->fraShipto->layout());
  constexpr int lastRow = 4;
  for (QWidget* moved : {static_cast<QWidget*>(ui->lblShipto_5), static_cast<QWidget*>(ui->txtShipto_5)}) {
    rows->removeWidget(moved);
  }
  rows->addWidget(ui->lblShipto_5, lastRow, usa ? 2 : 0);
  rows->addWidget(ui->txtShipto_5, lastRow, usa ? 3 : 1, 1, usa ? 1 : 3);
}
