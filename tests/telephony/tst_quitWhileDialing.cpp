// The whole process while the modem dials: it ends with its window and leaves nothing behind.
#include <QProcess>

#include "support/PlayedModem.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

/// The process of its own: dials on this device, and its user closes the window while it waits.
int DialAndClose(const QString& device) {
  ProgramFixture program;
  program.Ports = PortsOn({{1, device}});
  if (!program.StartAtMenu()) return 2;
  program.Running().Ended = &QApplication::quit;
  QTimer::singleShot(0, qApp, [&program] {
    program.Running().StartCall(u"Bay Farm"_s, u"555"_s);
    const ScreenDriver dialer(u"frmDialer"_s);
    // In the first turn of the loop that finds it dialing: only the wait for the modem turns it by then.
    auto* whenDialing = new QTimer(dialer.Window());
    QObject::connect(whenDialing, &QTimer::timeout, dialer.Window(), [dialer, whenDialing] {
      if (!dialer.Text(u"lblStatus"_s).startsWith(u"Dialing"_s)) return;
      whenDialing->stop();
      dialer.CloseByUser();
    });
    whenDialing->start(0);
    dialer.Click(u"cmdNewDial"_s);
  });
  return QApplication::exec();
}

}  // namespace

class QuitWhileDialing : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theProcessEndsWithItsWindow() {
    PlayedModem modem;
    modem.Answer = [](const QByteArray& command) {
      return command.startsWith("ATDT") ? QByteArray() : QByteArray("\r\nOK\r\n");
    };
    QProcess process;
    QSignalSpy ended(&process, &QProcess::finished);
    process.start(QCoreApplication::applicationFilePath(), {u"--dial"_s, modem.Device()});
    QVERIFY(ended.wait(60'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(modem.Commands().last(), QByteArray("ATDT555;"));
    // Nobody holds the device any more.
    SerialLine line(PortsOn({{1, modem.Device()}}));
    line.SetPortOpen(true);
    QVERIFY(line.PortOpen());
  }
};

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() == 3 && arguments[1] == u"--dial"_s) return DialAndClose(arguments[2]);
  QuitWhileDialing test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_quitWhileDialing.moc"
