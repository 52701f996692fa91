#include "invoice/frmInvoice.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QToolButton>

#include "catalogue/Catalogue.h"
#include "desktop/ListCombo.h"
#include "invoice/ChargeBoxes.h"
#include "invoice/InvoiceMemo.h"
#include "invoice/WorkingInvoice.h"
#include "shell/VerifyDataRoutines.h"
#include "ui_frmInvoice.h"

using namespace Qt::StringLiterals;

frmInvoice::frmInvoice(ScreenHost& host, const InvoiceDesk& desk)
    : Screen(u"frmInvoice"_s, host),
      m_desk(desk),
      m_invoice(desk.Invoice),
      ui(std::make_unique<Ui::frmInvoice>()),
      m_cmdInvoice(BuildForm(*ui), u"cmdInvoice"_s),
      m_fraInstructions(this, u"fraInstructions"_s),
      m_cboDescription(this, u"cboDescription"_s),
      m_cboPrice(this, u"cboPrice"_s),
      m_optDiscount(this, u"optDiscount"_s) {
  BindHeader();
  BindLineEntry();
  BindPrintReady();
  WireViews();
  WireHeader();
  WireLineEntry();
  WireGrid();
  WireMemo();
  WireNarrative();
  WireTemplates();
  WirePrintReady();
  WireFlow();
  WireSave();
  HideFrames();
  ShowInstructions(0);
  m_invoice.Refresh = [this] { ShowInvoice(); };
  ShowInvoice();
}

frmInvoice::~frmInvoice() {
  m_invoice.Refresh = {};
}

std::function<void()> frmInvoice::Doing(std::function<void()> handler) {
  return [this, handler = std::move(handler)] {
    ++m_depth;
    // Also after an error, and before its box. It runs at the end of a scope, which no error may leave.
    const auto shown = qScopeGuard([this] {
      --m_depth;
      Run([this] { ShowInvoice(); });
    });
    handler();
  };
}

void frmInvoice::Do(const std::function<void()>& handler) {
  Run(Doing(handler));
}

void frmInvoice::Click(QAbstractButton* button, const std::function<void()>& handler, WhenLeaveRefused rule) {
  OnClick(button, Doing(handler), rule);
}

void frmInvoice::Enter(QWidget* box, const std::function<void()>& handler) {
  OnEnter(box, Doing(handler));
}

void frmInvoice::Leave(QWidget* box, const std::function<void()>& handler) {
  OnLeave(box, Doing(handler));
}

void frmInvoice::EnterRuns(QWidget* box, QAbstractButton* button) {
  m_enterRuns[box] = button;
  box->installEventFilter(this);
}

/// The key ends there: passed on, it would run the button of the view as well.
bool frmInvoice::RunByEnter(QObject* box, const QKeyEvent& key) {
  const auto runs = m_enterRuns.find(box);
  if (runs == m_enterRuns.end() || (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)) return false;
  if (!key.isAutoRepeat() && runs->second->isVisible()) PressButton(runs->second);
  return true;
}

void frmInvoice::FilterNumber(QLineEdit* box, QAbstractButton* onEnter) {
  EnterRuns(box, onEnter);
  FilterKeys(box, [box](int key) {
    constexpr int enter = 13;
    return key == enter ? key : VerifyDecimalKey(key, box->text());
  });
}

bool frmInvoice::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    if (watched == ui->txtShip) Do([this] { ClearShip(m_invoice); });
    if (watched == ui->txtMisc) Do([this] { ClearMisc(m_invoice); });
  }
  if (auto* button = qobject_cast<QToolButton*>(watched); button != nullptr && event->type() == QEvent::Shortcut) {
    // The toolkit would only click it after a while.
    button->click();
    return true;
  }
  if (event->type() == QEvent::KeyPress && RunByEnter(watched, *static_cast<QKeyEvent*>(event))) return true;
  if (event->type() == QEvent::KeyPress && watched == ui->txtMemo) Do([this] { TypeInMemo(m_invoice); });
  return Screen::eventFilter(watched, event);
}
