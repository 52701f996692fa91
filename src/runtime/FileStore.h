/// The one reader and the one writer of the program. No other code opens, replaces, renames or deletes a file; folders
/// are made here and, many under one parent, by `FolderMaker`. Nobody else gets at the device from here.
///
/// A file is never half written: what replaces a file is written beside it, checked to the last byte, flushed,
/// renamed over the old one, and the folder is flushed. Every failure throws a RuntimeError that names the path:
/// 53 not found, 61 disk full, 70 permission denied, 75 any other access, 76 folder not found.
///
/// A store that knows its tree changes nothing outside it by a name inside it: a folder of the tree that is a symbolic
/// link is refused (error 75 that names the link). Reading goes through links.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include "runtime/FileDevice.h"

/// Far above the largest file of a data tree, 11 million bytes of customers, and any picture that prints.
inline constexpr qint64 LargestWholeFile = 256LL * 1024 * 1024;

class FileStore {
 public:
  /// `tree` is absolute, without a trailing separator; without one no folder is refused.
  explicit FileStore(FileDevice& device, QString tree = {}) : m_device(device), m_tree(std::move(tree)) {}

  bool IsFile(const QString& path) const;  ///< A file, of any length; a folder isn't one. Throws if it can't tell.
  bool IsFolder(const QString& path) const;
  qint64 Size(const QString& path) const;  ///< In bytes; error 53 if absent.
  /// Names of the files (not folders) in `folder` that match the wildcard (`*.txt`, whatever the case), in name order;
  /// what the checked writer is just writing isn't among them. A folder that isn't there is empty, one that can't be
  /// read throws.
  QStringList List(const QString& folder, const QString& wildcard) const;
  /// The names of all files, with what the checked writer left where it was killed.
  QStringList ListEverything(const QString& folder) const;
  /// Whether any file matches, without reading the rest of the folder. One that matched before and is still there
  /// answers it alone: the more a folder holds, the longer its file system takes for even the first of its names.
  bool AnyMatch(const QString& folder, const QString& wildcard) const;

  /// Error 6 above `LargestWholeFile`.
  QByteArray ReadWhole(const QString& path) const;
  /// The first `lines` lines with their ends, without reading the rest; fewer where the file has fewer. Error 6 where
  /// they are longer than `LargestWholeFile`.
  QByteArray ReadLines(const QString& path, int lines) const;
  /// Up to `size` bytes from `offset`; fewer at the end of the file.
  QByteArray ReadPart(const QString& path, qint64 offset, qint64 size) const;

  /// The checked writer: old or new, whole.
  void ReplaceWhole(const QString& path, const QByteArray& content);
  /// A record's write in place: one write, creating the file, a gap filled with zero bytes. One that fails is cut
  /// back to the length before it where it extended the file, and rewritten with the old bytes where it didn't;
  /// where even that fails, the error is 57.
  void WriteInPlace(const QString& path, qint64 offset, const QByteArray& bytes);
  /// Copies through the checked writer, replacing the target.
  void Copy(const QString& from, const QString& to);
  void Rename(const QString& from, const QString& to);
  void Remove(const QString& path);  ///< Nothing if absent.
  /// Takes away what work that failed has left behind. Where even that fails the file stays, and nothing is thrown: the
  /// failure before it is the one to tell.
  void Discard(const QString& path);
  void MakeFolder(const QString& path);  ///< Nothing if it is there; the parent must exist (error 76).
  void MakePath(const QString& path);    ///< The folder and those that lead to it.

 private:
  friend class FolderMaker;  // It works on the same device.

  /// Throws where a folder on the way from the tree to the path is a link.
  void RequireInTree(const QString& path) const;
  bool PutBack(const QString& path, const QByteArray& before, qint64 offset, qint64 lengthBefore);
  void WriteTemporary(const QString& temporary, const QString& path, const QByteArray& content);
  FileDevice& m_device;
  QString m_tree;
  mutable QHash<QString, QString> m_knownMatches;  ///< A path by folder and wildcard.
};
