/// The invoice screen: one form whose views are frames shown one at a time above the line grid. It moves values between
/// its controls and the invoice in the making, and runs the rules in the order that the views prescribe.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <QString>
#include <vector>

#include "desktop/ControlArray.h"
#include "desktop/Screen.h"
#include "invoice/Commit.h"
#include "invoice/InvoiceTerms.h"
#include "invoice/LineEntry.h"

class Catalogue;
class KVPrint;
class ListCombo;
class PrinterRoutines;
class QAction;
class QCheckBox;
class QKeyEvent;
class QLabel;
class QPlainTextEdit;
class QRadioButton;
class QToolButton;
class Screens;
struct ComboValue;
struct LiveSettings;

namespace Ui {
class frmInvoice;
}

/// What the screen works on; all of it outlives the screen.
struct InvoiceDesk {
  WorkingInvoice& Invoice;
  Catalogue& Prices;
  CatalogueLists& Lists;
  LiveSettings& Settings;
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  const Clock& Today;
  Screens& Others;
  const CustomerOnScreen& Customer;
  const SalesItemsList& SalesItems;
  PrinterRoutines& Printing;
  KVPrint& Pages;
  /// The number of the partial invoice that is selected in the partial list.
  std::function<QString()> SelectedPartial;
  /// Reads the partial list again.
  std::function<void()> ReloadPartials;
};

class frmInvoice final : public Screen {
 public:
  frmInvoice(ScreenHost& host, const InvoiceDesk& desk);
  ~frmInvoice() override;

  void Activate() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Every handler runs through here: what the rules changed is shown after it.
  void Do(const std::function<void()>& handler);
  std::function<void()> Doing(std::function<void()> handler);
  void Click(QAbstractButton* button, const std::function<void()>& handler,
             WhenLeaveRefused rule = WhenLeaveRefused::Always);
  void Enter(QWidget* box, const std::function<void()>& handler);
  void Leave(QWidget* box, const std::function<void()>& handler);
  /// Enter in a box does the obvious next thing: it presses the button as `PressButton` does.
  void EnterRuns(QWidget* box, QAbstractButton* button);
  bool RunByEnter(QObject* box, const QKeyEvent& key);
  void FilterNumber(QLineEdit* box, QAbstractButton* onEnter);
  void Choose(QAction* entry, void (frmInvoice::*view)());
  /// A button of the strip of views, which its key runs as well; it is enabled as the menu's entry is.
  void OnStrip(QToolButton* button, QAction* entry, void (frmInvoice::*view)());

  // Showing the invoice.
  void BindHeader();
  void BindLineEntry();
  void BindPrintReady();
  void Bind(QLineEdit* box, QString& value);
  void Bind(QPlainTextEdit* box, QString& value);
  void Bind(QLabel* label, const QString& value);
  void Bind(QCheckBox* box, bool& value);
  void Bind(ListCombo* combo, QString& value);
  void Bind(QWidget* control, const bool& value, void (QWidget::*set)(bool));
  void ShowInvoice();
  void ShowCombo(ListCombo* combo, const ComboValue& value);

  // The views.
  void WireViews();
  void GoByStrip(void (frmInvoice::*view)());
  void HideFrames();
  void EscapeEntryFrame();
  void ShowInstructions(int index);
  std::vector<QWidget*> EntryFrames() const;
  void ShowViewButtons();
  bool Shows(const QWidget* control) const;
  void mnuSetup();
  void mnuCreate();
  void mnuPrint();
  void mnuServices();
  void mnuItems();
  void mnuCItems();
  void mnuManual();
  void mnuLabor();
  void mnuMemo();
  void mnuNarrative();

  // Head and setup view.
  void WireHeader();
  void WireNumber();
  void WireDates();
  void ArrangeAddressBoxes();

  // Line entry.
  void WireLineEntry();
  void WireDescription(int element);
  void WireUnits();
  void WireManual();
  void WireLabor();
  void WireCategories();
  void FillList(int element);
  void FillCategories();
  void Pick();
  LineEntryDesk EntryDesk();

  void WireGrid();
  void WireMemo();
  void WireNarrative();

  // Templates.
  void WireTemplates();
  void RefreshTemplates();
  void LoadTemplateList();

  // Print-ready view.
  void WirePrintReady();
  void WireTerms();
  void WireCharges();
  void WireHelp();
  void WirePrepaid();
  void PickPaymentForm();
  void CancelPrepaid();
  void cmdPrint();
  void LoadTaxHeadings();
  TermsDesk Terms();

  // Flow.
  void WireFlow();
  void WireSave();
  void ShowInvoiceMode();
  /// Answers whether the invoice goes on, to its lines; where its number is refused, `refused` shows another view.
  bool Continue(const std::function<void()>& refused);
  void cmdRedo();
  void cmdExit();
  void ReturnToMenu();
  void PrintInvoice();
  void cmdInvoiceContinue();
  void cmdSave();

  InvoiceDesk m_desk;
  WorkingInvoice& m_invoice;
  std::unique_ptr<Ui::frmInvoice> ui;
  ControlArray<QPushButton, 12> m_cmdInvoice;
  ControlArray<QFrame, 12> m_fraInstructions;
  ControlArray<ListCombo, 3> m_cboDescription;
  ControlArray<ListCombo, 3> m_cboPrice;
  ControlArray<QRadioButton, 3> m_optDiscount;
  /// Each shows one value of the invoice on its control, if the control shows another.
  std::vector<std::function<void()>> m_shown;
  bool m_showing = false;
  bool m_showAgain = false;
  std::map<QObject*, QAbstractButton*> m_enterRuns;  ///< What Enter in a box runs.
  bool m_typed = false;    ///< Into the entry frame that is open, and not posted or saved since.
  bool m_picking = false;  ///< A category is being picked; the list of them stays.
  int m_depth = 0;         ///< Events inside one another.
};
