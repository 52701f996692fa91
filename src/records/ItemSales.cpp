#include "records/ItemSales.h"

#include <array>
#include <QHash>

#include "catalogue/SalesItemsList.h"
#include "invoice/SoldItemRecord.h"
#include "records/SalesRange.h"
#include "runtime/Dates.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

enum SalesColumn { Name, Date, InvoiceNo, Units };

void Blank(TextMatrix& grid) {
  grid.Clear();
  grid.SetRows(2);
  grid.SetRow(1);
}

struct TickedName {
  QString Name;
  int Times = 0;  ///< How often it is ticked.
};

/// What is ticked, by name, so that one look-up a record finds all entries that equal it.
QHash<QString, TickedName> TickedNames(const SalesItemsList& list) {
  QHash<QString, TickedName> names;
  for (const SalesItem& item : list.Items) {
    if (!item.Ticked) continue;
    TickedName& name = names[TrimBlanks(item.Name)];
    name.Name = TrimBlanks(item.Name);
    ++name.Times;
  }
  return names;
}

/// The cells of a record. Lines of one invoice stand together, and few numbers of units are sold again and again: their
/// texts are made once and shared.
class RowTexts {
 public:
  QStringList Of(const RecordView& record, double date, const QString& name) {
    QStringList cells;
    cells.reserve(4);
    cells << name << DateText(date) << InvoiceText(record) << UnitsText(record.Int16(SoldItemRecord::Quantity));
    return cells;
  }

 private:
  const QString& DateText(double dayCount) {
    if (m_date.isEmpty() || dayCount != m_dayCount) {
      m_dayCount = dayCount;
      m_date = ShortDateText(FromDayCount(dayCount));
    }
    return m_date;
  }
  const QString& InvoiceText(const RecordView& record) {
    const QByteArrayView bytes = record.TextBytes(SoldItemRecord::InvoiceNo, SoldItemRecord::InvoiceNoWidth);
    if (bytes != m_invoiceBytes) {
      m_invoiceBytes = bytes;
      m_invoice = record.Text(SoldItemRecord::InvoiceNo, SoldItemRecord::InvoiceNoWidth);
    }
    return m_invoice;
  }
  QString UnitsText(qint16 units) {
    if (units < 0 || units >= static_cast<qint16>(m_units.size())) return QString::number(units);
    QString& text = m_units[static_cast<std::size_t>(units)];
    if (text.isEmpty()) text = QString::number(units);
    return text;
  }

  double m_dayCount = 0;
  QString m_date;
  QByteArrayView m_invoiceBytes;  ///< In the buffer that the scan walks over.
  QString m_invoice;
  std::array<QString, 100> m_units;
};

qint16 Added(qint16 total, const QString& units, const QString& name) {
  try {
    return ToInt16(static_cast<double>(total) + ToNumber(units, name), name);
  } catch (const RuntimeError& error) {
    throw error.WithAdvice(
        u"No total can be beyond 32,767 units. Choose a shorter range of dates. Nothing was lost."_s);
  }
}

}  // namespace

ItemSales::ItemSales()
    : fgSalesItems(u"<Description                               |^Date            |^Invoice Number|^Units Sold"_s, 2),
      fgTotals(u"Product Description                        |^Units Sold       "_s, 2) {
  ClearSalesGrids(*this);
}

void ClearSalesGrids(ItemSales& sales) {
  Blank(sales.fgSalesItems);
  Blank(sales.fgTotals);
}

SalesFound LoadSalesGrid(ItemSales& sales, SalesRange& range, const SalesItemsList& list, CommonDiskRoutines& disk,
                         const Progress& progress) {
  const QString fileName = u"\\SoldItems.txt"_s;
  if (!disk.FileExists(fileName)) return SalesFound::NoFile;
  ClearSalesGrids(sales);
  range.TakeFromPickers();
  const RecordBuffer records = disk.OpenRandomFile(fileName, SoldItemRecord::Length).ReadAll();
  // Recording an invoice doesn't ask how many there are, so there may be more than a record count can hold.
  const qint64 count = RecordsIn(records.Content().size(), SoldItemRecord::Length);
  disk.CloseAllFiles();
  const QHash<QString, TickedName> ticked = TickedNames(list);
  std::vector<QStringList> rows;
  RowTexts texts;
  for (qint64 number = 1; number <= count; ++number) {
    if (!GoesOn(progress, number, count)) return SalesFound::Stopped;
    const RecordView record = records.Record(number);
    // Both ends belong to the range; a time of day counts, so one on the last day lies behind it.
    const double date = record.Double(SoldItemRecord::SaleDate);
    if (!(date >= range.StartDate && date <= range.EndDate)) continue;
    const auto found = ticked.constFind(record.Text(SoldItemRecord::Description, SoldItemRecord::DescriptionWidth));
    if (found == ticked.constEnd()) continue;
    for (int times = 0; times < found->Times; ++times) rows.push_back(texts.Of(record, date, found->Name));
  }
  if (rows.empty()) return SalesFound::Nothing;
  TextMatrix& grid = sales.fgSalesItems;
  rows.emplace_back(grid.Cols(), QString());
  grid.AssignRows(std::move(rows));
  grid.SetRow(grid.Rows() - 1);
  return SalesFound::Some;
}

bool BuildSalesTotals(ItemSales& sales, const SalesItemsList& list, const Progress& progress) {
  QStringList ticked;
  for (const SalesItem& item : list.Items) {
    if (item.Ticked) ticked.append(TrimBlanks(item.Name));
  }
  // Where each name stands, so that no entry has to pass over the whole grid.
  const TextMatrix& grid = sales.fgSalesItems;
  QHash<QString, std::vector<int>> rowsOf;
  for (int row = 1; row <= grid.Rows() - 2; ++row) rowsOf[grid.Text(row, Name)].push_back(row);

  const auto slotCount = static_cast<int>(ticked.size());
  // One slot more, counted from 1: where every entry matched, the last one moves on all the same.
  std::vector<qint16> totals(static_cast<std::size_t>(slotCount) + 2);
  std::vector<QString> names(totals.size());
  std::size_t slot = 1;
  qint64 done = 0;
  qint64 all = 0;
  for (const QString& name : ticked) all += static_cast<qint64>(rowsOf[name].size());
  for (const QString& name : ticked) {
    const std::vector<int>& rows = rowsOf[name];
    if (rows.empty()) continue;
    for (const int row : rows) {
      if (!GoesOn(progress, ++done, all)) {
        ClearSalesGrids(sales);
        return false;
      }
      names[slot] = name;
      totals[slot] = Added(totals[slot], grid.Text(row, Units), name);
    }
    ++slot;
  }

  TextMatrix& shown = sales.fgTotals;
  shown.SetRows(slotCount + 1);
  for (int row = 1; row <= slotCount; ++row) {
    const auto at = static_cast<std::size_t>(row);
    // A slot without a name takes the last row away. That is meant, also where a product's own name is blank.
    if (names[at].isEmpty()) {
      shown.SetRows(shown.Rows() - 1);
    } else {
      shown.SetText(row, 0, names[at]);
      shown.SetText(row, 1, QString::number(totals[at]));
    }
  }
  shown.SetCol(0);
  return true;
}
