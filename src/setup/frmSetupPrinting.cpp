#include <QButtonGroup>

#include "desktop/ListCombo.h"
#include "desktop/PackedColor.h"
#include "runtime/Dialogs.h"
#include "setup/frmSetup.h"
#include "shell/CommonDialog.h"
#include "ui_frmSetup.h"

using namespace Qt::StringLiterals;

namespace {

/// The box's background is the value; its description says it in words.
void ShowColor(QLineEdit* box, quint32 packed) {
  QPalette palette = box->palette();
  palette.setColor(QPalette::Base, ColorFromPacked(packed));
  box->setPalette(palette);
  box->setToolTip(ColorFromPacked(packed).name());
  box->setAccessibleDescription(box->toolTip());
}

}  // namespace

void frmSetup::ConnectPrinting() {
  PrintAppearance& print = m_context.Live.Print;
  for (int copies = 1; copies <= 5; ++copies) m_ui->cboCopies->AddEntry(QString::number(copies));
  // Nothing reads the number of copies, and a change of it isn't saved; that is meant.
  m_ui->cboCopies->ShowText(QString::number(print.PrintCopies));
  QPushButton* const changes[] = {m_ui->cmdChange_0, m_ui->cmdChange_1, m_ui->cmdChange_2};
  for (int i = 0; i < 3; ++i) OnClick(changes[i], [this, i] { ChangeClick(i); });
  WriteBack(m_ui->ckColor, print.ckColor);
  auto* paper = new QButtonGroup(this);
  paper->setObjectName(u"paperOptions"_s);
  paper->addButton(m_ui->optPlain);
  paper->addButton(m_ui->optReturn);
  On(paper, &QButtonGroup::buttonToggled, [this, &print] {
    print.optPlain = m_ui->optPlain->isChecked();
    print.optReturn = m_ui->optReturn->isChecked();
  });
}

void frmSetup::ShowPrinting() {
  const PrintAppearance print = m_context.Live.Print;
  ShowSwatches();
  m_ui->ckColor->setChecked(print.ckColor);
  // A file may turn both options off.
  m_ui->optPlain->group()->setExclusive(false);
  m_ui->optPlain->setChecked(print.optPlain);
  m_ui->optReturn->setChecked(print.optReturn);
  m_ui->optPlain->group()->setExclusive(true);
}

void frmSetup::ShowSwatches() {
  const PrintAppearance& print = m_context.Live.Print;
  ShowColor(m_ui->txtBorders, print.txtBorders);
  ShowColor(m_ui->txtData, print.txtData);
  m_ui->lblFont->setText(print.lblFont);
}

void frmSetup::ChangeClick(int index) {
  PrintAppearance& print = m_context.Live.Print;
  m_context.Dialog.FileName.clear();
  try {
    if (index == 0) print.txtBorders = m_context.Boxes.ChooseColor(print.txtBorders);
    if (index == 1) print.txtData = m_context.Boxes.ChooseColor(print.txtData);
    if (index == 2) print.lblFont = m_context.Boxes.ChooseFont(print.lblFont);
  } catch (const RuntimeError&) {
    // The dialog was cancelled or failed: the value stays.
    return;
  }
  ShowSwatches();
}
