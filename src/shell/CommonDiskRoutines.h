/// All file access by root-relative names ("/Services.txt"; `/` and `\` are one separator): the read that heals itself
/// from /Backup, record counts, and the saves.
#pragma once

#include <memory>
#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>
#include <vector>

#include "runtime/FileStore.h"
#include "runtime/ListFile.h"
#include "runtime/RecordFile.h"

/// What a save does with the file's copy in /Backup, once the new file stands.
enum class BackupCopy { Kept, Dropped };

/// A random file: fixed-length records numbered from 1, in place.
class RandomFile {
 public:
  /// `created`: the opening made the file.
  RandomFile(FileStore& store, QString name, QString path, int recordLength, bool created, std::shared_ptr<bool> open);
  /// One record, read anew; blank past the end.
  QByteArray Get(qsizetype number) const;
  /// One write; extends the file where needed. Throws RuntimeError 61, 70, 75. The creation of a file and its first
  /// record are one thing: where that record fails, the file that was made for it goes again. A record of another
  /// length is a mistake of the program: std::logic_error, and nothing is written.
  void Put(qsizetype number, const QByteArray& record);
  /// The whole file in one read, for a scan.
  RecordBuffer ReadAll() const;

 private:
  void RequireOpen() const;
  FileStore& m_store;
  QString m_name;
  QString m_path;
  int m_recordLength;
  bool m_created;  ///< And holds no record yet.
  std::shared_ptr<bool> m_open;
};

class CommonDiskRoutines {
 public:
  /// `dataRoot` is an absolute folder without a trailing separator; `exeName` the program file's name without
  /// extension.
  CommonDiskRoutines(FileStore& store, QString dataRoot, QString exeName);

  const QString& DataRoot() const { return m_dataRoot; }
  const QString& EXEName() const { return m_exeName; }
  FileStore& Store() { return m_store; }
  /// The absolute path of a root-relative name, in its one spelling.
  QString PathOf(const QString& name) const;

  /// Whether the file is there, after fetching it from /Backup if only that has it. A folder doesn't count; a file of
  /// zero length does.
  bool FileExists(const QString& name);
  /// Number of records, 0 if the file is absent (after the restore). Above 32767: RuntimeError 6.
  int RecordCount(const QString& name, int recordLength);
  ListReader OpenInputFile(const QString& name);  ///< Reads the file whole; error 53 if absent.
  /// The same for no more of the file than its first `lines` lines, where a list needs no more of each.
  ListReader OpenInputStart(const QString& name, int lines);
  RandomFile OpenRandomFile(const QString& name, int recordLength);  ///< Creates the file if absent.
  /// How many records the file holds, after the restore. Error 6 where it can't take so many more.
  int RequireRoom(const QString& name, int recordLength, int records);
  /// Writes the record behind the last one, into a new file if there is none, after the restore. Error 6 on a full
  /// file.
  void AppendRecord(const QString& name, const QByteArray& record);
  /// What is open can't be read or written any more (error 52).
  void CloseAllFiles();

  /// The save of a settings file, a list, an image: old or new, whole; then the backup copy goes where `backup`
  /// says so.
  void SaveFile(const QString& name, const QByteArray& content, BackupCopy backup);
  /// `SaveFile` of the text as one plain line, the backup copy dropped.
  void ReplaceTextFile(const QString& name, const QString& text);

  void MakeDataFolder(const QString& name);   ///< Nothing if it is there; the parent must exist.
  void KillDataFile(const QString& name);     ///< Closes all open files first; nothing if absent.
  void KillWithBackup(const QString& name);   ///< The copy in /Backup, then the file.
  void KillEveryFile(const QString& folder);  ///< Whatever their names, unfinished ones too; folders in it stay.
  void CopyDataFile(const QString& from, const QString& to);
  /// Replaces the target; closes all open files behind it.
  void RenameDataFile(const QString& from, const QString& to);
  bool AnyFileMatches(const QString& folder, const QString& wildcard) const;
  QStringList ListFiles(const QString& folder, const QString& wildcard) const;

  /// The exit backup: 18 files into /Backup, errors ignored file by file.
  void BackupDataFiles();
  /// This run's exit backup passes the file over, unless it is saved until then: it couldn't be read as what it must
  /// be, and the program goes on, so that its end must not put the damaged file over the good copy. The next run has to
  /// meet the damage anew.
  void KeepBackupOf(const QString& name);

 private:
  std::shared_ptr<bool> NewOpenMark();
  FileStore& m_store;
  QString m_dataRoot;
  QString m_exeName;
  std::vector<std::weak_ptr<bool>> m_open;
  QSet<QString> m_damaged;  ///< Paths.
};

/// Whether `text` can stand as a file or folder name inside its folder: not blank, no separator, not `.` or `..`,
/// no NUL, not too long. What can't is refused before anything is written.
bool CanNameAFile(const QString& text);
