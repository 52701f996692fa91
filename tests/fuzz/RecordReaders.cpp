// The readers of the record files, and of the texts that belong to a customer.

#include <algorithm>
#include <array>

#include "catalogue/Catalogue.h"
#include "catalogue/InventoryFile.h"
#include "catalogue/SalesItemsList.h"
#include "customers/AuxiliaryData.h"
#include "customers/CommonAccountRoutines.h"
#include "customers/CustomerFile.h"
#include "customers/CustomerFolders.h"
#include "customers/ProposalList.h"
#include "fuzz/ReaderDesk.h"
#include "invoice/CommitRecords.h"
#include "invoice/WorkingInvoice.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

void ReadCustomers(ReaderDesk& desk) {
  CustomerFile file(desk.Disk());
  const int count = file.Count();
  for (int number = 1; number <= std::min(count + 1, 4); ++number) {
    file.Read(number);
    const CustomerRecord& record = file.Buffer;
    file.HasAccount(record.Text(CustomerField::AcctNo), count, number);
    IsSafeAccount(record.Text(CustomerField::AcctNo));
    record.DisplayName();
    record.AcctFlag();
  }
}

void ListCustomers(ReaderDesk& desk) {
  CustomerFile file(desk.Disk());
  file.ReadLists(file.Count());
}

/// The last byte of the file chooses what is searched, so that each run looks into one field.
void SearchCustomers(ReaderDesk& desk) {
  CustomerFile file(desk.Disk());
  const int count = file.Count();
  const QByteArray content = desk.Disk().Store().ReadWhole(desk.Disk().PathOf(u"/CustomerData.txt"_s));
  const int chosen = content.isEmpty() ? 0 : static_cast<unsigned char>(content.back());
  const auto criterion = static_cast<qint16>(static_cast<std::size_t>(chosen) % SearchedFields.size());
  file.Find({criterion, "A"}, count);
  file.Find({EveryCustomer, {}}, count);
}

/// As the start does it, in a tree whose own folders stand.
void FolderCustomers(ReaderDesk& desk) {
  desk.Disk().MakeDataFolder(AuxFolder());
  MakeCustomerFolders(desk.Disk());
}

/// The catalogue as the start loads it, with the lists that others take from it.
struct CatalogueDesk {
  explicit CatalogueDesk(ReaderDesk& desk) : Prices(desk.Disk(), Lists, Sold) { LoadSalesItems(Sold, desk.Disk()); }
  CatalogueLists Lists;
  SalesItemsList Sold;
  Catalogue Prices;
};

void ReadItems(ReaderDesk& desk) {
  CatalogueDesk catalogue(desk);
  catalogue.Prices.LoadAdditionalItems();
  for (const QString& category : catalogue.Prices.cboCategory()) catalogue.Prices.ListCategory(category);
  InventoryFile inventory(desk.Disk());
  for (const SalesItem& item : catalogue.Sold.Items) inventory.Lower(item.Name, 1);
}

class AuxBoxes final : public AuxiliaryView {
 public:
  QString Heading(int box) const override { return m_headings.at(static_cast<std::size_t>(box)); }
  void SetHeading(int box, const QString& text) override { m_headings.at(static_cast<std::size_t>(box)) = text; }
  QString AuxText(int box) const override { return m_texts.at(static_cast<std::size_t>(box)); }
  void SetAuxText(int box, const QString& text) override { m_texts.at(static_cast<std::size_t>(box)) = text; }
  bool IsAuxRetained() const override { return false; }
  QString AuxAccount() const override { return u"1001"_s; }

 private:
  std::array<QString, AuxBoxCount> m_headings;
  std::array<QString, AuxBoxCount> m_texts;
};

void AppendToLedger(ReaderDesk& desk) {
  CommonAccountRoutines accounts(desk.Disk(), desk.Today());
  accounts.PostLedgerEntry(u"1001"_s, u"Miller"_s, u"5"_s, u"20260001"_s, desk.Today().Today());
}

std::vector<ReaderTarget> CatalogueReaders() {
  return {
      {"services", u"/Services.txt"_s,
       [](ReaderDesk& desk) {
         CatalogueDesk catalogue(desk);
         catalogue.Prices.LoadServices();
         // What was loaded can be saved: each cell is an amount or a number.
         catalogue.Prices.SaveCatalogue();
       },
       72, true},
      {"items", u"/KVInventoriedItems.txt"_s, ReadItems, 104, true},
      {"custom-items", u"/CustomItems.txt"_s,
       [](ReaderDesk& desk) {
         CatalogueDesk catalogue(desk);
         catalogue.Prices.LoadCustomItems();
         // What was loaded can be saved: each cell is an amount or a number.
         catalogue.Prices.SaveCatalogue();
       },
       70, true},
      {"labor", u"/Labor.txt"_s, [](ReaderDesk& desk) { CatalogueDesk(desk).Prices.LoadLabor(); }},
  };
}

std::vector<ReaderTarget> CustomerReaders() {
  return {
      {"customers", u"/CustomerData.txt"_s, ReadCustomers, CustomerRecord::Length},
      // Three more of the same file, which look at texts in it.
      {"customer-lists", u"/CustomerData.txt"_s, ListCustomers, CustomerRecord::Length},
      {"customer-search", u"/CustomerData.txt"_s, SearchCustomers, CustomerRecord::Length},
      {"customer-folders", u"/CustomerData.txt"_s, FolderCustomers, CustomerRecord::Length, true},
      {"aux-headings", u"/AuxHeadings.txt"_s,
       [](ReaderDesk& desk) {
         AuxBoxes boxes;
         AuxiliaryData(desk.Disk(), boxes).LoadAuxHeadings();
       }},
      {"aux-box", u"/AuxFiles/1001/AuxFile0/Data.txt"_s,
       [](ReaderDesk& desk) {
         AuxBoxes boxes;
         AuxiliaryData(desk.Disk(), boxes).LoadAuxData();
       }},
      {"proposals", u"/KarvexProposals/Shed.txt"_s,
       [](ReaderDesk& desk) {
         ProposalList list;
         LoadProposals(list, desk.Disk());
       }},
  };
}

/// What a commit appends to; nothing but the count of records is read of it then.
std::vector<ReaderTarget> AppendedRecords() {
  return {
      {"ledger", u"/KVActiveAccounts/1001.txt"_s, AppendToLedger, LedgerRecord::Length, true},
      {"sales-journal", u"/InvoiceSalesJournal.txt"_s,
       [](ReaderDesk& desk) { WriteSalesJournal(SalesJournalEntry{}, desk.Disk()); }, 125, true},
      {"sold-items", u"/SoldItems.txt"_s,
       [](ReaderDesk& desk) {
         WorkingInvoice invoice;
         invoice.LineCount = 1;
         invoice.fgInvoice.SetText(1, LineColumn::Description, u"Bolt"_s);
         invoice.fgInvoice.SetText(1, LineColumn::Quantity, u"2"_s);
         WriteSoldItems(invoice, {{{u"Bolt"_s, true}}}, desk.Disk(), desk.Today().Today());
       },
       90, true},
      {"tax-records", u"/TaxRecords.txt"_s,
       [](ReaderDesk& desk) { WriteTaxRecord(u"Tax"_s, u"20260001"_s, desk.Today().Today(), u"1.25"_s, desk.Disk()); },
       75, true},
  };
}

}  // namespace

std::vector<ReaderTarget> RecordReaders() {
  std::vector<ReaderTarget> all;
  for (const auto& group : {CatalogueReaders(), CustomerReaders(), AppendedRecords()}) {
    all.insert(all.end(), group.begin(), group.end());
  }
  return all;
}
