#include "invoice/InvoiceTemplates.h"

#include "invoice/ClearInvoice.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/ErrorText.h"

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

/// What the line costs, as it reads. Errors name the template.
QString ProductText(const QString& quantity, const QString& price, const QString& subject) {
  try {
    return CurrencyText(ParseLeadingNumber(quantity) * ToNumber(price));
  } catch (const RuntimeError& error) {
    throw error.AsEvent(subject);
  }
}

void ShowRecord(TextMatrix& grid, int row, const RecordView& record, const QString& subject) {
  const QString quantity = record.Text(0, 10);
  const QString price = record.Text(55, 10);
  grid.SetText(row, LineColumn::UnitPrice, price);
  grid.SetText(row, LineColumn::Quantity, quantity);
  grid.SetText(row, LineColumn::Description, record.Text(10, 45));
  grid.SetText(row, LineColumn::Extension, ProductText(quantity, price, subject));
  grid.SetText(row, LineColumn::ApplyTax, record.Text(65, 5));
}

/// After a delete nothing is selected while the buttons stay enabled.
bool IsSelected(const TemplateDesk& desk, const QString& fileName) {
  if (fileName.isEmpty())
    Tell(desk.Invoice, desk.Boxes, u"Select a Template in the list first"_s, u"No Template selected"_s);
  return !fileName.isEmpty();
}

/// The failure of a load with what the user can do about it. The usual words alone would be untrue: no start of the
/// program makes the folder, what is damaged may stand in either of two files, and the invoice was cleared before.
RuntimeError LoadFailure(const RuntimeError& error, const CommonDiskRoutines& disk, const QString& fileName) {
  const QString opened = disk.PathOf(OpenedName(fileName));
  const QString counted = disk.PathOf(CountedName(fileName));
  QString subject = error.ShownSubject(disk.DataRoot());
  QString text = error.Text();
  QString advice;
  switch (error.Number()) {
    case ErrorNumber::PathNotFound:
      advice =
          u"The program doesn't make that folder. Make it, put a copy of %1 there as %2, then load the template "
          "again."_s.arg(counted, fileName);
      break;
    case ErrorNumber::OutOfRange:
      subject = counted;
      text = u"It counts more lines than the %1 of an invoice."_s.arg(MaximumLines);
      advice = u"Remove the file and save the template anew, then copy it and load it again."_s;
      break;
    case ErrorNumber::TypeMismatch:
    case ErrorNumber::InputPastEnd:
    case ErrorNumber::Overflow:
      if (!subject.startsWith(u'/')) subject = opened;  // An extension too large to be written names no file.
      advice =
          u"A template is read from %1, and its lines are counted in %2: put the same good file in both "
          "places, then load it again."_s.arg(opened, counted);
      break;
    default:
      advice = UsualRemedy(error);
  }
  return RuntimeError::AtPath(error.Number(), subject, text)
      .WithAdvice(advice + u" The invoice was cleared for the load: enter again what it held."_s);
}

void LoadRecords(const TemplateDesk& desk, const QString& fileName) {
  WorkingInvoice& invoice = desk.Invoice;
  invoice.LineCount = static_cast<qint16>(desk.Disk.RecordCount(CountedName(fileName), RecordLength));
  const QString name = OpenedName(fileName);
  const RecordBuffer records = desk.Disk.OpenRandomFile(name, RecordLength).ReadAll();
  for (int row = 1; row <= invoice.LineCount; ++row) ShowRecord(invoice.fgInvoice, row, records.Record(row), name);
}

}  // namespace

QString TemplateFolder() {
  return u"\\KarvexInvoicer\\Templates\\Invoices"_s;
}

bool LoadTemplate(const TemplateDesk& desk, const QString& fileName) {
  if (!IsSelected(desk, fileName)) return false;
  ClearInvoice(desk.Invoice, desk.Today);
  try {
    LoadRecords(desk, fileName);
    return true;
  } catch (const RuntimeError& error) {
    // A load that fails on the way must not leave a count of lines that aren't there.
    ClearGrid(desk.Invoice);
    throw LoadFailure(error, desk.Disk, fileName);
  }
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
  try {
    desk.Disk.SaveFile(SavedName(name), records + content.mid(records.size()), BackupCopy::Kept);
  } catch (const RuntimeError& error) {
    if (error.Number() != ErrorNumber::PathNotFound) throw;
    throw error.WithAdvice(u"Save the template under a name without / and \\. Nothing was lost."_s);
  }
  return true;
}

bool DeleteTemplate(const TemplateDesk& desk, const QString& fileName) {
  if (!IsSelected(desk, fileName)) return false;
  desk.Invoice.Show();
  if (!desk.Boxes.AskOkCancel(u"This will Delete Template\r\n"_s + fileName, u"Template Deletion"_s)) return false;
  const QString name = TemplateFolder() + u'\\' + fileName;
  if (!desk.Disk.Store().IsFile(desk.Disk.PathOf(name))) throw RuntimeError(ErrorNumber::FileNotFound, name);
  desk.Disk.KillDataFile(name);
  return true;
}
