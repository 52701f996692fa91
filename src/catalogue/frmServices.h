/// "Services & Products Creation Screen": edits the price catalogue on five tabs.
///
/// A record is changed in its grid; the grids reach the disk when the screen is left or a line is deleted.
#pragma once

#include <QLineEdit>
#include <QPushButton>

#include "catalogue/CatalogueEditor.h"
#include "desktop/ControlArray.h"
#include "desktop/Screen.h"

class Dialogs;
class GridView;
class Screens;
namespace Ui {
class frmServices;
}

class frmServices final : public Screen, private CatalogueView {
 public:
  frmServices(ScreenHost& host, Screens& screens, Catalogue& catalogue, Dialogs& dialogs);
  ~frmServices() override;

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
  GridView* View(CatalogueList list) const;

  // frmServicesCommands.cpp: the buttons
  void ConnectCommands();
  void Always(int command, std::function<void()> handler);
  void Menu();

  // frmServicesBoxes.cpp: what the rules see of the boxes, keys, entering and leaving
  void ConnectBoxes();
  void ConnectLabor();
  void FilterDecimals(QLineEdit* box);
  void SaveOnReturn(CatalogueBox box, int command);
  QLineEdit* Line(CatalogueBox box) const;
  QWidget* Control(CatalogueBox box) const;
  QString Text(CatalogueBox box) const override;
  void SetText(CatalogueBox box, const QString& text) override;
  QString NameOf(CatalogueBox box) const override;
  void EnableBox(CatalogueBox box, bool enabled) override;
  void FocusOn(CatalogueBox box) override;
  void FocusOnCommand(int command) override;
  void EnableGrid(CatalogueList list, bool enabled) override;
  bool ckClearItem() const override;

  std::unique_ptr<Ui::frmServices> m_ui;
  ControlArray<QPushButton, CatalogueCommand::Count> m_cmdServices;
  ControlArray<QLineEdit, 3> m_txtDescription;
  ControlArray<QLineEdit, 5> m_txtCharge;
  ControlArray<QLineEdit, 3> m_txtLabor;
  ControlArray<QLineEdit, 3> m_txtLaborRate;
  Screens& m_screens;
  Catalogue& m_catalogue;
  Dialogs& m_dialogs;
  CatalogueEditor m_editor;
};
