/// The recording surface: a printer with the real paper's cursor and metrics whose jobs end up here instead of on
/// paper, each text run and rule with its place, font and colour.
#pragma once

#include <functional>
#include <optional>
#include <QStringList>
#include <vector>

#include "desktop/PaperSurface.h"

class RecordingPrinter final : public PaperSurface {
 public:
  void ShowPrinter() override;

  int DialogsShown = 0;
  int DialogError = 0;             ///< Thrown by the next `ShowPrinter`, once: 32755 is the user's Cancel.
  std::function<void()> OnDialog;  ///< Runs as the dialog comes up.
  int SendError = 0;               ///< Thrown by the next `EndDoc`, once.
  bool TellsPages = false;         ///< Tells the progress of each job that is sent page by page.
  std::vector<PaperJob> Jobs;

  /// A page of the last job, from 1. Fails the test by an exception where there is none.
  const PaperPage& PageOf(std::size_t page) const;
  std::vector<PaperText> Texts(std::size_t page) const;
  std::vector<PaperRule> Rules(std::size_t page) const;
  std::vector<PaperPicture> Pictures(std::size_t page) const;
  /// The text runs that read `text`, on any page of the last job.
  std::vector<PaperText> Find(const QString& text) const;
  /// All texts of a page, in the order of printing.
  QStringList Words(std::size_t page) const;
  /// The sold-to block of page 1 as printed, line by line.
  QStringList SoldToBlock() const;

 protected:
  void SendJob(const PaperJob& job, const Progress& progress) override;
};
