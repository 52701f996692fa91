// What a Save of the catalogue screen checks, and the row that it writes.

#include "catalogue/CatalogueCommands.h"
#include "catalogue/CatalogueEditor.h"
#include "catalogue/CatalogueRecords.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;
using Box = CatalogueBox;

namespace {

constexpr std::array ItemQuantities{Box::txtDiscountQty, Box::txtReorderAmount, Box::txtReorderAt};

/// The button that a Save shuts: a service's Modify, the others' Clear.
int ShutBySave(CatalogueList list) {
  switch (list) {
    case CatalogueList::Services:
      return CatalogueCommand::ModifyService;
    case CatalogueList::Items:
      return CatalogueCommand::ClearItem;
    case CatalogueList::Custom:
      break;
  }
  return CatalogueCommand::ClearCustom;
}

}  // namespace

void CatalogueEditor::Save(CatalogueList list) {
  const CatalogueControls controls = ControlsOf(list);
  if (RefusesEmpty(controls.Description)) return;
  for (const CatalogueBox charge : controls.Charges) {
    if (RefusesEmpty(charge)) return;
  }
  const std::optional<QStringList> cells = CellsOf(list);
  if (!cells) return;
  m_view.EnableGrid(list, true);
  if (MissesLine(list)) return;
  m_catalogue.PutRow(list, m_modifyMode, *cells);
  if (list == CatalogueList::Items) m_catalogue.AddCategory(Text(Box::cboCategory));
  ClearEntry(list);
  m_view.FocusOnCommand(controls.AddNew);
  SetEditing(list, false);
  m_catalogue.EnableCommand(ShutBySave(list), false);
}

/// The row, in the order of the grid's columns; none where a box is refused.
std::optional<QStringList> CatalogueEditor::CellsOf(CatalogueList list) {
  switch (list) {
    case CatalogueList::Services:
      return QStringList{Text(Box::txtDescription0), ServiceCharge(), Text(Box::lstTime)};
    case CatalogueList::Items:
      return ItemCells();
    case CatalogueList::Custom:
      break;
  }
  return CustomCells();
}

std::optional<QStringList> CatalogueEditor::ItemCells() {
  if (!IsNumeric(Text(Box::txtOnHand))) {
    m_dialogs.Beep();
    SetText(Box::txtOnHand, u"0"_s);
    return {};
  }
  for (const CatalogueBox box : ItemQuantities) {
    if (RefusesLetters(box)) return {};
  }
  ZeroWhereEmpty(Box::txtCost, ZeroCurrencyText());
  for (const CatalogueBox box : ItemQuantities) ZeroWhereEmpty(box, u"0"_s);
  const QString price = CurrencyTextOf(Box::txtCharge1);
  const QString discountPrice = CurrencyTextOf(Box::txtCharge2);
  const QString onHand = QString::number(Whole16(Box::txtOnHand));
  // These enter the grid as they stand; what the file couldn't take is refused here.
  CurrencyTextOf(Box::txtCost);
  RequireInt32(Box::txtDiscountQty);
  Whole16(Box::txtReorderAmount);
  Whole16(Box::txtReorderAt);
  return QStringList{
      Text(Box::txtDescription1), Text(Box::cboCategory),      Text(Box::txtCost),     price, onHand, discountPrice,
      Text(Box::txtDiscountQty),  Text(Box::txtReorderAmount), Text(Box::txtReorderAt)};
}

std::optional<QStringList> CatalogueEditor::CustomCells() {
  if (RefusesLetters(Box::txtCustomDiscItems)) return {};
  const QString price = CurrencyTextOf(Box::txtCharge3);
  const QString discountPrice = CurrencyTextOf(Box::txtCharge4);
  ZeroWhereEmpty(Box::txtCustomDiscItems, u"0"_s);
  RequireInt32(Box::txtCustomDiscItems);
  return QStringList{Text(Box::txtDescription2), price, discountPrice, Text(Box::txtCustomDiscItems)};
}

/// Blanks alone count as empty: a description of them would be read back as none.
bool CatalogueEditor::RefusesEmpty(CatalogueBox box) {
  if (!TrimBlanks(Text(box)).isEmpty()) return false;
  m_view.FocusOn(box);
  m_dialogs.Beep();
  return true;
}

bool CatalogueEditor::RefusesLetters(CatalogueBox box) {
  if (Text(box).isEmpty() || IsNumeric(Text(box))) return false;
  m_dialogs.Beep();
  m_view.FocusOn(box);
  return true;
}

void CatalogueEditor::ZeroWhereEmpty(CatalogueBox box, const QString& zero) {
  if (Text(box).isEmpty()) SetText(box, zero);
}

/// The mode is one for all tabs: a Save may follow it to a list where no line was picked.
bool CatalogueEditor::MissesLine(CatalogueList list) {
  if (!m_modifyMode || m_catalogue.Grid(list).Row() > 0) return false;
  m_dialogs.ShowMessage(u"Select the line to modify, or click Add New"_s);
  return true;
}

/// Rounded to cents at once, like an amount of any other screen; what the file couldn't take is refused.
QString CatalogueEditor::CurrencyTextOf(CatalogueBox box) const {
  const QString name = m_view.NameOf(box);
  const QString text = CurrencyText(ToNumber(Text(box), name));
  Currency::FromText(text, name);
  return text;
}

/// The file keeps the text, cut at its width: a longer one would be read back as another amount.
QString CatalogueEditor::ServiceCharge() const {
  const QString charge = CurrencyTextOf(Box::txtCharge0);
  if (charge.size() > ServiceRecord::ChargeWidth) {
    throw RuntimeError(ErrorNumber::Overflow, m_view.NameOf(Box::txtCharge0),
                       charge + u" doesn't fit into the file, which keeps ten characters, as in $99,999.99."_s);
  }
  return charge;
}

qint16 CatalogueEditor::Whole16(CatalogueBox box) const {
  return ToInt16(Text(box), m_view.NameOf(box));
}

void CatalogueEditor::RequireInt32(CatalogueBox box) const {
  ToInt32(Text(box), m_view.NameOf(box));
}
