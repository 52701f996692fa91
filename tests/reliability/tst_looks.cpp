// What can't be looked at isn't taken for absent: a broken disk would make the program replace it, or fetch its older
// copy over it.
#include <cerrno>
#include <QScopeGuard>
#include <QtTest>

#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "torture/FileCalls.h"

using namespace Qt::StringLiterals;

class LooksTest : public QObject {
  Q_OBJECT

  /// The first look below the root fails.
  static auto Failing(const DataFolder& folder, int error) {
    FileCalls::Arm(folder.Path({}).toLocal8Bit().constData(), {FileCalls::Harm::FailOnce, 1, error, 0});
    return qScopeGuard([] { FileCalls::Disarm(); });
  }

 private Q_SLOTS:
  void aFileThatCannotBeLookedAtIsNotReplacedByItsOlderCopy() {
    for (const int error : {EIO, EACCES, ENOMEM}) {
      DataFolder folder;
      folder.Put(u"/Labor.txt"_s, "new");
      folder.Put(u"/Backup/Labor.txt"_s, "old");
      const auto broken = Failing(folder, error);
      const RuntimeError told = CaughtFrom([&] { folder.Disk.FileExists(u"/Labor.txt"_s); });
      QCOMPARE(told.Number(), error == EACCES ? ErrorNumber::PermissionDenied : ErrorNumber::PathFileAccess);
      QCOMPARE(told.Subject(), folder.Path(u"/Labor.txt"_s));
      FileCalls::Disarm();
      QCOMPARE(folder.Bytes(u"/Labor.txt"_s), "new");
      QVERIFY(folder.Disk.FileExists(u"/Labor.txt"_s));
    }
  }

  void whatNoFileCanBeCalledIsAbsent() {
    for (const int error : {ENOENT, ENOTDIR, ENAMETOOLONG, ELOOP}) {
      DataFolder folder;
      folder.Put(u"/Labor.txt"_s, "new");
      const auto broken = Failing(folder, error);
      QVERIFY(!folder.Store.IsFile(folder.Path(u"/Labor.txt"_s)));
      QVERIFY(folder.Store.IsFile(folder.Path(u"/Labor.txt"_s)));
    }
  }

  void aFolderThatCannotBeLookedAtIsTold() {
    DataFolder folder;
    const auto broken = Failing(folder, EIO);
    const RuntimeError told = CaughtFrom([&] { folder.Store.IsFolder(folder.Path(u"/Backup"_s)); });
    QCOMPARE(told.Number(), ErrorNumber::PathFileAccess);
    QCOMPARE(told.Subject(), folder.Path(u"/Backup"_s));
  }
};

QTEST_GUILESS_MAIN(LooksTest)
#include "tst_looks.moc"
