#include "catalogue/frmServices.h"

#include <QKeyEvent>

#include "desktop/Pictures.h"
#include "shell/Screens.h"
#include "ui_frmServices.h"

using namespace Qt::StringLiterals;

frmServices::frmServices(ScreenHost& host, Screens& screens, Catalogue& catalogue, Dialogs& dialogs)
    : Screen(u"frmServices"_s, host),
      m_ui(std::make_unique<Ui::frmServices>()),
      m_screens(screens),
      m_catalogue(catalogue),
      m_dialogs(dialogs) {
  m_ui->setupUi(this);
  m_cmdServices = std::make_unique<ControlArray<QPushButton, 26>>(this, u"cmdServices"_s);
  m_txtDescription = std::make_unique<ControlArray<QLineEdit, 3>>(this, u"txtDescription"_s);
  m_txtCharge = std::make_unique<ControlArray<QLineEdit, 5>>(this, u"txtCharge"_s);
  m_txtLabor = std::make_unique<ControlArray<QLineEdit, 3>>(this, u"txtLabor"_s);
  m_txtLaborRate = std::make_unique<ControlArray<QLineEdit, 3>>(this, u"txtLaborRate"_s);
  for (const CatalogueList list : {CatalogueList::Services, CatalogueList::Items, CatalogueList::Custom}) {
    View(list)->SetMatrix(&m_catalogue.Grid(list));
    View(list)->Click = [this, list] { RowClick(list); };
    // Enter and the space bar click the row that the arrow keys reached.
    View(list)->KeyPress = [this, list](int key) {
      if (key == 13 || key == ' ') RowClick(list);
    };
  }
  ShowCatalogue();
  ListenToCatalogue();
  ConnectTabs();
  ConnectServiceCommands();
  ConnectItemCommands();
  ConnectLaborCommands();
  ConnectCustomCommands();
  ConnectBoxes();
  m_ui->Image1->SetPicture(DrawnPicture(Picture::Next, palette()));
}

frmServices::~frmServices() {
  m_catalogue.CommandChanged = {};
  m_catalogue.CategoriesCleared = {};
  m_catalogue.CategoryAdded = {};
  m_catalogue.LaborLoaded = {};
}

/// What was loaded before the screen was built.
void frmServices::ShowCatalogue() {
  m_ui->lstTime->addItems(m_catalogue.lstTime);
  for (const QString& category : m_catalogue.cboCategory()) m_ui->cboCategory->AddEntry(category);
  for (int i = 0; i < m_cmdServices->Size(); ++i) {
    if (m_cmdServices->Has(i)) (*m_cmdServices)[i]->setEnabled(m_catalogue.CommandEnabled(i));
  }
}

void frmServices::ListenToCatalogue() {
  m_catalogue.CommandChanged = [this](int index) {
    (*m_cmdServices)[index]->setEnabled(m_catalogue.CommandEnabled(index));
  };
  m_catalogue.CategoriesCleared = [this] { m_ui->cboCategory->ClearList(); };
  m_catalogue.CategoryAdded = [this](const QString& category) { m_ui->cboCategory->AddEntry(category); };
  m_catalogue.LaborLoaded = [this] {
    const LaborRates rates = m_catalogue.Labor;
    for (int i = 0; i < 3; ++i) {
      (*m_txtLabor)[i]->setText(rates.txtLabor.at(std::size_t(i)));
      (*m_txtLaborRate)[i]->setText(rates.txtLaborRate.at(std::size_t(i)));
    }
  };
  m_catalogue.LaborLoaded();
}

void frmServices::ConnectTabs() {
  On(m_ui->tabServices, &QTabWidget::currentChanged, [this](int tab) { FocusOnTab(tab); });
  OnClick(
      m_ui->Image1,
      [this] {
        QTabWidget* tabs = m_ui->tabServices;
        tabs->setCurrentIndex((tabs->currentIndex() + 1) % tabs->count());
      },
      WhenLeaveRefused::Always);
}

void frmServices::FocusOnTab(int tab) {
  switch (tab) {
    case 0:
      return SetFocusTo((*m_cmdServices)[1]);
    case 1:
      return SetFocusTo((*m_cmdServices)[8]);
    case 2:
      return SetFocusTo((*m_txtLabor)[0]);
    case 3:
      return SetFocusTo((*m_cmdServices)[18]);
    default:
      return;
  }
}

void frmServices::changeEvent(QEvent* event) {
  Screen::changeEvent(event);
  // The base class changes the window before the form is set up.
  if (event->type() == QEvent::PaletteChange && m_ui && m_ui->Image1 != nullptr) {
    m_ui->Image1->SetPicture(DrawnPicture(Picture::Next, palette()));
  }
}

void frmServices::Activate() {
  for (const int list : {0, 1, 2}) DisableEditing(list);
  FocusOnTab(m_ui->tabServices->currentIndex());
}

void frmServices::BeforeUserClose() {
  m_catalogue.SaveCatalogue();
  m_catalogue.SaveLabor();
}

/// Escape is the way back, except while a record is being entered: that would be lost from sight.
void frmServices::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return Screen::keyPressEvent(event);
  for (const int save : {4, 13, 22}) {
    if ((*m_cmdServices)[save]->isEnabled()) return;
  }
  PressButton((*m_cmdServices)[0]);
}

GridView* frmServices::View(CatalogueList list) const {
  switch (list) {
    case CatalogueList::Services:
      return m_ui->fgServices;
    case CatalogueList::Items:
      return m_ui->fgItems;
    case CatalogueList::Custom:
      break;
  }
  return m_ui->fgCustom;
}

void frmServices::RowClick(CatalogueList list) {
  if (m_catalogue.Grid(list).Row() < 1) return;
  switch (list) {
    case CatalogueList::Services:
      // Its Modify button is made live by a load alone, which is meant.
      return Enable(2, true);
    case CatalogueList::Items:
      Enable(10, true);
      return Enable(9, true);
    case CatalogueList::Custom:
      Enable(20, true);
      return Enable(19, true);
  }
}

void frmServices::Enable(int command, bool enabled) {
  m_catalogue.EnableCommand(command, enabled);
}

void frmServices::SetEditing(int list, bool enabled) {
  switch (list) {
    case 0:
      Enable(4, enabled);
      (*m_txtCharge)[0]->setEnabled(enabled);
      return (*m_txtDescription)[0]->setEnabled(enabled);
    case 1:
      Enable(13, enabled);
      (*m_txtCharge)[1]->setEnabled(enabled);
      (*m_txtCharge)[2]->setEnabled(enabled);
      return (*m_txtDescription)[1]->setEnabled(enabled);
    default:
      Enable(22, enabled);
      (*m_txtCharge)[3]->setEnabled(enabled);
      (*m_txtCharge)[4]->setEnabled(enabled);
      return (*m_txtDescription)[2]->setEnabled(enabled);
  }
}

/// `entry` is the first charge box of the list: 0, 1 or 3. Prices and category of an item stay, which is meant.
void frmServices::ClearEntry(int entry) {
  (*m_txtCharge)[entry]->clear();
  switch (entry) {
    case 0:
      m_ui->lstTime->setCurrentRow(0);
      return (*m_txtDescription)[0]->clear();
    case 1:
      for (QLineEdit* box : {(*m_txtDescription)[1], m_ui->txtOnHand, m_ui->txtDiscountQty, m_ui->txtReorderAmount,
                             m_ui->txtReorderAt}) {
        box->clear();
      }
      return;
    default:
      (*m_txtDescription)[2]->clear();
      (*m_txtCharge)[4]->clear();
      return m_ui->txtCustomDiscItems->clear();
  }
}
