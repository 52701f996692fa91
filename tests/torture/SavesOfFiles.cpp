// The saves of Setup, the customers and the catalogue, the start and the end of the program.
#include <QCheckBox>
#include <QListWidget>
#include <QTableView>
#include <QTabWidget>

#include "records/SoldItems.h"
#include "support/CompletedImages.h"
#include "torture/Desk.h"
#include "torture/Saves.h"

using namespace Qt::StringLiterals;

namespace {

const QString Customers = u"frmNewCustomer"_s;
const QString CustomerFile = u"/CustomerData.txt"_s;

void Turn(const ScreenDriver& screen, const QString& tabs, int tab) {
  screen.Control<QTabWidget>(tabs)->setCurrentIndex(tab);
  ScreenDriver::ProcessEvents();
}

Save Setup() {
  return ByClick(
      u"setup"_s, u"frmSetup"_s,
      [](Desk&) {
        ScreenDriver(u"frmStartup"_s).Trigger(u"mnuCreate"_s);
        const ScreenDriver setup(u"frmSetup"_s);
        setup.Fill(u"txtBusiness_0"_s, u"Grove and Sons"_s);
        Turn(setup, u"tabInfo"_s, 2);
        Turn(setup, u"SSTab2"_s, 1);
        setup.PickEntry(u"cboRate1"_s, u"7.0"_s);
        if (!setup.Control<QCheckBox>(u"ckLabor"_s)->isChecked()) setup.Click(u"ckLabor"_s);
      },
      u"cmdQuit"_s);
}

Save CustomerAdd() {
  return ByClick(
      u"customer-add"_s, Customers,
      [](Desk& desk) {
        desk.OpenRoutine(0);
        const ScreenDriver screen(Customers);
        screen.Trigger(u"mnuAdd"_s);
        screen.Fill(u"txtCustomer_0"_s, u"1004"_s);
        screen.Fill(u"txtCustomer_1"_s, u"Dune Hotel"_s);
      },
      u"cmdNav_0"_s);
}

Save CustomerEdit() {
  return ByClick(
      u"customer-edit"_s, Customers,
      [](Desk& desk) {
        desk.OpenRoutine(0);
        ScreenDriver(Customers).Fill(u"txtCustomer_2"_s, u"99 New Street"_s);
      },
      u"cmdCustomer_0"_s);
}

Save CustomerDelete() {
  Save save = ByEntry(
      u"customer-delete"_s, Customers,
      [](Desk& desk) {
        desk.OpenRoutine(0);
        ScreenDriver(Customers).Click(u"cmdNav_3"_s);
      },
      u"mnuDelete"_s);
  // Once the shorter file stands the customer is gone; his ledger may outlive a kill, and no customer is listed for it.
  save.IsDone = [](const DataTree& left, const DataTree& after) {
    return left.value(CustomerFile) == after.value(CustomerFile);
  };
  save.MayLag = {u"/Backup"_s + CustomerFile, u"/KVActiveAccounts/1003.txt"_s, u"/Backup/KVActiveAccounts/1003.txt"_s};
  return save;
}

Save Auxiliary(const QString& name, const QString& button) {
  return ByClick(
      name, Customers,
      [](Desk& desk) {
        desk.OpenRoutine(0);
        const ScreenDriver screen(Customers);
        screen.Trigger(u"mnuAux"_s);
        for (int box = 0; box < 6; ++box) {
          screen.Fill(u"txtHeading_%1"_s.arg(box), u"Heading %1"_s.arg(box));
          screen.Fill(u"txtAux_%1"_s.arg(box), u"Note %1"_s.arg(box));
        }
      },
      button);
}

Save SpeedNumbers() {
  Save save = ByClick(
      u"speed-numbers"_s, u"frmDialer"_s,
      [](Desk& desk) {
        desk.OpenRoutine(0);
        ScreenDriver(Customers).Click(u"Image1_1"_s);
        const ScreenDriver dialer(u"frmDialer"_s);
        dialer.Click(u"cmdDialer_1"_s);
        dialer.Fill(u"txtDialer_0"_s, u"Bob"_s);
        dialer.Fill(u"txtDialer_1"_s, u"777"_s);
      },
      u"cmdSpeedDialer_0"_s);
  save.Stock = [](DataTree& tree) {
    tree[u"/SpeedNumbers.txt"_s] = "\"Ann\"\r\n\"555\"\r\n";
    tree[u"/Backup/SpeedNumbers.txt"_s] = "\"Ann\"\r\n\"444\"\r\n";
  };
  save.IsDone = [](const DataTree& left, const DataTree& after) {
    return left.value(u"/SpeedNumbers.txt"_s) == after.value(u"/SpeedNumbers.txt"_s);
  };
  save.MayLag = {u"/Backup/SpeedNumbers.txt"_s};
  return save;
}

Save CompletedPurge() {
  Save save = ByClick(
      u"completed-purge"_s, u"frmReprint"_s, [](Desk&) { OpenReprint(); }, u"cmdKill"_s);
  save.Stock = [](DataTree& tree) {
    for (const QByteArray number : {"900", "901"}) {
      const QString file = QString::fromLatin1(number) + u".txt"_s;
      const QByteArray image = Image(number, "Acme Tools", "12/31/2025", "$900.00");
      tree[u"/CompletedInvoices/"_s + file] = image;
      tree[u"/Backup/CompletedInvoices/"_s + file] = image;
      tree[u"/KarvexInvoicer/Narratives/"_s + file] = "Said then\r\n";
    }
    tree[u"/CompletedInvoices/20260016.txt"_s] = Image("20260016", "Acme Tools", "3/8/2026", "$25.00");
  };
  // An image that is gone isn't listed any more: the narrative that a kill spared is beyond the next purge.
  save.Again = [](const DataTree& left, const DataTree&, const DataTree& after) {
    DataTree tree = after;
    for (const auto& [name, bytes] : left.asKeyValueRange()) {
      const bool spared = name.contains(u"/Narratives/") && name.endsWith(u".txt") &&
                          !left.contains(u"/CompletedInvoices/"_s + name.section(u'/', -1));
      if (spared) tree[name] = bytes;
    }
    return tree;
  };
  save.IsDone = [](const DataTree& left, const DataTree&) {
    return !left.contains(u"/CompletedInvoices/900.txt"_s) && !left.contains(u"/CompletedInvoices/901.txt"_s);
  };
  save.MayLag = {u"/KarvexInvoicer/Narratives/900.txt"_s, u"/KarvexInvoicer/Narratives/901.txt"_s};
  return save;
}

Save SalesPurge() {
  Save save = ByEntry(
      u"sales-purge"_s, u"frmSalesReport"_s, [](Desk& desk) { desk.OpenRoutine(5); }, u"mnuDelete"_s);
  save.Stock = [](DataTree& tree) {
    tree[u"/SoldItems.txt"_s] = Sold("Crate", Day::Feb4, "20260001", 2) + Sold("Crate", Day::Mar1, "20260016", 3) +
                                Sold("Hammer", Day::Feb4, "20260002", 1);
    tree[u"/Backup/SoldItems.txt"_s] = Sold("Crate", Day::Feb4, "20260001", 2);
  };
  return save;
}

Save CatalogueSave() {
  return ByClick(
      u"catalogue"_s, u"frmServices"_s,
      [](Desk& desk) {
        desk.OpenRoutine(3);
        const ScreenDriver screen(u"frmServices"_s);
        Turn(screen, u"tabServices"_s, 0);
        // Where a kill came after it was stored, the grid shows it.
        if (screen.Control<QTableView>(u"fgServices"_s)->model()->rowCount() > 1) return;
        screen.Click(u"cmdServices_1"_s);
        screen.Fill(u"txtDescription_0"_s, u"Pruning"_s);
        screen.Fill(u"txtCharge_0"_s, u"35"_s);
        screen.Control<QListWidget>(u"lstTime"_s)->setCurrentRow(2);
        screen.Click(u"cmdServices_4"_s);
      },
      u"cmdServices_0"_s);
}

/// One of two goes, and the three lists are saved; the only one of its list goes with its file.
Save CatalogueDelete(const QString& name, int tab, const QString& grid, const QString& button, const QString& file) {
  Save save = ByClick(
      name, u"frmServices"_s,
      [tab, grid](Desk& desk) {
        desk.OpenRoutine(3);
        const ScreenDriver screen(u"frmServices"_s);
        Turn(screen, u"tabServices"_s, tab);
        screen.SelectRow(grid, 1);
      },
      button);
  // The row is gone once its file is as it was to be; a second delete would hit another.
  save.IsDone = [file](const DataTree& left, const DataTree& after) { return left.value(file) == after.value(file); };
  return save;
}

Save ServiceDelete() {
  Save save = CatalogueDelete(u"catalogue-delete"_s, 0, u"fgServices"_s, u"cmdServices_2"_s, u"/Services.txt"_s);
  save.Stock = [](DataTree& tree) {
    const QByteArray mowing = tree[u"/Services.txt"_s];
    tree[u"/Services.txt"_s] = mowing + QByteArray(mowing).replace(0, 6, "Raking");
  };
  save.MayLag = {u"/Backup/Services.txt"_s, u"/Backup/KVInventoriedItems.txt"_s, u"/Backup/CustomItems.txt"_s};
  return save;
}

Save LastCustomItemDelete() {
  return CatalogueDelete(u"catalogue-delete-last"_s, 3, u"fgCustom"_s, u"cmdServices_20"_s, u"/CustomItems.txt"_s);
}

Save Labor() {
  return ByClick(
      u"labor"_s, u"frmServices"_s,
      [](Desk& desk) {
        desk.OpenRoutine(3);
        const ScreenDriver screen(u"frmServices"_s);
        Turn(screen, u"tabServices"_s, 2);
        screen.Fill(u"txtLabor_1"_s, u"Arborist"_s);
        screen.Fill(u"txtLaborRate_1"_s, u"90"_s);
      },
      u"cmdServices_17"_s);
}

/// The note of the page that is opened, here the manual.
Save WebPage() {
  Save save = ByEntry(
      u"web-page"_s, u"frmStartup"_s, [](Desk&) {}, u"mnuHelp"_s);
  save.Stock = [](DataTree& tree) {
    tree[u"/Temp.url"_s] = "[InternetShortcut]\r\nURL = /program/suppliers/plain-printer-paper.html\r\n";
  };
  return save;
}

Save ExitBackup() {
  Save save{.Name = u"exit-backup"_s};
  save.Stock = [](DataTree& tree) {
    tree[u"/Labor.txt"_s] = "\"General Labor\",\"$50.00\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n";
    tree[u"/KVInvoiceNo.txt"_s] = "20260018\r\n";
    tree.remove(u"/Backup/Services.txt"_s);
  };
  save.Prepare = [](Desk&) {};
  save.Perform = [](Desk&) { ScreenDriver(u"frmStartup"_s).Trigger(u"mnuExit"_s); };
  save.Tells = Save::Telling::PassesOver;
  return save;
}

Save StartSaves(const QString& name, std::function<void(DataTree&)> stock) {
  Save save{.Name = name, .Stock = std::move(stock)};
  save.Perform = [](Desk& desk) {
    if (desk.Start()) desk.GoToMenu();
  };
  return save;
}

Save Restore() {
  return StartSaves(u"restore-from-backup"_s, [](DataTree& tree) {
    for (const auto* name : {"/KarvexInvoicerSettings.txt", "/MyBusinessData.txt", "/TaxSettings.txt", "/Services.txt",
                             "/InvoiceMemo.txt", "/CustomerData.txt", "/KVInvoiceNo.txt"}) {
      tree.remove(QString::fromLatin1(name));
    }
  });
}

Save FirstStart() {
  return StartSaves(u"first-start"_s, [](DataTree& tree) {
    const DataTree business = std::exchange(tree, {});
    for (const auto* name : {"/KarvexInvoicerSettings.txt", "/MyBusinessData.txt", "/Phone.txt", "/CustomerData.txt"}) {
      tree[QString::fromLatin1(name)] = business.value(QString::fromLatin1(name));
    }
  });
}

}  // namespace

std::vector<Save> SavesOfFiles() {
  return {FirstStart(),
          Restore(),
          Setup(),
          CustomerAdd(),
          CustomerEdit(),
          CustomerDelete(),
          CatalogueSave(),
          ServiceDelete(),
          LastCustomItemDelete(),
          Auxiliary(u"auxiliary-headings"_s, u"cmdSaveAux_0"_s),
          Auxiliary(u"auxiliary-data"_s, u"cmdSaveAux_1"_s),
          Labor(),
          SpeedNumbers(),
          CompletedPurge(),
          SalesPurge(),
          WebPage(),
          ExitBackup()};
}
