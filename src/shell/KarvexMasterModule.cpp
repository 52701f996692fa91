#include "shell/KarvexMasterModule.h"

#include "runtime/Dialogs.h"
#include "shell/PreviousInstance.h"

using namespace Qt::StringLiterals;

bool CheckPreviousInstance(PreviousInstance& instance, Dialogs& dialogs) {
  if (instance.Claim()) return true;
  dialogs.ShowMessage(u"Karvex Invoicer is already Running!\nLook for it on the Task Bar"_s);
  return false;
}
