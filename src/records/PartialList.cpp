#include "records/PartialList.h"

#include "runtime/Numbers.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"/KarvexInvoicer/IncompleteInvoices"_s;

}  // namespace

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
  list.FileNames = disk.ListFiles(Folder, u"*.txt"_s);
  if (list.FileNames.isEmpty()) {
    grid.SetRows(2);
    grid.SetRow(0);
    return false;
  }
  grid.SetRows(list.Count() + 1);
  grid.SetRow(1);
  for (int row = 1; row <= list.Count(); ++row) {
    ListReader file = disk.OpenInputFile(Folder + u'/' + list.FileNames.at(row - 1));
    for (int column = 0; column < grid.Cols(); ++column) grid.SetText(row, column, file.ReadLine());
  }
  return true;
}
