/// All live settings together, the settings file, and the one load of everything at start.
#pragma once

#include <functional>

#include "setup/BusinessProfile.h"
#include "setup/InvoicerSettings.h"
#include "setup/Logo.h"
#include "setup/PrintAppearance.h"
#include "setup/TaxConfiguration.h"
#include "telephony/PhoneSettings.h"

struct LiveSettings {
  BusinessProfile Business;
  TaxConfiguration Tax;
  PrintAppearance Print;
  InvoicerSettings Invoicer;
  PhoneSettings Phone;
};

/// Reads the settings file (the program file's name and "Settings.txt") over the live values of the taxed kinds, the
/// graduated scheme, the paper, and the invoice's discount and days; without the file their defaults stand.
/// `loadInvoice` runs just before the invoice's two values are set. Throws RuntimeError 62 or 13 for a file that isn't
/// what it must be.
void LoadSettings(CommonDiskRoutines& disk, LiveSettings& live, const std::function<void()>& loadInvoice = {});
/// Writes the settings file, then `LoadSettings`.
void SaveSettings(CommonDiskRoutines& disk, LiveSettings& live);

/// The load of Setup, once at start: profile, modem, address style, colours, taxes, logo, settings file, in this order.
/// `loadInvoice` loads the invoice screen's lists and their own defaults, which the settings file then overrides.
void LoadSetup(SerialPort& modem, CommonDiskRoutines& disk, LiveSettings& live, const PictureTest& isPicture,
               const std::function<void()>& loadInvoice);
