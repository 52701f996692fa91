// The readers of the invoice in the making, and of the texts that become numbers and dates.

#include "fuzz/ReaderDesk.h"
#include "invoice/InvoiceHeaderData.h"
#include "invoice/InvoiceMemo.h"
#include "invoice/InvoiceNarrative.h"
#include "invoice/InvoiceNumber.h"
#include "invoice/InvoiceTemplates.h"
#include "invoice/InvoiceTerms.h"
#include "invoice/RecallInvoice.h"
#include "invoice/WorkingInvoice.h"
#include "records/PartialList.h"
#include "runtime/CodePage.h"
#include "runtime/Dates.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "setup/InvoicerSettings.h"

using namespace Qt::StringLiterals;

namespace {

const QString PartialFile = u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s;

void Recall(ReaderDesk& desk) {
  WorkingInvoice invoice;
  LoadIncomplete(invoice, desk.Disk(), desk.Today(), u"20260001"_s, u"3/7/2026"_s);
}

/// As the screen does it: the list first, and the recall with the date that it shows.
void RecallFromTheList(ReaderDesk& desk) {
  PartialList list;
  LoadPartialList(list, desk.Disk());
  WorkingInvoice invoice;
  LoadIncomplete(invoice, desk.Disk(), desk.Today(), u"20260001"_s, list.fgIncomplete.Text(1, 3));
}

void OpenTemplate(ReaderDesk& desk) {
  WorkingInvoice invoice;
  LoadTemplate({invoice, desk.Disk(), desk.Boxes(), desk.Today()}, u"Shed.txt"_s);
}

void ShowTerms(ReaderDesk& desk) {
  WorkingInvoice invoice;
  InvoicerSettings settings;
  LoadTerms({invoice, settings, desk.Boxes()}, desk.Disk());
}

/// An error of one conversion mustn't keep the others from their turn.
template <typename Act>
void Try(Act act) {
  try {
    act();
  } catch (const RuntimeError& error) {
    if (error.Number() != ErrorNumber::Overflow && error.Number() != ErrorNumber::TypeMismatch) throw;
  }
}

/// The lines of the file as the texts that boxes and cells hold. A few: each is a case of its own.
void Convert(ReaderDesk& desk) {
  ListReader file = desk.Disk().OpenInputFile(u"/Numbers.txt"_s);
  for (int line = 0; line < 5 && !file.AtEnd(); ++line) {
    const QString text = file.ReadLine();
    IsNumeric(text);
    const double number = ParseLeadingNumber(text);
    Try([&] { ToNumber(text); });
    Try([&] { ToInt16(number); });
    Try([&] { ToInt32(text); });
    Try([&] { CurrencyTextOf(text); });
    Try([&] { CurrencyText(number); });
    Try([&] { CurrencyText(Currency::FromDouble(number)); });
    Try([&] { Currency::FromText(text).PlainText(); });
    Try([&] { ExtensionText(Currency::FromText(text), number); });
    Try([&] { PercentOf(Currency::FromText(text), number); });
    Try([&] { Times(Currency::FromText(text), number); });
    Try([&] { ToDayCount(ParseShortDate(text)); });
    ShortDateText(FromDayCount(number));
    CanNameAFile(text);
    ToCodePage(text);
  }
}

}  // namespace

std::vector<ReaderTarget> InvoiceReaders() {
  return {
      {"partial", PartialFile, Recall},
      {"partial-list", PartialFile, RecallFromTheList},
      {"template", u"/Templates/Invoices/Shed.txt"_s, OpenTemplate, 70, false,
       u"/KarvexInvoicer/Templates/InvoicesShed.txt"_s},
      {"invoice-number", u"/KVInvoiceNo.txt"_s,
       [](ReaderDesk& desk) {
         WorkingInvoice invoice;
         LoadInvoiceNo(invoice, desk.Disk(), desk.Today());
       },
       0, true},
      {"terms", u"/StatementTerms.txt"_s, ShowTerms},
      {"carrier", u"/ShipVia.txt"_s,
       [](ReaderDesk& desk) {
         WorkingInvoice invoice;
         LoadShipVia(invoice, desk.Disk());
       }},
      {"memo", u"/InvoiceMemo.txt"_s,
       [](ReaderDesk& desk) {
         WorkingInvoice invoice;
         LoadInvoiceMemo(invoice, desk.Disk());
       }},
      {"narrative", u"/Narrative.txt"_s,
       [](ReaderDesk& desk) {
         WorkingInvoice invoice;
         LoadDefaultNarrative(invoice, desk.Disk());
       }},
      {"numbers", u"/Numbers.txt"_s, Convert},
  };
}
