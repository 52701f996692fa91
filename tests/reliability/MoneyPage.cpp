#include "reliability/MoneyPage.h"

#include <cmath>
#include <map>

#include "support/RecordingPrinter.h"

using namespace Qt::StringLiterals;

namespace {

// In twips. The headings stand above, the summary below; no page of these tests has a narrative.
constexpr float BodyTop = 7056;
constexpr float BodyBottom = 12240;
constexpr long LabelEdge = 8064;

/// Quantity, date, description, price, total stand side by side; the answer counts as a line's cells do.
int ColumnOf(const PaperText& run) {
  if (run.X < 1800) return 0;
  if (run.X < 3240) return 2;
  if (run.X < 7920) return 1;
  return run.X < 10080 ? 3 : 4;
}

}  // namespace

QList<QStringList> LinesOnPaper(const RecordingPrinter& paper) {
  QList<QStringList> lines;
  for (std::size_t page = 1; page <= paper.Jobs.back().Pages.size(); ++page) {
    // The description stands on a whole twip, the cells beside it perhaps on a fraction near it.
    std::map<int, QStringList> rows;
    for (const PaperText& run : paper.Texts(page)) {
      if (run.Y < BodyTop || run.Y >= BodyBottom) continue;
      QStringList& row = rows[static_cast<int>(std::rint(run.Y))];
      if (row.isEmpty()) row.resize(5);
      row[ColumnOf(run)] += run.Text;
    }
    for (const auto& [y, row] : rows) lines.append(row);
  }
  return lines;
}

QStringList SummaryOnPaper(const RecordingPrinter& paper) {
  QStringList rows;
  for (std::size_t page = 1; page <= paper.Jobs.back().Pages.size(); ++page) {
    const std::vector<PaperText> runs = paper.Texts(page);
    for (const PaperText& label : runs) {
      if (label.Y < BodyBottom || std::lround(label.X) != LabelEdge) continue;
      QString row = label.Text;
      for (const PaperText& run : runs) {
        if (run.Y == label.Y && run.X > label.X) row += u' ' + run.Text;
      }
      rows.append(row);
    }
  }
  return rows;
}
