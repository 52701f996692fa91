// One program at a time on a data root: the second is told so.
#include <QtTest>

#include "runtime/FolderLock.h"
#include "shell/KarvexMasterModule.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

class PreviousInstanceTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aSecondProgramOnTheSameRootIsToldSoAndTouchesNoFile() {
    const TemporaryTree root;
    root.Write(u"/Phone.txt"_s, "x");
    FolderLock first(root.Root()), second(root.Root());
    ScriptedDialogs dialogs;
    QVERIFY(CheckPreviousInstance(first, dialogs));
    QCOMPARE(dialogs.Said, QStringList{});
    QVERIFY(!CheckPreviousInstance(second, dialogs));
    QCOMPARE(dialogs.Said, QStringList{u": Karvex Invoicer is already Running!\nLook for it on the Task Bar"_s});
    QCOMPARE(root.Everything(), (QMap<QString, QByteArray>{{u"/Phone.txt"_s, "x"}}));
  }
};

QTEST_GUILESS_MAIN(PreviousInstanceTest)
#include "tst_previousInstance.moc"
