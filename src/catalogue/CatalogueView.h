/// What the rules of the catalogue screen see of it: its boxes by name, its grids and its buttons.
#pragma once

#include <QString>

#include "catalogue/CatalogueLists.h"

/// The boxes of the four tabs. Elements of one control array stand side by side.
enum class CatalogueBox {
  txtDescription0,
  txtDescription1,
  txtDescription2,
  txtCharge0,
  txtCharge1,
  txtCharge2,
  txtCharge3,
  txtCharge4,
  txtCost,
  txtOnHand,
  txtDiscountQty,
  txtReorderAmount,
  txtReorderAt,
  txtCustomDiscItems,
  txtLabor0,
  txtLabor1,
  txtLabor2,
  txtLaborRate0,
  txtLaborRate1,
  txtLaborRate2,
  cboCategory,
  lstTime
};

class CatalogueView {
 public:
  virtual ~CatalogueView() = default;
  /// Of `lstTime` the entry that is selected; empty for none.
  virtual QString Text(CatalogueBox box) const = 0;
  /// A text that `lstTime` lacks selects none.
  virtual void SetText(CatalogueBox box, const QString& text) = 0;
  /// The box as an error names it.
  virtual QString NameOf(CatalogueBox box) const = 0;
  virtual void EnableBox(CatalogueBox box, bool enabled) = 0;
  /// Nothing happens where the box or button is hidden or shut.
  virtual void FocusOn(CatalogueBox box) = 0;
  virtual void FocusOnCommand(int command) = 0;
  virtual void EnableGrid(CatalogueList list, bool enabled) = 0;
  virtual bool ckClearItem() const = 0;
};
