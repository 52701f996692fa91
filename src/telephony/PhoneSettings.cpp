#include "telephony/PhoneSettings.h"

#include "shell/CommonDiskRoutines.h"
#include "telephony/ModemSearch.h"

using namespace Qt::StringLiterals;

void StartModem(SerialPort& modem, CommonDiskRoutines& disk, PhoneSettings& phone) {
  FindModemPort(modem, phone);
  phone.ckPhone = false;
  phone.PhoneDaisyChained = false;
  if (disk.FileExists(u"/Phone.txt"_s)) {
    ListReader file = disk.OpenInputFile(u"/Phone.txt"_s);
    phone.PhoneDaisyChained = file.ReadBoolean();
    phone.ModemPort = file.ReadInt16();
    phone.ckPhone = phone.PhoneDaisyChained;
  }
  LoadCallerIdSetting(disk, phone);
}

void LoadCallerIdSetting(CommonDiskRoutines& disk, PhoneSettings& phone) {
  if (disk.FileExists(u"/CallID.txt"_s)) phone.UsingCallerId = disk.OpenInputFile(u"/CallID.txt"_s).ReadBoolean();
  phone.ckCallerID = true;
}

void SavePhoneSettings(CommonDiskRoutines& disk, PhoneSettings& phone) {
  phone.PhoneDaisyChained = phone.ckPhone;
  ListWriter file;
  file.Field(phone.PhoneDaisyChained).EndLine();
  file.Field(phone.ModemPort).EndLine();
  disk.SaveFile(u"/Phone.txt"_s, file.Content(), BackupCopy::Dropped);
  SaveCallerIdSetting(disk, phone);
}

void SaveCallerIdSetting(CommonDiskRoutines& disk, const PhoneSettings& phone) {
  ListWriter file;
  file.Field(phone.UsingCallerId).EndLine();
  disk.SaveFile(u"/CallID.txt"_s, file.Content(), BackupCopy::Dropped);
}
