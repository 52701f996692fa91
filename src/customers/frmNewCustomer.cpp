#include "customers/frmNewCustomer.h"

#include <QKeyEvent>
#include <QMenu>
#include <QScopeGuard>

#include "customers/StatesList.h"
#include "desktop/Pictures.h"
#include "shell/CommonDiskRoutines.h"
#include "ui_frmNewCustomer.h"

using namespace Qt::StringLiterals;

frmNewCustomer::frmNewCustomer(ScreenHost& host, Screens& screens, CommonDiskRoutines& disk, Dialogs& dialogs,
                               const BusinessProfile& profile, CustomerOnScreen& onScreen)
    : Screen(u"frmNewCustomer"_s, host),
      m_ui(std::make_unique<Ui::frmNewCustomer>()),
      m_txtCustomer(BuildForm(*m_ui), u"txtCustomer"_s),
      m_cmdCustomer(this, u"cmdCustomer"_s),
      m_cmdNav(this, u"cmdNav"_s),
      m_command1(this, u"Command1"_s),
      m_optSearch(this, u"optSearch"_s),
      m_txtHeading(this, u"txtHeading"_s),
      m_txtAux(this, u"txtAux"_s),
      m_cmdSaveAux(this, u"cmdSaveAux"_s),
      m_screens(screens),
      m_disk(disk),
      m_dialogs(dialogs),
      m_onScreen(onScreen),
      m_editor(disk, dialogs, profile, onScreen, *this),
      m_search(m_editor, dialogs, *this),
      m_aux(disk, *this) {
  ConnectBoxes();
  ConnectKeys();
  ConnectNameList();
  ConnectButtons();
  ConnectMenu();
  ConnectSearch();
  ConnectFoundGrid();
  ConnectAux();
  DrawTelephone();
  FillLists();
}

frmNewCustomer::~frmNewCustomer() = default;

void frmNewCustomer::FillLists() {
  for (const QString& title : {u"Mr/Mrs"_s, u"Mr."_s, u"Mrs"_s, u"Ms"_s, u"Miss"_s}) {
    m_ui->cboTitle->AddEntry(title);
  }
  for (const QString& state : LoadStatesList(m_disk)) {
    m_ui->cboStates->AddEntry(state);
  }
}

void frmNewCustomer::Activate() {
  m_editor.DecideAddressStyle();
  SetNameListVisible(false);
  m_editor.ApplyAccountType(u"Business"_s);
  const std::optional<RuntimeError> headings = ReadHeadings();
  m_editor.BlankBoxes();
  m_cmdCustomer[13]->hide();
  // What can't be read of the boxes is told, and the screen comes up.
  const std::optional<RuntimeError> boxes = m_editor.Open();
  for (const std::optional<RuntimeError>& unread : {headings, boxes}) {
    if (unread) Run([&unread] { throw *unread; });
  }
}

/// The error of the disk, if any; a damaged file goes on up.
std::optional<RuntimeError> frmNewCustomer::ReadHeadings() {
  try {
    m_aux.LoadAuxHeadings();
  } catch (const RuntimeError& error) {
    if (error.From() == RuntimeError::Origin::FileContent) throw;
    return error;
  }
  return std::nullopt;
}

void frmNewCustomer::ConnectButtons() {
  for (int i = 0; i < m_cmdNav.Size(); ++i) {
    OnClick(m_cmdNav[i], [this, i] { m_editor.Navigate(i); });
  }
  // A duplicate number that takes the focus back drops every click, the ways out too: the number is to be settled
  // first.
  OnClick(m_cmdCustomer[0], [this] { LeaveScreen(false); });
  OnClick(m_cmdCustomer[1], [this] { LeaveScreen(true); });
  OnClick(m_cmdCustomer[13], [this] { CancelAddNew(); });
  OnClick(m_command1[1], [this] { ToggleNameList(); });
  OnClick(m_ui->Image1_1, [this] { m_screens.StartCall(m_editor.ScreenCustomerName(), m_editor.NumberToDial()); });
  OnClick(m_ui->cmdAcctType, [this] { m_editor.ToggleAccountType(); });
}

void frmNewCustomer::ConnectMenu() {
  On(m_ui->mnuAdd, &QAction::triggered, [this] { AddNew(); });
  On(m_ui->mnuDelete, &QAction::triggered, [this] { m_editor.DeleteCustomer(); });
}

/// The two ways off the screen. While Cancel shows, both drop the record that is being added, and leave whoever is in
/// sight for the one before it, also once it was stored by a move. This is meant.
void frmNewCustomer::LeaveScreen(bool forInvoice) {
  m_disk.CloseAllFiles();
  if (m_cmdCustomer[13]->isVisible()) {
    CancelAddNew();
  }
  m_editor.SaveCustomer();
  if (!m_editor.SaveAccepted()) {
    return;
  }
  // The next screen stands before this one goes: where it fails to show, this one never left.
  if (forInvoice) {
    m_screens.StartInvoiceFor(m_editor.CustomerForInvoice());
  } else {
    m_screens.Show(ScreenName::frmStartup);
  }
  m_screens.Hide(ScreenName::frmNewCustomer);
}

void frmNewCustomer::AddNew() {
  const bool adding = !m_cmdCustomer[13]->isHidden();
  bool started = false;
  // Cancel takes one customer off the count: where none was started, it would be a stored one.
  const auto settle = qScopeGuard([&] { m_cmdCustomer[13]->setVisible(adding || started); });
  m_cmdCustomer[13]->show();
  started = m_editor.AddNewCustomer({});
  HideSearchFrames();
}

void frmNewCustomer::CancelAddNew() {
  m_cmdCustomer[13]->hide();
  m_editor.CancelAddNew();
}

/// Enter goes on to the next control, in the name list shows the customer typed, and starts a search where its text
/// was typed. Escape goes one step back.
void frmNewCustomer::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && focusWidget() == m_ui->cboAccounts) {
    Run([this] { SettleNameList(); });
  } else if (enter && focusWidget() == m_ui->txtSearchfor) {
    PressButton(m_ui->cmdStartSearch);
  } else if (enter) {
    focusNextChild();
  } else if (event->key() == Qt::Key_Escape) {
    StepBack();
  } else {
    Screen::keyPressEvent(event);
  }
}

/// Closes the name list, else the frame on top, else goes back to the menu, but not while a customer is being added:
/// he would be lost.
void frmNewCustomer::StepBack() {
  if (m_ui->nameList->isVisible()) {
    Run([this] { ToggleNameList(); });
  } else if (!m_frames.empty()) {
    Run([this] { HideTopFrame(); });
  } else if (m_cmdCustomer[13]->isHidden()) {
    PressButton(m_cmdCustomer[0]);
  }
}

void frmNewCustomer::changeEvent(QEvent* event) {
  Screen::changeEvent(event);
  // The form's set-up changes the window before the picture is there.
  if (event->type() == QEvent::PaletteChange && m_ui->Image1_1 != nullptr) {
    DrawTelephone();
  }
}

void frmNewCustomer::DrawTelephone() {
  m_ui->Image1_1->SetPicture(DrawnPicture(Picture::Telephone, palette()));
}
