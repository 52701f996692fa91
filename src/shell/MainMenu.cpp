#include "shell/MainMenu.h"

#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

MainMenuState UpdateMainMenu(const MainMenuContext& context) {
  CommonDiskRoutines& disk = context.Disk;
  MainMenuState state;
  state.Visible[3] = true;
  // Both are always asked for: each gets its restore.
  const bool services = disk.FileExists(u"/Services.txt"_s);
  const bool items = disk.FileExists(u"/KVInventoriedItems.txt"_s);
  if (!services && !items) {
    state.Instructions = true;
    return state;
  }
  state.Visible[0] = true;
  state.Selected = 0;
  state.Incomplete = QString::number(context.LoadPartialList());
  state.Visible[1] = state.Incomplete != u"0";
  state.Visible[2] = disk.AnyFileMatches(u"/CompletedInvoices"_s, u"*.txt"_s);
  state.Visible[4] = disk.FileExists(u"/InvoiceSalesJournal.txt"_s);
  state.Visible[5] = disk.FileExists(u"\\SoldItems.txt"_s);
  // Tested by the tax records although it opens the blank invoices: that is meant.
  state.Visible[6] = disk.FileExists(u"/TaxRecords.txt"_s);
  return state;
}
