// A file is never half written: whatever fails, and whenever the program is killed, the old content stands or the new.
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QtTest>

#include "runtime/FileStore.h"
#include "support/ErrorOf.h"
#include "support/FailingDevice.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;
using Call = FailingDevice::Call;

namespace {

const QByteArray oldContent = "the old content, all of it";
const QByteArray newContent = "NEW";

/// For its lifetime no file of this process grows beyond `bytes`: a disk that is full for real, short writes included.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &m_before);
    m_signal = ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, m_before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &m_before);
    ::signal(SIGXFSZ, m_signal);
  }
  Q_DISABLE_COPY_MOVE(FullDisk)

 private:
  rlimit m_before{};
  sighandler_t m_signal = SIG_DFL;
};

}  // namespace

class CheckedWriterTest : public QObject {
  Q_OBJECT

  std::unique_ptr<TemporaryTree> m_tree;
  FailingDevice m_device;
  FileStore m_store{m_device};
  QString m_path;

  void Save(const QByteArray& content = newContent) { m_store.ReplaceWhole(m_path, content); }
  QByteArray Content() const { return m_tree->Bytes(u"/Labor.txt"_s); }
  QStringList Files() const { return m_tree->List(); }
  mode_t Mode() const {
    struct stat status {};
    ::stat(QFile::encodeName(m_path).constData(), &status);
    return status.st_mode & 07777;
  }

 private Q_SLOTS:
  void init() {
    m_tree = std::make_unique<TemporaryTree>();
    m_device.Reset();
    m_path = m_tree->Path(u"/Labor.txt"_s);
    m_tree->Write(u"/Labor.txt"_s, oldContent);
  }

  void aSaveReplacesTheWholeFile() {
    Save();
    QCOMPARE(Content(), newContent);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
    Save("");
    QCOMPARE(Content(), "");
  }

  void aSaveMakesTheFileWhereThereIsNone() {
    m_tree->Remove(u"/Labor.txt"_s);
    Save();
    QCOMPARE(Content(), newContent);
  }

  void aSaveIsFlushedBeforeAndAfterTheRename() {
    Save();
    QCOMPARE(m_device.Count(Call::Flush), 1);
    QCOMPARE(m_device.Count(Call::Rename), 1);
    QCOMPARE(m_device.Count(Call::FlushFolder), 1);
  }

  void aFailureLeavesTheOldFileAndNoOther_data() {
    QTest::addColumn<FailingDevice::Call>("call");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("number");
    QTest::newRow("nothing can be made") << Call::Open << EACCES << 70;
    QTest::newRow("the disk has no room for a file") << Call::Open << ENOSPC << 61;
    QTest::newRow("the disk is mounted to read") << Call::Open << EROFS << 70;
    QTest::newRow("too many files") << Call::Open << EMFILE << 75;
    QTest::newRow("the file is protected") << Call::MayWrite << EACCES << 70;
    QTest::newRow("the disk is full") << Call::Write << ENOSPC << 61;
    QTest::newRow("the quota is used up") << Call::Write << EDQUOT << 61;
    QTest::newRow("the file is too large") << Call::Write << EFBIG << 61;
    QTest::newRow("the disk is broken") << Call::Write << EIO << 75;
    QTest::newRow("the permissions can't be kept") << Call::CopyPermissions << EPERM << 70;
    QTest::newRow("the flush fails") << Call::Flush << EIO << 75;
    QTest::newRow("the flush finds the disk full") << Call::Flush << ENOSPC << 61;
    QTest::newRow("the close fails") << Call::Close << EIO << 75;
    QTest::newRow("the close finds the disk full") << Call::Close << ENOSPC << 61;
    QTest::newRow("the rename fails") << Call::Rename << EACCES << 70;
    QTest::newRow("the rename breaks") << Call::Rename << EIO << 75;
  }
  void aFailureLeavesTheOldFileAndNoOther() {
    QFETCH(FailingDevice::Call, call);
    QFETCH(int, error);
    QFETCH(int, number);
    m_device.FailAt(call, 1, error);
    const RuntimeError caught = CaughtFrom([&] { Save(); });
    QCOMPARE(caught.Number(), number);
    QCOMPARE(caught.Subject(), m_path);
    QCOMPARE(caught.From(), RuntimeError::Origin::Event);
    QCOMPARE(Content(), oldContent);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
  }

  void aFolderThatCannotBeFlushedIsToldThoughTheNewFileStands() {
    m_device.FailAt(Call::FlushFolder, 1, EIO);
    QCOMPARE(CaughtFrom([&] { Save(); }).Subject(), m_path);
    QCOMPARE(Content(), newContent);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
  }

