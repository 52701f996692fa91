/// Everything that a page needs, on a temporary data root: the recording surface, settings to change, an invoice of
/// known texts, today as 7 March 2026.
#pragma once

#include <QTemporaryDir>

#include "printing/KVPrint.h"
#include "printing/PrinterRoutines.h"
#include "runtime/Clock.h"
#include "runtime/Dialogs.h"
#include "runtime/FileDevice.h"
#include "runtime/FileStore.h"
#include "runtime/TextMatrix.h"
#include "setup/BusinessProfile.h"
#include "setup/PrintAppearance.h"
#include "setup/TaxConfiguration.h"
#include "shell/CommonDialog.h"
#include "shell/CommonDiskRoutines.h"
#include "support/RecordingPrinter.h"

/// Keeps messages as "title: text" and questions as "title? text"; a question without a queued answer and a dialog that
/// nobody expects are exceptions.
class MessageRecorder final : public Dialogs {
 public:
  void ShowMessage(const QString& text, const QString& title) override;
  bool AskYesNo(const QString& text, const QString& title) override;
  bool AskOkCancel(const QString& text, const QString& title) override;
  QString AskText(const QString& prompt, const QString& title) override;
  void Beep() override {}
  QString ChooseFile(const QString& title, const QString& filter) override;
  quint32 ChooseColor(quint32 current) override;
  QString ChooseFont(const QString& current) override;
  void OpenPage(const QString& address) override;

  QStringList Messages;
  QList<bool> Answers;
};

class PageFixture {
 public:
  PageFixture();

  /// Puts a file of these bytes under the data root, its folders with it.
  void Write(const QString& name, const QByteArray& content) const;
  /// Gives the page `count` lines "1", "Line n", "3/7/2026", "$1.00", "$1.00".
  void FillLines(int count);
  void SetLine(int row, const QStringList& cells);

  QTemporaryDir Root;
  FileDevice Device;
  FileStore Store;
  CommonDiskRoutines Disk;
  MessageRecorder Messages;
  BusinessProfile Business;
  PrintAppearance Look;
  TaxConfiguration Tax;
  RecordingPrinter Paper;
  CommonDialog Dialog;
  PrinterRoutines Routines;

  class FixedClock final : public Clock {
   public:
    QDate Today() const override { return {2026, 3, 7}; }
  } Now;

  KVPrint Pages;
  TextMatrix Lines;
  InvoicePage Page;
  bool Draft = false;
};

/// A text run as "x y size[b][u] rrggbb text": x in whole twips, y with one decimal.
QString Described(const PaperText& run);
QStringList Described(const std::vector<PaperText>& runs);
/// A rule as "x1,y1 x2,y2" with " box" for an outline.
QString Described(const PaperRule& rule);
QStringList Described(const std::vector<PaperRule>& rules);
