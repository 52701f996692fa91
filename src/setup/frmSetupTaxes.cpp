#include <QKeyEvent>

#include "desktop/ListCombo.h"
#include "runtime/Currency.h"
#include "runtime/Dialogs.h"
#include "setup/frmSetup.h"
#include "ui_frmSetup.h"

using namespace Qt::StringLiterals;

namespace {

/// Whether the key only leads elsewhere, or waits for another.
bool OnlyLeads(const QKeyEvent& press) {
  switch (press.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
      return true;
    default:
      return press.modifiers().testFlag(Qt::AltModifier) ||
             (press.key() >= Qt::Key_Shift && press.key() <= Qt::Key_ScrollLock);
  }
}

}  // namespace

void frmSetup::ConnectTaxes() {
  TaxConfiguration& tax = m_context.Live.Tax;
  for (const QString& entry : TaxHeading1Entries()) m_ui->cboTaxHeading1->AddEntry(entry);
  for (const QString& entry : TaxHeading2Entries()) m_ui->cboTaxHeading2->AddEntry(entry);
  for (ListCombo* rates : {m_ui->cboRate1, m_ui->cboRate2}) {
    for (const QString& entry : TaxRateEntries()) rates->AddEntry(entry);
  }
  for (ListCombo* box : {m_ui->cboTaxHeading1, m_ui->cboTaxHeading2, m_ui->cboRate1, m_ui->cboRate2}) RefuseQuotes(box);
  WriteBack(m_ui->cboTaxHeading1, tax.cboTaxHeading1);
  WriteBack(m_ui->cboTaxHeading2, tax.cboTaxHeading2);
  WriteBack(m_ui->cboRate1, tax.cboRate1);
  WriteBack(m_ui->cboRate2, tax.cboRate2);
  WriteBack(m_ui->ckApply1stTax, tax.ckApply1stTax);
  WriteBack(m_ui->ckApply2ndTax, tax.ckApply2ndTax);
  WriteBack(m_ui->ckSalesItems, tax.ckSalesItems);
  WriteBack(m_ui->ckServices, tax.ckServices);
  WriteBack(m_ui->ckLabor, tax.ckLabor);
  WriteBack(m_ui->ckCustom, tax.ckCustom);
  WriteBack(m_ui->ckApplyGraduated, tax.ckApplyGraduated);
  m_ui->fraGraduated->hide();
  QPushButton* const clicks[] = {m_ui->cmdGraduatedTax_0, m_ui->cmdGraduatedTax_1, m_ui->cmdGraduatedTax_2};
  for (int i = 0; i < 3; ++i) OnClick(clicks[i], [this, i] { GraduatedTaxClick(i); });
  for (int i = 0; i < 2; ++i) {
    QLineEdit* box = m_graduated[i];
    RefuseQuotes(box);
    box->installEventFilter(this);
    On(box, &QLineEdit::textChanged,
       [&amount = tax.txtGradulated[static_cast<std::size_t>(i)]](const QString& text) { amount = text; });
  }
}

void frmSetup::ShowTaxes() {
  const TaxConfiguration tax = m_context.Live.Tax;
  m_ui->cboTaxHeading1->ShowText(tax.cboTaxHeading1);
  m_ui->cboTaxHeading2->ShowText(tax.cboTaxHeading2);
  m_ui->cboRate1->ShowText(tax.cboRate1);
  m_ui->cboRate2->ShowText(tax.cboRate2);
  m_ui->ckApply1stTax->setChecked(tax.ckApply1stTax);
  m_ui->ckApply2ndTax->setChecked(tax.ckApply2ndTax);
  m_ui->ckSalesItems->setChecked(tax.ckSalesItems);
  m_ui->ckServices->setChecked(tax.ckServices);
  m_ui->ckLabor->setChecked(tax.ckLabor);
  m_ui->ckCustom->setChecked(tax.ckCustom);
  m_ui->ckApplyGraduated->setChecked(tax.ckApplyGraduated);
  ShowGraduatedAmounts();
}

void frmSetup::ShowGraduatedAmounts() {
  const std::array<QString, 2> amounts = m_context.Live.Tax.txtGradulated;
  for (int i = 0; i < 2; ++i) m_graduated[i]->setText(amounts[static_cast<std::size_t>(i)]);
}

void frmSetup::GraduatedTaxClick(int index) {
  TaxConfiguration& tax = m_context.Live.Tax;
  if (index == 1) {
    const int refused = CloseGraduatedTax(tax);
    ShowTaxes();
    if (refused < 0) {
      // The frame that held the focus goes: without this it would go to the way out.
      SetFocusTo(m_ui->cmdGraduatedTax_0);
      m_ui->fraGraduated->hide();
      return;
    }
    m_context.Boxes.Beep();
    SetFocusTo(m_graduated[refused]);
    return;
  }
  if (index == 0) m_ui->fraGraduated->show();
  if (index == 2) {
    tax.txtGradulated = {ZeroCurrencyText(), ZeroCurrencyText()};
    ShowGraduatedAmounts();
  }
  SetFocusTo(m_graduated[0]);
}

/// A key pressed in an amount of zero empties the box, so that the user types over the zero. The keys that only lead
/// elsewhere leave it.
bool frmSetup::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && (watched == m_graduated[0] || watched == m_graduated[1])) {
    const auto* press = static_cast<QKeyEvent*>(event);
    auto* box = static_cast<QLineEdit*>(watched);
    if (!OnlyLeads(*press) && box->text() == ZeroCurrencyText()) Run([box] { box->clear(); });
  }
  return Screen::eventFilter(watched, event);
}
