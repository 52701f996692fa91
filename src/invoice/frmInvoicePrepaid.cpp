// The payment of an invoice that is paid when it is issued.
#include <QLineEdit>

#include "desktop/ListCombo.h"
#include "invoice/frmInvoice.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Dialogs.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int Cash = 2;  ///< Entry of `cboPrepaid` that asks for no number.
}

void frmInvoice::WirePrepaid() {
  Bind(ui->fraPrePaid, m_invoice.Controls.Visible.fraPrePaid, &QWidget::setVisible);
  ui->Label2_88->hide();
  ui->cboPrepaid->Click = [this] {
    if (!m_showing) Do([this] { PickPaymentForm(); });
  };
  Click(
      ui->cmdPrepaid_0,
      [this] {
        // Or it would show on the next invoice.
        m_invoice.Controls.Visible.fraPrePaid = false;
        cmdInvoiceContinue();
      },
      WhenLeaveRefused::Dropped);
  Click(ui->cmdPrepaid_1, [this] { CancelPrepaid(); });
}

/// The number is typed behind the word.
void frmInvoice::PickPaymentForm() {
  m_invoice.cboPrepaid = ui->cboPrepaid->Text();
  const bool takesANumber = ui->cboPrepaid->ListIndex() != Cash;
  ui->Label2_88->setVisible(takesANumber);
  if (!takesANumber) return;
  if (QLineEdit* line = ui->cboPrepaid->lineEdit()) line->end(false);
  m_invoice.Controls.Focus = u"cboPrepaid"_s;
}

void frmInvoice::CancelPrepaid() {
  m_invoice.Controls.Visible.fraPrePaid = false;
  // Whichever the answer, the invoice stays prepaid and its payment is posted; that is meant.
  Ask(m_invoice, m_desk.Boxes, u"Click YES to Cancel Prepaid Posting"_s, u"Cancel PrePaid"_s);
}
