#include "runtime/Dialogs.h"
#include "setup/frmSetup.h"
#include "setup/frmSetupPictures.h"
#include "shell/CommonDialog.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/Screens.h"
#include "ui_frmSetup.h"

using namespace Qt::StringLiterals;

namespace {

constexpr float TwipsPerInch = 1440;
/// The frame that a picture on the screen is kept inside, whatever its size on paper.
constexpr QSize Largest(240, 200);

/// The picture at `size` device-independent pixels, sharp on every screen.
QPixmap Scaled(const QPixmap& picture, QSize size, qreal ratio) {
  QPixmap scaled = picture.scaled((QSizeF(size) * ratio).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  scaled.setDevicePixelRatio(ratio);
  return scaled;
}

}  // namespace

void frmSetup::ConnectLogo() {
  // The pictures stand on white, as they will on paper.
  for (QLabel* frame : {m_ui->Image2, m_ui->Image3}) {
    QPalette paper = frame->palette();
    paper.setColor(QPalette::Window, Qt::white);
    frame->setPalette(paper);
    frame->setAutoFillBackground(true);
  }
  QPushButton* const clicks[] = {m_ui->cmdLogo_0, m_ui->cmdLogo_1, m_ui->cmdLogo_2,
                                 m_ui->cmdLogo_3, m_ui->cmdLogo_4, m_ui->cmdLogo_5};
  for (int i = 0; i < 6; ++i) OnClick(clicks[i], [this, i] { LogoClick(i); });
}

void frmSetup::ShowLogo() {
  const PrintAppearance& print = m_context.Live.Print;
  QPixmap picture;
  if (print.Logo.isEmpty() || !picture.loadFromData(print.Logo)) {
    m_ui->Image2->clear();
    m_ui->Image3->clear();
    m_ui->lblLogoSize->clear();
    return;
  }
  const qreal ratio = devicePixelRatioF();
  const QSize found = picture.size().boundedTo(picture.size().scaled(Largest, Qt::KeepAspectRatio));
  m_ui->Image2->setPixmap(Scaled(picture, found, ratio));
  const QSize onPaper(qRound(print.LogoWidth * static_cast<float>(logicalDpiX()) / TwipsPerInch),
                      qRound(print.LogoHeight * static_cast<float>(logicalDpiY()) / TwipsPerInch));
  m_ui->Image3->setPixmap(Scaled(picture, onPaper.boundedTo(Largest).expandedTo({1, 1}), ratio));
  // The picture above stops growing at its frame.
  m_ui->lblLogoSize->setText(u"On paper: %1 in wide, %2 in high"_s.arg(print.LogoWidth / TwipsPerInch, 0, 'f', 2)
                                 .arg(print.LogoHeight / TwipsPerInch, 0, 'f', 2));
}

void frmSetup::LogoClick(int index) {
  PrintAppearance& print = m_context.Live.Print;
  switch (index) {
    case 0:
      FindLogo();
      break;
    case 1:
      StoreLogo();
      break;
    case 2:
      DeleteLogo();
      break;
    case 3:
      print.LogoWidth = NextLogoSize(print.LogoWidth);
      break;
    case 4:
      print.LogoHeight = NextLogoSize(print.LogoHeight);
      break;
    default:
      m_screens.PrintSample();
  }
  ShowLogo();
}

void frmSetup::FindLogo() {
  try {
    const QString path = m_context.Boxes.ChooseFile(
        u"Find"_s, u"Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; *.EMF)|All|*.*"_s);
    LoadPicture(m_context.Disk, m_context.Live.Print, path, IsPicture);
    // Only now: what is no picture must not be stored, or the next start would end on it.
    m_context.Dialog.FileName = path;
  } catch (const RuntimeError&) {
    // Cancelled, or no picture: nothing more happens.
    return;
  }
  m_ui->cmdLogo_1->setEnabled(true);
}

void frmSetup::StoreLogo() {
  try {
    StoreFoundLogo();
  } catch (const RuntimeError& error) {
    // No picture (any more): nothing more happens.
    if (error.Number() != ErrorNumber::InvalidPicture) throw;
  }
}

void frmSetup::StoreFoundLogo() {
  const QString path = m_context.Dialog.FileName;
  if (path.isEmpty()) return;
  if (!CanStoreLogoPath(path)) {
    m_context.Boxes.ShowMessage(
        u"The name of this picture's file or of its folder holds a character that can't be stored.\n"
        "Rename it and find it again."_s);
    return;
  }
  CommonDiskRoutines& disk = m_context.Disk;
  PrintAppearance& print = m_context.Live.Print;
  // The file may have changed since it was found.
  if (disk.Store().IsFile(path)) LoadPicture(disk, print, path, IsPicture);
  SaveLogoPath(disk, print, path);
  SaveLogoSettings(disk, print);
  m_context.Boxes.ShowMessage(u"Your Logo has been Stored"_s);
  LoadLogo(disk, print, IsPicture);
  LoadLogoSettings(disk, print);
  m_ui->cmdLogo_1->setEnabled(false);
}

void frmSetup::DeleteLogo() {
  if (!m_context.Boxes.AskYesNo(u"This will Delete your Company Logo"_s, u"Delete Logo"_s)) return;
  ClearLogo(m_context.Disk, m_context.Live.Print);
}
