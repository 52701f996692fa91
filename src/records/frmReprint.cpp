#include "records/frmReprint.h"

#include <QMouseEvent>
#include <QShortcut>

#include "customers/CustomerOnScreen.h"
#include "desktop/LabelText.h"
#include "desktop/ProgressBox.h"
#include "printing/KVPrint.h"
#include "printing/MemoFile.h"
#include "records/CompletedInvoice.h"
#include "records/CompletedInvoices.h"
#include "records/GridReport.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Dialogs.h"
#include "setup/TaxConfiguration.h"
#include "shell/Screens.h"
#include "ui_frmReprint.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int TwipsPerPixel = 15;
/// Of the label that holds a state of two letters, and of the same one where an address has no state of its own.
constexpr int StateWidth = 435 / TwipsPerPixel;
constexpr int WideStateWidth = 2235 / TwipsPerPixel;

int Chosen(const auto& options) {
  for (int i = 0; i < options.Size(); ++i) {
    if (options[i]->isChecked()) return i;
  }
  return 0;
}

}  // namespace

frmReprint::frmReprint(ScreenHost& host, const ReprintDesk& desk)
    : Screen(u"frmReprint"_s, host),
      m_desk(desk),
      m_ui(std::make_unique<Ui::frmReprint>()),
      m_Label1(BuildForm(*m_ui), u"Label1"_s),
      m_lblBillTo(this, u"lblBillTo"_s),
      m_lblShipTo(this, u"lblShipTo"_s),
      m_lblInvoice(this, u"lblInvoice"_s),
      m_optCol(this, u"optCol"_s),
      m_optSort(this, u"optSort"_s) {
  GridView* grid = m_ui->fgReceivables;
  grid->SetMatrix(&m_desk.Completed.fgReceivables);
  grid->setColumnHidden(CompletedColumn::Sort, true);
  grid->Click = [this] { ClickRow(); };
  grid->ClickByKeys();
  m_ui->fgItems->SetMatrix(&m_desk.Shown.fgItems);
  m_ui->DTPicker1->Change = [this] { ChangeDate(); };
  On(m_ui->mnuSort, &QAction::triggered, [this] { mnuSort(); });
  auto* escape = new QShortcut(Qt::Key_Escape, m_ui->fraSort);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  On(escape, &QShortcut::activated, [this] { HideSort(); });
  // Escape loses nothing: out of a memo in which something was typed only the buttons lead.
  On(m_ui->txtMemo, &QPlainTextEdit::modificationChanged,
     [this](bool typed) { SetEscapeButton(typed ? nullptr : m_ui->cmdHide); });
  m_ui->cmdMemo->installEventFilter(this);
  OnClick(m_ui->cmdMode, [this] { cmdMode(); });
  OnClick(m_ui->cmdHide, [this] { cmdHide(); });
  OnClick(m_ui->cmdMemo, [this] { cmdMemo(); });
  OnClick(m_ui->cmdPrint, [this] { cmdPrint(); });
  OnClick(m_ui->cmdReport, [this] { cmdReport(); });
  OnClick(m_ui->cmdKill, [this] { cmdKill(); });
  OnClick(
      m_ui->cmdExit, [this] { cmdExit(); }, WhenLeaveRefused::Always);
  m_ui->fraSort->hide();
  ShowList(true);
}

frmReprint::~frmReprint() = default;

void frmReprint::Activate() {
  m_ui->DTPicker1->ShowDate(m_desk.Today.Today().addDays(1));
  ShowOnLabel(m_Label1[1], m_desk.Tax.cboTaxHeading1);
  ShowOnLabel(m_Label1[22], m_desk.Tax.cboTaxHeading2);
  UseAddressStyle();
  switch (LoadList()) {
    case CompletedLoad::Loaded:
      SetFocusTo(m_ui->fgReceivables);
      return;
    case CompletedLoad::NoInvoices:
      m_desk.Boxes.ShowMessage(u"No Completed Invoices Exist"_s);
      break;
    case CompletedLoad::Stopped:
      break;
  }
  cmdExit();
}

CompletedLoad frmReprint::LoadList() {
  ProgressBox progress(u"Reading the completed invoices ..."_s, m_desk.Patience);
  return LoadCompletedInvoices(m_desk.Completed, m_desk.Disk, progress.Teller());
}

bool frmReprint::eventFilter(QObject* watched, QEvent* event) {
  // A double click on a row opens its invoice by the first of the two; the second mustn't clear the memo that is then
  // under it.
  if (watched == m_ui->cmdMemo && event->type() == QEvent::MouseButtonDblClick) return true;
  return Screen::eventFilter(watched, event);
}

void frmReprint::UseAddressStyle() {
  const bool usa = m_desk.Customer.UsaAddress;
  for (const auto* lines : {&m_lblBillTo, &m_lblShipTo}) {
    (*lines)[4]->setFixedWidth(usa ? StateWidth : WideStateWidth);
    (*lines)[5]->setVisible(usa);
  }
}

