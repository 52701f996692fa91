#include "support/InvoiceBench.h"

#include <QtTest>
#include <QtWidgets>

#include "desktop/SerialLine.h"
#include "desktop/Style.h"
#include "invoice/frmInvoice.h"
#include "invoice/InvoiceHeaderData.h"
#include "invoice/InvoiceLoad.h"

using namespace Qt::StringLiterals;

namespace {

QString NameOf(ScreenName screen) {
  switch (screen) {
    case ScreenName::frmInvoice:
      return u"frmInvoice"_s;
    case ScreenName::frmStartup:
      return u"frmStartup"_s;
    default:
      return u"another"_s;
  }
}

QByteArray Service(const QByteArray& name, const QByteArray& charge) {
  return Field(name, 60) + Field(charge, 10) + Bytes16(4);
}

QByteArray Item(const QByteArray& name, const QByteArray& category, qint64 price, int onHand, qint64 breakPrice,
                int breakUnits) {
  return Field(name, 50) + Field(category, 20) + Bytes64(0) + Bytes64(price) + Bytes16(onHand) + Bytes64(breakPrice) +
         Bytes32(breakUnits) + Bytes16(0) + Bytes16(0);
}

QByteArray Custom(const QByteArray& name, qint64 price, qint64 breakPrice, int breakUnits) {
  return Field(name, 50) + Bytes64(price) + Bytes64(breakPrice) + Bytes32(breakUnits);
}

}  // namespace

void NotingProgram::Show(ScreenName screen) {
  Asked << u"show "_s + NameOf(screen);
}

void NotingProgram::Hide(ScreenName screen) {
  Asked << u"hide "_s + NameOf(screen);
  if (screen == ScreenName::frmInvoice && Invoice != nullptr) Invoice->hide();
}

void NotingProgram::UnhandledError(const RuntimeError& error) {
  Errors << error.Number();
  Subjects << error.Subject();
}

InvoiceBench::InvoiceBench()
    : Store(Device),
      Disk(Store, Tree.Root(), u"KarvexInvoicer"_s),
      Prices(Disk, Lists, SalesItems),
      m_routines(Paper, Live.Print, m_dialog),
      m_pages(m_routines, Disk, Dialogs, Calendar, {Live.Business, Live.Print, Live.Tax}) {
  ApplyStyle(*qApp);
  for (const auto& folder :
       {u"/Backup/KVActiveAccounts"_s, u"/CompletedInvoices"_s, u"/KVActiveAccounts"_s, u"/KarvexInvoicer"_s,
        u"/KarvexInvoicer/IncompleteInvoices"_s, u"/KarvexInvoicer/Narratives"_s, u"/KarvexInvoicer/Templates"_s,
        u"/KarvexInvoicer/Templates/Invoices"_s}) {
    Tree.MakeFolder(folder);
  }
  Tree.Write(u"/Services.txt"_s, Service("Cleaning", "$40.00") + Service("Repair", "$80.00"));
  Tree.Write(u"/KVInventoriedItems.txt"_s, Item("Hammer", "Hardware", 120000, 10, 100000, 5) +
                                               Item("Nails", "Hardware", 50000, 3, 40000, 0) +
                                               Item("Paint", "Colour", 333350, 20, 300000, 10));
  Tree.Write(u"/CustomItems.txt"_s, Custom("Sign", 250000, 200000, 4) + Custom("Banner", 600000, 500000, 2));
  Tree.Write(u"/Labor.txt"_s, "\"General Labor\",\"$45.00\"\r\n\"Night Labor\",\"$90.00\"\r\n\"\",\"$0.00\"\r\n");
}

InvoiceBench::~InvoiceBench() = default;

void InvoiceBench::Open() {
  SerialLine noPorts(PortTable{});
  LoadSetup(
      noPorts, Disk, Live, [](const QByteArray&) { return false; },
      [this] { LoadInvoiceScreen(Invoice, Live.Invoicer, Disk, Calendar); });
  LoadSalesItems(SalesItems, Disk);
  Prices.Load();
  m_screen = std::make_unique<frmInvoice>(
      Around, InvoiceDesk{Invoice, Prices, Lists, Live, Disk, Dialogs, Calendar, Around, OnScreen, SalesItems,
                          m_routines, m_pages, [this] { return SelectedPartial; }, [this] { ++PartialReloads; }});
  Around.Invoice = m_screen.get();
  Reopen();
}

void InvoiceBench::Reopen() {
  SoldTo customer;
  customer.Acct = Customer[0];
  for (int i = 0; i < 7; ++i) customer.Line[static_cast<size_t>(i)] = Customer[i + 1];
  TakeSoldTo(Invoice, customer);
  OnScreen.txtCustomer0 = Customer[0];
  OnScreen.txtCustomer1 = Customer[1];
  m_screen->hide();
  m_screen->Activate();
  m_screen->show();
  m_screen->activateWindow();
  ScreenDriver::ProcessEvents();
  m_driver = std::make_unique<ScreenDriver>(m_screen.get());
}

void InvoiceBench::OpenAtLines() {
  Open();
  On().Click(u"cmdInvoice_0"_s);
}

void InvoiceBench::OpenAt(const QString& entry) {
  OpenAtLines();
  On().Trigger(entry);
}

void InvoiceBench::FillGrid(int lines) {
  for (int row = 1; row <= lines; ++row) {
    Invoice.fgInvoice.SetText(row, 0, u"1"_s);
    Invoice.fgInvoice.SetText(row, 1, u"Crate"_s);
    Invoice.fgInvoice.SetText(row, 3, u"$1.00"_s);
    Invoice.fgInvoice.SetText(row, 4, u"$1.00"_s);
    Invoice.fgInvoice.SetText(row, 5, u"False"_s);
  }
  Invoice.LineCount = static_cast<qint16>(lines);
}

QStringList InvoiceBench::Row(int row) const {
  const auto* model = On().Control<QTableView>(u"fgInvoice"_s)->model();
  QStringList cells;
  for (int col = 0; col < 6; ++col) cells.append(model->index(row - 1, col).data().toString());
  return cells;
}

bool InvoiceBench::Ticked(const QString& name) const {
  return On().Control<QAbstractButton>(name)->isChecked();
}

void InvoiceBench::PostManual(const QString& description, const QString& quantity, const QString& price) {
  On().Trigger(u"mnuManual"_s);
  On().Fill(u"txtManual_0"_s, description);
  On().Fill(u"txtManual_2"_s, quantity);
  On().Fill(u"txtManual_1"_s, price);
  On().Click(u"cmdPost_2"_s);
}

void InvoiceBench::Finalize() {
  On().Click(u"cmdPrint"_s);
  On().Click(u"cmdInvoice_9"_s);
}
