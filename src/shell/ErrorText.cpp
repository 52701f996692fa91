#include "shell/ErrorText.h"

using namespace Qt::StringLiterals;

namespace {

/// What couldn't be read as what it must be: the content of a file that the user asked for.
bool IsUnreadableFile(const RuntimeError& error) {
  const bool read = error.Number() == ErrorNumber::InputPastEnd || error.Number() == ErrorNumber::TypeMismatch ||
                    error.Number() == ErrorNumber::Overflow || error.Number() == ErrorNumber::OutOfRange;
  return read && error.IsAboutFile();
}

QString WhatToDo(const RuntimeError& error) {
  if (!error.Advice().isEmpty()) return error.Advice();
  if (IsUnreadableFile(error)) return u"Mend the file or remove it, then try again. Nothing was lost."_s;
  switch (error.Number()) {
    case ErrorNumber::DiskFull:
      return u"Make room on it and try again. Nothing was lost."_s;
    case ErrorNumber::PermissionDenied:
    case ErrorNumber::PathFileAccess:
      // A read, a write, or a folder that couldn't be flushed after the new file stood: what is said holds for each.
      return u"Check that you may read and write the file and its folder, then try again. Nothing was lost."_s;
    case ErrorNumber::DeviceError:
      return u"Have the disk checked, then look at what was being saved and save it again. The Backup folder may hold an earlier copy of the file."_s;
    case ErrorNumber::FileNotFound:
      return u"Put the file there or choose another one, then try again. Nothing was lost."_s;
    case ErrorNumber::BadFileName:
      return u"Choose another name, shorter and without / or \\, then try again. Nothing was lost."_s;
    case ErrorNumber::BadFileNumber:
      return u"Try again. If it comes back, close the program and start it again. Nothing was lost."_s;
    case ErrorNumber::PrinterError:
      return u"Check that the printer is on and has paper, or choose another one, then print again. Nothing was lost."_s;
    case ErrorNumber::PathNotFound:
      return u"Start the program again: it makes its folders at each start."_s;
    case ErrorNumber::TypeMismatch:
    case ErrorNumber::Overflow:
      return u"Correct what was typed and try again. Nothing was lost."_s;
    case ErrorNumber::OutOfRange:
      return u"There is no room for it. Nothing was lost."_s;
    default:
      return u"Nothing was lost. Try again."_s;
  }
}

}  // namespace

QString UsualRemedy(const RuntimeError& error) {
  return WhatToDo(error).remove(u"Nothing was lost."_s).trimmed();
}

QString ErrorBoxText(const RuntimeError& error, bool ends, const QString& dataRoot, const QString& box) {
  QString text = error.Text();
  const QString subject = error.IsAboutFile() || box.isEmpty() ? error.ShownSubject(dataRoot) : box;
  if (!subject.isEmpty()) text = subject + u": "_s + text;
  text += u" (error "_s + QString::number(error.Number()) + u")\n\n"_s;
  if (error.Number() == ErrorNumber::InvalidPicture && ends) {
    // The picture is the user's own, and a path that is removed alone comes back from the Backup folder.
    text +=
        u"The program ends and leaves all files as they are. Put a picture in that place, or move what stands there "
        u"elsewhere; or remove CompanyLogo.txt and its copy in the Backup folder. Then start the program again."_s;
  } else if (error.From() == RuntimeError::Origin::FileContent) {
    text += u"The file can't be read as what it must be. The program ends and leaves all files as they are. "_s;
    text +=
        error.Advice().isEmpty()
            ? u"Put the copy from the Backup folder in its place, or remove the file, then start the program again."_s
            : error.Advice();
  } else if (ends) {
    text += u"The program can't start. Mend this and start it again; no file was changed by it."_s;
  } else {
    text += WhatToDo(error);
  }
  return text;
}
