// Looking for files and reading them.
#include <unistd.h>
#include <QtTest>

#include "runtime/FileStore.h"
#include "runtime/FolderMaker.h"
#include "support/ErrorOf.h"
#include "support/FailingDevice.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;
using Call = FailingDevice::Call;

class FileStoreTest : public QObject {
  Q_OBJECT

  std::unique_ptr<TemporaryTree> m_tree;
  FailingDevice m_device;
  FileStore m_store{m_device};

  QString Path(const QString& name) const { return m_tree->Path(name); }

 private Q_SLOTS:
  void init() {
    m_tree = std::make_unique<TemporaryTree>();
    m_device.Reset();
  }

  void aFileIsAFileOfAnyLengthAndAFolderIsNone() {
    m_tree->Write(u"/empty.txt"_s, "");
    m_tree->MakeFolder(u"/folder"_s);
    QVERIFY(QFile::link(Path(u"/empty.txt"_s), Path(u"/link.txt"_s)));
    QVERIFY(QFile::link(Path(u"/none.txt"_s), Path(u"/dangling.txt"_s)));
    QVERIFY(m_store.IsFile(Path(u"/empty.txt"_s)));
    QVERIFY(m_store.IsFile(Path(u"/link.txt"_s)));
    QVERIFY(!m_store.IsFile(Path(u"/dangling.txt"_s)));
    QVERIFY(!m_store.IsFile(Path(u"/folder"_s)));
    QVERIFY(!m_store.IsFile(Path(u"/none.txt"_s)));
    QVERIFY(m_store.IsFolder(Path(u"/folder"_s)));
    QVERIFY(!m_store.IsFolder(Path(u"/empty.txt"_s)));
  }

  void aFileBeyondAnyThatIsReadIsRefusedByName() {
    m_tree->Write(u"/huge.txt"_s, "");
    // Sparse: nothing of it is on the disk.
    QCOMPARE(::truncate(QFile::encodeName(Path(u"/huge.txt"_s)).constData(), LargestWholeFile + 1), 0);
    const RuntimeError huge = CaughtFrom([&] { m_store.ReadWhole(Path(u"/huge.txt"_s)); });
    QCOMPARE(huge.Number(), 6);
    QCOMPARE(huge.Subject(), Path(u"/huge.txt"_s));
    QCOMPARE(huge.Text(), u"The file is larger than any that the program can read."_s);
    QCOMPARE(ErrorOf([&] { m_store.Copy(Path(u"/huge.txt"_s), Path(u"/copy.txt"_s)); }), 6);
    QVERIFY(!m_tree->Exists(u"/copy.txt"_s));
    QCOMPARE(m_store.ReadPart(Path(u"/huge.txt"_s), LargestWholeFile, 8), QByteArray(1, '\0'));
    // Nor are its first lines read, where they have no end. Looked through again for each piece that is read, it would
    // last hours.
    const RuntimeError endless = CaughtFrom([&] { m_store.ReadLines(Path(u"/huge.txt"_s), 1); });
    QCOMPARE(endless.Number(), 6);
    QCOMPARE(endless.Subject(), Path(u"/huge.txt"_s));
    QCOMPARE(endless.Text(), u"The file is larger than any that the program can read."_s);
    // As long as the longest, it is read.
    QCOMPARE(::truncate(QFile::encodeName(Path(u"/huge.txt"_s)).constData(), LargestWholeFile), 0);
    QCOMPARE(m_store.ReadLines(Path(u"/huge.txt"_s), 1).size(), LargestWholeFile);
  }

  void aFileIsReadWholeOrInPart() {
    m_tree->Write(u"/a.txt"_s, "0123456789");
    QCOMPARE(m_store.Size(Path(u"/a.txt"_s)), qint64{10});
    QCOMPARE(m_store.ReadWhole(Path(u"/a.txt"_s)), "0123456789");
    QCOMPARE(m_device.Count(Call::Read), 1);
    QCOMPARE(m_store.ReadPart(Path(u"/a.txt"_s), 3, 4), "3456");
    QCOMPARE(m_store.ReadPart(Path(u"/a.txt"_s), 8, 4), "89");
    QCOMPARE(m_store.ReadPart(Path(u"/a.txt"_s), 20, 4), "");
  }

