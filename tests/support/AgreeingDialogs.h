/// The `Dialogs` of rules that run without a screen: it says yes to everything, shows nothing and keeps nothing. Where
/// real boxes come up, AnyAnswer presses their buttons.
#pragma once

#include "runtime/Dialogs.h"

class AgreeingDialogs final : public Dialogs {
 public:
  void ShowMessage(const QString&, const QString&) override {}
  bool AskYesNo(const QString&, const QString&) override { return true; }
  bool AskOkCancel(const QString&, const QString&) override { return true; }
  QString AskText(const QString&, const QString&) override { return {}; }
  void Beep() override {}
  QString ChooseFile(const QString&, const QString&) override { return {}; }
  quint32 ChooseColor(quint32 current) override { return current; }
  QString ChooseFont(const QString& current) override { return current; }
  void OpenPage(const QString&) override {}
};
