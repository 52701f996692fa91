#include "invoice/WorkingInvoice.h"

#include "runtime/Dialogs.h"

using namespace Qt::StringLiterals;

WorkingInvoice::WorkingInvoice()
    : fgInvoice(
          u"^ Quantity |<Item Description                                        |^Service Date|>Unit Price     "
          u"|>Extension      |Apply Tax"_s,
          MaximumLines + 1) {}

void Tell(const WorkingInvoice& invoice, Dialogs& dialogs, const QString& text, const QString& title) {
  invoice.Show();
  dialogs.ShowMessage(text, title);
}

bool Ask(const WorkingInvoice& invoice, Dialogs& dialogs, const QString& text, const QString& title) {
  invoice.Show();
  return dialogs.AskYesNo(text, title);
}

void EnterAmountBox(QString& boxText) {
  if (boxText == ZeroCurrencyText()) boxText.clear();
}

void EnterCountBox(QString& boxText) {
  if (boxText == u"0") boxText.clear();
}