  void aFileSystemThatCannotFlushAFolderHasNothingToFlush() {
    m_device.FailAlways(Call::FlushFolder, EINVAL);
    Save();
    QCOMPARE(m_device.Count(Call::FlushFolder), 1);
    QCOMPARE(Content(), newContent);
    m_store.Rename(m_path, m_path + u"2"_s);
    QCOMPARE(m_device.Count(Call::FlushFolder), 2);
    QCOMPARE(Files(), QStringList{u"Labor.txt2"_s});
  }

  void aShortWriteIsContinued() {
    m_device.WriteShortAt(1, 1, 0);
    Save();
    QCOMPARE(Content(), newContent);
    QCOMPARE(m_device.Count(Call::Write), 2);
  }

  void aWriteThatTakesNothingIsAFullDisk() {
    m_device.WriteShortAt(1, 0, 0);
    QCOMPARE(ErrorOf([&] { Save(); }), 61);
    QCOMPARE(Content(), oldContent);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
  }

  void aShortWriteThatCannotBeContinuedLeavesTheOldFile() {
    m_device.WriteShortAt(1, 2, ENOSPC);
    QCOMPARE(ErrorOf([&] { Save(); }), 61);
    QCOMPARE(Content(), oldContent);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
  }

  void aDiskThatFillsUpWithinTheFileLeavesTheOldFile() {
    const FullDisk full(100000);
    QCOMPARE(ErrorOf([&] { Save(QByteArray(300000, 'x')); }), 61);
    QCOMPARE(Content(), oldContent);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
  }

  void aKillAtAnyStepLeavesTheOldFileOrTheNew() {
    bool oldSeen = false, newSeen = false, finished = false;
    for (int step = 1; !finished; ++step) {
      m_tree->Write(u"/Labor.txt"_s, oldContent);
      m_device.KillAt(step);
      try {
        Save();
        finished = true;
      } catch (const FailingDevice::Killed&) {
      }
      m_device.Reset();
      const QByteArray content = Content();
      QVERIFY2(content == oldContent || content == newContent, content.constData());
      oldSeen = oldSeen || content == oldContent;
      newSeen = newSeen || (content == newContent && !finished);
      // What the kill left is no hindrance to the next save, and gone after it.
      Save("next");
      QCOMPARE(Content(), "next");
      QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
    }
    QVERIFY(oldSeen);
    QVERIFY(newSeen);
  }

  void aFileThatARenameReplacesKeepsItsPermissionsAndItsProtection() {
    const QString shorter = m_tree->Path(u"/TemporaryFile.txt"_s);
    const QByteArray before = Content();
    m_tree->Write(u"/TemporaryFile.txt"_s, "shorter");
    ::chmod(QFile::encodeName(m_path).constData(), 0640);
    for (const Call call : {Call::MayWrite, Call::CopyPermissions}) {
      m_device.FailAt(call, 1, EACCES);
      const RuntimeError error = CaughtFrom([&] { m_store.Rename(shorter, m_path); });
      QCOMPARE(error.Number(), 70);
      QCOMPARE(error.Subject(), m_path);
      QCOMPARE(Content(), before);
      QCOMPARE(m_tree->Bytes(u"/TemporaryFile.txt"_s), "shorter");
    }
    m_device.Reset();
    m_store.Rename(shorter, m_path);
    QCOMPARE(Content(), "shorter");
    QCOMPARE(Mode(), mode_t{0640});
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
  }

  void aFileKeepsItsPermissions() {
    ::chmod(QFile::encodeName(m_path).constData(), 0640);
    Save();
    QCOMPARE(Mode(), mode_t{0640});
    m_store.WriteInPlace(m_path, 0, "x");
    QCOMPARE(Mode(), mode_t{0640});
  }

  void aFolderInTheFilesPlaceIsNotReplaced() {
    m_tree->Remove(u"/Labor.txt"_s);
    m_tree->MakeFolder(u"/Labor.txt"_s);
    const RuntimeError error = CaughtFrom([&] { Save(); });
    QCOMPARE(error.Number(), 75);
    QCOMPARE(error.Subject(), m_path);
    QCOMPARE(Files(), QStringList{u"Labor.txt/"_s});
  }

