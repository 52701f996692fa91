// The mark of a running program: one per data root, freed by its program's end, however it ended.
#include <signal.h>
#include <stdio.h>
#include <unistd.h>
#include <QtTest>

#include "runtime/FileStore.h"
#include "shell/KarvexMasterModule.h"
#include "shell/PreviousInstance.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

class PreviousInstanceTest : public QObject {
  Q_OBJECT

  FileDevice m_device;
  FileStore m_store{m_device};
  std::unique_ptr<TemporaryTree> m_locks, m_root;

 private Q_SLOTS:
  void init() {
    m_locks = std::make_unique<TemporaryTree>();
    m_root = std::make_unique<TemporaryTree>();
  }

  void aSecondProgramOnTheSameRootIsToldSoAndTouchesNoFile() {
    m_root->Write(u"/Phone.txt"_s, "x");
    PreviousInstance first(m_store, m_locks->Root(), m_root->Root());
    PreviousInstance second(m_store, m_locks->Root(), m_root->Root());
    ScriptedDialogs dialogs;
    QVERIFY(CheckPreviousInstance(first, dialogs));
    QCOMPARE(dialogs.Said, QStringList{});
    QVERIFY(!CheckPreviousInstance(second, dialogs));
    QCOMPARE(dialogs.Said, QStringList{u": Karvex Invoicer is already Running!\nLook for it on the Task Bar"_s});
    QCOMPARE(m_root->Everything(), (QMap<QString, QByteArray>{{u"/Phone.txt"_s, "x"}}));
  }

  void theMarkLiesOutsideTheDataRoot() {
    PreviousInstance instance(m_store, m_locks->Root(), m_root->Root());
    QVERIFY(instance.Claim());
    QCOMPARE(m_root->List(), QStringList{});
    QCOMPARE(m_locks->List().size(), 1);
    instance.Release();
    QCOMPARE(m_locks->List(), QStringList{});
  }

  void anotherRootIsAnotherBusiness() {
    const TemporaryTree other;
    PreviousInstance first(m_store, m_locks->Root(), m_root->Root()), second(m_store, m_locks->Root(), other.Root());
    QVERIFY(first.Claim());
    QVERIFY(second.Claim());
  }

  void twoWaysToOneRootAreOne() {
    const QString link = m_locks->Path(u"/link"_s);
    QVERIFY(QFile::link(m_root->Root(), link));
    PreviousInstance first(m_store, m_locks->Root(), m_root->Root()), second(m_store, m_locks->Root(), link);
    QVERIFY(first.Claim());
    QVERIFY(!second.Claim());
  }

  void theMarkIsFreeAgainAfterTheEnd() {
    PreviousInstance first(m_store, m_locks->Root(), m_root->Root()), second(m_store, m_locks->Root(), m_root->Root());
    QVERIFY(first.Claim());
    first.Release();
    QVERIFY(second.Claim());
  }

  void anotherProcessHoldsTheMarkUntilItIsKilled() {
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {u"hold"_s, m_locks->Root(), m_root->Root()});
    QVERIFY(other.waitForReadyRead(30000));
    QCOMPARE(other.readAllStandardOutput(), "claimed\n");
    PreviousInstance mine(m_store, m_locks->Root(), m_root->Root());
    QVERIFY(!mine.Claim());
    other.kill();
    QVERIFY(other.waitForFinished(30000));
    QCOMPARE(m_locks->List().size(), 1);  // it left its mark behind
    QVERIFY(mine.Claim());
  }

  void aMarkThatWasCutOffWhileItWasSetKeepsNobodyOut_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut short") << QByteArray("41");
    QTest::newRow("garbled") << QByteArray("\x01\xff\n");
  }
  void aMarkThatWasCutOffWhileItWasSetKeepsNobodyOut() {
    QFETCH(QByteArray, content);
    PreviousInstance first(m_store, m_locks->Root(), m_root->Root()), second(m_store, m_locks->Root(), m_root->Root());
    QVERIFY(first.Claim());
    const QString mark = u'/' + m_locks->List().constFirst();
    first.Release();
    m_locks->Write(mark, content);
    QVERIFY(first.Claim());
    QVERIFY(!second.Claim());
    first.Release();
    QCOMPARE(m_locks->List(), QStringList{});
  }

  void aMarkThatIsJustBeingSetIsLeftToItsProgram() {
    PreviousInstance first(m_store, m_locks->Root(), m_root->Root()), second(m_store, m_locks->Root(), m_root->Root());
    QVERIFY(first.Claim());
    // The program holds the system's lock on its mark before it has written anything into it.
    QVERIFY(QFile::resize(m_locks->Path(u'/' + m_locks->List().constFirst()), 0));
    QVERIFY(!second.Claim());
    QCOMPARE(m_locks->List().size(), 1);
  }

  void theLockFolderIsMadeWhereItIsMissing() {
    PreviousInstance instance(m_store, m_locks->Path(u"/a/b"_s), m_root->Root());
    QVERIFY(instance.Claim());
    QCOMPARE(m_locks->List(u"/a/b"_s).size(), 1);
  }

  void aMarkThatCannotBeSetKeepsNobodyFromWorking() {
    m_locks->Write(u"/file"_s, "");
    PreviousInstance instance(m_store, m_locks->Path(u"/file/locks"_s), m_root->Root());
    QVERIFY(instance.Claim());
  }
};

/// As "hold LOCKS ROOT" it is the other process: takes the mark, says so and waits to be killed.
int main(int argc, char* argv[]) {
  QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 4 && arguments[1] == u"hold") {
    FileDevice device;
    FileStore store(device);
    PreviousInstance instance(store, arguments[2], arguments[3]);
    ::puts(instance.Claim() ? "claimed" : "refused");
    ::fflush(stdout);
    ::alarm(60);
    ::pause();
    return 0;
  }
  PreviousInstanceTest test;
  return QTest::qExec(&test, argc, argv);
}
#include "tst_previousInstance.moc"
