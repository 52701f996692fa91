/// The demonstration's invoices that carry more than lines: one with a narrative that is paid at once, one that is
/// parked and becomes a template, one from the template with its packing slip; the list of parked ones, and sheets to
/// fill in by hand.
#pragma once

#include <functional>

#include "runtime/FileStore.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"

class OtherInvoices {
 public:
  using Picture = std::function<void(const ScreenDriver& screen, const QString& name)>;

  OtherInvoices(QueuedAnswers& answers, FileStore& files, QString businessFolder, Picture picture)
      : m_answers(answers), m_files(files), m_folder(std::move(businessFolder)), m_picture(std::move(picture)) {}

  void PayAnInvoiceWithANarrative();
  void ParkAnInvoiceAndKeepItsLines();
  void PackFromTheTemplate();
  void FinishTheParkedInvoice();
  void PrintSheetsToFillIn();

 private:
  void OpenRoutine(int option);
  ScreenDriver OpenInvoice();
  void Post(const ScreenDriver& invoice, const QString& item, const QString& units);
  void Commit(const ScreenDriver& invoice, const QString& button);

  QueuedAnswers& m_answers;
  FileStore& m_files;
  QString m_folder;
  Picture m_picture;
};
