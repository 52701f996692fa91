/// The printer: what the print dialog chose, a printer of the system or a PDF file.
///
/// Nothing is sent before a job ends. A PDF is written whole or not at all, by the program's own writer. A job that
/// skips the dialog goes to the printer last chosen; where that is a PDF, or nothing was ever chosen and the system has
/// no printer, to a new file in the documents folder, and the user is told where it is.
#pragma once

#include <memory>

#include "desktop/PaperSurface.h"

class Dialogs;
class FileStore;
class QPrinter;

class PaperPrinter final : public PaperSurface {
 public:
  PaperPrinter(FileStore& store, Dialogs& dialogs, QString documentsFolder);
  ~PaperPrinter() override;

  void ShowPrinter() override;
  using PaperSurface::EndDoc;
  void EndDoc(const Progress& progress) override;
  void KillDoc() override;

 protected:
  void SendJob(const PaperJob& job, const Progress& progress) override;

 private:
  QPrinter& Device();
  bool IsPdf();
  void MakeDocumentsFolder();
  /// A file of the documents folder that isn't there yet, named after what is printed.
  QString NewPdfName() const;
  void SendToPdf(const PaperJob& job, const QString& path, const Progress& progress);
  void SendToPrinter(const PaperJob& job, const Progress& progress);

  FileStore& m_store;
  Dialogs& m_dialogs;
  QString m_documentsFolder;
  std::unique_ptr<QPrinter> m_device;
  bool m_fileChosen = false;  ///< The dialog was answered for the job in hand.
};
