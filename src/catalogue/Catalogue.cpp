#include "catalogue/Catalogue.h"

#include "catalogue/SalesItemsList.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

/// The data word of a service: its charge in whole units. A charge that doesn't convert leaves 0.
int WholeCharge(const QString& charge) {
  try {
    return ToInt32(charge);
  } catch (const RuntimeError&) {
    return 0;
  }
}

QString Digits(qint32 number) {
  return QString::number(number);
}

void FillRow(TextMatrix& grid, int row, const QStringList& cells) {
  for (int col = 0; col < int(cells.size()); ++col) grid.SetText(row, col, cells.at(col));
}

}  // namespace

QStringList BuildTimeList() {
  QStringList times;
  for (int hour = 0; hour < 8; ++hour) {
    for (const auto quarter : {"00"_L1, "15"_L1, "30"_L1, "45"_L1}) times << u"%1:%2"_s.arg(hour).arg(quarter);
  }
  return times << u"8:00"_s;
}

QString CatalogueFileOf(CatalogueList list) {
  switch (list) {
    case CatalogueList::Services:
      return CatalogueFile::Services();
    case CatalogueList::Items:
      return CatalogueFile::Items();
    case CatalogueList::Custom:
      break;
  }
  return CatalogueFile::Custom();
}

int CatalogueRecordLengthOf(CatalogueList list) {
  switch (list) {
    case CatalogueList::Services:
      return ServiceRecord::Length;
    case CatalogueList::Items:
      return InventoryItemRecord::Length;
    case CatalogueList::Custom:
      break;
  }
  return CustomItemRecord::Length;
}

Catalogue::Catalogue(CommonDiskRoutines& disk, CatalogueLists& lists, SalesItemsList& salesItems)
    : fgServices(u"<Service Description                        |>Charge          |^Allotted Time   "_s),
      fgItems(
          u"<Description                  |<Category          |>Cost (Unit)  |>Price       |>On-Hand  "
          "|>Disc Price   |>Disc Qty  |>Reorder  |>When At  "_s),
      fgCustom(
          u"<Description                                |>Price          |>Discount Price    "
          "|>Discount Qty    "_s),
      lstTime(BuildTimeList()),
      m_disk(disk),
      m_lists(lists),
      m_salesItems(salesItems) {
  m_commands.fill(true);
  // Live only once there is something to modify, delete, clear or load again.
  using namespace CatalogueCommand;
  for (const int index :
       {DeleteService, ModifyService, ModifyItem, DeleteItem, ClearItem, ReloadLabor, ModifyCustom, DeleteCustom}) {
    m_commands.at(static_cast<std::size_t>(index)) = false;
  }
}

TextMatrix& Catalogue::Grid(CatalogueList list) {
  switch (list) {
    case CatalogueList::Services:
      return fgServices;
    case CatalogueList::Items:
      return fgItems;
    case CatalogueList::Custom:
      break;
  }
  return fgCustom;
}

void Catalogue::EnableCommand(int index, bool enabled) {
  m_commands.at(static_cast<std::size_t>(index)) = enabled;
  if (CommandChanged) CommandChanged(index);
}

void Catalogue::Load() {
  LoadLabor();
  if (m_disk.FileExists(CatalogueFile::Services())) LoadServices();
  if (m_disk.FileExists(CatalogueFile::Items())) LoadAdditionalItems();
  if (m_disk.FileExists(CatalogueFile::Custom())) LoadCustomItems();
}

RecordBuffer Catalogue::ReadFile(CatalogueList list) {
  RecordBuffer records = m_disk.OpenRandomFile(CatalogueFileOf(list), CatalogueRecordLengthOf(list)).ReadAll();
  m_disk.CloseAllFiles();
  return records;
}

void Catalogue::LoadServices() {
  const RecordBuffer records = ReadFile(CatalogueList::Services);
  const int count = CatalogueRecordCount(records.Content(), ServiceRecord::Length, CatalogueFile::Services());
  EnableCommand(CatalogueCommand::ModifyService, true);
  fgServices.SetRows(count + 1);
  for (int number = 1; number <= count; ++number) {
    const ServiceRecord record = ServiceRecord::Read(records.Record(number));
    // No allotted time comes back as a quarter of an hour, which is meant.
    const int time = record.TimeIndex == 0 ? 1 : record.TimeIndex;
    FillRow(fgServices, number, {record.Description, record.Charge, lstTime.value(time)});
  }
  fgServices.SortTextIgnoringCase(ServiceColumn::Description);
  std::vector<CatalogueEntry>& entries = m_lists.EntriesOf(CatalogueList::Services);
  entries.clear();
  for (int row = 1; row <= count; ++row) {
    const QString& charge = fgServices.Text(row, ServiceColumn::Charge);
    entries.push_back({fgServices.Text(row, ServiceColumn::Description), WholeCharge(charge), charge});
  }
  // The grid, and with it the file's next image, is ordered otherwise than the invoice's list; this is meant.
  fgServices.SortGenericAscending(ServiceColumn::Description);
  fgServices.SetRow(0);
  m_lists.Announce(CatalogueList::Services);
}

