#include "ProgramObjects.h"

#include "invoice/InvoiceHeaderData.h"
#include "invoice/InvoiceMemo.h"
#include "invoice/InvoiceTerms.h"
#include "setup/frmSetupPictures.h"

Program::Objects::Objects(const Platform& platform)
    : On(platform),
      Store(*platform.Files),
      Disk(Store, platform.DataRoot, platform.EXEName),
      Instance(Store, platform.LockFolder, platform.DataRoot),
      Prices(Disk, Lists, SalesItems),
      Routines(*platform.Paper, Live.Print, Dialog),
      Pages(Routines, Disk, *platform.Boxes, *platform.Calendar, {Live.Business, Live.Print, Live.Tax}),
      Reports(Routines, Pages, *platform.Calendar) {}

void Program::Objects::LoadSettings() {
  LoadSetup(Disk, Live, &IsPicture, [this] {
    // What the invoice screen sets at its own load; the settings file then has the last word.
    LoadInvoiceLists(Live.Invoicer);
    LoadShipVia(Invoice, Disk);
    LoadInvoiceMemo(Invoice, Disk);
  });
}

void Program::Objects::LoadHiddenScreens() {
  LoadSalesItems(SalesItems, Disk);
  Prices.Load();
}
