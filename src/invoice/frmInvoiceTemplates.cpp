// The templates of invoice lines: load and delete in the setup view, save beside the lines.
#include <QListWidget>

#include "invoice/frmInvoice.h"
#include "invoice/InvoiceTemplates.h"
#include "invoice/WorkingInvoice.h"
#include "shell/CommonDiskRoutines.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

void frmInvoice::WireTemplates() {
  const auto desk = [this] { return TemplateDesk{m_invoice, m_desk.Disk, m_desk.Boxes, m_desk.Today}; };
  const auto selected = [this] {
    // Not the current item: tabbing into the list makes its first one current and selects none.
    const QList<QListWidgetItem*> items = ui->flstInvoiceTemplates->selectedItems();
    return items.isEmpty() ? QString() : items.first()->text();
  };
  On(ui->flstInvoiceTemplates, &QListWidget::itemSelectionChanged, [this] {
    if (ui->flstInvoiceTemplates->selectedItems().isEmpty()) return;
    ui->cmdTemplate_0->setEnabled(true);
    ui->cmdTemplate_1->setEnabled(true);
  });
  EnterRuns(ui->flstInvoiceTemplates, ui->cmdTemplate_0);
  Click(ui->cmdTemplate_0, [this, desk, selected] {
    if (LoadTemplate(desk(), selected())) Continue([this] { mnuCreate(); });
  });
  Click(ui->cmdTemplate_1, [this, desk, selected] {
    if (!DeleteTemplate(desk(), selected())) return;
    RefreshTemplates();
    if (ui->flstInvoiceTemplates->count() > 0) return;
    ui->cmdTemplate_0->setEnabled(false);
    ui->cmdTemplate_1->setEnabled(false);
  });
  Click(
      ui->cmdTemplate_2,
      [this, desk] {
        if (!SaveAsTemplate(desk())) return;
        ui->flstInvoiceTemplates->show();
        RefreshTemplates();
        LoadTemplateList();
        ui->cmdTemplate_2->setEnabled(false);
      },
      WhenLeaveRefused::Dropped);
}

void frmInvoice::RefreshTemplates() {
  ui->flstInvoiceTemplates->clear();
  ui->flstInvoiceTemplates->addItems(m_desk.Disk.ListFiles(TemplateFolder(), u"*"_s));
}

/// Shows the templates, if the folder holds any.
void frmInvoice::LoadTemplateList() {
  RefreshTemplates();
  ui->fraTemplates->setVisible(ui->flstInvoiceTemplates->count() > 0);
  ui->cmdTemplate_0->setEnabled(false);
  ui->cmdTemplate_1->setEnabled(false);
}
