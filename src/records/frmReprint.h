/// The completed invoices: lists them, shows one in full, prints it once more, reports and purges them.
#pragma once

#include "desktop/ControlArray.h"
#include "desktop/Screen.h"
#include "runtime/Progress.h"

class Clock;
class CommonDiskRoutines;
class Dialogs;
class GridReport;
class KVPrint;
class PrinterRoutines;
class QLabel;
class QRadioButton;
class Screens;
struct CompletedInvoice;
struct CompletedInvoices;
struct CustomerOnScreen;
struct TaxConfiguration;
enum class CompletedLoad;
namespace Ui {
class frmReprint;
}

/// What the screen works on; all of it outlives the screen.
struct ReprintDesk {
  CompletedInvoices& Completed;
  CompletedInvoice& Shown;
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  const Clock& Today;
  Screens& Others;
  const TaxConfiguration& Tax;
  const CustomerOnScreen& Customer;
  PrinterRoutines& Routines;
  KVPrint& Pages;
  GridReport& Reports;
  LongWork Patience;
};

class frmReprint final : public Screen {
 public:
  frmReprint(ScreenHost& host, const ReprintDesk& desk);
  ~frmReprint() override;

  /// `SetupReprintScreen`: the list is read anew. Without an invoice to list, or stopped while it reads, the screen
  /// leaves for the menu before it is shown.
  void Activate() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  CompletedLoad LoadList();
  void UseAddressStyle();
  void ClickRow();
  /// The detail panel takes the texts of the invoice just read.
  void ShowInvoice();
  /// One of the two views: the list, or the panel that covers it.
  void ShowList(bool list);
  void cmdExit();
  void cmdHide();
  void mnuSort();
  void HideSort();
  void cmdMode();
  void cmdMemo();
  void cmdPrint();
  void cmdReport();
  void cmdKill();
  void ChangeDate();

  ReprintDesk m_desk;
  std::unique_ptr<Ui::frmReprint> m_ui;
  ControlArray<QLabel, 34> m_Label1;
  ControlArray<QLabel, 6> m_lblBillTo;
  ControlArray<QLabel, 6> m_lblShipTo;
  ControlArray<QLabel, 10> m_lblInvoice;
  ControlArray<QRadioButton, 3> m_optCol;
  ControlArray<QRadioButton, 2> m_optSort;
};
