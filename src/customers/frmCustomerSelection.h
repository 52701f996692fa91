/// The fork at the start of an invoice when proposals wait: the customer list, or the customer of a proposal.
#pragma once

#include "desktop/ControlArray.h"
#include "desktop/Screen.h"

class CommonDiskRoutines;
class Dialogs;
class QFrame;
class QLabel;
class QPushButton;
class Screens;
struct ProposalList;
namespace Ui {
class frmCustomerSelection;
}

class frmCustomerSelection final : public Screen {
 public:
  frmCustomerSelection(ScreenHost& host, Screens& screens, ProposalList& proposals, CommonDiskRoutines& disk,
                       Dialogs& boxes);
  ~frmCustomerSelection() override;

  /// The first time it reads the proposals; they aren't read again until the screen was unloaded. What a file of
  /// theirs throws comes out here: the screen stays away, and the next time reads them once more.
  bool MayShow() override;
  void Activate() override;

 private:
  void Load();
  void ConnectButtons();
  void ShowInstructions(bool choosing);
  void ShowProposals(bool shown);
  void GoToCustomerList();
  void ClickProposal();
  void CreateInvoice();

  Screens& m_screens;
  ProposalList& m_proposals;
  CommonDiskRoutines& m_disk;
  Dialogs& m_boxes;
  bool m_loaded = false;
  std::unique_ptr<Ui::frmCustomerSelection> m_ui;
  ControlArray<QPushButton, 2> m_cmdStartup;
  ControlArray<QPushButton, 3> m_cmdCreation;
  ControlArray<QFrame, 2> m_fraInstructions;
  ControlArray<QLabel, 9> m_lblCustomerInfo;  ///< From 1.
};
