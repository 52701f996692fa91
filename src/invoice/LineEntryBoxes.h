/// What the entry frames of the invoice screen hold: the boxes that a line is made from, as plain values.
#pragma once

#include <array>
#include <QString>

/// Text and list index of a combo box. The index is -1 where the text wasn't picked from the list.
struct ComboValue {
  QString Text;
  int ListIndex = -1;
};

/// Element 0 is services, 1 inventoried items, 2 custom items. The entries themselves stand in `CatalogueLists`.
struct LineEntryBoxes {
  std::array<ComboValue, 3> cboDescription;
  std::array<ComboValue, 3> cboPrice;
  QString txtUnits;
  QString txtCUnits;
  std::array<QString, 3> txtManual;  ///< 0 description, 1 price, 2 quantity.
  std::array<QString, 3> txtHours;
  std::array<QString, 3> lblLaborHeading;
  std::array<QString, 4> lblLaborCharge;  ///< 3 is the total.
  std::array<bool, 3> LaborShows{};       ///< Whether heading, hours and charge of a slot are visible.
};
