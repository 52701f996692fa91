/// "Print Blank Invoices": asks how many empty forms to print.
#pragma once

#include "desktop/Screen.h"
#include "printing/BlankInvoices.h"

class Screens;
namespace Ui {
class frmBlanks;
}

class frmBlanks final : public Screen {
 public:
  frmBlanks(ScreenHost& host, Screens& screens, const BlanksDesk& desk);
  ~frmBlanks() override;

  void Activate() override;

 private:
  std::unique_ptr<Ui::frmBlanks> m_ui;
};
