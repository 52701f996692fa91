#include "records/PartialList.h"

#include "invoice/InvoiceImage.h"
#include "runtime/Numbers.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

PartialList::PartialList()
    : fgIncomplete(
          u"^Invoice No     |^Account Number|<Account Name                             |^Last Modified Date       "_s,
          2) {}

QString PartialList::SelectedInvoiceNo() const {
  return fgIncomplete.Row() == 0 ? QString() : TrimBlanks(fgIncomplete.Text(fgIncomplete.Row(), 0));
}

bool LoadPartialList(PartialList& list, CommonDiskRoutines& disk) {
  TextMatrix& grid = list.fgIncomplete;
  grid.Clear();
  const QString folder = PartialInvoicesFolder();
  list.FileNames = disk.ListFiles(folder, u"*.txt"_s);
  if (list.FileNames.isEmpty()) {
    grid.SetRows(2);
    grid.SetRow(0);
    return false;
  }
  grid.SetRows(list.Count() + 1);
  grid.SetRow(1);
  for (int row = 1; row <= list.Count(); ++row) {
    ListReader file = disk.OpenInputStart(folder + u'/' + list.FileNames.at(row - 1), grid.Cols());
    for (int column = 0; column < grid.Cols(); ++column) grid.SetText(row, column, file.ReadLine());
  }
  return true;
}
