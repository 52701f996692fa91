#include "shell/CommonDiskRoutines.h"

#include <stdexcept>

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

QString BackupOf(const QString& name) {
  return u"/Backup"_s + name;
}

/// The mirror's names begin with a separator even where a caller's doesn't.
QString Rooted(QString name) {
  name.replace(u'\\', u'/');
  return name.startsWith(u'/') ? name : u'/' + name;
}

}  // namespace

RandomFile::RandomFile(FileStore& store, QString name, QString path, int recordLength, bool created,
                       std::shared_ptr<bool> open)
    : m_store(store),
      m_name(std::move(name)),
      m_path(std::move(path)),
      m_recordLength(recordLength),
      m_created(created),
      m_open(std::move(open)) {}

void RandomFile::RequireOpen() const {
  if (!*m_open) throw RuntimeError(ErrorNumber::BadFileNumber, m_name);
}

QByteArray RandomFile::Get(qsizetype number) const {
  RequireOpen();
  if (number < 1) throw RuntimeError(ErrorNumber::OutOfRange, m_name);
  return m_store.ReadPart(m_path, (number - 1) * m_recordLength, m_recordLength);
}

void RandomFile::Put(qsizetype number, const QByteArray& record) {
  RequireOpen();
  if (number < 1) throw RuntimeError(ErrorNumber::OutOfRange, m_name);
  if (record.size() != m_recordLength) throw std::logic_error("a record of another length than its file's");
  try {
    m_store.WriteInPlace(m_path, (number - 1) * m_recordLength, record);
    m_created = false;
  } catch (const RuntimeError&) {
    // An empty file would pass for one that was begun: a ledger without its opening record, a list without entries.
    if (m_created) m_store.Discard(m_path);
    throw;
  }
}

RecordBuffer RandomFile::ReadAll() const {
  RequireOpen();
  return RecordBuffer(m_store.ReadWhole(m_path), m_recordLength);
}

CommonDiskRoutines::CommonDiskRoutines(FileStore& store, QString dataRoot, QString exeName)
    : m_store(store), m_dataRoot(std::move(dataRoot)), m_exeName(std::move(exeName)) {}

QString CommonDiskRoutines::PathOf(const QString& name) const {
  QString path = Rooted(name);
  if (path.contains("/../"_L1) || path.endsWith("/.."_L1) || path.contains(QChar::Null)) {
    throw RuntimeError(ErrorNumber::BadFileName, name);
  }
  // The one folder of the tree that goes by two spellings, in the mirror as well.
  constexpr auto backup = "/Backup"_L1;
  constexpr auto auxFiles = "/AuxFiles"_L1;
  const qsizetype start = path.startsWith(backup + u'/') ? backup.size() : 0;
  const qsizetype end = start + auxFiles.size();
  const bool isAux = QStringView(path).sliced(start).startsWith(auxFiles, Qt::CaseInsensitive) &&
                     (path.size() == end || path[end] == u'/');
  if (isAux) path.replace(start, auxFiles.size(), auxFiles);
  return m_dataRoot + path;
}

std::shared_ptr<bool> CommonDiskRoutines::NewOpenMark() {
  std::erase_if(m_open, [](const std::weak_ptr<bool>& mark) { return mark.expired(); });
  auto mark = std::make_shared<bool>(true);
  m_open.push_back(mark);
  return mark;
}

bool CommonDiskRoutines::FileExists(const QString& name) {
  const QString path = PathOf(name);
  if (m_store.IsFile(path)) return true;
  const QString backup = PathOf(BackupOf(Rooted(name)));
  if (!m_store.IsFile(backup)) return false;
  m_store.Copy(backup, path);
  return true;
}

int CommonDiskRoutines::RecordCount(const QString& name, int recordLength) {
  if (!FileExists(name)) return 0;
  return RecordCountOf(m_store.Size(PathOf(name)), recordLength, Rooted(name));
}

ListReader CommonDiskRoutines::OpenInputFile(const QString& name) {
  ListReader reader(Rooted(name), m_store.ReadWhole(PathOf(name)));
  reader.Attach(NewOpenMark());
  return reader;
}

ListReader CommonDiskRoutines::OpenInputStart(const QString& name, int lines) {
  ListReader reader(Rooted(name), m_store.ReadLines(PathOf(name), lines));
  reader.Attach(NewOpenMark());
  return reader;
}

RandomFile CommonDiskRoutines::OpenRandomFile(const QString& name, int recordLength) {
  const QString path = PathOf(name);
  const bool created = !m_store.IsFile(path);
  if (created) m_store.WriteInPlace(path, 0, {});
  return RandomFile(m_store, Rooted(name), path, recordLength, created, NewOpenMark());
}

