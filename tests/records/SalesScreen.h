/// The item sales screen of the real program, reached from the main menu, over six sales of four products.
#pragma once

#include <QtWidgets>

#include "records/SoldItems.h"
#include "support/InvoiceBench.h"
#include "support/ProgramFixture.h"

/// What grids without a line show: the one row under the headings, its cells empty.
inline const QStringList EmptySales{QStringLiteral("|||")};
inline const QStringList EmptyTotals{QStringLiteral("|")};

struct SalesScreen {
  ProgramFixture Program;

  SalesScreen() {
    Program.Tree.Write(QStringLiteral("/KVInventoriedItems.txt"), ItemNamed("Hammer") + ItemNamed("Saw"));
    Program.Tree.Write(QStringLiteral("/CustomItems.txt"), CustomItemNamed("Basket"));
    Program.Tree.Write(QStringLiteral("/SoldItems.txt"),
                       Sold("Hammer", Day::Mar7, "20260003", 2) + Sold("Saw", Day::Mar1, "20260002", 5) +
                           Sold("Basket", Day::Feb5, "20260001", 1) + Sold("Hammer", Day::Feb4, "20250009", 4) +
                           Sold("Nail", Day::Mar7, "20260003", 9) + Sold("Hammer", Day::Mar7 + 0.5, "20260004", 8));
  }
  bool Open() {
    if (!Program.StartAtMenu()) return false;
    return Reopen();
  }
  /// From the main menu.
  static bool Reopen() {
    const ScreenDriver menu(QStringLiteral("frmStartup"));
    menu.Click(QStringLiteral("optMainMenuSub_5"));
    menu.Click(QStringLiteral("cmdGoto"));
    return ScreenDriver::IsShown(QStringLiteral("frmSalesReport")) &&
           !ScreenDriver::IsShown(QStringLiteral("frmStartup"));
  }
  static ScreenDriver Driver() { return ScreenDriver(QStringLiteral("frmSalesReport")); }
  static void Click(const QString& name) { Driver().Click(name); }
  static QListWidget* List() { return Driver().Control<QListWidget>(QStringLiteral("lstSalesItems")); }
  static QStringList Listed() {
    QStringList shown;
    for (int i = 0; i < List()->count(); ++i) {
      shown << List()->item(i)->text() +
                   (List()->item(i)->checkState() == Qt::Checked ? QStringLiteral("+") : QStringLiteral("-"));
    }
    return shown;
  }
  /// Ticks the entry, or takes its tick away, by the space bar.
  static void Tick(int index) {
    List()->setFocus(Qt::TabFocusReason);
    List()->setCurrentRow(index);
    Driver().PressKey(Qt::Key_Space);
  }
  static QStringList Rows(const QString& grid) {
    const auto* lines = Driver().Control<QTableView>(grid)->model();
    QStringList rows;
    for (int row = 0; row < lines->rowCount(); ++row) {
      QStringList cells;
      for (int col = 0; col < lines->columnCount(); ++col) cells << lines->index(row, col).data().toString();
      rows << cells.join(u'|');
    }
    return rows;
  }
  static QStringList Sales() { return Rows(QStringLiteral("fgSalesItems")); }
  static QStringList Totals() { return Rows(QStringLiteral("fgTotals")); }
  static QDate Picked(int picker) {
    return Driver().Control<QDateEdit>(QStringLiteral("DTPicker1_%1").arg(picker))->date();
  }
  static QList<QDate> Range() { return {Picked(0), Picked(1)}; }
  static bool CanPrint() { return Driver().IsEnabled(QStringLiteral("cmdSales_4")); }
  /// Types a date into a picker and ends it by the Tab key.
  static void TypeDate(int picker, const QString& date) {
    Driver().Control(QStringLiteral("DTPicker1_%1").arg(picker))->setFocus(Qt::TabFocusReason);
    Driver().Type(date);
    Driver().PressKey(Qt::Key_Tab);
  }
};
