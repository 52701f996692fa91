// What a Save of the catalogue screen checks, and the row that it writes. A Save that stops leaves the grid, the boxes
// and the modify mode as they were.

#include "catalogue/frmServices.h"
#include "desktop/GridView.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "ui_frmServices.h"

using namespace Qt::StringLiterals;

namespace {

/// Throws RuntimeError 13 or 6 that names the box.
QString CurrencyTextOf(const QLineEdit* box) {
  return CurrencyText(Currency::FromText(box->text(), box->accessibleName()));
}

}  // namespace

/// Blanks alone count as empty: a description of them would be read back as none.
bool frmServices::RefusesEmpty(QLineEdit* box) {
  if (!TrimBlanks(box->text()).isEmpty()) return false;
  SetFocusTo(box);
  m_dialogs.Beep();
  return true;
}

bool frmServices::RefusesLetters(QLineEdit* box) {
  if (box->text().isEmpty() || IsNumeric(box->text())) return false;
  m_dialogs.Beep();
  SetFocusTo(box);
  return true;
}

/// The mode is one for all tabs: a Save may follow it to a list where no line was picked.
bool frmServices::MissesLine(CatalogueList list) {
  if (!m_modifyMode || m_catalogue.Grid(list).Row() > 0) return false;
  m_dialogs.ShowMessage(u"Select the line to modify, or click Add New"_s);
  return true;
}

void frmServices::SaveService() {
  if (RefusesEmpty((*m_txtDescription)[0]) || RefusesEmpty((*m_txtCharge)[0])) return;
  const QString charge = CurrencyTextOf((*m_txtCharge)[0]);
  m_ui->fgServices->setEnabled(true);
  if (MissesLine(CatalogueList::Services)) return;
  const QListWidgetItem* time = m_ui->lstTime->currentItem();
  m_catalogue.PutRow(CatalogueList::Services, m_modifyMode,
                     {(*m_txtDescription)[0]->text(), charge, time == nullptr ? QString() : time->text()});
  ClearEntry(0);
  SetFocusTo((*m_cmdServices)[1]);
  DisableEditing(0);
  Enable(3, false);
}

void frmServices::SaveItem() {
  if (RefusesEmpty((*m_txtDescription)[1])) return;
  if (RefusesEmpty((*m_txtCharge)[1]) || RefusesEmpty((*m_txtCharge)[2])) return;
  if (!IsNumeric(m_ui->txtOnHand->text())) {
    m_dialogs.Beep();
    m_ui->txtOnHand->setText(u"0"_s);
    return;
  }
  for (QLineEdit* box : {m_ui->txtDiscountQty, m_ui->txtReorderAmount, m_ui->txtReorderAt}) {
    if (RefusesLetters(box)) return;
  }
  if (m_ui->txtCost->text().isEmpty()) m_ui->txtCost->setText(ZeroCurrencyText());
  for (QLineEdit* box : {m_ui->txtDiscountQty, m_ui->txtReorderAmount, m_ui->txtReorderAt}) {
    if (box->text().isEmpty()) box->setText(u"0"_s);
  }
  const QString price = CurrencyTextOf((*m_txtCharge)[1]);
  const QString discountPrice = CurrencyTextOf((*m_txtCharge)[2]);
  const auto whole16 = [](const QLineEdit* box) { return ToInt16(box->text(), box->accessibleName()); };
  const QString onHand = QString::number(whole16(m_ui->txtOnHand));
  // These enter the grid as they stand; what the file couldn't take is refused here.
  CurrencyTextOf(m_ui->txtCost);
  ToInt32(m_ui->txtDiscountQty->text(), m_ui->txtDiscountQty->accessibleName());
  whole16(m_ui->txtReorderAmount);
  whole16(m_ui->txtReorderAt);

  m_ui->fgItems->setEnabled(true);
  if (MissesLine(CatalogueList::Items)) return;
  m_catalogue.PutRow(
      CatalogueList::Items, m_modifyMode,
      {(*m_txtDescription)[1]->text(), m_ui->cboCategory->Text(), m_ui->txtCost->text(), price, onHand, discountPrice,
       m_ui->txtDiscountQty->text(), m_ui->txtReorderAmount->text(), m_ui->txtReorderAt->text()});
  m_catalogue.AddCategory(m_ui->cboCategory->Text());
  ClearEntry(1);
  SetFocusTo((*m_cmdServices)[8]);
  DisableEditing(1);
  Enable(11, false);
}

void frmServices::SaveCustomItem() {
  if (RefusesEmpty((*m_txtDescription)[2])) return;
  if (RefusesEmpty((*m_txtCharge)[3]) || RefusesEmpty((*m_txtCharge)[4])) return;
  QLineEdit* quantity = m_ui->txtCustomDiscItems;
  if (RefusesLetters(quantity)) return;
  const QString price = CurrencyTextOf((*m_txtCharge)[3]);
  const QString discountPrice = CurrencyTextOf((*m_txtCharge)[4]);
  if (quantity->text().isEmpty()) quantity->setText(u"0"_s);
  ToInt32(quantity->text(), quantity->accessibleName());

  m_ui->fgCustom->setEnabled(true);
  if (MissesLine(CatalogueList::Custom)) return;
  m_catalogue.PutRow(CatalogueList::Custom, m_modifyMode,
                     {(*m_txtDescription)[2]->text(), price, discountPrice, quantity->text()});
  ClearEntry(3);
  SetFocusTo((*m_cmdServices)[18]);
  DisableEditing(2);
  Enable(21, false);
}
