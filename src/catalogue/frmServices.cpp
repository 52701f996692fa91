#include "catalogue/frmServices.h"

#include <QKeyEvent>

#include "desktop/Pictures.h"
#include "shell/Screens.h"
#include "ui_frmServices.h"

using namespace Qt::StringLiterals;

frmServices::frmServices(ScreenHost& host, Screens& screens, Catalogue& catalogue, Dialogs& dialogs)
    : Screen(u"frmServices"_s, host),
      m_ui(std::make_unique<Ui::frmServices>()),
      m_cmdServices(BuildForm(*m_ui), u"cmdServices"_s),
      m_txtDescription(this, u"txtDescription"_s),
      m_txtCharge(this, u"txtCharge"_s),
      m_txtLabor(this, u"txtLabor"_s),
      m_txtLaborRate(this, u"txtLaborRate"_s),
      m_screens(screens),
      m_catalogue(catalogue),
      m_dialogs(dialogs),
      m_editor(catalogue, dialogs, *this) {
  for (const CatalogueList list : AllCatalogueLists) {
    View(list)->SetMatrix(&m_catalogue.Grid(list));
    View(list)->Click = [this, list] { m_editor.ClickRow(list); };
    View(list)->ClickByKeys();
  }
  ShowCatalogue();
  ListenToCatalogue();
  ConnectTabs();
  ConnectCommands();
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
  for (int i = 0; i < m_cmdServices.Size(); ++i) {
    if (m_cmdServices.Has(i)) m_cmdServices[i]->setEnabled(m_catalogue.CommandEnabled(i));
  }
}

void frmServices::ListenToCatalogue() {
  m_catalogue.CommandChanged = [this](int index) {
    m_cmdServices[index]->setEnabled(m_catalogue.CommandEnabled(index));
  };
  m_catalogue.CategoriesCleared = [this] { m_ui->cboCategory->ClearList(); };
  m_catalogue.CategoryAdded = [this](const QString& category) { m_ui->cboCategory->AddEntry(category); };
  m_catalogue.LaborLoaded = [this] {
    const LaborRates rates = m_catalogue.Labor;
    for (int i = 0; i < 3; ++i) {
      m_txtLabor[i]->setText(rates.txtLabor.at(std::size_t(i)));
      m_txtLaborRate[i]->setText(rates.txtLaborRate.at(std::size_t(i)));
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
      return FocusOnCommand(CatalogueCommand::AddService);
    case 1:
      return FocusOnCommand(CatalogueCommand::AddItem);
    case 2:
      // Selected, as where the Tab key comes to a box: what is typed takes its place.
      FocusOn(CatalogueBox::txtLabor0);
      return Line(CatalogueBox::txtLabor0)->selectAll();
    case 3:
      return FocusOnCommand(CatalogueCommand::AddCustom);
    default:
      return;
  }
}

void frmServices::changeEvent(QEvent* event) {
  Screen::changeEvent(event);
  // The form's set-up changes the window before the picture is there.
  if (event->type() == QEvent::PaletteChange && m_ui->Image1 != nullptr) {
    m_ui->Image1->SetPicture(DrawnPicture(Picture::Next, palette()));
  }
}

void frmServices::Activate() {
  m_editor.Open();
  FocusOnTab(m_ui->tabServices->currentIndex());
}

void frmServices::BeforeUserClose() {
  m_catalogue.SaveCatalogue();
  m_catalogue.SaveLabor();
}

/// Escape is the way back, except while a record is being entered: that would be lost from sight.
void frmServices::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return Screen::keyPressEvent(event);
  if (!m_editor.IsEntering()) PressButton(m_cmdServices[CatalogueCommand::Menu]);
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
