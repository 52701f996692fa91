/// What a failed system call on a file becomes: the ground's own, for FileStore and FolderMaker.
#pragma once

#include <QString>

/// A file or folder at `path`, links followed. Throws where that can't be found out.
bool IsFileAt(const QString& path);
bool IsFolderAt(const QString& path);
/// The folder that holds `path`.
QString FolderOf(const QString& path);

/// Throws the RuntimeError of a negative errno, naming the path. `Check` lets a result that isn't negative pass.
[[noreturn]] void RaiseFileError(qint64 result, const QString& path);
void CheckFile(qint64 result, const QString& path);
/// For a folder: what isn't there is error 76, not 53.
void CheckFolder(qint64 result, const QString& path);

/// A folder that is a symbolic link to elsewhere: error 75 with its own words. `Check` lets pass what is none.
[[noreturn]] void RaiseLinkedFolder(const QString& path);
void CheckNoLink(const QString& path);
