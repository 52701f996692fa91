/// What a screen asks for to reach another: screens never include screens.
#pragma once

#include <array>
#include <QString>

enum class ScreenName {
  frmSplash,
  frmStartup,
  frmSetup,
  frmServices,
  frmNewCustomer,
  frmCustomerSelection,
  frmInvoice,
  frmReprint,
  frmIncomplete,
  frmSalesReport,
  frmBlanks,
  frmDialer
};

/// The customer whom an invoice is made for, as a customer route hands him over: account; then name, address 1,
/// address 2, city, state, postal code, telephone.
struct SoldTo {
  QString Acct;
  std::array<QString, 7> Line;
};

/// `Program` implements it.
class Screens {
 public:
  virtual ~Screens() = default;
  /// Runs the screen's activation in a plain call, then shows its window. Nothing happens for a screen that is shown
  /// already, or that says no.
  virtual void Show(ScreenName screen) = 0;
  virtual void Hide(ScreenName screen) = 0;
  virtual void Unload(ScreenName screen) = 0;
  /// The main menu's "Create/Modify": Setup at its first tab.
  virtual void ShowSetupAtFirstTab() = 0;
  /// Hands the customer to the invoice screen and shows it.
  virtual void StartInvoiceFor(const SoldTo& customer) = 0;
  /// Hands the name and the number to the dialer and shows it over the screen that asks.
  virtual void StartCall(const QString& name, const QString& number) = 0;
  /// Setup's sample: the page frame with the number 12345, and the end of the job.
  virtual void PrintSample() = 0;
  /// The one way out: exit backup, all screens hidden, the process ends.
  virtual void QuitProgram() = 0;
};
