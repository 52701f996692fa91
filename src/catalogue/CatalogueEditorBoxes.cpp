// What the boxes of the catalogue screen take when they are entered and left.

#include "catalogue/CatalogueEditor.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"

using namespace Qt::StringLiterals;
using Box = CatalogueBox;

namespace {

/// What stands in a box that holds nothing, and goes when the box is entered. Empty for a box that keeps what it holds.
QString ZeroOf(CatalogueBox box) {
  switch (box) {
    case Box::txtCharge0:
    case Box::txtCharge1:
    case Box::txtCharge2:
    case Box::txtCharge3:
    case Box::txtCharge4:
    case Box::txtCost:
    case Box::txtLaborRate0:
    case Box::txtLaborRate1:
    case Box::txtLaborRate2:
      return ZeroCurrencyText();
    case Box::txtOnHand:
    case Box::txtDiscountQty:
    case Box::txtReorderAmount:
    case Box::txtReorderAt:
      return u"0"_s;
    default:
      return {};
  }
}

}  // namespace

void CatalogueEditor::EnterBox(CatalogueBox box) {
  const QString zero = ZeroOf(box);
  if (!zero.isEmpty() && Text(box) == zero) SetText(box, {});
}

void CatalogueEditor::LeaveBox(CatalogueBox box) {
  switch (box) {
    case Box::txtCharge0:
    case Box::txtCharge1:
    case Box::txtCharge2:
      return LeaveCharge(box);
    case Box::txtCost:
      if (!Text(box).isEmpty()) Reformat(box);
      return;
    case Box::txtDiscountQty:
      if (Text(box).isEmpty()) SetText(box, u"0"_s);
      return;
    case Box::txtLaborRate0:
    case Box::txtLaborRate1:
    case Box::txtLaborRate2:
      return LeaveLaborRate(box);
    default:
      // The custom items' prices are taken as they stand, which is meant.
      return;
  }
}

void CatalogueEditor::Reformat(CatalogueBox box) {
  SetText(box, CurrencyTextOf(box));
}

void CatalogueEditor::LeaveCharge(CatalogueBox box) {
  if (IsNumeric(Text(box))) return Reformat(box);
  m_dialogs.Beep();
  if (box == Box::txtCharge2) {
    // A discount price left blank is the sell price; zero while there is none.
    return SetText(box, IsNumeric(Text(Box::txtCharge1)) ? CurrencyTextOf(Box::txtCharge1) : ZeroCurrencyText());
  }
  SetText(box, ZeroCurrencyText());
  m_view.FocusOn(box);
}

void CatalogueEditor::LeaveLaborRate(CatalogueBox box) {
  if (!Text(box).isEmpty()) return Reformat(box);
  m_dialogs.ShowMessage(u"Labor Rate must be greater than Zero"_s);
  m_view.FocusOn(box);
}
