/// A combo box as the screens use one: a list with a data word per entry and, where it is editable, a text of
/// its own that needn't be an entry.
#pragma once

#include <functional>
#include <QComboBox>
#include <QPointer>

class EntryModel;

class ListCombo : public QComboBox {
 public:
  explicit ListCombo(QWidget* parent = nullptr);

  /// Sorted lists keep their entries in alphabetical order, ignoring case.
  void SetSorted(bool sorted);
  void ClearList();  ///< Entries and text.
  /// Appended, or put into its place in a sorted list. What is selected or typed stays.
  void AddEntry(const QString& text, int word = 0);
  /// Many entries at once: with 32,767 of them the box stays instant. They replace all; nothing is selected then, and
  /// the text is empty.
  void SetEntries(const QStringList& texts, const QList<int>& words);
  int ListCount() const { return count(); }
  QString Entry(int index) const { return itemText(index); }
  int EntryData(int index) const;
  int ListIndex() const { return currentIndex(); }

  /// Selects an entry and runs the click as a pick by the user does, for the entry selected already too; -1 deselects,
  /// empties the text, and runs no click.
  void SelectEntry(int index);
  /// Sets the text as typed text, without completion; the list index becomes that of no entry. Runs the change handler.
  void SetText(const QString& text);
  /// Shows a text, and the index of the entry that equals it, without running any handler.
  void ShowText(const QString& text);
  QString Text() const { return currentText(); }
  /// The first entry that begins with `text`, ignoring case; -1 if none. Empty text finds nothing.
  int FindPrefix(const QString& text) const;

  /// A pick, by hand or by `SelectEntry`. An error of a pick by hand goes to the screen's guard; one that code started
  /// goes on to that code.
  std::function<void()> Click;
  /// The text changed by typing, by `SetText`, or by an assistive program.
  std::function<void()> Change;
  /// The text changed by hand without `Change`: the tail was added to it, or a deletion left it.
  std::function<void()> ChangeUntold;
  /// What typing the whole of an entry does: select it, which runs its click, or leave it as text.
  enum class WhenWhole { Select, Leave };
  /// Completes what is typed with the first entry that begins with it, the added tail selected. After Backspace or
  /// Delete the next change completes nothing and runs no `Change`. `Change` runs before the completion. From a text
  /// that isn't picked, the arrow keys and the open list begin at the first entry that begins with it.
  void SetAutoComplete(bool on, WhenWhole whole = WhenWhole::Select);

  void showPopup() override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void TakeOverLine();
  void Edited(const QString& text);
  void Replaced();
  void Complete(const QString& typed);
  /// The entry that a text typed so far would complete to; -1 where one is picked, or none begins so.
  int EntryInSight() const;
  void Place(int index, const QString& text);

  QPointer<QLineEdit> m_line;  ///< Before the entries: making them is an event of this box already.
  QString m_heard;             ///< The text of the line as last put there, picked or typed.
  EntryModel* m_entries;
  bool m_sorted = false;
  bool m_autoComplete = false;
  bool m_skipAutoComplete = false;
  WhenWhole m_whole = WhenWhole::Select;
};
