#include "shell/frmStartup.h"

#include <QButtonGroup>
#include <QMouseEvent>

#include "desktop/ProgramPicture.h"
#include "runtime/Dialogs.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/frmOrderMenu.h"
#include "shell/OpenWebPage.h"
#include "shell/Screens.h"
#include "ui_frmStartup.h"

using namespace Qt::StringLiterals;

frmStartup::frmStartup(ScreenHost& host, Screens& screens, MainMenuContext context)
    : Screen(u"frmStartup"_s, host),
      m_ui(std::make_unique<Ui::frmStartup>()),
      m_options(BuildForm(*m_ui), u"optMainMenuSub"_s),
      m_screens(screens),
      m_context(std::move(context)) {
  m_ui->picture->setPixmap(ProgramPicture());
  // The options lie in several frames and are one choice all the same.
  auto* group = new QButtonGroup(this);
  for (int i = 0; i < 7; ++i) {
    group->addButton(m_options[i], i);
    m_options[i]->installEventFilter(this);
  }
  OnClick(m_ui->cmdGoto, [this] { RunSelected(); });
  SetEnterButton(m_ui->cmdGoto);
  On(m_ui->mnuCreate, &QAction::triggered, [this] {
    m_screens.ShowSetupAtFirstTab();
    m_screens.Hide(ScreenName::frmStartup);
  });
  On(m_ui->mnuExit, &QAction::triggered, [this] { m_screens.QuitProgram(); });
  for (const auto& [action, entry] : BuildOrderMenu(m_ui->mnuOrder)) {
    On(action, &QAction::triggered,
       [this, order = entry] { RunOrderEntry(order, m_context.ProgramFolder, m_context.Disk, m_context.Boxes); });
  }
  On(m_ui->mnuHelp, &QAction::triggered,
     [this] { OpenWebPage(m_context.ProgramFolder + u"/manual/index.html"_s, m_context.Disk, m_context.Boxes); });
}

frmStartup::~frmStartup() = default;

void frmStartup::Activate() {
  const MainMenuState state = UpdateMainMenu(m_context);
  for (int i = 0; i < 7; ++i) {
    const bool visible = state.Visible[static_cast<std::size_t>(i)];
    m_options[i]->setVisible(visible);
    if (!visible && m_options[i]->isChecked()) ClearSelection(i);
  }
  // The number beside the option says of what it is also where there is none to add to.
  m_ui->lblNoPartials->setVisible(!state.Visible[1]);
  // A heading without a routine under it would only take room.
  m_ui->group_0->setVisible(state.Visible[0] || state.Visible[1] || state.Visible[2]);
  m_ui->group_3->setVisible(state.Visible[4] || state.Visible[5] || state.Visible[6]);
  m_ui->fraInstructions->setVisible(state.Instructions);
  if (!state.Incomplete.isNull()) m_ui->lblIncomplete->setText(state.Incomplete);
  m_options[state.Selected]->setChecked(true);
  SetFocusTo(m_options[state.Selected]);
}

void frmStartup::ClearSelection(int index) {
  QButtonGroup* group = m_options[index]->group();
  group->setExclusive(false);
  m_options[index]->setChecked(false);
  group->setExclusive(true);
}

bool frmStartup::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    for (int i = 0; i < 7; ++i) {
      if (watched != m_options[i]) continue;
      Run([&] { RunMainMenuRoutine(i); });
      return true;
    }
  }
  return Screen::eventFilter(watched, event);
}

void frmStartup::RunSelected() {
  for (int i = 0; i < 7; ++i) {
    if (!m_options[i]->isChecked()) continue;
    RunMainMenuRoutine(i);
    return;
  }
}

ScreenName frmStartup::RoutineOf(int index) const {
  switch (index) {
    case 0:
      return m_context.Disk.AnyFileMatches(u"\\KarvexProposals"_s, u"*.txt"_s) ? ScreenName::frmCustomerSelection
                                                                               : ScreenName::frmNewCustomer;
    case 1:
      return ScreenName::frmIncomplete;
    case 2:
      return ScreenName::frmReprint;
    case 3:
      return ScreenName::frmServices;
    case 5:
      return ScreenName::frmSalesReport;
    default:
      return ScreenName::frmBlanks;
  }
}

void frmStartup::RunMainMenuRoutine(int index) {
  // The invoice report has no routine: the menu hides and no other screen is shown. That is meant.
  if (index != 4) {
    const ScreenName routine = RoutineOf(index);
    m_screens.Show(routine);
    // That screen leads back here at once where it has nothing to show.
    if (routine == ScreenName::frmReprint && !m_context.IsShown(routine)) return;
  }
  m_screens.Hide(ScreenName::frmStartup);
}
