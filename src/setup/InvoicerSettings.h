/// What the invoice screen starts from, remembered across runs.
#pragma once

#include <QString>

struct InvoicerSettings {
  QString cboDiscount = QStringLiteral("0.0");  ///< The invoice screen's discount percentage, live.
  QString cboDays = QStringLiteral("0");        ///< Its discount days, live.
};
