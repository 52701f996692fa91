#include <QTemporaryDir>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Trees.h"
#include "catalogue/SalesItemsList.h"
#include "customers/CustomerOnScreen.h"
#include "invoice/Commit.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "setup/TaxConfiguration.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/DataTree.h"
#include "tests/support/AgreeingDialogs.h"

using namespace Qt::StringLiterals;

namespace {

void FillInvoice(WorkingInvoice& invoice) {
  invoice.InvoiceNo = 20260001;
  invoice.txtInvoiceNo = u"20260001"_s;
  invoice.lblAcct = invoice.lblAcctNo = u"100000"_s;
  invoice.lblCustomer[6] = u"A Trading"_s;
  invoice.Tax1 = Currency::FromUnits(50000);
  invoice.SubTotal = Currency::FromUnits(1000000);
  invoice.GrandTotal = Currency::FromUnits(1050000);
  for (int row = 1; row <= MaximumLines; ++row) {
    invoice.fgInvoice.SetText(row, LineColumn::Quantity, u"1"_s);
    invoice.fgInvoice.SetText(row, LineColumn::Description, u"Item %1"_s.arg(row, 3, 10, QChar(u'0')));
    invoice.fgInvoice.SetText(row, LineColumn::UnitPrice, u"$10.00"_s);
    invoice.fgInvoice.SetText(row, LineColumn::Extension, u"$10.00"_s);
    invoice.fgInvoice.SetText(row, LineColumn::ApplyTax, u"True"_s);
  }
  invoice.LineCount = MaximumLines;
}

class Business {
 public:
  explicit Business(int records) : m_store(m_files), m_disk(m_store, m_tree.path(), u"KarvexInvoicer"_s) {
    FillTree(m_tree.path(), 1, Limit::Catalogue, records);
    MakeDataTree(m_disk, m_clock);
    LoadSalesItems(m_salesItems, m_disk);
    m_atFirst = Count();
  }

  void Commit() {
    WorkingInvoice invoice;
    FillInvoice(invoice);
    CustomerOnScreen customer;
    customer.txtCustomer0 = u"100000"_s;
    const TaxConfiguration tax;
    const auto nothing = [] {};
    PrintAndCommit({invoice, m_disk, m_boxes, m_clock, tax, customer, m_salesItems},
                   {nothing, nothing, nothing, [] { return QString(); }, nothing, nothing, nothing, nothing});
  }

  /// The run tells no one of an error, so what it wrote is counted.
  void MustHaveCommitted(int invoices) {
    const Counts now = Count();
    MustHold(now.Journal == m_atFirst.Journal + invoices, u"each commit adds a record to the sales journal"_s);
    MustHold(now.Sold == m_atFirst.Sold + invoices * MaximumLines, u"each line is recorded as sold"_s);
    MustHold(now.Taxes == m_atFirst.Taxes + invoices, u"each commit ends with its tax record"_s);
  }

 private:
  struct Counts {
    int Journal;
    int Sold;
    int Taxes;
  };
  Counts Count() {
    return {m_disk.RecordCount(u"/InvoiceSalesJournal.txt"_s, 125), m_disk.RecordCount(u"/SoldItems.txt"_s, 90),
            m_disk.RecordCount(u"/TaxRecords.txt"_s, 75)};
  }

  QTemporaryDir m_tree;
  FileDevice m_files;
  FileStore m_store;
  CommonDiskRoutines m_disk;
  SystemClock m_clock;
  AgreeingDialogs m_boxes;
  SalesItemsList m_salesItems;
  Counts m_atFirst{};
};

}  // namespace

void MeasureCommit() {
  // Room for the commits of the measurement below the limit of 32,767 records.
  Business full(Limit::Records - 2500);
  Business empty(0);
  constexpr int runs = 21;
  const Pair times = MediansOf(
      runs, [&] { full.Commit(); }, [&] { empty.Commit(); });
  full.MustHaveCommitted(runs);
  empty.MustHaveCommitted(runs);
  Report(u"a commit of 100 lines on full files, over empty ones"_s, times, 1.2);
}