  void theFirstLinesAreReadWithoutTheRest() {
    const QByteArray head = "one\r\n\r\nthree\n";
    m_tree->Write(u"/a.txt"_s, head + QByteArray(100000, 'x'));
    QCOMPARE(m_store.ReadLines(Path(u"/a.txt"_s), 3), head);
    QCOMPARE(m_store.ReadLines(Path(u"/a.txt"_s), 1), "one\r\n");
    m_device.Reset();
    QCOMPARE(m_store.ReadLines(Path(u"/a.txt"_s), 3), head);
    QVERIFY(m_device.BytesRead() < 1000);
    QCOMPARE(m_device.Count(Call::Read), 1);
    // Long lines, and a last one without an end.
    const QByteArray line(3000, 'y');
    m_tree->Write(u"/b.txt"_s, line + "\r\n" + line + "\r\nend");
    QCOMPARE(m_store.ReadLines(Path(u"/b.txt"_s), 2), line + "\r\n" + line + "\r\n");
    QCOMPARE(m_store.ReadLines(Path(u"/b.txt"_s), 5), line + "\r\n" + line + "\r\nend");
    m_tree->Write(u"/c.txt"_s, "");
    QCOMPARE(m_store.ReadLines(Path(u"/c.txt"_s), 5), "");
    const RuntimeError missing = CaughtFrom([&] { m_store.ReadLines(Path(u"/none.txt"_s), 5); });
    QCOMPARE(missing.Number(), 53);
    QCOMPARE(missing.Subject(), Path(u"/none.txt"_s));
  }

  void whatCannotBeReadIsToldWithItsPath() {
    m_tree->Write(u"/a.txt"_s, "x");
    const RuntimeError missing = CaughtFrom([&] { m_store.ReadWhole(Path(u"/none.txt"_s)); });
    QCOMPARE(missing.Number(), 53);
    QCOMPARE(missing.Subject(), Path(u"/none.txt"_s));
    QCOMPARE(ErrorOf([&] { m_store.ReadWhole(Path(u"/none/a.txt"_s)); }), 76);
    QCOMPARE(ErrorOf([&] { m_store.Size(Path(u"/none.txt"_s)); }), 53);
    QCOMPARE(ErrorOf([&] { m_store.ReadWhole(Path(u""_s)); }), 75);  // a folder
    m_device.FailAt(Call::Open, 1, EACCES);
    QCOMPARE(ErrorOf([&] { m_store.ReadWhole(Path(u"/a.txt"_s)); }), 70);
    m_device.FailAt(Call::Read, 1, EIO);
    QCOMPARE(ErrorOf([&] { m_store.ReadWhole(Path(u"/a.txt"_s)); }), 75);
    QCOMPARE(m_device.Count(Call::Close), 1);
  }

  void filesAreListedByNameWithoutFolders() {
    for (const QString& name : {u"/1002.txt"_s, u"/1001.txt"_s, u"/b.txt"_s, u"/A.txt"_s, u"/c.TXT"_s, u"/d.txt.new"_s,
                                u"/e.tmp"_s, u"/f[1].txt"_s}) {
      m_tree->Write(name, "");
    }
    m_tree->MakeFolder(u"/folder.txt"_s);
    QVERIFY(QFile::link(Path(u"/A.txt"_s), Path(u"/link.txt"_s)));
    QVERIFY(QFile::link(Path(u"/folder.txt"_s), Path(u"/link to a folder.txt"_s)));
    QCOMPARE(m_store.List(Path(u""_s), u"*.txt"_s), (QStringList{u"1001.txt"_s, u"1002.txt"_s, u"A.txt"_s, u"b.txt"_s,
                                                                 u"c.TXT"_s, u"f[1].txt"_s, u"link.txt"_s}));
    QCOMPARE(m_store.List(Path(u""_s), u"100?.txt"_s), (QStringList{u"1001.txt"_s, u"1002.txt"_s}));
    QCOMPARE(m_store.List(Path(u"/none"_s), u"*.txt"_s), QStringList{});
  }

