// The readers of what the start loads: settings and lists.

#include "customers/StatesList.h"
#include "fuzz/NoModem.h"
#include "fuzz/ReaderDesk.h"
#include "setup/LiveSettings.h"
#include "telephony/SpeedNumbers.h"

using namespace Qt::StringLiterals;

namespace {

/// Stands for the picture decoder, which the rules don't know: the bytes must only look like a picture.
bool BeginsLikeAPicture(const QByteArray& content) {
  return content.startsWith("\x89PNG");
}

void LoadLogoOf(ReaderDesk& desk) {
  PrintAppearance print;
  LoadLogoAtStart(desk.Disk(), print, BeginsLikeAPicture);
}

}  // namespace

std::vector<ReaderTarget> SettingsReaders() {
  return {
      {"settings", u"/KarvexInvoicerSettings.txt"_s,
       [](ReaderDesk& desk) {
         LiveSettings live;
         LoadSettings(desk.Disk(), live);
       }},
      {"profile", u"/MyBusinessData.txt"_s,
       [](ReaderDesk& desk) {
         BusinessProfile business;
         LoadBusinessData(desk.Disk(), business);
         SetAddressStyle(business);
       }},
      {"taxes", u"/TaxSettings.txt"_s,
       [](ReaderDesk& desk) {
         TaxConfiguration tax;
         LoadTaxLists(desk.Disk(), tax);
       }},
      {"colours", u"/PrintColors.txt"_s,
       [](ReaderDesk& desk) {
         PrintAppearance print;
         LoadPrintColors(desk.Disk(), print);
       }},
      {"logo-path", u"/CompanyLogo.txt"_s, LoadLogoOf},
      {"logo-size", u"/LogoSettings.txt"_s,
       [](ReaderDesk& desk) {
         PrintAppearance print;
         LoadLogoSettings(desk.Disk(), print);
         NextLogoSize(print.LogoWidth);
       }},
      {"phone", u"/Phone.txt"_s,
       [](ReaderDesk& desk) {
         PhoneSettings phone;
         NoModem modem;
         StartModem(modem, desk.Disk(), phone);
       }},
      {"caller-id", u"/CallID.txt"_s,
       [](ReaderDesk& desk) {
         PhoneSettings phone;
         LoadCallerIdSetting(desk.Disk(), phone);
       }},
      {"speed-numbers", u"/SpeedNumbers.txt"_s, [](ReaderDesk& desk) { LoadSpeedNumbers(desk.Disk()); }},
      {"states", u"/StatesList.txt"_s, [](ReaderDesk& desk) { LoadStatesList(desk.Disk()); }},
  };
}
