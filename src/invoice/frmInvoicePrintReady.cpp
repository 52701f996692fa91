// The print-ready view: terms and discount, charges, shipping, totals.
#include "desktop/LabelText.h"
#include "desktop/ListCombo.h"
#include "invoice/ChargeBoxes.h"
#include "invoice/ClearInvoice.h"
#include "invoice/frmInvoice.h"
#include "invoice/InvoiceHeaderData.h"
#include "invoice/Totals.h"
#include "invoice/WorkingInvoice.h"
#include "setup/LiveSettings.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

TermsDesk frmInvoice::Terms() {
  return {m_invoice, m_desk.Settings.Invoicer, m_desk.Boxes};
}

void frmInvoice::WirePrintReady() {
  ui->fraShipping->hide();
  ui->Label2_6->hide();
  WireTerms();
  WireCharges();
  WireHelp();
  WirePrepaid();
  Click(
      ui->cmdPrint, [this] { cmdPrint(); }, WhenLeaveRefused::Dropped);
  Click(ui->cmdCancelPrint, [this] {
    CancelPrint(m_invoice);
    mnuCreate();
  });
  Click(
      m_cmdInvoice[9], [this] { FinalizeInvoice(m_invoice, m_desk.Settings.Tax, m_desk.Settings.Invoicer); },
      WhenLeaveRefused::Dropped);
  Click(m_cmdInvoice[6], [this] { ui->fraShipping->setVisible(!Shows(ui->fraShipping)); });
  Click(m_cmdInvoice[11], [this] { ui->fraShipping->hide(); });
  Click(ui->cmdReadyPrint_1, [this] { SaveShipVia(m_invoice, m_desk.Disk); });
}

void frmInvoice::WireTerms() {
  ui->cboTerms->Click = [this] {
    if (m_showing) return;
    Do([this] { SelectTerms(Terms(), ui->cboTerms->ListIndex()); });
  };
  ui->cboTerms->Change = [this] {
    if (!m_showing) TypeTerms(m_invoice, ui->cboTerms->Text());
  };
  Click(ui->cmdReadyPrint_0, [this] { SaveDefaultTerms(m_invoice, m_desk.Disk); });
  for (int option = 0; option < m_optDiscount.Size(); ++option) {
    On(m_optDiscount[option], &QRadioButton::toggled, [this, option](bool selected) {
      if (m_showing || !selected) return;
      Do([this, option] { SelectDiscountOption(Terms(), option); });
    });
  }
  On(ui->ckDiscount, &QCheckBox::toggled, [this](bool ticked) {
    if (m_showing) return;
    Do([this, ticked] { ClickDiscountCheck(Terms(), ticked); });
  });
  QLineEdit* box = ui->txtFlatDiscount;
  Enter(box, [this] { EnterAmountBox(m_invoice.txtFlatDiscount); });
  FilterNumber(box, ui->cmdAddDiscount);
  Leave(box, [this] { LeaveFlatDiscount(m_invoice); });
  Click(
      ui->cmdAddDiscount, [this] { DeductDiscount(m_invoice, m_desk.Settings.Tax, m_desk.Boxes); },
      WhenLeaveRefused::Dropped);
}

void frmInvoice::WireCharges() {
  Enter(ui->txtShip, [this] { EnterAmountBox(m_invoice.txtShip); });
  Enter(ui->txtMisc, [this] { EnterAmountBox(m_invoice.txtMisc); });
  Leave(ui->txtShip, [this] { LeaveShip(m_invoice, m_desk.Boxes); });
  Leave(ui->txtMisc, [this] { LeaveMisc(m_invoice, m_desk.Boxes); });
  EnterRuns(ui->txtShip, m_cmdInvoice[9]);
  EnterRuns(ui->txtMisc, m_cmdInvoice[9]);
  ui->txtShip->installEventFilter(this);
  ui->txtMisc->installEventFilter(this);
  Click(m_cmdInvoice[4], [this] { ResetMisc(m_invoice); });
  Click(m_cmdInvoice[5], [this] { ResetShip(m_invoice); });
}

/// Buttons that put one help panel in place of another.
void frmInvoice::WireHelp() {
  const auto swap = [this](QPushButton* button, int off, int on) {
    Click(button, [this, off, on] {
      m_fraInstructions[off]->hide();
      m_fraInstructions[on]->show();
    });
  };
  Click(m_cmdInvoice[3], [this] {
    m_fraInstructions[5]->show();
    m_fraInstructions[5]->raise();
  });
  swap(m_cmdInvoice[7], 4, 2);
  swap(m_cmdInvoice[8], 2, 4);
  swap(m_cmdInvoice[10], 5, 2);
  swap(ui->cmdTemplate_3, 1, 3);
  swap(ui->cmdTemplate_4, 3, 1);
}

void frmInvoice::cmdPrint() {
  ClearFlatDiscount(m_invoice);
  m_invoice.Controls.Enabled.cmdAddDiscount = true;
  mnuPrint();
}

/// The tax rows bear the headings of Setup; the second is empty where there is no second tax.
void frmInvoice::LoadTaxHeadings() {
  const TaxConfiguration& tax = m_desk.Settings.Tax;
  ShowOnLabel(ui->Label1_2, tax.cboTaxHeading1);
  ShowOnLabel(ui->Label1_0, tax.ckApplyGraduated ? u"Tax Surcharge"_s
                            : tax.ckApply2ndTax  ? tax.cboTaxHeading2
                                                 : QString());
}
