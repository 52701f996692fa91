#include "printing/PrinterRoutines.h"

#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "setup/PrintAppearance.h"
#include "shell/CommonDialog.h"

using namespace Qt::StringLiterals;

PrinterRoutines::PrinterRoutines(Printer& printer, const PrintAppearance& appearance, CommonDialog& dialog)
    : m_printer(printer), m_appearance(appearance), m_dialog(dialog) {}

void PrinterRoutines::ChoosePrinter() {
  // Copies belong to the dialog: the stored `PrintCopies` is shown in Setup and printed by nobody, which is meant.
  m_dialog.FileName.clear();
  m_printer.ShowPrinter();
}

void PrinterRoutines::SetupPrinter(const QString& orientation, bool colorValue) {
  m_printer.ColorMode = colorValue ? 2 : 1;
  m_printer.PaperSize = 1;
  m_printer.Orientation = orientation == u"Portrait" ? 1 : 2;
  m_printer.ScaleMode = 1;
  m_printer.SetFontName(m_appearance.lblFont);
  m_printer.SetForeColor(FixedInk::Black);
  SetPrintFont(0, false, false);
  m_setUp = true;
}

void PrinterRoutines::BeginPrintJob(const QString& title) {
  m_printer.Title = title;
  ChoosePrinter();
  SetupPrinter(u"Portrait"_s, m_appearance.ckColor);
}

void PrinterRoutines::BeginPrintJobWithoutDialog(const QString& title) {
  m_printer.Title = title;
  if (!m_setUp) SetupPrinter(u"Portrait"_s, m_appearance.ckColor);
}

void PrinterRoutines::PrintAt(float x, float y) {
  if (x > 0) m_printer.CurrentX = x * TwipsPerInch;
  if (y > 0) m_printer.CurrentY = y * TwipsPerInch;
}

void PrinterRoutines::SetPrintFont(qint16 size, bool bold, bool underline) {
  if (size > 0) m_printer.SetFontSize(size);
  m_printer.SetFontBold(bold);
  m_printer.SetFontUnderline(underline);
}

void PrinterRoutines::SetPrintColor(bool dataColor) {
  if (!m_appearance.ckColor) {
    m_inkColor = FixedInk::Black;
  } else {
    m_inkColor = dataColor ? m_appearance.txtData : m_appearance.txtBorders;
  }
  m_printer.SetForeColor(m_inkColor);
}

void PrinterRoutines::PrintWrapped(qint16 x, qint16 y, qint16 width, const QString& text) {
  const float limit = static_cast<float>(width - 20);
  m_printer.CurrentY = y;
  QStringView rest = text;
  do {
    qsizetype start = 0;  // Of the word being tried, which ends with `end`, behind its blank; 0 is no further blank.
    qsizetype end = 0;
    do {
      start = end;
      end = rest.indexOf(u' ', start) + 1;
    } while (end > 0 && m_printer.TextWidth(rest.first(end).toString()) <= limit);

    QStringView line = rest;
    if (end > 0) {
      // Without this way out a first word that is too wide would print empty lines without end.
      qsizetype next = start > 0 ? start : end;
      line = rest.first(next);
      while (next < rest.size() && rest.at(next) == u' ') ++next;
      rest = rest.sliced(next);
    } else {
      rest = {};
    }
    m_printer.CurrentX = x;
    m_printer.PrintLine(line.toString());
  } while (!rest.isEmpty());
}

void PrinterRoutines::PrintWrappedHere(qint16 width, const QString& text) {
  PrintWrapped(ToInt16(static_cast<double>(m_printer.CurrentX)), WholeY(), width, text);
}

qint16 PrinterRoutines::WholeY() const {
  return ToInt16(static_cast<double>(m_printer.CurrentY));
}

void PrinterRoutines::PrintJoinedRight(float edge, const QString& text) {
  m_printer.CurrentX = edge - m_printer.TextWidth(text);
  m_printer.PrintJoined(text);
}

void PrinterRoutines::PrintJoinedCentred(float centre, const QString& text) {
  m_printer.CurrentX = centre - m_printer.TextWidth(text) / 2;
  m_printer.PrintJoined(text);
}

void PrinterRoutines::PrintLineRight(float edge, const QString& text) {
  m_printer.CurrentX = edge - m_printer.TextWidth(text);
  m_printer.PrintLine(text);
}

void PrinterRoutines::PrintLineCentred(float centre, const QString& text) {
  m_printer.CurrentX = centre - m_printer.TextWidth(text) / 2;
  m_printer.PrintLine(text);
}

bool PrinterRoutines::RunPrintJob(Dialogs& dialogs, const std::function<void()>& job) {
  try {
    DrawJob(job);
    return true;
  } catch (const RuntimeError& error) {
    if (error.Number() != ErrorNumber::DialogCancelled)
      dialogs.ShowMessage(u"A Print Error has occurred"_s, u"Print Error"_s);
  }
  return false;
}

void PrinterRoutines::PrintRows(const QString& title, qint64 count, const Progress& progress,
                                const std::function<void(const Progress& rows)>& putRows) {
  BeginPrintJob(title);
  const Progress rows = PartOf(progress, 0, 2);
  // The first step stands behind the dialog.
  TellStep(rows, 0, count);
  putRows(rows);
  m_printer.EndDoc(PartOf(progress, 1, 2));
}

void PrinterRoutines::TellStep(const Progress& progress, qint64 done, qint64 total) {
  if (!GoesOn(progress, done, total)) throw RuntimeError(ErrorNumber::DialogCancelled, {});
}

void PrinterRoutines::DrawJob(const std::function<void()>& draw) {
  try {
    draw();
  } catch (...) {
    m_printer.KillDoc();
    throw;
  }
}
