/// The auxiliary boxes and the big window over them.
#include "customers/frmNewCustomer.h"
#include "desktop/DoubleClick.h"
#include "ui_frmNewCustomer.h"

using namespace Qt::StringLiterals;

void frmNewCustomer::ConnectAux() {
  for (int i = 0; i < AuxBoxCount; ++i) {
    OnDoubleClick(m_txtHeading[i], [this, i] { m_txtHeading[i]->clear(); });
    OnDoubleClick(m_txtAux[i], [this, i] { ShowBig(i); });
  }
  // "Show Next Account" and "Show Previous Account" do nothing, which is meant.
  OnClick(m_cmdSaveAux[0], [this] { m_aux.SaveAuxHeadings(); });
  OnClick(m_cmdSaveAux[1], [this] { m_aux.SaveAuxData(); });
  OnClick(m_cmdSaveAux[2], [this] { ShowFrame(m_ui->fraAux, false); });
  OnClick(m_cmdSaveAux[3], [this] { m_aux.LoadAuxData(); });
  OnClick(m_cmdSaveAux[4], [this] { HideBig(); });
  OnClick(m_cmdSaveAux[5], [this] { m_ui->txtBig->clear(); });
  OnClick(m_cmdSaveAux[6], [this] { m_ui->txtBig->setPlainText(AuxText(m_auxBoxIndex)); });
  On(m_ui->mnuAux, &QAction::triggered, [this] { ToggleAux(); });
}

void frmNewCustomer::ToggleAux() {
  ShowFrame(m_ui->fraAux, m_ui->fraAux->isHidden());
  if (!m_ui->fraAux->isHidden()) {
    m_ui->lblAccount->setText(m_editor.AccountText());
    SetFocusTo(m_txtAux[0]);
  }
}

void frmNewCustomer::ShowBig(int box) {
  m_ui->txtBig->setPlainText(AuxText(box));
  // What is typed goes on where the text ends.
  m_ui->txtBig->moveCursor(QTextCursor::End);
  ShowFrame(m_ui->fraBig, true, m_ui->txtBig);
  m_ui->lblEditing->setText(u"Editing Data Box # "_s + QString::number(box + 1));
  m_auxBoxIndex = static_cast<qint16>(box);
}

void frmNewCustomer::HideBig() {
  SetAuxText(m_auxBoxIndex, m_ui->txtBig->toPlainText());
  ShowFrame(m_ui->fraBig, false, m_txtAux[m_auxBoxIndex]);
}

QString frmNewCustomer::Heading(int box) const {
  return m_txtHeading[box]->text();
}

void frmNewCustomer::SetHeading(int box, const QString& text) {
  m_txtHeading[box]->setText(text);
}

QString frmNewCustomer::AuxText(int box) const {
  return m_txtAux[box]->toPlainText();
}

void frmNewCustomer::SetAuxText(int box, const QString& text) {
  m_txtAux[box]->setPlainText(text);
}

bool frmNewCustomer::IsAuxRetained() const {
  return m_ui->ckSaveAux->isChecked();
}

QString frmNewCustomer::AuxAccount() const {
  return Text(CustomerBox::txtCustomer0);
}

void frmNewCustomer::LoadAuxiliaryBoxes() {
  m_aux.LoadAuxData();
}