  void whatTheWriterIsWritingIsNotListed() {
    m_tree->Write(u"/Standard.new"_s, "");
    QVERIFY(!m_store.AnyMatch(Path(u""_s), u"*"_s));
    m_tree->Write(u"/Standard"_s, "");
    QCOMPARE(m_store.List(Path(u""_s), u"*"_s), QStringList{u"Standard"_s});
  }

  void aFolderThatCannotBeReadIsNoEmptyOne() {
    m_tree->Write(u"/file"_s, "");
    QVERIFY(QFile::link(Path(u"/round"_s), Path(u"/round"_s)));
    const QString tooLong = Path(u'/' + QString(300, u'x'));
    for (const auto& [folder, number] : {std::pair{Path(u"/file"_s), 76}, {Path(u"/round"_s), 75}, {tooLong, 64}}) {
      const RuntimeError listed = CaughtFrom([&] { m_store.List(folder, u"*"_s); });
      QCOMPARE(listed.Number(), number);
      QCOMPARE(listed.Subject(), folder);
      QCOMPARE(ErrorOf([&] { m_store.AnyMatch(folder, u"*"_s); }), number);
    }
  }

  void aWildcardMatchesWithoutRegardToCase() {
    m_tree->Write(u"/A.TXT"_s, "");
    QVERIFY(m_store.AnyMatch(Path(u""_s), u"*.txt"_s));
    m_tree->Write(u"/b.Txt"_s, "");
    m_tree->Write(u"/c.doc"_s, "");
    QCOMPARE(m_store.List(Path(u""_s), u"*.txt"_s), (QStringList{u"A.TXT"_s, u"b.Txt"_s}));
  }

  void anyMatchIsEnough() {
    m_tree->MakeFolder(u"/folder.txt"_s);
    m_tree->Write(u"/a.tmp"_s, "");
    QVERIFY(!m_store.AnyMatch(Path(u""_s), u"*.txt"_s));
    m_tree->Write(u"/a.txt"_s, "");
    QVERIFY(m_store.AnyMatch(Path(u""_s), u"*.txt"_s));
    QVERIFY(!m_store.AnyMatch(Path(u"/none"_s), u"*.txt"_s));
  }

  void aMatchThatWentAnswersNoLonger() {
    m_tree->Write(u"/a.txt"_s, "");
    QVERIFY(m_store.AnyMatch(Path(u""_s), u"*.txt"_s));
    QVERIFY(!m_store.AnyMatch(Path(u""_s), u"*.doc"_s));
    m_tree->Remove(u"/a.txt"_s);
    QVERIFY(!m_store.AnyMatch(Path(u""_s), u"*.txt"_s));
    m_tree->Write(u"/b.txt"_s, "");
    QVERIFY(m_store.AnyMatch(Path(u""_s), u"*.txt"_s));
    m_tree->Write(u"/c.txt"_s, "");
    m_tree->Remove(u"/b.txt"_s);
    QVERIFY(m_store.AnyMatch(Path(u""_s), u"*.txt"_s));
    m_tree->Remove(u"/c.txt"_s);
    m_tree->MakeFolder(u"/c.txt"_s);
    QVERIFY(!m_store.AnyMatch(Path(u""_s), u"*.txt"_s));
  }

  void namesOutsideAsciiAreFoundAgain() {
    m_store.ReplaceWhole(Path(u"/M\u00fcller \u20ac.txt"_s), "x");
    QCOMPARE(m_store.List(Path(u""_s), u"*.txt"_s), QStringList{u"M\u00fcller \u20ac.txt"_s});
    QCOMPARE(m_store.ReadWhole(Path(u"/M\u00fcller \u20ac.txt"_s)), "x");
  }

