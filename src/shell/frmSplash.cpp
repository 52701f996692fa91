#include "shell/frmSplash.h"

#include "desktop/ProgramPicture.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/DataTree.h"
#include "shell/Screens.h"
#include "ui_frmSplash.h"

using namespace Qt::StringLiterals;

frmSplash::frmSplash(ScreenHost& host, Screens& screens, CommonDiskRoutines& disk, const QString& version)
    : Screen(u"frmSplash"_s, host),
      m_ui(std::make_unique<Ui::frmSplash>()),
      m_screens(screens),
      m_disk(disk),
      m_version(version) {
  BuildForm(*m_ui);
  const QPixmap logo = ProgramPicture();
  m_ui->Image1_0->SetPicture(logo);
  m_ui->Image1_1->SetPicture(logo);
  m_ui->fraWelcome->setTitle(u"Welcome to "_s + disk.EXEName());
  m_ui->lblProductName_2->setText(disk.EXEName());
  m_ui->lblProductName_3->setText(disk.EXEName());
  m_ui->fraWelcome->hide();
  OnClick(
      m_ui->cmdContinue, [this] { ContinueToMenu(); }, WhenLeaveRefused::Always);
  OnClick(
      m_ui->Image1_0, [this] { LogoClick(0); }, WhenLeaveRefused::Always);
  OnClick(
      m_ui->Image1_1, [this] { LogoClick(1); }, WhenLeaveRefused::Always);
}

frmSplash::~frmSplash() = default;

void frmSplash::Activate() {
  m_ui->lblVersion->setText(u"Version "_s + m_version);
  SetFocusTo(m_ui->cmdContinue);
}

void frmSplash::ContinueToMenu() {
  if (RequiredFilesPresent(m_disk)) {
    m_screens.Show(ScreenName::frmStartup);
    m_screens.Unload(ScreenName::frmSplash);
    return;
  }
  m_ui->fraWelcome->show();
  SetFocusTo(m_ui->Image1_1);
}

void frmSplash::LogoClick(int index) {
  if (index == 1) m_ui->fraWelcome->hide();
  m_screens.Show(ScreenName::frmSetup);
  m_screens.Unload(ScreenName::frmSplash);
}
