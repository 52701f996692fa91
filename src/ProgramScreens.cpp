#include "ProgramScreens.h"

#include <stdexcept>

#include "catalogue/frmServices.h"
#include "customers/frmCustomerSelection.h"
#include "customers/frmNewCustomer.h"
#include "invoice/frmInvoice.h"
#include "Platform.h"
#include "printing/frmBlanks.h"
#include "ProgramObjects.h"
#include "records/frmIncomplete.h"
#include "records/frmReprint.h"
#include "records/frmSalesReport.h"
#include "records/PartialList.h"
#include "setup/frmSetup.h"
#include "shell/frmSplash.h"
#include "shell/frmStartup.h"
#include "telephony/frmDialer.h"

namespace {

MainMenuContext MenuContext(const ScreenParts& parts) {
  ProgramObjects& our = parts.Our;
  return {our.Disk, *parts.On.Boxes, parts.On.ProgramFolder,
          [&our] {
            LoadPartialList(our.Partials, our.Disk);
            return our.Partials.Count();
          },
          parts.IsShown};
}

SetupContext SetupOf(const ScreenParts& parts) {
  return {parts.Our.Disk, *parts.On.Boxes, parts.Our.Live, parts.Our.Dialog, parts.On.ProgramFolder};
}

InvoiceDesk DeskOfInvoice(const ScreenParts& parts) {
  ProgramObjects& our = parts.Our;
  return {our.Invoice,
          our.Prices,
          our.Lists,
          our.Live,
          our.Disk,
          *parts.On.Boxes,
          *parts.On.Calendar,
          parts.Others,
          our.Customer,
          our.SalesItems,
          our.Routines,
          our.Pages,
          [&our] { return our.Partials.SelectedInvoiceNo(); },
          [&our] { LoadPartialList(our.Partials, our.Disk); }};
}

BlanksDesk DeskOfBlanks(const ScreenParts& parts) {
  return {parts.Our.Routines, parts.Our.Pages, parts.Our.Live.Print, *parts.On.Boxes, *parts.On.Calendar};
}

PartialDesk DeskOfPartials(const ScreenParts& parts) {
  ProgramObjects& our = parts.Our;
  return {our.Partials,       our.Invoice,  our.Disk,    *parts.On.Boxes,
          *parts.On.Calendar, parts.Others, our.Reports, parts.On.Patience};
}

SalesDesk DeskOfSales(const ScreenParts& parts) {
  ProgramObjects& our = parts.Our;
  return {our.Sales, our.SalesDays,   our.SalesPickers,   our.SalesItems,    our.SalesPages, our.Routines,
          our.Disk,  *parts.On.Boxes, *parts.On.Calendar, our.Live.Business, parts.Others,   parts.On.Patience};
}

ReprintDesk DeskOfReprint(const ScreenParts& parts) {
  ProgramObjects& our = parts.Our;
  return {our.Completed, our.Reprinted, our.Disk,     *parts.On.Boxes, *parts.On.Calendar, parts.Others,
          our.Live.Tax,  our.Customer,  our.Routines, our.Pages,       our.Reports,        parts.On.Patience};
}

DialerDesk DeskOfDialer(const ScreenParts& parts) {
  return {*parts.On.Modem, parts.Our.Disk, *parts.On.Boxes, parts.Our.Live.Phone};
}

}  // namespace

std::unique_ptr<Screen> MakeScreen(ScreenName screen, const ScreenParts& parts) {
  const auto& [our, on, host, others, isShown] = parts;
  switch (screen) {
    case ScreenName::frmSplash:
      return std::make_unique<frmSplash>(host, others, our.Disk, on.Version);
    case ScreenName::frmStartup:
      return std::make_unique<frmStartup>(host, others, MenuContext(parts));
    case ScreenName::frmSetup:
      return std::make_unique<frmSetup>(host, others, SetupOf(parts));
    case ScreenName::frmServices:
      return std::make_unique<frmServices>(host, others, our.Prices, *on.Boxes);
    case ScreenName::frmInvoice:
      return std::make_unique<frmInvoice>(host, DeskOfInvoice(parts));
    case ScreenName::frmNewCustomer:
      return std::make_unique<frmNewCustomer>(host, others, our.Disk, *on.Boxes, our.Live.Business, our.Customer);
    case ScreenName::frmCustomerSelection:
      return std::make_unique<frmCustomerSelection>(host, others, our.Proposals, our.Disk, *on.Boxes);
    case ScreenName::frmBlanks:
      return std::make_unique<frmBlanks>(host, others, DeskOfBlanks(parts));
    case ScreenName::frmIncomplete:
      return std::make_unique<frmIncomplete>(host, DeskOfPartials(parts));
    case ScreenName::frmSalesReport:
      return std::make_unique<frmSalesReport>(host, DeskOfSales(parts));
    case ScreenName::frmReprint:
      return std::make_unique<frmReprint>(host, DeskOfReprint(parts));
    case ScreenName::frmDialer:
      return std::make_unique<frmDialer>(host, others, DeskOfDialer(parts));
  }
  throw std::logic_error("no such screen");
}
