/// The rules of what may be typed or pasted into one box: a filter that sees each character, and a limit. Texts set
/// from code pass neither.
#pragma once

#include <functional>
#include <QObject>

#include "desktop/FocusTracker.h"

class QContextMenuEvent;
class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

/// Works on a QLineEdit, a QPlainTextEdit, an editable combo box, and, for keys alone, on any other widget.
class TypedText : public QObject {
 public:
  using Filter = std::function<int(int key)>;

  /// A child of `box`. Filters run under `guard` and set off no leaving.
  TypedText(QWidget* box, FocusTracker& focus, FocusTracker::Guard guard);

  void SetFilter(Filter key, Filter paste);
  void SetLimit(int characters) { m_limit = characters; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* Line() const;
  QPlainTextEdit* Lines() const;
  bool IsClosed() const;  ///< Read-only, or not editable.
  int Room() const;       ///< How many characters still fit, the selected ones counted as free.
  void Insert(const QString& text);
  int Pass(const Filter& filter, int key);
  /// Adds what passes, each character before the next is asked about: filters look at the text so far.
  void Feed(const QString& text, const Filter& filter);

  bool KeyPress(QKeyEvent& event);
  bool InputMethod(QInputMethodEvent& event);
  bool ContextMenu(const QContextMenuEvent& event);
  void Paste(const QString& text);

  QWidget* m_box;
  FocusTracker& m_focus;
  FocusTracker::Guard m_guard;
  Filter m_key;
  Filter m_paste;
  int m_limit = -1;
  bool m_passing = false;
};
