/// The user's boxes, answered by a test: each box that comes up is noted, and a question that nobody prepared an answer
/// for throws.
#pragma once

#include <functional>
#include <QStringList>
#include <stdexcept>

#include "runtime/Dialogs.h"
#include "runtime/RuntimeError.h"

class ScriptedDialogs final : public Dialogs {
 public:
  static inline const QString Cancel = QStringLiteral("(cancel)");

  /// What came up, in order: "title: text" of a message, "title? text" of a question, "beep", "file", "color", "font",
  /// "page|address".
  QStringList Said;
  QList<bool> Answers;    ///< To Yes/No boxes.
  QList<QString> Chosen;  ///< In the dialogs: a path, a colour in decimal digits, a font; or `Cancel`.
  QString Typed;  ///< Into the next input box.
  QString LastFilter;
  /// Runs at each message and question, before it is answered.
  std::function<void()> OnBox;

  /// What was said since the last call.
  QStringList Take() { return std::exchange(Said, {}); }

  void ShowMessage(const QString& text, const QString& title = {}) override {
    Note(title + QStringLiteral(": ") + text);
  }
  bool AskYesNo(const QString& text, const QString& title = {}) override {
    Note(title + QStringLiteral("? ") + text);
    return Next(Answers);
  }
  bool AskOkCancel(const QString& text, const QString& title = {}) override { return AskYesNo(text, title); }
  QString AskText(const QString& prompt, const QString& title) override {
    Note(title + QStringLiteral("< ") + prompt);
    return Typed;
  }
  void Beep() override { Said << QStringLiteral("beep"); }
  QString ChooseFile(const QString&, const QString& filter) override {
    LastFilter = filter;
    return Choose(QStringLiteral("file"));
  }
  quint32 ChooseColor(quint32) override { return Choose(QStringLiteral("color")).toUInt(); }
  QString ChooseFont(const QString&) override { return Choose(QStringLiteral("font")); }
  void OpenPage(const QString& address) override { Said << QStringLiteral("page|") + address; }

 private:
  template <typename Answer>
  static Answer Next(QList<Answer>& queue) {
    if (queue.isEmpty()) throw std::logic_error("a box came up that the test has no answer for");
    return queue.takeFirst();
  }
  void Note(const QString& box) {
    if (OnBox) OnBox();
    Said << box;
  }
  QString Choose(const QString& dialog) {
    Said << dialog;
    const QString chosen = Next(Chosen);
    if (chosen == Cancel) throw RuntimeError(ErrorNumber::DialogCancelled, {});
    return chosen;
  }
};
