#include "invoice/InvoiceTemplates.h"

#include <QScopeGuard>

#include "invoice/ClearInvoice.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int RecordLength = 70;

QString SavedName(const QString& name) {
  return u"\\KarvexInvoicer\\Templates\\Invoices"_s + name + u".txt"_s;
}
QString CountedName(const QString& fileName) {
  return u"\\KarvexInvoicer\\Templates\\Invoices"_s + fileName;
}
QString OpenedName(const QString& fileName) {
  return u"\\Templates\\Invoices\\"_s + fileName;
}

/// Other names aren't tested: what the prompt asks for is a request.
bool LeavesTheFolder(const QString& name) {
  return name.contains(QChar::Null) || SavedName(name).replace(u'\\', u'/').split(u'/').contains(u".."_s);
}

bool MayReplace(const TemplateDesk& desk, const QString& name) {
  if (!desk.Disk.FileExists(SavedName(name))) return true;
  // No blank before "already"; that is meant.
  return Ask(desk.Invoice, desk.Boxes,
             u"A Template Named "_s + name + u"already Exists.\r\nPress Yes to Replace the Existing Template"_s,
             u"Template Exists"_s);
}

QByteArray TemplateRecord(const TextMatrix& grid, int row) {
  RecordBuilder record(RecordLength);
  record.Text(0, 10, grid.Text(row, LineColumn::Quantity));
  record.Text(10, 45, grid.Text(row, LineColumn::Description));
  // The first character is the currency sign; on a line that came from a template it is the first digit.
  record.Text(55, 10, QStringView(grid.Text(row, LineColumn::UnitPrice)).mid(1));
  record.Text(65, 5, grid.Text(row, LineColumn::ApplyTax));
  return record.Record();
}

/// Services, whose quantity is blank, stay out; "2 Hrs" of labor counts as 2.
QByteArray Records(const TextMatrix& grid) {
  QByteArray records;
  for (int row = 1; row < grid.Rows(); ++row) {
    if (ParseLeadingNumber(grid.Text(row, LineColumn::Quantity)) > 0) records += TemplateRecord(grid, row);
  }
  return records;
}

void ShowRecord(TextMatrix& grid, int row, const RecordView& record, const QString& subject) {
  const QString quantity = record.Text(0, 10);
  const QString price = record.Text(55, 10);
  grid.SetText(row, LineColumn::UnitPrice, price);
  grid.SetText(row, LineColumn::Quantity, quantity);
  grid.SetText(row, LineColumn::Description, record.Text(10, 45));
  grid.SetText(row, LineColumn::Extension, CurrencyText(ParseLeadingNumber(quantity) * ToNumber(price, subject)));
  grid.SetText(row, LineColumn::ApplyTax, record.Text(65, 5));
}

}  // namespace

QString TemplateFolder() {
  return u"\\KarvexInvoicer\\Templates\\Invoices"_s;
}

void LoadTemplate(const TemplateDesk& desk, const QString& fileName) {
  WorkingInvoice& invoice = desk.Invoice;
  ClearInvoice(invoice, desk.Today);
  // A load that fails on the way must not leave a count of lines that aren't there.
  auto failed = qScopeGuard([&invoice] { ClearGrid(invoice); });
  invoice.LineCount = static_cast<qint16>(desk.Disk.RecordCount(CountedName(fileName), RecordLength));
  const QString name = OpenedName(fileName);
  const RecordBuffer records = desk.Disk.OpenRandomFile(name, RecordLength).ReadAll();
  for (int row = 1; row <= invoice.LineCount; ++row) ShowRecord(invoice.fgInvoice, row, records.Record(row), name);
  failed.dismiss();
}

bool SaveAsTemplate(const TemplateDesk& desk) {
  desk.Invoice.Show();
  const QString name = desk.Boxes.AskText(
      u"Enter a Name for this Template\r\nDo not enter /\\,.-:; Characters\r\n"
      "Do not enter .txt (this is done automatically"_s,
      u"Save Invoice Template"_s);
  if (name.isEmpty()) return false;
  if (LeavesTheFolder(name)) {
    Tell(desk.Invoice, desk.Boxes,
         u"The name of the Template names its file, and \"%1\" can't name a file of the template folder."_s.arg(name));
    return false;
  }
  if (!MayReplace(desk, name)) return false;
  const QByteArray records = Records(desk.Invoice.fgInvoice);
  // A shorter list over a longer template keeps the old records behind it; that is meant.
  QByteArray content;
  if (desk.Disk.FileExists(SavedName(name))) content = desk.Disk.Store().ReadWhole(desk.Disk.PathOf(SavedName(name)));
  desk.Disk.SaveFile(SavedName(name), records + content.mid(records.size()), BackupCopy::Kept);
  return true;
}

bool DeleteTemplate(const TemplateDesk& desk, const QString& fileName) {
  desk.Invoice.Show();
  if (!desk.Boxes.AskOkCancel(u"This will Delete Template\r\n"_s + fileName, u"Template Deletion"_s)) return false;
  const QString name = TemplateFolder() + u'\\' + fileName;
  if (!desk.Disk.Store().IsFile(desk.Disk.PathOf(name))) throw RuntimeError(ErrorNumber::FileNotFound, name);
  desk.Disk.KillDataFile(name);
  return true;
}
