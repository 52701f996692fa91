/// A random invoice as it must come out: its lines and amounts by exact arithmetic, and from them what must stand in
/// the grid, on the page and in each file that the commit writes. Nothing here is asked of the program.
#pragma once

#include <QList>
#include <QMap>
#include <QStringList>

namespace Oracle {

/// What stays the same from invoice to invoice, and what the lines may be of.
inline const QString Account = QStringLiteral("1001");
inline const QString Customer = QStringLiteral("Bay Farm");
inline const QString Number = QStringLiteral("7");
inline const QString Today = QStringLiteral("3/7/2026");
inline const QString TaxHeadings[] = {QStringLiteral("Sales Tax"), QStringLiteral("County Tax")};
inline const QString StockedItem = QStringLiteral("Rope");
inline const QString CustomItem = QStringLiteral("Sail");

struct Line {
  QString Quantity = {};
  QString Description = {};
  QString Date = {};
  qint64 Price = 0;
  qint64 Extension = 0;
  bool Taxed = false;
  qint64 Hundredths = 0;  ///< The quantity as a number.

  QStringList Cells() const;
  /// What the page shows of it: all but the last cell.
  QStringList Printed() const { return Cells().first(5); }
};

struct Invoice {
  QList<Line> Lines;
  qint64 SubTotal = 0;
  qint64 Taxable = 0;
  qint64 Tax1 = 0;
  qint64 Tax2 = 0;
  qint64 Ship = 0;
  qint64 Misc = 0;
  qint64 Flat = 0;     ///< Deducted.
  qint64 Offered = 0;  ///< For early payment; not deducted.
  qint64 GrandTotal = 0;
  bool Prepaid = false;
  int OnHand = 0;               ///< Of the stocked item, before the commit.
  bool CustomIsListed = false;  ///< Among the products whose sales are recorded; the stocked item always is.

  /// The text of the discount's box.
  QString Discount() const;
  /// The rows of the page's summary, label and amount.
  QStringList Summary() const;
};

/// The inventory: the stocked item with this many units between two others.
QByteArray Inventory(int onHand);
/// Every file of the tree after the commit, by its root-relative name.
QMap<QString, QByteArray> StoresAfter(const Invoice& invoice);

}  // namespace Oracle
