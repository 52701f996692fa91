/// The lists of the customer screen: the name list that lies over the name boxes, and the cities.
#include "customers/frmNewCustomer.h"
#include "ui_frmNewCustomer.h"

using namespace Qt::StringLiterals;

void frmNewCustomer::ConnectNameList() {
  m_ui->cboAccounts->SetAutoComplete(true, ListCombo::WhenWhole::Leave);
  m_ui->cboAccounts->Click = [this] { PickAccount(); };
  OnLeave(m_ui->cboAccounts, [this] { SettleNameList(); });
  QSizePolicy policy = m_ui->lblAccounts->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  m_ui->lblAccounts->setSizePolicy(policy);
  SetNameListVisible(false);
}

void frmNewCustomer::SetNameListVisible(bool visible) {
  m_ui->nameList->setVisible(visible);
  m_ui->nameList->raise();
  LabelNameList();
}

/// Where the name boxes stand behind the list, their labels say enough.
void frmNewCustomer::LabelNameList() {
  m_ui->lblAccounts->setVisible(m_ui->businessName->isHidden() && m_ui->personName->isHidden());
}

/// With an empty list only the list's own visibility changes.
void frmNewCustomer::ToggleNameList() {
  ShowFoundFrame(false);
  const bool visible = m_ui->nameList->isHidden();
  SetNameListVisible(visible);
  if (!visible) {
    m_editor.ApplyAccountType(m_ui->lbLType->text());
  } else if (m_ui->cboAccounts->ListCount() > 0) {
    m_ui->businessName->hide();
    m_ui->personName->hide();
    LabelNameList();
    SetFocusTo(m_ui->cboAccounts);
    m_ui->cboAccounts->SetText({});
  }
}

/// The record on the screen isn't saved by a pick.
void frmNewCustomer::PickAccount() {
  const int record = m_ui->cboAccounts->EntryData(m_ui->cboAccounts->ListIndex());
  SetNameListVisible(false);
  m_editor.ShowRecord(record);
}

/// A name typed whole counts as picked when the list is left. A list that a pick has hidden is settled already.
void frmNewCustomer::SettleNameList() {
  if (m_ui->nameList->isHidden()) {
    return;
  }
  const int found = m_editor.FindAccount(m_ui->cboAccounts->Text());
  if (found >= 0) {
    m_ui->cboAccounts->SelectEntry(found);
  }
}

void frmNewCustomer::SetAccounts(const QStringList& accounts, const QList<int>& records) {
  m_ui->cboAccounts->SetEntries(accounts, records);
}

void frmNewCustomer::SetCities(const QStringList& cities) {
  const QString shown = m_ui->cboCity->Text();
  m_ui->cboCity->SetEntries(cities, {});
  m_ui->cboCity->SetText(shown);
}

void frmNewCustomer::AddCity(const QString& city) {
  m_ui->cboCity->AddEntry(city);
}
