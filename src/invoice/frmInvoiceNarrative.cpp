// The narrative of the invoice.
#include <QPlainTextEdit>

#include "invoice/frmInvoice.h"
#include "invoice/InvoiceNarrative.h"
#include "invoice/WorkingInvoice.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

void frmInvoice::WireNarrative() {
  Click(ui->cmdNarrative_0, [this] {
    if (SaveNarrative(m_invoice, m_desk.Disk, m_desk.Boxes, [this] { mnuCreate(); })) ui->fraNarrative->hide();
  });
  Click(ui->cmdNarrative_1, [this] {
    m_invoice.txtNarrative.clear();
    m_invoice.Controls.Focus = u"txtNarrative"_s;
  });
  Click(ui->cmdNarrative_2, [this] { LoadDefaultNarrative(m_invoice, m_desk.Disk); });
  Click(ui->cmdNarrative_3, [this] { SaveDefaultNarrative(m_invoice, m_desk.Disk); });
  Click(ui->cmdNarrative_4, [this] {
    m_invoice.txtNarrative.clear();
    ui->fraNarrative->hide();
  });
}

/// Opening the frame always replaces what stood in the box by the default.
void frmInvoice::mnuNarrative() {
  HideFrames();
  ShowInstructions(10);
  ui->fraNarrative->show();
  m_invoice.Controls.Focus = u"txtNarrative"_s;
  LoadDefaultNarrative(m_invoice, m_desk.Disk);
  ui->fraNarrative->raise();
}
