/// Who the business is, and the address style worked out from it.
#pragma once

#include <array>
#include <functional>
#include <QString>

class CommonDiskRoutines;

/// The business strings, as last loaded or saved: no control touches them in between.
struct BusinessProfile {
  QString BusinessName;
  QString BusinessAddress1;
  QString BusinessAddress2;
  QString BusinessCity;
  QString BusinessState;
  QString BusinessPostal;
  QString BusinessTelephone;
  QString BusinessContact;
  QString BusinessTaxID;
  /// The caption of `cmdAddress`, live: "USA Style Address" means USA style, "International Style Address" the other.
  QString AddressStyleCaption = QStringLiteral("International Style Address");
  /// Told at each toggle: the customer screen takes over the style.
  std::function<void(bool usaStyle)> UseAddressStyle;

  bool IsUsaStyle() const { return AddressStyleCaption == u"USA Style Address"; }
};

/// The string behind each box of `txtBusiness`, which is also the order in the file.
inline constexpr std::array<QString BusinessProfile::*, 9> BusinessStrings{
    &BusinessProfile::BusinessName,      &BusinessProfile::BusinessAddress1, &BusinessProfile::BusinessAddress2,
    &BusinessProfile::BusinessCity,      &BusinessProfile::BusinessState,    &BusinessProfile::BusinessPostal,
    &BusinessProfile::BusinessTelephone, &BusinessProfile::BusinessContact,  &BusinessProfile::BusinessTaxID};

/// Reads /MyBusinessData.txt if it is there and answers whether it was; else nothing changes. Throws RuntimeError 62
/// for a file that ends too early.
bool LoadBusinessData(CommonDiskRoutines& disk, BusinessProfile& business);
/// Takes the texts of the nine boxes and writes /MyBusinessData.txt; its copy in /Backup stays, which is meant.
void SaveBusinessData(CommonDiskRoutines& disk, BusinessProfile& business, const std::array<QString, 9>& boxes);

/// Works the style out from the profile: USA with a postal code or with nothing at all, International with a name
/// alone. A postal code that is no number, with no name, turns the style that stands over; that is meant.
void SetAddressStyle(BusinessProfile& business);
/// Turns the style over.
void ToggleAddressStyle(BusinessProfile& business);
