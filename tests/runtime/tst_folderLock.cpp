// The lock on a folder: one holds it at a time, and it is free after that program's end, however it ended.
#include <signal.h>
#include <stdio.h>
#include <unistd.h>
#include <QtTest>

#include "runtime/FolderLock.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

class FolderLockTest : public QObject {
  Q_OBJECT

  std::unique_ptr<TemporaryTree> m_root;

 private Q_SLOTS:
  void init() { m_root = std::make_unique<TemporaryTree>(); }

  void whoHoldsTheRootHoldsItWhenAskedAgain() {
    FolderLock first(m_root->Root()), second(m_root->Root());
    QVERIFY(first.Take());
    QVERIFY(first.Take());
    first.Drop();
    QVERIFY(second.Take());
  }

  void anotherRootIsAnotherBusiness() {
    const TemporaryTree other;
    FolderLock first(m_root->Root()), second(other.Root());
    QVERIFY(first.Take());
    QVERIFY(second.Take());
  }

  void aFolderInTheRootIsAnotherRoot() {
    m_root->MakeFolder(u"/shop"_s);
    FolderLock first(m_root->Root()), second(m_root->Path(u"/shop"_s));
    QVERIFY(first.Take());
    QVERIFY(second.Take());
  }

  void twoWaysToOneRootAreOne() {
    const TemporaryTree elsewhere;
    const QString link = elsewhere.Path(u"/link"_s);
    QVERIFY(QFile::link(m_root->Root(), link));
    FolderLock first(m_root->Root()), second(link), third(m_root->Root() + u"/../"_s + QDir(m_root->Root()).dirName());
    QVERIFY(first.Take());
    QVERIFY(!second.Take());
    QVERIFY(!third.Take());
  }

  void aRootThatIsMovedWhileTheProgramRunsStaysHeld() {
    const TemporaryTree elsewhere;
    m_root->MakeFolder(u"/business"_s);
    FolderLock first(m_root->Path(u"/business"_s)), second(elsewhere.Path(u"/moved"_s));
    QVERIFY(first.Take());
    QVERIFY(QDir().rename(m_root->Path(u"/business"_s), elsewhere.Path(u"/moved"_s)));
    QVERIFY(!second.Take());
  }

  void theRootIsFreeAgainAfterTheEnd() {
    FolderLock second(m_root->Root());
    {
      FolderLock first(m_root->Root());
      QVERIFY(first.Take());
      QVERIFY(!second.Take());
    }
    QVERIFY(second.Take());
  }

  void oneThatWasRefusedTakesNothingAlongAtItsEnd() {
    FolderLock first(m_root->Root()), third(m_root->Root());
    QVERIFY(first.Take());
    {
      FolderLock second(m_root->Root());
      QVERIFY(!second.Take());
      second.Drop();
    }
    QVERIFY(!third.Take());
  }

  void anotherProcessHoldsTheRootUntilItIsKilled() {
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {u"hold"_s, m_root->Root()});
    QVERIFY(other.waitForReadyRead(30000));
    QCOMPARE(other.readAllStandardOutput(), "taken\n");
    FolderLock mine(m_root->Root());
    QVERIFY(!mine.Take());
    other.kill();
    QVERIFY(other.waitForFinished(30000));
    QVERIFY(mine.Take());
  }

  void aProgramThatThisOneStartedDoesNotKeepTheRoot() {
    FolderLock first(m_root->Root()), second(m_root->Root());
    QVERIFY(first.Take());
    QProcess started;
    started.start(u"sleep"_s, {u"60"_s});
    QVERIFY(started.waitForStarted(30000));
    first.Drop();
    QVERIFY(second.Take());
    started.kill();
    started.waitForFinished(30000);
  }

  void nothingIsWrittenForIt() {
    FolderLock lock(m_root->Root());
    QVERIFY(lock.Take());
    QCOMPARE(m_root->List(), QStringList{});
    lock.Drop();
    QCOMPARE(m_root->List(), QStringList{});
  }

  void aRootThatCannotBeLockedKeepsNobodyFromWorking() {
    FolderLock missing(m_root->Path(u"/nowhere"_s));
    QVERIFY(missing.Take());
    m_root->Write(u"/file"_s, "");
    FolderLock noFolder(m_root->Path(u"/file"_s));
    QVERIFY(noFolder.Take());
  }
};

/// As "hold ROOT" it is the other process: takes the lock, says so and waits to be killed.
int main(int argc, char* argv[]) {
  QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 3 && arguments[1] == u"hold") {
    FolderLock lock(arguments[2]);
    ::puts(lock.Take() ? "taken" : "refused");
    ::fflush(stdout);
    ::alarm(60);
    ::pause();
    return 0;
  }
  FolderLockTest test;
  return QTest::qExec(&test, argc, argv);
}
#include "tst_folderLock.moc"
