// Labor: hours against the three rates, their charges, and the lines posted from them.
#include "catalogue/Catalogue.h"
#include "invoice/frmInvoice.h"
#include "invoice/LaborEntry.h"
#include "invoice/WorkingInvoice.h"
#include "setup/LiveSettings.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

void frmInvoice::WireLabor() {
  const ControlArray<QLineEdit, 3> txtHours(this, u"txtHours"_s);
  for (int slot = 0; slot < txtHours.Size(); ++slot) {
    QLineEdit* box = txtHours[slot];
    Enter(box, [this, slot] { EnterCountBox(m_invoice.Entry.txtHours[static_cast<size_t>(slot)]); });
    FilterNumber(box, ui->cmdLabor_0);
    Leave(box, [this, slot] { LeaveHours(m_invoice, slot, m_desk.Boxes); });
  }
  Click(
      ui->cmdLabor_0, [this] { SumLabor(m_invoice); }, WhenLeaveRefused::Dropped);
  Click(
      ui->cmdLabor_1,
      [this] {
        PostLabor(m_invoice, m_desk.Prices.Labor, m_desk.Settings.Tax);
        m_typed = false;
        if (ui->mnuServices->isEnabled()) mnuServices();
      },
      WhenLeaveRefused::Dropped);
  Click(ui->cmdLabor_2, [this] { ClearLabor(m_invoice); });
}
