/// The customer whom the customer screen shows, as other screens and the commit read him.
#pragma once

#include <QString>

struct CustomerOnScreen {
  QString txtCustomer0;  ///< The account number, as it stands in the box.
  QString txtCustomer1;  ///< The business name, as it stands in the box.
  /// The screen's address style, as its last activation or Setup's toggle left it.
  bool UsaAddress = true;
};
