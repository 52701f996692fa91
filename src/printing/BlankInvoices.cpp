#include "printing/BlankInvoices.h"

#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/Numbers.h"
#include "setup/PrintAppearance.h"

using namespace Qt::StringLiterals;

namespace {
void PrintBlank(const BlanksDesk& desk) {
  desk.Printing.BeginPrintJob();
  desk.Pages.PrintPageFrame(u"INVOICE"_s, 0.4F, {});
  desk.Pages.PrintInvoiceHeading({{}, ShortDateText(desk.Today.Today()), {}, {}});
  if (desk.Appearance.optReturn) desk.Pages.PrintDetachLine();
  desk.Printing.Surface().EndDoc();
}
}  // namespace

void PrintBlanks(const BlanksDesk& desk, const QString& txtInvoices) {
  desk.Printing.RunPrintJob(desk.Boxes, [&] {
    const qint16 count = ToInt16(txtInvoices);
    for (int sheet = 1; sheet <= count; ++sheet) PrintBlank(desk);
  });
}
