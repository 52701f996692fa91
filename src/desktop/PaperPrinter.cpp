#include "desktop/PaperPrinter.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <utility>

#include "desktop/DialogOwner.h"
#include "desktop/PaperDevice.h"
#include "runtime/Dialogs.h"
#include "runtime/FileStore.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

// A path of such a name, with a number behind it, is within what any disk takes.
constexpr qsizetype LongestName = 80;

/// The title with what no file name may hold, here or on another system, turned into hyphens.
QString FileNameOf(const QString& title) {
  QString name = title.left(LongestName).trimmed();
  for (QChar& character : name) {
    if (character < u' ' || u"/\\:*?\"<>|"_s.contains(character)) character = u'-';
  }
  return name.isEmpty() ? u"Karvex Invoicer"_s : name;
}

}  // namespace

PaperPrinter::PaperPrinter(FileStore& store, Dialogs& dialogs, QString documentsFolder)
    : m_store(store), m_dialogs(dialogs), m_documentsFolder(std::move(documentsFolder)) {}

PaperPrinter::~PaperPrinter() = default;

QPrinter& PaperPrinter::Device() {
  if (!m_device) m_device = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *m_device;
}

bool PaperPrinter::IsPdf() {
  return Device().outputFormat() == QPrinter::PdfFormat;
}

void PaperPrinter::ShowPrinter() {
  QPrinter& device = Device();
  PrepareSheet(device, true);
  MakeDocumentsFolder();
  const QString newName = NewPdfName();
  if (IsPdf()) device.setOutputFileName(newName);
  // The dialog writes into the device as the user looks around; a cancel takes that back.
  const QString printerBefore = device.printerName();
  const QString fileBefore = device.outputFileName();
  const DialogOwner owner;
  QPrintDialog dialog(&device, owner.Window());
  if (!Title.isEmpty()) dialog.setWindowTitle(u"Print "_s + Title);
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies);
  // Where a printer is chosen, the dialog would offer a file of its own making to those who then pick the PDF.
  if (auto* fileName = dialog.findChild<QLineEdit*>(u"filename"_s)) fileName->setText(newName);
  if (dialog.exec() != QDialog::Accepted) {
    device.setPrinterName(printerBefore);
    device.setOutputFileName(fileBefore);
    throw RuntimeError(ErrorNumber::DialogCancelled, {});
  }
  m_fileChosen = true;
}

void PaperPrinter::EndDoc(const Progress& progress) {
  PaperSurface::EndDoc(progress);
  m_fileChosen = false;  // Also where there was nothing to send.
}

void PaperPrinter::KillDoc() {
  PaperSurface::KillDoc();
  m_fileChosen = false;
}

void PaperPrinter::SendJob(const PaperJob& job, const Progress& progress) {
  const bool fileChosen = std::exchange(m_fileChosen, false);
  if (!IsPdf()) {
    SendToPrinter(job, progress);
  } else if (fileChosen) {
    SendToPdf(job, QFileInfo(Device().outputFileName()).absoluteFilePath(), progress);
  } else {
    MakeDocumentsFolder();
    const QString path = NewPdfName();
    SendToPdf(job, path, progress);
    m_dialogs.ShowMessage(u"The page was saved as a PDF file:\n"_s + path);
  }
}

void PaperPrinter::MakeDocumentsFolder() {
  try {
    if (!m_store.IsFolder(m_documentsFolder)) m_store.MakeFolder(m_documentsFolder);
  } catch (const RuntimeError&) {
    // The user may choose another; a write that needs this one will say what is wrong.
  }
}

QString PaperPrinter::NewPdfName() const {
  const QString base = m_documentsFolder + u'/' + FileNameOf(Title);
  QString path = base + u".pdf"_s;
  for (int number = 2; m_store.IsFile(path) || m_store.IsFolder(path); ++number)
    path = base + u' ' + QString::number(number) + u".pdf"_s;
  return path;
}

void PaperPrinter::SendToPdf(const PaperJob& job, const QString& path, const Progress& progress) {
  const QByteArray content = PdfOf(job, Orientation == 1, Fonts(), progress);
  try {
    m_store.ReplaceWhole(path, content);
  } catch (const RuntimeError& error) {
    throw RuntimeError::AtPath(ErrorNumber::PrinterError, path, error.Text());
  }
}

void PaperPrinter::SendToPrinter(const PaperJob& job, const Progress& progress) {
  QPrinter& device = Device();
  device.setDocName(Title.isEmpty() ? u"Karvex Invoicer"_s : Title);
  PrintJob(job, device, Orientation == 1, Fonts(), progress);
  if (device.printerState() == QPrinter::Error || device.printerState() == QPrinter::Aborted)
    throw RuntimeError(ErrorNumber::PrinterError, device.printerName());
}
