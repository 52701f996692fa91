/// The completed invoices' screen of the real program, reached from the main menu.
#pragma once

#include <QtWidgets>

#include "support/CompletedImages.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

/// Four images; two of one date, one of an earlier year; and one of the narratives.
inline void StockImages(const TemporaryTree& tree) {
  StockCatalogue(tree);
  tree.Write(QStringLiteral("/CompletedInvoices/20260010.txt"), Image("20260010", "Bay Farm", "3/6/2026", "$1,086.50"));
  tree.Write(QStringLiteral("/CompletedInvoices/20260009.txt"), Image("20260009", "acme tools", "3/6/2026", "$7.00"));
  tree.Write(QStringLiteral("/CompletedInvoices/900.txt"), Image("900", "Hill & Sons", "12/31/2025", "$900.00"));
  tree.Write(QStringLiteral("/CompletedInvoices/20260011.txt"), Image("20260011", "Acme Tools", "3/7/2026", "$12.00"));
  tree.Write(QStringLiteral("/KarvexInvoicer/Narratives/900.txt"), "Said then\r\n");
}

struct ReprintScreen {
  ProgramFixture Program;
  ReprintScreen() { StockImages(Program.Tree); }
  /// At the screen.
  bool Open() {
    if (!Program.StartAtMenu()) return false;
    OpenReprint();
    return ScreenDriver::IsShown(QStringLiteral("frmReprint")) && !ScreenDriver::IsShown(QStringLiteral("frmStartup"));
  }
  static QString Title() {
    return ScreenDriver(QStringLiteral("frmReprint")).Control<QGroupBox>(QStringLiteral("fraInvoice"))->title();
  }
  ScreenDriver On() const { return ScreenDriver(QStringLiteral("frmReprint")); }
  QStringList Column(int col) const {
    const auto* list = On().Control<QTableView>(QStringLiteral("fgReceivables"))->model();
    QStringList cells;
    for (int row = 0; row < list->rowCount(); ++row) cells.append(list->index(row, col).data().toString());
    return cells;
  }
  /// Opens the invoice of that number.
  void Select(const QString& number) const {
    On().SelectRow(QStringLiteral("fgReceivables"), static_cast<int>(Column(0).indexOf(number)) + 1);
  }
  bool ShowsList() const {
    return On().IsVisible(QStringLiteral("fgReceivables")) && !On().IsVisible(QStringLiteral("fraInvoice")) &&
           On().Entry(QStringLiteral("mnuSort"))->isVisible();
  }
  void Sort(int col, int order) const {
    On().Trigger(QStringLiteral("mnuSort"));
    On().Click(QStringLiteral("optCol_%1").arg(col));
    On().Click(QStringLiteral("optSort_%1").arg(order));
    On().Click(QStringLiteral("cmdMode"));
  }
  QDate Date() const { return On().Control<QDateEdit>(QStringLiteral("DTPicker1"))->date(); }
  void Purge(const QString& date) {
    Program.Answers.Yes(QStringLiteral("This will Delete All Invoices before ") + date,
                        QStringLiteral("Delete Invoice Records"));
    On().Click(QStringLiteral("cmdKill"));
  }
  QStringList Images() const { return Program.Tree.List(QStringLiteral("/CompletedInvoices")); }
};
