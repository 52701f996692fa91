// The views: frames that are shown one at a time above the grid, and the help that goes with each.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>

#include "catalogue/Catalogue.h"
#include "invoice/frmInvoice.h"
#include "invoice/InvoiceMemo.h"
#include "invoice/InvoiceOnPaper.h"
#include "invoice/LaborEntry.h"
#include "invoice/Totals.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Currency.h"
#include "runtime/Dialogs.h"
#include "setup/LiveSettings.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

void frmInvoice::WireViews() {
  using View = void (frmInvoice::*)();
  for (const auto& [entry, button, view] :
       {std::tuple<QAction*, QToolButton*, View>(ui->mnuSetup, ui->btnSetup, &frmInvoice::mnuSetup),
        {ui->mnuCreate, ui->btnCreate, &frmInvoice::mnuCreate},
        {ui->mnuServices, ui->btnServices, &frmInvoice::mnuServices},
        {ui->mnuItems, ui->btnItems, &frmInvoice::mnuItems},
        {ui->mnuCItems, ui->btnCItems, &frmInvoice::mnuCItems},
        {ui->mnuManual, ui->btnManual, &frmInvoice::mnuManual},
        {ui->mnuLabor, ui->btnLabor, &frmInvoice::mnuLabor},
        {ui->mnuMemo, ui->btnMemo, &frmInvoice::mnuMemo},
        {ui->mnuNarrative, ui->btnNarrative, &frmInvoice::mnuNarrative}}) {
    Choose(entry, view);
    OnStrip(button, entry, view);
  }
  Choose(ui->mnuPrint, &frmInvoice::mnuPrint);
  // As the button Ready to Print, so that no discount of an earlier invoice is deducted; the menu's entry keeps it.
  OnStrip(ui->btnPrint, ui->mnuPrint, &frmInvoice::cmdPrint);
  On(ui->mnuClose, &QAction::triggered, Doing([this] { HideFrames(); }));
  for (QWidget* frame : EntryFrames()) {
    auto* escape = new QShortcut(Qt::Key_Escape, frame);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    On(escape, &QShortcut::activated, Doing([this] { EscapeEntryFrame(); }));
    for (const QLineEdit* line : frame->findChildren<QLineEdit*>()) {
      connect(line, &QLineEdit::textEdited, this, [this] { m_typed = true; });
    }
  }
  for (const QPlainTextEdit* lines : {ui->txtMemo, ui->txtNarrative}) {
    connect(lines, &QPlainTextEdit::textChanged, this, [this] {
      if (!m_showing) m_typed = true;
    });
  }
}

void frmInvoice::Choose(QAction* entry, void (frmInvoice::*view)()) {
  entry->setCheckable(true);
  On(entry, &QAction::triggered, Doing([this, view] { (this->*view)(); }));
}

void frmInvoice::OnStrip(QToolButton* button, QAction* entry, void (frmInvoice::*view)()) {
  button->installEventFilter(this);
  On(button, &QToolButton::clicked, Doing([this, view] { GoByStrip(view); }));
  On(entry, &QAction::changed, [entry, button] { button->setEnabled(entry->isEnabled()); });
}

/// The way out of the setup view is Continue, which takes the number over: passed by, the invoice would be recorded
/// under another one. The entries of the menu do pass it by, which is meant.
void frmInvoice::GoByStrip(void (frmInvoice::*view)()) {
  // In the summary already: run anew, it would drop the discount that was just deducted.
  if (view == &frmInvoice::cmdPrint && Shows(ui->fraPrintReady)) return;
  if (Shows(ui->fraSetup) && view != &frmInvoice::mnuSetup) {
    if (!Continue({}) || view == &frmInvoice::mnuCreate) return;
    // The summary asks for no focus itself, and the number's box, which it would stay in, is still in sight.
    if (view != &frmInvoice::cmdPrint) m_invoice.Controls.Focus.clear();
  }
  (this->*view)();
}

std::vector<QWidget*> frmInvoice::EntryFrames() const {
  return {ui->fraItems, ui->fraCItems, ui->fraLabor, ui->fraManual, ui->fraNarrative, ui->fraServices, ui->fraMemo};
}

void frmInvoice::HideFrames() {
  for (QWidget* frame : EntryFrames()) frame->hide();
  ui->fraSetup->hide();
  ui->fraPrintReady->hide();
  m_typed = false;
}

/// Escape goes back to the lines, where that loses nothing.
void frmInvoice::EscapeEntryFrame() {
  if (m_typed) {
    m_desk.Boxes.Beep();
  } else {
    mnuCreate();
  }
}

void frmInvoice::ShowInstructions(int index) {
  for (int i = 0; i < m_fraInstructions.Size(); ++i) m_fraInstructions[i]->hide();
  m_fraInstructions[index]->show();
}

bool frmInvoice::Shows(const QWidget* control) const {
  return control->isVisibleTo(this);
}

