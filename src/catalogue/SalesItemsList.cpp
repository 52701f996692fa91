#include "catalogue/SalesItemsList.h"

#include <algorithm>
#include <QSet>

#include "catalogue/CatalogueRecords.h"
#include "shell/CommonDiskRoutines.h"

namespace {

void AddNames(std::vector<SalesItem>& items, CommonDiskRoutines& disk, const QString& fileName, int recordLength,
              int nameWidth) {
  if (!disk.FileExists(fileName)) return;
  const RecordBuffer records = disk.OpenRandomFile(fileName, recordLength).ReadAll();
  const int count = CatalogueRecordCount(records.Content(), recordLength, fileName);
  for (int number = 1; number <= count; ++number) items.push_back({records.Record(number).Text(0, nameWidth), false});
  disk.CloseAllFiles();
}

}  // namespace

bool AnyTicked(const SalesItemsList& list) {
  return std::any_of(list.Items.begin(), list.Items.end(), [](const SalesItem& item) { return item.Ticked; });
}

void LoadSalesItems(SalesItemsList& list, CommonDiskRoutines& disk) {
  std::vector<SalesItem> items;
  AddNames(items, disk, CatalogueFile::Items(), InventoryItemRecord::Length, InventoryItemRecord::DescriptionWidth);
  AddNames(items, disk, CatalogueFile::Custom(), CustomItemRecord::Length, CustomItemRecord::DescriptionWidth);
  QSet<QString> ticked;
  for (const SalesItem& item : list.Items) {
    if (item.Ticked) ticked.insert(item.Name);
  }
  for (SalesItem& item : items) item.Ticked = ticked.contains(item.Name);
  list.Items = std::move(items);
}
