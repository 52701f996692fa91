#include "support/InvoiceBench.h"

#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

QByteArray Text(const QByteArray& text, int width) {
  return text.leftJustified(width, ' ', true);
}

template <typename Number>
QByteArray Little(Number value) {
  QByteArray bytes(sizeof(Number), '\0');
  qToLittleEndian(value, bytes.data());
  return bytes;
}

QByteArray Service(const QByteArray& name, const QByteArray& charge) {
  return Text(name, 60) + Text(charge, 10) + Little<qint16>(4);
}

/// Amounts in ten-thousandths.
QByteArray Item(const QByteArray& name, const QByteArray& category, qint64 price, qint16 onHand, qint64 breakPrice,
                qint32 breakUnits) {
  return Text(name, 50) + Text(category, 20) + Little<qint64>(0) + Little<qint64>(price) + Little<qint16>(onHand) +
         Little<qint64>(breakPrice) + Little<qint32>(breakUnits) + Little<qint16>(0) + Little<qint16>(0);
}

QByteArray Custom(const QByteArray& name, qint64 price, qint64 breakPrice, qint32 breakUnits) {
  return Text(name, 50) + Little<qint64>(price) + Little<qint64>(breakPrice) + Little<qint32>(breakUnits);
}

}  // namespace

InvoiceBench::InvoiceBench() {
  Tree.Write(u"/Services.txt"_s, Service("Cleaning", "$40.00") + Service("Repair", "$80.00"));
  Tree.Write(u"/KVInventoriedItems.txt"_s, Item("Hammer", "Hardware", 120000, 10, 100000, 5) +
                                               Item("Nails", "Hardware", 50000, 3, 40000, 0) +
                                               Item("Paint", "Colour", 333350, 20, 300000, 10));
  Tree.Write(u"/CustomItems.txt"_s, Custom("Sign", 250000, 200000, 4) + Custom("Banner", 600000, 500000, 2));
  Tree.Write(u"/Labor.txt"_s, "\"General Labor\",\"$45.00\"\r\n\"Night Labor\",\"$90.00\"\r\n\"\",\"$0.00\"\r\n");
}

void InvoiceBench::Open() {
  if (!StartAtMenu()) return;
  SoldTo customer;
  customer.Acct = Customer[0];
  for (int i = 0; i < 7; ++i) customer.Line[static_cast<size_t>(i)] = Customer[i + 1];
  Running().Hide(ScreenName::frmStartup);
  Running().StartInvoiceFor(customer);
  m_screen = std::make_unique<ScreenDriver>(u"frmInvoice"_s);
}

void InvoiceBench::OpenAtLines() {
  Open();
  On().Click(u"cmdInvoice_0"_s);
}

QString InvoiceBench::Cell(int row, int col) const {
  const auto* model = On().Control<QTableView>(u"fgInvoice"_s)->model();
  return model->index(row - 1, col).data().toString();
}

QStringList InvoiceBench::Row(int row) const {
  QStringList cells;
  for (int col = 0; col < 6; ++col) cells.append(Cell(row, col));
  return cells;
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
