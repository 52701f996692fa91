#include "ProgramObjects.h"

#include "invoice/InvoiceLoad.h"
#include "setup/frmSetupPictures.h"

ProgramObjects::ProgramObjects(const Platform& platform)
    : On(platform),
      Store(*platform.Files, platform.DataRoot),
      Disk(Store, platform.DataRoot, platform.EXEName),
      RootLock(platform.DataRoot),
      Prices(Disk, Lists, SalesItems),
      Routines(*platform.Paper, Live.Print, Dialog),
      Pages(Routines, Disk, *platform.Boxes, *platform.Calendar, {Live.Business, Live.Print, Live.Tax}),
      Reports(Routines, Pages, *platform.Calendar),
      SalesPickers(SalesDays, *platform.Boxes, *platform.Calendar),
      SalesPages(Routines, Pages, *platform.Calendar) {}

void ProgramObjects::LoadSettings() {
  LoadSetup(*On.Modem, Disk, Live, &IsPicture, [this] {
    // What the invoice screen sets at its own load; the settings file then has the last word.
    LoadInvoiceScreen(Invoice, Live.Invoicer, Disk, *On.Calendar);
  });
}

void ProgramObjects::LoadHiddenScreens() {
  LoadSalesItems(SalesItems, Disk);
  SalesPickers.Load();
  Prices.Load();
}
