// Services, inventoried items, custom items and manual lines on their way into the grid.
#include <QListWidget>
#include <QPointer>
#include <QScopeGuard>
#include <QShortcut>

#include "catalogue/Catalogue.h"
#include "desktop/ListCombo.h"
#include "invoice/frmInvoice.h"
#include "invoice/WorkingInvoice.h"
#include "setup/LiveSettings.h"
#include "shell/VerifyDataRoutines.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

LineEntryDesk frmInvoice::EntryDesk() {
  return {m_invoice, m_desk.Lists, m_desk.Settings.Tax, m_desk.Boxes};
}

void frmInvoice::WireLineEntry() {
  for (int element = 0; element < 3; ++element) {
    FillList(element);
    WireDescription(element);
  }
  // A service needs no units: Enter on its description or price posts it.
  EnterRuns(m_cboDescription[0], ui->cmdPost_0);
  EnterRuns(m_cboPrice[0], ui->cmdPost_0);
  WireCategories();
  WireUnits();
  WireManual();
  WireLabor();
  const ControlArray<QPushButton, 4> cmdPost(this, u"cmdPost"_s);
  for (int kind = 0; kind < cmdPost.Size(); ++kind) {
    Click(
        cmdPost[kind],
        [this, kind] {
          const bool shows = kind == LineKind::Manual || Shows(m_cboDescription[ElementOf(kind)]);
          const auto lines = m_invoice.LineCount;
          PostLine(EntryDesk(), kind, shows);
          if (m_invoice.LineCount > lines) m_typed = false;
        },
        WhenLeaveRefused::Dropped);
  }
  Click(ui->cmdItemscomplete, [this] { ui->fraItems->hide(); });
}

void frmInvoice::WireDescription(int element) {
  ListCombo* description = m_cboDescription[element];
  ListCombo* price = m_cboPrice[element];
  description->Change = [this, element, description] {
    if (m_showing) return;
    Do([&] { TypeDescription(m_invoice, element, description->Text()); });
  };
  // Else the next showing of the invoice, as for another line of the grid, would put the text before it back.
  description->ChangeUntold = [this, element, description] {
    m_invoice.Entry.cboDescription[static_cast<size_t>(element)] = {description->Text(), -1};
  };
  description->Click = [this, element, description] {
    if (m_showing) return;
    Do([&] { SelectDescription(m_invoice, m_desk.Lists, element, description->ListIndex()); });
  };
  description->SetAutoComplete(true);
  price->Change = [this, element, price] {
    if (!m_showing) TypePrice(m_invoice, element, price->Text());
  };
  price->Click = [this, element, price] {
    if (!m_showing) SelectPrice(m_invoice, m_desk.Lists, element, price->ListIndex());
  };
}

/// Shows a list of the catalogue anew.
void frmInvoice::FillList(int element) {
  const std::vector<CatalogueEntry>& entries = m_desk.Lists.Entries[static_cast<size_t>(element)];
  QStringList names;
  QList<int> words;
  for (const int place : DescriptionOrder(m_desk.Lists, element)) {
    names += entries[static_cast<size_t>(place)].Description;
    words += entries[static_cast<size_t>(place)].Data;
  }
  QStringList prices;
  for (const CatalogueEntry& entry : entries) prices += entry.Price;
  m_cboDescription[element]->SetEntries(names, words);
  m_cboPrice[element]->SetEntries(prices, {});
}

void frmInvoice::WireCategories() {
  FillCategories();
  m_desk.Lists.Changed.emplace_back([self = QPointer(this)](int element) {
    if (!self) return;
    self->FillList(element);
    ClearSelection(self->m_invoice, element);
    if (element == ElementOf(CatalogueList::Items) && !self->m_picking) self->FillCategories();
    self->ShowInvoice();
  });
  On(ui->lstCategories, &QListWidget::itemClicked, Doing([this] { Pick(); }));
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    auto* pick = new QShortcut(key, ui->lstCategories);
    pick->setContext(Qt::WidgetShortcut);
    On(pick, &QShortcut::activated, Doing([this] { Pick(); }));
  }
}

void frmInvoice::FillCategories() {
  ui->lstCategories->clear();
  for (const QString& category : m_desk.Lists.lstCategories) ui->lstCategories->addItem(category);
}

/// A category of the list; its place in the list stays.
void frmInvoice::Pick() {
  m_picking = true;
  const auto picked = qScopeGuard([this] { m_picking = false; });
  PickCategory(m_invoice, m_desk.Prices, m_desk.Lists, ui->lstCategories->currentRow());
}

void frmInvoice::WireUnits() {
  Enter(ui->txtUnits, [this] { EnterCountBox(m_invoice.Entry.txtUnits); });
  Enter(ui->txtCUnits, [this] { EnterCountBox(m_invoice.Entry.txtCUnits); });
  FilterNumber(ui->txtUnits, ui->cmdPost_1);
  FilterNumber(ui->txtCUnits, ui->cmdPost_3);
  Leave(ui->txtUnits, [this] { LeaveUnits(m_invoice, m_desk.Boxes); });
}

void frmInvoice::WireManual() {
  const ControlArray<QLineEdit, 3> txtManual(this, u"txtManual"_s);
  constexpr int enter = 13;
  FilterKeys(txtManual[0], [](int key) { return key == enter ? 0 : key; });
  for (const int i : {1, 2}) {
    FilterKeys(txtManual[i],
               [box = txtManual[i]](int key) { return key == enter ? 0 : VerifyDecimalKey(key, box->text()); });
  }
  Enter(txtManual[1], [this] { EnterAmountBox(m_invoice.Entry.txtManual[1]); });
}
