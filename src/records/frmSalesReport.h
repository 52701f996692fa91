/// The item sales screen: what was sold of the ticked products between two dates, on the screen and on paper, and the
/// purge of old records.
#pragma once

#include "desktop/ControlArray.h"
#include "desktop/Screen.h"
#include "runtime/Progress.h"

class Clock;
class CommonDiskRoutines;
class DateBox;
class Dialogs;
class PrinterRoutines;
class QPushButton;
class SalesDates;
class SalesReport;
class Screens;
struct BusinessProfile;
struct ItemSales;
struct SalesItemsList;
struct SalesRange;
namespace Ui {
class frmSalesReport;
}

/// What the screen works on; all of it outlives the screen.
struct SalesDesk {
  ItemSales& Sales;
  SalesRange& Range;
  SalesDates& Dates;
  SalesItemsList& Items;
  SalesReport& Report;
  PrinterRoutines& Routines;
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  const Clock& Today;
  const BusinessProfile& Business;
  Screens& Others;
  LongWork Patience;
};

class frmSalesReport final : public Screen {
 public:
  frmSalesReport(ScreenHost& host, const SalesDesk& desk);
  ~frmSalesReport() override;

  /// The last 30 days; loads the grid if a product is ticked. What goes wrong there is told, and the screen comes up.
  void Activate() override;

 private:
  void WireDates();
  void WireCommands();
  void ShowItems();
  void ShowDates();
  void TickAll(bool ticked);
  void ReturnToMenu();
  /// False where its load was stopped.
  bool RunPreset(void (SalesDates::*preset)());
  void LastMonth();
  /// Answers false where it was stopped; the grids are empty then, and there is nothing to print.
  bool LoadGrid();
  void PrintReport();
  void mnuDelete();

  SalesDesk m_desk;
  std::unique_ptr<Ui::frmSalesReport> m_ui;
  ControlArray<DateBox, 2> m_DTPicker1;
  ControlArray<QPushButton, 4> m_cmdIncome;
  ControlArray<QPushButton, 6> m_cmdSales;
};
