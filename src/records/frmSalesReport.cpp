#include "records/frmSalesReport.h"

#include <QSignalBlocker>

#include "catalogue/SalesItemsList.h"
#include "desktop/DateBox.h"
#include "desktop/ProgressBox.h"
#include "printing/PrinterRoutines.h"
#include "records/ItemSales.h"
#include "records/SalesPurge.h"
#include "records/SalesRange.h"
#include "records/SalesReport.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Dialogs.h"
#include "setup/BusinessProfile.h"
#include "shell/Screens.h"
#include "ui_frmSalesReport.h"

using namespace Qt::StringLiterals;

frmSalesReport::frmSalesReport(ScreenHost& host, const SalesDesk& desk)
    : Screen(u"frmSalesReport"_s, host),
      m_desk(desk),
      m_ui(std::make_unique<Ui::frmSalesReport>()),
      m_DTPicker1(BuildForm(*m_ui), u"DTPicker1"_s),
      m_cmdIncome(this, u"cmdIncome"_s),
      m_cmdSales(this, u"cmdSales"_s) {
  m_ui->fraSort->hide();
  m_ui->fraInstructions_0->hide();
  m_ui->fgSalesItems->SetMatrix(&m_desk.Sales.fgSalesItems);
  m_ui->fgTotals->SetMatrix(&m_desk.Sales.fgTotals);
  // Nothing is done with a row of these: none stands out that the user didn't go to.
  for (GridView* grid : {m_ui->fgSalesItems, m_ui->fgTotals}) grid->AwaitChoice();
  WireDates();
  WireCommands();
  On(m_ui->lstSalesItems, &QListWidget::itemChanged, [this](QListWidgetItem* item) {
    const auto index = static_cast<std::size_t>(m_ui->lstSalesItems->row(item));
    m_desk.Items.Items.at(index).Ticked = item->checkState() == Qt::Checked;
  });
  On(m_ui->mnuInstructions, &QAction::triggered,
     [this] { m_ui->fraInstructions_0->setVisible(m_ui->fraInstructions_0->isHidden()); });
  On(m_ui->mnuDelete, &QAction::triggered, [this] { mnuDelete(); });
}

frmSalesReport::~frmSalesReport() = default;

void frmSalesReport::WireDates() {
  for (int i = 0; i < 2; ++i) {
    m_DTPicker1[i]->Change = [this, i] {
      m_desk.Dates.Pick(i, m_DTPicker1[i]->date());
      ShowDates();
    };
  }
  OnClick(m_cmdIncome[0], [this] { LastMonth(); });
  OnClick(m_cmdIncome[1], [this] { RunPreset(&SalesDates::MonthToDate); });
  OnClick(m_cmdIncome[2], [this] { RunPreset(&SalesDates::YearToDate); });
  OnClick(m_cmdIncome[3], [this] { RunPreset(&SalesDates::Eternity); });
}

void frmSalesReport::WireCommands() {
  OnClick(
      m_cmdSales[0], [this] { ReturnToMenu(); }, WhenLeaveRefused::Always);
  OnClick(m_cmdSales[1], [this] { TickAll(true); });
  OnClick(m_cmdSales[2], [this] {
    TickAll(false);
    ClearSalesGrids(m_desk.Sales);
  });
  OnClick(m_cmdSales[3], [this] { LoadGrid(); });
  OnClick(m_cmdSales[4], [this] { PrintReport(); });
  OnClick(m_cmdSales[5], [this] { m_ui->fraInstructions_0->hide(); });
  SetEnterButton(m_cmdSales[3]);
  SetEscapeButton(m_cmdSales[0]);
}

void frmSalesReport::Activate() {
  setWindowTitle(u"Item Sales Report for "_s + m_desk.Business.BusinessName);
  ShowItems();
  m_desk.Dates.Activate();
  ShowDates();
  SetFocusTo(m_ui->lstSalesItems);
  // An error mustn't keep the screen from coming up: here the dates and the ticks that led to it can be changed.
  Run([this] { LoadGrid(); });
}

