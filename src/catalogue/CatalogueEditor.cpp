#include "catalogue/CatalogueEditor.h"

#include "catalogue/CatalogueCommands.h"
#include "runtime/Dialogs.h"

using namespace Qt::StringLiterals;
using Box = CatalogueBox;

namespace {

constexpr std::array ServiceCharges{Box::txtCharge0};
constexpr std::array ItemCharges{Box::txtCharge1, Box::txtCharge2};
constexpr std::array CustomCharges{Box::txtCharge3, Box::txtCharge4};
constexpr std::array LaborNames{Box::txtLabor0, Box::txtLabor1, Box::txtLabor2};
constexpr std::array LaborRateBoxes{Box::txtLaborRate0, Box::txtLaborRate1, Box::txtLaborRate2};

}  // namespace

CatalogueControls ControlsOf(CatalogueList list) {
  using namespace CatalogueCommand;
  switch (list) {
    case CatalogueList::Services:
      return {Box::txtDescription0, ServiceCharges, AddService,   ModifyService,
              DeleteService,        SaveService,    ClearService, CancelService};
    case CatalogueList::Items:
      return {Box::txtDescription1, ItemCharges, AddItem, ModifyItem, DeleteItem, SaveItem, ClearItem, CancelItem};
    case CatalogueList::Custom:
      break;
  }
  return {Box::txtDescription2, CustomCharges, AddCustom,   ModifyCustom,
          DeleteCustom,         SaveCustom,    ClearCustom, CancelCustom};
}

CatalogueEditor::CatalogueEditor(Catalogue& catalogue, Dialogs& dialogs, CatalogueView& view)
    : m_catalogue(catalogue), m_dialogs(dialogs), m_view(view) {}

void CatalogueEditor::Open() {
  for (const CatalogueList list : AllCatalogueLists) {
    SetEditing(list, false);
    // A Modify that was left by Menu can't be gone on with: its row may stand elsewhere after the save.
    m_view.EnableGrid(list, true);
  }
}

bool CatalogueEditor::IsEntering() const {
  for (const CatalogueList list : AllCatalogueLists) {
    if (m_catalogue.CommandEnabled(ControlsOf(list).Save)) return true;
  }
  return false;
}

void CatalogueEditor::ClickRow(CatalogueList list) {
  if (m_catalogue.Grid(list).Row() < 1) return;
  m_catalogue.EnableCommand(ControlsOf(list).Delete, true);
  // A service's Modify is made live by a load alone, which is meant.
  if (list != CatalogueList::Services) m_catalogue.EnableCommand(ControlsOf(list).Modify, true);
}

void CatalogueEditor::SetEditing(CatalogueList list, bool enabled) {
  const CatalogueControls controls = ControlsOf(list);
  m_catalogue.EnableCommand(controls.Save, enabled);
  for (const CatalogueBox charge : controls.Charges) m_view.EnableBox(charge, enabled);
  m_view.EnableBox(controls.Description, enabled);
}

void CatalogueEditor::AddNew(CatalogueList list) {
  m_modifyMode = false;
  SetEditing(list, true);
  ClearEntry(list);
  m_view.FocusOn(ControlsOf(list).Description);
}

void CatalogueEditor::Modify(CatalogueList list) {
  if (m_catalogue.Grid(list).Row() < 1) return;
  if (list == CatalogueList::Items) m_catalogue.EnableCommand(CatalogueCommand::ClearItem, true);
  SetEditing(list, true);
  m_modifyMode = true;
  LoadRow(list);
  m_view.EnableGrid(list, false);
}

