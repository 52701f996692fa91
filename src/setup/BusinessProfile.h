/// Who the business is, and the address style worked out from it.
#pragma once

#include <QString>

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

  bool IsUsaStyle() const { return AddressStyleCaption == u"USA Style Address"; }
};
