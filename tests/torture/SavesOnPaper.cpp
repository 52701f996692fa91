// What is saved around the paper: the logo, the memo of a reprint, and the PDF files of print jobs.
#include <QTabWidget>

#include "support/CompletedImages.h"
#include "torture/Desk.h"
#include "torture/Saves.h"

using namespace Qt::StringLiterals;

namespace {

const QString Setup = u"frmSetup"_s;
const QString Reprint = u"frmReprint"_s;
const QString Picture = u"/grove.pbm"_s;
const QString LogoPath = u"/CompanyLogo.txt"_s;
const QString Report = u"/Printed/Report.pdf"_s;

void OpenLogo() {
  ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
  ScreenDriver(Setup).Control<QTabWidget>(u"tabInfo"_s)->setCurrentIndex(3);
  ScreenDriver::ProcessEvents();
}

void StockLogo(DataTree& tree) {
  tree[LogoPath] = "\"/an/older/one.png\"\r\n";
  tree[u"/Backup"_s + LogoPath] = "\"/the/oldest.png\"\r\n";
}

/// The picture stays where the user has it; here that is in the tree, so that its reading is harmed as well.
Save Logo() {
  const auto findAndSize = [](Desk& desk) {
    OpenLogo();
    desk.ChosenFile = desk.Root() + Picture;
    const ScreenDriver setup(Setup);
    setup.Click(u"cmdLogo_0"_s);
    setup.Click(u"cmdLogo_3"_s);
  };
  Save save = ByClick(u"logo"_s, Setup, findAndSize, u"cmdLogo_1"_s);
  save.Stock = [](DataTree& tree) {
    StockLogo(tree);
    tree[Picture] = "P1\n2 2\n1 0\n0 1\n";
    tree[u"/LogoSettings.txt"_s] = "1440,1440\r\n";
    tree[u"/Backup/LogoSettings.txt"_s] = "1440,1440\r\n";
  };
  return save;
}

Save LogoDeleted() {
  Save save = ByClick(
      u"logo-deleted"_s, Setup, [](Desk&) { OpenLogo(); }, u"cmdLogo_2"_s);
  save.Stock = &StockLogo;
  return save;
}

void StockCompleted(DataTree& tree) {
  tree[u"/CompletedInvoices/20260016.txt"_s] = Image("20260016", "Acme Tools", "3/8/2026", "$25.00");
}

void OpenCompletedInvoice() {
  OpenReprint();
  ScreenDriver(Reprint).SelectRow(u"fgReceivables"_s, 1);
}

/// A print job's own message is all that is told; a memo that couldn't be saved isn't printed either.
Save ReprintMemo() {
  const auto type = [](Desk&) {
    OpenCompletedInvoice();
    ScreenDriver(Reprint).Fill(u"txtMemo"_s, u"Closed on Monday"_s);
  };
  Save save = ByClick(u"reprint-memo"_s, Reprint, type, u"cmdPrint"_s);
  save.Stock = &StockCompleted;
  return save;
}

Save MemoCleared() {
  Save save = ByClick(
      u"memo-cleared"_s, Reprint, [](Desk&) { OpenCompletedInvoice(); }, u"cmdMemo"_s);
  save.Stock = &StockCompleted;
  return save;
}

/// Over the report of yesterday, which the user chose to replace.
Save PdfReplaced() {
  const auto choose = [](Desk& desk) {
    OpenReprint();
    desk.ChosenFile = desk.Root() + Report;
  };
  Save save = ByClick(u"pdf-replaced"_s, Reprint, choose, u"cmdReport"_s);
  save.Stock = [](DataTree& tree) {
    StockCompleted(tree);
    tree[u"/Printed/"_s] = "";
    tree[Report] = "%PDF-1.4\nyesterday's report\n";
  };
  save.OnPaper = true;
  return save;
}

/// A job that asks for no file makes one of a new name, and the folder with it.
Save PdfNew() {
  Save save = ByClick(
      u"pdf-new"_s, Setup, [](Desk&) { OpenLogo(); }, u"cmdLogo_5"_s);
  save.OnPaper = true;
  return save;
}

}  // namespace

std::vector<Save> SavesOnPaper() {
  return {Logo(), LogoDeleted(), ReprintMemo(), MemoCleared(), PdfReplaced(), PdfNew()};
}