int CommonDiskRoutines::RequireRoom(const QString& name, int recordLength, int records) {
  const int count = RecordCount(name, recordLength);
  if (count + records > RecordLimit) {
    throw RuntimeError(ErrorNumber::Overflow, Rooted(name), u"The file takes no more than 32,767 records."_s)
        .WithAdvice(
            u"Move it, and its copy in the Backup folder, elsewhere: the next entry starts a new one. Nothing was lost."_s);
  }
  return count;
}

void CommonDiskRoutines::AppendRecord(const QString& name, const QByteArray& record) {
  const auto length = static_cast<int>(record.size());
  const int count = RequireRoom(name, length, 1);
  OpenRandomFile(name, length).Put(count + 1, record);
}

void CommonDiskRoutines::CloseAllFiles() {
  for (const auto& mark : m_open) {
    if (const auto open = mark.lock()) *open = false;
  }
  m_open.clear();
}

void CommonDiskRoutines::SaveFile(const QString& name, const QByteArray& content, BackupCopy backup) {
  m_store.ReplaceWhole(PathOf(name), content);
  m_damaged.remove(PathOf(name));
  // Only now: until the new file stands, its backup copy is the one thing that a failed save could fall back on.
  if (backup == BackupCopy::Dropped) KillDataFile(BackupOf(Rooted(name)));
}

void CommonDiskRoutines::ReplaceTextFile(const QString& name, const QString& text) {
  SaveFile(name, ListWriter().Print(text).Content(), BackupCopy::Dropped);
}

void CommonDiskRoutines::MakeDataFolder(const QString& name) {
  m_store.MakeFolder(PathOf(name));
}

void CommonDiskRoutines::KillDataFile(const QString& name) {
  CloseAllFiles();
  m_store.Remove(PathOf(name));
}

void CommonDiskRoutines::KillWithBackup(const QString& name) {
  KillDataFile(BackupOf(Rooted(name)));
  KillDataFile(name);
}

void CommonDiskRoutines::KillEveryFile(const QString& folder) {
  CloseAllFiles();
  const QString path = PathOf(folder);
  for (const QString& name : m_store.ListEverything(path)) m_store.Remove(path + u'/' + name);
}

void CommonDiskRoutines::CopyDataFile(const QString& from, const QString& to) {
  m_store.Copy(PathOf(from), PathOf(to));
}

void CommonDiskRoutines::RenameDataFile(const QString& from, const QString& to) {
  m_store.Rename(PathOf(from), PathOf(to));
  CloseAllFiles();
}

bool CommonDiskRoutines::AnyFileMatches(const QString& folder, const QString& wildcard) const {
  return m_store.AnyMatch(PathOf(folder), wildcard);
}

QStringList CommonDiskRoutines::ListFiles(const QString& folder, const QString& wildcard) const {
  return m_store.List(PathOf(folder), wildcard);
}

void CommonDiskRoutines::BackupDataFiles() {
  const QStringList names{m_exeName + u"Settings"_s,
                          u"KVInvoiceNo"_s,
                          u"KVInventoriedItems"_s,
                          u"CompanyLogo"_s,
                          u"CustomerData"_s,
                          u"CustomItems"_s,
                          u"InvoiceMemo"_s,
                          u"InvoiceSalesJournal"_s,
                          u"Labor"_s,
                          u"LogoSettings"_s,
                          u"MyBusinessData"_s,
                          u"MyWebSite"_s,
                          u"Narrative"_s,
                          u"PrintColors"_s,
                          u"Services"_s,
                          u"SoldItems"_s,
                          u"StatementTerms"_s,
                          u"TaxRecords"_s};
  for (const QString& name : names) {
    CloseAllFiles();
    const QString file = u'/' + name + u".txt"_s;
    try {
      const QString path = PathOf(file);
      if (!m_damaged.contains(path) && m_store.IsFile(path)) CopyDataFile(file, BackupOf(file));
    } catch (const RuntimeError&) {
      // The program is ending: a file that can't be copied keeps its older copy, and the next one has its turn.
    }
  }
}

void CommonDiskRoutines::KeepBackupOf(const QString& name) {
  m_damaged.insert(PathOf(name));
}

bool CanNameAFile(const QString& text) {
  // A file name holds 255 bytes; the endings of the data file and of the file that replaces it need their room.
  constexpr qsizetype longest = 240;
  if (TrimBlanks(text).isEmpty() || text == "."_L1 || text == ".."_L1) return false;
  if (text.contains(u'/') || text.contains(u'\\') || text.contains(QChar::Null)) return false;
  return text.toUtf8().size() <= longest;
}