void CatalogueEditor::LoadRow(CatalogueList list) {
  const TextMatrix& grid = m_catalogue.Grid(list);
  const auto load = [&](CatalogueBox box, int col) { SetText(box, grid.Text(grid.Row(), col)); };
  switch (list) {
    case CatalogueList::Services:
      load(Box::txtDescription0, ServiceColumn::Description);
      load(Box::txtCharge0, ServiceColumn::Charge);
      return load(Box::lstTime, ServiceColumn::Time);
    case CatalogueList::Items:
      load(Box::txtDescription1, ItemColumn::Description);
      if (Text(Box::cboCategory).isEmpty() || !m_view.ckClearItem()) load(Box::cboCategory, ItemColumn::Category);
      load(Box::txtCost, ItemColumn::Cost);
      load(Box::txtCharge1, ItemColumn::Price);
      load(Box::txtOnHand, ItemColumn::OnHand);
      load(Box::txtCharge2, ItemColumn::DiscountPrice);
      load(Box::txtDiscountQty, ItemColumn::DiscountQty);
      load(Box::txtReorderAmount, ItemColumn::ReorderAmount);
      return load(Box::txtReorderAt, ItemColumn::ReorderAt);
    case CatalogueList::Custom:
      load(Box::txtDescription2, CustomColumn::Description);
      load(Box::txtCharge3, CustomColumn::Price);
      load(Box::txtCharge4, CustomColumn::DiscountPrice);
      return load(Box::txtCustomDiscItems, CustomColumn::DiscountQty);
  }
}

/// A No leaves the button live.
void CatalogueEditor::Delete(CatalogueList list) {
  if (m_catalogue.Grid(list).Row() < 1) return;
  const bool service = list == CatalogueList::Services;
  const QString kind = service ? u"Service"_s : list == CatalogueList::Items ? u"Sales Item"_s : u"Custom Item"_s;
  const QString title = service ? u"Delete Service Item"_s : u"Delete Sales Item"_s;
  if (!m_dialogs.AskYesNo(u"This will DELETE the Selected "_s + kind, title)) return;
  m_catalogue.DeleteRow(list);
  // A deleted custom item shuts the items' Delete, not its own; this is meant.
  m_catalogue.EnableCommand(service ? CatalogueCommand::DeleteService : CatalogueCommand::DeleteItem, false);
}

void CatalogueEditor::Clear(CatalogueList list) {
  if (list != CatalogueList::Services) return ClearEntry(list);
  SetText(Box::txtDescription0, {});
  SetText(Box::txtCharge0, {});
  m_view.FocusOn(Box::txtDescription0);
}

void CatalogueEditor::Cancel(CatalogueList list) {
  m_view.EnableGrid(list, true);
  // A cancelled service shuts the items' boxes and a custom item the services', and their own stay open; this is meant.
  SetEditing(list == CatalogueList::Custom ? CatalogueList::Services : CatalogueList::Items, false);
  ClearEntry(list);
}

/// Cost, discount price and category of an item stay, which is meant.
void CatalogueEditor::ClearEntry(CatalogueList list) {
  const auto clear = [this](std::initializer_list<CatalogueBox> boxes) {
    for (const CatalogueBox box : boxes) SetText(box, {});
  };
  switch (list) {
    case CatalogueList::Services:
      SetText(Box::lstTime, m_catalogue.lstTime.first());
      return clear({Box::txtCharge0, Box::txtDescription0});
    case CatalogueList::Items:
      return clear({Box::txtCharge1, Box::txtDescription1, Box::txtOnHand, Box::txtDiscountQty, Box::txtReorderAmount,
                    Box::txtReorderAt});
    case CatalogueList::Custom:
      return clear({Box::txtCharge3, Box::txtDescription2, Box::txtCharge4, Box::txtCustomDiscItems});
  }
}

/// The second and third rate stay, which is meant.
void CatalogueEditor::CreateGeneralLabor() {
  for (const CatalogueBox name : LaborNames) SetText(name, {});
  SetText(Box::txtLabor0, u"General Labor"_s);
  SetText(Box::txtLaborRate0, {});
  m_view.FocusOn(Box::txtLaborRate0);
}

void CatalogueEditor::ClearLabor() {
  for (const CatalogueBox name : LaborNames) SetText(name, {});
  for (const CatalogueBox rate : LaborRateBoxes) SetText(rate, {});
  m_view.FocusOn(Box::txtLabor0);
}

void CatalogueEditor::ClearPrices() {
  for (const CatalogueBox price : {Box::txtCharge1, Box::txtCharge2, Box::txtCost}) SetText(price, ZeroCurrencyText());
  m_view.FocusOn(Box::txtCost);
}

void CatalogueEditor::RemoveDiscount() {
  SetText(Box::txtDiscountQty, u"0"_s);
  SetText(Box::txtCharge2, ZeroCurrencyText());
}
