#include "printing/frmBlanks.h"

#include "shell/Screens.h"
#include "ui_frmBlanks.h"

using namespace Qt::StringLiterals;

frmBlanks::frmBlanks(ScreenHost& host, Screens& screens, const BlanksDesk& desk)
    : Screen(u"frmBlanks"_s, host), m_ui(std::make_unique<Ui::frmBlanks>()) {
  BuildForm(*m_ui);
  OnClick(m_ui->Command1_0, [this, desk] { PrintBlanks(desk, m_ui->txtInvoices->text()); });
  OnClick(m_ui->Command1_1, [&screens] {
    screens.Hide(ScreenName::frmBlanks);
    screens.Show(ScreenName::frmStartup);
  });
  SetEnterButton(m_ui->Command1_0);
  SetEscapeButton(m_ui->Command1_1);
}

frmBlanks::~frmBlanks() = default;

void frmBlanks::Activate() {
  SetFocusTo(m_ui->txtInvoices);
}
