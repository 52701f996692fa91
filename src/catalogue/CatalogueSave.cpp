#include "catalogue/Catalogue.h"
#include "catalogue/SalesItemsList.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

QString GridNameOf(CatalogueList list) {
  switch (list) {
    case CatalogueList::Services:
      return u"fgServices"_s;
    case CatalogueList::Items:
      return u"fgItems"_s;
    case CatalogueList::Custom:
      break;
  }
  return u"fgCustom"_s;
}

/// A grid of which no row has a description holds nothing to keep. One such row, as a damaged record gives it, sorts
/// first and must not take the others with it: nothing on disk is lost by a blank first row.
bool HoldsNothing(const TextMatrix& grid) {
  for (int row = 1; row < grid.Rows(); ++row) {
    if (!TrimBlanks(grid.Text(row, 0)).isEmpty()) return false;
  }
  return true;
}

}  // namespace

void Catalogue::SaveCatalogue() {
  for (const CatalogueList list : AllCatalogueLists) RequireRoom(list);
  SaveLists();
  LoadLists();
}

void Catalogue::SaveLists() {
  for (const CatalogueList list : AllCatalogueLists) SaveList(list);
}

void Catalogue::LoadLists() {
  if (m_disk.FileExists(CatalogueFile::Services())) LoadServices();
  if (m_disk.FileExists(CatalogueFile::Items())) LoadAdditionalItems();
  if (m_disk.FileExists(CatalogueFile::Custom())) LoadCustomItems();
  LoadSalesItems(m_salesItems, m_disk);
}

void Catalogue::RequireRoom(CatalogueList list) {
  const int count = Grid(list).Rows() - 1;
  if (count > CatalogueLimit) {
    throw RuntimeError(
        ErrorNumber::Overflow, CatalogueFileOf(list),
        u"The list holds %1 entries, and its file can take %2. Nothing was saved."_s.arg(count).arg(CatalogueLimit))
        .WithAdvice(u"Delete some first. Nothing was lost."_s);
  }
}

void Catalogue::SaveList(CatalogueList list) {
  const QString name = CatalogueFileOf(list);
  const TextMatrix& grid = Grid(list);
  if (HoldsNothing(grid)) {
    m_disk.KillWithBackup(name);
    return;
  }
  QByteArray content;
  content.reserve(qsizetype(grid.Rows() - 1) * CatalogueRecordLengthOf(list));
  for (int row = 1; row < grid.Rows(); ++row) {
    content += list == CatalogueList::Services ? ServiceBytes(row)
               : list == CatalogueList::Items  ? ItemBytes(row)
                                               : CustomBytes(row);
  }
  m_disk.CloseAllFiles();
  m_disk.SaveFile(name, content, BackupCopy::Dropped);
}

QByteArray Catalogue::ServiceBytes(int row) const {
  ServiceRecord record;
  record.Description = fgServices.Text(row, ServiceColumn::Description);
  record.Charge = fgServices.Text(row, ServiceColumn::Charge);
  const auto time = lstTime.indexOf(fgServices.Text(row, ServiceColumn::Time));
  record.TimeIndex = time < 0 ? qint16(0) : qint16(time);
  return record.Bytes();
}

QByteArray Catalogue::ItemBytes(int row) const {
  const QString name = CatalogueFile::Items();
  const auto text = [&](int col) -> const QString& { return fgItems.Text(row, col); };
  InventoryItemRecord record;
  record.Description = text(ItemColumn::Description);
  record.Category = text(ItemColumn::Category);
  record.Cost = Currency::FromText(text(ItemColumn::Cost), name);
  record.Price = Currency::FromText(text(ItemColumn::Price), name);
  record.OnHand = ToInt16(text(ItemColumn::OnHand), name);
  record.DiscountPrice = Currency::FromText(text(ItemColumn::DiscountPrice), name);
  record.DiscountQty = ToInt32(text(ItemColumn::DiscountQty), name);
  record.ReorderAmount = ToInt16(text(ItemColumn::ReorderAmount), name);
  record.ReorderAt = ToInt16(text(ItemColumn::ReorderAt), name);
  return record.Bytes();
}

QByteArray Catalogue::CustomBytes(int row) const {
  const QString name = CatalogueFile::Custom();
  CustomItemRecord record;
  record.Description = fgCustom.Text(row, CustomColumn::Description);
  record.Price = Currency::FromText(fgCustom.Text(row, CustomColumn::Price), name);
  record.DiscountPrice = Currency::FromText(fgCustom.Text(row, CustomColumn::DiscountPrice), name);
  record.DiscountQty = ToInt32(fgCustom.Text(row, CustomColumn::DiscountQty), name);
  return record.Bytes();
}

void Catalogue::PutRow(CatalogueList list, bool modifyMode, const QStringList& cells) {
  TextMatrix& grid = Grid(list);
  if (modifyMode && grid.Row() < 1) {
    throw RuntimeError(ErrorNumber::OutOfRange, GridNameOf(list),
                       u"No line of the list is selected. Select the line to modify, or click Add New."_s);
  }
  if (!modifyMode) grid.SetRows(grid.Rows() + 1);
  const int row = modifyMode ? grid.Row() : grid.Rows() - 1;
  // An added service doesn't become the current row, an added item does; this is meant.
  if (!modifyMode && list != CatalogueList::Services) grid.SetRow(row);
  for (int col = 0; col < int(cells.size()); ++col) grid.SetText(row, col, cells.at(col));
}

void Catalogue::DeleteRow(CatalogueList list) {
  TextMatrix& grid = Grid(list);
  const int row = grid.Row();
  if (row < 1) return;
  if (grid.Rows() > 2) {
    const QStringList deleted = grid.RemoveItem(row);
    // As a loaded grid has it, whatever fails: Delete is still live, and pressed again it must not hit the row behind.
    grid.SetRow(0);
    // An overfull list shrinks, row by row, though nothing can be saved yet.
    RequireRoom(list);
    try {
      for (const CatalogueList each : AllCatalogueLists) RequireRoom(each);
      SaveLists();
    } catch (const RuntimeError&) {
      grid.InsertItem(row, deleted);
      grid.SetRow(row);
      throw;
    }
    LoadLists();
    return;
  }
  m_disk.KillWithBackup(CatalogueFileOf(list));
  const int shown = list == CatalogueList::Services ? 3 : 2;
  for (int col = 0; col < shown; ++col) grid.SetText(row, col, {});
  grid.SetRows(1);
  grid.SetRow(0);
}
