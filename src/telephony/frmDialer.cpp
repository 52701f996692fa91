#include "telephony/frmDialer.h"

#include <QKeyEvent>

#include "desktop/LabelText.h"
#include "shell/Screens.h"
#include "shell/VerifyDataRoutines.h"
#include "telephony/PhoneSettings.h"
#include "ui_frmDialer.h"

using namespace Qt::StringLiterals;

frmDialer::frmDialer(ScreenHost& host, Screens& screens, const DialerDesk& desk)
    : Screen(u"frmDialer"_s, host),
      m_screens(screens),
      m_boxes(desk.Boxes),
      m_ui(std::make_unique<Ui::frmDialer>()),
      m_cmdDialer(BuildForm(*m_ui), u"cmdDialer"_s),
      m_cmdSpeedDialer(this, u"cmdSpeedDialer"_s),
      m_dialer(desk, *this) {
  setWindowModality(Qt::ApplicationModal);
  m_ui->fraHelp->hide();
  m_ui->Text1->setText(desk.Phone.Text1);
  m_ui->Label2->setText(desk.Phone.Label2);
  ConnectCall();
  ConnectSpeedDial();
  ShowSpeedDial(false);
}

frmDialer::~frmDialer() = default;

void frmDialer::ConnectCall() {
  OnClick(m_ui->cmdNewDial, [this] {
    // The button is disabled while it dials: the focus would go to a speed-dial slot, which a second Enter would take.
    SetFocusTo(m_ui->cmdHangup);
    m_dialer.NewDial();
  });
  OnClick(m_ui->cmdCancel, [this] { m_dialer.Cancel(); });
  OnClick(m_ui->cmdHangup, [this] { m_dialer.Hangup(); });
  OnClick(m_ui->cmdHelp, [this] { ToggleHelp(); });
  On(m_ui->ckDial1, &QCheckBox::toggled, [this](bool ticked) { m_dialer.TogglePrefix(ticked); });
}

void frmDialer::ConnectSpeedDial() {
  for (int slot = 0; slot < m_cmdDialer.Size(); ++slot) {
    OnClick(m_cmdDialer[slot], [this, slot] { m_dialer.ChooseSlot(slot); });
  }
  for (int i = 0; i < m_cmdSpeedDialer.Size(); ++i) {
    OnClick(m_cmdSpeedDialer[i], [this, i] { m_dialer.RunSpeedDialer(i); });
  }
  for (QLineEdit* box : {m_ui->txtDialer_0, m_ui->txtDialer_1}) FilterKeys(box, QuoteFilters(m_boxes));
}

void frmDialer::Activate() {
  m_dialer.Activate();
  SetFocusTo(m_ui->cmdNewDial);
}

void frmDialer::setVisible(bool visible) {
  if (!visible) m_dialer.Leave();
  Screen::setVisible(visible);
}

/// Enter in the name of a speed-dial entry goes on to its number.
void frmDialer::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && focusWidget() == m_ui->txtDialer_0) {
    Run([this] { SetFocusTo(m_ui->txtDialer_1); });
  } else {
    Screen::keyPressEvent(event);
  }
}

void frmDialer::ToggleHelp() {
  m_ui->fraHelp->setVisible(m_ui->fraHelp->isHidden());
  m_ui->cmdHelp->setText(m_ui->fraHelp->isHidden() ? u"Show Help"_s : u"Hide Help"_s);
}

QLabel* frmDialer::Label(DialerText place) const {
  switch (place) {
    case DialerText::lblName:
      return m_ui->lblName;
    case DialerText::lblNumber:
      return m_ui->lblNumber;
    default:
      return m_ui->lblStatus;
  }
}

QWidget* frmDialer::Control(DialerControl control) const {
  switch (control) {
    case DialerControl::cmdNewDial:
      return m_ui->cmdNewDial;
    case DialerControl::cmdCancel:
      return m_ui->cmdCancel;
    case DialerControl::cmdSpeedDialer2:
      return m_ui->cmdSpeedDialer_2;
    default:
      return m_ui->txtDialer_0;
  }
}

QString frmDialer::Text(DialerText place) const {
  if (place == DialerText::txtDialer0) return m_ui->txtDialer_0->text();
  if (place == DialerText::txtDialer1) return m_ui->txtDialer_1->text();
  return Label(place)->text();
}

void frmDialer::SetText(DialerText place, const QString& text) {
  if (place == DialerText::txtDialer0) {
    m_ui->txtDialer_0->setText(text);
  } else if (place == DialerText::txtDialer1) {
    m_ui->txtDialer_1->setText(text);
  } else {
    ShowOnLabel(Label(place), text);
  }
}

void frmDialer::SetSlotCaption(int slot, const QString& caption) {
  QPushButton* button = m_cmdDialer[slot];
  button->setText(PlainCaption(caption));
  button->setAccessibleName(caption.isEmpty() ? u"Speed dial %1, empty"_s.arg(slot + 1)
                                              : u"Speed dial %1, %2"_s.arg(QString::number(slot + 1), caption));
  button->setToolTip(caption.isEmpty() ? u"Add a Speed Dial entry here"_s : u"Call "_s + caption);
}

void frmDialer::SetEnabled(DialerControl control, bool enabled) {
  Control(control)->setEnabled(enabled);
}

void frmDialer::FocusOn(DialerControl control) {
  SetFocusTo(Control(control));
}

void frmDialer::ShowSpeedDial(bool visible) {
  m_ui->fraSpeedDial->setVisible(visible);
  SetEnterButton(visible ? m_cmdSpeedDialer[0] : m_ui->cmdNewDial);
  SetEscapeButton(visible ? m_cmdSpeedDialer[1] : m_ui->cmdHangup);
}

void frmDialer::SetIndicator(bool lit) {
  m_ui->Image2->setText(lit ? u"\u25CF Line open"_s : u"\u25CB Line closed"_s);
}

void frmDialer::Unload() {
  m_screens.Unload(ScreenName::frmDialer);
}
