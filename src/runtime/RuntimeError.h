/// The one exception of the program: a number, a text, and the file or the box concerned.
#pragma once

#include <exception>
#include <QString>

namespace ErrorNumber {
inline constexpr int Overflow = 6;
inline constexpr int OutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileNumber = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int DeviceError = 57;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int BadFileName = 64;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int InvalidPicture = 481;
inline constexpr int PrinterError = 482;
inline constexpr int DialogCancelled = 32755;
}  // namespace ErrorNumber

/// Thrown by the rules; what no handler takes, `Program` shows.
class RuntimeError : public std::exception {
 public:
  /// What the error came from decides what follows when nobody handled it: a data file whose content can't be
  /// loaded as what it must be ends the program (its good backup must not be overwritten at exit); anything else
  /// ends the event only.
  enum class Origin { Event, FileContent };

  /// `subject` names the file (by its root-relative name) or the box; empty where there is none.
  RuntimeError(int number, QString subject, Origin origin = Origin::Event);
  RuntimeError(int number, QString subject, QString text, Origin origin = Origin::Event);

  /// About a file or folder that is named by its full path, inside the data root or not.
  static RuntimeError AtPath(int number, const QString& path);
  static RuntimeError AtPath(int number, const QString& path, const QString& text);

  int Number() const { return m_number; }
  const QString& Subject() const { return m_subject; }
  /// Whether the subject is a file: its name or path begins with a separator, which no box's name does.
  bool IsAboutFile() const { return m_subject.startsWith(u'/') || m_subject.startsWith(u'\\'); }
  /// The subject as the user reads it: a file always by its full path, so that it is found where several businesses
  /// have their folders; a box by its name.
  QString ShownSubject(const QString& dataRoot) const;
  /// One sentence for the user, without the subject.
  const QString& Text() const { return m_text; }
  Origin From() const { return m_origin; }
  /// The same error with its own word on what the user can do, where the number alone would say the wrong thing.
  RuntimeError WithAdvice(const QString& advice) const;
  const QString& Advice() const { return m_advice; }
  /// The same error, seen as damage of the named data file.
  RuntimeError AsFileContent(const QString& fileName) const;
  /// The same error with its advice, of a file that the user asked for just then: the others are sound, so the program
  /// goes on.
  RuntimeError AsEvent(const QString& fileName) const;

  const char* what() const noexcept override { return m_what.constData(); }

 private:
  int m_number;
  QString m_subject;
  bool m_isFullPath = false;
  QString m_text;
  QString m_advice;
  Origin m_origin;
  QByteArray m_what;
};
