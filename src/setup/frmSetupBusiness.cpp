#include "desktop/PictureButton.h"
#include "desktop/Pictures.h"
#include "runtime/Dialogs.h"
#include "setup/frmSetup.h"
#include "ui_frmSetup.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int FullWidth = 640;
constexpr int CityWidth = 240;
constexpr int StateWidth = 64;
constexpr int UsaStateLimit = 2;
constexpr int FullLimit = 55;
}  // namespace

void frmSetup::ConnectBusiness() {
  for (int i = 0; i < 9; ++i) RefuseQuotes(m_business[i]);
  SetTypingLimit(m_business[4], FullLimit);
  m_ui->Image4->SetPicture(DrawnPicture(Picture::Clear, palette()));
  m_ui->Image5->SetPicture(DrawnPicture(Picture::Reload, palette()));
  OnClick(m_ui->cmdAddress, [this] {
    ToggleAddressStyle(m_context.Live.Business);
    ShowAddressStyle();
  });
  OnClick(m_ui->Image4, [this] { ClearBusinessBoxes(); });
  OnClick(m_ui->Image5, [this] {
    if (LoadBusinessData(m_context.Disk, m_context.Live.Business)) BuildBusiness();
  });
}

void frmSetup::CopyBusiness(int index) {
  m_business[index]->setText(m_context.Live.Business.*BusinessStrings[static_cast<std::size_t>(index)]);
}

void frmSetup::BuildBusiness() {
  for (const int index : {0, 1, 3, 4, 2, 6, 7, 5, 8}) CopyBusiness(index);
}

/// Dresses the address form for the style that `cmdAddress` names.
void frmSetup::ShowAddressStyle() {
  const bool usa = m_context.Live.Business.IsUsaStyle();
  QLineEdit* city = m_business[3];
  QLineEdit* state = m_business[4];
  QLineEdit* postal = m_business[5];
  m_ui->lblPostal->setVisible(usa);
  m_ui->cmdAddress->setText(m_context.Live.Business.AddressStyleCaption);
  m_address[3]->setText(usa ? u"City"_s : u"Address 3"_s);
  m_address[4]->setText(usa ? u"State"_s : u"Address 4"_s);
  for (const int index : {3, 4}) m_business[index]->setAccessibleName(m_address[index]->text());
  m_address[5]->setVisible(usa);
  postal->setVisible(usa);
  if (usa) {
    CopyBusiness(5);
    SetFocusTo(postal);
  } else {
    postal->clear();
  }
  state->setMaximumWidth(usa ? StateWidth : FullWidth);
  SetTypingLimit(state, usa ? UsaStateLimit : FullLimit);
  city->setMaximumWidth(usa ? CityWidth : FullWidth);
}

void frmSetup::ClearBusinessBoxes() {
  if (!m_context.Boxes.AskYesNo(u"Do you want to reset (clear)all Business Data?"_s, u"Reset Business Data"_s)) return;
  for (int i = 0; i < 9; ++i) m_business[i]->clear();
  SetFocusTo(m_business[0]);
}
