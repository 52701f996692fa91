// The buttons of the catalogue screen. A click that uses a box, a Save, is dropped where the box's own check takes the
// focus back; all others run.

#include "catalogue/frmServices.h"
#include "desktop/GridView.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "shell/Screens.h"
#include "ui_frmServices.h"

using namespace Qt::StringLiterals;

void frmServices::ConnectServiceCommands() {
  const auto& cmdServices = *m_cmdServices;
  OnClick(
      cmdServices[0], [this] { Menu(); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[1], [this] { AddNew(0); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[2],
      [this] {
        Delete(CatalogueList::Services, u"This will DELETE the Selected Service"_s, u"Delete Service Item"_s, 2);
      },
      WhenLeaveRefused::Always);
  OnClick(
      cmdServices[3], [this] { ModifyService(); }, WhenLeaveRefused::Always);
  OnClick(cmdServices[4], [this] { SaveService(); });
  OnClick(
      cmdServices[5],
      [this] {
        (*m_txtDescription)[0]->clear();
        (*m_txtCharge)[0]->clear();
        SetFocusTo((*m_txtDescription)[0]);
      },
      WhenLeaveRefused::Always);
  OnClick(
      cmdServices[7],
      [this] {
        m_ui->fgServices->setEnabled(true);
        // The items' boxes are shut here and the services' stay open; this is meant.
        DisableEditing(1);
        ClearEntry(0);
      },
      WhenLeaveRefused::Always);
}

void frmServices::ConnectItemCommands() {
  const auto& cmdServices = *m_cmdServices;
  OnClick(
      cmdServices[8], [this] { AddNew(1); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[9], [this] { ModifyItem(); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[10],
      [this] {
        Delete(CatalogueList::Items, u"This will DELETE the Selected Sales Item"_s, u"Delete Sales Item"_s, 10);
      },
      WhenLeaveRefused::Always);
  OnClick(
      cmdServices[11], [this] { ClearEntry(1); }, WhenLeaveRefused::Always);
  OnClick(cmdServices[13], [this] { SaveItem(); });
  OnClick(
      cmdServices[14],
      [this] {
        m_ui->fgItems->setEnabled(true);
        DisableEditing(1);
        ClearEntry(1);
      },
      WhenLeaveRefused::Always);
  OnClick(
      cmdServices[24], [this] { ClearPrices(); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[25],
      [this] {
        m_ui->txtDiscountQty->setText(u"0"_s);
        (*m_txtCharge)[2]->setText(ZeroCurrencyText());
      },
      WhenLeaveRefused::Always);
}

void frmServices::ConnectLaborCommands() {
  const auto& cmdServices = *m_cmdServices;
  OnClick(
      cmdServices[12], [this] { CreateGeneralLabor(); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[15], [this] { ClearAllLabor(); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[16], [this] { m_catalogue.LoadLabor(); }, WhenLeaveRefused::Always);
  OnClick(cmdServices[17], [this] {
    m_catalogue.SaveLabor();
    m_ui->tabServices->setCurrentIndex(0);
  });
}

void frmServices::ConnectCustomCommands() {
  const auto& cmdServices = *m_cmdServices;
  OnClick(
      cmdServices[18], [this] { AddNew(2); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[19], [this] { ModifyCustomItem(); }, WhenLeaveRefused::Always);
  OnClick(
      cmdServices[20],
      [this] {
        // The items' Delete is shut here, not this one; this is meant.
        Delete(CatalogueList::Custom, u"This will DELETE the Selected Custom Item"_s, u"Delete Sales Item"_s, 10);
      },
      WhenLeaveRefused::Always);
  OnClick(
      cmdServices[21], [this] { ClearEntry(3); }, WhenLeaveRefused::Always);
  OnClick(cmdServices[22], [this] { SaveCustomItem(); });
  OnClick(
      cmdServices[23],
      [this] {
        m_ui->fgCustom->setEnabled(true);
        // The services' boxes are shut here and the custom ones stay open; this is meant.
        DisableEditing(0);
        ClearEntry(3);
      },
      WhenLeaveRefused::Always);
}

/// The labor rates aren't saved on this way, which is meant.
void frmServices::Menu() {
  m_catalogue.SaveCatalogue();
  m_screens.Hide(ScreenName::frmServices);
  m_screens.Show(ScreenName::frmStartup);
}

void frmServices::AddNew(int list) {
  m_modifyMode = false;
  EnableEditing(list);
  ClearEntry(list == 2 ? 3 : list);
  SetFocusTo((*m_txtDescription)[list]);
}

void frmServices::ModifyService() {
  const TextMatrix& grid = m_catalogue.fgServices;
  const int row = grid.Row();
  if (row < 1) return;
  EnableEditing(0);
  m_modifyMode = true;
  (*m_txtDescription)[0]->setText(grid.Text(row, ServiceColumn::Description));
  (*m_txtCharge)[0]->setText(grid.Text(row, ServiceColumn::Charge));
  m_ui->lstTime->setCurrentRow(int(m_catalogue.lstTime.indexOf(grid.Text(row, ServiceColumn::Time))));
  m_ui->fgServices->setEnabled(false);
}

void frmServices::ModifyItem() {
  const TextMatrix& grid = m_catalogue.fgItems;
  const int row = grid.Row();
  if (row < 1) return;
  Enable(11, true);
  EnableEditing(1);
  m_modifyMode = true;
  (*m_txtDescription)[1]->setText(grid.Text(row, ItemColumn::Description));
  if (m_ui->cboCategory->Text().isEmpty() || !m_ui->ckClearItem->isChecked()) {
    m_ui->cboCategory->SetText(grid.Text(row, ItemColumn::Category));
  }
  m_ui->txtCost->setText(grid.Text(row, ItemColumn::Cost));
  (*m_txtCharge)[1]->setText(grid.Text(row, ItemColumn::Price));
  m_ui->txtOnHand->setText(grid.Text(row, ItemColumn::OnHand));
  (*m_txtCharge)[2]->setText(grid.Text(row, ItemColumn::DiscountPrice));
  m_ui->txtDiscountQty->setText(grid.Text(row, ItemColumn::DiscountQty));
  m_ui->txtReorderAmount->setText(grid.Text(row, ItemColumn::ReorderAmount));
  m_ui->txtReorderAt->setText(grid.Text(row, ItemColumn::ReorderAt));
  m_ui->fgItems->setEnabled(false);
}

void frmServices::ModifyCustomItem() {
  const TextMatrix& grid = m_catalogue.fgCustom;
  const int row = grid.Row();
  if (row < 1) return;
  EnableEditing(2);
  m_modifyMode = true;
  (*m_txtDescription)[2]->setText(grid.Text(row, CustomColumn::Description));
  (*m_txtCharge)[3]->setText(grid.Text(row, CustomColumn::Price));
  (*m_txtCharge)[4]->setText(grid.Text(row, CustomColumn::DiscountPrice));
  m_ui->txtCustomDiscItems->setText(grid.Text(row, CustomColumn::DiscountQty));
  m_ui->fgCustom->setEnabled(false);
}

/// Nothing without a current row. A No leaves the button live.
void frmServices::Delete(CatalogueList list, const QString& text, const QString& title, int disables) {
  if (m_catalogue.Grid(list).Row() < 1) return;
  if (!m_dialogs.AskYesNo(text, title)) return;
  m_catalogue.DeleteRow(list);
  Enable(disables, false);
}

/// The second and third rate stay, which is meant.
void frmServices::CreateGeneralLabor() {
  for (int i = 0; i < 3; ++i) (*m_txtLabor)[i]->clear();
  (*m_txtLabor)[0]->setText(u"General Labor"_s);
  (*m_txtLaborRate)[0]->clear();
  SetFocusTo((*m_txtLaborRate)[0]);
}

void frmServices::ClearAllLabor() {
  for (int i = 0; i < 3; ++i) {
    (*m_txtLabor)[i]->clear();
    (*m_txtLaborRate)[i]->clear();
  }
  SetFocusTo((*m_txtLabor)[0]);
}

void frmServices::ClearPrices() {
  (*m_txtCharge)[1]->setText(ZeroCurrencyText());
  (*m_txtCharge)[2]->setText(ZeroCurrencyText());
  m_ui->txtCost->setText(ZeroCurrencyText());
  SetFocusTo(m_ui->txtCost);
}
