/// The catalogue as the invoice sees it: the names and prices that its entry lists offer, and the quantity breaks.
#pragma once

#include <QString>
#include <array>
#include <functional>
#include <vector>

#include "runtime/Currency.h"

/// One entry of a description list with the price that stands at the same place of the price list.
struct CatalogueEntry {
  QString Description;
  int Data = 0;   ///< The entry's data word.
  QString Price;  ///< Currency text.
};

/// A quantity break, at the place of its entry (from 1): at or above `Units` the discount price applies; 0 never.
struct QuantityBreak {
  Currency DiscountPrice;
  qint32 Units = 0;
};

/// Element 0 services, 1 inventoried items, 2 custom items. The catalogue fills it at each load; the invoice screen's
/// lists show it.
struct CatalogueLists {
  std::array<std::vector<CatalogueEntry>, 3> Entries;
  std::vector<QuantityBreak> ItemBreaks;    ///< `ItemDiscountPrice` and `ItemDiscountUnits`, indexed from 1.
  std::vector<QuantityBreak> CustomBreaks;  ///< `CustomDiscountPrice` and `CustomDiscountUnits`, indexed from 1.
  std::vector<QString> lstCategories;       ///< "All" first.
  /// Called after a list changed, with its element; the screens that show it listen. May be empty.
  std::vector<std::function<void(int element)>> Changed;

  void Announce(int element) const {
    for (const auto& listener : Changed) listener(element);
  }
};

/// The three labor slots, as the catalogue screen's boxes hold them.
struct LaborRates {
  std::array<QString, 3> txtLabor;
  std::array<QString, 3> txtLaborRate;  ///< Text such as the currency format gives it.
};
