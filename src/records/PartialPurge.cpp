#include "records/PartialPurge.h"

#include "invoice/InvoiceImage.h"
#include "records/PartialList.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

void PurgeAllPartials(PartialList& list, CommonDiskRoutines& disk) {
  const QString folder = u"/KarvexInvoicer/IncompleteInvoices"_s;
  for (const QString& file : disk.ListFiles(folder, u"*"_s)) disk.KillDataFile(folder + u'/' + file);
  LoadPartialList(list, disk);
}

void PurgeSelectedPartial(PartialList& list, CommonDiskRoutines& disk) {
  const TextMatrix& grid = list.fgIncomplete;
  disk.KillDataFile(InvoiceImageName(grid.Text(grid.Row(), 0), false));
  LoadPartialList(list, disk);
}