  void aFolderIsMadeOnce() {
    m_store.MakeFolder(Path(u"/f"_s));
    m_store.MakeFolder(Path(u"/f"_s));
    QCOMPARE(m_tree->List(), QStringList{u"f/"_s});
    QCOMPARE(ErrorOf([&] { m_store.MakeFolder(Path(u"/none/f"_s)); }), 76);
    m_tree->Write(u"/file"_s, "");
    QCOMPARE(ErrorOf([&] { m_store.MakeFolder(Path(u"/file"_s)); }), 75);
    m_device.FailAt(Call::MakeFolder, 1, EROFS);
    QCOMPARE(CaughtFrom([&] { m_store.MakeFolder(Path(u"/g"_s)); }).Number(), 70);
  }

  void whatIsDiscardedGoesAndAFailureOfThatIsSilent() {
    m_tree->Write(u"/left.txt"_s, "half");
    m_device.FailAlways(Call::Remove, EROFS);
    m_store.Discard(Path(u"/left.txt"_s));
    QCOMPARE(m_tree->Bytes(u"/left.txt"_s), "half");
    m_device.Reset();
    m_store.Discard(Path(u"/left.txt"_s));
    QVERIFY(!m_tree->Exists(u"/left.txt"_s));
    m_store.Discard(Path(u"/left.txt"_s));
    QCOMPARE(m_device.Count(Call::Remove), 2);
  }

  void nothingIsDiscardedThroughALinkedFolder() {
    const TemporaryTree outside;
    outside.Write(u"/a.txt"_s, "old");
    QVERIFY(QFile::link(outside.Root(), Path(u"/link"_s)));
    FileStore(m_device, m_tree->Root()).Discard(Path(u"/link/a.txt"_s));
    QCOMPARE(outside.Bytes(u"/a.txt"_s), "old");
  }

  void manyFoldersAreMadeUnderOneParent() {
    FolderMaker maker(m_store, m_tree->Root());
    maker.Make("a");
    maker.Make("a/b");
    maker.Make("a/b");
    QCOMPARE(m_device.Count(Call::MakeFolder), 2);
    QCOMPARE(m_tree->List(u"/a"_s), QStringList{u"b/"_s});
    QCOMPARE(ErrorOf([&] { maker.Make("none/c"); }), 76);
    m_tree->Write(u"/file"_s, "");
    QCOMPARE(ErrorOf([&] { maker.Make("file"); }), 75);
    m_device.FailAt(Call::MakeFolder, 1, ENOSPC);
    const RuntimeError full = CaughtFrom([&] { maker.Make("d"); });
    QCOMPARE(full.Number(), 61);
    QCOMPARE(full.Subject(), Path(u"/d"_s));
    QCOMPARE(ErrorOf([&] { const FolderMaker none(m_store, Path(u"/none"_s)); }), 76);
  }

  void aLinkInAFoldersPlaceIsNotFollowedByTheMaker() {
    const TemporaryTree outside;
    QVERIFY(QFile::link(outside.Root(), Path(u"/a"_s)));
    FolderMaker maker(m_store, m_tree->Root());
    const RuntimeError error = CaughtFrom([&] { maker.Make("a"); });
    QCOMPARE(error.Number(), 75);
    QCOMPARE(error.Subject(), Path(u"/a"_s));
    QCOMPARE(m_device.Count(Call::MakeFolder), 0);
  }

