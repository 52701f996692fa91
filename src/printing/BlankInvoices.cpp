#include "printing/BlankInvoices.h"

#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Numbers.h"
#include "setup/PrintAppearance.h"

using namespace Qt::StringLiterals;

namespace {
void PrintBlank(const BlanksDesk& desk, int sheet, int count) {
  // The dialog comes up for each sheet: its title says for which.
  const QString place = count > 1 ? u" %1 of %2"_s.arg(sheet).arg(count) : QString();
  desk.Printing.BeginPrintJob(u"Blank Invoice"_s + place);
  desk.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, {});
  desk.Pages.PrintInvoiceHeading({{}, ShortDateText(desk.Today.Today()), {}, {}});
  if (desk.Appearance.optReturn) desk.Pages.PrintDetachLine();
  desk.Printing.Surface().EndDoc();
}
}  // namespace

void PrintBlanks(const BlanksDesk& desk, const QString& txtInvoices) {
  desk.Printing.RunPrintJob(desk.Boxes, [&] {
    const qint16 count = ToInt16(txtInvoices);
    for (int sheet = 1; sheet <= count; ++sheet) PrintBlank(desk, sheet, count);
  });
}
