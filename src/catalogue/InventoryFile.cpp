#include "catalogue/InventoryFile.h"

#include "catalogue/CatalogueRecords.h"
#include "runtime/Numbers.h"

using namespace Qt::StringLiterals;

InventoryFile::InventoryFile(CommonDiskRoutines& disk)
    : m_file(disk.OpenRandomFile(CatalogueFile::Items(), InventoryItemRecord::Length)), m_records(m_file.ReadAll()) {
  const int count = CatalogueRecordCount(m_records.Content(), InventoryItemRecord::Length, CatalogueFile::Items());
  for (int number = 1; number <= count; ++number) {
    const QString name = m_records.Record(number).Text(0, InventoryItemRecord::DescriptionWidth);
    if (!m_firstOfName.contains(name)) m_firstOfName.insert(name, number);
  }
}

InventoryFile::Stock InventoryFile::Lower(const QString& name, double units) {
  const auto found = m_firstOfName.constFind(name);
  if (found == m_firstOfName.constEnd()) return Stock::NoSuchItem;
  const int number = found.value();
  const QByteArrayView held = m_records.Bytes(number);
  InventoryItemRecord record = InventoryItemRecord::Read(RecordView(held));
  const qint16 onHand = m_lowered.value(number, record.OnHand);
  const qint16 left = ToInt16(double(onHand) - double(ToInt16(units, u"Quantity"_s)), CatalogueFile::Items());
  record.OnHand = left < 0 ? qint16(0) : left;
  // A whole record keeps every other byte as it stands; one that the file cut short is filled up.
  const QByteArray bytes = held.size() < InventoryItemRecord::Length
                               ? record.Bytes()
                               : RecordBuilder(InventoryItemRecord::Length)
                                     .Bytes(0, held)
                                     .Int16(InventoryItemRecord::OnHandOffset, record.OnHand)
                                     .Record();
  m_file.Put(number, bytes);
  m_lowered.insert(number, record.OnHand);
  return left < 0 ? Stock::RanShort : Stock::Enough;
}
