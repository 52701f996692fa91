/// An invoice read back from its image, partial or completed: what src/invoice/InvoiceImage writes.
#pragma once

#include <array>
#include <QStringList>
#include <vector>

class CommonDiskRoutines;

struct StoredInvoice {
  std::array<QString, 6> SoldTo;
  std::array<QString, 6> ShipTo;
  QString ShipVia;  ///< Of a completed invoice, as the next.
  QString ShipDate;
  QString InvoiceNo;
  QString Acct;
  QString Reference;
  QString Attention;
  std::vector<QStringList> Lines;  ///< `LineColumn::Count` cells each.
  /// Of a completed invoice, as currency text in the image's order: sub-total, first tax, second tax, grand total,
  /// shipping, handling, discount.
  std::array<QString, 7> Amounts;
};

/// Reads an image whole. Throws RuntimeErrors of the event that name the file: 62 for one that is shorter than its
/// count, 13 where the count or an amount isn't one, 9 for a count that is negative, 6 for a number too large. A
/// partial one, which becomes the invoice in the making, has no more lines than that holds, or it is error 9 too.
StoredInvoice ReadPartialImage(CommonDiskRoutines& disk, const QString& name);
StoredInvoice ReadCompletedImage(CommonDiskRoutines& disk, const QString& name);
