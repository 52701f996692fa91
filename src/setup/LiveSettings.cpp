#include "setup/LiveSettings.h"

#include "runtime/Currency.h"
#include "setup/Switches.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

QString SettingsName(const CommonDiskRoutines& disk) {
  return u'/' + disk.EXEName() + u"Settings.txt"_s;
}

/// One line of the settings file.
struct SettingsLine {
  bool ckSalesItems = true;
  bool ckServices = false;
  bool ckLabor = false;
  bool ckCustom = false;
  bool ckApplyGraduated = false;
  QString cboDiscount = u"0.0"_s;
  QString cboDays = u"0"_s;
  bool optPlain = true;
  bool optReturn = false;
  std::array<QString, 2> txtGradulated{ZeroCurrencyText(), ZeroCurrencyText()};
};

SettingsLine ReadSettingsLine(ListReader file) {
  SettingsLine line;
  line.ckSalesItems = ReadSwitch(file);
  line.ckServices = ReadSwitch(file);
  line.ckLabor = ReadSwitch(file);
  line.ckCustom = ReadSwitch(file);
  line.ckApplyGraduated = ReadSwitch(file);
  line.cboDiscount = file.ReadString();
  line.cboDays = file.ReadString();
  line.optPlain = file.ReadBoolean();
  line.optReturn = file.ReadBoolean();
  for (QString& amount : line.txtGradulated) amount = file.ReadString();
  return line;
}

}  // namespace

void LoadSettings(CommonDiskRoutines& disk, LiveSettings& live, const std::function<void()>& loadInvoice) {
  SettingsLine line;
  if (disk.FileExists(SettingsName(disk))) line = ReadSettingsLine(disk.OpenInputFile(SettingsName(disk)));
  live.Tax.ckSalesItems = line.ckSalesItems;
  live.Tax.ckServices = line.ckServices;
  live.Tax.ckLabor = line.ckLabor;
  live.Tax.ckCustom = line.ckCustom;
  live.Tax.ckApplyGraduated = line.ckApplyGraduated;
  if (loadInvoice) loadInvoice();
  live.Invoicer.cboDiscount = line.cboDiscount;
  live.Invoicer.cboDays = line.cboDays;
  // Two options: turning the second on turns the first off.
  live.Print.optPlain = line.optPlain && !line.optReturn;
  live.Print.optReturn = line.optReturn;
  live.Tax.txtGradulated = line.txtGradulated;
}

void SaveSettings(CommonDiskRoutines& disk, LiveSettings& live) {
  const TaxConfiguration& tax = live.Tax;
  ListWriter file;
  for (const bool ticked : {tax.ckSalesItems, tax.ckServices, tax.ckLabor, tax.ckCustom, tax.ckApplyGraduated}) {
    file.Field(SwitchValue(ticked));
  }
  file.Field(live.Invoicer.cboDiscount).Field(live.Invoicer.cboDays);
  file.Field(live.Print.optPlain).Field(live.Print.optReturn);
  file.Field(tax.txtGradulated[0]).Field(tax.txtGradulated[1]).EndLine();
  disk.SaveFile(SettingsName(disk), file.Content(), BackupCopy::Dropped);
  LoadSettings(disk, live);
}

void LoadSetup(SerialPort& modem, CommonDiskRoutines& disk, LiveSettings& live, const PictureTest& isPicture,
               const std::function<void()>& loadInvoice) {
  LoadBusinessData(disk, live.Business);
  StartModem(modem, disk, live.Phone);
  SetAddressStyle(live.Business);
  LoadPrintColors(disk, live.Print);
  LoadTaxLists(disk, live.Tax);
  if (disk.FileExists(u"/CompanyLogo.txt"_s)) LoadLogoAtStart(disk, live.Print, isPicture);
  if (disk.FileExists(u"/LogoSettings.txt"_s)) LoadLogoSettings(disk, live.Print);
  LoadSettings(disk, live, loadInvoice);
}
