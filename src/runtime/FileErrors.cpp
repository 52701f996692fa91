#include "runtime/FileErrors.h"

#include <sys/stat.h>

#include <cerrno>
#include <QFile>

#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

/// No file has that name, or can have it.
bool MeansAbsent(int error) {
  return error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP;
}

bool IsKind(const QString& path, mode_t kind) {
  struct stat status;
  if (::stat(QFile::encodeName(path).constData(), &status) == 0) return (status.st_mode & S_IFMT) == kind;
  // What can't be looked at may well be there: taken for absent, it would be replaced unasked, or by its older copy.
  if (!MeansAbsent(errno)) RaiseFileError(-errno, path);
  return false;
}

int NumberOf(int error, const QString& path) {
  switch (error) {
    case ENOENT:
      return IsFolderAt(FolderOf(path)) ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound;
    case ENOTDIR:
      return ErrorNumber::PathNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return ErrorNumber::PermissionDenied;
    case ENAMETOOLONG:
      return ErrorNumber::BadFileName;
    default:
      return ErrorNumber::PathFileAccess;
  }
}

}  // namespace

bool IsFileAt(const QString& path) {
  return IsKind(path, S_IFREG);
}

bool IsFolderAt(const QString& path) {
  return IsKind(path, S_IFDIR);
}

QString FolderOf(const QString& path) {
  return path.left(std::max<qsizetype>(path.lastIndexOf(u'/'), 1));
}

void RaiseFileError(qint64 result, const QString& path) {
  throw RuntimeError::AtPath(NumberOf(static_cast<int>(-result), path), path);
}

void CheckFile(qint64 result, const QString& path) {
  if (result < 0) RaiseFileError(result, path);
}

void RaiseLinkedFolder(const QString& path) {
  throw RuntimeError::AtPath(
      ErrorNumber::PathFileAccess, path,
      u"It is a link to another place, and the program changes nothing outside its own folder."_s)
      .WithAdvice(u"Put a folder with what the link leads to in the link's place, then try again. Nothing was lost."_s);
}

void CheckNoLink(const QString& path) {
  struct stat status;
  if (::lstat(QFile::encodeName(path).constData(), &status) == 0) {
    if (S_ISLNK(status.st_mode)) RaiseLinkedFolder(path);
  } else if (!MeansAbsent(errno)) {
    RaiseFileError(-errno, path);
  }
}

void CheckFolder(qint64 result, const QString& path) {
  if (result == -ENOENT) throw RuntimeError::AtPath(ErrorNumber::PathNotFound, path);
  CheckFile(result, path);
}
