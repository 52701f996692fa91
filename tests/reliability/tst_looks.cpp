// What can't be looked at isn't taken for absent: a broken disk would make the program replace it, or fetch its older
// copy over it.
#include <cerrno>
#include <QScopeGuard>
#include <QtTest>

#include "runtime/FolderMaker.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"
#include "torture/FileCalls.h"

using namespace Qt::StringLiterals;

class LooksTest : public QObject {
  Q_OBJECT

  /// The first look below the root fails, or the nth call.
  static auto Failing(const DataFolder& folder, int error, int nth = 1) {
    FileCalls::Arm(folder.Path({}).toLocal8Bit().constData(), {FileCalls::Harm::FailOnce, nth, error, 0});
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

  void aFolderThatCannotBeListedIsNoEmptyOne() {
    DataFolder folder;
    folder.Put(u"/Labor.txt"_s, "new");
    // The folder is opened, its names are told, and that there are no more.
    for (int nth = 1; nth <= 3; ++nth) {
      const auto broken = Failing(folder, EIO, nth);
      const RuntimeError told = CaughtFrom([&] { folder.Store.List(folder.Path({}), u"*.txt"_s); });
      QCOMPARE(told.Number(), ErrorNumber::PathFileAccess);
      QCOMPARE(told.Subject(), folder.Path({}));
    }
    QCOMPARE(folder.Store.List(folder.Path({}), u"*.txt"_s), QStringList{u"Labor.txt"_s});
  }

  void whatMayBeALinkToElsewhereIsNotWrittenThrough() {
    DataFolder folder;
    FileStore tree(folder.Device, folder.Path({}));
    folder.Put(u"/Backup/Labor.txt"_s, "old");
    const auto broken = Failing(folder, EIO);
    const RuntimeError told = CaughtFrom([&] { tree.ReplaceWhole(folder.Path(u"/Backup/Labor.txt"_s), "new"); });
    QCOMPARE(told.Number(), ErrorNumber::PathFileAccess);
    QCOMPARE(told.Subject(), folder.Path(u"/Backup"_s));
    FileCalls::Disarm();
    QCOMPARE(folder.Bytes(u"/Backup/Labor.txt"_s), "old");
  }

  void whatMayBeALinkToElsewhereIsNoFolderToMakeAnotherIn() {
    DataFolder folder;
    folder.Store.MakePath(folder.Path(u"/Customers"_s));
    // The parent is opened before.
    const auto broken = Failing(folder, EIO, 2);
    FolderMaker maker(folder.Store, folder.Path(u"/Customers"_s));
    const RuntimeError told = CaughtFrom([&] { maker.Make("1001"); });
    QCOMPARE(told.Number(), ErrorNumber::PathFileAccess);
    QCOMPARE(told.Subject(), folder.Path(u"/Customers/1001"_s));
    QVERIFY(!folder.Store.IsFolder(folder.Path(u"/Customers/1001"_s)));
    maker.Make("1001");
    QVERIFY(folder.Store.IsFolder(folder.Path(u"/Customers/1001"_s)));
  }
};

QTEST_GUILESS_MAIN(LooksTest)
#include "tst_looks.moc"
