// The boxes of the catalogue screen: what the rules see of them, which keys they take, and their entering and leaving.

#include <array>

#include "catalogue/CatalogueCommands.h"
#include "catalogue/frmServices.h"
#include "desktop/GridView.h"
#include "shell/VerifyDataRoutines.h"
#include "ui_frmServices.h"

using Box = CatalogueBox;

namespace {

constexpr int Enter = 13;

/// The text boxes come first in the list of boxes; the combo and the list of times don't settle.
constexpr int TextBoxes = static_cast<int>(Box::cboCategory);

}  // namespace

void frmServices::ConnectBoxes() {
  for (int i = 0; i < TextBoxes; ++i) {
    const auto box = static_cast<CatalogueBox>(i);
    OnEnter(Line(box), [this, box] { m_editor.EnterBox(box); });
    OnLeave(Line(box), [this, box] { m_editor.LeaveBox(box); });
  }
  for (const CatalogueBox box : {Box::txtCharge0, Box::txtCharge1, Box::txtCharge2, Box::txtCharge3, Box::txtCharge4,
                                 Box::txtCost, Box::txtLaborRate0, Box::txtLaborRate1, Box::txtLaborRate2}) {
    FilterDecimals(Line(box));
  }
  SetTypingLimit(Line(Box::txtDescription0), 34);
  for (const CatalogueList list : AllCatalogueLists) {
    const CatalogueControls controls = ControlsOf(list);
    SaveOnReturn(controls.Description, controls.Save);
    for (const CatalogueBox charge : controls.Charges) SaveOnReturn(charge, controls.Save);
  }
  for (const CatalogueBox box :
       {Box::txtCost, Box::txtOnHand, Box::txtDiscountQty, Box::txtReorderAmount, Box::txtReorderAt}) {
    SaveOnReturn(box, CatalogueCommand::SaveItem);
  }
  SaveOnReturn(Box::txtCustomDiscItems, CatalogueCommand::SaveCustom);
  ConnectLabor();
}

/// The labor rates in hand are what the boxes hold, at each moment.
void frmServices::ConnectLabor() {
  constexpr std::array names{Box::txtLabor0, Box::txtLabor1, Box::txtLabor2};
  constexpr std::array rates{Box::txtLaborRate0, Box::txtLaborRate1, Box::txtLaborRate2};
  for (std::size_t slot = 0; slot < names.size(); ++slot) {
    FilterKeys(Line(names[slot]), QuoteFilters(m_dialogs));
    On(Line(names[slot]), &QLineEdit::textChanged,
       [this, slot](const QString& text) { m_catalogue.Labor.txtLabor.at(slot) = text; });
    On(Line(rates[slot]), &QLineEdit::textChanged,
       [this, slot](const QString& text) { m_catalogue.Labor.txtLaborRate.at(slot) = text; });
    SaveOnReturn(names[slot], CatalogueCommand::SaveLabor);
    SaveOnReturn(rates[slot], CatalogueCommand::SaveLabor);
  }
}

void frmServices::FilterDecimals(QLineEdit* box) {
  // Enter is no character of the box; it saves.
  FilterKeys(box, [box](int key) { return key == Enter ? key : VerifyDecimalKey(key, box->text()); });
}

/// Enter saves where Save is live, as a press of the button does: the box settles first, and where it can't, nothing is
/// saved.
void frmServices::SaveOnReturn(CatalogueBox box, int command) {
  On(Line(box), &QLineEdit::returnPressed, [this, command] { PressButton(m_cmdServices[command]); });
}

QLineEdit* frmServices::Line(CatalogueBox box) const {
  const auto element = [box](CatalogueBox first) { return static_cast<int>(box) - static_cast<int>(first); };
  switch (box) {
    case Box::txtCost:
      return m_ui->txtCost;
    case Box::txtOnHand:
      return m_ui->txtOnHand;
    case Box::txtDiscountQty:
      return m_ui->txtDiscountQty;
    case Box::txtReorderAmount:
      return m_ui->txtReorderAmount;
    case Box::txtReorderAt:
      return m_ui->txtReorderAt;
    case Box::txtCustomDiscItems:
      return m_ui->txtCustomDiscItems;
    default:
      break;
  }
  if (box < Box::txtCharge0) return m_txtDescription[element(Box::txtDescription0)];
  if (box < Box::txtCost) return m_txtCharge[element(Box::txtCharge0)];
  if (box < Box::txtLaborRate0) return m_txtLabor[element(Box::txtLabor0)];
  return m_txtLaborRate[element(Box::txtLaborRate0)];
}

QWidget* frmServices::Control(CatalogueBox box) const {
  if (box == Box::cboCategory) return m_ui->cboCategory;
  if (box == Box::lstTime) return m_ui->lstTime;
  return Line(box);
}

QString frmServices::Text(CatalogueBox box) const {
  if (box == Box::cboCategory) return m_ui->cboCategory->Text();
  if (box != Box::lstTime) return Line(box)->text();
  const QListWidgetItem* time = m_ui->lstTime->currentItem();
  return time == nullptr ? QString() : time->text();
}

void frmServices::SetText(CatalogueBox box, const QString& text) {
  if (box == Box::cboCategory) {
    m_ui->cboCategory->SetText(text);
  } else if (box == Box::lstTime) {
    m_ui->lstTime->setCurrentRow(static_cast<int>(m_catalogue.lstTime.indexOf(text)));
  } else {
    Line(box)->setText(text);
  }
}

QString frmServices::NameOf(CatalogueBox box) const {
  return Control(box)->accessibleName();
}

void frmServices::EnableBox(CatalogueBox box, bool enabled) {
  Control(box)->setEnabled(enabled);
}

void frmServices::FocusOn(CatalogueBox box) {
  SetFocusTo(Control(box));
}

void frmServices::FocusOnCommand(int command) {
  SetFocusTo(m_cmdServices[command]);
}

void frmServices::EnableGrid(CatalogueList list, bool enabled) {
  View(list)->setEnabled(enabled);
}

bool frmServices::ckClearItem() const {
  return m_ui->ckClearItem->isChecked();
}
