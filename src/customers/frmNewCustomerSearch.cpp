/// The search frame and the frame of the customers found.
#include <QMenu>

#include "customers/frmNewCustomer.h"
#include "ui_frmNewCustomer.h"

using namespace Qt::StringLiterals;

void frmNewCustomer::ConnectSearch() {
  for (int i = 0; i < m_optSearch.Size(); ++i) {
    On(m_optSearch[i], &QRadioButton::toggled, [this](bool selected) {
      if (selected) {
        m_search.Clear();
      }
    });
  }
  OnClick(m_command1[0], [this] { m_search.Open(); });
  OnClick(m_command1[2], [this] { ShowList(); });
  OnClick(m_ui->cmdStartSearch, [this] { StartSearch(); });
  OnClick(m_ui->cmdClearSearch, [this] { m_search.Clear(); });
  OnClick(m_ui->cmdHideSearch, [this] { m_search.Hide(); });
  OnClick(m_ui->cmdRetry, [this] { m_search.HideFound(); });
  On(m_ui->mnuPrint, &QAction::triggered, [this] { ShowList(); });
  On(m_ui->mnuSelect, &QAction::triggered, [this] { m_search.LoadSelected(); });
}

void frmNewCustomer::ConnectFoundGrid() {
  // A form holds no menu but the bar's: the popup is made here.
  auto* popup = new QMenu(this);
  popup->setObjectName(u"mnupopup"_s);
  popup->addAction(m_ui->mnuSelect);
  GridView* grid = m_ui->fgCustomersFound;
  grid->SetMatrix(&m_search.fgCustomersFound);
  grid->Click = [this, popup] {
    popup->popup(QCursor::pos());
    m_search.LeaveList();
  };
  grid->RightPress = [this, popup](const QPoint& place) {
    popup->popup(place);
    m_search.LeaveList();
  };
  grid->KeyPress = [this](int key) {
    constexpr int enter = 13;
    if (key == enter) {
      m_search.LeaveList();
      m_search.LoadSelected();
    }
  };
}

/// The frame that held the focus goes: the focus goes on to what was found.
void frmNewCustomer::StartSearch() {
  const qint32 hits = m_search.Start();
  if (hits > 1) {
    SetFocusTo(m_ui->fgCustomersFound);
  }
}

/// The complete list, or away with it; while it shows, the keys are for it.
void frmNewCustomer::ShowList() {
  m_search.ShowList();
  if (IsFoundFrameShown()) {
    SetFocusTo(m_ui->fgCustomersFound);
  }
}

QString frmNewCustomer::SearchText() const {
  return m_ui->txtSearchfor->text();
}

int frmNewCustomer::SearchCriterion() const {
  int criterion = 0;
  while (criterion + 1 < m_optSearch.Size() && !m_optSearch[criterion]->isChecked()) {
    ++criterion;
  }
  return criterion;
}

void frmNewCustomer::ClearSearchText() {
  m_ui->txtSearchfor->clear();
}

void frmNewCustomer::FocusOnSearchText() {
  SetFocusTo(m_ui->txtSearchfor);
}

void frmNewCustomer::ShowCustomerFrame() {
  m_ui->fraCustomer->show();
}

void frmNewCustomer::ShowSearchFrame(bool visible) {
  ShowFrame(m_ui->fraSearch, visible);
}

bool frmNewCustomer::IsFoundFrameShown() const {
  return !m_ui->fraCustomersFound->isHidden();
}

void frmNewCustomer::ShowFoundFrame(bool visible) {
  ShowFrame(m_ui->fraCustomersFound, visible);
}

void frmNewCustomer::SetFoundCaption(const QString& caption) {
  m_ui->fraCustomersFound->setTitle(caption);
}

void frmNewCustomer::SetListEntryCaption(const QString& caption) {
  m_ui->mnuPrint->setText(caption);
}
