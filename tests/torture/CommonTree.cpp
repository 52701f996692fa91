#include "customers/CustomerRecords.h"
#include "support/InvoiceBench.h"
#include "torture/Saves.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Customer(const QByteArray& number, const QByteArray& name) {
  RecordText record;
  record.AcctNo = number;
  record.AcctName = name;
  record.Address1 = "1 Main Street";
  record.CityLine = record.CityShort = "Ocala";
  record.State = "FL";
  record.PostalLine = record.PostalShort = "34470";
  record.Phone = "352-555-0100";
  record.AcctType = "Business";
  return record.Bytes();
}

QByteArray Item(const QByteArray& name, const QByteArray& category) {
  return Field(name, 50) + Field(category, 20) + Bytes64(50000) + Bytes64(120000) + Bytes16(10) + Bytes64(100000) +
         Bytes32(5) + Bytes16(20) + Bytes16(4);
}

QByteArray Partial(const QByteArray& number) {
  const QByteArray block = "\"Acme Tools\"\r\n\"1 Main Street\"\r\n\"\"\r\n\"Ocala\"\r\n\"FL\"\r\n\"34470\"\r\n";
  return number + "\r\n1001\r\nAcme Tools\r\n3/5/2026\r\n" + block + block + number +
         "\r\n1001\r\nPO 5\r\nAnn\r\n1\r\n\r\nMowing\r\n3/1/2026\r\n$80.00\r\n$80.00\r\nFalse\r\n";
}

QByteArray Posting(const QByteArray& account, const QByteArray& text, const QByteArray& amount) {
  return Field("Acme Tools", 45) + Field(account, 25) + Field("3/1/2026", 15) + Field(text, 60) + Field(amount, 10);
}

void AddInvoiceFiles(DataTree& tree) {
  tree[u"/KVInvoiceNo.txt"_s] = "20260017\r\n";
  tree[u"/StatementTerms.txt"_s] = "Payment due in Full within 10 Days\r\n";
  tree[u"/ShipVia.txt"_s] = "Our Truck\r\n";
  tree[u"/InvoiceMemo.txt"_s] = "Thank you\r\n";
  tree[u"/Narrative.txt"_s] = "The work was done as agreed.\r\n";
  tree[u"/KarvexInvoicer/IncompleteInvoices/20260008.txt"_s] = Partial("20260008");
  tree[u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s] = Partial("20260009");
  tree[u"/CompletedInvoices/20260016.txt"_s] = "20260016\r\n1001\r\nAcme Tools\r\n3/1/2026\r\n$25.00\r\n";
  tree[u"/SoldItems.txt"_s] = Field("Crate", 60) + Bytes64(0x40E6810000000000) + Field("20260016", 20) + Bytes16(2);
  tree[u"/InvoiceSalesJournal.txt"_s] = Field("Acme Tools", 45) + Field("1001", 20) + Field("20260016", 20) +
                                        Bytes64(0x40E6810000000000) + Bytes64(250000) + Bytes64(0) + Bytes64(0) +
                                        Bytes64(250000);
  tree[u"/TaxRecords.txt"_s] =
      Field("Sales Tax", 20) + Field("3/1/2026", 15) + Field("20260016", 30) + Field("1.5", 10);
  tree[u"/KVActiveAccounts/1001.txt"_s] =
      Posting("1001", "Previous Balance", "$0.00") + Posting("1001", "20260016", "25");
  tree[u"/KVActiveAccounts/1003.txt"_s] = Posting("1003", "Previous Balance", "$0.00");
}

void AddFolders(DataTree& tree) {
  for (const auto* name : {"/2026/",
                           "/CompletedInvoices/",
                           "/KarvexInvoicer/",
                           "/KarvexInvoicer/IncompleteInvoices/",
                           "/KarvexInvoicer/Narratives/",
                           "/KarvexInvoicer/Templates/",
                           "/KarvexInvoicer/Templates/Invoices/",
                           "/KVActiveAccounts/",
                           "/KarvexCycleInvoicer/",
                           "/KarvexProposals/",
                           "/KarvexProposals/ProposalBody/",
                           "/Backup/",
                           "/Backup/KarvexInvoicer/",
                           "/Backup/KarvexInvoicer/IncompleteInvoices/",
                           "/Backup/KVActiveAccounts/",
                           "/Backup/KVActiveAccountsBACK/",
                           "/Backup/CompletedInvoices/",
                           "/Templates/",
                           "/Templates/Contracts/",
                           "/Templates/ContractInvoices/",
                           "/Templates/Proposals/",
                           "/ConstructionProjects/",
                           "/AuxFiles/"}) {
    tree[QString::fromLatin1(name)] = "";
  }
}

}  // namespace

DataTree CommonTree() {
  DataTree tree;
  AddFolders(tree);
  tree[u"/KarvexInvoicerSettings.txt"_s] = "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n";
  tree[u"/MyBusinessData.txt"_s] =
      "\"Orange Grove Supply\",\"12 Grove Road\",\"\",\"Ocala\",\"FL\",\"34470\",\"352-555-0100\",\"\",\"\"\r\n";
  tree[u"/TaxSettings.txt"_s] = "\"Sales Tax\",\"Tax\",\"6.0\",\"4.0\",1,0\r\n";
  tree[u"/PrintColors.txt"_s] = "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n1\r\n";
  tree[u"/Phone.txt"_s] = "#FALSE#\r\n1\r\n";
  tree[u"/CallID.txt"_s] = "#FALSE#\r\n";
  tree[u"/StatesList.txt"_s] = QByteArray("\"FL\"\r\n").repeated(50);
  tree[u"/CustomerData.txt"_s] =
      Customer("1001", "Acme Tools") + Customer("1002", "Bay Farm") + Customer("1003", "Cedar Mill");
  tree[u"/Services.txt"_s] = Field("Mowing", 60) + Field("$80.00", 10) + Bytes16(4);
  tree[u"/KVInventoriedItems.txt"_s] = Item("Crate", "Fruit") + Item("Hammer", "Tools");
  tree[u"/CustomItems.txt"_s] = Field("Basket", 50) + Bytes64(490000) + Bytes64(450000) + Bytes32(6);
  tree[u"/Labor.txt"_s] = "\"General Labor\",\"$45.00\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n";
  AddInvoiceFiles(tree);
  // Copies that an earlier end of the program left: of the same business, a day before.
  const DataTree live = tree;
  for (const auto& [name, bytes] : live.asKeyValueRange()) {
    if (name.count(u'/') == 1 && name.endsWith(".txt"_L1)) tree[u"/Backup"_s + name] = bytes;
  }
  tree[u"/Backup/InvoiceMemo.txt"_s] = "Thank you, as of yesterday\r\n";
  tree[u"/Backup/KVInvoiceNo.txt"_s] = "20260016\r\n";
  tree[u"/Backup/KVActiveAccounts/1001.txt"_s] = tree[u"/KVActiveAccounts/1001.txt"_s];
  tree[u"/Backup/KVActiveAccounts/1003.txt"_s] = tree[u"/KVActiveAccounts/1003.txt"_s];
  return tree;
}
