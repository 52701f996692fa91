// The buttons of the catalogue screen. A click that uses a box, a Save, is dropped where the box's own check takes the
// focus back; all others run.

#include "catalogue/CatalogueCommands.h"
#include "catalogue/frmServices.h"
#include "shell/Screens.h"
#include "ui_frmServices.h"

namespace Command = CatalogueCommand;

void frmServices::ConnectCommands() {
  Always(Command::Menu, [this] { Menu(); });
  for (const CatalogueList list : AllCatalogueLists) {
    const CatalogueControls controls = ControlsOf(list);
    Always(controls.AddNew, [this, list] { m_editor.AddNew(list); });
    Always(controls.Modify, [this, list] { m_editor.Modify(list); });
    Always(controls.Delete, [this, list] { m_editor.Delete(list); });
    Always(controls.Clear, [this, list] { m_editor.Clear(list); });
    Always(controls.Cancel, [this, list] { m_editor.Cancel(list); });
    OnClick(m_cmdServices[controls.Save], [this, list] { m_editor.Save(list); });
  }
  Always(Command::ClearPrices, [this] { m_editor.ClearPrices(); });
  Always(Command::NoDiscount, [this] { m_editor.RemoveDiscount(); });
  Always(Command::GeneralLabor, [this] { m_editor.CreateGeneralLabor(); });
  Always(Command::ClearLabor, [this] { m_editor.ClearLabor(); });
  Always(Command::ReloadLabor, [this] { m_catalogue.LoadLabor(); });
  OnClick(m_cmdServices[Command::SaveLabor], [this] {
    m_catalogue.SaveLabor();
    m_ui->tabServices->setCurrentIndex(0);
  });
}

void frmServices::Always(int command, std::function<void()> handler) {
  OnClick(m_cmdServices[command], std::move(handler), WhenLeaveRefused::Always);
}

/// The labor rates aren't saved on this way, which is meant.
void frmServices::Menu() {
  m_catalogue.SaveCatalogue();
  m_screens.Hide(ScreenName::frmServices);
  m_screens.Show(ScreenName::frmStartup);
}
