#include "records/frmIncomplete.h"

#include "desktop/ProgressBox.h"
#include "invoice/RecallInvoice.h"
#include "records/GridReport.h"
#include "records/PartialList.h"
#include "records/PartialPurge.h"
#include "runtime/Dialogs.h"
#include "shell/Screens.h"
#include "ui_frmIncomplete.h"

using namespace Qt::StringLiterals;

frmIncomplete::frmIncomplete(ScreenHost& host, const PartialDesk& desk)
    : Screen(u"frmIncomplete"_s, host),
      m_desk(desk),
      m_ui(std::make_unique<Ui::frmIncomplete>()),
      m_Command1(BuildForm(*m_ui), u"Command1"_s) {
  GridView* grid = m_ui->fgIncomplete;
  grid->SetMatrix(&m_desk.Partials.fgIncomplete);
  grid->Click = [this] { ClickRow(); };
  grid->DoubleClick = [this] { AddToSelected(); };
  grid->ClickByKeys();
  OnClick(
      m_Command1[0], [this] { ReturnToMenu(); }, WhenLeaveRefused::Always);
  OnClick(m_Command1[1], [this] { AddToSelected(); });
  OnClick(m_Command1[2], [this] { PurgeAll(); });
  OnClick(m_Command1[3], [this] { PurgeSelected(); });
  OnClick(m_ui->cmdReport, [this] { cmdReport(); });
  SetEscapeButton(m_Command1[0]);
}

frmIncomplete::~frmIncomplete() = default;

bool frmIncomplete::MayShow() {
  return LoadPartialList(m_desk.Partials, m_desk.Disk);
}

void frmIncomplete::Activate() {
  m_ui->fgIncomplete->AwaitChoice();
  m_Command1[1]->setEnabled(false);
  m_Command1[3]->setEnabled(false);
  SetFocusTo(m_ui->fgIncomplete);
}

void frmIncomplete::ReturnToMenu() {
  m_desk.Others.Hide(ScreenName::frmIncomplete);
  m_desk.Others.Show(ScreenName::frmStartup);
}

void frmIncomplete::ClickRow() {
  if (m_desk.Partials.fgIncomplete.Row() < 1) return;
  m_Command1[3]->setEnabled(true);
  m_Command1[1]->setEnabled(true);
}

void frmIncomplete::AddToSelected() {
  const TextMatrix& grid = m_desk.Partials.fgIncomplete;
  const int row = grid.Row();
  LoadIncomplete(m_desk.Invoice, m_desk.Disk, m_desk.Today, m_desk.Partials.SelectedInvoiceNo(), grid.Text(row, 3));
  m_desk.Boxes.ShowMessage(
      QStringList{u"Partial Invoice Number "_s + grid.Text(row, 0), u"has been loaded into the Invoice Screen."_s,
                  QString(), u"Click OK"_s, QString(), u"The Invoice Screen will display."_s, QString(),
                  u"Click the [Add To......] Button"_s}
          .join(u"\r\n"_s),
      u"Partial Invoice Loaded"_s);
  m_desk.Others.Hide(ScreenName::frmIncomplete);
  m_desk.Others.Show(ScreenName::frmInvoice);
}

bool frmIncomplete::IsSure() {
  return m_desk.Boxes.AskYesNo(u"Are You Sure?"_s, u"Purge Confirmation"_s);
}

void frmIncomplete::PurgeAll() {
  if (!m_desk.Boxes.AskYesNo(u"This will Purge ALL Incomplete Invoices"_s, u"Purge Incomplete Invoices"_s)) return;
  if (!IsSure()) return;
  PurgeAllPartials(m_desk.Partials, m_desk.Disk);
  ReturnToMenu();
}

void frmIncomplete::PurgeSelected() {
  // Until the next click on a row, whatever is answered. The focus would go on to Purge All, which a second Enter would
  // press.
  SetFocusTo(m_ui->fgIncomplete);
  m_Command1[3]->setEnabled(false);
  const TextMatrix& grid = m_desk.Partials.fgIncomplete;
  if (!m_desk.Boxes.AskYesNo(u"This will Purge Incomplete Invoice# "_s + grid.Text(grid.Row(), 0),
                             u"Purge Incomplete Invoice"_s)) {
    return;
  }
  if (!IsSure()) return;
  PurgeSelectedPartial(m_desk.Partials, m_desk.Disk);
  ReturnToMenu();
}

void frmIncomplete::cmdReport() {
  try {
    ProgressBox progress = ProgressBox::OfReport(m_desk.Patience);
    m_desk.Reports.PrintGridReport({u"Incomplete Invoices Report"_s}, m_desk.Partials.fgIncomplete, progress.Teller());
  } catch (const RuntimeError& error) {
    // Alone among the print buttons this one has no message of its own; only a cancelled dialog, or a stop, is nothing
    // to tell.
    if (error.Number() != ErrorNumber::DialogCancelled) throw;
  }
}