void frmReprint::ClickRow() {
  const TextMatrix& grid = m_desk.Completed.fgReceivables;
  if (grid.Row() < 1) return;
  const QString number = m_desk.Completed.InvoiceNoOf(grid.Row());
  if (OpenCompletedInvoice(m_desk.Shown, m_desk.Disk, number, grid.Text(grid.Row(), CompletedColumn::Date))) {
    ShowInvoice();
    m_ui->fraInvoice->setTitle(PlainCaption(u"Details for Invoice "_s + number));
    ShowList(false);
  } else {
    m_desk.Boxes.ShowMessage(
        QStringList{u"An Image does not exist for this Transaction"_s, u"It most likely is a result of"_s,
                    u"a Service Attention Completion Posting"_s, u"or an E-Funds Received"_s,
                    u"Shown for Reference Only"_s}
            .join(u"\r\n"_s),
        u"Invoice Image Not Found"_s);
  }
  m_desk.Shown.fgItems.SetCol(1);
}

void frmReprint::ShowInvoice() {
  const CompletedInvoice& shown = m_desk.Shown;
  for (int i = 0; i < 6; ++i) {
    ShowOnLabel(m_lblBillTo[i], shown.SoldTo[static_cast<std::size_t>(i)]);
    ShowOnLabel(m_lblShipTo[i], shown.ShipTo[static_cast<std::size_t>(i)]);
  }
  ShowOnLabel(m_Label1[19], shown.CreationDate);
  ShowOnLabel(m_Label1[32], shown.ShipVia);
  ShowOnLabel(m_Label1[33], shown.ShipDate);
  ShowOnLabel(m_Label1[27], shown.InvoiceNo);
  ShowOnLabel(m_Label1[17], shown.Acct);
  ShowOnLabel(m_Label1[9], shown.Reference);
  m_ui->txtAttn->setText(shown.Attention);
  m_ui->txtMemo->setPlainText(MemoText(MemoLines(m_desk.Disk).value_or(QStringList())));
  m_ui->txtMemo->document()->setModified(false);
  // In the image's order.
  constexpr std::array<int, 7> elements{0, 1, 9, 2, 4, 5, 6};
  for (std::size_t i = 0; i < elements.size(); ++i) ShowOnLabel(m_lblInvoice[elements[i]], shown.Amounts[i]);
}

void frmReprint::ShowList(bool list) {
  m_ui->fraList->setVisible(list);
  m_ui->cmdReport->setVisible(list);
  m_ui->fraInvoice->setVisible(!list);
  m_ui->cmdHide->setVisible(!list);
  m_ui->cmdPrint->setVisible(!list);
  m_ui->mnuSort->setVisible(list);
  // Escape leads one step back.
  SetEscapeButton(list ? m_ui->cmdExit : m_ui->cmdHide);
  SetEnterButton(list ? nullptr : m_ui->cmdPrint);
  SetFocusTo(list ? static_cast<QWidget*>(m_ui->fgReceivables) : m_ui->cmdPrint);
}

void frmReprint::cmdHide() {
  ShowList(true);
}

void frmReprint::mnuSort() {
  m_ui->fraSort->show();
  SetEnterButton(m_ui->cmdMode);
  SetFocusTo(m_optCol[Chosen(m_optCol)]);
}

void frmReprint::HideSort() {
  m_ui->fraSort->hide();
  SetEnterButton(nullptr);
  SetFocusTo(m_ui->fgReceivables);
}

void frmReprint::cmdMode() {
  SortCompletedInvoices(m_desk.Completed, Chosen(m_optCol), Chosen(m_optSort));
  HideSort();
}

void frmReprint::cmdMemo() {
  m_ui->txtMemo->clear();
  m_ui->txtMemo->document()->setModified(false);
  SetEscapeButton(m_ui->cmdHide);
  KillMemo(m_desk.Disk);
}

void frmReprint::cmdPrint() {
  m_desk.Routines.RunPrintJob(m_desk.Boxes, [this] {
    m_desk.Routines.BeginPrintJob(u"Invoice "_s + m_desk.Shown.InvoiceNo);
    SaveMemo(m_ui->txtMemo->toPlainText(), m_desk.Disk);
    m_ui->txtMemo->document()->setModified(false);
    m_desk.Pages.PrintReprint(PageOf(m_desk.Shown, m_desk.Customer.UsaAddress));
  });
}

void frmReprint::cmdReport() {
  m_desk.Routines.RunPrintJob(m_desk.Boxes, [this] {
    ProgressBox progress = ProgressBox::OfReport(m_desk.Patience);
    m_desk.Reports.PrintGridReport({u"Invoices Report"_s, ReportAmounts::Printed}, m_desk.Completed.fgReceivables,
                                   progress.Teller());
  });
}

void frmReprint::ChangeDate() {
  const QDate today = m_desk.Today.Today();
  if (m_ui->DTPicker1->date() > today) m_ui->DTPicker1->ShowDate(today);
}

void frmReprint::cmdKill() {
  const QDate date = m_ui->DTPicker1->date();
  if (!m_desk.Boxes.AskYesNo(u"This will Delete All Invoices before "_s + ShortDateText(date),
                             u"Delete Invoice Records"_s)) {
    return;
  }
  {
    ProgressBox progress(u"Deleting the invoices ..."_s, m_desk.Patience);
    PurgeCompletedInvoices(m_desk.Completed, m_desk.Disk, date, progress.Teller());
  }
  cmdExit();
}

void frmReprint::cmdExit() {
  // The menu may stand still, where there was nothing to list: it is shown anew, by what there is now.
  m_desk.Others.Hide(ScreenName::frmStartup);
  m_desk.Others.Unload(ScreenName::frmReprint);
  m_desk.Others.Show(ScreenName::frmStartup);
}
