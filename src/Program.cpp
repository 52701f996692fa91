#include "Program.h"

#include "catalogue/frmServices.h"
#include "customers/CustomerFolders.h"
#include "customers/frmCustomerSelection.h"
#include "customers/frmNewCustomer.h"
#include "invoice/frmInvoice.h"
#include "invoice/InvoiceHeaderData.h"
#include "printing/frmBlanks.h"
#include "ProgramObjects.h"
#include "records/frmIncomplete.h"
#include "records/frmReprint.h"
#include "records/frmSalesReport.h"
#include "records/PartialList.h"
#include "setup/frmSetup.h"
#include "shell/DataTree.h"
#include "shell/ErrorText.h"
#include "shell/frmSplash.h"
#include "shell/frmStartup.h"
#include "shell/KarvexMasterModule.h"
#include "telephony/frmDialer.h"

Platform PlatformOn(const QString& root, const QString& lockFolder, FileDevice& files, const Clock& calendar,
                    Dialogs& boxes, Printer& paper, SerialPort& modem) {
  Platform platform;
  platform.DataRoot = root;
  platform.EXEName = QStringLiteral("KarvexInvoicer");
  platform.ProgramFolder = root;
  platform.LockFolder = lockFolder;
  platform.Version = QStringLiteral(KARVEX_VERSION);
  platform.Files = &files;
  platform.Calendar = &calendar;
  platform.Boxes = &boxes;
  platform.Paper = &paper;
  platform.Modem = &modem;
  return platform;
}

Program::Program(const Platform& platform) : m_platform(platform), m_objects(std::make_unique<Objects>(m_platform)) {
  // The customer screen takes over the address style at once, also while it isn't built yet.
  m_objects->Live.Business.UseAddressStyle = [this](bool usaStyle) {
    m_objects->Customer.UsaAddress = usaStyle;
    if (Screen* built = Built(ScreenName::frmNewCustomer))
      static_cast<frmNewCustomer*>(built)->UseAddressStyle(usaStyle);
  };
}

Program::~Program() {
  // Before the first one goes: what a window's hiding sets off may look at the others.
  HideAll();
  m_screens.clear();
  // Their own end was left to the event loop, which may have ended before: it must not come after this host's.
  for (const QPointer<Screen>& screen : m_unloaded) delete screen.data();
}

CommonDiskRoutines& Program::Disk() {
  return m_objects->Disk;
}

bool Program::Start() {
  m_starting = true;
  try {
    if (!CheckPreviousInstance(m_objects->Instance, *m_platform.Boxes)) {
      EndProcess();
      return false;
    }
    MakeDataTree(m_objects->Disk, *m_platform.Calendar);
    MakeCustomerFolders(m_objects->Disk);
    m_objects->LoadSettings();
    Show(ScreenName::frmSplash);
    Built(ScreenName::frmSplash)->repaint();
    m_objects->LoadHiddenScreens();
  } catch (const RuntimeError& error) {
    UnhandledError(error);
  } catch (const std::exception& error) {
    UnhandledError(RuntimeError(0, QString(), QString::fromLocal8Bit(error.what())));
  }
  m_starting = false;
  return !m_ended;
}

Screen& Program::Build(ScreenName screen) {
  if (Screen* built = Built(screen)) return *built;
  return *(m_screens[screen] = Make(screen));
}

std::unique_ptr<Screen> Program::Make(ScreenName screen) {
  switch (screen) {
    case ScreenName::frmSplash:
      return std::make_unique<frmSplash>(*this, *this, m_objects->Disk, m_platform.Version);
    case ScreenName::frmStartup:
      return std::make_unique<frmStartup>(*this, *this, MenuContext());
    case ScreenName::frmSetup:
      return std::make_unique<frmSetup>(*this, *this,
                                        SetupContext{m_objects->Disk, *m_platform.Boxes, m_objects->Live,
                                                     m_objects->Dialog, m_platform.ProgramFolder});
    case ScreenName::frmServices:
      return std::make_unique<frmServices>(*this, *this, m_objects->Prices, *m_platform.Boxes);
    case ScreenName::frmInvoice:
      return BuildInvoice();
    case ScreenName::frmNewCustomer:
      return std::make_unique<frmNewCustomer>(*this, *this, m_objects->Disk, *m_platform.Boxes,
                                              m_objects->Live.Business, m_objects->Customer);
    case ScreenName::frmCustomerSelection:
      return std::make_unique<frmCustomerSelection>(*this, *this, m_objects->Proposals, m_objects->Disk,
                                                    *m_platform.Boxes);
    case ScreenName::frmBlanks:
      return std::make_unique<frmBlanks>(*this, *this,
                                         BlanksDesk{m_objects->Routines, m_objects->Pages, m_objects->Live.Print,
                                                    *m_platform.Boxes, *m_platform.Calendar});
    case ScreenName::frmIncomplete:
      return std::make_unique<frmIncomplete>(
          *this, PartialDesk{m_objects->Partials, m_objects->Invoice, m_objects->Disk, *m_platform.Boxes,
                             *m_platform.Calendar, *this, m_objects->Reports, m_platform.Patience});
    case ScreenName::frmSalesReport:
      return BuildSalesReport();
    case ScreenName::frmReprint:
      return BuildReprint();
    case ScreenName::frmDialer:
      return std::make_unique<frmDialer>(
          *this, *this, DialerDesk{*m_platform.Modem, m_objects->Disk, *m_platform.Boxes, m_objects->Live.Phone});
  }
  throw std::logic_error("no such screen");
}

