/// The two taxes, which line kinds carry them, and the graduated scheme. Live: each control of Setup writes its value
/// here at the moment that it changes.
#pragma once

#include <QString>
#include <array>

struct TaxConfiguration {
  QString cboTaxHeading1;
  QString cboTaxHeading2;
  QString cboRate1;  ///< Percentages as the text in the box; read by the leading-number parse.
  QString cboRate2;
  bool ckApply1stTax = false;  ///< Stored and shown; no computation reads it.
  bool ckApply2ndTax = false;
  bool ckSalesItems = true;  ///< The line kinds' default for Apply Tax.
  bool ckServices = false;
  bool ckLabor = false;
  bool ckCustom = false;
  bool ckApplyGraduated = false;
  /// Limit and surcharge of the graduated scheme, currency text.
  std::array<QString, 2> txtGradulated;
};
