/// The state that the invoice's rules give to controls of the invoice screen, as plain values: what is enabled, what
/// shows, and where the focus goes. Each member bears its control's name and starts as the screen is designed.
#pragma once

#include <array>
#include <QString>
#include <utility>

struct InvoiceControls {
  struct {
    bool cmdPrint = false;  ///< Until the first post of the session.
    bool cmdInvoiceContinue = false;
    bool cmdAddDiscount = true;
    std::array<bool, 4> cmdPost{true, true, true, true};
    bool cmdLabor_1 = false;
    bool cmdInvoice_2 = true;
    bool mnuLabor = true;
    bool cmdInvoiceMemo_1 = true;
    bool cmdInvoiceMemo_2 = true;
    bool UpDown1 = false;
  } Enabled;

  struct {
    bool lblInvoiceNo = true;
    bool Label4_42 = false;  ///< The mark of a quantity break.
    bool lblMemo = false;
    bool ckAddMemo = false;
    bool ck2ndTax = false;
    bool fraFlat = false;
    bool fraDiscount = false;
    bool fraPrePaid = false;
  } Visible;

  bool txtInvoiceNoLocked = false;

  /// Object name of the control that a rule gave the focus to, as `txtManual_1`; empty when none did. The screen takes
  /// it when it shows the invoice.
  QString Focus;
  QString TakeFocus() { return std::exchange(Focus, QString()); }
};
