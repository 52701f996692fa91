// The saves of the invoice screen and of the partial invoices.
#include <QListWidget>
#include <QTableView>
#include <QtEndian>

#include "torture/Desk.h"
#include "torture/Saves.h"

using namespace Qt::StringLiterals;

namespace {

const QString Invoice = u"frmInvoice"_s;
const QString Number = u"/KVInvoiceNo.txt"_s;
const QString Partials = u"frmIncomplete"_s;

void ToInvoice(Desk& desk) {
  desk.OpenRoutine(0);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdCustomer_1"_s);
}

void OpenInvoice(Desk& desk) {
  ToInvoice(desk);
  ScreenDriver(Invoice).Click(u"cmdInvoice_0"_s);
}

void PostLines(Desk& desk) {
  OpenInvoice(desk);
  const ScreenDriver invoice(Invoice);
  invoice.Trigger(u"mnuServices"_s);
  invoice.PickEntry(u"cboDescription_0"_s, u"Mowing"_s);
  invoice.Click(u"cmdPost_0"_s);
  invoice.Trigger(u"mnuItems"_s);
  invoice.PickEntry(u"cboDescription_1"_s, u"Crate"_s);
  invoice.Fill(u"txtUnits"_s, u"2"_s);
  invoice.Click(u"cmdPost_1"_s);
  invoice.PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  invoice.Fill(u"txtUnits"_s, u"3"_s);
  invoice.Click(u"cmdPost_1"_s);
}

Save OnInvoice(const QString& name, std::function<void(Desk&)> prepare, const QString& button) {
  return ByClick(name, Invoice, std::move(prepare), button);
}

Save Terms() {
  return OnInvoice(
      u"terms"_s,
      [](Desk& desk) {
        PostLines(desk);
        const ScreenDriver invoice(Invoice);
        invoice.Click(u"cmdPrint"_s);
        invoice.PickEntry(u"cboTerms"_s, 3);
      },
      u"cmdReadyPrint_0"_s);
}

Save Carrier() {
  return OnInvoice(
      u"carrier"_s,
      [](Desk& desk) {
        PostLines(desk);
        const ScreenDriver invoice(Invoice);
        invoice.Click(u"cmdPrint"_s);
        invoice.Click(u"cmdInvoice_6"_s);
        invoice.PickEntry(u"cboShipping"_s, u"UPS - Ground"_s);
      },
      u"cmdReadyPrint_1"_s);
}

Save Memo() {
  return OnInvoice(
      u"memo"_s,
      [](Desk& desk) {
        OpenInvoice(desk);
        const ScreenDriver invoice(Invoice);
        invoice.Trigger(u"mnuMemo"_s);
        invoice.Fill(u"txtMemo"_s, u"Closed on Monday"_s);
      },
      u"cmdInvoiceMemo_2"_s);
}

Save Narrative(const QString& name, const QString& button) {
  return OnInvoice(
      name,
      [](Desk& desk) {
        OpenInvoice(desk);
        const ScreenDriver invoice(Invoice);
        invoice.Trigger(u"mnuNarrative"_s);
        invoice.Fill(u"txtNarrative"_s, u"Two trees were felled"_s);
      },
      button);
}

Save Template(const QString& name, const QByteArray& older) {
  Save save = OnInvoice(
      name,
      [](Desk& desk) {
        PostLines(desk);
        ScreenDriver(Invoice).Trigger(u"mnuCreate"_s);
        desk.InputText = u"Monthly"_s;
      },
      u"cmdTemplate_2"_s);
  if (!older.isNull()) {
    save.Stock = [older](DataTree& tree) { tree[u"/KarvexInvoicer/Templates/InvoicesMonthly.txt"_s] = older; };
  }
  return save;
}

Save TemplateDelete() {
  Save save = OnInvoice(
      u"template-delete"_s,
      [](Desk& desk) {
        ToInvoice(desk);
        ScreenDriver(Invoice).Control<QListWidget>(u"flstInvoiceTemplates"_s)->setCurrentRow(0);
        ScreenDriver::ProcessEvents();
      },
      u"cmdTemplate_1"_s);
  save.Stock = [](DataTree& tree) {
    for (const auto* name : {"Monthly", "Yearly"}) {
      tree[u"/KarvexInvoicer/Templates/Invoices/%1.txt"_s.arg(QString::fromLatin1(name))] = QByteArray(70 * 5, ' ');
    }
  };
  return save;
}

/// The invoice screen, as it comes up, writes the number that it offers: here the first one of a new year.
Save OpenedNumber() {
  Save save = ByClick(
      u"invoice-number"_s, u"frmNewCustomer"_s, [](Desk& desk) { desk.OpenRoutine(0); }, u"cmdCustomer_1"_s);
  save.Stock = [](DataTree& tree) {
    tree[Number] = "20250123\r\n";
    tree[u"/Backup"_s + Number] = "20250122\r\n";
  };
  save.MayLag = {u"/Backup"_s + Number};
  save.IsDone = [](const DataTree& left, const DataTree& after) { return left.value(Number) == after.value(Number); };
  return save;
}

/// A box that asks whether to print a draft is answered by yes as well.
Save PartialSave() {
  Save save = OnInvoice(u"partial-save"_s, PostLines, u"cmdSave"_s);
  save.MayLag = {u"/Backup"_s + Number};
  save.IsDone = [](const DataTree& left, const DataTree& after) { return left.value(Number) == after.value(Number); };
  return save;
}

/// The inventory with the units of one more invoice taken off, in the records that have them off already.
QByteArray LoweredAgain(QByteArray left, const QByteArray& before, const QByteArray& after) {
  constexpr int length = 104, onHand = 86;
  for (int at = 0; at < left.size(); at += length) {
    const auto stock = [at](const QByteArray& file) {
      return qFromLittleEndian<qint16>(file.constData() + at + onHand);
    };
    const auto lower = static_cast<qint16>(stock(left) - stock(before) + stock(after));
    qToLittleEndian(lower, left.data() + at + onHand);
  }
  return left;
}

/// Finishing the same invoice again: its records are appended again to what the kill left, its units taken off again;
/// what bears its number is written anew.
DataTree CommittedAgain(const DataTree& left, const DataTree& before, const DataTree& after) {
  DataTree tree = after;
  for (auto [name, bytes] : tree.asKeyValueRange()) {
    if (RecordLengthOf(name) == 0 || name.startsWith(u"/Backup/") || name == u"/CustomerData.txt") continue;
    const QByteArray old = before.value(name), held = left.value(name);
    if (name == u"/KVInventoriedItems.txt") {
      bytes = LoweredAgain(held, old, after.value(name));
    } else {
      // A ledger that the first try opened has its opening record.
      const bool opened = old.isEmpty() && name.startsWith(u"/KVActiveAccounts/") && !held.isEmpty();
      bytes = held + after.value(name).mid(opened ? RecordLengthOf(name) : old.size());
    }
  }
  for (auto [name, bytes] : tree.asKeyValueRange()) {
    if (name.startsWith(u"/Backup/KVActiveAccounts/") && bytes != before.value(name)) bytes = tree.value(name.mid(7));
  }
  return tree;
}

Save Commit(const QString& name, std::function<void(Desk&)> prepare, const QString& button) {
  Save save = OnInvoice(name, std::move(prepare), button);
  save.Screen = u"frmStartup"_s;
  save.FromMenu = true;
  save.Tells = Save::Telling::SkipsRest;
  save.Again = CommittedAgain;
  save.MayLag = {u"/Backup"_s + Number};
  save.IsDone = [](const DataTree& left, const DataTree& after) { return left.value(Number) == after.value(Number); };
  return save;
}

Save PlainCommit() {
  return Commit(
      u"commit"_s,
      [](Desk& desk) {
        PostLines(desk);
        const ScreenDriver invoice(Invoice);
        invoice.Click(u"cmdPrint"_s);
        invoice.Click(u"cmdInvoice_9"_s);
      },
      u"cmdInvoiceContinue"_s);
}

Save PrepaidCommit() {
  Save save = Commit(
      u"commit-prepaid"_s,
      [](Desk& desk) {
        PostLines(desk);
        const ScreenDriver invoice(Invoice);
        invoice.Click(u"cmdPrint"_s);
        invoice.Click(u"ckPrepaid"_s);
        invoice.Click(u"cmdInvoice_9"_s);
      },
      u"cmdPrepaid_0"_s);
  // The first invoice of all: no journal, no ledger, no records yet.
  save.Stock = [](DataTree& tree) {
    for (const auto* name : {"/SoldItems.txt", "/InvoiceSalesJournal.txt", "/TaxRecords.txt"}) {
      tree.remove(QString::fromLatin1(name));
      tree.remove(u"/Backup"_s + QString::fromLatin1(name));
    }
    tree.remove(u"/KVActiveAccounts/1001.txt"_s);
    tree.remove(u"/Backup/KVActiveAccounts/1001.txt"_s);
  };
  return save;
}

Save RecalledCommit() {
  const QString image = u"/KarvexInvoicer/IncompleteInvoices/20260009.txt"_s;
  Save save = Commit(
      u"commit-recalled"_s,
      [](Desk& desk) {
        desk.OpenRoutine(1);
        ScreenDriver(Partials).SelectRow(u"fgIncomplete"_s, 2);
        ScreenDriver(Partials).Click(u"Command1_1"_s);
        const ScreenDriver invoice(Invoice);
        invoice.Click(u"cmdInvoice_0"_s);
        invoice.Trigger(u"mnuItems"_s);
        invoice.PickEntry(u"cboDescription_1"_s, u"Crate"_s);
        invoice.Fill(u"txtUnits"_s, u"2"_s);
        invoice.Click(u"cmdPost_1"_s);
        invoice.Click(u"cmdPrint"_s);
        invoice.Click(u"cmdInvoice_9"_s);
      },
      u"cmdInvoiceContinue"_s);
  save.IsDone = [image](const DataTree& left, const DataTree&) { return !left.contains(image); };
  return save;
}

Save Purge(const QString& name, const QString& button, int rows) {
  Save save{.Name = name};
  save.Prepare = [rows](Desk& desk) {
    desk.OpenRoutine(1);
    ScreenDriver(Partials).SelectRow(u"fgIncomplete"_s, rows);
  };
  save.Perform = [button, rows](Desk&) {
    const ScreenDriver partials(Partials);
    // Whatever was answered, the button waits for a click on a row.
    if (!partials.IsEnabled(button)) partials.SelectRow(u"fgIncomplete"_s, rows);
    partials.Click(button);
  };
  save.Screen = Partials;
  return save;
}

/// Whichever of the two was removed first, the row that is left is the first.
Save PurgeAll() {
  return Purge(u"partial-purge-all"_s, u"Command1_2"_s, 1);
}

}  // namespace

std::vector<Save> SavesOfInvoices() {
  const QByteArray older = QByteArray(70 * 5, ' ');
  return {OpenedNumber(),
          Terms(),
          Carrier(),
          Memo(),
          Narrative(u"narrative"_s, u"cmdNarrative_0"_s),
          Narrative(u"narrative-default"_s, u"cmdNarrative_3"_s),
          Template(u"template"_s, {}),
          Template(u"template-replaced"_s, older),
          TemplateDelete(),
          PartialSave(),
          Purge(u"partial-purge"_s, u"Command1_3"_s, 2),
          PurgeAll(),
          PlainCommit(),
          PrepaidCommit(),
          RecalledCommit()};
}

std::vector<Save> AllSaves() {
  std::vector<Save> saves = SavesOfFiles();
  for (Save& save : SavesOfInvoices()) saves.push_back(std::move(save));
  for (Save& save : SavesOnPaper()) saves.push_back(std::move(save));
  return saves;
}
