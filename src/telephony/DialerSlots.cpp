/// The dialer's ten speed-dial slots.
#include "runtime/Dialogs.h"
#include "telephony/Dialer.h"

using namespace Qt::StringLiterals;

void Dialer::ShowSlots() {
  m_speed = LoadSpeedNumbers(m_desk.Disk);
  for (int slot = 0; slot < SpeedNumbers::Slots; ++slot) {
    m_view.SetSlotCaption(slot, m_speed.Names[static_cast<std::size_t>(slot)]);
  }
}

void Dialer::ChooseSlot(int slot) {
  m_slot = static_cast<std::size_t>(slot);
  // Whoever is shown now, also where he came from another slot: meant.
  m_originalName = m_name;
  m_originalNumber = m_number;
  if (m_speed.Names[m_slot].isEmpty()) {
    m_view.ShowSpeedDial(true);
    m_view.FocusOn(DialerControl::txtDialer0);
  } else {
    ShowRecipient(m_speed.Names[m_slot], m_speed.Numbers[m_slot]);
    m_view.SetEnabled(DialerControl::cmdSpeedDialer2, true);
  }
}

void Dialer::RunSpeedDialer(int command) {
  switch (command) {
    case 0:
      SaveSlot(m_view.Text(DialerText::txtDialer0), m_view.Text(DialerText::txtDialer1));
      break;
    case 1:
      CloseSpeedDial();
      break;
    case 2:
      DeleteSlot();
      break;
    case 3:
      ShowRecipient(m_originalName, m_originalNumber);
      break;
    case 4:
      SaveSlot(m_name, m_number);
      break;
    default:
      break;
  }
}

void Dialer::SaveSlot(QString name, QString number) {
  SpeedNumbers with = m_speed;
  // The boxes let no quote through, but a customer may have one, and it would end its field in the file.
  with.Names[m_slot] = name.remove(u'"');
  with.Numbers[m_slot] = number.remove(u'"');
  SaveSpeedNumbers(m_desk.Disk, with);
  m_speed = with;
  m_view.SetSlotCaption(static_cast<int>(m_slot), m_speed.Names[m_slot]);
  CloseSpeedDial();
}

void Dialer::CloseSpeedDial() {
  m_view.SetText(DialerText::txtDialer0, {});
  m_view.SetText(DialerText::txtDialer1, {});
  m_view.ShowSpeedDial(false);
}

void Dialer::DeleteSlot() {
  if (!m_desk.Boxes.AskYesNo(u"This will delete SpeedDial entry  "_s + m_speed.Names[m_slot] + u"\r\nAre you Sure"_s,
                             u"Delete Speed Dial"_s)) {
    m_view.SetEnabled(DialerControl::cmdSpeedDialer2, false);
    return;
  }
  SpeedNumbers without = m_speed;
  without.Names[m_slot].clear();
  without.Numbers[m_slot].clear();
  SaveSpeedNumbers(m_desk.Disk, without);
  ShowSlots();
}
