#include "setup/frmSetup.h"

#include <QKeyEvent>

#include "desktop/ListCombo.h"
#include "desktop/PictureButton.h"
#include "desktop/Pictures.h"
#include "runtime/Dialogs.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/DataTree.h"
#include "shell/frmOrderMenu.h"
#include "shell/Screens.h"
#include "shell/VerifyDataRoutines.h"
#include "ui_frmSetup.h"

using namespace Qt::StringLiterals;

namespace {

bool IsPlainEnter(const QKeyEvent& event) {
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  return enter && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && !event.isAutoRepeat();
}

/// A box, list, tick or option that shows and can be reached by the Tab key.
bool IsEntry(const QWidget* control) {
  const bool fills =
      qobject_cast<const QLineEdit*>(control) != nullptr || qobject_cast<const QComboBox*>(control) != nullptr ||
      qobject_cast<const QCheckBox*>(control) != nullptr || qobject_cast<const QRadioButton*>(control) != nullptr;
  return fills && control->isVisible() && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0 &&
         control->focusProxy() == nullptr;
}

}  // namespace

frmSetup::frmSetup(ScreenHost& host, Screens& screens, SetupContext context)
    : Screen(u"frmSetup"_s, host),
      m_ui(std::make_unique<Ui::frmSetup>()),
      m_business(BuildForm(*m_ui), u"txtBusiness"_s),
      m_address(this, u"lblAddress"_s),
      m_graduated(this, u"txtGradulated"_s),
      m_screens(screens),
      m_context(std::move(context)) {
  BuildMenu();
  ConnectTabs();
  ConnectBusiness();
  ConnectTaxes();
  ConnectPrinting();
  ConnectLogo();
  ShowLiveSettings();
  BuildBusiness();
  ShowAddressStyle();
}

frmSetup::~frmSetup() = default;

/// Enter in an entry goes on to the next one; from the last amount of the graduated scheme it saves that.
void frmSetup::keyPressEvent(QKeyEvent* event) {
  QWidget* const entry = focusWidget();
  if (!IsPlainEnter(*event) || !IsEntry(entry)) {
    Screen::keyPressEvent(event);
    return;
  }
  Run([this, entry] {
    if (entry == m_graduated[1]) {
      GraduatedTaxClick(1);
    } else {
      SetFocusTo(EntryAfter(entry));
    }
  });
}

/// The next entry that shows, or the way out behind the last one: never a button between, which a second Enter would
/// run.
QWidget* frmSetup::EntryAfter(QWidget* entry) const {
  QWidget* next = entry->nextInFocusChain();
  while (next != entry && next != m_ui->cmdQuit && !IsEntry(next)) next = next->nextInFocusChain();
  return next;
}

void frmSetup::BuildMenu() {
  for (const auto& [action, entry] : BuildOrderMenu(m_ui->mnuForms)) {
    On(action, &QAction::triggered,
       [this, chosen = entry] { RunOrderEntry(chosen, m_context.ProgramFolder, m_context.Disk, m_context.Boxes); });
  }
}

void frmSetup::ConnectTabs() {
  for (PictureButton* next : {m_ui->Image1_0, m_ui->Image1_1}) next->SetPicture(DrawnPicture(Picture::Next, palette()));
  const auto step = [](QTabWidget* tabs) { tabs->setCurrentIndex((tabs->currentIndex() + 1) % tabs->count()); };
  OnClick(
      m_ui->Image1_0, [this, step] { step(m_ui->tabInfo); }, WhenLeaveRefused::Always);
  OnClick(
      m_ui->Image1_1, [this, step] { step(m_ui->SSTab2); }, WhenLeaveRefused::Always);
  // A step among sub-tabs that are out of sight would go unseen.
  const auto showStep = [this] {
    const bool hasSubTabs = m_ui->tabInfo->currentWidget()->isAncestorOf(m_ui->SSTab2);
    m_ui->lblNextSubTab->setVisible(hasSubTabs);
    m_ui->Image1_1->setVisible(hasSubTabs);
  };
  On(m_ui->tabInfo, &QTabWidget::currentChanged, showStep);
  showStep();
  OnClick(
      m_ui->cmdQuit, [this] { SaveAndReturn(); }, WhenLeaveRefused::Always);

  PhoneSettings& phone = m_context.Live.Phone;
  WriteBack(m_ui->ckCallerID, phone.ckCallerID);
  WriteBack(m_ui->ckPhone, phone.ckPhone);
  On(m_ui->ckCallerID, &QCheckBox::toggled, [this](bool ticked) { m_ui->lblCallid->setVisible(ticked); });
  On(m_ui->txtModemPort, &QLineEdit::textChanged, [&phone](const QString& text) { phone.txtModemPort = text; });
}

/// Copies the live settings to their controls. They differ only where the invoice, on its way out, re-read the settings
/// file, and when the screen is built.
void frmSetup::ShowLiveSettings() {
  const PhoneSettings phone = m_context.Live.Phone;
  m_ui->ckCallerID->setChecked(phone.ckCallerID);
  m_ui->lblCallid->setVisible(phone.ckCallerID);
  m_ui->txtModemPort->setText(phone.txtModemPort);
  m_ui->ckPhone->setChecked(phone.ckPhone);
  ShowTaxes();
  ShowPrinting();
  ShowLogo();
}

void frmSetup::Activate() {
  ShowLiveSettings();
  // The tax number's box isn't refreshed: it keeps what it holds, which is meant.
  for (const int index : {0, 1, 3, 4, 2, 6, 7, 5}) CopyBusiness(index);
  SetAddressStyle(m_context.Live.Business);
  ShowAddressStyle();
  m_ui->SSTab2->setCurrentIndex(0);
  SetFocusTo(m_business[0]);
}

void frmSetup::ShowFirstTab() {
  m_ui->tabInfo->setCurrentIndex(0);
}

void frmSetup::SaveAndReturn() {
  if (m_business[0]->text().isEmpty() || m_business[6]->text().isEmpty()) {
    m_context.Boxes.ShowMessage(u"Name and Telephone are Required"_s, u"Missing Name or Telphone"_s);
    ShowFirstTab();  // The name's box can't have the focus on another tab.
    SetFocusTo(m_business[0]);
    return;
  }
  std::array<QString, 9> boxes;
  for (int i = 0; i < 9; ++i) boxes[static_cast<std::size_t>(i)] = m_business[i]->text();
  LiveSettings& live = m_context.Live;
  SaveBusinessData(m_context.Disk, live.Business, boxes);
  SaveSettings(m_context.Disk, live);
  ShowLiveSettings();
  SavePrintColors(m_context.Disk, live.Print);
  SaveLogoSettings(m_context.Disk, live.Print);
  SavePhoneSettings(m_context.Disk, live.Phone);
  SaveTaxSettings(m_context.Disk, live.Tax);
  m_screens.Hide(ScreenName::frmSetup);
  m_screens.Show(RequiredFilesPresent(m_context.Disk) ? ScreenName::frmStartup : ScreenName::frmSplash);
}

void frmSetup::RefuseQuotes(QWidget* box) {
  FilterKeys(box, QuoteFilters(m_context.Boxes));
}

void frmSetup::WriteBack(QCheckBox* box, bool& value) {
  On(box, &QCheckBox::toggled, [&value](bool ticked) { value = ticked; });
}

void frmSetup::WriteBack(ListCombo* box, QString& value) {
  const auto write = [box, &value] { value = box->Text(); };
  box->Click = write;
  box->Change = write;
}
