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
  /// The load of the screen, which reads the proposals; they aren't read again until the screen was unloaded. What a
  /// file of theirs throws comes out here, and there is no screen then.
  frmCustomerSelection(ScreenHost& host, Screens& screens, ProposalList& proposals, CommonDiskRoutines& disk,
                       Dialogs& boxes);
  ~frmCustomerSelection() override;

  void Activate() override;

 private:
  void ConnectButtons();
  void ShowInstructions(bool choosing);
  void ShowProposals(bool shown);
  void GoToCustomerList();
  void ClickProposal();
  void CreateInvoice();

  Screens& m_screens;
  ProposalList& m_proposals;
  std::unique_ptr<Ui::frmCustomerSelection> m_ui;
  ControlArray<QPushButton, 2> m_cmdStartup;
  ControlArray<QPushButton, 3> m_cmdCreation;
  ControlArray<QFrame, 2> m_fraInstructions;
  ControlArray<QLabel, 9> m_lblCustomerInfo;  ///< From 1.
};
