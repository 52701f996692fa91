#include "Program.h"

#include "customers/CustomerFolders.h"
#include "customers/frmNewCustomer.h"
#include "invoice/InvoiceHeaderData.h"
#include "ProgramObjects.h"
#include "ProgramScreens.h"
#include "setup/frmSetup.h"
#include "shell/DataTree.h"
#include "shell/ErrorText.h"
#include "shell/KarvexMasterModule.h"
#include "telephony/frmDialer.h"

Program::Program(const Platform& platform)
    : m_platform(platform), m_objects(std::make_unique<ProgramObjects>(m_platform)) {
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
    if (!CheckPreviousInstance(m_objects->RootLock, *m_platform.Boxes)) {
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
  const auto isShown = [this](ScreenName name) { return Built(name) != nullptr && Built(name)->isVisible(); };
  return *(m_screens[screen] = MakeScreen(screen, {*m_objects, m_platform, *this, *this, isShown}));
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
  m_failed = m_failed || ends;
  m_platform.Boxes->ShowMessage(ErrorBoxText(error, ends, m_platform.DataRoot, NameOfBox(error.Subject())));
  // Without the exit backup: it would overwrite good copies with what may be damaged.
  if (ends) {
    EndProcess();
  } else {
    KeepAWindow();
  }
}

/// What its screen calls a box; nothing for one of a screen that isn't built, or for no box.
QString Program::NameOfBox(const QString& objectName) const {
  if (objectName.isEmpty()) return {};
  const QWidget* found = nullptr;
  for (const auto& [name, screen] : m_screens) {
    const auto* box = screen ? screen->findChild<QWidget*>(objectName) : nullptr;
    // Two screens may have one of that name: the one in sight is meant.
    if (box != nullptr && (found == nullptr || screen->isVisible())) found = box;
  }
  return found != nullptr ? found->accessibleName() : QString();
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
  m_objects->RootLock.Drop();
  if (Ended) Ended();
}
