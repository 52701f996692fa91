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
#include "runtime/FileStore.h"
#include "setup/InvoicerSettings.h"
#include "setup/TaxConfiguration.h"
#include "shell/CommonDiskRoutines.h"
#include "support/FailingDevice.h"
#include "support/ScriptedDialogs.h"

class SettableClock final : public Clock {
 public:
  QDate Now{2026, 3, 7};
  QDate Today() const override { return Now; }
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
  FailingDevice Device;
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
