/// The partial invoices screen: lists them, hands one over to the invoice screen, reports and purges them.
#pragma once

#include "desktop/ControlArray.h"
#include "desktop/Screen.h"
#include "runtime/Progress.h"

class Clock;
class CommonDiskRoutines;
class Dialogs;
class GridReport;
class QPushButton;
class Screens;
struct PartialList;
struct WorkingInvoice;
namespace Ui {
class frmIncomplete;
}

/// What the screen works on; all of it outlives the screen.
struct PartialDesk {
  PartialList& Partials;
  WorkingInvoice& Invoice;
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  const Clock& Today;
  Screens& Others;
  GridReport& Reports;
  LongWork Patience;
};

class frmIncomplete final : public Screen {
 public:
  frmIncomplete(ScreenHost& host, const PartialDesk& desk);
  ~frmIncomplete() override;

  /// Loads the list. Without a partial invoice the screen hides at once: no window is left then, and the program lives
  /// on. That is meant.
  bool MayShow() override;
  /// No invoice is chosen until a row is clicked.
  void Activate() override;

 private:
  void ReturnToMenu();
  void ClickRow();
  void AddToSelected();
  void PurgeAll();
  void PurgeSelected();
  void cmdReport();
  bool IsSure();

  PartialDesk m_desk;
  std::unique_ptr<Ui::frmIncomplete> m_ui;
  ControlArray<QPushButton, 4> m_Command1;
};
