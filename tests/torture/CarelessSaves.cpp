// A save of one file written for this purpose alone, which leaves out one of its duties at a time: that the sweeps find
// each of them out proves that they would find it in the program.
#include <fcntl.h>
#include <unistd.h>

#include "support/TestDialogs.h"
#include "torture/Desk.h"
#include "torture/Saves.h"

using namespace Qt::StringLiterals;

namespace {

enum class Neglect {
  Nothing,
  TemporaryFile,  ///< Writes over the old file.
  Flush,          ///< Publishes what isn't on the disk.
  FlushResult,    ///< Flushes and doesn't look.
  WriteResult,    ///< Takes a short write for a whole one.
  FolderFlush,
  Telling,
  ClearingAway,   ///< Leaves the new file beside the old one when it fails.
  OrderOfBackup,  ///< Drops the older copy first.
  RestOfSave,     ///< Tells of a failure, and can't save afterwards.
  SeenCalls,      ///< Drops the older copy by a call that nobody looks after.
  Doing           ///< Lets the user take for done what isn't.
};

const QString File = u"/InvoiceMemo.txt"_s;
const QByteArray Content = QByteArray("A careless memo\r\n").repeated(400);

class Writer {
 public:
  Writer(QString root, Neglect neglect) : m_root(std::move(root)), m_neglect(neglect) {}

  void Save() {
    const QByteArray file = (m_root + File).toLocal8Bit(),
                     temporary = Omits(Neglect::TemporaryFile) ? file : file + ".new";
    if (Omits(Neglect::OrderOfBackup)) ::unlink(Backup().constData());
    if (!Omits(Neglect::TemporaryFile)) ::unlink(temporary.constData());
    if (!Write(temporary) || (temporary != file && ::rename(temporary.constData(), file.constData()) != 0)) {
      if (!Omits(Neglect::ClearingAway) && temporary != file) ::unlink(temporary.constData());
      Tell();
      return;
    }
    if (!Omits(Neglect::FolderFlush) && !FlushFolder()) {
      Tell();
      return;
    }
    const int dropped =
        Omits(Neglect::SeenCalls) ? ::unlinkat(AT_FDCWD, Backup().constData(), 0) : ::unlink(Backup().constData());
    if (dropped != 0 && errno != ENOENT) Tell(u"/Backup"_s + File);
  }

 private:
  bool Omits(Neglect duty) const { return m_neglect == duty; }
  QByteArray Backup() const { return (m_root + u"/Backup"_s + File).toLocal8Bit(); }

  bool Write(const QByteArray& path) const {
    const int flags = Omits(Neglect::TemporaryFile) ? O_TRUNC : O_EXCL;
    const int descriptor = ::open(path.constData(), O_WRONLY | O_CREAT | flags, 0666);
    if (descriptor < 0) return false;
    qint64 written = 0;
    while (written < Content.size()) {
      const ssize_t taken = ::pwrite(descriptor, Content.constData() + written,
                                     static_cast<std::size_t>(Content.size() - written), written);
      if (Omits(Neglect::WriteResult) || taken <= 0) break;
      written += taken;
    }
    const bool whole = Omits(Neglect::WriteResult) || written == Content.size();
    const bool flushed = Omits(Neglect::Flush) || ::fsync(descriptor) == 0 || Omits(Neglect::FlushResult);
    const bool closed = ::close(descriptor) == 0;
    return whole && flushed && closed;
  }

  bool FlushFolder() const {
    const int folder = ::open(m_root.toLocal8Bit().constData(), O_RDONLY | O_DIRECTORY);
    if (folder < 0) return false;
    const bool flushed = ::fsync(folder) == 0;
    ::close(folder);
    return flushed;
  }

  void Tell(const QString& file = File) const {
    if (!Omits(Neglect::Telling)) TestDialogs().ShowMessage(m_root + file + u": It failed. (error 75)"_s);
  }

  QString m_root;
  Neglect m_neglect;
};

CarelessSave Careless(const QString& name, Neglect neglect, const QString& found) {
  Save save;
  save.Name = name;
  save.Stock = [](DataTree& tree) { tree[File] = QByteArray("Thank you\r\n").repeated(500); };
  save.Prepare = [](Desk&) {};
  auto failed = std::make_shared<bool>(false);
  save.Perform = [neglect, failed](Desk& desk) {
    // What was refused once is refused for ever.
    if (neglect == Neglect::RestOfSave && *failed) return;
    const qsizetype boxes = desk.Boxes.size();
    Writer(desk.Root(), neglect).Save();
    *failed = desk.Boxes.size() > boxes;
  };
  save.Screen = u"frmStartup"_s;
  if (neglect == Neglect::Doing) save.IsDone = [](const DataTree&, const DataTree&) { return true; };
  return {save, found};
}

}  // namespace

std::vector<CarelessSave> CarelessSaves() {
  return {
      Careless(u"careful"_s, Neglect::Nothing, {}),
      Careless(u"without-temporary-file"_s, Neglect::TemporaryFile, u"is neither old nor new"_s),
      Careless(u"without-flush"_s, Neglect::Flush, u"is published before its content was flushed"_s),
      Careless(u"without-looking-at-the-flush"_s, Neglect::FlushResult, u"was published after its writing failed"_s),
      Careless(u"without-looking-at-the-write"_s, Neglect::WriteResult, u"is neither old nor new"_s),
      Careless(u"without-flush-of-the-folder"_s, Neglect::FolderFlush, u"is told of before its folder was flushed"_s),
      Careless(u"without-telling"_s, Neglect::Telling, u"the user wasn't told"_s),
      Careless(u"without-clearing-away"_s, Neglect::ClearingAway, u"left behind"_s),
      Careless(u"backup-dropped-first"_s, Neglect::OrderOfBackup, u"had its copy in the Backup folder dropped"_s),
      Careless(u"without-a-second-try"_s, Neglect::RestOfSave, u"then saved again"_s),
      Careless(u"by-an-unseen-call"_s, Neglect::SeenCalls, u"changes by no call that is seen"_s),
      Careless(u"taken-for-done"_s, Neglect::Doing, u"it counts as done, and"_s)};
}
