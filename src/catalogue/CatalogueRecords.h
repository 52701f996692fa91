/// The three record files of the price catalogue: fixed-length records, numbered from 1, little-endian, without gaps.
#pragma once

#include <QByteArray>
#include <QString>

#include "runtime/Currency.h"
#include "runtime/RecordFile.h"

/// A record file of the catalogue holds at most this many records.
inline constexpr int CatalogueLimit = 255;

namespace CatalogueFile {
inline QString Services() {
  return QStringLiteral("/Services.txt");
}
inline QString Items() {
  return QStringLiteral("/KVInventoriedItems.txt");
}
inline QString Custom() {
  return QStringLiteral("/CustomItems.txt");
}
inline QString Labor() {
  return QStringLiteral("/Labor.txt");
}
}  // namespace CatalogueFile

/// One service of `/Services.txt`.
struct ServiceRecord {
  static constexpr int Length = 72;
  static constexpr int ChargeWidth = 10;
  QString Description;
  QString Charge;        ///< The amount as the grid shows it.
  qint16 TimeIndex = 0;  ///< Position in `lstTime`.

  static ServiceRecord Read(const RecordView& record);
  QByteArray Bytes() const;
};

/// One sale item of `/KVInventoriedItems.txt`.
struct InventoryItemRecord {
  static constexpr int Length = 104;
  static constexpr int DescriptionWidth = 50;
  static constexpr int OnHandOffset = 86;
  QString Description;
  QString Category;
  Currency Cost;
  Currency Price;
  qint16 OnHand = 0;  ///< Lowered by each committed invoice.
  Currency DiscountPrice;
  qint32 DiscountQty = 0;  ///< 0 disables the discount.
  qint16 ReorderAmount = 0;
  qint16 ReorderAt = 0;

  static InventoryItemRecord Read(const RecordView& record);
  QByteArray Bytes() const;
};

/// One custom item of `/CustomItems.txt`.
struct CustomItemRecord {
  static constexpr int Length = 70;
  static constexpr int DescriptionWidth = 50;
  QString Description;
  Currency Price;
  Currency DiscountPrice;
  qint32 DiscountQty = 0;

  static CustomItemRecord Read(const RecordView& record);
  QByteArray Bytes() const;
};

/// The number of records that `content` makes, the last one rounded to the nearest. More than the limit throws
/// RuntimeError 6 that names the file and counts as damage of it.
int CatalogueRecordCount(const QByteArray& content, int recordLength, const QString& fileName);
