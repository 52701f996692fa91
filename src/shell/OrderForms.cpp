#include "shell/OrderForms.h"

#include "runtime/Dialogs.h"
#include "shell/OpenWebPage.h"

using namespace Qt::StringLiterals;

std::vector<OrderEntry> DeluxeOrderEntries() {
  return {{u"mnuDeluxe"_s, u"&Checks and Envelopes"_s, u"checks-and-envelopes.html"_s, {}, {}},
          {u"mnuDepositSlips"_s, u"&Deposit Slips"_s, u"deposit-slips.html"_s, {}, {}}};
}

std::vector<OrderEntry> AskingOrderEntries() {
  return {
      {u"mnuPPaper"_s, u"Perforated &Response Paper"_s, u"perforated-response-paper.html"_s,
       u"Perforated Response Paper is used to create\nInvoices with a Remittance Slip\nClick Yes to connect to a Supplier"_s,
       u"Order Paper"_s},
      {u"mnuPPPaper"_s, u"&Plain Printer Paper"_s, u"plain-printer-paper.html"_s,
       u"Plain Printer Paper is used to create\nInvoices without a Remittance Slip\nClick Yes to connect to a Supplier"_s,
       u"Order Paper"_s},
      {u"mnuGraytex"_s, u"&Graytex Forms"_s, u"graytex-forms.html"_s,
       u"Graytex Forms are used to create\nInvoices on Preprinted Paper\nClick Yes to connect to a Supplier"_s,
       u"Order Graytex Forms"_s},
      {u"mnuAddress"_s, u"&Address Labels"_s, u"address-labels.html"_s,
       u"Address Labels are used to create\nEnvelopes with your Business Address\nClick Yes to connect to a Supplier"_s,
       u"Order Labels"_s},
      {u"mnuLabels"_s, u"&Mailing Labels"_s, u"mailing-labels.html"_s,
       u"Mailing Labels are used to create\nEnvelopes and Parcels for your Customers\nClick Yes to connect to a Supplier"_s,
       u"Order Labels"_s}};
}

void RunOrderEntry(const OrderEntry& entry, const QString& programFolder, CommonDiskRoutines& disk, Dialogs& dialogs) {
  if (!entry.Question.isEmpty() && !dialogs.AskYesNo(entry.Question, entry.Caption)) return;
  OpenWebPage(programFolder + u"/suppliers/"_s + entry.Page, disk, dialogs);
}
