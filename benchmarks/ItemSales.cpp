#include "records/ItemSales.h"

#include <QHash>
#include <QTemporaryDir>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Trees.h"
#include "catalogue/SalesItemsList.h"
#include "invoice/SoldItemRecord.h"
#include "records/SalesRange.h"
#include "runtime/Dates.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

class SoldYear {
 public:
  SoldYear() : m_store(m_files), m_disk(m_store, m_tree.path(), u"KarvexInvoicer"_s) {
    FillTree(m_tree.path(), 1, Limit::Catalogue, 0);
    LoadSalesItems(m_list, m_disk);
    for (SalesItem& item : m_list.Items) item.Ticked = true;
    m_range.DTPicker1 = {QDate(2026, 1, 1), QDate(2026, 12, 31)};
    QByteArray records;
    for (int i = 0; i < RecordLimit; ++i) {
      using namespace SoldItemRecord;
      const auto item = static_cast<std::size_t>(i * 7919LL % static_cast<qint64>(m_list.Items.size()));
      records += RecordBuilder(Length)
                     .Text(Description, DescriptionWidth, m_list.Items[item].Name)
                     .Double(SaleDate, ToDayCount(QDate(2026, 1, 1).addDays(i * 365LL / RecordLimit)))
                     .Text(InvoiceNo, InvoiceNoWidth, QString::number(20260000 + i / 8))
                     .Int16(Quantity, static_cast<qint16>(1 + i % 9))
                     .Record();
    }
    m_store.ReplaceWhole(File(), records);
  }

  void Load() { LoadSalesGrid(m_sales, m_range, m_list, m_disk); }

  /// What has to be done at least: each record's date compared and its name looked up.
  void Pass() {
    QHash<QString, int> names;
    for (const SalesItem& item : m_list.Items) ++names[item.Name];
    const RecordBuffer records(m_store.ReadWhole(File()), SoldItemRecord::Length);
    const double start = ToDayCount(m_range.DTPicker1[0]);
    const double end = ToDayCount(m_range.DTPicker1[1]);
    m_found = 0;
    for (int number = 1; number <= RecordLimit; ++number) {
      const RecordView record = records.Record(number);
      const double date = record.Double(SoldItemRecord::SaleDate);
      if (date < start || date > end) continue;
      m_found += names.value(record.Text(SoldItemRecord::Description, SoldItemRecord::DescriptionWidth));
    }
  }
  bool Agrees() const { return m_found == m_sales.fgSalesItems.Rows() - 2; }

 private:
  QString File() const { return m_tree.path() + u"/SoldItems.txt"_s; }

  QTemporaryDir m_tree;
  FileDevice m_files;
  FileStore m_store;
  CommonDiskRoutines m_disk;
  SalesItemsList m_list;
  SalesRange m_range;
  ItemSales m_sales;
  int m_found = 0;
};

}  // namespace

void MeasureItemSales() {
  SoldYear year;
  const auto pass = [&] { year.Pass(); };
  const Pair grid = MediansOf(
      11, [&] { year.Load(); }, pass);
  MustHold(year.Agrees(), u"the grid holds what the pass found"_s);
  Report(u"the sales grid of 32,767 records and 510 names, over one look-up each"_s, grid, 3);
}
