/// The catalogue as the invoice sees it: the names and prices that its entry lists offer, and the quantity breaks.
#pragma once

#include <array>
#include <functional>
#include <QString>
#include <vector>

#include "runtime/Currency.h"

enum class CatalogueList { Services, Items, Custom };
inline constexpr std::array AllCatalogueLists{CatalogueList::Services, CatalogueList::Items, CatalogueList::Custom};

/// The list's place in what has one element for each: `CatalogueLists::Entries`, and the invoice's description and
/// price boxes.
constexpr int ElementOf(CatalogueList list) {
  return static_cast<int>(list);
}

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

/// The catalogue fills it at each load; the invoice screen's lists show it.
struct CatalogueLists {
  std::array<std::vector<CatalogueEntry>, AllCatalogueLists.size()> Entries;  ///< By `ElementOf` their list.
  std::vector<CatalogueEntry>& EntriesOf(CatalogueList list) { return Entries.at(static_cast<std::size_t>(list)); }
  std::vector<QuantityBreak> ItemBreaks;    ///< `ItemDiscountPrice` and `ItemDiscountUnits`, indexed from 1.
  std::vector<QuantityBreak> CustomBreaks;  ///< `CustomDiscountPrice` and `CustomDiscountUnits`, indexed from 1.
  std::vector<QString> lstCategories;       ///< "All" first.
  /// Called after a list changed, with its element; the screens that show it listen. May be empty.
  std::vector<std::function<void(int element)>> Changed;

  void Announce(CatalogueList list) const {
    for (const auto& listener : Changed) listener(ElementOf(list));
  }
};

/// The three labor slots, as the catalogue screen's boxes hold them.
struct LaborRates {
  std::array<QString, 3> txtLabor;
  std::array<QString, 3> txtLaborRate;  ///< Text such as the currency format gives it.
};
