/// Every rules object of the program, made in one place and handed by reference to whoever needs it.
#pragma once

#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueLists.h"
#include "catalogue/SalesItemsList.h"
#include "customers/CustomerOnScreen.h"
#include "customers/ProposalList.h"
#include "invoice/WorkingInvoice.h"
#include "Platform.h"
#include "printing/KVPrint.h"
#include "printing/PrinterRoutines.h"
#include "records/CompletedInvoice.h"
#include "records/CompletedInvoices.h"
#include "records/GridReport.h"
#include "records/ItemSales.h"
#include "records/PartialList.h"
#include "records/SalesRange.h"
#include "records/SalesReport.h"
#include "runtime/Clock.h"
#include "runtime/Dialogs.h"
#include "runtime/FolderLock.h"
#include "setup/LiveSettings.h"
#include "shell/CommonDialog.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/MainMenu.h"

struct ProgramObjects {
  explicit ProgramObjects(const Platform& platform);

  /// The load of Setup: every setting, in the order that the files' effects need; the invoice's own defaults first.
  void LoadSettings();
  /// What the other screens load while the start-up screen shows.
  void LoadHiddenScreens();

  const Platform& On;
  FileStore Store;
  CommonDiskRoutines Disk;
  FolderLock RootLock;
  LiveSettings Live;
  CatalogueLists Lists;
  SalesItemsList SalesItems;
  Catalogue Prices;
  CustomerOnScreen Customer;
  ProposalList Proposals;
  WorkingInvoice Invoice;
  PartialList Partials;
  CompletedInvoices Completed;
  CompletedInvoice Reprinted;
  CommonDialog Dialog;
  PrinterRoutines Routines;
  KVPrint Pages;
  GridReport Reports;
  ItemSales Sales;
  SalesRange SalesDays;
  SalesDates SalesPickers;
  SalesReport SalesPages;
};
