#include "support/RecordingPrinter.h"

#include <utility>

#include "runtime/RuntimeError.h"

namespace {
template <typename Mark>
std::vector<Mark> MarksOf(const PaperPage& page) {
  std::vector<Mark> marks;
  for (const PaperMark& mark : page) {
    if (const auto* found = std::get_if<Mark>(&mark)) marks.push_back(*found);
  }
  return marks;
}
}  // namespace

void RecordingPrinter::ShowPrinter() {
  ++DialogsShown;
  if (OnDialog) OnDialog();
  if (const int error = std::exchange(DialogError, 0)) throw RuntimeError(error, {});
}

void RecordingPrinter::SendJob(const PaperJob& job, const Progress& progress) {
  if (const int error = std::exchange(SendError, 0)) throw RuntimeError(error, {});
  const auto pages = static_cast<qint64>(job.Pages.size());
  for (qint64 page = 1; TellsPages && progress && page <= pages; ++page) {
    if (!progress(page, pages)) throw RuntimeError(ErrorNumber::DialogCancelled, {});
  }
  Jobs.push_back(job);
}

const PaperPage& RecordingPrinter::PageOf(std::size_t page) const {
  return Jobs.at(Jobs.size() - 1).Pages.at(page - 1);
}

std::vector<PaperText> RecordingPrinter::Texts(std::size_t page) const {
  return MarksOf<PaperText>(PageOf(page));
}

std::vector<PaperRule> RecordingPrinter::Rules(std::size_t page) const {
  return MarksOf<PaperRule>(PageOf(page));
}

std::vector<PaperPicture> RecordingPrinter::Pictures(std::size_t page) const {
  return MarksOf<PaperPicture>(PageOf(page));
}

std::vector<PaperText> RecordingPrinter::Find(const QString& text) const {
  std::vector<PaperText> found;
  for (const PaperPage& page : Jobs.at(Jobs.size() - 1).Pages) {
    for (const PaperText& run : MarksOf<PaperText>(page)) {
      if (run.Text == text) found.push_back(run);
    }
  }
  return found;
}

QStringList RecordingPrinter::Words(std::size_t page) const {
  QStringList words;
  for (const PaperText& run : Texts(page)) words.append(run.Text);
  return words;
}

QStringList RecordingPrinter::SoldToBlock() const {
  QStringList block;
  for (const PaperText& text : Texts(1)) {
    if (block.isEmpty() ? text.Text == u"SOLD TO:" : text.X == 1080.0F && text.Y < 4800.0F) block.append(text.Text);
  }
  return block;
}
