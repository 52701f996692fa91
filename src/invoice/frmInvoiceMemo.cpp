// The memo that prints on each invoice.
#include <QPlainTextEdit>

#include "invoice/frmInvoice.h"
#include "invoice/InvoiceMemo.h"
#include "invoice/WorkingInvoice.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int Save = 2;  ///< Of the memo's buttons.
}

void frmInvoice::WireMemo() {
  ui->txtMemo->installEventFilter(this);
  for (const int index : {0, 1, Save}) {
    Click(findChild<QPushButton*>(u"cmdInvoiceMemo_%1"_s.arg(index)), [this, index] {
      DoInvoiceMemoCommand(m_invoice, index, m_desk.Disk);
      // Saved, it isn't lost by Escape.
      if (index == Save && !m_invoice.txtMemo.isEmpty()) m_typed = false;
    });
  }
  Click(ui->cmdInvoiceMemo_4, [this] { ui->fraMemo->hide(); });
}
