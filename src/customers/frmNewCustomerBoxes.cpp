/// The boxes of the customer screen: what the rules see of them, which keys they take, and their entering and leaving.
#include "customers/frmNewCustomer.h"
#include "desktop/LabelText.h"
#include "runtime/Numbers.h"
#include "shell/VerifyDataRoutines.h"
#include "ui_frmNewCustomer.h"

using namespace Qt::StringLiterals;

namespace {

/// How many characters can be typed into each element of `txtCustomer`. A longer text from the file is kept.
constexpr std::array<int, 12> TypingLimits{20, 30, 35, 25, 2, 10, 12, 30, 15, 1, 25, 12};

}  // namespace

void frmNewCustomer::ConnectBoxes() {
  // What other screens read of the customer is what the boxes hold, at each moment.
  On(m_txtCustomer[0], &QLineEdit::textChanged, [this](const QString& text) { m_onScreen.txtCustomer0 = text; });
  On(m_txtCustomer[1], &QLineEdit::textChanged, [this](const QString& text) { m_onScreen.txtCustomer1 = text; });
  for (const int i : {0, 1, 6}) {
    OnEnter(m_txtCustomer[i], [this, i] { m_editor.EnterBox(static_cast<CustomerBox>(i)); });
  }
  OnLeave(m_txtCustomer[0], [this] { m_editor.LeaveAccountNo(); });
  OnLeave(m_txtCustomer[1], [this] { m_editor.LeaveName(); });
  m_ui->cboStates->Change = [this] { m_txtCustomer[4]->setText(TrimBlanks(m_ui->cboStates->Text())); };
}

void frmNewCustomer::ConnectKeys() {
  const KeyFilters quotes = QuoteFilters(m_dialogs);
  for (int i = 0; i < m_txtCustomer.Size(); ++i) {
    SetTypingLimit(m_txtCustomer[i], TypingLimits.at(static_cast<std::size_t>(i)));
    FilterKeys(m_txtCustomer[i], quotes);
  }
  for (const int i : {0, 6}) {
    QLineEdit* box = m_txtCustomer[i];
    FilterKeys(
        box, [this, box, quotes](int key) { return VerifyFileNameKey(quotes.Typed(key), box->text(), m_dialogs); },
        [box, quotes](int key) {
          return IsRefusedInFileNames(key) && !IsNumeric(box->text()) ? 0 : quotes.Pasted(key);
        });
  }
  // These texts reach the same files; what can be typed is what a record holds.
  const std::initializer_list<std::pair<QWidget*, int>> others{
      {m_ui->cboCity, 25}, {m_ui->cboStates, 2}, {m_ui->cboTitle, 10}, {m_ui->txtAdd3, 25}, {m_ui->txtAdd4, 25}};
  for (const auto& [box, limit] : others) {
    SetTypingLimit(box, limit);
    FilterKeys(box, quotes);
  }
}

QLineEdit* frmNewCustomer::Line(CustomerBox box) const {
  if (box == CustomerBox::txtAdd3) {
    return m_ui->txtAdd3;
  }
  if (box == CustomerBox::txtAdd4) {
    return m_ui->txtAdd4;
  }
  return m_txtCustomer[static_cast<int>(box)];
}

ListCombo* frmNewCustomer::Combo(CustomerBox box) const {
  switch (box) {
    case CustomerBox::cboCity:
      return m_ui->cboCity;
    case CustomerBox::cboStates:
      return m_ui->cboStates;
    case CustomerBox::cboTitle:
      return m_ui->cboTitle;
    default:
      return nullptr;
  }
}

QWidget* frmNewCustomer::Control(CustomerBox box) const {
  if (box == CustomerBox::lbLType) {
    return m_ui->lbLType;
  }
  if (ListCombo* combo = Combo(box)) {
    return combo;
  }
  return Line(box);
}

QString frmNewCustomer::Text(CustomerBox box) const {
  if (box == CustomerBox::lbLType) {
    return m_ui->lbLType->text();
  }
  const ListCombo* combo = Combo(box);
  return combo != nullptr ? combo->Text() : Line(box)->text();
}

void frmNewCustomer::SetText(CustomerBox box, const QString& text) {
  if (box == CustomerBox::lbLType) {
    m_ui->lbLType->setText(text);
  } else if (ListCombo* combo = Combo(box)) {
    combo->SetText(text);
  } else {
    Line(box)->setText(text);
  }
}

void frmNewCustomer::FocusOn(CustomerBox box) {
  SetFocusTo(Control(box));
}

void frmNewCustomer::FocusOnSelect() {
  SetFocusTo(m_cmdCustomer[1]);
}

void frmNewCustomer::ShowNameBoxes(bool business) {
  m_ui->businessName->setVisible(business);
  m_ui->personName->setVisible(!business);
  LabelNameList();
}

void frmNewCustomer::ShowAddressBoxes(bool usa) {
  m_ui->fraUSAddress->setVisible(usa);
  m_ui->fraIntAddress->setVisible(!usa);
}

void frmNewCustomer::SetCustomerCaption(const QString& caption) {
  m_ui->fraCustomer->setTitle(caption);
}

void frmNewCustomer::SetAuxCaption(const QString& caption) {
  m_ui->fraAux->setTitle(PlainCaption(caption));
}
