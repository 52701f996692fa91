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
