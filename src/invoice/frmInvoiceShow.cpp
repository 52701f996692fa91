// How the invoice in the making and the controls of its screen are kept the same: each control writes its change at
// once, and after each event the screen shows what the rules changed.
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <stdexcept>

#include "desktop/LabelText.h"
#include "desktop/ListCombo.h"
#include "invoice/frmInvoice.h"
#include "invoice/InvoiceHeaderData.h"
#include "invoice/InvoiceTerms.h"
#include "invoice/WorkingInvoice.h"
#include "setup/LiveSettings.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

void frmInvoice::Bind(QLineEdit* box, QString& value) {
  connect(box, &QLineEdit::textChanged, this, [this, &value](const QString& text) {
    if (!m_showing) value = text;
  });
  m_shown.emplace_back([box, &value] {
    if (box->text() != value) box->setText(value);
  });
}

void frmInvoice::Bind(QPlainTextEdit* box, QString& value) {
  connect(box, &QPlainTextEdit::textChanged, this, [this, box, &value] {
    if (!m_showing) value = box->toPlainText();
  });
  m_shown.emplace_back([box, &value] {
    if (box->toPlainText() != value) box->setPlainText(value);
  });
}

void frmInvoice::Bind(QLabel* label, const QString& value) {
  m_shown.emplace_back([label, &value] { ShowOnLabel(label, value); });
}

void frmInvoice::Bind(QCheckBox* box, bool& value) {
  connect(box, &QCheckBox::toggled, this, [this, &value](bool ticked) {
    if (!m_showing) value = ticked;
  });
  m_shown.emplace_back([box, &value] { box->setChecked(value); });
}

void frmInvoice::Bind(ListCombo* combo, QString& value) {
  const auto take = [this, combo, &value] {
    if (!m_showing) value = combo->Text();
  };
  combo->Click = take;
  combo->Change = take;
  m_shown.emplace_back([combo, &value] {
    if (combo->Text() != value) combo->ShowText(value);
  });
}

void frmInvoice::Bind(QWidget* control, const bool& value, void (QWidget::*set)(bool)) {
  m_shown.emplace_back([control, &value, set] { (control->*set)(value); });
}

void frmInvoice::ShowCombo(ListCombo* combo, const ComboValue& value) {
  if (combo->ListIndex() == value.ListIndex && combo->Text() == value.Text) return;
  combo->SelectEntry(value.ListIndex);
  if (value.ListIndex < 0) combo->SetText(value.Text);
}

void frmInvoice::BindHeader() {
  Bind(ui->txtInvoiceNo, m_invoice.txtInvoiceNo);
  m_shown.emplace_back([this] { ui->txtInvoiceNo->setReadOnly(m_invoice.Controls.txtInvoiceNoLocked); });
  Bind(ui->txtReference, m_invoice.txtReference);
  Bind(ui->lblAcct, m_invoice.lblAcct);
  Bind(ui->lblAcctNo, m_invoice.lblAcctNo);
  const ControlArray<QLabel, 12> lblCustomer(this, u"lblCustomer"_s);
  for (int i = 0; i < 12; ++i) Bind(lblCustomer[i], m_invoice.lblCustomer[static_cast<size_t>(i)]);
  const ControlArray<QLineEdit, 7> txtShipto(this, u"txtShipto"_s);
  for (int i = 0; i < 7; ++i) Bind(txtShipto[i], m_invoice.txtShipto[static_cast<size_t>(i)]);
  Bind(ui->ckShipto, m_invoice.ckShipto);
  Bind(ui->txtMemo, m_invoice.txtMemo);
  Bind(ui->ckAddMemo, m_invoice.ckAddMemo);
  Bind(ui->txtNarrative, m_invoice.txtNarrative);
  const auto& enabled = m_invoice.Controls.Enabled;
  Bind(ui->cmdInvoice_2, enabled.cmdInvoice_2, &QWidget::setEnabled);
  Bind(ui->cmdInvoiceMemo_1, enabled.cmdInvoiceMemo_1, &QWidget::setEnabled);
  Bind(ui->cmdInvoiceMemo_2, enabled.cmdInvoiceMemo_2, &QWidget::setEnabled);
  const auto& visible = m_invoice.Controls.Visible;
  Bind(ui->lblInvoiceNo, visible.lblInvoiceNo, &QWidget::setVisible);
  Bind(ui->lblMemo, visible.lblMemo, &QWidget::setVisible);
  Bind(ui->ckAddMemo, visible.ckAddMemo, &QWidget::setVisible);
}

