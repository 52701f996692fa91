/// What the rules and screens tell and ask the user, whatever stands behind it: Qt's dialogs, or a test's answers.
#pragma once

#include <optional>
#include <QString>

/// An empty title is the default application caption, "Karvex Invoicer".
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// A box with an OK button only.
  virtual void ShowMessage(const QString& text, const QString& title = {}) = 0;
  /// A Yes/No box; true is Yes. Escape and the box's close button are No.
  virtual bool AskYesNo(const QString& text, const QString& title = {}) = 0;
  /// A box with an exclamation mark, OK and Cancel, before something is lost; true is OK. Escape is Cancel.
  virtual bool AskOkCancel(const QString& text, const QString& title = {}) = 0;
  /// The input box: what was typed, empty after Cancel.
  virtual QString AskText(const QString& prompt, const QString& title) = 0;
  virtual void Beep() = 0;
  /// The dialogs that a user can cancel throw RuntimeError 32755 then.
  /// `filter` in the platform's form, "Pictures |(*.bmp;*.jpg)|All|*.*": pairs of a label and its patterns.
  virtual QString ChooseFile(const QString& title, const QString& filter) = 0;
  /// Colours are packed 0x00BBGGRR values.
  virtual quint32 ChooseColor(quint32 current) = 0;
  /// A font name; only fonts that print.
  virtual QString ChooseFont(const QString& current) = 0;
  /// Opens a page in the user's browser: a web address or the path of a page shipped with the program.
  virtual void OpenPage(const QString& address) = 0;
};
