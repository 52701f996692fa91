/// One serial line that can stand on any of sixteen ports, as the telephone's rules use it.
///
/// Nothing here throws: what can't be done has no effect, and `PortOpen` tells whether there is a line at all.
#pragma once

#include <QString>

class SerialPort {
 public:
  static constexpr int Ports = 16;
  virtual ~SerialPort() = default;

  /// The port that the next opening takes, from 1; nothing while one is open.
  virtual void SetCommPort(int port) = 0;
  virtual int CommPort() const = 0;
  /// A closing gives what was sent last and isn't on the wire yet some more time, a second at most, and throws the rest
  /// away then: the last text before a closing is what hangs up.
  virtual void SetPortOpen(bool open) = 0;
  /// Closes the port at once, and throws away what isn't on the wire yet: where nothing hangs on it any more.
  virtual void LetGo() = 0;
  /// False again once the line has dropped by itself.
  virtual bool PortOpen() const = 0;

  /// Sends the text and waits, for a moment at most, until its last character is on the wire: what is waited for or
  /// closed after it doesn't cut into its sending.
  virtual void Output(const QString& text) = 0;
  /// How many bytes have come and wait to be taken; 0 while no port is open.
  virtual int InBufferCount() = 0;
  virtual void ClearInBuffer() = 0;
  /// Takes all that has come.
  virtual QString Input() = 0;

  /// One pass of the event loop, mouse and keyboard shut out, until that many bytes have come or the time is over.
  virtual void WaitForBytes(int count, int milliseconds) = 0;
  /// One pass of the event loop with the user's own events, until bytes come or for a moment at most. False when the
  /// program is being left and nothing must be waited for any more.
  virtual bool Yield() = 0;
};
