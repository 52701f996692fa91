// The posted lines: typing into them, moving and deleting them.
#include "desktop/GridView.h"
#include "invoice/frmInvoice.h"
#include "invoice/GridEditing.h"
#include "invoice/WorkingInvoice.h"
#include "ui_frmInvoice.h"

void frmInvoice::WireGrid() {
  GridView* grid = ui->fgInvoice;
  grid->SetMatrix(&m_invoice.fgInvoice);
  grid->Click = [this] { Do([this] { ClickGrid(m_invoice); }); };
  grid->RowChanged = [this](int) {
    SelectLine(m_invoice);
    // Inside another event the screen shows its values at that one's end.
    if (m_depth == 0) ShowInvoice();
  };
  grid->KeyPress = [this](int key) { Do([this, key] { TypeInGrid(m_invoice, key, m_desk.Boxes); }); };
  grid->KeyUp = [this](int key) {
    constexpr int enter = 13;
    if (key == enter) Do([this] { RecalculateRow(m_invoice); });
  };
  grid->RightPress = [this](const QPoint& place) {
    if (CanDeleteLine(m_invoice)) ui->mnupopup->popup(place);
  };
  On(ui->UpDown1_up, &QToolButton::clicked, Doing([this] { MoveLine(m_invoice, false); }));
  On(ui->UpDown1_down, &QToolButton::clicked, Doing([this] { MoveLine(m_invoice, true); }));
  ui->mnuDeleteItem->setShortcut(Qt::Key_Delete);
  ui->mnuDeleteItem->setShortcutContext(Qt::WidgetShortcut);
  grid->addAction(ui->mnuDeleteItem);
  On(ui->mnuDeleteItem, &QAction::triggered, Doing([this] { DeleteItem(m_invoice, m_desk.Boxes); }));
}