/// Way forward and view buttons follow the view.
void frmInvoice::ShowViewButtons() {
  // The others take their colours from these two, which get theirs only as the window first shows.
  for (QPushButton* lookedAt : {ui->cmdSave, ui->cmdInvoiceContinue}) lookedAt->ensurePolished();
  const bool setup = Shows(ui->fraSetup);
  const bool printReady = Shows(ui->fraPrintReady);
  m_cmdInvoice[0]->setVisible(setup);
  for (QWidget* button : {m_cmdInvoice[9], ui->cmdInvoiceContinue, ui->cmdCancelPrint}) button->setVisible(printReady);
  // Enter never prints, though Print stands out then: Cancel in the printer dialog drops the invoice.
  const bool paying = m_invoice.Controls.Visible.fraPrePaid;
  SetEnterButton(setup ? m_cmdInvoice[0] : printReady && !paying ? m_cmdInvoice[9] : nullptr);
  // The button that stands out is the way forward of the view.
  const bool finalized = m_invoice.Controls.Enabled.cmdInvoiceContinue;
  m_cmdInvoice[9]->setPalette(finalized ? ui->cmdSave->palette() : ui->cmdInvoiceContinue->palette());
  ui->cmdPrint->setVisible(!setup);
  ui->cmdPrint->setPalette(printReady ? ui->cmdSave->palette() : ui->cmdInvoiceContinue->palette());
  bool none = true;
  for (const auto& [entry, button, frame] :
       {std::tuple<QAction*, QToolButton*, QWidget*>(ui->mnuSetup, ui->btnSetup, ui->fraSetup),
        {ui->mnuPrint, ui->btnPrint, ui->fraPrintReady},
        {ui->mnuServices, ui->btnServices, ui->fraServices},
        {ui->mnuItems, ui->btnItems, ui->fraItems},
        {ui->mnuCItems, ui->btnCItems, ui->fraCItems},
        {ui->mnuManual, ui->btnManual, ui->fraManual},
        {ui->mnuLabor, ui->btnLabor, ui->fraLabor},
        {ui->mnuMemo, ui->btnMemo, ui->fraMemo},
        {ui->mnuNarrative, ui->btnNarrative, ui->fraNarrative}}) {
    entry->setChecked(Shows(frame));
    button->setChecked(Shows(frame));
    none = none && !Shows(frame);
  }
  ui->mnuCreate->setChecked(none);
  ui->btnCreate->setChecked(none);
  for (auto* button : ui->fraViews->findChildren<QToolButton*>()) {
    QPalette look = ui->cmdSave->palette();
    if (button->isChecked()) look = ui->cmdInvoiceContinue->palette();
    button->setPalette(look);
  }
}

void frmInvoice::mnuSetup() {
  HideFrames();
  ShowInstructions(0);
  ui->fraSetup->show();
}

void frmInvoice::mnuCreate() {
  HideFrames();
  ShowInstructions(1);
}

void frmInvoice::mnuPrint() {
  HideFrames();
  ShowInstructions(2);
  const PaperToInsert paper = PaperFor(m_desk.Settings.Print);
  ui->Label2_6->setVisible(paper.Label2_6);
  ui->fraPrintReady->setTitle(paper.fraPrintReady);
  ui->fraPrintReady->show();
  ComputeTotals(m_invoice, m_desk.Settings.Tax);
}

void frmInvoice::mnuServices() {
  HideFrames();
  ShowInstructions(9);
  ClearSelection(m_invoice, 0);
  ui->fraServices->show();
  m_invoice.Controls.Focus = u"cboDescription_0"_s;
}

void frmInvoice::mnuItems() {
  HideFrames();
  ShowInstructions(6);
  ui->lstCategories->setCurrentRow(-1);
  ClearSelection(m_invoice, ElementOf(LineKind::Item));
  m_invoice.Entry.txtUnits.clear();
  ui->fraItems->show();
  m_invoice.Controls.Focus = u"cboDescription_1"_s;
}

void frmInvoice::mnuCItems() {
  HideFrames();
  ShowInstructions(11);
  ClearSelection(m_invoice, 2);
  m_invoice.Entry.txtCUnits.clear();
  ui->fraCItems->show();
  m_invoice.Controls.Focus = u"cboDescription_2"_s;
}

void frmInvoice::mnuManual() {
  HideFrames();
  ShowInstructions(7);
  m_invoice.Entry.txtManual[1] = ZeroCurrencyText();
  m_invoice.Entry.txtManual[2].clear();
  ui->fraManual->show();
  m_invoice.Controls.Focus = u"txtManual_0"_s;
}

void frmInvoice::mnuLabor() {
  HideFrames();
  ShowInstructions(8);
  LoadLaborRates(m_invoice, m_desk.Prices.Labor);
  ClearLabor(m_invoice);
  ui->fraLabor->show();
  for (size_t i = 0; i < m_invoice.Entry.LaborShows.size(); ++i) {
    if (m_invoice.Entry.LaborShows[i]) m_invoice.Controls.Focus = u"txtHours_%1"_s.arg(i);
  }
}

void frmInvoice::mnuMemo() {
  HideFrames();
  OpenMemo(m_invoice);
  ui->fraMemo->show();
  m_invoice.Controls.Focus = u"txtMemo"_s;
}
