/// "Call ...............": dials a customer, or one of ten speed-dial numbers, for a telephone behind the modem. It
/// stands over the screen that called it and is unloaded by each hang-up.
#pragma once

#include <QPushButton>

#include "desktop/ControlArray.h"
#include "desktop/Screen.h"
#include "telephony/Dialer.h"

class QLabel;
class Screens;
namespace Ui {
class frmDialer;
}

class frmDialer final : public Screen, private DialerView {
 public:
  frmDialer(ScreenHost& host, Screens& screens, const DialerDesk& desk);
  ~frmDialer() override;

  void SetRecipient(const QString& name, const QString& number) { m_dialer.SetRecipient(name, number); }
  void Activate() override;
  void setVisible(bool visible) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ConnectCall();
  void ConnectSpeedDial();
  void ToggleHelp();
  QLabel* Label(DialerText place) const;
  QWidget* Control(DialerControl control) const;

  QString Text(DialerText place) const override;
  void SetText(DialerText place, const QString& text) override;
  void SetSlotCaption(int slot, const QString& caption) override;
  void SetEnabled(DialerControl control, bool enabled) override;
  void FocusOn(DialerControl control) override;
  void ShowSpeedDial(bool visible) override;
  void SetIndicator(bool lit) override;
  void Unload() override;

  Screens& m_screens;
  Dialogs& m_boxes;
  std::unique_ptr<Ui::frmDialer> m_ui;
  ControlArray<QPushButton, SpeedNumbers::Slots> m_cmdDialer;
  ControlArray<QPushButton, 5> m_cmdSpeedDialer;
  Dialer m_dialer;
};
