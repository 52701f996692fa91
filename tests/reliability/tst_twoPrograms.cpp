// Two programs on one data root, the other one in a process of its own: the second is told and touches nothing, the
// first works on; and a program that was killed in the middle of its work keeps nobody from the next start.

#include <stdio.h>
#include <unistd.h>

#include "reliability/MemoryDisk.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

const QString Told = u"Karvex Invoicer is already Running!\nLook for it on the Task Bar"_s;

/// The other program, on the tree of the fixture.
class Other {
 public:
  explicit Other(const ProgramFixture& program) {
    m_process.start(QCoreApplication::applicationFilePath(), {u"run"_s, program.Tree.Root()});
  }
  ~Other() { Kill(); }
  Q_DISABLE_COPY_MOVE(Other)

  /// What it said of its start.
  QByteArray Answer() { return m_process.waitForReadyRead(30000) ? m_process.readAllStandardOutput() : QByteArray(); }
  void Kill() {
    m_process.kill();
    m_process.waitForFinished(30000);
  }

 private:
  QProcess m_process;
};

}  // namespace

class TwoPrograms : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theSecondIsToldAndTouchesNothing();
  void theFirstWorksOnBesideTheSecond();
  void afterAKillTheNextStartFindsTheRootFree();
};

void TwoPrograms::theSecondIsToldAndTouchesNothing() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  Other other(program);
  QCOMPARE(other.Answer(), "runs\n");
  const auto before = program.Tree.Everything();
  program.Answers.Ok(Told, u"Karvex Invoicer"_s);
  QVERIFY(!program.Start());
  QVERIFY(program.Running().HasEnded());
  QCOMPARE(program.Files.CountAll(), 0);
  QCOMPARE(program.Tree.Everything(), before);
}

void TwoPrograms::theFirstWorksOnBesideTheSecond() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  QVERIFY(program.StartAtMenu());
  OneDay::ComposeInvoice();
  Other other(program);
  QCOMPARE(other.Answer(), "told\n");
  OneDay::Finalize();
  OneDay::Commit(program);
  QCOMPARE(program.Tree.Bytes(u"/KVInvoiceNo.txt"_s), "20260002\r\n");
  // The second one's end left the first one's lock alone.
  Other third(program);
  QCOMPARE(third.Answer(), "told\n");
  program.End();
  QCOMPARE(program.Tree.Bytes(u"/Backup/KVInvoiceNo.txt"_s), "20260002\r\n");
}

void TwoPrograms::afterAKillTheNextStartFindsTheRootFree() {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  Other other(program);
  QCOMPARE(other.Answer(), "runs\n");
  other.Kill();
  QVERIFY(program.StartAtMenu());
  OneDay::CommitInvoice(program);
  program.End();
}

/// As "run ROOT" it is the other program: starts, says how that went, and waits to be killed.
int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 3 && arguments[1] == u"run") {
    FileDevice files;
    FixedClock clock;
    TestDialogs dialogs;
    RecordingPrinter paper;
    const PortTable ports;
    SerialLine modem(ports);
    QueuedAnswers answers;
    answers.Ok(Told);
    Program program(PlatformOn(arguments[2], files, clock, dialogs, paper, modem));
    const bool runs = program.Start();
    answers.Forget();
    ::puts(runs ? "runs" : (answers.Last().Text == Told ? "told" : "failed"));
    ::fflush(stdout);
    if (!runs) return 0;
    ::alarm(60);
    ::pause();
    return 0;
  }
  TwoPrograms test;
  return QTest::qExec(&test, argc, argv);
}
#include "tst_twoPrograms.moc"