void Catalogue::ClearItemLists() {
  m_categories.clear();
  m_categorySet.clear();
  m_lists.EntriesOf(CatalogueList::Items).clear();
  m_lists.lstCategories = {u"All"_s};
  if (CategoriesCleared) CategoriesCleared();
}

void Catalogue::LoadAdditionalItems() {
  const RecordBuffer records = ReadFile(CatalogueList::Items);
  const int count = CatalogueRecordCount(records.Content(), InventoryItemRecord::Length, CatalogueFile::Items());
  ClearItemLists();
  EnableCommand(CatalogueCommand::ModifyItem, true);
  m_lists.ItemBreaks.assign(static_cast<std::size_t>(count) + 1, {});
  fgItems.SetRows(count + 1);
  for (int number = 1; number <= count; ++number) {
    m_itemRecord = InventoryItemRecord::Read(records.Record(number));
    const InventoryItemRecord& record = m_itemRecord;
    const QString price = CurrencyText(record.Price);
    FillRow(fgItems, number,
            {record.Description, record.Category, CurrencyText(record.Cost), price, Digits(record.OnHand),
             CurrencyText(record.DiscountPrice), Digits(record.DiscountQty), Digits(record.ReorderAmount),
             Digits(record.ReorderAt)});
    AddCategory(record.Category);
    m_lists.EntriesOf(CatalogueList::Items).push_back({record.Description, number - 1, price});
    m_lists.ItemBreaks[static_cast<std::size_t>(number)] = {record.DiscountPrice, record.DiscountQty};
  }
  fgItems.SortGenericAscending(ItemColumn::Category);
  fgItems.SetRow(0);
  m_lists.Announce(CatalogueList::Items);
}

void Catalogue::LoadCustomItems() {
  const RecordBuffer records = ReadFile(CatalogueList::Custom);
  const int count = CatalogueRecordCount(records.Content(), CustomItemRecord::Length, CatalogueFile::Custom());
  m_lists.EntriesOf(CatalogueList::Custom).clear();
  EnableCommand(CatalogueCommand::ModifyCustom, true);
  m_lists.CustomBreaks.assign(static_cast<std::size_t>(count) + 1, {});
  fgCustom.SetRows(count + 1);
  for (int number = 1; number <= count; ++number) {
    const CustomItemRecord record = CustomItemRecord::Read(records.Record(number));
    const QString price = CurrencyText(record.Price);
    FillRow(fgCustom, number,
            {record.Description, price, CurrencyText(record.DiscountPrice), Digits(record.DiscountQty)});
    m_lists.EntriesOf(CatalogueList::Custom).push_back({record.Description, number - 1, price});
    m_lists.CustomBreaks[static_cast<std::size_t>(number)] = {record.DiscountPrice, record.DiscountQty};
  }
  fgCustom.SortGenericAscending(CustomColumn::Description);
  fgCustom.SetRow(0);
  m_lists.Announce(CatalogueList::Custom);
}

void Catalogue::AddCategory(const QString& category) {
  if (category.isEmpty() || m_categorySet.contains(category)) return;
  m_categorySet.insert(category);
  m_categories << category;
  m_lists.lstCategories.push_back(m_itemRecord.Category);
  if (CategoryAdded) CategoryAdded(category);
}

void Catalogue::ListCategory(const QString& category) {
  std::vector<CatalogueEntry>& entries = m_lists.EntriesOf(CatalogueList::Items);
  entries.clear();
  m_lists.ItemBreaks.assign(1, {});
  for (int row = 1; row < fgItems.Rows(); ++row) {
    if (fgItems.Text(row, ItemColumn::Category) != category) continue;
    m_lists.ItemBreaks.push_back(
        {Currency::FromText(fgItems.Text(row, ItemColumn::DiscountPrice), CatalogueFile::Items()),
         ToInt32(fgItems.Text(row, ItemColumn::DiscountQty), CatalogueFile::Items())});
    entries.push_back(
        {fgItems.Text(row, ItemColumn::Description), int(entries.size()) + 1, fgItems.Text(row, ItemColumn::Price)});
  }
  m_lists.Announce(CatalogueList::Items);
}
