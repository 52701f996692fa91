/// An invoice with everything its rules work with, on a temporary data root whose folders are there; today is
/// 7 March 2026.
#pragma once

#include <QTemporaryDir>

#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueLists.h"
#include "catalogue/SalesItemsList.h"
#include "customers/CustomerOnScreen.h"
#include "invoice/InvoiceTerms.h"
#include "invoice/LineEntry.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Clock.h"
#include "runtime/Dialogs.h"
#include "runtime/FileStore.h"
#include "setup/InvoicerSettings.h"
#include "setup/TaxConfiguration.h"
#include "shell/CommonDiskRoutines.h"
#include "support/FailingDevice.h"

/// Keeps what the user is told and asked, and gives the answers that the test queued; a question without one throws.
class ScriptedDialogs final : public Dialogs {
 public:
  /// In order: "title: text" of a message, "title? text" of a question, "beep".
  QStringList Said;
  QList<bool> Answers;
  /// Runs at each message and question, before it is answered.
  std::function<void()> OnBox;

  /// What was said since the last call.
  QStringList Take() { return std::exchange(Said, {}); }

  void ShowMessage(const QString& text, const QString& title) override;
  bool AskYesNo(const QString& text, const QString& title) override;
  void Beep() override { Said << QStringLiteral("beep"); }
  QString ChooseFile(const QString& title, const QString& filter) override;
  quint32 ChooseColor(quint32 current) override;
  QString ChooseFont(const QString& current) override;
  void OpenPage(const QString& address) override;
};

class SettableClock final : public Clock {
 public:
  QDate Now{2026, 3, 7};
  QDate Today() const override { return Now; }
};

/// Tells how much was read.
class MeasuringDevice final : public FailingDevice {
 public:
  qint64 BytesRead = 0;
  qint64 Read(int descriptor, char* data, qint64 size, qint64 offset) override;
};

class InvoiceFixture {
 public:
  InvoiceFixture();

  void Write(const QString& name, const QByteArray& content) const;
  QByteArray Read(const QString& name) const;
  bool Exists(const QString& name) const;
  /// Every file under the root with its bytes, to prove that nothing changed.
  QMap<QString, QByteArray> Tree() const;

  /// Puts a line into the next row.
  void AddLine(const QStringList& cells);
  QStringList Row(int row) const;
  /// Where a rule sent the focus since the last call.
  QString Focus() { return Invoice.Controls.TakeFocus(); }

  LineEntryDesk Entry() { return {Invoice, Lists, Tax, Boxes}; }
  TermsDesk Terms() { return {Invoice, Settings, Boxes}; }

  QTemporaryDir Root;
  MeasuringDevice Device;
  FileStore Store;
  CommonDiskRoutines Disk;
  ScriptedDialogs Boxes;
  SettableClock Now;
  TaxConfiguration Tax;
  InvoicerSettings Settings;
  CatalogueLists Lists;
  SalesItemsList SalesItems;
  Catalogue Prices;
  CustomerOnScreen Customer;
  WorkingInvoice Invoice;
};