/// The list is loaded again at each save of the catalogue.
void frmSalesReport::ShowItems() {
  QListWidget* list = m_ui->lstSalesItems;
  const QSignalBlocker quiet(list);
  list->clear();
  for (const SalesItem& item : m_desk.Items.Items) {
    auto* entry = new QListWidgetItem(item.Name, list);
    entry->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    entry->setCheckState(item.Ticked ? Qt::Checked : Qt::Unchecked);
  }
}

void frmSalesReport::ShowDates() {
  // Anew each time: the program may run past midnight.
  m_DTPicker1[1]->SetLatest(m_desk.Today.Today());
  for (int i = 0; i < 2; ++i) m_DTPicker1[i]->ShowDate(m_desk.Range.DTPicker1.at(static_cast<std::size_t>(i)));
}

void frmSalesReport::TickAll(bool ticked) {
  for (SalesItem& item : m_desk.Items.Items) item.Ticked = ticked;
  ShowItems();
}

void frmSalesReport::ReturnToMenu() {
  m_desk.Others.Hide(ScreenName::frmSalesReport);
  m_desk.Others.Show(ScreenName::frmStartup);
}

bool frmSalesReport::RunPreset(void (SalesDates::*preset)()) {
  (m_desk.Dates.*preset)();
  ShowDates();
  return LoadGrid();
}

void frmSalesReport::LastMonth() {
  // The month to date with all that it does comes first.
  if (RunPreset(&SalesDates::MonthToDate)) RunPreset(&SalesDates::LastMonth);
}

bool frmSalesReport::LoadGrid() {
  if (!AnyTicked(m_desk.Items)) return true;
  // The time that the user takes for the message isn't counted.
  ProgressBox progress(u"Looking through what was sold ..."_s, m_desk.Patience, ProgressBox::Since::FirstStep);
  const SalesFound found = LoadSalesGrid(m_desk.Sales, m_desk.Range, m_desk.Items, m_desk.Disk, progress.Teller());
  if (found == SalesFound::NoFile) m_desk.Boxes.ShowMessage(u"No Items Found"_s);
  if (found == SalesFound::Some) m_cmdSales[4]->setEnabled(true);
  m_ui->fgSalesItems->SetTopRow(1);
  const bool whole = found != SalesFound::Stopped && BuildSalesTotals(m_desk.Sales, m_desk.Items, progress.Teller());
  if (!whole) m_cmdSales[4]->setEnabled(false);
  return whole;
}

void frmSalesReport::PrintReport() {
  const bool printed = m_desk.Routines.RunPrintJob(m_desk.Boxes, [this] {
    ProgressBox progress = ProgressBox::OfReport(m_desk.Patience);
    m_desk.Report.PrintItemSales(m_desk.Sales, m_desk.Range, progress.Teller());
  });
  if (!printed) return;
  // The focus would go on to Menu, which a second Enter would press.
  SetFocusTo(m_ui->fgSalesItems);
  m_cmdSales[4]->setEnabled(false);
}

void frmSalesReport::mnuDelete() {
  const SalesRange& range = m_desk.Range;
  const QString question =
      QStringList{u"This will delete ALL Sales Item Records dated"_s,
                  ShortDateText(range.DTPicker1[0]) + u" through "_s + ShortDateText(range.DTPicker1[1]),
                  u"Click Yes to Delete"_s}
          .join(u"\r\n"_s);
  if (!m_desk.Boxes.AskYesNo(question, u"Delete Sales Records"_s)) return;
  if (!m_desk.Boxes.AskYesNo(u"Are you Sure?"_s, u"Delete Verification"_s)) return;
  if (PurgeSoldItems(range, m_desk.Disk)) {
    Activate();
  } else {
    ReturnToMenu();
  }
}
