/// The user's boxes, answered by a test: each box that comes up is noted, and a question that nobody prepared an answer
/// for ends the test program.
#pragma once

#include <deque>
#include <QStringList>

#include "runtime/Dialogs.h"
#include "runtime/RuntimeError.h"

class ScriptedDialogs final : public Dialogs {
 public:
  static inline const QString Cancel = QStringLiteral("(cancel)");

  /// What came up, in order: "title|text", "beep", "file", "color", "font", "page|address".
  QStringList Seen;
  std::deque<bool> Answers;    ///< To Yes/No boxes.
  std::deque<QString> Chosen;  ///< In the dialogs: a path, a colour in decimal digits, a font; or `Cancel`.
  QString LastFilter;

  QStringList TakeSeen() { return std::exchange(Seen, {}); }

  void ShowMessage(const QString& text, const QString& title = {}) override { Note(title, text); }
  bool AskYesNo(const QString& text, const QString& title = {}) override {
    Note(title, text);
    return Next(Answers);
  }
  void Beep() override { Seen << QStringLiteral("beep"); }
  QString ChooseFile(const QString&, const QString& filter) override {
    LastFilter = filter;
    return Choose(QStringLiteral("file"));
  }
  quint32 ChooseColor(quint32) override { return Choose(QStringLiteral("color")).toUInt(); }
  QString ChooseFont(const QString&) override { return Choose(QStringLiteral("font")); }
  void OpenPage(const QString& address) override { Seen << QStringLiteral("page|") + address; }

 private:
  template <typename Answer>
  static Answer Next(std::deque<Answer>& queue) {
    if (queue.empty()) qFatal("a box came up that the test has no answer for");
    const Answer answer = queue.front();
    queue.pop_front();
    return answer;
  }
  void Note(const QString& title, const QString& text) { Seen << title + QLatin1Char('|') + text; }
  QString Choose(const QString& dialog) {
    Seen << dialog;
    const QString chosen = Next(Chosen);
    if (chosen == Cancel) throw RuntimeError(ErrorNumber::DialogCancelled, {});
    return chosen;
  }
};
