#include "records/PartialPurge.h"

#include "invoice/InvoiceImage.h"
#include "records/PartialList.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

void PurgeAllPartials(PartialList& list, CommonDiskRoutines& disk) {
  disk.KillEveryFile(PartialInvoicesFolder());
  LoadPartialList(list, disk);
}

void PurgeSelectedPartial(PartialList& list, CommonDiskRoutines& disk) {
  const TextMatrix& grid = list.fgIncomplete;
  // Row 0 is the heading.
  if (grid.Row() < 1) return;
  disk.KillDataFile(InvoiceImageName(grid.Text(grid.Row(), 0), false));
  LoadPartialList(list, disk);
}
