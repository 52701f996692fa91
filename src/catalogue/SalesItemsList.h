/// The tick list of product names: what the item sales report offers, and what the commit records as sold.
#pragma once

#include <QString>
#include <vector>

class CommonDiskRoutines;

struct SalesItem {
  QString Name;
  bool Ticked = false;
};

/// `lstSalesItems`: inventoried items, then custom items, in file order.
struct SalesItemsList {
  std::vector<SalesItem> Items;
};

/// Whether any entry is ticked.
bool AnyTicked(const SalesItemsList& list);

/// Fills the list from the two record files, each only if it exists. Ticks are kept by name. A file of more than 255
/// records throws RuntimeError 6 that names it.
void LoadSalesItems(SalesItemsList& list, CommonDiskRoutines& disk);
