#include "support/InvoiceFixture.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

QByteArray Bytes(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no file " + path.toStdString());
  return file.readAll();
}

}  // namespace

InvoiceFixture::InvoiceFixture()
    : Store(Device), Disk(Store, Root.path(), u"KarvexInvoicer"_s), Prices(Disk, Lists, SalesItems) {
  for (const auto& folder : {u"Backup"_s, u"Backup/KVActiveAccounts"_s, u"CompletedInvoices"_s, u"KVActiveAccounts"_s,
                             u"KarvexInvoicer/IncompleteInvoices"_s}) {
    QDir(Root.path()).mkpath(folder);
  }
  Invoice.DTPicker1 = Invoice.DTShip = Now.Today();
}

void InvoiceFixture::Write(const QString& name, const QByteArray& content) const {
  QFile file(Root.path() + name);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
    throw std::runtime_error("can't write " + name.toStdString());
  }
}

QByteArray InvoiceFixture::Read(const QString& name) const {
  return Bytes(Root.path() + name);
}

bool InvoiceFixture::Exists(const QString& name) const {
  return QFile::exists(Root.path() + name);
}

QMap<QString, QByteArray> InvoiceFixture::Tree() const {
  QMap<QString, QByteArray> files;
  QDirIterator walk(Root.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString path = walk.next();
    files.insert(path.sliced(Root.path().size()), Bytes(path));
  }
  return files;
}

void InvoiceFixture::AddLine(const QStringList& cells) {
  const int row = ++Invoice.LineCount;
  for (int column = 0; column < cells.size(); ++column) Invoice.fgInvoice.SetText(row, column, cells.at(column));
}

QStringList InvoiceFixture::Row(int row) const {
  QStringList cells;
  for (int column = 0; column < LineColumn::Count; ++column) cells << Invoice.fgInvoice.Text(row, column);
  return cells;
}
