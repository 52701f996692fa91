/// The start-up screen: who the program is, the notice about sibling programs, and the first-run welcome.
#pragma once

#include "desktop/Screen.h"

class CommonDiskRoutines;
class Screens;
namespace Ui {
class frmSplash;
}

class frmSplash final : public Screen {
 public:
  frmSplash(ScreenHost& host, Screens& screens, CommonDiskRoutines& disk, const QString& version);
  ~frmSplash() override;
  void Activate() override;

 private:
  void ContinueToMenu();
  void LogoClick(int index);

  std::unique_ptr<Ui::frmSplash> m_ui;
  Screens& m_screens;
  CommonDiskRoutines& m_disk;
  QString m_version;
};
