#include "customers/CustomerFolders.h"

#include "customers/CustomerFile.h"
#include "runtime/FolderMaker.h"
#include "runtime/RecordFile.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

QString AuxFolder() {
  return u"/AuxFiles"_s;
}

QString AuxBoxFolderName(int box) {
  return u"AuxFile"_s + QString::number(box);
}

void MakeCustomerFolders(CommonDiskRoutines& disk) {
  CustomerFile file(disk);
  const int count = file.Count();
  if (count == 0) return;
  const RecordBuffer customers = file.ReadAll();
  QList<QByteArray> boxes;
  for (int box = 0; box < AuxBoxCount; ++box) boxes << '/' + FolderMaker::Encoded(AuxBoxFolderName(box));
  FolderMaker folders(disk.Store(), disk.PathOf(AuxFolder()));
  for (int number = 1; number <= count; ++number) {
    const auto [offset, width] = CustomerField::AcctNo;
    const QString account = customers.Record(number).Text(offset, width);
    if (!CanNameAFile(account)) continue;
    const QByteArray folder = FolderMaker::Encoded(account);
    folders.Make(folder);
    for (const QByteArray& box : boxes) folders.Make(folder + box);
  }
  disk.CloseAllFiles();
}
