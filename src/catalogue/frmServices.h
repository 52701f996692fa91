/// "Services & Products Creation Screen": edits the price catalogue on five tabs.
///
/// A record is changed in its grid; the grids reach the disk when the screen is left or a line is deleted.
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "catalogue/Catalogue.h"
#include "desktop/ControlArray.h"
#include "desktop/Screen.h"

class Dialogs;
class GridView;
class Screens;
namespace Ui {
class frmServices;
}

class frmServices final : public Screen {
 public:
  frmServices(ScreenHost& host, Screens& screens, Catalogue& catalogue, Dialogs& dialogs);
  ~frmServices() override;

  /// Shuts the boxes until Add New or Modify opens them.
  void Activate() override;

 protected:
  /// Saves the three lists, then the labor rates.
  void BeforeUserClose() override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // frmServices.cpp: the screen as a whole
  void ShowCatalogue();
  void ListenToCatalogue();
  void ConnectTabs();
  void FocusOnTab(int tab);
  void RowClick(CatalogueList list);
  GridView* View(CatalogueList list) const;
  void Enable(int command, bool enabled);
  void EnableEditing(int list) { SetEditing(list, true); }
  void DisableEditing(int list) { SetEditing(list, false); }
  void SetEditing(int list, bool enabled);
  void ClearEntry(int entry);

  // frmServicesCommands.cpp: the buttons
  void ConnectServiceCommands();
  void ConnectItemCommands();
  void ConnectLaborCommands();
  void ConnectCustomCommands();
  void Menu();
  void AddNew(int list);
  void ModifyService();
  void ModifyItem();
  void ModifyCustomItem();
  void Delete(CatalogueList list, const QString& text, const QString& title, int disables);
  void CreateGeneralLabor();
  void ClearAllLabor();
  void ClearPrices();

  // frmServicesSave.cpp: what a Save checks and writes
  void SaveService();
  void SaveItem();
  void SaveCustomItem();
  bool RefusesEmpty(QLineEdit* box);
  bool RefusesLetters(QLineEdit* box);
  bool MissesLine(CatalogueList list);

  // frmServicesBoxes.cpp: keys, entering and leaving
  void ConnectBoxes();
  void ConnectCharges();
  void ConnectLabor();
  void ConnectQuantities();
  void BlankOnEnter(QLineEdit* box, const QString& zero);
  void FilterDecimals(QLineEdit* box);
  void SaveOnReturn(QLineEdit* box, int command);
  void LeaveCharge(int index);
  void LeaveLaborRate(int index);

  std::unique_ptr<Ui::frmServices> m_ui;
  Screens& m_screens;
  Catalogue& m_catalogue;
  Dialogs& m_dialogs;
  std::unique_ptr<ControlArray<QPushButton, 26>> m_cmdServices;
  std::unique_ptr<ControlArray<QLineEdit, 3>> m_txtDescription;
  std::unique_ptr<ControlArray<QLineEdit, 5>> m_txtCharge;
  std::unique_ptr<ControlArray<QLineEdit, 3>> m_txtLabor;
  std::unique_ptr<ControlArray<QLineEdit, 3>> m_txtLaborRate;
  /// Whether a Save replaces the current row. One for all tabs, which is meant.
  bool m_modifyMode = false;
};
