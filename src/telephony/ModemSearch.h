/// The search for the modem on the serial ports, at start.
#pragma once

struct PhoneSettings;
class SerialPort;

/// Takes the first of the ports 1 to 16 on which two characters answer "AT" at once, whatever they are; port 1 where
/// none does. Tells the port in `ModemPort`, `txtModemPort`, `Text1` and `Label2`, leaves it open where it can be, and
/// asks it for caller identification. Nothing fails.
void FindModemPort(SerialPort& modem, PhoneSettings& phone);
