/// Setup: all settings on one tabbed screen. Its controls show the live settings and write each change back to them at
/// once; the nine texts of the profile wait in their boxes for the save.
#pragma once

#include "desktop/ControlArray.h"
#include "desktop/Screen.h"
#include "setup/LiveSettings.h"

class CommonDiskRoutines;
struct CommonDialog;
class Dialogs;
class ListCombo;
class QCheckBox;
class QLabel;
class QPushButton;
class Screens;
namespace Ui {
class frmSetup;
}

/// What Setup works on.
struct SetupContext {
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  LiveSettings& Live;
  CommonDialog& Dialog;   ///< Shared with printing.
  QString ProgramFolder;  ///< Where the suppliers' pages stand.
};

class frmSetup final : public Screen {
 public:
  frmSetup(ScreenHost& host, Screens& screens, SetupContext context);
  ~frmSetup() override;

  void Activate() override;
  /// The first tab, as the main menu asks for it.
  void ShowFirstTab();
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // frmSetup.cpp: the whole screen, and the way out.
  void BuildMenu();
  void ConnectTabs();
  QWidget* EntryAfter(QWidget* entry) const;
  void ShowLiveSettings();
  void SaveAndReturn();
  void RefuseQuotes(QWidget* box);
  void WriteBack(QCheckBox* box, bool& value);
  void WriteBack(ListCombo* box, QString& value);

  // frmSetupBusiness.cpp: the profile and the address style.
  void ConnectBusiness();
  void BuildBusiness();
  void CopyBusiness(int index);
  void ShowAddressStyle();
  void ClearBusinessBoxes();

  // frmSetupTaxes.cpp
  void ConnectTaxes();
  void ShowTaxes();
  void GraduatedTaxClick(int index);
  void ShowGraduatedAmounts();

  // frmSetupPrinting.cpp
  void ConnectPrinting();
  void ShowPrinting();
  void ShowSwatches();
  void ChangeClick(int index);

  // frmSetupLogo.cpp
  void ConnectLogo();
  void ShowLogo();
  void LogoClick(int index);
  void FindLogo();
  void StoreLogo();
  void StoreFoundLogo();
  void DeleteLogo();

  std::unique_ptr<Ui::frmSetup> m_ui;
  ControlArray<QLineEdit, 9> m_business;
  ControlArray<QLabel, 9> m_address;
  ControlArray<QLineEdit, 2> m_graduated;
  Screens& m_screens;
  SetupContext m_context;
};
