/// What was sold of the ticked products between two dates: invoice by invoice, and in total.
#pragma once

#include "runtime/Progress.h"
#include "runtime/TextMatrix.h"

class CommonDiskRoutines;
struct SalesItemsList;
struct SalesRange;

struct ItemSales {
  ItemSales();

  TextMatrix fgSalesItems;  ///< A row for each record that matches, and an empty one behind them, which is current.
  TextMatrix fgTotals;
};

/// Blanks both grids: one empty row each, which is current.
void ClearSalesGrids(ItemSales& sales);

enum class SalesFound { NoFile, Nothing, Some, Stopped };

/// Fills `fgSalesItems` with the records of the range whose name is ticked, in file order; a name that is ticked twice
/// gives its records twice. Takes the range from the pickers. Without the file the grids stay; stopped, they are blank.
/// The file may hold any number of records.
SalesFound LoadSalesGrid(ItemSales& sales, SalesRange& range, const SalesItemsList& list, CommonDiskRoutines& disk,
                         const Progress& progress = {});

/// Fills `fgTotals` with the units of each ticked product that stands in `fgSalesItems`, in list order. A total is a
/// 16-bit number at each step: beyond that, RuntimeError 6 that names the product. False where it was stopped; both
/// grids are blank then.
bool BuildSalesTotals(ItemSales& sales, const SalesItemsList& list, const Progress& progress = {});
