// Leaving the invoice unfinished: the save as a partial invoice.
#include "invoice/frmInvoice.h"
#include "invoice/PartialSave.h"
#include "invoice/WorkingInvoice.h"
#include "printing/PrinterRoutines.h"
#include "ui_frmInvoice.h"

void frmInvoice::WireSave() {
  Click(
      ui->cmdSave, [this] { cmdSave(); }, WhenLeaveRefused::Dropped);
}

void frmInvoice::cmdSave() {
  PartialSaveSteps steps;
  steps.PrintInvoice = [this] { return m_desk.Printing.RunPrintJob(m_desk.Boxes, [this] { PrintInvoice(); }); };
  steps.ReloadPartials = m_desk.ReloadPartials;
  steps.ToCreationView = [this] { mnuCreate(); };
  steps.Leave = [this] { cmdExit(); };
  SavePartial({m_invoice, m_desk.Disk, m_desk.Boxes, m_desk.Today}, steps);
}
