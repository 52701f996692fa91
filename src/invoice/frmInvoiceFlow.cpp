// The road through the screen: activation, Continue, the ways out, and the print run.
#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueRecords.h"
#include "customers/CustomerOnScreen.h"
#include "invoice/ClearInvoice.h"
#include "invoice/frmInvoice.h"
#include "invoice/InvoiceHeaderData.h"
#include "invoice/InvoiceNumber.h"
#include "invoice/InvoiceOnPaper.h"
#include "invoice/LaborEntry.h"
#include "invoice/WorkingInvoice.h"
#include "printing/KVPrint.h"
#include "printing/PackingSlip.h"
#include "printing/PrinterRoutines.h"
#include "runtime/Clock.h"
#include "setup/LiveSettings.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/Screens.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

void frmInvoice::WireFlow() {
  Click(m_cmdInvoice[0], [this] { Continue([this] { mnuCreate(); }); });
  Click(m_cmdInvoice[1], [this] {
    LoadSettings(m_desk.Disk, m_desk.Settings);
    m_invoice.RecalledInvoice = false;
    ReturnToMenu();
  });
  Click(ui->cmdExit, [this] { cmdExit(); });
  Click(ui->cmdRedo, [this] { cmdRedo(); });
  Click(
      ui->cmdInvoiceContinue, [this] { cmdInvoiceContinue(); }, WhenLeaveRefused::Dropped);
}

void frmInvoice::Activate() {
  WorkingInvoice& invoice = m_invoice;
  ui->mnuServices->setEnabled(m_desk.Disk.FileExists(CatalogueFile::Services()));
  ui->mnuItems->setEnabled(m_desk.Disk.FileExists(CatalogueFile::Items()));
  ui->mnuCItems->setEnabled(m_desk.Disk.FileExists(CatalogueFile::Custom()));
  SetInvoiceMode(invoice, invoice.RecalledInvoice, m_desk.Disk, m_desk.Today);
  ShowInvoiceMode();
  ResetInvoiceOptions(invoice, m_desk.Settings.Tax);
  LoadLaborRates(invoice, m_desk.Prices.Labor);
  ClearLabor(invoice);
  LoadTerms(Terms(), m_desk.Disk);
  LoadShipVia(invoice, m_desk.Disk);
  ArrangeAddressBoxes();
  LoadTaxHeadings();
  invoice.DraftPrint = false;
  invoice.Controls.Visible.fraPrePaid = false;
  invoice.Controls.Enabled.cmdAddDiscount = true;
  invoice.Controls.Enabled.cmdInvoiceContinue = false;
  mnuSetup();
  if (!invoice.RecalledInvoice) ShowCustomer(invoice);
  ShowInvoice();
}

/// A new invoice is created, a recalled one added to.
void frmInvoice::ShowInvoiceMode() {
  const bool recalled = m_invoice.RecalledInvoice;
  m_cmdInvoice[0]->setText(recalled ? u"Add To......."_s : u"Continue......"_s);
  m_cmdInvoice[0]->setToolTip(recalled ? u"Continues the Creation of this Invoice"_s : u"Create this Invoice"_s);
  if (recalled) {
    ui->fraTemplates->hide();
  } else {
    LoadTemplateList();
  }
}

bool frmInvoice::Continue(const std::function<void()>& refused) {
  TakeOverInvoiceNo(m_invoice);
  if (!CheckInvoiceNo(m_invoice, m_desk.Boxes, refused)) return false;
  FillReference(m_invoice, m_desk.Today);
  ui->cmdTemplate_2->setEnabled(true);
  mnuCreate();
  // Not the number's box, where the next key would replace the number; nor a row without a line, which it would fill.
  m_invoice.Controls.Focus = u"fgInvoice"_s;
  if (m_invoice.fgInvoice.Row() > m_invoice.LineCount) m_invoice.fgInvoice.SetRow(0);
  if (!m_invoice.fgInvoice.Text(1, LineColumn::Description).isEmpty()) m_invoice.Controls.Enabled.cmdPrint = true;
  return true;
}

void frmInvoice::cmdRedo() {
  ui->fraPrintReady->hide();
  ResetInvoiceOptions(m_invoice, m_desk.Settings.Tax);
  ClearInvoice(m_invoice, m_desk.Today);
}

void frmInvoice::cmdExit() {
  AbandonInvoice(m_invoice, m_desk.Today);
  LoadSettings(m_desk.Disk, m_desk.Settings);
  ReturnToMenu();
}

void frmInvoice::ReturnToMenu() {
  m_desk.Others.Hide(ScreenName::frmInvoice);
  m_desk.Others.Show(ScreenName::frmStartup);
}

void frmInvoice::PrintInvoice() {
  m_desk.Pages.PrintInvoice(PageOf(m_invoice, m_desk.Customer.UsaAddress, m_desk.Today.Today()), m_invoice.DraftPrint);
}

void frmInvoice::cmdInvoiceContinue() {
  CommitSteps steps;
  steps.BeginPrintJob = [this] { m_desk.Printing.BeginPrintJob(u"Invoice "_s + m_invoice.txtInvoiceNo); };
  steps.PrintInvoice = [this] { PrintInvoice(); };
  steps.ReloadItems = [this] { m_desk.Prices.LoadAdditionalItems(); };
  steps.SelectedPartial = m_desk.SelectedPartial;
  steps.ReloadPartials = m_desk.ReloadPartials;
  steps.PrintPackingSlip = [this] {
    m_invoice.Show();
    PrintPackingSlip({m_desk.Printing, m_desk.Pages, m_desk.Boxes}, m_invoice.fgInvoice);
  };
  steps.ToCreationView = [this] { mnuCreate(); };
  steps.Leave = [this] { cmdExit(); };
  PrintAndCommit(
      {m_invoice, m_desk.Disk, m_desk.Boxes, m_desk.Today, m_desk.Settings.Tax, m_desk.Customer, m_desk.SalesItems},
      steps);
}
