/// The main menu: shows which routines make sense for the data at hand, and opens one screen at a time.
#pragma once

#include "desktop/ControlArray.h"
#include "desktop/Screen.h"
#include "shell/MainMenu.h"
#include "shell/Screens.h"

class QRadioButton;
namespace Ui {
class frmStartup;
}

class frmStartup final : public Screen {
 public:
  frmStartup(ScreenHost& host, Screens& screens, MainMenuContext context);
  ~frmStartup() override;
  /// Works out anew what is offered.
  void Activate() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void RunMainMenuRoutine(int index);
  void RunSelected();
  void ClearSelection(int index);
  ScreenName RoutineOf(int index) const;

  std::unique_ptr<Ui::frmStartup> m_ui;
  ControlArray<QRadioButton, 7> m_options;
  Screens& m_screens;
  MainMenuContext m_context;
};
