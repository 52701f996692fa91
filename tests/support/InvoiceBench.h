/// The real invoice screen over everything that it works with, on a data tree of its own: files, boxes, pages and
/// clicks are real. Around it stands a program that only notes which screens were asked for.
///
///   InvoiceBench bench;
///   bench.Tree.Write(u"/KVInvoiceNo.txt"_s, "20260017\r\n");
///   bench.Open();                                 // for the customer 1001
///   bench.On().Click(u"cmdInvoice_0"_s);
#pragma once

#include "catalogue/Catalogue.h"
#include "catalogue/SalesItemsList.h"
#include "customers/CustomerOnScreen.h"
#include "desktop/Screen.h"
#include "invoice/WorkingInvoice.h"
#include "printing/KVPrint.h"
#include "printing/PrinterRoutines.h"
#include "runtime/FileStore.h"
#include "setup/LiveSettings.h"
#include "shell/CommonDialog.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/Screens.h"
#include "support/Bytes.h"
#include "support/FailingDevice.h"
#include "support/FixedClock.h"
#include "support/QueuedAnswers.h"
#include "support/RecordingPrinter.h"
#include "support/ScreenDriver.h"
#include "support/TemporaryTree.h"
#include "support/TestDialogs.h"

class frmInvoice;

/// What stands around the screen: notes every request and every error that reached it.
class NotingProgram final : public Screens, public ScreenHost {
 public:
  QStringList Asked;  ///< "show frmStartup", "hide frmInvoice", "quit".
  QList<int> Errors;  ///< Numbers of the errors that no handler took.
  QStringList Subjects;
  Screen* Invoice = nullptr;

  void Show(ScreenName screen) override;
  void Hide(ScreenName screen) override;
  void Unload(ScreenName) override {}
  void ShowSetupAtFirstTab() override {}
  void StartInvoiceFor(const SoldTo&) override {}
  void StartCall(const QString&, const QString&) override {}
  void PrintSample() override {}
  void QuitProgram() override { Asked << QStringLiteral("quit"); }
  void UnhandledError(const RuntimeError& error) override;
  void UserClosed() override { QuitProgram(); }
};

class InvoiceBench {
 public:
  /// Writes the catalogue: two services, items in two categories, two custom items and two labor rates.
  InvoiceBench();
  ~InvoiceBench();

  /// Loads what the program loads at start, builds the screen and shows it for the customer.
  void Open();
  /// The same, then Continue: the creation view.
  void OpenAtLines();
  /// The same, then an entry of the menu.
  void OpenAt(const QString& entry);
  /// Puts this many lines of $1.00 into the grid, past the screen.
  void FillGrid(int lines);
  /// Leaves the screen by its window and shows it anew, as the next invoice.
  void Reopen();

  /// The invoice screen, once it is open.
  const ScreenDriver& On() const { return *m_driver; }
  /// The texts of a grid row.
  QStringList Row(int row) const;
  QString Text(const QString& name) const { return m_driver->Text(name); }
  bool Ticked(const QString& name) const;
  /// Posts a manual line through the screen.
  void PostManual(const QString& description, const QString& quantity, const QString& price);
  /// Ready to Print, then Finalize.
  void Finalize();

  QStringList Customer{QStringLiteral("1001"),          QStringLiteral("Acme Tools"),
                       QStringLiteral("1 Main Street"), QString(),
                       QStringLiteral("Springfield"),   QStringLiteral("IL"),
                       QStringLiteral("62701"),         QStringLiteral("555-0100")};

  TemporaryTree Tree;
  FailingDevice Device;
  FileStore Store;
  CommonDiskRoutines Disk;
  FixedClock Calendar;
  TestDialogs Dialogs;
  RecordingPrinter Paper;
  QueuedAnswers Answers;
  LiveSettings Live;
  CatalogueLists Lists;
  SalesItemsList SalesItems;
  Catalogue Prices;
  CustomerOnScreen OnScreen;
  WorkingInvoice Invoice;
  QString SelectedPartial;
  int PartialReloads = 0;
  NotingProgram Around;

 private:
  CommonDialog m_dialog;
  PrinterRoutines m_routines;
  KVPrint m_pages;
  std::unique_ptr<frmInvoice> m_screen;
  std::unique_ptr<ScreenDriver> m_driver;
};
