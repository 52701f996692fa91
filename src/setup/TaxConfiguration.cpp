#include "setup/TaxConfiguration.h"

#include "runtime/Currency.h"
#include "runtime/Numbers.h"
#include "setup/Switches.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

QStringList TaxRateEntries() {
  return {u"4.0"_s, u"5.0"_s, u"6.0"_s, u"7.0"_s, u"5,0"_s, u"6,0"_s, u"7,0"_s};
}

QStringList TaxHeading1Entries() {
  return {u"Sales Tax"_s, u"County Tax"_s, u"Tax"_s, u"Taxes"_s, u"VAT Tax"_s, u"Provincial Tax"_s, u"GST"_s};
}

QStringList TaxHeading2Entries() {
  return TaxHeading1Entries() << u"Tax Surcharge"_s;
}

void LoadTaxLists(CommonDiskRoutines& disk, TaxConfiguration& tax) {
  tax.cboRate1 = TaxRateEntries().first();
  tax.cboRate2 = TaxRateEntries().first();
  tax.cboTaxHeading1 = TaxHeading1Entries().first();
  tax.cboTaxHeading2 = TaxHeading2Entries().first();
  LoadTaxSettings(disk, tax);
}

void LoadTaxSettings(CommonDiskRoutines& disk, TaxConfiguration& tax) {
  if (!disk.FileExists(u"/TaxSettings.txt"_s)) {
    tax.cboTaxHeading1 = u"Sales Tax"_s;
    tax.cboTaxHeading2 = u"Tax"_s;
    tax.ckApply1stTax = false;
    tax.ckApply2ndTax = false;
    return;
  }
  ListReader file = disk.OpenInputFile(u"/TaxSettings.txt"_s);
  tax.cboTaxHeading1 = file.ReadString();
  tax.cboTaxHeading2 = file.ReadString();
  tax.cboRate1 = file.ReadString();
  tax.cboRate2 = file.ReadString();
  tax.ckApply1stTax = ReadSwitch(file);
  tax.ckApply2ndTax = ReadSwitch(file);
}

void SaveTaxSettings(CommonDiskRoutines& disk, const TaxConfiguration& tax) {
  ListWriter file;
  file.Field(tax.cboTaxHeading1).Field(tax.cboTaxHeading2).Field(tax.cboRate1).Field(tax.cboRate2);
  file.Field(SwitchValue(tax.ckApply1stTax)).Field(SwitchValue(tax.ckApply2ndTax)).EndLine();
  disk.SaveFile(u"/TaxSettings.txt"_s, file.Content(), BackupCopy::Dropped);
}

int CloseGraduatedTax(TaxConfiguration& tax) {
  auto amounts = tax.txtGradulated;
  for (int i = 0; i < 2; ++i) {
    QString& amount = amounts[static_cast<std::size_t>(i)];
    if (!IsNumeric(amount)) {
      amount = ZeroCurrencyText();
      tax.txtGradulated = amounts;
      return i;
    }
    amount = CurrencyText(ToNumber(amount, u"Graduated Tax Levels"_s));
  }
  tax.txtGradulated = amounts;
  if (tax.txtGradulated[0] == ZeroCurrencyText()) tax.ckApplyGraduated = false;
  return -1;
}
