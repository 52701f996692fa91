#include <algorithm>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "desktop/PaperDevice.h"
#include "desktop/PaperSurface.h"
#include "desktop/QtDialogs.h"
#include "printing/KVPrint.h"
#include "runtime/Clock.h"
#include "runtime/TextMatrix.h"
#include "setup/LiveSettings.h"
#include "shell/CommonDialog.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

/// Makes a PDF of each job in memory, as the printer does before it writes the file.
class PdfSurface final : public PaperSurface {
 public:
  void ShowPrinter() override {}
  PaperJob Last;
  qsizetype Size = 0;

 protected:
  void SendJob(const PaperJob& job, const Progress& /*progress*/) override {
    Last = job;
    Size = PdfOf(job, true, Fonts()).size();
  }
};

/// The same marks straight on a painter.
void DrawStraight(const PaperJob& job) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(1440);
  writer.setPageSize(QPageSize(QPageSize::Letter));
  writer.setPageMargins(QMarginsF());
  QPainter painter(&writer);
  for (const PaperPage& page : job.Pages) {
    for (const PaperMark& mark : page) {
      if (const auto* text = std::get_if<PaperText>(&mark)) {
        QFont font(text->Font.Name, text->Font.Size);
        font.setBold(text->Font.Bold);
        painter.setFont(font);
        painter.drawText(QPointF(text->X, text->Y + 180), text->Text);
      } else if (const auto* rule = std::get_if<PaperRule>(&mark)) {
        painter.drawLine(rule->X1, rule->Y1, rule->X2, rule->Y2);
      }
    }
  }
}

bool Prints(const PaperJob& job, const QString& text) {
  const auto isText = [&](const PaperMark& mark) {
    const auto* printed = std::get_if<PaperText>(&mark);
    return printed != nullptr && printed->Text == text;
  };
  return std::any_of(job.Pages.begin(), job.Pages.end(),
                     [&](const PaperPage& page) { return std::any_of(page.begin(), page.end(), isText); });
}

}  // namespace

void MeasurePage() {
  QTemporaryDir tree;
  FileDevice device;
  FileStore store(device);
  CommonDiskRoutines disk(store, tree.path(), u"KarvexInvoicer"_s);
  LiveSettings live;
  live.Business.BusinessName = u"Orange Grove Supply"_s;
  QtDialogs dialogs;
  SystemClock clock;
  PdfSurface surface;
  CommonDialog dialog;
  PrinterRoutines routines(surface, live.Print, dialog);
  KVPrint pages(routines, disk, dialogs, clock, {live.Business, live.Print, live.Tax});

  TextMatrix lines(u"^Quantity|<Description|^Date|>Price|>Total"_s, 26);
  for (int row = 1; row <= 25; ++row) {
    const QStringList cells{u"2"_s, u"Item number %1 of the catalogue"_s.arg(row), u"3/7/2026"_s, u"$12.50"_s,
                            u"$25.00"_s};
    for (int col = 0; col < cells.size(); ++col) lines.SetText(row, col, cells[col]);
  }
  InvoicePage page;
  page.Heading = {u"1001"_s, u"3/7/2026"_s, u"20260001"_s, u"Prepared 3/7/2026"_s};
  page.SoldTo = {u"A Trading"_s, u"12 Grove Road"_s, {}, u"Ocala"_s, u"FL"_s, u"34470"_s};
  page.Lines = &lines;
  page.LineCount = 25;
  page.Totals = {u"$625.00"_s, u"$37.50"_s, u"$0.00"_s, u"$0.00"_s, u"$0.00"_s, u"$662.50"_s};
  bool draft = false;
  const auto print = [&] {
    routines.BeginPrintJobWithoutDialog({});
    pages.PrintInvoice(page, draft);
  };
  print();
  const PaperJob job = surface.Last;
  surface.Size = 0;
  const Pair times = MediansOf(21, print, [&] { DrawStraight(job); });
  MustHold(surface.Size > 0 && Prints(job, u"Item number 25 of the catalogue"_s) && Prints(job, u"$662.50"_s),
           u"the invoice with its last line and its total becomes a PDF"_s);
  Report(u"an invoice page of 25 lines to PDF, over the marks drawn straight"_s, times, 1.5);
}
