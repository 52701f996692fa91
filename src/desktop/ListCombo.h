/// A combo box as the system's screens use one: a list with a data word per entry and, where it is editable, a text of
/// its own that needn't be an entry.
#pragma once

#include <QComboBox>
#include <functional>

class ListCombo : public QComboBox {
 public:
  explicit ListCombo(QWidget* parent = nullptr);

  /// Sorted lists keep their entries in alphabetical order, ignoring case.
  void SetSorted(bool sorted);
  void ClearList();  ///< Entries and text.
  void AddEntry(const QString& text, int data = 0);
  /// Many entries at once: with 32,767 of them the box stays instant.
  void SetEntries(const QStringList& texts, const QList<int>& data);
  int ListCount() const { return count(); }
  QString Entry(int index) const { return itemText(index); }
  int EntryData(int index) const;
  int ListIndex() const { return currentIndex(); }

  /// Selects an entry and runs the click as a pick by the user does; -1 deselects, empties the text, and runs no click.
  void SelectEntry(int index);
  /// Sets the text as typed text, without completion; the list index becomes that of no entry. Runs the change handler.
  void SetText(const QString& text);
  QString Text() const { return currentText(); }
  /// The first entry that begins with `text`, ignoring case; -1 if none. Empty text finds nothing.
  int FindPrefix(const QString& text) const;

  /// A pick, by hand or by `SelectEntry`.
  std::function<void()> Click;
  /// The text changed by typing or by `SetText`.
  std::function<void()> Change;
  /// Completes what is typed with the first entry that begins with it, the added tail selected; Backspace and Delete
  /// don't complete. The entry is selected outright where nothing is left to add. `Change` runs first.
  void SetAutoComplete(bool on);
};
