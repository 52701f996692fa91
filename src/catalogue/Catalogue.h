/// The price catalogue in hand: services, inventoried items, custom items and labor rates, as the grids of the
/// catalogue screen hold them. It is loaded at start and lives whether or not that screen is built.
///
/// A record file is only the image of a grid: a load fills the grid and the lists of the invoice from it, a save
/// writes it whole from the grid, in grid order, and loads it again.
#pragma once

#include <array>
#include <functional>
#include <QSet>
#include <QString>
#include <QStringList>
#include <vector>

#include "catalogue/CatalogueCommands.h"
#include "catalogue/CatalogueLists.h"
#include "catalogue/CatalogueRecords.h"
#include "runtime/TextMatrix.h"

class CommonDiskRoutines;
struct SalesItemsList;

/// Columns of the three grids; all cells are text.
namespace ServiceColumn {
enum { Description, Charge, Time, Count };
}
namespace ItemColumn {
enum { Description, Category, Cost, Price, OnHand, DiscountPrice, DiscountQty, ReorderAmount, ReorderAt, Count };
}
namespace CustomColumn {
enum { Description, Price, DiscountPrice, DiscountQty, Count };
}

/// The 33 entries of `lstTime`: 0:00 to 8:00 by quarters of an hour.
QStringList BuildTimeList();

class Catalogue {
 public:
  /// What it is given must outlive it. `lists` is filled at each load, `salesItems` after each save.
  Catalogue(CommonDiskRoutines& disk, CatalogueLists& lists, SalesItemsList& salesItems);

  /// What happens at start: the labor rates, then each record file that exists.
  void Load();

  /// Each of the four replaces what it fills. A file that can't be read as what it must be throws and changes nothing.
  /// A loaded grid is sorted anew and has no current row: a Save that meant the row before must not hit another.
  void LoadServices();
  void LoadAdditionalItems();
  void LoadCustomItems();
  void LoadLabor();

  /// Writes the three record files and loads again those that exist. An empty grid leaves no file and no backup copy.
  /// A grid beyond the limit throws RuntimeError 6 that names the file before any file is touched; a cell that
  /// doesn't convert throws 13 or 6, its file and those behind it untouched.
  void SaveCatalogue();
  void SaveLabor();

  /// Puts cells into the current row of a grid (`modifyMode`) or into a row added for them. Throws RuntimeError 9
  /// where there is no current row to modify.
  void PutRow(CatalogueList list, bool modifyMode, const QStringList& cells);
  /// Removes the current row and saves; the only row goes together with its file. Nothing without a current row. Where
  /// a file can't be saved the row stays, and stays the current one; of a grid beyond the limit it goes all the same.
  void DeleteRow(CatalogueList list);

  /// Offers a category unless it is offered already; case counts. `lstCategories` gets the category of the item
  /// record last read, which at a load is the same.
  void AddCategory(const QString& category);
  /// Narrows the invoice's item lists and quantity breaks to one category, from the grid; the data words run from 1.
  void ListCategory(const QString& category);

  TextMatrix& Grid(CatalogueList list);
  TextMatrix fgServices;
  TextMatrix fgItems;
  TextMatrix fgCustom;
  const QStringList lstTime;
  const QStringList& cboCategory() const { return m_categories; }
  LaborRates Labor;

  /// Which of the screen's buttons are live. Loads make some of them so, also before there is a screen.
  bool CommandEnabled(int index) const { return m_commands.at(static_cast<std::size_t>(index)); }
  void EnableCommand(int index, bool enabled);

  // The screen listens, once it is built.
  std::function<void(int index)> CommandChanged;
  std::function<void()> CategoriesCleared;
  std::function<void(const QString& category)> CategoryAdded;
  std::function<void()> LaborLoaded;

 private:
  RecordBuffer ReadFile(CatalogueList list);
  void ClearItemLists();
  void RequireRoom(CatalogueList list);
  void SaveLists();
  void LoadLists();
  void SaveList(CatalogueList list);
  QByteArray ServiceBytes(int row) const;
  QByteArray ItemBytes(int row) const;
  QByteArray CustomBytes(int row) const;

  CommonDiskRoutines& m_disk;
  CatalogueLists& m_lists;
  SalesItemsList& m_salesItems;
  QStringList m_categories;
  QSet<QString> m_categorySet;
  InventoryItemRecord m_itemRecord;  ///< The one record buffer of the items: the record last read.
  std::array<bool, CatalogueCommand::Count> m_commands;
};

/// Name and record length of a list's file.
QString CatalogueFileOf(CatalogueList list);
int CatalogueRecordLengthOf(CatalogueList list);
