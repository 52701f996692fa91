/// The real dialogs, with an ear for the beep and without a browser.
#pragma once

#include <QStringList>

#include "desktop/QtDialogs.h"

class TestDialogs : public QtDialogs {
 public:
  void Beep() override { ++Beeps; }
  void OpenPage(const QString& address) override { Pages.append(address); }

  int Beeps = 0;
  QStringList Pages;  ///< What was opened in the browser.
};
