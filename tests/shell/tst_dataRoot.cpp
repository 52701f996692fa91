// Where the data live.
#include <QtTest>

#include "shell/DataRoot.h"
#include "support/ErrorOf.h"
#include "support/FailingDevice.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

class DataRootTest : public QObject {
  Q_OBJECT

  std::unique_ptr<TemporaryTree> m_program, m_user;
  FailingDevice m_device;

  /// With a program folder that may not be written.
  QString ChooseBesideAClosedFolder() {
    m_device.AlsoFailAt(FailingDevice::Call::MayWrite, 1, EACCES);
    return ChooseDataRoot(m_device, m_program->Root(), m_user->Root());
  }

 private Q_SLOTS:
  void init() {
    m_program = std::make_unique<TemporaryTree>();
    m_user = std::make_unique<TemporaryTree>();
  }

  void aWritableProgramFolderIsTheRoot() {
    m_program->Write(u"/StatesList.txt"_s, "\"AL\"\r\n");
    QCOMPARE(ChooseDataRoot(m_device, m_program->Root(), m_user->Root()), m_program->Root());
    QCOMPARE(m_user->List(), QStringList{});
  }

  void aClosedProgramFolderGivesWayToTheUsersOwn() {
    m_program->Write(u"/StatesList.txt"_s, "\"AL\"\r\n");
    m_device.FailAt(FailingDevice::Call::MayWrite, 1, EACCES);
    QCOMPARE(ChooseDataRoot(m_device, m_program->Root(), m_user->Path(u"/data"_s)),
             m_user->Path(u"/data/KarvexInvoicer"_s));
    QCOMPARE(m_user->Bytes(u"/data/KarvexInvoicer/StatesList.txt"_s), "\"AL\"\r\n");
    QCOMPARE(m_program->List(), QStringList{u"StatesList.txt"_s});
  }

  void aSuppliedFileThatIsThereIsNotReplaced() {
    m_program->Write(u"/StatesList.txt"_s, "\"AL\"\r\n");
    m_user->Write(u"/KarvexInvoicer/StatesList.txt"_s, "mine");
    m_device.FailAt(FailingDevice::Call::MayWrite, 1, EACCES);
    QCOMPARE(ChooseDataRoot(m_device, m_program->Root(), m_user->Root()), m_user->Path(u"/KarvexInvoicer"_s));
    QCOMPARE(m_user->Bytes(u"/KarvexInvoicer/StatesList.txt"_s), "mine");
  }

  void aCopyThatFailsIsToldOfAndMadeAtTheNextStart() {
    using Call = FailingDevice::Call;
    const QString copy = u"/KarvexInvoicer/StatesList.txt"_s;
    m_program->Write(u"/StatesList.txt"_s, "\"AL\"\r\n");
    for (const Call call : {Call::Write, Call::Flush, Call::Rename}) {
      m_device.FailAt(call, 1, ENOSPC);
      const RuntimeError error = CaughtFrom([&] { ChooseBesideAClosedFolder(); });
      QCOMPARE(error.Number(), 61);
      QCOMPARE(error.Subject(), m_user->Path(copy));
      QCOMPARE(m_user->List(u"/KarvexInvoicer"_s), QStringList{});
      m_device.Reset();
      ChooseBesideAClosedFolder();
      QCOMPARE(m_user->Bytes(copy), "\"AL\"\r\n");
      m_user->Remove(copy);
    }
  }

  void aCopyThatWasKilledIsMadeAtTheNextStart() {
    const QString copy = u"/KarvexInvoicer/StatesList.txt"_s;
    m_program->Write(u"/StatesList.txt"_s, "\"AL\"\r\n");
    bool finished = false;
    int absent = 0;
    for (int step = 1; !finished; ++step) {
      m_device.KillAt(step);
      try {
        ChooseBesideAClosedFolder();
        finished = true;
      } catch (const FailingDevice::Killed&) {
      }
      if (m_user->Exists(copy)) {
        QCOMPARE(m_user->Bytes(copy), "\"AL\"\r\n");
      } else {
        ++absent;
      }
      m_device.Reset();
      ChooseBesideAClosedFolder();
      QCOMPARE(m_user->Bytes(copy), "\"AL\"\r\n");
      QCOMPARE(m_user->List(u"/KarvexInvoicer"_s), QStringList{u"StatesList.txt"_s});
      m_user->Remove(copy);
    }
    QVERIFY(absent > 1);
  }

  void withoutSuppliedFilesTheFolderIsEmpty() {
    m_device.FailAt(FailingDevice::Call::MayWrite, 1, EROFS);
    QCOMPARE(ChooseDataRoot(m_device, m_program->Root(), m_user->Root()), m_user->Path(u"/KarvexInvoicer"_s));
    QCOMPARE(m_user->List(u"/KarvexInvoicer"_s), QStringList{});
  }

  void whereNeitherCanBeUsedTheErrorNamesTheFolder() {
    m_user->Write(u"/KarvexInvoicer"_s, "a file in its place");
    m_device.FailAt(FailingDevice::Call::MayWrite, 1, EACCES);
    const RuntimeError error = CaughtFrom([&] { ChooseDataRoot(m_device, m_program->Root(), m_user->Root()); });
    QCOMPARE(error.Number(), 75);
    QCOMPARE(error.Subject(), m_user->Path(u"/KarvexInvoicer"_s));
  }
};

QTEST_GUILESS_MAIN(DataRootTest)
#include "tst_dataRoot.moc"
