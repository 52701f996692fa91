/// The steps of a small business's day on the real screens, one by one, on a tree that holds a customer, a taxed item
/// and a service. Each begins at the main menu; what follows when it goes wrong is the test's to look at.
#pragma once

#include <QtWidgets>

#include "customers/CustomerRecords.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

namespace OneDay {

using namespace Qt::StringLiterals;

/// What the program reads and writes in a day, by name, with bytes that it can read.
inline QMap<QString, QByteArray> Files() {
  RecordText customer;
  customer.AcctNo = "1001";
  customer.AcctName = "Acme Tools";
  customer.Address1 = "1 Main Street";
  customer.AcctType = "Business";
  return {{u"/CustomerData.txt"_s, customer.Bytes()},
          {u"/KVInventoriedItems.txt"_s, Field("Hammer", 50) + Field("Tools", 20) + Bytes64(0) + Bytes64(120000) +
                                             Bytes16(10) + Bytes64(0) + Bytes32(0) + Bytes16(0) + Bytes16(0)},
          {u"/Services.txt"_s, Field("Repair", 60) + Field("$10.00", 10) + Bytes16(1)},
          {u"/CustomItems.txt"_s, Field("Shelf", 50) + Bytes64(10000) + Bytes64(10000) + Bytes32(0)},
          {u"/Labor.txt"_s, "\"General Labor\",\"$45.00\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n"},
          {u"/TaxSettings.txt"_s, "\"Sales Tax\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n"},
          {u"/KarvexInvoicerSettings.txt"_s, "1,0,0,0,0,\"0.0\",\"0\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n"},
          {u"/MyBusinessData.txt"_s,
           "\"Grove\",\"12 Grove Road\",\"\",\"Ocala\",\"FL\",\"34470\",\"352-555-0100\",\"\",\"\"\r\n"},
          {u"/Phone.txt"_s, "#FALSE#\r\n1\r\n"},
          {u"/CallID.txt"_s, "#FALSE#\r\n"},
          {u"/PrintColors.txt"_s, "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n"},
          {u"/KVInvoiceNo.txt"_s, "20260001\r\n"},
          {u"/InvoiceSalesJournal.txt"_s, QByteArray(125, ' ')},
          {u"/SoldItems.txt"_s, QByteArray(90, ' ')},
          {u"/TaxRecords.txt"_s, QByteArray(75, ' ')},
          {u"/KVActiveAccounts/1001.txt"_s, QByteArray(155, ' ')},
          {u"/CompletedInvoices/20260001.txt"_s, "an older image\r\n"},
          {u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s, "20260002\r\n1001\r\nAcme\r\n3/7/2026\r\n"}};
}

inline void Stock(const TemporaryTree& tree) {
  const auto files = Files();
  for (const auto* name : {"/CustomerData.txt", "/KVInventoriedItems.txt", "/Services.txt", "/TaxSettings.txt"}) {
    tree.Write(QString::fromLatin1(name), files.value(QString::fromLatin1(name)));
  }
}

inline void SaveSetup() {
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  const ScreenDriver setup(u"frmSetup"_s);
  setup.Fill(u"txtBusiness_0"_s, u"A New Name"_s);
  setup.Click(u"cmdQuit"_s);
}

/// On the catalogue screen, a new service in the list and not in the file yet.
inline void EnterService() {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_3"_s);
  menu.Click(u"cmdGoto"_s);
  const ScreenDriver screen(u"frmServices"_s);
  screen.Click(u"cmdServices_1"_s);
  screen.Fill(u"txtDescription_0"_s, u"Cleaning"_s);
  screen.Fill(u"txtCharge_0"_s, u"25"_s);
  screen.Click(u"cmdServices_4"_s);
}

inline void SaveCatalogue() {
  EnterService();
  ScreenDriver(u"frmServices"_s).Click(u"cmdServices_0"_s);
}

inline void GoToCustomers() {
  const ScreenDriver menu(u"frmStartup"_s);
  menu.Click(u"optMainMenuSub_0"_s);
  menu.Click(u"cmdGoto"_s);
}

inline void SaveCustomer() {
  GoToCustomers();
  const ScreenDriver screen(u"frmNewCustomer"_s);
  screen.Fill(u"txtCustomer_2"_s, u"99 Elsewhere"_s);
  screen.Click(u"cmdCustomer_0"_s);
}

/// The lines of a new invoice for the one customer, none posted.
inline void OpenInvoiceLines() {
  GoToCustomers();
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoice_0"_s);
}

/// The same, two hammers posted.
inline void ComposeInvoice() {
  OpenInvoiceLines();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Trigger(u"mnuItems"_s);
  invoice.PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  invoice.Fill(u"txtUnits"_s, u"2"_s);
  invoice.Click(u"cmdPost_1"_s);
}

inline void Finalize() {
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
}

/// Prints the finalized invoice and says that it is right: the records of it are written.
inline void Commit(ProgramFixture& program) {
  program.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdInvoiceContinue"_s);
}

inline void CommitInvoice(ProgramFixture& program) {
  ComposeInvoice();
  Finalize();
  Commit(program);
}

/// The same, paid when it is issued.
inline void CommitPrepaid(ProgramFixture& program) {
  ComposeInvoice();
  Finalize();
  const ScreenDriver invoice(u"frmInvoice"_s);
  invoice.Click(u"ckPrepaid"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  Commit(program);
}

/// Yes to the save, no to the draft.
inline void AnswerPartialSave(ProgramFixture& program) {
  program.Answers.Yes();
  program.Answers.No(u"Would you like to Print a Draft Copy?"_s);
}

inline void SavePartial(ProgramFixture& program) {
  ComposeInvoice();
  AnswerPartialSave(program);
  ScreenDriver(u"frmInvoice"_s).Click(u"cmdSave"_s);
}

}  // namespace OneDay
