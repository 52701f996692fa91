#include "customers/frmCustomerSelection.h"

#include "customers/ProposalList.h"
#include "desktop/LabelText.h"
#include "runtime/Dialogs.h"
#include "shell/Screens.h"
#include "ui_frmCustomerSelection.h"

using namespace Qt::StringLiterals;

frmCustomerSelection::frmCustomerSelection(ScreenHost& host, Screens& screens, ProposalList& proposals,
                                           CommonDiskRoutines& disk, Dialogs& boxes)
    : Screen(u"frmCustomerSelection"_s, host),
      m_screens(screens),
      m_proposals(proposals),
      m_disk(disk),
      m_boxes(boxes),
      m_ui(std::make_unique<Ui::frmCustomerSelection>()),
      m_cmdStartup(BuildForm(*m_ui), u"cmdStartup"_s),
      m_cmdCreation(this, u"cmdCreation"_s),
      m_fraInstructions(this, u"fraInstructions"_s),
      m_lblCustomerInfo(this, u"lblCustomerInfo"_s) {
  GridView* grid = m_ui->fgProposals;
  grid->SetMatrix(&m_proposals.fgProposals);
  grid->Click = [this] { ClickProposal(); };
  grid->ClickByKeys();
  ConnectButtons();
  ShowProposals(false);
}

frmCustomerSelection::~frmCustomerSelection() = default;

void frmCustomerSelection::ConnectButtons() {
  OnClick(m_cmdStartup[0], [this] { GoToCustomerList(); });
  OnClick(m_cmdStartup[1], [this] {
    ShowProposals(true);
    SetFocusTo(m_ui->fgProposals);
  });
  OnClick(m_ui->cmdCancelselectProposal, [this] {
    ShowProposals(false);
    ShowInstructions(true);
    SetFocusTo(m_cmdStartup[1]);
  });
  OnClick(
      m_cmdCreation[0],
      [this] {
        m_screens.Hide(ScreenName::frmCustomerSelection);
        m_screens.Show(ScreenName::frmStartup);
      },
      WhenLeaveRefused::Always);
  OnClick(m_cmdCreation[1], [this] { CreateInvoice(); });
  // The details stay in sight until the screen is shown again. Meant.
  OnClick(m_cmdCreation[2], [this] {
    ShowInstructions(true);
    SetFocusTo(m_cmdStartup[1]);
  });
  SetEnterButton(m_cmdCreation[1]);
}

bool frmCustomerSelection::MayShow() {
  if (!m_loaded) Load();
  return true;
}

void frmCustomerSelection::Load() {
  const bool any = LoadProposals(m_proposals, m_disk);
  m_cmdStartup[1]->setEnabled(any);
  if (!any) m_boxes.ShowMessage(u"No Proposals Exist"_s);
  m_loaded = true;
}

void frmCustomerSelection::Activate() {
  for (int i = 1; i <= 8; ++i) m_lblCustomerInfo[i]->clear();
  m_ui->lblAccount->clear();
  ShowInstructions(true);
  SetFocusTo(m_cmdStartup[0]);
}

void frmCustomerSelection::ShowInstructions(bool choosing) {
  m_cmdCreation[1]->setEnabled(!choosing);
  m_cmdCreation[2]->setEnabled(!choosing);
  m_fraInstructions[0]->setVisible(choosing);
  m_fraInstructions[1]->setVisible(!choosing);
}

void frmCustomerSelection::ShowProposals(bool shown) {
  m_ui->fraProposals->setVisible(shown);
  SetEscapeButton(shown ? m_ui->cmdCancelselectProposal : m_cmdCreation[0]);
}

void frmCustomerSelection::GoToCustomerList() {
  m_screens.Show(ScreenName::frmNewCustomer);
  m_screens.Unload(ScreenName::frmCustomerSelection);
}

void frmCustomerSelection::ClickProposal() {
  const Proposal* proposal = m_proposals.Current();
  if (proposal == nullptr) return;
  ShowOnLabel(m_ui->lblAccount, proposal->ProposalAcct);
  // The eighth, the cell number, has no field in a proposal.
  const std::array<QString, 7> lines{proposal->ProposalName, proposal->ProposalAddr1, proposal->ProposalAddr2,
                                     proposal->ProposalCity, proposal->ProposalState, proposal->ProposalPostal,
                                     proposal->ProposalPhone};
  for (std::size_t i = 0; i < lines.size(); ++i) ShowOnLabel(m_lblCustomerInfo[static_cast<int>(i) + 1], lines[i]);
  ShowProposals(false);
  ShowInstructions(false);
  SetFocusTo(m_cmdCreation[1]);
}

void frmCustomerSelection::CreateInvoice() {
  SoldTo customer;
  customer.Acct = m_ui->lblAccount->text();
  for (std::size_t i = 0; i < customer.Line.size(); ++i) {
    customer.Line[i] = m_lblCustomerInfo[static_cast<int>(i) + 1]->text();
  }
  m_screens.StartInvoiceFor(customer);
  m_screens.Hide(ScreenName::frmCustomerSelection);
}