  void aStoreThatKnowsItsTreeChangesNothingThroughALinkedFolder_data() {
    QTest::addColumn<std::function<void(FileStore&, QString)>>("act");
    using Act = std::function<void(FileStore&, QString)>;
    const auto row = [](const char* name, const Act& act) { QTest::newRow(name) << act; };
    row("a save", [](FileStore& store, const QString& folder) { store.ReplaceWhole(folder + u"/a.txt"_s, "new"); });
    row("a record", [](FileStore& store, const QString& folder) { store.WriteInPlace(folder + u"/a.txt"_s, 0, "n"); });
    row("a copy",
        [](FileStore& store, const QString& folder) { store.Copy(folder + u"/a.txt"_s, folder + u"/b.txt"_s); });
    row("a rename away",
        [](FileStore& store, const QString& folder) { store.Rename(folder + u"/a.txt"_s, folder + u"/../b.txt"_s); });
    row("a removal", [](FileStore& store, const QString& folder) { store.Remove(folder + u"/a.txt"_s); });
    row("a folder", [](FileStore& store, const QString& folder) { store.MakeFolder(folder + u"/f"_s); });
    row("the folder itself", [](FileStore& store, const QString& folder) { store.MakeFolder(folder); });
    row("a path", [](FileStore& store, const QString& folder) { store.MakePath(folder + u"/f/g"_s); });
  }
  void aStoreThatKnowsItsTreeChangesNothingThroughALinkedFolder() {
    using Act = std::function<void(FileStore&, QString)>;
    QFETCH(Act, act);
    const TemporaryTree outside;
    outside.Write(u"/a.txt"_s, "old");
    outside.MakeFolder(u"/deep"_s);
    outside.Write(u"/deep/a.txt"_s, "old");
    FileStore store(m_device, m_tree->Root());
    QVERIFY(QFile::link(outside.Root(), Path(u"/link"_s)));
    for (const QString& folder : {Path(u"/link"_s), Path(u"/link/deep"_s)}) {
      const RuntimeError error = CaughtFrom([&] { act(store, folder); });
      QCOMPARE(error.Number(), 75);
      QCOMPARE(error.Subject(), Path(u"/link"_s));
      QVERIFY2(error.Text().contains(u"is a link"_s), qPrintable(error.Text()));
      QCOMPARE(outside.Everything(), (QMap<QString, QByteArray>{{u"/a.txt"_s, "old"}, {u"/deep/a.txt"_s, "old"}}));
      QCOMPARE(outside.List(), (QStringList{u"a.txt"_s, u"deep/"_s}));
      QCOMPARE(outside.List(u"/deep"_s), QStringList{u"a.txt"_s});
      QCOMPARE(store.ReadWhole(folder + u"/a.txt"_s), "old");
    }
  }

  void theTreeMayBeReachedByALinkItself() {
    const TemporaryTree elsewhere;
    QVERIFY(QFile::link(m_tree->Root(), elsewhere.Path(u"/root"_s)));
    FileStore store(m_device, elsewhere.Path(u"/root"_s));
    store.MakeFolder(elsewhere.Path(u"/root/f"_s));
    store.ReplaceWhole(elsewhere.Path(u"/root/f/a.txt"_s), "new");
    QCOMPARE(m_tree->Bytes(u"/f/a.txt"_s), "new");
  }

  void aStoreWithoutATreeFollowsLinkedFolders() {
    const TemporaryTree outside;
    QVERIFY(QFile::link(outside.Root(), Path(u"/link"_s)));
    m_store.ReplaceWhole(Path(u"/link/a.pdf"_s), "page");
    QCOMPARE(outside.Bytes(u"/a.pdf"_s), "page");
  }

  void everyFileIsClosedAgain() {
    m_tree->Write(u"/a.txt"_s, "x");
    m_store.ReadWhole(Path(u"/a.txt"_s));
    m_store.ReplaceWhole(Path(u"/a.txt"_s), "y");
    m_store.WriteInPlace(Path(u"/a.txt"_s), 0, "z");
    m_store.Copy(Path(u"/a.txt"_s), Path(u"/b.txt"_s));
    QCOMPARE(m_device.Count(Call::Close), m_device.Count(Call::Open));
    m_device.FailAt(Call::Write, 1, EIO);
    QCOMPARE(ErrorOf([&] { m_store.ReplaceWhole(Path(u"/a.txt"_s), "y"); }), 75);
    QCOMPARE(m_device.Count(Call::Close), m_device.Count(Call::Open));
  }
};

QTEST_GUILESS_MAIN(FileStoreTest)
#include "tst_fileStore.moc"
