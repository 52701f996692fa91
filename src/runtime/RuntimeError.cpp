#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

QString TextOf(int number) {
  switch (number) {
    case ErrorNumber::Overflow:
      return u"A number is too large for its place."_s;
    case ErrorNumber::OutOfRange:
      return u"A line or entry was asked for that isn't there."_s;
    case ErrorNumber::TypeMismatch:
      return u"What stands there isn't the number, amount or date that it must be."_s;
    case ErrorNumber::BadFileNumber:
      return u"The file was closed before it was read."_s;
    case ErrorNumber::FileNotFound:
      return u"The file isn't there."_s;
    case ErrorNumber::DeviceError:
      return u"The disk failed in the middle of a write, and what stood there before couldn't be put back."_s;
    case ErrorNumber::DiskFull:
      return u"The disk is full."_s;
    case ErrorNumber::InputPastEnd:
      return u"The file ends too early."_s;
    case ErrorNumber::BadFileName:
      return u"This can't be the name of a file."_s;
    case ErrorNumber::PermissionDenied:
      return u"The file or its folder is write-protected or may not be used."_s;
    case ErrorNumber::PathFileAccess:
      return u"The file or folder can't be used."_s;
    case ErrorNumber::PathNotFound:
      return u"The folder isn't there."_s;
    case ErrorNumber::InvalidPicture:
      return u"It can't be read as a picture."_s;
    case ErrorNumber::PrinterError:
      return u"The printer can't be used."_s;
    case ErrorNumber::DialogCancelled:
      return u"The dialog was cancelled."_s;
    default:
      return u"The program met an error."_s;
  }
}

}  // namespace

RuntimeError::RuntimeError(int number, QString subject, Origin origin)
    : RuntimeError(number, std::move(subject), TextOf(number), origin) {}

RuntimeError::RuntimeError(int number, QString subject, QString text, Origin origin)
    : m_number(number), m_subject(std::move(subject)), m_text(std::move(text)), m_origin(origin) {
  m_what = u"error %1, %2: %3"_s.arg(m_number).arg(m_subject, m_text).toUtf8();
}

RuntimeError RuntimeError::AtPath(int number, const QString& path) {
  return AtPath(number, path, TextOf(number));
}

RuntimeError RuntimeError::AtPath(int number, const QString& path, const QString& text) {
  RuntimeError error(number, path, text);
  error.m_isFullPath = true;
  return error;
}

QString RuntimeError::ShownSubject(const QString& dataRoot) const {
  if (m_isFullPath || !IsAboutFile()) return m_subject;
  return dataRoot + QString(m_subject).replace(u'\\', u'/');
}

RuntimeError RuntimeError::WithAdvice(const QString& advice) const {
  RuntimeError advised = *this;
  advised.m_advice = advice;
  return advised;
}

RuntimeError RuntimeError::AsFileContent(const QString& fileName) const {
  return RuntimeError(m_number, fileName, m_text, Origin::FileContent);
}

RuntimeError RuntimeError::AsEvent(const QString& fileName) const {
  return RuntimeError(m_number, fileName, m_text, Origin::Event).WithAdvice(m_advice);
}
