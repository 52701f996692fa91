/// "Select Customer for Managing Account Data": one customer at a time, saved whenever the screen moves off him.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "customers/AuxiliaryData.h"
#include "customers/CustomerEditor.h"
#include "customers/CustomerSearch.h"
#include "desktop/ControlArray.h"
#include "desktop/Screen.h"

namespace Ui {
class frmNewCustomer;
}
class ListCombo;

class frmNewCustomer final : public Screen, private CustomerView, private CustomerSearchView, private AuxiliaryView {
 public:
  frmNewCustomer(ScreenHost& host, Screens& screens, CommonDiskRoutines& disk, Dialogs& dialogs,
                 const BusinessProfile& profile, CustomerOnScreen& onScreen);
  ~frmNewCustomer() override;

  void Activate() override;
  /// Setup's toggle of the address style, while this screen is kept.
  void UseAddressStyle(bool usa) { m_editor.UseAddressStyle(usa); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // frmNewCustomer.cpp: the screen as a whole, and its buttons and menu
  void FillLists();
  void ConnectButtons();
  void ConnectMenu();
  void DrawTelephone();
  void LeaveScreen(bool forInvoice);
  std::optional<RuntimeError> ReadHeadings();
  void AddNew();
  void CancelAddNew();
  void StepBack();

  // frmNewCustomerBoxes.cpp: what the rules see of the boxes, keys, entering and leaving
  void ConnectBoxes();
  void ConnectKeys();
  QLineEdit* Line(CustomerBox box) const;
  ListCombo* Combo(CustomerBox box) const;
  QWidget* Control(CustomerBox box) const;
  QString Text(CustomerBox box) const override;
  void SetText(CustomerBox box, const QString& text) override;
  void FocusOn(CustomerBox box) override;
  void FocusOnSelect() override;
  void ShowNameBoxes(bool business) override;
  void ShowAddressBoxes(bool usa) override;
  void SetCustomerCaption(const QString& caption) override;
  void SetAuxCaption(const QString& caption) override;

  // frmNewCustomerNames.cpp: the name list that lies over the name boxes, and the list of cities
  void ConnectNameList();
  void ToggleNameList();
  void SetNameListVisible(bool visible);
  void PickAccount();
  void SettleNameList();
  void LabelNameList();
  void SetAccounts(const QStringList& accounts, const QList<int>& records) override;
  void SetCities(const QStringList& cities) override;
  void AddCity(const QString& city) override;

  // frmNewCustomerFrames.cpp: the frames beside the customer
  void ShowFrame(QWidget* frame, bool visible, QWidget* focus = nullptr);
  void HideTopFrame();
  void HideSearchFrames() override;

  // frmNewCustomerSearch.cpp: the search, and the customers found
  void ConnectSearch();
  void ConnectFoundGrid();
  void StartSearch();
  void ShowList();
  QString SearchText() const override;
  int SearchCriterion() const override;
  void ClearSearchText() override;
  void FocusOnSearchText() override;
  void ShowCustomerFrame() override;
  void ShowSearchFrame(bool visible) override;
  bool IsFoundFrameShown() const override;
  void ShowFoundFrame(bool visible) override;
  void SetFoundCaption(const QString& caption) override;
  void SetListEntryCaption(const QString& caption) override;

  // frmNewCustomerAux.cpp: the auxiliary boxes
  void ConnectAux();
  void ToggleAux();
  void ShowBig(int box);
  void HideBig();
  QString Heading(int box) const override;
  void SetHeading(int box, const QString& text) override;
  QString AuxText(int box) const override;
  void SetAuxText(int box, const QString& text) override;
  bool IsAuxRetained() const override;
  QString AuxAccount() const override;
  void LoadAuxiliaryBoxes() override;

  std::unique_ptr<Ui::frmNewCustomer> m_ui;
  ControlArray<QLineEdit, 12> m_txtCustomer;
  ControlArray<QPushButton, 14> m_cmdCustomer;
  ControlArray<QPushButton, 9> m_cmdNav;
  ControlArray<QPushButton, 3> m_command1;
  ControlArray<QRadioButton, 9> m_optSearch;
  ControlArray<QLineEdit, AuxBoxCount> m_txtHeading;
  ControlArray<QPlainTextEdit, AuxBoxCount> m_txtAux;
  ControlArray<QPushButton, 9> m_cmdSaveAux;
  Screens& m_screens;
  CommonDiskRoutines& m_disk;
  Dialogs& m_dialogs;
  CustomerOnScreen& m_onScreen;
  CustomerEditor m_editor;
  CustomerSearch m_search;
  AuxiliaryData m_aux;
  std::vector<QWidget*> m_frames;  ///< Those shown beside the customer, the one on top last.
  qint16 m_auxBoxIndex = 0;        ///< `AuxBoxIndex`: the box in the big window.
};
