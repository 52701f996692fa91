#include "shell/KarvexMasterModule.h"

#include "runtime/Dialogs.h"
#include "runtime/FolderLock.h"

using namespace Qt::StringLiterals;

bool CheckPreviousInstance(FolderLock& dataRoot, Dialogs& dialogs) {
  if (dataRoot.Take()) return true;
  dialogs.ShowMessage(u"Karvex Invoicer is already Running!\nLook for it on the Task Bar"_s);
  return false;
}
