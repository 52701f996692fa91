#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <QFile>
#include <QTemporaryDir>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Trees.h"
#include "desktop/QtDialogs.h"
#include "records/CompletedInvoice.h"
#include "records/CompletedInvoices.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "shell/CommonDiskRoutines.h"
#include "shell/DataTree.h"
#include "shell/MainMenu.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Many = 10000;
constexpr int Few = 10;
constexpr int Lines = 20;
/// Of what takes microseconds.
constexpr int Repeats = 200;

/// An image of `Lines` lines; names and dates that differ and aren't in order.
QByteArray Image(int i) {
  const QByteArray number = QByteArray::number(20260001 + i);
  const QByteArray name = QByteArray::number((i * 7919LL) % 99991, 36) + " Trading " + QByteArray::number(i);
  const QByteArray date = ShortDateText(QDate(2020, 1, 1).addDays((i * 31) % 2200)).toLatin1();
  QByteArray image = number + "\r\n1001\r\n" + name + "\r\n" + date + "\r\n$1,234.50\r\n";
  for (int line = 0; line < 12; ++line) image += "\"12 Grove Road\"\r\n";
  image +=
      "UPS Ground\r\n" + date + "\r\n" + number + "\r\n1001\r\nPO 5\r\nAnn\r\n" + QByteArray::number(Lines) + "\r\n";
  for (int line = 0; line < Lines; ++line)
    image += "2\r\nItem number " + QByteArray::number(line) + " of the catalogue\r\n\r\n$12.50\r\n$25.00\r\nTrue\r\n";
  return image + "\"$500.00\",\"$30.00\",\"$0.00\",\"$1,234.50\",\"$0.00\",\"$0.00\",\"$0.00\"\r\n";
}

/// A tree with that many completed invoices.
struct Business {
  explicit Business(int invoices) : Store(Files), Disk(Store, Tree.path(), u"KarvexInvoicer"_s) {
    FillTree(Tree.path(), 1, Limit::Catalogue, 1);
    MakeDataTree(Disk, SystemClock());
    for (int i = 0; i < invoices; ++i) {
      // Not by the checked writer, which brings each to the disk.
      QFile file(Tree.path() + u"/CompletedInvoices/%1.txt"_s.arg(20260001 + i));
      const QByteArray image = Image(i);
      MustHold(file.open(QIODevice::WriteOnly) && file.write(image) == image.size(), u"the images are written"_s);
    }
  }

  QTemporaryDir Tree;
  FileDevice Files;
  FileStore Store;
  CommonDiskRoutines Disk;
};

/// The same folder gone through, each image opened and five lines read, by the C library alone.
void ReadFiveLinesOfEach(const QByteArray& folder) {
  DIR* listing = ::opendir(folder.constData());
  char line[256];
  while (const dirent* entry = ::readdir(listing)) {
    if (entry->d_type != DT_REG) continue;
    std::FILE* file = std::fopen((folder + '/' + entry->d_name).constData(), "r");
    for (int i = 0; i < 5 && std::fgets(line, sizeof line, file) != nullptr; ++i) continue;
    std::fclose(file);
  }
  ::closedir(listing);
}

/// What the menu has to know, by the system's calls alone: five files, and the first names of the images' folder.
void LookByTheSystemAlone(const QString& tree) {
  const QByteArray root = tree.toLocal8Bit();
  struct stat status;
  for (const char* file :
       {"/Services.txt", "/KVInventoriedItems.txt", "/InvoiceSalesJournal.txt", "/SoldItems.txt", "/TaxRecords.txt"})
    MustHold(::stat((root + file).constData(), &status) == 0, u"the files are there"_s);
  const int folder = ::open((root + "/CompletedInvoices").constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  char names[1024];
  MustHold(::getdents64(folder, names, sizeof names) > 0, u"the folder holds images"_s);
  ::close(folder);
}

void Repeat(const std::function<void()>& work) {
  for (int i = 0; i < Repeats; ++i) work();
}

void ReportTime(const QString& operation, double milliseconds, double aim) {
  std::printf("%-66s %8.2f ms %11s %8s %3.0f ms\n", qPrintable(operation), milliseconds, "", "", aim);
  std::fflush(stdout);
}

}  // namespace

void MeasureCompleted() {
  Business large(Many);
  Business small(Few);
  QtDialogs dialogs;
  CompletedInvoices list;
  const QByteArray folder = large.Tree.path().toLocal8Bit() + "/CompletedInvoices";
  const Pair listing = MediansOf(
      7, [&] { LoadCompletedInvoices(list, large.Disk); }, [&] { ReadFiveLinesOfEach(folder); });
  MustHold(list.fgReceivables.Rows() == Many + 1, u"every completed invoice is listed"_s);
  Report(u"list of 10,000 completed invoices, over opening each and five lines"_s, listing, 2);

  CompletedInvoice shown;
  const auto open = [&shown](Business& business) {
    Repeat([&] {
      MustHold(OpenCompletedInvoice(shown, business.Disk, u"20260005"_s, u"1/1/2020"_s), u"the invoice opens"_s);
    });
  };
  Report(u"200 clicks on one of 10,000 completed invoices, over one of ten"_s,
         MediansOf(
             7, [&] { open(large); }, [&] { open(small); }),
         1);

  const auto menu = [&dialogs](Business& business) {
    const MainMenuContext context{business.Disk, dialogs, {}, [] { return 0; }, {}};
    Repeat([&] { MustHold(UpdateMainMenu(context).Visible[2], u"the menu offers the completed invoices"_s); });
  };
  Report(u"200 times the main menu's tests, 10,000 completed invoices over ten"_s,
         MediansOf(
             7, [&] { menu(large); }, [&] { menu(small); }),
         1);
  // The first time after the start the program knows none of them by name.
  const auto firstMenu = [&](Business& business) {
    Repeat([&] {
      FileStore store(business.Files);
      CommonDiskRoutines disk(store, business.Tree.path(), u"KarvexInvoicer"_s);
      const MainMenuContext context{disk, dialogs, {}, [] { return 0; }, {}};
      MustHold(UpdateMainMenu(context).Visible[2], u"the menu offers the completed invoices"_s);
    });
  };
  Report(u"200 times the menu's first tests at 10,000, over the raw calls"_s,
         MediansOf(
             7, [&] { firstMenu(large); }, [&] { Repeat([&] { LookByTheSystemAlone(large.Tree.path()); }); }),
         2);

  const QStringList keys{u"invoice number"_s, u"invoice date"_s, u"account name"_s};
  for (int key = 0; key < keys.size(); ++key) {
    for (int order = 0; order < 2; ++order) {
      const double time = MedianOf(
          7, [&] { SortCompletedInvoices(list, key, order); }, [&] { SortCompletedInvoices(list, (key + 1) % 3, 0); });
      ReportTime(u"10,000 rows sorted by %1, %2"_s.arg(keys[key], order == 0 ? u"ascending"_s : u"descending"_s), time,
                 100);
    }
  }
}
