/// The two taxes, which line kinds carry them, and the graduated scheme. Live: each control of Setup writes its value
/// here at the moment that it changes.
#pragma once

#include <array>
#include <QString>
#include <QStringList>

class CommonDiskRoutines;

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

/// The entries of the lists, first to last. The comma forms serve users whose decimal mark is a comma.
QStringList TaxRateEntries();
QStringList TaxHeading1Entries();
QStringList TaxHeading2Entries();

/// Selects the first entry of each list, then `LoadTaxSettings`.
void LoadTaxLists(CommonDiskRoutines& disk, TaxConfiguration& tax);
/// Reads /TaxSettings.txt; without it "Sales Tax" and "Tax", both switches off, and the rates stay. Throws
/// RuntimeError 62 or 13 for a file that isn't what it must be.
void LoadTaxSettings(CommonDiskRoutines& disk, TaxConfiguration& tax);
void SaveTaxSettings(CommonDiskRoutines& disk, const TaxConfiguration& tax);

/// Closing the graduated scheme: both amounts become currency text, and a limit of zero turns the scheme off. Answers
/// -1; or the index of the first box that holds no number, which is set to zero then, and the rest isn't looked at.
/// Throws RuntimeError 6 for a number too large to be one; nothing has changed then.
int CloseGraduatedTax(TaxConfiguration& tax);
