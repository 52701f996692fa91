#include "Program.h"

#include "catalogue/frmServices.h"
#include "customers/frmNewCustomer.h"
#include "invoice/frmInvoice.h"
#include "invoice/InvoiceHeaderData.h"
#include "printing/frmBlanks.h"
#include "ProgramObjects.h"
#include "records/frmIncomplete.h"
#include "records/PartialList.h"
#include "setup/frmSetup.h"
#include "shell/ErrorText.h"
#include "shell/frmSplash.h"
#include "shell/frmStartup.h"
#include "shell/KarvexMasterModule.h"

Program::Program(const Platform& platform) : m_platform(platform), m_objects(std::make_unique<Objects>(m_platform)) {
  // The customer screen takes over the address style at once, also while it isn't built yet.
  m_objects->Live.Business.UseAddressStyle = [this](bool usaStyle) {
    m_objects->Customer.UsaAddress = usaStyle;
    if (Screen* built = Built(ScreenName::frmNewCustomer))
      static_cast<frmNewCustomer*>(built)->UseAddressStyle(usaStyle);
  };
}

Program::~Program() {
  m_screens.clear();
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

std::unique_ptr<Screen> Program::Build(ScreenName screen) {
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
    case ScreenName::frmBlanks:
      return std::make_unique<frmBlanks>(*this, *this,
                                         BlanksDesk{m_objects->Routines, m_objects->Pages, m_objects->Live.Print,
                                                    *m_platform.Boxes, *m_platform.Calendar});
    case ScreenName::frmIncomplete:
      return std::make_unique<frmIncomplete>(
          *this, PartialDesk{m_objects->Partials, m_objects->Invoice, m_objects->Disk, *m_platform.Boxes,
                             *m_platform.Calendar, *this, m_objects->Reports});
    default:
      return nullptr;
  }
}

std::unique_ptr<Screen> Program::BuildInvoice() {
  Objects& our = *m_objects;
  return std::make_unique<frmInvoice>(
      *this, InvoiceDesk{our.Invoice, our.Prices, our.Lists, our.Live, our.Disk, *m_platform.Boxes,
                         *m_platform.Calendar, *this, our.Customer, our.SalesItems, our.Routines, our.Pages,
                         [&our] { return our.Partials.SelectedInvoiceNo(); },
                         [&our] { LoadPartialList(our.Partials, our.Disk); }});
}

MainMenuContext Program::MenuContext() {
  return {m_objects->Disk, *m_platform.Boxes, m_platform.ProgramFolder,
          [this] {
            LoadPartialList(m_objects->Partials, m_objects->Disk);
            return m_objects->Partials.Count();
          },
          [](ScreenName screen) {
            return screen == ScreenName::frmNewCustomer || screen == ScreenName::frmServices ||
                   screen == ScreenName::frmBlanks || screen == ScreenName::frmIncomplete;
          }};
}

Screen* Program::Built(ScreenName screen) const {
  const auto found = m_screens.find(screen);
  return found == m_screens.end() ? nullptr : found->second.get();
}

void Program::Show(ScreenName screen) {
  std::unique_ptr<Screen>& slot = m_screens[screen];
  if (!slot) slot = Build(screen);
  if (!slot || slot->isVisible() || m_ended) return;
  // Without a partial invoice their screen hides at once: no window is left then, and the program lives on. Meant.
  if (screen == ScreenName::frmIncomplete && !LoadPartialList(m_objects->Partials, m_objects->Disk)) return;
  slot->Activate();
  Open(*slot);
}

void Program::Open(Screen& screen) {
  screen.show();
  screen.activateWindow();
  screen.ApplyPendingFocus();
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
  found->second.release()->deleteLater();
  m_screens.erase(found);
}

void Program::ShowSetupAtFirstTab() {
  std::unique_ptr<Screen>& setup = m_screens[ScreenName::frmSetup];
  if (!setup) setup = Build(ScreenName::frmSetup);
  static_cast<frmSetup&>(*setup).ShowFirstTab();
  Show(ScreenName::frmSetup);
}

void Program::StartInvoiceFor(const SoldTo& customer) {
  TakeSoldTo(m_objects->Invoice, customer);
  Show(ScreenName::frmInvoice);
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

void Program::EndProcess() {
  m_ended = true;
  for (auto it = m_screens.rbegin(); it != m_screens.rend(); ++it) {
    if (it->second) it->second->hide();
  }
  m_objects->Instance.Release();
  if (Ended) Ended();
}
