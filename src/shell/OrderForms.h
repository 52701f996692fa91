/// The ordering menus of the main menu and of Setup: what each entry asks, and which supplier's page it opens.
#pragma once

#include <QString>
#include <vector>

class CommonDiskRoutines;
class Dialogs;

struct OrderEntry {
  QString Name;      ///< Of the menu entry.
  QString Text;      ///< What the menu shows.
  QString Page;      ///< The supplier's page, in the program's folder.
  QString Question;  ///< Asked before the page opens; empty where it opens at once.
  QString Caption;   ///< Of the question's box.
};

/// Entries that open their page at once; they stand under the heading `mnuDeluxeForms`.
std::vector<OrderEntry> DeluxeOrderEntries();
/// Entries that explain the product first.
std::vector<OrderEntry> AskingOrderEntries();

/// Runs an entry: asks where it must, and opens the supplier's page on Yes. `programFolder` holds the pages.
void RunOrderEntry(const OrderEntry& entry, const QString& programFolder, CommonDiskRoutines& disk, Dialogs& dialogs);