std::unique_ptr<Screen> Program::BuildInvoice() {
  Objects& our = *m_objects;
  return std::make_unique<frmInvoice>(
      *this, InvoiceDesk{our.Invoice, our.Prices, our.Lists, our.Live, our.Disk, *m_platform.Boxes,
                         *m_platform.Calendar, *this, our.Customer, our.SalesItems, our.Routines, our.Pages,
                         [&our] { return our.Partials.SelectedInvoiceNo(); },
                         [&our] { LoadPartialList(our.Partials, our.Disk); }});
}

std::unique_ptr<Screen> Program::BuildSalesReport() {
  Objects& our = *m_objects;
  return std::make_unique<frmSalesReport>(
      *this,
      SalesDesk{our.Sales, our.SalesDays, our.SalesPickers, our.SalesItems, our.SalesPages, our.Routines, our.Disk,
                *m_platform.Boxes, *m_platform.Calendar, our.Live.Business, *this, m_platform.Patience});
}

std::unique_ptr<Screen> Program::BuildReprint() {
  Objects& our = *m_objects;
  return std::make_unique<frmReprint>(
      *this, ReprintDesk{our.Completed, our.Reprinted, our.Disk, *m_platform.Boxes, *m_platform.Calendar, *this,
                         our.Live.Tax, our.Customer, our.Routines, our.Pages, our.Reports, m_platform.Patience});
}

MainMenuContext Program::MenuContext() {
  return {m_objects->Disk, *m_platform.Boxes, m_platform.ProgramFolder,
          [this] {
            LoadPartialList(m_objects->Partials, m_objects->Disk);
            return m_objects->Partials.Count();
          },
          [this](ScreenName screen) { return Built(screen) != nullptr && Built(screen)->isVisible(); }};
}

Screen* Program::Built(ScreenName screen) const {
  const auto found = m_screens.find(screen);
  return found == m_screens.end() ? nullptr : found->second.get();
}

void Program::Show(ScreenName screen) {
  Screen& built = Build(screen);
  if (built.isVisible() || m_ended || !built.MayShow()) return;
  built.Activate();
  // The activation may have ended the program, or left for another screen.
  if (!m_ended && Built(screen) == &built) Open(built);
}

void Program::Open(Screen& screen) {
  screen.show();
  screen.activateWindow();
}

void Program::Hide(ScreenName screen) {
  Screen* built = Built(screen);
  if (built == nullptr || !built->isVisible()) return;
  built->hide();
  m_lastHidden = screen;
}

void Program::Unload(ScreenName screen) {
  const auto found = m_screens.find(screen);
  if (found == m_screens.end() || !found->second) return;
  found->second->hide();
  // The screen may be in the middle of its own handler.
  found->second->deleteLater();
  m_unloaded.emplace_back(found->second.release());
  m_screens.erase(found);
  // What it stood over has the keyboard again.
  for (const auto& [name, behind] : m_screens) {
    if (behind && behind->isVisible()) behind->activateWindow();
  }
}

void Program::ShowSetupAtFirstTab() {
  static_cast<frmSetup&>(Build(ScreenName::frmSetup)).ShowFirstTab();
  Show(ScreenName::frmSetup);
}

void Program::StartInvoiceFor(const SoldTo& customer) {
  TakeSoldTo(m_objects->Invoice, customer);
  Show(ScreenName::frmInvoice);
}

void Program::StartCall(const QString& name, const QString& number) {
  static_cast<frmDialer&>(Build(ScreenName::frmDialer)).SetRecipient(name, number);
  Show(ScreenName::frmDialer);
}

void Program::PrintSample() {
  m_objects->Routines.RunPrintJob(*m_platform.Boxes, [this] { m_objects->Pages.PrintSample(); });
}

void Program::QuitProgram() {
  if (m_ended) return;
  m_objects->Disk.BackupDataFiles();
  EndProcess();
}

void Program::UserClosed() {
  QuitProgram();
}

void Program::UnhandledError(const RuntimeError& error) {
  if (m_ended) return;
  const bool ends = m_starting || error.From() == RuntimeError::Origin::FileContent;
  m_platform.Boxes->ShowMessage(ErrorBoxText(error, ends));
  // Without the exit backup: it would overwrite good copies with what may be damaged.
  if (ends) {
    EndProcess();
  } else {
    KeepAWindow();
  }
}

/// A screen may have gone before the next one failed to show: without a window the user couldn't go on.
void Program::KeepAWindow() {
  for (const auto& [name, screen] : m_screens) {
    if (screen && screen->isVisible()) return;
  }
  if (Screen* last = Built(m_lastHidden)) Open(*last);
}

void Program::HideAll() {
  for (auto it = m_screens.rbegin(); it != m_screens.rend(); ++it) {
    if (it->second) it->second->hide();
  }
}

void Program::EndProcess() {
  // The box that tells of an end runs events of its own, and one of them may be an end as well.
  if (std::exchange(m_ended, true)) return;
  HideAll();
  m_objects->Instance.Release();
  if (Ended) Ended();
}
