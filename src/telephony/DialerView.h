/// What the dialer's rules see of its screen.
#pragma once

#include <QString>

enum class DialerText { lblName, lblNumber, lblStatus, txtDialer0, txtDialer1 };
enum class DialerControl { cmdNewDial, cmdCancel, cmdSpeedDialer2, txtDialer0 };

class DialerView {
 public:
  virtual ~DialerView() = default;
  virtual QString Text(DialerText place) const = 0;
  virtual void SetText(DialerText place, const QString& text) = 0;
  /// The caption of `cmdDialer`; empty for a slot that isn't used.
  virtual void SetSlotCaption(int slot, const QString& caption) = 0;
  virtual void SetEnabled(DialerControl control, bool enabled) = 0;
  virtual void FocusOn(DialerControl control) = 0;
  virtual void ShowSpeedDial(bool visible) = 0;  ///< `fraSpeedDial`.
  virtual void SetIndicator(bool lit) = 0;       ///< `Image2`: whether the line is open.
  virtual void Unload() = 0;                     ///< The screen goes, and what it remembers with it.
};
