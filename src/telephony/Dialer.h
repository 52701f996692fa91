/// The rules of the dialer: a voice call that the modem dials and the user talks on, and the ten speed-dial slots.
///
/// While a number is being dialed, `NewDial` waits in passes of the event loop; the user's clicks come to the other
/// routines meanwhile. What ends the wait from there only leaves word: the screen never goes while the wait stands on
/// it.
#pragma once

#include "telephony/DialerView.h"
#include "telephony/SpeedNumbers.h"

class CommonDiskRoutines;
class Dialogs;
struct PhoneSettings;
class SerialPort;

/// What the dialer works on; all of it outlives the screen.
struct DialerDesk {
  SerialPort& Modem;
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  const PhoneSettings& Phone;
};

class Dialer {
 public:
  Dialer(const DialerDesk& desk, DialerView& view) : m_desk(desk), m_view(view) {}

  /// Whom the call goes to, as another screen hands him over.
  void SetRecipient(const QString& name, const QString& number);
  /// Each showing: ready to dial, the port of Setup's box opened if none is, the slots read. A port that can't be
  /// opened is nothing to tell. Throws RuntimeError 9 or 62 for a speed-dial file that isn't what it must be.
  void Activate();

  void TogglePrefix(bool ticked);    ///< `ckDial1`
  void ChooseSlot(int slot);         ///< `cmdDialer`
  void RunSpeedDialer(int command);  ///< `cmdSpeedDialer`, 0 to 4

  /// `cmdNewDial`: dials, and comes back when the modem has answered or the wait was ended.
  void NewDial();
  /// `cmdCancel`: seen by the wait alone, and after it nothing comes of it. On the screen nobody can click it before:
  /// it is disabled while the wait stands, which is meant; `cmdHangup` and the close box end that.
  void Cancel() { m_cancelRequested = true; }
  /// `cmdHangup`: puts the line down and unloads the screen; at the end of the wait where one stands.
  void Hangup();
  /// The window has gone: a wait that stands ends without doing anything more.
  void Leave() { m_left = true; }

 private:
  enum class WaitEnd { Answered, Cancelled, HungUp, Left };
  WaitEnd WaitForOk();
  void ResetDialer();
  void OpenPort();
  void CancelDial();  ///< How a wait ends that `Cancel` was called in; the screen has no way to.
  void PutDown();
  void ShowNumber(const QString& number);
  void ShowRecipient(const QString& name, const QString& number);
  void ShowSlots();
  /// Slot, button and entry change once the file is written: a save that fails leaves all of it as it was.
  void SaveSlot(QString name, QString number);
  void CloseSpeedDial();
  void DeleteSlot();

  DialerDesk m_desk;
  DialerView& m_view;
  SpeedNumbers m_speed;
  std::size_t m_slot = 0;
  QString m_name;
  QString m_number;
  QString m_originalName;
  QString m_originalNumber;
  bool m_cancelRequested = false;
  bool m_dialing = false;
  bool m_hangupRequested = false;
  bool m_left = false;
};
