/// A business with a customer, an item and what an invoice takes, in the real program: from the main menu through an
/// invoice to the list of partial invoices and back.
#pragma once

#include "customers/CustomerRecords.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

class InvoicingDesk {
 public:
  InvoicingDesk() {
    using namespace Qt::StringLiterals;
    Program.Tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
    Program.Tree.Write(u"/TaxSettings.txt"_s, "\"Sales Tax\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n");
    Program.Tree.Write(u"/KVInventoriedItems.txt"_s, Field("Hammer", 50) + Field("Tools", 20) + Bytes64(0) +
                                                         Bytes64(120000) + Bytes16(100) + Bytes64(0) + Bytes32(0) +
                                                         Bytes16(0) + Bytes16(0));
    RecordText customer;
    customer.AcctNo = "1001";
    customer.AcctName = "Acme Tools";
    customer.Address1 = "1 Main Street";
    customer.CityLine = "Springfield";
    customer.State = "IL";
    customer.PostalLine = "62701";
    customer.AcctType = "Business";
    Program.Tree.Write(u"/CustomerData.txt"_s, customer.Bytes());
  }

  /// A new invoice from the main menu, at its setup view.
  void OpenInvoice() {
    using namespace Qt::StringLiterals;
    const ScreenDriver menu(u"frmStartup"_s);
    menu.Click(u"optMainMenuSub_0"_s);
    menu.Click(u"cmdGoto"_s);
    ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
  }
  /// The same with reference and attention line, up to its lines.
  void BeginInvoice(const QString& reference, const QString& attention) {
    using namespace Qt::StringLiterals;
    OpenInvoice();
    Invoice().Fill(u"txtReference"_s, reference);
    Invoice().Fill(u"txtShipto_6"_s, attention);
    Invoice().Click(u"cmdInvoice_0"_s);
  }
  void PostHammers(const QString& units) {
    using namespace Qt::StringLiterals;
    Invoice().Trigger(u"mnuItems"_s);
    Invoice().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
    Invoice().Fill(u"txtUnits"_s, units);
    Invoice().Click(u"cmdPost_1"_s);
  }
  void Save() {
    using namespace Qt::StringLiterals;
    Program.Answers.Yes({}, u"Save Partial Invoice"_s);
    Program.Answers.No({}, u"Print Draft Copy"_s);
    Invoice().Click(u"cmdSave"_s);
  }
  /// From the main menu to the list, the first row clicked.
  ScreenDriver OpenPartials() {
    using namespace Qt::StringLiterals;
    const ScreenDriver menu(u"frmStartup"_s);
    menu.Click(u"optMainMenuSub_1"_s);
    menu.Click(u"cmdGoto"_s);
    ScreenDriver partials(u"frmIncomplete"_s);
    partials.SelectRow(u"fgIncomplete"_s, 1);
    return partials;
  }
  void Recall() {
    using namespace Qt::StringLiterals;
    const ScreenDriver partials = OpenPartials();
    Program.Answers.Ok({}, u"Partial Invoice Loaded"_s);
    partials.Click(u"Command1_1"_s);
  }
  /// Prints what is finalized and answers that it is right.
  void Commit() {
    using namespace Qt::StringLiterals;
    Program.Answers.Yes(u"Was the Invoice Printed Correctly"_s);
    Invoice().Click(u"cmdInvoiceContinue"_s);
  }

  static ScreenDriver Invoice() { return ScreenDriver(QStringLiteral("frmInvoice")); }
  static QString Text(const QString& name) { return Invoice().Text(name); }
  /// The cells of a line of the invoice.
  static QStringList Line(int row) {
    const auto* lines = Invoice().Control<QTableView>(QStringLiteral("fgInvoice"))->model();
    QStringList cells;
    for (int col = 0; col < 6; ++col) cells.append(lines->index(row - 1, col).data().toString());
    return cells;
  }

  ProgramFixture Program;
};
