#include "catalogue/CatalogueRecords.h"

#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

ServiceRecord ServiceRecord::Read(const RecordView& record) {
  return {record.Text(0, 60), record.Text(60, ChargeWidth), record.Int16(70)};
}

QByteArray ServiceRecord::Bytes() const {
  return RecordBuilder(Length).Text(0, 60, Description).Text(60, ChargeWidth, Charge).Int16(70, TimeIndex).Record();
}

InventoryItemRecord InventoryItemRecord::Read(const RecordView& record) {
  return {record.Text(0, DescriptionWidth),
          record.Text(50, 20),
          record.Amount(70),
          record.Amount(78),
          record.Int16(OnHandOffset),
          record.Amount(88),
          record.Int32(96),
          record.Int16(100),
          record.Int16(102)};
}

QByteArray InventoryItemRecord::Bytes() const {
  return RecordBuilder(Length)
      .Text(0, DescriptionWidth, Description)
      .Text(50, 20, Category)
      .Amount(70, Cost)
      .Amount(78, Price)
      .Int16(OnHandOffset, OnHand)
      .Amount(88, DiscountPrice)
      .Int32(96, DiscountQty)
      .Int16(100, ReorderAmount)
      .Int16(102, ReorderAt)
      .Record();
}

CustomItemRecord CustomItemRecord::Read(const RecordView& record) {
  return {record.Text(0, DescriptionWidth), record.Amount(50), record.Amount(58), record.Int32(66)};
}

QByteArray CustomItemRecord::Bytes() const {
  return RecordBuilder(Length)
      .Text(0, DescriptionWidth, Description)
      .Amount(50, Price)
      .Amount(58, DiscountPrice)
      .Int32(66, DiscountQty)
      .Record();
}

int CatalogueRecordCount(const QByteArray& content, int recordLength, const QString& fileName) {
  const int count = RecordCountOf(content.size(), recordLength, fileName);
  if (count > CatalogueLimit) {
    throw RuntimeError(ErrorNumber::Overflow, fileName,
                       u"The file holds %1 records; the catalogue can take %2."_s.arg(count).arg(CatalogueLimit),
                       RuntimeError::Origin::FileContent);
  }
  return count;
}
