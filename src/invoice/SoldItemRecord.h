/// The record of /SoldItems.txt: a line of an invoice as the commit writes it and the item sales read it.
#pragma once

namespace SoldItemRecord {
inline constexpr int Length = 90;
inline constexpr int Description = 0;
inline constexpr int DescriptionWidth = 60;
inline constexpr int SaleDate = 60;
inline constexpr int InvoiceNo = 68;
inline constexpr int InvoiceNoWidth = 20;
inline constexpr int Quantity = 88;
}  // namespace SoldItemRecord
