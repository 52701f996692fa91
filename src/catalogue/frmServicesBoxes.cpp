// Keys in the boxes of the catalogue screen, and what happens when the focus comes to a box or leaves it.

#include "catalogue/frmServices.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "shell/VerifyDataRoutines.h"
#include "ui_frmServices.h"

using namespace Qt::StringLiterals;

namespace {

/// Throws RuntimeError that names the box: 6 for an amount too large, 13 for what is none, as a point alone.
void Reformat(QLineEdit* box) {
  box->setText(CurrencyText(Currency::FromText(box->text(), box->accessibleName())));
}

}  // namespace

void frmServices::ConnectBoxes() {
  ConnectCharges();
  ConnectLabor();
  ConnectQuantities();
  SetTypingLimit((*m_txtDescription)[0], 34);
  SaveOnReturn((*m_txtDescription)[0], 4);
  SaveOnReturn((*m_txtDescription)[1], 13);
  SaveOnReturn((*m_txtDescription)[2], 22);
}

void frmServices::ConnectCharges() {
  constexpr std::array saves{4, 13, 13, 22, 22};
  for (int i = 0; i < m_txtCharge->Size(); ++i) {
    QLineEdit* box = (*m_txtCharge)[i];
    FilterDecimals(box);
    BlankOnEnter(box, ZeroCurrencyText());
    SaveOnReturn(box, saves.at(std::size_t(i)));
    // The custom item's prices are taken as they stand, which is meant.
    if (i < 3) OnLeave(box, [this, i] { LeaveCharge(i); });
  }
  QLineEdit* cost = m_ui->txtCost;
  FilterDecimals(cost);
  BlankOnEnter(cost, ZeroCurrencyText());
  SaveOnReturn(cost, 13);
  OnLeave(cost, [cost] {
    if (!cost->text().isEmpty()) Reformat(cost);
  });
}

void frmServices::LeaveCharge(int index) {
  QLineEdit* box = (*m_txtCharge)[index];
  if (IsNumeric(box->text())) return Reformat(box);
  m_dialogs.Beep();
  if (index == 2) {
    // A discount price left blank is the sell price; zero while there is none.
    const QString price = (*m_txtCharge)[1]->text();
    return box->setText(IsNumeric(price) ? CurrencyText(Currency::FromText(price)) : ZeroCurrencyText());
  }
  box->setText(ZeroCurrencyText());
  SetFocusTo(box);
}

void frmServices::ConnectLabor() {
  for (int i = 0; i < m_txtLabor->Size(); ++i) {
    const auto slot = std::size_t(i);
    QLineEdit* name = (*m_txtLabor)[i];
    // The file has its texts between double quotes.
    FilterKeys(
        name, [this](int key) { return VerifyQuoteKey(key, m_dialogs); }, [](int key) { return key == '"' ? 0 : key; });
    On(name, &QLineEdit::textChanged,
       [this, slot](const QString& text) { m_catalogue.Labor.txtLabor.at(slot) = text; });
    SaveOnReturn(name, 17);
    QLineEdit* rate = (*m_txtLaborRate)[i];
    FilterDecimals(rate);
    BlankOnEnter(rate, ZeroCurrencyText());
    On(rate, &QLineEdit::textChanged,
       [this, slot](const QString& text) { m_catalogue.Labor.txtLaborRate.at(slot) = text; });
    OnLeave(rate, [this, i] { LeaveLaborRate(i); });
    SaveOnReturn(rate, 17);
  }
}

void frmServices::LeaveLaborRate(int index) {
  QLineEdit* box = (*m_txtLaborRate)[index];
  if (!box->text().isEmpty()) return Reformat(box);
  m_dialogs.ShowMessage(u"Labor Rate must be greater than Zero"_s);
  SetFocusTo(box);
}

void frmServices::ConnectQuantities() {
  for (QLineEdit* box : {m_ui->txtDiscountQty, m_ui->txtOnHand, m_ui->txtReorderAmount, m_ui->txtReorderAt}) {
    BlankOnEnter(box, u"0"_s);
    SaveOnReturn(box, 13);
  }
  OnLeave(m_ui->txtDiscountQty, [this] {
    if (m_ui->txtDiscountQty->text().isEmpty()) m_ui->txtDiscountQty->setText(u"0"_s);
  });
  SaveOnReturn(m_ui->txtCustomDiscItems, 22);
}

void frmServices::BlankOnEnter(QLineEdit* box, const QString& zero) {
  OnEnter(box, [box, zero] {
    if (box->text() == zero) box->clear();
  });
}

void frmServices::FilterDecimals(QLineEdit* box) {
  // Enter is no character of the box; it saves.
  FilterKeys(box, [box](int key) { return key == 13 ? key : VerifyDecimalKey(key, box->text()); });
}

/// Enter saves where Save is live, as a press of the button does: the box settles first, and where it can't, nothing is
/// saved.
void frmServices::SaveOnReturn(QLineEdit* box, int command) {
  On(box, &QLineEdit::returnPressed, [this, command] { PressButton((*m_cmdServices)[command]); });
}
