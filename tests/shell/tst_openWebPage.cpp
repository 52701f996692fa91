// The shortcut file behind every page that the program opens.
#include <QtTest>

#include "shell/OpenWebPage.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "support/ScriptedDialogs.h"

using namespace Qt::StringLiterals;

class OpenWebPageTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void thePageIsNotedInTempUrlAndOpened() {
    DataFolder folder;
    ScriptedDialogs dialogs;
    OpenWebPage(u"http://example.com/a?b=1"_s, folder.Disk, dialogs);
    QCOMPARE(folder.Bytes(u"/Temp.url"_s), "[InternetShortcut]\r\nURL = http://example.com/a?b=1\r\n");
    QCOMPARE(dialogs.Said, QStringList{u"page|http://example.com/a?b=1"_s});
  }

  void theShortcutStaysAndIsRewrittenAtEachUse() {
    DataFolder folder;
    folder.Put(u"/Temp.url"_s, "an older and much longer shortcut than the one that replaces it");
    folder.Put(u"/Backup/Temp.url"_s, "a copy");
    ScriptedDialogs dialogs;
    OpenWebPage(u"/m.html"_s, folder.Disk, dialogs);
    QCOMPARE(folder.Bytes(u"/Temp.url"_s), "[InternetShortcut]\r\nURL = /m.html\r\n");
    QCOMPARE(folder.Bytes(u"/Backup/Temp.url"_s), "a copy");
  }

  void withoutTheShortcutNoPageOpens() {
    DataFolder folder;
    ScriptedDialogs dialogs;
    folder.Device.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { OpenWebPage(u"/m.html"_s, folder.Disk, dialogs); }), 61);
    QCOMPARE(dialogs.Said, QStringList{});
    QCOMPARE(folder.Files(), QStringList{});
  }
};

QTEST_GUILESS_MAIN(OpenWebPageTest)
#include "tst_openWebPage.moc"
