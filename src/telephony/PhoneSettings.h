/// The telephone settings: which port the modem is on, and what the user chose about it.
#pragma once

#include <QString>

class CommonDiskRoutines;
class SerialPort;

struct PhoneSettings {
  // Live values of Setup's controls.
  bool ckPhone = false;     ///< A phone is chained behind the computer.
  bool ckCallerID = false;  ///< Ticked at every load, whatever the file says; nothing reads it.
  QString txtModemPort;     ///< The port that the search found; the dialer opens this one.

  // What the dialer says of the port, each time that it is loaded.
  QString Text1;
  QString Label2;

  // Stored: a load or a save changes them, no control touches them.
  int ModemPort = 1;
  bool PhoneDaisyChained = false;
  bool UsingCallerId = false;
};

/// Finds the modem, then reads /Phone.txt and /CallID.txt. The stored port replaces the found one in `ModemPort` only.
/// Throws RuntimeError 62 or 13 for a file that isn't what it must be.
void StartModem(SerialPort& modem, CommonDiskRoutines& disk, PhoneSettings& phone);
/// Reads /CallID.txt if it is there; ticks `ckCallerID` whatever it holds, which is meant.
void LoadCallerIdSetting(CommonDiskRoutines& disk, PhoneSettings& phone);

/// Takes `ckPhone`, writes /Phone.txt, then `SaveCallerIdSetting`.
void SavePhoneSettings(CommonDiskRoutines& disk, PhoneSettings& phone);
/// Writes `UsingCallerId` as it stands to /CallID.txt; the tick box never feeds it, which is meant.
void SaveCallerIdSetting(CommonDiskRoutines& disk, const PhoneSettings& phone);
