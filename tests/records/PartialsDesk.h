/// The partial invoices screen of the real program, reached from the main menu, on a tree that holds three of them.
#pragma once

#include "customers/CustomerRecords.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

inline const QString Folder = QStringLiteral("/KarvexInvoicer/IncompleteInvoices");

/// Bay Farm's partial invoice, as its file holds it.
inline const QByteArray Bay =
    "20260009\r\n"
    "1001\r\n"
    "Bay Farm\r\n"
    "3/5/2026\r\n"
    "\"Bay Farm\"\r\n"
    "\"1 Dock Rd\"\r\n"
    "\"\"\r\n"
    "\"Salem\"\r\n"
    "\"MA\"\r\n"
    "\"01970\"\r\n"
    "\"Barn\"\r\n"
    "\"\"\r\n"
    "\"\"\r\n"
    "\"Lynn\"\r\n"
    "\"MA\"\r\n"
    "\"01901\"\r\n"
    "20260009\r\n"
    "1001\r\n"
    "PO 5\r\n"
    "Ann\r\n"
    "1\r\n"
    "\r\n"
    "Survey\r\n"
    "3/1/2026\r\n"
    "$80.00\r\n"
    "$80.00\r\n"
    "False\r\n";

/// A catalogue, a customer, and three partial invoices; Bay Farm's is the last row of the list.
inline void Stock(const TemporaryTree& tree) {
  tree.Write(QStringLiteral("/KVInvoiceNo.txt"), "20260010\r\n");
  tree.Write(QStringLiteral("/TaxSettings.txt"), "\"Sales Tax\",\"Tax\",\"6.0\",\"1.0\",1,0\r\n");
  tree.Write(QStringLiteral("/Services.txt"), Field("Repair", 60) + Field("$10.00", 10) + Bytes16(1));
  tree.Write(QStringLiteral("/KVInventoriedItems.txt"), Field("Hammer", 50) + Field("Tools", 20) + Bytes64(0) +
                                                            Bytes64(120000) + Bytes16(10) + Bytes64(0) + Bytes32(0) +
                                                            Bytes16(0) + Bytes16(0));
  RecordText customer;
  customer.AcctNo = "1001";
  customer.AcctName = "Bay Farm";
  customer.AcctType = "Business";
  tree.Write(QStringLiteral("/CustomerData.txt"), customer.Bytes());
  tree.Write(Folder + QStringLiteral("/20260008.txt"), "20260008\r\n1002\r\nHill, \"Top\" Ltd\r\n3/4/2026\r\n");
  tree.Write(Folder + QStringLiteral("/20260009.txt"), Bay);
  tree.Write(Folder + QStringLiteral("/20260007.txt"), "20260007\r\n1003\r\nAcme Tools\r\n3/3/2026\r\n");
}

/// From the main menu to the screen.
inline void OpenPartials() {
  const ScreenDriver menu(QStringLiteral("frmStartup"));
  menu.Click(QStringLiteral("optMainMenuSub_1"));
  menu.Click(QStringLiteral("cmdGoto"));
}

/// The cells of a grid's row; rows count from 1.
inline QStringList Row(const QString& screen, const QString& grid, int row) {
  const auto* lines = ScreenDriver(screen).Control<QTableView>(grid)->model();
  QStringList cells;
  for (int col = 0; col < lines->columnCount(); ++col) cells.append(lines->index(row - 1, col).data().toString());
  return cells;
}

/// Which of `Command1` can be used.
inline QList<int> Enabled() {
  const ScreenDriver partials(QStringLiteral("frmIncomplete"));
  QList<int> enabled;
  for (int i = 0; i < 4; ++i) {
    if (partials.IsEnabled(QStringLiteral("Command1_%1").arg(i))) enabled.append(i);
  }
  return enabled;
}

/// What tells of Bay Farm's invoice once it is on the invoice screen.
inline const QString Loaded = QStringLiteral(
    "Partial Invoice Number 20260009\nhas been loaded into the Invoice Screen.\n\nClick OK\n\n"
    "The Invoice Screen will display.\n\nClick the [Add To......] Button");

struct PartialsDesk {
  ProgramFixture Program;
  PartialsDesk() { Stock(Program.Tree); }
  /// At the screen.
  bool Open() {
    if (!Program.StartAtMenu()) return false;
    OpenPartials();
    return ScreenDriver::IsShown(QStringLiteral("frmIncomplete")) &&
           !ScreenDriver::IsShown(QStringLiteral("frmStartup"));
  }
  /// Bay Farm's invoice on the invoice screen.
  void Recall() {
    const ScreenDriver partials(QStringLiteral("frmIncomplete"));
    partials.SelectRow(QStringLiteral("fgIncomplete"), 3);
    Program.Answers.Ok(Loaded, QStringLiteral("Partial Invoice Loaded"));
    partials.Click(QStringLiteral("Command1_1"));
  }
};
