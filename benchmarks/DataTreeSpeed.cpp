#include <sys/stat.h>
#include <algorithm>
#include <vector>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Trees.h"
#include "customers/CustomerFolders.h"
#include "runtime/Clock.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/DataTree.h"

using namespace Qt::StringLiterals;

void MeasureDataTree(const QString& fullTree) {
  FileDevice device;
  FileStore store(device);
  CommonDiskRoutines disk(store, fullTree, u"KarvexInvoicer"_s);
  SystemClock clock;
  const auto makeAll = [&] {
    MakeDataTree(disk, clock);
    MakeCustomerFolders(disk);
  };
  makeAll();

  std::vector<QByteArray> folders;
  for (int i = 0; i < Limit::Customers; ++i) {
    const QByteArray folder = fullTree.toLocal8Bit() + "/AuxFiles/" + QByteArray::number(100000 + i);
    folders.push_back(folder);
    for (int n = 0; n < 6; ++n) folders.push_back(folder + "/AuxFile" + QByteArray::number(n));
  }
  const Pair times = MediansOf(5, makeAll, [&] {
    for (const QByteArray& folder : folders) mkdir(folder.constData(), 0777);
  });
  MustHold(std::all_of(folders.begin(), folders.end(),
                       [](const QByteArray& folder) {
                         struct stat found;
                         return stat(folder.constData(), &found) == 0 && S_ISDIR(found.st_mode);
                       }),
           u"every customer has all folders"_s);
  Report(u"start with all customers' folders there, over the raw calls"_s, times, 1);
}