  void aMissingFolderIsToldAsSuch() {
    m_path = m_tree->Path(u"/None/Labor.txt"_s);
    QCOMPARE(ErrorOf([&] { Save(); }), 76);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_path, 0, "x"); }), 76);
    m_path = m_tree->Path(u"/Labor.txt/Labor.txt"_s);
    QCOMPARE(ErrorOf([&] { Save(); }), 76);
  }

  void aNameTooLongIsToldAsSuch() {
    m_path = m_tree->Path(u'/' + QString(254, u'x'));
    QCOMPARE(ErrorOf([&] { Save(); }), 64);
  }

  void nothingIsWrittenThroughALink() {
    const TemporaryTree outside;
    outside.Write(u"/secret.txt"_s, "outside");
    m_tree->Remove(u"/Labor.txt"_s);
    for (const bool inPlace : {false, true}) {
      QVERIFY(QFile::link(outside.Path(u"/secret.txt"_s), m_path));
      if (inPlace) {
        m_store.WriteInPlace(m_path, 0, newContent);
        QCOMPARE(Content(), "NEWside");
      } else {
        Save();
        QCOMPARE(Content(), newContent);
      }
      QVERIFY(!QFileInfo(m_path).isSymLink());
      QCOMPARE(outside.Bytes(u"/secret.txt"_s), "outside");
      m_tree->Remove(u"/Labor.txt"_s);
    }
    QVERIFY(QFile::link(outside.Path(u"/none.txt"_s), m_path));
    m_store.WriteInPlace(m_path, 0, newContent);
    QCOMPARE(Content(), newContent);
    QVERIFY(!outside.Exists(u"/none.txt"_s));
  }

  void aLinkInTheTemporaryFilesPlaceIsNotFollowed() {
    const TemporaryTree outside;
    outside.Write(u"/secret.txt"_s, "outside");
    QVERIFY(QFile::link(outside.Path(u"/secret.txt"_s), m_path + u".new"_s));
    Save();
    QCOMPARE(Content(), newContent);
    QCOMPARE(outside.Bytes(u"/secret.txt"_s), "outside");
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
    // Nor where it can't be removed.
    QVERIFY(QFile::link(outside.Path(u"/secret.txt"_s), m_path + u".new"_s));
    m_device.FailAt(Call::Remove, 1, EPERM);
    QCOMPARE(ErrorOf([&] { Save("next"); }), 75);
    QCOMPARE(Content(), newContent);
    QCOMPARE(outside.Bytes(u"/secret.txt"_s), "outside");
  }

  void aCopyIsOldOrNewToo() {
    m_tree->Write(u"/Backup.txt"_s, newContent);
    const QString from = m_tree->Path(u"/Backup.txt"_s);
    m_device.WriteShortAt(1, 1, ENOSPC);
    QCOMPARE(CaughtFrom([&] { m_store.Copy(from, m_path); }).Subject(), m_path);
    QCOMPARE(Content(), oldContent);
    m_device.FailAt(Call::Read, 1, EIO);
    QCOMPARE(CaughtFrom([&] { m_store.Copy(from, m_path); }).Subject(), from);
    QCOMPARE(Content(), oldContent);
    m_device.Reset();
    m_store.Copy(from, m_path);
    QCOMPARE(Content(), newContent);
    QCOMPARE(m_tree->Bytes(u"/Backup.txt"_s), newContent);
    QCOMPARE(ErrorOf([&] { m_store.Copy(m_tree->Path(u"/None.txt"_s), m_path); }), 53);
    QCOMPARE(Content(), newContent);
  }

  void aRecordIsWrittenInPlace() {
    m_store.WriteInPlace(m_path, 4, "OLD");
    QCOMPARE(Content(), "the OLD content, all of it");
    QCOMPARE(m_device.Count(Call::Write), 1);
    m_store.WriteInPlace(m_path, oldContent.size() + 2, "end");
    QCOMPARE(Content(), QByteArray("the OLD content, all of it\0\0end", 31));
    m_store.WriteInPlace(m_tree->Path(u"/New.txt"_s), 1, "x");
    QCOMPARE(m_tree->Bytes(u"/New.txt"_s), QByteArray("\0x", 2));
  }

  void aFailedAppendIsCutBackToTheLengthBefore() {
    for (const qint64 taken : {0, 1, 5}) {
      m_device.WriteShortAt(1, taken, ENOSPC);
      const RuntimeError error = CaughtFrom([&] { m_store.WriteInPlace(m_path, oldContent.size(), "record"); });
      QCOMPARE(error.Number(), 61);
      QCOMPARE(error.Subject(), m_path);
      QCOMPARE(Content(), oldContent);
    }
    m_device.WriteShortAt(1, 3, ENOSPC);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_path, 1000, "record"); }), 61);
    QCOMPARE(Content(), oldContent);
  }

  void aFailedRewriteGetsTheOldRecordBack() {
    m_device.WriteShortAt(1, 3, EIO);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_path, 4, "XXXXXX"); }), 75);
    QCOMPARE(Content(), oldContent);
    // Half over the end of the file.
    m_device.WriteShortAt(1, 5, EIO);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_path, oldContent.size() - 3, "XXXXXX"); }), 75);
    QCOMPARE(Content(), oldContent);
  }

  void aCloseThatFailsTakesTheRecordBack_data() {
    QTest::addColumn<qint64>("offset");
    QTest::newRow("a rewrite") << qint64{4};
    QTest::newRow("an append") << qint64{26};
    QTest::newRow("half over the end") << qint64{23};
  }
  void aCloseThatFailsTakesTheRecordBack() {
    QFETCH(qint64, offset);
    m_device.FailAt(Call::Close, 1, EDQUOT);
    const RuntimeError error = CaughtFrom([&] { m_store.WriteInPlace(m_path, offset, "record"); });
    QCOMPARE(error.Number(), 61);
    QCOMPARE(error.Subject(), m_path);
    QCOMPARE(Content(), oldContent);
    QCOMPARE(m_device.Count(Call::Close), m_device.Count(Call::Open));
  }

  void aCloseThatFailsAfterAFirstRecordLeavesNoFile() {
    m_device.FailAt(Call::Close, 1, EIO);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_tree->Path(u"/New.txt"_s), 0, "record"); }), 75);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
  }

  void aRecordThatCannotBePutBackIsToldAsSuch() {
    // Three bytes taken, then no more: neither the rest nor the old ones.
    m_device.WriteShortAt(1, 3, EIO);
    m_device.AlsoFailAt(Call::Write, 3, EIO);
    const RuntimeError error = CaughtFrom([&] { m_store.WriteInPlace(m_path, 4, "XXXXXX"); });
    QCOMPARE(error.Number(), 57);
    QCOMPARE(error.Subject(), m_path);
    // A record that can't be cut off again.
    m_tree->Write(u"/Labor.txt"_s, oldContent);
    m_device.WriteShortAt(1, 3, ENOSPC);
    m_device.AlsoFailAt(Call::Truncate, 1, EIO);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_path, oldContent.size(), "record"); }), 57);
    // Nor can a file that doesn't open any more.
    m_device.WriteShortAt(1, 3, ENOSPC);
    m_device.AlsoFailAt(Call::Open, 2, EIO);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_path, 4, "XXXXXX"); }), 57);
  }

  void aDiskThatTakesNothingHasNothingToPutBack() {
    m_device.FailAlways(Call::Write, ENOSPC);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_path, 4, "XXXXXX"); }), 61);
    QCOMPARE(m_device.Count(Call::Write), 1);
    QCOMPARE(Content(), oldContent);
  }

  void aFailedFirstWriteLeavesNoFile() {
    m_device.FailAt(Call::Write, 1, ENOSPC);
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_tree->Path(u"/New.txt"_s), 0, "record"); }), 61);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
  }

  void aRecordOnADiskThatIsFullForReal() {
    const FullDisk full(static_cast<rlim_t>(oldContent.size() + 2));
    QCOMPARE(ErrorOf([&] { m_store.WriteInPlace(m_path, oldContent.size(), "record"); }), 61);
    QCOMPARE(Content(), oldContent);
  }

  void whatCannotBeOpenedInPlaceIsTold() {
    m_device.FailAt(Call::Open, 1, EACCES);
    const RuntimeError error = CaughtFrom([&] { m_store.WriteInPlace(m_path, 0, "x"); });
    QCOMPARE(error.Number(), 70);
    QCOMPARE(error.Subject(), m_path);
    QCOMPARE(Content(), oldContent);
  }

  void aRenameTakesThePlaceOfTheOldFile() {
    m_tree->Write(u"/TemporaryFile.txt"_s, newContent);
    const QString from = m_tree->Path(u"/TemporaryFile.txt"_s);
    m_device.FailAt(Call::Rename, 1, EACCES);
    QCOMPARE(ErrorOf([&] { m_store.Rename(from, m_path); }), 70);
    QCOMPARE(Content(), oldContent);
    m_store.Rename(from, m_path);
    QCOMPARE(Content(), newContent);
    QCOMPARE(Files(), QStringList{u"Labor.txt"_s});
    QCOMPARE(m_device.Count(Call::FlushFolder), 1);
    QCOMPARE(ErrorOf([&] { m_store.Rename(from, m_path); }), 53);
  }

  void aRemovalThatFailsIsTold() {
    m_device.FailAt(Call::Remove, 1, EACCES);
    QCOMPARE(CaughtFrom([&] { m_store.Remove(m_path); }).Subject(), m_path);
    m_store.Remove(m_path);
    m_store.Remove(m_path);
    m_store.Remove(m_path + u"/inside"_s);
    m_store.Remove(m_tree->Path(u"/None/Labor.txt"_s));
    QCOMPARE(Files(), QStringList{});
  }
};

QTEST_GUILESS_MAIN(CheckedWriterTest)
#include "tst_checkedWriter.moc"
