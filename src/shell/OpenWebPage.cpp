#include "shell/OpenWebPage.h"

#include "runtime/Dialogs.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

void OpenWebPage(const QString& url, CommonDiskRoutines& disk, Dialogs& dialogs) {
  ListWriter shortcut;
  shortcut.Print(u"[InternetShortcut]"_s).Print(u"URL = "_s + url);
  disk.SaveFile(u"/Temp.url"_s, shortcut.Content(), BackupCopy::Kept);
  dialogs.OpenPage(url);
}
