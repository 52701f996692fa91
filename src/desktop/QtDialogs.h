/// The user's boxes and dialogs, Qt's own.
#pragma once

#include "runtime/Dialogs.h"

class QtDialogs : public Dialogs {
 public:
  /// What the toolkit's dialogs would remember in the user's home isn't kept from now on.
  QtDialogs();
  void ShowMessage(const QString& text, const QString& title = {}) override;
  bool AskYesNo(const QString& text, const QString& title = {}) override;
  bool AskOkCancel(const QString& text, const QString& title = {}) override;
  QString AskText(const QString& prompt, const QString& title) override;
  void Beep() override;
  QString ChooseFile(const QString& title, const QString& filter) override;
  quint32 ChooseColor(quint32 current) override;
  QString ChooseFont(const QString& current) override;
  void OpenPage(const QString& address) override;
};