void frmInvoice::BindLineEntry() {
  LineEntryBoxes& entry = m_invoice.Entry;
  for (int element = 0; element < 3; ++element) {
    const auto i = static_cast<size_t>(element);
    m_shown.emplace_back([this, element, i] {
      ShowCombo(m_cboDescription[element], m_invoice.Entry.cboDescription[i]);
      ShowCombo(m_cboPrice[element], m_invoice.Entry.cboPrice[i]);
    });
    Bind(findChild<QLineEdit*>(u"txtManual_%1"_s.arg(element)), entry.txtManual[i]);
    Bind(findChild<QLineEdit*>(u"txtHours_%1"_s.arg(element)), entry.txtHours[i]);
    Bind(findChild<QLabel*>(u"lblLaborHeading_%1"_s.arg(element)), entry.lblLaborHeading[i]);
    for (const auto& name : {u"lblLaborHeading_%1"_s, u"txtHours_%1"_s, u"lblHours_%1"_s, u"lblLaborCharge_%1"_s}) {
      Bind(findChild<QWidget*>(name.arg(element)), entry.LaborShows[i], &QWidget::setVisible);
    }
  }
  const ControlArray<QLabel, 4> lblLaborCharge(this, u"lblLaborCharge"_s);
  for (int i = 0; i < 4; ++i) Bind(lblLaborCharge[i], entry.lblLaborCharge[static_cast<size_t>(i)]);
  Bind(ui->txtUnits, entry.txtUnits);
  Bind(ui->txtCUnits, entry.txtCUnits);
  Bind(ui->ckManualTax, m_invoice.ckManualTax);
  Bind(ui->ckApplyVolumeDiscount, m_invoice.ckApplyVolumeDiscount);
  Bind(ui->Label4_42, m_invoice.Controls.Visible.Label4_42, &QWidget::setVisible);
  const auto& enabled = m_invoice.Controls.Enabled;
  const ControlArray<QPushButton, 4> cmdPost(this, u"cmdPost"_s);
  for (int i = 0; i < 4; ++i) Bind(cmdPost[i], enabled.cmdPost[static_cast<size_t>(i)], &QWidget::setEnabled);
  Bind(ui->cmdLabor_1, enabled.cmdLabor_1, &QWidget::setEnabled);
  Bind(ui->UpDown1_up, enabled.UpDown1, &QWidget::setEnabled);
  Bind(ui->UpDown1_down, enabled.UpDown1, &QWidget::setEnabled);
  m_shown.emplace_back([this] { ui->mnuLabor->setEnabled(m_invoice.Controls.Enabled.mnuLabor); });
}

void frmInvoice::BindPrintReady() {
  ui->cboTerms->SetEntries(TermsList(), {});
  ui->cboShipping->SetEntries(CarrierList(), {});
  ui->cboPrepaid->SetEntries(PrepaidList(), {});
  ui->cboDiscount->SetEntries(DiscountList(), {});
  ui->cboDays->SetEntries(DaysList(), {});
  Bind(ui->cboShipping, m_invoice.cboShipping);
  Bind(ui->cboPrepaid, m_invoice.cboPrepaid);
  Bind(ui->cboDiscount, m_desk.Settings.Invoicer.cboDiscount);
  Bind(ui->cboDays, m_desk.Settings.Invoicer.cboDays);
  m_shown.emplace_back([this] { ShowCombo(ui->cboTerms, m_invoice.cboTerms); });
  for (const auto& [box, value] : {std::pair(ui->txtTotal, &m_invoice.txtTotal),
                                   {ui->txtTax, &m_invoice.txtTax},
                                   {ui->txtTax2, &m_invoice.txtTax2},
                                   {ui->txtGrandTotal, &m_invoice.txtGrandTotal},
                                   {ui->txtShip, &m_invoice.txtShip},
                                   {ui->txtMisc, &m_invoice.txtMisc},
                                   {ui->txtDiscount, &m_invoice.txtDiscount},
                                   {ui->txtFlatDiscount, &m_invoice.txtFlatDiscount},
                                   {ui->txtPrepaid, &m_invoice.txtPrepaid}}) {
    Bind(box, *value);
  }
  for (const auto& [box, value] : {std::pair(ui->ckExempt, &m_invoice.ckExempt),
                                   {ui->ck2ndTax, &m_invoice.ck2ndTax},
                                   {ui->ckPackingList, &m_invoice.ckPackingList},
                                   {ui->ckPrepaid, &m_invoice.ckPrepaid}}) {
    Bind(box, *value);
  }
  m_shown.emplace_back([this] { ui->ckDiscount->setChecked(m_invoice.ckDiscount); });
  m_shown.emplace_back([this] { m_optDiscount[m_invoice.optDiscount]->setChecked(true); });
  const auto& enabled = m_invoice.Controls.Enabled;
  Bind(ui->cmdPrint, enabled.cmdPrint, &QWidget::setEnabled);
  Bind(ui->cmdInvoiceContinue, enabled.cmdInvoiceContinue, &QWidget::setEnabled);
  Bind(ui->cmdAddDiscount, enabled.cmdAddDiscount, &QWidget::setEnabled);
  const auto& visible = m_invoice.Controls.Visible;
  Bind(ui->ck2ndTax, visible.ck2ndTax, &QWidget::setVisible);
  Bind(ui->fraFlat, visible.fraFlat, &QWidget::setVisible);
  Bind(ui->fraDiscount, visible.fraDiscount, &QWidget::setVisible);
}

void frmInvoice::ShowInvoice() {
  // Hiding a box that holds the focus runs its leaving, which may change values that were shown before.
  m_showAgain = m_showing;
  if (m_showing) return;
  do {
    m_showAgain = false;
    const QScopedValueRollback showing(m_showing, true);
    for (const auto& show : m_shown) show();
    ShowViewButtons();
  } while (m_showAgain);
  const QString focus = m_invoice.Controls.TakeFocus();
  if (focus.isEmpty()) return;
  auto* control = findChild<QWidget*>(focus);
  if (control == nullptr) throw std::logic_error("the invoice has no control " + focus.toStdString());
  SetFocusTo(control);
}
