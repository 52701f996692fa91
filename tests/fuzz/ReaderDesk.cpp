#include "fuzz/ReaderDesk.h"

#include <unistd.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

QString PlaceOfTheTree() {
  const QString memory = u"/dev/shm"_s;
  return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + u"/karvex-fuzz-XXXXXX"_s;
}

/// Those behind the first `existing` bytes of the path.
void MakeFoldersAbove(const QByteArray& path, qsizetype existing) {
  for (qsizetype end = path.indexOf('/', existing + 1); end >= 0; end = path.indexOf('/', end + 1)) {
    ::mkdir(path.first(end).constData(), 0700);
  }
}

}  // namespace

ReaderDesk::ReaderDesk() : m_folder(PlaceOfTheTree()) {
  if (!m_folder.isValid()) qFatal("no temporary folder could be made");
  m_device.Watch(m_folder.path());
  m_disk = std::make_unique<CommonDiskRoutines>(m_store, m_folder.path(), u"KarvexInvoicer"_s);
}

QByteArray ReaderDesk::Run(const ReaderTarget& target, const QByteArray& bytes) {
  if (target.Name != m_target) ClearFor(target.Name);
  Put(target.File, bytes);
  if (!target.SecondFile.isEmpty()) Put(target.SecondFile, bytes);
  m_device.Forget();
  QByteArray wrong;
  try {
    target.Load(*this);
  } catch (const RuntimeError& error) {
    ++m_refused;
    if (!error.Subject().contains(QFileInfo(target.File).fileName())) {
      wrong = QByteArray("an error that doesn't name the file: ") + error.what();
    } else if (error.Text().isEmpty()) {
      wrong = QByteArray("an error without a text: ") + error.what();
    }
  } catch (const std::exception& error) {
    wrong = QByteArray("another exception: ") + error.what();
  }
  if (!target.AlsoWrites && !m_device.Changed().isEmpty()) wrong = "it changed " + m_device.Changed().toUtf8();
  if (!m_device.Escaped().isEmpty()) wrong = "it would change " + m_device.Escaped().toUtf8();
  if (!wrong.isEmpty()) wrong.prepend(target.Name + ": ");
  return wrong;
}

void ReaderDesk::ClearFor(const QByteArray& target) {
  if (!m_target.isEmpty()) {
    QDir tree(m_folder.path());
    tree.removeRecursively();
    tree.mkpath(m_folder.path());
  }
  m_target = target;
}

void ReaderDesk::Put(const QString& name, const QByteArray& bytes) {
  const QByteArray path = QFile::encodeName(m_folder.path() + name);
  // Cut to its length behind the write and not before it, which gives the page back and takes another each time.
  int file = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  if (file < 0) {
    MakeFoldersAbove(path, m_folder.path().size());
    file = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  }
  if (::write(file, bytes.constData(), static_cast<std::size_t>(bytes.size())) != bytes.size() ||
      ::ftruncate(file, bytes.size()) != 0) {
    qFatal("the test could not write %s", path.constData());
  }
  ::close(file);
}

std::vector<ReaderTarget> ReaderTargets() {
  std::vector<ReaderTarget> all;
  for (const auto& group : {SettingsReaders(), RecordReaders(), InvoiceReaders(), PageReaders(), ReportReaders()}) {
    all.insert(all.end(), group.begin(), group.end());
  }
  return all;
}
