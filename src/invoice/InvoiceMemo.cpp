#include "invoice/InvoiceMemo.h"

#include "invoice/WorkingInvoice.h"
#include "printing/MemoFile.h"

using namespace Qt::StringLiterals;

namespace {

void SetMemoTick(WorkingInvoice& invoice, bool shows) {
  invoice.Controls.Visible.lblMemo = shows;
  invoice.Controls.Visible.ckAddMemo = shows;
}

void SaveInvoiceMemo(WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  if (invoice.txtMemo.isEmpty()) return;
  SaveMemo(invoice.txtMemo, disk);
  SetMemoTick(invoice, true);
  invoice.Controls.Enabled.cmdInvoiceMemo_1 = true;
}

}  // namespace

void LoadInvoiceMemo(WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  const auto lines = MemoLines(disk);
  const bool isThere = lines.has_value();
  const QString memo = MemoText(lines.value_or(QStringList()));
  invoice.DefaultMemo = memo;
  SetMemoTick(invoice, isThere);
  invoice.ckAddMemo = isThere;
  if (!isThere) invoice.txtMemo.clear();
  invoice.txtMemo += memo;
}

void ReloadInvoiceMemo(WorkingInvoice& invoice, CommonDiskRoutines& disk) {
  LoadInvoiceMemo(invoice, disk);
  invoice.txtMemo = invoice.DefaultMemo;
}

void DoInvoiceMemoCommand(WorkingInvoice& invoice, int index, CommonDiskRoutines& disk) {
  if (index == 0) {
    invoice.Controls.Visible.lblMemo = false;
    invoice.txtMemo.clear();
    invoice.Controls.Focus = u"txtMemo"_s;
  } else if (index == 1) {
    ReloadInvoiceMemo(invoice, disk);
  } else if (index == 2) {
    SaveInvoiceMemo(invoice, disk);
  }
}

void OpenMemo(WorkingInvoice& invoice) {
  if (invoice.ckAddMemo) return;
  invoice.Controls.Enabled.cmdInvoiceMemo_1 = false;
  invoice.Controls.Enabled.cmdInvoiceMemo_2 = false;
}

void TypeInMemo(WorkingInvoice& invoice) {
  invoice.Controls.Enabled.cmdInvoiceMemo_2 = true;
}
